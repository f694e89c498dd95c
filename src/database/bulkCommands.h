// Changes of many materials as one step of the database window's history. Neither applies itself:
// run() does, with progress. Undoing and doing again run to their end, with the progress that the
// window shows.
#pragma once

#include "commands/command.h"
#include "data/documentSaving.h"
#include "database/bulkEdit.h"
#include "database/databaseTree.h"

// Texts and firms; rows that are made follow.
class bulkChange : public command
{
public:
    // The index is kept in step with the KTMs. Rows and index outlive the step.
    bulkChange(bulkEdit::changes changes, databaseTree::rows *rows, ktmIndex *known,
               workShown shown);
    // False when progress cancelled: nothing is changed then.
    bool run(const progressFunction &progress);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    bulkEdit::changes::told before() const;
    bulkEdit::changes::told after() const;

    bulkEdit::changes m_changes;
    databaseTree::rows *m_rows;
    ktmIndex *m_known;
    workShown m_shown;
};

// Materials taken to the end of another group, with their rows.
class moveToGroup : public command
{
public:
    // begins is called before rows go: a view whose current row goes lays itself out anew, which is
    // too slow for each of many.
    moveToGroup(myModel *model, databaseTree::rows *rows, d_groupStruct *to,
                const std::vector<bulkEdit::place> &materials, std::function<void()> begins,
                workShown shown);
    // As above.
    bool run(const progressFunction &progress);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    struct moved
    {
        const materialStruct *material;
        const d_groupStruct *from;
        int row = -1;   // where it stood
        int place = -1; // and its record
    };

    void takeBack(const progressFunction &progress);

    myModel *m_model;
    databaseTree::rows *m_rows;
    d_groupStruct *m_to;
    std::function<void()> m_begins;
    workShown m_shown;
    std::vector<moved> m_moved;
    size_t m_done = 0; // so many are in the group
};

// A plan for a material database carried out in its window: the rows change with the records, and
// all of it is one step of the undo history.
#pragma once

#include "commands/command.h"
#include "database/databaseMerge.h"
#include "database/databaseTree.h"

class databaseRowsTarget final : public databaseTarget
{
public:
    // Of a model that shows these rows; both outlive it.
    databaseRowsTarget(myModel *model, databaseTree::rows *rows)
        : m_model(model)
        , m_rows(rows)
    {
    }

    d_groupStruct *addGroup(std::unique_ptr<d_groupStruct> group) override;
    void add(d_groupStruct *group, std::unique_ptr<materialStruct> material) override;
    materialStruct *replace(d_groupStruct *group, materialStruct *material,
                            std::unique_ptr<materialStruct> content) override;
    // At a place among the materials of the group.
    void addAt(d_groupStruct *group, std::unique_ptr<materialStruct> material, int row);
    void setName(d_groupStruct *group, const QString &name);
    // A group without materials.
    void removeGroup(d_groupStruct *group);
    void setCpv(d_groupStruct *group, const QString &cpv) override;
    void remove(d_groupStruct *group, const QSet<const materialStruct *> &materials) override;

    // All that was done, which is applied already; null when there was nothing.
    std::unique_ptr<command> step();
    // Takes all of it back.
    void revert();

private:
    // The group's row, with those of its materials made.
    QStandardItem *fetched(const d_groupStruct *group);

    myModel *m_model;
    databaseTree::rows *m_rows;
    std::vector<std::unique_ptr<command>> m_members;
};

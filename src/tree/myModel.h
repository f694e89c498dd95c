// The model of all editing trees: rows of myItem cells, over records that it keeps in step with.
#pragma once

#include "tree/myItem.h"

#include <QStandardItemModel>

#include <functional>
#include <vector>

class commandStack;

// What a window's model shows: the records behind its rows. The model calls it, so that whatever
// moves or changes in the tree, by a command or its undo, does the same in the records.
class modelRecords
{
public:
    virtual ~modelRecords() = default;

    // A cell got another text, which goes to its record.
    virtual void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) = 0;
    // The row whose first cell this is was put in below the parent: its record leaves the cell and
    // takes its place among the others.
    virtual void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) = 0;
    // The row was taken out: the first cell becomes the owner of its record.
    virtual void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) = 0;
    // The rows below a cell whose childrenPending is set.
    virtual std::vector<myItem::row> childRows(myItem::myItemStandard *) { return {}; }
};

class myModel : public QStandardItemModel
{
    Q_OBJECT
public:
    explicit myModel(QObject *parent);

    // The window's undo history, and its records; both outlive the model's use. Without a history
    // edits cannot be undone, without records the model is all there is.
    void setStack(commandStack *stack) { m_stack = stack; }
    void setRecords(modelRecords *records) { m_records = records; }
    // Lets go of both, before they go: an editor may still commit while its window is destroyed.
    void detach() { m_stack = nullptr, m_records = nullptr; }
    modelRecords *records() const { return m_records; }

    // Numbers and dates sort by value, anything else by its text. Then sorted() is emitted.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    // Rows whose cells are made when they are first needed.
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    void fetch(QStandardItem *item);

    // What is asked before an edit: the fault of a value for a cell, empty when there is none.
    using check = std::function<QString(const myItem::myItemStandard &item, const QVariant &value)>;
    void setCheck(check newCheck) { m_check = std::move(newCheck); }

    // Sets a cell's value (its type as in myItem::valueOf) as one step of the undo history. Nothing
    // happens when the cell holds that value already, unless its text is another one than the value
    // gives. Without a history the cell is set at once.
    void setValue(myItem::myItemStandard *item, const QVariant &value);

    // The cells of a row as the model shows them, by any of its indexes.
    myItem::row rowOf(const QModelIndex &index) const;
    // The item at an index when it is one of ours, else null.
    myItem::myItemStandard *cell(const QModelIndex &index) const;

    using QStandardItemModel::appendRow;
    // An empty list appends nothing.
    void appendRow(const myItem::row &items);

    // Put a row in and take it out together with its record.
    void insertWithRecord(QStandardItem *parent, int row, const myItem::row &items);
    myItem::row takeWithRecord(QStandardItem *parent, int row);
    // Takes an item's text to its record.
    void writeCell(myItem::myItemStandard *item);

    // For the commands, after they inserted, removed or changed. Within a changeBatch each signal
    // is emitted once, at its end.
    void emitAppendOccured();
    void emitRemoveOccured();
    void emitChangeValueOccured();

signals:
    void sorted();
    void appendOccured();
    void removeOccured();
    void changeValueOccured();
    // An edit was refused by the check.
    void refused(const QString &fault);

private:
    friend class changeBatch;

    void emitHeldBack();

    commandStack *m_stack = nullptr;
    modelRecords *m_records = nullptr;
    int m_sortColumn = -1; // rows made later are sorted likewise
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    check m_check;
    bool m_appendHeldBack = false;
    bool m_removeHeldBack = false;
    bool m_changeHeldBack = false;
};

// While one lives, the signals of changes are held back, so that many changes of one gesture are
// followed by one refresh.
class changeBatch
{
public:
    changeBatch();
    ~changeBatch();
    changeBatch(const changeBatch &) = delete;
    changeBatch &operator=(const changeBatch &) = delete;

private:
    friend class myModel;
    static bool holdsBack(myModel *model);
};

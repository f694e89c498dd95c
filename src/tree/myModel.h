// The model of all editing trees: rows of myItem cells, over records that it keeps in step with.
#pragma once

#include "tree/myItem.h"

#include <QHash>
#include <QPointer>
#include <QStandardItemModel>

#include <functional>
#include <vector>

class myModel;

// What a window's model shows: the records behind its rows. The model calls it, so that whatever
// moves or changes in the tree, by a command or its undo, does the same in the records.
class modelRecords
{
public:
    virtual ~modelRecords() = default;

    // A cell got another text, which goes to its record.
    virtual void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) = 0;
    // The stored unit of what a number in the cell counts; none where it has no unit.
    virtual std::optional<QString> unitOf(const myItem::myItemStandard &,
                                          const myItem::myItemStandard *) const
    {
        return {};
    }
    // The row whose first cell this is was put in below the parent: its record leaves the cell and
    // takes its place among the others.
    virtual void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) = 0;
    // The row was taken out: the first cell becomes the owner of its record.
    virtual void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) = 0;
    // A top-level row for a new record, which the row owns; empty where rows do not come by
    // themselves.
    virtual myItem::row newRow() { return {}; }
    // The records of the rows below a cell whose childrenPending is set, as the file has them.
    virtual std::vector<xmlData *> childRecords(const myItem::myItemStandard *) { return {}; }
    // Those rows themselves, where they show no records of their own.
    virtual std::vector<myItem::row> childRows(myItem::myItemStandard *) { return {}; }
    // A cell of such a row, and whether those of a column can be edited.
    virtual std::unique_ptr<myItem::myItemStandard> newCell(xmlData *, int) const { return {}; }
    virtual bool isEditable(int) const { return true; }
    // Where a row is put in below a parent that is told a row, when it can show them in the order
    // of the file.
    virtual int rowFor(const QStandardItem *, int row, const myItem::myItemStandard *) const
    {
        return row;
    }
    // The records behind the top-level rows as their file has them, when the tree shows them in
    // another order, else nothing; and the records put into such an order again.
    virtual std::vector<const xmlData *> recordsNotAsShown(const myModel *) const { return {}; }
    virtual void arrange(const std::vector<const xmlData *> &) {}
};

// Who is told what becomes of the records behind a model, whatever changes them. depth: how many
// records one lies below.
class recordWatch
{
public:
    virtual ~recordWatch() = default;
    // Before and after its content changes.
    virtual void willChange(const xmlData *record, int depth) = 0;
    virtual void changed(const xmlData *record, int depth) = 0;
    // After it took its place, which may be that of its row.
    virtual void inserted(xmlData *parent, const xmlData *record, int depth, int row) = 0;
    virtual void willBeTaken(const xmlData *record, int depth) = 0;
};

class myModel : public QStandardItemModel
{
    Q_OBJECT
public:
    explicit myModel(QObject *parent);
    ~myModel() override;

    // What carries out an edit, as a step of an undo history; without it a cell is set at once and
    // nothing can be undone.
    using editHook = std::function<void(myItem::myItemStandard *item, const QVariant &value)>;
    void setEditHook(editHook hook) { m_editHook = std::move(hook); }
    // The records behind the rows, which outlive their use here; without any the model is all there
    // is.
    void setRecords(modelRecords *records);
    // Lets go of both, before they go: an editor may still commit while its window is destroyed.
    void detach() { m_editHook = nullptr, m_records = nullptr, m_watch = nullptr; }
    modelRecords *records() const { return m_records; }
    // Null for nobody. Who changes records beside the model tells the watch.
    void setWatch(recordWatch *watch) { m_watch = watch; }
    recordWatch *watch() const { return m_watch; }

    // Numbers and dates sort by value, anything else by its text. Then sorted() is emitted.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    bool isSorted() const { return m_sortColumn >= 0; }

    // Rows that are made when their parent is first opened, and cells of them that are made when
    // they are first needed: see lazyRow. What is only looked at is never made.
    bool hasChildren(const QModelIndex &parent = {}) const override;
    bool canFetchMore(const QModelIndex &parent) const override;
    void fetchMore(const QModelIndex &parent) override;
    void fetch(QStandardItem *item);
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStandardItem *itemFromIndex(const QModelIndex &index) const;
    // The cell at an index to be looked at: it may be gone with the next call. Null when it is none
    // of ours.
    const myItem::myItemStandard *look(const QModelIndex &index) const;
    // The record of the row at an index.
    xmlData *recordAt(const QModelIndex &index) const;
    // The row that shows a record below a parent that was fetched, -1 when there is none.
    static int rowOfRecord(const QStandardItem *parent, const xmlData *record);
    // Puts in the row of a record, with the cells that it had when it was taken out. Returns its
    // first cell.
    myItem::myItemStandard *showRecord(QStandardItem *parent, int row, xmlData *record);
    // Has cells that were fetched show other records below them, in one change of the layout.
    // Cells that were made stay what they are, and come back with their record.
    using shownRecords = std::pair<myItem::myItemStandard *, std::vector<xmlData *>>;
    void showRecords(std::vector<shownRecords> &&wanted);
    // Puts a row into the tree again that showRecords() took out, by its first cell; null is
    // nothing. False when it is not in the tree then.
    bool bringBack(myItem::myItemStandard *first);
    // What is shown without being made follows its record with the next painting.
    void lookAgain();
    // Marks the cells of a row as the current ones.
    void setHighlighted(const QModelIndex &row, bool on);

    // What is asked before an edit: the fault of a value for a cell, empty when there is none.
    using check = std::function<QString(const myItem::myItemStandard &item, const QVariant &value)>;
    void setCheck(check newCheck) { m_check = std::move(newCheck); }

    // What the check says of a value.
    QString faultOf(const myItem::myItemStandard &item, const QVariant &value) const
    {
        return m_check ? m_check(item, value) : QString();
    }

    // Sets a cell's value (its type as in myItem::valueOf) through the edit hook. Nothing happens
    // when the cell holds that value already, unless its text is another one than the value gives,
    // nor when the check refuses it: then its fault is returned.
    QString setValue(myItem::myItemStandard *item, const QVariant &value);

    // What a typed or pasted text means for a cell, see myItem::read(); the check is asked, too.
    myItem::reading read(const myItem::myItemStandard &item, const QString &text) const;

    // The cells of a row as the model shows them, by any of its indexes; all of them are made.
    myItem::row rowOf(const QModelIndex &index) const;
    // The item at an index when it is one of ours, else null.
    myItem::myItemStandard *cell(const QModelIndex &index) const;

    using QStandardItemModel::appendRow;
    // An empty list appends nothing.
    void appendRow(const myItem::row &items);

    // Put a row in and take it out together with its record; where it goes in, the records may
    // know better, see modelRecords::rowFor().
    void insertWithRecord(QStandardItem *parent, int row, const myItem::row &items);
    myItem::row takeWithRecord(QStandardItem *parent, int row);
    // Takes an item's text to its record.
    void writeCell(myItem::myItemStandard *item);
    // Puts the records of the top-level rows into an order, in which those of some rows moved.
    void arrangeRecords(const std::vector<const xmlData *> &order, const std::vector<int> &moved);

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

private:
    friend class changeBatch;

    // A row that a filter took out of the tree; its cells are the same when it comes back.
    struct rowAside
    {
        QStandardItem *parent;
        myItem::row cells; // one a column, null where none is made
    };

    class rearrangement;

    QStandardItem *made(const QModelIndex &index) const;
    const myItem::lazyRow *pendingAt(const QModelIndex &index) const;
    myItem::myItemStandard *makeCell(QStandardItem *parent, int row, int column) const;
    std::vector<xmlData *> inOrder(std::vector<xmlData *> records) const;
    void sortRows();
    void forgetLooked() const { m_looked.reset(), m_lookedRecord = nullptr; }
    void rowsCame(const QModelIndex &parent, int first, int last);
    void rowsWent(const QModelIndex &parent, int first, int last);
    void forgetAside();

    void emitHeldBack();
    int depthBelow(const QStandardItem *parent) const;
    xmlData *recordOf(const QStandardItem *parent) const;

    editHook m_editHook;
    modelRecords *m_records = nullptr;
    recordWatch *m_watch = nullptr;
    QHash<const xmlData *, rowAside> m_aside;
    mutable std::unique_ptr<myItem::myItemStandard> m_looked; // the cell looked at last
    mutable const xmlData *m_lookedRecord = nullptr;          // and whose it is
    mutable int m_lookedColumn = -1;
    bool m_looksAgain = false;
    int m_sortColumn = -1; // rows made later are sorted likewise
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    check m_check;
    int m_openBatches = 0;
    bool m_appendHeldBack = false;
    bool m_removeHeldBack = false;
    bool m_changeHeldBack = false;
};

// While one lives, a model's signals of changes are held back, so that many changes of one gesture
// are followed by one refresh. Batches may stand within each other; without a model nothing is held
// back.
class changeBatch
{
public:
    explicit changeBatch(myModel *model);
    ~changeBatch();
    changeBatch(const changeBatch &) = delete;
    changeBatch &operator=(const changeBatch &) = delete;

private:
    QPointer<myModel> m_model;
};

// The rows of myModel whose cells are made when they are needed. A row that nobody looked at is
// nothing but an entry in its parent's lazyRow list; what is looked at is made for the moment; what
// is edited, or known to somebody by its cell, is made for good.
#include "tree/myModel.h"

#include <QSet>
#include <QSignalBlocker>

#include <algorithm>

using myItem::lazyRow;
using myItem::myItemStandard;

namespace {

std::vector<lazyRow> *lazyRowsOf(const QStandardItem *parent)
{
    return parent && parent->type() >= myItem::standardKind
               ? static_cast<const myItemStandard *>(parent)->below.get()
               : nullptr;
}

bool isLess(const QVariant &a, const QVariant &b)
{
    if (a.type() == QVariant::String)
        return a.toString() < b.toString();
    return a.type() == QVariant::Double ? a.toDouble() < b.toDouble()
                                        : a.toLongLong() < b.toLongLong();
}

} // namespace

// --- What there is
// --------------------------------------------------------------------------------

// Null where no cell is made yet. The base's itemFromIndex() would make one.
QStandardItem *myModel::made(const QModelIndex &index) const
{
    const QModelIndex above = index.parent();
    const QStandardItem *parent =
        above.isValid() ? QStandardItemModel::itemFromIndex(above) : invisibleRootItem();
    return parent->child(index.row(), index.column());
}

// The row of a cell that is still to be made, else null.
const lazyRow *myModel::pendingAt(const QModelIndex &index) const
{
    const QModelIndex above = index.parent();
    if (!above.isValid() || !m_records)
        return nullptr;
    const QStandardItem *parent = QStandardItemModel::itemFromIndex(above);
    const std::vector<lazyRow> *rows = lazyRowsOf(parent);
    return rows && size_t(index.row()) < rows->size() && !parent->child(index.row(), index.column())
               ? &(*rows)[size_t(index.row())]
               : nullptr;
}

xmlData *myModel::recordAt(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    const QModelIndex above = index.parent();
    if (above.isValid())
        if (const auto *rows = lazyRowsOf(QStandardItemModel::itemFromIndex(above)))
            return size_t(index.row()) < rows->size() ? (*rows)[size_t(index.row())].record
                                                      : nullptr;
    const QStandardItem *first = made(index.sibling(index.row(), 0));
    return first && first->type() >= myItem::standardKind
               ? static_cast<const myItemStandard *>(first)->record
               : nullptr;
}

int myModel::rowOfRecord(const QStandardItem *parent, const xmlData *record)
{
    const std::vector<lazyRow> *rows = lazyRowsOf(parent);
    if (!rows)
        return -1;
    const auto found = std::find_if(rows->begin(), rows->end(),
                                    [record](const lazyRow &row) { return row.record == record; });
    return found == rows->end() ? -1 : int(found - rows->begin());
}

bool myModel::hasChildren(const QModelIndex &parent) const
{
    return canFetchMore(parent) || QStandardItemModel::hasChildren(parent);
}

bool myModel::canFetchMore(const QModelIndex &parent) const
{
    if (!parent.isValid() || parent.column() != 0)
        return false;
    const QStandardItem *item = made(parent);
    return item && item->type() >= myItem::standardKind
           && static_cast<const myItemStandard *>(item)->childrenPending;
}

void myModel::fetchMore(const QModelIndex &parent)
{
    if (canFetchMore(parent))
        fetch(itemFromIndex(parent));
}

void myModel::fetch(QStandardItem *item)
{
    if (!item || item == invisibleRootItem() || item->type() < myItem::standardKind)
        return;
    auto *first = static_cast<myItemStandard *>(item);
    if (!m_records || !std::exchange(first->childrenPending, false))
        return;
    const std::vector<myItem::row> rows = m_records->childRows(first);
    for (const myItem::row &row : rows)
        first->appendRow(row);
    if (!rows.empty())
        return;
    first->below = std::make_unique<std::vector<lazyRow>>();
    for (xmlData *record : inOrder(m_records->childRecords(first)))
        first->below->push_back({record});
    if (!first->below->empty())
        first->insertRows(0, int(first->below->size()));
}

// --- Looking and making
// ---------------------------------------------------------------------------

const myItemStandard *myModel::look(const QModelIndex &index) const
{
    if (!index.isValid() || index.model() != this)
        return nullptr;
    const lazyRow *row = pendingAt(index);
    if (!row)
        return cell(index);
    if (m_looked && m_lookedRecord == row->record && m_lookedColumn == index.column())
        return m_looked.get();
    m_looked = m_records->newCell(row->record, index.column());
    m_lookedRecord = row->record;
    m_lookedColumn = index.column();
    if (m_looked && row->made)
        if (const QStandardItem *first = made(index.sibling(index.row(), 0)))
            m_looked->highlighted = static_cast<const myItemStandard *>(first)->highlighted;
    return m_looked.get();
}

QVariant myModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !pendingAt(index))
        return QStandardItemModel::data(index, role);
    const myItemStandard *cell = look(index);
    return cell ? cell->data(role) : QVariant();
}

bool myModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    itemFromIndex(index);
    return QStandardItemModel::setData(index, value, role);
}

Qt::ItemFlags myModel::flags(const QModelIndex &index) const
{
    if (!index.isValid() || !pendingAt(index))
        return QStandardItemModel::flags(index);
    const Qt::ItemFlags usual = QStandardItem().flags();
    return m_records->isEditable(index.column()) ? usual : usual & ~Qt::ItemIsEditable;
}

QStandardItem *myModel::itemFromIndex(const QModelIndex &index) const
{
    if (index.isValid() && index.model() == this && pendingAt(index))
        makeCell(QStandardItemModel::itemFromIndex(index.parent()), index.row(), index.column());
    return QStandardItemModel::itemFromIndex(index);
}

// With the first cell of its row, which knows the record. What is there already is left alone.
myItemStandard *myModel::makeCell(QStandardItem *parent, int row, int column) const
{
    std::vector<lazyRow> *rows = lazyRowsOf(parent);
    if (!rows || !m_records || size_t(row) >= rows->size())
        return nullptr;
    lazyRow &at = (*rows)[size_t(row)];
    forgetLooked();
    const QSignalBlocker quiet(const_cast<myModel *>(this));
    for (const int wanted : {0, column})
        if (!parent->child(row, wanted)) {
            myItemStandard *made = m_records->newCell(at.record, wanted).release();
            if (wanted > 0 && made)
                made->highlighted =
                    static_cast<const myItemStandard *>(parent->child(row))->highlighted;
            parent->setChild(row, wanted, made);
        }
    at.made = true;
    return static_cast<myItemStandard *>(parent->child(row, column));
}

void myModel::lookAgain()
{
    forgetLooked();
    if (std::exchange(m_looksAgain, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_looksAgain = false;
            if (rowCount() > 0)
                emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        },
        Qt::QueuedConnection);
}

void myModel::setHighlighted(const QModelIndex &row, bool on)
{
    // What is made of the row later asks the first cell.
    cell(row.sibling(row.row(), 0));
    forgetLooked();
    const QStandardItem *parent =
        row.parent().isValid() ? QStandardItemModel::itemFromIndex(row.parent()) : nullptr;
    myItem::setHighlighted(myItem::childRow(parent ? parent : invisibleRootItem(), row.row()), on);
}

// --- Rows that come and go
// ------------------------------------------------------------------------

void myModel::rowsCame(const QModelIndex &parent, int first, int last)
{
    forgetLooked();
    const QStandardItem *item =
        parent.isValid() ? QStandardItemModel::itemFromIndex(parent) : nullptr;
    std::vector<lazyRow> *rows = lazyRowsOf(item);
    if (!rows || rows->size() == size_t(item->rowCount()))
        return;
    for (int row = first; row <= last; ++row) {
        const QStandardItem *cell = item->child(row);
        rows->insert(rows->begin() + row, {cell && cell->type() >= myItem::standardKind
                                               ? static_cast<const myItemStandard *>(cell)->record
                                               : nullptr,
                                           true});
    }
}

void myModel::rowsWent(const QModelIndex &parent, int first, int last)
{
    forgetLooked();
    const QStandardItem *item =
        parent.isValid() ? QStandardItemModel::itemFromIndex(parent) : nullptr;
    std::vector<lazyRow> *rows = lazyRowsOf(item);
    if (rows && rows->size() > size_t(item->rowCount()))
        rows->erase(rows->begin() + first, rows->begin() + last + 1);
}

myItemStandard *myModel::showRecord(QStandardItem *parent, int row, xmlData *record)
{
    const auto aside = m_aside.constFind(record);
    const myItem::row cells = aside == m_aside.constEnd()
                                  ? myItem::row{m_records->newCell(record, 0).release()}
                                  : m_aside.take(record).cells;
    auto *first = static_cast<myItemStandard *>(cells.first());
    parent->insertRow(row, cells);
    return first;
}

bool myModel::bringBack(myItemStandard *first)
{
    if (!first || first->model())
        return true;
    const auto aside = m_aside.constFind(first->record);
    if (aside == m_aside.constEnd() || aside->cells.first() != first || !m_records)
        return false;
    QStandardItem *parent = aside->parent;
    showRecord(parent, m_records->rowFor(parent, parent->rowCount(), first), first->record);
    return true;
}

void myModel::forgetAside()
{
    for (const rowAside &row : qAsConst(m_aside))
        qDeleteAll(row.cells);
    m_aside.clear();
}

// Rows below some cells are made other ones while nobody looks: between the signals of a change of
// the layout, which are not this one's to emit. Indexes that others keep follow their records;
// those of records that are not shown any more become invalid.
class myModel::rearrangement
{
public:
    rearrangement(myModel *model, std::vector<shownRecords> wanted)
        : m_model(model)
        , m_quiet(model)
        , m_wanted(std::move(wanted))
    {
        model->forgetLooked();
        keepIndexes();
        for (const auto &[parent, records] : m_wanted)
            for (size_t row = 0; row < parent->below->size(); ++row) {
                const lazyRow &at = (*parent->below)[row];
                if (!at.made)
                    continue;
                rowAside taken{parent, {}};
                for (int column = 0; column < parent->columnCount(); ++column)
                    taken.cells.append(parent->takeChild(int(row), column));
                model->m_aside.insert(at.record, taken);
            }
    }

    // To be called once.
    void finish()
    {
        for (const auto &[parent, records] : m_wanted) {
            parent->below->assign(records.size(), {nullptr});
            parent->setRowCount(int(records.size()));
            for (size_t row = 0; row < records.size(); ++row) {
                lazyRow &at = (*parent->below)[row];
                at.record = records[row];
                if (!m_model->m_aside.isEmpty() && m_model->m_aside.contains(at.record))
                    putCells(parent, int(row), at);
            }
        }
        for (const rowAside &row : qAsConst(m_model->m_aside))
            myItem::setHighlighted(row.cells, false);
        giveIndexes();
    }

private:
    struct keptIndex
    {
        const QStandardItem *parent;
        const xmlData *record;
        int column;
    };

    void putCells(QStandardItem *parent, int row, lazyRow &at)
    {
        const myItem::row cells = m_model->m_aside.take(at.record).cells;
        for (int column = 0; column < cells.size(); ++column)
            if (cells[column])
                parent->setChild(row, column, cells[column]);
        at.made = true;
    }

    // To where no row is while the cells move, else the base would think them gone.
    void keepIndexes()
    {
        constexpr int farAway = 1 << 28;
        QSet<const QStandardItem *> parents;
        for (const auto &[parent, records] : m_wanted)
            parents.insert(parent);
        QModelIndexList from;
        for (const QModelIndex &index : m_model->persistentIndexList()) {
            const QModelIndex above = index.parent();
            const auto *parent =
                above.isValid() ? m_model->QStandardItemModel::itemFromIndex(above) : nullptr;
            if (!parent || !parents.contains(parent))
                continue;
            from.append(index);
            m_away.append(m_model->createIndex(farAway + from.size(), index.column(),
                                               m_model->invisibleRootItem()));
            m_kept.push_back({parent, m_model->recordAt(index), index.column()});
        }
        m_model->changePersistentIndexList(from, m_away);
    }

    void giveIndexes()
    {
        QHash<const QStandardItem *, QHash<const xmlData *, int>> rows;
        QModelIndexList to;
        for (const auto &[parent, record, column] : m_kept) {
            QHash<const xmlData *, int> &ofParent = rows[parent];
            if (ofParent.isEmpty())
                for (const lazyRow &row : *lazyRowsOf(parent))
                    ofParent.insert(row.record, ofParent.size());
            const int row = ofParent.value(record, -1);
            to.append(row < 0 ? QModelIndex() : m_model->index(row, column, parent->index()));
        }
        m_model->changePersistentIndexList(m_away, to);
    }

    myModel *m_model;
    QSignalBlocker m_quiet;
    std::vector<shownRecords> m_wanted;
    QModelIndexList m_away;
    std::vector<keptIndex> m_kept;
};

void myModel::showRecords(std::vector<shownRecords> &&wanted)
{
    std::vector<shownRecords> changed;
    for (auto &[parent, records] : wanted) {
        const std::vector<lazyRow> &now = *parent->below;
        std::vector<xmlData *> ordered = std::move(records);
        if (m_sortColumn >= 0) {
            // What stays keeps its order, so that only what comes is sorted in.
            const QSet<const xmlData *> stays(ordered.begin(), ordered.end());
            std::vector<xmlData *> left;
            for (const lazyRow &row : now)
                if (stays.contains(row.record))
                    left.push_back(row.record);
            ordered = left.size() == ordered.size() ? left : inOrder(std::move(ordered));
        }
        if (!std::equal(
                now.begin(), now.end(), ordered.begin(), ordered.end(),
                [](const lazyRow &row, const xmlData *record) { return row.record == record; }))
            changed.emplace_back(parent, std::move(ordered));
    }
    if (changed.empty())
        return;
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    rearrangement(this, std::move(changed)).finish();
    emit layoutChanged({}, VerticalSortHint);
}

// --- Sorting
// --------------------------------------------------------------------------------------

std::vector<xmlData *> myModel::inOrder(std::vector<xmlData *> records) const
{
    if (m_sortColumn < 0 || !m_records)
        return records;
    std::vector<std::pair<QVariant, xmlData *>> keyed;
    keyed.reserve(records.size());
    for (xmlData *record : records)
        if (const auto cell = m_records->newCell(record, m_sortColumn))
            keyed.emplace_back(myItem::sortValue(*cell), record);
    std::stable_sort(keyed.begin(), keyed.end(), [this](const auto &a, const auto &b) {
        return m_sortOrder == Qt::AscendingOrder ? isLess(a.first, b.first)
                                                 : isLess(b.first, a.first);
    });
    for (size_t i = 0; i < keyed.size(); ++i)
        records[i] = keyed[i].second;
    return records;
}

void myModel::sortRows()
{
    std::vector<shownRecords> wanted;
    for (int row = 0; row < rowCount() && m_sortColumn >= 0; ++row) {
        auto *first = static_cast<myItemStandard *>(item(row));
        if (!lazyRowsOf(first))
            continue;
        std::vector<xmlData *> records;
        for (const lazyRow &at : *first->below)
            records.push_back(at.record);
        wanted.emplace_back(first, inOrder(std::move(records)));
    }
    if (wanted.empty()) {
        QStandardItemModel::sort(m_sortColumn, m_sortOrder);
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    {
        // The base sorts what is made alone: of these rows that is nothing meanwhile.
        rearrangement change(this, std::move(wanted));
        QStandardItemModel::sort(m_sortColumn, m_sortOrder);
        change.finish();
    }
    emit layoutChanged({}, VerticalSortHint);
}

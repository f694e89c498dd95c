#include "tree/myModel.h"

#include <QSet>
#include <QSignalBlocker>

using myItem::myItemStandard;

namespace {

constexpr int sortKeyRole = Qt::UserRole + 100;

// The keys are made for the sort alone: kept always, they would cost more memory than the texts.
void setSortKeys(QStandardItem *parent, int column)
{
    for (int row = 0; row < parent->rowCount(); ++row) {
        QStandardItem *item = parent->child(row, column);
        if (item && item->type() >= myItem::standardKind)
            item->setData(myItem::sortValue(*static_cast<myItemStandard *>(item)), sortKeyRole);
        QStandardItem *first = parent->child(row, 0);
        const bool isLazy = first && first->type() >= myItem::standardKind
                            && static_cast<myItemStandard *>(first)->below;
        if (first && first->hasChildren() && !isLazy)
            setSortKeys(first, column);
    }
}

} // namespace

myModel::myModel(QObject *parent)
    : QStandardItemModel(parent)
{
    setSortRole(sortKeyRole);
    // Before any view hears of it.
    connect(this, &QAbstractItemModel::rowsInserted, this, &myModel::rowsCame);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &myModel::rowsWent);
    connect(this, &QAbstractItemModel::dataChanged, this, &myModel::forgetLooked);
}

myModel::~myModel() { forgetAside(); }

void myModel::setRecords(modelRecords *records)
{
    m_records = records;
    forgetLooked();
    if (!records)
        forgetAside();
}

void myModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    if (column >= 0) {
        const QSignalBlocker quiet(this);
        setSortKeys(invisibleRootItem(), column);
    }
    sortRows();
    emit sorted();
}

QString myModel::setValue(myItemStandard *item, const QVariant &value)
{
    if (!m_editHook) {
        myItem::setValue(item, value);
        writeCell(item);
        return {};
    }
    if (!myItem::differs(*item, value))
        return {};
    const QString fault = faultOf(*item, value);
    if (fault.isEmpty())
        m_editHook(item, value);
    return fault;
}

myItem::reading myModel::read(const myItemStandard &item, const QString &text) const
{
    // What was read once is not judged anew.
    if (text == item.text())
        return {};
    const QModelIndex index = item.index();
    const myItemStandard *first = cell(index.sibling(index.row(), 0));
    myItem::reading reading = myItem::read(
        item, text, m_records && first ? m_records->unitOf(item, first) : std::nullopt);
    if (reading.value.isValid() && !myItem::differs(item, reading.value))
        reading.value = QVariant();
    if (reading.value.isValid() && m_check)
        reading.fault = m_check(item, reading.value);
    return reading;
}

myItem::row myModel::rowOf(const QModelIndex &index) const
{
    myItem::row cells;
    for (int column = 0; index.isValid() && column < columnCount(index.parent()); ++column) {
        const QModelIndex at = index.sibling(index.row(), column);
        cells.append(pendingAt(at) ? itemFromIndex(at) : made(at));
    }
    return cells;
}

myItemStandard *myModel::cell(const QModelIndex &index) const
{
    QStandardItem *item = index.isValid() && index.model() == this ? itemFromIndex(index) : nullptr;
    return item && item->type() >= myItem::standardKind ? static_cast<myItemStandard *>(item)
                                                        : nullptr;
}

void myModel::appendRow(const myItem::row &items)
{
    if (!items.isEmpty())
        QStandardItemModel::appendRow(items);
}

void myModel::insertWithRecord(QStandardItem *parent, int row, const myItem::row &items)
{
    if (m_records && !items.isEmpty() && items.first()->type() >= myItem::standardKind)
        row = m_records->rowFor(parent, row, static_cast<myItemStandard *>(items.first()));
    parent->insertRow(row, items);
    myItemStandard *first = m_records && !items.isEmpty() ? cell(items.first()->index()) : nullptr;
    if (!first)
        return;
    m_records->rowInserted(parent, row, first);
    if (m_watch)
        m_watch->inserted(recordOf(parent), first->record, depthBelow(parent), row);
}

myItem::row myModel::takeWithRecord(QStandardItem *parent, int row)
{
    if (parent != invisibleRootItem())
        makeCell(parent, row, 0);
    const myItem::row items = parent->takeRow(row);
    if (!m_records || items.isEmpty() || items.first()->type() < myItem::standardKind)
        return items;
    auto *first = static_cast<myItemStandard *>(items.first());
    if (m_watch)
        m_watch->willBeTaken(first->record, depthBelow(parent));
    m_records->rowTaken(parent, row, first);
    return items;
}

void myModel::writeCell(myItemStandard *item)
{
    if (!m_records)
        return;
    const QModelIndex index = item->index();
    myItemStandard *first = cell(index.sibling(index.row(), 0));
    if (!first)
        return;
    const QStandardItem *parent = first->parent() ? first->parent() : invisibleRootItem();
    if (m_watch)
        m_watch->willChange(first->record, depthBelow(parent));
    m_records->cellChanged(item, first);
    if (m_watch)
        m_watch->changed(first->record, depthBelow(parent));
}

void myModel::arrangeRecords(const std::vector<const xmlData *> &order,
                             const std::vector<int> &moved)
{
    m_records->arrange(order);
    if (!m_watch)
        return;
    QSet<const xmlData *> records;
    for (int row : moved)
        records.insert(static_cast<const myItemStandard *>(item(row))->record);
    for (size_t place = 0; place < order.size(); ++place)
        if (records.contains(order[place])) {
            m_watch->willBeTaken(order[place], 0);
            m_watch->inserted(nullptr, order[place], 0, int(place));
        }
}

int myModel::depthBelow(const QStandardItem *parent) const
{
    int depth = 0;
    for (; parent && parent != invisibleRootItem(); parent = parent->parent())
        ++depth;
    return depth;
}

xmlData *myModel::recordOf(const QStandardItem *parent) const
{
    return parent == invisibleRootItem() ? nullptr
                                         : static_cast<const myItemStandard *>(parent)->record;
}

void myModel::emitAppendOccured()
{
    if (m_openBatches > 0)
        m_appendHeldBack = true;
    else
        emit appendOccured();
}

void myModel::emitRemoveOccured()
{
    if (m_openBatches > 0)
        m_removeHeldBack = true;
    else
        emit removeOccured();
}

void myModel::emitChangeValueOccured()
{
    if (m_openBatches > 0)
        m_changeHeldBack = true;
    else
        emit changeValueOccured();
}

void myModel::emitHeldBack()
{
    if (std::exchange(m_removeHeldBack, false))
        emit removeOccured();
    if (std::exchange(m_appendHeldBack, false))
        emit appendOccured();
    if (std::exchange(m_changeHeldBack, false))
        emit changeValueOccured();
}

changeBatch::changeBatch(myModel *model)
    : m_model(model)
{
    if (m_model)
        ++m_model->m_openBatches;
}

changeBatch::~changeBatch()
{
    if (m_model && --m_model->m_openBatches == 0)
        m_model->emitHeldBack();
}

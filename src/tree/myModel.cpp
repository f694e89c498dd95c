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
        if (QStandardItem *first = parent->child(row, 0); first && first->hasChildren())
            setSortKeys(first, column);
    }
}

} // namespace

myModel::myModel(QObject *parent)
    : QStandardItemModel(parent)
{
    setSortRole(sortKeyRole);
}

void myModel::sort(int column, Qt::SortOrder order)
{
    if (column >= 0) {
        const QSignalBlocker quiet(this);
        setSortKeys(invisibleRootItem(), column);
    }
    m_sortColumn = column;
    m_sortOrder = order;
    QStandardItemModel::sort(column, order);
    emit sorted();
}

bool myModel::hasChildren(const QModelIndex &parent) const
{
    return canFetchMore(parent) || QStandardItemModel::hasChildren(parent);
}

bool myModel::canFetchMore(const QModelIndex &parent) const
{
    const myItemStandard *item = cell(parent);
    return item && parent.column() == 0 && item->childrenPending;
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
    for (const myItem::row &row : m_records->childRows(first))
        first->appendRow(row);
    if (m_sortColumn < 0)
        return;
    {
        const QSignalBlocker quiet(this);
        setSortKeys(first, m_sortColumn);
    }
    first->sortChildren(m_sortColumn, m_sortOrder);
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
    if (!index.isValid())
        return {};
    const QStandardItem *parent = itemFromIndex(index.parent());
    return myItem::childRow(parent ? parent : invisibleRootItem(), index.row());
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

#include "commands/editCommands.h"

#include "commands/commandStack.h"
#include "util/text.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

using myItem::myItemStandard;
using myItem::row;

namespace {

myModel *modelOf(QStandardItem *item) { return qobject_cast<myModel *>(item->model()); }

// Rows below a parent whose own rows are still to be made would come before them.
void fetchFirst(QStandardItem *parent)
{
    if (myModel *model = modelOf(parent))
        model->fetch(parent);
}

// At the end when the parent has fewer rows. Returns where the row is.
int putIn(QStandardItem *parent, int at, const row &items)
{
    const int where = std::min(at, parent->rowCount());
    if (myModel *model = modelOf(parent))
        model->insertWithRecord(parent, where, items);
    else
        parent->insertRow(where, items);
    return where;
}

row takeOut(QStandardItem *parent, int at)
{
    myModel *model = modelOf(parent);
    return model ? model->takeWithRecord(parent, at) : parent->takeRow(at);
}

// The first cell of a row, by which a step finds it again: a filter may have moved the row
// meanwhile or have taken it out of the tree.
myItemStandard *firstOf(QStandardItem *parent, int at)
{
    const myModel *model = modelOf(parent);
    const QModelIndex above = parent->index();
    return model && above.isValid() ? model->cell(model->index(at, 0, above))
                                    : dynamic_cast<myItemStandard *>(parent->child(at));
}

myItemStandard *firstOf(const row &items)
{
    return items.isEmpty() ? nullptr : dynamic_cast<myItemStandard *>(items.first());
}

// Where the row is now, in the tree again; otherwise when it has no such cell.
int rowNow(QStandardItem *parent, myItemStandard *first, int otherwise)
{
    myModel *model = modelOf(parent);
    if (!first || !model || !model->bringBack(first) || first->model() != model)
        return otherwise;
    return first->row();
}

void writeCell(QStandardItem *item)
{
    myModel *model = modelOf(item);
    if (model && item->type() >= myItem::standardKind)
        model->writeCell(static_cast<myItemStandard *>(item));
}

// A row that stands in for another one takes its place in the list of records.
void takePlaceOf(const row &other, const row &fresh)
{
    const myItemStandard *before = firstOf(other);
    const myItemStandard *after = firstOf(fresh);
    if (!before || !after || !before->owned || !after->owned)
        return;
    after->owned->row = before->owned->row;
    after->owned->place = before->owned->place;
}

void addPlace(std::vector<QStandardItem *> &cells, const heldRow &items, QStandardItem *first)
{
    if (first && !items.isHolding())
        cells.push_back(first);
}

QString shortened(const myItemStandard &item)
{
    constexpr int most = 40;
    const QString text = myItem::displayText(item).simplified();
    return text.size() <= most ? text : text::firstUnits(text, most - 1) + QChar(0x2026);
}

// What an edit is called in the history: where, from what and to what.
QString described(const myModel *model, const myItemStandard &item, const QString &before)
{
    const myItemStandard *first = model->cell(item.index().siblingAtColumn(0));
    const QString where =
        item.parent() && first && first != &item
            ? shortened(*first)
            : QCoreApplication::translate("commands", "line %1").arg(item.row() + 1);
    return QCoreApplication::translate("commands", "%1, %2: %3 → %4")
        .arg(where, model->headerData(item.column(), Qt::Horizontal).toString(), before,
             shortened(item));
}

} // namespace

void recordEdits(myModel *model, commandStack *stack)
{
    model->setEditHook([model, stack](myItemStandard *item, const QVariant &value) {
        const QString before = shortened(*item);
        auto change = std::unique_ptr<command>(new (std::nothrow) changeValue(model, item, value));
        stack->push(std::move(change), described(model, *item, before));
    });
}

appendCommands::appendCommands(std::vector<std::unique_ptr<command>> members, myModel *model)
    : m_members(std::move(members))
    , m_model(model)
{
}

appendCommands::~appendCommands()
{
    while (!m_members.empty())
        m_members.pop_back();
}

void appendCommands::undo()
{
    const changeBatch batch(m_model);
    for (auto member = m_members.rbegin(); member != m_members.rend(); ++member)
        if (*member)
            (*member)->undo();
}

void appendCommands::redo()
{
    const changeBatch batch(m_model);
    for (const auto &member : m_members)
        if (member)
            member->redo();
}

void appendCommands::places(std::vector<QStandardItem *> &cells) const
{
    for (const auto &member : m_members)
        if (member)
            member->places(cells);
}

appendItems::appendItems(QStandardItem *parent, const row &items, std::optional<int> at)
    : m_items(items)
    , m_parent(parent)
    , m_first(firstOf(items))
    , m_row(0)
{
    if (m_parent) {
        fetchFirst(m_parent);
        m_row = at.value_or(m_parent->rowCount());
    }
    appendItems::redo();
}

void appendItems::undo()
{
    if (m_parent)
        m_items.hold(takeOut(m_parent, rowNow(m_parent, m_first, m_row)));
}

void appendItems::redo()
{
    if (m_parent)
        m_row = putIn(m_parent, m_row, m_items.release());
}

void appendItems::places(std::vector<QStandardItem *> &cells) const
{
    addPlace(cells, m_items, m_first);
}

appendNewMaterial::appendNewMaterial(myModel *model, const row &items)
    : m_model(model)
    , m_items(items)
    , m_row(model->rowCount())
{
    appendNewMaterial::redo();
}

void appendNewMaterial::undo()
{
    m_items.hold(m_model->takeWithRecord(m_model->invisibleRootItem(), m_row));
    m_model->emitRemoveOccured();
}

void appendNewMaterial::redo()
{
    m_row = putIn(m_model->invisibleRootItem(), m_row, m_items.release());
    m_model->emitAppendOccured();
}

void appendNewMaterial::places(std::vector<QStandardItem *> &cells) const
{
    addPlace(cells, m_items, m_items.isHolding() ? nullptr : m_model->item(m_row));
}

changeRow::changeRow(QStandardItem *parent, int at, const row &items)
    : m_parent(parent)
    , m_new(items)
    , m_first(firstOf(parent, at))
    , m_row(at)
{
    changeRow::redo();
}

void changeRow::undo() { exchange(m_new, m_old); }

void changeRow::redo() { exchange(m_old, m_new); }

void changeRow::exchange(heldRow &out, heldRow &in)
{
    m_row = rowNow(m_parent, m_first, m_row);
    const row taken = takeOut(m_parent, m_row);
    out.hold(taken);
    const row items = in.release();
    takePlaceOf(taken, items);
    m_first = firstOf(items);
    putIn(m_parent, m_row, items);
}

void changeRow::places(std::vector<QStandardItem *> &cells) const
{
    if (QStandardItem *first = m_first ? m_first : m_parent->child(m_row))
        cells.push_back(first);
}

changeValue::changeValue(myModel *model, myItemStandard *item, const QVariant &value)
    : m_model(model)
    , m_item(item)
    , m_first(model->cell(item->index().siblingAtColumn(0)))
    , m_new(value)
{
    changeValue::redo();
}

void changeValue::undo()
{
    m_model->bringBack(m_first);
    myItem::restore(m_item, m_old, m_oldText);
    written();
}

void changeValue::redo()
{
    m_model->bringBack(m_first);
    m_old = myItem::valueOf(*m_item);
    m_oldText = m_item->text();
    myItem::setValue(m_item, m_new);
    written();
}

void changeValue::written()
{
    m_model->writeCell(m_item);
    m_model->emitChangeValueOccured();
}

deleteFromItem::deleteFromItem(QStandardItem *parent, QStandardItem *item)
    : m_parent(parent)
    , m_first(firstOf(parent, item->row()))
    , m_row(item->row())
{
    deleteFromItem::redo();
}

void deleteFromItem::undo() { m_row = putIn(m_parent, m_row, m_items.release()); }

void deleteFromItem::redo()
{
    m_row = rowNow(m_parent, m_first, m_row);
    m_items.hold(takeOut(m_parent, m_row));
}

void deleteFromItem::places(std::vector<QStandardItem *> &cells) const
{
    addPlace(cells, m_items, m_first);
}

deleteMaterial::deleteMaterial(myModel *model, const QModelIndex &index)
    : m_model(model)
    , m_row(index.row())
{
    deleteMaterial::redo();
}

void deleteMaterial::undo()
{
    putIn(m_model->invisibleRootItem(), m_row, m_items.release());
    m_model->emitAppendOccured();
}

void deleteMaterial::redo()
{
    m_items.hold(m_model->takeWithRecord(m_model->invisibleRootItem(), m_row));
    m_model->emitRemoveOccured();
}

void deleteMaterial::places(std::vector<QStandardItem *> &cells) const
{
    addPlace(cells, m_items, m_items.isHolding() ? nullptr : m_model->item(m_row));
}

increaseValue::increaseValue(QStandardItem *item, unsigned step)
    : m_item(item)
    , m_old(item->text().toUInt())
    , m_new(m_old + step)
{
    increaseValue::redo();
}

void increaseValue::undo() { set(m_old); }

void increaseValue::redo() { set(m_new); }

void increaseValue::set(unsigned value)
{
    const QString text = QString::number(value);
    if (m_item->type() >= myItem::standardKind)
        myItem::setStoredText(static_cast<myItemStandard *>(m_item), text);
    else
        m_item->setText(text);
    writeCell(m_item);
}

sortOrderModel::sortOrderModel(myModel *model, int keyColumn)
    : m_model(model)
{
    std::vector<std::pair<QString, QStandardItem *>> keyed;
    for (int r = 0; r < model->rowCount(); ++r) {
        QStandardItem *first = model->item(r);
        const QStandardItem *key = model->item(r, keyColumn);
        m_oldOrder.push_back(first);
        keyed.emplace_back(key ? key->text() : QString(), first);
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    for (const auto &[key, first] : keyed)
        m_newOrder.push_back(first);
    sortOrderModel::redo();
}

void sortOrderModel::undo() { arrange(m_oldOrder); }

void sortOrderModel::redo() { arrange(m_newOrder); }

void sortOrderModel::arrange(const std::vector<QStandardItem *> &firstCells)
{
    QStandardItem *root = m_model->invisibleRootItem();
    QHash<QStandardItem *, row> rows;
    // From the last row on, where taking one moves none of the others.
    for (int r = m_model->rowCount() - 1; r >= 0; --r) {
        const row items = m_model->takeWithRecord(root, r);
        if (!items.isEmpty())
            rows.insert(items.first(), items);
    }
    for (QStandardItem *first : firstCells) {
        const row items = rows.take(first);
        if (items.isEmpty())
            continue;
        m_model->insertWithRecord(root, m_model->rowCount(), items);
        first->setText(QString::number(m_model->rowCount()));
        writeCell(first);
    }
}

moveRows::moveRows(myModel *model, std::vector<int> rows, int before)
    : m_model(model)
    , m_rows(std::move(rows))
    , m_to(before - int(std::count_if(m_rows.begin(), m_rows.end(), [before](int at) {
               return at < before;
           })))
{
    if (const modelRecords *records = model->records())
        m_records = records->recordsNotAsShown(model);
    moveRows::redo();
}

void moveRows::undo()
{
    const changeBatch batch(m_model);
    QStandardItem *root = m_model->invisibleRootItem();
    std::vector<row> taken;
    for (size_t i = 0; i < m_rows.size(); ++i)
        taken.push_back(takeOut(root, m_to));
    for (size_t i = 0; i < m_rows.size(); ++i)
        putIn(root, m_rows[i], taken[i]);
    if (!m_records.empty())
        m_model->arrangeRecords(m_records, m_rows);
    m_model->emitAppendOccured();
}

void moveRows::redo()
{
    const changeBatch batch(m_model);
    QStandardItem *root = m_model->invisibleRootItem();
    std::vector<row> taken;
    // From the last one on, so that the numbers of the others stay true.
    for (auto at = m_rows.rbegin(); at != m_rows.rend(); ++at)
        taken.push_back(takeOut(root, *at));
    for (const row &items : taken)
        putIn(root, m_to, items);
    m_model->emitAppendOccured();
}

placesOnly::placesOnly(const myModel *model, const std::vector<int> &rows)
{
    for (int at : rows)
        m_firstCells.push_back(model->item(at));
}

refreshHtml::refreshHtml(htmlView *view)
    : m_view(view)
{
    refreshHtml::redo();
}

void refreshHtml::undo() { m_view->refreshHtml(); }

void refreshHtml::redo() { m_view->refreshHtml(); }

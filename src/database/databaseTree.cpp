#include "database/databaseTree.h"

#include "data/configStruct.h"
#include "data/ktmIndex.h"
#include "data/materialSearch.h"
#include "data/vocabulary.h"
#include "tree/recordPlaces.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <limits>

using namespace myItem;

namespace databaseTree {

namespace {

struct materialColumn
{
    const char *key;
    int width;
    kind cellKind;
};

// Fields of the material; behind these come those of its information, and what is joined of others.
constexpr materialColumn materialColumns[] = {
    {"d_name", 260, lineEditKind},
    {"d_ktm", 170, lineEditKind},
    {"d_cpv", 100, lineEditKind},
    {nullptr, 120, comboBoxKind}, // the status
    {"d_value", 90, lineEditKind},
    {"d_case", 90, lineEditKind},
    {"d_price", 110, moneyKind},
    {"d_inWarehouse", 120, spinBoxKind},
    {"d_unit", 80, comboBoxKind},
    {"d_description", 260, lineEditKind},
    // Shown on choice.
    {"d_averagePrice", 120, moneyKind},
    {"d_power", 80, lineEditKind},
    {"d_voltage", 80, lineEditKind},
    {"d_current", 80, lineEditKind},
    {"d_tolerance", 80, lineEditKind},
    {"d_otherParameters", 140, lineEditKind},
    {"d_active", 80, comboBoxKind},
    {"d_libraryRef", 120, lineEditKind},
    {"d_footprintRef", 120, lineEditKind},
    {"d_footprintRef2", 120, lineEditKind},
    {"d_footprintRef3", 120, lineEditKind},
    {"d_footprintRef4", 120, lineEditKind},
    {"d_footprintRef5", 120, lineEditKind},
    {"d_footprintRef6", 120, lineEditKind},
};
constexpr int shownAtFirst = 10;

struct informationColumn
{
    QString informationsStruct::*member;
    const char *key;
    QString (*label)();
    kind cellKind;
};

const informationColumn informationColumns[] = {
    {&informationsStruct::rohsRequired, "rohs_required", labels::rohsRequired, comboBoxKind},
    {&informationsStruct::edited, "edited", labels::edited, comboBoxKind},
    {&informationsStruct::added, "added", labels::added, lineEditKind},
    {&informationsStruct::comment, "comment", labels::comment, lineEditKind},
};

template <class List>
QString joined(const List &list)
{
    QStringList names;
    for (const auto &source : list.items)
        names.append((source->name + QLatin1Char(' ') + source->partNo).trimmed());
    return names.join(QLatin1String(", "));
}

treeColumn<materialStruct> statusColumnOf(const configStruct &config)
{
    treeColumn<materialStruct> column{
        QStringLiteral("status"),
        labels::status(),
        materialColumns[statusColumn].width,
        comboBoxKind,
        [](const materialStruct &m) { return m.information.status; },
        [](materialStruct &m, const QString &text) { m.information.status = text; }};
    column.entries = entriesOf(config.statuses);
    // The filters look for the word here.
    column.look = [](const materialStruct &m, myItemStandard *cell) {
        cell->setWhatsThis(m.information.status);
    };
    return column;
}

template <class Member>
treeColumn<materialStruct> joinedColumn(const char *key, const QString &label, Member member)
{
    constexpr int width = 220;
    return {QLatin1String(key),
            label,
            width,
            standardKind,
            [member](const materialStruct &m) { return joined(m.*member); },
            {},
            false};
}

} // namespace

treeColumns<materialStruct> columns(const configStruct &config)
{
    treeColumns<materialStruct> table;
    for (const materialColumn &c : materialColumns) {
        if (!c.key) {
            table.push_back(statusColumnOf(config));
            continue;
        }
        table.push_back(
            fieldColumn(materialStruct::fields(), QLatin1String(c.key), c.width, c.cellKind, true));
        treeColumn<materialStruct> &added = table.back();
        if (c.cellKind == moneyKind)
            added.look = [](const materialStruct &, myItemStandard *cell) {
                static_cast<myItemMoney *>(cell)->suffix = QStringLiteral(" [ PLN ]");
            };
        if (added.key == QLatin1String("d_unit")) {
            added.entries = entriesOf(labels::storedUnits());
            added.canBeTyped = true;
        } else if (c.cellKind == comboBoxKind) {
            added.entries = entriesOf(config.goodWhenYes);
        } else if (added.key == QLatin1String("d_inWarehouse")) {
            added.maximum = std::numeric_limits<int>::max();
            added.unit = [](const materialStruct &material) { return material.d_unit; };
            added.look = [](const materialStruct &, myItemStandard *cell) {
                static_cast<myItemSpinBox *>(cell)->mayBeEmpty = true;
            };
        }
    }
    for (const informationColumn &c : informationColumns) {
        constexpr int width = 110;
        table.push_back(
            {QLatin1String(c.key), c.label(), width, c.cellKind,
             [member = c.member](const materialStruct &m) { return m.information.*member; },
             [member = c.member](materialStruct &m, const QString &text) {
                 m.information.*member = text;
             }});
        if (c.cellKind == comboBoxKind)
            table.back().entries = entriesOf(config.goodWhenYes);
    }
    table.push_back(
        joinedColumn("manufacturers", labels::manufacturers(), &materialStruct::manufacturers));
    table.push_back(joinedColumn("suppliers", labels::suppliers(), &materialStruct::suppliers));
    table.push_back({QStringLiteral("file"),
                     labels::file(),
                     220,
                     standardKind,
                     [](const materialStruct &m) { return linkOf(m); },
                     {},
                     false});
    return table;
}

int usuallyShown() { return shownAtFirst; }

QString linkOf(const materialStruct &material)
{
    QString any;
    const auto look = [&any](const auto &list) {
        for (const auto &source : list.items)
            for (const auto &file : source->files.items) {
                if (file->type == QLatin1String("FILE_DATASHEET") && !file->name.isEmpty())
                    return file->name;
                if (any.isEmpty())
                    any = file->name;
            }
        return QString();
    };
    const QString ofManufacturer = look(material.manufacturers);
    const QString ofSupplier = ofManufacturer.isEmpty() ? look(material.suppliers) : QString();
    return !ofManufacturer.isEmpty() ? ofManufacturer : !ofSupplier.isEmpty() ? ofSupplier : any;
}

rows::rows(kiv_mat_databaseStruct *database, treeColumns<materialStruct> columns,
           ktmIndex *materials, materialSearch *search)
    : m_database(database)
    , m_columns(std::move(columns))
    , m_materials(materials)
    , m_search(search)
{
}

void rows::show(myModel *model)
{
    m_model = model;
    model->setRecords(nullptr);
    m_first.clear();
    model->removeRows(0, model->rowCount());
    setCaptions(model, m_columns);
    for (const auto &group : m_database->groups)
        model->appendRow(groupRow(group.get()));
    for (int row = 0; row < model->rowCount(); ++row)
        note(model->item(row));
    model->setRecords(this);
}

myItem::row rows::groupRow(d_groupStruct *group) const
{
    auto *name = new myItemLineEdit(m_columns[nameColumn].key, group->name, true);
    auto *count = new myItemStandard(m_columns[ktmColumn].key);
    count->setEditable(false);
    count->readOnly = true;
    auto *cpv = new myItemLineEdit(m_columns[cpvColumn].key, group->cpv, true);
    name->record = group;
    name->childrenPending = !group->items.empty();
    count->setText(QCoreApplication::translate("databaseTree", "%n material(s)", nullptr,
                                               int(group->items.size())));
    return {name, count, cpv};
}

// Rows that are in the tree are found by their records.
void rows::note(QStandardItem *first)
{
    auto *cell = static_cast<myItemStandard *>(first);
    m_first.insert(cell->record, cell);
    for (int row = 0; row < first->rowCount(); ++row)
        note(first->child(row));
}

void rows::unnote(QStandardItem *first)
{
    m_first.remove(static_cast<myItemStandard *>(first)->record);
    for (int row = 0; row < first->rowCount(); ++row)
        unnote(first->child(row));
}

void rows::showCount(QStandardItem *groupItem) const
{
    if (QStandardItem *count = m_model->itemFromIndex(m_model->index(
            groupItem->row(), ktmColumn, m_model->indexFromItem(groupItem->parent()))))
        count->setText(QCoreApplication::translate("databaseTree", "%n material(s)", nullptr,
                                                   int(groupOf(groupItem)->items.size())));
}

myItem::row rows::materialRow(materialStruct *material) const
{
    return ::makeRow(m_columns, material);
}

myItem::row rows::makeRow(std::unique_ptr<materialStruct> material) const
{
    const myItem::row items = materialRow(material.get());
    static_cast<myItemStandard *>(items.first())->own(std::move(material));
    return items;
}

myItem::row rows::makeRow(std::unique_ptr<d_groupStruct> group) const
{
    const myItem::row items = groupRow(group.get());
    static_cast<myItemStandard *>(items.first())->own(std::move(group));
    return items;
}

namespace {

const myItemStandard *firstOf(const QStandardItem *item)
{
    if (!item)
        return nullptr;
    const QStandardItem *parent = item->parent();
    const QStandardItem *first =
        parent ? parent->child(item->row()) : item->model()->item(item->row());
    return static_cast<const myItemStandard *>(first);
}

} // namespace

materialStruct *rows::materialOf(const QStandardItem *item)
{
    const myItemStandard *first = item && item->parent() ? firstOf(item) : nullptr;
    return first ? static_cast<materialStruct *>(first->record) : nullptr;
}

d_groupStruct *rows::groupOf(const QStandardItem *item)
{
    const myItemStandard *first = item && !item->parent() ? firstOf(item) : nullptr;
    return first ? static_cast<d_groupStruct *>(first->record) : nullptr;
}

myItemStandard *rows::find(const materialStruct *material) const { return m_first.value(material); }

QStandardItem *rows::groupItem(const d_groupStruct *group) const { return m_first.value(group); }

void rows::willChange(const materialStruct *material) const
{
    if (recordWatch *watch = m_model->watch())
        watch->willChange(material, 1);
}

void rows::refresh(materialStruct *material)
{
    if (recordWatch *watch = m_model->watch())
        watch->changed(material, 1);
    if (m_search)
        m_search->update(material);
    myItemStandard *first = find(material);
    if (!first)
        return;
    for (size_t c = 0; c < m_columns.size(); ++c) {
        auto *cell = static_cast<myItemStandard *>(first->parent()->child(first->row(), int(c)));
        setStoredText(cell, m_columns[c].read(*material));
        if (m_columns[c].look)
            m_columns[c].look(*material, cell);
    }
}

void rows::index(materialStruct *material, d_groupStruct *group)
{
    const ktmIndex::entry entry{material, group, m_database};
    if (m_materials)
        m_materials->insert(entry);
    if (m_search)
        m_search->insert(entry);
}

void rows::forget(const materialStruct *material)
{
    if (m_materials)
        m_materials->remove(material);
    if (m_search)
        m_search->remove(material);
}

void rows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    if (!first->parent()) {
        auto *group = static_cast<d_groupStruct *>(first->record);
        (item->column() == nameColumn ? group->name : group->cpv) = item->text();
        for (const auto &material : group->items)
            if (m_search && item->column() == nameColumn)
                m_search->update(material.get());
        return;
    }
    auto *material = static_cast<materialStruct *>(first->record);
    const treeColumn<materialStruct> &column = m_columns[size_t(item->column())];
    if (!column.write)
        return;
    const bool isKey = item->column() == ktmColumn;
    if (isKey && m_materials)
        m_materials->remove(material);
    column.write(*material, item->text());
    if (isKey && m_materials)
        m_materials->insert({material, groupOf(first->parent()), m_database});
    if (m_search)
        m_search->update(material);
    if (column.look)
        column.look(*material, item);
}

void rows::rowInserted(QStandardItem *parent, int row, myItemStandard *first)
{
    note(first);
    if (parent == m_model->invisibleRootItem()) {
        auto *group = static_cast<d_groupStruct *>(first->record);
        recordPlaces::putInto(m_database->groups, parent, row, first);
        for (const auto &material : group->items)
            index(material.get(), group);
        return;
    }
    d_groupStruct *group = groupOf(parent);
    recordPlaces::putInto(group->items, parent, row, first);
    index(static_cast<materialStruct *>(first->record), group);
    showCount(parent);
}

void rows::rowTaken(QStandardItem *parent, int row, myItemStandard *first)
{
    unnote(first);
    if (parent == m_model->invisibleRootItem()) {
        const auto *group = static_cast<d_groupStruct *>(first->record);
        for (const auto &material : group->items)
            forget(material.get());
        recordPlaces::takeFrom(m_database->groups, row, first);
        return;
    }
    forget(static_cast<materialStruct *>(first->record));
    recordPlaces::takeFrom(groupOf(parent)->items, row, first);
    showCount(parent);
}

std::optional<QString> rows::unitOf(const myItemStandard &item, const myItemStandard *first) const
{
    const auto &unit = m_columns[size_t(item.column())].unit;
    const materialStruct *material = materialOf(first);
    return unit && material ? std::optional(unit(*material)) : std::nullopt;
}

std::vector<myItem::row> rows::childRows(myItemStandard *first)
{
    std::vector<myItem::row> made;
    for (const auto &material : static_cast<d_groupStruct *>(first->record)->items)
        made.push_back(materialRow(material.get()));
    for (const myItem::row &row : made)
        note(row.first());
    return made;
}

} // namespace databaseTree

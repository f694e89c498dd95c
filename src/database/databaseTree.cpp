#include "database/databaseTree.h"

#include "data/configStruct.h"
#include "data/ktmIndex.h"
#include "data/materialSearch.h"
#include "data/vocabulary.h"
#include "tree/recordPlaces.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <algorithm>
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

treeColumns<materialStruct> columns(const configStruct &config,
                                    const std::function<QString(const QString &ktm)> &reserved,
                                    const std::function<orderedBefore(const QString &ktm)> &ordered)
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
    if (reserved)
        table.push_back({QStringLiteral("reserved"),
                         labels::reserved(),
                         100,
                         standardKind,
                         [reserved](const materialStruct &m) { return reserved(m.d_ktm); },
                         {},
                         false});
    if (ordered) {
        table.push_back(
            {QStringLiteral("on_the_way"),
             labels::onTheWay(),
             100,
             standardKind,
             [ordered](const materialStruct &m) { return ordered(m.d_ktm).onTheWayText(); },
             {},
             false});
        table.push_back({QStringLiteral("last_ordered"),
                         labels::lastOrdered(),
                         230,
                         standardKind,
                         [ordered](const materialStruct &m) { return ordered(m.d_ktm).lastText(); },
                         {},
                         false});
    }
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
    m_groups.clear();
    m_homes.clear();
    m_homes.reserve(m_database->materialCount());
    m_kept.clear();
    m_putIn.clear();
    model->removeRows(0, model->rowCount());
    setCaptions(model, m_columns);
    for (const auto &group : m_database->groups) {
        model->appendRow(groupRow(group.get()));
        m_groups.insert(group.get(),
                        static_cast<myItemStandard *>(model->item(model->rowCount() - 1)));
        noteHomes(group.get());
    }
    model->setRecords(this);
    follow();
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
    if (group->items.empty())
        name->below = std::make_unique<std::vector<lazyRow>>();
    name->setColumnCount(int(m_columns.size()));
    return {name, count, cpv};
}

void rows::noteHomes(d_groupStruct *group)
{
    for (const auto &material : group->items)
        m_homes.insert(material.get(), group);
}

void rows::showCount(const d_groupStruct *group)
{
    const QStandardItem *item = groupItem(group);
    QStandardItem *count = item ? m_model->item(item->row(), ktmColumn) : nullptr;
    if (!count)
        return;
    const int all = int(group->items.size());
    count->setText(
        isFiltered()
            ? QCoreApplication::translate("databaseTree", "%1 of %2").arg(shownIn(group)).arg(all)
            : QCoreApplication::translate("databaseTree", "%n material(s)", nullptr, all));
}

myItem::row rows::makeRow(std::unique_ptr<materialStruct> material) const
{
    auto *first = newCell(material.get(), nameColumn).release();
    first->own(std::move(material));
    return {first};
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
    const auto *model = item && item->parent() ? qobject_cast<myModel *>(item->model()) : nullptr;
    return model ? static_cast<materialStruct *>(model->recordAt(item->index())) : nullptr;
}

d_groupStruct *rows::groupOf(const QStandardItem *item)
{
    const myItemStandard *first = item && !item->parent() ? firstOf(item) : nullptr;
    return first ? static_cast<d_groupStruct *>(first->record) : nullptr;
}

materialStruct *rows::materialAt(const QModelIndex &index) const
{
    return index.parent().isValid() ? static_cast<materialStruct *>(m_model->recordAt(index))
                                    : nullptr;
}

myItemStandard *rows::find(const materialStruct *material) const
{
    const QStandardItem *group = groupItem(homeOf(material));
    const int row = group ? myModel::rowOfRecord(group, material) : -1;
    return row < 0 ? nullptr : m_model->cell(m_model->index(row, 0, group->index()));
}

myItemStandard *rows::bring(const materialStruct *material)
{
    d_groupStruct *home = homeOf(material);
    QStandardItem *group = groupItem(home);
    if (!group)
        return nullptr;
    m_model->fetch(group);
    if (myItemStandard *first = find(material))
        return first;
    m_kept.insert(material);
    const auto place = recordPlaces::placeOf(home->items, material, 0);
    return m_model->showRecord(group, rowBefore(group, *home, size_t(place - home->items.begin())),
                               place->get());
}

QStandardItem *rows::groupItem(const d_groupStruct *group) const { return m_groups.value(group); }

// --- The filter
// -----------------------------------------------------------------------------------

bool rows::isShown(const materialStruct &material) const
{
    return !m_matches || m_kept.contains(&material) || m_matches(material);
}

void rows::setFilter(filter matches)
{
    m_matches = std::move(matches);
    m_kept.clear();
    m_putIn.clear();
    follow();
}

void rows::follow()
{
    constexpr int mostByHand = 100;
    if (m_putIn.size() <= mostByHand)
        m_kept.unite(m_putIn);
    m_putIn.clear();
    std::vector<myModel::shownRecords> wanted;
    for (const auto &group : m_database->groups) {
        auto *item = static_cast<myItemStandard *>(groupItem(group.get()));
        std::vector<xmlData *> records;
        int shown = 0;
        for (const auto &material : group->items)
            if (isShown(*material)) {
                ++shown;
                if (item && item->below)
                    records.push_back(material.get());
            }
        m_shown.insert(group.get(), shown);
        if (item && item->below)
            wanted.emplace_back(item, std::move(records));
        showCount(group.get());
    }
    m_model->showRecords(std::move(wanted));
}

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
    const QStandardItem *group = groupItem(homeOf(material));
    const int row = group ? myModel::rowOfRecord(group, material) : -1;
    if (row < 0)
        return;
    if (isFiltered())
        m_kept.insert(material);
    m_model->lookAgain();
    for (size_t c = 0; c < m_columns.size(); ++c)
        if (auto *cell = static_cast<myItemStandard *>(group->child(row, int(c)))) {
            setStoredText(cell, m_columns[c].read(*material));
            if (m_columns[c].look)
                m_columns[c].look(*material, cell);
        }
}

void rows::readAgain(QLatin1String key)
{
    const auto column = std::find_if(m_columns.begin(), m_columns.end(),
                                     [key](const auto &candidate) { return candidate.key == key; });
    if (column == m_columns.end())
        return;
    const int place = int(column - m_columns.begin());
    for (const QStandardItem *group : qAsConst(m_groups))
        for (int row = 0; row < group->rowCount(); ++row)
            if (auto *cell = static_cast<myItemStandard *>(group->child(row, place)))
                if (const QString now = column->read(*materialOf(group->child(row)));
                    cell->text() != now)
                    setStoredText(cell, now);
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
    if (isFiltered())
        m_kept.insert(material);
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
    if (parent == m_model->invisibleRootItem()) {
        auto *group = static_cast<d_groupStruct *>(first->record);
        m_groups.insert(group, first);
        noteHomes(group);
        recordPlaces::putInto(m_database->groups, parent, row, first);
        for (const auto &material : group->items)
            index(material.get(), group);
        m_shown.insert(group, int(group->items.size()));
        showCount(group);
        return;
    }
    d_groupStruct *group = groupOf(parent);
    auto *material = static_cast<materialStruct *>(first->record);
    auto &list = group->items;
    // What was there before has its place, wherever the row stands among those that are shown.
    auto place = list.end();
    if (first->owned->place >= 0 && size_t(first->owned->place) <= list.size())
        place = list.begin() + first->owned->place;
    else if (row + 1 < parent->rowCount())
        place = recordPlaces::placeOf(
            list, m_model->recordAt(m_model->index(row + 1, 0, parent->index())), row);
    recordPlaces::putAt(list, place, first);
    m_homes.insert(material, group);
    if (isFiltered())
        m_putIn.insert(material);
    index(material, group);
    ++m_shown[group];
    showCount(group);
}

void rows::rowTaken(QStandardItem *parent, int row, myItemStandard *first)
{
    if (parent == m_model->invisibleRootItem()) {
        const auto *group = static_cast<d_groupStruct *>(first->record);
        m_groups.remove(group);
        m_shown.remove(group);
        for (const auto &material : group->items) {
            m_homes.remove(material.get());
            forget(material.get());
        }
        recordPlaces::takeFrom(m_database->groups, row, first);
        return;
    }
    const auto *material = static_cast<materialStruct *>(first->record);
    d_groupStruct *group = groupOf(parent);
    m_homes.remove(material);
    m_kept.remove(material);
    m_putIn.remove(material);
    forget(material);
    recordPlaces::takeFrom(group->items, row, first);
    --m_shown[group];
    showCount(group);
}

std::optional<QString> rows::unitOf(const myItemStandard &item, const myItemStandard *first) const
{
    const auto &unit = m_columns[size_t(item.column())].unit;
    const materialStruct *material = materialOf(first);
    return unit && material ? std::optional(unit(*material)) : std::nullopt;
}

std::vector<xmlData *> rows::childRecords(const myItemStandard *first)
{
    std::vector<xmlData *> records;
    for (const auto &material : static_cast<d_groupStruct *>(first->record)->items)
        if (isShown(*material))
            records.push_back(material.get());
    return records;
}

std::unique_ptr<myItemStandard> rows::newCell(xmlData *record, int column) const
{
    std::unique_ptr<myItemStandard> cell(
        makeCell(m_columns[size_t(column)], *static_cast<materialStruct *>(record)));
    if (column == nameColumn)
        cell->record = record;
    return cell;
}

bool rows::isEditable(int column) const { return m_columns[size_t(column)].editable; }

// Before the first row of a material that stands behind that place of the group.
int rows::rowBefore(const QStandardItem *groupItem, const d_groupStruct &group, size_t place) const
{
    const auto &below = static_cast<const myItemStandard *>(groupItem)->below;
    size_t row = 0;
    for (size_t at = 0; below && at < place && at < group.items.size() && row < below->size(); ++at)
        row += (*below)[row].record == group.items[at].get();
    return int(row);
}

// As the file has them, unless the tree is sorted.
int rows::rowFor(const QStandardItem *parent, int row, const myItemStandard *first) const
{
    const d_groupStruct *group = groupOf(parent);
    if (!group || !first->record || m_model->isSorted())
        return row;
    if (first->owned)
        return first->owned->place < 0 ? row
                                       : rowBefore(parent, *group, size_t(first->owned->place));
    const auto place =
        std::find_if(group->items.begin(), group->items.end(),
                     [first](const auto &material) { return material.get() == first->record; });
    return rowBefore(parent, *group, size_t(place - group->items.begin()));
}

} // namespace databaseTree

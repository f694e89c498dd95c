#include "database/materialTree.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

using namespace myItem;

namespace {

constexpr int usualWidth = 200;

struct wordField
{
    QLatin1String key;
    const std::vector<comboBoxStruct> configStruct::*words;
};

// The fields with a choice of words; those of free text and amounts follow in traitsOf().
const wordField wordFields[] = {
    {word("d_active"), &configStruct::goodWhenYes},
    {word("status"), &configStruct::statuses},
    {word("checked"), &configStruct::goodWhenYes},
    {word("approved"), &configStruct::goodWhenYes},
    {word("rohs_required"), &configStruct::goodWhenYes},
    {word("rohs_probability"), &configStruct::probabilities},
    {word("edited"), &configStruct::goodWhenNo},
};

cellTraits traitsOf(const QString &key, const configStruct &config)
{
    cellTraits traits{key, lineEditKind, true, {}, false, 0, 0};
    if (key == QLatin1String("d_price") || key == QLatin1String("d_averagePrice"))
        traits.kind = moneyKind;
    if (key == QLatin1String("d_inWarehouse") || key == QLatin1String("d_quantity")) {
        traits.kind = spinBoxKind;
        traits.maximum = std::numeric_limits<int>::max();
    }
    if (key == QLatin1String("d_unit")) {
        traits.kind = comboBoxKind;
        traits.entries = entriesOf(labels::storedUnits());
        traits.canBeTyped = true;
    }
    for (const wordField &one : wordFields)
        if (one.key == key) {
            traits.kind = comboBoxKind;
            traits.entries = entriesOf(config.*one.words);
        }
    return traits;
}

// How a value is written.
QString hintOf(const QString &key)
{
    if (key == QLatin1String("d_ktm"))
        return QStringLiteral("XXXXXX-XX.XX-XXXXXX");
    if (key == QLatin1String("d_cpv"))
        return QStringLiteral("XXXXXXXX-X");
    if (key == QLatin1String("d_price") || key == QLatin1String("d_averagePrice"))
        return QStringLiteral("[ PLN ]");
    return {};
}

myItemStandard *shownText(const QString &key, const QString &text)
{
    auto *cell = new myItemStandard(key);
    cell->setText(text);
    cell->setEditable(false);
    cell->readOnly = true;
    return cell;
}

struct knownFirm
{
    QString toolTip;
    QIcon icon;
};
using knownFirms = QHash<QString, knownFirm>;

// The choice of firms, by name; each shows its status by its picture.
comboEntries entriesOf(const std::vector<std::unique_ptr<firmStruct>> &firms,
                       const std::vector<comboBoxStruct> &statuses, knownFirms *known)
{
    comboEntries entries;
    for (const auto &firm : firms) {
        QString picture = statuses.front().icon;
        for (const comboBoxStruct &status : statuses)
            if (status.value == firm->status)
                picture = status.icon;
        const QIcon icon(picture);
        entries.append({firm->name, {}, icon, {}});
        known->insert(firm->name, {QCoreApplication::translate("materialTree", "%1, status %2")
                                       .arg(firm->fullname, labels::shown(firm->status))
                                       .toHtmlEscaped(),
                                   icon});
    }
    std::sort(entries.begin(), entries.end(), [](const comboEntry &a, const comboEntry &b) {
        return QString::localeAwareCompare(a.value, b.value) < 0;
    });
    return entries;
}

template <class Source>
treeColumns<Source> firmColumns(const std::vector<std::unique_ptr<firmStruct>> &firms,
                                const std::vector<comboBoxStruct> &statuses)
{
    treeColumns<Source> columns;
    for (const textField<Source> &field : Source::fields())
        columns.push_back(
            fieldColumn(Source::fields(), field.name, usualWidth, lineEditKind, true));
    knownFirms known;
    treeColumn<Source> &name = columns[materialTree::nameColumn];
    name.kind = comboBoxKind;
    name.canBeTyped = true;
    name.entries = entriesOf(firms, statuses, &known);
    name.look = [known, usual = QIcon(statuses.front().icon)](const Source &source,
                                                              myItemStandard *cell) {
        const auto firm = known.find(source.name);
        const bool isKnown = firm != known.end();
        cell->setIcon(isKnown ? firm->icon : usual);
        cell->setToolTip(
            isKnown ? firm->toolTip
                    : QCoreApplication::translate("materialTree", "Not in the firm register"));
    };
    return columns;
}

template <class Record>
bool write(xmlData *record, const myItemStandard &item)
{
    auto *own = dynamic_cast<Record *>(record);
    if (!own)
        return false;
    for (const textField<Record> &field : Record::fields())
        if (field.name == item.whatsThis())
            (*own).*field.member = item.text();
    return true;
}

filesStruct *filesOf(xmlData *record)
{
    if (auto *manufacturer = dynamic_cast<manufacturerStruct *>(record))
        return &manufacturer->files;
    if (auto *supplier = dynamic_cast<supplierStruct *>(record))
        return &supplier->files;
    return nullptr;
}

// The list that the rows below an item show, row by row.
xmlData *listBelow(QStandardItem *parent)
{
    xmlData *record = static_cast<myItemStandard *>(parent)->record;
    filesStruct *files = filesOf(record);
    return files ? files : record;
}

template <class List>
bool putInto(xmlData *owner, int row, myItemStandard *first)
{
    auto *list = dynamic_cast<List *>(owner);
    if (!list)
        return false;
    using Child = typename decltype(list->items)::value_type::element_type;
    list->items.emplace(list->items.begin() + row,
                        static_cast<Child *>(first->owned->record.release()));
    first->owned.reset();
    return true;
}

template <class List>
bool takeFrom(xmlData *owner, int row, myItemStandard *first)
{
    auto *list = dynamic_cast<List *>(owner);
    if (!list)
        return false;
    first->own(std::move(list->items[size_t(row)]));
    list->items.erase(list->items.begin() + row);
    return true;
}

} // namespace

materialTree::rowKind materialTree::kindOf(const QStandardItem *first)
{
    if (!first || first->type() < standardKind)
        return caption;
    const xmlData *record = static_cast<const myItemStandard *>(first)->record;
    if (dynamic_cast<const manufacturerStruct *>(record))
        return manufacturer;
    if (dynamic_cast<const supplierStruct *>(record))
        return supplier;
    if (dynamic_cast<const fileStruct *>(record))
        return file;
    return first->parent() ? field : caption;
}

QStandardItem *materialTree::firmOf(QStandardItem *first)
{
    switch (kindOf(first)) {
    case manufacturer:
    case supplier:
        return first;
    case file:
        return first->parent();
    default:
        return nullptr;
    }
}

myItemStandard *materialTree::addSection(myModel *model, const QString &text, xmlData *record)
{
    auto *section = shownText({}, text);
    section->setFont(m_sectionFont);
    section->record = record;
    model->appendRow(row{section});
    return section;
}

template <class Record>
void materialTree::addFields(QStandardItem *parent, Record &record, const configStruct &config,
                             const QString &from, const QString &to)
{
    bool within = false;
    for (const textField<Record> &one : Record::fields()) {
        within = within || one.name == from;
        if (!within)
            continue;
        auto *name = shownText(one.name, one.label());
        name->record = &record;
        myItemStandard *value = makeCell(traitsOf(one.name, config), record.*one.member);
        if (value->type() == spinBoxKind)
            static_cast<myItemSpinBox *>(value)->mayBeEmpty = true;
        // Texts and amounts stand below each other here.
        value->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        m_values.insert(one.name, value);
        parent->appendRow({name, value, shownText({}, hintOf(one.name))});
        if (one.name == to)
            break;
    }
}

template <class Source>
row materialTree::firmRow(Source *source) const
{
    if constexpr (std::is_same_v<Source, manufacturerStruct>)
        return makeRow(m_manufacturerColumns, source);
    else
        return makeRow(m_supplierColumns, source);
}

row materialTree::fileRow(fileStruct *record) const
{
    row items = makeRow(m_fileColumns, record);
    items.append(shownText({}, {}));
    return items;
}

template <class Sources>
void materialTree::addFirms(QStandardItem *parent, const Sources &sources) const
{
    for (const auto &source : sources.items) {
        const row items = firmRow(source.get());
        for (const auto &one : source->files.items)
            items.first()->appendRow(fileRow(one.get()));
        parent->appendRow(items);
    }
}

void materialTree::takeFirms(const configStruct &config, const kiv_mat_firmStruct &firms)
{
    m_manufacturerColumns =
        firmColumns<manufacturerStruct>(firms.manufacturers.items, config.manufacturerStatuses);
    m_supplierColumns = firmColumns<supplierStruct>(firms.suppliers.items, config.supplierStatuses);
}

void materialTree::refreshFirms(const configStruct &config, const kiv_mat_firmStruct &firms)
{
    takeFirms(config, firms);
    const auto look = [](const QStandardItem *section, const auto &columns, auto *null) {
        using source = std::remove_pointer_t<decltype(null)>;
        for (int row = 0; row < section->rowCount(); ++row) {
            auto *cell = static_cast<myItemStandard *>(section->child(row, nameColumn));
            columns[nameColumn].look(*static_cast<source *>(cell->record), cell);
        }
    };
    look(m_manufacturers, m_manufacturerColumns, static_cast<manufacturerStruct *>(nullptr));
    look(m_suppliers, m_supplierColumns, static_cast<supplierStruct *>(nullptr));
}

void materialTree::show(myModel *model, materialStruct &material, const configStruct &config,
                        const kiv_mat_firmStruct &firms)
{
    takeFirms(config, firms);
    unlisted.clear();
    m_fileColumns.clear();
    for (const textField<fileStruct> &one : fileStruct::fields())
        m_fileColumns.push_back(
            fieldColumn(fileStruct::fields(), one.name, usualWidth, lineEditKind, true));
    // Links are longer than their column.
    m_fileColumns[valueColumn].look = [](const fileStruct &one, myItemStandard *cell) {
        cell->setToolTip(one.name);
    };
    m_fileColumns[nameColumn].kind = comboBoxKind;
    m_fileColumns[nameColumn].entries = myItem::entriesOf(config.fileTypes);

    m_sectionFont = config.font();
    m_sectionFont.setBold(true);
    model->setRecords(nullptr);
    model->removeRows(0, model->rowCount());
    m_values.clear();
    model->setHorizontalHeaderLabels(
        {labels::name(), QCoreApplication::translate("materialTree", "Value, part number or link"),
         labels::description()});
    const auto fieldsBelow = [&](QStandardItem *section, const char *from, const char *to) {
        addFields(section, material, config, QLatin1String(from), QLatin1String(to));
    };
    fieldsBelow(addSection(model, labels::material(), nullptr), "d_ktm", "d_description");
    fieldsBelow(
        addSection(model, QCoreApplication::translate("materialTree", "Parameters"), nullptr),
        "d_value", "d_otherParameters");
    QStandardItem *stock =
        addSection(model, QCoreApplication::translate("materialTree", "Price and stock"), nullptr);
    fieldsBelow(stock, "d_price", "d_active");
    fieldsBelow(stock, "d_quantity", "");
    m_manufacturers = addSection(model, labels::manufacturers(), &material.manufacturers);
    addFirms(m_manufacturers, material.manufacturers);
    m_suppliers = addSection(model, labels::suppliers(), &material.suppliers);
    addFirms(m_suppliers, material.suppliers);
    addFields(addSection(model, labels::informations(), nullptr), material.information, config,
              QStringLiteral("status"), {});
    fieldsBelow(
        addSection(model, QCoreApplication::translate("materialTree", "CAD library"), nullptr),
        "d_libraryRef", "d_footprintRef6");
    model->setRecords(this);
}

row materialTree::newFirm(rowKind kind) const
{
    const auto rowOf = [this](auto source) {
        const row items = firmRow(source.get());
        static_cast<myItemStandard *>(items.first())->own(std::move(source));
        return items;
    };
    return kind == supplier ? rowOf(std::make_unique<supplierStruct>())
                            : rowOf(std::make_unique<manufacturerStruct>());
}

row materialTree::newFile(const QString &kind, const QString &name) const
{
    auto record = std::make_unique<fileStruct>();
    record->type = kind;
    record->name = name;
    const row items = fileRow(record.get());
    static_cast<myItemStandard *>(items.first())->own(std::move(record));
    return items;
}

std::optional<QString> materialTree::unitOf(const myItemStandard &,
                                            const myItemStandard *first) const
{
    const auto *material = dynamic_cast<const materialStruct *>(first->record);
    return material ? std::optional(material->d_unit) : std::nullopt;
}

void materialTree::cellChanged(myItemStandard *item, myItemStandard *first)
{
    xmlData *record = first->record;
    if (write<materialStruct>(record, *item) || write<informationsStruct>(record, *item))
        return;
    if (write<fileStruct>(record, *item)) {
        if (item->column() == valueColumn)
            m_fileColumns[valueColumn].look(*static_cast<fileStruct *>(record), item);
        return;
    }
    const bool isName = item->column() == nameColumn;
    if (write<manufacturerStruct>(record, *item) && isName)
        nameChanged(m_manufacturerColumns, record, item, manufacturer);
    else if (write<supplierStruct>(record, *item) && isName)
        nameChanged(m_supplierColumns, record, item, supplier);
}

template <class Source>
void materialTree::nameChanged(const treeColumns<Source> &columns, xmlData *record,
                               myItemStandard *cell, rowKind kind)
{
    const auto &source = *static_cast<const Source *>(record);
    const treeColumn<Source> &name = columns[nameColumn];
    name.look(source, cell);
    const bool isListed =
        std::any_of(name.entries.begin(), name.entries.end(),
                    [&source](const comboEntry &entry) { return entry.value == source.name; });
    if (!isListed && !source.name.isEmpty())
        unlisted.push_back({kind, source.name});
}

void materialTree::rowInserted(QStandardItem *parent, int row, myItemStandard *first)
{
    xmlData *owner = listBelow(parent);
    if (!putInto<filesStruct>(owner, row, first)
        && !putInto<manufacturersStruct>(owner, row, first))
        putInto<suppliersStruct>(owner, row, first);
}

void materialTree::rowTaken(QStandardItem *parent, int row, myItemStandard *first)
{
    xmlData *owner = listBelow(parent);
    if (!takeFrom<filesStruct>(owner, row, first)
        && !takeFrom<manufacturersStruct>(owner, row, first))
        takeFrom<suppliersStruct>(owner, row, first);
}

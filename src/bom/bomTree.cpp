#include "bom/bomTree.h"

#include "data/configStruct.h"
#include "tree/recordPlaces.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace myItem;

namespace bomTree {

namespace {

QIcon icon(const char *name)
{
    return QIcon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(name)));
}

myItemStandard *cellOf(const char *key, kind cellKind, bool editable, const QString &text)
{
    return makeCell({QLatin1String(key), cellKind, editable, {}, false, 0, setsMaximum}, text);
}

// Shown without its path and ending, as its report is headed.
QString shownName(const fileStruct &file) { return QFileInfo(file.name).completeBaseName(); }

// A file that is not there has another picture, and says so where the mouse rests.
void showPresence(QStandardItem *name, const fileStruct &file, const QString &setPath)
{
    const QString path = ::pathOf(file, setPath);
    const bool isThere = QFileInfo::exists(path);
    const bool isXml = file.name.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive);
    name->setIcon(icon(!isThere ? "system_error_trans_128"
                       : isXml  ? "file_xml_128"
                                : "action_errors"));
    name->setToolTip(isThere ? file.name
                             : QCoreApplication::translate("bomTree", "The file is missing: %1")
                                   .arg(QDir::toNativeSeparators(path)));
}

row fileRow(fileStruct *file, int sets, const QString &setPath)
{
    const row items{cellOf("name", standardKind, false, shownName(*file)),
                    cellOf("sets", spinBoxKind, true, QString::number(sets)),
                    cellOf("path", standardKind, false, file->name)};
    showPresence(items[nameColumn], *file, setPath);
    static_cast<myItemStandard *>(items.first())->record = file;
    return items;
}

template <class Folder>
row folderRow(Folder *folder)
{
    const row items{cellOf("name", lineEditKind, true, folder->name),
                    cellOf("sets", standardKind, false, {}),
                    cellOf("path", standardKind, false, {})};
    items[nameColumn]->setIcon(icon("folder_128"));
    static_cast<myItemStandard *>(items.first())->record = folder;
    return items;
}

template <class Record>
row owned(const row &items, std::unique_ptr<Record> record)
{
    static_cast<myItemStandard *>(items.first())->own(std::move(record));
    return items;
}

QStandardItem *child(const QStandardItem *first, int column)
{
    return first->parent() ? first->parent()->child(first->row(), column)
                           : first->model()->item(first->row(), column);
}

// The list that the rows below a parent show goes to what is to be done with it.
template <class Action>
void withListBelow(const QStandardItem *parent, kiv_mat_bomsStruct *boms, const Action &action)
{
    if (parent == parent->model()->invisibleRootItem())
        action(boms->categories);
    else if (depthOf(parent) == 0)
        action(static_cast<fileCategory *>(static_cast<const myItemStandard *>(parent)->record)
                   ->items);
    else
        action(
            static_cast<fileGroup *>(static_cast<const myItemStandard *>(parent)->record)->items);
}

} // namespace

void setRows::show(myModel *model, const QHash<QString, int> &sets)
{
    model->setRecords(nullptr);
    model->removeRows(0, model->rowCount());
    model->setHorizontalHeaderLabels({labels::name(), labels::quantity(), labels::file()});
    for (const auto &category : m_boms->categories) {
        const row top = folderRow(category.get());
        for (const auto &group : category->items) {
            const row below = folderRow(group.get());
            for (const auto &file : group->items)
                below.first()->appendRow(
                    fileRow(file.get(), sets.value(file->name), m_boms->filePath));
            top.first()->appendRow(below);
        }
        model->appendRow(top);
    }
    model->setRecords(this);
}

void setRows::refreshLooks(const myModel *model) const
{
    for (QStandardItem *first : allFiles(model))
        showPresence(first, *fileOf(first), m_boms->filePath);
}

row setRows::makeRow(std::unique_ptr<fileStruct> file) const
{
    const row items = fileRow(file.get(), 0, m_boms->filePath);
    return owned(items, std::move(file));
}

row setRows::makeRow(std::unique_ptr<fileGroup> group) const
{
    const row items = folderRow(group.get());
    return owned(items, std::move(group));
}

row setRows::makeRow(std::unique_ptr<fileCategory> category) const
{
    const row items = folderRow(category.get());
    return owned(items, std::move(category));
}

void setRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    if (item->column() != nameColumn)
        return;
    if (depthOf(first) == 0)
        static_cast<fileCategory *>(first->record)->name = item->text();
    else
        static_cast<fileGroup *>(first->record)->name = item->text();
}

void setRows::rowInserted(QStandardItem *parent, int row, myItemStandard *first)
{
    withListBelow(parent, m_boms,
                  [&](auto &list) { recordPlaces::putInto(list, parent, row, first); });
}

void setRows::rowTaken(QStandardItem *parent, int row, myItemStandard *first)
{
    withListBelow(parent, m_boms, [&](auto &list) { recordPlaces::takeFrom(list, row, first); });
}

int depthOf(const QStandardItem *item)
{
    int depth = 0;
    while ((item = item->parent()))
        ++depth;
    return depth;
}

fileStruct *fileOf(const QStandardItem *first)
{
    constexpr int fileDepth = 2;
    if (!first || depthOf(first) != fileDepth)
        return nullptr;
    return static_cast<fileStruct *>(static_cast<const myItemStandard *>(first)->record);
}

QList<QStandardItem *> filesBelow(QStandardItem *first)
{
    if (fileOf(first))
        return {first};
    QList<QStandardItem *> files;
    for (int row = 0; row < first->rowCount(); ++row)
        files += filesBelow(first->child(row));
    return files;
}

QList<QStandardItem *> allFiles(const myModel *model)
{
    QList<QStandardItem *> files;
    for (int row = 0; row < model->rowCount(); ++row)
        files += filesBelow(model->item(row));
    return files;
}

myItemStandard *setsCell(const QStandardItem *first)
{
    return static_cast<myItemStandard *>(child(first, setsColumn));
}

int setsOf(const QStandardItem *first) { return setsCell(first)->text().toInt(); }

// --- The lines of a list
// --------------------------------------------------------------------------

treeColumns<materialStruct> lineColumns(const configStruct &config, const ktmIndex &materials)
{
    using material = materialStruct;
    struct place
    {
        const char *key;
        QString label;
        int width;
        kind cellKind;
        QString material::*member; // null: the status
        bool ofLine;               // of the list, not of the database
        bool editable = false;
    };
    const QString pln = QStringLiteral(" [ PLN ]");
    const place places[] = {
        {"status", labels::status(), 50, standardKind, nullptr, false},
        {"d_name", labels::name(), 320, standardKind, &material::d_name, false},
        {"d_designator", labels::designator(), 150, lineEditKind, &material::d_designator, true,
         true},
        {"d_quantity", labels::quantity(), 80, spinBoxKind, &material::d_quantity, true, true},
        {"d_inWarehouse", labels::warehouse(), 80, spinBoxKind, &material::d_inWarehouse, false},
        {"d_unit", labels::unit(), 80, standardKind, &material::d_unit, false},
        {"d_ktm", labels::ktm(), 150, lineEditKind, nullptr, true, true},
        {"d_price", labels::price() + pln, 80, moneyKind, &material::d_price, false},
        {"d_averagePrice", labels::averagePriceShort() + pln, 80, moneyKind,
         &material::d_averagePrice, false},
        {"d_value", labels::value(), 200, standardKind, &material::d_value, false},
        {"d_case", labels::case_(), 80, standardKind, &material::d_case, false},
        {"d_otherParameters", labels::otherParametersShort(), 80, standardKind,
         &material::d_otherParameters, false},
        {"d_description", labels::description(), 250, standardKind, &material::d_description,
         false},
    };
    treeColumns<material> table;
    for (const place &at : places) {
        treeColumn<material> column{QLatin1String(at.key),
                                    at.label,
                                    at.width,
                                    at.cellKind,
                                    [](const material &) { return QString(); },
                                    {},
                                    at.editable};
        if (const auto member = at.member)
            column.read = [member, ofLine = at.ofLine, &materials](const material &line) {
                return (ofLine ? line : *bomOperations::matched(line, materials).material).*member;
            };
        if (at.editable && at.member)
            column.write = [member = at.member](material &line, const QString &text) {
                line.*member = text;
            };
        column.maximum = setsMaximum;
        if (at.member == &material::d_quantity)
            column.unit = [&materials](const material &line) {
                return bomOperations::matched(line, materials).material->d_unit;
            };
        if (at.cellKind == moneyKind)
            column.look = [pln](const material &, myItemStandard *cell) {
                static_cast<myItemMoney *>(cell)->suffix = pln;
            };
        table.push_back(std::move(column));
    }

    // The picture of the material's status; the word where the mouse rests.
    const comboEntries statuses = entriesOf(config.statuses);
    const QIcon unknown = icon("system_error_trans_128");
    table[0].look = [statuses, unknown, &materials](const material &line, myItemStandard *cell) {
        const auto of = bomOperations::matched(line, materials);
        const QString status = of.material->information.status;
        const auto entry = std::find_if(statuses.begin(), statuses.end(),
                                        [&status](const auto &e) { return e.value == status; });
        cell->setIcon(!of.known ? unknown : entry != statuses.end() ? entry->icon : QIcon());
        cell->setToolTip(of.known ? labels::shown(status)
                                  : QCoreApplication::translate("bomTree", "In no database"));
    };
    table[lineNameColumn].look = [](const material &, myItemStandard *cell) {
        cell->setToolTip(cell->text());
    };
    table[unitColumn].read = [&materials](const material &line) {
        return labels::shown(bomOperations::matched(line, materials).material->d_unit);
    };
    table[ktmColumn].read = [&materials](const material &line) {
        return bomOperations::matched(line, materials).shownKtm();
    };
    table[ktmColumn].write = [](material &line, const QString &text) {
        const QLatin1String mark("!!!!!");
        line.d_ktm = text.startsWith(mark) ? text.mid(mark.size()) : text;
    };
    return table;
}

void lineRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    listRows<materialStruct>::cellChanged(item, first);
    const materialStruct &line = *recordOf(first);
    for (size_t c = 0; c < columns().size(); ++c) {
        auto *cell = static_cast<myItemStandard *>(first->model()->item(first->row(), int(c)));
        setStoredText(cell, columns()[c].read(line));
        if (columns()[c].look)
            columns()[c].look(line, cell);
    }
}

} // namespace bomTree

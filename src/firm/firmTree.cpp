#include "firm/firmTree.h"

#include "firm/firmChecks.h"

#include <QCoreApplication>

using myItem::myItemStandard;

namespace firmTree {

treeColumns<firmStruct> columns(const std::vector<comboBoxStruct> &statuses,
                                const figuresFunction &figures)
{
    struct place
    {
        const char *key;
        int width;
        myItem::kind kind;
    };
    constexpr place places[] = {
        {"name", 190, myItem::lineEditKind},     {"fullname", 240, myItem::lineEditKind},
        {"status", 125, myItem::comboBoxKind},   {"business", 225, myItem::lineEditKind},
        {"homepage", 220, myItem::lineEditKind}, {"awatar", 75, myItem::spinBoxKind},
        {"nip", 160, myItem::lineEditKind},
    };
    treeColumns<firmStruct> table;
    for (const place &at : places)
        table.push_back(
            fieldColumn(firmStruct::fields(), QLatin1String(at.key), at.width, at.kind, true));
    constexpr int lastAwatar = 999;
    for (treeColumn<firmStruct> &column : table) {
        if (column.kind == myItem::comboBoxKind)
            column.entries = myItem::entriesOf(statuses);
        if (column.kind == myItem::spinBoxKind)
            column.maximum = lastAwatar;
    }
    treeColumn<firmStruct> &taxNumber = table.back();
    taxNumber.look = [](const firmStruct &firm, myItemStandard *cell) {
        const QString warning = taxNumberWarning(firm.nip);
        cell->setIcon(warning.isEmpty()
                          ? QIcon()
                          : QIcon(QStringLiteral(":/icons/icons/system_error_trans_128.png")));
        cell->setToolTip(warning);
    };
    table[homePageColumn].look = [](const firmStruct &firm, myItemStandard *cell) {
        cell->setToolTip(
            firmOperations::homePage(firm.homepage).isValid()
                ? QCoreApplication::translate("firmWindow", "A click with Ctrl opens the page")
                : QString());
    };
    const auto addFigure = [&](const char *key, const QString &label, int width, myItem::kind kind,
                               QString (*text)(const firmOperations::firmFigures &)) {
        treeColumn<firmStruct> column;
        column.key = QLatin1String(key);
        column.label = label;
        column.width = width;
        column.kind = kind;
        column.read = [figures, text](const firmStruct &firm) {
            const auto known = figures(firm.name);
            return known ? text(*known) : QString();
        };
        column.editable = false;
        constexpr int many = 100000000;
        column.maximum = many;
        table.push_back(column);
    };
    addFigure("materials", QCoreApplication::translate("firmWindow", "Materials"), 90,
              myItem::spinBoxKind, [](const auto &its) { return QString::number(its.materials); });
    addFigure("orders", QCoreApplication::translate("firmWindow", "Orders"), 90,
              myItem::spinBoxKind, [](const auto &its) { return QString::number(its.orders); });
    addFigure("lastUsed", QCoreApplication::translate("firmWindow", "Last used"), 110,
              myItem::dateEditKind, [](const auto &its) {
                  return its.lastUsed.toString(QStringLiteral("dd.MM.yyyy"));
              });
    return table;
}

void firmRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    const firmStruct &firm = *recordOf(first);
    const QString before = firm.name;
    listRows<firmStruct>::cellChanged(item, first);
    if (firm.name != before) {
        renamed.insert(before, firm.name);
        showFigures(static_cast<const myModel *>(item->model()), item->row());
    }
    if (const auto &look = columns().at(size_t(item->column())).look)
        look(firm, item);
}

void firmRows::showFigures(const myModel *model)
{
    for (int row = 0; row < model->rowCount(); ++row)
        showFigures(model, row);
}

void firmRows::showFigures(const myModel *model, int row)
{
    const firmStruct &firm = *recordOf(static_cast<myItemStandard *>(model->item(row)));
    for (size_t i = 0; i < columns().size(); ++i)
        if (!columns()[i].editable) {
            auto *cell = static_cast<myItemStandard *>(model->item(row, int(i)));
            if (const QString text = columns()[i].read(firm); cell->text() != text)
                myItem::setStoredText(cell, text);
        }
}

} // namespace firmTree

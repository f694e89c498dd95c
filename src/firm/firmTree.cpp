#include "firm/firmTree.h"

#include "firm/firmChecks.h"

#include <QCoreApplication>

using myItem::myItemStandard;

namespace firmTree {

treeColumns<firmStruct> columns(const std::vector<comboBoxStruct> &statuses)
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
    table.back().look = [](const firmStruct &firm, myItemStandard *cell) {
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
    return table;
}

void firmRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    const firmStruct &firm = *recordOf(first);
    const QString before = firm.name;
    listRows<firmStruct>::cellChanged(item, first);
    if (firm.name != before)
        renamed.insert(before, firm.name);
    if (const auto &look = columns().at(size_t(item->column())).look)
        look(firm, item);
}

} // namespace firmTree

#include "order/orderTree.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"
#include "util/text.h"

#include <QCoreApplication>

using namespace myItem;

namespace orderTree {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("orderTree", text); }

const QIcon &icon(const QString &name)
{
    static QHash<QString, QIcon> icons;
    auto found = icons.find(name);
    if (found == icons.end())
        found = icons.insert(name, QIcon(QStringLiteral(":/icons/icons/%1.png").arg(name)));
    return *found;
}

void set(myItemStandard *cell, const QString &text, const QString &picture, const QString &toolTip)
{
    if (!text.isNull())
        cell->setText(text);
    cell->setIcon(picture.isEmpty() ? QIcon() : icon(picture));
    cell->setToolTip(toolTip);
}

void showStatus(const orderItemStruct &line, myItemStandard *cell, const ktmIndex &materials,
                const std::vector<comboBoxStruct> &statuses)
{
    const orderOperations::lineState state = orderOperations::stateOf(line, materials);
    if (!state.known) {
        set(cell, tr("unknown"), QStringLiteral("line_unknown"),
            tr("No loaded database has this KTM"));
        return;
    }
    QString picture = QStringLiteral("line_known");
    for (const comboBoxStruct &status : statuses)
        if (status.value == state.status)
            picture = status.icon.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0);
    set(cell, labels::shown(state.status), picture,
        orderOperations::isOrderable(state.status)
            ? tr("Known material, status %1").arg(labels::shown(state.status))
            : tr("The status of this material does not allow to order it"));
}

// A bar of what of the quantity is in stock, under the stock as it is stored.
void showStock(const orderItemStruct &line, myItemStandard *cell, const ktmIndex &materials)
{
    using orderOperations::stock;
    const orderOperations::lineState of = orderOperations::stateOf(line, materials);
    const stock state = of.inStock;
    constexpr int whole = 1000000;
    auto *bar = static_cast<myItemSpinBox *>(cell);
    bar->displayMode = state == stock::unknown ? 0 : 2;
    bar->minimum = 0;
    bar->maximum = whole;
    bar->setValue(int(of.share * whole));
    bar->setText(line.inWarehouse);
    const QString numbers = tr("%1 in stock, %2 ordered").arg(line.inWarehouse, line.quantity);
    set(cell, {},
        state == stock::enough      ? QStringLiteral("line_enough")
        : state == stock::tooLittle ? QStringLiteral("line_short")
                                    : QString(),
        state == stock::enough      ? tr("Enough: %1").arg(numbers)
        : state == stock::tooLittle ? tr("Too little: %1").arg(numbers)
                                    : QString());
}

// How much of it other orders have on the way: a warning as long as the line itself is to come.
void showOnTheWay(const orderItemStruct &line, myItemStandard *cell, const orderedOfKtm &ordered)
{
    const orderedBefore before = ordered ? ordered(line.ktm) : orderedBefore();
    const bool isAgain = before.isOnTheWay() && line.delivery.trimmed().isEmpty()
                         && line.invoice.trimmed().isEmpty();
    const QString orders = before.open.join(QLatin1Char('\n'));
    set(cell, before.onTheWayText(), isAgain ? QStringLiteral("line_short") : QString(),
        isAgain ? tr("Ordered already, and not invoiced yet:") + QLatin1Char('\n') + orders
                : text::toolTip(orders));
}

void showLastOrdered(const orderItemStruct &line, myItemStandard *cell, const orderedOfKtm &ordered)
{
    const QString last = ordered ? ordered(line.ktm).lastText() : QString();
    set(cell, last.isNull() ? QLatin1String("") : last, {}, text::toolTip(last));
}

struct lineColumn
{
    const char *key;
    int width;
    kind cellKind;
    bool editable;
};

// In the order of the record's fields.
constexpr lineColumn lineColumns[] = {
    {"index", 56, standardKind, false},
    {"name", 190, lineEditKind, true},
    {"price", 90, moneyKind, true},
    {"average_price", 116, moneyKind, true},
    {"in_warehouse", 136, spinBoxKind, false},
    {"quantity", 84, spinBoxKind, true},
    {"unit", 92, comboBoxKind, true},
    {"wait", 92, dateEditKind, true},
    {"description", 230, lineEditKind, true},
    {"rohs_required", 70, comboBoxKind, true},
    {"target", 120, comboBoxKind, true},
    {"ktm", 150, lineEditKind, true},
    {"cpv", 96, lineEditKind, true},
    {"delivery", 110, lineEditKind, true},
    {"invoice", 110, lineEditKind, true},
    {"attentions", 160, lineEditKind, true},
};
constexpr int statusWidth = 110;
constexpr int onTheWayWidth = 110;
constexpr int lastOrderedWidth = 230;

struct optionRow
{
    QLatin1String key;
    kind cellKind;
};

constexpr optionRow optionTable[] = {
    {optionKey::orderNumber, lineEditKind},    {optionKey::orderDate, dateEditKind},
    {optionKey::orderTarget, comboBoxKind},    {optionKey::personAuthor, comboBoxKind},
    {optionKey::personApproved, comboBoxKind}, {optionKey::personContractor, comboBoxKind},
};

comboEntries targetEntries(const configStruct &config)
{
    comboEntries entries;
    for (const auto &target : config.targets.items)
        entries.append({target->name, target->description, {}, {}});
    return entries;
}

comboEntries personEntries(const configStruct &config, const QString &role)
{
    comboEntries entries;
    for (const auto &person : config.persons.items)
        if (person->type == role)
            entries.append({person->name, person->phone, {}, {}});
    return entries;
}

} // namespace

treeColumns<orderItemStruct> columns(const configStruct &config, const kiv_mat_zpStruct &order,
                                     const ktmIndex &materials, const orderedOfKtm &ordered)
{
    treeColumns<orderItemStruct> table;
    for (const lineColumn &c : lineColumns)
        table.push_back(fieldColumn(orderItemStruct::fields(), QLatin1String(c.key), c.width,
                                    c.cellKind, c.editable));
    table[indexColumn].label = labels::ordinalNumber();
    table[quantityColumn].maximum = quantityMaximum;
    table[quantityColumn].unit = [](const orderItemStruct &line) { return line.unit; };
    table[waitColumn].entries = entriesOf(QStringList{statusWord::no});
    table[unitColumn].entries = entriesOf(orderOperations::units());
    table[rohsColumn].entries = entriesOf(config.goodWhenYes);
    table[targetColumn].canBeTyped = true;
    table[targetColumn].entries = entriesOf(orderOperations::targets(config, order));
    table[inWarehouseColumn].look = [&materials](const orderItemStruct &line,
                                                 myItemStandard *cell) {
        showStock(line, cell, materials);
    };
    table[indexColumn].look = [](const orderItemStruct &, myItemStandard *cell) {
        cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    };
    const auto shownOnly = [](const char *key, const QString &label, int width) {
        return treeColumn<orderItemStruct>{QLatin1String(key),
                                           label,
                                           width,
                                           standardKind,
                                           [](const orderItemStruct &) { return QString(); },
                                           {},
                                           false};
    };
    treeColumn<orderItemStruct> status = shownOnly("status", labels::status(), statusWidth);
    // A copy: saving the configuration puts another one in its place.
    status.look = [&materials, statuses = config.statuses](const orderItemStruct &line,
                                                           myItemStandard *cell) {
        showStatus(line, cell, materials, statuses);
    };
    table.push_back(std::move(status));
    table.push_back(shownOnly("on_the_way", labels::onTheWay(), onTheWayWidth));
    table.back().look = [ordered](const orderItemStruct &line, myItemStandard *cell) {
        showOnTheWay(line, cell, ordered);
    };
    table.push_back(shownOnly("last_ordered", labels::lastOrdered(), lastOrderedWidth));
    table.back().look = [ordered](const orderItemStruct &line, myItemStandard *cell) {
        showLastOrdered(line, cell, ordered);
    };
    return table;
}

const std::vector<int> &usualOrder()
{
    static const std::vector<int> order{
        indexColumn,        statusColumn,      nameColumn,        descriptionColumn, quantityColumn,
        unitColumn,         waitColumn,        inWarehouseColumn, onTheWayColumn,    priceColumn,
        averagePriceColumn, lastOrderedColumn, targetColumn,      rohsColumn,        ktmColumn,
        cpvColumn,          deliveryColumn,    invoiceColumn,     attentionsColumn};
    return order;
}

void refreshLooks(const myModel *model, int row, const treeColumns<orderItemStruct> &table)
{
    const auto *first = static_cast<myItemStandard *>(model->item(row));
    for (int c : {inWarehouseColumn, statusColumn, onTheWayColumn, lastOrderedColumn})
        table[size_t(c)].look(*listRows<orderItemStruct>::recordOf(first),
                              static_cast<myItemStandard *>(model->item(row, c)));
}

void optionRows::show(myModel *model, kiv_mat_zpStruct &order, const configStruct &config)
{
    model->removeRows(0, model->rowCount());
    m_secondValues.clear();
    for (const auto &person : config.persons.items)
        m_secondValues.insert(person->name, person->phone);
    for (const optionRow &line : optionTable) {
        optionStruct *option = order.options.findOption(line.key);
        if (!option)
            continue;
        m_secondValues.insert(option->value1, option->value2);
        auto *caption = new myItemStandard(line.key);
        caption->setText(labels::optionCaption(line.key));
        caption->setEditable(false);
        caption->record = option;
        const bool isTarget = line.key == optionKey::orderTarget;
        myItemStandard *value = makeCell(
            {line.key, line.cellKind, option->editable == statusWord::editableYes,
             isTarget ? targetEntries(config) : personEntries(config, line.key), true, 0, 0},
            option->value1);
        model->appendRow({caption, value});
    }
}

void optionRows::cellChanged(myItemStandard *item, myItemStandard *first)
{
    auto *option = static_cast<optionStruct *>(first->record);
    option->value1 = item->text();
    option->value2 = m_secondValues.value(option->value1);
}

} // namespace orderTree

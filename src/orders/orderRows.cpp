#include "orders/orderRows.h"

#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct shownColumn
{
    QString (*caption)();
    int width;
    bool isNumber;
};

QString translated(const char *text) { return QCoreApplication::translate("orders", text); }

const std::array<shownColumn, orderRows::columns> orderColumns{{
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Number")); }, 120, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Date")); }, 90, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "State")); }, 215, false},
    {labels::target, 200, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Author")); }, 190, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Lines")); }, 70, true},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Sum [ PLN ]")); }, 110, true},
    {labels::file, 200, false},
}};

const std::array<shownColumn, foundLineRows::columns> lineColumns{{
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Order")); }, 110, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Date")); }, 90, false},
    {labels::ktm, 160, false},
    {labels::name, 190, false},
    {labels::quantity, 80, true},
    {labels::unit, 80, false},
    {labels::price, 80, true},
    {labels::target, 140, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Delivery")); }, 130, false},
    {[] { return translated(QT_TRANSLATE_NOOP("orders", "Invoice")); }, 130, false},
}};

template <size_t Count>
QVariant headerOf(const std::array<shownColumn, Count> &of, int section,
                  Qt::Orientation orientation, int role)
{
    if (orientation != Qt::Horizontal)
        return {};
    const shownColumn &column = of[size_t(section)];
    if (role == Qt::DisplayRole)
        return column.caption();
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (column.isNumber ? Qt::AlignRight : Qt::AlignLeft));
    return {};
}

QString dayOf(const QDate &date) { return date.toString(labels::dateFormat()); }

// The state is never told by colour alone: the word stands beside the picture.
const QIcon &iconOf(orderStage stage)
{
    static const std::array<QIcon, 6> icons{
        QIcon(QStringLiteral(":/icons/icons/led_gray.png")),
        QIcon(QStringLiteral(":/icons/icons/led_blue.png")),
        QIcon(QStringLiteral(":/icons/icons/led_purple.png")),
        QIcon(QStringLiteral(":/icons/icons/led_green.png")),
        QIcon(QStringLiteral(":/icons/icons/led_green.png")),
        QIcon(QStringLiteral(":/icons/icons/action_duplicate.png")),
    };
    return icons[size_t(stage)];
}

} // namespace

// --- Orders
// ---------------------------------------------------------------------------------------

int orderRows::widthOf(int column) { return orderColumns[size_t(column)].width; }

orderRows::orderRows(orderRegister *orders, QObject *parent)
    : QAbstractTableModel(parent)
    , m_orders(orders)
{
}

void orderRows::showAgain()
{
    beginResetModel();
    m_rows.clear();
    for (const orderIndex::order &order : m_orders->index().orders())
        m_rows.push_back({order.path, order.number, order.date, m_orders->stageOf(order),
                          order.target, order.author, int(order.lines.size()), order.sum,
                          order.leftOut});
    endResetModel();
}

int orderRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant orderRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    return headerOf(orderColumns, section, orientation, role);
}

QVariant orderRows::data(const QModelIndex &index, int role) const
{
    const row &order = at(index.row());
    if (role == Qt::TextAlignmentRole)
        return headerOf(orderColumns, index.column(), Qt::Horizontal, role);
    if (role == Qt::DecorationRole && index.column() == state)
        return iconOf(order.stage);
    if (role == Qt::ToolTipRole) {
        const orderStateStruct *sent =
            index.column() == state ? m_orders->sentState(order.path) : nullptr;
        if (sent)
            return text::toolTip(translated(QT_TRANSLATE_NOOP("orders", "Sent %1 by %2 to %3"))
                                     .arg(sent->sent, sent->by,
                                          sent->to.isEmpty() ? QStringLiteral("-") : sent->to));
        if (index.column() == sum && order.leftOut > 0)
            return QCoreApplication::translate(
                "orders", "%n line(s) without a price or a quantity are not in it", nullptr,
                order.leftOut);
        if (index.column() == file)
            return text::toolTip(QDir::toNativeSeparators(order.path));
    }
    if (role != Qt::DisplayRole && role != sortRole)
        return {};
    const bool sorts = role == sortRole;
    switch (index.column()) {
    case number:
        return order.number;
    case date:
        return sorts ? QVariant(order.date) : dayOf(order.date);
    case state:
        return sorts ? QVariant(int(order.stage)) : stageText(order.stage);
    case target:
        return order.target;
    case author:
        return order.author;
    case lines:
        return order.lines;
    case sum:
        return sorts ? QVariant(order.sum.text().toDouble()) : numbers::grouped(order.sum.money());
    default:
        return QFileInfo(order.path).fileName();
    }
}

// --- Lines
// ----------------------------------------------------------------------------------------

int foundLineRows::widthOf(int column) { return lineColumns[size_t(column)].width; }

void foundLineRows::show(const orderIndex &index, const std::vector<orderIndex::place> &places)
{
    beginResetModel();
    m_rows.clear();
    for (const orderIndex::place &place : places) {
        const orderIndex::order &of = index.orders()[size_t(place.order)];
        const auto textOf = [&](orderIndex::field which) {
            return index.textOf(of.lines[size_t(place.line)], which);
        };
        m_rows.push_back({of.path,
                          place.line,
                          {of.number.isEmpty() ? QFileInfo(of.path).fileName() : of.number,
                           dayOf(of.date), textOf(orderIndex::ktm), textOf(orderIndex::name),
                           textOf(orderIndex::quantity), labels::shown(textOf(orderIndex::unit)),
                           numbers::price(textOf(orderIndex::price)), textOf(orderIndex::target),
                           textOf(orderIndex::delivery), textOf(orderIndex::invoice)}});
    }
    endResetModel();
}

int foundLineRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant foundLineRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    return headerOf(lineColumns, section, orientation, role);
}

QVariant foundLineRows::data(const QModelIndex &index, int role) const
{
    if (role == Qt::TextAlignmentRole)
        return headerOf(lineColumns, index.column(), Qt::Horizontal, role);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString &shown = at(index.row()).texts[size_t(index.column())];
    return role == Qt::ToolTipRole ? text::toolTip(shown) : shown;
}

#include "orders/offerRows.h"

#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"

#include <QFont>
#include <QIcon>

namespace {

QVariant alignment(bool isNumber)
{
    return int(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
}

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

QString dateOf(const QDate &date) { return date.toString(labels::dateFormat()); }

const QIcon &pictureOf(const char *name)
{
    static const QIcon best(QStringLiteral(":/icons/icons/led_green.png"));
    static const QIcon expired(QStringLiteral(":/icons/icons/led_red.png"));
    return *name == 'b' ? best : expired;
}

} // namespace

// --- Materials
// ------------------------------------------------------------------------------------

int offerRows::widthOf(int section)
{
    constexpr int widths[] = {170, 200, 75, 90, 130};
    constexpr int firmWidth = 280;
    return section < firms ? widths[section] : firmWidth;
}

void offerRows::show(offerComparison::comparison compared, offerComparison::selection chosen)
{
    beginResetModel();
    m_of = std::move(compared);
    m_chosen = std::move(chosen);
    endResetModel();
}

void offerRows::choose(offerComparison::selection chosen)
{
    m_chosen = std::move(chosen);
    if (rowCount() > 0)
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int offerRows::firmOf(int section) const
{
    return section >= firms && section < columnCount() ? section - firms : -1;
}

int offerRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_of.materials.size());
}

int offerRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : firms + int(m_of.firms.size());
}

QVariant offerRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    const int firm = firmOf(section);
    if (role == Qt::TextAlignmentRole)
        return alignment(firm >= 0 || section == needed);
    if (role != Qt::DisplayRole)
        return {};
    if (firm >= 0)
        return m_of.firms[size_t(firm)].name;
    switch (section) {
    case ktm:
        return labels::ktm();
    case name:
        return labels::name();
    case needed:
        return labels::quantity();
    case unit:
        return labels::unit();
    default:
        return tr("Bought from");
    }
}

// "1.8102 x 200 = 362.04", with a word where it is the best or the chosen one.
QString offerRows::shown(int row, int section) const
{
    const offerComparison::material &of = m_of.materials[size_t(row)];
    const int firm = firmOf(section);
    if (firm >= 0) {
        const offerComparison::cell &cell = of.cells[size_t(firm)];
        if (!cell.isOffered)
            return tr("not offered");
        const bool isChosen = m_chosen.firmOf[size_t(row)] == firm;
        return (isChosen ? QString(QChar(0x2714)) + QLatin1Char(' ') : QString())
               + QStringLiteral("%1 × %2 = %3")
                     .arg(numbers::price(cell.price.text()), cell.bought.text(), money(cell.cost));
    }
    switch (section) {
    case ktm:
        return of.need.ktm;
    case name:
        return of.need.name;
    case needed:
        return of.need.quantity.text();
    case unit:
        return labels::shown(of.need.unit);
    default: {
        const int chosen = m_chosen.firmOf[size_t(row)];
        return chosen < 0 ? tr("nobody") : m_of.firms[size_t(chosen)].name;
    }
    }
}

QString offerRows::toolTip(int row, int firm) const
{
    const offerComparison::material &of = m_of.materials[size_t(row)];
    const offerComparison::cell &cell = of.cells[size_t(firm)];
    QStringList lines;
    if (cell.isOffered && of.best == firm)
        lines.append(tr("The cheapest offer"));
    if (m_of.firms[size_t(firm)].isExpired)
        lines.append(tr("The offer is not valid any more"));
    if (!cell.prices.isEmpty())
        lines.append(tr("Offered: %1 %2").arg(cell.prices, m_of.firms[size_t(firm)].currency));
    if (cell.leadTime)
        lines.append(tr("%n day(s) until it comes", nullptr, *cell.leadTime));
    lines.append(cell.remark);
    lines.append(cell.offerRemarks);
    lines.removeAll({});
    return text::toolTip(lines.join(QLatin1Char('\n')));
}

QVariant offerRows::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    const int firm = firmOf(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return shown(row, index.column());
    case Qt::ToolTipRole:
        return firm >= 0 ? toolTip(row, firm) : text::toolTip(shown(row, index.column()));
    case Qt::TextAlignmentRole:
        return alignment(firm >= 0 || index.column() == needed);
    case Qt::DecorationRole:
        if (firm >= 0 && m_of.firms[size_t(firm)].isExpired)
            return pictureOf("expired");
        return firm >= 0 && m_of.materials[size_t(row)].best == firm ? QVariant(pictureOf("best"))
                                                                     : QVariant();
    case Qt::FontRole: {
        QFont font;
        font.setBold(firm >= 0 && m_chosen.firmOf[size_t(row)] == firm);
        return font;
    }
    default:
        return {};
    }
}

// --- Firms
// ----------------------------------------------------------------------------------------

int offerFirmRows::widthOf(int section)
{
    constexpr int widths[columns] = {150, 95, 170, 100, 110, 110, 95, 70, 120, 130, 220};
    return widths[section];
}

void offerFirmRows::show(std::vector<offerComparison::firm> firms)
{
    beginResetModel();
    m_firms = std::move(firms);
    endResetModel();
}

int offerFirmRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_firms.size());
}

QVariant offerFirmRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section >= offered && section <= gross);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case name:
        return tr("Firm");
    case received:
        return tr("Received");
    case currency:
        return tr("Currency");
    case vat:
        return tr("VAT");
    case leadTime:
        return tr("Lead time");
    case validity:
        return tr("Valid until");
    case offered:
        return tr("Offered");
    case missing:
        return tr("Missing");
    case cost:
        return tr("Net [ PLN ]");
    case gross:
        return tr("With VAT [ PLN ]");
    default:
        return tr("Remarks");
    }
}

QVariant offerFirmRows::data(const QModelIndex &index, int role) const
{
    const offerComparison::firm &of = at(index.row());
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column() >= offered && index.column() <= gross);
    if (role == Qt::DecorationRole && index.column() == validity && of.isExpired)
        return pictureOf("expired");
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const auto shown = [&]() -> QString {
        switch (index.column()) {
        case name:
            return of.name;
        case received:
            return dateOf(of.received);
        case currency:
            return of.currency == QLatin1String("PLN")
                       ? of.currency
                       : QStringLiteral("%1 %2 %3")
                             .arg(of.currency, of.rate.text(), dateOf(of.rateDate))
                             .trimmed();
        case vat:
            return QStringLiteral("%1 %, %2")
                .arg(of.vat.text(), of.isGross ? tr("gross") : tr("net"));
        case leadTime:
            return of.longestLeadTime ? tr("%n day(s)", nullptr, *of.longestLeadTime) : QString();
        case validity:
            return of.isExpired ? tr("%1, expired").arg(dateOf(of.validity)) : dateOf(of.validity);
        case offered:
            return QString::number(of.offered);
        case missing:
            return QString::number(of.missing);
        case cost:
            return money(of.cost);
        case gross:
            return money(of.gross());
        default:
            return of.fault.isEmpty() ? of.remarks : of.fault;
        }
    };
    return role == Qt::DisplayRole ? shown() : text::toolTip(shown());
}

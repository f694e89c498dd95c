#include "orders/offerReport.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "report/html.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace offerReport {

using namespace offerComparison;

namespace {

constexpr int mostDecimals = 6;

constexpr const char *styleRules = R"(
table.lines { border-collapse: collapse; width: 100%; margin-bottom: 12px; }
table.lines th, table.lines td { border: 1px solid #9AA5B1; padding: 3px 5px;
  vertical-align: top; word-wrap: break-word; }
table.lines th { font-size: 11px; background: #E4ECF4; text-align: left; }
table.lines td.number, table.lines th.number { text-align: right; }
td.chosen { background: #E2F0DC; font-weight: bold; }
td.expired { color: #6B7480; }
span.note { font-size: 10px; font-weight: normal; }
tr.total td { font-weight: bold; background: #F2F5F8; })";

QString dayOf(const QDate &date) { return date.toString(labels::dateFormat()); }

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

QString number(const decimal &of) { return numbers::grouped(of.text()); }

QString percent(const decimal &of) { return of.text() + QLatin1String(" %"); }

QString days(const std::optional<int> &of) { return of ? QString::number(*of) : QString(); }

bool isChosen(const content &of, int material, int firm)
{
    return of.chosen.firmOf.size() > size_t(material) && of.chosen.firmOf[size_t(material)] == firm;
}

const cell &cellAt(const content &of, int material, int firm)
{
    return of.compared.materials[size_t(material)].cells[size_t(firm)];
}

QString firmName(const content &of, int firm) { return of.compared.firms[size_t(firm)].name; }

QString nameOf(const orderOffers::need &need)
{
    return need.name.isEmpty() || need.name == need.key ? need.key
                                                        : need.key + QLatin1Char('\n') + need.name;
}

QString chosenCaption(const content &of)
{
    return of.isProposed ? QCoreApplication::translate("offerReport", "Proposed")
                         : QCoreApplication::translate("offerReport", "Chosen");
}

QString missingText(const content &of)
{
    QStringList keys;
    for (const int one : of.chosen.missing)
        keys.append(of.compared.materials[size_t(one)].need.key);
    return keys.join(QLatin1String(", "));
}

QString uncountedText(const content &of)
{
    QStringList numbers;
    for (const int line : of.compared.uncounted)
        numbers.append(QString::number(line + 1));
    return numbers.join(QLatin1String(", "));
}

QString firmsText(const content &of)
{
    QStringList names;
    for (const int one : of.chosen.firms)
        names.append(firmName(of, one));
    return names.join(QLatin1String(", "));
}

// What is said of the whole, above the tables.
std::vector<said> headOf(const content &of)
{
    std::vector<said> all{
        {QCoreApplication::translate("offerReport", "Order"), of.compared.number},
        {QCoreApplication::translate("offerReport", "Date of the order"), of.orderDate},
        {QCoreApplication::translate("offerReport", "Compared on"), dayOf(of.compared.day)}};
    all.push_back(
        {QCoreApplication::translate("offerReport", "Lines without a quantity, not compared"),
         uncountedText(of)});
    if (!of.chosen.firms.empty()) {
        all.push_back({chosenCaption(of), firmsText(of)});
        all.push_back(
            {QCoreApplication::translate("offerReport", "Date of the choice"), dayOf(of.date)});
        all.push_back({QCoreApplication::translate("offerReport", "Chosen by"), of.by});
        all.push_back({QCoreApplication::translate("offerReport", "Reason"), of.reason});
        all.push_back(
            {QCoreApplication::translate("offerReport", "Without an offer"), missingText(of)});
    }
    std::erase_if(all, [](const said &one) { return one.text.isEmpty(); });
    return all;
}

decimal totalOf(const firm &of, int row)
{
    return row == 0 ? of.cost : row == 1 ? of.tax : of.gross();
}

decimal chosenTotal(const selection &of, int row)
{
    return row == 0 ? of.net : row == 1 ? of.tax : of.gross();
}

constexpr int totals = 3;

QString totalCaption(int row)
{
    return row == 0   ? QCoreApplication::translate("offerReport", "Total net [ PLN ]")
           : row == 1 ? QCoreApplication::translate("offerReport", "VAT [ PLN ]")
                      : QCoreApplication::translate("offerReport", "Total gross [ PLN ]");
}

// --- The page

class pageMaker
{
public:
    explicit pageMaker(const content &of)
        : m_of(of)
    {
    }

    QString make()
    {
        m_page.append(html::pageStart(title(m_of), styleRules));
        m_page.append(QLatin1String("<h1>") + text::toHtml(title(m_of))
                      + QLatin1String("</h1>\n<p>"));
        for (const said &one : headOf(m_of))
            m_page.append(text::toHtml(one.caption) + QLatin1String(": <b>")
                          + text::toHtml(one.text) + QLatin1String("</b><br>\n"));
        m_page.append(QLatin1String("</p>\n"));
        writeFirms();
        writeMaterials();
        m_page.append(html::pageEnd());
        return m_page.text();
    }

private:
    void open(const QStringList &captions, int firstNumber)
    {
        m_page.openTable(QStringLiteral("class=\"lines\""));
        m_page.append(QStringLiteral("<col>").repeated(captions.size())
                      + QLatin1String("\n<thead>"));
        m_page.openRow(QStringLiteral("class=\"caption\""));
        for (int i = 0; i < captions.size(); ++i)
            m_page.append(QLatin1String(i >= firstNumber ? "<th class=\"number\">" : "<th>")
                          + text::toHtml(captions[i]) + QLatin1String("</th>\n"));
        m_page.closeRow();
        m_page.append(QStringLiteral("</thead>\n<tbody>\n"));
    }
    void close()
    {
        m_page.append(QStringLiteral("</tbody>\n"));
        m_page.closeTable();
    }
    void plain(const QString &text) { m_page.cell({}, text::toHtml(text)); }
    void right(const QString &text)
    {
        m_page.cell(QStringLiteral("class=\"number\""), text::toHtml(text));
    }

    void writeFirms()
    {
        open({QCoreApplication::translate("offerReport", "Firm"),
              QCoreApplication::translate("offerReport", "Offer"),
              QCoreApplication::translate("offerReport", "Offered"),
              QCoreApplication::translate("offerReport", "Missing"),
              QCoreApplication::translate("offerReport", "Longest lead time"), totalCaption(0),
              totalCaption(1), totalCaption(2)},
             2);
        for (const firm &one : m_of.compared.firms) {
            m_page.openRow(QStringLiteral("class=\"line\""));
            m_page.cell({}, QLatin1String("<b>") + text::toHtml(one.name) + QLatin1String("</b>"));
            QStringList terms;
            for (const said &of : termsOf(one))
                terms.append(text::toHtml(of.caption) + QLatin1String(": ")
                             + text::toHtml(of.text));
            m_page.cell({}, terms.join(QLatin1String("<br>")));
            right(QString::number(one.offered));
            right(QString::number(one.missing));
            right(days(one.longestLeadTime));
            for (int row = 0; row < totals; ++row)
                right(money(totalOf(one, row)));
            m_page.closeRow();
        }
        close();
    }

    void writeMaterials()
    {
        QStringList captions{QCoreApplication::translate("offerReport", "Material"),
                             QCoreApplication::translate("offerReport", "Needed")};
        for (const firm &one : m_of.compared.firms)
            captions.append(one.name);
        captions.append(chosenCaption(m_of));
        open(captions, 2);
        for (int i = 0; i < int(m_of.compared.materials.size()); ++i)
            writeMaterial(i);
        for (int row = 0; row < totals; ++row) {
            m_page.openRow(QStringLiteral("class=\"line total\""));
            plain(totalCaption(row));
            plain({});
            for (const firm &one : m_of.compared.firms)
                right(money(totalOf(one, row)));
            right(m_of.chosen.firms.empty() ? QString() : money(chosenTotal(m_of.chosen, row)));
            m_page.closeRow();
        }
        close();
    }
    void writeMaterial(int place)
    {
        const orderOffers::need &need = m_of.compared.materials[size_t(place)].need;
        m_page.openRow(QStringLiteral("class=\"line\""));
        plain(nameOf(need));
        plain(number(need.quantity) + QLatin1Char(' ') + labels::shown(need.unit));
        QString chosen;
        for (int i = 0; i < int(m_of.compared.firms.size()); ++i) {
            writeCell(place, i);
            if (isChosen(m_of, place, i))
                chosen = firmName(m_of, i) + QLatin1Char('\n') + money(cellAt(m_of, place, i).cost);
        }
        right(chosen.isEmpty() ? QStringLiteral("-") : chosen);
        m_page.closeRow();
    }
    void writeCell(int place, int firm)
    {
        const cell &one = cellAt(m_of, place, firm);
        QString shown;
        if (one.isOffered) {
            const QString mark = markOf(m_of, place, firm);
            if (!mark.isEmpty())
                shown = QLatin1String(isChosen(m_of, place, firm) ? "&#10004; " : "&#9733; ")
                        + text::toHtml(mark) + QLatin1String("<br>");
            shown += text::toHtml(number(one.bought) + QStringLiteral(" × ")
                                  + numbers::grouped(one.price.text(mostDecimals, 2)))
                     + QLatin1String("<br>= ") + text::toHtml(money(one.cost));
            if (one.leadTime)
                shown +=
                    QLatin1String("<br>")
                    + text::toHtml(
                        QCoreApplication::translate("offerReport", "%1 days").arg(*one.leadTime));
        } else {
            shown = text::toHtml(QCoreApplication::translate("offerReport", "not offered"));
        }
        for (const QString &note : {one.remark, one.offerRemarks})
            if (!note.isEmpty())
                shown += QLatin1String("<br><span class=\"note\">") + text::toHtml(note)
                         + QLatin1String("</span>");
        m_page.cell(isChosen(m_of, place, firm) ? QStringLiteral("class=\"number chosen\"")
                    : m_of.compared.firms[size_t(firm)].isExpired
                        ? QStringLiteral("class=\"number expired\"")
                        : QStringLiteral("class=\"number\""),
                    shown);
    }

    const content &m_of;
    html::htmlTable m_page;
};

// --- The table

enum ownColumn
{
    materialColumn,
    nameColumn,
    neededColumn,
    unitColumn,
    chosenColumn,
    ownColumns
};
// Of each firm, behind those.
enum firmColumn
{
    priceColumn,
    boughtColumn,
    costColumn,
    leadColumn,
    markColumn,
    remarkColumn,
    firmColumns
};

// One table for other programs: the materials, the totals, and below them what is said of the
// offers and of the choice.
class tableMaker
{
public:
    explicit tableMaker(const content &of)
        : m_of(of)
        , m_columns(ownColumns + firmColumns * int(of.compared.firms.size()))
    {
        for (int i = 0; i < int(of.compared.materials.size()); ++i)
            addMaterial(i);
        addTotals();
        m_rows.append(fresh({}));
        for (const said &one : headOf(of))
            m_rows.append(fresh({one.caption, one.text}));
        m_rows.append(fresh({}));
        addTerms();
    }

    tableFile::content table() const
    {
        tableFile::content table;
        table.sheet = QCoreApplication::translate("offerReport", "Offers");
        table.captions = QStringList{labels::ktm(), labels::name(),
                                     QCoreApplication::translate("offerReport", "Needed"),
                                     labels::unit(), chosenCaption(m_of)};
        table.numbers = {neededColumn};
        for (int i = 0; i < int(m_of.compared.firms.size()); ++i) {
            for (const QString &one :
                 {QCoreApplication::translate("offerReport", "unit price [ PLN ]"),
                  QCoreApplication::translate("offerReport", "quantity"),
                  QCoreApplication::translate("offerReport", "cost [ PLN ]"),
                  QCoreApplication::translate("offerReport", "lead time [ days ]"),
                  QCoreApplication::translate("offerReport", "mark"),
                  QCoreApplication::translate("offerReport", "remarks")})
                table.captions.append(firmName(m_of, i) + QLatin1String(": ") + one);
            for (const firmColumn one : {priceColumn, boughtColumn, costColumn, leadColumn})
                table.numbers.append(columnOf(i, one));
        }
        table.rows = m_rows.size();
        table.cells = [rows = m_rows](int row) { return rows[row]; };
        return table;
    }

private:
    static int columnOf(int firm, firmColumn which)
    {
        return ownColumns + firm * firmColumns + which;
    }
    QStringList fresh(const QStringList &first) const
    {
        QStringList row = first;
        while (row.size() < m_columns)
            row.append(QString());
        return row;
    }
    void addMaterial(int place)
    {
        const orderOffers::need &need = m_of.compared.materials[size_t(place)].need;
        QStringList row =
            fresh({need.key, need.name, need.quantity.text(), labels::shown(need.unit)});
        for (int i = 0; i < int(m_of.compared.firms.size()); ++i) {
            const cell &one = cellAt(m_of, place, i);
            if (one.isOffered) {
                row[columnOf(i, priceColumn)] = one.price.text(mostDecimals, 2);
                row[columnOf(i, boughtColumn)] = one.bought.text();
                row[columnOf(i, costColumn)] = one.cost.text();
                row[columnOf(i, leadColumn)] = days(one.leadTime);
                row[columnOf(i, markColumn)] = markOf(m_of, place, i);
            } else {
                row[columnOf(i, markColumn)] =
                    QCoreApplication::translate("offerReport", "not offered");
            }
            QStringList notes{one.remark, one.offerRemarks};
            notes.removeAll({});
            row[columnOf(i, remarkColumn)] = notes.join(QLatin1String("; "));
            if (isChosen(m_of, place, i))
                row[chosenColumn] = firmName(m_of, i);
        }
        m_rows.append(row);
    }
    void addTotals()
    {
        for (int line = 0; line < totals; ++line) {
            QStringList row = fresh({totalCaption(line)});
            if (!m_of.chosen.firms.empty())
                row[chosenColumn] = chosenTotal(m_of.chosen, line).money();
            for (int i = 0; i < int(m_of.compared.firms.size()); ++i)
                row[columnOf(i, costColumn)] =
                    totalOf(m_of.compared.firms[size_t(i)], line).money();
            m_rows.append(row);
        }
    }
    void addTerms()
    {
        for (const firm &one : m_of.compared.firms) {
            m_rows.append(fresh({one.name}));
            for (const said &of : termsOf(one))
                m_rows.append(fresh({of.caption, of.text}));
        }
    }

    const content &m_of;
    int m_columns;
    QVector<QStringList> m_rows;
};

} // namespace

content contentOf(const comparison &compared, const selection &chosen,
                  const kiv_mat_zpStruct &order, const kiv_mat_offersStruct &offers)
{
    content result;
    result.compared = compared;
    result.chosen = chosen;
    result.orderDate = order.options.value(optionKey::orderDate);
    result.isProposed =
        offers.choices.empty() || chosenBefore(compared, offers).firmOf != chosen.firmOf;
    if (result.isProposed)
        return result;
    for (const auto &choice : offers.choices) {
        const QDate date = orderOffers::readDate(choice->date);
        if (result.date.isValid() && date < result.date)
            continue;
        result.date = date;
        result.by = choice->by;
        result.reason = choice->reason;
    }
    return result;
}

QString title(const content &of)
{
    return QCoreApplication::translate("offerReport", "Comparison of offers %1")
        .arg(of.compared.number)
        .trimmed();
}

QString markOf(const content &of, int material, int firm)
{
    QStringList words;
    if (isChosen(of, material, firm))
        words.append(of.isProposed ? QCoreApplication::translate("offerReport", "proposed")
                                   : QCoreApplication::translate("offerReport", "chosen"));
    if (cellAt(of, material, firm).isBest)
        words.append(QCoreApplication::translate("offerReport", "best"));
    return words.join(QLatin1String(", "));
}

std::vector<said> termsOf(const firm &of)
{
    const bool isHome = of.currency == QLatin1String("PLN");
    const QString rate = isHome ? of.currency
                         : of.rateDate.isValid()
                             ? QCoreApplication::translate("offerReport", "%1, at %2 PLN of %3")
                                   .arg(of.currency, of.rate.text(), dayOf(of.rateDate))
                             : QCoreApplication::translate("offerReport", "%1, at %2 PLN")
                                   .arg(of.currency, of.rate.text());
    std::vector<said> all{
        {QCoreApplication::translate("offerReport", "Tax number"), of.nip},
        {QCoreApplication::translate("offerReport", "Request"), of.request},
        {QCoreApplication::translate("offerReport", "Received"), dayOf(of.received)},
        {QCoreApplication::translate("offerReport", "Currency"),
         of.fault.isEmpty() ? rate : of.currency},
        {QCoreApplication::translate("offerReport", "Prices"),
         of.isGross ? QCoreApplication::translate("offerReport", "gross")
                    : QCoreApplication::translate("offerReport", "net")},
        {QCoreApplication::translate("offerReport", "VAT"),
         of.isVatDefault
             ? QCoreApplication::translate("offerReport", "%1 (not said)").arg(percent(of.vat))
             : percent(of.vat)},
        {QCoreApplication::translate("offerReport", "Lead time"),
         of.leadTime ? QCoreApplication::translate("offerReport", "%1 days").arg(*of.leadTime)
                     : QString()},
        {QCoreApplication::translate("offerReport", "Valid until"),
         of.isExpired
             ? QCoreApplication::translate("offerReport", "%1 (expired)").arg(dayOf(of.validity))
             : dayOf(of.validity)},
        {QCoreApplication::translate("offerReport", "Remarks"), of.remarks},
        {QCoreApplication::translate("offerReport", "File"), of.file},
        {QCoreApplication::translate("offerReport", "Not counted"), of.fault}};
    std::erase_if(all, [](const said &one) { return one.text.isEmpty(); });
    return all;
}

QString page(const content &of) { return pageMaker(of).make(); }

tableFile::result write(const content &of, const QString &path, QString *fault,
                        const progressFunction &progress)
{
    return tableFile::write(tableMaker(of).table(), path, fault, progress);
}

QString proposedPath(const QString &orderPath)
{
    const QFileInfo file(orderPath);
    return file.absolutePath() + QLatin1Char('/') + file.completeBaseName()
           + QLatin1String("_offers.html");
}

} // namespace offerReport

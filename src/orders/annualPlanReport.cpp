#include "orders/annualPlanReport.h"

#include "report/html.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"
#include "util/workbook.h"

#include <QCoreApplication>
#include <QStandardPaths>

namespace annualPlanReport {

using namespace annualPlan;

namespace {

constexpr const char *styleRules = R"(
table.lines { border-collapse: collapse; width: 100%; }
table.lines th, table.lines td { border: 1px solid #9AA5B1; padding: 3px 5px;
  vertical-align: top; word-wrap: break-word; }
table.lines th { font-size: 11px; background: #E4ECF4; text-align: left; }
table.lines td.number, table.lines th.number { text-align: right; white-space: nowrap; }
tr.total td { font-weight: bold; background: #F2F5F8; }
tr.above td { background: #FBE3E0; }
tr.almost td { background: #FCF7D9; })";

QString tr(const char *text) { return QCoreApplication::translate("annualPlanReport", text); }

QString counted(const char *text, int number)
{
    return QCoreApplication::translate("annualPlanReport", text, nullptr, number);
}

QString money(const decimal &amount) { return numbers::grouped(amount.money()); }

bool isMoney(column which)
{
    return which == estimatedColumn || which == orderedColumn || which == restColumn
           || which == thresholdColumn;
}

QString sumCell(const sums &of, column which)
{
    switch (which) {
    case estimatedColumn:
        return of.estimated.money();
    case orderedColumn:
        return of.ordered.money();
    case restColumn:
        return of.rest().money();
    case linesColumn:
        return QString::number(of.lines);
    case ordersColumn:
        return QString::number(of.orders);
    case leftOutColumn:
        return of.leftOut > 0 ? QString::number(of.leftOut) : QString();
    default:
        return {};
    }
}

// The word alone would be overlooked among many rows.
QString markOf(standing state)
{
    return state == standing::above    ? QStringLiteral("&#9650; ")
           : state == standing::almost ? QStringLiteral("&#9651; ")
                                       : QString();
}

QString classOf(standing state)
{
    return state == standing::above    ? QStringLiteral("class=\"line above\"")
           : state == standing::almost ? QStringLiteral("class=\"line almost\"")
                                       : QStringLiteral("class=\"line\"");
}

struct captionOf
{
    QString text;
    bool isNumber = false;
};

// The beginning of a table that the printer parts between its lines.
void openLines(html::htmlTable &page, const std::vector<captionOf> &captions)
{
    page.openTable(QStringLiteral("class=\"lines\""));
    page.append(QStringLiteral("<col>").repeated(int(captions.size()))
                + QLatin1String("\n<thead>"));
    page.openRow(QStringLiteral("class=\"caption\""));
    for (const captionOf &one : captions)
        page.append(QLatin1String(one.isNumber ? "<th class=\"number\">" : "<th>")
                    + text::toHtml(one.text) + QLatin1String("</th>\n"));
    page.closeRow();
    page.append(QStringLiteral("</thead>\n<tbody>\n"));
}

void closeLines(html::htmlTable &page)
{
    page.append(QStringLiteral("</tbody>\n"));
    page.closeTable();
}

void writeCell(html::htmlTable &page, const QString &content, bool isNumber)
{
    page.cell(isNumber ? QStringLiteral("class=\"number\"") : QString(), content);
}

void writeSums(html::htmlTable &page, const plan &of)
{
    std::vector<captionOf> captions;
    for (int i = 0; i < columns; ++i)
        captions.push_back({caption(column(i), of.what.by), isNumber(column(i))});
    openLines(page, captions);
    for (const row &one : of.rows) {
        page.openRow(classOf(one.state));
        for (int i = 0; i < columns; ++i)
            writeCell(page,
                      (i == stateColumn ? markOf(one.state) : QString())
                          + text::toHtml(shown(cell(one, column(i), of.total), column(i))),
                      isNumber(column(i)));
        page.closeRow();
    }
    page.openRow(QStringLiteral("class=\"line total\""));
    for (int i = 0; i < columns; ++i)
        writeCell(page, text::toHtml(shown(totalCell(of.total, column(i)), column(i))),
                  isNumber(column(i)));
    page.closeRow();
    closeLines(page);
}

void writeCategories(html::htmlTable &page, const plan &of)
{
    if (of.categories.empty())
        return;
    page.append(QLatin1String("<h2>") + text::toHtml(tr("Thresholds")) + QLatin1String("</h2>\n"));
    openLines(page, {{labels::cpv()},
                     {caption(estimatedColumn, of.what.by), true},
                     {caption(thresholdColumn, of.what.by), true},
                     {caption(stateColumn, of.what.by)}});
    for (const category &one : of.categories) {
        page.openRow(classOf(one.state()));
        writeCell(page, text::toHtml(one.digits), false);
        writeCell(page, money(one.of.estimated), true);
        writeCell(page, money(one.threshold), true);
        writeCell(page, markOf(one.state()) + text::toHtml(stateText(one.state())), false);
        page.closeRow();
    }
    closeLines(page);
}

QStringList withoutCodeCaptions()
{
    return {tr("Order"), tr("Line"), labels::ktm(), labels::name(), labels::cpv()};
}

QStringList withoutCodeCells(const lineWithoutCode &of)
{
    return {of.order, QString::number(of.line + 1), of.ktm, of.name, of.cpv};
}

void writeWithoutCode(html::htmlTable &page, const plan &of)
{
    if (of.withoutCode.empty())
        return;
    page.append(QLatin1String("<h2>") + text::toHtml(tr("Lines without a CPV code"))
                + QLatin1String("</h2>\n"));
    std::vector<captionOf> captions;
    for (const QString &one : withoutCodeCaptions())
        captions.push_back({one});
    openLines(page, captions);
    for (const lineWithoutCode &one : of.withoutCode) {
        page.openRow(QStringLiteral("class=\"line\""));
        for (const QString &content : withoutCodeCells(one))
            writeCell(page, text::toHtml(content), false);
        page.closeRow();
    }
    closeLines(page);
}

QString dayOf(const QDate &date) { return date.toString(labels::dateFormat()); }

// --- Tables

tableFile::content tableOf(const plan &of)
{
    tableFile::content table;
    table.sheet = tr("Plan");
    for (int i = 0; i < columns; ++i) {
        table.captions.append(caption(column(i), of.what.by));
        if (isNumber(column(i)))
            table.numbers.append(i);
    }
    table.rows = int(of.rows.size()) + 1;
    table.cells = [&of](int number) {
        QStringList cells;
        for (int i = 0; i < columns; ++i)
            cells.append(number < int(of.rows.size())
                             ? cell(of.rows[size_t(number)], column(i), of.total)
                             : totalCell(of.total, column(i)));
        return cells;
    };
    return table;
}

// A workbook of several tables, each on its sheet below some lines of text.
class sheets
{
public:
    bool begin(const QString &name, const QStringList &texts)
    {
        m_row = 0;
        if (!m_book.addSheet(name))
            return false;
        for (const QString &text : texts)
            if (!m_book.write(++m_row, 1, text))
                return false;
        m_row += texts.isEmpty() ? 0 : 1;
        return true;
    }
    // numbers: the columns whose texts are numbers.
    bool add(const QStringList &cells, const QVector<int> &numbers = {})
    {
        ++m_row;
        for (int i = 0; i < cells.size(); ++i) {
            bool isNumber = false;
            const double number = numbers.contains(i) ? cells.at(i).toDouble(&isNumber) : 0;
            if (!(isNumber ? m_book.write(m_row, i + 1, number)
                           : m_book.write(m_row, i + 1, cells.at(i))))
                return false;
        }
        return true;
    }
    workbook &book() { return m_book; }

private:
    workbook m_book;
    int m_row = 0;
};

bool addPlan(sheets &to, const plan &of, const QDate &made)
{
    const tableFile::content table = tableOf(of);
    if (!to.begin(table.sheet,
                  QStringList{title(of), groupingText(of.what), tr("Made on %1").arg(dayOf(made))}
                      + leftOut(of))
        || !to.add(table.captions))
        return false;
    for (int i = 0; i < table.rows; ++i)
        if (!to.add(table.cells(i), table.numbers))
            return false;
    return true;
}

bool addCategories(sheets &to, const plan &of)
{
    if (of.categories.empty())
        return true;
    if (!to.begin(tr("Thresholds"), {})
        || !to.add({labels::cpv(), caption(estimatedColumn, of.what.by),
                    caption(thresholdColumn, of.what.by), caption(stateColumn, of.what.by)}))
        return false;
    for (const category &one : of.categories)
        if (!to.add({one.digits, one.of.estimated.money(), one.threshold.money(),
                     stateText(one.state())},
                    {1, 2}))
            return false;
    return true;
}

bool addWithoutCode(sheets &to, const plan &of)
{
    if (of.withoutCode.empty())
        return true;
    if (!to.begin(tr("Without CPV"), {}) || !to.add(withoutCodeCaptions()))
        return false;
    for (const lineWithoutCode &one : of.withoutCode)
        if (!to.add(withoutCodeCells(one), {1}))
            return false;
    return true;
}

} // namespace

// --- Cells
// ----------------------------------------------------------------------------------------

QString caption(column which, grouping by)
{
    switch (which) {
    case nameColumn:
        return by == grouping::target  ? labels::target()
               : by == grouping::firm  ? labels::supplier()
               : by == grouping::group ? tr("CPV group")
                                       : labels::cpv();
    case estimatedColumn:
        return tr("Estimated [ PLN ]");
    case orderedColumn:
        return tr("Ordered [ PLN ]");
    case restColumn:
        return tr("Rest [ PLN ]");
    case shareColumn:
        return tr("Share [ % ]");
    case linesColumn:
        return tr("Lines");
    case ordersColumn:
        return tr("Orders");
    case leftOutColumn:
        return tr("Left out");
    case thresholdColumn:
        return tr("Threshold [ PLN ]");
    case stateColumn:
        return tr("Of the threshold");
    default:
        return {};
    }
}

bool isNumber(column which) { return which != nameColumn && which != stateColumn; }

QString cell(const row &of, column which, const sums &total)
{
    switch (which) {
    case nameColumn:
        return nameOf(of);
    case shareColumn:
        return shareOf(of, total);
    case thresholdColumn:
        return of.threshold ? of.threshold->money() : QString();
    case stateColumn:
        // Categories that are not the row itself are named.
        return of.threshold || of.worst.isEmpty()
                   ? stateText(of.state)
                   : stateText(of.state) + QLatin1String(" (") + of.worst.join(QLatin1String(", "))
                         + QLatin1Char(')');
    default:
        return sumCell(of.of, which);
    }
}

QString totalCell(const sums &total, column which)
{
    return which == nameColumn ? tr("Total") : sumCell(total, which);
}

QString shown(const QString &cell, column which)
{
    return isMoney(which) ? numbers::grouped(cell) : cell;
}

QString stateText(standing state)
{
    switch (state) {
    case standing::below:
        return tr("below");
    case standing::almost:
        return tr("80 % reached");
    case standing::above:
        return tr("above");
    default:
        return {};
    }
}

QStringList reached(const plan &of, standing state)
{
    QStringList all;
    for (const category &one : of.categories)
        if (one.state() == state)
            all.append((state == standing::above
                            ? tr("CPV %1: %2 PLN, above the threshold of %3 PLN")
                            : tr("CPV %1: %2 PLN, near the threshold of %3 PLN"))
                           .arg(one.digits, money(one.of.estimated), money(one.threshold)));
    return all;
}

QStringList leftOut(const plan &of)
{
    QStringList all;
    if (of.total.leftOut > 0)
        all.append(
            counted(QT_TRANSLATE_N_NOOP(
                        "annualPlanReport",
                        "%n line(s) whose price or quantity is no number are not in the sums"),
                    of.total.leftOut));
    if (of.parted > 0)
        all.append(counted(QT_TRANSLATE_N_NOOP("annualPlanReport",
                                               "%n order(s) with one for each firm in their "
                                               "place are not in the sums"),
                           of.parted));
    return all;
}

QString lineText(const lineWithoutCode &of)
{
    const QString name = of.name.isEmpty() ? of.ktm : of.name;
    const QString line = tr("%1, line %2: %3").arg(of.order, QString::number(of.line + 1), name);
    return (of.cpv.isEmpty() ? line : tr("%1 (not a CPV code: %2)").arg(line, of.cpv)).simplified();
}

// --- Pages and files
// ------------------------------------------------------------------------------

QString title(const plan &of) { return tr("Annual plan of purchases %1").arg(of.what.year); }

QString groupingText(const question &what)
{
    switch (what.by) {
    case grouping::cpv:
        return tr("Sums by CPV code");
    case grouping::group:
        return tr("Sums by CPV group, the first %1 digits").arg(what.digits);
    case grouping::target:
        return tr("Sums by target");
    default:
        return tr("Sums by supplier");
    }
}

QString page(const plan &of, const QDate &made)
{
    html::htmlTable page;
    page.append(html::pageStart(title(of), styleRules));
    page.append(QLatin1String("<h1>") + text::toHtml(title(of)) + QLatin1String("</h1>\n<p>")
                + text::toHtml(groupingText(of.what)) + QLatin1String("<br>")
                + text::toHtml(tr("Made on %1").arg(dayOf(made))) + QLatin1String("</p>\n"));
    for (const QString &one : reached(of, standing::above))
        page.append(QLatin1String("<p>") + markOf(standing::above) + QLatin1String("<b>")
                    + text::toHtml(one) + QLatin1String("</b></p>\n"));
    for (const QString &one : reached(of, standing::almost))
        page.append(QLatin1String("<p>") + markOf(standing::almost) + text::toHtml(one)
                    + QLatin1String("</p>\n"));
    writeSums(page, of);
    for (const QString &one : leftOut(of))
        page.append(QLatin1String("<p>") + text::toHtml(one) + QLatin1String("</p>\n"));
    writeCategories(page, of);
    writeWithoutCode(page, of);
    page.append(html::pageEnd());
    return page.text();
}

tableFile::result write(const plan &of, const QString &path, QString *fault,
                        const progressFunction &progress, const QDate &made)
{
    if (path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        return tableFile::write(tableOf(of), path, fault, progress);
    sheets all;
    const bool good = addPlan(all, of, made) && addCategories(all, of) && addWithoutCode(all, of)
                      && all.book().saveAs(path, progress);
    *fault = good ? QString() : all.book().error();
    return good                       ? tableFile::written
           : all.book().isCancelled() ? tableFile::cancelled
                                      : tableFile::failed;
}

QString proposedPath(const plan &of)
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
           + QStringLiteral("/plan_%1.html").arg(of.what.year);
}

} // namespace annualPlanReport

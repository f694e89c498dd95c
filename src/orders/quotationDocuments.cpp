#include "orders/quotationDocuments.h"

#include "orders/quotationForm.h"
#include "report/html.h"
#include "util/text.h"
#include "util/workbook.h"

#include <algorithm>

namespace quotationDocuments {

using namespace quotationForm;

namespace {

constexpr const char *styleRules = R"(
table.entries td { padding: 2px 16px 2px 0; vertical-align: top; }
table.lines { border-collapse: collapse; width: 100%; margin-top: 12px; }
table.lines th, table.lines td { border: 1px solid #9AA5B1; padding: 3px 5px;
  vertical-align: top; word-wrap: break-word; }
table.lines th { font-size: 11px; background: #E4ECF4; text-align: left; }
table.lines td.number, table.lines th.number { text-align: right; white-space: nowrap; }
table.lines td.key { white-space: nowrap; })";

// Numbers are typed from paper, and are not to be broken; names may stand in their place.
constexpr int longestUnbroken = 30;

// Firms read it in other countries: the form of dates is not the user's.
QString dayOf(const QDate &date) { return date.toString(QStringLiteral("dd.MM.yyyy")); }

QString valueOf(const content &of, entry which)
{
    switch (which) {
    case request:
        return of.number;
    case customer:
        return of.customer;
    case deadline:
        return dayOf(of.deadline);
    case firm:
        return of.firm;
    default:
        return {};
    }
}

QString valueOf(const material &of, int place, column which)
{
    switch (which) {
    case ordinal:
        return QString::number(place + 1);
    case key:
        return of.key;
    case name:
        return of.name;
    case partNumbers:
        return of.partNumbers;
    case quantity:
        return of.quantity.text();
    case unit:
        return of.unit;
    case ourDate:
        return dayOf(of.wait);
    default:
        return {};
    }
}

QString classOf(column which)
{
    return isNumber(which) ? QStringLiteral("class=\"number\"") : QString();
}

void writeEntries(html::htmlTable &page, const content &of)
{
    page.openTable(QStringLiteral("class=\"entries\""));
    for (int i = 0; i < entryCount; ++i) {
        const QString value = valueOf(of, entry(i));
        if (value.isEmpty())
            continue;
        page.openRow();
        page.cell({}, text::toHtml(captionOf(entry(i), of.language)));
        page.cell({}, QLatin1String("<b>") + text::toHtml(value) + QLatin1String("</b>"));
        page.closeRow();
    }
    page.closeTable();
}

// What the firm fills in is in the table alone; on paper there is no room for it.
void writeMaterials(html::htmlTable &page, const content &of)
{
    page.openTable(QStringLiteral("class=\"lines\""));
    page.append(QStringLiteral("<col>").repeated(price) + QLatin1String("\n<thead>"));
    page.openRow(QStringLiteral("class=\"caption\""));
    for (int i = 0; i < price; ++i)
        page.append(QStringLiteral("<th %1>").arg(classOf(column(i)))
                    + text::toHtml(captionOf(column(i), of.language)) + QLatin1String("</th>\n"));
    page.closeRow();
    page.append(QStringLiteral("</thead>\n<tbody>\n"));
    int place = 0;
    for (const material &one : of.materials) {
        page.openRow(QStringLiteral("class=\"line\""));
        for (int i = 0; i < price; ++i)
            page.cell(i == key && one.key.size() <= longestUnbroken
                          ? QStringLiteral("class=\"key\"")
                          : classOf(column(i)),
                      text::toHtml(valueOf(one, place, column(i))));
        page.closeRow();
        ++place;
    }
    page.append(QStringLiteral("</tbody>\n"));
    page.closeTable();
}

// As wide as what is in it, so that no text is cut by the cell beside it.
void setWidths(workbook *book, const content &of)
{
    constexpr int narrowest = 9;
    constexpr int widest = 48;
    for (int i = 0; i < columnCount; ++i) {
        int longest = captionOf(column(i), of.language).size();
        for (int one = 0; i + 1 == captionColumn && one < entryCount; ++one)
            longest = std::max(longest, captionOf(entry(one), of.language).size());
        for (int one = 0; one < int(of.materials.size()); ++one)
            longest = std::max(longest, valueOf(of.materials[size_t(one)], one, column(i)).size());
        book->setWidth(i + 1, std::clamp(longest + 1, narrowest, widest));
    }
}

bool writeCells(workbook &book, const content &of)
{
    if (!book.addSheet(textOf(quotationForm::title, of.language)))
        return false;
    int row = 0;
    for (int i = 0; i < entryCount; ++i) {
        ++row;
        if (!book.write(row, captionColumn, captionOf(entry(i), of.language))
            || !book.write(row, valueColumn, valueOf(of, entry(i))))
            return false;
    }
    row += 2;
    if (!book.write(row, captionColumn, textOf(fillIn, of.language)))
        return false;
    ++row;
    for (int i = 0; i < columnCount; ++i)
        if (!book.write(row, i + 1, captionOf(column(i), of.language)))
            return false;
    int place = 0;
    for (const material &one : of.materials) {
        ++row;
        for (int i = 0; i < columnCount; ++i) {
            const QString value = valueOf(one, place, column(i));
            const bool isCount = isNumber(column(i)) && !value.isEmpty();
            if (!(isCount ? book.write(row, i + 1, value.toDouble())
                          : book.write(row, i + 1, value)))
                return false;
        }
        ++place;
    }
    setWidths(&book, of);
    return true;
}

} // namespace

QString title(const content &of)
{
    return textOf(quotationForm::title, of.language) + QLatin1Char(' ') + of.number;
}

QString page(const content &of)
{
    html::htmlTable page;
    page.append(html::pageStart(title(of), styleRules));
    page.append(QLatin1String("<h1>") + text::toHtml(textOf(quotationForm::title, of.language))
                + QLatin1String("</h1>\n"));
    writeEntries(page, of);
    writeMaterials(page, of);
    page.append(html::pageEnd());
    return page.text();
}

bool writeTable(const content &of, const QString &path, QString *fault)
{
    workbook book;
    if (writeCells(book, of) && book.saveAs(path))
        return true;
    *fault = book.error();
    return false;
}

QString messagePage(const QString &subject, const QString &text)
{
    return html::pageStart(subject, "") + QLatin1String("<p>") + text::toHtml(text)
           + QLatin1String("</p>\n") + html::pageEnd();
}

} // namespace quotationDocuments

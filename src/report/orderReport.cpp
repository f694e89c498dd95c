#include "report/orderReport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/lineSums.h"
#include "data/vocabulary.h"
#include "report/html.h"
#include "report/sourceNames.h"
#include "util/cleanHtml.h"
#include "util/labels.h"
#include "util/text.h"

#include <QCoreApplication>

namespace {

constexpr const char *lineColour = "#9AA5B1";

// Sized for a page of 1200 pixels' width: the printer maps them to the width of A4 landscape. The
// table's layout is fixed, so that a long word breaks instead of pushing columns off the paper.
constexpr const char *styleSheet = R"(
table.head { width: 100%; border-collapse: collapse; margin-bottom: 12px; }
table.head td { padding: 2px 6px; }
table.lines { width: 100%; table-layout: fixed; border-collapse: collapse; }
table.lines td { border: 1px solid #9AA5B1; padding: 4px 5px; vertical-align: top;
  word-wrap: break-word; }
table.lines tr.caption td { background: #E4ECF4; font-weight: bold; text-align: center;
  font-size: 12px; vertical-align: middle; }
table.lines tr.group td { background: #C9D8E8; font-weight: bold; text-align: center; }
table.lines td.number { text-align: right; }
table.lines td.middle { text-align: center; }
td.office { background: #FAFBFC; }
table.sums { margin: 10px 0 0 auto; border-collapse: collapse; }
table.sums td { padding: 2px 6px; font-size: 15px; text-align: right; }
)";

struct column
{
    const char *width;
    QString caption;
    QString note;
};

// The columns that the author fills in, and behind them those of the purchasing office.
constexpr int authorColumns = 5;

QList<column> columns()
{
    return {{"5%", labels::ordinalNumber(), {}},
            {"33%", labels::materialColumn(), {}},
            {"8%", labels::numberQuantity().trimmed(), labels::quantityHint()},
            {"10%", labels::targetNumber(), labels::targetMask()},
            {"8%", labels::date(), labels::dateHint()},
            {"9%", labels::delivery(), labels::orderNumberDate()},
            {"9%", labels::invoice(), labels::invoiceNumberDate()},
            {"11%", labels::attentions(), {}},
            {"7%", labels::signature().trimmed(), {}}};
}

QString note(const QString &escaped)
{
    return QLatin1String("<span class=\"note\">") + escaped + QLatin1String("</span>");
}

QString optionText(const kiv_mat_zpStruct &order, const QString &key)
{
    const optionStruct *option = order.options.findOption(key);
    if (!option)
        return {};
    QString shown = text::toHtml(option->value1);
    if (!option->value2.isEmpty())
        shown += QLatin1Char(' ') + note(text::toHtml(option->value2));
    return shown;
}

void writeHeader(html::htmlTable &page, const kiv_mat_zpStruct &order)
{
    page.append(QLatin1String("<h1>") + labels::deliveryOrder().toHtmlEscaped()
                + QLatin1String("</h1>\n"));
    page.openTable(QStringLiteral("class=\"head\""));
    page.labelRow(labels::orderNumberDate(), text::toHtml(orderTitle(order)));
    page.labelRow(labels::target(), optionText(order, optionKey::orderTarget));
    page.separatorRow(2, QLatin1String(lineColour));
    page.labelRow(labels::author(), optionText(order, optionKey::personAuthor));
    page.labelRow(labels::approved(), optionText(order, optionKey::personApproved));
    page.labelRow(labels::contracor(), optionText(order, optionKey::personContractor));
    page.closeTable();
}

void writeCaptions(html::htmlTable &page, const QList<column> &table)
{
    for (const column &c : table)
        page.append(QStringLiteral("<col style=\"width:%1\">").arg(QLatin1String(c.width)));
    page.append(QStringLiteral("\n<thead>"));
    page.openRow(QStringLiteral("class=\"group\""));
    const auto group = [&page](int span, const QString &who) {
        page.cell(QStringLiteral("colspan=\"%1\"").arg(span),
                  (labels::fillBy() + QLatin1String(": ") + who).toHtmlEscaped());
    };
    group(authorColumns, labels::theAuthorOfOrder());
    group(table.size() - authorColumns, labels::contracor());
    page.closeRow();
    page.openRow(QStringLiteral("class=\"caption\""));
    for (const column &c : table) {
        QString content = c.caption.toHtmlEscaped();
        if (!c.note.isEmpty())
            content += QLatin1String("<br>") + note(c.note.toHtmlEscaped());
        page.cell({}, content);
    }
    page.closeRow();
    page.append(QStringLiteral("</thead>\n<tbody>\n"));
}

template <class List>
QString sources(const QString &caption, const List &list)
{
    const QString names = sourceNames(list);
    return names.isEmpty() ? QString()
                           : QLatin1String("<br>") + note(caption + QLatin1String(": ")) + names;
}

QString materialCell(const orderItemStruct &item, const ktmIndex &materials,
                     const QString &manufacturersCaption, const QString &suppliersCaption,
                     const QString &ktmCaption, const QString &rohsCaption)
{
    QString content = QLatin1String("<b>") + text::toHtml(item.name) + QLatin1String("</b>");
    if (!item.description.isEmpty())
        content += QLatin1String("<br>") + text::toHtml(item.description);
    content += QLatin1String("<br>") + note(ktmCaption) + text::toHtml(item.ktm)
               + QLatin1String(" &nbsp; ") + note(rohsCaption)
               + text::toHtml(labels::shown(item.rohsRequired));
    if (const ktmIndex::entry *known = materials.find(item.ktm)) {
        content += sources(manufacturersCaption, known->material->manufacturers);
        content += sources(suppliersCaption, known->material->suppliers);
    }
    return content;
}

void writeLines(html::htmlTable &page, const kiv_mat_zpStruct &order, const ktmIndex &materials)
{
    const QString manufacturersCaption = labels::manufacturers().toHtmlEscaped();
    const QString suppliersCaption = labels::suppliers().toHtmlEscaped();
    const QString ktmCaption = labels::ktm() + QLatin1String(": ");
    const QString rohsCaption = labels::rohs() + QLatin1String(": ");
    const QString number = QStringLiteral("class=\"number\"");
    const QString middle = QStringLiteral("class=\"middle\"");
    const QString office = QStringLiteral("class=\"office\"");
    const QString plain;

    int ordinal = 0;
    for (const auto &item : order.orderItems.items) {
        page.openRow(QStringLiteral("class=\"line\""));
        page.cell(number, QString::number(++ordinal));
        page.cell(plain, materialCell(*item, materials, manufacturersCaption, suppliersCaption,
                                      ktmCaption, rohsCaption));
        page.cell(number, text::toHtml(item->quantity) + QLatin1Char(' ')
                              + text::toHtml(labels::shown(item->unit)));
        page.cell(middle, text::toHtml(item->target));
        page.cell(middle, text::toHtml(item->wait));
        page.cell(office, text::toHtml(item->delivery));
        page.cell(office, text::toHtml(item->invoice));
        page.cell(office, text::toHtml(item->attentions));
        page.cell(office, {});
        page.closeRow();
    }
}

void writeSums(html::htmlTable &page, const kiv_mat_zpStruct &order, const QString &vat)
{
    const lineSums sums = sumsOf(order);
    page.openTable(QStringLiteral("class=\"sums\""));
    const auto row = [&page](const QString &caption, const lineSum &sum) {
        page.openRow();
        page.cell({}, caption.toHtmlEscaped());
        page.cell({}, QLatin1String("<b>") + sum.money() + QLatin1String("</b> [ PLN ]"));
        // A cell of its own, so that the amounts stay below each other.
        page.cell(QStringLiteral("style=\"text-align:left\""), note(sum.note().toHtmlEscaped()));
        page.closeRow();
    };
    row(labels::sumPrice(), sums.price);
    if (const auto rate = readVat(vat)) {
        lineSum tax;
        tax.amount = vatOf(sums.price.amount, *rate);
        row(QCoreApplication::translate("orderReport", "VAT %1 %:").arg(rate->text()), tax);
        tax.amount += sums.price.amount;
        row(QCoreApplication::translate("orderReport", "Sum with VAT:"), tax);
    }
    row(labels::sumAveragePrice(), sums.averagePrice);
    page.closeTable();
}

} // namespace

QString orderTitle(const kiv_mat_zpStruct &order)
{
    return order.options.value(optionKey::orderNumber) + QLatin1String(" / ")
           + order.options.value(optionKey::orderDate);
}

QString orderReport(const kiv_mat_zpStruct &order, const ktmIndex &materials, const QString &vat)
{
    html::htmlTable page;
    page.reserve(4096 + int(order.orderItems.items.size()) * 1024);
    page.append(html::pageStart(orderTitle(order), styleSheet));
    writeHeader(page, order);
    page.openTable(QStringLiteral("class=\"lines\""));
    writeCaptions(page, columns());
    writeLines(page, order, materials);
    page.append(QStringLiteral("</tbody>\n"));
    page.closeTable();
    writeSums(page, order, vat);
    const QString attentions = cleanHtml(order.attentions);
    if (!attentions.isEmpty())
        page.append(QLatin1String("<h2>") + labels::attentions().toHtmlEscaped()
                    + QLatin1String("</h2>\n") + attentions);
    page.append(html::pageEnd());
    return page.text();
}

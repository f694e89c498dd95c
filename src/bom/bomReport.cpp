#include "bom/bomReport.h"

#include "report/html.h"
#include "report/sourceNames.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStandardPaths>

namespace bomReport {

using namespace bomOperations;

namespace {

// Below the first line: a long list of designators breaks instead of pushing columns off the paper.
constexpr const char *styleSheet =
    "table, th, td { border-collapse: collapse; font-family: Courier New; }\n"
    "body { font-family: Courier New, Liberation Mono, monospace; font-size: 13px; }\n"
    "table.lines th, table.lines td { font-family: Courier New, Liberation Mono, monospace;\n"
    "  font-size: 13px; border: 1px solid #9AA5B1; }\n"
    "table.lines { border-style: none; }\n"
    "table.lines th { font-size: 11px; background: #E4ECF4; }\n"
    "table.lines td { word-wrap: break-word; word-break: break-word; vertical-align: top; }\n";

QString tr(const char *text) { return QCoreApplication::translate("bomReport", text); }

QString setsText(int sets)
{
    return QCoreApplication::translate("bomReport", "%n set(s)", nullptr, sets);
}

void writeCaptions(html::htmlTable &page)
{
    const struct
    {
        QString caption;
        const char *attributes;
    } columns[] = {
        {labels::ordinalNumber(), "width=\"3%\""}, {labels::material(), "align=\"center\""},
        {labels::description(), "width=\"25%\""},  {labels::manufacturer(), "width=\"25%\""},
        {labels::quantity(), "width=\"5%\""},      {labels::designator(), "width=\"20%\""}};
    // The printer counts these when it parts the table.
    page.append(QStringLiteral("<col>").repeated(int(std::size(columns)))
                + QLatin1String("\n<thead>"));
    page.openRow(QStringLiteral("class=\"caption\""));
    for (const auto &column : columns)
        page.append(QStringLiteral("<th %1>%2</th>\n")
                        .arg(QLatin1String(column.attributes), column.caption.toHtmlEscaped()));
    page.closeRow();
    page.append(QStringLiteral("</thead>\n<tbody>\n"));
}

void writeLines(html::htmlTable &page, const kiv_mat_bomStruct &bom, const ktmIndex &materials)
{
    int ordinal = 0;
    for (const auto &line : bom.materials) {
        const bomLine of = matched(*line, materials);
        page.openRow(QStringLiteral("class=\"line\""));
        page.cell({}, QString::number(++ordinal));
        page.cell({}, QLatin1String("<b>") + text::toHtml(of.material->d_name)
                          + QLatin1String("</b><br>") + text::toHtml(of.shownKtm()));
        page.cell({}, text::toHtml(of.material->d_description));
        page.cell({}, sourceNames(of.material->manufacturers));
        page.cell({}, text::toHtml(line->d_quantity));
        page.cell({}, text::toHtml(line->d_designator));
        page.closeRow();
    }
}

QString amount(const lineSum &pln)
{
    return pln.money() + QLatin1String(" [ PLN ]") + pln.note().toHtmlEscaped();
}

QString amountOf(const lineSum &quantity)
{
    return quantity.amount.text() + quantity.note().toHtmlEscaped();
}

// Below the table, in lines of text.
void writeSums(html::htmlTable &page, const lineSums &ofOne, int sets)
{
    const auto write = [&page](int times, const lineSums &of) {
        page.append(QLatin1String("<p><b>") + setsText(times).toHtmlEscaped()
                    + QLatin1String("</b>: ") + labels::quantity() + QLatin1String(" = ")
                    + amountOf(of.quantity) + QLatin1String("; ") + labels::sumPrice()
                    + amount(of.price) + QLatin1String("; ") + labels::sumAveragePrice()
                    + amount(of.averagePrice) + QLatin1String("</p>\n"));
    };
    write(1, ofOne);
    if (sets > 1)
        write(sets, ofOne.times(sets));
}

QString nameOf(const kiv_mat_bomStruct &bom) { return QFileInfo(bom.fileName).completeBaseName(); }

// A text that stays one cell of one line.
QString oneCell(QString text)
{
    for (QChar &c : text)
        if (c == QLatin1Char('\t') || c == QLatin1Char('\n') || c == QLatin1Char('\r'))
            c = QLatin1Char(' ');
    return text;
}

} // namespace

QString page(const std::vector<bomSets> &lists, const ktmIndex &materials)
{
    html::htmlTable page;
    page.append(QLatin1String("<!DOCTYPE html><meta charset=\"UTF-8\">\n<title>")
                + text::toHtml(title(lists)) + QLatin1String("</title>\n<style>")
                + QLatin1String(styleSheet) + QLatin1String("</style>\n"));
    for (const bomSets &list : lists) {
        page.append(QLatin1String("<h2>") + text::toHtml(nameOf(*list.bom))
                    + QLatin1String("</h2>\n"));
        page.openTable(
            QStringLiteral("class=\"lines\" cellpadding=\"2\" width=\"100%\" border=\"1\""));
        writeCaptions(page);
        writeLines(page, *list.bom, materials);
        page.append(QStringLiteral("</tbody>\n"));
        page.closeTable();
        writeSums(page, sumsOf(*list.bom, materials), list.sets);
    }
    return page.text();
}

QString title(const std::vector<bomSets> &lists)
{
    QStringList names;
    for (const bomSets &list : lists)
        names.append(nameOf(*list.bom));
    // Beside the page number there is room for so much.
    constexpr int longest = 100;
    const QString all = names.join(QLatin1String(", "));
    return all.size() <= longest ? all : all.left(longest) + QChar(0x2026);
}

QString sums(const lineSums &ofOne, int sets)
{
    html::htmlTable table;
    const auto write = [&table](const QString &heading, const lineSums &of) {
        table.labelRow({}, heading.toHtmlEscaped());
        table.labelRow(labels::quantity(), amountOf(of.quantity));
        table.labelRow(labels::price(), amount(of.price));
        table.labelRow(labels::averagePrice(), amount(of.averagePrice));
    };
    table.openTable(QStringLiteral("style=\"width:80%\""));
    table.labelRow(tr("Lines"), QString::number(ofOne.lines));
    if (ofOne.unknown > 0)
        table.labelRow(tr("Not in the databases"), QString::number(ofOne.unknown));
    write(setsText(1), ofOne);
    if (sets > 1)
        write(setsText(sets), ofOne.times(sets));
    table.closeTable();
    return table.text();
}

QString needCaption(needColumn column)
{
    switch (column) {
    case ktmColumn:
        return labels::ktm();
    case nameColumn:
        return labels::name();
    case neededColumn:
        return tr("Needed");
    case inStockColumn:
        return labels::inWarehouse();
    case shortageColumn:
        return tr("Short");
    case knownColumn:
        return tr("Known");
    default:
        return {};
    }
}

QString needText(const need &of, needColumn column)
{
    switch (column) {
    case ktmColumn:
        return of.ktm;
    case nameColumn:
        return of.name;
    case neededColumn:
        return of.needed.text();
    case inStockColumn:
        return of.inStock ? of.inStock->text() : QStringLiteral("?");
    case shortageColumn:
        return of.shortage().text();
    case knownColumn:
        return of.isKnown() ? labels::yes() : labels::no();
    default:
        return {};
    }
}

QString workCaption(workColumn column)
{
    switch (column) {
    case workKtm:
        return labels::ktm();
    case workName:
        return labels::name();
    case workNeeded:
        return tr("Needed");
    case workExtra:
        return tr("Attrition");
    case workInStock:
        return labels::inWarehouse();
    case workReserved:
        return labels::reserved();
    case workOnTheWay:
        return labels::onTheWay();
    case workShort:
        return tr("Short");
    case workInOrder:
        return tr("In this order");
    case workToOrder:
        return tr("To order");
    case workAfter:
        return tr("Then");
    case workUnit:
        return labels::unit();
    case workPrice:
        return labels::price();
    case workAmount:
        return tr("Amount");
    case workLastOrdered:
        return labels::lastOrdered();
    case workSupplier:
        return labels::suppliers();
    default:
        return {};
    }
}

QString workText(const orderedNeed &row, workColumn column)
{
    const materialStruct *material = row.of->material;
    switch (column) {
    case workKtm:
        return row.of->ktm;
    case workName:
        return row.of->name;
    case workNeeded:
        return row.of->needed.text();
    case workExtra:
        return row.of->extra == decimal() ? QString() : row.of->extra.text();
    case workInStock:
        return needText(*row.of, inStockColumn);
    case workReserved:
        return row.of->reserved == decimal() ? QString() : row.of->reserved.text();
    case workOnTheWay:
        return row.of->onTheWay == decimal() ? QString() : row.of->onTheWay.text();
    case workShort:
        return row.of->shortage().text();
    case workInOrder:
        return row.inOrder == decimal() ? QString() : row.inOrder.text();
    case workToOrder:
        return row.toOrder == decimal() ? QString() : row.toOrder.text();
    case workAfter:
        return row.after() == decimal() ? QString() : row.after().text();
    case workUnit:
        return material ? labels::shown(material->d_unit) : QString();
    case workPrice:
        return material ? numbers::price(material->d_price) : QString();
    case workAmount: {
        const auto price = material ? decimal::read(material->d_price) : std::nullopt;
        return price && row.toOrder > decimal() ? (*price * row.toOrder).money() : QString();
    }
    case workLastOrdered:
        return row.of->lastOrdered;
    case workSupplier: {
        QStringList names;
        if (material)
            for (const auto &supplier : material->suppliers.items)
                names.append(supplier->name);
        return names.join(QLatin1String(", "));
    }
    default:
        return {};
    }
}

bool isNumber(workColumn column)
{
    return (column >= workNeeded && column <= workAfter) || column == workPrice
           || column == workAmount;
}

QString csv(const kiv_mat_bomStruct &bom, const ktmIndex &materials)
{
    QString text;
    for (const auto &line : bom.materials)
        text += oneCell(matched(*line, materials).shownKtm()) + QLatin1Char('\t')
                + oneCell(line->d_quantity) + QLatin1Char('\n');
    return text;
}

QString proposedPath(const QString &bomPath, const QString &ending)
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QLatin1Char('/')
           + QFileInfo(bomPath).completeBaseName() + ending;
}

} // namespace bomReport

#include "data/basketForm.h"

#include "data/vocabulary.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <algorithm>

namespace basketForm {

namespace {

const QString ownText = QStringLiteral("text");

// The details whose columns count.
const firmDetailsStruct &columnsOf(const firmDetailsStruct &details)
{
    static const auto usual = [] {
        auto made = std::make_unique<firmDetailsStruct>();
        setUsualColumns(made.get());
        return made;
    }();
    return details.basket.items.empty() ? *usual : details;
}

} // namespace

const std::vector<kind> &kinds()
{
    static const std::vector<kind> all{
        {QStringLiteral("part_number"), labels::partNumber, QStringLiteral("Part number"),
         &values::partNumber},
        {QStringLiteral("quantity"), labels::quantity, QStringLiteral("Quantity"),
         &values::quantity},
        {QStringLiteral("own_reference"),
         [] { return QCoreApplication::translate("firmDetails", "Own reference (KTM)"); },
         QStringLiteral("Customer reference"), &values::ownReference},
        {QStringLiteral("manufacturer"), labels::manufacturer, QStringLiteral("Manufacturer"),
         &values::manufacturer},
        {QStringLiteral("name"), labels::name, QStringLiteral("Description"), &values::name},
        {QStringLiteral("designators"), labels::designator, QStringLiteral("Designators"),
         &values::designators},
        {ownText, [] { return QCoreApplication::translate("firmDetails", "Fixed text"); },
         QStringLiteral("Remark"), nullptr},
        {QStringLiteral("empty"),
         [] { return QCoreApplication::translate("firmDetails", "Empty column"); }, QString(),
         nullptr},
    };
    return all;
}

const kind *kindOf(const QString &word)
{
    const auto &all = kinds();
    const auto found =
        std::find_if(all.begin(), all.end(), [&word](const kind &one) { return one.word == word; });
    return found == all.end() ? nullptr : &*found;
}

bool hasOwnText(const kind &of) { return of.word == ownText; }

const QStringList &separators()
{
    static const QStringList words{QStringLiteral("comma"), QStringLiteral("semicolon"),
                                   QStringLiteral("tab")};
    return words;
}

QChar separatorOf(const QString &word)
{
    constexpr QLatin1Char characters[] = {QLatin1Char(','), QLatin1Char(';'), QLatin1Char('\t')};
    return characters[std::max(0, separators().indexOf(word))];
}

void setUsualColumns(firmDetailsStruct *details)
{
    constexpr int usualColumns = 3;
    details->basket.items.clear();
    for (int i = 0; i < usualColumns; ++i) {
        const kind &of = kinds()[size_t(i)];
        auto *column = details->basket.append(std::make_unique<basketColumnStruct>());
        column->kind = of.word;
        column->caption = of.caption;
    }
}

QStringList captionsOf(const firmDetailsStruct &details)
{
    QStringList captions;
    for (const auto &column : columnsOf(details).basket.items)
        captions.append(column->caption);
    return captions;
}

QStringList cellsOf(const firmDetailsStruct &details, const values &line)
{
    QStringList cells;
    for (const auto &column : columnsOf(details).basket.items) {
        const kind *of = kindOf(column->kind);
        cells.append(of && of->member        ? line.*of->member
                     : of && hasOwnText(*of) ? column->text
                                             : QString());
    }
    return cells;
}

QString rowText(const firmDetailsStruct &details, const QStringList &cells)
{
    const QChar separator = separatorOf(details.separator);
    QStringList written;
    for (const QString &cell : cells) {
        QString plain = cell.simplified();
        if (plain.contains(separator) || plain.contains(QLatin1Char('"')))
            plain = QLatin1Char('"') + plain.replace(QLatin1Char('"'), QLatin1String("\"\""))
                    + QLatin1Char('"');
        written.append(plain);
    }
    return written.join(separator) + QLatin1String("\r\n");
}

QString text(const firmDetailsStruct &details, const std::vector<values> &lines)
{
    QString all;
    if (details.captions != statusWord::no)
        all += rowText(details, captionsOf(details));
    for (const values &line : lines)
        all += rowText(details, cellsOf(details, line));
    return all;
}

QString suffix(const firmDetailsStruct &details)
{
    return separatorOf(details.separator) == QLatin1Char('\t') ? QStringLiteral("txt")
                                                               : QStringLiteral("csv");
}

} // namespace basketForm

#include "bom/partsLines.h"

#include "bom/partsTexts.h"
#include "util/decimal.h"
#include "util/quantity.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>

namespace {

QString translated(const char *text) { return QCoreApplication::translate("partsLines", text); }

// What stands in the columns of a row.
class rowFields
{
public:
    rowFields(const QStringList &row, const QVector<partsColumns::field> &fields)
    {
        for (int column = 0; column < std::min(int(row.size()), int(fields.size())); ++column)
            if (fields[column] != partsColumns::none && !row[column].isEmpty())
                m_texts[fields[column]].append(row[column]);
    }
    QStringList all(partsColumns::field of) const { return m_texts.value(of); }
    QString text(partsColumns::field of) const { return all(of).join(QLatin1Char(' ')); }
    bool hasOnly(partsColumns::field of) const
    {
        return m_texts.size() == 1 && m_texts.contains(of);
    }
    bool isEmpty() const { return m_texts.isEmpty(); }
    // Whether it names a part, not only numbers of some.
    bool namesPart() const
    {
        for (auto text = m_texts.constBegin(); text != m_texts.constEnd(); ++text)
            if (text.key() != partsColumns::quantity && text.key() != partsColumns::notFitted
                && text.key() != partsColumns::fitted)
                return true;
        return false;
    }

private:
    QHash<int, QStringList> m_texts;
};

bool isLeftOut(const rowFields &fields)
{
    using namespace partsColumns;
    const QString footprint = fields.text(package);
    const QStringList numbers = fields.all(partNumber);
    const QStringList marks = fields.all(notFitted);
    return std::any_of(marks.begin(), marks.end(), partsTexts::saysYes)
           || partsTexts::saysNo(fields.text(fitted))
           || partsTexts::saysNotFitted(fields.text(value))
           || partsTexts::saysNotFitted(fields.text(description))
           || footprint.endsWith(QLatin1String("_DNP"), Qt::CaseInsensitive)
           || std::any_of(numbers.begin(), numbers.end(), partsTexts::saysNotFitted);
}

partsLine lineOf(const rowFields &fields)
{
    using namespace partsColumns;
    partsLine line;
    line.designators = partsTexts::designatorsIn(fields.text(designator));
    line.quantity = fields.text(partsColumns::quantity);
    line.ktm = fields.text(ktm);
    line.manufacturer = fields.text(manufacturer);
    line.value = fields.text(value);
    line.package = fields.text(package);
    line.description = fields.text(description);
    line.supplier = fields.text(supplier);
    line.tolerance = fields.text(tolerance);
    line.voltage = fields.text(voltage);
    line.power = fields.text(power);
    line.partNumbers = fields.all(partNumber);
    // An own name such as "C_4u7_0402" tells less than what a maker calls it.
    std::stable_partition(
        line.partNumbers.begin(), line.partNumbers.end(), [](const QString &number) {
            return partsTexts::looksLikePartNumber(number) && !number.contains(QLatin1Char('_'));
        });
    line.supplierNumbers = fields.all(supplierNumber);
    line.isLeftOut = isLeftOut(fields);
    return line;
}

// Whether a row of designators can go on with those of another one: R9 does with R1 to R8, H1 does
// not.
bool areOfOneKind(const QStringList &before, const QStringList &after)
{
    return partsTexts::designatorLetters(before.value(0))
           == partsTexts::designatorLetters(after.value(0));
}

// Everything but designators and quantity.
QString partOf(const partsLine &line)
{
    return QStringList{line.ktm,
                       line.manufacturer,
                       line.value,
                       line.package,
                       line.description,
                       line.supplier,
                       line.tolerance,
                       line.voltage,
                       line.power,
                       line.partNumbers.join(QLatin1Char('\1')),
                       line.supplierNumbers.join(QLatin1Char('\1')),
                       QString::number(line.isLeftOut)}
        .join(QLatin1Char('\0'));
}

// The designators are what is fitted; who states another number is told.
void settleQuantity(partsLine *line, const QString &stated)
{
    if (line->designators.isEmpty()) {
        const std::optional<decimal> number = decimal::read(stated);
        if (!number || *number < decimal())
            line->remarks.append(
                stated.isEmpty()
                    ? translated(QT_TRANSLATE_NOOP("partsLines", "no quantity, taken as 1"))
                    : translated(QT_TRANSLATE_NOOP("partsLines",
                                                   "the quantity \"%1\" is no number, taken as 1"))
                          .arg(stated));
        line->quantity = number && *number >= decimal() ? number->text() : QStringLiteral("1");
        return;
    }
    const QString counted = QString::number(line->designators.size());
    const std::optional<decimal> number = decimal::read(stated);
    if (!stated.isEmpty() && (!number || number->text() != counted))
        line->remarks.append(
            translated(QT_TRANSLATE_NOOP("partsLines", "the file says %1, the designators are %2"))
                .arg(stated, counted));
    line->quantity = counted;
}

} // namespace

QString partsLine::key() const
{
    for (const QString &text : partNumbers) {
        const partsTexts::partNumber number(text);
        if (number.isLikely())
            return number.folded();
        // Several makers have the same few digits.
        if (number.digits() > 0)
            return number.folded() + QLatin1Char('|')
                   + partsTexts::partNumber(manufacturer).folded();
    }
    // Whatever is stated of the part, since another voltage is another part. Capitals count: 10m
    // and 10M are different values.
    const auto plain = [](QString text) {
        return text.remove(QLatin1Char(' ')).replace(QLatin1Char(','), QLatin1Char('.'));
    };
    const QString size = partsTexts::caseIn(package);
    QString all = QStringList{plain(value),
                              size.isEmpty() ? package.simplified() : size,
                              partsTexts::partNumber(manufacturer).folded(),
                              plain(tolerance),
                              plain(voltage),
                              plain(power),
                              description.simplified()}
                      .join(QLatin1Char('|'));
    while (all.endsWith(QLatin1Char('|')))
        all.chop(1);
    if (!value.isEmpty() || !description.isEmpty())
        return all;
    return supplierNumbers.isEmpty() ? ktm.simplified()
                                     : partsTexts::partNumber(supplierNumbers.first()).folded();
}

QString partsLine::name() const
{
    QStringList words;
    const QString number = partNumbers.value(0);
    if (!number.isEmpty() && !manufacturer.isEmpty())
        words.append(manufacturer);
    if (!number.isEmpty())
        words.append(number);
    if (!value.isEmpty() && value != number)
        words.append(words.isEmpty() ? value : QStringLiteral("[%1]").arg(value));
    if (words.isEmpty() || number.isEmpty()) {
        const QString size = partsTexts::caseIn(package);
        const QString rest = size.isEmpty() ? package : size;
        if (!rest.isEmpty())
            words.append(rest);
        for (const QString &stated : {tolerance, voltage, power})
            if (!stated.isEmpty())
                words.append(stated);
        // "LED 0603" may be a red or a green one; what 100nF is is known.
        if (!words.isEmpty() && !description.isEmpty() && !::quantity::parseStart(value))
            words.append(description);
    }
    if (words.isEmpty())
        words.append(description.isEmpty() ? designators.join(QLatin1String(", ")) : description);
    return words.join(QLatin1Char(' ')).simplified();
}

int partsList::leftOut() const
{
    return int(std::count_if(lines.begin(), lines.end(),
                             [](const partsLine &line) { return line.isLeftOut; }));
}

partsList linesOf(const partsTable &table, const partsColumns::guess &columns)
{
    partsList list;
    QHash<QString, int> places;
    QVector<QStringList> stated; // of each line, the quantities of its rows
    int last = -1;
    for (int i = columns.header + 1; i < table.rows.size(); ++i) {
        const rowFields fields(table.rows[i], columns.fields);
        const int fileLine = table.lines.value(i, i + 1);
        if (fields.isEmpty())
            continue;
        const bool isBare = fields.hasOnly(partsColumns::designator);
        const QStringList bare =
            isBare ? partsTexts::designatorsIn(fields.text(partsColumns::designator))
                   : QStringList();
        if (last >= 0 && isBare && areOfOneKind(list.lines[last].designators, bare)) {
            list.lines[last].designators += bare;
            list.lines[last].rows.append(fileLine);
            continue;
        }
        if (isBare || !fields.namesPart()) {
            list.remarks.append(
                translated(QT_TRANSLATE_NOOP("partsLines", "line %1 names no part: %2"))
                    .arg(fileLine)
                    .arg(table.rows[i].join(QLatin1Char(' ')).simplified()));
            continue;
        }
        partsLine line = lineOf(fields);
        const QString part = partOf(line);
        // Without designators a second row of a part is no mistake either.
        last = places.value(part, -1);
        if (last < 0) {
            last = list.lines.size();
            places.insert(part, last);
            stated.append(QStringList());
            list.lines.append(line);
        } else {
            list.lines[last].designators += line.designators;
        }
        stated[last].append(fields.text(partsColumns::quantity));
        list.lines[last].rows.append(fileLine);
    }
    for (int i = 0; i < list.lines.size(); ++i) {
        partsLine &line = list.lines[i];
        const int before = line.designators.size();
        line.designators.removeDuplicates();
        if (line.designators.size() < before)
            line.remarks.append(
                translated(QT_TRANSLATE_NOOP("partsLines", "designators stand twice")));
        partsTexts::sortDesignators(&line.designators);
        decimal sum;
        bool areNumbers = true;
        for (const QString &text : qAsConst(stated[i])) {
            const std::optional<decimal> number = decimal::read(text);
            areNumbers = areNumbers && number;
            sum += number.value_or(decimal());
        }
        settleQuantity(&line, areNumbers ? sum.text() : stated[i].join(QLatin1Char(' ')).trimmed());
    }
    return list;
}

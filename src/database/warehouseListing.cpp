#include "database/warehouseListing.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"
#include "data/programData.h"
#include "util/decimal.h"
#include "util/messages.h"
#include "util/numbers.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

QString translated(const char *text)
{
    return QCoreApplication::translate("warehouseListing", text).toHtmlEscaped();
}

// With as many decimals as it has, at most so many and at least the fewest.
QString written(double number, int most, int fewest)
{
    QString text = QString::number(number, 'f', most);
    int keep = text.size() - most + fewest;
    int end = text.size();
    while (end > keep && text.at(end - 1) == QLatin1Char('0'))
        --end;
    text.truncate(end);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text;
}

QString stockText(double stock) { return written(stock, 3, 0); }

// Parts of a grosz count: a resistor costs less than one.
QString priceText(double price) { return written(price, 4, 2); }

// Nothing for an empty text; false when it holds something that is no number of at most fifteen
// digits before the point.
bool readNumber(const QString &text, std::optional<double> *number)
{
    if (text.isEmpty())
        return true;
    *number = numbers::finite(text);
    // Beyond that it would be stored as another number.
    constexpr double largest = 1e15;
    if (*number && std::abs(**number) >= largest)
        number->reset();
    return number->has_value();
}

// A number as listings print it: digits in groups, a comma or a point, then perhaps a unit. Nothing
// when the text begins with none, or something that could belong to the number follows.
std::optional<double> leadingNumber(const QString &text)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*+([0-9][0-9\\s]*+(?:[.,][0-9]++)?+)\\s*+(?:$|\\p{L})"),
        QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return {};
    QString digits;
    for (QChar c : match.captured(1))
        if (!c.isSpace())
            digits.append(c);
    std::optional<double> value;
    readNumber(digits, &value);
    return value;
}

// The number behind "key" in the first of the lines that holds it.
std::optional<double> numberBehind(const QStringList &lines, QLatin1String key)
{
    for (const QString &line : lines) {
        const int at = line.indexOf(key, 0, Qt::CaseInsensitive);
        if (at >= 0)
            return leadingNumber(line.mid(at + key.size()));
    }
    return {};
}

QString firstWord(const QString &trimmed)
{
    const auto blank =
        std::find_if(trimmed.begin(), trimmed.end(), [](QChar c) { return c.isSpace(); });
    return trimmed.left(int(blank - trimmed.begin()));
}

listingEntry parseEntry(const QStringList &lines)
{
    listingEntry entry;
    entry.line = lines.first().trimmed();
    entry.ktm = firstWord(entry.line);
    entry.stock = numberBehind(lines, QLatin1String("ilosc:"));
    const std::optional<double> value = numberBehind(lines, QLatin1String("wartosc:"));
    entry.readable = !entry.ktm.isEmpty() && entry.stock && value;
    if (entry.readable && *entry.stock > 0)
        entry.averagePrice = *value / *entry.stock;
    if (entry.averagePrice && !decimal::read(priceText(*entry.averagePrice))) {
        entry.readable = false;
        entry.averagePrice.reset();
    }
    return entry;
}

// The number that a field holds now is left as it is written.
bool sameNumber(const QString &stored, double number, const QString &written)
{
    return stored == written || (numbers::check(stored) && numbers::value(stored) == number);
}

QString problem(const QString &subject, const char *reason)
{
    return QLatin1String("<b>") + subject.toHtmlEscaped() + QLatin1String("</b>&nbsp;")
           + translated(reason) + QLatin1String("<br>");
}

void addChange(std::vector<materialChange> &changes, materialStruct *material,
               QString materialStruct::*field, const std::optional<double> &number,
               QString (*textOf)(double))
{
    if (!number)
        return;
    const QString written = textOf(*number);
    if (!sameNumber(material->*field, numbers::value(written), written))
        changes.push_back({material, field, material->*field, written});
}

} // namespace

std::vector<listingEntry> parseListing(const QString &text)
{
    std::vector<listingEntry> entries;
    QString lines = text;
    lines.replace(QLatin1String("\r\n"), QLatin1String("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QString mark = QStringLiteral("Towar:");
    for (int at = lines.indexOf(mark); at >= 0;) {
        const int begin = at + mark.size();
        at = lines.indexOf(mark, begin);
        entries.push_back(
            parseEntry(lines.mid(begin, at < 0 ? -1 : at - begin).split(QLatin1Char('\n'))));
    }
    return entries;
}

std::vector<listingEntry> entriesOf(const kiv_mat_databaseStruct &database)
{
    std::vector<listingEntry> entries;
    for (const auto &group : database.groups) {
        for (const auto &material : group->items) {
            listingEntry entry;
            entry.line = material->d_ktm + QLatin1Char(' ') + material->d_name;
            entry.ktm = material->d_ktm;
            const bool stock = readNumber(material->d_inWarehouse.trimmed(), &entry.stock);
            const bool price = readNumber(material->d_averagePrice.trimmed(), &entry.averagePrice);
            entry.readable = !entry.ktm.isEmpty() && stock && price;
            entries.push_back(entry);
        }
    }
    return entries;
}

listingResult matchListing(const std::vector<listingEntry> &entries, const ktmIndex &materials,
                           const progressFunction &progress)
{
    listingResult result;
    progressSteps steps(progress, qint64(entries.size()));
    QHash<QString, size_t> last;
    for (size_t i = 0; i < entries.size(); ++i)
        if (entries[i].readable)
            last.insert(entries[i].ktm, i);
    for (size_t i = 0; i < entries.size(); ++i) {
        const listingEntry &entry = entries[i];
        const ktmIndex::entry *known = entry.readable ? materials.find(entry.ktm) : nullptr;
        if (known) {
            ++result.found;
            if (last.value(entry.ktm) == i) {
                addChange(result.changes, known->material, &materialStruct::d_inWarehouse,
                          entry.stock, stockText);
                addChange(result.changes, known->material, &materialStruct::d_averagePrice,
                          entry.averagePrice, priceText);
            } else {
                result.problems.append(problem(
                    entry.ktm, QT_TRANSLATE_NOOP("warehouseListing",
                                                 "Stands again further down, this one not used")));
            }
        } else if (!entry.readable || !checkKtm(entry.ktm)) {
            result.problems.append(
                problem(entry.line, QT_TRANSLATE_NOOP("warehouseListing", "Error in KTM line")));
        } else {
            result.problems.append(problem(
                entry.ktm, QT_TRANSLATE_NOOP("warehouseListing", "Does not exist in databases")));
        }
        if (!steps.next()) {
            result.changes.clear();
            result.cancelled = true;
            break;
        }
    }
    return result;
}

std::optional<std::vector<listingEntry>> readListing(const QString &path, QString *error)
{
    if (path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
        kiv_mat_databaseStruct database;
        QString reason;
        if (readChecked(path, &database, &reason))
            return entriesOf(database);
        *error = messages::failed(messages::fileInvalid(), path, reason);
        return std::nullopt;
    }
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        return parseListing(QString::fromUtf8(file.readAll()));
    *error = messages::failed(messages::fileCorrupted(), path);
    return std::nullopt;
}

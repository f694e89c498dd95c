#include "bom/partsTexts.h"

#include "util/foldedText.h"
#include "util/quantity.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <tuple>

namespace partsTexts {

namespace {

QString folded(const QString &text) { return QString::fromStdString(text::folded(text)).trimmed(); }

QString group(const QRegularExpressionMatch &match, int number) { return match.captured(number); }

bool isOneOf(const QString &text, std::initializer_list<const char *> words)
{
    const QString plain = folded(text);
    return std::any_of(words.begin(), words.end(),
                       [&](const char *word) { return plain == QLatin1String(word); });
}

// R1-R9, R1..R9 and R1-9; nothing for anything else, and for more than is sensible.
QStringList rangeOf(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("^([A-Za-z_]+)(\\d+)(?:-|\\.\\.+|–|—|÷|~)([A-Za-z_]*)(\\d+)$"));
    const QRegularExpressionMatch match = form.match(text);
    constexpr int most = 1000;
    if (!match.hasMatch() || (!group(match, 3).isEmpty() && group(match, 3) != group(match, 1)))
        return {};
    const int first = group(match, 2).toInt();
    const int last = group(match, 4).toInt();
    if (last < first || last - first >= most)
        return {};
    QStringList all;
    for (int number = first; number <= last; ++number)
        all.append(group(match, 1) + QString::number(number));
    return all;
}

// Blanks around the sign of a range belong to it.
QStringList piecesOf(const QString &cell)
{
    static const QRegularExpression around(
        QStringLiteral("\\s*(-|–|—|\\.\\.+|÷)\\s*(?=[A-Za-z_]*\\d)"));
    static const QRegularExpression between(QStringLiteral("[\\s,;|]+"));
    return QString(cell).replace(around, QStringLiteral("\\1")).split(between, Qt::SkipEmptyParts);
}

} // namespace

QStringList designatorsIn(const QString &cell)
{
    QStringList all;
    QSet<QString> seen;
    for (const QString &piece : piecesOf(cell)) {
        const QStringList range = rangeOf(piece);
        for (const QString &one : range.isEmpty() ? QStringList{piece} : range)
            if (!seen.contains(one)) {
                seen.insert(one);
                all.append(one);
            }
    }
    return all;
}

bool areDesignators(const QString &cell)
{
    // A KiCad list numbers its connectors as J1A, its holes as H*, its sheets as IC1_2.
    static const QRegularExpression form(
        QStringLiteral("^[A-Za-z_]{1,6}\\d{1,5}(?:[A-Za-z]|[._-]\\d{1,3})?$"));
    const QStringList pieces = piecesOf(cell);
    return !pieces.isEmpty() && std::all_of(pieces.begin(), pieces.end(), [](const QString &piece) {
        return form.match(piece).hasMatch() || !rangeOf(piece).isEmpty();
    });
}

QString designatorLetters(const QString &designator)
{
    const auto digit =
        std::find_if(designator.begin(), designator.end(), [](QChar c) { return c.isDigit(); });
    return designator.left(int(digit - designator.begin())).toUpper();
}

void sortDesignators(QStringList *designators)
{
    const auto parted = [](const QString &designator) {
        const auto digit =
            std::find_if(designator.begin(), designator.end(), [](QChar c) { return c.isDigit(); });
        const int letters = int(digit - designator.begin());
        int end = letters;
        while (end < designator.size() && designator[end].isDigit())
            ++end;
        return std::tuple(designator.left(letters), designator.mid(letters, end - letters).toInt(),
                          designator.mid(end));
    };
    std::stable_sort(designators->begin(), designators->end(),
                     [&](const QString &a, const QString &b) { return parted(a) < parted(b); });
}

QString caseIn(const QString &text)
{
    // The size of a chip, not the middle of a part number or a metric size.
    static const QRegularExpression chip(
        QStringLiteral("(?<![0-9.])(01005|0201|0402|0603|0805|1008|1206|1210|1806|1812|1825|2010|"
                       "2220|2512)(?![0-9.]|Metric)"));
    const QRegularExpressionMatch size = chip.match(text);
    if (size.hasMatch())
        return group(size, 1);
    // By millimetres, as far as no size in inches is written like that.
    static const QHash<QString, QString> metric{{QStringLiteral("1005"), QStringLiteral("0402")},
                                                {QStringLiteral("1608"), QStringLiteral("0603")},
                                                {QStringLiteral("2012"), QStringLiteral("0805")},
                                                {QStringLiteral("2520"), QStringLiteral("1008")},
                                                {QStringLiteral("3216"), QStringLiteral("1206")},
                                                {QStringLiteral("3225"), QStringLiteral("1210")},
                                                {QStringLiteral("4532"), QStringLiteral("1812")},
                                                {QStringLiteral("5025"), QStringLiteral("2010")},
                                                {QStringLiteral("6332"), QStringLiteral("2512")}};
    static const QRegularExpression millimetres(
        QStringLiteral("(?:^|[:_])(\\d{4})(?:Metric)?(?:_|$)"));
    if (const QString found = metric.value(group(millimetres.match(text), 1)); !found.isEmpty())
        return found;
    static const QRegularExpression family(
        QStringLiteral("(?<![A-Za-z])(T?SOT|SOD|SOIC|TSSOP|MSOP|VSSOP|SSOP|SOP|SO|HTSSOP|QFN|VQFN|"
                       "WQFN|UQFN|DFN|WDFN|"
                       "WSON|SON|LQFP|TQFP|VQFP|QFP|PLCC|DIP|PDIP|SIP|TO|DO|SC|UFBGA|TFBGA|LFBGA|"
                       "FBGA|BGA|WLCSP)"
                       "[-_ ]?(\\d+[A-Z]*)(?:-(\\d+)(?![.\\d]))?(?![A-Za-z])"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch named = family.match(text);
    if (named.hasMatch()) {
        const QString pins = group(named, 3);
        // SOT-23-3 is what SOT-23 means.
        const bool isUsual =
            pins.isEmpty()
            || (group(named, 2) == QLatin1String("23") && pins == QLatin1String("3"));
        return group(named, 1).toUpper() + QLatin1Char('-') + group(named, 2).toUpper()
               + (isUsual ? QString() : QLatin1Char('-') + pins);
    }
    static const QRegularExpression melf(
        QStringLiteral("(?<![A-Za-z])(SMA|SMB|SMC|Mini-?MELF|MicroMELF|MELF)(?![A-Za-z])"),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch other = melf.match(text);
    return group(other, 1).remove(QLatin1Char('-')).toUpper();
}

partNumber::partNumber(const QString &text)
    : m_text(text)
{
    m_folded.reserve(text.size());
    // Most of them, and what folds the others takes ten times as long.
    const bool isAscii =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 128; });
    const QString small = isAscii ? text : partsTexts::folded(text);
    for (int i = 0; i < small.size(); ++i) {
        // 5.0 and 50 are different parts.
        const bool isPoint = small[i] == QLatin1Char('.') && i > 0 && i + 1 < small.size()
                             && small[i - 1].isDigit() && small[i + 1].isDigit();
        if (small[i].isLetterOrNumber() || isPoint)
            m_folded += small[i].toUpper();
    }
}

bool partNumber::isLikely() const
{
    constexpr int least = 4;
    if (m_folded.size() < least || m_text.contains(QLatin1Char(' ')))
        return false;
    const bool hasDigit =
        std::any_of(m_folded.begin(), m_folded.end(), [](QChar c) { return c.isDigit(); });
    const bool hasLetter =
        std::any_of(m_folded.begin(), m_folded.end(), [](QChar c) { return c.isLetter(); });
    if (!hasDigit || !hasLetter)
        return false;
    // Nobody writes a value with so many digits ("9774060151R").
    constexpr int valueAtMost = 8;
    const bool mayBeValue = m_folded.size() <= valueAtMost || m_folded.size() != m_text.size();
    return !mayBeValue || !::quantity::parse(m_text);
}

int partNumber::digits() const
{
    constexpr int least = 6;
    const bool isNumber =
        m_folded.size() >= least && std::all_of(m_folded.begin(), m_folded.end(), [](QChar c) {
            return c.isDigit() || c == QLatin1Char('.');
        });
    return isNumber ? m_folded.size() - m_folded.count(QLatin1Char('.')) : 0;
}

QString partNumber::withoutPackaging() const
{
    // Only what is set off by a sign: letters at the end mean another part with another maker.
    static const QRegularExpression end(
        QStringLiteral(
            "(?:[-/ "
            "](?:T/"
            "?R|TRL|TRPBF|TR7|REEL7?|REEL13|RL7?|R7|TAPE|CT|BULK|TUBE|TRAY|NOPB|T1|T)|#(?:TR)"
            "?PBF|\\+T?|,\\d{3})$"),
        QRegularExpression::CaseInsensitiveOption);
    QString shortened = m_text.trimmed();
    // What cannot have one takes no time.
    constexpr int endAtMost = 7;
    const auto sign = std::find_if(shortened.rbegin(), shortened.rend(),
                                   [](QChar c) { return QLatin1String("-/ #+,").contains(c); });
    if (sign == shortened.rend() || sign - shortened.rbegin() > endAtMost)
        return m_folded;
    for (QRegularExpressionMatch match = end.match(shortened); match.hasMatch();
         match = end.match(shortened))
        shortened.truncate(match.capturedStart());
    constexpr int least = 4;
    const QString plain = partNumber(shortened).folded();
    return plain.size() < least ? m_folded : plain;
}

bool looksLikePartNumber(const QString &text) { return partNumber(text).isLikely(); }

bool saysNotFitted(const QString &text)
{
    // Alone, or behind what the part is: "100n n/m". "14 dni" and "0.5 N/m" are something else.
    static const QRegularExpression brief(
        QStringLiteral("^(?:[^ ]*[a-z][^ ]* +)?[(\\[]?(?:dni|dnm|n/m|n\\.m\\.|n/p)[)\\]]?$"));
    if (brief.match(folded(text)).hasMatch())
        return true;
    static const QRegularExpression form(QStringLiteral(
        "(?:^|[^a-z0-9])(?:dnp|dnf|d\\.n\\.p\\.|do ?not "
        "?(?:populate|mount|fit|place|install|stuff|assemble)|"
        "not ?(?:fitted|mounted|populated|placed|assembled)|no "
        "?(?:stuff|fit|pop)|nie ?montowac|"
        "nie ?montuj|niemontowany|nie ?obsadzac|nicht ?bestucken|nicht ?bestuckt)(?:$|[^a-z0-9])"));
    return form.match(folded(text)).hasMatch();
}

bool saysYes(const QString &text)
{
    return isOneOf(text, {"1", "x", "y", "t", "yes", "true", "tak", "ja", "dnp"})
           || saysNotFitted(text);
}

bool saysNo(const QString &text)
{
    return isOneOf(text, {"0", "n", "no", "not", "false", "nie", "nein"}) || saysNotFitted(text);
}

} // namespace partsTexts

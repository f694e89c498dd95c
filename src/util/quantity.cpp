#include "util/quantity.h"

#include <cmath>

namespace {

struct prefixLetter
{
    char16_t letter;
    double factor;
};
constexpr prefixLetter prefixes[] = {{u'p', 1e-12}, {u'n', 1e-9}, {u'u', 1e-6}, {u'µ', 1e-6},
                                     {u'μ', 1e-6},  {u'm', 1e-3}, {u'k', 1e3},  {u'K', 1e3},
                                     {u'M', 1e6},   {u'G', 1e9},  {u'T', 1e12}};

struct unitName
{
    QLatin1String name; // small letters
    quantity::unitKind unit;
};
// The longer of two that begin alike comes first.
const unitName units[] = {
    {QLatin1String("ohms"), quantity::ohm},      {QLatin1String("ohm"), quantity::ohm},
    {QLatin1String("r"), quantity::ohm},         {QLatin1String("farad"), quantity::farad},
    {QLatin1String("f"), quantity::farad},       {QLatin1String("hz"), quantity::hertz},
    {QLatin1String("h"), quantity::henry},       {QLatin1String("vdc"), quantity::volt},
    {QLatin1String("vac"), quantity::volt},      {QLatin1String("v"), quantity::volt},
    {QLatin1String("ah"), quantity::ampereHour}, {QLatin1String("a"), quantity::ampere},
    {QLatin1String("w"), quantity::watt},        {QLatin1String("%"), quantity::percent},
    {QLatin1String("pln"), quantity::zloty}};

// Walks through a text, taking what is expected.
class scanner
{
public:
    explicit scanner(const QString &text)
        : m_text(text)
    {
    }

    QChar peek(int ahead = 0) const
    {
        return m_at + ahead < m_text.size() ? m_text.at(m_at + ahead) : QChar();
    }
    bool atEnd() const { return m_at >= m_text.size(); }
    int position() const { return m_at; }
    void moveTo(int position) { m_at = position; }

    void skipBlanks()
    {
        while (!atEnd() && peek().isSpace())
            ++m_at;
    }
    bool take(QLatin1String expected)
    {
        if (!m_text.midRef(m_at).startsWith(expected, Qt::CaseInsensitive))
            return false;
        m_at += expected.size();
        return true;
    }
    bool take(QChar expected)
    {
        if (atEnd() || peek() != expected)
            return false;
        ++m_at;
        return true;
    }
    // A run of digits; blanks between them count only where groups of three follow, as in
    // "1 250,00".
    QString digits()
    {
        QString result;
        for (;;) {
            while (isDigit(peek()))
                result += m_text.at(m_at++);
            const bool group = !result.isEmpty() && peek().isSpace() && isDigit(peek(1))
                               && isDigit(peek(2)) && isDigit(peek(3)) && !isDigit(peek(4));
            if (!group)
                return result;
            ++m_at;
        }
    }
    double prefix()
    {
        for (const prefixLetter &prefix : prefixes)
            if (take(QChar(prefix.letter)))
                return prefix.factor;
        return 0;
    }
    quantity::unitKind unit()
    {
        if (take(QChar(0x2126)) || take(QChar(0x3a9)) || take(QChar(0x3c9)))
            return quantity::ohm;
        if (m_text.midRef(m_at).startsWith(QString::fromUtf8("zł"), Qt::CaseInsensitive)) {
            m_at += 2;
            return quantity::zloty;
        }
        for (const unitName &unit : units)
            if (take(unit.name))
                return unit.unit;
        return quantity::none;
    }
    bool atWord() const { return peek().isLetterOrNumber(); }

    static bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

private:
    const QString &m_text;
    int m_at = 0;
};

// The rest of a fraction, as in "1/4W"; only power is given so: "10/16V" are two numbers. Zero,
// with nothing taken, when there is none.
double takeDenominator(scanner &text)
{
    const int before = text.position();
    if (text.take(QLatin1Char('/'))) {
        const double denominator = text.digits().toDouble();
        const int end = text.position();
        text.skipBlanks();
        if (denominator > 0 && text.take(QLatin1String("W")) && !text.atWord()) {
            text.moveTo(end);
            return denominator;
        }
    }
    text.moveTo(before);
    return 0;
}

// The letter in the place of a decimal point: a prefix, or R, V or A. False, with nothing taken,
// when no digit follows.
bool takePointLetter(scanner &text, double &factor, quantity::unitKind &unit)
{
    const int before = text.position();
    factor = text.prefix();
    if (factor == 0) {
        factor = 1;
        if (text.take(QLatin1String("R")))
            unit = quantity::ohm;
        else if (text.take(QLatin1String("V")))
            unit = quantity::volt;
        else if (text.take(QLatin1String("A")))
            unit = quantity::ampere;
    }
    if (text.position() != before && scanner::isDigit(text.peek()))
        return true;
    text.moveTo(before);
    factor = 1;
    unit = quantity::none;
    return false;
}

// Takes an optional prefix (unless there was one in the place of the point) and an optional unit,
// and nothing when that would leave half of a word behind.
void takeUnit(scanner &text, double &factor, quantity::unitKind &unit)
{
    const int before = text.position();
    text.skipBlanks();
    const int start = text.position();
    const bool milli = text.peek() == QLatin1Char('m');
    const double prefix = factor == 1 && unit == quantity::none ? text.prefix() : 0;
    quantity::unitKind found = text.unit();
    if (prefix != 0 && !text.atWord()) {
        factor *= milli && found == quantity::hertz ? 1e6 : prefix;
    } else {
        text.moveTo(start);
        found = text.unit();
        if (found == quantity::none || text.atWord()) {
            text.moveTo(before);
            return;
        }
    }
    if (found != quantity::none)
        unit = found;
}

std::optional<quantity> scan(scanner &text)
{
    text.skipBlanks();
    if (text.take(QLatin1String("+/-")) || text.take(QChar(0xb1)))
        text.skipBlanks();
    const bool negative = text.take(QLatin1Char('-')) || text.take(QChar(0x2212));
    if (!negative)
        text.take(QLatin1Char('+'));

    quantity result;
    double factor = 1;
    const int start = text.position();
    QString whole = text.digits();
    QString decimals;
    // Only R may lead: M3 is a screw.
    const bool leads =
        !whole.isEmpty() || text.peek() == QLatin1Char('R') || text.peek() == QLatin1Char('r');
    bool point = false;
    if (!whole.isEmpty() && (text.peek() == QLatin1Char('.') || text.peek() == QLatin1Char(','))
        && scanner::isDigit(text.peek(1))) {
        text.moveTo(text.position() + 1);
        decimals = text.digits();
        point = true;
    } else if (whole.isEmpty() && text.peek() == QLatin1Char('.')
               && scanner::isDigit(text.peek(1))) {
        text.moveTo(text.position() + 1);
        whole = QStringLiteral("0");
        decimals = text.digits();
        point = true;
    } else if (leads && takePointLetter(text, factor, result.unit)) {
        if (whole.isEmpty())
            whole = QStringLiteral("0");
        decimals = text.digits();
        point = true;
    }
    if (whole.isEmpty())
        return std::nullopt;
    const double denominator = point ? 0 : takeDenominator(text);
    const int digitsEnd = text.position();
    takeUnit(text, factor, result.unit);
    result.bare = !point && denominator == 0 && text.position() == digitsEnd;
    if (result.bare && whole.size() > 1 && whole.startsWith(QLatin1Char('0')))
        return std::nullopt;
    if (text.position() == start)
        return std::nullopt;
    bool ok = false;
    result.value = (whole + QLatin1Char('.') + decimals + QLatin1Char('0')).toDouble(&ok) * factor;
    if (denominator > 0)
        result.value /= denominator;
    if (negative)
        result.value = -result.value;
    if (!ok || !std::isfinite(result.value))
        return std::nullopt;
    return result;
}

} // namespace

std::optional<quantity> quantity::parse(const QString &text)
{
    scanner walk(text);
    const std::optional<quantity> result = scan(walk);
    walk.skipBlanks();
    return walk.atEnd() ? result : std::nullopt;
}

std::optional<quantity> quantity::parseStart(const QString &text)
{
    scanner walk(text);
    const std::optional<quantity> result = scan(walk);
    if (walk.atEnd() || walk.peek().isSpace() || QString::fromUtf8("/,;(±[").contains(walk.peek()))
        return result;
    return std::nullopt;
}

int quantity::compare(const quantity &other) const
{
    // Factors such as 1e-9 leave differences in the last binary digits.
    if (std::abs(value - other.value) <= 1e-12 * std::max(std::abs(value), std::abs(other.value)))
        return 0;
    return value < other.value ? -1 : 1;
}

#include "util/decimal.h"

#include <QVarLengthArray>

#include <algorithm>

namespace {

constexpr qint64 base = 1000000000;

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

qint64 powerOfTen(int exponent)
{
    qint64 power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

// A text taken apart: its digits, and the power of ten of the first.
struct parts
{
    bool negative = false;
    QVarLengthArray<char, 40> digits;
    int firstPower = 0;
};

std::optional<parts> takeApart(const QString &text)
{
    if (text.startsWith(QLatin1String("0x"))) {
        bool ok = false;
        const uint number = text.toUInt(&ok, 16);
        return ok ? takeApart(QString::number(number)) : std::nullopt;
    }
    parts result;
    const QString trimmed = text.trimmed();
    const QChar *at = trimmed.cbegin();
    const QChar *const end = trimmed.cend();
    const auto takeSign = [&] {
        const bool sign = at != end && (*at == QLatin1Char('-') || *at == QLatin1Char('+'));
        return sign && *at++ == QLatin1Char('-');
    };
    const auto takeDigits = [&] {
        for (; at != end && isDigit(*at); ++at)
            result.digits.append(char(at->unicode() - '0'));
    };
    result.negative = takeSign();
    takeDigits();
    result.firstPower = result.digits.size() - 1;
    if (at != end && (*at == QLatin1Char('.') || *at == QLatin1Char(','))) {
        ++at;
        takeDigits();
    }
    if (result.digits.isEmpty())
        return std::nullopt;
    if (at != end && at->toLower() == QLatin1Char('e')) {
        ++at;
        const bool negative = takeSign();
        const QChar *const first = at;
        constexpr int largest = 10000; // Beyond any limit, and no overflow.
        int exponent = 0;
        for (; at != end && isDigit(*at); ++at)
            exponent = qMin(largest, exponent * 10 + at->unicode() - '0');
        if (at == first)
            return std::nullopt;
        result.firstPower += negative ? -exponent : exponent;
    }
    return at == end ? std::optional(result) : std::nullopt;
}

} // namespace

std::optional<decimal> decimal::read(const QString &text)
{
    const std::optional<parts> of = takeApart(text);
    if (!of)
        return std::nullopt;
    decimal result;
    for (int i = 0; i < of->digits.size(); ++i) {
        if (of->digits[i] == 0)
            continue;
        const int power = of->firstPower - i;
        constexpr int most = fractionDigits / 2;
        if (power < -most || power >= most)
            return std::nullopt;
        const int place = power + fractionDigits;
        result.m_limbs.at(size_t(limbs - 1 - place / digits)) +=
            of->digits[i] * powerOfTen(place % digits);
    }
    return of->negative ? -result : result;
}

decimal &decimal::operator+=(const decimal &other)
{
    for (size_t i = 0; i < limbs; ++i)
        m_limbs[i] += other.m_limbs[i];
    carry();
    return *this;
}

decimal decimal::operator*(const decimal &other) const
{
    if (*this < decimal())
        return -(-*this * other);
    if (other < decimal())
        return -(*this * -other);
    decimal result;
    constexpr int fractionLimbs = fractionDigits / digits;
    for (int i = 0; i < limbs; ++i) {
        if (m_limbs[size_t(i)] == 0)
            continue;
        for (int j = 0; j < limbs; ++j) {
            // What would be left of the first limb or right of the last is nothing.
            const int place = i + j - (limbs - 1 - fractionLimbs);
            if (place >= 0 && place < limbs)
                result.m_limbs[size_t(place)] += m_limbs[size_t(i)] * other.m_limbs[size_t(j)];
        }
        result.carry();
    }
    return result;
}

decimal decimal::times(int factor) const
{
    decimal result = *this;
    for (qint64 &limb : result.m_limbs)
        limb *= factor;
    result.carry();
    return result;
}

decimal decimal::dividedBy(int divisor) const
{
    decimal result;
    qint64 rest = 0;
    for (size_t i = 0; i < limbs; ++i) {
        const qint64 limb = rest * base + m_limbs[i];
        result.m_limbs[i] = limb / divisor;
        rest = limb % divisor;
    }
    return result;
}

void decimal::carry()
{
    for (size_t i = limbs - 1; i > 0; --i) {
        qint64 over = m_limbs[i] / base;
        if (m_limbs[i] % base < 0)
            --over;
        m_limbs[i] -= over * base;
        m_limbs[i - 1] += over;
    }
}

QString decimal::text(int most, int fewest) const
{
    const bool negative = *this < decimal();
    decimal size = negative ? -*this : *this;
    if (most < fractionDigits) {
        const int place = fractionDigits - most - 1;
        size.m_limbs.at(size_t(limbs - 1 - place / digits)) += 5 * powerOfTen(place % digits);
        size.carry();
    }
    QString all;
    for (const qint64 limb : size.m_limbs)
        all += QString::number(limb).rightJustified(digits, QLatin1Char('0'));
    const int point = all.size() - fractionDigits;
    int begin = 0;
    while (begin < point - 1 && all.at(begin) == QLatin1Char('0'))
        ++begin;
    int end = point + most;
    while (end > point + fewest && all.at(end - 1) == QLatin1Char('0'))
        --end;
    QString result = all.mid(begin, point - begin);
    if (end > point)
        result += QLatin1Char('.') + all.midRef(point, end - point);
    const bool isNothing = std::all_of(result.cbegin(), result.cend(), [](QChar c) {
        return c == QLatin1Char('0') || c == QLatin1Char('.');
    });
    return negative && !isNothing ? QLatin1Char('-') + result : result;
}

#include "data/purchaseThresholds.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace annualPlan {

namespace {

constexpr int codeDigits = 8;
constexpr int othersDigits = 3; // of the categories of "*"

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

} // namespace

QString codeOf(const QString &cpv)
{
    const QString code = cpv.trimmed().left(codeDigits);
    return code.size() == codeDigits && std::all_of(code.begin(), code.end(), isDigit) ? code
                                                                                       : QString();
}

standing standingOf(const decimal &sum, const decimal &threshold)
{
    if (sum > threshold)
        return standing::above;
    // 80 % is four fifths.
    return sum.times(5) >= threshold.times(4) ? standing::almost : standing::below;
}

thresholds readThresholds(const QString &text)
{
    static const QRegularExpression form(QStringLiteral(
        "^(\\*|[0-9]{1,8}) *: *((?:[0-9]{1,3}(?:[ \\x{a0}][0-9]{3})+|[0-9]+)(?:[.,][0-9]+)?)$"));
    thresholds result;
    const QStringList parts = text.split(QLatin1Char(';'));
    for (const QString &part : parts) {
        const auto match = form.match(part.trimmed());
        const QString digits = match.captured(1).remove(QLatin1Char('*'));
        const auto amount =
            decimal::read(match.captured(2).remove(QLatin1Char(' ')).remove(QChar::Nbsp));
        const bool isTwice =
            std::any_of(result.limits.begin(), result.limits.end(),
                        [&](const thresholds::limit &one) { return one.digits == digits; });
        if (amount && *amount > decimal() && !isTwice)
            result.limits.push_back({digits, *amount});
        else if (!part.trimmed().isEmpty())
            result.faults.append(part.trimmed());
    }
    return result;
}

std::optional<thresholds::limit> thresholds::categoryOf(const QString &code) const
{
    const limit *best = nullptr;
    for (const limit &one : limits)
        if (code.startsWith(one.digits) && (!best || one.digits.size() > best->digits.size()))
            best = &one;
    if (!best)
        return {};
    return limit{best->digits.isEmpty() ? code.left(othersDigits) : best->digits, best->amount};
}

} // namespace annualPlan

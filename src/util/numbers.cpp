#include "util/numbers.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

double parse(QString text, bool *ok)
{
    if (text.startsWith(QLatin1String("0x")))
        return text.toUInt(ok, 16);
    return text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(ok);
}

} // namespace

namespace numbers {

bool check(const QString &text, QString *errors)
{
    bool ok = false;
    parse(text, &ok);
    if (!ok && errors)
        *errors += QLatin1String("&nbsp;") + text + QLatin1String("&nbsp;")
                   + QCoreApplication::translate("numbers", "is not a number")
                   + QLatin1String("<br>");
    return ok;
}

double value(const QString &text)
{
    bool ok = false;
    const double number = parse(text, &ok);
    return ok ? number : 0.0;
}

std::optional<double> finite(const QString &text)
{
    bool ok = false;
    const double number = parse(text, &ok);
    return ok && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool addProduct(double *sum, double a, double b)
{
    const double after = *sum + a * b;
    if (!std::isfinite(after))
        return false;
    *sum = after;
    return true;
}

bool addProduct(double *sum, double a, const QString &b)
{
    const std::optional<double> number = finite(b);
    return number && addProduct(sum, a, *number);
}

QString plain(double value)
{
    constexpr int decimals = 6;
    QString text = QString::number(value, 'f', decimals);
    int end = text.size();
    while (text.at(end - 1) == QLatin1Char('0'))
        --end;
    if (text.at(end - 1) == QLatin1Char('.'))
        --end;
    text.truncate(end);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

QString money(double amount) { return QString::number(amount, 'f', 2); }

QString price(double amount)
{
    QString text = plain(amount);
    const int point = text.indexOf(QLatin1Char('.'));
    constexpr int least = 2;
    const int decimals = point < 0 ? 0 : text.size() - point - 1;
    if (point < 0)
        text += QLatin1Char('.');
    return text + QString(std::max(0, least - decimals), QLatin1Char('0'));
}

} // namespace numbers

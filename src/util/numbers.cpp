#include "util/numbers.h"

#include "util/decimal.h"

#include <QCoreApplication>

#include <cmath>

namespace {

double parse(QString text, bool *ok)
{
    if (text.startsWith(QLatin1String("0x")))
        return text.toUInt(ok, 16);
    return text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(ok);
}

constexpr int mostDecimals = 6;

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

QString price(const QString &stored)
{
    const std::optional<decimal> number = decimal::read(stored);
    return number ? number->text(mostDecimals, 2) : stored;
}

QString price(double amount) { return price(QString::number(amount, 'f', mostDecimals)); }

QString plain(double value)
{
    const QString text = QString::number(value, 'f', mostDecimals);
    const std::optional<decimal> number = decimal::read(text);
    return number ? number->text(mostDecimals) : text;
}

QString grouped(const QString &number)
{
    QString result = number;
    if (!decimal::read(number))
        return result;
    const int point = number.indexOf(QLatin1Char('.'));
    const int first = number.startsWith(QLatin1Char('-')) ? 1 : 0;
    constexpr int group = 3;
    for (int i = (point < 0 ? number.size() : point) - group; i > first; i -= group)
        result.insert(i, QChar(QChar::Nbsp));
    return result;
}

} // namespace numbers

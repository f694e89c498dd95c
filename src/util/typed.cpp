#include "util/typed.h"

#include "util/labels.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace typed {

namespace {

QString tr(const char *text, const char *comment = nullptr, int n = -1)
{
    return QCoreApplication::translate("typed", text, comment, n);
}

bool isBlank(QChar c) { return c.isSpace() || c == QChar(0x202F) || c == QChar(0x2009); }

QString faultOfForm(const QString &digits)
{
    if (digits.contains(QLatin1Char(',')) && digits.contains(QLatin1Char('.')))
        return tr("%1: either a comma or a point, before the decimals");
    return tr("%1 is not a number");
}

// The digits written with as many decimals as wanted.
QString written(QString whole, QString decimals, int least)
{
    static const QRegularExpression leadingZeros(QStringLiteral("^0+(?=\\d)"));
    whole.remove(leadingZeros);
    while (decimals.size() > least && decimals.endsWith(QLatin1Char('0')))
        decimals.chop(1);
    decimals = decimals.leftJustified(least, QLatin1Char('0'));
    if (whole.isEmpty())
        whole = QLatin1Char('0');
    return decimals.isEmpty() ? whole : whole + QLatin1Char('.') + decimals;
}

} // namespace

constexpr int mostDecimals = 6;

numberForm priceForm()
{
    constexpr int leastOfPrices = 2;
    return {0,
            priceMaximum,
            mostDecimals,
            leastOfPrices,
            {QStringLiteral("PLN"), QStringLiteral("[ PLN ]"), QStringLiteral("zł"),
             QStringLiteral("zl")}};
}

numberForm quantityForm(const QString &unit, double minimum, double maximum)
{
    numberForm form{minimum, maximum};
    if (!unit.isEmpty())
        form.units = QStringList{labels::shown(unit), unit};
    if (!labels::isCounted(unit))
        form.decimals = mostDecimals;
    return form;
}

number readNumber(const QString &given, const numberForm &form)
{
    QString text = given;
    for (QChar &c : text)
        if (isBlank(c))
            c = QLatin1Char(' ');
        else if (c == QChar(0x2212))
            c = QLatin1Char('-');
    text = text.trimmed();
    const auto refused = [&](const QString &fault) {
        return number{{}, fault.arg(given.trimmed())};
    };

    static const QRegularExpression parts(
        QStringLiteral("^([+-]?) ?([\\d., ]*\\d[.,]?|\\d) *(\\D.*)?$"));
    const QRegularExpressionMatch match = parts.match(text);
    if (!match.hasMatch())
        return refused(tr("%1 is not a number"));
    const QString unit = match.captured(3);
    const auto isUnit = [&unit](const QString &known) {
        return unit.compare(known, Qt::CaseInsensitive) == 0
               || (unit + QLatin1Char('.')).compare(known, Qt::CaseInsensitive) == 0;
    };
    if (!unit.isEmpty() && std::none_of(form.units.begin(), form.units.end(), isUnit)) {
        const QString expected = form.units.value(0);
        return refused(expected.isEmpty() || !unit.front().isLetter()
                           ? tr("%1 is not a number")
                           : tr("%1: the unit here is %2").arg(QStringLiteral("%1"), expected));
    }

    const QString digits = match.captured(2);
    static const QRegularExpression value(
        QStringLiteral("^(\\d{1,3}(?: \\d{3})+|\\d*)(?:[.,](\\d*))?$"));
    const QRegularExpressionMatch split = value.match(digits);
    if (!split.hasMatch())
        return refused(faultOfForm(digits));
    const QString sign = match.captured(1) == QLatin1String("-") ? QStringLiteral("-") : QString();
    QString whole = split.captured(1);
    whole.remove(QLatin1Char(' '));
    const QString canonical = written(whole, split.captured(2), form.leastDecimals);
    const int decimals = written(whole, split.captured(2), 0).section(QLatin1Char('.'), 1).size();
    if (decimals > form.decimals)
        return refused(form.decimals == 0
                           ? tr("%1: only a whole number makes sense here")
                           : tr("%1: at most %n decimal(s)", nullptr, form.decimals));
    const double amount = (sign + canonical).toDouble();
    if (amount < form.minimum || amount > form.maximum)
        return refused(tr("%1: from %2 to %3")
                           .arg(QStringLiteral("%1"), QString::number(form.minimum, 'f', 0),
                                QString::number(form.maximum, 'f', 0)));
    return {amount == 0 ? canonical : sign + canonical, {}};
}

day readDay(const QString &given, const QDate &today)
{
    const QString text = given.trimmed();
    static const QRegularExpression ahead(QStringLiteral("^\\+ ?(\\d{1,4})$"));
    static const QRegularExpression iso(QStringLiteral("^(\\d{4})[-./](\\d{1,2})[-./](\\d{1,2})$"));
    static const QRegularExpression usual(
        QStringLiteral("^(\\d{1,2})[-./,] ?(\\d{1,2})(?:[-./,] ?(\\d{4}|\\d{2}))?[-./,]?$"));
    QDate date;
    if (const auto match = ahead.match(text); match.hasMatch()) {
        date = today.addDays(match.captured(1).toInt());
    } else if (const auto dashed = iso.match(text); dashed.hasMatch()) {
        date = QDate(dashed.captured(1).toInt(), dashed.captured(2).toInt(),
                     dashed.captured(3).toInt());
    } else if (const auto dotted = usual.match(text); dotted.hasMatch()) {
        const int dayOfMonth = dotted.captured(1).toInt();
        const int month = dotted.captured(2).toInt();
        const QString year = dotted.captured(3);
        constexpr int century = 2000;
        constexpr int leapDayAhead = 8; // years until 29.02 comes again at the latest
        if (!year.isEmpty())
            date = QDate(year.toInt() + (year.size() == 2 ? century : 0), month, dayOfMonth);
        for (int y = 0; year.isEmpty() && y <= leapDayAhead && (!date.isValid() || date < today);
             ++y)
            date = QDate(today.year() + y, month, dayOfMonth);
    }
    if (date.isValid())
        return {date, {}};
    return {{}, tr("%1 is no date: write 24.12, 24.12.2026 or +14").arg(text)};
}

day readDay(const QString &text, const QDate &today, const QDate &first, const QDate &last)
{
    const day read = readDay(text, today);
    if (!read.fault.isEmpty() || (read.date >= first && read.date <= last))
        return read;
    const auto shown = [](const QDate &date) { return date.toString(labels::dateFormat()); };
    return {{}, tr("%1: dates from %2 to %3").arg(shown(read.date), shown(first), shown(last))};
}

} // namespace typed

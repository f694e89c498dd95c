#include "util/dates.h"

#include "util/text.h"

#include <QStringList>

namespace dates {

QString fromMonthNames(const QString &text)
{
    static const QStringList months{
        QStringLiteral("jan"), QStringLiteral("feb"), QStringLiteral("mar"), QStringLiteral("apr"),
        QStringLiteral("may"), QStringLiteral("jun"), QStringLiteral("jul"), QStringLiteral("aug"),
        QStringLiteral("sep"), QStringLiteral("oct"), QStringLiteral("nov")};

    const QStringList parts =
        text::collapseDoubleSpaces(text.toLower()).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return {};
    // Whatever is not one of the eleven, "dec" among it, is December.
    const int found = months.indexOf(parts.at(0));
    const int month = found < 0 ? 12 : found + 1;
    QString result = QStringLiteral("%1.").arg(month, 2, 10, QLatin1Char('0'));
    if (parts.size() > 1)
        result.prepend(parts.at(1).rightJustified(2, QLatin1Char('0')) + QLatin1Char('.'));
    if (parts.size() > 2)
        result.append(parts.at(2));
    return result;
}

} // namespace dates

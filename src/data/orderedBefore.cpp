#include "data/orderedBefore.h"

#include "util/labels.h"
#include "util/numbers.h"

decimal orderedBefore::onTheWayIn(const QString &unit) const
{
    decimal sum;
    for (const auto &[of, quantity] : onTheWay)
        if (of.trimmed() == unit.trimmed())
            sum += quantity;
    return sum;
}

QString orderedBefore::onTheWayText() const
{
    QStringList parts;
    for (const auto &[unit, quantity] : onTheWay)
        parts.append((quantity.text() + QLatin1Char(' ') + labels::shown(unit)).trimmed());
    return parts.join(QLatin1String(", "));
}

QString orderedBefore::lastText() const
{
    if (!last.date.isValid())
        return {};
    return QStringLiteral("%1, %2 PLN, %3")
        .arg(last.date.toString(QStringLiteral("dd.MM.yyyy")), numbers::price(last.price),
             last.order);
}

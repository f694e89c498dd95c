#include "data/orderRules.h"

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>

namespace {

// Calls for each part "KEY: REST" of a list with semicolons; returns those that it refuses.
QStringList refused(const QString &text,
                    const std::function<bool(const QString &key, const QString &rest)> &take)
{
    QStringList faults;
    for (const QString &part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const int colon = part.indexOf(QLatin1Char(':'));
        const QString key = part.left(std::max(colon, 0)).trimmed();
        if (!part.trimmed().isEmpty()
            && (key.isEmpty() || !take(key, part.mid(colon + 1).trimmed())))
            faults.append(part.trimmed());
    }
    return faults;
}

QString folded(const QString &casing) { return casing.simplified().toCaseFolded(); }

long long wholeAtLeast(const decimal &amount)
{
    const long long rounded = amount.text(0).toLongLong();
    return decimal::read(QString::number(rounded)).value_or(decimal()) < amount ? rounded + 1
                                                                                : rounded;
}

decimal whole(long long number)
{
    return decimal::read(QString::number(number)).value_or(decimal());
}

} // namespace

orderRules::orderRules(const configStruct &config)
{
    readAttrition(config.options.value(optionKey::bomAttrition));
    readMultiples(config.options.value(optionKey::bomMultiple));
}

QStringList orderRules::readAttrition(const QString &text)
{
    m_attrition.clear();
    return refused(text, [this](const QString &key, const QString &rest) {
        static const QRegularExpression form(
            QStringLiteral("^(?:([\\d.,]+) *%)?[ ,]*([\\d.,]+)?$"));
        const auto match = form.match(rest);
        const auto share = decimal::read(match.captured(1));
        const auto least = decimal::read(match.captured(2));
        if (!match.hasMatch() || rest.isEmpty() || (!match.captured(1).isEmpty() && !share)
            || (!match.captured(2).isEmpty() && !least))
            return false;
        static const decimal hundredth = *decimal::read(QStringLiteral("0.01"));
        m_attrition.push_back(
            {folded(key), share ? *share * hundredth : decimal(), least.value_or(decimal())});
        return true;
    });
}

QStringList orderRules::readMultiples(const QString &text)
{
    m_multiples.clear();
    return refused(text, [this](const QString &key, const QString &rest) {
        bool isNumber = false;
        const long long of = rest.toLongLong(&isNumber);
        const QString unit = labels::storedOf(key);
        if (!isNumber || of < 1 || !labels::storedUnits().contains(unit))
            return false;
        m_multiples.push_back({unit, of});
        return true;
    });
}

decimal orderRules::extra(const materialStruct &material, const decimal &needed) const
{
    if (needed <= decimal())
        return {};
    const QString casing = folded(material.d_case);
    const auto rule = [this](const QString &wanted) {
        return std::find_if(m_attrition.begin(), m_attrition.end(),
                            [&](const attrition &one) { return one.casing == wanted; });
    };
    auto found = casing.isEmpty() ? m_attrition.end() : rule(casing);
    if (found == m_attrition.end())
        found = rule(QStringLiteral("*"));
    if (found == m_attrition.end())
        return {};
    const decimal share = needed * found->share;
    const decimal more = share < found->least ? found->least : share;
    return labels::isCounted(labels::unitOrPieces(material.d_unit))
               ? whole(wholeAtLeast(needed + more)) - needed
               : more;
}

decimal orderRules::raised(const materialStruct &material, const decimal &amount) const
{
    if (amount <= decimal())
        return amount;
    const auto found =
        std::find_if(m_multiples.begin(), m_multiples.end(), [&](const multiple &one) {
            return one.unit == labels::unitOrPieces(material.d_unit);
        });
    if (found == m_multiples.end())
        return amount;
    const long long pieces = wholeAtLeast(amount);
    return whole((pieces + found->of - 1) / found->of * found->of);
}

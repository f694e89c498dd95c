#include "firm/firmChecks.h"

#include "data/kiv_mat_firmStruct.h"

#include <QCoreApplication>

namespace {

bool isDigit(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

bool isLetter(QChar c) { return c >= QLatin1Char('A') && c <= QLatin1Char('Z'); }

// The tenth digit is the weighted sum of the others modulo 11.
bool checkDigitFits(const QString &digits)
{
    constexpr int weights[] = {6, 5, 7, 2, 3, 4, 5, 6, 7};
    int sum = 0;
    for (int i = 0; i < 9; ++i)
        sum += weights[i] * digits.at(i).digitValue();
    return sum % 11 == digits.at(9).digitValue();
}

} // namespace

taxNumberState checkTaxNumber(const QString &number)
{
    QString text;
    for (QChar c : number)
        if (!c.isSpace() && c != QLatin1Char('-'))
            text.append(c.toUpper());
    if (text.isEmpty())
        return taxNumberState::none;
    if (text.size() > 2 && isLetter(text.at(0)) && isLetter(text.at(1))) {
        if (!text.startsWith(QLatin1String("PL")))
            return std::any_of(text.begin(), text.end(), isDigit) ? taxNumberState::foreign
                                                                  : taxNumberState::wrong;
        text.remove(0, 2);
    }
    // No office gives a number of zeros, though its check digit would fit.
    const bool good = text.size() == 10 && std::all_of(text.begin(), text.end(), isDigit)
                      && text.count(QLatin1Char('0')) < 10 && checkDigitFits(text);
    return good ? taxNumberState::good : taxNumberState::wrong;
}

QString taxNumberWarning(const QString &number)
{
    return checkTaxNumber(number) == taxNumberState::wrong
               ? QCoreApplication::translate("firmChecks", "The tax number %1 is not correct")
                     .arg(number)
               : QString();
}

std::vector<const firmStruct *> firmsWithWrongTaxNumber(const kiv_mat_firmStruct &firms)
{
    std::vector<const firmStruct *> result;
    const auto collect = [&result](const auto &list) {
        for (const auto &firm : list.items)
            if (checkTaxNumber(firm->nip) == taxNumberState::wrong)
                result.push_back(firm.get());
    };
    collect(firms.manufacturers);
    collect(firms.suppliers);
    return result;
}

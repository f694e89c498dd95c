#include "data/lineSums.h"

#include "data/kiv_mat_zpStruct.h"
#include "util/numbers.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

constexpr const char *reasonTexts[lineSum::reasons] = {
    QT_TRANSLATE_N_NOOP("lineSums", "%n line(s) without a readable quantity are left out"),
    QT_TRANSLATE_N_NOOP("lineSums", "%n line(s) without a price are left out"),
    QT_TRANSLATE_N_NOOP("lineSums", "%n line(s) without an average price are left out"),
    QT_TRANSLATE_N_NOOP("lineSums", "%n line(s) of unknown materials are left out"),
    QT_TRANSLATE_N_NOOP("lineSums", "%n line(s) whose price is no number are left out")};

constexpr lineSum lineSums::*allSums[] = {&lineSums::quantity, &lineSums::price,
                                          &lineSums::averagePrice};

void addProduct(lineSum &sum, const std::optional<decimal> &quantity, const QString &price,
                lineSum::reason withoutPrice)
{
    const std::optional<decimal> number = decimal::read(price);
    if (quantity && number)
        sum.amount += *quantity * *number;
    else
        ++sum.leftOut.at(!quantity                   ? lineSum::noQuantity
                         : price.trimmed().isEmpty() ? withoutPrice
                                                     : lineSum::noNumber);
}

} // namespace

lineSum &lineSum::operator+=(const lineSum &other)
{
    amount += other.amount;
    for (size_t i = 0; i < reasons; ++i)
        leftOut[i] += other.leftOut[i];
    return *this;
}

QString lineSum::money() const { return numbers::grouped(amount.money()); }

QString lineSum::leftOutText() const
{
    QStringList texts;
    for (size_t i = 0; i < reasons; ++i)
        if (leftOut[i] > 0)
            texts.append(
                QCoreApplication::translate("lineSums", reasonTexts[i], nullptr, leftOut[i]));
    return texts.join(QLatin1String("; "));
}

QString lineSum::note() const
{
    const QString text = leftOutText();
    return text.isEmpty() ? text : QLatin1String(" (") + text + QLatin1Char(')');
}

void lineSums::add(const std::optional<decimal> &quantityOf, const QString &priceOf,
                   const QString &averagePriceOf, bool known)
{
    ++lines;
    unknown += !known;
    if (quantityOf)
        quantity.amount += *quantityOf;
    else
        ++quantity.leftOut[lineSum::noQuantity];
    addProduct(price, quantityOf, priceOf, known ? lineSum::noPrice : lineSum::unknownMaterial);
    addProduct(averagePrice, quantityOf, averagePriceOf,
               known ? lineSum::noAveragePrice : lineSum::unknownMaterial);
}

lineSums &lineSums::operator+=(const lineSums &other)
{
    for (lineSum lineSums::*sum : allSums)
        this->*sum += other.*sum;
    lines += other.lines;
    unknown += other.unknown;
    return *this;
}

lineSums lineSums::times(int sets) const
{
    lineSums result = *this;
    for (lineSum lineSums::*sum : allSums)
        (result.*sum).amount = (this->*sum).amount.times(sets);
    return result;
}

lineSums sumsOf(const std::vector<const orderItemStruct *> &lines)
{
    lineSums sums;
    for (const orderItemStruct *line : lines)
        sums.add(decimal::read(line->quantity), line->price, line->averagePrice);
    return sums;
}

lineSums sumsOf(const kiv_mat_zpStruct &order)
{
    std::vector<const orderItemStruct *> lines;
    for (const auto &line : order.orderItems.items)
        lines.push_back(line.get());
    return sumsOf(lines);
}

std::optional<decimal> readVat(const QString &text)
{
    constexpr int whole = 100;
    const auto rate = decimal::read(text.trimmed());
    const bool isRate =
        rate && *rate >= decimal() && *rate <= *decimal::read(QString::number(whole));
    return isRate ? rate : std::nullopt;
}

// On whole grosz, as it stands on an invoice.
decimal vatOf(const decimal &net, const decimal &rate)
{
    const decimal share = *decimal::read((rate * *decimal::read(QStringLiteral("0.01"))).text());
    return *decimal::read((*decimal::read(net.money()) * share).money());
}

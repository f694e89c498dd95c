// The sums over lines of orders and BOM lists: the same in windows, reports and the command line.
#pragma once

#include "util/decimal.h"

#include <array>
#include <optional>
#include <vector>

class kiv_mat_zpStruct;
class orderItemStruct;

// A sum, and the lines that are not in it.
struct lineSum
{
    enum reason
    {
        noQuantity, // none, or not a number
        noPrice,
        noAveragePrice,
        unknownMaterial, // and so no price
        noNumber,        // the price is not a number
        reasons
    };

    decimal amount;
    std::array<int, reasons> leftOut{};

    lineSum &operator+=(const lineSum &other);

    // In whole grosz as people read it, "1 234.50" with a no-break space; rounded here alone.
    QString money() const;
    // "2 lines without a price are left out"; empty when all lines are in the sum.
    QString leftOutText() const;
    // The same in brackets after a space, to stand behind the sum.
    QString note() const;
};

struct lineSums
{
    lineSum quantity;     // of different units too, as one number of pieces
    lineSum price;        // PLN, price times quantity
    lineSum averagePrice; // PLN, average price times quantity
    int lines = 0;
    int unknown = 0; // lines whose material is in no database

    // Adds a line; its quantity is nothing when none can be counted.
    void add(const std::optional<decimal> &quantityOf, const QString &priceOf,
             const QString &averagePriceOf, bool known = true);
    lineSums &operator+=(const lineSums &other);
    // Of so many sets: the amounts grow, the numbers of lines do not.
    lineSums times(int sets) const;
};
// A rate of VAT in percent, from 0 to 100; nothing for any other text.
std::optional<decimal> readVat(const QString &text);
// The tax on a sum without it, both in whole grosz.
decimal vatOf(const decimal &net, const decimal &rate);
lineSums sumsOf(const std::vector<const orderItemStruct *> &lines);
// Over all lines.
lineSums sumsOf(const kiv_mat_zpStruct &order);

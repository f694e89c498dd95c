// What the columns of a firm's table or price list hold, by their captions, and how their texts are
// read: numbers, dates and currencies as firms write them.
#pragma once

#include "util/decimal.h"

#include <QDate>
#include <QStringList>
#include <QVector>

#include <optional>

namespace offerImport {

// What a column holds. price, from and breaks may be those of several columns.
enum field
{
    none,
    key,        // our number: the KTM, or what was asked under
    partNumber, // of the maker
    from,       // the quantity from which on the price beside it holds
    price,      // for one unit
    breaks,     // all prices in one text: "1: 0.50; 100: 0.42"
    minimum,
    multiple,
    leadTime, // days
    remarks,
    currency, // of the prices in that row
    fieldCount
};
// As the user reads it.
QString captionOf(field of);
// The name in commands; fieldCount when no field has it.
QString nameOf(field of);
field fieldCalled(const QString &name);

// What the captions of a row say, by column; none for those that are not known.
QVector<field> fieldsOf(const QStringList &captions);

// --- Captions of prices

// The currency that a caption names, as in "Price [EUR]"; empty when it names none.
QString currencyIn(const QString &caption);
bool saysGross(const QString &caption);
// Whether its prices are of several pieces together, as "per 100" and "za 1000 szt." say.
bool isOfSeveral(const QString &caption);
// The quantity from which on its prices hold, as "100+" says; empty when it says none.
QString breakIn(const QString &caption);

// --- Texts

// A currency's code by what stands for it: "zł" is PLN.
QString currencyOf(const QString &text);
// Texts as firms write them: thousands parted by blanks, comma or point; rounded to six decimals,
// which takes away what a workbook adds to 0.1. Nothing for any other text.
std::optional<decimal> numberOf(const QString &text);
// dd.MM.yyyy, yyyy-MM-dd, yyyy.MM.dd, or the number of a day as a workbook has it; null for any
// other text.
QDate dateOf(const QString &text);

} // namespace offerImport

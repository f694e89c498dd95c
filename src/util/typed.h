// Numbers and dates as people type and paste them: read whatever the way of writing, as long as it
// can mean one thing only.
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <limits>

namespace typed {

struct numberForm
{
    double minimum = 0;
    double maximum = 0;
    int decimals = 0;      // at most so many are taken
    int leastDecimals = 0; // at least so many are written
    // What may stand behind the number, in any case: the units or the currency of the cell.
    QStringList units = {};
};

// Of a price in PLN, and of a quantity in a stored unit, where units that count take whole numbers.
constexpr double priceMaximum = 1000000.0;
numberForm priceForm();
numberForm quantityForm(const QString &unit, double minimum = 0,
                        double maximum = std::numeric_limits<int>::max());

struct number
{
    QString text;  // digits with a point: "1234.50"; what is stored
    QString fault; // why it cannot be taken, for the user; text is empty then
};

// Reads "1 234,50 zł", "+14", "2 kg", ".5": comma or point before the decimals, blanks of any kind
// between thousands. Refused is what can be read in two ways (comma and point, blanks elsewhere
// than before three digits), too many decimals, another unit, and a number out of range.
number readNumber(const QString &text, const numberForm &form);

struct day
{
    QDate date;
    QString fault; // why it cannot be taken, for the user; the date is invalid then
};

// Reads "24.12.2026", "24.12.26", "2026-12-24", "24.12" (the next one from today on) and "+14"
// (days from today); point, hyphen, slash or comma between the parts.
day readDay(const QString &text, const QDate &today);
// The same, from one day to another only.
day readDay(const QString &text, const QDate &today, const QDate &first, const QDate &last);

} // namespace typed

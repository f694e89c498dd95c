// What came of an order's lines. A line has one delivery: of one that came in part, what came stays
// in it, and the rest becomes a line of its own behind it.
#pragma once

#include "util/decimal.h"

#include <QDate>
#include <QStringList>

#include <optional>
#include <vector>

class kiv_mat_zpStruct;
class orderItemStruct;

namespace deliveries {

// How a delivery stands in a line: "WZ 12/2026, 26.11.2026".
QString textOf(const QString &number, const QDate &date);

// Whether something of the line is still to come: it has a quantity, and neither delivery nor
// invoice.
bool isOpen(const orderItemStruct &line);

// What came of a line, from 0.
struct delivered
{
    int line;
    decimal quantity;
};
struct result
{
    QStringList faults; // a text for each line that cannot be; then nothing was noted
    int whole = 0;      // lines that came whole
    int parted = 0;     // lines that came in part
};
// Notes a delivery, of at least one character, in the lines that came. Refused are lines that are
// not open or not there, that are named twice, and quantities not above 0 or above the line's.
result note(kiv_mat_zpStruct *order, std::vector<delivered> what, const QString &delivery);

// Reads "1, 3=40, 5-8" (line numbers from 1; a quantity where only a part came) for an order.
// Nothing, with the reason in fault, when it says something else.
std::optional<std::vector<delivered>> read(const QString &text, const kiv_mat_zpStruct &order,
                                           QString *fault);

} // namespace deliveries

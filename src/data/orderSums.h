// The sums over lines of an order: the same in the report, the main window and the command line.
#pragma once

#include <vector>

class kiv_mat_zpStruct;
class orderItemStruct;

struct orderSums
{
    double quantity = 0;     // of different units too, as one number of pieces
    double price = 0;        // PLN, price times quantity
    double averagePrice = 0; // PLN, average price times quantity
    int lines = 0;
    int uncounted = 0; // lines whose price or quantity is no number, or too large to be summed
};
orderSums sumsOf(const std::vector<const orderItemStruct *> &lines);
// Over all lines.
orderSums sumsOf(const kiv_mat_zpStruct &order);

#include "data/orderSums.h"

#include "data/kiv_mat_zpStruct.h"
#include "util/numbers.h"

orderSums sumsOf(const std::vector<const orderItemStruct *> &lines)
{
    orderSums sums;
    for (const orderItemStruct *line : lines) {
        ++sums.lines;
        const std::optional<double> quantity = numbers::finite(line->quantity);
        if (!quantity) {
            ++sums.uncounted;
            continue;
        }
        numbers::addProduct(&sums.quantity, *quantity, 1);
        if (!numbers::addProduct(&sums.price, *quantity, line->price))
            ++sums.uncounted;
        numbers::addProduct(&sums.averagePrice, *quantity, line->averagePrice);
    }
    return sums;
}

orderSums sumsOf(const kiv_mat_zpStruct &order)
{
    std::vector<const orderItemStruct *> lines;
    for (const auto &line : order.orderItems.items)
        lines.push_back(line.get());
    return sumsOf(lines);
}

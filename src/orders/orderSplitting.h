// Parts an order into one for each firm that was chosen, as files beside it.
#pragma once

#include "orders/orderOffers.h"

class configStruct;
class orderRegister;

namespace orderSplitting {

// One of the orders that it is parted into.
struct part
{
    QString firm; // empty: lines without a chosen firm
    QString nip;
    QString number;         // of the order: that of the whole with "/1", "/2" ... behind it
    std::vector<int> lines; // of the whole order, from 0
};
struct plan
{
    std::vector<part> parts; // the firms by their first lines, then the rest
    QString fault;           // why there is nothing to part: nothing is chosen, or all of one firm
};
// By the firms chosen in the offers file.
plan planOf(const kiv_mat_zpStruct &order, const kiv_mat_offersStruct &offers);

// Why it cannot be parted: that of planOf(), or that its parts from before are there. Empty when it
// can.
QString faultOf(const kiv_mat_zpStruct &order, const QString &orderPath,
                const kiv_mat_offersStruct &offers, orderRegister &orders);

// Writes "zp_7_TME.xml" ... and "zp_7_rest.xml" beside the order zp_7.xml: lines as the order has
// them, numbered from 1, with its options and remarks; each with an offers file that names its firm
// for each material. Then notes that they are in the place of the order, whose file stays as it is.
// Returns the files. Empty, with the reason in fault and none of them left, when faultOf() has
// one, or when one of them cannot be written.
QStringList split(const kiv_mat_zpStruct &order, const QString &orderPath,
                  const kiv_mat_offersStruct &offers, orderRegister &orders, configStruct &config,
                  QString *fault);

} // namespace orderSplitting

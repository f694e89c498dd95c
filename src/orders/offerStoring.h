// Keeps an offer that was read, and the file that it came in, beside the order.
#pragma once

#include "orders/orderOffers.h"

class configStruct;

namespace offerImport {

// Keeps the file that came in the folder of the order's offers and writes the offer into its
// offers file. Where the firm has an offer on the same request, or both are on none, this one is
// refused unless it is to replace that; the file of the earlier one stays.
// False, with nothing changed and the reason in fault, when that or the writing fails.
// orderNumber: for an offers file that is not there yet. stored: gets the path of the copy.
bool store(const offerStruct &offer, const QString &file, const QString &orderPath,
           const QString &orderNumber, bool replaces, configStruct &config, QString *fault,
           QString *stored = nullptr);

} // namespace offerImport

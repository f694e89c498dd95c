// The windows' way to the shared store of the configuration: reached while the window stays
// painted, the password from the desktop's store of secrets or asked for.
#pragma once

#include "store/storeConnection.h"

#include <memory>

class configStruct;
class workProgress;

namespace storeAccess {

// Null, told to the user unless it was cancelled, when it cannot be reached. asks: whether a
// password may be asked for, and faults told.
std::unique_ptr<store::connection> open(const configStruct &config, workProgress &progress,
                                        bool asks = true);

} // namespace storeAccess

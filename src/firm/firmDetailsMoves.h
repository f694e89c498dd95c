// What becomes of the details of firms when their register changes: those that get another name or
// tax number, and those that are merged, keep theirs.
#pragma once

#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "firm/firmOperations.h"

namespace firmOperations {

// Gives the details the names and numbers that their firms have afterwards. steps: the new names in
// between. The details of several firms that become one become one, too: the texts of the firm
// whose name stays, and of the others what it lacks. Those of a firm that stands in the other list
// under its old name are doubled. What is known of firms that are gone stays as it is. True when
// anything was changed.
bool moveDetails(kiv_mat_firmDetailsStruct *details, const kiv_mat_firmStruct &before,
                 const kiv_mat_firmStruct &after, const renameList &steps);

} // namespace firmOperations

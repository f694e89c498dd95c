// Offers what can be read of a damaged file.
#pragma once

#include "data/documentStruct.h"

#include <memory>

class workProgress;

// Repairs a damaged file and asks whether the repaired copy shall be opened; then what was mended
// or dropped is listed in the errors window. Null when the user does not want it, when the file is
// not damaged, or when nothing of it can be read, in which case why is put into fault. The file
// stays as it is.
std::unique_ptr<documentStruct> offerRepaired(const QString &path, workProgress &progress,
                                              QString *fault);

// How long operations report: done and total are in the same unit (bytes, pages, materials); the
// answer false cancels the operation.
#pragma once

#include <functional>

using progressFunction = std::function<bool(long long done, long long total)>;

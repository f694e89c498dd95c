// Dates in the two forms that the program meets: its own "dd.MM.yyyy", and English month names as
// compilers and tools write them.
#pragma once

#include <QString>

namespace dates {

// "Nov 24 2026" (month, day, year; any case, any number of spaces) to "24.11.2026", the day with
// two digits. A month word that is none of jan to nov counts as December. Missing parts are left
// out.
QString fromMonthNames(const QString &text);

} // namespace dates

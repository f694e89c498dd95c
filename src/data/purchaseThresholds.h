// CPV codes, and up to which sums a year's purchases of their categories may go: an option of the
// configuration.
#pragma once

#include "util/decimal.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace annualPlan {

// The 8 digits with which a CPV code begins ("31711100-4", "31711100"); empty for any other text.
QString codeOf(const QString &cpv);

// --- Thresholds

// How a sum stands to its threshold: almost from 80 % of it, above when it is more.
enum class standing
{
    none, // there is no threshold
    below,
    almost,
    above
};
standing standingOf(const decimal &sum, const decimal &threshold);

struct thresholds
{
    struct limit
    {
        QString digits; // with which codes begin; empty for "*"
        decimal amount; // PLN
    };
    std::vector<limit> limits;
    QStringList faults; // what is not understood, each part as it stands; it is left out

    // The category that a code counts in, and no other one: that of the most digits that it begins
    // with; else the group of its first 3 digits when there is a "*". Nothing when none is for it.
    std::optional<limit> categoryOf(const QString &code) const;
};
// Of the configuration's ORDER_THRESHOLDS, "302: 50000; 31711: 130000; *: 130000": the first 1 to 8
// digits of codes, or
// "*", and an amount above 0, which may have blanks between thousands. What comes twice is not
// understood the second time.
thresholds readThresholds(const QString &text);

} // namespace annualPlan

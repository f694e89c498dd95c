// Which record of a later list is which of an earlier one.
#pragma once

#include <QString>

#include <functional>
#include <vector>

struct recordMatches
{
    // For each record of the later list its place in the earlier one, or -1.
    std::vector<int> before;
    // The running number of each record among those of its list that have its key, from 1.
    std::vector<int> numbersBefore;
    std::vector<int> numbersAfter;
};

// What records of one key are told apart by: a number that is the same for records that belong
// together, for the record at that place of the later list or of the earlier one.
using likeness = std::function<quint64(bool later, int place)>;

// Matches records by key. Where several have one key, those that the first likeness brings together
// belong together, then those of the next, and what is left in the order of the lists. Linear in
// the number of records, however many have one key.
recordMatches matchRecords(const std::vector<QString> &before, const std::vector<QString> &after,
                           const std::vector<likeness> &likenesses);

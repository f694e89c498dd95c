// One text of a record before and after an operation: what is shown before anything is written,
// and what makes one undo step afterwards.
#pragma once

#include <QString>

#include <vector>

class d_groupStruct;
class materialStruct;

template <class Record>
struct textChange
{
    Record *record;
    QString Record::*field;
    QString before;
    QString after;
};

using materialChange = textChange<materialStruct>;
using groupChange = textChange<d_groupStruct>;

template <class Record>
void applyChanges(const std::vector<textChange<Record>> &changes)
{
    for (const auto &change : changes)
        change.record->*change.field = change.after;
}

// Takes back what applyChanges() did, the last change first.
template <class Record>
void revertChanges(const std::vector<textChange<Record>> &changes)
{
    for (auto change = changes.rbegin(); change != changes.rend(); ++change)
        change->record->*change->field = change->before;
}

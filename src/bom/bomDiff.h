// What two BOM lists of one board differ in, as a person who builds it sees it: by designator.
#pragma once

#include "data/kiv_mat_bomStruct.h"

#include <vector>

struct bomDifference
{
    enum kind
    {
        added,     // parts that only the second list has
        removed,   // that only the first one has
        exchanged, // designators that have another material
        quantity   // of a material without designators, or beside them
    };
    kind what;
    QStringList designators; // may be empty
    QString ktmBefore;
    QString nameBefore;
    QString ktmAfter;
    QString nameAfter;
    QString quantityBefore; // of all the material's lines; for designators their number
    QString quantityAfter;
};

// Exchanged parts first, in the order of their designators; then what was added, removed, and
// quantities.
std::vector<bomDifference> compareBoms(const kiv_mat_bomStruct &before,
                                       const kiv_mat_bomStruct &after);

// For the user, and for files.
QString textOf(bomDifference::kind kind);
QString nameOf(bomDifference::kind kind);
// Captions and cells of a table: what, designators, then quantity, KTM and name, before and after.
QStringList bomDifferenceCaptions();
QStringList cellsOf(const bomDifference &difference);
// "~ R1, R2: 2 x K1 a -> K2 b", "+ C9: 1 x K3 c", "- ...", "= K4 d: 3 -> 5".
QString lineOf(const bomDifference &difference);

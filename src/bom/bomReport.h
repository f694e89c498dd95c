// What is made of BOM lists for others to read: the page, the summary of sums, the table of what is
// needed, and the text of KTMs and quantities.
#pragma once

#include "bom/bomOperations.h"

namespace bomReport {

// The lists as one HTML page that loads nothing, for a view, a file, printPdf() or the converter to
// DOC: a heading, a table of the lines and the sums for each. Lists that are not built (0 sets)
// show one set.
QString page(const std::vector<bomOperations::bomSets> &lists, const ktmIndex &materials);

// The title at the foot of printed pages: the names of the lists' files.
QString title(const std::vector<bomOperations::bomSets> &lists);

// A fragment of HTML with the sums of one set, and of all sets when there are several.
QString sums(const lineSums &ofOne, int sets);

// A cell of the table of needs as text; unknown stock is "?".
enum needColumn
{
    ktmColumn,
    nameColumn,
    neededColumn,
    inStockColumn,
    shortageColumn,
    knownColumn,
    needColumns
};
QString needCaption(needColumn column);
QString needText(const bomOperations::need &of, needColumn column);

// A cell of the table of needs beside an order; what is unknown is empty.
enum workColumn
{
    workKtm,
    workName,
    workNeeded,
    workExtra, // that gets lost
    workInStock,
    workReserved, // for other boards
    workOnTheWay, // in other orders
    workShort,
    workInOrder,
    workToOrder,
    workAfter,
    workUnit,
    workPrice,
    workAmount, // of what is to be ordered
    workLastOrdered,
    workSupplier,
    workColumns
};
QString workCaption(workColumn column);
QString workText(const bomOperations::orderedNeed &of, workColumn column);
bool isNumber(workColumn column);

// One line "KTM, tab, quantity" for each line of the list, "!!!!!" before a KTM that no database
// has. Tabs and line ends within a text become blanks.
QString csv(const kiv_mat_bomStruct &bom, const ktmIndex &materials);

// The file proposed for it, or with another ending for the report: the list's name in the user's
// folder of documents.
QString proposedPath(const QString &bomPath, const QString &ending);

} // namespace bomReport

// The file of what boards take of the stock, beside the set of BOM lists.
#pragma once

#include "data/kiv_mat_reservationsStruct.h"
#include "data/sharedFile.h"
#include "util/decimal.h"

#include <QHash>

class reservationsFile : public sharedDocument<kiv_mat_reservationsStruct>
{
public:
    using sharedDocument::sharedDocument;
    // The path of the one that belongs to a set of BOM lists; empty without a set.
    static QString beside(const QString &setPath);
};

// What is reserved of each KTM, by all boards.
QHash<QString, decimal> reservedTotals(const kiv_mat_reservationsStruct &of);

// What one board has reserved of a KTM.
struct reservedPart
{
    const boardStruct *board;
    decimal quantity;
};
std::vector<reservedPart> reservedParts(const kiv_mat_reservationsStruct &of, const QString &ktm);

// The file of a board's BOM list, as an absolute path; filePath is that of the reservations.
QString listOf(const boardStruct &board, const QString &filePath);
// A line "LED board, 20 sets" for the user.
QString captionOf(const boardStruct &board);
// A path to be compared with others: one file may be named by several.
QString comparableFile(const QString &path);

// Takes so many sets of a board's reservations away, the oldest first, and returns what was taken
// of each; quantities that were whole stay whole.
std::vector<std::unique_ptr<boardStruct>> releaseReserved(kiv_mat_reservationsStruct *reservations,
                                                          const QString &list, int sets);

// Notes a board as built, and releases so many sets of its reservations as it says.
void noteBuilt(kiv_mat_reservationsStruct *reservations, const boardStruct &board);

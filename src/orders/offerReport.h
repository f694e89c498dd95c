// The comparison of the offers for an order as the document that is kept with it.
#pragma once

#include "orders/offerComparison.h"
#include "util/tableFile.h"

namespace offerReport {

// What is written. reason, date and by are of the choice that was taken into the order; a proposal
// has none.
struct content
{
    offerComparison::comparison compared;
    offerComparison::selection chosen;
    QString orderDate; // as the order has it
    bool isProposed = true;
    QString reason;
    QDate date;
    QString by;
};
// Where the offers file has these choices, with the reason, the date and the person of the latest
// of them; any others are proposed.
content contentOf(const offerComparison::comparison &compared,
                  const offerComparison::selection &chosen, const kiv_mat_zpStruct &order,
                  const kiv_mat_offersStruct &offers);

// "Comparison of offers ZP/7/2026", which also stands at the foot of printed pages.
QString title(const content &of);
// "best", "chosen" or "proposed", or both; empty for neither. Words, since a colour alone says
// nothing.
QString markOf(const content &of, int material, int firm);
// The data of a firm's offer, those that are not said left out.
struct said
{
    QString caption;
    QString text;
};
std::vector<said> termsOf(const offerComparison::firm &of);

// The comparison as an HTML page that loads nothing, for a file or printPdf().
QString page(const content &of);
// Writes the table as CSV when the path ends so, else as a workbook. The file there stays as it was
// unless all is written; why it is not goes to fault.
tableFile::result write(const content &of, const QString &path, QString *fault,
                        const progressFunction &progress = {});

// The file proposed for it, beside the order.
QString proposedPath(const QString &orderPath);

} // namespace offerReport

// What is made of an annual plan for others to read: its cells, the page, and the workbook.
#pragma once

#include "orders/annualPlan.h"
#include "util/tableFile.h"

namespace annualPlanReport {

enum column
{
    nameColumn,
    estimatedColumn,
    orderedColumn,
    restColumn,
    shareColumn, // of the year's estimated sum, in percent
    linesColumn,
    ordersColumn,
    leftOutColumn,
    thresholdColumn,
    stateColumn,
    columns
};
// by: what the rows are.
QString caption(column which, annualPlan::grouping by);
bool isNumber(column which);
// A cell as text; amounts as files have them, "1234.50".
QString cell(const annualPlan::row &of, column which, const annualPlan::sums &total);
QString totalCell(const annualPlan::sums &total, column which);
// An amount, and any other text, as people read it: "1 234.50".
QString shown(const QString &cell, column which);

// "above", "80 % reached", "below"; empty without a threshold.
QString stateText(annualPlan::standing state);
// The categories that are above their thresholds, or near them, a line of text each.
QStringList reached(const annualPlan::plan &of, annualPlan::standing state);
// What is not in the sums: lines without a number, orders that were parted. A line of text each.
QStringList leftOut(const annualPlan::plan &of);
// "ZP/7/2026, line 3: name"
QString lineText(const annualPlan::lineWithoutCode &of);

// "Annual plan of purchases 2026", which also stands at the foot of printed pages.
QString title(const annualPlan::plan &of);
// "CPV groups of 3 digits"
QString groupingText(const annualPlan::question &what);

// The plan as an HTML page that loads nothing, for a file or printPdf().
QString page(const annualPlan::plan &of, const QDate &made = QDate::currentDate());

// Writes the table as CSV when the path ends so, else a workbook with the thresholds and the lines
// without a code on sheets of their own. The file there stays as it was unless all is written; why
// it is not goes to fault.
tableFile::result write(const annualPlan::plan &of, const QString &path, QString *fault,
                        const progressFunction &progress = {},
                        const QDate &made = QDate::currentDate());

// The file proposed for it, in the user's folder of documents.
QString proposedPath(const annualPlan::plan &of);

} // namespace annualPlanReport

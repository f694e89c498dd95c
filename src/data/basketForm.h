// How a basket is written for a supplier's shop: which columns, parted by what, and the text.
#pragma once

#include "data/kiv_mat_firmDetailsStruct.h"

#include <QStringList>

namespace basketForm {

// What the cells of a line are made of.
struct values
{
    QString partNumber; // the supplier's, else the manufacturer's
    QString quantity;
    QString ownReference; // KTM
    QString manufacturer;
    QString name;
    QString designators;
};

// What may stand in a column, in the order offered.
struct kind
{
    QString word;            // in files
    QString (*label)();      // in the user's language
    QString caption;         // that a new column gets, in English as suppliers expect it
    QString values::*member; // null: the column's own text, or nothing
};
const std::vector<kind> &kinds();
// Null when the word is none.
const kind *kindOf(const QString &word);
bool hasOwnText(const kind &of);

// The words of the separators, and the character of one; a comma when the word is none.
const QStringList &separators();
QChar separatorOf(const QString &word);

// Part number, quantity, own reference: the columns of a firm of which nothing is said.
void setUsualColumns(firmDetailsStruct *details);

// The columns that the details name, the usual ones when they name none.
QStringList captionsOf(const firmDetailsStruct &details);
QStringList cellsOf(const firmDetailsStruct &details, const values &line);

// A line of the file with its end. Runs of blanks and line ends become one blank, since no shop
// takes lines apart; cells with the separator or a quote in them are quoted.
QString rowText(const firmDetailsStruct &details, const QStringList &cells);
// The captions, where the details want them, and all lines.
QString text(const firmDetailsStruct &details, const std::vector<values> &lines);

// "csv", or "txt" when tabs part the cells.
QString suffix(const firmDetailsStruct &details);

} // namespace basketForm

// Reads the offer that a firm sent: the table of a request filled in, or a price list of any form.
// Nothing is guessed of a material: what cannot be matched is told of, what is wrong refuses the
// file.
#pragma once

#include "bom/partsTable.h"
#include "orders/offerColumns.h"
#include "orders/orderOffers.h"
#include "orders/quotationForm.h"

#include <array>
#include <memory>

class ktmIndex;

namespace offerImport {

// A file as it was read, before anything is made of it.
struct sheet
{
    QString path;
    partsTable cells;
    // The row with the captions, as a place in cells.rows; -1: none was found, and all rows are
    // read.
    int header = -1;
    // Of each column, guessed from its caption; to be set otherwise before offerOf().
    QVector<field> fields;
    // Whether it is the table of a request, known by the entry of its number. Then the entries are
    // what stands above its table, and a material asked for by nobody refuses it.
    bool isForm = false;
    std::array<QString, quotationForm::entryCount> entries;
    std::array<int, quotationForm::entryCount> entryRows{}; // in the file, from 1

    QString entry(quotationForm::entry of) const { return entries[of]; }
};
// Nothing, with the reason in fault, when the file cannot be read or holds no table.
std::optional<sheet> readSheet(const QString &path, const partsTableOptions &options,
                               QString *fault);
// Sets the row with the captions, and the fields by it. -1: no row, and no fields.
void setHeader(sheet *of, int row);
// Sets what columns hold, counted from 0. What was found of these fields in other columns counts no
// more. False, with nothing changed, when there is no such column.
bool setFields(sheet *of, const QVector<std::pair<int, field>> &columns);

// What is told of an offer beside its file. A text or a date that is given counts instead of what
// stands in the file; texts are looked at as those of the file are.
struct terms
{
    QString firm; // empty: the firm of the request whose number the table has
    QString nip;
    QDate received = QDate::currentDate();
    // Else that of the captions of prices ("Price [EUR]") or of the column of currencies, else PLN.
    // What the file says may not be another one.
    QString currency;
    QString rate; // PLN for one of the currency
    QDate rateDate;
    std::optional<bool> isGross; // else as the captions of prices say, else net
    QString vat;                 // percent
    QString leadTime;            // days
    QString validity;            // a date
    QString remarks;
};

// What the rows are matched with.
struct order
{
    QString number;
    orderOffers::needs needs;
    const kiv_mat_offersStruct &offers;  // what was asked so far
    const ktmIndex *materials = nullptr; // whose part numbers are known; may be null
};

struct result
{
    std::unique_ptr<offerStruct> offer; // null when refused; its file is not set
    // Why it is refused: each names the row, as the file counts, and the caption of the column.
    QStringList faults;
    // What was left out, and what to look at. Of both as many as a user reads, then their number.
    QStringList remarks;
    int offered = 0;
    int withoutPrice = 0; // rows of materials that the firm does not offer
    QStringList notNamed; // keys of materials that no row is of
};
result offerOf(const sheet &of, const terms &known, const order &asked);

} // namespace offerImport

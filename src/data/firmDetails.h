// Work on the file of firm details: where it lies, whose details are whose, and what is wrong with
// a text.
#pragma once

#include "data/kiv_mat_firmDetailsStruct.h"
#include "util/decimal.h"

class kiv_mat_firmStruct;

namespace firmDetails {

// Whether two names are one firm's to their reader: blanks and the case of letters do not count.
// Empty names are nobody's.
bool isSameName(const QString &name, const QString &other);
// The same for tax numbers, of which only letters and digits count, and not "PL" before ten digits.
bool isSameNip(const QString &nip, const QString &other);

// The file beside a register: "firm_details.xml" in its folder.
QString pathBeside(const QString &registerPath);

// Reads the file into an empty record. True also when there is none, which is as good as an empty
// one. False when it cannot be read, with the reason, its line and column in fault: then it is not
// to be written.
bool read(const QString &path, kiv_mat_firmDetailsStruct *details, QString *fault);

// The details of a firm; null when it has none. Where several have its name, those with its tax
// number, else those without any.
firmDetailsStruct *find(const kiv_mat_firmDetailsStruct &all, const QString &name,
                        const QString &nip);
// Of a supplier as materials name it: its tax number is the register's.
const firmDetailsStruct *ofSupplier(const kiv_mat_firmDetailsStruct &all,
                                    const kiv_mat_firmStruct &firms, const QString &name);

// Puts details in the place of those found for the firm of that name and number, or behind all.
// Details that say nothing are taken out.
void put(kiv_mat_firmDetailsStruct *all, const QString &name, const QString &nip,
         const firmDetailsStruct &details);
// Whether nothing is said of the firm but its name and number.
bool saysNothing(const firmDetailsStruct &details);

// Why a text cannot be stored; empty when it can. Empty texts always can.
QString emailFault(const QString &email);
QString discountFault(const QString &discount);

// What remains of a price: 0.95 with a discount of 5 percent, 1 when it is none that is known.
decimal shareAfterDiscount(const QString &discount);

} // namespace firmDetails

// What is to be bought, parted by supplier, in the form that each supplier's shop takes in.
#pragma once

#include "bom/bomOperations.h"
#include "data/basketForm.h"

#include <QHash>

class kiv_mat_firmStruct;

namespace supplierBasket {

// What is to be bought of a material.
struct item
{
    QString ktm;
    QString name;
    const materialStruct *material = nullptr; // null when no database has it
    std::optional<decimal> quantity;          // nothing when it is no number, or not above 0
    QString writtenQuantity;                  // as it is written there
    QString designators;
};

// What is ordered of needs, and of unknown materials what is wanted; the lines that count in no
// need come last. isChosen leaves needs out. Lives as long as the demand.
std::vector<item> itemsOf(const bomOperations::demand &of,
                          const std::vector<bomOperations::orderedNeed> &rows,
                          const std::function<bool(const bomOperations::need &)> &isChosen = {});
// The lines of an order. Those of one KTM are one, but for quantities that are no number. Lives as
// long as the databases.
std::vector<item> itemsOf(const kiv_mat_zpStruct &order, const ktmIndex &materials);

// The different suppliers that a material names, in their order.
QStringList suppliersOf(const item &of);

struct line
{
    item of;
    QString supplier;   // empty: none
    QString partNumber; // the supplier's, else that of the first manufacturer who has one
    QString manufacturer;
    QString fault; // why it cannot be ordered as it stands, plain text; empty when it can

    // Without a quantity there is nothing to order.
    bool isWritten() const { return of.quantity.has_value(); }
    basketForm::values values() const;
    // Price times quantity, less the discount; nothing when one of them is not known.
    std::optional<decimal> amount(const decimal &share) const;
};

struct basket
{
    QString supplier; // as the first of its materials names it; empty: no supplier
    std::vector<line> lines;

    // The lines with a fault.
    int faults() const;
    // share: what remains of a price after the discount. Lines without a price are not in it.
    decimal sum(const decimal &share) const;
};

// Suppliers by KTM, or by name where there is none.
using choices = QHash<QString, QString>;
QString keyOf(const item &of);

// The baskets in the order of their first materials; what has no supplier comes last. A material
// goes to the supplier that was chosen for it, else to the preferred one, else to its first one;
// what it does not name counts for nothing.
std::vector<basket> basketsOf(const std::vector<item> &items, const choices &chosen = {},
                              const QString &preferred = {});

// The text of a basket's file, and as text between tabs for the clipboard.
QString fileText(const basket &of, const firmDetailsStruct &form);
QString tabbedText(const basket &of, const firmDetailsStruct &form);
// Writes it, in UTF-8 with a mark when it is not plain ASCII. The file there stays as it was unless
// all is written; why it is not goes to fault.
bool write(const basket &of, const firmDetailsStruct &form, const QString &path, QString *fault);

// What is said of a supplier, the usual form where nothing is.
using formOf = std::function<const firmDetailsStruct &(const QString &supplier)>;
// Looks at both as long as it is used.
formOf formsOf(const kiv_mat_firmDetailsStruct &details, const kiv_mat_firmStruct &firms);

// A file name for each basket, made of the supplier's name; no two are equal. What has no supplier
// is "no_supplier".
QStringList fileNames(const std::vector<basket> &baskets, const formOf &forms);

} // namespace supplierBasket

// Several firms made one: what that changes in the register and in the materials, shown before it
// is done.
#pragma once

#include "data/kiv_mat_firmStruct.h"
#include "firm/firmOperations.h"

#include <optional>

namespace firmOperations {

// Whether two names are one firm's to their reader: blanks and the case of letters do not count.
// Empty names are nobody's.
bool isSameFirm(const QString &name, const QString &other);

using firmList = std::vector<std::unique_ptr<firmStruct>>;

firmList &listOf(kiv_mat_firmStruct &firms, firmKind kind);
const firmList &listOf(const kiv_mat_firmStruct &firms, firmKind kind);

// The place of the firm of exactly that name, else of the same firm's; nothing when there is none.
std::optional<size_t> placeOf(const firmList &firms, const QString &name);

struct mergePlan
{
    // A text of a firm in the register that becomes another one, or a firm that goes.
    struct registerChange
    {
        firmKind kind;
        size_t place;                         // in its list, as it was
        QString firmStruct::*field = nullptr; // null: the firm goes
        QString before;                       // of a firm that goes its name
        QString after;
    };
    std::vector<registerChange> changes;
    QString stays;    // the name that remains
    renameStep names; // what the materials' manufacturers and suppliers become
    // Where they do, in file order.
    struct use
    {
        firmKind kind;
        firmUse at;
    };
    std::vector<use> uses;
};

// What it takes to make one firm of those at the given places of a list. The one that stays gets
// the texts that it lacks. The other list follows: there the firms of those names become one, too.
// renames: what is planned for the materials already.
mergePlan planMerge(const kiv_mat_firmStruct &firms, firmKind kind, size_t stays,
                    const std::vector<size_t> &going,
                    const std::vector<const kiv_mat_databaseStruct *> &databases,
                    const renameList &renames = {});

// Carries the plan out in the register; the materials follow by changesOf() and its names.
void mergeFirms(kiv_mat_firmStruct &firms, const mergePlan &plan);

// The plan as a table: where (list or file), KTM, name, field, before, after.
QStringList mergeCaptions();
QList<QStringList> mergeRows(const mergePlan &plan);

// A register with the same firms.
std::unique_ptr<kiv_mat_firmStruct> copyOf(const kiv_mat_firmStruct &firms);

} // namespace firmOperations

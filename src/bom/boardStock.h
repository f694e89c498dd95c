// Stock for boards: what is reserved before they are built, and what is taken out when they were.
#pragma once

#include "bom/bomOperations.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "util/userName.h"

#include <QDateTime>

namespace boardStock {

// --- Reserving ---

// Who does it, when, and whether what gets lost while boards are built counts too.
struct occasion
{
    QString author = userName();
    QDateTime time = QDateTime::currentDateTime();
    bool withExtra = true;
};

// A board of so many sets with what it needs of each material that a database has; its list is
// named from the folder of the file of reservations on.
std::unique_ptr<boardStruct> boardOf(const bomOperations::bomSets &list, const ktmIndex &materials,
                                     const orderRules &rules, const QString &reservationsPath,
                                     const occasion &when);

// Notes with each need what is reserved of it for other boards: of a board that is in the lists
// itself only what its reservation is above its need.
void noteReserved(bomOperations::demand *of, const std::vector<bomOperations::bomSets> &lists,
                  const ktmIndex &materials, const kiv_mat_reservationsStruct &reservations);

// --- Taking out ---

// One material of the boards that were built.
struct taking
{
    const bomOperations::need *of;
    ktmIndex::entry from; // nothing when no database has it
    decimal wanted;
    decimal before;
    decimal after;   // never below nothing
    decimal lacking; // wanted beyond the stock
    QString fault;   // why nothing is taken out; what more there is to tell of it

    bool isTaken() const { return after < before; }
};
// In the order of the needs. A stock that is no number is left as it is.
std::vector<taking> takingsOf(const bomOperations::demand &of, const ktmIndex &materials,
                              bool withExtra);

// What is taken out of one database: the materials' new stock, and what is kept of it.
struct withdrawal
{
    struct change
    {
        materialStruct *material;
        QString after;
    };
    kiv_mat_databaseStruct *database;
    std::vector<change> changes;
    // One for each list that was built; of materials that several lists share, each has its own
    // part, the stock before and after being that of all of them.
    std::vector<std::unique_ptr<boardStruct>> boards;
};
// A withdrawal for each database, in the order in which the materials lead to them. The first one
// that has a board releases its reservation.
std::vector<withdrawal> withdrawalsOf(const std::vector<taking> &takings,
                                      const std::vector<bomOperations::bomSets> &lists,
                                      const ktmIndex &materials, const orderRules &rules,
                                      const QString &reservationsPath, const occasion &when);

} // namespace boardStock

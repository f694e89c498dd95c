// What was delivered and is not in a database's stock yet: proposed, for the user to take; and the
// notes of what was taken, in the states file beside the order.
#pragma once

#include "data/kiv_mat_orderStatesStruct.h"
#include "util/decimal.h"

#include <QString>

#include <optional>
#include <vector>

class configStruct;
class kiv_mat_databaseStruct;
class kiv_mat_zpStruct;
class ktmIndex;
class materialStruct;

namespace deliveredStock {

// A part of the stock that came by a delivery.
struct taken
{
    QString ktm;
    QString delivery; // as the line had it
    decimal quantity;
};
using takenList = std::vector<taken>;

// What was taken of the order before; nothing, with the reason in fault, when the file cannot be
// read: then it is not known what would be taken twice.
std::optional<takenList> takenOf(const QString &orderPath, QString *fault);
// Notes that these were taken. False, with nothing noted and the reason in fault, when the file
// cannot be read or written.
bool noteTaken(const QString &orderPath, const takenList &deliveries, configStruct &config,
               QString *fault);

// One delivery of one material.
struct delivery
{
    QString ktm;
    QString name;
    QString delivery; // as the lines have it
    QString unit;
    decimal quantity; // of its lines that were not taken yet
    materialStruct *material = nullptr;
    kiv_mat_databaseStruct *database = nullptr;
    QString
        before; // the stock; the delivery before it counts, where there are several of a material
    QString after;
    QString fault; // why it cannot be taken: no database has it, another unit, no number
};

// In the order of the lines. What was taken under a text that no line has any more was most likely
// corrected in its line, and counts for the other deliveries of the material.
std::vector<delivery> openOf(const kiv_mat_zpStruct &order, const ktmIndex &materials,
                             const takenList &before);

// How the deliveries are noted.
takenList takenOf(const std::vector<delivery> &deliveries);

} // namespace deliveredStock

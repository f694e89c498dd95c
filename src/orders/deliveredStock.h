// What was delivered and is not in a database's stock yet: proposed, for the user to take.
#pragma once

#include "data/kiv_mat_orderStatesStruct.h"
#include "util/decimal.h"

#include <QString>

#include <vector>

class kiv_mat_databaseStruct;
class kiv_mat_zpStruct;
class ktmIndex;
class materialStruct;

namespace deliveredStock {

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

// In the order of the lines; stocked are those of the order that were taken before.
std::vector<delivery> openOf(const kiv_mat_zpStruct &order, const ktmIndex &materials,
                             const std::vector<const stockedDeliveryStruct *> &stocked);

// How the deliveries are noted as taken.
std::vector<stockedDeliveryStruct> noteOf(const std::vector<delivery> &taken);

} // namespace deliveredStock

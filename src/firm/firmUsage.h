// How much a firm is used: by the materials of the databases and, through them, by orders.
#pragma once

#include "data/documentSaving.h"
#include "firm/firmOperations.h"
#include "util/progress.h"

#include <QDate>

class kiv_mat_zpStruct;

namespace firmOperations {

// What an order says of its materials.
struct orderedMaterials
{
    QString path; // none: never saved
    QSet<QString> ktms;
    QDate date; // of the order; when it has none, of its file
};

orderedMaterials orderedIn(const kiv_mat_zpStruct &order);

// The orders of folders, of which each file is read through once for its KTMs and its date, and
// again when it has changed. What is no order, or cannot be read, counts for nothing.
class orderScan
{
public:
    // False when progress, which is told files, cancelled it: then the orders are those known by
    // then.
    bool update(const QStringList &folders, const progressFunction &progress = {});
    std::vector<orderedMaterials> orders() const;

private:
    struct scanned
    {
        fileState state;
        bool isOrder = false;
        orderedMaterials order;
    };
    QHash<QString, scanned> m_files; // by path
};

struct firmFigures
{
    int materials = 0;
    int orders = 0;
    QDate lastUsed; // of the latest of the orders
};
using figuresByName = std::array<QHash<QString, firmFigures>, firmKindCount>;

// The figures of every firm that a material names, or will once the renames are done.
figuresByName figuresOf(const std::vector<const kiv_mat_databaseStruct *> &databases,
                        const renameList &renames, const std::vector<orderedMaterials> &orders);

} // namespace firmOperations

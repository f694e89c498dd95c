// How an order stands in trees: the columns of its lines, and its options.
#pragma once

#include "data/orderedBefore.h"
#include "order/orderOperations.h"
#include "tree/columnTable.h"

namespace orderTree {

// The texts of a line in the order of its record, and behind them what is known of it.
enum column
{
    indexColumn,
    nameColumn,
    priceColumn,
    averagePriceColumn,
    inWarehouseColumn,
    quantityColumn,
    unitColumn,
    waitColumn,
    descriptionColumn,
    rohsColumn,
    targetColumn,
    ktmColumn,
    cpvColumn,
    deliveryColumn,
    invoiceColumn,
    attentionsColumn,
    statusColumn,
    onTheWayColumn,
    lastOrderedColumn,
    columnCount
};

constexpr int quantityMaximum = 1000000;

// ordered says what other orders have of a KTM; without it nothing is known of that.
using orderedOfKtm = std::function<orderedBefore(const QString &ktm)>;
treeColumns<orderItemStruct> columns(const configStruct &config, const kiv_mat_zpStruct &order,
                                     const ktmIndex &materials, const orderedOfKtm &ordered = {});

// The columns from left to right as they are first shown.
const std::vector<int> &usualOrder();

// Brings the pictures and tool tips of a line's row up to date.
void refreshLooks(const myModel *model, int row, const treeColumns<orderItemStruct> &columns);

// The order's options as rows of caption and value, in the order in which one fills them in.
class optionRows : public modelRecords
{
public:
    void show(myModel *model, kiv_mat_zpStruct &order, const configStruct &config);

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
    // Options are neither added nor removed.
    void rowInserted(QStandardItem *, int, myItem::myItemStandard *) override {}
    void rowTaken(QStandardItem *, int, myItem::myItemStandard *) override {}

private:
    // The second value that goes with a first one: the telephone of a person.
    QHash<QString, QString> m_secondValues;
};

} // namespace orderTree

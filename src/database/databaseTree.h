// How a material database stands in a tree: groups, and below them, made when a group is first
// opened, their materials.
#pragma once

#include "data/kiv_mat_databaseStruct.h"
#include "tree/columnTable.h"

class configStruct;
class ktmIndex;
class materialSearch;

namespace databaseTree {

// The first columns; those of the record's other fields follow.
enum column
{
    nameColumn,
    ktmColumn,
    cpvColumn,
    statusColumn
};

treeColumns<materialStruct> columns(const configStruct &config);
// The number of columns that are shown until the user chooses others.
int usuallyShown();

// The link of a material that "Open" follows: its first datasheet, else its first file.
QString linkOf(const materialStruct &material);

// The groups and materials of one database behind a model; the indexes over all databases, which
// may be null, are kept in step.
class rows : public modelRecords
{
public:
    rows(kiv_mat_databaseStruct *database, treeColumns<materialStruct> columns, ktmIndex *materials,
         materialSearch *search);

    const treeColumns<materialStruct> &columns() const { return m_columns; }
    kiv_mat_databaseStruct &database() { return *m_database; }

    // Shows the groups; their materials come when they are asked for.
    void show(myModel *model);

    // Rows of records that are nowhere yet, which the rows own.
    myItem::row makeRow(std::unique_ptr<materialStruct> material) const;
    myItem::row makeRow(std::unique_ptr<d_groupStruct> group) const;

    // The record of a row by any of its cells; null for a row of the other kind.
    static materialStruct *materialOf(const QStandardItem *item);
    static d_groupStruct *groupOf(const QStandardItem *item);

    // The first cell of a material's row, null while its row is not made.
    myItem::myItemStandard *find(const materialStruct *material) const;
    QStandardItem *groupItem(const d_groupStruct *group) const;

    // Before a record's texts but the KTM are changed beside the tree; then its row is brought in
    // step.
    void willChange(const materialStruct *material) const;
    void refresh(materialStruct *material);

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    std::vector<myItem::row> childRows(myItem::myItemStandard *first) override;
    std::optional<QString> unitOf(const myItem::myItemStandard &item,
                                  const myItem::myItemStandard *first) const override;

private:
    myItem::row groupRow(d_groupStruct *group) const;
    myItem::row materialRow(materialStruct *material) const;
    void index(materialStruct *material, d_groupStruct *group);
    void forget(const materialStruct *material);
    void note(QStandardItem *first);
    void unnote(QStandardItem *first);
    void showCount(QStandardItem *groupItem) const;

    kiv_mat_databaseStruct *m_database;
    treeColumns<materialStruct> m_columns;
    ktmIndex *m_materials;
    materialSearch *m_search;
    myModel *m_model = nullptr;
    QHash<const xmlData *, myItem::myItemStandard *> m_first;
};

} // namespace databaseTree

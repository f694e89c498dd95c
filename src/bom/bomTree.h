// The trees of the BOM windows: the set of BOM lists with the numbers of sets to build, and the
// lines of one list beside what the databases know of them.
#pragma once

#include "bom/bomOperations.h"
#include "tree/columnTable.h"

#include <QHash>

class configStruct;

namespace bomTree {

// --- The set of BOM lists: categories, groups, files ---

enum setColumn
{
    nameColumn,
    setsColumn,
    pathColumn
};

constexpr int setsMaximum = 1000000;

class setRows : public modelRecords
{
public:
    explicit setRows(kiv_mat_bomsStruct *boms)
        : m_boms(boms)
    {
    }

    // Shows all rows; sets has the numbers of files by their names.
    void show(myModel *model, const QHash<QString, int> &sets);

    // Tells anew which files are there.
    void refreshLooks(const myModel *model) const;

    // Rows of records that are nowhere yet, which the rows own.
    myItem::row makeRow(std::unique_ptr<fileStruct> file) const;
    myItem::row makeRow(std::unique_ptr<fileGroup> group) const;
    myItem::row makeRow(std::unique_ptr<fileCategory> category) const;

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) override;

private:
    kiv_mat_bomsStruct *m_boms;
};

// How many rows a row stands below: 0 a category, 1 a group, 2 a file.
int depthOf(const QStandardItem *item);
// The record of a file's row by its first cell; null for a folder.
fileStruct *fileOf(const QStandardItem *first);
// The first cells of the files from an item down, that of the file itself among them.
QList<QStandardItem *> filesBelow(QStandardItem *first);
QList<QStandardItem *> allFiles(const myModel *model);
myItem::myItemStandard *setsCell(const QStandardItem *first);
int setsOf(const QStandardItem *first);

// --- The lines of a list ---

enum lineColumn
{
    lineNameColumn = 1,
    designatorColumn,
    quantityColumn,
    unitColumn = 5,
    ktmColumn
};

// materials are looked at as long as the columns are used.
treeColumns<materialStruct> lineColumns(const configStruct &config, const ktmIndex &materials);

// A line with another KTM is another material in all its columns.
class lineRows : public listRows<materialStruct>
{
public:
    using listRows<materialStruct>::listRows;
    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
};

} // namespace bomTree

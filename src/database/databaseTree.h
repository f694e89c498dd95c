// How a material database stands in a tree: groups, and below them, made when a group is first
// opened, their materials.
#pragma once

#include "data/kiv_mat_databaseStruct.h"
#include "data/orderedBefore.h"
#include "tree/columnTable.h"

#include <QHash>
#include <QSet>

#include <functional>

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

// reserved gives what boards have reserved of a KTM, empty when nothing, and ordered what orders
// have of it; without them there are no columns for that.
treeColumns<materialStruct> columns(
    const configStruct &config, const std::function<QString(const QString &ktm)> &reserved = {},
    const std::function<orderedBefore(const QString &ktm)> &ordered = {});
// The number of columns that are shown until the user chooses others.
int usuallyShown();

// The link of a material that "Open" follows: its first datasheet, else its first file.
QString linkOf(const materialStruct &material);

// The groups and materials of one database behind a model; the indexes over all databases, which
// may be null, are kept in step. Only materials that a filter lets be seen have rows, and cells are
// made when they are needed (see lazyRow).
class rows : public modelRecords
{
public:
    rows(kiv_mat_databaseStruct *database, treeColumns<materialStruct> columns, ktmIndex *materials,
         materialSearch *search);

    const treeColumns<materialStruct> &columns() const { return m_columns; }
    kiv_mat_databaseStruct &database() { return *m_database; }

    // Shows the groups; their materials come when they are asked for.
    void show(myModel *model);

    // Rows of records that are nowhere yet, which the rows own. Of a material's the first cell is
    // made.
    myItem::row makeRow(std::unique_ptr<materialStruct> material) const;
    myItem::row makeRow(std::unique_ptr<d_groupStruct> group) const;

    // --- The filter ---

    // Lets those materials alone have rows, and follows; none: all of them.
    using filter = std::function<bool(const materialStruct &)>;
    void setFilter(filter matches);
    // Brings rows and the groups' captions in step with what changed since. A material that was
    // changed while it was seen stays, and so does one that was put in, if there were not too many
    // for a user's hands, until the filter is set again.
    void follow();
    bool isFiltered() const { return bool(m_matches); }
    bool isShown(const materialStruct &material) const;
    // How many materials of a group can be seen, as far as follow() knows.
    int shownIn(const d_groupStruct *group) const { return m_shown.value(group); }

    // --- Finding ---

    // The record of a row by any of its cells; null for a row of the other kind.
    static materialStruct *materialOf(const QStandardItem *item);
    static d_groupStruct *groupOf(const QStandardItem *item);
    // The same by an index, for which no cell is made.
    materialStruct *materialAt(const QModelIndex &index) const;

    // The first cell of a material's row; null while its group was not opened, or where the filter
    // hides it.
    myItem::myItemStandard *find(const materialStruct *material) const;
    // The same, with the row made for it that is not there: it stays until the filter is set again.
    // Null for a material that is none of the database's.
    myItem::myItemStandard *bring(const materialStruct *material);
    QStandardItem *groupItem(const d_groupStruct *group) const;
    d_groupStruct *homeOf(const materialStruct *material) const { return m_homes.value(material); }

    // Before a record's texts but the KTM are changed beside the tree; then its row is brought in
    // step.
    void willChange(const materialStruct *material) const;
    void refresh(materialStruct *material);
    // What a column that is not the record's own reads has changed.
    void readAgain(QLatin1String key);

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    std::vector<xmlData *> childRecords(const myItem::myItemStandard *first) override;
    std::unique_ptr<myItem::myItemStandard> newCell(xmlData *record, int column) const override;
    bool isEditable(int column) const override;
    int rowFor(const QStandardItem *parent, int row,
               const myItem::myItemStandard *first) const override;
    std::optional<QString> unitOf(const myItem::myItemStandard &item,
                                  const myItem::myItemStandard *first) const override;

private:
    myItem::row groupRow(d_groupStruct *group) const;
    void index(materialStruct *material, d_groupStruct *group);
    void forget(const materialStruct *material);
    void noteHomes(d_groupStruct *group);
    void showCount(const d_groupStruct *group);
    int rowBefore(const QStandardItem *groupItem, const d_groupStruct &group, size_t place) const;

    kiv_mat_databaseStruct *m_database;
    treeColumns<materialStruct> m_columns;
    ktmIndex *m_materials;
    materialSearch *m_search;
    myModel *m_model = nullptr;
    QHash<const d_groupStruct *, myItem::myItemStandard *> m_groups; // their first cells
    QHash<const materialStruct *, d_groupStruct *> m_homes;
    QHash<const d_groupStruct *, int> m_shown;
    filter m_matches;
    // What does not match and is seen all the same; what was put in since follow().
    QSet<const materialStruct *> m_kept;
    QSet<const materialStruct *> m_putIn;
};

} // namespace databaseTree

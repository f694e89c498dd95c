// Copying, pasting and setting many cells at once, each as one step of the undo history.
#pragma once

#include "commands/command.h"
#include "tree/myItem.h"

#include <QModelIndexList>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

class htmlView;
class myModel;

namespace cellBlock {

// The cells' texts: tabs between those of a row, a line for each row. Cells come in the order in
// which they are seen. Tabs and line ends within a text become blanks, passwords are left out.
QString copied(const QModelIndexList &cells);

enum whichCells
{
    editableOnly,
    readOnlyToo
};

// One step that gives each cell what value() says for it; cells that take no value (read-only, or
// value() is invalid) or have it already are left out. Null when none changes. With a view, the
// step ends with its refresh.
std::unique_ptr<command> set(myModel *model, const QList<myItem::myItemStandard *> &cells,
                             const std::function<QVariant(const myItem::myItemStandard &)> &value,
                             htmlView *view = nullptr, whichCells which = editableOnly);

// What gives a cell the text of another one of its kind, as pasting it would.
myItem::reading like(const myItem::myItemStandard &source, const myItem::myItemStandard &cell);

// One step that empties the cells.
std::unique_ptr<command> clear(myModel *model, const QList<myItem::myItemStandard *> &cells,
                               htmlView *view = nullptr);

// One step that takes out top-level rows, given from the top down; null when there are none.
std::unique_ptr<command> deleteRows(myModel *model, const std::vector<int> &rows,
                                    htmlView *view = nullptr);

// How many lines of such a text find none of the rows.
int linesBeyond(const QList<int> &rows, const QString &text);

struct pasted
{
    std::unique_ptr<command> change; // null when nothing changed
    int changed = 0;                 // cells
    QStringList refused;             // "column, row: why", of what does not fit its cell
};
// Pastes tab-separated text into the cells from start on, to the right along the given columns and
// down along the given rows beside it; a single text goes into all the selected cells. Lines past
// the last row become new rows when asked for, where the tree can have them; else they are among
// the refused.
pasted paste(myModel *model, const QModelIndex &start, const QModelIndexList &selected,
             QList<int> rows, const QList<int> &columns, const QString &text, bool newRows,
             htmlView *view = nullptr);

// Pastes the text into new top-level rows, the first of which becomes row "at", from a column on.
// Nothing where the tree has no new rows.
pasted pasteRows(myModel *model, int at, int column, const QList<int> &columns,
                 const QString &text);

} // namespace cellBlock

// The texts of a table as they are shown, to be copied or saved.
#pragma once

#include <QModelIndexList>
#include <QStringList>

class QTreeWidget;

// A row of cells for each line and the lines below it, in the order in which they are sorted; the
// captions come first.
QList<QStringList> shownTexts(const QTreeWidget &table);

// Puts them into the clipboard, tabs between the cells.
void copyShown(const QTreeWidget &table);

// The same with rows of a model, in the order of the model and without captions.
void copyRows(QModelIndexList rows);

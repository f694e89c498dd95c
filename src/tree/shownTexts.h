// The texts of a table as they are shown, to be copied or saved.
#pragma once

#include <QStringList>

class QTreeWidget;

// A row of cells for each line and the lines below it, in the order in which they are sorted; the
// captions come first.
QList<QStringList> shownTexts(const QTreeWidget &table);

// Puts them into the clipboard, tabs between the cells.
void copyShown(const QTreeWidget &table);

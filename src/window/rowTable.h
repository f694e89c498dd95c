// What windows and dialogs that show rows in a flat table have in common.
#pragma once

#include <QString>

class QAbstractItemModel;
class QBoxLayout;
class QHeaderView;
class QTreeView;
class QWidget;

// A table of the model's rows, of which any number can be selected and any column can be current.
// The names are for tests and for screen readers.
QTreeView *newRowTable(const char *name, const QString &accessibleName, QAbstractItemModel *model,
                       QWidget *parent);

// Makes a column that wide, but no caption is cut: some are longer in one language than in another.
void resizeColumn(QHeaderView *header, int column, int width);

// Adds a widget with its caption before it, whose letter behind "&" leads to it.
void addCaptioned(QBoxLayout *to, QWidget *widget, const char *name, const QString &caption);

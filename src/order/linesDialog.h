// Chooses lines and columns of an order, to copy them or to empty them.
#pragma once

#include "tree/columnTable.h"

#include <QDialog>

class orderItemStruct;
class QListWidget;
class QRadioButton;

class linesDialog : public QDialog
{
    Q_OBJECT
public:
    enum purpose
    {
        copying,
        clearing
    };
    // Columns that cannot be edited are offered for copying only.
    linesDialog(purpose wanted, const treeColumns<orderItemStruct> &columns, bool severalSelected,
                QWidget *parent);

    std::vector<int> columns() const;
    bool selectedOnly() const;
    // To another order's file rather than to the clipboard.
    bool toFile() const;

private:
    QListWidget *m_columns;
    QRadioButton *m_selected;
    QRadioButton *m_file = nullptr;
};

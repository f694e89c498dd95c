// The columns of a list of parts: over its first rows stands what each of them holds, as it is
// guessed and as the user corrects it.
#pragma once

#include "bom/partsColumns.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QTableWidget;

class partsColumnsPage : public QWidget
{
    Q_OBJECT
public:
    explicit partsColumnsPage(QWidget *parent);

    // Guesses what the columns hold; what the user chose for the same captions before is taken.
    void showTable(const partsTable &table);
    const partsColumns::guess &columns() const { return m_columns; }

signals:
    // The user chose what a column holds.
    void columnsChanged();
    // The file is to be read with another separator, or another sheet of it.
    void tableWanted(const partsTableOptions &options);

private:
    void choose(int column, int field);

    partsTable m_table;
    partsColumns::guess m_columns;
    QTableWidget *m_preview;
    QComboBox *m_separator;
    QComboBox *m_sheet;
    QLabel *m_form;
};

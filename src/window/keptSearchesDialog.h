// The kept searches: their names can be changed, and searches deleted. Nothing is changed unless it
// is closed with OK.
#pragma once

#include "data/keptSearches.h"

#include <QDialog>

class QLabel;
class QTableWidget;

class keptSearchesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit keptSearchesDialog(QWidget *parent);

    // What it was left with.
    std::vector<keptSearch> searches() const;

    // Refused, with the reason said, while a name is missing or given twice.
    void accept() override;

private:
    void deleteRow();

    QTableWidget *m_rows;
    QLabel *m_fault;
};

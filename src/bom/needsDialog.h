// What BOM lists need, before anything goes into the order: a table of the materials, and how the
// order takes them.
#pragma once

#include "bom/bomOperations.h"

#include <QDialog>

class QRadioButton;

class needsDialog : public QDialog
{
    Q_OBJECT
public:
    // sums are those of all lists with their sets.
    needsDialog(const bomOperations::demand &of, const lineSums &sums, QWidget *parent);

    bomOperations::amount wantedAmount() const;
    bomOperations::present existing() const;

private:
    QRadioButton *m_short;
    QRadioButton *m_add;
    QRadioButton *m_skip;
};

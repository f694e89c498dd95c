// What BOM lists need, before anything goes into the order: a table of the materials beside the
// order, of which the ticked ones are taken.
#pragma once

#include "bom/bomOperations.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QTreeWidget;
class QTreeWidgetItem;

class needsDialog : public QDialog
{
    Q_OBJECT
public:
    // The needs and the order outlive it; proposed is the path of a file for the table.
    needsDialog(const bomOperations::demand &of, const kiv_mat_zpStruct &order,
                const QString &proposed, QWidget *parent);

    bomOperations::wish wanted() const;
    // Whether it is ticked.
    bool isChosen(const bomOperations::need &one) const;
    // The needs beside the order, as the chosen ways have them.
    const std::vector<bomOperations::orderedNeed> &rows() const { return m_rows; }

signals:
    // The user wants what is ticked parted by supplier.
    void basketsWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeTable();
    // Shows what the chosen ways come to.
    void showRows();
    void showSums();
    void tick(const QList<QTreeWidgetItem *> &items, Qt::CheckState wanted);
    void tickAll(bool ticked);
    void copy();
    void save();

    const bomOperations::demand &m_of;
    const kiv_mat_zpStruct &m_order;
    QString m_proposed;
    std::vector<bomOperations::orderedNeed> m_rows; // by need
    std::vector<QTreeWidgetItem *> m_items;
    QTreeWidget *m_table;
    QLabel *m_sum;
    QCheckBox *m_neverTwice;
    QRadioButton *m_short;
    QRadioButton *m_topUp;
    QRadioButton *m_add;
    QRadioButton *m_skip;
    QPushButton *m_go;
};

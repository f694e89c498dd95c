// What came of the lines of an order: how much of each, under which number and when.
#pragma once

#include "order/deliveries.h"

#include <QDialog>

class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class kiv_mat_zpStruct;

class deliveryDialog : public QDialog
{
    Q_OBJECT
public:
    // Shows those lines, from 0, of which something is still to come. The order outlives it.
    deliveryDialog(const kiv_mat_zpStruct &order, const std::vector<int> &lines, QWidget *parent);

    std::vector<deliveries::delivered> delivered() const { return m_delivered; }
    // As it is to stand in the lines.
    QString delivery() const;

    void accept() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fillTable(const std::vector<int> &lines);
    void fill(bool whole);
    void goDown();
    void showSum();

    const kiv_mat_zpStruct &m_order;
    std::vector<int> m_lines; // by row
    std::vector<deliveries::delivered> m_delivered;
    QTableWidget *m_table;
    QLineEdit *m_number;
    QDateEdit *m_date;
    QLabel *m_sum;
    QPushButton *m_go;
};

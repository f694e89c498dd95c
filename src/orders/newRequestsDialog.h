// Which firms are asked for a quotation, and until when they are to answer.
#pragma once

#include "orders/quotationRequests.h"

#include <QDialog>

class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

class newRequestsDialog : public QDialog
{
    Q_OBJECT
public:
    newRequestsDialog(std::vector<quotationRequests::candidate> firms,
                      const orderOffers::needs &needs, QWidget *parent);

    // Those that are ticked, in the order of the table.
    std::vector<quotationRequests::candidate> chosen() const;
    QDate deadline() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QTreeWidget *newTable();
    void filter(const QString &words);
    void goToTable();
    void tickSelected();
    void showCount();

    std::vector<quotationRequests::candidate> m_firms;
    int m_materials;
    int m_uncounted;
    QLineEdit *m_search;
    QTreeWidget *m_table;
    QDateEdit *m_deadline;
    QLabel *m_count;
    QPushButton *m_write = nullptr;
};

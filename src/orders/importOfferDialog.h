// An offer before it is taken in: whose it is, its terms, what its columns hold, and what comes of
// its rows; what is wrong keeps it out.
#pragma once

#include "orders/offerImport.h"

#include <QDialog>
#include <QTimer>

class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableWidget;
class kiv_mat_firmStruct;

class importOfferDialog : public QDialog
{
    Q_OBJECT
public:
    // What the order asked for outlives it, and so does the register of firms.
    importOfferDialog(offerImport::sheet sheet, const offerImport::order &asked,
                      const kiv_mat_firmStruct &firms, QWidget *parent);

    // What was accepted.
    const offerStruct &offer() const { return *m_result.offer; }

private:
    QWidget *newTerms(const kiv_mat_firmStruct &firms);
    QWidget *newColumns();
    QLineEdit *newLine(const char *name, const QString &placeholder = {});
    offerImport::terms terms() const;
    void examine();
    void showRows();

    offerImport::sheet m_sheet;
    const offerImport::order &m_asked;
    offerImport::result m_result;
    QTimer m_delay;
    QComboBox *m_firm;
    QDateEdit *m_received;
    QLineEdit *m_currency;
    QLineEdit *m_rate;
    QDateEdit *m_rateDate;
    QComboBox *m_taxed;
    QLineEdit *m_vat;
    QLineEdit *m_leadTime;
    QLineEdit *m_validity;
    QLineEdit *m_remarks;
    QTableWidget *m_rows;
    QPlainTextEdit *m_told;
    QLabel *m_sum;
    QPushButton *m_go;
};

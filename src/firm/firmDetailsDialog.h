// What is known of a firm beside its register: address, mail, terms, and the columns of its baskets
// with two sample lines.
#pragma once

#include "data/kiv_mat_firmDetailsStruct.h"

#include <QDialog>

#include <functional>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;

class firmDetailsDialog : public QDialog
{
    Q_OBJECT
public:
    // store is given what OK is to store; while it says no, which it tells by itself, the dialog
    // stays.
    using storing = std::function<bool(const firmDetailsStruct &)>;
    firmDetailsDialog(const firmDetailsStruct &details, storing store, QWidget *parent);

    // What was typed and chosen.
    const firmDetailsStruct &details() const { return *m_details; }

public slots:
    void accept() override;
    // Asks first when something was changed.
    void reject() override;

private:
    QWidget *makeBasket();
    // Puts the columns of the record into the list, and goes to one of them.
    void showColumns(int current);
    void showColumn();
    void takeColumn();
    void addColumn();
    void removeColumn();
    void moveColumn(int by);
    void chooseReady(const QString &separator);
    void takeFields();
    void updatePreview();
    basketColumnStruct *current() const;
    bool isChanged();
    bool markFaults();

    std::unique_ptr<firmDetailsStruct> m_details;
    std::unique_ptr<firmDetailsStruct> m_before;
    storing m_store;
    bool m_showing = false;
    QPlainTextEdit *m_address;
    QLineEdit *m_email;
    QComboBox *m_language;
    QLineEdit *m_discount;
    QComboBox *m_separator;
    QCheckBox *m_captions;
    QListWidget *m_columns;
    QLabel *m_hint; // what counts while there are none
    QComboBox *m_kind;
    QLineEdit *m_caption;
    QLineEdit *m_text;
    QPushButton *m_remove;
    QPushButton *m_up;
    QPushButton *m_down;
    QPlainTextEdit *m_preview;
};

// Finds materials of the loaded databases as the user types, and adds them to the order.
#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPushButton;
class countBox;
class QStandardItemModel;
class QTreeView;
class programData;

class addMaterialDialog : public QDialog
{
    Q_OBJECT
public:
    addMaterialDialog(programData &known, QWidget *parent);

    // Shows the dialog with the words searched last, ready to be typed over.
    void showNow();

public slots:
    // Adds the selected materials with the quantity, and is ready for the next search.
    void add();
    // What became of them.
    void showAnswer(const QString &text);

signals:
    void wanted(const QStringList &ktms, uint quantity);

protected:
    // From the search field, the arrow keys move through what was found.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void search();

    programData &m_known;
    QLineEdit *m_words;
    QTreeView *m_view;
    QStandardItemModel *m_found;
    countBox *m_quantity;
    QPushButton *m_add;
    QLabel *m_count;
};

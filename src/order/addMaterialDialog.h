// Finds materials of the loaded databases as the user types, and adds them to the order, or picks
// one of them.
#pragma once

#include <QDialog>
#include <QStringList>

class QLabel;
class QPushButton;
class countBox;
class QStandardItemModel;
class QTreeView;
class programData;
class searchLine;

class addMaterialDialog : public QDialog
{
    Q_OBJECT
public:
    enum purpose
    {
        addsToOrder,
        picksOne
    };
    addMaterialDialog(programData &known, QWidget *parent, purpose what = addsToOrder);

    // Asks for a material, searching for some words at first; the last of them are left out when
    // all together find nothing. Returns its KTM, empty when none was picked.
    static QString pick(programData &known, QWidget *parent, const QString &words);

    // Shows the dialog with the words searched last, ready to be typed over.
    void showNow();

public slots:
    // Adds the selected materials with the quantity, and is ready for the next search; or takes the
    // one that is picked.
    void add();
    // What became of them.
    void showAnswer(const QString &text);

signals:
    void wanted(const QStringList &ktms, uint quantity);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void search();

    programData &m_known;
    purpose m_purpose;
    QString m_picked; // KTM
    QTreeView *m_view;
    searchLine *m_words;
    QStandardItemModel *m_found;
    countBox *m_quantity;
    QPushButton *m_add;
    QLabel *m_count;
};

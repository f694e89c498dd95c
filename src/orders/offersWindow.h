// The offers for the open order beside each other: imported, compared, chosen from, and the order
// parted by the firms that were chosen.
#pragma once

#include "data/documentSaving.h"
#include "orders/offerReport.h"
#include "orders/offerRows.h"
#include "window/baseWindow.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QLabel;
class QTreeView;
class orderRegister;
class programData;

class offersWindow : public baseWindow
{
    Q_OBJECT
public:
    offersWindow(programData &known, orderRegister &orders);

    // The open order with the path of its file, which is empty before it is saved; null where there
    // is none.
    std::function<const kiv_mat_zpStruct *(QString *path)> openOrder;
    // Whether its file holds the order as it is.
    std::function<bool()> isOrderSaved;
    // Makes the order have the prices of the selection, as one step. False when that is refused.
    std::function<bool(const offerComparison::comparison &, const offerComparison::selection &,
                       bool raisesQuantities)>
        takeOver;

    // Comes to the front with the offers for the order as their file is now.
    void showNow();
    // Another order was opened, or this one was changed.
    void orderChanged();

public slots:
    void commandImport(bool);
    void commandTakeOver(bool);
    void commandSplit(bool);
    void commandSaveReport(bool);
    void commandOpenFile(bool);
    void commandChoose(bool);
    void commandCopy(bool);
    void commandReadAgain(bool);
    void commandClose(bool) { close(); }

signals:
    // Orders were written that are in the place of the open one.
    void orderParted(const QStringList &files);

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildWidgets();
    QWidget *newChoices();
    QTreeView *newTable(const char *name, const QString &accessibleName, QAbstractItemModel *model);
    void readAgain();
    void propose();
    void chosenChanged();
    void updateActions();
    offerComparison::question asked() const;
    void tell(const QString &text);
    void importFile(const QString &path);
    bool isOutdated() const;
    bool isUpToDate();

    programData &m_known;
    orderRegister &m_orders;
    offerRows m_rows;
    offerFirmRows m_firms;
    kiv_mat_offersStruct m_offers; // as read for what is shown
    fileState m_state;             // of their file then
    bool m_isChosenByHand = false; // and neither taken over nor read again
    QString m_path;                // of the order that is shown
    QComboBox *m_mode;
    QDoubleSpinBox *m_within;
    QDateEdit *m_until;
    QCheckBox *m_raise;
    QTreeView *m_materials = nullptr;
    QTreeView *m_firmTable = nullptr;
    QLabel *m_fault;
    QLabel *m_sum;
};

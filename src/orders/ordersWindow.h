// All orders of the configured folders: listed with their states, and their lines searched as one
// types.
#pragma once

#include "orders/orderRows.h"
#include "window/baseWindow.h"

#include <QTimer>

class QFileSystemWatcher;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTreeView;
class programData;

class ordersWindow : public baseWindow
{
    Q_OBJECT
public:
    ordersWindow(programData &known, orderRegister &orders);

    // Comes to the front with the orders as their files are now.
    void showNow();

public slots:
    void commandOpen(bool);
    void commandCopyAsNew(bool);
    void commandMarkSent(bool);
    void commandNotSent(bool);
    void commandCopy(bool);
    void commandFind(bool);
    void commandReadAgain(bool);
    void commandClose(bool) { close(); }

signals:
    // An order is to be opened, at a line from 0 of a material; ktm is empty for the whole order.
    void openWanted(const QString &path, const QString &ktm, int line);
    // A new order is to begin with what this one holds.
    void copyWanted(const QString &path);
    // Another state was noted.
    void stateChanged(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildWidgets();
    QTreeView *newTable(const char *name, const QString &accessibleName, QAbstractItemModel *model);
    void readAgain();
    // Shows the orders and what the search finds anew, with that order or that line of the found
    // ones current.
    void showAgain(const QString &path, int line);
    void search();
    void updateActions();
    void tell(const QString &text);
    // The table that is shown, and the paths of its selected rows.
    QTreeView *view() const;
    QStringList selectedPaths() const;
    // Notes something of each selected order, until that fails, which is told; how many it was.
    int noteEach(const std::function<bool(const QString &path, QString *fault)> &note);

    programData &m_known;
    orderRegister &m_orders;
    orderRows m_rows;
    QSortFilterProxyModel m_sorted;
    foundLineRows m_found;
    QFileSystemWatcher *m_watcher;
    QTimer m_again;
    QLineEdit *m_words;
    QStackedWidget *m_tables;
    QTreeView *m_list;
    QTreeView *m_lines;
    QLabel *m_counts;
    int m_shownRevision = -1;
    bool m_reading = false;
};

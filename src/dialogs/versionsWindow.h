// The earlier versions and the unsaved orders that are kept: what each differs in from the file now
// or from the version after it. One can be opened, or its content be put back.
#pragma once

#include "data/keptCopies.h"
#include "window/baseWindow.h"

#include <atomic>

class QLineEdit;
class QStandardItem;
class QStandardItemModel;
class QThread;
class QTimer;
class QTreeView;

class versionsWindow : public baseWindow
{
    Q_OBJECT
public:
    explicit versionsWindow(programData &known, QWidget *parent = nullptr);
    ~versionsWindow() override;

    // Lists what there is now, of one file only when a path is given, and comes to the front.
    void showNow(const QString &path);

    // Lists what there is now, if it is shown.
    void listAgain();

    // Opens a copy, puts the content of one in the place of the file's; both tell the user.
    std::function<void(const keptCopy &copy)> openCopy;
    std::function<void(const keptCopy &copy)> restoreCopy;

public slots:
    void commandOpen(bool);
    void commandRestore(bool);
    void commandAgain(bool);
    void commandNextVersion(bool);
    void commandClose(bool) { close(); }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void list();
    void filter();
    void compare();
    void countLines();
    void stopCounting();
    // The copy of the current row that is seen; null when there is none.
    const keptCopy *current() const;
    // What it is compared with, and how that is called; empty when there is nothing.
    QString otherOf(const keptCopy &copy, QString *name) const;
    void updateActions();

    programData &m_known;
    std::vector<keptCopy> m_copies;
    QLineEdit *m_filter;
    QTreeView *m_list;
    QTreeView *m_rows;
    QStandardItemModel *m_copyRows;
    QStandardItemModel *m_differences;
    QTimer *m_delay;
    std::unique_ptr<QThread> m_counting;
    std::atomic<bool> m_stopped = false;
};

// The links of a database's materials: examined over the network beside other work, with what came
// of each; links that moved are taken over into the database, datasheets are fetched.
#pragma once

#include "database/linkRows.h"
#include "window/baseWindow.h"

class Kiv_mat_databaseWindow;
class QLabel;
class QLineEdit;
class QProgressBar;
class QToolButton;
class QTreeView;

class linksWindow : public baseWindow
{
    Q_OBJECT
public:
    explicit linksWindow(Kiv_mat_databaseWindow *database);
    ~linksWindow() override;

    // Comes to the front with the links as they are now, and examines those that have no result
    // that counts still.
    void showNow();

    // After the database's lock or content changed: its links are looked at again once it rests.
    void updateActions();

public slots:
    void commandExamine(bool);
    void commandExamineAgain(bool);
    void commandFetch(bool);
    void commandStop(bool);
    void commandTakeOver(bool);
    void commandMark(bool);
    void commandMarkAll(bool);
    void commandMarkNone(bool);
    void commandOpen(bool);
    void commandOpenCopy(bool);
    void commandMaterial(bool);
    void commandCopy(bool);
    void commandFindings(bool);
    void commandClose(bool) { close(); }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildWidgets();
    void collect();
    void tell(const QString &text);
    void filter();
    // The rows of the list that are selected, by their places in the model.
    std::vector<int> selected() const;
    // The different links of the selected rows.
    QStringList selectedLinks() const;
    int current() const;
    void markRows(bool all);
    void ask(const QStringList &links, bool fetching);
    void told(const linkReply &reply);
    void showProgress();
    void finished();
    void store();
    void showCounts();

    Kiv_mat_databaseWindow *m_database;
    linkExaminer m_examiner;
    linkRows m_rows;
    linkFilter m_shown;
    linkExamination::results m_newer; // not in the file yet
    quint64 m_collected = 0;          // the state of the database's history then
    QTimer m_again;
    QTimer m_refresh;
    QElapsedTimer m_stored;
    int m_markable = 0; // rows with a new address
    int m_marked = 0;
    bool m_fetching = false;
    int m_asked = 0;
    int m_told = 0;
    int m_failed = 0;
    QLineEdit *m_part;
    QTreeView *m_view;
    QLabel *m_counts;
    QProgressBar *m_bar;
    QToolButton *m_stop;
};

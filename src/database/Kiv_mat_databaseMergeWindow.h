// Compares another database file with the one of a database window, material by material and field
// by field, and takes over what the user ticks.
#pragma once

#include "database/databaseMerge.h"
#include "window/editWindow.h"

#include <QTimer>

class Kiv_mat_databaseWindow;
class QLabel;
class kiv_mat_databaseStruct;
class mergeTree;
class searchLine;

class Kiv_mat_databaseMergeWindow : public editWindow
{
    Q_OBJECT
public:
    explicit Kiv_mat_databaseMergeWindow(Kiv_mat_databaseWindow *database);
    ~Kiv_mat_databaseMergeWindow() override;

    // The list of differences is no document.
    bool isModified() const override { return false; }

    // Compares with a file, and comes to the front. False, told to the user, when the file cannot
    // be read or, while the window is not shown yet, nothing differs: it stays hidden then.
    bool open(const QString &path);

    // After the database's lock or content changed: the latter is compared again once it rests.
    void updateActions() override;

    // After the database was read again.
    void compareAgain();

    myModel *model() { return modelOf(m_view); }
    myTreeView *view() { return m_view; }

public slots:
    void commandOpen(bool);
    // Takes over what is ticked as one step of the database window. Nothing is ever deleted there.
    void commandSet(bool);
    // Takes the selected materials out of the list: they stay as they are.
    void commandLeaveOut(bool);
    void commandCollaps(bool);
    void commandExpand(bool);
    void commandMark(bool);
    void commandMarkAll(bool);
    void commandMarkNone(bool);
    void commandShowEqual(bool on);
    void commandFilter(bool);

protected:
    QString filePath() const override { return {}; }
    QString title() const override;
    bool load() override { return true; }
    bool write(const QString &) override { return true; }
    QString closeQuestion() const override { return {}; }
    void historyMoved() override { showCounts(); }
    bool takesFiles() const override { return true; }
    void fileDropped(const QString &path) override { open(path); }

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);

private:
    void showDifferences(const comparison &found);
    void showCounts();
    // Which of what is ticked is wanted while the filter hides some of it; nothing when the user
    // thinks better of it.
    std::optional<bool> onlyShown();

    Kiv_mat_databaseWindow *m_database;
    std::unique_ptr<kiv_mat_databaseStruct> m_other;
    QString m_path;
    quint64 m_compared = 0; // the state of the database's history that it was compared in
    QTimer m_again;
    myTreeView *m_view;
    std::unique_ptr<mergeTree> m_rows;
    searchLine *m_filter;
    QLabel *m_counts;
};

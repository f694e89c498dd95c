// Compares another database file with the one of a database window, material by material and field
// by field, and takes over what the user selects.
#pragma once

#include "database/databaseMerge.h"
#include "window/editWindow.h"

#include <QTimer>

class Kiv_mat_databaseWindow;
class kiv_mat_databaseStruct;

class Kiv_mat_databaseMergeWindow : public editWindow
{
    Q_OBJECT
public:
    explicit Kiv_mat_databaseMergeWindow(Kiv_mat_databaseWindow *database);
    ~Kiv_mat_databaseMergeWindow() override;

    // The list of differences is no document.
    bool isModified() const override { return false; }

    // Compares with a file; false, listed in the errors window, when it cannot be read.
    bool open(const QString &path);

    // After the database's lock or content changed: the latter is compared again once it rests.
    void updateActions() override;

    // After the database was read again.
    void compareAgain();

    myModel *model() { return modelOf(m_view); }
    myTreeView *view() { return m_view; }

public slots:
    void commandOpen(bool);
    // Takes over the selected materials or single fields, or all when nothing is selected, as one
    // step of the database window. Nothing is ever deleted there.
    void commandSet(bool);
    // Takes the selected materials out of the list: they stay as they are.
    void commandLeaveOut(bool);
    void commandCollaps(bool);
    void commandExpand(bool);

protected:
    QString filePath() const override { return {}; }
    QString title() const override;
    bool load() override { return true; }
    bool write(const QString &) override { return true; }
    QString closeQuestion() const override { return {}; }
    void historyMoved() override { updateActions(); }

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);

private:
    void showDifferences();
    void addRow(const materialDifference &difference, int place);
    // What is shown of the other file's materials and groups, by their records.
    QSet<const void *> shown() const;

    Kiv_mat_databaseWindow *m_database;
    std::unique_ptr<kiv_mat_databaseStruct> m_other;
    QString m_path;
    comparison m_comparison; // its materials of the database may be gone by now
    quint64 m_compared = 0;  // the state of the database's history that it was made of
    QTimer m_again;
    myTreeView *m_view;
};

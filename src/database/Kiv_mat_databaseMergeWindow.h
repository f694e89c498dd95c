// Compares another database file with the one of a database window, material by material and field
// by field, and takes over what the user selects.
#pragma once

#include "database/databaseMerge.h"
#include "window/editWindow.h"

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

    // After the database's lock changed.
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

    Kiv_mat_databaseWindow *m_database;
    std::unique_ptr<kiv_mat_databaseStruct> m_other;
    QString m_path;
    comparison m_comparison;
    myTreeView *m_view;
};

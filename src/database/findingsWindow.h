// The checks of a material database as a table beside its window: a row a finding, from which one
// goes to the cell. It follows the database: what was put right vanishes.
#pragma once

#include "data/materialUses.h"
#include "database/databaseFindings.h"
#include "window/baseWindow.h"

class Kiv_mat_databaseWindow;
class QComboBox;
class QLabel;
class QLineEdit;
class QTimer;
class QTreeView;
class findingsModel;

class findingsWindow : public baseWindow
{
    Q_OBJECT
public:
    explicit findingsWindow(Kiv_mat_databaseWindow *database);
    ~findingsWindow() override;

    // Checks the database and comes to the front, with the findings of one kind or all.
    void showNow(std::optional<findingKind> kind = {});
    // The database is another one.
    void databaseReplaced();
    // Links that did not answer, by what is told of them, in place of those before.
    void setDeadLinks(const QHash<QString, QString> &links);
    const QHash<QString, QString> &deadLinks() const { return m_findings.deadLinks(); }

public slots:
    void commandExport(bool);
    void commandAgain(bool);
    void commandClose(bool) { close(); }
    void commandCopy(bool);
    void commandFind(bool);
    void commandGoTo(bool);
    // Asks what takes the place of the finding's material in BOM lists and the order.
    void commandReplaceMaterial(bool);

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class watch;

    void buildWidgets();
    void check();
    void stop();
    void changed();
    void takeChanges();
    void followLists();
    void readOneList();
    void filter();
    void updateActions();
    void showState();
    void keepPlace();
    void goBack();
    void goToCell(const QModelIndex &row, bool toFront);

    Kiv_mat_databaseWindow *m_database;
    databaseFindings m_findings;
    std::unique_ptr<watch> m_watch; // while the database is followed
    findingsModel *m_model;
    QLineEdit *m_words;
    QComboBox *m_kinds;
    QTreeView *m_view;
    QLabel *m_nothing;
    QTimer *m_delay;
    QTimer *m_typing;
    QTimer *m_reading;
    materialUses m_uses;
    bool m_isChecked = false;
    finding m_current; // while the rows are made anew
    int m_currentRow = 0;
};

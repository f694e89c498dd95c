// The firm register: manufacturers and suppliers in trees with undo. What is edited is a copy of
// the register's file, which saving puts in use. A firm that gets another name can take the
// materials along: they are renamed when the register is saved, and their databases with it.
#pragma once

#include "commands/commandStack.h"
#include "data/documentSaving.h"
#include "firm/firmTree.h"
#include "window/baseWindow.h"

#include <set>

class QLabel;
class QTabWidget;
class myTreeView;

class firmWindow : public baseWindow
{
    Q_OBJECT
public:
    firmWindow();
    ~firmWindow() override;

    // Shows the window; a closed one begins with what the file holds.
    void showNow();

    myModel *model(firmOperations::firmKind kind) { return m_pages[kind].model; }
    myTreeView *view(firmOperations::firmKind kind) { return m_pages[kind].view; }
    const kiv_mat_firmStruct &edited() const { return *m_edited; }
    // Whether anything is to be saved.
    bool isChanged() const;

public slots:
    void commandSave(bool);
    void commandEdit(bool on);
    void commandUndo(bool);
    void commandRedo(bool);
    void commandAdd(bool);
    void commandDelete(bool);
    void commandCopyCells(bool);
    void commandPasteCells(bool);
    void commandFind(bool);
    void commandFindNext(bool);
    void commandHomePage(bool);
    void commandClose(bool);
    void clearCommands();

signals:
    // Materials of the loaded databases got other manufacturers' or suppliers' names.
    void materialsChanged();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    struct page
    {
        myModel *model = nullptr;
        myTreeView *view = nullptr;
        QLabel *hint = nullptr; // what to do with an empty list
        std::unique_ptr<firmTree::firmRows> rows;
    };

    void addPage(firmOperations::firmKind kind, const QString &title, const char *name);
    std::vector<std::unique_ptr<firmStruct>> &list(firmOperations::firmKind kind);
    page &current();
    void load();
    void updateActions();
    void tellHistory(const QString &what);
    QUrl currentHomePage();
    void clicked(const QModelIndex &cell);
    std::unique_ptr<command> withRenames(std::unique_ptr<command> change);
    bool save();
    bool saveMaterials();

    std::unique_ptr<kiv_mat_firmStruct> m_edited;
    std::unique_ptr<commandStack> m_stack;
    std::array<page, firmOperations::firmKindCount> m_pages;
    QTabWidget *m_tabs;
    QLabel *m_counts;
    QString m_path;
    fileState m_onDisk;
    QString m_fault;  // why the register cannot be edited
    QString m_wanted; // what is searched
    // Changed by steps that the history has forgotten.
    bool m_modified = false;
    // What saving is to do with the materials, and databases that could not be written then.
    firmOperations::renameList m_renames;
    std::set<int> m_unwritten;
};

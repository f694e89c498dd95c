// The lines of one BOM list beside what the databases know of them. What is edited is the file's
// own copy here, which saving writes.
#pragma once

#include "bom/bomTree.h"
#include "commands/commandStack.h"
#include "data/documentSaving.h"
#include "window/baseWindow.h"

class QTreeView;
class myTreeView;

using materialKtm = QString;

class Kiv_bomViewWindow : public baseWindow
{
    Q_OBJECT
public:
    // Reads the file; one that cannot be read is told in the errors window, and cannot be edited.
    explicit Kiv_bomViewWindow(const QString &path);
    ~Kiv_bomViewWindow() override;

    // Shows the window; a closed one begins with what the file holds.
    void showNow();
    bool isModified() const { return m_modified; }
    bool save();

    myModel *model() { return m_model; }
    myTreeView *view() { return m_view; }
    const kiv_mat_bomStruct &edited() const { return *m_bom; }

    // How many sets of the list are built, for the sums.
    std::function<int()> sets;

public slots:
    void commandEdit(bool on);
    void commandClose(bool);
    void commandSave(bool);
    void commandRedo(bool);
    void commandUndo(bool);
    void commandShowSum(bool);
    void commandCopyText(bool);
    void commandPasteCells(bool);
    void commandDeleteLines(bool);
    // Appends a line of the material; one that no database has is told in the errors window.
    void insertToBomView(const materialKtm &ktm);
    void clearCommands();

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);
    void selectItem(QTreeView *view, QStandardItem *item);

private:
    void load();
    void changed();
    void showTitle();
    void updateActions();

    QString m_path;
    QString m_fault; // why the list cannot be edited
    fileState m_onDisk;
    std::unique_ptr<kiv_mat_bomStruct> m_bom;
    std::unique_ptr<bomTree::lineRows> m_rows;
    std::unique_ptr<commandStack> m_stack;
    myModel *m_model;
    myTreeView *m_view;
    bool m_modified = false;
};

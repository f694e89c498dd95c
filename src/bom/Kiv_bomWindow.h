// The set of BOM lists: how many sets of each are built, reports and exports, and what goes into
// the order. Changes of the set count in the program at once, and are taken back when the window is
// closed without saving; the numbers of sets live as long as the window. The tree stands in
// Kiv_bomWindow.cpp, what is done with the lists in bomListActions.cpp.
#pragma once

#include "bom/bomTree.h"
#include "commands/commandStack.h"
#include "data/documentSaving.h"
#include "window/baseWindow.h"

#include <map>

class Kiv_bomViewWindow;
class QTreeView;
class childRunner;
class myTreeView;

using materialKtm = QString;

class Kiv_bomWindow : public baseWindow
{
    Q_OBJECT
public:
    Kiv_bomWindow();
    ~Kiv_bomWindow() override;

    void showNow();
    bool isModified() const { return m_modified; }
    // Whether any list is built.
    bool hasSets() const;

    myModel *model() { return m_model; }
    myTreeView *view() { return m_view; }
    // The window of a list, made when it is first asked for.
    Kiv_bomViewWindow &viewWindow(const QString &path);
    // Closes the lists' windows, too; false when the user wants one to stay.
    bool closeAll();

public slots:
    void commandClose(bool);
    void commandUndo(bool);
    void commandRedo(bool);
    void commandFullReport(bool);
    void commandSet(bool);
    void commandClear(bool);
    void commandAllQuantities(bool);
    void commandSave(bool);
    void commandCollaps(bool);
    void commandExpand(bool);
    void commandExpand2(bool);

    // Of the context menu, on the current row.
    void commandAddFile(bool);
    void commandAddGroup(bool);
    void commandDelete(bool);
    void commandOpen(bool);
    void commandBom(bool);
    void commandCsv(bool);
    void commandDoc(bool);

    // Hands a material to the list's window that was used last.
    void insertToBom(const materialKtm &ktm);
    void clearCommands();

signals:
    // The lists that are built, as their files hold them now.
    void appendToOrder(const std::vector<bomOperations::bomSets> &lists);

protected:
    void closeEvent(QCloseEvent *event) override;

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);
    void headerTreeClicked(QPoint position, uint buttons, int section);
    void selectItem(QTreeView *view, QStandardItem *item);

private:
    // Lists that were read, with their records.
    struct readLists
    {
        std::vector<std::unique_ptr<kiv_mat_bomStruct>> boms;
        std::vector<bomOperations::bomSets> lists;
        bool complete = true;
    };

    void showSet(const QHash<QString, int> &sets);
    void updateActions();
    void changed();
    void showContextMenu(const QPoint &position);
    bool save();
    QStandardItem *current() const;
    QList<QStandardItem *> selectedFiles() const;
    QString pathOf(const QStandardItem *first) const;
    QString currentPath() const;
    void setSets(const QList<QStandardItem *> &files, int sets, const QString &what);
    QStandardItem *groupForNewFile(std::vector<std::unique_ptr<command>> &members);
    void push(std::unique_ptr<command> change, const QString &what);
    readLists read(const QList<QStandardItem *> &files);
    void tellWritten(const QString &path, bool written);

    std::unique_ptr<bomTree::setRows> m_rows;
    std::unique_ptr<commandStack> m_stack;
    myModel *m_model;
    myTreeView *m_view;
    class QLabel *m_counts;
    std::map<QString, std::unique_ptr<Kiv_bomViewWindow>> m_views;
    QString m_lastView; // path of the list whose window was used last
    fileState m_onDisk;
    bool m_modified = false;
};

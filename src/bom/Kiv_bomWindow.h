// The set of BOM lists: how many sets of each are built, reports and exports, and what goes into
// the order. Changes of the set count in the program at once, and are taken back when the window is
// closed without saving; the numbers of sets live as long as the window. The tree stands in
// Kiv_bomWindow.cpp, what is done with the lists in bomListActions.cpp, with the stock in
// bomStockActions.cpp, and with materials in replacingMaterials.cpp.
#pragma once

#include "bom/boardStock.h"
#include "bom/bomTree.h"
#include "bom/materialReplacement.h"
#include "window/editWindow.h"

#include <map>

class Kiv_bomViewWindow;
class bomImportWindow;
class QTreeView;
class childRunner;

using materialKtm = QString;

class Kiv_bomWindow : public editWindow
{
    Q_OBJECT
public:
    explicit Kiv_bomWindow(programData &known);
    ~Kiv_bomWindow() override;

    // Opens the material editor with a new material that has these texts and firms.
    std::function<void(const materialStruct &filledIn)> makeMaterial;

    // Takes what was built out of the databases' stock, in their windows; boards names it for the
    // user. False, told to the user, when nothing was taken out.
    std::function<bool(std::vector<boardStock::withdrawal> of, const QString &boards)> takeOut;

    // The open order as it stands in its window, for a material that is replaced there, too; fault
    // says why it must not be. And the step in its window.
    std::function<materialReplacement::document()> openOrder;
    std::function<void(const materialReplacement::replacement &what)> replaceInOrder;
    // Asks what takes the place of a material, which may be empty, and replaces it in the lists of
    // the set and the open order that the user ticks. over: the window that it is asked and told
    // in.
    void replaceMaterial(const QString &before, baseWindow &over);

    // The set differs from its file; the numbers of sets to build are no part of it.
    bool isModified() const override;
    // Whether any list is built.
    bool hasSets() const;

    myModel *model() const { return modelOf(m_view); }
    myTreeView *view() { return m_view; }
    // The window of a list, made when it is first asked for.
    Kiv_bomViewWindow &viewWindow(const QString &path);
    // The lists' windows that were made.
    std::vector<editWindow *> viewWindows() const;

public slots:
    void commandFullReport(bool);
    void commandSet(bool);
    void commandClear(bool);
    void commandAllQuantities(bool);
    void commandCollaps(bool);
    void commandExpand(bool);
    void commandExpand2(bool);

    // Of the context menu, on the current row.
    void commandAddFile(bool);
    void commandImport(bool);
    void commandCompare(bool);
    void commandReserve(bool);
    void commandBuilt(bool);
    void commandReservations(bool);
    void commandReplaceMaterial(bool);
    void commandAddGroup(bool);
    void commandDelete(bool);
    void commandOpen(bool);
    void commandBom(bool);
    void commandCsv(bool);
    void commandDoc(bool);

    // Hands a material to the list's window that was used last.
    void insertToBom(const materialKtm &ktm);

signals:
    // The lists that are built, as their files hold them now.
    void appendToOrder(const std::vector<bomOperations::bomSets> &lists);

protected:
    QString filePath() const override;
    QString title() const override { return tr("Bill of materials"); }
    documentStruct *record() override;
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    // The numbers of sets outlive the window's closing, and so does their history.
    void begin() override { setUnlocked(true); }
    void closed() override {}
    bool discard() override { return load(); }
    bool write(const QString &path) override;
    void saved() override;
    fileState &onDisk() override;
    void forgetSaved() override;
    QString fault() const override;
    QString closeQuestion() const override { return tr("Save the changed set of BOM lists?"); }
    void updateActions() override;
    void changeEvent(QEvent *event) override;
    static QString nothingBuilt();

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
    void showContextMenu(const QPoint &position);
    QStandardItem *current() const;
    QList<QStandardItem *> selectedFiles() const;
    QString pathOf(const QStandardItem *first) const;
    QString currentPath() const;
    void setSets(const QList<QStandardItem *> &files, int sets, const QString &what);
    QStandardItem *groupForNewFile(std::vector<std::unique_ptr<command>> &members);
    readLists read(const QList<QStandardItem *> &files);
    // All that are built, which are put into files too; none, told to the user, when one of them
    // cannot be read.
    readLists readBuilt(QList<QStandardItem *> *files);
    bool haveReservations();
    void addToSet(const QString &path);
    // Opens the file that was dropped on a list's window in one of its own.
    void openList(const QString &path);
    void tellWritten(const QString &path, bool written);

    // --- replacingMaterials.cpp ---
    Kiv_bomViewWindow *openView(const QString &path) const;
    std::optional<std::vector<materialReplacement::document>> documents(baseWindow &over);
    bool carryOut(const std::vector<materialReplacement::document *> &chosen,
                  const materialReplacement::replacement &what, baseWindow &over);

    std::unique_ptr<bomTree::setRows> m_rows;
    myTreeView *m_view;
    class QLabel *m_counts;
    QByteArray m_saved; // the set as its file has it
    std::map<QString, std::unique_ptr<Kiv_bomViewWindow>> m_views;
    std::unique_ptr<bomImportWindow> m_import;
    QString m_lastView; // path of the list whose window was used last
};

// The window of one material database: browse, search, filter, edit, check, report, export.
// Construction and editing stand in Kiv_mat_databaseWindow.cpp, searching and filtering in
// databaseFilter.cpp, the page beside the tree in databaseDetails.cpp, the tools over the whole
// database in databaseTools.cpp, what files dropped on it do in databaseDrop.cpp.
#pragma once

#include "commands/editCommands.h"
#include "data/materialUses.h"
#include "data/programData.h"
#include "database/builtBoards.h"
#include "database/databaseMerge.h"
#include "database/databaseTree.h"
#include "database/droppedFiles.h"
#include "database/exportResult.h"
#include "database/linkExamination.h"
#include "database/materialChange.h"
#include "database/stockedDeliveries.h"
#include "firm/firmOperations.h"
#include "window/editWindow.h"

class Kiv_mat_databaseMergeWindow;
class findingsWindow;
class detailsPane;
class QLabel;
class QTreeView;
class linksWindow;
class kiv_mat_zpStruct;
namespace bulkEdit {
struct plan;
}
class materialWindow;
class searchLine;
enum class databaseReportKind;
enum class findingKind;
struct linkCheckResult;

using materialKtm = QString;

class Kiv_mat_databaseWindow : public editWindow
{
    Q_OBJECT
public:
    // Shows a loaded database of the program; every change counts in the program at once, and is
    // taken back when the window is closed without saving.
    Kiv_mat_databaseWindow(programData &known, programData::databaseKind kind);
    ~Kiv_mat_databaseWindow() override;

    bool mayClose() override;

    myModel *model() { return m_model; }
    myTreeView *view() { return m_view; }
    databaseTree::rows &rows() { return *m_rows; }

    // The order that is open, whose lines may use materials that are deleted here.
    std::function<const kiv_mat_zpStruct &()> openOrder;

    // How many materials the search field and the filters let be seen.
    int shownCount() const { return m_shownCount; }
    // Adds a firm of that name to the register, where the window may; set before a material is
    // edited. False, told to the user, when it could not.
    std::function<bool(firmOperations::firmKind, const QString &name)> addFirm;

    bool isModified() const override;

    // Fetches, expands and selects a material's row.
    void selectMaterial(const materialStruct *material);
    void selectItem(QTreeView *view, QStandardItem *item);
    // Makes a cell current, of a material, or of a group without one; what hides it gives way.
    void goToCell(const materialStruct *material, const d_groupStruct *group, QLatin1String field);
    // Comes to the front with it.
    void showCell();

public slots:
    void commandFullReport(bool);
    void commandShortReport(bool);
    void commandExpand(bool);
    void commandExpand2(bool);
    void commandCollaps(bool);
    void commandMerge(bool);
    void commandAltiumXlsx(bool);
    void commandAltiumSQLite(bool);
    void commandUpdate(bool);
    void commandCheck_urls(bool);
    void commandChecks(bool);
    void commandExamineLinks(bool);
    void commandFindDuplicate(bool);
    void commandFindEmpty(bool);
    void commandParse(bool);
    void commandInformation(bool);
    void commandGroups(bool);
    void commandLoadCPVForGroups(bool);
    void commandMoveCPVFromGroupToMaterials(bool);
    void commandCPVIndex(bool);
    void commandCPVIndexWWW(bool);
    void commandGray(bool on);
    void commandGreen(bool on);
    void commandViolet(bool on);
    void commandBlue(bool on);
    void commandEdited(bool on);
    void commandFind(bool);
    void commandColumns(bool);
    void commandDetails(bool on);
    void commandGoToDetails(bool);
    void commandHistory(bool);

    // Of the context menu, on the current cell or the selected materials.
    void commandOpenLink(bool);
    void commandOpenCopy(bool);
    void commandEditParameters(bool);
    void commandCopyMaterials(bool);
    void commandCutMaterials(bool);
    void commandPasteMaterials(bool);
    void commandDeleteMaterials(bool);
    void commandChangeMaterials(bool);
    void commandAddMaterial(bool);
    void commandEditCpv(bool);
    void commandAddGroup(bool);
    void commandExpandGroup(bool);
    void commandCollapsGroup(bool);
    void commandInsertToBom(bool);
    void commandReplaceMaterial(bool);
    void commandToOrder(bool);
    void commandToOrderN(bool);

    // From the material editor: the receiver owns the material.
    void commandAddNew(QStandardItem *group, materialStruct *material);
    void commandEditExist(QStandardItem *item, materialStruct *material);

    // Takes over the selected differences as one step, or, when progress cancels, none of them:
    // then false, told in the status bar.
    bool takeOver(const std::vector<materialDifference> &selected, bool deleteAbsent,
                  const QString &what, const progressFunction &progress = {});
    // Carries out those changes of a plan as one step, or none of them, as above.
    bool changeMaterials(const bulkEdit::plan &plan, const std::vector<int> &chosen);
    // Gives manufacturers and suppliers their new names as one step.
    void renameFirms(const firmOperations::renameList &renames);
    // Does with dropped files what they are for; material is what they were dropped on, or null.
    void takeFiles(const std::vector<droppedFiles::file> &files, materialStruct *material);
    // What that is, for the user.
    droppedFiles::plan planFor(const std::vector<droppedFiles::file> &files,
                               const materialStruct *material) const;
    // Unlocks the window for a change that comes from elsewhere; false, told to the user, when it
    // stays locked.
    bool makeEditable();
    // Changes the stock as one step. The boards that it was taken out for are noted when the
    // database is saved.
    void takeOut(std::vector<materialChange> stock, builtBoards::boards built, const QString &what);
    // Changes the stock as one step. The deliveries that it came by are noted when the database is
    // saved.
    void takeIn(std::vector<materialChange> stock, stockedDeliveries::entries deliveries,
                const QString &what);
    // Those of an order that went into the stock and are not noted yet.
    deliveredStock::takenList pendingOf(const QString &orderPath) const
    {
        return m_stocked.pendingOf(orderPath);
    }
    // Orders were placed or came: the columns that tell of them are read again.
    void ordersChanged();
    // Gives links other addresses as one step; how many were changed.
    int replaceLinks(const std::vector<linkExamination::replacement> &replacements);

    // Asks for a group and opens the editor with a new material in it that has the given texts and
    // firms. False when the window stays locked or the user thought better of it.
    bool addFilledIn(const materialStruct &filledIn);

    // Shows the material that has the link, in front; false when there is none.
    bool goToMaterial(const QString &ktm, const QString &link);

signals:
    void appendToOrder(const QStringList &ktms, uint quantity);
    void insertToBom(const materialKtm &ktm);
    // A material is to be replaced in BOM lists and the order; over is the window that asks.
    void replaceWanted(const QString &ktm, baseWindow *over);
    // The line of a BOM list or an order is to be shown.
    void useWanted(const materialUses::use &use);

protected:
    QString filePath() const override;
    QString title() const override;
    void begin() override;
    void keepCurrent(const materialStruct *material, int column);
    QString editedKey() const override;
    void takeTexts(materialStruct *material, const QStringList &texts);
    std::unique_ptr<command> takeRows(const store::syncResult &result, store::base *known) override;
    documentStruct *record() override;
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    bool write(const QString &path) override;
    void leaveUnsaved() override;
    bool takeNote(const QString &note) override;
    bool discard() override { return load(); }
    void closed() override;
    fileState &onDisk() override;
    QLatin1String editOption() const override;
    QString closeQuestion() const override { return tr("Save database"); }
    bool closesWithCancel() const override { return false; }
    void historyMoved() override;
    void updateActions() override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private slots:
    void itemTreeClicked(QPoint position, uint buttons, const QModelIndex &index);

private:
    // --- Kiv_mat_databaseWindow.cpp ---
    void buildWidgets();
    void showDatabase();
    void showReserved();
    void showContextMenu(const QPoint &position);
    void goToFound();

    // --- databaseMaterials.cpp ---
    QString faultOf(const myItem::myItemStandard &item, const QString &text) const;
    std::vector<materialStruct *> selectedMaterials() const;
    QStringList selectedKtms();
    QStandardItem *currentGroup() const;
    materialWindow &editor();

    // --- databaseDetails.cpp ---
    void buildDetails(QWidget *page);

    // --- databaseFilter.cpp ---
    void setFilter(const char *name, const QString &word, bool on);
    void applyFilter();
    void showGroups();
    void closeOpened();
    void showHint();
    void deselectUnmatched();
    bool matches(const materialStruct &material) const;
    void showAll();

    // --- databaseShowFindings.cpp ---
    findingsWindow &findings();
    void noteLinks(const linkCheckResult &checked);

    // --- databaseBulk.cpp ---
    std::vector<ktmIndex::entry> placesToChange(bool selectedOnly);
    QModelIndex rowThatStays(const std::vector<ktmIndex::entry> &leaving) const;

    // --- databaseLinks.cpp ---
    QString currentLink() const;
    void updateLinkActions();

    // --- databaseTools.cpp ---
    void pushNames(std::vector<firmOperations::nameChange> changes, const QString &what);
    void writeReport(databaseReportKind kind);
    void exportTo(const QString &path,
                  exportResult (*run)(const kiv_mat_databaseStruct &, const QString &,
                                      const progressFunction &));
    void tellExport(const exportResult &result);
    void tellLibrary(const exportResult &result);
    bool mayDelete(const std::vector<materialDifference> &wanted);
    void applyTexts(std::vector<materialChange> changes, const QString &what);
    void list(const QString &heading, const QStringList &lines);
    void takeListing(const QString &path);
    void loadCpv(const QString &path);
    void mergeWith(const QString &path);

    // --- databaseDrop.cpp ---
    void attach(const std::vector<droppedFiles::file> &files, materialStruct *material);

    programData::databaseKind m_kind;
    myModel *m_model = nullptr;
    myTreeView *m_view = nullptr;
    QLabel *m_hint;                              // in the tree that shows nothing
    std::vector<QPersistentModelIndex> m_opened; // groups that a search opened
    QString m_filledInto; // the group that the last filled-in material went to
    searchLine *m_words = nullptr;
    detailsPane *m_details = nullptr;
    std::unique_ptr<databaseTree::rows> m_rows;
    std::vector<std::unique_ptr<materialStruct>> m_copied;
    std::unique_ptr<Kiv_mat_databaseMergeWindow> m_merge;
    std::unique_ptr<findingsWindow> m_findings;
    std::unique_ptr<linksWindow> m_links;
    materialWindow *m_editor = nullptr;
    searchQuery m_query;
    builtBoards m_built;
    stockedDeliveries m_stocked;
    QHash<QString, decimal> m_reserved; // by KTM
    QString m_statusFilter;
    bool m_editedFilter = false;
    int m_shownCount = 0;
};

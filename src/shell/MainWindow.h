// The main window: the open order and the ways to everything else. Construction and what concerns
// the program stand in MainWindow.cpp, the order's life in MainWindowOrder.cpp, its lines in
// MainWindowLines.cpp, BOM lists and messages in MainWindowBom.cpp, what was left unsaved in
// MainWindowRecovery.cpp, the register of orders in MainWindowOrders.cpp, what becomes of an
// order later in MainWindowPurchase.cpp, updates in MainWindowUpdate.cpp, and the shared store in
// MainWindowStore.cpp.
#pragma once

#include "bom/boardStock.h"
#include "bom/supplierBasket.h"
#include "commands/editCommands.h"
#include "data/materialUses.h"
#include "data/programData.h"
#include "order/orderDocument.h"
#include "order/orderOperations.h"
#include "order/orderRecovery.h"
#include "orders/annualPlan.h"
#include "window/editWindow.h"

#include <array>
#include <optional>

class QLabel;
class QSplitter;
class QTabWidget;
class QTimer;
class Kiv_bomWindow;
class Kiv_mat_databaseWindow;
class addMaterialDialog;
class annualPlanWindow;
class configWindow;
class firmWindow;
class myWebView;
class offersWindow;
class orderRegister;
class requestsWindow;
class orderView;
class ordersWindow;
class updateWindow;
class versionsWindow;
struct fileKind;
struct keptCopy;

namespace deliveredStock {
struct delivery;
}
namespace mail {
enum class contents;
}

class MainWindow : public editWindow, public htmlView
{
    Q_OBJECT
public:
    // Loads the configuration, all data files and the last order in nine stages, which the start-up
    // picture shows. What cannot be read is in the errors window, which is shown when it holds
    // anything.
    explicit MainWindow(programData &known);
    ~MainWindow() override;

    // Has the preview follow the order once the burst of changes is over.
    void refreshHtml() override;

    // Offers what runs before left unsaved, if any did, and then opens the last order unless
    // another one was chosen.
    void offerRecovery() { offerLeft(true); }
    // Writes all unsaved work aside, for the next start to find if the program ends now.
    void storeAll();
    // Does so and ends the program, without a question.
    void endNow();

    bool isModified() const override;
    // Whether it was closed for the program to begin anew.
    bool beginsAnew() const { return m_beginsAnew; }
    bool storeRecovery() override;
    void leaveUnsaved() override;

    orderDocument &document() { return m_document; }
    orderView &view() { return *m_order; }
    // The window of a database, made when it is first asked for.
    Kiv_mat_databaseWindow &databaseWindow(programData::databaseKind kind);
    std::optional<programData::databaseKind> chosenDatabase();
    Kiv_bomWindow &bomWindow();
    firmWindow &firms();
    // The report brought up to date at once.
    void refreshPreview();

public slots:
    void commandZpNew(bool);
    void commandZpOpen(bool);
    void commandZpRepair(bool);
    void commandZpSave(bool on);
    void commandZpSaveAs(bool);
    void commandZpPrint(bool);
    void commandZpSend(bool);
    void commandZpEdit(bool on) { commandEdit(on); }
    void commandZpUndo(bool on) { commandUndo(on); }
    void commandZpRedo(bool on) { commandRedo(on); }
    void commandZpConfig(bool);
    void commandZpCopy(bool);
    void commandZpClear(bool);
    void commandZpAllQuantities(bool);
    void commandZpAllDates(bool);
    void commandZpAllDescriptions(bool);
    void commandZpAllRoHS(bool);
    void commandZpAllUnits(bool);
    void commandZpAllTargets(bool);
    void commandZpAllSum(bool);
    void commandZpClearPrices(bool);
    void commandZpRefreshPrices(bool);
    void commandZpLastPrices(bool);
    void commandZpDeleteAll(bool);
    void commandDeleteLines(bool);
    void commandMoveUp(bool);
    void commandMoveDown(bool);
    void commandEditAttentions(bool);
    void commandAddMaterial(bool);
    void commandAddShipment(bool);
    void commandAddPCB(bool);
    void commandAppendBomToZp(bool);
    void commandBaskets(bool);
    void commandArchiveDD(bool);
    void commandArchiveDatabase(bool);
    void commandSendDatabase(bool);
    void commandSendBOMS(bool);
    void commandPreviewBeside(bool on);
    void databaseCommand(bool);
    void commandBom(bool);
    void commandFirm(bool);
    void commandOrders(bool);
    void commandAnnualPlan(bool);
    void commandSentChanges(bool);
    void commandRequests(bool);
    void commandOffers(bool);
    void commandDelivery(bool);
    void commandDeliveredToStock(bool);
    void commandMessageTemplate(bool);
    void configCommand(bool);
    void commandShowLog(bool);
    void commandShowErrors(bool);
    void commandHelp(bool);
    void commandAbout(bool);
    void commandExit(bool);
    void checkUpdate();
    // Listens to the shared store when a file of the configuration is in it, and it is reached
    // without asking.
    void checkStore();
    void commandSynchronizeAll(bool);
    void commandTakeShared(bool);
    void commandPutShared(bool);
    void commandUpdate(bool);
    void commandCreateUpdate(bool);
    void commandUpdateDesc(bool);
    void configChange();

    // Appends a line for each material; those of shipment and service that the order holds already
    // are refused. orderAnswered() says what became of them.
    void appendToOrder(const materialKtms_list &ktms, uint quantity);
    // Shows a line of a BOM list or an order. Another order than the open one takes its place once
    // the user says so.
    void showUse(const materialUses::use &use);
    // Shows what the lists need, and adds it as one step when the user says so.
    void appendBoms(const std::vector<bomOperations::bomSets> &lists);
    void showBaskets(const std::vector<supplierBasket::item> &items);
    void reOrdinalRows();

signals:
    // What became of materials that another window sent to the order.
    void orderAnswered(const QString &text);

private slots:
    void modelTreeClicked(QPoint position, uint buttons, const QModelIndex &index);
    void headerTreeClicked(QPoint position, uint buttons, int section);
    void textEditDoubleClicked(QPoint position, uint buttons);
    void currentTabChanged(int index);

protected:
    QString filePath() const override { return m_document.path(); }
    QString title() const override { return tr("Order"); }
    void begin() override {}
    documentStruct *record() override;
    std::unique_ptr<command> become(documentStruct &wanted) override;
    bool load() override;
    bool write(const QString &path) override;
    void saved() override;
    fileState &onDisk() override { return m_document.onDisk(); }
    bool saveAs() override;
    bool canSaveAs() const override { return true; }
    bool canKeep() const override { return true; }
    QLatin1String editOption() const override;
    QString closeQuestion() const override;
    bool closesWithCancel() const override { return false; }
    void historyMoved() override;
    void lockChanged() override;
    void updateActions() override;
    myTreeView *currentView() const override;
    htmlView *page() override { return this; }
    bool takesFiles() const override { return true; }
    void fileDropped(const QString &path) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void deletePressed(const myTreeView *view) override;

private:
    // Takes boards out of the databases' stock: one step in the window of each database. False,
    // told to the user, when one of them cannot be changed; then none is.
    bool takeOut(std::vector<boardStock::withdrawal> of, const QString &boards);
    // --- MainWindow.cpp ---
    void buildWidgets();
    void loadDataFiles();
    void openLastOrder();
    void showDocument();
    void orderChanged();
    void showSums();
    bool isPreviewVisible() const;
    void showContextMenu(const QPoint &position);
    // The windows that were opened from here.
    std::vector<editWindow *> secondaryWindows() const;

    // --- MainWindowOrder.cpp ---
    bool closeDocument();
    bool leaveOrder();
    void forgetOrder();
    bool recoverOrder(const orderRecovery::copy &copy);
    bool recoverOther(const leftChanges &copy);
    void openFile(const QString &path);
    void openRepaired(const QString &path, QString *fault = nullptr);
    void offerLeft(bool atStart);
    bool printTo(const QString &path);

    // --- MainWindowVersions.cpp ---
    void showVersions(const QString &path);
    void openCopy(const keptCopy &copy);
    void restoreCopy(const keptCopy &copy);
    void restoreDetails(const keptCopy &copy, documentStruct &version);
    editWindow *windowOf(const QString &path, const fileKind &kind);

    // --- MainWindowLines.cpp ---
    bool setColumn(int column, const std::vector<int> &rows, const QVariant &value,
                   const QString &what);
    std::optional<std::vector<int>> wantedRows();
    void appendLines(std::vector<std::unique_ptr<orderItemStruct>> lines, const QString &what);
    void addSpecialLine(const QString &ktm, const QString &description);
    void fillSelected();
    void deleteRows(const std::vector<int> &rows, const QString &what);

    // --- MainWindowBom.cpp ---
    bool startMail(const QString &description);
    void sendData(mail::contents what);

    // --- MainWindowOrders.cpp ---
    void openInPlace(const QString &path);
    void openAt(const QString &path, const QString &ktm, int line);
    void copyAsNew(const QString &path);
    void noteSent();
    void lockIfSent();
    void lookWhetherSent();
    orderRegister &orders();
    // Looks at the orders' files, and shows anew what follows from them.
    void lookAtOrders();
    void ordersChanged();
    void showThresholds();
    void askFirms();
    // Deliveries that are in stock are so for the order under its other name, too.
    void takeNotesAlong(const QString &from, const QString &to);
    void takeIntoStock(const std::vector<deliveredStock::delivery> &chosen, const QString &what);

    orderDocument m_document;
    QTabWidget *m_tabs = nullptr;
    QSplitter *m_beside = nullptr;
    orderView *m_order = nullptr;
    myWebView *m_preview = nullptr;
    QLabel *m_path = nullptr;
    QLabel *m_sums = nullptr;
    QLabel *m_overThreshold = nullptr;
    QTimer *m_refresh = nullptr;
    QTimer *m_lookAtOrders = nullptr;
    std::unique_ptr<orderRecovery> m_recovery;
    std::unique_ptr<configWindow> m_config;
    std::unique_ptr<firmWindow> m_firm;
    std::unique_ptr<Kiv_bomWindow> m_bom;
    std::unique_ptr<versionsWindow> m_versions;
    std::unique_ptr<orderRegister> m_register;
    std::unique_ptr<ordersWindow> m_orders;
    std::unique_ptr<annualPlanWindow> m_plan;
    std::unique_ptr<offersWindow> m_offers;
    std::unique_ptr<requestsWindow> m_requests;
    std::unique_ptr<updateWindow> m_update;
    bool m_beginsAnew = false;
    annualPlan::yearSums m_yearSums;
    addMaterialDialog *m_addMaterial = nullptr;
    std::array<std::unique_ptr<Kiv_mat_databaseWindow>, programData::databaseCount> m_databases;
    bool m_previewIsOld = true;
    bool m_hasSentCopy = false;
};

#include "shell/MainWindow.h"

#include "bom/Kiv_bomWindow.h"
#include "config/configWindow.h"
#include "data/lineSums.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "dialogs/aboutDialog.h"
#include "dialogs/versionsWindow.h"
#include "firm/firmWindow.h"
#include "order/orderView.h"
#include "orders/annualPlanWindow.h"
#include "orders/offersWindow.h"
#include "orders/ordersWindow.h"
#include "orders/requestsWindow.h"
#include "report/myWebView.h"
#include "shell/logos.h"
#include "shell/startupDialog.h"
#include "tree/myHeaderView.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "update/updateWindow.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/userState.h"
#include "window/messageWindow.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QSslConfiguration>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace {

constexpr int stages = 9;
constexpr int updateCheckDelayMs = 50;
constexpr int refreshDelayMs = 250;

const actionRow doSeparator{nullptr, "Do", nullptr, nullptr, nullptr, nullptr, false};

// Not what the word means in the other windows.
constexpr const char *deleteAll[] = QT_TRANSLATE_NOOP3("actions", "Delete", "all lines");

const windowAction<MainWindow> actionTable[] = {
    {{"zpNew", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "New"),
      "action_new", "Ctrl+N", QT_TRANSLATE_NOOP("actions", "Start an empty order"), true},
     &MainWindow::commandZpNew},
    {{"zpOpen", "File", QT_TRANSLATE_NOOP("actions", "Open"), "action_open", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open an order"), true},
     &MainWindow::commandZpOpen},
    {usualActions::save, &MainWindow::commandZpSave},
    {{"zpSaveAs", "File", QT_TRANSLATE_NOOP("actions", "Save as"), "action_save_as", "Ctrl+Alt+S",
      QT_TRANSLATE_NOOP("actions", "Save under another name, with the report beside it")},
     &MainWindow::commandZpSaveAs},
    {usualActions::fileSeparator, nullptr},
    {{"zpPrint", "File", QT_TRANSLATE_NOOP("actions", "Print"), "action_print", "Ctrl+P",
      QT_TRANSLATE_NOOP("actions", "Print the order to a PDF file"), true},
     &MainWindow::commandZpPrint},
    {{"zpSend", "File", QT_TRANSLATE_NOOP("actions", "Send"), "action_send", "Ctrl+M",
      QT_TRANSLATE_NOOP("actions", "Send the saved order and its PDF by mail"), true},
     &MainWindow::commandZpSend},
    {usualActions::fileSeparator, nullptr},
    {{"zpRepair", "File", QT_TRANSLATE_NOOP("actions", "Open repaired copy ..."), "action_open",
      nullptr, QT_TRANSLATE_NOOP("actions", "Read what can be read of a damaged file of any kind")},
     &MainWindow::commandZpRepair},
    {usualActions::versions, &MainWindow::commandVersions},
    {{"archiveDD", "File", QT_TRANSLATE_NOOP("actions", "Archive dd"), "action_archive", nullptr,
      QT_TRANSLATE_NOOP("actions", "Put a dated copy of the order into the backup folder")},
     &MainWindow::commandArchiveDD},
    {{"archiveDatabase", "File", QT_TRANSLATE_NOOP("actions", "Archive database"), "action_archive",
      nullptr,
      QT_TRANSLATE_NOOP("actions",
                        "Put dated copies of the material databases into the backup folder")},
     &MainWindow::commandArchiveDatabase},
    {{"sendDatabase", "File", QT_TRANSLATE_NOOP("actions", "Send database"), "action_mail", nullptr,
      QT_TRANSLATE_NOOP("actions", "Send the material databases to the administrator")},
     &MainWindow::commandSendDatabase},
    {{"sendBoms", "File", QT_TRANSLATE_NOOP("actions", "Send BOMS"), "action_mail", nullptr,
      nullptr},
     &MainWindow::commandSendBOMS},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"exit", "File", QT_TRANSLATE_NOOP("actions", "Exit"), "action_exit", "Ctrl+Q", nullptr},
     &MainWindow::commandExit},

    {usualActions::edit(QT_TRANSLATE_NOOP("actions", "Allow changes of the order")),
     &MainWindow::commandZpEdit},
    {usualActions::editSeparator, nullptr},
    {usualActions::undo, &MainWindow::commandZpUndo},
    {usualActions::redo, &MainWindow::commandZpRedo},
    {usualActions::editSeparator, nullptr},
    {usualActions::copyCells, &MainWindow::commandCopyCells},
    {usualActions::pasteCells, &MainWindow::commandPasteCells},
    {usualActions::fillDown, &MainWindow::commandFillDown},
    {{"zpCopy", "Edit", QT_TRANSLATE_NOOP("actions", "Copy ..."), "action_duplicate", nullptr,
      QT_TRANSLATE_NOOP("actions", "Copy lines to another order or to the clipboard")},
     &MainWindow::commandZpCopy},
    {{"zpClear", "Edit", QT_TRANSLATE_NOOP("actions", "Clear ..."), "action_empty", nullptr,
      QT_TRANSLATE_NOOP("actions", "Empty chosen columns of the lines")},
     &MainWindow::commandZpClear},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Find a text in the lines"), true},
     &MainWindow::commandFind},
    {usualActions::findNext, &MainWindow::commandFindNext},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"zpConfig", "Edit", QT_TRANSLATE_NOOP("actions", "Config"), "action_set", "Ctrl+K",
      QT_TRANSLATE_NOOP("actions", "Go to the order's number, date, target and persons")},
     &MainWindow::commandZpConfig},
    {{"editAttentions", "Edit", QT_TRANSLATE_NOOP("actions", "Edit attentions"),
      "action_attentions", nullptr, nullptr},
     &MainWindow::commandEditAttentions},

    {{"addMaterial", QT_TRANSLATE_NOOP("actions", "Do"),
      QT_TRANSLATE_NOOP("actions", "Add material ..."), "action_add_material", "Ins",
      QT_TRANSLATE_NOOP("actions", "Search the databases and add materials"), true},
     &MainWindow::commandAddMaterial},
    {{"addShipment", "Do", QT_TRANSLATE_NOOP("actions", "Shipment"), "action_shipment", nullptr,
      QT_TRANSLATE_NOOP("actions", "Add a line for shipment")},
     &MainWindow::commandAddShipment},
    {{"addPCB", "Do", QT_TRANSLATE_NOOP("actions", "PCB"), "action_pcb", nullptr, nullptr},
     &MainWindow::commandAddPCB},
    {{"appendBom", "Do", QT_TRANSLATE_NOOP("actions", "Append from bom"), "action_from_bom",
      nullptr, QT_TRANSLATE_NOOP("actions", "Add the materials of BOM lists, times their sets")},
     &MainWindow::commandAppendBomToZp},
    {{"baskets", "Do", QT_TRANSLATE_NOOP("actions", "Supplier baskets ..."), "action_basket",
      nullptr, QT_TRANSLATE_NOOP("actions", "The lines parted by supplier, for their shops")},
     &MainWindow::commandBaskets},
    {doSeparator, nullptr},
    {{"allQuantities", "Do", QT_TRANSLATE_NOOP("actions", "All Quantities"), "action_quantities",
      nullptr, QT_TRANSLATE_NOOP("actions", "Set the quantity of all lines")},
     &MainWindow::commandZpAllQuantities},
    {{"allDates", "Do", QT_TRANSLATE_NOOP("actions", "All Dates"), "action_dates", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set the date of all lines")},
     &MainWindow::commandZpAllDates},
    {{"allDescriptions", "Do", QT_TRANSLATE_NOOP("actions", "All Descriptions"),
      "action_descriptions", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set the description of all lines")},
     &MainWindow::commandZpAllDescriptions},
    {{"allRoHS", "Do", QT_TRANSLATE_NOOP("actions", "All RoHS"), "action_rohs", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set whether the materials have to comply with RoHS")},
     &MainWindow::commandZpAllRoHS},
    {{"allUnits", "Do", QT_TRANSLATE_NOOP("actions", "All Units"), "action_units", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set the unit of all lines")},
     &MainWindow::commandZpAllUnits},
    {{"allTargets", "Do", QT_TRANSLATE_NOOP("actions", "All Targets"), "action_targets", nullptr,
      QT_TRANSLATE_NOOP("actions", "Set the target of all lines")},
     &MainWindow::commandZpAllTargets},
    {doSeparator, nullptr},
    {{"allSum", "Do", QT_TRANSLATE_NOOP("actions", "All Sum"), "action_sum", nullptr,
      QT_TRANSLATE_NOOP("actions", "Sums over all or the selected lines")},
     &MainWindow::commandZpAllSum},
    {{"clearPrice", "Do", QT_TRANSLATE_NOOP("actions", "Clear Price"), "action_clear_price",
      nullptr, QT_TRANSLATE_NOOP("actions", "Set the prices of the lines to 0")},
     &MainWindow::commandZpClearPrices},
    {{"refreshPrices", "Do", QT_TRANSLATE_NOOP("actions", "Refresh prices and stock"),
      "action_refresh", nullptr,
      QT_TRANSLATE_NOOP("actions", "Take prices and stock from the databases again")},
     &MainWindow::commandZpRefreshPrices},
    {{"lastPrices", "Do", QT_TRANSLATE_NOOP("actions", "Prices of the last orders"),
      "action_clear_price", nullptr,
      QT_TRANSLATE_NOOP("actions", "Take the price that each material was ordered at last")},
     &MainWindow::commandZpLastPrices},
    {doSeparator, nullptr},
    {{"requests", "Do", QT_TRANSLATE_NOOP("actions", "Requests for quotation ..."), "action_mail",
      "Ctrl+Shift+R",
      QT_TRANSLATE_NOOP("actions", "Ask firms for their prices, and see who answered"), true},
     &MainWindow::commandRequests},
    {{"offers", "Do", QT_TRANSLATE_NOOP("actions", "Offers ..."), "action_equal", "Ctrl+Shift+E",
      QT_TRANSLATE_NOOP("actions", "Take in and compare the offers of firms, and choose"), true},
     &MainWindow::commandOffers},
    {{"delivery", "Do", QT_TRANSLATE_NOOP("actions", "Delivery ..."), "action_shipment", nullptr,
      QT_TRANSLATE_NOOP("actions", "Note what came of the lines, in whole or in part")},
     &MainWindow::commandDelivery},
    {{"deliveredToStock", "Do", QT_TRANSLATE_NOOP("actions", "Delivered into stock ..."),
      "action_built", nullptr,
      QT_TRANSLATE_NOOP("actions", "Add what was delivered to the stock of the databases")},
     &MainWindow::commandDeliveredToStock},
    {{"sentChanges", "Do", QT_TRANSLATE_NOOP("actions", "Changed since it was sent ..."),
      "action_merge", nullptr,
      QT_TRANSLATE_NOOP("actions", "What this order has otherwise than the one that was sent")},
     &MainWindow::commandSentChanges},
    {doSeparator, nullptr},
    {usualActions::moveUp("Do"), &MainWindow::commandMoveUp},
    {usualActions::moveDown("Do"), &MainWindow::commandMoveDown},
    {{"deleteLines", "Do", QT_TRANSLATE_NOOP("actions", "Delete lines"), "action_delete", nullptr,
      QT_TRANSLATE_NOOP("actions", "Delete the selected lines (Del)")},
     &MainWindow::commandDeleteLines},
    {{"deleteAll", "Do", deleteAll[0], "action_clear", nullptr,
      QT_TRANSLATE_NOOP("actions", "Delete all lines"), false, false, deleteAll[1]},
     &MainWindow::commandZpDeleteAll},

    {{"database", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Database of material"), "action_database", "Ctrl+D",
      QT_TRANSLATE_NOOP("actions", "Browse and edit a material database"), true},
     &MainWindow::databaseCommand},
    {{"bom", "Tools", QT_TRANSLATE_NOOP("actions", "Bill of materials"), "action_bom", "Ctrl+B",
      QT_TRANSLATE_NOOP("actions", "The BOM lists and how many sets are built"), true},
     &MainWindow::commandBom},
    {{"firm", "Tools", QT_TRANSLATE_NOOP("actions", "Open list of manufacturers and suppliers"),
      "action_firm", nullptr, QT_TRANSLATE_NOOP("actions", "The register of firms"), true},
     &MainWindow::commandFirm},
    {{"orders", "Tools", QT_TRANSLATE_NOOP("actions", "Orders ..."), "action_list", "Ctrl+Shift+O",
      QT_TRANSLATE_NOOP("actions", "All orders, and a search over their lines"), true},
     &MainWindow::commandOrders},
    {{"annualPlan", "Tools", QT_TRANSLATE_NOOP("actions", "Annual plan ..."), "action_sum",
      "Ctrl+Shift+P",
      QT_TRANSLATE_NOOP("actions", "What the orders of a year come to, by CPV, target or supplier"),
      true},
     &MainWindow::commandAnnualPlan},
    {{"synchronizeAll", "Tools", QT_TRANSLATE_NOOP("actions", "Synchronise all"), "action_refresh",
      "Ctrl+Shift+Y",
      QT_TRANSLATE_NOOP("actions", "Bring all shared files together with the shared store"), true},
     &MainWindow::commandSynchronizeAll},
    {{"takeShared", "Tools", QT_TRANSLATE_NOOP("actions", "Take from the shared store ..."),
      "action_open", nullptr,
      QT_TRANSLATE_NOOP("actions", "Make a file of a document that others share")},
     &MainWindow::commandTakeShared},
    {{"putShared", "Tools", QT_TRANSLATE_NOOP("actions", "Put a file into the shared store ..."),
      "action_archive", nullptr,
      QT_TRANSLATE_NOOP("actions", "Share a database, firms, reservations, states or offers")},
     &MainWindow::commandPutShared},
    {{"update", "Tools", QT_TRANSLATE_NOOP("actions", "Update"), "action_refresh", nullptr,
      QT_TRANSLATE_NOOP("actions", "See what is newer at the address of updates, and install it")},
     &MainWindow::commandUpdate},
    {{"createUpdate", "Tools", QT_TRANSLATE_NOOP("actions", "CreateUpdate"), "action_archive",
      nullptr,
      QT_TRANSLATE_NOOP("actions", "Make an update of the program and the data as they are here")},
     &MainWindow::commandCreateUpdate},
    {{"updateDesc", "Tools", QT_TRANSLATE_NOOP("actions", "UpdateDesc"), "action_edit", nullptr,
      QT_TRANSLATE_NOOP("actions", "Say what is new in the update that is made next")},
     &MainWindow::commandUpdateDesc},
    {{"messageTemplate", "Tools", QT_TRANSLATE_NOOP("actions", "Message template"), "action_mail",
      nullptr, QT_TRANSLATE_NOOP("actions", "Edit the text that goes along with an order")},
     &MainWindow::commandMessageTemplate},
    {{"config", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Configuration"), "action_config", nullptr,
      QT_TRANSLATE_NOOP("actions", "Options, persons and targets")},
     &MainWindow::configCommand},

    {{"previewBeside", QT_TRANSLATE_NOOP("actions", "Window"),
      QT_TRANSLATE_NOOP("actions", "Preview beside the order"), "action_preview", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show the report beside the lines"), true, true},
     &MainWindow::commandPreviewBeside},
    {{"log", "Window", QT_TRANSLATE_NOOP("actions", "Log"), "action_log", nullptr,
      QT_TRANSLATE_NOOP("actions", "What was done, and how it went"), true},
     &MainWindow::commandShowLog},
    {{"errors", "Window", QT_TRANSLATE_NOOP("actions", "Errors"), "action_errors", nullptr,
      QT_TRANSLATE_NOOP("actions", "What could not be read or found"), true},
     &MainWindow::commandShowErrors},
    {{"help", QT_TRANSLATE_NOOP("actions", "Help"), QT_TRANSLATE_NOOP("actions", "Help"),
      "action_help", "F1", QT_TRANSLATE_NOOP("actions", "Open the manual"), true},
     &MainWindow::commandHelp},
    {{"about", "Help", QT_TRANSLATE_NOOP("actions", "About"), "action_about", nullptr,
      QT_TRANSLATE_NOOP("actions", "Version of the program")},
     &MainWindow::commandAbout},
};

bool keepSplashPainted(long long, long long)
{
    splash::keepPainted();
    return true;
}

// Later downloads trust the program's own certificates beside those of the system.
void prepareCertificates()
{
    const QString path = paths::beside(QStringLiteral("CaCertificates"));
    if (!QFileInfo::exists(path))
        return;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(QFileInfo(path).isDir() ? path + QLatin1String("/*") : path,
                                    QSsl::Pem, QSslCertificate::PatternSyntax::Wildcard);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

} // namespace

MainWindow::MainWindow(programData &files)
    : editWindow(QStringLiteral("MainWindow"), files)
    , m_document(files)
    , m_recovery(std::make_unique<orderRecovery>(recoveryFolders()))
{
    buildWidgets();
    connect(this, &editWindow::versionsWanted, this, &MainWindow::showVersions);
    prepareCertificates();
    loadDataFiles();
    QTimer::singleShot(updateCheckDelayMs, this, &MainWindow::checkUpdate);
    // What was left of an order may be wanted instead.
    if (m_recovery->left().empty())
        openLastOrder();
    else
        showDocument();
    m_order->linesView()->setFocus();
    splash::setProgress(stages, stages);
    userPrompts().showErrors();
    m_lookAtOrders->start();
}

MainWindow::~MainWindow() { known().setOrderedLookup({}); }

void MainWindow::buildWidgets()
{
    setWindowIcon(logos::logo());
    addActions(actionTable);

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_beside = new QSplitter(Qt::Horizontal, m_tabs);
    m_beside->setObjectName(QStringLiteral("besideSplitter"));
    m_beside->setChildrenCollapsible(false);
    m_order = new orderView(known(), stack(), m_beside);
    m_order->setObjectName(QStringLiteral("order"));
    watchView(m_order->linesView());
    watchView(m_order->optionsView());
    m_beside->addWidget(m_order);
    m_preview = new myWebView(m_tabs);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(labels::previewDo());
    m_tabs->addTab(m_beside, tr("File Do"));
    m_tabs->addTab(m_preview, labels::previewDo());
    setCentralWidget(m_tabs);
    m_path = new QLabel(this);
    m_path->setTextFormat(Qt::PlainText);
    m_sums = new QLabel(this);
    m_sums->setObjectName(QStringLiteral("sums"));
    constexpr int labelMargin = 8;
    m_overThreshold = new QLabel(this);
    m_overThreshold->setObjectName(QStringLiteral("overThreshold"));
    m_overThreshold->setTextFormat(Qt::PlainText);
    m_overThreshold->hide();
    for (QLabel *label : {m_path, m_sums, m_overThreshold})
        label->setContentsMargins(labelMargin, 0, labelMargin, 0);
    // A long note is cut where the window is narrow; the tool tip has all of it.
    m_sums->setMinimumWidth(1);
    statusBar()->addPermanentWidget(m_overThreshold);
    statusBar()->addPermanentWidget(m_sums);
    statusBar()->addPermanentWidget(m_path);
    constexpr QSize usualSize(1240, 820);
    resize(usualSize);

    m_refresh = new QTimer(this);
    m_refresh->setSingleShot(true);
    m_refresh->setInterval(refreshDelayMs);
    connect(m_refresh, &QTimer::timeout, this, [this] {
        if (isPreviewVisible())
            refreshPreview();
        showSums();
        showThresholds();
    });

    // Once the window is painted, and not for each of several files that are written.
    m_lookAtOrders = new QTimer(this);
    m_lookAtOrders->setSingleShot(true);
    m_lookAtOrders->setInterval(refreshDelayMs);
    connect(m_lookAtOrders, &QTimer::timeout, this, &MainWindow::lookAtOrders);
    m_order->setOrderedLookup(
        [this](const QString &ktm) { return known().orderedOf(ktm, m_document.path()); });

    connect(m_order, &orderView::changed, this, &MainWindow::orderChanged);
    connect(m_order, &orderView::actionWanted, this,
            [this](const QString &name) { action(name.toLatin1().constData())->trigger(); });
    connect(m_order->lines(), &myModel::removeOccured, this, &MainWindow::reOrdinalRows);
    connect(m_order->lines(), &myModel::appendOccured, this, &MainWindow::reOrdinalRows);
    connect(m_order->linesView(), qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &MainWindow::modelTreeClicked);
    connect(m_order->linesView(), &QWidget::customContextMenuRequested, this,
            &MainWindow::showContextMenu);
    connect(m_order->linesView(), &myTreeView::keyFill, this, &MainWindow::fillSelected);
    // Once for a key that is held down.
    auto *summing = new QTimer(this);
    summing->setSingleShot(true);
    connect(summing, &QTimer::timeout, this, &MainWindow::showSums);
    connect(m_order->linesView(), &myTreeView::markChanged, summing, qOverload<>(&QTimer::start));
    connect(m_order->linesView(), &myTreeView::rowsDragged, this,
            [this](const std::vector<int> &rows, int before) {
                moveRowsBefore(m_order->linesView(), rows, before);
            });
    connect(static_cast<myHeaderView *>(m_order->linesView()->header()), &myHeaderView::clicked,
            this, &MainWindow::headerTreeClicked);
    connect(m_order->attentions(), &myTextEdit::clicked, this, &MainWindow::textEditDoubleClicked);
    connect(m_order->attentions(), &myTextEdit::doubleClicked, this,
            [this] { commandEditAttentions(false); });
    connect(m_tabs, &QTabWidget::currentChanged, this, &MainWindow::currentTabChanged);
}

void MainWindow::loadDataFiles()
{
    programData &files = known();
    int stage = 0;
    const auto passed = [&stage] { splash::setProgress(++stage, stages); };
    files.loadConfiguration();
    passed();
    files.loadFirm(keepSplashPainted);
    passed();
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        files.loadDatabase(programData::databaseKind(kind), keepSplashPainted);
        passed();
    }
    files.loadBoms();
    passed();
    // The windows that show these data are made when they are first opened.
    passed();
}

void MainWindow::openLastOrder()
{
    const QString last = userState::instance().lastZp;
    if (!last.isEmpty() && !m_document.load(paths::data(last)))
        userState::instance().lastZp.clear();
    showDocument();
}

// What was opened or begun, from its beginning.
void MainWindow::showDocument()
{
    m_order->show(m_document.order());
    setClean();
    setUnlocked(known().config().isOn(optionKey::editZp));
    lockIfSent();
    refreshPreview();
    showSums();
}

// Statuses and stock may have changed in a database window.
void MainWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && m_order)
        m_order->refreshLooks();
}

void MainWindow::refreshHtml() { m_refresh->start(); }

void MainWindow::refreshPreview()
{
    m_refresh->stop();
    m_order->takeAttentions();
    m_previewIsOld = !isPreviewVisible() && isVisible();
    if (!m_previewIsOld)
        m_preview->showReport(m_document.report());
}

bool MainWindow::isPreviewVisible() const
{
    return m_preview->parentWidget() == m_beside || m_tabs->currentWidget() == m_preview;
}

void MainWindow::orderChanged()
{
    m_previewIsOld = true;
    refreshHtml();
    showState();
}

void MainWindow::historyMoved()
{
    orderChanged();
    showSums();
}

void MainWindow::showSums()
{
    const QString &path = m_document.path();
    m_path->setText(path.isEmpty() ? tr("New order") : QDir::toNativeSeparators(path));
    const std::vector<int> selected = m_order->selectedRows();
    const bool several = selected.size() > 1;
    const lineSums sums = sumsOf(m_order->records(several ? selected : m_order->allRows()));
    m_sums->setText((several ? tr("%n selected line(s), %1 PLN", nullptr, sums.lines)
                             : tr("%n line(s), %1 PLN", nullptr, sums.lines))
                        .arg(sums.price.money())
                    + sums.price.note());
    m_sums->setToolTip(m_sums->text());
}

void MainWindow::updateActions()
{
    const bool empty = m_order->lines()->rowCount() == 0;
    const QString noLines = tr("the order has no lines");
    allowWhenUnlocked({"addMaterial", "addShipment", "addPCB", "appendBom", "editAttentions"});
    allowWhenUnlocked({"zpClear", "allQuantities", "allDates", "allDescriptions", "allRoHS",
                       "allUnits", "allTargets", "clearPrice", "refreshPrices", "lastPrices",
                       "delivery", "deleteAll"},
                      !empty, noLines);
    for (const char *name : {"zpCopy", "allSum", "baskets", "find", "findNext"})
        setAvailable(name, !empty, noLines);
    // What acts on selected cells does so where they are seen.
    const bool areSeen = m_tabs->currentWidget() != m_preview;
    const QString whyNot = areSeen ? noLines : tr("the lines are not shown");
    allowWhenUnlocked({"pasteCells"}, areSeen, whyNot);
    allowWhenUnlocked({"fillDown", "moveUp", "moveDown", "deleteLines"}, areSeen && !empty, whyNot);
    setAvailable("copyCells", areSeen && !empty, whyNot);
    setAvailable("archiveDD", !m_document.path().isEmpty(), tr("the order was not saved yet"));
    setAvailable("deliveredToStock", !m_document.path().isEmpty() && !empty,
                 empty ? noLines : tr("the order was not saved yet"));
    setAvailable("sentChanges", m_hasSentCopy, tr("the order was not sent"));
}

void MainWindow::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    for (const char *name :
         {"copyCells", "pasteCells", "", "addMaterial", "addShipment", "addPCB", "appendBom", "",
          "allQuantities", "allDates", "allDescriptions", "allRoHS", "allUnits", "allTargets", "",
          "moveUp", "moveDown", "deleteLines"})
        if (*name)
            menu.addAction(action(name));
        else
            menu.addSeparator();
    menu.exec(m_order->linesView()->viewport()->mapToGlobal(position));
}

void MainWindow::currentTabChanged(int)
{
    if (isPreviewVisible() && m_previewIsOld)
        refreshPreview();
    updateActions();
}

void MainWindow::commandPreviewBeside(bool on)
{
    if (on) {
        m_tabs->removeTab(m_tabs->indexOf(m_preview));
        m_beside->addWidget(m_preview);
        m_preview->show();
        const int half = m_beside->width() / 2;
        m_beside->setSizes({half, half});
    } else {
        m_tabs->addTab(m_preview, labels::previewDo());
    }
    currentTabChanged(0);
}

Kiv_mat_databaseWindow &MainWindow::databaseWindow(programData::databaseKind kind)
{
    auto &window = m_databases[kind];
    if (!window) {
        window = std::make_unique<Kiv_mat_databaseWindow>(known(), kind);
        connect(window.get(), &editWindow::versionsWanted, this, &MainWindow::showVersions);
        window->openOrder = [this]() -> const kiv_mat_zpStruct & { return m_document.order(); };
        window->addFirm = [this](firmOperations::firmKind firm, const QString &name) {
            return firms().addFirm(firm, name);
        };
        connect(window.get(), &Kiv_mat_databaseWindow::useWanted, this, &MainWindow::showUse);
        connect(this, &MainWindow::orderAnswered, window.get(), &editWindow::tell);
        connect(window.get(), &Kiv_mat_databaseWindow::appendToOrder, this,
                &MainWindow::appendToOrder);
        connect(window.get(), &Kiv_mat_databaseWindow::replaceWanted, this,
                [this](const QString &ktm, baseWindow *over) {
                    bomWindow().replaceMaterial(ktm, *over);
                });
        connect(window.get(), &Kiv_mat_databaseWindow::insertToBom, this,
                [this](const QString &ktm) { bomWindow().insertToBom(ktm); });
    }
    return *window;
}

// One of the loaded databases; nothing when there is none or the user chooses none.
std::optional<programData::databaseKind> MainWindow::chosenDatabase()
{
    QStringList names;
    std::vector<programData::databaseKind> kinds;
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        const QString &path = known().database(programData::databaseKind(kind)).filePath;
        if (path.isEmpty())
            continue;
        names.append(QFileInfo(path).fileName());
        kinds.push_back(programData::databaseKind(kind));
    }
    if (kinds.empty()) {
        tell(tr("No database is loaded"));
        return {};
    }
    size_t chosen = 0;
    if (kinds.size() > 1) {
        const auto answer =
            userPrompts().choose(tr("Database of material"), tr("Database"), names, 0);
        if (!answer)
            return {};
        chosen = size_t(*answer);
    }
    return kinds[chosen];
}

void MainWindow::databaseCommand(bool)
{
    if (const auto kind = chosenDatabase())
        databaseWindow(*kind).showNow();
}

firmWindow &MainWindow::firms()
{
    if (!m_firm) {
        m_firm = std::make_unique<firmWindow>(known());
        connect(m_firm.get(), &editWindow::versionsWanted, this, &MainWindow::showVersions);
        m_firm->renameInWindow = [this](programData::databaseKind kind,
                                        const firmOperations::renameList &renames) {
            const auto &window = m_databases[kind];
            const bool isOpen = window && window->isVisible();
            if (isOpen)
                window->renameFirms(renames);
            return isOpen;
        };
        m_firm->openOrder = [this]() -> const kiv_mat_zpStruct & { return m_document.order(); };
        connect(m_firm.get(), &firmWindow::materialsChanged, this, &MainWindow::refreshHtml);
    }
    return *m_firm;
}

void MainWindow::commandFirm(bool) { firms().showNow(); }

void MainWindow::configCommand(bool)
{
    if (!m_config) {
        m_config = std::make_unique<configWindow>(known());
        connect(m_config.get(), &configWindow::configChange, this, &MainWindow::configChange);
    }
    m_config->showNow();
}

void MainWindow::configChange()
{
    m_order->refreshSettings();
    refreshHtml();
    setUnlocked(!isLocked());
    for (editWindow *window : secondaryWindows())
        if (window != m_config.get())
            window->setUnlocked(!window->isLocked());
}

std::vector<editWindow *> MainWindow::secondaryWindows() const
{
    std::vector<editWindow *> windows;
    if (m_bom) {
        windows = m_bom->viewWindows();
        windows.push_back(m_bom.get());
    }
    for (editWindow *window :
         {static_cast<editWindow *>(m_config.get()), static_cast<editWindow *>(m_firm.get())})
        if (window)
            windows.push_back(window);
    for (const auto &window : m_databases)
        if (window)
            windows.push_back(window.get());
    return windows;
}

void MainWindow::commandShowLog(bool) { logWindow::instance().showNow(); }

void MainWindow::commandShowErrors(bool) { errorsWindow::instance().showNow(); }

void MainWindow::commandHelp(bool)
{
    const QString path = paths::beside(QStringLiteral("_help/KIV_ZP.html"));
    if (!desktop::openFile(path))
        userPrompts().showError(tr("The manual %1 cannot be opened")
                                    .arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
}

void MainWindow::commandAbout(bool) { aboutDialog(logos::logo(), this).exec(); }

void MainWindow::commandExit(bool) { close(); }

void MainWindow::deletePressed(const myTreeView *view)
{
    if (view != m_order->linesView())
        editWindow::deletePressed(view);
    else if (action("deleteLines")->isEnabled())
        commandDeleteLines(false);
}

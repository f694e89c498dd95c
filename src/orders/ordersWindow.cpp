#include "orders/ordersWindow.h"

#include "data/programData.h"
#include "tree/shownTexts.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/userName.h"
#include "window/rowTable.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const windowAction<ordersWindow> actionTable[] = {
    {{"open", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Open"),
      "action_open", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open this order in the main window, at this line"), true},
     &ordersWindow::commandOpen},
    {{"copyAsNew", "File", QT_TRANSLATE_NOOP("actions", "Copy as a new order"), "action_new",
      "Ctrl+N",
      QT_TRANSLATE_NOOP("actions", "Begin a new order with the lines of this one, with the next "
                                   "number and without deliveries and invoices"),
      true},
     &ordersWindow::commandCopyAsNew},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &ordersWindow::commandClose},

    {{"copy", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Copy rows"),
      "action_copy", "Ctrl+C", QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text")},
     &ordersWindow::commandCopy},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"markSent", "Edit", QT_TRANSLATE_NOOP("actions", "Mark as sent"), "action_send", "Ctrl+M",
      QT_TRANSLATE_NOOP("actions", "Note that these orders were sent, on paper or by other mail"),
      true},
     &ordersWindow::commandMarkSent},
    {{"notSent", "Edit", QT_TRANSLATE_NOOP("actions", "Not sent after all"), "action_clear",
      nullptr, QT_TRANSLATE_NOOP("actions", "Take back that these orders were sent")},
     &ordersWindow::commandNotSent},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"find", "Edit", QT_TRANSLATE_NOOP("actions", "Find"), "action_find", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Go to the search field"), true},
     &ordersWindow::commandFind},

    {{"readAgain", QT_TRANSLATE_NOOP("actions", "Tools"),
      QT_TRANSLATE_NOOP("actions", "Read again"), "action_refresh", "F5",
      QT_TRANSLATE_NOOP("actions", "Look for orders that are new or were changed"), true},
     &ordersWindow::commandReadAgain},
};

constexpr int linesShown = 1000;
constexpr int restMs = 400;

} // namespace

ordersWindow::ordersWindow(programData &known, orderRegister &orders)
    : baseWindow(QStringLiteral("ordersWindow"))
    , m_known(known)
    , m_orders(orders)
    , m_rows(&orders, nullptr)
    , m_found(nullptr)
    , m_watcher(new QFileSystemWatcher(this))
    , m_words(new QLineEdit(this))
    , m_tables(new QStackedWidget(this))
    , m_counts(new QLabel(this))
{
    setWindowTitle(tr("Orders"));
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_list.png")));
    addActions(actionTable);
    buildWidgets();
    m_again.setSingleShot(true);
    m_again.setInterval(restMs);
    connect(&m_again, &QTimer::timeout, this, [this] {
        if (isVisible())
            readAgain();
    });
    // An order that is being saved changes more than once.
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, &m_again,
            qOverload<>(&QTimer::start));
}

void ordersWindow::buildWidgets()
{
    m_words->setObjectName(QStringLiteral("words"));
    m_words->setPlaceholderText(
        tr("Search all lines: KTM, name, part number, target, delivery, invoice, order"));
    m_words->setAccessibleName(m_words->placeholderText());
    m_words->setClearButtonEnabled(true);
    m_words->installEventFilter(this);
    m_sorted.setSourceModel(&m_rows);
    m_sorted.setSortRole(orderRows::sortRole);
    m_sorted.setSortCaseSensitivity(Qt::CaseInsensitive);
    m_list = newTable("orders", tr("Orders"), &m_sorted);
    m_list->setSortingEnabled(true);
    // The latest first, as the register has them.
    m_list->sortByColumn(-1, Qt::AscendingOrder);
    for (int column = 0; column < orderRows::columns; ++column)
        resizeColumn(m_list->header(), column, orderRows::widthOf(column));
    m_lines = newTable("lines", tr("Lines found"), &m_found);
    for (int column = 0; column < foundLineRows::columns; ++column)
        resizeColumn(m_lines->header(), column, foundLineRows::widthOf(column));
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_words);
    layout->addWidget(m_tables);
    setCentralWidget(page);
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    constexpr QSize usualSize(1160, 640);
    resize(usualSize);
    connect(m_words, &QLineEdit::textChanged, this, &ordersWindow::search);
    connect(m_words, &QLineEdit::returnPressed, this, [this] {
        // With the focus a view makes a row current, but does not select it.
        if (!view()->selectionModel()->hasSelection())
            view()->setCurrentIndex(view()->model()->index(0, 0));
        view()->setFocus();
    });
    updateActions();
}

QTreeView *ordersWindow::newTable(const char *name, const QString &accessibleName,
                                  QAbstractItemModel *model)
{
    QTreeView *table = newRowTable(name, accessibleName, model, m_tables);
    m_tables->addWidget(table);
    connect(table, &QTreeView::activated, this, [this] { commandOpen(false); });
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ordersWindow::updateActions);
    return table;
}

QTreeView *ordersWindow::view() const
{
    return m_tables->currentWidget() == m_lines ? m_lines : m_list;
}

// --- Reading and searching
// ------------------------------------------------------------------------

void ordersWindow::showNow()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    // Materials may have other part numbers by now.
    m_shownRevision = -1;
    statusBar()->clearMessage();
    readAgain();
    m_words->setFocus();
}

void ordersWindow::readAgain()
{
    if (m_reading)
        return;
    const QScopedValueRollback reading(m_reading, true);
    const QStringList folders = m_known.config().orderFolders();
    if (!m_watcher->directories().isEmpty())
        m_watcher->removePaths(m_watcher->directories());
    QStringList lacking;
    for (const QString &folder : folders)
        if (!QDir(folder).exists() || !m_watcher->addPath(folder))
            lacking.append(QDir::toNativeSeparators(folder));
    const QStringList before = selectedPaths();
    const int line = view()->currentIndex().row();
    bool complete = false;
    {
        workProgress::scope work(progress(), tr("Reading orders"));
        complete = m_orders.update(folders, work.function());
        if (m_orders.revision() != m_shownRevision)
            showAgain(before.value(0), line);
    }
    if (!complete)
        tell(tr("Reading was cancelled; some orders are missing"));
    else if (!lacking.isEmpty())
        tell(tr("There is no folder %1").arg(lacking.join(QLatin1String(", "))));
    else if (const QStringList faults = m_orders.faults(); !faults.isEmpty())
        tell(faults.join(QLatin1String("; ")));
}

void ordersWindow::showAgain(const QString &path, int line)
{
    m_orders.index().setMaterials(m_known.materials());
    m_rows.showAgain();
    m_shownRevision = m_orders.revision();
    search();
    if (path.isEmpty())
        return;
    // The order that one was at stays current, or what stands in its place.
    QAbstractItemModel *model = view()->model();
    QModelIndex current = model->index(std::min(line, model->rowCount() - 1), 0);
    for (int row = 0; view() == m_list && row < m_rows.rowCount(); ++row)
        if (m_rows.at(row).path == path)
            current = m_sorted.mapFromSource(m_rows.index(row, 0));
    // Whatever key is held: the view's own way would let Ctrl unselect it.
    view()->selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect
                                                           | QItemSelectionModel::Rows);
}

void ordersWindow::search()
{
    const QString words = m_words->text();
    const bool searches = !words.trimmed().isEmpty();
    m_tables->setCurrentWidget(searches ? m_lines : m_list);
    if (!searches) {
        m_found.show(m_orders.index(), {});
        m_counts->setText(tr("%n order(s)", nullptr, m_rows.rowCount()));
    } else {
        orderIndex::foundLines found = m_orders.index().search(words, linesShown);
        const QString counted = tr("%n line(s)", nullptr, found.total) + QLatin1String(", ")
                                + tr("%n order(s)", nullptr, found.orders);
        m_counts->setText(
            found.total > int(found.lines.size())
                ? tr("%1; the first %2 are shown").arg(counted).arg(found.lines.size())
                : counted);
        m_found.show(m_orders.index(), found.lines);
    }
    updateActions();
}

// --- Actions
// --------------------------------------------------------------------------------------

QStringList ordersWindow::selectedPaths() const
{
    QStringList paths;
    const QModelIndexList rows = view()->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        paths.append(view() == m_list ? m_rows.at(m_sorted.mapToSource(row).row()).path
                                      : m_found.at(row.row()).path);
    paths.removeDuplicates();
    return paths;
}

void ordersWindow::updateActions()
{
    const QStringList paths = selectedPaths();
    const QString none = tr("no order is selected");
    for (const char *name : {"open", "copyAsNew"})
        setAvailable(name, paths.size() == 1,
                     paths.isEmpty() ? none : tr("several orders are selected"));
    setAvailable("copy", !paths.isEmpty(), none);
    const auto isSent = [this](const QString &path) { return m_orders.sentState(path) != nullptr; };
    const bool anySent = std::any_of(paths.begin(), paths.end(), isSent);
    setAvailable("markSent", !paths.isEmpty() && !anySent,
                 paths.isEmpty() ? none : tr("one of these was sent"));
    setAvailable("notSent", anySent, paths.isEmpty() ? none : tr("none of these was sent"));
}

void ordersWindow::tell(const QString &text) { statusBar()->showMessage(text); }

void ordersWindow::commandOpen(bool)
{
    const QStringList paths = selectedPaths();
    if (paths.size() != 1)
        return;
    const QModelIndex row = view()->currentIndex();
    if (view() == m_list || !row.isValid()) {
        emit openWanted(paths.first(), {}, 0);
        return;
    }
    const foundLineRows::row &of = m_found.at(row.row());
    emit openWanted(of.path, of.texts[foundLineRows::ktm], of.line);
}

void ordersWindow::commandCopyAsNew(bool)
{
    const QStringList paths = selectedPaths();
    if (paths.size() == 1)
        emit copyWanted(paths.first());
}

int ordersWindow::noteEach(const std::function<bool(const QString &path, QString *fault)> &note)
{
    int noted = 0;
    for (const QString &path : selectedPaths()) {
        QString fault;
        if (!note(path, &fault)) {
            userPrompts().showError(messages::notWritten(
                orderRegister::statesIn(QFileInfo(path).absolutePath()), fault));
            break;
        }
        ++noted;
        emit stateChanged(path);
    }
    readAgain();
    return noted;
}

void ordersWindow::commandMarkSent(bool)
{
    const int marked = noteEach([this](const QString &path, QString *fault) {
        QString number;
        for (int row = 0; row < m_rows.rowCount(); ++row)
            if (m_rows.at(row).path == path)
                number = m_rows.at(row).number;
        return m_orders.noteSent(path, {number, userName(), {}}, m_known.config(), fault);
    });
    if (marked > 0)
        tell(tr("%n order(s) marked as sent", nullptr, marked));
}

void ordersWindow::commandNotSent(bool)
{
    int taken = 0;
    noteEach([this, &taken](const QString &path, QString *fault) {
        taken += m_orders.sentState(path) != nullptr;
        return m_orders.takeBackSent(path, m_known.config(), fault);
    });
    if (taken > 0)
        tell(tr("%n order(s) not sent any more", nullptr, taken));
}

void ordersWindow::commandCopy(bool)
{
    const QModelIndexList rows = view()->selectionModel()->selectedRows();
    copyRows(rows);
    tell(tr("%n row(s) copied", nullptr, rows.size()));
}

void ordersWindow::commandFind(bool)
{
    m_words->setFocus();
    m_words->selectAll();
}

void ordersWindow::commandReadAgain(bool)
{
    statusBar()->clearMessage();
    readAgain();
    if (statusBar()->currentMessage().isEmpty())
        tell(tr("The orders are as their files are"));
}

// --- Life
// -----------------------------------------------------------------------------------------

// Escape in the field shows all orders again; Down goes to the rows.
bool ordersWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_words && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Escape && !m_words->text().isEmpty()) {
            m_words->clear();
            return true;
        }
        if (key == Qt::Key_Down) {
            emit m_words->returnPressed();
            return true;
        }
    }
    return baseWindow::eventFilter(watched, event);
}

void ordersWindow::changeEvent(QEvent *event)
{
    baseWindow::changeEvent(event);
    // Files of network folders send no notice.
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && isVisible())
        m_again.start();
}

void ordersWindow::hideEvent(QHideEvent *event)
{
    if (!m_watcher->directories().isEmpty())
        m_watcher->removePaths(m_watcher->directories());
    baseWindow::hideEvent(event);
}

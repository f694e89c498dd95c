#include "database/linksWindow.h"

#include "database/Kiv_mat_databaseWindow.h"
#include "database/datasheetCopies.h"
#include "util/desktop.h"
#include "util/labels.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

using namespace linkExamination;

namespace {

const windowAction<linksWindow> actionTable[] = {
    {{"takeOver", QT_TRANSLATE_NOOP("actions", "File"),
      QT_TRANSLATE_NOOP("actions", "Take over new addresses"), "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Give the marked links their new addresses, as one step that "
                                   "can be undone in the database's window"),
      true},
     &linksWindow::commandTakeOver},
    {{"close", "File", "Close", "action_close", "Ctrl+W", nullptr}, &linksWindow::commandClose},

    {{"copy", QT_TRANSLATE_NOOP("actions", "Edit"), QT_TRANSLATE_NOOP("actions", "Copy rows"),
      "action_copy", "Ctrl+C", QT_TRANSLATE_NOOP("actions", "Copy the selected rows as text")},
     &linksWindow::commandCopy},
    {{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, false}, nullptr},
    {{"mark", "Edit", QT_TRANSLATE_NOOP("actions", "Mark"), "action_edit", "Space",
      QT_TRANSLATE_NOOP("actions", "Mark the selected rows that have a new address, or take their "
                                   "marks away")},
     &linksWindow::commandMark},
    {{"markAll", "Edit", QT_TRANSLATE_NOOP("actions", "Mark all"), "action_list", nullptr,
      QT_TRANSLATE_NOOP("actions", "Mark all rows shown that have a new address")},
     &linksWindow::commandMarkAll},
    {{"markNone", "Edit", QT_TRANSLATE_NOOP("actions", "Mark none"), "action_clear", nullptr,
      nullptr},
     &linksWindow::commandMarkNone},

    {{"examine", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Examine"),
      "action_examine", "F5",
      QT_TRANSLATE_NOOP("actions", "Examine the links that were not examined lately"), true},
     &linksWindow::commandExamine},
    {{"examineAgain", "Tools", QT_TRANSLATE_NOOP("actions", "Examine again"), "action_refresh",
      "Ctrl+F5",
      QT_TRANSLATE_NOOP("actions",
                        "Examine the selected links, or all, whenever that was done last"),
      true},
     &linksWindow::commandExamineAgain},
    {{"fetch", "Tools", QT_TRANSLATE_NOOP("actions", "Fetch copies"), "action_fetch", "Ctrl+D",
      QT_TRANSLATE_NOOP("actions", "Fetch the documents of the selected links, or all datasheets "
                                   "that answer, to be read without a network"),
      true},
     &linksWindow::commandFetch},
    {{"stop", "Tools", QT_TRANSLATE_NOOP("actions", "Stop"), "action_delete", "Esc",
      QT_TRANSLATE_NOOP("actions", "Examine no further links; what came of the others stays")},
     &linksWindow::commandStop},
    {{nullptr, "Tools", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"open", "Tools", "Open", "zp_open_link_128", "Ctrl+O",
      QT_TRANSLATE_NOOP("actions", "Open the link of this row"), true},
     &linksWindow::commandOpen},
    {{"openCopy", "Tools", QT_TRANSLATE_NOOP("actions", "Open the copy"), "action_local_copy",
      "Ctrl+Shift+O", QT_TRANSLATE_NOOP("actions", "Open the copy of the link's document"), true},
     &linksWindow::commandOpenCopy},
    {{"material", "Tools", QT_TRANSLATE_NOOP("actions", "Go to the material"), "action_database",
      "Ctrl+M", QT_TRANSLATE_NOOP("actions", "Select the material in the database's window"), true},
     &linksWindow::commandMaterial},
    {{nullptr, "Tools", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"findings", "Tools", QT_TRANSLATE_NOOP("actions", "Only findings"), "action_filter", "Ctrl+L",
      QT_TRANSLATE_NOOP("actions", "Hide links that answer where they are, and those not examined"),
      true, true},
     &linksWindow::commandFindings},
};

constexpr int paintEveryMs = 500;
constexpr int storeEveryMs = 30000;
constexpr int restMs = 300;

} // namespace

linksWindow::linksWindow(Kiv_mat_databaseWindow *database)
    : baseWindow(QStringLiteral("linksWindow"))
    , m_database(database)
    , m_shown(&m_rows, nullptr)
    , m_part(new QLineEdit(this))
    , m_view(new QTreeView(this))
    , m_counts(new QLabel(this))
    , m_bar(new QProgressBar(this))
    , m_stop(new QToolButton(this))
{
    addActions(actionTable);
    buildWidgets();
    m_again.setSingleShot(true);
    m_again.setInterval(restMs);
    m_refresh.setInterval(paintEveryMs);
    connect(&m_again, &QTimer::timeout, this, &linksWindow::collect);
    connect(&m_refresh, &QTimer::timeout, this, &linksWindow::showProgress);
    connect(&m_examiner, &linkExaminer::told, this, &linksWindow::told);
    connect(&m_examiner, &linkExaminer::finished, this, &linksWindow::finished);
    connect(m_part, &QLineEdit::textChanged, this, &linksWindow::filter);
    connect(m_part, &QLineEdit::returnPressed, m_view, [this] { m_view->setFocus(); });
    connect(m_view, &QTreeView::activated, this, [this] { commandOpen(false); });
    connect(m_view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &linksWindow::updateActions);
    connect(&m_rows, &QAbstractItemModel::dataChanged, this, [this] {
        showCounts();
        updateActions();
    });
}

linksWindow::~linksWindow()
{
    m_examiner.stop();
    store();
}

void linksWindow::buildWidgets()
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_examine.png")));
    m_part->setObjectName(QStringLiteral("linkFilter"));
    m_part->setPlaceholderText(tr("A part of the material, link or state"));
    m_part->setAccessibleName(m_part->placeholderText());
    m_part->setClearButtonEnabled(true);
    m_view->setObjectName(QStringLiteral("links"));
    m_view->setAccessibleName(tr("Links"));
    m_view->setModel(&m_shown);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setAllColumnsShowFocus(true);
    // Both ends of an address tell something.
    m_view->setTextElideMode(Qt::ElideMiddle);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->setSortingEnabled(true);
    m_view->header()->setSortIndicator(-1, Qt::AscendingOrder);
    int column = 0;
    for (int width : {180, 180, 320, 240, 125, 320, 200})
        m_view->header()->resizeSection(column++, width);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, [this](const QPoint &position) {
        QMenu menu(this);
        for (const char *name :
             {"open", "openCopy", "material", "copy", "mark", "examineAgain", "fetch"})
            menu.addAction(action(name));
        menu.exec(m_view->viewport()->mapToGlobal(position));
    });
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_part);
    layout->addWidget(m_view);
    setCentralWidget(page);

    m_counts->setObjectName(QStringLiteral("counts"));
    m_bar->setObjectName(QStringLiteral("linkProgress"));
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setMaximumWidth(320);
    m_stop->setObjectName(QStringLiteral("stopButton"));
    m_stop->setText(labels::cancel());
    m_stop->setAccessibleName(m_stop->text());
    connect(m_stop, &QToolButton::clicked, this, &linksWindow::commandStop);
    for (QWidget *widget : {static_cast<QWidget *>(m_counts), static_cast<QWidget *>(m_bar),
                            static_cast<QWidget *>(m_stop)})
        statusBar()->addPermanentWidget(widget);
    m_bar->hide();
    m_stop->hide();
    constexpr QSize usualSize(1280, 720);
    resize(usualSize);
}

void linksWindow::tell(const QString &text) { statusBar()->showMessage(text); }

void linksWindow::showNow()
{
    if (m_examiner.isIdle())
        m_rows.known = load();
    collect();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_view->setFocus();
    if (m_examiner.isIdle())
        commandExamine(false);
}

// The links as the database has them now.
void linksWindow::collect()
{
    m_again.stop();
    m_collected = m_database->stack().state();
    setWindowTitle(tr("Links of materials") + QLatin1String(" [")
                   + QDir::toNativeSeparators(m_database->rows().database().filePath)
                   + QLatin1Char(']'));
    m_rows.copies = datasheetCopies::names();
    const QModelIndex at = m_view->currentIndex();
    const int scrolled = at.row();
    m_rows.show(linksOf(m_database->rows().database()));
    m_view->setCurrentIndex(
        m_shown.index(std::clamp(scrolled, 0, std::max(0, m_shown.rowCount() - 1)), 0));
    showCounts();
    updateActions();
}

void linksWindow::filter()
{
    m_shown.set(m_part->text(), action("findings")->isChecked());
    if (!m_view->currentIndex().isValid())
        m_view->setCurrentIndex(m_shown.index(0, 0));
    showCounts();
    updateActions();
}

void linksWindow::commandFindings(bool) { filter(); }

void linksWindow::showCounts()
{
    int answering = 0;
    int failing = 0;
    m_markable = m_marked = 0;
    for (int row = 0; row < m_rows.rowCount(); ++row)
        if (const result *of = m_rows.resultOf(row)) {
            answering += int(doesAnswer(of->reply.state));
            failing += int(!doesAnswer(of->reply.state));
            m_markable += int(m_rows.canBeMarked(row));
            m_marked += int(m_rows.isMarked(row));
        }
    const int all = m_rows.rowCount();
    const QString shown = m_shown.rowCount() < all
                              ? tr("%1 of %2 links shown").arg(m_shown.rowCount()).arg(all)
                              : tr("%n link(s)", nullptr, all);
    m_counts->setText(shown
                      + tr(": %1 answer, %2 moved, of these %3 marked; %4 do not answer")
                            .arg(answering)
                            .arg(m_markable)
                            .arg(m_marked)
                            .arg(failing));
}

std::vector<int> linksWindow::selected() const
{
    std::vector<int> rows;
    for (const QModelIndex &index : m_view->selectionModel()->selectedRows())
        rows.push_back(m_shown.mapToSource(index).row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QStringList linksWindow::selectedLinks() const
{
    QStringList links;
    for (int row : selected())
        links.append(m_rows.linkOf(row));
    links.removeDuplicates();
    return links;
}

int linksWindow::current() const { return m_shown.mapToSource(m_view->currentIndex()).row(); }

void linksWindow::updateActions()
{
    const bool isIdle = m_examiner.isIdle();
    const bool locked = m_database->isLocked();
    const int row = current();
    const QString busy = tr("links are being examined");
    const QString none = tr("no link is selected");
    for (const char *name : {"examine", "examineAgain", "fetch"})
        setAvailable(name, isIdle && m_rows.rowCount() > 0,
                     isIdle ? tr("the database has no links") : busy);
    setAvailable("stop", !isIdle, tr("no links are being examined"));
    setAvailable("takeOver", m_marked > 0 && !locked,
                 locked ? tr("editing of the database is locked") : tr("no new address is marked"));
    for (const char *name : {"mark", "markAll", "markNone"})
        setAvailable(name, m_markable > 0, tr("no link has a new address"));
    for (const char *name : {"open", "material", "copy"})
        setAvailable(name, row >= 0, none);
    setAvailable("openCopy", row >= 0 && !m_rows.copyOf(row).isEmpty(),
                 row >= 0 ? tr("this link has no copy") : none);
    if (isVisible() && m_database->stack().state() != m_collected)
        m_again.start();
}

// --- Asking
// ---------------------------------------------------------------------------------------

void linksWindow::ask(const QStringList &links, bool fetching)
{
    if (!m_examiner.isIdle() || links.isEmpty())
        return;
    m_fetching = fetching;
    m_asked = links.size();
    m_told = m_failed = 0;
    for (const QString &link : links)
        if (fetching)
            m_examiner.fetch(link, datasheetCopies::baseOf(link));
        else
            m_examiner.examine(link);
    m_bar->setRange(0, m_asked);
    m_bar->setFormat((fetching ? tr("Fetching") : tr("Examining")) + QLatin1String(" %v / %m"));
    m_bar->show();
    m_stop->show();
    m_stored.start();
    m_refresh.start();
    tell({});
    showProgress();
}

void linksWindow::commandExamine(bool)
{
    const QStringList links =
        toExamine(m_rows.links(), m_rows.known, usualDays, QDateTime::currentDateTimeUtc());
    if (links.isEmpty())
        tell(tr("All links were examined in the last %n day(s)", nullptr, usualDays));
    ask(links, false);
}

void linksWindow::commandExamineAgain(bool)
{
    QStringList links = selectedLinks();
    // A single row is selected all the time.
    if (links.size() < 2 && m_view->selectionModel()->selectedRows().size() < 2) {
        const auto wanted =
            userPrompts().decide(tr("Examine the link of this row, or all?").toHtmlEscaped(),
                                 {tr("This one"), tr("All")});
        if (!wanted)
            return;
        if (*wanted == 1)
            links = toExamine(m_rows.links(), {}, 0, QDateTime::currentDateTimeUtc());
    }
    ask(links, false);
}

void linksWindow::commandFetch(bool)
{
    QStringList links = selectedLinks();
    if (links.size() < 2 && m_view->selectionModel()->selectedRows().size() < 2) {
        const QStringList all = toFetch(m_rows.links(), m_rows.known, m_rows.copies);
        const auto wanted = userPrompts().decide(
            tr("Fetch the document of this row, or those of all datasheets that answer and have no "
               "copy (%1)?")
                .arg(all.size())
                .toHtmlEscaped(),
            {tr("This one"), tr("All")});
        if (!wanted)
            return;
        if (*wanted == 1)
            links = all;
    }
    // Of what is no web address nothing can be fetched.
    links.erase(
        std::remove_if(links.begin(), links.end(),
                       [](const QString &link) { return datasheetCopies::baseOf(link).isEmpty(); }),
        links.end());
    for (const QString &link : qAsConst(links))
        m_rows.notFetched.remove(link);
    if (links.isEmpty())
        tell(tr("There is nothing to fetch"));
    ask(links, true);
}

void linksWindow::commandStop(bool)
{
    if (m_examiner.isIdle())
        return;
    m_examiner.stop();
    finished();
}

void linksWindow::told(const linkReply &reply)
{
    ++m_told;
    m_failed += int(!doesAnswer(reply.state));
    if (m_fetching) {
        if (doesAnswer(reply.state))
            m_rows.copies.insert(QFileInfo(reply.file).fileName());
        else
            m_rows.notFetched.insert(reply.link, reply);
        return;
    }
    const result came{reply, QDateTime::currentDateTimeUtc()};
    m_rows.known.insert(reply.link, came);
    m_newer.insert(reply.link, came);
}

void linksWindow::showProgress()
{
    m_bar->setValue(m_told);
    m_shown.follow();
    m_rows.refresh();
    if (m_stored.elapsed() > storeEveryMs)
        store();
}

void linksWindow::finished()
{
    if (!m_refresh.isActive())
        return;
    m_refresh.stop();
    showProgress();
    m_bar->hide();
    m_stop->hide();
    store();
    m_shown.invalidate();
    const QString form = m_fetching ? tr("%n document(s) fetched", nullptr, m_told - m_failed)
                                    : tr("%n link(s) examined", nullptr, m_told);
    QString text = form;
    if (m_fetching && m_failed > 0)
        text += QLatin1String(", ") + tr("%n not", nullptr, m_failed);
    if (m_told < m_asked)
        text += QLatin1String(", ") + tr("then stopped");
    tell(text);
    updateActions();
}

void linksWindow::store()
{
    m_stored.start();
    if (m_newer.isEmpty())
        return;
    if (keep(m_newer))
        m_newer.clear();
    else
        tell(tr("The results cannot be kept in %1").arg(QDir::toNativeSeparators(file())));
}

void linksWindow::closeEvent(QCloseEvent *event)
{
    commandStop(false);
    m_again.stop();
    baseWindow::closeEvent(event);
}

// --- What is done with it
// -------------------------------------------------------------------------

void linksWindow::commandTakeOver(bool)
{
    const std::vector<replacement> wanted = m_rows.marked();
    if (wanted.empty() || m_database->isLocked())
        return;
    const int count = m_database->replaceLinks(wanted);
    // What is known of the old address holds for the new one.
    for (const replacement &one : wanted) {
        result came = m_rows.known.value(one.before);
        came.reply.link = one.after;
        came.reply.state = linkState::answers;
        came.reply.movedTo.clear();
        m_rows.known.insert(one.after, came);
        m_newer.insert(one.after, came);
        datasheetCopies::follow(one.before, one.after);
    }
    store();
    collect();
    tell(tr("%n link(s) changed in the database", nullptr, count));
}

void linksWindow::commandMark(bool)
{
    const std::vector<int> rows = selected();
    const bool all = std::all_of(rows.begin(), rows.end(), [this](int row) {
        return !m_rows.canBeMarked(row) || m_rows.isMarked(row);
    });
    m_rows.mark(rows, !all);
}

void linksWindow::markRows(bool all)
{
    std::vector<int> rows;
    for (int row = 0; row < m_shown.rowCount(); ++row)
        rows.push_back(m_shown.mapToSource(m_shown.index(row, 0)).row());
    m_rows.mark(rows, all);
}

void linksWindow::commandMarkAll(bool) { markRows(true); }
void linksWindow::commandMarkNone(bool) { markRows(false); }

void linksWindow::commandOpen(bool)
{
    if (const int row = current(); row >= 0)
        desktop::followLink(datasheetCopies::toOpen(QUrl(m_rows.linkOf(row).trimmed()),
                                                    datasheetCopies::isOnline()));
}

void linksWindow::commandOpenCopy(bool)
{
    const int row = current();
    const QString copy = row >= 0 ? m_rows.copyOf(row) : QString();
    if (!copy.isEmpty())
        desktop::followLink(QUrl::fromLocalFile(copy));
}

void linksWindow::commandMaterial(bool)
{
    const int row = current();
    if (row < 0)
        return;
    const materialLink &wanted = m_rows.links()[size_t(row)];
    if (!m_database->goToMaterial(wanted.ktm, wanted.link))
        tell(tr("The material is not there any more"));
}

void linksWindow::commandCopy(bool)
{
    QStringList lines;
    for (int row : selected()) {
        QStringList cells;
        for (int column = 0; column < m_rows.columnCount(); ++column)
            cells.append(m_rows.index(row, column).data().toString());
        lines.append(text::tabbedRow(cells));
    }
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
    tell(tr("%n row(s) copied", nullptr, lines.size()));
}

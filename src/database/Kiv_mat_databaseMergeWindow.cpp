#include "database/Kiv_mat_databaseMergeWindow.h"

#include "commands/editCommands.h"
#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/mergeTree.h"
#include "tree/myModel.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/searchLine.h"
#include "window/workProgress.h"

#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>

#include <set>

namespace {

const windowAction<Kiv_mat_databaseMergeWindow> actionTable[] = {
    {{"open", QT_TRANSLATE_NOOP("actions", "File"), QT_TRANSLATE_NOOP("actions", "Open"),
      "action_open", "Ctrl+O", QT_TRANSLATE_NOOP("actions", "Compare with another file"), true},
     &Kiv_mat_databaseMergeWindow::commandOpen},
    {{"set", "File", QT_TRANSLATE_NOOP("actions", "Set"), "action_set", "Ctrl+S",
      QT_TRANSLATE_NOOP("actions", "Take over what is marked"), true},
     &Kiv_mat_databaseMergeWindow::commandSet},
    {usualActions::fileSeparator, nullptr},
    {usualActions::close, &Kiv_mat_databaseMergeWindow::commandClose},
    {usualActions::undo, &Kiv_mat_databaseMergeWindow::commandUndo},
    {usualActions::redo, &Kiv_mat_databaseMergeWindow::commandRedo},
    {usualActions::editSeparator, nullptr},
    {{"mark", "Edit", QT_TRANSLATE_NOOP("actions", "Mark"), "action_mark", "Space",
      QT_TRANSLATE_NOOP("actions", "Mark the selected materials and fields, or unmark them")},
     &Kiv_mat_databaseMergeWindow::commandMark},
    {{"markAll", "Edit", QT_TRANSLATE_NOOP("actions", "Mark all"), "action_mark_all",
      "Ctrl+Shift+A",
      QT_TRANSLATE_NOOP("actions", "Mark all that is shown, but no material once more"), true},
     &Kiv_mat_databaseMergeWindow::commandMarkAll},
    {{"markNone", "Edit", QT_TRANSLATE_NOOP("actions", "Mark none"), "action_mark_none",
      "Ctrl+Shift+N", QT_TRANSLATE_NOOP("actions", "Unmark all that is shown"), true},
     &Kiv_mat_databaseMergeWindow::commandMarkNone},
    {{"leaveOut", "Edit", QT_TRANSLATE_NOOP("actions", "Leave out"), "action_delete", "Del",
      QT_TRANSLATE_NOOP("actions", "Take the selected materials out of the list"), true},
     &Kiv_mat_databaseMergeWindow::commandLeaveOut},
    {usualActions::editSeparator, nullptr},
    {{"filter", "Edit", QT_TRANSLATE_NOOP("actions", "Filter"), "action_filter", "Ctrl+F",
      QT_TRANSLATE_NOOP("actions", "Go to the filter field")},
     &Kiv_mat_databaseMergeWindow::commandFilter},
    {{"expand", QT_TRANSLATE_NOOP("actions", "Tools"), QT_TRANSLATE_NOOP("actions", "Expand"),
      "action_expand", nullptr, nullptr, true},
     &Kiv_mat_databaseMergeWindow::commandExpand},
    {{"collaps", "Tools", QT_TRANSLATE_NOOP("actions", "Collaps"), "action_collapse", nullptr,
      nullptr, true},
     &Kiv_mat_databaseMergeWindow::commandCollaps},
    {{"showEqual", "Tools", QT_TRANSLATE_NOOP("actions", "Equal fields"), "action_equal", nullptr,
      QT_TRANSLATE_NOOP("actions", "Show the fields, too, that are the same in both"), true, true},
     &Kiv_mat_databaseMergeWindow::commandShowEqual},
};

const QString equalShownKey = QStringLiteral("Kiv_mat_databaseMergeWindow/equalShown");

} // namespace

Kiv_mat_databaseMergeWindow::Kiv_mat_databaseMergeWindow(Kiv_mat_databaseWindow *database)
    : editWindow(QStringLiteral("Kiv_mat_databaseMergeWindow"), database->known())
    , m_database(database)
    , m_counts(new QLabel(this))
{
    setWindowIcon(QIcon(QStringLiteral(":/icons/icons/action_merge.png")));
    addActions(actionTable);
    auto *page = new QWidget(this);
    m_view = addView(tr("Differences"), "differences", page);
    m_view->setSortingEnabled(false);
    model()->setHorizontalHeaderLabels({labels::name(), tr("Value [orgin]"), tr("Value [new]")});
    m_rows = std::make_unique<mergeTree>(m_view);
    constexpr int columnWidth = 300;
    m_view->header()->resizeSection(0, columnWidth);
    m_view->header()->resizeSection(1, columnWidth);
    m_view->header()->setStretchLastSection(true);
    m_filter = new searchLine(m_view);
    m_filter->setAccessibleName(tr("Words to filter by"));
    m_filter->setPlaceholderText(tr("Filter: name, KTM, group, field, value"));
    m_counts->setObjectName(QStringLiteral("counts"));
    statusBar()->addPermanentWidget(m_counts);
    connect(m_filter, &searchLine::wanted, this, [this] { m_rows->setFilter(m_filter->text()); });
    connect(m_rows.get(), &mergeTree::changed, this, &Kiv_mat_databaseMergeWindow::showCounts);
    connect(m_view, qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked), this,
            &Kiv_mat_databaseMergeWindow::itemTreeClicked);
    setCentralWidget(page);
    m_again.setSingleShot(true);
    constexpr int restMs = 300;
    m_again.setInterval(restMs);
    connect(&m_again, &QTimer::timeout, this, &Kiv_mat_databaseMergeWindow::compareAgain);
    constexpr QSize usualSize(1000, 680);
    resize(usualSize);
    action("showEqual")
        ->setChecked(
            QSettings(paths::windowState(), QSettings::IniFormat).value(equalShownKey).toBool());
    showState();
}

Kiv_mat_databaseMergeWindow::~Kiv_mat_databaseMergeWindow() = default;

QString Kiv_mat_databaseMergeWindow::title() const
{
    return m_path.isEmpty() ? tr("Merge")
                            : tr("Merge") + QLatin1String(" [") + QDir::toNativeSeparators(m_path)
                                  + QLatin1Char(']');
}

void Kiv_mat_databaseMergeWindow::commandOpen(bool)
{
    const QString path = userPrompts().openFile(tr("Open File"), paths::programDir(),
                                                tr("Xml File") + QLatin1String(" (*.xml)"));
    if (!path.isEmpty())
        open(path);
}

bool Kiv_mat_databaseMergeWindow::open(const QString &path)
{
    auto other = std::make_unique<kiv_mat_databaseStruct>();
    {
        QString reason;
        workProgress::scope work((isVisible() ? progress() : m_database->progress()),
                                 tr("Comparing"));
        if (!readChecked(path, other.get(), &reason, work.function())) {
            if (!work.cancelled()) {
                userPrompts().listError(messages::failed(messages::fileCorrupted(), path, reason));
                userPrompts().showErrors();
            }
            return false;
        }
        comparison found = compareDatabases(m_database->rows().database(), *other, work.function());
        if (found.cancelled)
            return false;
        m_rows->clear();
        m_path = path;
        m_other = std::move(other);
        showDifferences(found);
    }
    if (model()->rowCount() > 0 || isVisible())
        showNow();
    if (model()->rowCount() == 0)
        userPrompts().showInformation(allMaterialsInDatabase().toHtmlEscaped());
    return isVisible();
}

void Kiv_mat_databaseMergeWindow::showDifferences(const comparison &found)
{
    setClean();
    m_compared = m_database->stack().state();
    m_again.stop();
    m_rows->show(found.differences);
    tell(tr("%n material(s) differ", nullptr, model()->rowCount()));
    showState();
}

void Kiv_mat_databaseMergeWindow::showCounts()
{
    const mergeTree::counts counts = m_rows->count();
    QString text = tr("%1 of %n difference(s) marked", nullptr, counts.all).arg(counts.marked);
    if (counts.shown < counts.all)
        text += QLatin1String(", ") + tr("%n shown", nullptr, counts.shown);
    if (counts.markedHidden > 0)
        text += QLatin1String(", ") + tr("%n marked but not shown", nullptr, counts.markedHidden);
    m_counts->setText(text);
    updateActions();
}

void Kiv_mat_databaseMergeWindow::updateActions()
{
    const mergeTree::counts counts = m_rows->count();
    for (const char *name : {"leaveOut", "expand", "collaps", "mark", "markAll", "markNone"})
        setAvailable(name, counts.shown > 0,
                     counts.all > 0 ? tr("nothing is shown") : tr("nothing differs"));
    const bool locked = m_database->isLocked();
    setAvailable("set", counts.marked > 0 && !locked,
                 locked           ? tr("editing of the database is locked")
                 : counts.all > 0 ? tr("nothing is marked")
                                  : tr("nothing differs"));
    if (m_other && isVisible() && m_database->stack().state() != m_compared)
        m_again.start();
}

std::optional<bool> Kiv_mat_databaseMergeWindow::onlyShown()
{
    const int hidden = m_rows->count().markedHidden;
    if (hidden == 0)
        return false;
    const auto answer = userPrompts().decide(
        tr("The filter hides marks of %n difference(s). What is to be taken over?", nullptr,
           hidden),
        {tr("Only what is shown"), tr("All that is marked")});
    return answer ? std::optional(*answer == 0) : std::nullopt;
}

void Kiv_mat_databaseMergeWindow::commandSet(bool)
{
    if (m_database->isLocked())
        return;
    const std::optional<bool> shownOnly = onlyShown();
    if (!shownOnly)
        return;
    // The database may have other records by now: the differences are found anew, by the materials
    // of the other file, which stay.
    const QHash<const void *, quint64> marked = m_rows->marked(*shownOnly);
    std::vector<materialDifference> wanted;
    workProgress::scope work(progress(), tr("Merge"));
    comparison now = compareDatabases(m_database->rows().database(), *m_other, work.function());
    for (materialDifference &difference : now.differences)
        if (const quint64 places = marked.value(mergeTree::recordOf(difference));
            difference.kind != materialDifference::absent && places != 0
            && narrow(difference, [places](int place) { return (places >> place & 1) != 0; }))
            wanted.push_back(std::move(difference));
    const int count = int(wanted.size());
    if (now.cancelled || !m_database->takeOver(wanted, false, tr("Merge"), work.function())) {
        tell(tr("Cancelled"));
        return;
    }
    compareAgain();
    tell(tr("%n material(s) taken over", nullptr, count));
}

void Kiv_mat_databaseMergeWindow::compareAgain()
{
    if (!m_other || !isVisible())
        return;
    comparison found;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        found = compareDatabases(m_database->rows().database(), *m_other, work.function());
    }
    if (!found.cancelled)
        showDifferences(found);
}

void Kiv_mat_databaseMergeWindow::commandMark(bool) { m_rows->toggle(m_view->markedCells()); }
void Kiv_mat_databaseMergeWindow::commandMarkAll(bool) { m_rows->markShown(true); }
void Kiv_mat_databaseMergeWindow::commandMarkNone(bool) { m_rows->markShown(false); }
void Kiv_mat_databaseMergeWindow::commandFilter(bool) { m_filter->begin(); }

void Kiv_mat_databaseMergeWindow::commandShowEqual(bool on)
{
    m_rows->setEqualShown(on);
    QSettings(paths::windowState(), QSettings::IniFormat).setValue(equalShownKey, on);
}

void Kiv_mat_databaseMergeWindow::commandLeaveOut(bool)
{
    std::set<int> rows;
    for (const QModelIndex &cell : m_view->markedCells())
        rows.insert(cell.parent().isValid() ? cell.parent().row() : cell.row());
    std::vector<std::unique_ptr<command>> members;
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        members.push_back(std::make_unique<deleteMaterial>(model(), model()->index(*row, 0)));
    if (!members.empty())
        push(std::make_unique<appendCommands>(std::move(members), model()), tr("Leave out"));
    showCounts();
}

void Kiv_mat_databaseMergeWindow::commandCollaps(bool) { m_view->collapseAll(); }

void Kiv_mat_databaseMergeWindow::commandExpand(bool)
{
    workProgress::scope work(progress(), tr("Opening materials"));
    const auto step = work.function();
    for (int row = 0; row < model()->rowCount(); ++row) {
        if (!m_view->isRowHidden(row, {}))
            m_view->expand(model()->index(row, 0));
        if (!step(row + 1, model()->rowCount()))
            return;
    }
}

void Kiv_mat_databaseMergeWindow::itemTreeClicked(QPoint, uint, const QModelIndex &index)
{
    tell(m_rows->describe(index));
}

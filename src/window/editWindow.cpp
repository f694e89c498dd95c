#include "window/editWindow.h"

#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/editCommands.h"
#include "data/programData.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QStackedWidget>
#include <QStandardItem>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int storeEveryMs = 60000;

QString native(const QString &path) { return QDir::toNativeSeparators(path).toHtmlEscaped(); }

// The line that is typed into in a field of one line; null in any other widget.
QLineEdit *lineOf(QWidget *field)
{
    if (auto *line = qobject_cast<QLineEdit *>(field))
        return line;
    if (const auto *box = qobject_cast<QComboBox *>(field))
        return box->lineEdit();
    return qobject_cast<QAbstractSpinBox *>(field) ? field->findChild<QLineEdit *>() : nullptr;
}

} // namespace

using myItem::myItemStandard;

editWindow::editWindow(const QString &name, programData &known, QWidget *parent)
    : baseWindow(name, parent)
    , m_known(known)
    , m_changed(new QLabel(tr("changed, not saved"), this))
    , m_storing(new QTimer(this))
{
    m_changed->setObjectName(QStringLiteral("changed"));
    statusBar()->addPermanentWidget(m_changed);
    m_changed->hide();
    m_storing->setSingleShot(true);
    m_storing->setInterval(storeEveryMs);
    connect(m_storing, &QTimer::timeout, this, &editWindow::storeRecovery);
    connect(qApp, &QApplication::focusChanged, this, &editWindow::followFocus);
}

editWindow::~editWindow()
{
    m_stack->changed = nullptr;
    m_stack->clear();
    // An editor that is still open commits when its view goes, and may be refused.
    for (myTreeView *view : m_views) {
        modelOf(view)->detach();
        view->disconnect(this);
    }
}

void editWindow::followHistory()
{
    setAcceptDrops(takesFiles());
    m_stack = std::make_unique<commandStack>(action("undo"), action("redo"));
    m_stack->changed = [this] { showState(); };
}

myModel *editWindow::modelOf(const myTreeView *view)
{
    return static_cast<myModel *>(view->model());
}

myTreeView *editWindow::addView(const QString &accessibleName, const char *name, QWidget *parent)
{
    auto *model = new myModel(this);
    recordEdits(model, m_stack.get());
    auto *view = new myTreeView(parent);
    view->setObjectName(QLatin1String(name));
    view->setAccessibleName(accessibleName);
    view->setModel(model);
    view->header()->setObjectName(QLatin1String(name) + QLatin1String("Header"));
    watchView(view);
    return view;
}

void editWindow::watchView(myTreeView *view)
{
    connect(modelOf(view), &myModel::sorted, this, &editWindow::clearCommands);
    connect(view, &myTreeView::refused, this, &editWindow::tell);
    connect(view, &myTreeView::markChanged, this, [this] { updateActions(); });
    m_views.push_back(view);
}

// --- State
// ----------------------------------------------------------------------------------------

bool editWindow::isModified() const { return m_stack->state() != m_clean; }

void editWindow::setClean()
{
    m_clean = 0;
    m_givenUp = false;
    m_stack->clear();
}

void editWindow::setChanged()
{
    m_clean.reset();
    m_stack->clear();
}

// Without its history a changed document has no way back to what the file holds.
void editWindow::clearCommands()
{
    if (isModified())
        setChanged();
    else
        setClean();
}

void editWindow::showState()
{
    const bool modified = isModified();
    setWindowTitle(title() + (modified ? QLatin1String(" *") : QLatin1String()));
    m_changed->setVisible(modified);
    if (modified && !m_storing->isActive())
        m_storing->start();
    updateActions();
}

void editWindow::tell(const QString &text) { statusBar()->showMessage(text); }

bool editWindow::finishEditing()
{
    bool taken = true;
    for (myTreeView *view : m_views)
        taken = view->finishEditing() && taken;
    return taken;
}

// --- Lock
// -----------------------------------------------------------------------------------------

QString editWindow::forbidden(QLatin1String option) const
{
    return tr("the configuration forbids it: %1 is NIE").arg(option);
}

QString editWindow::lockedReason() const
{
    if (mayUnlock())
        return tr("editing is locked");
    return fault().isEmpty() ? forbidden(editOption()) : fault();
}

bool editWindow::mayUnlock() const
{
    const QLatin1String option = editOption();
    return fault().isEmpty() && (option.size() == 0 || !m_known.isSwitchedOff(option));
}

void editWindow::setUnlocked(bool wanted)
{
    if (QAction *edit = action("edit")) {
        setAvailable("edit", mayUnlock(), lockedReason());
        const QSignalBlocker once(edit);
        edit->setChecked(wanted && mayUnlock());
    }
    commandEdit(wanted);
}

void editWindow::commandEdit(bool on)
{
    const bool before = std::exchange(m_locked, !on || !mayUnlock());
    for (myTreeView *view : m_views)
        view->setEditingLocked(m_locked);
    lockChanged();
    claimFile();
    showState();
    if (before != m_locked)
        tell(m_locked ? lockedText() : tr("Editing is allowed"));
}

QString editWindow::lockedText() const
{
    const QString locked = tr("Editing is locked");
    return mayUnlock() ? locked : locked + QLatin1String(": ") + lockedReason();
}

bool editWindow::refuseWhileLocked()
{
    if (m_locked)
        tell(lockedText());
    return m_locked;
}

void editWindow::allowWhenUnlocked(std::initializer_list<const char *> names, bool otherwise,
                                   const QString &whyNot)
{
    for (const char *name : names)
        setAvailable(name, !m_locked && otherwise, m_locked ? lockedReason() : whyNot);
}

// Who only reads claims nothing, nor does a window that is not shown.
void editWindow::claimFile()
{
    const QString before = m_fileLock.otherUser();
    m_fileLock.claim(m_locked || !isVisible() ? QString() : filePath());
    const QString &other = m_fileLock.otherUser();
    if (other.isEmpty() || other == before)
        return;
    userPrompts().showInformation(
        tr("The file %1 is open elsewhere, too: %2. Whoever saves last would replace what the "
           "other one saved.")
            .arg(native(filePath()), other.toHtmlEscaped()));
}

// --- History
// --------------------------------------------------------------------------------------

void editWindow::push(std::unique_ptr<command> change, const QString &what)
{
    if (!change)
        return;
    m_stack->push(std::move(change), what);
    historyMoved();
    tell(what);
}

void editWindow::tellHistory(const QString &form, const QString &what)
{
    historyMoved();
    showMoved();
    if (!what.isNull())
        tell(form.arg(what));
}

// What a step undone or done again is seen in gets selected, and is brought into sight.
void editWindow::showMoved()
{
    constexpr size_t most = 1000; // selecting more takes longer than the step
    std::vector<QStandardItem *> cells = m_stack->places();
    cells.resize(std::min(cells.size(), most));
    for (myTreeView *view : m_views) {
        QItemSelection moved;
        QModelIndex first;
        for (const QStandardItem *cell : cells) {
            const QModelIndex index = cell->index();
            if (cell->model() != view->model() || view->isRowHidden(index.row(), index.parent()))
                continue;
            moved.select(index, index);
            if (!first.isValid())
                first = index;
        }
        if (!first.isValid())
            continue;
        // It may be on another page.
        for (QWidget *page = view; page && page != this; page = page->parentWidget())
            if (auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget()))
                if (auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget()))
                    tabs->setCurrentWidget(page);
        view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        view->selectionModel()->select(moved, QItemSelectionModel::ClearAndSelect);
        view->scrollTo(first);
    }
}

void editWindow::commandUndo(bool)
{
    if (refuseWhileLocked())
        return;
    historyMoves();
    tellHistory(tr("Undone: %1"), m_stack->undo());
}

void editWindow::commandRedo(bool)
{
    if (refuseWhileLocked())
        return;
    historyMoves();
    tellHistory(tr("Done again: %1"), m_stack->redo());
}

// --- Cells
// ----------------------------------------------------------------------------------------

myTreeView *editWindow::currentView() const
{
    for (myTreeView *view : m_views)
        if (view->hasFocus())
            return view;
    return m_views.front();
}

void editWindow::commandCopyCells(bool)
{
    tell(tr("%n cell(s) copied", nullptr, cellClipboard::copy(currentView())));
}

void editWindow::commandPasteCells(bool)
{
    if (refuseWhileLocked())
        return;
    const int changed = cellClipboard::paste(
        currentView(),
        [this](std::unique_ptr<command> change) { push(std::move(change), tr("Paste")); }, page());
    tell(tr("%n cell(s) pasted", nullptr, changed));
}

// --- Filling and moving
// ---------------------------------------------------------------------------

QList<myItemStandard *> editWindow::cellsLike(const myItemStandard *source,
                                              const QModelIndexList &cells) const
{
    QList<myItemStandard *> found;
    const auto *model = static_cast<const myModel *>(source->model());
    for (const QModelIndex &index : cells)
        if (myItemStandard *cell = model->cell(index))
            if (cell != source && cell->column() == source->column()
                && cell->type() == source->type() && !cell->readOnly)
                found.append(cell);
    return found;
}

void editWindow::commandFillDown(bool)
{
    if (refuseWhileLocked())
        return;
    const myTreeView *view = currentView();
    myModel *model = modelOf(view);
    const QModelIndexList cells = view->selectedCells();
    QList<myItemStandard *> filled;
    QHash<int, const myItemStandard *> sources;
    for (const QModelIndex &index : cells) {
        const myItemStandard *source = model->cell(index);
        if (!source || sources.contains(index.column()))
            continue;
        sources.insert(index.column(), source);
        filled += cellsLike(source, cells);
    }
    const auto value = [&sources](const myItemStandard &cell) {
        return cellBlock::like(*sources.value(cell.column()), cell);
    };
    for (const myItemStandard *cell : qAsConst(filled))
        if (const QString fault = value(*cell).fault; !fault.isEmpty()) {
            userPrompts().showError(fault.toHtmlEscaped());
            return;
        }
    push(cellBlock::set(
             model, filled, [&value](const myItemStandard &cell) { return value(cell).value; },
             page()),
         tr("Fill down"));
    if (filled.isEmpty())
        tell(tr("Select the cell to copy and those below it that are to be filled"));
}

void editWindow::moveRowsBefore(myTreeView *view, const std::vector<int> &rows, int before)
{
    if (refuseWhileLocked() || rows.empty())
        return;
    const bool together = rows.back() - rows.front() + 1 == int(rows.size());
    if (together && before >= rows.front() && before <= rows.back() + 1)
        return;
    const int column = qMax(0, view->currentIndex().column());
    const int to = before - int(std::lower_bound(rows.begin(), rows.end(), before) - rows.begin());
    std::vector<std::unique_ptr<command>> members;
    members.push_back(std::make_unique<moveRows>(modelOf(view), rows, before));
    pushMove(view, std::move(members), int(rows.size()));
    view->goTo(view->model()->index(to, column));
    view->selectionModel()->select(
        {view->model()->index(to, column), view->model()->index(to + int(rows.size()) - 1, column)},
        QItemSelectionModel::Select);
}

// It is the rows beside them that change places, so the marked ones stay selected, also when that
// is undone.
void editWindow::moveMarkedRows(myTreeView *view, bool up)
{
    const std::vector<int> rows = view->markedRows();
    if (refuseWhileLocked())
        return;
    if (rows.empty()) {
        tell(tr("No line is selected"));
        return;
    }
    myModel *model = modelOf(view);
    if (up ? rows.front() == 0 : rows.back() + 1 == model->rowCount())
        return;
    std::vector<std::unique_ptr<command>> members;
    {
        const changeBatch batch(model);
        for (auto first = rows.begin(); first != rows.end();) {
            auto last = first;
            while (last + 1 != rows.end() && *(last + 1) == *last + 1)
                ++last;
            members.push_back(
                up ? std::make_unique<moveRows>(model, std::vector{*first - 1}, *last + 1)
                   : std::make_unique<moveRows>(model, std::vector{*last + 1}, *first));
            first = last + 1;
        }
    }
    pushMove(view, std::move(members), int(rows.size()));
    view->scrollTo(view->currentIndex());
}

void editWindow::pushMove(myTreeView *view, std::vector<std::unique_ptr<command>> moves, int rows)
{
    {
        // What is sorted by is shown no more.
        QHeaderView *header = view->header();
        const QSignalBlocker quiet(header);
        header->setSortIndicator(-1, Qt::AscendingOrder);
    }
    if (page())
        moves.push_back(std::make_unique<refreshHtml>(page()));
    push(std::make_unique<appendCommands>(std::move(moves), modelOf(view)),
         tr("%n line(s) moved", nullptr, rows));
}

// Texts; other values have no empty one.
void editWindow::clearCells(const myTreeView *view)
{
    if (refuseWhileLocked())
        return;
    QList<myItemStandard *> cells;
    for (const QModelIndex &index : view->selectedCells())
        if (myItemStandard *cell = modelOf(view)->cell(index))
            switch (cell->type()) {
            case myItem::labelKind:
            case myItem::lineEditKind:
            case myItem::passwordEditKind:
            case myItem::ipEditKind:
            case myItem::textEditKind:
            case myItem::pathEditKind:
                cells.append(cell);
                break;
            default:
                break;
            }
    push(cellBlock::clear(modelOf(view), cells, page()), tr("Clear"));
}

// --- Keys
// -----------------------------------------------------------------------------------------

// An action that deletes rows takes the key where there are rows to delete.
void editWindow::keyPressEvent(QKeyEvent *event)
{
    baseWindow::keyPressEvent(event);
    if (event->key() != Qt::Key_Delete || event->modifiers() != Qt::NoModifier)
        return;
    for (const myTreeView *view : m_views)
        if (view->hasFocus())
            clearCells(view);
}

// The field that is typed into is asked first whether a key is its own.
void editWindow::followFocus(QWidget *, QWidget *now)
{
    if (now && now != this && now->window() == this)
        now->installEventFilter(this);
}

// Whether a text field keeps a key that is a shortcut of the window, too. An editor in a tree keeps
// its keys always; other fields leave undo and redo to the window while they have nothing of their
// own to undo.
bool editWindow::isOwnKey(QWidget *field, const QKeyEvent *event) const
{
    // Its list is opened so.
    if (qobject_cast<const QComboBox *>(field) && event->modifiers() == Qt::AltModifier
        && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down))
        return true;
    const QLineEdit *line = lineOf(field);
    const auto *text = qobject_cast<const QTextEdit *>(field);
    if (!line && !text)
        return false;
    const bool inTree =
        std::any_of(m_views.begin(), m_views.end(),
                    [field](const myTreeView *view) { return view->isAncestorOf(field); });
    const QKeySequence pressed(event->key() | int(event->modifiers()));
    if (pressed == action("undo")->shortcut())
        return inTree || (line ? line->isUndoAvailable() : text->document()->isUndoAvailable());
    if (pressed == action("redo")->shortcut())
        return inTree || (line ? line->isRedoAvailable() : text->document()->isRedoAvailable());
    for (QKeySequence::StandardKey key :
         {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste, QKeySequence::SelectAll,
          QKeySequence::Delete})
        if (event->matches(key))
            return true;
    return false;
}

bool editWindow::takesShortcut(const QKeyEvent *event) const
{
    const QKeySequence pressed(event->key() | int(event->modifiers()));
    const QList<QAction *> all = findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(all.begin(), all.end(), [&pressed](const QAction *each) {
        return each->isEnabled() && each->shortcutContext() == Qt::WindowShortcut
               && each->shortcut() == pressed;
    });
}

bool editWindow::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QWidget *>(watched);
    if (!field || field != QApplication::focusWidget()
        || (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress))
        return baseWindow::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const bool own = isOwnKey(field, key);
    // Not the key for it everywhere.
    const bool redoes =
        own && QKeySequence(key->key() | int(key->modifiers())) == action("redo")->shortcut();
    if (event->type() == QEvent::KeyPress) {
        if (!redoes)
            return baseWindow::eventFilter(watched, event);
        if (QLineEdit *line = lineOf(field))
            line->redo();
        else
            static_cast<QTextEdit *>(field)->redo();
        return true;
    }
    if (own) {
        event->accept();
        return true;
    }
    // Fields have keys of their own that few know, such as Ctrl+E for the end of the line.
    if (!own && takesShortcut(key)) {
        event->ignore();
        return true;
    }
    return baseWindow::eventFilter(watched, event);
}

// --- Finding
// --------------------------------------------------------------------------------------

void editWindow::commandFind(bool)
{
    const auto text = userPrompts().inputText(tr("Find"), tr("Text in any column"), m_wanted);
    if (!text || text->isEmpty())
        return;
    m_wanted = *text;
    commandFindNext(false);
}

void editWindow::commandFindNext(bool)
{
    if (m_wanted.isEmpty()) {
        commandFind(false);
        return;
    }
    myTreeView *view = currentView();
    if (view->findNext(m_wanted))
        tell(tr("Found in line %1").arg(view->currentIndex().row() + 1));
    else
        tell(tr("No line holds %1").arg(m_wanted));
}

// --- Saving
// ---------------------------------------------------------------------------------------

// What another program wrote is neither written over nor read unasked. True: overwrite it.
bool editWindow::settleOtherVersion()
{
    if (filePath().isEmpty() || fileState::of(filePath()) == onDisk())
        return true;
    enum
    {
        reload,
        overwrite,
        otherName
    };
    QStringList answers{tr("Reload it and lose the changes here"), tr("Overwrite it")};
    if (canSaveAs())
        answers.append(tr("Save as"));
    const std::optional<int> answer =
        userPrompts().decide(tr("The file %1 was changed by another program since it was opened.")
                                 .arg(native(filePath())),
                             answers);
    if (answer == reload) {
        load();
        userPrompts().showErrors();
    } else if (answer == otherName) {
        saveAs();
    }
    return answer == overwrite;
}

bool editWindow::saveTo(const QString &path)
{
    if (!finishEditing())
        return false;
    if (!fault().isEmpty()) {
        tell(fault());
        return false;
    }
    if ((path == filePath() && !settleOtherVersion()) || !write(path))
        return false;
    onDisk() = fileState::of(path);
    setClean();
    claimFile();
    tell(tr("Saved"));
    saved();
    showState();
    return true;
}

bool editWindow::save() { return saveTo(filePath()); }

void editWindow::commandSave(bool)
{
    if (!finishEditing())
        return;
    if (isModified() || !fault().isEmpty())
        save();
    else
        tell(tr("Nothing was changed"));
}

// --- Closing
// --------------------------------------------------------------------------------------

void editWindow::showNow()
{
    if (!isVisible())
        begin();
    // The keyboard is at home in the tree unless the window put it elsewhere.
    myTreeView *view = currentView();
    if (!focusWidget())
        view->setFocus();
    if (!view->currentIndex().isValid())
        view->selectionModel()->setCurrentIndex(view->model()->index(0, 0),
                                                QItemSelectionModel::NoUpdate);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void editWindow::showEvent(QShowEvent *event)
{
    baseWindow::showEvent(event);
    // Who else has the file is told over the window.
    QTimer::singleShot(0, this, &editWindow::claimFile);
}

bool editWindow::askToLeave(const QString &question, bool withCancel)
{
    switch (userPrompts().ask(question, withCancel)) {
    case prompts::answer::yes:
        save();
        return !isModified();
    case prompts::answer::no:
        m_givenUp = true;
        return true;
    default:
        return false;
    }
}

bool editWindow::mayClose()
{
    return finishEditing()
           && (m_givenUp || !isModified() || askToLeave(closeQuestion(), closesWithCancel()));
}

bool editWindow::discard()
{
    setClean();
    return true;
}

void editWindow::closeAtEnd()
{
    stopAsking();
    close();
}

void editWindow::commandClose(bool) { close(); }

void editWindow::closeEvent(QCloseEvent *event)
{
    if (!m_programEnds && (!mayClose() || (m_givenUp && !discard()))) {
        stayOpen();
        event->ignore();
        return;
    }
    m_givenUp = false;
    closed();
    m_fileLock.claim({});
    baseWindow::closeEvent(event);
}

// --- Files dropped
// --------------------------------------------------------------------------------

void editWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (takesFiles() && urls.size() == 1 && urls.first().isLocalFile())
        event->acceptProposedAction();
}

void editWindow::dropEvent(QDropEvent *event)
{
    fileDropped(event->mimeData()->urls().first().toLocalFile());
}

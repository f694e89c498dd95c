#include "window/editWindow.h"
#include "window/storeListener.h"

#include "commands/editCommands.h"
#include "data/programData.h"
#include "tree/myTreeView.h"
#include "util/fileWatch.h"
#include "util/memory.h"
#include "util/messages.h"
#include "util/prompts.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStandardItem>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int storeEveryMs = 10000;

QString native(const QString &path) { return QDir::toNativeSeparators(path).toHtmlEscaped(); }

} // namespace

editWindow::editWindow(const QString &name, programData &known, QWidget *parent)
    : baseWindow(name, parent)
    , m_known(known)
    , m_watch(new fileWatch(this))
    , m_changed(new QLabel(tr("changed, not saved"), this))
    , m_storing(new QTimer(this))
{
    m_changed->setObjectName(QStringLiteral("changed"));
    statusBar()->addPermanentWidget(m_changed);
    m_changed->hide();
    followStore();
    m_storing->setSingleShot(true);
    m_storing->setInterval(storeEveryMs);
    connect(m_storing, &QTimer::timeout, this, &editWindow::storeRecovery);
    connect(m_watch, &fileWatch::changed, this, &editWindow::lookAtLocks);
    connect(m_watch, &fileWatch::changed, this, &editWindow::lookAtFile);
    connect(qApp, &QApplication::focusChanged, this, &editWindow::followFocus);
}

editWindow::~editWindow()
{
    // What is unsaved stays to be found.
    m_journal.reset();
    // A window that goes while it is in front moves the focus when nothing of this is left.
    qApp->disconnect(this);
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
    readStoreState();
    stayOpen();
    m_stack->clear();
}

void editWindow::setChanged()
{
    m_clean.reset();
    if (m_journal)
        m_journal->keep();
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
    if (modified && statusBar()->currentMessage() == tr("Saved"))
        statusBar()->clearMessage();
    if (modified && !m_storing->isActive())
        m_storing->start();
    if (m_journal && !modified)
        m_journal->clear();
    updateActions();
}

void editWindow::tell(const QString &text) { statusBar()->showMessage(text); }

void editWindow::tellSaved(const QString &text)
{
    const QString fault = versionFault();
    tell(fault.isEmpty() ? text : text + QLatin1String(", ") + fault);
}

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
    if (!fault().isEmpty())
        return fault();
    return m_readOnly.isEmpty() ? forbidden(editOption()) : m_readOnly;
}

bool editWindow::mayUnlock() const
{
    const QLatin1String option = editOption();
    return fault().isEmpty() && m_readOnly.isEmpty()
           && (option.size() == 0 || !m_known.isSwitchedOff(option));
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
    followFile();
    const QString before = m_fileLock.otherUser();
    m_fileLock.claim(m_locked || !isVisible() ? QString() : filePath());
    const QString &other = m_fileLock.otherUser();
    m_others = filePath().isEmpty() ? QStringList() : fileLock::othersOf(filePath());
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
    if (!m_stack->push(std::move(change), what))
        return;
    historyMoved();
    tell(what);
    if (m_isShared)
        storeListener::instance().tellEditing(m_storeDocument, m_storeProgram, editedKey());
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
            const QModelIndex index = cell ? cell->index() : QModelIndex();
            if (!cell || cell->model() != view->model()
                || view->isRowHidden(index.row(), index.parent()))
                continue;
            moved.select(index, index);
            if (!first.isValid())
                first = index;
        }
        if (!first.isValid())
            continue;
        view->showPage();
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

bool editWindow::writeDocument(const QString &path, documentStruct &document,
                               const workShown &shown)
{
    return saveDocument(path, document, m_known.config(), shown, &m_writeFault);
}

// What cannot be written stays in the window, whatever is answered. False, unless it was written to
// that path.
bool editWindow::writeAsking(const QString &path)
{
    enum
    {
        retry,
        elsewhere,
        aside
    };
    for (;;) {
        m_writeFault.clear();
        if (write(path))
            return true;
        if (m_writeFault.isEmpty())
            return false;
        std::vector<int> offered{retry};
        QStringList answers{tr("Retry")};
        if (canSaveAs()) {
            offered.push_back(elsewhere);
            answers.append(tr("Save elsewhere"));
        }
        if (canKeep()) {
            offered.push_back(aside);
            answers.append(tr("Keep in recovery"));
        }
        const std::optional<int> pressed =
            userPrompts().decide(messages::notWritten(path, m_writeFault), answers);
        const int answer = pressed ? offered[size_t(*pressed)] : -1;
        if (answer == retry)
            continue;
        if (answer == elsewhere)
            saveAs();
        m_keptAside = answer == aside && storeRecovery();
        if (m_keptAside)
            tell(tr("Not saved, but kept for the next start"));
        return false;
    }
}

bool editWindow::saveTo(const QString &path)
{
    m_keptAside = false;
    if (!finishEditing())
        return false;
    if (!fault().isEmpty()) {
        tell(fault());
        return false;
    }
    if (path == filePath() && !settleOtherVersion())
        return false;
    {
        const QScopedValueRollback saving(m_saving, true);
        if (!writeAsking(path))
            return false;
        onDisk() = fileState::of(path);
    }
    setClean();
    claimFile();
    tellSaved(tr("Saved"));
    saved();
    showState();
    return true;
}

bool editWindow::save()
{
    const bool isSaved = saveTo(filePath());
    // Kept aside or not, the window goes on.
    stayOpen();
    return isSaved;
}

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
        saveTo(filePath());
        return !isModified() || m_keptAside;
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
           && (m_givenUp || m_keptAside || !isModified()
               || askToLeave(closeQuestion(), closesWithCancel()));
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
    if (!m_programEnds && !mayClose()) {
        stayOpen();
        event->ignore();
        return;
    }
    const bool isKept = m_keptAside;
    if (!m_programEnds && (m_givenUp || isKept) && !discard()) {
        stayOpen();
        event->ignore();
        return;
    }
    stayOpen();
    closed();
    // What could not be written last stays noted as it was before.
    if (m_journal && isKept)
        m_journal->leave();
    else if (m_journal)
        m_journal->discard();
    m_fileLock.claim({});
    m_watch->watch({});
    m_opened.reset();
    m_openedPath.clear();
    giveBackMemory();
    baseWindow::closeEvent(event);
}

// --- Recovery
// -------------------------------------------------------------------------------------

void editWindow::keepJournal(const fileKind &kind, std::function<documentStruct *()> document,
                             std::initializer_list<myModel *> models)
{
    m_journal = std::make_unique<recoveryJournal>(
        kind,
        recoveryJournal::source{std::move(document), [this] { return filePath(); },
                                [this] { return onDisk(); }},
        this);
    size_t level = 0;
    for (myModel *model : models)
        m_journal->watch(model, level++);
    connect(m_journal.get(), &recoveryJournal::failed, this, [this] {
        tell(tr("No copy of the unsaved changes can be kept: %1")
                 .arg(m_journal->faults().join(QLatin1String("; "))));
    });
}

void editWindow::noteAside(const QString &note) { m_journal->note(note); }

bool editWindow::storeRecovery()
{
    if (!m_journal || !isModified() || m_journal->writeThrough())
        return true;
    tell(tr("No copy of the unsaved changes can be kept: %1")
             .arg(m_journal->faults().join(QLatin1String("; "))));
    return false;
}

bool editWindow::isOf(const QString &path) const
{
    const QString own = filePath();
    return !own.isEmpty()
           && QFileInfo(own).absoluteFilePath() == QFileInfo(path).absoluteFilePath();
}

void editWindow::leaveUnsaved()
{
    finishEditing();
    if (m_journal && isModified())
        m_journal->leave();
}

void editWindow::remake(documentStruct &document)
{
    if (m_recovering)
        m_remade = m_journal->takeUp(*m_recovering, document);
}

bool editWindow::recover(const leftChanges &copy)
{
    m_remade.reset();
    m_recovering = &copy;
    const bool read = load() && fault().isEmpty();
    m_recovering = nullptr;
    userPrompts().showErrors();
    if (!read || !m_remade) {
        tell(tr("What was left unsaved cannot be restored now; it is kept"));
        return false;
    }
    const QString time = copy.time.toString(QStringLiteral("dd.MM.yyyy hh:mm"));
    const bool isRefused = !m_remade->refused.isEmpty();
    const bool isNoted = !copy.note.isEmpty() && takeNote(copy.note);
    if (m_remade->made > 0 || isNoted) {
        setChanged();
        setUnlocked(true);
        showState();
        tell(tr("Restored as it was %1, not saved: %n record(s)", nullptr, m_remade->made)
                 .arg(time));
    } else if (isRefused) {
        m_journal->leave();
    } else {
        tell(tr("The file has everything that was changed until %1").arg(time));
    }
    if (isRefused)
        userPrompts().showWarning(
            tr("The file %1 was changed by another program meanwhile. These records differ there "
               "and were not restored: %2")
                .arg(native(filePath()),
                     m_remade->refused.join(QLatin1String(", ")).toHtmlEscaped()));
    return true;
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

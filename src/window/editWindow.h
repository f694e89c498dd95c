// A window in which a document is edited: its undo history, views, lock and clean state; saving,
// also over what another program wrote meanwhile; the question before it closes; what is dropped on
// it. A window of its own kind says what its document is and which actions it has.
#pragma once

#include "commands/commandStack.h"
#include "data/documentSaving.h"
#include "util/fileLock.h"
#include "window/baseWindow.h"
#include "window/recoveryJournal.h"

#include <QModelIndexList>

#include <optional>

namespace myItem {
class myItemStandard;
}
class QLabel;
class QTemporaryDir;
class QTimer;
class QToolButton;
class changedBar;
class fileWatch;
class htmlView;
class myModel;
class myTreeView;
class documentStruct;
class programData;
namespace store {
struct base;
class connection;
struct syncResult;
} // namespace store

// The actions that windows share, for their tables.
namespace usualActions {
inline constexpr actionRow save{"save",
                                QT_TRANSLATE_NOOP("actions", "File"),
                                QT_TRANSLATE_NOOP("actions", "Save"),
                                "action_save",
                                "Ctrl+S",
                                nullptr,
                                true};
inline constexpr actionRow close{"close",        "File",   QT_TRANSLATE_NOOP("actions", "Close"),
                                 "action_close", "Ctrl+W", nullptr};
inline constexpr actionRow versions{
    "versions",
    "File",
    QT_TRANSLATE_NOOP("actions", "Versions and unsaved orders ..."),
    "action_archive",
    "Ctrl+Shift+H",
    QT_TRANSLATE_NOOP("actions", "What is kept of the file: compare, open, restore")};
inline constexpr actionRow synchronize{
    "synchronize",
    "File",
    QT_TRANSLATE_NOOP("actions", "Synchronise"),
    "action_refresh",
    "Ctrl+Shift+Y",
    QT_TRANSLATE_NOOP("actions", "Fetch what others changed from the shared store, and send what "
                                 "was changed here")};
inline constexpr actionRow publish{
    "publish",
    "File",
    QT_TRANSLATE_NOOP("actions", "Put into the shared store ..."),
    "action_send",
    nullptr,
    QT_TRANSLATE_NOOP("actions", "Share this file with others, who fetch it from the server")};
inline constexpr actionRow undo{"undo",
                                QT_TRANSLATE_NOOP("actions", "Edit"),
                                QT_TRANSLATE_NOOP("actions", "Undo"),
                                "action_undo",
                                "Ctrl+Z",
                                nullptr,
                                true};
inline constexpr actionRow redo{
    "redo", "Edit", QT_TRANSLATE_NOOP("actions", "Redo"), "action_redo", "Ctrl+Y", nullptr, true};
inline constexpr actionRow copyCells{
    "copyCells",   "Edit",   QT_TRANSLATE_NOOP("actions", "Copy cells"),
    "action_copy", "Ctrl+C", QT_TRANSLATE_NOOP("actions", "Copy the selected cells as text")};
inline constexpr actionRow pasteCells{
    "pasteCells",
    "Edit",
    QT_TRANSLATE_NOOP("actions", "Paste cells"),
    "action_paste",
    "Ctrl+V",
    QT_TRANSLATE_NOOP("actions", "Paste text into the cells from the current one on")};
inline constexpr actionRow fillDown{
    "fillDown",
    "Edit",
    QT_TRANSLATE_NOOP("actions", "Fill down"),
    "action_fill_down",
    "Ctrl+Shift+D",
    QT_TRANSLATE_NOOP("actions",
                      "Put the topmost selected cell of each column into those below it")};
constexpr actionRow moveUp(const char *menu)
{
    return {"moveUp",         menu,     QT_TRANSLATE_NOOP("actions", "Move up"),
            "action_move_up", "Alt+Up", QT_TRANSLATE_NOOP("actions", "Move the selected lines up")};
}
constexpr actionRow moveDown(const char *menu)
{
    return {"moveDown",
            menu,
            QT_TRANSLATE_NOOP("actions", "Move down"),
            "action_move_down",
            "Alt+Down",
            QT_TRANSLATE_NOOP("actions", "Move the selected lines down")};
}
inline constexpr actionRow findNext{
    "findNext",         "Edit", QT_TRANSLATE_NOOP("actions", "Find next"),
    "action_find_next", "F3",   nullptr};
inline constexpr actionRow fileSeparator{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true};
inline constexpr actionRow editSeparator{nullptr, "Edit", nullptr, nullptr, nullptr, nullptr, true};

// The checkable lock, with what it allows.
constexpr actionRow edit(const char *toolTip)
{
    return {"edit", "Edit", QT_TRANSLATE_NOOP("actions", "Edit"), "action_edit", "Ctrl+E", toolTip,
            true,   true};
}
} // namespace usualActions

class editWindow : public baseWindow
{
    Q_OBJECT
public:
    ~editWindow() override;

    commandStack &stack() { return *m_stack; }
    programData &known() const { return m_known; }

    // Whether anything differs from what was loaded or saved last; undoing all of it counts.
    virtual bool isModified() const;
    bool isLocked() const { return m_locked; }

    // Shows the window in front; one that was closed begins with what its file holds.
    void showNow();

    // Writes the document. False, told to the user, when it could not be or the user thought
    // better of it.
    bool save();

    // Whether the window may close: asks about changes, and saves them when the user says so. What
    // the user gives up goes when the window closes, and is kept by stayOpen() when it will not.
    virtual bool mayClose();
    void stayOpen() { m_givenUp = m_keptAside = false; }

    // Whether the window is the one of that file.
    bool isOf(const QString &path) const;
    // Shows the document as its file has it, with the changes that an earlier run left unsaved.
    // False when they cannot be made; then they stay where they are.
    bool recover(const leftChanges &copy);
    // Writes unsaved work aside; called some seconds after a change. False, told in the
    // status bar, when no folder takes it.
    virtual bool storeRecovery();
    // The program ends without asking: what is unsaved is left to be found at the next start.
    virtual void leaveUnsaved();
    // Closes without a question, because the program ends.
    void closeAtEnd();

    // Puts the content of a version in the place of the document's, as one step; the present state
    // is kept as a version first. what names the version. False, told to the user, when it may not.
    bool restoreVersion(documentStruct &version, const QString &what);

    // Fetches what others changed in the shared store and sends what was changed here; the file is
    // written then. seen: the window that shows progress and conflicts. Cancelled, with the reason
    // in the fault, when this window cannot just now, or the file was not written. The fault was
    // not told yet.
    store::syncResult synchronize(store::connection &with, editWindow &seen);
    // Puts the file into the shared store under a name that is asked for; what came of it.
    QString publish(editWindow &seen);

    // Locks or unlocks as the configuration and the document allow.
    void setUnlocked(bool wanted);

public slots:
    void commandSave(bool);
    void commandClose(bool);
    void commandEdit(bool on);
    void commandVersions(bool);
    void commandSynchronize(bool);
    void commandPublish(bool);
    void commandUndo(bool);
    void commandRedo(bool);
    void commandCopyCells(bool);
    void commandPasteCells(bool);
    void commandFind(bool);
    void commandFindNext(bool);
    void commandFillDown(bool);
    // Forgets the history, because rows moved that it knows by number; changes stay changes.
    void clearCommands();
    // Tells something in the status bar.
    void tell(const QString &text);
    // The same of a file that was saved, and whether its earlier version was kept.
    void tellSaved(const QString &text);

signals:
    // The versions of the file are to be shown.
    void versionsWanted(const QString &path);

protected:
    editWindow(const QString &name, programData &known, QWidget *parent = nullptr);

    // The window's table, which has "undo" and "redo", and "edit" where the window can be locked.
    template <class Window, size_t Count>
    void addActions(const windowAction<Window> (&table)[Count])
    {
        baseWindow::addActions(table);
        followHistory();
    }

    // What was fetched and sent, for the status bar.
    static QString sentence(const store::syncResult &result);

    // For dialogs that choose a file.
    static QString xmlFilter() { return tr("Xml File") + QLatin1String(" (*.xml)"); }

    // A tree whose edits are steps of the history. Further columns, hints and menus are the
    // window's.
    myTreeView *addView(const QString &accessibleName, const char *name, QWidget *parent);
    // The same for a tree that was made elsewhere, over a model whose edits are recorded.
    void watchView(myTreeView *view);
    static myModel *modelOf(const myTreeView *view);

    // --- What a window says of its document ---

    // The file; empty when there is none.
    virtual QString filePath() const = 0;
    virtual QString title() const = 0;
    // The document as it stands in the window, which has no open editor; null when it is no file's.
    virtual documentStruct *record() { return nullptr; }
    // Makes the document like another one of its kind, which is used up by that: one step, applied
    // already; null when nothing changed.
    virtual std::unique_ptr<command> become(documentStruct &) { return nullptr; }
    // Makes the changes that others made in the document, as become(); known is brought up to what
    // the document is then.
    virtual std::unique_ptr<command> takeRows(const store::syncResult &result, store::base *known);
    // Writes the document, by writeDocument() where that is a file; false when that failed or the
    // user thought better of it, told to the user unless it is the file.
    virtual bool write(const QString &path) = 0;
    // Saves it for write(); the window asks what is to be done when it cannot be written.
    bool writeDocument(const QString &path, documentStruct &document, const workShown &shown = {});
    // Why it could not.
    QString &writeFault() { return m_writeFault; }
    // Shows the document as the file has it now, with setClean(). False, told to the user and with
    // everything as it was, when it cannot be read.
    virtual bool load() = 0;
    // What a window that was closed shows first.
    virtual void begin() { load(); }
    // Why the document cannot be edited whatever the configuration says; empty when it can.
    virtual QString fault() const { return {}; }
    // The option that allows editing; none allows it.
    virtual QLatin1String editOption() const { return {}; }
    // What more there is to tell of an option that does not.
    virtual QString forbidden(QLatin1String option) const;
    virtual QString closeQuestion() const = 0;
    virtual bool closesWithCancel() const { return true; }
    // Takes back what the user gave up; false keeps the window open.
    virtual bool discard();
    // Saves under another name; windows that cannot have no such answer among theirs.
    virtual bool saveAs() { return false; }
    virtual bool canSaveAs() const { return false; }
    virtual void saved() {}
    // After the window closed with nothing unsaved.
    virtual void closed() { setClean(); }
    // Leaves a note beside the changes, in place of the one before.
    void noteAside(const QString &note);
    // Takes up what an earlier run noted beside its changes; false when that is nothing.
    virtual bool takeNote(const QString &) { return false; }
    // What the file holds is not what the document was compared with.
    virtual void forgetSaved() { m_clean.reset(); }
    // The file as it was when it was read or written last.
    virtual fileState &onDisk() { return m_onDisk; }
    // Before a step is undone or done again; and after it was, or a new one was done, before it is
    // told.
    virtual void historyMoves() {}
    virtual void historyMoved() {}
    // After the window was locked or unlocked.
    virtual void lockChanged() {}
    // After every change, also of the lock or the selection: which actions make sense.
    virtual void updateActions() {}
    // The tree that cells are copied from and found in: the one with the focus, else the first.
    virtual myTreeView *currentView() const;
    virtual htmlView *page() { return nullptr; }
    // Files that are dropped, if the window takes any.
    virtual bool takesFiles() const { return false; }
    virtual void fileDropped(const QString &) {}
    // Whether the window can do that.
    virtual bool canKeep() const { return m_journal != nullptr; }
    // Has changes of the document written aside with every edit. Each model shows the records of a
    // level.
    void keepJournal(const fileKind &kind, std::function<documentStruct *()> document,
                     std::initializer_list<myModel *> models);
    // Called by load() with what was read, before it is shown: changes that are to be recovered are
    // made in it.
    void remake(documentStruct &document);
    // Whether the file is one of a shared store.
    bool isShared() const { return m_isShared; }
    const QString &storeDocument() const { return m_storeDocument; }
    // What others are told that is edited here; empty when nothing is.
    virtual QString editedKey() const { return {}; }
    // Whether the user wants what could not be saved kept aside.
    bool isKeptAside() const { return m_keptAside; }

    // --- What it does with it ---

    // Takes what stands in open editors. False when a text was refused: its editor stays open and
    // says why.
    bool finishEditing();
    // One step, already applied; null is none. One that is taken back is not told.
    void push(std::unique_ptr<command> change, const QString &what);
    // The document is as its file has it, and the history empty.
    void setClean();
    // It is not, and there is no way back to it.
    void setChanged();
    // Says in the status bar that editing is locked when it is.
    bool refuseWhileLocked();
    // Why actions that change something are disabled.
    QString lockedReason() const;
    // Disables actions while editing is locked, or while something else is missing.
    void allowWhenUnlocked(std::initializer_list<const char *> names, bool otherwise = true,
                           const QString &whyNot = {});
    // Writes to a path; the document's own is checked for changes of other programs first.
    bool saveTo(const QString &path);
    // Asks a question of unsaved changes, as mayClose() does.
    bool askToLeave(const QString &question, bool withCancel);
    // Title, marks of change, actions.
    void showState();
    // The program ends: the window closes without a question.
    void stopAsking() { m_programEnds = true; }

    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    // Del in a tree: empties the selected texts. Where lines can be deleted, those are.
    virtual void deletePressed(const myTreeView *view);
    bool beforeAction() override { return finishEditing(); }

    // The selected cells of a column that take what another one has, without that one.
    QList<myItem::myItemStandard *> cellsLike(const myItem::myItemStandard *source,
                                              const QModelIndexList &cells) const;
    // A step that moves the marked rows of a tree past the next one, or some before another row.
    void moveMarkedRows(myTreeView *view, bool up);
    void moveRowsBefore(myTreeView *view, const std::vector<int> &rows, int before);

private:
    void followFocus(QWidget *, QWidget *now);
    bool isOwnKey(QWidget *field, const class QKeyEvent *event) const;
    bool takesShortcut(const class QKeyEvent *event) const;
    void clearCells(const myTreeView *view);
    void pushMove(myTreeView *view, std::vector<std::unique_ptr<command>> moves, int rows);
    void followHistory();
    void tellHistory(const QString &form, const QString &what);
    void showMoved();
    bool writeAsking(const QString &path);
    void claimFile();

    // --- editWindowDisk.cpp ---
    bool settleOtherVersion();
    bool settleMissing();
    bool reload();
    bool keepOwnVersion();
    void followFile();
    void lookAtLocks();
    void lookAtFile();
    void keepMine();
    void compareVersions();
    bool mergeWith(const QString &theirs, const fileState &state);
    void rememberOpened();

    // --- editWindowStore.cpp ---
    void readStoreState();
    void followStore();
    void showChangesOfOthers();
    bool canMeetStore(QString *why);
    void finishSynchronizing(store::syncResult *result, store::base known);

    bool mayUnlock() const;
    QString lockedText() const;

    programData &m_known;
    std::unique_ptr<commandStack> m_stack;
    std::optional<quint64> m_clean = 0; // the history's state that the file has, if it still can
    std::vector<myTreeView *> m_views;
    fileState m_onDisk;
    fileLock m_fileLock;
    fileWatch *m_watch;
    changedBar *m_changedBar = nullptr;      // once there was something to tell
    QStringList m_others;                    // who else had the file when that was told
    QString m_note;                          // of them
    std::unique_ptr<QTemporaryDir> m_opened; // a copy of the file as it is on the disk
    QString m_openedPath;                    // for what file, in what state
    fileState m_openedState;
    bool m_saving = false;
    QLabel *m_changed;
    QTimer *m_storing;
    QString m_wanted; // what is searched
    QString m_writeFault;
    QString m_readOnly; // in the shared store
    bool m_isShared = false;
    QString m_storeDocument; // its id, and that of this copy
    QString m_storeProgram;
    QToolButton *m_byOthers; // how many changes of others wait in the shared store
    std::unique_ptr<recoveryJournal> m_journal;
    const leftChanges *m_recovering = nullptr;
    std::optional<recordChanges::outcome> m_remade;
    bool m_locked = false;
    bool m_givenUp = false;
    bool m_keptAside = false;
    bool m_programEnds = false;
};

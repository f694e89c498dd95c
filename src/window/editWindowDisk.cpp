// What an editing window does when its file changes under it.
#include "window/editWindow.h"

#include "data/documentMerge.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "util/fileWatch.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/safeFile.h"
#include "util/scratch.h"
#include "util/text.h"
#include "window/changedBar.h"
#include "window/mergeDialog.h"
#include "window/recoveryJournal.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

QString native(const QString &path) { return QDir::toNativeSeparators(path).toHtmlEscaped(); }

} // namespace

// What another program wrote is neither written over nor read unasked. True: overwrite it.
bool editWindow::settleOtherVersion()
{
    const fileState now = fileState::of(filePath());
    if (filePath().isEmpty() || now == onDisk())
        return true;
    if (now == fileState())
        return settleMissing();
    enum
    {
        overwrite,
        reloading,
        otherName
    };
    QStringList answers{tr("Overwrite it"), tr("Reload it, keep what is here as a version")};
    if (canSaveAs())
        answers.append(tr("Save as"));
    const std::optional<int> answer =
        userPrompts().decide(tr("The file %1 was changed by another program since it was opened.")
                                 .arg(native(filePath())),
                             answers, true);
    if (answer == reloading)
        reload();
    else if (answer == otherName)
        saveAs();
    return answer == overwrite;
}

// Its folder may be gone, too, or a network be away.
bool editWindow::settleMissing()
{
    enum
    {
        anew,
        otherName
    };
    QStringList answers{tr("Save it anew")};
    if (canSaveAs())
        answers.append(tr("Save as"));
    const std::optional<int> answer =
        userPrompts().decide(tr("The file %1 is gone.").arg(native(filePath())), answers, true);
    if (answer == otherName)
        saveAs();
    return answer == anew;
}

// The file is read first, and takes the document's place only when that succeeds.
bool editWindow::reload()
{
    lookAtFile();
    if (!finishEditing() || (isModified() && !keepOwnVersion()))
        return false;
    const bool wasModified = isModified();
    const bool wasLocked = m_locked;
    const bool read = load();
    userPrompts().showErrors();
    if (read && !wasLocked)
        setUnlocked(true);
    if (read)
        tell(wasModified ? tr("Read again; what was here is kept as a version") : tr("Read again"));
    return read;
}

// False when it could not be kept and the user rather keeps what is here.
bool editWindow::keepOwnVersion()
{
    const documentStruct *own = record();
    if (!own || keepDocument(filePath(), *own, known().config(), [this](const auto &writing) {
            workProgress::scope work(progress(), tr("Keeping a version"));
            writing(work.function());
        }))
        return true;
    return userPrompts()
        .decide(tr("What is here could not be kept as a version of %1.").arg(native(filePath())),
                {tr("Lose it")}, true)
        .has_value();
}

// --- Watching
// -------------------------------------------------------------------------------------

void editWindow::followFile()
{
    const QString path = isVisible() ? filePath() : QString();
    if (path != m_watch->path())
        m_note.clear();
    m_watch->watch(path);
    rememberOpened();
    lookAtFile();
}

// Who came or went is told; who was there already was told when the file was claimed.
void editWindow::lookAtLocks()
{
    const QStringList before = std::exchange(m_others, m_watch->others());
    QStringList texts;
    for (const QString &other : qAsConst(m_others))
        if (!before.contains(other))
            texts.append(tr("It was opened elsewhere, too: %1.").arg(other));
    const qsizetype opened = texts.size();
    for (const QString &other : before)
        if (!m_others.contains(other))
            texts.append(tr("It was closed elsewhere: %1.").arg(other));
    if (texts.isEmpty())
        return;
    m_note = texts.join(QLatin1Char(' '));
    if (texts.size() > opened)
        claimFile();
}

void editWindow::lookAtFile()
{
    if (m_saving || !isVisible() || filePath().isEmpty())
        return;
    const fileState now = fileState::of(filePath());
    const changedBar::change change = now == onDisk()      ? changedBar::none
                                      : now == fileState() ? changedBar::gone
                                                           : changedBar::other;
    if (!m_changedBar) {
        if (change == changedBar::none && m_note.isEmpty())
            return;
        m_changedBar = new changedBar(this);
        connect(m_changedBar, &changedBar::compare, this, &editWindow::compareVersions);
        connect(m_changedBar, &changedBar::reload, this, &editWindow::reload);
        connect(m_changedBar, &changedBar::keepMine, this, &editWindow::keepMine);
        connect(m_changedBar, &changedBar::noted, this, [this] {
            m_note.clear();
            lookAtFile();
        });
        addToolBarBreak();
        addToolBar(m_changedBar);
    }
    m_changedBar->show(change, m_note);
}

// The next saving asks no more about the version that is there now.
void editWindow::keepMine()
{
    onDisk() = fileState::of(filePath());
    forgetSaved();
    if (m_journal)
        m_journal->settle();
    followFile();
    showState();
    tell(onDisk() == fileState() ? tr("Saving will write the file anew")
                                 : tr("Saving will replace what another program wrote"));
}

// What the file holds is known as long as it has not changed; later on it is not to be had.
void editWindow::rememberOpened()
{
    const fileState state = onDisk();
    if (m_locked || !isVisible() || (m_openedPath == filePath() && m_openedState == state))
        return;
    m_openedPath = filePath();
    m_openedState = state;
    m_opened.reset();
    if (m_openedPath.isEmpty() || !(fileState::of(m_openedPath) == state))
        return;
    m_opened = std::make_unique<QTemporaryDir>(scratch::pattern());
    if (!QFile::copy(m_openedPath, m_opened->filePath(text::fileNameOfPath(m_openedPath))))
        m_opened.reset();
}

// --- Comparing
// ------------------------------------------------------------------------------------

void editWindow::compareVersions()
{
    // The bar may not know yet that it is gone.
    lookAtFile();
    if (!finishEditing() || fileState::of(filePath()) == fileState())
        return;
    // It may change once more meanwhile.
    const QTemporaryDir folder(scratch::pattern());
    const QString theirs = folder.filePath(QStringLiteral("theirs.xml"));
    const fileState state = fileState::of(filePath());
    if (!QFile::copy(filePath(), theirs) || !mergeWith(theirs, state))
        return;
    followFile();
    showState();
}

// False when nothing came of it. All are read and written anew first, so that only what they hold
// differs, not how it is written.
bool editWindow::mergeWith(const QString &theirs, const fileState &state)
{
    const documentStruct *own = record();
    const QTemporaryDir folder(scratch::pattern());
    QString reason;
    std::unique_ptr<documentMerge> merge;
    bool cancelled = false;
    {
        workProgress::scope work(progress(), tr("Comparing"));
        const progressFunction go = work.function();
        const auto anew = [&](const QString &from, const char *name) {
            const QString to = folder.filePath(QLatin1String(name));
            const std::unique_ptr<documentStruct> other = newDocument(own->kind());
            return readChecked(from, other.get(), &reason, go)
                           && saveXmlNoEvents(to, other.get(), &reason, go, saveRule::whatever) >= 0
                       ? to
                       : QString();
        };
        const bool knowsOpened =
            m_opened && m_openedPath == filePath() && m_openedState == onDisk();
        const QString opened =
            knowsOpened ? anew(m_opened->filePath(text::fileNameOfPath(filePath())), "opened.xml")
                        : QString();
        const QString other = anew(theirs, "other.xml");
        const QString mine = folder.filePath(QStringLiteral("mine.xml"));
        if (!other.isEmpty() && saveXmlNoEvents(mine, own, &reason, go, saveRule::whatever) >= 0)
            merge = std::make_unique<documentMerge>(opened, mine, other, go);
        cancelled = work.cancelled();
    }
    if (cancelled)
        return false;
    if (!merge || !merge->isReadable()) {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), filePath(), reason));
        userPrompts().showErrors();
        return false;
    }
    if (!merge->rows.empty()
        && mergeDialog(merge->rows, !m_locked, this).exec() != QDialog::Accepted)
        return false;
    const QString merged = folder.filePath(QStringLiteral("merged.xml"));
    safeFile file(merged);
    const QByteArray bytes = merge->merged();
    std::unique_ptr<documentStruct> wanted = newDocument(own->kind());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit()
        || !readChecked(merged, wanted.get(), &reason)) {
        userPrompts().showError(
            tr("What comes of both cannot be read: %1").arg(reason.toHtmlEscaped()));
        return false;
    }
    onDisk() = state;
    forgetSaved();
    if (m_journal)
        m_journal->settle();
    historyMoves();
    if (auto step = become(*wanted))
        push(std::move(step), tr("Merge"));
    else
        historyMoved();
    tell(merge->rows.empty() ? tr("Both hold the same") : tr("Merged; saving writes both changes"));
    return true;
}

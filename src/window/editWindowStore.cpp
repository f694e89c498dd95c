// What an editing window does with a shared store.
#include "window/editWindow.h"

#include "data/documentStruct.h"
#include "data/programData.h"
#include "store/storeFiles.h"
#include "util/prompts.h"
#include "window/storeAccess.h"
#include "window/storeListener.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QToolButton>

void editWindow::readStoreState()
{
    const QString path = filePath();
    const store::base known = path.isEmpty() ? store::base() : store::base::readHead(path);
    m_isShared = known.isShared();
    m_storeDocument = known.document;
    m_storeProgram = known.program;
    m_readOnly = m_isShared && !known.mayWrite
                     ? tr("In the shared store you may read this file, but not change it.")
                     : QString();
}

void editWindow::followStore()
{
    m_byOthers = new QToolButton(this);
    m_byOthers->setObjectName(QStringLiteral("byOthers"));
    m_byOthers->setToolTip(tr("Fetch them: Synchronise"));
    m_byOthers->hide();
    statusBar()->addPermanentWidget(m_byOthers);
    connect(m_byOthers, &QToolButton::clicked, this, [this] { commandSynchronize(false); });
    connect(&storeListener::instance(), &storeListener::changed, this,
            [this](const QString &document) {
                if (document == m_storeDocument && isVisible())
                    showChangesOfOthers();
            });
}

void editWindow::showChangesOfOthers()
{
    const int count =
        m_isShared ? storeListener::instance().changesOf(store::base::readHead(filePath())) : 0;
    m_byOthers->setText(tr("%n change(s) by others", nullptr, count));
    m_byOthers->setVisible(count > 0);
}

// What the window shows is the file as it was read, with what was changed here.
bool editWindow::canMeetStore(QString *why)
{
    // A window that is not shown may have read nothing yet.
    if (!isVisible())
        begin();
    if (!finishEditing() || !record())
        return false; // the editor has told why
    if (fileState::of(filePath()) == onDisk())
        return true;
    lookAtFile();
    *why = tr("Another program changed the file: take that in first");
    return false;
}

QString editWindow::sentence(const store::syncResult &result)
{
    return result.fetched + result.sent == 0
               ? tr("The shared store holds the same")
               : tr("%n change(s) fetched", nullptr, result.fetched) + QLatin1String(", ")
                     + tr("%n sent", nullptr, result.sent);
}

void editWindow::commandSynchronize(bool)
{
    // One that cannot be read is told of when it is.
    if (!QFileInfo::exists(store::base::fileOf(filePath()))) {
        tell(tr("This file is not shared: put it into the shared store first"));
        return;
    }
    std::unique_ptr<store::connection> with = storeAccess::open(m_known.config(), progress());
    if (!with)
        return;
    const store::syncResult result = synchronize(*with, *this);
    storeAccess::listen(std::move(with));
    if (result.done)
        tell(sentence(result));
    else if (result.cancelled)
        tell(result.fault.isEmpty() ? tr("Nothing was fetched and nothing sent") : result.fault);
    if (!result.cancelled && !result.fault.isEmpty())
        userPrompts().showError(result.fault.toHtmlEscaped());
}

store::syncResult editWindow::synchronize(store::connection &with, editWindow &seen)
{
    store::syncResult result;
    if (!canMeetStore(&result.fault)) {
        result.cancelled = true;
        return result;
    }
    if (const store::base head = store::base::readHead(filePath());
        !isModified() && head.isShared() && store::isUpToDate(with, filePath(), head)) {
        result.done = true;
        return result;
    }
    store::base known = store::base::read(filePath(), &result.fault);
    if (!result.fault.isEmpty())
        return result;
    result = storeAccess::bringTogether(
        with, seen.progress(), &seen, [&](const auto &settle, const progressFunction &go) {
            return store::synchronize(with, *record(), known, store::authorName(), settle, go);
        });
    if (result.done)
        finishSynchronizing(&result, std::move(known));
    else if (!result.fault.isEmpty())
        result.fault =
            tr("The file and the shared store could not be brought together: ") + result.fault;
    return result;
}

// What was sent is in the store: the file follows at once, so that both go on being the same.
void editWindow::finishSynchronizing(store::syncResult *result, store::base known)
{
    historyMoves();
    auto step = takeRows(*result, &known);
    if (step)
        push(std::move(step), tr("Synchronise"));
    else
        historyMoved();
    // What was sent comes back the next time, and is known by then.
    if (isModified() && !save()) {
        result->done = false;
        result->cancelled = true;
        result->fault = tr("The file was not written");
        return;
    }
    known.synced = fileState::of(filePath());
    if (!known.write(filePath(), &result->fault))
        return;
    readStoreState();
    setUnlocked(!m_locked);
    showChangesOfOthers();
}

std::unique_ptr<command> editWindow::takeRows(const store::syncResult &result, store::base *known)
{
    if (result.changes.empty()) {
        store::apply(result, record(), known);
        return nullptr;
    }
    const std::unique_ptr<documentStruct> wanted = store::copyOf(*record());
    store::apply(result, wanted.get(), known);
    return become(*wanted);
}

void editWindow::commandPublish(bool) { tell(publish(*this)); }

QString editWindow::publish(editWindow &seen)
{
    QString fault;
    if (!canMeetStore(&fault))
        return fault;
    if (store::base::read(filePath(), &fault).isShared())
        return tr("This file is shared already: Synchronise brings both together");
    if (!fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return {};
    }
    const QString told = storeAccess::put(m_known.config(), seen.progress(), filePath(),
                                          [this] { return !isModified() || save(); });
    readStoreState();
    return told;
}

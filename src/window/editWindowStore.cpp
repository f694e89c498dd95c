// What an editing window does with a shared store.
#include "window/editWindow.h"

#include "data/documentStruct.h"
#include "data/programData.h"
#include "store/storeFiles.h"
#include "util/prompts.h"
#include "window/mergeDialog.h"
#include "window/storeAccess.h"
#include "window/storeListener.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QToolButton>

namespace {

// Work that ends while the user is asked something.
class pausedWork
{
public:
    pausedWork(workProgress &progress, QString text)
        : m_progress(progress)
        , m_text(std::move(text))
    {
        goOn();
    }
    void goOn() { m_scope.emplace(m_progress, m_text); }
    void pause() { m_scope.reset(); }
    bool tell(qint64 done, qint64 total) { return !m_scope || m_scope->function()(done, total); }

private:
    workProgress &m_progress;
    QString m_text;
    std::optional<workProgress::scope> m_scope;
};

QString sentence(const store::syncResult &result)
{
    return result.fetched + result.sent == 0
               ? editWindow::tr("The shared store holds the same")
               : editWindow::tr("%n change(s) fetched", nullptr, result.fetched)
                     + QLatin1String(", ") + editWindow::tr("%n sent", nullptr, result.sent);
}

} // namespace

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
bool editWindow::canMeetStore()
{
    if (!finishEditing() || !record())
        return false;
    if (fileState::of(filePath()) == onDisk())
        return true;
    lookAtFile();
    tell(tr("Another program changed the file: take that in first"));
    return false;
}

void editWindow::commandSynchronize(bool)
{
    if (!canMeetStore())
        return;
    QString fault;
    store::base known = store::base::read(filePath(), &fault);
    if (!fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    if (!known.isShared()) {
        tell(tr("This file is not shared: put it into the shared store first"));
        return;
    }
    std::unique_ptr<store::connection> with = storeAccess::open(m_known.config(), progress());
    if (!with)
        return;
    store::syncResult result;
    {
        pausedWork work(progress(), tr("Synchronising"));
        const progressFunction go = [&work](long long done, long long total) {
            return work.tell(done, total);
        };
        with->setWaiting([&go] { return go(0, 0); });
        result = store::synchronize(
            *with, *record(), known, store::authorName(),
            [this, &work](std::vector<mergeRow> &rows) {
                work.pause();
                mergeDialog dialog(rows, true, this);
                dialog.setWindowTitle(tr("Changes here and by others"));
                const bool isSettled = dialog.exec() == QDialog::Accepted;
                work.goOn();
                return isSettled;
            },
            go);
    }
    with->setWaiting({});
    if (!storeListener::instance().isListening())
        storeListener::instance().listen(std::move(with));
    if (result.done)
        finishSynchronizing(result, std::move(known));
    else if (result.fault.isEmpty())
        tell(tr("Nothing was fetched and nothing sent"));
    else
        userPrompts().showError(tr("The file and the shared store could not be brought together: ")
                                + result.fault.toHtmlEscaped());
}

// What was sent is in the store: the file follows at once, so that both go on being the same.
void editWindow::finishSynchronizing(const store::syncResult &result, store::base known)
{
    historyMoves();
    auto step = takeRows(result, &known);
    if (step)
        push(std::move(step), tr("Synchronise"));
    else
        historyMoved();
    if (isModified() && !save())
        return;
    known.synced = fileState::of(filePath());
    QString fault;
    if (!known.write(filePath(), &fault)) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    readStoreState();
    setUnlocked(!m_locked);
    showChangesOfOthers();
    tell(sentence(result));
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

void editWindow::commandPublish(bool)
{
    if (!canMeetStore())
        return;
    QString fault;
    if (store::base::read(filePath(), &fault).isShared()) {
        tell(tr("This file is shared already: Synchronise brings both together"));
        return;
    }
    if (!fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    const auto name = userPrompts().inputText(tr("Put into the shared store"),
                                              tr("&Name that others find it by:"),
                                              QFileInfo(filePath()).completeBaseName());
    if (!name || name->trimmed().isEmpty() || (isModified() && !save()))
        return;
    const std::unique_ptr<store::connection> with = storeAccess::open(m_known.config(), progress());
    if (!with)
        return;
    store::syncResult result;
    {
        workProgress::scope work(progress(), tr("Putting it into the shared store"));
        const progressFunction go = work.function();
        with->setWaiting([&go] { return go(0, 0); });
        result = store::publishFile(*with, filePath(), name->trimmed(), go);
    }
    readStoreState();
    if (!result.fault.isEmpty())
        userPrompts().showError(result.fault.toHtmlEscaped());
    else
        tell(result.done ? tr("%n record(s) are in the shared store", nullptr, result.sent)
                         : tr("Nothing was put into the shared store"));
}

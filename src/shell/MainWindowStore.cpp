// The shared store as far as it is no single window's: all shared files brought together with it,
// documents taken out of it, and files put into it that no window edits.
#include "shell/MainWindow.h"

#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "store/storeFiles.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/storeAccess.h"
#include "window/storeListener.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>

namespace {

// What others share, as a person calls it; a newer program's by its root element.
QString captionOf(const QString &root)
{
    const struct
    {
        const fileKind &kind;
        const char *caption;
    } captions[] = {
        {fileKinds::database, QT_TRANSLATE_NOOP("MainWindow", "materials")},
        {fileKinds::firm, QT_TRANSLATE_NOOP("MainWindow", "firms")},
        {fileKinds::firmDetails, QT_TRANSLATE_NOOP("MainWindow", "details of firms")},
        {fileKinds::reservations, QT_TRANSLATE_NOOP("MainWindow", "reservations")},
        {fileKinds::orderStates, QT_TRANSLATE_NOOP("MainWindow", "states of orders")},
        {fileKinds::offers, QT_TRANSLATE_NOOP("MainWindow", "offers")},
    };
    for (const auto &one : captions)
        if (one.kind.root == root)
            return MainWindow::tr(one.caption);
    return root;
}

} // namespace

void MainWindow::checkStore()
{
    if (!store::sharedFiles(known().config()).isEmpty())
        if (auto with = storeAccess::open(known().config(), progress(), false))
            storeAccess::listen(std::move(with));
}

// What a window has open, that window does, so that its history and its changes go along.
void MainWindow::commandSynchronizeAll(bool)
{
    const QStringList files = store::sharedFiles(known().config());
    if (files.isEmpty()) {
        tell(tr("No file is shared: put one into the shared store first"));
        return;
    }
    std::unique_ptr<store::connection> with = storeAccess::open(known().config(), progress());
    if (!with)
        return;
    store::syncResult all;
    QStringList left;
    QString faults;
    for (const QString &path : files) {
        const fileKind *kind = fileKinds::ofFile(path);
        editWindow *window = kind ? windowOf(path, *kind) : nullptr;
        const store::syncResult result =
            window
                ? window->synchronize(*with, *this)
                : storeAccess::bringTogether(
                    *with, progress(), this, [&](const auto &settle, const progressFunction &go) {
                        return store::synchronizeFile(*with, path, known().config(), settle, go);
                    });
        all.fetched += result.fetched;
        all.sent += result.sent;
        if (!result.done)
            left.append(QFileInfo(path).fileName());
        if (!result.fault.isEmpty())
            faults += (window ? QDir::toNativeSeparators(path) + QLatin1String(": ") + result.fault
                              : result.fault)
                          .toHtmlEscaped()
                      + QLatin1String("<br>");
    }
    storeAccess::listen(std::move(with));
    lookAtOrders();
    tell(left.isEmpty()
             ? tr("%n shared file(s)", nullptr, files.size()) + QLatin1String(": ") + sentence(all)
             : tr("Not synchronised: %1").arg(left.join(QLatin1String(", "))));
    if (!faults.isEmpty())
        userPrompts().showError(faults);
}

void MainWindow::commandTakeShared(bool)
{
    const std::unique_ptr<store::connection> with = storeAccess::open(known().config(), progress());
    if (!with)
        return;
    const std::vector<store::sharedName> documents = store::documentsIn(*with);
    QStringList names;
    for (const store::sharedName &one : documents)
        names.append(one.name + QLatin1String(" (") + captionOf(one.kind) + QLatin1Char(')'));
    if (!with->fault().isEmpty()) {
        userPrompts().showError(with->fault().toHtmlEscaped());
        return;
    }
    if (names.isEmpty()) {
        tell(tr("The shared store is empty"));
        return;
    }
    const auto chosen =
        userPrompts().choose(tr("Take from the shared store"), tr("&Document:"), names, 0);
    if (!chosen)
        return;
    const store::sharedName &document = documents[size_t(*chosen)];
    const fileKind *kind = store::kindOf(document.kind);
    if (!kind) {
        userPrompts().showError(tr("A newer program put this document into the shared store."));
        return;
    }
    const QString path = userPrompts().saveFile(
        tr("Save to File"), paths::data(document.name + QLatin1String(".xml")), xmlFilter());
    if (path.isEmpty())
        return;
    QString fault;
    bool isDone = false;
    {
        workProgress::scope work(progress(), tr("Taking it from the shared store"));
        isDone = store::cloneFile(*with, *kind, document.name, path, &fault, work.function());
    }
    if (!fault.isEmpty())
        userPrompts().showError(fault.toHtmlEscaped());
    else
        tell(isDone ? tr("%1 is in %2").arg(document.name, QDir::toNativeSeparators(path))
                    : tr("Cancelled; nothing was changed"));
}

// Reservations, the states of orders and offers are edited in no window of their own.
void MainWindow::commandPutShared(bool)
{
    const QString path = userPrompts().openFile(tr("Open File"), paths::dataDir(), xmlFilter());
    if (path.isEmpty())
        return;
    const fileKind *kind = fileKinds::ofFile(path);
    editWindow *window = kind ? windowOf(path, *kind) : nullptr;
    tell(window && window != this
             ? window->publish(*this)
             : storeAccess::put(known().config(), progress(), path, [] { return true; }));
}

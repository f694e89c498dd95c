// The main window's updates: looked for in the background, installed, made, and described.
#include "shell/MainWindow.h"

#include "data/programData.h"
#include "tree/richtexteditDialog.h"
#include "update/createUpdateDialog.h"
#include "update/updateSource.h"
#include "update/updateWindow.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QDir>
#include <QTimer>

namespace {

// What the sender says of an update, until it is made.
QString descriptionPath() { return paths::data(QStringLiteral("_config/update_description.html")); }

} // namespace

// Without an address nothing happens; without a network a line of the log tells so. The program is
// worked with meanwhile.
void MainWindow::checkUpdate()
{
    // The start-up lets events through before the window is there.
    if (!isVisible()) {
        constexpr int againMs = 200;
        QTimer::singleShot(againMs, this, &MainWindow::checkUpdate);
        return;
    }
    updateJournal::noteStarted(paths::programDir());
    checkStore();
    const updates::settings with = updates::settingsOf(known().config());
    if (with.address.isEmpty())
        return;
    const updates::offer found =
        updates::look(with, *updates::installed(paths::dataDir()),
                      [this](long long, long long) { return isVisible(); });
    if (!isVisible())
        return;
    if (!found.fault.isEmpty()) {
        userPrompts().log(messages::failed(tr("Updates cannot be looked for "),
                                           updateSource::shown(with.address), found.fault));
        return;
    }
    QStringList newer;
    for (const updates::standing &one : found.parts)
        if (one.isNewer())
            newer.append(updates::captionOf(one.of) + QLatin1Char(' ') + one.there);
    if (newer.isEmpty())
        return;
    userPrompts().log(messages::done(tr("A newer version is available "),
                                     newer.join(QLatin1String(", ")),
                                     updateSource::shown(with.address)));
    tell(tr("An update is there: %1").arg(newer.join(QLatin1String(", "))));
}

void MainWindow::commandUpdate(bool)
{
    if (!m_update) {
        m_update = std::make_unique<updateWindow>(known());
        m_update->restart = [this] {
            m_beginsAnew = true;
            m_beginsAnew = close();
            return m_beginsAnew;
        };
        m_update->hasUnsaved = [this] {
            const std::vector<editWindow *> windows = secondaryWindows();
            return isModified()
                   || std::any_of(windows.begin(), windows.end(),
                                  [](const editWindow *window) { return window->isModified(); });
        };
    }
    m_update->showNow();
}

void MainWindow::commandCreateUpdate(bool)
{
    createUpdateDialog dialog(known().config(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    updateMaker::job job = dialog.job();
    job.description = files::readText(descriptionPath());
    workProgress::scope work(progress(), tr("Making the update"));
    job.progress = work.function();
    const updateMaker::result made = updateMaker::make(job);
    if (made.isCancelled) {
        tell(tr("Cancelled; nothing was changed"));
        return;
    }
    QString fault = made.fault;
    if (fault.isEmpty() && dialog.uploads()) {
        const updates::settings with = updates::settingsOf(known().config());
        fault = updateMaker::upload(made.files, with.address, with.login, work.function());
    }
    if (!fault.isEmpty()) {
        userPrompts().showError(fault.toHtmlEscaped());
        return;
    }
    tell(tr("The update is in %1: %n file(s)", nullptr, made.files.size())
             .arg(QDir::toNativeSeparators(job.folder)));
}

void MainWindow::commandUpdateDesc(bool)
{
    richtexteditDialog dialog(this);
    dialog.setObjectName(QStringLiteral("updateDescription"));
    dialog.setWindowTitle(tr("What is new in the update"));
    dialog.setHtml(files::readText(descriptionPath()));
    if (dialog.exec() == QDialog::Accepted && !files::writeText(descriptionPath(), dialog.html()))
        userPrompts().showError(messages::notWritten(descriptionPath()));
}

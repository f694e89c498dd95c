#include "shell/MainWindow.h"

#include "bom/Kiv_bomWindow.h"
#include "commands/commandSys.h"
#include "config/configWindow.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "firm/firmWindow.h"
#include "order/orderDocument.h"
#include "order/orderView.h"
#include "report/myWebView.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "util/fileVersions.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "util/userState.h"
#include "window/messageWindow.h"
#include "window/workProgress.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QUrl>

namespace {

QString xmlFilter() { return MainWindow::tr("Xml File") + QLatin1String(" (*.xml)"); }

QString reportPath(const QString &path)
{
    QString target = path;
    if (target.contains(QLatin1String(".xml")))
        return target.replace(QLatin1String(".xml"), QLatin1String(".html"));
    return target + QLatin1String(".html");
}

QString native(const QString &path) { return QDir::toNativeSeparators(path).toHtmlEscaped(); }

} // namespace

// --- The order's life
// -----------------------------------------------------------------------------

// An order that has no file is closed without a question: its copy is offered at the next start.
void MainWindow::leaveUnsaved()
{
    m_order->takeAttentions();
    if (m_recovery->store(orderDocument::instance().order(), orderDocument::instance().path()))
        m_recovery->leave();
}

bool MainWindow::closeDocument()
{
    m_order->finishEditing();
    orderDocument &document = orderDocument::instance();
    if (!document.isModified())
        return true;
    if (document.path().isEmpty()) {
        leaveUnsaved();
        return true;
    }
    const prompts::answer answer =
        userPrompts().ask(tr("Save & close order").toHtmlEscaped() + QLatin1String(" [&nbsp;&nbsp;")
                              + native(document.path()) + QLatin1String("&nbsp;&nbsp;]"),
                          true);
    if (answer == prompts::answer::cancel
        || (answer == prompts::answer::yes && !saveTo(document.path())))
        return false;
    m_recovery->discard();
    return true;
}

void MainWindow::commandZpNew(bool)
{
    if (!closeDocument())
        return;
    orderDocument::instance().startNew();
    userState::instance().lastZp.clear();
    showDocument();
    statusBar()->showMessage(tr("A new order was begun"));
}

void MainWindow::commandZpOpen(bool)
{
    if (!closeDocument())
        return;
    const QString path = userPrompts().openFile(tr("Open File"), orderDocument::instance().folder(),
                                                QStringLiteral("(*.xml)"));
    if (path.isEmpty())
        return;
    if (!QFileInfo::exists(path)) {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path, path));
        userPrompts().showErrors();
        return;
    }
    orderDocument &document = orderDocument::instance();
    const bool read = document.load(path, true);
    userState::instance().lastZp = read ? path : QString();
    showDocument();
    userPrompts().showErrors();
    if (!document.otherUser().isEmpty())
        userPrompts().showInformation(
            tr("The order %1 is open elsewhere, too: %2. Whoever saves last would replace what the "
               "other one saved.")
                .arg(native(path), document.otherUser().toHtmlEscaped()));
}

void MainWindow::openFile(const QString &path)
{
    if (!closeDocument())
        return;
    userState::instance().lastZp = orderDocument::instance().load(path, true) ? path : QString();
    showDocument();
    userPrompts().showErrors();
}

void MainWindow::storeRecovery()
{
    orderDocument &document = orderDocument::instance();
    if (!document.isModified() || !std::exchange(m_unstored, false))
        return;
    m_order->takeAttentions();
    m_recovery->store(document.order(), document.path());
}

void MainWindow::offerRecovery()
{
    const orderRecovery::copy left = m_recovery->takeOver();
    if (left.file.isEmpty())
        return;
    const QString name = left.order.isEmpty() ? tr("a new order") : left.order;
    if (userPrompts().ask(
            tr("An order was left unsaved: %1, changed %2. Open it as it was then?")
                .arg(native(name), left.time.toString(QStringLiteral("dd.MM.yyyy hh:mm"))),
            false)
            == prompts::answer::yes
        && orderDocument::instance().recover(left.file, left.order)) {
        userState::instance().lastZp = left.order;
        showDocument();
        orderDocument::instance().setModified(true);
        showState();
        return;
    }
    // Turned down, it stays to be found.
    const QString kept =
        fileVersions::archive(left.file, programData::instance().config().backupPath());
    if (kept.isEmpty())
        return;
    userPrompts().log(messages::done(tr("The unsaved order was put aside "), name, kept));
    m_recovery->discard();
}

bool MainWindow::saveTo(const QString &path)
{
    m_order->finishEditing();
    orderDocument &document = orderDocument::instance();
    if (path == document.path() && document.changedOnDisk()) {
        enum
        {
            reload,
            overwrite,
            otherName
        };
        const std::optional<int> answer = userPrompts().decide(
            tr("The file %1 was changed by another program since it was opened.").arg(native(path)),
            {tr("Reload it and lose the changes here"), tr("Overwrite it"), tr("Save as")});
        if (!answer)
            return false;
        if (*answer == otherName)
            return saveAs();
        if (*answer == reload) {
            document.load(path, true);
            showDocument();
            userPrompts().showErrors();
            return false;
        }
    }
    m_order->takeAttentions();
    if (!document.save(path))
        return false;
    userState::instance().lastZp = path;
    m_order->stack().clear();
    m_order->attentions()->document()->setModified(false);
    m_recovery->discard();
    refreshPreview();
    showState();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    statusBar()->showMessage(tr("Saved"));
    return true;
}

bool MainWindow::saveAs()
{
    const QString &path = orderDocument::instance().path();
    const QString proposed =
        path.isEmpty()
            ? paths::data(programData::instance().config().options.value(optionKey::fileNewZp))
            : path;
    const QString chosen = userPrompts().saveFile(tr("Save to File"), proposed, xmlFilter());
    if (chosen.isEmpty() || !saveTo(chosen))
        return false;
    const QString page = reportPath(chosen);
    if (!files::writeText(page, orderDocument::instance().report())) {
        userPrompts().showError(tr("The file %1 cannot be written").arg(native(page)));
        return true;
    }
    statusBar()->showMessage(tr("Saved as %1").arg(QDir::toNativeSeparators(chosen)));
    if (programData::instance().config().isOn(optionKey::openReportHtml))
        QDesktopServices::openUrl(QUrl::fromLocalFile(page));
    return true;
}

void MainWindow::commandZpSave(bool)
{
    const QString path = orderDocument::instance().path();
    if (path.isEmpty())
        saveAs();
    else
        saveTo(path);
}

void MainWindow::commandZpSaveAs(bool) { saveAs(); }

void MainWindow::closeEvent(QCloseEvent *event)
{
    m_order->finishEditing();
    orderDocument &document = orderDocument::instance();
    if (document.isModified() && document.path().isEmpty()) {
        leaveUnsaved();
    } else if (document.isModified()) {
        const prompts::answer answer =
            userPrompts().ask(tr("Save order").toHtmlEscaped() + QLatin1String(" [&nbsp;&nbsp;")
                                  + native(document.path()) + QLatin1String("&nbsp;&nbsp;]"),
                              false);
        // The window closes in any case: what could not be saved is offered at the next start.
        if (answer == prompts::answer::yes && !saveTo(document.path()) && document.isModified())
            leaveUnsaved();
        else
            m_recovery->discard();
    }
    document.setModified(false);
    if (m_config)
        m_config->close();
    if (m_firm)
        m_firm->close();
    if (m_bom)
        m_bom->closeAll();
    for (const auto &window : m_databases)
        if (window)
            window->close();
    logWindow::instance().hideNow();
    errorsWindow::instance().hideNow();
    pendingSysCommands::executeAll();
    pendingSysCommands::destroy();
    baseWindow::closeEvent(event);
}

void MainWindow::commandZpPrint(bool)
{
    QString proposed = orderDocument::instance().path();
    if (proposed.isEmpty())
        proposed = orderDocument::instance().folder() + QLatin1String("/order.xml");
    if (proposed.endsWith(QLatin1String(".xml")))
        proposed.chop(int(qstrlen(".xml")));
    const QString chosen =
        userPrompts().saveFile(tr("Save to File"), proposed + QLatin1String(".pdf"),
                               tr("Pdf File") + QLatin1String(" (*.pdf)"));
    if (chosen.isEmpty())
        return;
    printTo(pdfPath(chosen));
}

// False, told to the user, when there is no such file now.
bool MainWindow::printTo(const QString &path)
{
    userPrompts().log(messages::done(messages::printToFile(), text::fileNameOfPath(path), path));
    workProgress::scope work(progress(), tr("Printing"));
    m_order->takeAttentions();
    m_preview->showReport(orderDocument::instance().report());
    m_previewIsOld = false;
    const bool printed =
        printPdf(m_preview, path, orderTitle(orderDocument::instance().order()), work.function());
    if (printed)
        statusBar()->showMessage(tr("Printed to %1").arg(QDir::toNativeSeparators(path)));
    else if (work.cancelled())
        statusBar()->showMessage(tr("Printing was cancelled"));
    else
        userPrompts().showError(tr("The file %1 cannot be written").arg(native(path)));
    return printed;
}

void MainWindow::commandArchiveDD(bool)
{
    const QString &path = orderDocument::instance().path();
    const QString kept = fileVersions::archive(path, programData::instance().config().backupPath());
    if (kept.isEmpty())
        userPrompts().showError(tr("No copy of %1 could be made").arg(native(path)));
    else
        userPrompts().log(messages::done(tr("Archive "), text::fileNameOfPath(path), kept));
    statusBar()->showMessage(
        kept.isEmpty() ? QString() : tr("Archived as %1").arg(QDir::toNativeSeparators(kept)));
}

void MainWindow::commandArchiveDatabase(bool)
{
    programData &known = programData::instance();
    int copies = 0;
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        const QString &path = known.database(programData::databaseKind(kind)).filePath;
        if (path.isEmpty())
            continue;
        const QString kept = fileVersions::archive(path, known.config().backupPath());
        if (kept.isEmpty()) {
            userPrompts().showError(tr("No copy of %1 could be made").arg(native(path)));
            continue;
        }
        ++copies;
        userPrompts().log(messages::done(tr("Archive "), text::fileNameOfPath(path), kept));
    }
    statusBar()->showMessage(tr("%n database(s) archived", nullptr, copies));
}

// --- Editing

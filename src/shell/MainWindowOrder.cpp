#include "shell/MainWindow.h"

#include "bom/Kiv_bomWindow.h"
#include "commands/commandSys.h"
#include "config/configWindow.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "dialogs/versionsWindow.h"
#include "firm/firmWindow.h"
#include "order/orderView.h"
#include "orders/annualPlanWindow.h"
#include "orders/offersWindow.h"
#include "orders/ordersWindow.h"
#include "orders/requestsWindow.h"
#include "report/myWebView.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "update/updateWindow.h"
#include "util/desktop.h"
#include "util/fileVersions.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "util/userState.h"
#include "window/messageWindow.h"
#include "window/repairOffer.h"
#include "window/workProgress.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace {

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

bool MainWindow::isModified() const
{
    return editWindow::isModified() || m_order->attentions()->document()->isModified();
}

QLatin1String MainWindow::editOption() const { return optionKey::editZp; }

void MainWindow::lockChanged() { m_order->attentions()->setReadOnly(isLocked()); }

myTreeView *MainWindow::currentView() const
{
    return m_order->optionsView()->hasFocus() ? m_order->optionsView() : m_order->linesView();
}

// An order that has no file is closed without a question: its copy is offered at the next start.
// False when none could be made and the user stays.
bool MainWindow::leaveOrder()
{
    m_order->takeAttentions();
    if (m_recovery->store(m_document.order(), m_document.path(), m_document.onDisk())) {
        m_recovery->leave();
        return true;
    }
    if (!userPrompts().decide(
            tr("The order is not saved, and no copy of it could be kept:").toHtmlEscaped()
                + QLatin1String("<br><br>")
                + text::toHtml(m_recovery->faults().join(QLatin1Char('\n'))),
            {tr("Leave it and lose the changes")}, true))
        return false;
    m_recovery->discard();
    return true;
}

bool MainWindow::closeDocument()
{
    if (!finishEditing())
        return false;
    if (!isModified())
        return true;
    if (m_document.path().isEmpty())
        return leaveOrder();
    return askToLeave(tr("Save & close order").toHtmlEscaped() + QLatin1String(" [&nbsp;&nbsp;")
                          + native(m_document.path()) + QLatin1String("&nbsp;&nbsp;]"),
                      true);
}

// The order before was saved, given up or kept aside.
void MainWindow::forgetOrder()
{
    if (isKeptAside())
        m_recovery->leave();
    else
        m_recovery->discard();
}

void MainWindow::commandZpNew(bool)
{
    if (!closeDocument())
        return;
    forgetOrder();
    m_document.startNew();
    userState::instance().lastZp.clear();
    showDocument();
    tell(tr("A new order was begun"));
}

void MainWindow::commandZpOpen(bool)
{
    if (!closeDocument())
        return;
    const QString path =
        userPrompts().openFile(tr("Open File"), m_document.folder(), QStringLiteral("(*.xml)"));
    if (path.isEmpty()) {
        stayOpen();
        return;
    }
    if (!QFileInfo::exists(path)) {
        userPrompts().listError(messages::failed(messages::fileCorrupted(), path, path));
        userPrompts().showErrors();
        stayOpen();
        return;
    }
    openFile(path);
}

void MainWindow::fileDropped(const QString &path)
{
    const fileKinds::fileHead head = fileKinds::headOf(path);
    if (head.kind != &fileKinds::order)
        userPrompts().showError(tr("%1 is no order.").arg(native(path))
                                + (head.fault.isEmpty() ? QString() : QLatin1String("<br>"))
                                + head.fault.toHtmlEscaped());
    else if (closeDocument())
        openFile(path);
}

// What was given up for the file is forgotten when the file has been read.
void MainWindow::openFile(const QString &path)
{
    const bool isGivenUp = isModified() && storeRecovery();
    const bool isRead = m_document.load(path, true);
    userState::instance().lastZp = isRead ? path : QString();
    if (isRead || !isGivenUp)
        forgetOrder();
    else
        m_recovery->leave();
    stayOpen();
    showDocument();
    userPrompts().showErrors();
    if (isRead)
        return;
    if (QFileInfo(path).isFile())
        openRepaired(path);
    if (isGivenUp && !isModified())
        offerLeft(false);
}

// What can be read of a damaged file: an order becomes a new one, which has no file; of another
// file a copy is written. Why there was nothing to be opened, is put into fault.
void MainWindow::openRepaired(const QString &path, QString *fault)
{
    QString ignored;
    auto repaired = offerRepaired(path, progress(), fault ? fault : &ignored);
    if (!repaired)
        return;
    userPrompts().showErrors();
    if (&repaired->kind() == &fileKinds::order) {
        // It is asked about before, but not when the file was to be opened anyway.
        if (fault && !closeDocument())
            return;
        forgetOrder();
        m_document.take(
            std::unique_ptr<kiv_mat_zpStruct>(static_cast<kiv_mat_zpStruct *>(repaired.release())));
        showDocument();
        setChanged();
        tell(tr("Opened as a new order: %1").arg(QDir::toNativeSeparators(path)));
        return;
    }
    const QFileInfo file(path);
    const QString chosen = userPrompts().saveFile(
        tr("Save to File"),
        file.path() + QLatin1Char('/') + file.completeBaseName() + QLatin1String("-2.xml"),
        xmlFilter());
    if (!chosen.isEmpty() && saveDocument(chosen, *repaired, known().config()))
        tell(tr("Saved as %1").arg(QDir::toNativeSeparators(chosen)));
}

void MainWindow::commandZpRepair(bool)
{
    const QString path =
        userPrompts().openFile(tr("Open repaired copy"), m_document.folder(), xmlFilter());
    if (path.isEmpty())
        return;
    QString fault;
    openRepaired(path, &fault);
    if (!fault.isEmpty())
        userPrompts().showError(QDir::toNativeSeparators(path).toHtmlEscaped() + QLatin1String(": ")
                                + fault.toHtmlEscaped());
    stayOpen();
}

bool MainWindow::storeRecovery()
{
    if (!isModified()) {
        m_recovery->discard();
        return true;
    }
    m_order->takeAttentions();
    if (m_recovery->store(m_document.order(), m_document.path(), m_document.onDisk()))
        return true;
    tell(tr("No copy of the unsaved order can be kept: %1")
             .arg(m_recovery->faults().join(QLatin1String("; "))));
    return false;
}

void MainWindow::leaveUnsaved()
{
    finishEditing();
    if (isModified() && storeRecovery())
        m_recovery->leave();
}

documentStruct *MainWindow::record()
{
    m_order->takeAttentions();
    return &m_document.order();
}

std::unique_ptr<command> MainWindow::become(documentStruct &wanted)
{
    return m_order->become(static_cast<kiv_mat_zpStruct &>(wanted));
}

bool MainWindow::load()
{
    const bool read = m_document.reload();
    if (read) {
        m_recovery->discard();
        showDocument();
    }
    return read;
}

bool MainWindow::write(const QString &path)
{
    m_order->takeAttentions();
    return m_document.save(path, &writeFault());
}

void MainWindow::saved()
{
    userState::instance().lastZp = m_document.path();
    m_order->attentions()->document()->setModified(false);
    m_recovery->discard();
    lookWhetherSent();
    m_lookAtOrders->start();
    refreshPreview();
    showSums();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool MainWindow::saveAs()
{
    const QString path = m_document.path();
    const QString proposed =
        path.isEmpty() ? paths::data(known().config().options.value(optionKey::fileNewZp)) : path;
    const QString chosen = userPrompts().saveFile(tr("Save to File"), proposed, xmlFilter());
    if (chosen.isEmpty() || !saveTo(chosen))
        return false;
    takeNotesAlong(path, chosen);
    const QString page = reportPath(chosen);
    if (!files::writeText(page, m_document.report())) {
        userPrompts().showError(messages::notWritten(page));
        return true;
    }
    tellSaved(tr("Saved as %1").arg(QDir::toNativeSeparators(chosen)));
    if (known().config().isOn(optionKey::openReportHtml))
        desktop::openFile(page);
    return true;
}

void MainWindow::commandZpSave(bool)
{
    if (m_document.path().isEmpty())
        saveAs();
    else
        save();
    stayOpen();
}

void MainWindow::commandZpSaveAs(bool)
{
    saveAs();
    stayOpen();
}

QString MainWindow::closeQuestion() const
{
    return tr("Save order").toHtmlEscaped() + QLatin1String(" [&nbsp;&nbsp;")
           + native(m_document.path()) + QLatin1String("&nbsp;&nbsp;]");
}

// The other windows ask first, and any of them can keep the program open. What the user has kept
// aside, and an order that has no file, is offered at the next start.
void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!finishEditing()) {
        event->ignore();
        return;
    }
    const std::vector<editWindow *> others = secondaryWindows();
    bool stays =
        !std::all_of(others.begin(), others.end(), [](editWindow *w) { return w->mayClose(); });
    const bool isAsked = !stays && isModified() && !m_document.path().isEmpty();
    stays = stays || (isAsked && !askToLeave(closeQuestion(), closesWithCancel()));
    const bool leaves = isModified() && (m_document.path().isEmpty() || isKeptAside());
    if (stays || (leaves && !leaveOrder())) {
        stayOpen();
        for (editWindow *window : others)
            window->stayOpen();
        event->ignore();
        return;
    }
    if (!leaves)
        m_recovery->discard();
    for (editWindow *window : others)
        window->closeAtEnd();
    if (m_versions)
        m_versions->close();
    if (m_orders)
        m_orders->close();
    if (m_plan)
        m_plan->close();
    if (m_offers)
        m_offers->close();
    if (m_requests)
        m_requests->close();
    if (m_update)
        m_update->close();
    logWindow::instance().hideNow();
    errorsWindow::instance().hideNow();
    pendingSysCommands::executeAll();
    pendingSysCommands::destroy();
    m_order->attentions()->document()->setModified(false);
    stopAsking();
    editWindow::closeEvent(event);
}

void MainWindow::commandZpPrint(bool)
{
    QString proposed = m_document.path();
    if (proposed.isEmpty())
        proposed = m_document.folder() + QLatin1String("/order.xml");
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
    m_preview->showReport(m_document.report());
    m_previewIsOld = false;
    const bool printed = printPdf(m_preview, path, orderTitle(m_document.order()), work.function());
    if (printed)
        tell(tr("Printed to %1").arg(QDir::toNativeSeparators(path)));
    else if (work.cancelled())
        tell(tr("Printing was cancelled"));
    else
        userPrompts().showError(messages::notWritten(path));
    return printed;
}

void MainWindow::commandArchiveDD(bool)
{
    const QString &path = m_document.path();
    const QString kept = fileVersions::archive(path, known().config().backupFolders());
    if (kept.isEmpty())
        userPrompts().showError(tr("No copy of %1 could be made").arg(native(path)));
    else
        userPrompts().log(messages::done(tr("Archive "), text::fileNameOfPath(path), kept));
    tell(kept.isEmpty() ? QString() : tr("Archived as %1").arg(QDir::toNativeSeparators(kept)));
}

void MainWindow::commandArchiveDatabase(bool)
{
    int copies = 0;
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        const QString &path = known().database(programData::databaseKind(kind)).filePath;
        if (path.isEmpty())
            continue;
        const QString kept = fileVersions::archive(path, known().config().backupFolders());
        if (kept.isEmpty()) {
            userPrompts().showError(tr("No copy of %1 could be made").arg(native(path)));
            continue;
        }
        ++copies;
        userPrompts().log(messages::done(tr("Archive "), text::fileNameOfPath(path), kept));
    }
    tell(tr("%n database(s) archived", nullptr, copies));
}

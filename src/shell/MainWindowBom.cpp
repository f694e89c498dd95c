// From BOM lists to the order, and messages.
#include "shell/MainWindow.h"

#include "dialogs/emailTempWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/Kiv_bomWindow.h"
#include "bom/basketsDialog.h"
#include "bom/bomReport.h"
#include "bom/needsDialog.h"
#include "bom/orderLinesTarget.h"
#include "bom/replacementStep.h"
#include "commands/commandSys.h"
#include "data/firmDetails.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "mail/mail.h"
#include "order/orderView.h"
#include "report/myWebView.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "tree/myTreeView.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/workProgress.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <QTabWidget>

using namespace bomOperations;

namespace {

void removeAtTheEnd(const QString &path)
{
    pendingSysCommands::instance().append(std::make_unique<cmdRemoveFile>(path));
}

} // namespace

// --- BOM lists
// ------------------------------------------------------------------------------------

Kiv_bomWindow &MainWindow::bomWindow()
{
    if (!m_bom) {
        m_bom = std::make_unique<Kiv_bomWindow>(known());
        connect(m_bom.get(), &editWindow::versionsWanted, this, &MainWindow::showVersions);
        connect(m_bom.get(), &Kiv_bomWindow::appendToOrder, this, &MainWindow::appendBoms);
        m_bom->openOrder = [this] {
            materialReplacement::document order;
            order.path = m_document.path();
            order.order = &m_document.order();
            order.isOpen = true;
            if (isLocked())
                order.fault = tr("the order is locked");
            else if (!finishEditing())
                order.fault = tr("a text in its window is refused");
            return order;
        };
        m_bom->replaceInOrder = [this](const materialReplacement::replacement &what) {
            push(replacementStep(m_order->linesView(), m_order->lineRows(), what, this),
                 tr("Material replaced"));
            refreshHtml();
        };
        m_bom->makeMaterial = [this](const materialStruct &filledIn) {
            const auto kind = chosenDatabase();
            if (!kind)
                return;
            Kiv_mat_databaseWindow &window = databaseWindow(*kind);
            window.showNow();
            window.addFilledIn(filledIn);
        };
        m_bom->takeOut = [this](std::vector<boardStock::withdrawal> of, const QString &boards) {
            return takeOut(std::move(of), boards);
        };
    }
    return *m_bom;
}

// All windows first: nothing is taken out of one database while another one cannot be changed.
bool MainWindow::takeOut(std::vector<boardStock::withdrawal> of, const QString &boards)
{
    std::vector<Kiv_mat_databaseWindow *> windows;
    for (const boardStock::withdrawal &one : of)
        for (int kind = 0; kind < programData::databaseCount; ++kind)
            if (&known().database(programData::databaseKind(kind)) == one.database) {
                Kiv_mat_databaseWindow &window = databaseWindow(programData::databaseKind(kind));
                window.showNow();
                if (!window.makeEditable())
                    return false;
                windows.push_back(&window);
            }
    if (windows.empty() || windows.size() != of.size())
        return false;
    for (size_t i = 0; i < windows.size(); ++i) {
        std::vector<materialChange> changes;
        for (const auto &[material, after] : of[i].changes)
            changes.push_back(
                {material, &materialStruct::d_inWarehouse, material->d_inWarehouse, after});
        builtBoards::boards built;
        for (auto &board : of[i].boards)
            built.push_back(std::move(board));
        windows[i]->takeOut(std::move(changes), std::move(built),
                            tr("Taken out of stock: %1").arg(boards));
    }
    return true;
}

void MainWindow::commandBom(bool) { bomWindow().showNow(); }

void MainWindow::commandAppendBomToZp(bool)
{
    if (bomWindow().hasSets())
        bomWindow().commandSet(false);
    else
        bomWindow().showNow();
}

void MainWindow::showUse(const materialUses::use &use)
{
    // The line may have moved since its file was read.
    const auto goTo = [&use](myTreeView *view, int column) {
        const QAbstractItemModel *lines = view->model();
        int row = -1;
        for (int at = 0; at < lines->rowCount(); ++at)
            if (lines->index(at, column).data().toString() == use.ktm
                && (row < 0 || at <= use.line))
                row = at;
        if (row < 0)
            return false;
        view->goTo(lines->index(row, column));
        view->setFocus();
        return true;
    };
    const QString native = QDir::toNativeSeparators(use.path).toHtmlEscaped();
    if (!use.inOrder) {
        Kiv_bomViewWindow &list = bomWindow().viewWindow(use.path);
        list.showNow();
        if (!goTo(list.view(), bomTree::ktmColumn))
            list.tell(tr("The list has no line of %1").arg(use.ktm));
        return;
    }
    const bool isOpen = QFileInfo(use.path) == QFileInfo(m_document.path());
    if (!isOpen
        && userPrompts().ask(tr("Open the order %1 in place of this one?").arg(native), false)
               != prompts::answer::yes)
        return;
    openInPlace(use.path);
    if (QFileInfo(use.path) != QFileInfo(m_document.path()))
        return;
    if (!goTo(m_order->linesView(), orderTree::ktmColumn))
        tell(tr("The order has no line of %1").arg(use.ktm));
}

void MainWindow::appendBoms(const std::vector<bomSets> &lists)
{
    if (isLocked()) {
        userPrompts().showInformation(tr("The order is locked. Allow its editing first."));
        return;
    }
    demand needed = demandOf(lists, known().materials(), orderRules(known().config()));
    noteOrdered(
        &needed,
        [this](const QString &ktm, const QString &except) {
            return known().orderedOf(ktm, except);
        },
        m_document.path());
    reservationsFile &reservations = known().reservations();
    boardStock::noteReserved(&needed, lists, known().materials(), reservations.now());
    if (!reservations.fault().isEmpty())
        userPrompts().listError(
            messages::failed(messages::fileCorrupted(), reservations.path(), reservations.fault()));
    QWidget *over = QApplication::activeWindow();
    needsDialog dialog(
        needed, m_document.order(),
        bomReport::proposedPath(lists.front().bom->fileName, QStringLiteral(".xlsx")),
        over ? over : this);
    connect(&dialog, &needsDialog::basketsWanted, this, [&] {
        showBaskets(supplierBasket::itemsOf(
            needed, dialog.rows(), [&dialog](const need &one) { return dialog.isChosen(one); }));
    });
    if (dialog.exec() != QDialog::Accepted)
        return;
    orderPlan plan = planOf(needed, m_document.order(), dialog.wanted(),
                            orderOperations::usualDate(known().config()),
                            [&dialog](const need &one) { return dialog.isChosen(one); });
    for (const need *one : plan.unknown)
        userPrompts().listError(doesNotExist(one->ktm.isEmpty() ? one->name : one->ktm));
    const int changes = int(plan.changes.size());
    const int skipped = plan.skipped;
    const bool anyUnknown = !plan.unknown.empty();
    const QString what = tr("%n line(s) added or raised from BOM lists", nullptr, changes);
    if (changes > 0) {
        orderLinesTarget target(m_order->lines(), &m_order->lineRows());
        std::unique_ptr<command> step;
        {
            const changeBatch batch(m_order->lines());
            apply(std::move(plan), target);
            step = target.step(this);
        }
        push(std::move(step), what);
    }
    tell(skipped > 0 ? what + QLatin1String(", ") + tr("%n material(s) skipped", nullptr, skipped)
                     : what);
    if (anyUnknown)
        userPrompts().showErrors();
}

void MainWindow::commandBaskets(bool)
{
    showBaskets(supplierBasket::itemsOf(m_document.order(), known().materials()));
}

void MainWindow::showBaskets(const std::vector<supplierBasket::item> &items)
{
    if (items.empty()) {
        userPrompts().showInformation(tr("There is nothing to be bought.").toHtmlEscaped());
        return;
    }
    kiv_mat_firmDetailsStruct details;
    const QString path =
        firmDetails::pathBeside(paths::data(known().config().options.value(optionKey::fileFirm)));
    QString fault;
    if (!firmDetails::read(path, &details, &fault)) {
        userPrompts().showError(
            tr("The details of the firms in %1 cannot be read; all baskets have the usual columns")
                .arg(QDir::toNativeSeparators(path))
                .toHtmlEscaped()
            + QLatin1String("<br>") + fault.toHtmlEscaped());
        details.details.clear();
    }
    QWidget *over = QApplication::activeWindow();
    basketsDialog(
        items, supplierBasket::formsOf(details, known().firm()),
        QFileInfo(bomReport::proposedPath(QStringLiteral("x"), QStringLiteral(".csv"))).path(),
        over ? over : this)
        .exec();
}

// --- Messages
// -------------------------------------------------------------------------------------

bool MainWindow::startMail(const QString &description)
{
    const bool started = mail::start(description, known().config());
    tell(started ? tr("Handed to the mail program")
                 : tr("The mail program cannot be started; the message is %1")
                       .arg(QDir::toNativeSeparators(description)));
    return started;
}

// What is sent is the saved order.
void MainWindow::commandZpSend(bool)
{
    orderDocument &document = m_document;
    m_order->takeAttentions();
    if (isModified() || document.path().isEmpty()) {
        if (userPrompts().ask(tr("The order is saved before it is sent. Save it now?"), false)
            != prompts::answer::yes)
            return;
        commandZpSave(false);
        if (isModified() || document.path().isEmpty())
            return;
    }
    const QString pdf = mail::pdfPath(document.order());
    if (!printTo(pdf))
        return;
    removeAtTheEnd(pdf);
    const QString description =
        mail::writeOrder(document.order(), known().config(), document.path(), pdf);
    if (description.isEmpty())
        userPrompts().showError(tr("The message cannot be written to %1")
                                    .arg(QDir::toNativeSeparators(mail::folder()).toHtmlEscaped()));
    else if (startMail(description))
        noteSent();
}

void MainWindow::sendData(mail::contents what)
{
    QString description;
    {
        workProgress::scope work(progress(), tr("Packing"));
        description = mail::writeData(what, known().config(), removeAtTheEnd, work.function());
        if (work.cancelled()) {
            tell(tr("Cancelled"));
            return;
        }
    }
    if (description.isEmpty())
        userPrompts().showError(
            tr("The message could not be made. The log says why.").toHtmlEscaped());
    else
        startMail(description);
}

void MainWindow::commandSendDatabase(bool) { sendData(mail::contents::databases); }

void MainWindow::commandSendBOMS(bool) { sendData(mail::contents::boms); }

void MainWindow::commandMessageTemplate(bool) { emailTempWindow(this).exec(); }

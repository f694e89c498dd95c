#include "shell/MainWindow.h"

#include "bom/Kiv_bomWindow.h"
#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/commandSys.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "dialogs/addMaterialDialog.h"
#include "dialogs/configWindow.h"
#include "dialogs/linesDialog.h"
#include "firm/firmWindow.h"
#include "report/cleanHtml.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "shell/orderDocument.h"
#include "shell/orderView.h"
#include "shell/userState.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "tree/myWebView.h"
#include "tree/richtexteditDialog.h"
#include "util/fileVersions.h"
#include "util/files.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/numbers.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/messageWindow.h"
#include "window/workProgress.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QStatusBar>
#include <QUrl>

using myItem::myItemStandard;

namespace {

QString xmlFilter() { return MainWindow::tr("Xml File") + QLatin1String(" (*.xml)"); }

// Where dialogs begin: the folder of orders.
QString ordersFolder()
{
    const QString &path = orderDocument::instance().path();
    const QString known =
        path.isEmpty()
            ? paths::data(programData::instance().config().options.value(optionKey::fileLastZp))
            : path;
    return QFileInfo(known).absolutePath();
}

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
    const QString path =
        userPrompts().openFile(tr("Open File"), ordersFolder(), QStringLiteral("(*.xml)"));
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
        proposed = ordersFolder() + QLatin1String("/order.xml");
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
// --------------------------------------------------------------------------------------

void MainWindow::push(std::unique_ptr<command> change, const QString &what)
{
    if (!change)
        return;
    m_order->stack().push(std::move(change), what);
    orderChanged();
    showState();
    statusBar()->showMessage(what);
}

void MainWindow::commandZpEdit(bool on)
{
    m_order->setLocked(!on);
    updateActions();
}

void MainWindow::commandZpUndo(bool)
{
    const QString what = m_order->stack().undo();
    orderChanged();
    statusBar()->showMessage(tr("Undone: %1").arg(what));
}

void MainWindow::commandZpRedo(bool)
{
    const QString what = m_order->stack().redo();
    orderChanged();
    statusBar()->showMessage(tr("Done again: %1").arg(what));
}

void MainWindow::commandZpConfig(bool)
{
    m_tabs->setCurrentIndex(0);
    myTreeView *options = m_order->optionsView();
    options->setFocus();
    options->setCurrentIndex(m_order->options()->index(0, 1));
}

myTreeView *MainWindow::focusedView() const
{
    return m_order->optionsView()->hasFocus() ? m_order->optionsView() : m_order->linesView();
}

void MainWindow::commandCopyCells(bool)
{
    statusBar()->showMessage(tr("%n cell(s) copied", nullptr, cellClipboard::copy(focusedView())));
}

void MainWindow::commandPasteCells(bool)
{
    const int changed = cellClipboard::paste(
        focusedView(),
        [this](std::unique_ptr<command> change) { push(std::move(change), tr("Paste")); }, this);
    statusBar()->showMessage(tr("%n cell(s) pasted", nullptr, changed));
}

// All lines, or the selected ones when several are and the user says so.
std::optional<std::vector<int>> MainWindow::wantedRows()
{
    const std::vector<int> selected = m_order->selectedRows();
    if (selected.size() < 2 || int(selected.size()) == m_order->lines()->rowCount())
        return m_order->allRows();
    const std::optional<int> answer = userPrompts().decide(
        tr("Change all lines, or the selected ones only?"),
        {tr("All lines"), tr("%n selected line(s)", nullptr, int(selected.size()))});
    if (!answer)
        return {};
    return *answer == 0 ? m_order->allRows() : selected;
}

bool MainWindow::setColumn(int column, const std::vector<int> &rows, const QVariant &value,
                           const QString &what)
{
    std::unique_ptr<command> change = cellBlock::set(
        m_order->lines(), m_order->cells(rows, column),
        [&value](const myItemStandard &) { return value; }, this);
    const bool changed = change != nullptr;
    push(std::move(change), what);
    return changed;
}

void MainWindow::commandZpAllQuantities(bool)
{
    const auto quantity = userPrompts().inputNumber(
        labels::setAllQuantities(), labels::quantities(), 1, 1, orderTree::quantityMaximum);
    if (!quantity)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::quantityColumn, *rows, *quantity, labels::setAllQuantities());
}

void MainWindow::commandZpAllDates(bool)
{
    const auto date = userPrompts().inputDate(
        labels::setAllDates(), orderOperations::usualDate(programData::instance().config()));
    if (!date)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::waitColumn, *rows, *date, labels::setAllDates());
}

void MainWindow::commandZpAllDescriptions(bool)
{
    const auto description =
        userPrompts().inputText(labels::setAllDescriptions(), labels::descriptions(), {});
    if (!description)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::descriptionColumn, *rows, *description, labels::setAllDescriptions());
}

void MainWindow::commandZpAllRoHS(bool)
{
    QStringList words;
    QStringList shown;
    for (const comboBoxStruct &word : programData::instance().config().goodWhenYes) {
        words.append(word.value);
        shown.append(labels::shown(word.value));
    }
    const auto chosen =
        userPrompts().choose(labels::setAllRohs(), labels::allMaterialsRequireRohs(), shown, 1);
    if (!chosen)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::rohsColumn, *rows, words.at(*chosen), labels::setAllRohs());
}

void MainWindow::commandZpAllUnits(bool)
{
    const QStringList units = orderOperations::units();
    QStringList shown;
    for (const QString &unit : units)
        shown.append(labels::shown(unit));
    const auto chosen =
        userPrompts().choose(labels::setAllUnits(), labels::allMaterialsUnit(), shown, 0);
    if (!chosen)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::unitColumn, *rows, units.at(*chosen), labels::setAllUnits());
}

void MainWindow::commandZpAllTargets(bool)
{
    if (userPrompts().ask(tr("Change target for all materials ?"), false) != prompts::answer::yes)
        return;
    const kiv_mat_zpStruct &order = orderDocument::instance().order();
    const QStringList targets = orderOperations::targets(programData::instance().config(), order);
    const auto chosen =
        userPrompts().choose(labels::setAllTargets(), labels::allMaterialsTarget(), targets,
                             int(targets.indexOf(order.options.value(optionKey::orderTarget))));
    if (!chosen)
        return;
    if (const auto rows = wantedRows())
        setColumn(orderTree::targetColumn, *rows, targets.at(*chosen), labels::setAllTargets());
}

void MainWindow::commandZpAllSum(bool)
{
    const std::vector<int> selected = m_order->selectedRows();
    const std::vector<int> rows = selected.size() > 1 ? selected : m_order->allRows();
    const orderOperations::lineSums sums = orderOperations::sumsOf(m_order->records(rows));
    const auto row = [](const QString &caption, const QString &value) {
        return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td align=\"right\"><b>%2</b></td></tr>")
            .arg(caption.toHtmlEscaped(), value);
    };
    userPrompts().showInformation(
        QLatin1String("<table>")
        + row(selected.size() > 1 ? tr("Selected lines") : tr("Lines"), QString::number(sums.lines))
        + row(labels::quantities(), QString::number(sums.quantity))
        + row(labels::sumPrice(), numbers::money(sums.price) + QLatin1String(" [ PLN ]"))
        + row(labels::sumAveragePrice(),
              numbers::money(sums.averagePrice) + QLatin1String(" [ PLN ]"))
        + (sums.uncounted
               ? row(tr("Lines that could not be counted"), QString::number(sums.uncounted))
               : QString())
        + QLatin1String("</table>"));
}

void MainWindow::commandZpClearPrices(bool)
{
    const auto rows = wantedRows();
    if (!rows)
        return;
    const auto cells = m_order->cells(*rows, orderTree::priceColumn)
                       + m_order->cells(*rows, orderTree::averagePriceColumn);
    push(cellBlock::set(
             m_order->lines(), cells, [](const myItemStandard &) { return 0.0; }, this),
         tr("Clear Price"));
}

void MainWindow::commandZpRefreshPrices(bool)
{
    if (userPrompts().ask(tr("Take prices and stock of the lines from the databases again?"), false)
        != prompts::answer::yes)
        return;
    const ktmIndex &materials = programData::instance().materials();
    const auto rows = wantedRows();
    if (!rows)
        return;
    QHash<const myItemStandard *, QVariant> wanted;
    QList<myItemStandard *> cells;
    const auto add = [&](int row, int column, const QVariant &value) {
        auto *cell = static_cast<myItemStandard *>(m_order->lines()->item(row, column));
        if (!value.isValid())
            return;
        wanted.insert(cell, value);
        cells.append(cell);
    };
    for (int row : *rows) {
        const orderItemStruct *line = m_order->records({row}).front();
        const ktmIndex::entry *found = materials.find(line->ktm);
        if (!found)
            continue;
        const auto amount = [](const QString &text) {
            return numbers::check(text) ? QVariant(numbers::value(text)) : QVariant();
        };
        add(row, orderTree::priceColumn, amount(found->material->d_price));
        add(row, orderTree::averagePriceColumn, amount(found->material->d_averagePrice));
        add(row, orderTree::inWarehouseColumn, found->material->d_inWarehouse);
    }
    push(cellBlock::set(
             m_order->lines(), cells,
             [&wanted](const myItemStandard &cell) { return wanted.value(&cell); }, this,
             cellBlock::readOnlyToo),
         tr("Refresh prices and stock"));
    m_order->refreshLooks();
}

void MainWindow::commandZpCopy(bool)
{
    linesDialog dialog(linesDialog::copying, m_order->lineRows().columns(),
                       m_order->selectedRows().size() > 1, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<int> rows =
        dialog.selectedOnly() ? m_order->selectedRows() : m_order->allRows();
    if (!dialog.toFile()) {
        QModelIndexList cells;
        for (int row : rows)
            for (int column : dialog.columns())
                cells.append(m_order->lines()->index(row, column));
        QApplication::clipboard()->setText(cellBlock::copied(cells));
        statusBar()->showMessage(tr("%n line(s) copied", nullptr, int(rows.size())));
        return;
    }
    const QString path =
        userPrompts().openFile(tr("Open File"), ordersFolder(), QStringLiteral("(*.xml)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path) == QFileInfo(orderDocument::instance().path())) {
        userPrompts().showError(tr("This order is open here. Choose another one."));
        return;
    }
    QString reason;
    if (orderOperations::appendToFile(path, m_order->records(rows), dialog.columns(), &reason))
        statusBar()->showMessage(tr("%n line(s) copied to %1", nullptr, int(rows.size()))
                                     .arg(QDir::toNativeSeparators(path)));
    else
        userPrompts().showError(native(path) + QLatin1String(": ") + reason.toHtmlEscaped());
}

void MainWindow::commandZpClear(bool)
{
    linesDialog dialog(linesDialog::clearing, m_order->lineRows().columns(),
                       m_order->selectedRows().size() > 1, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<int> rows =
        dialog.selectedOnly() ? m_order->selectedRows() : m_order->allRows();
    QList<myItemStandard *> cells;
    for (int column : dialog.columns())
        cells += m_order->cells(rows, column);
    push(cellBlock::clear(m_order->lines(), cells, this), tr("Clear"));
}

void MainWindow::deleteRows(const std::vector<int> &rows, const QString &what)
{
    push(cellBlock::deleteRows(m_order->lines(), rows, this), what);
}

void MainWindow::commandDeleteLines(bool)
{
    std::vector<int> rows = m_order->selectedRows();
    if (rows.empty() && m_order->linesView()->currentIndex().isValid())
        rows.push_back(m_order->linesView()->currentIndex().row());
    deleteRows(rows, tr("%n line(s) deleted", nullptr, int(rows.size())));
}

void MainWindow::commandZpDeleteAll(bool)
{
    if (userPrompts().ask(tr("Delete all lines of the order?"), false) == prompts::answer::yes)
        deleteRows(m_order->allRows(), tr("All lines deleted"));
}

void MainWindow::appendLines(std::vector<std::unique_ptr<orderItemStruct>> lines,
                             const QString &what)
{
    if (lines.empty())
        return;
    std::unique_ptr<command> change;
    {
        const changeBatch batch;
        std::vector<std::unique_ptr<command>> members;
        for (auto &line : lines)
            members.push_back(std::make_unique<appendNewMaterial>(
                m_order->lines(), m_order->lineRows().makeDetachedRow(std::move(line))));
        members.push_back(std::make_unique<::refreshHtml>(this));
        change = std::make_unique<appendCommands>(std::move(members));
    }
    push(std::move(change), what);
    myTreeView *view = m_order->linesView();
    const QModelIndex last =
        m_order->lines()->index(m_order->lines()->rowCount() - 1, orderTree::quantityColumn);
    view->setCurrentIndex(last);
    view->scrollTo(last);
}

void MainWindow::appendToOrder(const materialKtms_list &ktms, uint quantity)
{
    programData &known = programData::instance();
    const kiv_mat_zpStruct &order = orderDocument::instance().order();
    std::vector<std::unique_ptr<orderItemStruct>> lines;
    QStringList shipments;
    for (const QString &ktm : ktms) {
        if (orderOperations::isShipment(ktm)
            && (orderOperations::holds(order, ktm) || shipments.contains(ktm))) {
            userPrompts().showInformation(tr("In Do can be only one entry SHIPMENT of KTM: ")
                                          + ktm.toHtmlEscaped());
            continue;
        }
        const ktmIndex::entry *found = known.materials().find(ktm);
        if (!found)
            continue;
        if (orderOperations::isShipment(ktm))
            shipments.append(ktm);
        lines.push_back(orderOperations::newLine(*found->material, order, QString::number(quantity),
                                                 orderOperations::usualDate(known.config())));
    }
    const int count = int(lines.size());
    appendLines(std::move(lines), tr("%n line(s) added", nullptr, count));
}

void MainWindow::commandAddShipment(bool)
{
    const kiv_mat_zpStruct &order = orderDocument::instance().order();
    const QString ktm = orderOperations::freeShipmentKtm(order);
    if (ktm.isEmpty()) {
        userPrompts().showInformation(tr("In Do can be only ten entries SHIPMENT"));
        return;
    }
    addSpecialLine(ktm, tr("SHIPMENT"));
}

void MainWindow::commandAddPCB(bool)
{
    if (orderOperations::holds(orderDocument::instance().order(), orderOperations::pcbKtm())) {
        const QString padding = QStringLiteral("&nbsp;").repeated(9);
        userPrompts().showInformation(padding + tr("Only one PCB order") + padding);
        return;
    }
    addSpecialLine(orderOperations::pcbKtm(), tr("PCB"));
}

void MainWindow::addSpecialLine(const QString &ktm, const QString &description)
{
    const ktmIndex::entry *known = programData::instance().materials().find(ktm);
    if (!known) {
        statusBar()->showMessage(tr("No loaded database has the material %1").arg(ktm));
        return;
    }
    std::vector<std::unique_ptr<orderItemStruct>> lines;
    lines.push_back(orderOperations::newLine(*known->material, orderDocument::instance().order(),
                                             QStringLiteral("1"), QDate::currentDate()));
    lines.back()->description = description;
    appendLines(std::move(lines), tr("%n line(s) added", nullptr, 1));
}

void MainWindow::commandAddMaterial(bool)
{
    if (!m_addMaterial) {
        m_addMaterial = new addMaterialDialog(this);
        connect(m_addMaterial, &addMaterialDialog::wanted, this, &MainWindow::appendToOrder);
    }
    m_addMaterial->showNow();
}

void MainWindow::commandEditAttentions(bool)
{
    if (m_order->attentions()->isReadOnly())
        return;
    richtexteditDialog dialog(this);
    dialog.setWindowTitle(labels::attentions());
    const QString before = cleanHtml(m_order->attentions()->toHtml());
    dialog.setHtml(before);
    if (dialog.exec() == QDialog::Accepted && dialog.html() != before)
        m_order->replaceAttentions(dialog.html());
}

void MainWindow::textEditDoubleClicked(QPoint, uint)
{
    statusBar()->showMessage(m_order->attentions()->isReadOnly()
                                 ? tr("Editing is locked")
                                 : tr("A double click opens the editor of formatted text"));
}

void MainWindow::modelTreeClicked(QPoint, uint, const QModelIndex &) { showState(); }

void MainWindow::headerTreeClicked(QPoint, uint buttons, int section)
{
    if (!(buttons & Qt::LeftButton))
        return;
    if (m_order->linesView()->isEditingLocked()) {
        statusBar()->showMessage(tr("Editing is locked"));
        return;
    }
    auto change = std::make_unique<sortOrderModel>(m_order->lines(), section);
    if (!change->changesOrder())
        return;
    push(std::move(change),
         tr("Sort by %1").arg(m_order->lines()->headerData(section, Qt::Horizontal).toString()));
}

void MainWindow::reOrdinalRows() { m_order->renumber(); }

// --- Finding
// --------------------------------------------------------------------------------------

void MainWindow::commandFind(bool)
{
    const auto text = userPrompts().inputText(tr("Find"), tr("Text in any column"), m_wanted);
    if (!text || text->isEmpty())
        return;
    m_wanted = *text;
    commandFindNext(false);
}

void MainWindow::commandFindNext(bool)
{
    if (m_wanted.isEmpty()) {
        commandFind(false);
        return;
    }
    m_tabs->setCurrentIndex(0);
    myTreeView *view = m_order->linesView();
    if (view->findNext(m_wanted)) {
        view->setFocus();
        statusBar()->showMessage(tr("Found in line %1").arg(view->currentIndex().row() + 1));
        return;
    }
    statusBar()->showMessage(tr("No line holds %1").arg(m_wanted));
}

// What the main window does with the lines of its order, and finding in them.
#include "shell/MainWindow.h"

#include "commands/cellBlock.h"
#include "data/lineSums.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "order/addMaterialDialog.h"
#include "order/linesDialog.h"
#include "order/orderView.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "tree/richtexteditDialog.h"
#include "util/cleanHtml.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/prompts.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>

using myItem::myItemStandard;

void MainWindow::commandZpConfig(bool)
{
    m_tabs->setCurrentIndex(0);
    myTreeView *options = m_order->optionsView();
    options->setFocus();
    options->goTo(m_order->options()->index(0, 1));
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
    const auto date = userPrompts().inputDate(labels::setAllDates(),
                                              orderOperations::usualDate(known().config()));
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
    for (const comboBoxStruct &word : known().config().goodWhenYes) {
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
    const kiv_mat_zpStruct &order = m_document.order();
    const QStringList targets = orderOperations::targets(known().config(), order);
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
    const lineSums sums = sumsOf(m_order->records(rows));
    const auto row = [](const QString &caption, const QString &value, const lineSum &of = {}) {
        return QStringLiteral("<tr><td>%1&nbsp;&nbsp;</td><td align=\"right\"><b>%2</b></td>"
                              "<td>&nbsp;%3</td></tr>")
            .arg(caption.toHtmlEscaped(), value, of.note().toHtmlEscaped());
    };
    userPrompts().showInformation(
        QLatin1String("<table>")
        + row(selected.size() > 1 ? tr("Selected lines") : tr("Lines"), QString::number(sums.lines))
        + row(labels::quantities(), sums.quantity.amount.text(), sums.quantity)
        + row(labels::sumPrice(), sums.price.money() + QLatin1String(" [ PLN ]"), sums.price)
        + row(labels::sumAveragePrice(), sums.averagePrice.money() + QLatin1String(" [ PLN ]"),
              sums.averagePrice)
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
    const ktmIndex &materials = known().materials();
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

void MainWindow::commandZpLastPrices(bool)
{
    const auto rows = wantedRows();
    if (!rows)
        return;
    QHash<const myItemStandard *, QVariant> wanted;
    QList<myItemStandard *> cells;
    for (int row : *rows) {
        const orderItemStruct *line = m_order->records({row}).front();
        const orderedBefore before = known().orderedOf(line->ktm, m_document.path());
        if (!before.last.date.isValid() || before.last.unit.trimmed() != line->unit.trimmed())
            continue;
        auto *cell =
            static_cast<myItemStandard *>(m_order->lines()->item(row, orderTree::priceColumn));
        wanted.insert(cell, numbers::value(before.last.price));
        cells.append(cell);
    }
    if (cells.isEmpty()) {
        tell(tr("None of these materials was ordered before"));
        return;
    }
    push(cellBlock::set(
             m_order->lines(), cells,
             [&wanted](const myItemStandard &cell) { return wanted.value(&cell); }, this),
         tr("%n price(s) of the last orders", nullptr, int(cells.size())));
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
        tell(tr("%n line(s) copied", nullptr, int(rows.size())));
        return;
    }
    const QString path =
        userPrompts().openFile(tr("Open File"), m_document.folder(), QStringLiteral("(*.xml)"));
    if (path.isEmpty())
        return;
    if (QFileInfo(path) == QFileInfo(m_document.path())) {
        userPrompts().showError(tr("This order is open here. Choose another one."));
        return;
    }
    QString reason;
    if (orderOperations::appendToFile(path, m_order->records(rows), dialog.columns(),
                                      known().config(), &reason))
        tellSaved(tr("%n line(s) copied to %1", nullptr, int(rows.size()))
                      .arg(QDir::toNativeSeparators(path)));
    else
        userPrompts().showError(QDir::toNativeSeparators(path).toHtmlEscaped() + QLatin1String(": ")
                                + reason.toHtmlEscaped());
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
    const std::vector<int> rows = m_order->linesView()->markedRows();
    if (rows.empty())
        tell(tr("No line is selected"));
    deleteRows(rows, tr("%n line(s) deleted", nullptr, int(rows.size())));
}

void MainWindow::commandMoveUp(bool) { moveMarkedRows(m_order->linesView(), true); }

void MainWindow::commandMoveDown(bool) { moveMarkedRows(m_order->linesView(), false); }

// What is typed goes into all selected cells of its column, as one step.
void MainWindow::fillSelected()
{
    const myTreeView *view = m_order->linesView();
    const myItemStandard *typed = m_order->lines()->cell(view->currentIndex());
    QList<myItemStandard *> others;
    if (typed)
        others = cellsLike(typed, view->selectedCells());
    QString fault;
    const auto fillOthers = [&]() -> std::unique_ptr<command> {
        const auto cells = std::exchange(others, {});
        for (const myItemStandard *cell : cells)
            if (fault = cellBlock::like(*typed, *cell).fault; !fault.isEmpty())
                return nullptr;
        return cellBlock::set(
            m_order->lines(), cells,
            [typed](const myItemStandard &cell) { return cellBlock::like(*typed, cell).value; },
            this);
    };
    stack().completed = [&](std::unique_ptr<command> change) -> std::unique_ptr<command> {
        std::vector<std::unique_ptr<command>> members;
        members.push_back(std::move(change));
        members.push_back(fillOthers());
        return std::make_unique<appendCommands>(std::move(members), m_order->lines());
    };
    const bool taken = finishEditing();
    stack().completed = nullptr;
    // A value that was there before makes no step of its own.
    if (taken && !others.isEmpty())
        push(fillOthers(), tr("Fill"));
    // One cell that cannot take it leaves all others as they are.
    if (!fault.isEmpty())
        userPrompts().showError(fault.toHtmlEscaped());
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
        const changeBatch batch(m_order->lines());
        std::vector<std::unique_ptr<command>> members;
        for (auto &line : lines)
            members.push_back(std::make_unique<appendNewMaterial>(
                m_order->lines(), m_order->lineRows().makeDetachedRow(std::move(line))));
        members.push_back(std::make_unique<::refreshHtml>(this));
        change = std::make_unique<appendCommands>(std::move(members), m_order->lines());
    }
    push(std::move(change), what);
    myTreeView *view = m_order->linesView();
    const QModelIndex last =
        m_order->lines()->index(m_order->lines()->rowCount() - 1, orderTree::quantityColumn);
    view->goTo(last);
}

void MainWindow::appendToOrder(const materialKtms_list &ktms, uint quantity)
{
    if (refuseWhileLocked()) {
        emit orderAnswered(tr("The order is locked, nothing was added"));
        return;
    }
    const kiv_mat_zpStruct &order = m_document.order();
    std::vector<std::unique_ptr<orderItemStruct>> lines;
    QStringList shipments;
    for (const QString &ktm : ktms) {
        if (orderOperations::isShipment(ktm)
            && (orderOperations::holds(order, ktm) || shipments.contains(ktm))) {
            userPrompts().showInformation(tr("In Do can be only one entry SHIPMENT of KTM: ")
                                          + ktm.toHtmlEscaped());
            continue;
        }
        const ktmIndex::entry *found = known().materials().find(ktm);
        if (!found)
            continue;
        if (orderOperations::isShipment(ktm))
            shipments.append(ktm);
        lines.push_back(orderOperations::newLine(*found->material, order, QString::number(quantity),
                                                 orderOperations::usualDate(known().config())));
    }
    const int count = int(lines.size());
    const int refused = ktms.size() - count;
    QString answer = tr("%n line(s) added", nullptr, count);
    if (refused > 0)
        answer += QLatin1String(", ") + tr("%n material(s) refused", nullptr, refused);
    const auto isOnTheWay = [this](const auto &line) {
        return known().orderedOf(line->ktm, m_document.path()).isOnTheWay();
    };
    if (const auto again = std::count_if(lines.begin(), lines.end(), isOnTheWay); again > 0)
        answer += QLatin1String(", ") + tr("%n of them on the way already", nullptr, int(again));
    appendLines(std::move(lines), answer);
    tell(answer);
    emit orderAnswered(answer);
}

void MainWindow::commandAddShipment(bool)
{
    const kiv_mat_zpStruct &order = m_document.order();
    const QString ktm = orderOperations::freeShipmentKtm(order);
    if (ktm.isEmpty()) {
        userPrompts().showInformation(tr("In Do can be only ten entries SHIPMENT"));
        return;
    }
    addSpecialLine(ktm, tr("SHIPMENT"));
}

void MainWindow::commandAddPCB(bool)
{
    if (orderOperations::holds(m_document.order(), orderOperations::pcbKtm())) {
        const QString padding = QStringLiteral("&nbsp;").repeated(9);
        userPrompts().showInformation(padding + tr("Only one PCB order") + padding);
        return;
    }
    addSpecialLine(orderOperations::pcbKtm(), tr("PCB"));
}

void MainWindow::addSpecialLine(const QString &ktm, const QString &description)
{
    const ktmIndex::entry *found = known().materials().find(ktm);
    if (!found) {
        tell(tr("No loaded database has the material %1").arg(ktm));
        return;
    }
    std::vector<std::unique_ptr<orderItemStruct>> lines;
    lines.push_back(orderOperations::newLine(*found->material, m_document.order(),
                                             QStringLiteral("1"), QDate::currentDate()));
    lines.back()->description = description;
    appendLines(std::move(lines), tr("%n line(s) added", nullptr, 1));
}

void MainWindow::commandAddMaterial(bool)
{
    if (!m_addMaterial) {
        m_addMaterial = new addMaterialDialog(known(), this);
        connect(this, &MainWindow::orderAnswered, m_addMaterial, &addMaterialDialog::showAnswer);
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
    tell(m_order->attentions()->isReadOnly()
             ? tr("Editing is locked")
             : tr("A double click opens the editor of formatted text"));
}

void MainWindow::modelTreeClicked(QPoint, uint, const QModelIndex &) { showSums(); }

void MainWindow::headerTreeClicked(QPoint, uint buttons, int section)
{
    if (!(buttons & Qt::LeftButton))
        return;
    if (refuseWhileLocked())
        return;
    auto change = std::make_unique<sortOrderModel>(m_order->lines(), section);
    if (!change->changesOrder())
        return;
    push(std::move(change),
         tr("Sort by %1").arg(m_order->lines()->headerData(section, Qt::Horizontal).toString()));
}

void MainWindow::reOrdinalRows() { m_order->renumber(); }

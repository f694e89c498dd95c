// What becomes of an order after it was written: what other orders have of its materials, and what
// was delivered of it.
#include "shell/MainWindow.h"

#include "data/vocabulary.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "dialogs/changesDialog.h"
#include "order/deliveries.h"
#include "order/deliveryDialog.h"
#include "order/orderView.h"
#include "orders/deliveredStock.h"
#include "orders/offersWindow.h"
#include "orders/orderRegister.h"
#include "orders/requestsWindow.h"
#include "tree/myTreeView.h"
#include "util/labels.h"
#include "util/prompts.h"

#include <QFileInfo>
#include <QLabel>
#include <QTimer>

#include <algorithm>

// Many orders that were never read before are left to the window that lists them, which shows how
// far it is.
void MainWindow::lookAtOrders()
{
    constexpr long long mostUnasked = 300;
    orders().update(known().config().orderFolders(),
                    [](long long, long long total) { return total <= mostUnasked; });
    known().setOrderedLookup([this](const QString &ktm, const QString &except) {
        return orders().beforeOf(ktm, except);
    });
    ordersChanged();
}

void MainWindow::ordersChanged()
{
    m_order->refreshLooks();
    showThresholds();
    for (const auto &window : m_databases)
        if (window)
            window->ordersChanged();
}

// The year's sums of the other orders are made once for all that is typed.
void MainWindow::showThresholds()
{
    const annualPlan::thresholds limits =
        annualPlan::readThresholds(known().config().options.value(optionKey::orderThresholds));
    QStringList sentences;
    if (!limits.limits.empty())
        for (const annualPlan::thresholdWarning &one : annualPlan::thresholdWarnings(
                 m_document.order(), m_document.path(), limits, m_yearSums, orders())) {
            QStringList lines;
            for (const int line : one.lines)
                lines.append(QString::number(line + 1));
            sentences.append(annualPlan::warningText(one) + QLatin1String(" (")
                             + tr("lines %1").arg(lines.join(QLatin1String(", ")))
                             + QLatin1Char(')'));
        }
    m_overThreshold->setVisible(!sentences.isEmpty());
    m_overThreshold->setText(QChar(0x26A0) + QLatin1Char(' ')
                             + tr("%n CPV threshold(s) passed", nullptr, int(sentences.size())));
    m_overThreshold->setToolTip(sentences.join(QLatin1Char('\n')));
}

// --- Requests for quotation
// ---------------------------------------------------------------------

void MainWindow::commandRequests(bool)
{
    if (m_document.path().isEmpty()) {
        tell(tr("Save the order first"));
        return;
    }
    if (!m_requests) {
        m_requests = std::make_unique<requestsWindow>(known());
        connect(m_requests.get(), &requestsWindow::newWanted, this, &MainWindow::askFirms);
    }
    m_requests->showFor(m_document.path());
}

// For the selected lines, or for all where one or none is. The window stays with its order when
// another one is opened.
void MainWindow::askFirms()
{
    if (!finishEditing())
        return;
    const auto isShown = [this] {
        return QFileInfo(m_requests->orderPath()) == QFileInfo(m_document.path());
    };
    if (!isShown())
        commandRequests(false);
    if (!isShown())
        return;
    const std::vector<int> selected = m_order->selectedRows();
    m_requests->askFirms(m_document.order(),
                         selected.size() > 1 ? std::optional(selected) : std::nullopt);
}

// --- Offers
// -------------------------------------------------------------------------------------

void MainWindow::commandOffers(bool)
{
    if (!m_offers) {
        m_offers = std::make_unique<offersWindow>(known(), orders());
        m_offers->openOrder = [this](QString *path) {
            *path = m_document.path();
            return &m_document.order();
        };
        m_offers->isOrderSaved = [this] { return !isModified(); };
        m_offers->takeOver = [this](const offerComparison::comparison &of,
                                    const offerComparison::selection &chosen,
                                    bool raisesQuantities) {
            if (refuseWhileLocked() || !finishEditing())
                return false;
            const auto wanted = orderOperations::copyOf(m_document.order());
            const offerComparison::applied done =
                offerComparison::applyChoice(wanted.get(), of, chosen, raisesQuantities);
            push(m_order->become(*wanted), tr("%n price(s) of offers", nullptr, done.prices));
            return true;
        };
        connect(m_offers.get(), &offersWindow::orderParted, this,
                [this] { m_lookAtOrders->start(); });
    }
    m_offers->showNow();
}

// --- Deliveries
// -----------------------------------------------------------------------------------

// Of the selected lines, or of all where one or none is.
void MainWindow::commandDelivery(bool)
{
    if (!finishEditing())
        return;
    const std::vector<int> selected = m_order->selectedRows();
    const kiv_mat_zpStruct &order = m_document.order();
    const auto &lines = order.orderItems.items;
    const auto isOpen = [&lines](int row) { return deliveries::isOpen(*lines[size_t(row)]); };
    const std::vector<int> rows = selected.size() > 1 ? selected : m_order->allRows();
    if (std::none_of(rows.begin(), rows.end(), isOpen)) {
        tell(selected.size() > 1 ? tr("Nothing of the selected lines is to come")
                                 : tr("Nothing of the order is to come"));
        return;
    }
    deliveryDialog dialog(order, rows, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto wanted = orderOperations::copyOf(order);
    const deliveries::result done =
        deliveries::note(wanted.get(), dialog.delivered(), dialog.delivery());
    if (!done.faults.isEmpty()) {
        userPrompts().showError(done.faults.join(QLatin1Char('\n')).toHtmlEscaped());
        return;
    }
    const QString what =
        tr("%n line(s) delivered", nullptr, done.whole + done.parted)
        + (done.parted > 0 ? QLatin1String(", ") + tr("%n of them in part", nullptr, done.parted)
                           : QString());
    push(m_order->become(*wanted), what);
    tell(what);
}

// A proposal for each database; its window has the change as one step, which is saved there.
void MainWindow::commandDeliveredToStock(bool)
{
    if (isModified()) {
        tell(tr("Save the order first"));
        return;
    }
    const QString &path = m_document.path();
    QString fault;
    auto before = deliveredStock::takenOf(path, &fault);
    if (!before) {
        userPrompts().showError(
            tr("It cannot be seen which deliveries are in stock already").toHtmlEscaped()
            + QLatin1String("<br>") + fault.toHtmlEscaped());
        return;
    }
    for (const auto &window : m_databases)
        if (window)
            for (const deliveredStock::taken &one : window->pendingOf(path))
                before->push_back(one);
    const std::vector<deliveredStock::delivery> open =
        deliveredStock::openOf(m_document.order(), known().materials(), *before);
    std::vector<const deliveredStock::delivery *> good;
    QList<QStringList> shown;
    QStringList faults;
    for (const deliveredStock::delivery &one : open) {
        if (!one.fault.isEmpty()) {
            faults.append(one.ktm + QLatin1String(": ") + one.fault);
            continue;
        }
        good.push_back(&one);
        shown.append({one.ktm, one.name, one.delivery, one.before, one.after});
    }
    if (!faults.isEmpty())
        userPrompts().showInformation(tr("These deliveries cannot be taken into stock:")
                                      + QLatin1String("<br>")
                                      + faults.join(QLatin1String("\n"))
                                            .toHtmlEscaped()
                                            .replace(QLatin1Char('\n'), QLatin1String("<br>")));
    if (good.empty()) {
        tell(tr("No delivery is to be taken into stock"));
        return;
    }
    const QString what = tr("Delivered into stock");
    changesDialog dialog(
        what, {labels::ktm(), labels::name(), labels::delivery(), tr("Before"), tr("After")}, shown,
        this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    std::vector<deliveredStock::delivery> chosen;
    for (const int row : dialog.chosen())
        chosen.push_back(*good[size_t(row)]);
    takeIntoStock(chosen, what);
}

void MainWindow::takeNotesAlong(const QString &from, const QString &to)
{
    if (from.isEmpty() || QFileInfo(from) == QFileInfo(to))
        return;
    QString fault;
    auto taken = deliveredStock::takenOf(from, &fault);
    for (const auto &window : m_databases)
        if (window && taken)
            for (const deliveredStock::taken &one : window->pendingOf(from))
                taken->push_back(one);
    if (!taken || !deliveredStock::noteTaken(to, *taken, known().config(), &fault))
        userPrompts().showError(
            tr("It could not be noted for the new file which deliveries are in stock already")
                .toHtmlEscaped()
            + QLatin1String("<br>") + fault.toHtmlEscaped());
}

void MainWindow::takeIntoStock(const std::vector<deliveredStock::delivery> &chosen,
                               const QString &what)
{
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        std::vector<deliveredStock::delivery> own;
        for (const deliveredStock::delivery &one : chosen)
            if (one.database == &known().database(programData::databaseKind(kind)))
                own.push_back(one);
        if (own.empty())
            continue;
        Kiv_mat_databaseWindow &window = databaseWindow(programData::databaseKind(kind));
        window.showNow();
        if (!window.makeEditable())
            return;
        std::vector<materialChange> stock;
        for (const deliveredStock::delivery &one : own) {
            const QString before = one.material->d_inWarehouse;
            // Of several deliveries of a material some may have been left out.
            const auto same = std::find_if(stock.begin(), stock.end(), [&one](const auto &other) {
                return other.record == one.material;
            });
            const QString &sum = same == stock.end() ? before : same->after;
            const QString after = (decimal::read(sum).value_or(decimal()) + one.quantity).text();
            if (same == stock.end())
                stock.push_back({one.material, &materialStruct::d_inWarehouse, before, after});
            else
                same->after = after;
        }
        stockedDeliveries::entries taken;
        for (const deliveredStock::taken &one : deliveredStock::takenOf(own))
            taken.push_back(std::make_shared<stockedDeliveries::entry>(
                stockedDeliveries::entry{m_document.path(), one}));
        window.takeIn(std::move(stock), std::move(taken), what);
    }
}

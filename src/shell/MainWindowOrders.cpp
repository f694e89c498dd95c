// The register of orders from the main window: opened, copied, and noted as sent.
#include "shell/MainWindow.h"

#include "data/documentDiff.h"
#include "data/vocabulary.h"
#include "dialogs/tableDialog.h"
#include "mail/mail.h"
#include "order/orderOperations.h"
#include "order/orderView.h"
#include "orders/annualPlanWindow.h"
#include "orders/ordersWindow.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/userName.h"
#include "util/userState.h"
#include "window/workProgress.h"

#include <QDir>
#include <QFileInfo>
#include <QTabWidget>
#include <QTimer>

orderRegister &MainWindow::orders()
{
    if (!m_register)
        m_register = std::make_unique<orderRegister>(orderIndex::usualCache());
    return *m_register;
}

void MainWindow::commandOrders(bool)
{
    if (!m_orders) {
        m_orders = std::make_unique<ordersWindow>(known(), orders());
        connect(m_orders.get(), &ordersWindow::openWanted, this, &MainWindow::openAt);
        connect(m_orders.get(), &ordersWindow::copyWanted, this, &MainWindow::copyAsNew);
        connect(m_orders.get(), &ordersWindow::stateChanged, this, [this] {
            lookWhetherSent();
            m_lookAtOrders->start();
        });
    }
    m_orders->showNow();
}

void MainWindow::commandAnnualPlan(bool)
{
    if (!m_plan) {
        m_plan = std::make_unique<annualPlanWindow>(known(), orders());
        connect(m_plan.get(), &annualPlanWindow::openWanted, this, &MainWindow::openAt);
    }
    m_plan->showNow();
}

void MainWindow::openAt(const QString &path, const QString &ktm, int line)
{
    openInPlace(path);
    if (!ktm.isEmpty() && QFileInfo(path) == QFileInfo(m_document.path()))
        showUse({true, path, line, ktm, {}, {}, {}});
}

// Another order than the one that is open takes its place, once that is saved or given up.
void MainWindow::openInPlace(const QString &path)
{
    if (QFileInfo(path) != QFileInfo(m_document.path())) {
        if (!closeDocument())
            return;
        openFile(path);
    }
    showNow();
    m_tabs->setCurrentIndex(0);
}

void MainWindow::copyAsNew(const QString &path)
{
    kiv_mat_zpStruct other;
    QString fault;
    if (!readChecked(path, &other, &fault)) {
        userPrompts().showError(QDir::toNativeSeparators(path).toHtmlEscaped()
                                + QLatin1String("<br>") + fault.toHtmlEscaped());
        return;
    }
    if (!closeDocument())
        return;
    forgetOrder();
    m_document.take(orderOperations::newOrderLike(other, orders().nextNumber(),
                                                  QDate::currentDate(),
                                                  orderOperations::usualDate(known().config())));
    userState::instance().lastZp.clear();
    showDocument();
    setChanged();
    showState();
    showNow();
    tell(tr("A new order was begun with the lines of %1").arg(QDir::toNativeSeparators(path)));
}

// After its message was handed to the mail program.
void MainWindow::noteSent()
{
    const kiv_mat_zpStruct &order = m_document.order();
    const QStringList to = mail::recipients(known().config(), QString(optionKey::personContractor),
                                            order.options.value(optionKey::personContractor));
    QString fault;
    if (!orders().noteSent(
            m_document.path(),
            {order.options.value(optionKey::orderNumber), userName(), to.join(QLatin1String(", "))},
            known().config(), &fault))
        userPrompts().showError(messages::notWritten(
            orderRegister::statesIn(QFileInfo(m_document.path()).absolutePath()), fault));
    lookWhetherSent();
    m_lookAtOrders->start();
}

void MainWindow::lookWhetherSent()
{
    m_hasSentCopy = !orders().sentCopy(m_document.path()).isEmpty();
    updateActions();
}

// What was sent is not changed by mistake.
void MainWindow::lockIfSent()
{
    lookWhetherSent();
    const orderStateStruct *sent = orders().sentState(m_document.path());
    if (!sent)
        return;
    setUnlocked(false);
    tell(tr("This order was sent on %1; Edit allows changes all the same").arg(sent->sent));
}

void MainWindow::commandSentChanges(bool)
{
    kiv_mat_zpStruct sent;
    QString fault;
    const QString copy = orders().sentCopy(m_document.path());
    if (copy.isEmpty())
        return;
    if (!readChecked(copy, &sent, &fault)) {
        userPrompts().showError(QDir::toNativeSeparators(copy).toHtmlEscaped()
                                + QLatin1String("<br>") + fault.toHtmlEscaped());
        return;
    }
    m_order->takeAttentions();
    const documentDiff diff = compareDocuments(sent, m_document.order());
    if (diff.rows.empty()) {
        tell(tr("Nothing was changed since it was sent"));
        return;
    }
    QList<QStringList> rows;
    for (const documentDifference &one : diff.rows)
        rows.append({one.name, one.caption, one.before, one.after});
    const readTable table{tr("Changed since it was sent"),
                          tr("%n difference(s)", nullptr, int(diff.rows.size())),
                          {labels::name(), tr("Field"), tr("Before"), tr("After")},
                          rows,
                          {260, 140, 240, 240}};
    (new tableDialog(table, this))->show();
}

// What the program does with unsaved work when it ends, and with what earlier runs left.
#include "shell/MainWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/Kiv_bomWindow.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "firm/firmWindow.h"
#include "shell/recoveryDialog.h"
#include "util/prompts.h"
#include "util/userState.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

void MainWindow::storeAll()
{
    finishEditing();
    storeRecovery();
    for (editWindow *window : secondaryWindows())
        window->storeRecovery();
}

// Boxes that are open answer as if they were closed, which loses nothing that is left by then.
void MainWindow::endNow()
{
    for (editWindow *window : secondaryWindows())
        window->leaveUnsaved();
    leaveUnsaved();
    QCoreApplication::exit(0);
}

void MainWindow::offerLeft(bool atStart)
{
    const std::vector<orderRecovery::copy> orders = m_recovery->left();
    // Later on their windows may be open.
    const std::vector<leftChanges> others =
        atStart ? leftChanges::all() : std::vector<leftChanges>();
    if (orders.empty() && others.empty())
        return;
    const auto withChange = [](const QString &content, const QString &path, const fileState &was) {
        return path.isEmpty() || fileState::of(path) == was
                   ? content
                   : content + QLatin1String("; ") + tr("the file has changed since");
    };
    std::vector<leftWork> all;
    std::vector<std::function<bool()>> open;
    for (const orderRecovery::copy &copy : orders) {
        all.push_back(
            {copy.order.isEmpty() ? tr("a new order") : QDir::toNativeSeparators(copy.order),
             copy.time,
             withChange(tr("order, %n line(s)", nullptr, copy.lines), copy.order, copy.onDisk),
             true, [this, copy] { m_recovery->remove(copy); }});
        open.emplace_back([this, copy] { return recoverOrder(copy); });
    }
    for (const leftChanges &copy : others) {
        all.push_back({QDir::toNativeSeparators(copy.path), copy.time,
                       withChange(tr("%n changed record(s)", nullptr, copy.records), copy.path,
                                  copy.settled.size >= 0 ? copy.settled : copy.onDisk),
                       false, [copy] { copy.remove(); }});
        open.emplace_back([this, copy] { return recoverOther(copy); });
    }
    recoveryDialog dialog(all, this);
    dialog.exec();
    const std::vector<size_t> chosen = dialog.chosen();
    // Of an order and others the order's window stays below.
    int opened = 0;
    bool hasOrder = false;
    for (size_t place : chosen) {
        const bool isOpen = open[place]();
        opened += isOpen;
        hasOrder = hasOrder || (isOpen && all[place].isOrder);
    }
    if (atStart && !hasOrder && !orders.empty()) {
        openLastOrder();
        userPrompts().showErrors();
    }
    const int kept = dialog.remaining() - opened;
    if (opened == 0 && kept > 0)
        tell(tr("%n unsaved file(s) kept for the next start", nullptr, kept));
}

bool MainWindow::recoverOrder(const orderRecovery::copy &copy)
{
    const QString name =
        copy.order.isEmpty() ? tr("a new order") : QDir::toNativeSeparators(copy.order);
    if (!m_recovery->takeOver(copy)) {
        userPrompts().showError(
            tr("Another program has opened what was left of %1 by now.").arg(name.toHtmlEscaped()));
        return false;
    }
    if (!m_document.recover(copy.file, copy.order, copy.onDisk)) {
        m_recovery->leave();
        userPrompts().showError(
            tr("What was left of %1 cannot be read. It stays in %2.")
                .arg(name.toHtmlEscaped(), QDir::toNativeSeparators(copy.file).toHtmlEscaped()));
        return false;
    }
    userState::instance().lastZp = copy.order;
    showDocument();
    setChanged();
    tell(tr("Restored as it was %1, not saved")
             .arg(copy.time.toString(QStringLiteral("dd.MM.yyyy hh:mm"))));
    return true;
}

bool MainWindow::recoverOther(const leftChanges &copy)
{
    editWindow *window = nullptr;
    if (copy.kind == fileKinds::firm.root) {
        commandFirm(false);
        window = m_firm.get();
    } else if (copy.kind == fileKinds::boms.root) {
        window = &bomWindow();
    } else if (copy.kind == fileKinds::bom.root && QFileInfo::exists(copy.path)) {
        window = &bomWindow().viewWindow(copy.path);
    }
    for (int kind = 0; kind < programData::databaseCount; ++kind)
        if (copy.kind == fileKinds::database.root && !window) {
            editWindow &candidate = databaseWindow(programData::databaseKind(kind));
            window = candidate.isOf(copy.path) ? &candidate : nullptr;
        }
    // Also what was restored a moment ago from another copy of the same file.
    if (window && window->isOf(copy.path) && window->isModified()) {
        userPrompts().showError(
            tr("The file %1 has changes that are not saved. What was left of it is kept for the "
               "next start.")
                .arg(QDir::toNativeSeparators(copy.path).toHtmlEscaped()));
        return false;
    }
    if (window)
        window->showNow();
    if (!window || !window->isOf(copy.path)) {
        userPrompts().showError(tr("The file %1 is none of those that the program has open. What "
                                   "was left of it is kept.")
                                    .arg(QDir::toNativeSeparators(copy.path).toHtmlEscaped()));
        return false;
    }
    return window->recover(copy);
}

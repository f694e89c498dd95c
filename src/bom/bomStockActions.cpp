// What the boards of the set take of the stock: reserved before they are built, taken out when they
// were.
#include "bom/Kiv_bomWindow.h"

#include "bom/boardStockDialog.h"
#include "bom/reservationsDialog.h"
#include "data/programData.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/userName.h"

#include <QDir>
#include <QFileInfo>

using namespace bomOperations;

namespace {

QString boardsText(const std::vector<bomSets> &lists)
{
    QStringList boards;
    for (const bomSets &list : lists)
        boards.append(QFileInfo(list.bom->filePath).completeBaseName() + QLatin1String(", ")
                      + Kiv_bomWindow::tr("%n set(s)", nullptr, list.sets));
    return boards.join(QLatin1String("; "));
}

} // namespace

// False, told to the user, while the file of reservations cannot be read.
bool Kiv_bomWindow::haveReservations()
{
    reservationsFile &file = known().reservations();
    file.now();
    if (file.fault().isEmpty())
        return true;
    userPrompts().showError(
        tr("The file %1 cannot be read").arg(QDir::toNativeSeparators(file.path())).toHtmlEscaped()
        + QLatin1String("<br>") + file.fault().toHtmlEscaped());
    return false;
}

void Kiv_bomWindow::commandReserve(bool)
{
    const readLists read = readBuilt(nullptr);
    if (read.lists.empty() || !haveReservations())
        return;
    const ktmIndex &materials = known().materials();
    const orderRules rules(known().config());
    demand needed = demandOf(read.lists, materials, rules);
    reservationsFile &file = known().reservations();
    // All that is reserved already, for these boards too: what is reserved comes on top.
    const QHash<QString, decimal> totals = reservedTotals(file.now());
    for (need &one : needed.needs)
        one.reserved = totals.value(one.ktm);
    boardStockDialog dialog(boardStockDialog::reserving, needed, materials, boardsText(read.lists),
                            this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const boardStock::occasion when{userName(), QDateTime::currentDateTime(), dialog.withExtra()};
    QString fault;
    const bool done = file.change(
        [&](kiv_mat_reservationsStruct &all) {
            for (const bomSets &list : read.lists)
                all.reserved.append(boardStock::boardOf(list, materials, rules, file.path(), when));
            return true;
        },
        known().config(), &fault);
    if (done)
        tell(tr("Stock reserved for %n board(s)", nullptr, int(read.lists.size())));
    else
        userPrompts().showError(messages::notWritten(file.path(), fault));
}

void Kiv_bomWindow::commandBuilt(bool)
{
    QList<QStandardItem *> built;
    const readLists read = readBuilt(&built);
    if (read.lists.empty() || !takeOut || !haveReservations())
        return;
    const ktmIndex &materials = known().materials();
    const orderRules rules(known().config());
    demand needed = demandOf(read.lists, materials, rules);
    boardStock::noteReserved(&needed, read.lists, materials, known().reservations().now());
    const QString boards = boardsText(read.lists);
    boardStockDialog dialog(boardStockDialog::takingOut, needed, materials, boards, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const boardStock::occasion when{userName(), QDateTime::currentDateTime(), dialog.withExtra()};
    // What is built is not built again by mistake.
    if (takeOut(boardStock::withdrawalsOf(dialog.takings(), read.lists, materials, rules,
                                          known().reservations().path(), when),
                boards))
        setSets(built, 0, tr("Taken out of stock: %1").arg(boards));
}

void Kiv_bomWindow::commandReservations(bool)
{
    reservationsDialog(known().reservations(), known().config(), this).exec();
}

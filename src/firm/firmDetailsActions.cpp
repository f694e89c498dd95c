// The details of firms in the window of their register: edited in a dialog, kept with firms that
// get other names.
#include "firm/firmWindow.h"

#include "data/firmDetails.h"
#include "firm/firmDetailsDialog.h"
#include "firm/firmDetailsMoves.h"
#include "firm/firmMerge.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QDir>
#include <QFileInfo>
#include <QTabWidget>

#include <tuple>
#include <utility>

using namespace firmOperations;

const firmStruct *firmWindow::currentFirm()
{
    const QModelIndex at = currentView()->markedCell();
    if (!at.isValid())
        return nullptr;
    const auto *first =
        static_cast<const myItem::myItemStandard *>(modelOf(currentView())->item(at.row(), 0));
    return static_cast<const firmStruct *>(first->record);
}

QString firmWindow::detailsPath() const { return firmDetails::pathBeside(m_path); }

// A file that cannot be read is told with its fault, and never written.
bool firmWindow::readDetails(kiv_mat_firmDetailsStruct *details)
{
    QString fault;
    if (firmDetails::read(detailsPath(), details, &fault))
        return true;
    userPrompts().showError(tr("The details of the firms in %1 cannot be read")
                                .arg(QDir::toNativeSeparators(detailsPath()))
                                .toHtmlEscaped()
                            + QLatin1String("<br>") + fault.toHtmlEscaped());
    return false;
}

// The name and number by which the firm's details are kept until the register is saved: those of
// its file; a new firm's own.
std::pair<QString, QString> firmWindow::savedAs(firmKind kind, const firmStruct &firm) const
{
    const firmStruct *found = &firm;
    for (const auto &saved : listOf(known().firm(), kind))
        if (nameAfter(m_detailNames, kind, saved->name) == firm.name
            && (found == &firm || saved->name == firm.name))
            found = saved.get();
    return {found->name, found->nip};
}

bool firmWindow::storeDetails(const firmDetailsStruct &before, const firmDetailsStruct &details)
{
    kiv_mat_firmDetailsStruct all;
    if (!readDetails(&all))
        return false;
    const firmDetailsStruct *now = firmDetails::find(all, details.name, details.nip);
    if (!(now ? *now == before : firmDetails::saysNothing(before))
        && !userPrompts().decide(tr("Another program has changed the details of %1 meanwhile.")
                                     .arg(details.name.toHtmlEscaped()),
                                 {tr("Write these over them")}, true))
        return false;
    firmDetails::put(&all, details.name, details.nip, details);
    if (!saveDocument(detailsPath(), all, known().config()))
        return false;
    tell(tr("The details of %1 are saved").arg(details.name));
    return true;
}

void firmWindow::commandDetails(bool)
{
    const firmStruct *firm = currentFirm();
    kiv_mat_firmDetailsStruct all;
    if (!firm || refuseWhileLocked() || !readDetails(&all))
        return;
    firmDetailsStruct fresh;
    std::tie(fresh.name, fresh.nip) = savedAs(firmKind(m_tabs->currentIndex()), *firm);
    if (fresh.name.trimmed().isEmpty()) {
        userPrompts().showError(tr("The firm has no name yet. Give it one first.").toHtmlEscaped());
        return;
    }
    const firmDetailsStruct *found = firmDetails::find(all, fresh.name, fresh.nip);
    const firmDetailsStruct &before = found ? *found : fresh;
    firmDetailsDialog(
        before, [&](const firmDetailsStruct &details) { return storeDetails(before, details); },
        this)
        .exec();
}

// The register has been written; what is in use is still what it was before.
void firmWindow::moveDetailsAlong()
{
    const renameList names = std::exchange(m_detailNames, {});
    if (!QFileInfo::exists(detailsPath()))
        return;
    kiv_mat_firmDetailsStruct details;
    if (!readDetails(&details))
        return;
    if (moveDetails(&details, known().firm(), *m_edited, names))
        saveDocument(detailsPath(), details, known().config());
}

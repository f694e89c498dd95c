// The window of BOM lists replaces a material in all lists of the set and in the open order.
#include "bom/Kiv_bomWindow.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/replaceMaterialDialog.h"
#include "data/programData.h"
#include "util/prompts.h"
#include "window/workProgress.h"

#include <QStatusBar>

using namespace materialReplacement;

void Kiv_bomWindow::commandReplaceMaterial(bool) { replaceMaterial({}, *this); }

// The window that shows a list of the set; null when none does.
Kiv_bomViewWindow *Kiv_bomWindow::openView(const QString &path) const
{
    for (const auto &[shown, window] : m_views)
        if (window->isVisible() && window->isOf(path))
            return window.get();
    return nullptr;
}

// The open order, the lists in windows as they stand there, the others as their files have them.
std::optional<std::vector<document>> Kiv_bomWindow::documents(baseWindow &over)
{
    std::vector<document> all;
    if (openOrder)
        all.push_back(openOrder());
    QStringList paths;
    for (const QString &path : filesOf(known().boms(), known().boms().filePath))
        if (Kiv_bomViewWindow *window = openView(path))
            all.push_back(window->asDocument());
        else
            paths.append(path);
    workProgress::scope work(over.progress(), tr("Reading"));
    auto read = readFiles(paths, work.function());
    if (!read)
        return {};
    std::move(read->begin(), read->end(), std::back_inserter(all));
    return all;
}

// The windows come last: what can fail are the files.
bool Kiv_bomWindow::carryOut(const std::vector<document *> &chosen, const replacement &what,
                             baseWindow &over)
{
    QString fault;
    togetherResult result;
    {
        workProgress::scope work(over.progress(), tr("Saving"));
        result = replaceInFiles(chosen, what, known().config(), work.function(), &fault);
    }
    if (result == togetherResult::failed)
        userPrompts().showError(
            tr("Nothing was replaced, because a file cannot be changed:").toHtmlEscaped()
            + QLatin1String("<br>")
            + fault.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>")));
    if (result != togetherResult::saved)
        return false;
    for (const document *in : chosen) {
        if (!in->isOpen)
            continue;
        if (in->order)
            replaceInOrder(what);
        else if (Kiv_bomViewWindow *window = openView(in->path))
            window->replaceMaterial(what);
    }
    return true;
}

void Kiv_bomWindow::replaceMaterial(const QString &before, baseWindow &over)
{
    QString old = before;
    QString fresh;
    QSet<QString> leftOut;
    // After a failure the user sees what the files hold then.
    while (true) {
        auto all = documents(over);
        userPrompts().showErrors();
        if (!all)
            return over.statusBar()->showMessage(tr("Cancelled"));
        replaceMaterialDialog dialog(known(), *all, &over);
        dialog.setMaterials(old, fresh);
        dialog.setLeftOut(leftOut);
        if (dialog.exec() != QDialog::Accepted)
            return;
        std::vector<document *> chosen;
        int lines = 0;
        for (const int at : dialog.chosen()) {
            chosen.push_back(&(*all)[size_t(at)]);
            lines += int(changeOf(*chosen.back(), dialog.wanted()).lines.size());
        }
        const int files = int(chosen.size());
        if (carryOut(std::move(chosen), dialog.wanted(), over))
            return over.statusBar()->showMessage(
                tr("%1 replaced by %2").arg(dialog.before(), dialog.after()) + QLatin1String(": ")
                + tr("%n line(s)", nullptr, lines) + QLatin1String(", ")
                + tr("lists and orders: %1").arg(files));
        old = dialog.before();
        fresh = dialog.after();
        leftOut = dialog.leftOut();
    }
}

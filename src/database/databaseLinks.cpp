// What the database window does with links: it opens them or their copies, has them examined, and
// gives them the addresses they moved to.
#include "database/Kiv_mat_databaseMergeWindow.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/datasheetCopies.h"
#include "database/linksWindow.h"
#include "database/materialFiles.h"
#include "database/materialWindow.h"

#include "tree/myTreeView.h"
#include "util/desktop.h"

#include <algorithm>

QString Kiv_mat_databaseWindow::currentLink() const
{
    const materialStruct *material = m_rows->materialAt(m_view->markedCell());
    return material ? databaseTree::linkOf(*material) : QString();
}

void Kiv_mat_databaseWindow::updateLinkActions()
{
    setAvailable("openCopy", !datasheetCopies::of(currentLink()).isEmpty(),
                 tr("its document was not fetched"));
    if (m_links)
        m_links->updateActions();
}

void Kiv_mat_databaseWindow::commandOpenLink(bool)
{
    const QString link = currentLink();
    if (link.isEmpty()
        || !desktop::followLink(
            datasheetCopies::toOpen(materialFiles::addressOf(link), datasheetCopies::isOnline())))
        tell(tr("This material has no link that can be opened"));
}

void Kiv_mat_databaseWindow::commandOpenCopy(bool)
{
    const QString copy = datasheetCopies::of(currentLink());
    if (!copy.isEmpty())
        desktop::followLink(QUrl::fromLocalFile(copy));
}

void Kiv_mat_databaseWindow::commandExamineLinks(bool)
{
    if (!m_links)
        m_links = std::make_unique<linksWindow>(this);
    m_links->showNow();
}

int Kiv_mat_databaseWindow::replaceLinks(
    const std::vector<linkExamination::replacement> &replacements)
{
    if (!finishEditing())
        return 0;
    auto changes = linkExamination::changesOf(m_rows->database(), replacements);
    const int count = int(changes.size());
    pushNames(std::move(changes), tr("%n link(s) taken over", nullptr, count));
    return count;
}

bool Kiv_mat_databaseWindow::goToMaterial(const QString &ktm, const QString &link)
{
    for (const auto &group : m_rows->database().groups)
        for (const auto &material : group->items) {
            const auto has = [&link](const auto &sources) {
                return std::any_of(
                    sources.items.begin(), sources.items.end(), [&link](const auto &source) {
                        return std::any_of(
                            source->files.items.begin(), source->files.items.end(),
                            [&link](const auto &file) { return file->name == link; });
                    });
            };
            if (material->d_ktm != ktm
                || !(has(material->manufacturers) || has(material->suppliers)))
                continue;
            showNow();
            selectMaterial(material.get());
            m_view->setFocus();
            return true;
        }
    return false;
}

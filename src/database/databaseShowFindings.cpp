// The database window and its table of checks.
#include "database/Kiv_mat_databaseWindow.h"

#include "database/findingsWindow.h"
#include "database/linkOperations.h"
#include "tree/myTreeView.h"

#include <QDateTime>
#include <QHeaderView>

findingsWindow &Kiv_mat_databaseWindow::findings()
{
    if (!m_findings)
        m_findings = std::make_unique<findingsWindow>(this);
    return *m_findings;
}

void Kiv_mat_databaseWindow::commandChecks(bool) { findings().showNow(); }

// What did not answer stays known until it answers.
void Kiv_mat_databaseWindow::noteLinks(const linkCheckResult &checked)
{
    QHash<QString, QString> dead = findings().deadLinks();
    const QString when = QDateTime::currentDateTime().toString(QStringLiteral("dd.MM.yyyy hh:mm"));
    for (const checkedLink &link : checked.links)
        if (link.answers)
            dead.remove(link.link);
        else
            dead.insert(link.link, when);
    findings().setDeadLinks(dead);
}

void Kiv_mat_databaseWindow::goToCell(const materialStruct *material, const d_groupStruct *group,
                                      QLatin1String field)
{
    if (!finishEditing())
        return;
    if (material && !m_rows->isShown(*material))
        showAll();
    if (material)
        selectMaterial(material);
    else if (QStandardItem *row = m_rows->groupItem(group))
        selectItem(m_view, row);
    for (size_t column = 0; column < m_rows->columns().size(); ++column) {
        if (m_rows->columns()[column].key != field)
            continue;
        m_view->header()->setSectionHidden(int(column), false);
        m_view->goTo(m_view->currentIndex().siblingAtColumn(int(column)));
        // The table may cover the lower part of the window.
        m_view->scrollTo(m_view->currentIndex(), QAbstractItemView::PositionAtCenter);
    }
}

void Kiv_mat_databaseWindow::showCell()
{
    raise();
    activateWindow();
    m_view->setFocus();
}

// What the search field and the filters of the database window let be seen, and opening of groups.
#include "database/Kiv_mat_databaseWindow.h"

#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "window/searchLine.h"
#include "window/workProgress.h"

#include <QAction>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QMenu>
#include <QStatusBar>
#include <QTimer>

using materialRows = databaseTree::rows;
using myItem::myItemStandard;

namespace {

constexpr int sliceMs = 25;
// Groups with matches open by themselves while no more materials than these are found.
constexpr int openedMatches = 300;

const std::pair<const char *, QLatin1String> statusFilters[] = {
    {"gray", statusWord::grey},
    {"green", statusWord::green},
    {"violet", statusWord::violet},
    {"blue", statusWord::blue},
};

} // namespace

// ----------------------------------------------------------------------

void Kiv_mat_databaseWindow::commandFind(bool) { m_words->begin(); }

void Kiv_mat_databaseWindow::setFilter(const char *name, const QString &word, bool on)
{
    // The active one chosen again shows all.
    m_statusFilter = on ? word : QString();
    for (const auto &[other, otherWord] : statusFilters)
        if (on && qstrcmp(other, name) != 0)
            action(other)->setChecked(false);
    if (on)
        m_statusFilter = word;
    applyFilter();
}

void Kiv_mat_databaseWindow::commandGray(bool on) { setFilter("gray", statusWord::grey, on); }
void Kiv_mat_databaseWindow::commandGreen(bool on) { setFilter("green", statusWord::green, on); }
void Kiv_mat_databaseWindow::commandViolet(bool on) { setFilter("violet", statusWord::violet, on); }
void Kiv_mat_databaseWindow::commandBlue(bool on) { setFilter("blue", statusWord::blue, on); }

void Kiv_mat_databaseWindow::commandEdited(bool on)
{
    m_editedFilter = on;
    applyFilter();
}

bool Kiv_mat_databaseWindow::isShown(const materialStruct &material) const
{
    if (!m_statusFilter.isEmpty() && !material.information.status.contains(m_statusFilter))
        return false;
    if (m_editedFilter
        && material.information.edited.compare(statusWord::yes, Qt::CaseInsensitive) != 0)
        return false;
    return m_query.terms().empty() || known().search().matches(&material, m_query);
}

void Kiv_mat_databaseWindow::filterRow(QStandardItem *group, int row)
{
    const auto *first = static_cast<const myItemStandard *>(group->child(row));
    const auto *material = first ? static_cast<materialStruct *>(first->record) : nullptr;
    if (!material)
        return;
    m_words->setRowShown(first->index(), isShown(*material));
}

void Kiv_mat_databaseWindow::applyFilter()
{
    m_query = m_words->query();
    const bool searching = !m_query.terms().empty();
    m_shownCount = 0;
    int all = 0;
    std::vector<QStandardItem *> matching;
    for (const auto &group : m_rows->database().groups) {
        int matches = 0;
        for (const auto &material : group->items)
            matches += isShown(*material);
        all += int(group->items.size());
        m_shownCount += matches;
        QStandardItem *item = m_rows->groupItem(group.get());
        if (!item)
            continue;
        m_words->setRowShown(item->index(), !searching || matches > 0);
        if (matches > 0)
            matching.push_back(item);
    }
    m_filterGroup = 0;
    filterSlice();
    if (searching && m_shownCount <= openedMatches)
        for (QStandardItem *item : matching)
            m_view->expand(item->index());
    QString told = m_query.errors().join(QLatin1String(", "));
    if (told.isEmpty())
        told = m_shownCount == all
                   ? tr("%n material(s)", nullptr, all)
                   : tr("%1 of %n material(s) shown", nullptr, all).arg(m_shownCount);
    tell(told);
}

// The first material that the search shows, unless one of them is current.
void Kiv_mat_databaseWindow::goToFound()
{
    if (m_query.terms().empty()
        || materialRows::materialOf(m_model->itemFromIndex(m_view->markedCell())))
        return;
    for (QModelIndex row = m_view->indexAt({0, 0}); row.isValid(); row = m_view->indexBelow(row))
        if (const materialStruct *found = materialRows::materialOf(m_model->itemFromIndex(row));
            found && isShown(*found)) {
            m_view->goTo(row);
            return;
        }
}

// Rows that are made already, some at a time, so that the next key need not wait.
void Kiv_mat_databaseWindow::filterSlice()
{
    QElapsedTimer time;
    time.start();
    while (m_filterGroup >= 0 && m_filterGroup < m_model->rowCount()) {
        QStandardItem *group = m_model->item(m_filterGroup++);
        for (int row = 0; row < group->rowCount(); ++row)
            filterRow(group, row);
        if (time.elapsed() > sliceMs) {
            QTimer::singleShot(0, this, &Kiv_mat_databaseWindow::filterSlice);
            return;
        }
    }
    m_filterGroup = -1;
    m_view->deselectHidden();
}

void Kiv_mat_databaseWindow::selectItem(QTreeView *view, QStandardItem *item)
{
    static_cast<myTreeView *>(view)->goTo(item->index());
}

void Kiv_mat_databaseWindow::selectMaterial(materialStruct *material)
{
    if (!m_rows->find(material))
        for (const auto &group : m_rows->database().groups)
            for (const auto &candidate : group->items)
                if (candidate.get() == material)
                    m_model->fetch(m_rows->groupItem(group.get()));
    if (myItemStandard *first = m_rows->find(material))
        selectItem(m_view, first);
}

void Kiv_mat_databaseWindow::commandExpand(bool)
{
    workProgress::scope work(progress(), tr("Opening groups"));
    const auto step = work.function();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        m_view->expandItem(m_model->item(row));
        if (!step(row + 1, m_model->rowCount()))
            return;
    }
}

void Kiv_mat_databaseWindow::commandExpand2(bool on) { commandExpand(on); }

void Kiv_mat_databaseWindow::commandCollaps(bool) { m_view->collapseAll(); }

void Kiv_mat_databaseWindow::commandColumns(bool)
{
    QMenu menu(this);
    QHeaderView *header = m_view->header();
    for (size_t c = 1; c < m_rows->columns().size(); ++c) {
        QAction *column = menu.addAction(m_rows->columns()[c].label);
        column->setCheckable(true);
        column->setChecked(!header->isSectionHidden(int(c)));
        connect(column, &QAction::toggled, header,
                [header, c](bool on) { header->setSectionHidden(int(c), !on); });
    }
    menu.exec(QCursor::pos());
}

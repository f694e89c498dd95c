// What the search field and the filters of the database window let be seen, and opening of groups.
#include "database/Kiv_mat_databaseWindow.h"

#include "data/vocabulary.h"
#include "tree/myTreeView.h"
#include "window/searchLine.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QStatusBar>

using materialRows = databaseTree::rows;
using myItem::myItemStandard;

namespace {

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

bool Kiv_mat_databaseWindow::matches(const materialStruct &material) const
{
    if (!m_statusFilter.isEmpty() && !material.information.status.contains(m_statusFilter))
        return false;
    if (m_editedFilter
        && material.information.edited.compare(statusWord::yes, Qt::CaseInsensitive) != 0)
        return false;
    return m_query.terms().empty() || known().search().matches(&material, m_query);
}

// Takes back the search and the filters.
void Kiv_mat_databaseWindow::showAll()
{
    m_words->clear();
    for (const auto &[name, word] : statusFilters)
        action(name)->setChecked(false);
    action("edited")->setChecked(false);
    applyFilter();
}

// Rows that do not match go, so nothing of them is selected or current.
void Kiv_mat_databaseWindow::deselectUnmatched()
{
    const auto isGone = [this](const QModelIndex &row) {
        const materialStruct *material = m_rows->materialAt(row);
        return material && !matches(*material);
    };
    QItemSelection gone;
    for (const QItemSelectionRange &range : m_view->selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            if (const QModelIndex first = QModelIndex(range.topLeft()).siblingAtRow(row);
                isGone(first))
                gone.select(first, first.siblingAtColumn(range.right()));
    if (!gone.isEmpty())
        m_view->selectionModel()->select(gone, QItemSelectionModel::Deselect);
    if (const QModelIndex current = m_view->currentIndex(); isGone(current))
        m_view->selectionModel()->setCurrentIndex(current.parent(), QItemSelectionModel::NoUpdate);
}

// What a search opened closes again when it finds too much to look through, which would have all of
// it laid out; where the cursor is stays open.
void Kiv_mat_databaseWindow::closeOpened()
{
    const QModelIndex current = m_view->currentIndex();
    m_view->expandRows({}); // laid out once, after all of them
    for (const QPersistentModelIndex &group : std::exchange(m_opened, {}))
        if (group.isValid() && current.parent() != group)
            m_view->collapse(group);
}

void Kiv_mat_databaseWindow::applyFilter()
{
    m_query = m_words->query();
    const bool searching = !m_query.terms().empty();
    if (!m_opened.empty()
        && (!searching || known().search().find(m_query, 0).total > openedMatches))
        closeOpened();
    if (searching || m_editedFilter || !m_statusFilter.isEmpty()) {
        deselectUnmatched();
        m_rows->setFilter([this](const materialStruct &material) { return matches(material); });
    } else {
        m_rows->setFilter({});
    }
    showGroups();
    if (searching && m_shownCount <= openedMatches) {
        std::vector<QStandardItem *> matching;
        for (const auto &group : m_rows->database().groups)
            if (QStandardItem *item = m_rows->groupItem(group.get());
                item && m_rows->shownIn(group.get()) > 0 && !m_view->isExpanded(item->index())) {
                matching.push_back(item);
                m_opened.emplace_back(item->index());
            }
        m_view->expandRows(matching);
    }
    QString told = m_query.errors().join(QLatin1String(", "));
    if (told.isEmpty()) {
        const int all = m_rows->database().materialCount();
        told = m_shownCount == all
                   ? tr("%n material(s)", nullptr, all)
                   : tr("%1 of %n material(s) shown", nullptr, all).arg(m_shownCount);
    }
    tell(told);
}

// While searching, groups without materials that can be seen are hidden.
void Kiv_mat_databaseWindow::showGroups()
{
    m_shownCount = 0;
    for (const auto &group : m_rows->database().groups) {
        const int shown = m_rows->shownIn(group.get());
        m_shownCount += shown;
        if (const QStandardItem *item = m_rows->groupItem(group.get()))
            m_words->setRowShown(item->index(), m_query.terms().empty() || shown > 0);
    }
    m_view->deselectHidden();
    showHint();
}

void Kiv_mat_databaseWindow::showHint()
{
    const bool isEmpty = m_rows->database().groups.empty();
    m_hint->setText(isEmpty ? tr("The database is empty. <a href=\"addGroup\">Add a group</a>, or "
                                 "<a href=\"merge\">take over from another file</a>.")
                            : tr("Nothing matches. <a href=\"all\">Show all</a>."));
    m_hint->adjustSize();
    m_hint->setVisible(isEmpty || (m_shownCount == 0 && !m_query.terms().empty()));
}

// The first material that the search shows, unless one of them is current.
void Kiv_mat_databaseWindow::goToFound()
{
    if (m_query.terms().empty() || m_rows->materialAt(m_view->markedCell()))
        return;
    for (QModelIndex row = m_view->indexAt({0, 0}); row.isValid(); row = m_view->indexBelow(row))
        if (m_rows->materialAt(row)) {
            m_view->goTo(row);
            return;
        }
}

void Kiv_mat_databaseWindow::selectItem(QTreeView *view, QStandardItem *item)
{
    static_cast<myTreeView *>(view)->goTo(item->index());
}

void Kiv_mat_databaseWindow::selectMaterial(const materialStruct *material)
{
    if (!m_rows->find(material) && m_rows->bring(material)) {
        m_rows->follow();
        showGroups();
    }
    if (myItemStandard *first = m_rows->find(material))
        selectItem(m_view, first);
}

void Kiv_mat_databaseWindow::commandExpand(bool)
{
    std::vector<QStandardItem *> groups;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        m_model->fetch(m_model->item(row));
        groups.push_back(m_model->item(row));
    }
    m_view->expandRows(groups);
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

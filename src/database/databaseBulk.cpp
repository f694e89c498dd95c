// Changing many materials of the database window in one step.
#include "database/Kiv_mat_databaseWindow.h"

#include "database/bulkCommands.h"
#include "database/bulkEditDialog.h"
#include "tree/myTreeView.h"
#include "window/workProgress.h"

#include <QStandardItem>

using materialRows = databaseTree::rows;

namespace {

// As they stand in the tree, which may be sorted; rows that are not made stand as in the file.
std::vector<bulkEdit::place> placesOf(d_groupStruct &group, databaseTree::rows &rows)
{
    std::vector<std::pair<int, bulkEdit::place>> found;
    for (const auto &material : group.items) {
        const myItem::myItemStandard *first = rows.find(material.get());
        found.emplace_back(first ? first->row() : int(found.size()),
                           bulkEdit::place{material.get(), &group, &rows.database()});
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<bulkEdit::place> places;
    for (const auto &[row, at] : found)
        places.push_back(at);
    return places;
}

} // namespace

// The selected ones; a group stands for those of its materials that are seen. Or all that are.
std::vector<bulkEdit::place> Kiv_mat_databaseWindow::placesToChange(bool selectedOnly)
{
    std::vector<bulkEdit::place> places;
    const auto addGroup = [&](const QStandardItem *item) {
        d_groupStruct *group = materialRows::groupOf(item);
        for (const bulkEdit::place &at : placesOf(*group, *m_rows))
            if (m_rows->isShown(*at.material))
                places.push_back(at);
    };
    if (!selectedOnly) {
        for (int row = 0; row < m_model->rowCount(); ++row)
            addGroup(m_model->item(row));
        return places;
    }
    int wholeGroup = -1;
    const materialStruct *last = nullptr;
    for (const QModelIndex &cell : m_view->markedCells()) {
        if (!cell.parent().isValid()) {
            if (std::exchange(wholeGroup, cell.row()) != cell.row())
                addGroup(m_model->item(cell.row()));
            continue;
        }
        materialStruct *material = m_rows->materialAt(cell);
        if (cell.parent().row() == wholeGroup || material == last || !m_rows->isShown(*material))
            continue;
        last = material;
        places.push_back({material, materialRows::groupOf(m_model->item(cell.parent().row())),
                          &m_rows->database()});
    }
    return places;
}

void Kiv_mat_databaseWindow::commandChangeMaterials(bool)
{
    bulkEditDialog::source from{
        placesToChange(true), placesToChange(false), false,  m_rows->database(),
        known().materials(),  known().firm(),        nullptr};
    if (from.shown.empty()) {
        tell(tr("No material is selected"));
        return;
    }
    from.isFiltered = int(from.shown.size()) < m_rows->database().materialCount();
    from.current = m_rows->materialAt(m_view->markedCell());
    const int column = std::max(0, m_view->currentIndex().column());
    bulkEditDialog dialog(std::move(from), m_rows->columns()[size_t(column)].key, this);
    if (dialog.exec() == QDialog::Accepted)
        changeMaterials(dialog.plan(), dialog.chosen());
}

// The row that becomes the current one when materials leave their group: the next one, or the one
// before; none when all go that are seen.
QModelIndex Kiv_mat_databaseWindow::rowThatStays(const std::vector<bulkEdit::place> &leaving) const
{
    const QModelIndex current = m_view->currentIndex();
    const QModelIndex group = current.parent();
    if (!group.isValid())
        return {};
    QSet<const materialStruct *> left;
    for (const bulkEdit::place &at : leaving)
        left.insert(at.material);
    for (const int step : {1, -1})
        for (int row = current.row(); row >= 0 && row < m_model->rowCount(group); row += step)
            if (!m_view->isRowHidden(row, group)
                && !left.contains(m_rows->materialAt(current.sibling(row, 0))))
                return current.sibling(row, current.column());
    return {};
}

bool Kiv_mat_databaseWindow::changeMaterials(const bulkEdit::plan &plan,
                                             const std::vector<int> &chosen)
{
    historyMoves();
    bool done = false;
    std::unique_ptr<command> step;
    const QString told = tr("Changing materials");
    // There is no way to stop a step of the history halfway.
    const workShown historyShown = [this, told](const auto &work) {
        workProgress::scope scope(progress(), told, workProgress::scope::runsToItsEnd);
        work(scope.function());
    };
    {
        workProgress::scope work(progress(), told);
        const auto run = [&](auto made) {
            done = made->run(work.function());
            step = std::move(made);
        };
        if (plan.made.kind == bulkEdit::request::toGroup) {
            std::vector<bulkEdit::place> places;
            for (int row : chosen)
                places.push_back(plan.changes[size_t(row)].at);
            const auto group = std::find_if(
                m_rows->database().groups.begin(), m_rows->database().groups.end(),
                [&plan](const auto &candidate) { return candidate->name == plan.made.text; });
            const QPersistentModelIndex next = rowThatStays(places);
            const auto begins = [this] {
                if (const QModelIndex current = m_view->currentIndex(); current.parent().isValid())
                    m_view->selectionModel()->setCurrentIndex(current.parent(),
                                                              QItemSelectionModel::Clear);
            };
            run(std::make_unique<moveToGroup>(m_model, m_rows.get(), group->get(), places, begins,
                                              historyShown));
            if (next.isValid())
                m_view->setCurrentIndex(next);
        } else {
            run(std::make_unique<bulkChange>(bulkEdit::changes(plan, chosen), m_rows.get(),
                                             &known().materials(), historyShown));
        }
    }
    if (done) {
        push(std::move(step), tr("%n material(s) changed", nullptr, int(chosen.size())));
    } else {
        historyMoved();
        tell(tr("Cancelled"));
    }
    return done;
}

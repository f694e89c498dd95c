#include "database/bulkCommands.h"

#include "tree/myModel.h"

using myItem::detachedRecord;
using myItem::myItemStandard;

namespace {

constexpr size_t shownPlaces = 1000; // more are not selected

} // namespace

// --- Texts and firms
// ------------------------------------------------------------------------------

bulkChange::bulkChange(bulkEdit::changes changes, databaseTree::rows *rows, ktmIndex *known,
                       workShown shown)
    : m_changes(std::move(changes))
    , m_rows(rows)
    , m_known(known)
    , m_shown(std::move(shown))
{
}

bulkEdit::changes::told bulkChange::before() const
{
    const bool isKey = m_changes.target() && m_changes.target()->kind == bulkEdit::field::ktm;
    return [this, isKey](const bulkEdit::place &at) {
        m_rows->willChange(at.material);
        if (isKey)
            m_known->remove(at.material);
    };
}

bulkEdit::changes::told bulkChange::after() const
{
    const bool isKey = m_changes.target() && m_changes.target()->kind == bulkEdit::field::ktm;
    return [this, isKey](const bulkEdit::place &at) {
        if (isKey)
            m_known->insert(at);
        m_rows->refresh(at.material);
    };
}

bool bulkChange::run(const progressFunction &progress)
{
    return m_changes.apply(before(), after(), progress);
}

void bulkChange::undo()
{
    m_shown([this](const progressFunction &progress) {
        m_changes.revert(before(), after(), progress);
    });
}

void bulkChange::redo()
{
    m_shown([this](const progressFunction &progress) { run(progress); });
}

void bulkChange::places(std::vector<QStandardItem *> &cells) const
{
    int column = databaseTree::nameColumn;
    for (size_t c = 0; c < m_rows->columns().size(); ++c)
        if (m_changes.target() && m_rows->columns()[c].key == m_changes.target()->name)
            column = int(c);
    for (size_t i = 0; i < std::min(m_changes.size(), shownPlaces); ++i)
        if (const myItemStandard *first = m_rows->find(m_changes.at(i).material))
            cells.push_back(static_cast<myModel *>(first->model())
                                ->itemFromIndex(first->index().siblingAtColumn(column)));
}

// --- Moving
// ---------------------------------------------------------------------------------------

moveToGroup::moveToGroup(myModel *model, databaseTree::rows *rows, d_groupStruct *to,
                         const std::vector<bulkEdit::place> &materials,
                         std::function<void()> begins, workShown shown)
    : m_model(model)
    , m_rows(rows)
    , m_to(to)
    , m_begins(std::move(begins))
    , m_shown(std::move(shown))
{
    for (const bulkEdit::place &at : materials)
        m_moved.push_back({at.material, at.group});
}

bool moveToGroup::run(const progressFunction &progress)
{
    const changeBatch batch(m_model);
    m_begins();
    QStandardItem *to = m_rows->groupItem(m_to);
    m_model->fetch(to);
    progressSteps steps(progress, qint64(m_moved.size()));
    for (m_done = 0; m_done < m_moved.size();) {
        moved &one = m_moved[m_done++];
        m_model->fetch(m_rows->groupItem(one.from));
        const QStandardItem *first = m_rows->bring(one.material);
        one.row = first->row();
        const myItem::row cells = m_model->takeWithRecord(first->parent(), one.row);
        detachedRecord &record = *static_cast<myItemStandard *>(cells.first())->owned;
        one.place = record.place;
        record.row = record.place = -1; // it goes to the end
        m_model->insertWithRecord(to, to->rowCount(), cells);
        if (!steps.next()) {
            takeBack({});
            return false;
        }
    }
    m_model->emitAppendOccured();
    return true;
}

void moveToGroup::undo()
{
    m_shown([this](const progressFunction &progress) { takeBack(progress); });
}

void moveToGroup::redo()
{
    m_shown([this](const progressFunction &progress) { run(progress); });
}

void moveToGroup::takeBack(const progressFunction &progress)
{
    const changeBatch batch(m_model);
    m_begins();
    progressSteps steps(progress, qint64(m_done));
    while (m_done > 0) {
        const moved &one = m_moved[--m_done];
        QStandardItem *from = m_rows->groupItem(one.from);
        m_model->fetch(m_rows->groupItem(m_to));
        m_model->fetch(from);
        const QStandardItem *first = m_rows->bring(one.material);
        const myItem::row cells = m_model->takeWithRecord(first->parent(), first->row());
        detachedRecord &record = *static_cast<myItemStandard *>(cells.first())->owned;
        record.row = one.row;
        record.place = one.place;
        m_model->insertWithRecord(from, std::min(one.row, from->rowCount()), cells);
        steps.next();
    }
    m_model->emitAppendOccured();
}

void moveToGroup::places(std::vector<QStandardItem *> &cells) const
{
    for (size_t i = 0; i < std::min(m_moved.size(), shownPlaces); ++i)
        if (myItemStandard *first = m_rows->find(m_moved[i].material))
            cells.push_back(first);
}

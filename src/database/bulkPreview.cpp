#include "database/bulkPreview.h"

#include "database/bulkEditDialog.h"
#include "util/labels.h"
#include "util/text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

void bulkPreview::show(bulkEdit::plan made)
{
    beginResetModel();
    m_plan = std::move(made);
    m_marked.assign(m_plan.changes.size(), true);
    m_markedCount = int(m_marked.size());
    endResetModel();
}

std::vector<int> bulkPreview::marked() const
{
    std::vector<int> rows;
    for (size_t i = 0; i < m_marked.size(); ++i)
        if (m_marked[i])
            rows.push_back(int(i));
    return rows;
}

void bulkPreview::mark(const QModelIndexList &rows, bool on)
{
    for (const QModelIndex &index : rows) {
        const int place = index.row() - refusedCount();
        if (place < 0 || m_marked[size_t(place)] == on)
            continue;
        m_marked[size_t(place)] = on;
        m_markedCount += on ? 1 : -1;
    }
    tellMarks();
}

void bulkPreview::markAll(bool on)
{
    m_marked.assign(m_marked.size(), on);
    m_markedCount = on ? int(m_marked.size()) : 0;
    tellMarks();
}

void bulkPreview::refuse(std::vector<bulkEdit::row> rows)
{
    beginResetModel();
    QSet<const materialStruct *> materials;
    for (bulkEdit::row &row : rows) {
        materials.insert(row.at.material);
        m_plan.refused.push_back(std::move(row));
    }
    std::vector<bulkEdit::row> kept;
    std::vector<bool> marks;
    for (size_t i = 0; i < m_plan.changes.size(); ++i)
        if (!materials.contains(m_plan.changes[i].at.material)) {
            kept.push_back(std::move(m_plan.changes[i]));
            marks.push_back(m_marked[i]);
        }
    m_plan.changes = std::move(kept);
    m_marked = std::move(marks);
    m_markedCount = int(std::count(m_marked.begin(), m_marked.end(), true));
    endResetModel();
}

int bulkPreview::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : refusedCount() + int(m_plan.changes.size());
}

int bulkPreview::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCountOfAll;
}

QVariant bulkPreview::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    switch (section) {
    case ktmColumn:
        return labels::ktm();
    case nameColumn:
        return labels::name();
    case beforeColumn:
        return bulkEditDialog::tr("Before");
    case afterColumn:
        return bulkEditDialog::tr("After");
    default:
        return bulkEditDialog::tr("Refused because");
    }
}

QVariant bulkPreview::data(const QModelIndex &index, int role) const
{
    const bool isRefused = index.row() < refusedCount();
    switch (role) {
    case Qt::DisplayRole:
        return textOf(index).simplified();
    case Qt::ToolTipRole:
        return text::toolTip(textOf(index));
    case Qt::CheckStateRole:
        if (index.column() == ktmColumn && !isRefused)
            return m_marked[size_t(index.row() - refusedCount())] ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::DecorationRole:
        return index.column() == ktmColumn && isRefused
                   ? QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning)
                   : QVariant();
    default:
        return {};
    }
}

Qt::ItemFlags bulkPreview::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == ktmColumn && index.row() >= refusedCount()
               ? usual | Qt::ItemIsUserCheckable
               : usual;
}

bool bulkPreview::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role == Qt::CheckStateRole)
        mark({index}, value.toInt() == Qt::Checked);
    return role == Qt::CheckStateRole;
}

void bulkPreview::tellMarks()
{
    emit dataChanged(index(0, ktmColumn), index(rowCount() - 1, ktmColumn), {Qt::CheckStateRole});
}

QString bulkPreview::textOf(const QModelIndex &index) const
{
    const int place = index.row() - refusedCount();
    const bulkEdit::row &row =
        place < 0 ? m_plan.refused[size_t(index.row())] : m_plan.changes[size_t(place)];
    switch (index.column()) {
    case ktmColumn:
        return row.at.material->d_ktm;
    case nameColumn:
        return row.at.material->d_name;
    case beforeColumn:
        return bulkEdit::shownBefore(m_plan.made, row);
    case afterColumn:
        return bulkEdit::shownAfter(m_plan.made, row);
    default:
        return row.refusal;
    }
}

void tickingView::keyPressEvent(QKeyEvent *event)
{
    auto *preview = static_cast<bulkPreview *>(model());
    const QModelIndex first = currentIndex().sibling(currentIndex().row(), 0);
    if (event->key() == Qt::Key_Space && first.isValid())
        preview->mark(selectionModel()->selectedRows(),
                      first.data(Qt::CheckStateRole).toInt() != Qt::Checked);
    else
        QTreeView::keyPressEvent(event);
}

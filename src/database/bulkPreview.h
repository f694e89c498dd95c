// The preview of a change of many materials: what each of them would become, with a tick.
#pragma once

#include "database/bulkEdit.h"

#include <QAbstractTableModel>
#include <QTreeView>

// The rows of a plan: first what is refused, then what is changed, with ticks.
class bulkPreview : public QAbstractTableModel
{
public:
    enum column
    {
        ktmColumn,
        nameColumn,
        beforeColumn,
        afterColumn,
        reasonColumn,
        columnCountOfAll
    };

    using QAbstractTableModel::QAbstractTableModel;

    void show(bulkEdit::plan made);
    const bulkEdit::plan &plan() const { return m_plan; }
    int markedCount() const { return m_markedCount; }
    // Of the plan's changes, by number.
    std::vector<int> marked() const;
    void mark(const QModelIndexList &rows, bool on);
    void markAll(bool on);
    // Moves changes to the refused ones.
    void refuse(std::vector<bulkEdit::row> rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;

private:
    // Once for many, which are counted then.
    void tellMarks();
    int refusedCount() const { return int(m_plan.refused.size()); }
    QString textOf(const QModelIndex &index) const;

    bulkEdit::plan m_plan;
    std::vector<bool> m_marked;
    int m_markedCount = 0;
};

// Space ticks all the selected rows, or none of them.
class tickingView : public QTreeView
{
public:
    using QTreeView::QTreeView;

protected:
    void keyPressEvent(QKeyEvent *event) override;
};

// The staged lines of an import as a table, and what of them is shown.
#pragma once

#include "bom/bomImport.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>

class stagedLinesModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum column
    {
        stateColumn,
        designatorsColumn,
        quantityColumn,
        partColumn,
        ktmColumn,
        nameColumn,
        reasonColumn,
        remarksColumn,
        columns
    };
    using QAbstractTableModel::QAbstractTableModel;

    void show(bomImport::staged lines);
    const bomImport::staged &lines() const { return m_lines; }
    const bomImport::stagedLine &line(int row) const { return m_lines.lines[size_t(row)]; }
    // Another one in the place of a line.
    void replace(int row, bomImport::stagedLine line);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QString text(const bomImport::stagedLine &line, int column);

    bomImport::staged m_lines;
};

// The lines of one state, or of all, that hold a text. Numbers of designators sort as people count.
class stagedLinesFilter : public QSortFilterProxyModel
{
    Q_OBJECT
public:
    explicit stagedLinesFilter(stagedLinesModel *lines);

    // -1: all.
    void setState(int state);
    void setText(const QString &text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    stagedLinesModel *m_lines;
    int m_state = -1;
    QString m_text;
};

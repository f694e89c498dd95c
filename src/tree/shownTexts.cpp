#include "tree/shownTexts.h"

#include "util/text.h"

#include <QApplication>
#include <QClipboard>
#include <QTreeWidget>

#include <algorithm>

QList<QStringList> shownTexts(const QTreeWidget &table)
{
    QList<QStringList> rows;
    const auto add = [&](const QTreeWidgetItem &item) {
        QStringList cells;
        for (int column = 0; column < table.columnCount(); ++column)
            cells.append(item.text(column));
        rows.append(cells);
    };
    add(*table.headerItem());
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget *>(&table)); *at; ++at)
        add(**at);
    return rows;
}

void copyRows(QModelIndexList rows)
{
    std::sort(rows.begin(), rows.end());
    QString all;
    for (const QModelIndex &row : qAsConst(rows)) {
        QStringList cells;
        for (int column = 0; column < row.model()->columnCount(); ++column)
            cells.append(row.siblingAtColumn(column).data().toString());
        all += text::tabbedRow(cells) + QLatin1Char('\n');
    }
    QApplication::clipboard()->setText(all);
}

void copyShown(const QTreeWidget &table)
{
    QString all;
    for (const QStringList &cells : shownTexts(table))
        all += text::tabbedRow(cells) + QLatin1Char('\n');
    QApplication::clipboard()->setText(all);
}

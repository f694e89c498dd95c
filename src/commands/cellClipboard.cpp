#include "commands/cellClipboard.h"

#include "commands/cellBlock.h"
#include "tree/myModel.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QHeaderView>
#include <QMimeData>

namespace cellClipboard {

namespace {

bool canHaveNewRows(const myModel *model)
{
    const myItem::row probe = model->records()->newRow();
    qDeleteAll(probe);
    return !probe.isEmpty();
}

QList<int> seenColumns(const QHeaderView *header)
{
    QList<int> columns;
    for (int visual = 0; visual < header->count(); ++visual)
        if (!header->isSectionHidden(header->logicalIndex(visual)))
            columns.append(header->logicalIndex(visual));
    return columns;
}

// What a search hides is not pasted over.
QList<int> seenRowsFrom(const myTreeView *view, const QModelIndex &start)
{
    QList<int> rows;
    for (int row = start.row(); row < view->model()->rowCount(start.parent()); ++row)
        if (!view->isRowHidden(row, start.parent()))
            rows.append(row);
    return rows;
}

int carryOut(cellBlock::pasted pasted, const pushFunction &push)
{
    if (pasted.change)
        push(std::move(pasted.change));
    if (!pasted.refused.isEmpty()) {
        userPrompts().listError(
            QCoreApplication::translate("cellBlock", "These texts do not fit their cells:")
                .toHtmlEscaped()
            + QLatin1String("<br><b>")
            + pasted.refused.join(QLatin1Char('\n'))
                  .toHtmlEscaped()
                  .replace(QLatin1Char('\n'), QLatin1String("<br>"))
            + QLatin1String("</b><br>"));
        userPrompts().showErrors();
    }
    return pasted.changed;
}

} // namespace

int copy(const myTreeView *view)
{
    QModelIndexList cells = view->selectedCells();
    if (cells.isEmpty() && view->currentIndex().isValid())
        cells.append(view->currentIndex());
    if (!cells.isEmpty())
        QApplication::clipboard()->setText(cellBlock::copied(cells));
    return cells.size();
}

int paste(myTreeView *view, const pushFunction &push, htmlView *page)
{
    const QModelIndexList cells = view->selectedCells();
    const QModelIndex start = cells.isEmpty() ? view->currentIndex() : cells.first();
    const QMimeData *copied = QApplication::clipboard()->mimeData();
    if (!start.isValid() || !copied || !copied->hasText())
        return 0;
    auto *model = static_cast<myModel *>(view->model());
    const QString text = copied->text();
    const QList<int> rows = seenRowsFrom(view, start);
    bool newRows = false;
    const int beyond = cellBlock::linesBeyond(rows, text);
    if (beyond > 0 && model->records() && canHaveNewRows(model)) {
        const std::optional<int> answer = userPrompts().decide(
            QCoreApplication::translate(
                "cellBlock", "%n pasted line(s) go past the last row. Add rows for them?", nullptr,
                beyond),
            {QCoreApplication::translate("cellBlock", "Add rows"),
             QCoreApplication::translate("cellBlock", "Paste what fits")});
        if (!answer)
            return 0;
        newRows = answer == 0;
    }
    return carryOut(cellBlock::paste(model, start, cells, rows, seenColumns(view->header()), text,
                                     newRows, page),
                    push);
}

int pasteRows(myTreeView *view, int at, int usualColumn, const pushFunction &push)
{
    const QModelIndexList cells = view->selectedCells();
    const int column = cells.isEmpty() ? usualColumn : cells.first().column();
    return carryOut(cellBlock::pasteRows(static_cast<myModel *>(view->model()), at, column,
                                         seenColumns(view->header()),
                                         QApplication::clipboard()->text()),
                    push);
}

} // namespace cellClipboard

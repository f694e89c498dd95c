#include "commands/cellClipboard.h"

#include "commands/cellBlock.h"
#include "tree/myModel.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QHeaderView>

namespace cellClipboard {

int copy(const myTreeView *view)
{
    QModelIndexList cells = view->selectedCells();
    if (cells.isEmpty() && view->currentIndex().isValid())
        cells.append(view->currentIndex());
    if (!cells.isEmpty())
        QApplication::clipboard()->setText(cellBlock::copied(cells));
    return cells.size();
}

int paste(myTreeView *view, const std::function<void(std::unique_ptr<command>)> &push,
          htmlView *page)
{
    const QHeaderView *header = view->header();
    QList<int> columns;
    for (int visual = 0; visual < header->count(); ++visual)
        if (!header->isSectionHidden(header->logicalIndex(visual)))
            columns.append(header->logicalIndex(visual));
    const QModelIndexList cells = view->selectedCells();
    const QModelIndex start = cells.isEmpty() ? view->currentIndex() : cells.first();
    if (!start.isValid())
        return 0;
    cellBlock::pasted pasted = cellBlock::paste(static_cast<myModel *>(view->model()), start, cells,
                                                columns, QApplication::clipboard()->text(), page);
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

} // namespace cellClipboard

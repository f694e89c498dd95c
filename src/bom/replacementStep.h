// The lines of a tree that get another material, as one step.
#pragma once

#include "bom/materialReplacement.h"
#include "commands/editCommands.h"
#include "tree/columnTable.h"
#include "tree/myTreeView.h"

// Applied already; null when no line has the old material. page is shown anew with the step, where
// there is one.
template <class Record>
std::unique_ptr<command> replacementStep(myTreeView *view, const listRows<Record> &rows,
                                         const materialReplacement::replacement &what,
                                         htmlView *page = nullptr)
{
    using namespace materialReplacement;
    auto *model = static_cast<myModel *>(view->model());
    const changeBatch batch(model);
    const int row = view->currentIndex().row();
    const int column = view->currentIndex().column();
    std::vector<std::unique_ptr<command>> members;
    for (int at = 0; at < model->rowCount(); ++at) {
        const Record &line = *rows.recordOf(static_cast<myItem::myItemStandard *>(model->item(at)));
        if (ktmOf(line) == what.before)
            members.push_back(std::make_unique<changeRow>(
                model->invisibleRootItem(), at, rows.makeDetachedRow(replaced(line, what))));
    }
    if (members.empty())
        return nullptr;
    // A row that is exchanged sends the cursor away.
    if (row >= 0 && view->currentIndex().row() != row)
        view->goTo(model->index(row, column));
    if (page)
        members.push_back(std::make_unique<refreshHtml>(page));
    return std::make_unique<appendCommands>(std::move(members), model);
}

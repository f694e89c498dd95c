// The lines of a tree that get another material, as one step.
#pragma once

#include "bom/materialReplacement.h"
#include "commands/editCommands.h"
#include "tree/columnTable.h"

// Applied already; null when no line has the old material. page is shown anew with the step, where
// there is one.
template <class Record>
std::unique_ptr<command> replacementStep(myModel *model, const listRows<Record> &rows,
                                         const materialReplacement::replacement &what,
                                         htmlView *page = nullptr)
{
    using namespace materialReplacement;
    const changeBatch batch(model);
    std::vector<std::unique_ptr<command>> members;
    for (int row = 0; row < model->rowCount(); ++row) {
        const Record &line =
            *rows.recordOf(static_cast<myItem::myItemStandard *>(model->item(row)));
        if (ktmOf(line) == what.before)
            members.push_back(std::make_unique<changeRow>(
                model->invisibleRootItem(), row, rows.makeDetachedRow(replaced(line, what))));
    }
    if (members.empty())
        return nullptr;
    if (page)
        members.push_back(std::make_unique<refreshHtml>(page));
    return std::make_unique<appendCommands>(std::move(members), model);
}

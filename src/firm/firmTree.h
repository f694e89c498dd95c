// The trees of the firm register: their columns, their rows' step with the records, and the plan to
// rename what the records do not hold.
#pragma once

#include "commands/command.h"
#include "data/kiv_mat_firmStruct.h"
#include "firm/firmUsage.h"
#include "tree/columnTable.h"

#include <functional>
#include <optional>

namespace firmTree {

// Places of the columns that are found by more than their key.
enum column
{
    nameColumn,
    homePageColumn = 4
};

// figures: those of the firm of a name; nothing while they are not known.
using figuresFunction = std::function<std::optional<firmOperations::firmFigures>(const QString &)>;

treeColumns<firmStruct> columns(const std::vector<comboBoxStruct> &statuses,
                                const figuresFunction &figures);

// Keeps a list's records, notes their new names and marks doubtful tax numbers.
class firmRows : public listRows<firmStruct>
{
public:
    using listRows<firmStruct>::listRows;
    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;

    // Shows the figures as they are now, which are no part of the records: in all rows, in one.
    void showFigures(const myModel *model);
    void showFigures(const myModel *model, int row);

    // The new names since this was emptied, by the old ones.
    QHash<QString, QString> renamed;
};

// The materials get other names, once the register is saved.
class planRenames final : public command
{
public:
    planRenames(firmOperations::renameList *plan, firmOperations::renameStep step)
        : m_plan(plan)
        , m_step(std::move(step))
    {
        redo();
    }
    void undo() override { m_plan->pop_back(); }
    void redo() override { m_plan->push_back(m_step); }

private:
    firmOperations::renameList *m_plan;
    firmOperations::renameStep m_step;
};

} // namespace firmTree

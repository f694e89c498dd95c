// A plan for an order carried out in its tree: the rows change with the lines, and all of it is one
// step of the undo history.
#pragma once

#include "bom/bomOperations.h"
#include "commands/command.h"
#include "tree/columnTable.h"

class htmlView;

class orderLinesTarget final : public bomOperations::orderTarget
{
public:
    // Of a model that shows the lines of an order in their order; both outlive it.
    orderLinesTarget(myModel *lines, const listRows<orderItemStruct> *rows)
        : m_lines(lines)
        , m_rows(rows)
    {
    }

    void setQuantity(int line, const QString &quantity) override;
    void append(std::unique_ptr<orderItemStruct> line) override;

    // All that was done, which is applied already, and a refresh of the page.
    std::unique_ptr<command> step(htmlView *page);

private:
    myModel *m_lines;
    const listRows<orderItemStruct> *m_rows;
    std::vector<std::unique_ptr<command>> m_members;
};

#include "bom/orderLinesTarget.h"

#include "commands/editCommands.h"
#include "order/orderTree.h"

using myItem::myItemStandard;

namespace {

// A cell's stored text, which may be no value of its kind: a quantity may have a fraction.
class changeText final : public command
{
public:
    changeText(myModel *model, myItemStandard *item, const QString &text)
        : m_model(model)
        , m_item(item)
        , m_other(text)
    {
        exchange();
    }
    void undo() override { exchange(); }
    void redo() override { exchange(); }

private:
    void exchange()
    {
        const QString before = m_item->text();
        myItem::setStoredText(m_item, m_other);
        m_other = before;
        m_model->writeCell(m_item);
        m_model->emitChangeValueOccured();
    }

    myModel *m_model;
    myItemStandard *m_item;
    QString m_other;
};

} // namespace

void orderLinesTarget::setQuantity(int line, const QString &quantity)
{
    auto *cell = static_cast<myItemStandard *>(m_lines->item(line, orderTree::quantityColumn));
    m_members.push_back(std::make_unique<changeText>(m_lines, cell, quantity));
}

void orderLinesTarget::append(std::unique_ptr<orderItemStruct> line)
{
    m_members.push_back(
        std::make_unique<appendNewMaterial>(m_lines, m_rows->makeDetachedRow(std::move(line))));
}

std::unique_ptr<command> orderLinesTarget::step(htmlView *page)
{
    m_members.push_back(std::make_unique<refreshHtml>(page));
    return std::make_unique<appendCommands>(std::exchange(m_members, {}), m_lines);
}

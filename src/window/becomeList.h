// Makes a list of records that a tree shows like another list, as members of one step.
#pragma once

#include "commands/editCommands.h"
#include "data/sharedRecords.h"
#include "tree/columnTable.h"

namespace becomeList {

// What stands alike at the beginning and the end stays; between, rows are replaced one by one, and
// what is left over is deleted or added. The tree may show the list in another order. content gives
// a record as its file has it.
template <class Record>
void change(myModel *model, const listRows<Record> &rows,
            const std::vector<std::unique_ptr<Record>> &mine,
            std::vector<std::unique_ptr<Record>> wanted,
            std::vector<std::unique_ptr<command>> &members,
            const std::function<QByteArray(const Record &)> &content = ::contentOf)
{
    const auto isLike = [&](size_t i, size_t j) {
        return content(*mine[i]) == content(*wanted[j]);
    };
    size_t head = 0;
    while (head < mine.size() && head < wanted.size() && isLike(head, head))
        ++head;
    size_t tail = 0;
    while (head + tail < mine.size() && head + tail < wanted.size()
           && isLike(mine.size() - 1 - tail, wanted.size() - 1 - tail))
        ++tail;
    QHash<const xmlData *, QStandardItem *> firsts;
    for (int row = 0; row < model->rowCount(); ++row)
        firsts.insert(static_cast<myItem::myItemStandard *>(model->item(row))->record,
                      model->item(row));
    const size_t mineEnd = mine.size() - tail;
    const size_t wantedEnd = wanted.size() - tail;
    const size_t bothEnd = qMin(mineEnd, wantedEnd);
    for (size_t i = head; i < bothEnd; ++i)
        if (!isLike(i, i)) {
            const int row = firsts.value(mine[i].get())->row();
            members.push_back(std::make_unique<changeRow>(
                model->invisibleRootItem(), row, rows.makeDetachedRow(std::move(wanted[i]))));
        }
    std::vector<QStandardItem *> doomed;
    for (size_t i = bothEnd; i < mineEnd; ++i)
        doomed.push_back(firsts.value(mine[i].get()));
    for (auto first = doomed.rbegin(); first != doomed.rend(); ++first)
        members.push_back(std::make_unique<deleteMaterial>(model, (*first)->index()));
    for (size_t i = bothEnd; i < wantedEnd; ++i)
        members.push_back(std::make_unique<appendItems>(
            model->invisibleRootItem(), rows.makeDetachedRow(std::move(wanted[i])), int(i)));
}

// An option gets all that another one says; a cell shows its first value.
class takeOption : public command
{
public:
    takeOption(myModel *model, myItem::myItemStandard *cell, optionStruct *option,
               const optionStruct &wanted)
        : m_model(model)
        , m_cell(cell)
        , m_option(option)
    {
        for (const auto &field : optionStruct::fields())
            m_other.append(wanted.*field.member);
        exchange();
    }
    void undo() override { exchange(); }
    void redo() override { exchange(); }
    void places(std::vector<QStandardItem *> &cells) const override { cells.push_back(m_cell); }

private:
    void exchange()
    {
        int at = 0;
        for (const auto &field : optionStruct::fields())
            std::swap(m_option->*field.member, m_other[at++]);
        myItem::setStoredText(m_cell, m_option->value1);
        m_model->emitChangeValueOccured();
    }

    myModel *m_model;
    myItem::myItemStandard *m_cell;
    optionStruct *m_option;
    QStringList m_other;
};

// The options of a tree, whose values stand in its second column, like those of the same types.
inline void changeOptions(myModel *model, const optionsStruct &wanted,
                          std::vector<std::unique_ptr<command>> &members)
{
    for (int row = 0; row < model->rowCount(); ++row) {
        auto *option = static_cast<optionStruct *>(
            static_cast<myItem::myItemStandard *>(model->item(row))->record);
        const optionStruct *other = wanted.findOption(option->type);
        if (other && contentOf(*option) != contentOf(*other))
            members.push_back(std::make_unique<takeOption>(
                model, static_cast<myItem::myItemStandard *>(model->item(row, 1)), option, *other));
    }
}

} // namespace becomeList

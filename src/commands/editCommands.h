// The changes that users make in the editing trees. Each applies itself when it is made, but for
// appendCommands, whose members are applied already. What changes in the tree changes in the
// records behind it, through the model.
#pragma once

#include "commands/command.h"
#include "tree/myModel.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class commandStack;

// Makes edits of a model's cells steps of a history, which outlives the model's use, named after
// the cells' columns.
void recordEdits(myModel *model, commandStack *stack);

// A row outside the tree, deleted with its holder.
class heldRow
{
public:
    explicit heldRow(const myItem::row &items = {})
        : m_items(items)
    {
    }
    ~heldRow() { qDeleteAll(m_items); }
    heldRow(const heldRow &) = delete;
    heldRow &operator=(const heldRow &) = delete;

    void hold(const myItem::row &items) { m_items = items; }
    // What was held; nothing is any more.
    myItem::row release() { return std::exchange(m_items, {}); }
    bool isHolding() const { return !m_items.isEmpty(); }

private:
    myItem::row m_items;
};

// One step made of several commands: undone from the last to the first, done again from the first
// to the last. The model that they change tells of it once, at the end.
class appendCommands : public command
{
public:
    explicit appendCommands(std::vector<std::unique_ptr<command>> members,
                            myModel *model = nullptr);
    ~appendCommands() override;
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;
    size_t size() const { return m_members.size(); }

private:
    std::vector<std::unique_ptr<command>> m_members;
    QPointer<myModel> m_model;
};

// A row added below a parent, at the end or where it is told to stand; with a null parent nothing
// happens.
class appendItems : public command
{
public:
    appendItems(QStandardItem *parent, const myItem::row &items, std::optional<int> row = {});
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    heldRow m_items;
    QStandardItem *m_parent;
    myItem::myItemStandard *m_first;
    int m_row;
};

// A row added at the end of a model's top level.
class appendNewMaterial : public command
{
public:
    appendNewMaterial(myModel *model, const myItem::row &items);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    myModel *m_model;
    heldRow m_items;
    int m_row;
};

// A row replaced by another one.
class changeRow : public command
{
public:
    changeRow(QStandardItem *parent, int row, const myItem::row &items);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    void exchange(heldRow &out, heldRow &in);

    QStandardItem *m_parent;
    heldRow m_new;
    heldRow m_old;
    myItem::myItemStandard *m_first; // of the one in the tree
    int m_row;
};

// One cell's value. The old one is kept with its text, which may be no proper value of the kind.
class changeValue : public command
{
public:
    // The type of the value follows the item's kind, see myItem::valueOf().
    changeValue(myModel *model, myItem::myItemStandard *item, const QVariant &value);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override { cells.push_back(m_item); }

private:
    void written();

    myModel *m_model;
    myItem::myItemStandard *m_item;
    myItem::myItemStandard *m_first; // of its row
    QVariant m_new;
    QVariant m_old;
    QString m_oldText;
};

// A row taken out from below a parent.
class deleteFromItem : public command
{
public:
    deleteFromItem(QStandardItem *parent, QStandardItem *item);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    QStandardItem *m_parent;
    heldRow m_items;
    myItem::myItemStandard *m_first;
    int m_row;
};

// A row taken out of a model's top level.
class deleteMaterial : public command
{
public:
    deleteMaterial(myModel *model, const QModelIndex &index);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override;

private:
    myModel *m_model;
    heldRow m_items;
    int m_row;
};

// A counter raised by a step; a text that is no number counts as 0.
class increaseValue : public command
{
public:
    increaseValue(QStandardItem *item, unsigned step);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override { cells.push_back(m_item); }

private:
    void set(unsigned value);

    QStandardItem *m_item;
    unsigned m_old;
    unsigned m_new;
};

// The top-level rows in the order of a column's texts, equal ones as they stood; the first cells
// are numbered from 1.
class sortOrderModel : public command
{
public:
    sortOrderModel(myModel *model, int keyColumn);
    // Whether the rows stood in another order before.
    bool changesOrder() const { return m_oldOrder != m_newOrder; }
    void undo() override;
    void redo() override;

private:
    void arrange(const std::vector<QStandardItem *> &firstCells);

    myModel *m_model;
    std::vector<QStandardItem *> m_oldOrder; // the first cells of the rows
    std::vector<QStandardItem *> m_newOrder;
};

// Top-level rows moved to stand before another one, in the order they had; before may be the number
// of rows. Their records move with them.
class moveRows : public command
{
public:
    // rows: from the top down.
    moveRows(myModel *model, std::vector<int> rows, int before);
    void undo() override;
    void redo() override;

private:
    myModel *m_model;
    std::vector<int> m_rows;
    int m_to;                               // where the first of them is then
    std::vector<const xmlData *> m_records; // as they stood, where the tree shows another order
};

// Changes nothing: a group that it stands in is seen in these top-level rows, wherever they are.
class placesOnly : public command
{
public:
    placesOnly(const myModel *model, const std::vector<int> &rows);
    void places(std::vector<QStandardItem *> &cells) const override
    {
        cells.insert(cells.end(), m_firstCells.begin(), m_firstCells.end());
    }

private:
    std::vector<QStandardItem *> m_firstCells;
};

// What shows the order as a page.
class htmlView
{
public:
    virtual ~htmlView() = default;
    virtual void refreshHtml() = 0;
};

// Changes nothing: has the page shown anew when a group that it stands in is undone or done again.
class refreshHtml : public command
{
public:
    explicit refreshHtml(htmlView *view);
    void undo() override;
    void redo() override;

private:
    htmlView *m_view;
};

// A tree says its columns once. From such a table the rows of its records are made, cells are
// written back to them, and the headers get their captions and widths.
#pragma once

#include "data/fieldTable.h"
#include "tree/myModel.h"
#include "tree/recordPlaces.h"

#include <functional>

template <class Record>
struct treeColumn
{
    QString key; // the cells' what's-this
    QString label;
    int width; // pixels
    myItem::kind kind;
    std::function<QString(const Record &)> read;
    std::function<void(Record &, const QString &)> write; // none: the cell shows only
    bool editable = true;
    myItem::comboEntries entries = {}; // of combo boxes; words in place of a date
    bool canBeTyped = false;           // values beside the entries
    int minimum = 0;                   // of spin boxes
    int maximum = 0;
    std::function<void(const Record &, myItem::myItemStandard *)> look = {}; // pictures, tool tips
    std::function<QString(const Record &)> unit = {}; // the stored unit of what a number counts
};

template <class Record>
using treeColumns = std::vector<treeColumn<Record>>;

// The column of a record's text field, captioned as the field unless a label is given.
template <class Record>
treeColumn<Record> fieldColumn(const fieldTable<Record> &fields, const QString &key, int width,
                               myItem::kind kind, bool editable, const QString &label = {})
{
    for (const textField<Record> &field : fields)
        if (field.name == key)
            return {key,
                    label.isEmpty() && field.label ? field.label() : label,
                    width,
                    kind,
                    [member = field.member](const Record &r) { return r.*member; },
                    [member = field.member](Record &r, const QString &text) { r.*member = text; },
                    editable};
    Q_ASSERT_X(false, "fieldColumn", "the record has no such field");
    return {};
}

// A cell of a kind, with its key, value range and choices, that holds a stored text.
struct cellTraits
{
    QString key;
    myItem::kind kind;
    bool editable;
    myItem::comboEntries entries;
    bool canBeTyped;
    int minimum;
    int maximum;
};
myItem::myItemStandard *makeCell(const cellTraits &traits, const QString &stored);

// The cell of a column for a record.
template <class Record>
myItem::myItemStandard *makeCell(const treeColumn<Record> &c, const Record &record)
{
    myItem::myItemStandard *cell = makeCell(
        {c.key, c.kind, c.editable, c.entries, c.canBeTyped, c.minimum, c.maximum}, c.read(record));
    if (c.look)
        c.look(record, cell);
    return cell;
}

template <class Record>
myItem::row makeRow(const treeColumns<Record> &columns, Record *record)
{
    myItem::row items;
    for (const treeColumn<Record> &c : columns)
        items.append(makeCell(c, *record));
    if (!items.isEmpty())
        static_cast<myItem::myItemStandard *>(items.first())->record = record;
    return items;
}

// Keeps a list of records in step with the top-level rows of a model that shows them.
template <class Record>
class listRows : public modelRecords
{
public:
    using recordList = std::vector<std::unique_ptr<Record>>;

    explicit listRows(treeColumns<Record> columns)
        : m_columns(std::move(columns))
    {
    }

    const treeColumns<Record> &columns() const { return m_columns; }

    // Shows another list, which outlives its use, in place of the one before.
    void show(myModel *model, recordList *list)
    {
        m_list = list;
        model->removeRows(0, model->rowCount());
        for (const auto &record : *list)
            model->appendRow(makeRow(m_columns, record.get()));
    }

    // The row of a record that is in no list yet, which the row owns.
    myItem::row makeDetachedRow(std::unique_ptr<Record> record) const
    {
        const myItem::row items = makeRow(m_columns, record.get());
        static_cast<myItem::myItemStandard *>(items.first())->own(std::move(record));
        return items;
    }

    static Record *recordOf(const myItem::myItemStandard *first)
    {
        return static_cast<Record *>(first->record);
    }

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override
    {
        const treeColumn<Record> &c = m_columns.at(size_t(item->column()));
        if (c.write)
            c.write(*recordOf(first), item->text());
        if (onChange)
            onChange(item, first);
    }

    std::optional<QString> unitOf(const myItem::myItemStandard &item,
                                  const myItem::myItemStandard *first) const override
    {
        const treeColumn<Record> &c = m_columns.at(size_t(item.column()));
        return c.unit ? std::optional(c.unit(*recordOf(first))) : std::nullopt;
    }

    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override
    {
        recordPlaces::putInto(*m_list, parent, row, first);
    }

    void rowTaken(QStandardItem *, int row, myItem::myItemStandard *first) override
    {
        recordPlaces::takeFrom(*m_list, row, first);
    }

    myItem::row newRow() override
    {
        return makeRecord ? makeDetachedRow(makeRecord()) : myItem::row();
    }
    // Makes the record of a new row, where pasted lines may become rows.
    std::function<std::unique_ptr<Record>()> makeRecord;
    std::vector<const xmlData *> recordsNotAsShown(const myModel *model) const override
    {
        std::vector<const xmlData *> records;
        bool asShown = true;
        for (const auto &record : *m_list) {
            asShown =
                asShown
                && static_cast<myItem::myItemStandard *>(model->item(int(records.size())))->record
                       == record.get();
            records.push_back(record.get());
        }
        return asShown ? std::vector<const xmlData *>() : records;
    }

    void arrange(const std::vector<const xmlData *> &records) override
    {
        recordPlaces::arrange(*m_list, records);
    }

    // Called after a cell's text went to its record.
    std::function<void(myItem::myItemStandard *item, myItem::myItemStandard *first)> onChange;

private:
    treeColumns<Record> m_columns;
    recordList *m_list = nullptr;
};

// Gives a model the captions of a table's columns.
template <class Record>
void setCaptions(myModel *model, const treeColumns<Record> &columns)
{
    QStringList captions;
    for (const treeColumn<Record> &c : columns)
        captions.append(c.label);
    model->setHorizontalHeaderLabels(captions);
}

// How a material stands in its editor's tree: sections of fields as rows of caption and value, its
// manufacturers and suppliers, and below each of these its files.
#pragma once

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "tree/columnTable.h"

class kiv_mat_firmStruct;

class materialTree : public modelRecords
{
public:
    enum column
    {
        nameColumn,
        valueColumn,
        descriptionColumn,
        columnCount
    };

    enum rowKind
    {
        caption, // of a section, or of a row that is none of the following
        field,
        manufacturer,
        supplier,
        file
    };
    static rowKind kindOf(const QStandardItem *first);

    // The row of the manufacturer or supplier that an item stands for or belongs to; null
    // elsewhere.
    static QStandardItem *firmOf(QStandardItem *first);

    // Shows a material, which outlives its use, in place of the one before; nothing can be undone
    // any more by then. The choices are those of the configuration and of the firm register.
    void show(myModel *model, materialStruct &material, const configStruct &config,
              const kiv_mat_firmStruct &firms);

    QStandardItem *section(rowKind kind) const
    {
        return kind == supplier ? m_suppliers : m_manufacturers;
    }
    // The value of a field of the material; null when there is none.
    myItem::myItemStandard *valueOf(const QString &key) const { return m_values.value(key); }

    // Takes the choices of firms from the register anew.
    void refreshFirms(const configStruct &config, const kiv_mat_firmStruct &firms);

    // The names that rows got since this was emptied, and that the register does not have.
    struct firmName
    {
        rowKind kind;
        QString name;
    };
    std::vector<firmName> unlisted;

    // Rows to be put in, which own their records.
    myItem::row newFirm(rowKind kind) const;
    myItem::row newFile(const QString &kind, const QString &name) const;

    void cellChanged(myItem::myItemStandard *item, myItem::myItemStandard *first) override;
    void rowInserted(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    void rowTaken(QStandardItem *parent, int row, myItem::myItemStandard *first) override;
    std::optional<QString> unitOf(const myItem::myItemStandard &item,
                                  const myItem::myItemStandard *first) const override;

private:
    void takeFirms(const configStruct &config, const kiv_mat_firmStruct &firms);
    myItem::myItemStandard *addSection(myModel *model, const QString &text, xmlData *record);
    template <class Record>
    void addFields(QStandardItem *parent, Record &record, const configStruct &config,
                   const QString &from, const QString &to);
    template <class Source>
    myItem::row firmRow(Source *source) const;
    myItem::row fileRow(fileStruct *record) const;
    template <class Sources>
    void addFirms(QStandardItem *parent, const Sources &sources) const;
    template <class Source>
    void nameChanged(const treeColumns<Source> &columns, xmlData *record,
                     myItem::myItemStandard *cell, rowKind kind);

    QStandardItem *m_manufacturers = nullptr;
    QStandardItem *m_suppliers = nullptr;
    QHash<QString, myItem::myItemStandard *> m_values;
    QFont m_sectionFont;
    treeColumns<manufacturerStruct> m_manufacturerColumns;
    treeColumns<supplierStruct> m_supplierColumns;
    treeColumns<fileStruct> m_fileColumns;
};

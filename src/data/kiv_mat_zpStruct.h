// The procurement document: the order's options, its lines and the remarks on the whole order.
#pragma once

#include "data/documentStruct.h"
#include "data/sharedRecords.h"

class configStruct;

// One ordered line. All texts are kept as they stand in the file, also where they are no numbers or
// dates.
class orderItemStruct : public textRecord<orderItemStruct>
{
public:
    static inline const QString element = QStringLiteral("order_item");
    static const fieldTable<orderItemStruct> &fields();

    QString index;
    QString name;
    QString price;        // PLN
    QString averagePrice; // PLN
    QString inWarehouse;
    QString quantity;
    QString unit;
    QString wait; // the date by which the line is needed, or a word such as NIE
    QString description;
    QString rohsRequired; // TAK or NIE
    QString target;
    QString ktm;
    QString cpv;
    QString delivery;
    QString invoice;
    QString attentions;
};

class orderItemsStruct : public listRecord<orderItemsStruct, orderItemStruct>
{
public:
    static inline const QString element = QStringLiteral("order_items");
};

class kiv_mat_zpStruct : public documentStruct
{
public:
    // Holds the six options of an order with placeholders; a file's own options replace them.
    kiv_mat_zpStruct();
    static const fieldTable<kiv_mat_zpStruct> &fields();

    optionsStruct options;
    orderItemsStruct orderItems;
    QString attentions; // HTML

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

    // Makes this a new order: no lines, the standard remarks, the options of the configuration
    // where it has them, the number empty and today's date.
    void initialise(const configStruct &config);

protected:
    int writeContent(QXmlStreamWriter *writer) const override;

private:
    void setDefaultOptions(const optionsStruct *configured);

    bool m_optionsAreDefaults = true;
};

// What happened to the orders of a folder beside their own files: that they were sent, when, by
// whom and as what; that they were parted into one a firm; and which deliveries went into stock.
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

class orderStateStruct : public attributeRecord<orderStateStruct>
{
public:
    static inline const QString element = QStringLiteral("order");
    static const fieldTable<orderStateStruct> &fields();

    QString file;   // of the order, in the folder of this file
    QString number; // of the order when it was sent
    QString sent;   // "yyyy.MM.dd hh:mm"
    QString by;
    QString to;   // addresses, parted by commas; empty for one that was marked as sent
    QString copy; // file of the order as it was sent, from the folder of this file on
};

// An order in whose place others are, as long as one of them is there.
class partedOrderStruct : public attributeRecord<partedOrderStruct>
{
public:
    static inline const QString element = QStringLiteral("parted");
    static const fieldTable<partedOrderStruct> &fields();

    QString file;  // of the order, in the folder of this file
    QString parts; // files there, parted by "/", which is in no file's name
    QString date;  // "yyyy.MM.dd hh:mm"
    QString by;
};

// A delivery that was added to the stock of a database.
class stockedDeliveryStruct : public attributeRecord<stockedDeliveryStruct>
{
public:
    static inline const QString element = QStringLiteral("stocked");
    static const fieldTable<stockedDeliveryStruct> &fields();

    QString file;     // of the order, in the folder of this file
    QString ktm;      // of the line
    QString delivery; // as the line has it
    QString quantity;
    QString date; // "yyyy.MM.dd hh:mm"
    QString by;
};

class kiv_mat_orderStatesStruct : public documentStruct
{
public:
    kiv_mat_orderStatesStruct();
    // It has no texts of its own.
    static const fieldTable<kiv_mat_orderStatesStruct> &fields();

    std::vector<std::unique_ptr<orderStateStruct>> orders;
    std::vector<std::unique_ptr<partedOrderStruct>> parted;
    std::vector<std::unique_ptr<stockedDeliveryStruct>> stocked;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};

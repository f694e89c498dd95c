// What became of an order between being written and being placed: which firms were asked for
// prices, what they offered, and which offer was chosen for each material. One file an order, in a
// folder with the documents that were sent and came back (orders/orderOffers.h).
#pragma once

#include "data/documentStruct.h"
#include "data/fieldTable.h"

namespace fileKinds {
inline const fileKind offers{QStringLiteral("kiv_mat_offers"), QStringLiteral("KIV_MAT_OFFERS_1"),
                             QStringLiteral("kiv_mat_offers.xsd")};
} // namespace fileKinds

// One material that a firm was asked for. key is how offers name it again: the KTM, or the name of
// a line without one.
class requestedStruct : public attributeRecord<requestedStruct>
{
public:
    static inline const QString element = QStringLiteral("asked");
    static const fieldTable<requestedStruct> &fields();
    bool operator==(const requestedStruct &other) const
    {
        return equalFields(*this, other, fields());
    }

    QString key;
    QString name;
    QString quantity;
    QString unit;
    QString wait; // the date by which it is needed
};

// A request for quotation to one firm.
class requestStruct : public listRecord<requestStruct, requestedStruct>
{
public:
    static inline const QString element = QStringLiteral("request");
    static const fieldTable<requestStruct> &fields();
    bool operator==(const requestStruct &other) const
    {
        return equalFields(*this, other, fields()) && equalLists(*this, other);
    }

    QString number; // of the request: the order's with a counter behind it
    QString firm;   // as in the register
    QString nip;
    QString to; // addresses, parted by commas
    QString language;
    QString sent; // "yyyy.MM.dd hh:mm"; empty while it was only written
    QString by;
    QString deadline; // "yyyy.MM.dd": an offer of a later day is too late; empty: none
    QString reminded; // when the last reminder was sent, as sent
    QString table;    // file to fill in, in the folder of this file
    QString document; // PDF, in the folder of this file
};

// What a firm takes for a material.
class offeredStruct : public attributeRecord<offeredStruct>
{
public:
    static inline const QString element = QStringLiteral("offered");
    static const fieldTable<offeredStruct> &fields();
    bool operator==(const offeredStruct &other) const
    {
        return equalFields(*this, other, fields());
    }

    QString key;
    QString prices;   // "1: 0.50; 100: 0.42": from how many on, in the offer's currency
    QString minimum;  // quantity; none when empty
    QString multiple; // of which it is sold; any when empty
    QString leadTime; // days; the offer's when empty
    QString remarks;
};

class offerStruct : public listRecord<offerStruct, offeredStruct>
{
public:
    static inline const QString element = QStringLiteral("offer");
    static const fieldTable<offerStruct> &fields();
    bool operator==(const offerStruct &other) const
    {
        return equalFields(*this, other, fields()) && equalLists(*this, other);
    }

    QString firm; // as in the register
    QString nip;
    QString request;  // its number; empty for an offer that nobody asked for
    QString received; // "yyyy.MM.dd"
    QString currency; // "PLN", "EUR", ...
    QString rate;     // PLN for one of the currency; 1 when empty
    QString rateDate; // "yyyy.MM.dd"
    QString gross;    // TAK: the prices hold the tax
    QString vat;      // percent
    QString leadTime; // days from the order on
    QString validity; // "yyyy.MM.dd": the last day
    QString remarks;
    QString file; // what came, in the folder of this file
};

// Which firm a material is bought from.
class choiceStruct : public attributeRecord<choiceStruct>
{
public:
    static inline const QString element = QStringLiteral("choice");
    static const fieldTable<choiceStruct> &fields();
    bool operator==(const choiceStruct &other) const { return equalFields(*this, other, fields()); }

    QString key;
    QString firm;
    QString nip;
    QString price; // PLN net for one
    QString date;  // "yyyy.MM.dd"
    QString by;
    QString reason;
};

class kiv_mat_offersStruct : public documentStruct
{
public:
    kiv_mat_offersStruct();
    static const fieldTable<kiv_mat_offersStruct> &fields();

    QString number; // of the order
    std::vector<std::unique_ptr<requestStruct>> requests;
    std::vector<std::unique_ptr<offerStruct>> offers;
    std::vector<std::unique_ptr<choiceStruct>> choices;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};

// What happened to the orders of a folder beside their own files: that they were sent, when, by
// whom and as what.
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

class kiv_mat_orderStatesStruct : public documentStruct
{
public:
    kiv_mat_orderStatesStruct();
    // It has no texts of its own.
    static const fieldTable<kiv_mat_orderStatesStruct> &fields();

    std::vector<std::unique_ptr<orderStateStruct>> orders;

    tagHandlerList tagHandlers() override;
    int readXml(QXmlStreamReader *reader) override;

protected:
    int writeContent(QXmlStreamWriter *writer) const override;
};

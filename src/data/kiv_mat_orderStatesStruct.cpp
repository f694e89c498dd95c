#include "data/kiv_mat_orderStatesStruct.h"

const fieldTable<orderStateStruct> &orderStateStruct::fields()
{
    static const fieldTable<orderStateStruct> table{
        {QStringLiteral("file"), &orderStateStruct::file},
        {QStringLiteral("number"), &orderStateStruct::number},
        {QStringLiteral("sent"), &orderStateStruct::sent},
        {QStringLiteral("by"), &orderStateStruct::by},
        {QStringLiteral("to"), &orderStateStruct::to},
        {QStringLiteral("copy"), &orderStateStruct::copy},
    };
    return table;
}

const fieldTable<partedOrderStruct> &partedOrderStruct::fields()
{
    static const fieldTable<partedOrderStruct> table{
        {QStringLiteral("file"), &partedOrderStruct::file},
        {QStringLiteral("parts"), &partedOrderStruct::parts},
        {QStringLiteral("date"), &partedOrderStruct::date},
        {QStringLiteral("by"), &partedOrderStruct::by},
    };
    return table;
}

const fieldTable<stockedDeliveryStruct> &stockedDeliveryStruct::fields()
{
    static const fieldTable<stockedDeliveryStruct> table{
        {QStringLiteral("file"), &stockedDeliveryStruct::file},
        {QStringLiteral("ktm"), &stockedDeliveryStruct::ktm},
        {QStringLiteral("delivery"), &stockedDeliveryStruct::delivery},
        {QStringLiteral("quantity"), &stockedDeliveryStruct::quantity},
        {QStringLiteral("date"), &stockedDeliveryStruct::date},
        {QStringLiteral("by"), &stockedDeliveryStruct::by},
    };
    return table;
}

const fieldTable<kiv_mat_orderStatesStruct> &kiv_mat_orderStatesStruct::fields()
{
    static const fieldTable<kiv_mat_orderStatesStruct> table;
    return table;
}

kiv_mat_orderStatesStruct::kiv_mat_orderStatesStruct()
    : documentStruct(fileKinds::orderStates)
{
}

tagHandlerList kiv_mat_orderStatesStruct::tagHandlers()
{
    static const std::vector<QString> tags{orderStateStruct::element, partedOrderStruct::element,
                                           stockedDeliveryStruct::element};
    return {&tags, this};
}

int kiv_mat_orderStatesStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == orderStateStruct::element)
        readAppended(reader, orders);
    else if (reader->name() == partedOrderStruct::element)
        readAppended(reader, parted);
    else if (reader->name() == stockedDeliveryStruct::element)
        readAppended(reader, stocked);
    else
        reader->readNext();
    return 1;
}

int kiv_mat_orderStatesStruct::writeContent(QXmlStreamWriter *writer) const
{
    for (const int result : {writeAll(writer, orders), writeAll(writer, parted)})
        if (result < 0)
            return result;
    return writeAll(writer, stocked);
}

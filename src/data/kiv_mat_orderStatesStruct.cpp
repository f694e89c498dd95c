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
    static const std::vector<QString> tags{orderStateStruct::element};
    return {&tags, this};
}

int kiv_mat_orderStatesStruct::readXml(QXmlStreamReader *reader)
{
    readAppended(reader, orders);
    return 1;
}

int kiv_mat_orderStatesStruct::writeContent(QXmlStreamWriter *writer) const
{
    return writeAll(writer, orders);
}

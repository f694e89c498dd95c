#include "data/kiv_UpdateStruct.h"

const fieldTable<commandStruct> &commandStruct::fields()
{
    static const fieldTable<commandStruct> table{
        {QStringLiteral("name"), &commandStruct::name},
        {QStringLiteral("from"), &commandStruct::from},
        {QStringLiteral("to"), &commandStruct::to},
    };
    return table;
}

kiv_UpdateStruct::kiv_UpdateStruct()
    : documentStruct(fileKinds::update)
{
}

tagHandlerList kiv_UpdateStruct::tagHandlers()
{
    static const std::vector<QString> tags{commandStruct::element};
    return {&tags, this};
}

int kiv_UpdateStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == commandStruct::element) {
        readAppended(reader, commands);
    } else {
        reader->readNext();
    }
    return 1;
}

int kiv_UpdateStruct::writeContent(QXmlStreamWriter *writer) const
{
    return writeAll(writer, commands);
}

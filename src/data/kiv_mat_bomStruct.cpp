#include "data/kiv_mat_bomStruct.h"

kiv_mat_bomStruct::kiv_mat_bomStruct()
    : documentStruct(fileKinds::bom)
{
}

tagHandlerList kiv_mat_bomStruct::tagHandlers()
{
    static const std::vector<QString> tags{QStringLiteral("update"), materialStruct::element};
    return {&tags, this};
}

int kiv_mat_bomStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == QLatin1String("update")) {
        update = readText(reader);
    } else if (reader->name() == materialStruct::element) {
        readAppended(reader, materials);
    } else {
        reader->readNext();
    }
    return 1;
}

int kiv_mat_bomStruct::writeContent(QXmlStreamWriter *writer) const
{
    writer->writeTextElement(QStringLiteral("update"), update);
    writer->writeComment(QStringLiteral(" "));
    int result = 0;
    for (const auto &material : materials) {
        result = material->writeShortXml(writer);
        if (result < 0)
            break;
    }
    return result;
}

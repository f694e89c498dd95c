#include "data/kiv_mat_bomStruct.h"

const fieldTable<kiv_mat_bomStruct> &kiv_mat_bomStruct::fields()
{
    static const fieldTable<kiv_mat_bomStruct> table{
        {QStringLiteral("update"), &kiv_mat_bomStruct::update},
    };
    return table;
}

kiv_mat_bomStruct::kiv_mat_bomStruct()
    : documentStruct(fileKinds::bom)
{
}

tagHandlerList kiv_mat_bomStruct::tagHandlers()
{
    static const std::vector<QString> tags = tagsOf(fields(), {materialStruct::element});
    return {&tags, this};
}

int kiv_mat_bomStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == materialStruct::element)
        readAppended(reader, materials);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_bomStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    writer->writeComment(QStringLiteral(" "));
    int result = 0;
    for (const auto &material : materials) {
        result = material->writeShortXml(writer);
        if (result < 0)
            break;
    }
    return result;
}

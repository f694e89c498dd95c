#include "data/kiv_infoStruct.h"

kiv_infoStruct::kiv_infoStruct()
    : documentStruct(fileKinds::info)
{
}

const fieldTable<kiv_infoStruct> &kiv_infoStruct::fields()
{
    using info = kiv_infoStruct;
    static const fieldTable<info> table{
        {QStringLiteral("kiv_version"), &info::kivVersion},
        {QStringLiteral("kiv_build"), &info::kivBuild},
        {QStringLiteral("bom_server_release"), &info::bomServerRelease},
        {QStringLiteral("firm_server_release"), &info::firmServerRelease},
        {QStringLiteral("service_server_release"), &info::serviceServerRelease},
        {QStringLiteral("wearhouse_server_release"), &info::wearhouseServerRelease},
        {QStringLiteral("mechanics_server_release"), &info::mechanicsServerRelease},
        {QStringLiteral("kiv_server_link"), &info::kivServerLink},
        {QStringLiteral("bom_server_link"), &info::bomServerLink},
        {QStringLiteral("firm_server_link"), &info::firmServerLink},
        {QStringLiteral("service_server_link"), &info::serviceServerLink},
        {QStringLiteral("wearhouse_server_link"), &info::wearhouseServerLink},
        {QStringLiteral("mechanics_server_link"), &info::mechanicsServerLink},
    };
    return table;
}

tagHandlerList kiv_infoStruct::tagHandlers()
{
    static const std::vector<QString> tags = tagsOf(fields());
    return {&tags, this};
}

int kiv_infoStruct::readTag(QXmlStreamReader *reader, size_t place)
{
    if (!readField(reader, *this, fields(), place))
        reader->readNext();
    return 1;
}

int kiv_infoStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    return 0;
}

#include "data/kiv_mat_firmStruct.h"

#include "util/labels.h"

const fieldTable<firmStruct> &firmStruct::fields()
{
    static const fieldTable<firmStruct> table{
        {QStringLiteral("name"), &firmStruct::name, labels::name},
        {QStringLiteral("fullname"), &firmStruct::fullname, labels::fullName},
        {QStringLiteral("status"), &firmStruct::status, labels::status},
        {QStringLiteral("business"), &firmStruct::business, labels::business},
        {QStringLiteral("homepage"), &firmStruct::homepage, labels::homepage},
        {QStringLiteral("awatar"), &firmStruct::awatar, labels::awatar},
        {QStringLiteral("nip"), &firmStruct::nip, labels::taxNumber},
    };
    return table;
}

const fieldTable<kiv_mat_firmStruct> &kiv_mat_firmStruct::fields()
{
    static const fieldTable<kiv_mat_firmStruct> table{
        {QStringLiteral("server_release"), &kiv_mat_firmStruct::serverRelease},
    };
    return table;
}

kiv_mat_firmStruct::kiv_mat_firmStruct()
    : documentStruct(fileKinds::firm)
{
}

tagHandlerList kiv_mat_firmStruct::tagHandlers()
{
    static const std::vector<QString> tags =
        tagsOf(fields(), {firmSuppliersStruct::element, firmManufacturersStruct::element});
    return {&tags, this};
}

int kiv_mat_firmStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == firmManufacturersStruct::element)
        manufacturers.readElement(reader);
    else if (reader->name() == firmSuppliersStruct::element)
        suppliers.readElement(reader);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_firmStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    const int result = manufacturers.writeXml(writer);
    return result < 0 ? result : suppliers.writeXml(writer);
}

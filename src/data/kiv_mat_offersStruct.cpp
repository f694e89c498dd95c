#include "data/kiv_mat_offersStruct.h"

#include "util/labels.h"

#include <QCoreApplication>

const fieldTable<requestedStruct> &requestedStruct::fields()
{
    static const fieldTable<requestedStruct> table{
        {QStringLiteral("key"), &requestedStruct::key},
        {QStringLiteral("name"), &requestedStruct::name, labels::name},
        {QStringLiteral("quantity"), &requestedStruct::quantity, labels::quantity},
        {QStringLiteral("unit"), &requestedStruct::unit, labels::unit},
        {QStringLiteral("wait"), &requestedStruct::wait},
    };
    return table;
}

const fieldTable<requestStruct> &requestStruct::fields()
{
    static const fieldTable<requestStruct> table{
        {QStringLiteral("number"), &requestStruct::number},
        {QStringLiteral("firm"), &requestStruct::firm},
        {QStringLiteral("nip"), &requestStruct::nip},
        {QStringLiteral("to"), &requestStruct::to},
        {QStringLiteral("language"), &requestStruct::language},
        {QStringLiteral("sent"), &requestStruct::sent},
        {QStringLiteral("by"), &requestStruct::by},
        {QStringLiteral("deadline"), &requestStruct::deadline},
        {QStringLiteral("reminded"), &requestStruct::reminded},
        {QStringLiteral("table"), &requestStruct::table},
        {QStringLiteral("document"), &requestStruct::document},
    };
    return table;
}

const fieldTable<offeredStruct> &offeredStruct::fields()
{
    static const fieldTable<offeredStruct> table{
        {QStringLiteral("key"), &offeredStruct::key},
        {QStringLiteral("prices"), &offeredStruct::prices},
        {QStringLiteral("minimum"), &offeredStruct::minimum},
        {QStringLiteral("multiple"), &offeredStruct::multiple},
        {QStringLiteral("lead_time"), &offeredStruct::leadTime},
        {QStringLiteral("remarks"), &offeredStruct::remarks},
    };
    return table;
}

const fieldTable<offerStruct> &offerStruct::fields()
{
    static const fieldTable<offerStruct> table{
        {QStringLiteral("firm"), &offerStruct::firm},
        {QStringLiteral("nip"), &offerStruct::nip},
        {QStringLiteral("request"), &offerStruct::request},
        {QStringLiteral("received"), &offerStruct::received},
        {QStringLiteral("currency"), &offerStruct::currency},
        {QStringLiteral("rate"), &offerStruct::rate},
        {QStringLiteral("rate_date"), &offerStruct::rateDate},
        {QStringLiteral("gross"), &offerStruct::gross},
        {QStringLiteral("vat"), &offerStruct::vat},
        {QStringLiteral("lead_time"), &offerStruct::leadTime},
        {QStringLiteral("validity"), &offerStruct::validity},
        {QStringLiteral("remarks"), &offerStruct::remarks},
        {QStringLiteral("file"), &offerStruct::file},
    };
    return table;
}

const fieldTable<choiceStruct> &choiceStruct::fields()
{
    static const fieldTable<choiceStruct> table{
        {QStringLiteral("key"), &choiceStruct::key},
        {QStringLiteral("firm"), &choiceStruct::firm},
        {QStringLiteral("nip"), &choiceStruct::nip},
        {QStringLiteral("price"), &choiceStruct::price, labels::price},
        {QStringLiteral("date"), &choiceStruct::date},
        {QStringLiteral("by"), &choiceStruct::by},
        {QStringLiteral("reason"), &choiceStruct::reason},
    };
    return table;
}

const fieldTable<kiv_mat_offersStruct> &kiv_mat_offersStruct::fields()
{
    static const fieldTable<kiv_mat_offersStruct> table{
        {QStringLiteral("order_number"), &kiv_mat_offersStruct::number},
    };
    return table;
}

kiv_mat_offersStruct::kiv_mat_offersStruct()
    : documentStruct(fileKinds::offers)
{
}

tagHandlerList kiv_mat_offersStruct::tagHandlers()
{
    static const std::vector<QString> tags =
        tagsOf(fields(), {requestStruct::element, offerStruct::element, choiceStruct::element});
    return {&tags, this};
}

int kiv_mat_offersStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == requestStruct::element)
        readAppended(reader, requests);
    else if (reader->name() == offerStruct::element)
        readAppended(reader, offers);
    else if (reader->name() == choiceStruct::element)
        readAppended(reader, choices);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_offersStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    for (const int result : {writeAll(writer, requests), writeAll(writer, offers)})
        if (result < 0)
            return result;
    return writeAll(writer, choices);
}

#include "data/kiv_mat_reservationsStruct.h"

#include "util/labels.h"

const fieldTable<boardLineStruct> &boardLineStruct::fields()
{
    static const fieldTable<boardLineStruct> table{
        {QStringLiteral("ktm"), &boardLineStruct::ktm, labels::ktm},
        {QStringLiteral("name"), &boardLineStruct::name, labels::name},
        {QStringLiteral("quantity"), &boardLineStruct::quantity, labels::quantity},
        {QStringLiteral("before"), &boardLineStruct::before},
        {QStringLiteral("after"), &boardLineStruct::after},
    };
    return table;
}

const fieldTable<boardStruct> &boardStruct::fields()
{
    static const fieldTable<boardStruct> table{
        {QStringLiteral("id"), &boardStruct::id},
        {QStringLiteral("list"), &boardStruct::list, labels::file},
        {QStringLiteral("sets"), &boardStruct::sets},
        {QStringLiteral("date"), &boardStruct::date},
        {QStringLiteral("author"), &boardStruct::author},
        {QStringLiteral("database"), &boardStruct::database},
        {QStringLiteral("released"), &boardStruct::released},
    };
    return table;
}

std::unique_ptr<boardStruct> boardStruct::copy() const
{
    auto made = std::make_unique<boardStruct>();
    copyFields(*made, *this, fields());
    for (const auto &line : items)
        copyFields(*made->append(std::make_unique<boardLineStruct>()), *line,
                   boardLineStruct::fields());
    return made;
}

const fieldTable<kiv_mat_reservationsStruct> &kiv_mat_reservationsStruct::fields()
{
    static const fieldTable<kiv_mat_reservationsStruct> table{
        {QStringLiteral("update"), &kiv_mat_reservationsStruct::update},
    };
    return table;
}

kiv_mat_reservationsStruct::kiv_mat_reservationsStruct()
    : documentStruct(fileKinds::reservations)
{
}

tagHandlerList kiv_mat_reservationsStruct::tagHandlers()
{
    static const std::vector<QString> tags =
        tagsOf(fields(), {reservedBoardsStruct::element, builtBoardsStruct::element});
    return {&tags, this};
}

int kiv_mat_reservationsStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == reservedBoardsStruct::element)
        reserved.readElement(reader);
    else if (reader->name() == builtBoardsStruct::element)
        built.readElement(reader);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_reservationsStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    const int result = reserved.writeXml(writer);
    return result < 0 ? result : built.writeXml(writer);
}

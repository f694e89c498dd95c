#include "data/kiv_mat_firmDetailsStruct.h"

#include "util/labels.h"

#include <QCoreApplication>

const fieldTable<basketColumnStruct> &basketColumnStruct::fields()
{
    static const fieldTable<basketColumnStruct> table{
        {QStringLiteral("kind"), &basketColumnStruct::kind, labels::type},
        {QStringLiteral("caption"), &basketColumnStruct::caption,
         [] { return QCoreApplication::translate("firmDetails", "Caption"); }},
        {QStringLiteral("text"), &basketColumnStruct::text,
         [] { return QCoreApplication::translate("firmDetails", "Text"); }},
    };
    return table;
}

const fieldTable<firmDetailsStruct> &firmDetailsStruct::fields()
{
    static const fieldTable<firmDetailsStruct> table{
        {QStringLiteral("name"), &firmDetailsStruct::name, labels::name},
        {QStringLiteral("nip"), &firmDetailsStruct::nip, labels::taxNumber},
        {QStringLiteral("address"), &firmDetailsStruct::address, labels::address},
        {QStringLiteral("email"), &firmDetailsStruct::email,
         [] { return QCoreApplication::translate("firmDetails", "E-mail"); }},
        {QStringLiteral("language"), &firmDetailsStruct::language,
         [] { return QCoreApplication::translate("firmDetails", "Language"); }},
        {QStringLiteral("discount"), &firmDetailsStruct::discount,
         [] { return QCoreApplication::translate("firmDetails", "Discount"); }},
        {QStringLiteral("separator"), &firmDetailsStruct::separator,
         [] { return QCoreApplication::translate("firmDetails", "Separator"); }},
        {QStringLiteral("captions"), &firmDetailsStruct::captions,
         [] { return QCoreApplication::translate("firmDetails", "Caption line"); }},
    };
    return table;
}

tagHandlerList firmDetailsStruct::tagHandlers()
{
    static const std::vector<QString> tags = tagsOf(fields(), {basketColumnsStruct::element});
    return {&tags, this};
}

void firmDetailsStruct::readElement(QXmlStreamReader *reader)
{
    noteOtherAttributes(reader);
    readChildren(reader, tagHandlers(), element);
}

int firmDetailsStruct::readTag(QXmlStreamReader *reader, size_t place)
{
    if (reader->name() == basketColumnsStruct::element)
        basket.readElement(reader);
    else if (!readField(reader, *this, fields(), place))
        reader->readNext();
    return 1;
}

int firmDetailsStruct::writeXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(element);
    writeFields(writer, *this, fields());
    const int result = basket.writeXml(writer);
    if (result >= 0)
        writer->writeEndElement();
    return result;
}

void firmDetailsStruct::become(const firmDetailsStruct &other)
{
    if (this == &other)
        return;
    copyFields(*this, other, fields());
    basket.items.clear();
    for (const auto &column : other.basket.items)
        copyFields(*basket.append(std::make_unique<basketColumnStruct>()), *column,
                   basketColumnStruct::fields());
}

std::unique_ptr<firmDetailsStruct> firmDetailsStruct::copy() const
{
    auto result = std::make_unique<firmDetailsStruct>();
    result->become(*this);
    return result;
}

const fieldTable<kiv_mat_firmDetailsStruct> &kiv_mat_firmDetailsStruct::fields()
{
    static const fieldTable<kiv_mat_firmDetailsStruct> none;
    return none;
}

kiv_mat_firmDetailsStruct::kiv_mat_firmDetailsStruct()
    : documentStruct(fileKinds::firmDetails)
{
}

tagHandlerList kiv_mat_firmDetailsStruct::tagHandlers()
{
    static const std::vector<QString> tags{firmDetailsStruct::element};
    return {&tags, this};
}

int kiv_mat_firmDetailsStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == firmDetailsStruct::element)
        readAppended(reader, details);
    else
        reader->readNext();
    return 1;
}

int kiv_mat_firmDetailsStruct::writeContent(QXmlStreamWriter *writer) const
{
    return writeAll(writer, details);
}

#include "data/sharedRecords.h"

#include "util/labels.h"

const fieldTable<optionStruct> &optionStruct::fields()
{
    static const fieldTable<optionStruct> table{
        {QStringLiteral("editable"), &optionStruct::editable},
        {QStringLiteral("type"), &optionStruct::type, labels::type},
        {QStringLiteral("value1"), &optionStruct::value1, labels::value},
        {QStringLiteral("value2"), &optionStruct::value2, labels::value},
        {QStringLiteral("unit"), &optionStruct::unit, labels::unit},
        {QStringLiteral("description"), &optionStruct::description, labels::description},
    };
    return table;
}

std::unique_ptr<optionStruct> optionStruct::copy() const
{
    auto result = std::make_unique<optionStruct>();
    copyFields(*result, *this, fields());
    return result;
}

optionStruct *optionsStruct::findOption(const QString &key) const
{
    for (const auto &option : items)
        if (option->type == key)
            return option.get();
    return nullptr;
}

QString optionsStruct::value(const QString &key) const
{
    const optionStruct *option = findOption(key);
    return option ? option->value1 : QString();
}

const fieldTable<personStruct> &personStruct::fields()
{
    static const fieldTable<personStruct> table{
        {QStringLiteral("type"), &personStruct::type, labels::type},
        {QStringLiteral("working_begin"), &personStruct::workingBegin},
        {QStringLiteral("position"), &personStruct::position},
        {QStringLiteral("etat"), &personStruct::etat},
        {QStringLiteral("name"), &personStruct::name, labels::firstAndSecondName},
        {QStringLiteral("department"), &personStruct::department, labels::department},
        {QStringLiteral("link"), &personStruct::link, labels::address},
        {QStringLiteral("phone"), &personStruct::phone, labels::phone},
    };
    return table;
}

const fieldTable<targetStruct> &targetStruct::fields()
{
    static const fieldTable<targetStruct> table{
        {QStringLiteral("priorytet"), &targetStruct::priorytet},
        {QStringLiteral("type"), &targetStruct::type, labels::type},
        {QStringLiteral("name"), &targetStruct::name, labels::name},
        {QStringLiteral("description"), &targetStruct::description, labels::description},
    };
    return table;
}

const fieldTable<fileStruct> &fileStruct::fields()
{
    static const fieldTable<fileStruct> table{
        {QStringLiteral("type"), &fileStruct::type, labels::type},
        {QStringLiteral("name"), &fileStruct::name, labels::file},
    };
    return table;
}

const fieldTable<informationsStruct> &informationsStruct::fields()
{
    static const fieldTable<informationsStruct> table{
        {QStringLiteral("status"), &informationsStruct::status, labels::status},
        {QStringLiteral("added"), &informationsStruct::added, labels::added},
        {QStringLiteral("checked"), &informationsStruct::checked, labels::checked},
        {QStringLiteral("approved"), &informationsStruct::approved, labels::approved},
        {QStringLiteral("rohs_required"), &informationsStruct::rohsRequired, labels::rohsRequired},
        {QStringLiteral("rohs_probability"), &informationsStruct::rohsProbability,
         labels::rohsProbability},
        {QStringLiteral("comment"), &informationsStruct::comment, labels::comment},
        {QStringLiteral("edited"), &informationsStruct::edited, labels::edited},
    };
    return table;
}

template <class Self>
const fieldTable<Self> &sourceRecord<Self>::fields()
{
    static const fieldTable<Self> table{
        {QStringLiteral("name"), &Self::name, labels::name},
        {QStringLiteral("part_no"), &Self::partNo, labels::partNumber},
        {QStringLiteral("description"), &Self::description, labels::description},
    };
    return table;
}

template <class Self>
int sourceRecord<Self>::readTag(QXmlStreamReader *reader, size_t place)
{
    if (reader->name() == filesStruct::element)
        files.readElement(reader);
    else if (!readField(reader, static_cast<Self &>(*this), fields(), place))
        reader->readNext();
    return 1;
}

template <class Self>
int sourceRecord<Self>::writeXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(Self::element);
    writeFields(writer, static_cast<const Self &>(*this), fields());
    const int result = files.writeXml(writer);
    if (result >= 0)
        writer->writeEndElement();
    return result;
}

template <class Self>
std::unique_ptr<Self> sourceRecord<Self>::copy() const
{
    auto result = std::make_unique<Self>();
    copyFields(*result, static_cast<const Self &>(*this), fields());
    for (const auto &file : files.items)
        copyFields(*result->files.append(std::make_unique<fileStruct>()), *file,
                   fileStruct::fields());
    return result;
}

template class sourceRecord<manufacturerStruct>;
template class sourceRecord<supplierStruct>;

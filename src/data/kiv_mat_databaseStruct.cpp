#include "data/kiv_mat_databaseStruct.h"

#include "util/labels.h"

const fieldTable<materialStruct> &materialStruct::fields()
{
    using material = materialStruct;
    static const fieldTable<material> table{
        {QStringLiteral("d_ktm"), &material::d_ktm, labels::ktm},
        {QStringLiteral("d_cpv"), &material::d_cpv, labels::cpv},
        {QStringLiteral("d_name"), &material::d_name, labels::name},
        {QStringLiteral("d_description"), &material::d_description, labels::description},
        {QStringLiteral("d_value"), &material::d_value, labels::value},
        {QStringLiteral("d_case"), &material::d_case, labels::case_},
        {QStringLiteral("d_power"), &material::d_power, labels::power},
        {QStringLiteral("d_voltage"), &material::d_voltage, labels::voltage},
        {QStringLiteral("d_current"), &material::d_current, labels::current},
        {QStringLiteral("d_tolerance"), &material::d_tolerance, labels::tolerance},
        {QStringLiteral("d_otherParameters"), &material::d_otherParameters,
         labels::otherParameters},
        {QStringLiteral("d_price"), &material::d_price, labels::price},
        {QStringLiteral("d_averagePrice"), &material::d_averagePrice, labels::averagePrice},
        {QStringLiteral("d_inWarehouse"), &material::d_inWarehouse, labels::inWarehouse},
        {QStringLiteral("d_unit"), &material::d_unit, labels::unit},
        {QStringLiteral("d_active"), &material::d_active, labels::active},
        {QStringLiteral("d_libraryRef"), &material::d_libraryRef, labels::libraryRef},
        {QStringLiteral("d_footprintRef"), &material::d_footprintRef, labels::footprintRef},
        {QStringLiteral("d_footprintRef2"), &material::d_footprintRef2, labels::footprintRef2},
        {QStringLiteral("d_footprintRef3"), &material::d_footprintRef3, labels::footprintRef3},
        {QStringLiteral("d_footprintRef4"), &material::d_footprintRef4, labels::footprintRef4},
        {QStringLiteral("d_footprintRef5"), &material::d_footprintRef5, labels::footprintRef5},
        {QStringLiteral("d_footprintRef6"), &material::d_footprintRef6, labels::footprintRef6},
        {QStringLiteral("d_quantity"), &material::d_quantity, labels::quantity},
    };
    return table;
}

const fieldTable<materialStruct> &materialStruct::shortFields()
{
    using material = materialStruct;
    static const fieldTable<material> table{
        {QStringLiteral("d_ktm"), &material::d_ktm, labels::ktm},
        {QStringLiteral("d_name"), &material::d_name, labels::name},
        {QStringLiteral("d_quantity"), &material::d_quantity, labels::quantity},
        {QStringLiteral("d_designator"), &material::d_designator, labels::designator},
    };
    return table;
}

tagHandlerList materialStruct::tagHandlers()
{
    static const std::vector<QString> tags =
        tagsOf(fields(), {QStringLiteral("d_designator"), informationsStruct::element,
                          manufacturersStruct::element, suppliersStruct::element});
    return {&tags, this};
}

void materialStruct::readElement(QXmlStreamReader *reader)
{
    noteOtherAttributes(reader);
    readChildren(reader, tagHandlers(), element);
}

int materialStruct::readTag(QXmlStreamReader *reader, size_t place)
{
    if (readField(reader, *this, fields(), place))
        return 1;
    if (reader->name() == informationsStruct::element)
        information.readElement(reader);
    else if (reader->name() == manufacturersStruct::element)
        manufacturers.readElement(reader);
    else if (reader->name() == suppliersStruct::element)
        suppliers.readElement(reader);
    else if (reader->name() == QLatin1String("d_designator"))
        d_designator = readText(reader);
    else
        reader->readNext();
    return 1;
}

int materialStruct::writeXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(element);
    writeFields(writer, *this, fields());
    const std::initializer_list<const xmlData *> children{&information, &manufacturers, &suppliers};
    int result = 0;
    for (const xmlData *child : children) {
        result = child->writeXml(writer);
        if (result < 0)
            return result;
    }
    writer->writeEndElement();
    return result;
}

int materialStruct::writeShortXml(QXmlStreamWriter *writer) const
{
    writer->writeStartElement(element);
    writeFields(writer, *this, shortFields());
    writer->writeEndElement();
    return 0;
}

std::unique_ptr<materialStruct> materialStruct::copy() const
{
    auto result = std::make_unique<materialStruct>();
    copyFields(*result, *this, fields());
    result->d_designator = d_designator;
    copyFields(result->information, information, informationsStruct::fields());
    for (const auto &manufacturer : manufacturers.items)
        result->manufacturers.append(manufacturer->copy());
    for (const auto &supplier : suppliers.items)
        result->suppliers.append(supplier->copy());
    return result;
}

bool materialStruct::operator==(const materialStruct &other) const
{
    return equalFields(*this, other, fields()) && information == other.information
           && manufacturers == other.manufacturers && suppliers == other.suppliers;
}

const fieldTable<d_groupStruct> &d_groupStruct::fields()
{
    static const fieldTable<d_groupStruct> table{
        {QStringLiteral("name"), &d_groupStruct::name, labels::group},
        {QStringLiteral("cpv"), &d_groupStruct::cpv, labels::cpv},
    };
    return table;
}

const fieldTable<d_groupStruct> &d_groupStruct::readOnlyFields()
{
    static const fieldTable<d_groupStruct> table{
        {QStringLiteral("ktm"), &d_groupStruct::ktm, labels::ktm},
    };
    return table;
}

const fieldTable<kiv_mat_databaseStruct> &kiv_mat_databaseStruct::fields()
{
    static const fieldTable<kiv_mat_databaseStruct> table{
        {QStringLiteral("update"), &kiv_mat_databaseStruct::update},
        {QStringLiteral("server_release"), &kiv_mat_databaseStruct::serverRelease},
    };
    return table;
}

kiv_mat_databaseStruct::kiv_mat_databaseStruct()
    : documentStruct(fileKinds::database)
{
}

int kiv_mat_databaseStruct::materialCount() const
{
    size_t count = 0;
    for (const auto &group : groups)
        count += group->items.size();
    return int(count);
}

tagHandlerList kiv_mat_databaseStruct::tagHandlers()
{
    static const std::vector<QString> tags = tagsOf(fields(), {d_groupStruct::element});
    return {&tags, this};
}

int kiv_mat_databaseStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == d_groupStruct::element)
        readAppended(reader, groups);
    else if (!readField(reader, *this, fields(), 0))
        reader->readNext();
    return 1;
}

int kiv_mat_databaseStruct::writeContent(QXmlStreamWriter *writer) const
{
    writeFields(writer, *this, fields());
    writer->writeComment(QStringLiteral(" "));
    int result = 0;
    for (const auto &group : groups) {
        if (!writeEmptyGroups && group->items.empty())
            continue;
        result = group->writeXml(writer);
        if (result < 0)
            break;
    }
    return result;
}

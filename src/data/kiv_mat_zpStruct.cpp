#include "data/kiv_mat_zpStruct.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "util/files.h"
#include "util/labels.h"

#include <QDate>

const fieldTable<orderItemStruct> &orderItemStruct::fields()
{
    using item = orderItemStruct;
    static const fieldTable<item> table{
        {QStringLiteral("index"), &item::index, labels::ordinalNumber},
        {QStringLiteral("name"), &item::name, labels::name},
        {QStringLiteral("price"), &item::price, labels::price},
        {QStringLiteral("average_price"), &item::averagePrice, labels::averagePrice},
        {QStringLiteral("in_warehouse"), &item::inWarehouse, labels::inWarehouse},
        {QStringLiteral("quantity"), &item::quantity, labels::quantity},
        {QStringLiteral("unit"), &item::unit, labels::unit},
        {QStringLiteral("wait"), &item::wait, labels::date},
        {QStringLiteral("description"), &item::description, labels::description},
        {QStringLiteral("rohs_required"), &item::rohsRequired, labels::rohs},
        {QStringLiteral("target"), &item::target, labels::target},
        {QStringLiteral("ktm"), &item::ktm, labels::ktm},
        {QStringLiteral("cpv"), &item::cpv, labels::cpv},
        {QStringLiteral("delivery"), &item::delivery, labels::delivery},
        {QStringLiteral("invoice"), &item::invoice, labels::invoice},
        {QStringLiteral("attentions"), &item::attentions, labels::attentions},
    };
    return table;
}

const fieldTable<kiv_mat_zpStruct> &kiv_mat_zpStruct::fields()
{
    static const fieldTable<kiv_mat_zpStruct> table{
        {QStringLiteral("attentions"), &kiv_mat_zpStruct::attentions, labels::attentions},
    };
    return table;
}

kiv_mat_zpStruct::kiv_mat_zpStruct()
    : documentStruct(fileKinds::order)
{
    setDefaultOptions(nullptr);
}

void kiv_mat_zpStruct::setDefaultOptions(const optionsStruct *configured)
{
    options.items.clear();
    const auto add = [this](const QString &key, const QString &value) {
        auto option = std::make_unique<optionStruct>();
        option->editable = statusWord::editableYes;
        option->type = key;
        option->value1 = value;
        return options.append(std::move(option));
    };
    for (QLatin1String key : {optionKey::personAuthor, optionKey::personApproved,
                              optionKey::personContractor, optionKey::orderTarget}) {
        const optionStruct *option = configured ? configured->findOption(key) : nullptr;
        if (option)
            options.append(option->copy());
        else
            add(key, key == optionKey::orderTarget ? labels::targetMask()
                                                   : labels::firstAndSecondName());
    }
    add(optionKey::orderNumber, {});
    add(optionKey::orderDate, {});
    m_optionsAreDefaults = true;
}

void kiv_mat_zpStruct::initialise(const configStruct &config)
{
    setDefaultOptions(&config.options);
    options.findOption(optionKey::orderDate)->value1 =
        QDate::currentDate().toString(labels::dateFormat());
    orderItems.items.clear();
    attentions = files::readText(QStringLiteral(":/file/files/zp_attention_POL.txt"));
    fileName.clear();
    filePath.clear();
}

tagHandlerList kiv_mat_zpStruct::tagHandlers()
{
    static const std::vector<QString> tags =
        tagsOf(fields(), {optionsStruct::element, orderItemsStruct::element});
    return {&tags, this};
}

int kiv_mat_zpStruct::readXml(QXmlStreamReader *reader)
{
    if (reader->name() == optionsStruct::element) {
        if (std::exchange(m_optionsAreDefaults, false))
            options.items.clear();
        options.readElement(reader);
    } else if (reader->name() == orderItemsStruct::element) {
        orderItems.readElement(reader);
    } else if (!readField(reader, *this, fields(), 0)) {
        reader->readNext();
    }
    return 1;
}

int kiv_mat_zpStruct::writeContent(QXmlStreamWriter *writer) const
{
    int result = options.writeXml(writer);
    if (result < 0)
        return result;
    result = orderItems.writeXml(writer);
    if (result < 0)
        return result;
    writeFields(writer, *this, fields());
    return result;
}

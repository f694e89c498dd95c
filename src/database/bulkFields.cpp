// The fields that materials are changed in together.
#include "database/bulkEdit.h"

#include "data/searchField.h"
#include "data/vocabulary.h"
#include "util/foldedText.h"

#include <QHash>

namespace bulkEdit {

namespace {

QStringList wordsOf(const QString &name)
{
    if (name == QLatin1String("status"))
        return {statusWord::grey, statusWord::blue, statusWord::green, statusWord::violet};
    if (name == QLatin1String("rohs_probability"))
        return {statusWord::low, statusWord::high};
    for (const char *yesNo : {"d_active", "checked", "approved", "rohs_required", "edited"})
        if (name == QLatin1String(yesNo))
            return {statusWord::yes, statusWord::no};
    return {};
}

field::fieldKind kindOf(const QString &name)
{
    static const QHash<QString, field::fieldKind> kinds{
        {QStringLiteral("d_ktm"), field::ktm},
        {QStringLiteral("d_cpv"), field::cpv},
        {QStringLiteral("d_price"), field::price},
        {QStringLiteral("d_averagePrice"), field::price},
        {QStringLiteral("d_inWarehouse"), field::stock},
        {QStringLiteral("d_unit"), field::unit},
    };
    return kinds.value(name, wordsOf(name).isEmpty() ? field::text : field::word);
}

std::vector<field> makeFields()
{
    std::vector<field> made;
    const auto add = [&made](const auto &source, QString materialStruct::*own,
                             QString informationsStruct::*information) {
        made.push_back({source.name, source.label, kindOf(source.name), own, information,
                        wordsOf(source.name)});
    };
    // The quantity is that of a BOM line.
    for (const auto &source : materialStruct::fields())
        if (source.member != &materialStruct::d_quantity)
            add(source, source.member, nullptr);
    for (const auto &source : informationsStruct::fields())
        add(source, nullptr, source.member);
    return made;
}

} // namespace

QString &field::of(materialStruct &material) const
{
    return own ? material.*own : material.information.*information;
}

const QString &field::of(const materialStruct &material) const
{
    return own ? material.*own : material.information.*information;
}

const std::vector<field> &fields()
{
    static const std::vector<field> table = makeFields();
    return table;
}

const field *findField(const QString &name)
{
    // The one whose text a search by that name looks at first.
    const materialStruct none;
    searchField::textList texts;
    if (const searchField *searched = searchField::find(text::folded(name)))
        searched->collect(none, nullptr, texts);
    for (const field &one : fields())
        if (one.name == name || (!texts.empty() && texts.front() == &one.of(none)))
            return &one;
    return nullptr;
}

} // namespace bulkEdit

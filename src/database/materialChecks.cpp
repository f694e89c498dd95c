#include "database/materialChecks.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/vocabulary.h"
#include "util/labels.h"

#include <QCoreApplication>
#include <QDate>

#include <algorithm>

namespace materialChecks {

namespace {

template <class Sources>
bool hasNamed(const Sources &sources)
{
    return std::any_of(sources.items.begin(), sources.items.end(),
                       [](const auto &source) { return !source->name.trimmed().isEmpty(); });
}

template <class Sources>
void dropEmpty(Sources *sources)
{
    for (const auto &source : sources->items)
        std::erase_if(source->files.items,
                      [](const auto &file) { return file->name.trimmed().isEmpty(); });
    std::erase_if(sources->items, [](const auto &source) {
        using Source = std::remove_reference_t<decltype(*source)>;
        return equalFields(*source, Source(), Source::fields()) && source->files.items.empty();
    });
}

struct check
{
    const char *text;
    const char *field;
    bool (*passes)(const materialStruct &);
};

const check checks[] = {
    {QT_TRANSLATE_NOOP("materialChecks", "KTM empty"), "d_ktm",
     [](const materialStruct &m) { return !m.d_ktm.trimmed().isEmpty(); }},
    {QT_TRANSLATE_NOOP("materialChecks", "CPV empty"), "d_cpv",
     [](const materialStruct &m) { return !m.d_cpv.trimmed().isEmpty(); }},
    {QT_TRANSLATE_NOOP("materialChecks", "Name empty"), "d_name",
     [](const materialStruct &m) { return !m.d_name.trimmed().isEmpty(); }},
    {QT_TRANSLATE_NOOP("materialChecks", "Sets manufacturer or supplier first"), "manufacturers",
     [](const materialStruct &m) { return hasNamed(m.manufacturers) || hasNamed(m.suppliers); }},
    {QT_TRANSLATE_NOOP("materialChecks", "Ktm syntax error"), "d_ktm",
     [](const materialStruct &m) { return checkKtm(m.d_ktm); }},
    {QT_TRANSLATE_NOOP("materialChecks", "CPV syntax error"), "d_cpv",
     [](const materialStruct &m) { return checkCpv(m.d_cpv); }},
};

} // namespace

std::unique_ptr<materialStruct> newMaterial()
{
    auto material = std::make_unique<materialStruct>();
    material->d_price = material->d_averagePrice = QStringLiteral("0.00");
    material->d_unit = labels::storedUnits().first();
    material->information.status = statusWord::grey;
    material->information.added = QDate::currentDate().toString(QStringLiteral("dd.MM.yyyy"));
    for (QString informationsStruct::*word :
         {&informationsStruct::checked, &informationsStruct::approved, &informationsStruct::edited})
        material->information.*word = statusWord::no;
    return material;
}

std::optional<fault> firstFault(const materialStruct &material)
{
    for (const check &one : checks)
        if (!one.passes(material))
            return fault{QCoreApplication::translate("materialChecks", one.text),
                         QLatin1String(one.field)};
    return std::nullopt;
}

void tidy(materialStruct *material)
{
    for (QString materialStruct::*text :
         {&materialStruct::d_ktm, &materialStruct::d_cpv, &materialStruct::d_name})
        material->*text = (material->*text).trimmed();
    dropEmpty(&material->manufacturers);
    dropEmpty(&material->suppliers);
}

} // namespace materialChecks

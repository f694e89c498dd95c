#include "data/searchField.h"

#include "data/kiv_mat_databaseStruct.h"

#include <algorithm>
#include <string_view>

namespace {

using material = materialStruct;
using texts = searchField::textList;

template <QString material::*Member>
void own(const material &m, const d_groupStruct *, texts &list)
{
    list.push_back(&(m.*Member));
}

template <QString informationsStruct::*Member>
void information(const material &m, const d_groupStruct *, texts &list)
{
    list.push_back(&(m.information.*Member));
}

template <class List, class Source>
void sources(const List &from, QString Source::*member, texts &list)
{
    for (const auto &source : from.items)
        list.push_back(&(source.get()->*member));
}

void partNumbers(const material &m, const d_groupStruct *, texts &list)
{
    sources(m.manufacturers, &manufacturerStruct::partNo, list);
    sources(m.suppliers, &supplierStruct::partNo, list);
}

void makers(const material &m, const d_groupStruct *, texts &list)
{
    sources(m.manufacturers, &manufacturerStruct::name, list);
    sources(m.manufacturers, &manufacturerStruct::description, list);
}

void suppliers(const material &m, const d_groupStruct *, texts &list)
{
    sources(m.suppliers, &supplierStruct::name, list);
    sources(m.suppliers, &supplierStruct::description, list);
}

void makerNames(const material &m, const d_groupStruct *, texts &list)
{
    sources(m.manufacturers, &manufacturerStruct::name, list);
}

void supplierNames(const material &m, const d_groupStruct *, texts &list)
{
    sources(m.suppliers, &supplierStruct::name, list);
}

void footprints(const material &m, const d_groupStruct *, texts &list)
{
    for (const QString *text : {&m.d_footprintRef, &m.d_footprintRef2, &m.d_footprintRef3,
                                &m.d_footprintRef4, &m.d_footprintRef5, &m.d_footprintRef6})
        list.push_back(text);
}

void groupName(const material &, const d_groupStruct *group, texts &list)
{
    if (group)
        list.push_back(&group->name);
}

} // namespace

const std::vector<searchField> &searchField::all()
{
    using info = informationsStruct;
    static const std::vector<searchField> table{
        {{"name", "nazwa"}, key, own<&material::d_name>},
        {{"ktm", "index", "indeks"}, key, own<&material::d_ktm>},
        {{"part", "partno", "pn", "numer"}, key, partNumbers},
        {{"value", "wartosc"}, measure, own<&material::d_value>},
        {{"case", "package", "obudowa"}, text, own<&material::d_case>},
        {{"description", "desc", "opis"}, text, own<&material::d_description>},
        {{"power", "moc"}, measure, own<&material::d_power>},
        {{"voltage", "napiecie"}, measure, own<&material::d_voltage>},
        {{"current", "prad"}, measure, own<&material::d_current>},
        {{"tolerance", "tolerancja"}, measure, own<&material::d_tolerance>},
        {{"other", "inne"}, text, own<&material::d_otherParameters>},
        {{"manufacturer", "maker", "producent"}, text, makers, makerNames},
        {{"supplier", "dostawca"}, text, suppliers, supplierNames},
        {{"group", "grupa"}, text, groupName},
        {{"cpv"}, text, own<&material::d_cpv>},
        {{"comment", "komentarz"}, text, information<&info::comment>},
        {{"status"}, colour, information<&info::status>},
        {{"library", "biblioteka"}, text, own<&material::d_libraryRef>},
        {{"footprint"}, text, footprints},
        {{"price", "cena"}, number, own<&material::d_price>},
        {{"average", "srednia"}, number, own<&material::d_averagePrice>},
        {{"stock", "warehouse", "stan", "magazyn"}, number, own<&material::d_inWarehouse>},
        {{"unit", "jednostka"}, unit, own<&material::d_unit>},
        {{"active", "aktywny"}, yesNo, own<&material::d_active>},
        {{"rohs"}, yesNo, information<&info::rohsRequired>},
        {{"checked", "sprawdzony"}, yesNo, information<&info::checked>},
        {{"approved", "zatwierdzony"}, yesNo, information<&info::approved>},
        {{"edited", "edytowany"}, yesNo, information<&info::edited>},
        {{"added", "dodany"}, plainText, information<&info::added>},
    };
    return table;
}

QString searchField::numberText(const QString &stored) const
{
    const int slash =
        names.front() == std::string_view("power") ? stored.indexOf(QLatin1Char('/')) : -1;
    const auto isDigitAt = [&stored](int at) {
        return at >= 0 && at < stored.size() && stored.at(at).isDigit();
    };
    return isDigitAt(slash - 1) && isDigitAt(slash + 1) && isDigitAt(stored.size() - 1)
               ? stored + QLatin1Char('W')
               : stored;
}

const searchField *searchField::find(const std::string &foldedName)
{
    for (const searchField &field : all())
        if (std::find(field.names.begin(), field.names.end(), foldedName) != field.names.end())
            return &field;
    return nullptr;
}

const std::array<const searchField *, searchField::numericCount> &searchField::numericFields()
{
    static const std::array<const searchField *, numericCount> table = [] {
        std::array<const searchField *, numericCount> result{};
        size_t count = 0;
        for (const searchField &field : all()) {
            if (field.numeric())
                result.at(count++) = &field;
        }
        return result;
    }();
    return table;
}

size_t searchField::numericPlace() const
{
    const auto &fields = numericFields();
    return size_t(std::find(fields.begin(), fields.end(), this) - fields.begin());
}

namespace {

// The first English word for a stored one is the one that is proposed.
constexpr std::pair<std::string_view, const char *> words[] = {
    {"yes", "tak"},    {"no", "nie"},         {"green", "zielony"},    {"grey", "szary"},
    {"gray", "szary"}, {"blue", "niebieski"}, {"violet", "fioletowy"}, {"purple", "fioletowy"}};

} // namespace

std::string storedWord(const std::string &foldedWord)
{
    for (const auto &[typed, stored] : words)
        if (foldedWord == typed)
            return stored;
    return {};
}

const char *englishWord(const std::string &foldedStored)
{
    for (const auto &[typed, stored] : words)
        if (foldedStored == stored)
            return typed.data();
    return nullptr;
}

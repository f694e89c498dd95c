#include "store/storeTables.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/kiv_mat_orderStatesStruct.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "data/loaders.h"
#include "util/labels.h"

#include <algorithm>
#include <functional>

#include <xxhash.h>

namespace store {

namespace {

// --- What a record is known by ---

// No KTM begins with the line end that stands before a name.
QString keyOf(const materialStruct &of)
{
    return of.d_ktm.isEmpty() ? QLatin1Char('\n') + of.d_name : of.d_ktm;
}
QString keyOf(const d_groupStruct &of) { return of.name; }
QString keyOf(const firmStruct &of) { return of.name; }
QString keyOf(const firmDetailsStruct &of) { return of.name + QLatin1Char('\n') + of.nip; }
QString keyOf(const boardStruct &of) { return of.id; }
QString keyOf(const orderStateStruct &of) { return of.file; }
QString keyOf(const partedOrderStruct &of) { return of.file; }
QString keyOf(const stockedDeliveryStruct &of)
{
    return QStringList{of.file, of.ktm, of.delivery}.join(QLatin1Char('\n'));
}
QString keyOf(const requestStruct &of) { return of.number + QLatin1Char('\n') + of.firm; }
QString keyOf(const offerStruct &of)
{
    return QStringList{of.firm, of.nip, of.received}.join(QLatin1Char('\n'));
}
QString keyOf(const choiceStruct &of) { return of.key; }
QString keyOf(const documentStruct &) { return QStringLiteral("document"); }

template <class Record>
QString captionOf(const Record &of)
{
    return keyOf(of).replace(QLatin1Char('\n'), QLatin1Char(' ')).trimmed();
}
QString captionOf(const materialStruct &of)
{
    return (of.d_ktm + QLatin1Char(' ') + of.d_name).trimmed();
}
QString captionOf(const boardStruct &of) { return of.list + QLatin1Char(' ') + of.date; }

// --- Parts of a record that are no texts ---

// A list as the element of its name; empty when nothing stands in it.
template <class List>
QString listText(const QString &element, const List &items)
{
    if (items.empty())
        return {};
    QString text;
    QXmlStreamWriter writer(&text);
    writer.writeStartElement(element);
    for (const auto &item : items)
        item->writeXml(&writer);
    writer.writeEndElement();
    return text;
}

template <class Child>
void setListText(const QString &text, std::vector<std::unique_ptr<Child>> *items)
{
    items->clear();
    QXmlStreamReader reader(text);
    if (text.isEmpty() || !reader.readNextStartElement())
        return;
    // A child may leave the reader on its end.
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == Child::element)
            readAppended(&reader, *items);
    }
}

// Qt's own has 32 bits and takes "4R7" for "537": a change between them would never be sent.
quint64 hashOf(const QString &text)
{
    return XXH3_64bits(text.constData(), size_t(text.size()) * sizeof(QChar));
}

quint64 mixed(quint64 hash, quint64 more)
{
    constexpr quint64 factor = 1099511628211U;
    return (hash ^ more) * factor;
}

template <class Record>
quint64 fieldsHash(const Record &record)
{
    quint64 hash = 0;
    for (const auto &field : Record::fields())
        hash = mixed(hash, hashOf(record.*field.member));
    return hash;
}

template <class Source>
quint64 sourcesHash(const std::vector<std::unique_ptr<Source>> &sources)
{
    quint64 hash = 0;
    for (const auto &source : sources) {
        hash = mixed(hash, fieldsHash(*source));
        for (const auto &file : source->files.items)
            hash = mixed(hash, fieldsHash(*file));
    }
    return hash;
}

template <class Record>
struct nestedPart
{
    QString name;
    QString (*label)();
    std::function<QString(const Record &)> text;
    std::function<void(Record &, const QString &)> setText;
    std::function<quint64(const Record &)> hash; // the text's when there is none
};

// The columns behind the record's own fields that are texts of a record in it, or nested ones.
template <class Record>
struct partsOf
{
    static std::vector<nestedPart<Record>> parts()
    {
        if constexpr (requires(Record r) { r.items.front()->writeXml(nullptr); } && !isFolder)
            return {{QStringLiteral("items"),
                     nullptr,
                     [](const Record &of) { return listText(QStringLiteral("items"), of.items); },
                     [](Record &of, const QString &text) { setListText(text, &of.items); },
                     {}}};
        else
            return {};
    }
    static constexpr bool isFolder = std::is_same_v<Record, d_groupStruct>;
};

template <>
struct partsOf<firmDetailsStruct>
{
    static std::vector<nestedPart<firmDetailsStruct>> parts()
    {
        return {{basketColumnsStruct::element,
                 nullptr,
                 [](const firmDetailsStruct &of) {
                     return listText(basketColumnsStruct::element, of.basket.items);
                 },
                 [](firmDetailsStruct &of, const QString &text) {
                     setListText(text, &of.basket.items);
                 },
                 {}}};
    }
};

template <>
struct partsOf<materialStruct>
{
    static std::vector<nestedPart<materialStruct>> parts()
    {
        return {{manufacturersStruct::element, labels::manufacturers,
                 [](const materialStruct &of) {
                     return listText(manufacturersStruct::element, of.manufacturers.items);
                 },
                 [](materialStruct &of, const QString &text) {
                     setListText(text, &of.manufacturers.items);
                 },
                 [](const materialStruct &of) { return sourcesHash(of.manufacturers.items); }},
                {suppliersStruct::element, labels::suppliers,
                 [](const materialStruct &of) {
                     return listText(suppliersStruct::element, of.suppliers.items);
                 },
                 [](materialStruct &of, const QString &text) {
                     setListText(text, &of.suppliers.items);
                 },
                 [](const materialStruct &of) { return sourcesHash(of.suppliers.items); }}};
    }
};

// The list of a parent, as its class holds it.
template <class Record>
using listOf = std::vector<std::unique_ptr<Record>> &(*)(xmlData *);

template <class Record>
class tableOf : public table
{
public:
    tableOf(const QString &tableName, int tableAbove, listOf<Record> list)
        : table(tableName, tableAbove)
        , m_list(list)
        , m_parts(partsOf<Record>::parts())
    {
        for (const auto &field : Record::fields())
            columns.push_back({field.name, field.label});
        if constexpr (hasInformation)
            for (const auto &field : informationsStruct::fields())
                columns.push_back({field.name, field.label});
        for (const auto &part : m_parts)
            columns.push_back({part.name, part.label, true});
    }

    int count(xmlData *parent) const override { return int(m_list(parent).size()); }
    xmlData *at(xmlData *parent, int place) const override
    {
        return m_list(parent)[size_t(place)].get();
    }
    std::vector<std::unique_ptr<xmlData>> take(xmlData *parent) const override
    {
        std::vector<std::unique_ptr<xmlData>> all;
        auto &list = m_list(parent);
        all.reserve(list.size());
        for (auto &record : list)
            all.push_back(std::move(record));
        list.clear();
        return all;
    }
    void give(xmlData *parent, std::vector<std::unique_ptr<xmlData>> records) const override
    {
        auto &list = m_list(parent);
        list.reserve(list.size() + records.size());
        for (auto &record : records)
            list.emplace_back(static_cast<Record *>(record.release()));
    }
    std::unique_ptr<xmlData> make() const override { return std::make_unique<Record>(); }

    QString text(const xmlData *record, size_t place) const override
    {
        const auto &of = static_cast<const Record &>(*record);
        if (place < Record::fields().size())
            return of.*Record::fields()[place].member;
        place -= Record::fields().size();
        if constexpr (hasInformation) {
            if (place < informationsStruct::fields().size())
                return of.information.*informationsStruct::fields()[place].member;
            place -= informationsStruct::fields().size();
        }
        return m_parts[place].text(of);
    }
    void setText(xmlData *record, size_t place, const QString &text) const override
    {
        auto &of = static_cast<Record &>(*record);
        if (place < Record::fields().size()) {
            of.*Record::fields()[place].member = text;
            return;
        }
        place -= Record::fields().size();
        if constexpr (hasInformation) {
            if (place < informationsStruct::fields().size()) {
                of.information.*informationsStruct::fields()[place].member = text;
                return;
            }
            place -= informationsStruct::fields().size();
        }
        m_parts[place].setText(of, text);
    }
    QString key(const xmlData *record) const override
    {
        return keyOf(static_cast<const Record &>(*record));
    }
    QString caption(const xmlData *record) const override
    {
        return captionOf(static_cast<const Record &>(*record));
    }
    quint64 hash(const xmlData *record) const override
    {
        const auto &of = static_cast<const Record &>(*record);
        quint64 hash = 0;
        const auto &fields = Record::fields();
        for (size_t i = 1; i < fields.size(); ++i)
            hash = mixed(hash, hashOf(of.*fields[i].member));
        if constexpr (hasInformation)
            hash = mixed(hash, fieldsHash(of.information));
        for (const auto &part : m_parts)
            hash = mixed(hash, part.hash ? part.hash(of) : hashOf(part.text(of)));
        return hash;
    }

private:
    static constexpr bool hasInformation = std::is_same_v<Record, materialStruct>;

    listOf<Record> m_list;
    std::vector<nestedPart<Record>> m_parts;
};

// The texts of the document itself: always one row.
template <class Document>
class textsTable final : public table
{
public:
    explicit textsTable(const QString &tableName)
        : table(tableName, -1)
    {
        for (const auto &field : Document::fields())
            columns.push_back({field.name, field.label});
    }

    int count(xmlData *) const override { return 1; }
    xmlData *at(xmlData *parent, int) const override { return parent; }
    // It stays where it is.
    std::vector<std::unique_ptr<xmlData>> take(xmlData *) const override { return {}; }
    void give(xmlData *, std::vector<std::unique_ptr<xmlData>>) const override {}
    std::unique_ptr<xmlData> make() const override { return nullptr; }

    QString text(const xmlData *record, size_t place) const override
    {
        return static_cast<const Document &>(*record).*Document::fields()[place].member;
    }
    void setText(xmlData *record, size_t place, const QString &text) const override
    {
        static_cast<Document &>(*record).*Document::fields()[place].member = text;
    }
    QString key(const xmlData *record) const override
    {
        return keyOf(static_cast<const Document &>(*record));
    }
    QString caption(const xmlData *) const override { return {}; }
    quint64 hash(const xmlData *record) const override
    {
        return fieldsHash(static_cast<const Document &>(*record));
    }
};

template <class Record>
void add(tables *all, const char *name, listOf<Record> list, int above = -1)
{
    all->push_back(std::make_unique<tableOf<Record>>(QLatin1String(name), above, list));
}

template <class Document>
Document &as(xmlData *parent)
{
    return static_cast<Document &>(*parent);
}

using database = kiv_mat_databaseStruct;
using firms = kiv_mat_firmStruct;
using details = kiv_mat_firmDetailsStruct;
using reservations = kiv_mat_reservationsStruct;
using states = kiv_mat_orderStatesStruct;
using offers = kiv_mat_offersStruct;

QHash<const fileKind *, std::shared_ptr<tables>> allTables()
{
    QHash<const fileKind *, std::shared_ptr<tables>> all;
    const auto of = [&all](const fileKind &kind) {
        return (all[&kind] = std::make_shared<tables>()).get();
    };
    tables *made = of(fileKinds::database);
    add<d_groupStruct>(
        made, "material_group", [](xmlData * d) -> auto & { return as<database>(d).groups; });
    add<materialStruct>(
        made, "material", [](xmlData * d) -> auto & { return as<d_groupStruct>(d).items; }, 0);

    made = of(fileKinds::firm);
    add<firmStruct>(
        made, "firm_manufacturer",
        [](xmlData * d) -> auto & { return as<firms>(d).manufacturers.items; });
    add<firmStruct>(
        made, "firm_supplier", [](xmlData * d) -> auto & { return as<firms>(d).suppliers.items; });

    made = of(fileKinds::firmDetails);
    add<firmDetailsStruct>(
        made, "firm_details", [](xmlData * d) -> auto & { return as<details>(d).details; });

    made = of(fileKinds::reservations);
    add<boardStruct>(
        made, "board_reserved",
        [](xmlData * d) -> auto & { return as<reservations>(d).reserved.items; });
    add<boardStruct>(
        made, "board_built", [](xmlData * d) -> auto & { return as<reservations>(d).built.items; });

    made = of(fileKinds::orderStates);
    add<orderStateStruct>(
        made, "order_state", [](xmlData * d) -> auto & { return as<states>(d).orders; });
    add<partedOrderStruct>(
        made, "parted_order", [](xmlData * d) -> auto & { return as<states>(d).parted; });
    add<stockedDeliveryStruct>(
        made, "stocked_delivery", [](xmlData * d) -> auto & { return as<states>(d).stocked; });

    made = of(fileKinds::offers);
    made->push_back(std::make_unique<textsTable<offers>>(QStringLiteral("order_offers")));
    add<requestStruct>(
        made, "request", [](xmlData * d) -> auto & { return as<offers>(d).requests; });
    add<offerStruct>(
        made, "offer", [](xmlData * d) -> auto & { return as<offers>(d).offers; });
    add<choiceStruct>(
        made, "choice", [](xmlData * d) -> auto & { return as<offers>(d).choices; });
    return all;
}

} // namespace

QStringList table::texts(const xmlData *record) const
{
    QStringList all;
    all.reserve(int(columns.size()));
    for (size_t place = 0; place < columns.size(); ++place)
        all.append(text(record, place));
    return all;
}

const tables &tablesOf(const fileKind &kind)
{
    static const auto all = allTables();
    static const tables none;
    const auto found = all.constFind(&kind);
    return found == all.constEnd() ? none : **found;
}

const std::vector<const fileKind *> &sharedKinds()
{
    static const std::vector<const fileKind *> all{
        &fileKinds::database,     &fileKinds::firm,        &fileKinds::firmDetails,
        &fileKinds::reservations, &fileKinds::orderStates, &fileKinds::offers};
    return all;
}

const fileKind *kindOf(const QString &root)
{
    const auto &all = sharedKinds();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&root](const fileKind *kind) { return kind->root == root; });
    return found == all.end() ? nullptr : *found;
}

QString readable(const QString &nestedText)
{
    QStringList texts;
    QXmlStreamReader reader(nestedText);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            for (const QXmlStreamAttribute &attribute : reader.attributes())
                if (!attribute.value().isEmpty())
                    texts.append(attribute.value().toString());
        if (reader.isCharacters() && !reader.isWhitespace())
            texts.append(reader.text().toString());
    }
    return texts.join(QLatin1String("; "));
}

} // namespace store

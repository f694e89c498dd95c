#include "data/documentDiff.h"

#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/kiv_mat_orderStatesStruct.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/recordMatching.h"
#include "data/vocabulary.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <algorithm>
#include <tuple>

namespace {

// --- What names a record, what nests in it ---

// What a record is known by, and what it is when that is empty.
struct identity
{
    QString key;
    QString otherwise;

    // A character that no key has tells the two apart.
    QString matched() const { return key.isEmpty() ? QLatin1Char('\n') + otherwise : key; }
    QString shown() const { return key.isEmpty() ? otherwise : key; }
};

identity identityOf(const orderItemStruct &line) { return {line.ktm, line.name}; }
identity identityOf(const materialStruct &material) { return {material.d_ktm, material.d_name}; }
identity identityOf(const d_groupStruct &group) { return {group.name, group.cpv}; }
identity identityOf(const optionStruct &option) { return {option.type, option.description}; }
identity identityOf(const personStruct &person) { return {person.name, person.type}; }
identity identityOf(const targetStruct &target) { return {target.name, target.type}; }
identity identityOf(const firmStruct &firm) { return {firm.name, firm.fullname}; }
identity identityOf(const firmDetailsStruct &details) { return {details.name, details.nip}; }
identity identityOf(const basketColumnStruct &column) { return {column.kind, column.caption}; }
identity identityOf(const boardStruct &board) { return {board.id, board.list}; }
identity identityOf(const boardLineStruct &line) { return {line.ktm, line.name}; }
identity identityOf(const orderStateStruct &state) { return {state.file, state.number}; }
identity identityOf(const partedOrderStruct &parted) { return {parted.file, parted.parts}; }
identity identityOf(const stockedDeliveryStruct &stocked)
{
    return {stocked.file + QLatin1Char(' ') + stocked.ktm + QLatin1Char(' ') + stocked.delivery,
            {}};
}
identity identityOf(const requestStruct &request) { return {request.number, request.firm}; }
identity identityOf(const requestedStruct &asked) { return {asked.key, asked.name}; }
identity identityOf(const offerStruct &offer)
{
    return {offer.firm + QLatin1Char(' ') + offer.received, {}};
}
identity identityOf(const offeredStruct &offered) { return {offered.key, {}}; }
identity identityOf(const choiceStruct &choice) { return {choice.key, {}}; }
identity identityOf(const fileStruct &file) { return {file.name, file.type}; }
identity identityOf(const fileGroup &group) { return {group.name, {}}; }
identity identityOf(const fileCategory &category) { return {category.name, {}}; }
identity identityOf(const commandStruct &command)
{
    return {command.name + QLatin1Char(' ') + command.from, {}};
}
template <class Self>
identity identityOf(const sourceRecord<Self> &source)
{
    return {source.name, source.partNo};
}

template <class Record>
QString nameOf(const Record &record)
{
    return identityOf(record).shown();
}
QString nameOf(const orderItemStruct &line)
{
    return (line.ktm + QLatin1Char(' ') + line.name).trimmed();
}
// Of a board people know its list and when.
QString nameOf(const boardStruct &board) { return board.list + QLatin1Char(' ') + board.date; }
QString nameOf(const materialStruct &material)
{
    return (material.d_ktm + QLatin1Char(' ') + material.d_name).trimmed();
}
QString nameOf(const optionStruct &option)
{
    return option.description.isEmpty() ? option.type : option.description;
}

QString kindName(const manufacturerStruct &) { return labels::manufacturer(); }
QString kindName(const supplierStruct &) { return labels::supplier(); }
QString kindName(const fileStruct &) { return labels::file(); }
QString kindName(const basketColumnStruct &)
{
    return QCoreApplication::translate("firmDetails", "Column");
}

// How records of a class are compared: their fields, and the blocks and lists that nest in them.
template <class Record>
struct shapeOf
{
    using record = Record;
    static const fieldTable<Record> &fields() { return Record::fields(); }
    static constexpr std::tuple<> nested{};
};
struct materialShape : shapeOf<materialStruct>
{
    static constexpr std::tuple nested{&materialStruct::information, &materialStruct::manufacturers,
                                       &materialStruct::suppliers};
};
struct bomLineShape : shapeOf<materialStruct>
{
    static const fieldTable<materialStruct> &fields() { return materialStruct::shortFields(); }
};
template <>
struct shapeOf<manufacturerStruct>
{
    using record = manufacturerStruct;
    static const fieldTable<record> &fields() { return record::fields(); }
    static constexpr std::tuple nested{&record::files};
};
template <>
struct shapeOf<supplierStruct>
{
    using record = supplierStruct;
    static const fieldTable<record> &fields() { return record::fields(); }
    static constexpr std::tuple nested{&record::files};
};

template <>
struct shapeOf<firmDetailsStruct>
{
    using record = firmDetailsStruct;
    static const fieldTable<record> &fields() { return record::fields(); }
    static constexpr std::tuple nested{&record::basket};
};

template <class List>
using childShape = shapeOf<typename decltype(List::items)::value_type::element_type>;

template <class Part>
constexpr bool isList = requires(const Part &part)
{
    part.items;
};

// Calls visit(part of a, the same part of b) for all that nests in them.
template <class Shape, class Record, class Visit>
void eachNested(const Record &a, const Record &b, const Visit &visit)
{
    std::apply([&](auto... members) { (visit(a.*members, b.*members), ...); }, Shape::nested);
}

// --- All texts of a record ---

bool isPassword(const optionStruct &option)
{
    return option.type == optionKey::archivePassword
           || option.type == optionKey::serverUserPassword;
}

template <class Record>
QString shownText(const Record &record, const textField<Record> &field)
{
    if constexpr (std::is_same_v<Record, optionStruct>)
        if (isPassword(record) && field.name.startsWith(QLatin1String("value")))
            return (record.*field.member).isEmpty() ? QString() : QStringLiteral("***");
    return record.*field.member;
}

// Calls visit(text) for each text of the record and of what nests in it, in file order.
template <class Shape, class Visit>
void eachText(const typename Shape::record &record, const Visit &visit)
{
    for (const auto &field : Shape::fields())
        visit(record, field);
    eachNested<Shape>(record, record, [&visit](const auto &part, const auto &) {
        using partType = std::decay_t<decltype(part)>;
        if constexpr (isList<partType>) {
            for (const auto &child : part.items)
                eachText<childShape<partType>>(*child, visit);
        } else {
            eachText<shapeOf<partType>>(part, visit);
        }
    });
}

template <class Shape>
quint64 hashOf(const typename Shape::record &record)
{
    quint64 hash = 0;
    eachText<Shape>(record, [&hash](const auto &owner, const auto &field) {
        constexpr quint64 factor = 1099511628211U;
        hash = (hash ^ qHash(owner.*field.member)) * factor;
    });
    return hash;
}

template <class Shape>
QString allTexts(const typename Shape::record &record)
{
    QStringList texts;
    eachText<Shape>(record, [&texts](const auto &owner, const auto &field) {
        texts.append(shownText(owner, field));
    });
    texts.removeAll({});
    return texts.join(QLatin1String("; "));
}

// --- Lists ---

// The records of one kind in a document, those of each list side by side.
template <class Record>
struct level
{
    struct entry
    {
        const Record *record;
        int parent; // the place of their owner in its own level
        int place;  // in the list, from 0
    };

    std::vector<entry> before;
    std::vector<entry> after;
    recordMatches matches;

    static void append(std::vector<entry> &entries,
                       const std::vector<std::unique_ptr<Record>> &items, int parent = 0)
    {
        for (const auto &item : items)
            entries.push_back({item.get(), parent, int(&item - items.data())});
    }
};

// The owners of the lists of a level.
struct owners
{
    std::vector<QString> before{QString()}; // names
    std::vector<QString> after{QString()};
    std::vector<int> matches{0};
};

template <class Shape>
void match(level<typename Shape::record> &records, const owners &lists)
{
    const auto keysOf = [](const auto &entries) {
        std::vector<QString> keys;
        keys.reserve(entries.size());
        for (const auto &entry : entries)
            keys.push_back(identityOf(*entry.record).matched());
        return keys;
    };
    const auto content = [&records](bool later, int place) {
        return hashOf<Shape>(*(later ? records.after : records.before)[size_t(place)].record);
    };
    const auto list = [&](bool later, int place) -> quint64 {
        const auto parent = size_t((later ? records.after : records.before)[size_t(place)].parent);
        return qHash((later ? lists.after : lists.before)[parent]);
    };
    const auto both = [&](bool later, int place) {
        return content(later, place) + 31 * list(later, place);
    };
    records.matches =
        matchRecords(keysOf(records.before), keysOf(records.after), {both, content, list});
}

// A list that has no match by its name belongs to the one that its first known record was in, when
// that has none either: it was given another name.
template <class Record>
void matchRenamed(std::vector<int> &lists, size_t countBefore, const level<Record> &records)
{
    std::vector<bool> isMatched(countBefore);
    for (int list : lists)
        if (list >= 0)
            isMatched[size_t(list)] = true;
    std::vector<bool> isDecided(lists.size());
    for (size_t i = 0; i < records.after.size(); ++i) {
        const int known = records.matches.before[i];
        const auto list = size_t(records.after[i].parent);
        if (known < 0 || isDecided[list])
            continue;
        isDecided[list] = true;
        const auto was = size_t(records.before[size_t(known)].parent);
        if (lists[list] < 0 && !isMatched[was]) {
            lists[list] = int(was);
            isMatched[was] = true;
        }
    }
}

// Which places of the sequence stay while the others move: a longest ascending part of it. Places
// below 0 do not.
std::vector<bool> staying(const std::vector<int> &sequence)
{
    std::vector<int> ends; // of the ascending parts of each length, the one that ends lowest
    std::vector<int> previous(sequence.size(), -1);
    for (size_t i = 0; i < sequence.size(); ++i) {
        if (sequence[i] < 0)
            continue;
        const auto where = std::lower_bound(
            ends.begin(), ends.end(), sequence[i],
            [&sequence](int place, int value) { return sequence[size_t(place)] < value; });
        previous[i] = where == ends.begin() ? -1 : *(where - 1);
        if (where == ends.end())
            ends.push_back(int(i));
        else
            *where = int(i);
    }
    std::vector<bool> result(sequence.size());
    for (int place = ends.empty() ? -1 : ends.back(); place >= 0; place = previous[size_t(place)])
        result[size_t(place)] = true;
    return result;
}

// Where each matched record was in its list, -1 for those from another one; which of them stay.
template <class Record>
std::vector<bool> stayingIn(const level<Record> &records, const owners &lists)
{
    std::vector<bool> result;
    for (size_t begin = 0, end = 0; begin < records.after.size(); begin = end) {
        const int parent = records.after[begin].parent;
        std::vector<int> sequence;
        for (; end < records.after.size() && records.after[end].parent == parent; ++end) {
            const int known = records.matches.before[end];
            const bool isHere =
                known >= 0 && records.before[size_t(known)].parent == lists.matches[size_t(parent)];
            sequence.push_back(isHere ? known : -1);
        }
        const std::vector<bool> part = staying(sequence);
        result.insert(result.end(), part.begin(), part.end());
    }
    return result;
}

// --- The rows ---

class differ
{
public:
    differ(documentDiff &diff, const progressFunction &progress, int count)
        : m_diff(diff)
        , m_steps(progress, count)
    {
    }

    // The fields and what nests, of two records that belong together. row says whose they are.
    template <class Shape>
    void compareRecords(const documentDifference &row, const typename Shape::record &before,
                        const typename Shape::record &after)
    {
        for (const auto &field : Shape::fields())
            if (before.*field.member != after.*field.member)
                add(row, documentDifference::changed, field.name,
                    field.label ? field.label() : field.name, shownText(before, field),
                    shownText(after, field));
        eachNested<Shape>(before, after, [&](const auto &a, const auto &b) {
            using partType = std::decay_t<decltype(a)>;
            if (a == b)
                return;
            if constexpr (isList<partType>)
                compareNested<childShape<partType>>(row, a.items, b.items);
            else
                compareRecords<shapeOf<partType>>(row, a, b);
        });
    }

    // The records of a level, which are matched. row: empty, or the record they are nested in.
    template <class Shape>
    void compareLevel(const level<typename Shape::record> &records, const owners &lists,
                      const documentDifference *nestedIn = nullptr)
    {
        std::vector<bool> isMatched(records.before.size());
        for (int place : records.matches.before)
            if (place >= 0)
                isMatched[size_t(place)] = true;
        auto showRemoved = [&, shown = size_t(0)](size_t end) mutable {
            for (; shown < end; ++shown)
                if (!isMatched[shown])
                    addWhole<Shape>(documentDifference::removed, records, lists, int(shown), -1,
                                    nestedIn);
        };
        const std::vector<bool> stays = stayingIn(records, lists);
        for (size_t i = 0; i < records.after.size() && !m_diff.cancelled; ++i) {
            const int known = records.matches.before[i];
            if (known < 0) {
                addWhole<Shape>(documentDifference::added, records, lists, -1, int(i), nestedIn);
            } else {
                if (stays[i])
                    showRemoved(size_t(known));
                else
                    addMove<Shape>(records, lists, known, int(i), nestedIn);
                compareRecords<Shape>(rowOf<Shape>(records, lists, known, int(i), nestedIn),
                                      *records.before[size_t(known)].record,
                                      *records.after[i].record);
            }
            if (!nestedIn && !m_steps.next())
                m_diff.cancelled = true;
        }
        showRemoved(records.before.size());
    }

    // One list of the document. group: where it stands, if that is told.
    template <class Shape, class List>
    void compareList(const List &before, const List &after, const QString &group = {})
    {
        level<typename Shape::record> records;
        records.append(records.before, before);
        records.append(records.after, after);
        const owners lists{{group}, {group}};
        match<Shape>(records, lists);
        compareLevel<Shape>(records, lists);
    }

private:
    template <class Shape, class List>
    void compareNested(const documentDifference &row, const List &before, const List &after)
    {
        level<typename Shape::record> records;
        records.append(records.before, before);
        records.append(records.after, after);
        const owners lists;
        match<Shape>(records, lists);
        compareLevel<Shape>(records, lists, &row);
    }

    // What the rows of a record say of it. Either place may be -1.
    template <class Shape>
    documentDifference rowOf(const level<typename Shape::record> &records, const owners &lists,
                             int before, int after, const documentDifference *nestedIn)
    {
        const auto &entry =
            after >= 0 ? records.after[size_t(after)] : records.before[size_t(before)];
        const int number = after >= 0 ? records.matches.numbersAfter[size_t(after)]
                                      : records.matches.numbersBefore[size_t(before)];
        const auto numbered = [number](const QString &text) {
            return number == 1 ? text : QStringLiteral("%1 (%2)").arg(text).arg(number);
        };
        documentDifference row;
        if (nestedIn) {
            row = *nestedIn;
            if constexpr (requires { kindName(*entry.record); }) {
                row.field += QStringLiteral("%1[%2]/").arg(
                    Shape::record::element, numbered(identityOf(*entry.record).shown()));
                row.caption += QStringLiteral("%1 %2: ").arg(kindName(*entry.record),
                                                             numbered(nameOf(*entry.record)));
            }
            return row;
        }
        row.record = Shape::record::element;
        row.id = identityOf(*entry.record).shown();
        row.number = number;
        row.name = numbered(nameOf(*entry.record));
        row.group = (after >= 0 ? lists.after : lists.before)[size_t(entry.parent)];
        if (before >= 0) {
            row.recordBefore = records.before[size_t(before)].record;
            row.placeBefore = records.before[size_t(before)].place + 1;
        }
        if (after >= 0) {
            row.recordAfter = records.after[size_t(after)].record;
            row.placeAfter = records.after[size_t(after)].place + 1;
        }
        return row;
    }

    template <class Shape>
    void addWhole(documentDifference::differenceKind kind,
                  const level<typename Shape::record> &records, const owners &lists, int before,
                  int after, const documentDifference *nestedIn)
    {
        add(rowOf<Shape>(records, lists, before, after, nestedIn), kind, {}, {},
            before < 0 ? QString() : allTexts<Shape>(*records.before[size_t(before)].record),
            after < 0 ? QString() : allTexts<Shape>(*records.after[size_t(after)].record));
    }

    template <class Shape>
    void addMove(const level<typename Shape::record> &records, const owners &lists, int before,
                 int after, const documentDifference *nestedIn)
    {
        const auto &from = records.before[size_t(before)];
        const auto &to = records.after[size_t(after)];
        documentDifference row = rowOf<Shape>(records, lists, before, after, nestedIn);
        row.placeBefore = from.place + 1;
        row.placeAfter = to.place + 1;
        if (from.parent != lists.matches[size_t(to.parent)])
            add(row, documentDifference::moved, {}, {}, lists.before[size_t(from.parent)],
                lists.after[size_t(to.parent)]);
        else
            add(row, documentDifference::moved, {}, {}, QString::number(row.placeBefore),
                QString::number(row.placeAfter));
    }

    // row leads to the field with what it is nested in; without a field it is that itself.
    void add(documentDifference row, documentDifference::differenceKind kind, const QString &field,
             const QString &caption, const QString &before, const QString &after)
    {
        row.kind = kind;
        if (field.isEmpty()) {
            row.field.chop(1);
            row.caption.chop(2);
        } else {
            row.field += field;
            row.caption += caption;
        }
        row.before = before;
        row.after = after;
        m_diff.rows.push_back(std::move(row));
    }

    documentDiff &m_diff;
    progressSteps m_steps;
};

// The names of the records of a level, led by those of their owners.
template <class Record>
std::vector<QString> namesOf(const std::vector<Record> &entries, const std::vector<QString> &lists)
{
    std::vector<QString> names;
    for (const auto &entry : entries) {
        const QString &list = lists[size_t(entry.parent)];
        const QString name = nameOf(*entry.record);
        names.push_back(list.isEmpty() ? name : list + QLatin1String(" / ") + name);
    }
    return names;
}

template <class Record>
owners ownersOf(const level<Record> &records, const owners &above)
{
    return {namesOf(records.before, above.before), namesOf(records.after, above.after),
            records.matches.before};
}

// The records that the lists of a level hold.
template <class Child, class Record>
level<Child> heldBy(const level<Record> &records)
{
    level<Child> held;
    for (size_t i = 0; i < records.before.size(); ++i)
        held.append(held.before, records.before[i].record->items, int(i));
    for (size_t i = 0; i < records.after.size(); ++i)
        held.append(held.after, records.after[i].record->items, int(i));
    return held;
}

template <class Document>
void compareOwnFields(differ &rows, const Document &before, const Document &after)
{
    rows.compareRecords<shapeOf<Document>>({}, before, after);
}

void compare(differ &rows, const kiv_mat_zpStruct &before, const kiv_mat_zpStruct &after)
{
    rows.compareList<shapeOf<optionStruct>>(before.options.items, after.options.items);
    rows.compareList<shapeOf<orderItemStruct>>(before.orderItems.items, after.orderItems.items);
    compareOwnFields(rows, before, after);
}

void compare(differ &rows, const kiv_mat_databaseStruct &before,
             const kiv_mat_databaseStruct &after)
{
    compareOwnFields(rows, before, after);
    level<d_groupStruct> groups;
    groups.append(groups.before, before.groups);
    groups.append(groups.after, after.groups);
    match<shapeOf<d_groupStruct>>(groups, {});
    level<materialStruct> materials = heldBy<materialStruct>(groups);
    match<materialShape>(materials, ownersOf(groups, {}));
    matchRenamed(groups.matches.before, groups.before.size(), materials);
    rows.compareLevel<shapeOf<d_groupStruct>>(groups, {});
    rows.compareLevel<materialShape>(materials, ownersOf(groups, {}));
}

void compare(differ &rows, const kiv_mat_firmStruct &before, const kiv_mat_firmStruct &after)
{
    compareOwnFields(rows, before, after);
    rows.compareList<shapeOf<firmStruct>>(before.manufacturers.items, after.manufacturers.items,
                                          labels::manufacturers());
    rows.compareList<shapeOf<firmStruct>>(before.suppliers.items, after.suppliers.items,
                                          labels::suppliers());
}

void compare(differ &rows, const kiv_mat_firmDetailsStruct &before,
             const kiv_mat_firmDetailsStruct &after)
{
    rows.compareList<shapeOf<firmDetailsStruct>>(before.details, after.details);
}

void compare(differ &rows, const kiv_mat_reservationsStruct &before,
             const kiv_mat_reservationsStruct &after)
{
    compareOwnFields(rows, before, after);
    level<boardStruct> boards;
    boards.append(boards.before, before.reserved.items);
    boards.append(boards.before, before.built.items);
    boards.append(boards.after, after.reserved.items);
    boards.append(boards.after, after.built.items);
    match<shapeOf<boardStruct>>(boards, {});
    level<boardLineStruct> lines = heldBy<boardLineStruct>(boards);
    match<shapeOf<boardLineStruct>>(lines, ownersOf(boards, {}));
    rows.compareLevel<shapeOf<boardStruct>>(boards, {});
    rows.compareLevel<shapeOf<boardLineStruct>>(lines, ownersOf(boards, {}));
}

void compare(differ &rows, const kiv_mat_orderStatesStruct &before,
             const kiv_mat_orderStatesStruct &after)
{
    rows.compareList<shapeOf<orderStateStruct>>(before.orders, after.orders);
    rows.compareList<shapeOf<partedOrderStruct>>(before.parted, after.parted);
    rows.compareList<shapeOf<stockedDeliveryStruct>>(before.stocked, after.stocked);
}

// Lists, and what is in each of them.
template <class List, class Child>
void compareLists(differ &rows, const std::vector<std::unique_ptr<List>> &before,
                  const std::vector<std::unique_ptr<List>> &after)
{
    level<List> lists;
    lists.append(lists.before, before);
    lists.append(lists.after, after);
    match<shapeOf<List>>(lists, {});
    level<Child> children = heldBy<Child>(lists);
    match<shapeOf<Child>>(children, ownersOf(lists, {}));
    rows.compareLevel<shapeOf<List>>(lists, {});
    rows.compareLevel<shapeOf<Child>>(children, ownersOf(lists, {}));
}

void compare(differ &rows, const kiv_mat_offersStruct &before, const kiv_mat_offersStruct &after)
{
    compareOwnFields(rows, before, after);
    compareLists<requestStruct, requestedStruct>(rows, before.requests, after.requests);
    compareLists<offerStruct, offeredStruct>(rows, before.offers, after.offers);
    rows.compareList<shapeOf<choiceStruct>>(before.choices, after.choices);
}

void compare(differ &rows, const configStruct &before, const configStruct &after)
{
    rows.compareList<shapeOf<optionStruct>>(before.options.items, after.options.items);
    rows.compareList<shapeOf<personStruct>>(before.persons.items, after.persons.items);
    rows.compareList<shapeOf<targetStruct>>(before.targets.items, after.targets.items);
}

void compare(differ &rows, const kiv_mat_bomStruct &before, const kiv_mat_bomStruct &after)
{
    compareOwnFields(rows, before, after);
    rows.compareList<bomLineShape>(before.materials, after.materials);
}

void compare(differ &rows, const kiv_mat_bomsStruct &before, const kiv_mat_bomsStruct &after)
{
    compareOwnFields(rows, before, after);
    level<fileCategory> categories;
    categories.append(categories.before, before.categories);
    categories.append(categories.after, after.categories);
    match<shapeOf<fileCategory>>(categories, {});
    level<fileGroup> groups = heldBy<fileGroup>(categories);
    match<shapeOf<fileGroup>>(groups, ownersOf(categories, {}));
    matchRenamed(categories.matches.before, categories.before.size(), groups);
    level<fileStruct> files = heldBy<fileStruct>(groups);
    match<shapeOf<fileStruct>>(files, ownersOf(groups, ownersOf(categories, {})));
    matchRenamed(groups.matches.before, groups.before.size(), files);
    const owners inCategories = ownersOf(categories, {});
    rows.compareLevel<shapeOf<fileCategory>>(categories, {});
    rows.compareLevel<shapeOf<fileGroup>>(groups, inCategories);
    rows.compareLevel<shapeOf<fileStruct>>(files, ownersOf(groups, inCategories));
}

void compare(differ &rows, const kiv_infoStruct &before, const kiv_infoStruct &after)
{
    compareOwnFields(rows, before, after);
}

void compare(differ &rows, const kiv_UpdateStruct &before, const kiv_UpdateStruct &after)
{
    rows.compareList<shapeOf<commandStruct>>(before.commands, after.commands);
}

int linesOf(const kiv_mat_zpStruct &order) { return int(order.orderItems.items.size()); }
int linesOf(const kiv_mat_databaseStruct &database) { return database.materialCount(); }
int linesOf(const kiv_mat_firmStruct &firms)
{
    return int(firms.manufacturers.items.size() + firms.suppliers.items.size());
}
int linesOf(const kiv_mat_firmDetailsStruct &all) { return int(all.details.size()); }
int linesOf(const kiv_mat_reservationsStruct &boards)
{
    return int(boards.reserved.items.size() + boards.built.items.size());
}
int linesOf(const kiv_mat_orderStatesStruct &states)
{
    return int(states.orders.size() + states.parted.size() + states.stocked.size());
}
int linesOf(const kiv_mat_offersStruct &all)
{
    return int(all.requests.size() + all.offers.size() + all.choices.size());
}
int linesOf(const configStruct &config)
{
    return int(config.options.items.size() + config.persons.items.size()
               + config.targets.items.size());
}
int linesOf(const kiv_mat_bomStruct &bom) { return int(bom.materials.size()); }
int linesOf(const kiv_mat_bomsStruct &boms)
{
    size_t count = 0;
    for (const auto &category : boms.categories)
        for (const auto &group : category->items)
            count += group->items.size();
    return int(count);
}
int linesOf(const kiv_infoStruct &) { return 0; }
int linesOf(const kiv_UpdateStruct &script) { return int(script.commands.size()); }

// Calls act(document as what it is).
template <class Act>
void withType(const documentStruct &document, const Act &act)
{
    const auto is = [&](const auto *typed) {
        if (typed)
            act(*typed);
        return typed != nullptr;
    };
    is(dynamic_cast<const kiv_mat_zpStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_databaseStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_firmStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_firmDetailsStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_reservationsStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_orderStatesStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_offersStruct *>(&document))
        || is(dynamic_cast<const configStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_bomStruct *>(&document))
        || is(dynamic_cast<const kiv_mat_bomsStruct *>(&document))
        || is(dynamic_cast<const kiv_infoStruct *>(&document))
        || is(dynamic_cast<const kiv_UpdateStruct *>(&document));
}

} // namespace

documentDiff compareDocuments(const documentStruct &before, const documentStruct &after,
                              const progressFunction &progress)
{
    documentDiff diff;
    diff.comparable = &before.kind() == &after.kind();
    if (!diff.comparable)
        return diff;
    differ rows(diff, progress, lineCount(after));
    withType(before, [&]<class Document>(const Document &typed) {
        compare(rows, typed, static_cast<const Document &>(after));
    });
    if (diff.cancelled)
        diff.rows.clear();
    return diff;
}

quint64 contentHash(const materialStruct &material) { return hashOf<materialShape>(material); }

int lineCount(const documentStruct &document)
{
    int count = 0;
    withType(document, [&count](const auto &typed) { count = linesOf(typed); });
    return count;
}

QString lineOf(const documentDifference &difference)
{
    const auto oneLine = [](QString text) {
        return text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    };
    QStringList parts;
    for (const QString &part : {difference.group, difference.name, difference.caption})
        if (!part.isEmpty())
            parts.append(oneLine(part));
    const QString subject = QStringLiteral("%1 %2: ").arg(QChar("+-~>"[difference.kind]),
                                                          parts.join(QLatin1String(", ")));
    switch (difference.kind) {
    case documentDifference::added:
        return subject + oneLine(difference.after);
    case documentDifference::removed:
        return subject + oneLine(difference.before);
    default:
        return subject
               + QStringLiteral("%1 -> %2")
                     .arg(oneLine(difference.before), oneLine(difference.after));
    }
}

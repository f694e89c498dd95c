#include "data/recordChanges.h"

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <QSet>

#include <algorithm>
#include <tuple>

// --- Levels
// ---------------------------------------------------------------------------------------

int recordLevel::placeOf(xmlData *parent, const xmlData *record, int hint) const
{
    const int all = count(parent);
    if (hint >= 0 && hint < all && at(parent, hint) == record)
        return hint;
    for (int place = 0; place < all; ++place)
        if (at(parent, place) == record)
            return place;
    return -1;
}

namespace {

QString nameOf(const materialStruct &material)
{
    return material.d_ktm.isEmpty() ? material.d_name : material.d_ktm;
}

template <class Named>
QString nameOf(const Named &record)
{
    return record.name;
}

template <class Record>
class levelOf final : public recordLevel
{
public:
    using records = std::vector<std::unique_ptr<Record>>;
    using writer = int (Record::*)(QXmlStreamWriter *) const;

    levelOf(int levelAbove, bool isOneOfAName, records &(*list)(xmlData *parent),
            writer write = &Record::writeXml)
        : recordLevel(levelAbove, isOneOfAName)
        , m_list(list)
        , m_write(write)
    {
    }

    QString name(const xmlData *record) const override { return nameOf(of(record)); }
    QByteArray content(const xmlData *record) const override
    {
        QByteArray bytes;
        QXmlStreamWriter out(&bytes);
        if constexpr (hasItems) {
            out.writeStartElement(Record::element);
            writeAttributes(&out, of(record), Record::fields());
            out.writeEndElement();
        } else {
            (of(record).*m_write)(&out);
        }
        // An element without content is closed only then.
        out.writeEndDocument();
        return bytes;
    }
    std::unique_ptr<xmlData> read(const QByteArray &content) const override
    {
        auto record = std::make_unique<Record>();
        QXmlStreamReader reader(content);
        if (reader.readNextStartElement())
            record->readElement(&reader);
        return record;
    }
    bool isFolder() const override { return hasItems; }

    int count(xmlData *parent) const override { return int(m_list(parent).size()); }
    xmlData *at(xmlData *parent, int place) const override
    {
        return m_list(parent)[size_t(place)].get();
    }
    void put(xmlData *parent, int place, std::unique_ptr<xmlData> record) const override
    {
        records &list = m_list(parent);
        list.insert(list.begin() + place,
                    std::unique_ptr<Record>(static_cast<Record *>(record.release())));
    }
    void remove(xmlData *parent, int place) const override
    {
        records &list = m_list(parent);
        list.erase(list.begin() + place);
    }
    xmlData *change(xmlData *parent, int place, std::unique_ptr<xmlData> to) const override
    {
        std::unique_ptr<Record> &mine = m_list(parent)[size_t(place)];
        if constexpr (hasItems)
            copyFields(*mine, static_cast<const Record &>(*to), Record::fields());
        else
            mine.reset(static_cast<Record *>(to.release()));
        return mine.get();
    }

private:
    static constexpr bool hasItems = requires(Record r) { r.items; };
    static const Record &of(const xmlData *record) { return static_cast<const Record &>(*record); }

    records &(*m_list)(xmlData *parent);
    writer m_write;
};

template <class Parent>
auto &itemsOf(xmlData *parent)
{
    return static_cast<Parent *>(parent)->items;
}

using levels = std::vector<std::unique_ptr<recordLevel>>;

levels levelsOfDatabase()
{
    levels all;
    all.push_back(std::make_unique<levelOf<d_groupStruct>>(
        -1, true,
        [](xmlData * d) -> auto & { return static_cast<kiv_mat_databaseStruct *>(d)->groups; }));
    all.push_back(std::make_unique<levelOf<materialStruct>>(0, true, &itemsOf<d_groupStruct>));
    return all;
}

levels levelsOfFirms()
{
    levels all;
    all.push_back(std::make_unique<levelOf<firmStruct>>(
        -1, true, [](xmlData * d) -> auto & {
            return static_cast<kiv_mat_firmStruct *>(d)->manufacturers.items;
        }));
    all.push_back(std::make_unique<levelOf<firmStruct>>(
        -1, true, [](xmlData * d) -> auto & {
            return static_cast<kiv_mat_firmStruct *>(d)->suppliers.items;
        }));
    return all;
}

levels levelsOfBom()
{
    levels all;
    all.push_back(std::make_unique<levelOf<materialStruct>>(
        -1, false,
        [](xmlData * d) -> auto & { return static_cast<kiv_mat_bomStruct *>(d)->materials; },
        &materialStruct::writeShortXml));
    return all;
}

levels levelsOfBoms()
{
    levels all;
    all.push_back(std::make_unique<levelOf<fileCategory>>(
        -1, true,
        [](xmlData * d) -> auto & { return static_cast<kiv_mat_bomsStruct *>(d)->categories; }));
    all.push_back(std::make_unique<levelOf<fileGroup>>(0, false, &itemsOf<fileCategory>));
    all.push_back(std::make_unique<levelOf<fileStruct>>(1, false, &itemsOf<fileGroup>));
    return all;
}

QString markOf(const QByteArray &content)
{
    return QString::fromLatin1(QCryptographicHash::hash(content, QCryptographicHash::Sha1).toHex());
}

// The words of the lines.
const QLatin1String whatKey("o");
const QLatin1String levelKey("l");
const QLatin1String numberKey("n");
const QLatin1String nameKey("k");
const QLatin1String markKey("m");
const QLatin1String wasKey("was");
const QLatin1String parentKey("in");
const QLatin1String afterKey("after");
const QLatin1String contentKey("x");

QList<QJsonObject> objectsIn(const QByteArray &lines)
{
    QList<QJsonObject> all;
    // A line that the end of the program cut short is none.
    for (const QByteArray &line : lines.split('\n'))
        if (const QJsonDocument read = QJsonDocument::fromJson(line); read.isObject())
            all.append(read.object());
    return all;
}

} // namespace

const levels &levelsOf(const fileKind &kind)
{
    static const levels database = levelsOfDatabase();
    static const levels firms = levelsOfFirms();
    static const levels bom = levelsOfBom();
    static const levels boms = levelsOfBoms();
    static const levels none;
    return &kind == &fileKinds::database ? database
           : &kind == &fileKinds::firm   ? firms
           : &kind == &fileKinds::bom    ? bom
           : &kind == &fileKinds::boms   ? boms
                                         : none;
}

// --- Noting
// ---------------------------------------------------------------------------------------

recordChanges::recordChanges(const fileKind &kind)
    : m_levels(levelsOf(kind))
{
}

void recordChanges::clear()
{
    m_lines.clear();
    m_numbers.clear();
    m_before.clear();
}

recordChanges::state recordChanges::stateOf(size_t level, const xmlData *record) const
{
    return {m_levels[level]->name(record), m_levels[level]->content(record)};
}

// A record that is changed for the first time is told by what it was; from then on it has a number.
QJsonObject recordChanges::begin(const char *what, size_t level, const xmlData *record,
                                 const state &was)
{
    QJsonObject line{{whatKey, QLatin1String(what)}, {levelKey, int(level)}};
    int &number = m_numbers[record];
    if (number == 0) {
        number = ++m_lastNumber;
        if (!was.content.isEmpty())
            line.insert(wasKey, QJsonObject{{nameKey, was.name}, {markKey, markOf(was.content)}});
    }
    line.insert(numberKey, number);
    return line;
}

QJsonObject recordChanges::reference(size_t level, const xmlData *record) const
{
    if (const int number = m_numbers.value(record); number > 0)
        return QJsonObject{{numberKey, number}};
    const state now = stateOf(level, record);
    return QJsonObject{{nameKey, now.name}, {markKey, markOf(now.content)}};
}

void recordChanges::note(const QJsonObject &line)
{
    m_lines += QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

void recordChanges::willChange(size_t level, const xmlData *record)
{
    m_before.insert(record, stateOf(level, record));
}

void recordChanges::changed(size_t level, const xmlData *record)
{
    // Told twice, of two of its texts.
    if (!m_before.contains(record))
        return;
    const state before = m_before.take(record);
    const QByteArray now = m_levels[level]->content(record);
    if (now == before.content)
        return;
    QJsonObject line = begin("set", level, record, before);
    line.insert(contentKey, QString::fromUtf8(now));
    note(line);
}

void recordChanges::put(size_t level, xmlData *parent, const xmlData *record, int hint)
{
    const recordLevel &of = *m_levels[level];
    QJsonObject line = begin("put", level, record, {});
    line.insert(contentKey, QString::fromUtf8(of.content(record)));
    if (of.above >= 0)
        line.insert(parentKey, reference(size_t(of.above), parent));
    const int place = of.placeOf(parent, record, hint);
    if (place > 0)
        line.insert(afterKey, reference(level, of.at(parent, place - 1)));
    note(line);
    if (of.isFolder())
        for (int below = 0; below < m_levels[level + 1]->count(const_cast<xmlData *>(record));
             ++below)
            put(level + 1, const_cast<xmlData *>(record),
                m_levels[level + 1]->at(const_cast<xmlData *>(record), below), below);
}

void recordChanges::willTake(size_t level, const xmlData *record)
{
    note(begin("take", level, record, stateOf(level, record)));
}

int recordChanges::countIn(const QByteArray &lines)
{
    QSet<int> numbers;
    for (const QJsonObject &line : objectsIn(lines))
        if (line.contains(numberKey))
            numbers.insert(line.value(numberKey).toInt());
    return numbers.size();
}

// --- Making them again
// ----------------------------------------------------------------------------

namespace {

class repetition
{
public:
    struct known
    {
        size_t level = 0;
        QString name;
        QString mark; // of the content
        bool isIn = true;
        bool refused = false; // others changed it: what is wanted is only followed
        xmlData *parent = nullptr;
        xmlData *record = nullptr;
        QString nameBefore; // as the program had read it, if it had
        QByteArray contentBefore;
    };

    repetition(const levels &all, documentStruct &document, recordChanges::documentKind kind)
        : m_levels(all)
        , m_document(&document)
        , m_kind(kind)
        , m_untouched(all.size())
    {
        for (size_t level = 0; level < all.size(); ++level)
            if (all[level]->above < 0)
                collect(level, m_document);
    }

    void make(const QJsonObject &line);
    // Once all are made: what has a name that others gave meanwhile goes back to what it was.
    void settleNames();
    // The names of the refused records that are not as wanted all the same.
    QStringList refused() const;
    const QHash<int, known> &records() const { return m_known; }

private:
    using place = QPair<xmlData *, xmlData *>; // parent and record

    void collect(size_t level, xmlData *parent);
    QString markAt(size_t level, const place &of) const
    {
        return markOf(m_levels[level]->content(of.second));
    }
    place find(size_t level, const QJsonObject &reference, bool exactly) const;
    void meet(known &one, const QJsonObject &was);
    void set(known &one, const QByteArray &content);
    void take(known &one);
    void put(known &one, const QJsonObject &line);
    int placeAfter(const known &one, const QJsonObject &line) const;

    const levels &m_levels;
    documentStruct *m_document;
    recordChanges::documentKind m_kind;
    std::vector<QMultiHash<QString, place>> m_untouched; // by level and name
    QHash<int, known> m_known;                           // by number
};

void repetition::collect(size_t level, xmlData *parent)
{
    const recordLevel &of = *m_levels[level];
    // From the last one on: of equal names the first in the file is found first.
    for (int i = of.count(parent) - 1; i >= 0; --i) {
        xmlData *record = of.at(parent, i);
        m_untouched[level].insert(of.name(record), {parent, record});
        if (of.isFolder())
            collect(level + 1, record);
    }
}

repetition::place repetition::find(size_t level, const QJsonObject &reference, bool exactly) const
{
    const QString mark = reference.value(markKey).toString();
    const QList<place> named = m_untouched[level].values(reference.value(nameKey).toString());
    for (const place &one : named)
        if (markAt(level, one) == mark)
            return one;
    return exactly || named.isEmpty() ? place{} : named.first();
}

void repetition::meet(known &one, const QJsonObject &was)
{
    one.name = was.value(nameKey).toString();
    one.mark = was.value(markKey).toString();
    const place found = find(one.level, was, m_kind != recordChanges::settled);
    one.refused = !found.second;
    one.nameBefore = one.name;
    if (one.refused)
        return;
    std::tie(one.parent, one.record) = std::pair(found.first, found.second);
    one.contentBefore = m_levels[one.level]->content(one.record);
    m_untouched[one.level].remove(one.name, found);
}

void repetition::set(known &one, const QByteArray &content)
{
    const recordLevel &of = *m_levels[one.level];
    auto to = of.read(content);
    one.name = of.name(to.get());
    one.mark = markOf(content);
    // Others gave it the name that the user took from them.
    if (const place theirs = m_untouched[one.level].value(one.name);
        one.refused && m_kind == recordChanges::settled && theirs.second) {
        std::tie(one.parent, one.record) = std::pair(theirs.first, theirs.second);
        m_untouched[one.level].remove(one.name, theirs);
        one.refused = false;
    }
    if (!one.refused && one.record)
        one.record = of.change(one.parent, of.placeOf(one.parent, one.record), std::move(to));
}

void repetition::take(known &one)
{
    one.isIn = false;
    if (one.refused || !one.record)
        return;
    const recordLevel &of = *m_levels[one.level];
    of.remove(one.parent, of.placeOf(one.parent, one.record));
    one.record = nullptr;
}

int repetition::placeAfter(const known &one, const QJsonObject &line) const
{
    const recordLevel &of = *m_levels[one.level];
    if (!line.contains(afterKey))
        return 0;
    const QJsonObject after = line.value(afterKey).toObject();
    const int number = after.value(numberKey).toInt();
    const xmlData *before =
        number > 0 ? m_known.value(number).record : find(one.level, after, false).second;
    const int found = before ? of.placeOf(one.parent, before) : -1;
    return found < 0 ? of.count(one.parent) : found + 1;
}

void repetition::put(known &one, const QJsonObject &line)
{
    const recordLevel &of = *m_levels[one.level];
    const QByteArray content = line.value(contentKey).toString().toUtf8();
    const QString mark = markOf(content);
    one.isIn = true;
    // Taken out and put back, while others changed it.
    if (one.refused && one.mark == mark)
        return;
    auto record = of.read(content);
    one.name = of.name(record.get());
    one.mark = mark;
    one.refused = false;
    one.parent = m_document;
    if (of.above >= 0) {
        const QJsonObject in = line.value(parentKey).toObject();
        const int number = in.value(numberKey).toInt();
        one.parent =
            number > 0 ? m_known.value(number).record : find(size_t(of.above), in, false).second;
    }
    one.refused = !one.parent;
    if (one.refused)
        return;
    // A folder that others made, too, is the same.
    if (const place theirs = m_untouched[one.level].value(one.name);
        of.isFolder() && of.oneOfAName && m_kind != recordChanges::asItWas && theirs.second) {
        std::tie(one.parent, one.record) = std::pair(theirs.first, theirs.second);
        m_untouched[one.level].remove(one.name, theirs);
        return;
    }
    one.record = record.get();
    of.put(one.parent, placeAfter(one, line), std::move(record));
}

void repetition::make(const QJsonObject &line)
{
    const int number = line.value(numberKey).toInt();
    const auto level = size_t(line.value(levelKey).toInt());
    if (number <= 0 || level >= m_levels.size())
        return;
    known &one = m_known[number];
    one.level = level;
    if (line.contains(wasKey))
        meet(one, line.value(wasKey).toObject());
    const QString what = line.value(whatKey).toString();
    if (what == QLatin1String("set"))
        set(one, line.value(contentKey).toString().toUtf8());
    else if (what == QLatin1String("take"))
        take(one);
    else if (what == QLatin1String("put"))
        put(one, line);
}

void repetition::settleNames()
{
    for (known &one : m_known) {
        const recordLevel &of = *m_levels[one.level];
        if (m_kind == recordChanges::asItWas || !of.oneOfAName || !one.record || one.name.isEmpty()
            || one.name == one.nameBefore || !m_untouched[one.level].contains(one.name))
            continue;
        const int at = of.placeOf(one.parent, one.record);
        if (one.contentBefore.isEmpty())
            of.remove(one.parent, at);
        else
            of.change(one.parent, at, of.read(one.contentBefore));
        one.record = nullptr;
        one.refused = true;
    }
}

QStringList repetition::refused() const
{
    QStringList names;
    for (const known &one : m_known) {
        const QList<place> named = m_untouched[one.level].values(one.name);
        const bool isAsWanted =
            one.isIn ? std::any_of(named.begin(), named.end(),
                                   [&](const place &p) { return markAt(one.level, p) == one.mark; })
                     : named.isEmpty();
        if (one.refused && !isAsWanted)
            names.append(one.nameBefore.isEmpty() ? one.name : one.nameBefore);
    }
    names.sort();
    names.removeDuplicates();
    return names;
}

} // namespace

recordChanges::outcome recordChanges::repeat(const QByteArray &lines, documentStruct &document,
                                             documentKind kind)
{
    repetition again(m_levels, document, kind);
    for (const QJsonObject &line : objectsIn(lines))
        again.make(line);
    again.settleNames();
    clear();
    outcome result;
    result.refused = again.refused();
    for (auto one = again.records().begin(); one != again.records().end(); ++one) {
        m_lastNumber = std::max(m_lastNumber, one.key());
        result.made += !one->refused;
        if (one->record)
            m_numbers.insert(one->record, one.key());
    }
    return result;
}

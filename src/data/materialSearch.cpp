#include "data/materialSearch.h"

#include "data/kiv_mat_databaseStruct.h"
#include "util/foldedText.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr size_t sliceSize = 1000;
constexpr int longestValue = 60;

// Control characters never stand in a folded text: they part the texts and name the fields.
constexpr char endMark = 1;

char markOf(const searchField &field) { return char(2 + (&field - searchField::all().data())); }

bool isMark(char c) { return static_cast<unsigned char>(c) < ' '; }

bool holds(const searchTerm &term, const quantity &number)
{
    if (!number.fits(*term.number))
        return false;
    const int order = number.compare(*term.number);
    switch (term.relation) {
    case searchTerm::less:
        return order < 0;
    case searchTerm::lessOrEqual:
        return order <= 0;
    case searchTerm::greater:
        return order > 0;
    case searchTerm::greaterOrEqual:
        return order >= 0;
    case searchTerm::between:
        return order >= 0 && number.fits(*term.last) && number.compare(*term.last) <= 0;
    default:
        return order == 0;
    }
}

} // namespace

void materialSearch::add(kiv_mat_databaseStruct *database)
{
    const int count = m_places.size() + database->materialCount();
    m_places.reserve(count);
    m_all.reserve(size_t(count));
    for (const auto &group : database->groups)
        for (const auto &material : group->items)
            insert({material.get(), group.get(), database});
}

void materialSearch::insert(const entry &added)
{
    changed();
    const auto known = m_places.constFind(added.material);
    if (known != m_places.constEnd()) {
        m_all[*known].owner = added;
        update(added.material);
        return;
    }
    m_places.insert(added.material, quint32(m_all.size()));
    m_all.emplace_back().owner = added;
}

void materialSearch::remove(const materialStruct *material)
{
    const auto known = m_places.constFind(material);
    if (known == m_places.constEnd())
        return;
    changed();
    // An assignment would keep the text's memory.
    place gone;
    std::swap(m_all[*known], gone);
    m_places.erase(known);
    closeGaps();
}

void materialSearch::update(const materialStruct *material)
{
    const auto known = m_places.constFind(material);
    if (known == m_places.constEnd())
        return;
    changed();
    if (*known < m_read)
        readTexts(m_all[*known]);
}

void materialSearch::changed()
{
    m_current = false;
    m_values.clear();
}

void materialSearch::clear() { *this = materialSearch(); }

bool materialSearch::prepare(const progressFunction &progress)
{
    while (m_read < m_all.size()) {
        const size_t end = std::min(m_all.size(), m_read + sliceSize);
        for (; m_read < end; ++m_read)
            if (m_all[m_read].owner.material)
                readTexts(m_all[m_read]);
        if (progress && !progress(qint64(m_read), qint64(m_all.size())))
            return m_read == m_all.size();
    }
    return true;
}

void materialSearch::readTexts(place &at)
{
    m_text.clear();
    searchField::textList texts;
    size_t number = 0;
    for (const searchField &field : searchField::all()) {
        texts.clear();
        field.collect(*at.owner.material, at.owner.group, texts);
        if (field.numeric()) {
            at.numbers[number] = numberOf(field.numberText(*texts.front()));
            // Compared as a number only.
            if (field.kind == searchField::number && m_numbers[at.numbers[number]])
                texts.clear();
            ++number;
        }
        for (const QString *text : texts)
            appendText(field, *text);
        // The table has the keys first and the fields for their names only last.
        if (field.kind == searchField::key)
            at.keyLength = quint32(m_text.size());
        if (field.byAnyWord())
            at.wordLength = quint32(m_text.size());
    }
    m_text.push_back(endMark);
    // Without the room that m_text has to spare.
    at.text = std::string(m_text.data(), m_text.size());
}

void materialSearch::appendText(const searchField &field, const QString &text)
{
    if (text.isEmpty())
        return;
    const size_t before = m_text.size();
    m_text.push_back(markOf(field));
    text::appendFolded(text.trimmed(), m_text);
    // Suppliers repeat the manufacturer's part number.
    const std::string_view added = std::string_view(m_text).substr(before);
    const size_t same = m_text.find(added);
    if (added.size() == 1
        || (same < before
            && (same + added.size() == before || isMark(m_text[same + added.size()]))))
        m_text.resize(before);
}

quint32 materialSearch::numberOf(const QString &text)
{
    const auto known = m_numberOfText.constFind(text);
    if (known != m_numberOfText.constEnd())
        return *known;
    const quint32 number = quint32(m_numbers.size());
    m_numbers.push_back(quantity::parseStart(text));
    m_numberOfText.insert(text, number);
    return number;
}

// Closes the gaps that removed materials leave when there are more of them than materials.
void materialSearch::closeGaps()
{
    if (m_all.size() <= 2 * size_t(m_places.size()) + sliceSize)
        return;
    size_t used = 0;
    size_t read = 0;
    for (size_t i = 0; i < m_all.size(); ++i) {
        if (!m_all[i].owner.material)
            continue;
        if (i < m_read)
            ++read;
        m_places[m_all[i].owner.material] = quint32(used);
        if (i != used)
            m_all[used] = std::move(m_all[i]);
        ++used;
    }
    m_all.resize(used);
    m_read = read;
}

// Keeps what is known of the conditions that the last query had too.
void materialSearch::learn(const searchQuery &query)
{
    std::vector<knownTerm> terms;
    for (const searchTerm &term : query.terms()) {
        const auto before =
            std::find_if(m_terms.begin(), m_terms.end(), [&](const knownTerm &known) {
                return known.term == term && !known.ranks.empty();
            });
        if (m_current && before != m_terms.end()) {
            terms.push_back(std::move(*before));
            continue;
        }
        knownTerm &added = terms.emplace_back();
        added.term = term;
        added.ranks.assign(m_all.size(), unknown);
    }
    m_terms = std::move(terms);
    extendFits();
}

materialSearch::rankKind materialSearch::rankOfTerm(const place &at, const knownTerm &known) const
{
    const searchTerm &term = known.term;
    if (term.field)
        return fieldFits(at, known) ? keyBeginning : absent;
    const std::string_view text = std::string_view(at.text).substr(0, at.wordLength + 1);
    int rank = rankOfWord(text, at.keyLength, term.text);
    if (!term.altText.empty())
        rank = std::min(rank, rankOfWord(text, at.keyLength, term.altText));
    // An equal number is as good as the beginning of a key; digits alone may mean something else.
    const int byNumber = term.number && term.number->bare ? otherInside : keyBeginning;
    if (term.number && byNumber < rank) {
        const auto &fields = searchField::numericFields();
        for (size_t i = 0; i < fields.size(); ++i)
            if (fields[i]->kind == searchField::measure && known.fits[at.numbers[i]])
                rank = byNumber;
    }
    return rankKind(rank);
}

int materialSearch::rankOfWord(std::string_view text, size_t keyLength, std::string_view word)
{
    int best = absent;
    for (size_t at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1)) {
        const bool inKey = at < keyLength;
        // What follows is no better.
        if (!inKey && best <= otherBeginning)
            break;
        if (inKey && isMark(text[at - 1]) && isMark(text[at + word.size()]))
            return exact;
        const bool beginning = !text::isWordByte(text[at - 1]);
        if (inKey)
            best = std::min<int>(best, beginning ? keyBeginning : keyInside);
        else
            best = std::min<int>(best, beginning ? otherBeginning : otherInside);
    }
    return best;
}

bool materialSearch::fieldFits(const place &at, const knownTerm &known) const
{
    const searchTerm &term = known.term;
    if (term.field->numeric()) {
        const std::optional<quantity> &number = m_numbers[at.numbers[term.field->numericPlace()]];
        if (term.number && (number || term.relation > searchTerm::equal))
            return known.fits[size_t(&number - m_numbers.data())];
        // Such a text is not kept.
        if (term.field->kind == searchField::number && number)
            return false;
        // What is no number is compared as a text.
    }
    const std::string_view text = at.text;
    const char mark = markOf(*term.field);
    size_t begin = text.find(mark);
    if (term.text.empty())
        return begin == std::string_view::npos;
    while (begin != std::string_view::npos && text[begin] == mark) {
        size_t end = begin + 1;
        while (!isMark(text[end]))
            ++end;
        const std::string_view own = text.substr(begin + 1, end - begin - 1);
        for (const std::string *word : {&term.text, &term.altText})
            if (!word->empty()
                && (term.relation == searchTerm::equal ? own == *word
                                                       : own.find(*word) != std::string_view::npos))
                return true;
        begin = end;
    }
    return false;
}

// Numbers that came with a change.
void materialSearch::extendFits()
{
    for (knownTerm &known : m_terms)
        if (known.term.number)
            for (size_t i = known.fits.size(); i < m_numbers.size(); ++i)
                known.fits.push_back(m_numbers[i] && holds(known.term, *m_numbers[i]));
}

bool materialSearch::meets(const place &at, quint32 &sum, const size_t *keptAt)
{
    for (size_t t = 0; t < m_terms.size();) {
        const searchTerm &first = m_terms[t].term;
        rankKind best = absent;
        for (; t < m_terms.size() && m_terms[t].term.group == first.group; ++t) {
            rankKind rank = keptAt ? m_terms[t].ranks[*keptAt] : unknown;
            if (rank == unknown) {
                rank = rankOfTerm(at, m_terms[t]);
                if (keptAt)
                    m_terms[t].ranks[*keptAt] = rank;
            }
            best = std::min(best, rank);
        }
        if ((best != absent) == first.negated)
            return false;
        sum += first.negated ? 0 : best;
    }
    return true;
}

void materialSearch::search(const searchQuery &query)
{
    if (m_current && query == m_query)
        return;
    prepare();
    learn(query);
    m_hits.clear();
    m_matched.assign(m_all.size(), false);
    for (size_t i = 0; i < m_all.size(); ++i) {
        const place &at = m_all[i];
        if (!at.owner.material)
            continue;
        quint32 sum = 0;
        if (!meets(at, sum, &i))
            continue;
        if (!query.phrase().empty()
            && rankOfWord(std::string_view(at.text).substr(0, at.keyLength + 1), at.keyLength,
                          query.phrase())
                   == exact)
            sum = 0;
        m_hits.push_back({sum, quint32(i)});
        m_matched[i] = true;
    }
    m_query = query;
    m_current = true;
}

materialSearch::result materialSearch::find(const searchQuery &query, int limit)
{
    search(query);
    result found;
    found.total = int(m_hits.size());
    const size_t count = std::min(m_hits.size(), size_t(std::max(limit, 0)));
    std::partial_sort(m_hits.begin(), m_hits.begin() + qint64(count), m_hits.end());
    found.entries.reserve(count);
    for (size_t i = 0; i < count; ++i)
        found.entries.push_back(m_all[m_hits[i].place].owner);
    return found;
}

// They are mostly asked for one after the other.
std::optional<quint32> materialSearch::placeOf(const materialStruct *material)
{
    if (m_next >= m_all.size() || m_all[m_next].owner.material != material) {
        const auto known = m_places.constFind(material);
        if (known == m_places.constEnd())
            return {};
        m_next = *known;
    }
    return quint32(m_next++);
}

bool materialSearch::matches(const materialStruct *material, const searchQuery &query)
{
    const bool isAnswered = query == m_query && !m_terms.empty();
    if (!isAnswered)
        search(query);
    const std::optional<quint32> known = placeOf(material);
    if (!known || m_current)
        return known && m_matched[*known];
    // Only a few have changed since, of which each is looked at for itself.
    prepare();
    extendFits();
    quint32 sum = 0;
    return meets(m_all[*known], sum, nullptr);
}

const std::vector<materialSearch::fieldValue> &materialSearch::values(
    const searchField &field, const kiv_mat_databaseStruct *database)
{
    const auto [known, isNew] = m_values.try_emplace({&field, database});
    std::vector<fieldValue> &list = known->second;
    if (!isNew)
        return list;
    QHash<QString, int> counts;
    searchField::textList texts;
    for (const place &at : m_all) {
        if (!at.owner.material || (database && at.owner.database != database))
            continue;
        texts.clear();
        (field.propose ? field.propose : field.collect)(*at.owner.material, at.owner.group, texts);
        for (const QString *text : texts)
            if (!text->isEmpty() && text->size() <= longestValue)
                ++counts[*text];
    }
    list.reserve(size_t(counts.size()));
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        if (const QString text = it.key().trimmed(); !text.isEmpty())
            list.push_back({text, text::folded(text), it.value()});
    // The most frequent spelling of each stands for all of them.
    std::sort(list.begin(), list.end(), [](const fieldValue &a, const fieldValue &b) {
        const int order = a.folded.compare(b.folded);
        return order != 0 ? order < 0 : std::tie(b.count, a.text) < std::tie(a.count, b.text);
    });
    size_t used = 0;
    for (fieldValue &value : list) {
        if (used > 0 && list[used - 1].folded == value.folded)
            list[used - 1].count += value.count;
        else if (&list[used++] != &value)
            list[used - 1] = std::move(value);
    }
    list.resize(used);
    std::stable_sort(list.begin(), list.end(),
                     [](const fieldValue &a, const fieldValue &b) { return a.count > b.count; });
    return list;
}

size_t materialSearch::memory() const
{
    size_t bytes = m_all.capacity() * sizeof(place)
                   + size_t(m_places.capacity()) * (sizeof(void *) + 24)
                   + size_t(m_numberOfText.capacity()) * 88
                   + m_numbers.capacity() * sizeof(m_numbers[0]) + m_hits.capacity() * sizeof(hit);
    for (const place &at : m_all)
        bytes += at.text.capacity() + 2 * sizeof(void *);
    for (const auto &[of, list] : m_values)
        for (const fieldValue &value : list)
            bytes += sizeof value + value.folded.capacity() + size_t(value.text.capacity()) * 2;
    for (const knownTerm &known : m_terms)
        bytes += known.fits.capacity() + known.ranks.capacity();
    return bytes;
}

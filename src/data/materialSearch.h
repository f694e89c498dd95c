// Searches the materials of all loaded databases as the user types. Each material's texts stand
// folded in one piece that a query runs through; numbers are read once. See docs/search.md.
#pragma once

#include "data/ktmIndex.h"
#include "data/searchQuery.h"
#include "util/progress.h"

#include <QHash>

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <vector>

class materialSearch
{
public:
    using entry = ktmIndex::entry;

    struct result
    {
        std::vector<entry> entries; // the best first
        int total = 0;              // of all that match
    };

    // Takes in every material of a database. Cheap: their texts are read by prepare().
    void add(kiv_mat_databaseStruct *database);

    // Reads the texts of the materials added since, in slices, with their number as progress. False
    // when the progress function cancelled; the next call goes on from there. The first search does
    // what is left.
    bool prepare(const progressFunction &progress = {});

    // Keep the index in step with a material that is added, about to be removed, or was changed
    // (its group's name counts as its own text). A material that is not in the index is left alone
    // by remove() and update().
    void insert(const entry &added);
    void remove(const materialStruct *material);
    void update(const materialStruct *material);

    void clear();
    int size() const { return m_places.size(); }

    // The materials that meet the query, at most limit of them. The order: a KTM, name or part
    // number that equals the query, the beginning of a word, the inside of a word; among the latter
    // two, matches in KTM, name, part numbers or by an equal number first; then the order of the
    // databases. An empty query finds everything.
    result find(const searchQuery &query, int limit);

    // Whether one material meets the query; false when it is not in the index. The first call after
    // another query or a change searches everything, the following ones look up its answer.
    bool matches(const materialStruct *material, const searchQuery &query);

    // A text that stands in a field, spelt as most often, and the number of times it stands there.
    struct fieldValue
    {
        QString text;
        std::string folded;
        int count = 0;
    };
    // The different texts of a field, the most frequent first; of one database, when it is given.
    // They are collected when they are first asked for, and again after a change. Long ones are
    // left out: nobody types them.
    const std::vector<fieldValue> &values(const searchField &field,
                                          const kiv_mat_databaseStruct *database = nullptr);

    // Bytes in use, about.
    size_t memory() const;

private:
    struct place
    {
        entry owner; // no material: removed
        // Its folded texts, each behind a control character that names its field, and one more at
        // the end. First the keys, then what any word is searched in, then the others.
        std::string text;
        quint32 keyLength = 0;
        quint32 wordLength = 0;
        // Of the numeric fields, in m_numbers.
        std::array<quint32, searchField::numericCount> numbers{};
    };
    // Better is less.
    enum rankKind : quint8
    {
        exact,
        keyBeginning,
        otherBeginning,
        keyInside,
        otherInside,
        absent,
        unknown
    };
    struct hit
    {
        quint32 rank;
        quint32 place;
        // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer that is compared with
        auto operator<=>(const hit &) const = default;
    };
    // A condition with what is known of it. While a user types, only the last one changes.
    struct knownTerm
    {
        searchTerm term;
        std::vector<char> fits;      // whether each of m_numbers does
        std::vector<rankKind> ranks; // of each place
    };

    void changed();
    void readTexts(place &at);
    void appendText(const searchField &field, const QString &text);
    quint32 numberOf(const QString &text);
    void closeGaps();
    void learn(const searchQuery &query);
    static int rankOfWord(std::string_view text, size_t keyLength, std::string_view word);
    rankKind rankOfTerm(const place &at, const knownTerm &known) const;
    bool fieldFits(const place &at, const knownTerm &known) const;
    void extendFits();
    // Whether a place meets the conditions, and the sum of its ranks; keptAt is where they are
    // kept, if they are.
    bool meets(const place &at, quint32 &sum, const size_t *keptAt);
    std::optional<quint32> placeOf(const materialStruct *material);
    // Fills m_hits and m_matched, unless they answer this query already.
    void search(const searchQuery &query);

    std::vector<place> m_all;
    QHash<const materialStruct *, quint32> m_places;
    size_t m_next = 0;  // the place that is probably asked for next
    size_t m_read = 0;  // places whose texts are read
    std::string m_text; // of the place that is read, kept to spare allocations

    // The different texts of numeric fields are few.
    std::vector<std::optional<quantity>> m_numbers;
    QHash<QString, quint32> m_numberOfText;

    std::map<std::pair<const searchField *, const kiv_mat_databaseStruct *>,
             std::vector<fieldValue>>
        m_values;

    // The last search.
    bool m_current = false; // nothing changed since
    searchQuery m_query;
    std::vector<knownTerm> m_terms;
    std::vector<hit> m_hits;
    std::vector<bool> m_matched;
};

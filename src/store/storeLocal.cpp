#include "store/storeLocal.h"

#include "data/recordMatching.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <set>

namespace store {

namespace {

// Those of one table.
struct side
{
    std::vector<size_t> rows;  // places among all
    std::vector<QString> keys; // of these rows, where they are needed
};

// The place in the base of the row that a record lies below.
int baseBelow(const std::vector<localRow> &rows, const localRow &row)
{
    return row.below < 0 ? -1 : rows[size_t(row.below)].base;
}

// Contents that only one record on each side has.
void matchByContent(std::vector<localRow> *rows, const base &known, const side &mine,
                    const side &theirs, std::vector<bool> *taken)
{
    QHash<quint64, int> alike; // base rows; -2: several
    for (const size_t place : theirs.rows)
        if (!(*taken)[place]) {
            const auto found = alike.find(known.rows[place].hash);
            if (found == alike.end())
                alike.insert(known.rows[place].hash, int(place));
            else
                *found = -2;
        }
    QHash<quint64, int> counts;
    for (const size_t place : mine.rows)
        if ((*rows)[place].base < 0)
            ++counts[(*rows)[place].hash];
    for (const size_t place : mine.rows) {
        localRow &row = (*rows)[place];
        const int found = alike.value(row.hash, -1);
        if (row.base < 0 && found >= 0 && counts.value(row.hash) == 1) {
            row.base = found;
            (*taken)[size_t(found)] = true;
        }
    }
}

// A folder that is not found by its name is the one, not found either, at least half of whose
// records lie in it now.
void matchByChildren(std::vector<localRow> *rows, const base &known, const side &mine,
                     const side &theirs, std::vector<bool> *taken)
{
    QHash<int, int> counts; // records of the folders that are left
    for (const size_t place : theirs.rows)
        if (!(*taken)[place])
            counts.insert(int(place), 0);
    if (counts.isEmpty())
        return;
    QHash<QString, int> homes; // of the records, by their keys
    for (const baseRow &row : known.rows)
        if (const auto count = counts.find(row.below); row.below >= 0 && count != counts.end()) {
            ++*count;
            homes.insert(row.key, row.below);
        }
    std::map<int, QHash<int, int>> votes; // of the folders here
    for (const localRow &row : *rows)
        if (row.below >= 0 && (*rows)[size_t(row.below)].base < 0)
            if (const auto home = homes.constFind(row.key); home != homes.constEnd())
                ++votes[row.below][*home];
    for (const size_t place : mine.rows) {
        const auto of = votes.find(int(place));
        if (of == votes.end())
            continue;
        for (auto vote = of->second.cbegin(); vote != of->second.cend(); ++vote)
            if (2 * vote.value() >= counts.value(vote.key()) && !(*taken)[size_t(vote.key())]) {
                (*rows)[place].base = vote.key();
                (*taken)[size_t(vote.key())] = true;
                break;
            }
    }
}

// Runs of unknown records between the same neighbours, when they are as long on both sides.
void matchByNeighbours(std::vector<localRow> *rows, const base &known, const side &mine,
                       const side &theirs, std::vector<bool> *taken)
{
    // What follows a row, or the beginning of a parent (-1), below a parent.
    using beginning = std::pair<int, int>;
    std::map<beginning, std::vector<int>> left;
    std::map<int, int> last; // known row, by parent
    for (const size_t place : theirs.rows) {
        const int below = known.rows[place].below;
        int &before = last.try_emplace(below, -1).first->second;
        if ((*taken)[place])
            before = int(place);
        else
            left[{below, before}].push_back(int(place));
    }
    if (left.empty())
        return;
    std::map<beginning, std::vector<size_t>> fresh;
    last.clear();
    for (const size_t place : mine.rows) {
        const localRow &row = (*rows)[place];
        const int below = baseBelow(*rows, row);
        if (row.below >= 0 && below < 0)
            continue;
        int &before = last.try_emplace(below, -1).first->second;
        if (row.base >= 0)
            before = row.base;
        else
            fresh[{below, before}].push_back(place);
    }
    for (const auto &[where, places] : fresh) {
        const auto found = left.find(where);
        if (found == left.end() || found->second.size() != places.size())
            continue;
        for (size_t i = 0; i < places.size(); ++i) {
            (*rows)[places[i]].base = found->second[i];
            (*rows)[places[i]].isGuess = true;
            (*taken)[size_t(found->second[i])] = true;
        }
    }
}

size_t tableCount(const std::vector<localRow> &rows, const base &known)
{
    int last = -1;
    for (const localRow &row : rows)
        last = std::max(last, row.table);
    for (const baseRow &row : known.rows)
        last = std::max(last, row.table);
    return size_t(last) + 1; // 0 where there is none
}

// What stands where it stood, as it was: nearly all of a large document, from both its ends.
void matchInPlace(std::vector<localRow> *rows, const base &known, const side &mine,
                  const side &theirs, std::vector<bool> *taken)
{
    const auto isSame = [&](size_t here, size_t there) {
        const localRow &row = (*rows)[here];
        const baseRow &was = known.rows[there];
        if (row.hash != was.hash || row.key != was.key || baseBelow(*rows, row) != was.below)
            return false;
        (*rows)[here].base = int(there);
        (*taken)[there] = true;
        return true;
    };
    // A changed text keeps its place: the others behind it are looked at all the same.
    const size_t shorter = std::min(mine.rows.size(), theirs.rows.size());
    size_t begin = 0;
    while (begin < shorter
           && (isSame(mine.rows[begin], theirs.rows[begin])
               || (*rows)[mine.rows[begin]].key == known.rows[theirs.rows[begin]].key))
        ++begin;
    for (size_t end = 1; end <= shorter - begin; ++end) {
        const size_t here = mine.rows[mine.rows.size() - end];
        const size_t there = theirs.rows[theirs.rows.size() - end];
        if (!isSame(here, there) && (*rows)[here].key != known.rows[there].key)
            break;
    }
}

// Those that are still to be matched. keyOf: null for the others.
template <class KeyOf>
side unmatched(const side &all, const KeyOf &keyOf)
{
    side found;
    for (const size_t place : all.rows)
        if (const QString *key = keyOf(place)) {
            found.rows.push_back(place);
            found.keys.push_back(*key);
        }
    return found;
}

// The longest run of places, not necessarily side by side, that rises; which of them are in it.
std::vector<bool> longestRising(const std::vector<double> &values)
{
    std::vector<size_t> ends; // of the runs of each length, the lowest
    std::vector<int> before(values.size(), -1);
    for (size_t i = 0; i < values.size(); ++i) {
        const auto place =
            std::lower_bound(ends.begin(), ends.end(), values[i],
                             [&values](size_t end, double value) { return values[end] < value; });
        if (place != ends.begin())
            before[i] = int(*(place - 1));
        if (place == ends.end())
            ends.push_back(i);
        else
            *place = i;
    }
    std::vector<bool> in(values.size());
    for (int i = ends.empty() ? -1 : int(ends.back()); i >= 0; i = before[size_t(i)])
        in[size_t(i)] = true;
    return in;
}

// Those of one parent, in order. Equal places in the base are told apart by the ids.
void setPlacesOf(std::vector<localRow> *rows, const base &known, const std::vector<size_t> &list)
{
    constexpr double step = 1024;
    const auto stays = [&](const localRow &row) {
        return row.base >= 0 && known.rows[size_t(row.base)].below == baseBelow(*rows, row);
    };
    std::vector<size_t> old;
    std::vector<double> values;
    for (const size_t place : list)
        if (stays((*rows)[place])) {
            old.push_back(place);
            values.push_back(known.rows[size_t((*rows)[place].base)].place);
        }
    const std::vector<bool> rising = longestRising(values);
    std::vector<bool> fixed(list.size());
    for (size_t i = 0, next = 0; i < list.size(); ++i)
        if (next < old.size() && list[i] == old[next]) {
            fixed[i] = rising[next];
            (*rows)[list[i]].place = values[next];
            ++next;
        }
    for (size_t begin = 0; begin < list.size();) {
        if (fixed[begin]) {
            ++begin;
            continue;
        }
        const bool isFirst = begin == 0;
        const double before = isFirst ? 0 : (*rows)[list[begin - 1]].place;
        size_t end = begin;
        double low = 0;
        double high = 0;
        double count = 0;
        // Where numbers between two neighbours have run out, the next one moves, too.
        do {
            while (end < list.size() && !fixed[end])
                ++end;
            const bool isLast = end == list.size();
            count = double(end - begin + 1);
            high = isLast ? before + step * count : (*rows)[list[end]].place;
            low = isFirst && !isLast ? high - step * count : before;
            if (isLast || (low + (high - low) / count > low && high - (high - low) / count < high))
                break;
            fixed[end] = false;
        } while (true);
        for (size_t i = begin; i < end; ++i)
            (*rows)[list[i]].place = low + (high - low) * double(i - begin + 1) / count;
        begin = end;
    }
}

} // namespace

std::vector<localRow> localRows(documentStruct &document, withHashes hashes)
{
    const tables &all = tablesOf(document.kind());
    std::vector<localRow> rows;
    std::vector<std::pair<size_t, size_t>> spans; // of each table
    for (size_t t = 0; t < all.size(); ++t) {
        const table &of = *all[t];
        const size_t begin = rows.size();
        std::vector<std::pair<xmlData *, int>> parents; // with their places
        if (of.above < 0)
            parents.emplace_back(&document, -1);
        else
            for (size_t i = spans[size_t(of.above)].first; i < spans[size_t(of.above)].second; ++i)
                parents.emplace_back(rows[i].record, int(i));
        size_t count = 0;
        for (const auto &parent : parents)
            count += size_t(of.count(parent.first));
        rows.reserve(begin + count);
        for (const auto &parent : parents)
            for (int i = 0; i < of.count(parent.first); ++i) {
                localRow row;
                row.record = of.at(parent.first, i);
                row.table = int(t);
                row.below = parent.second;
                row.hash = hashes == withHashes::yes ? of.hash(row.record) : 0;
                row.key = of.key(row.record);
                rows.push_back(std::move(row));
            }
        spans.emplace_back(begin, rows.size());
    }
    return rows;
}

void matchRows(std::vector<localRow> *rows, const base &known)
{
    std::vector<side> mine(tableCount(*rows, known));
    std::vector<side> theirs(mine.size());
    for (size_t i = 0; i < rows->size(); ++i)
        mine[size_t((*rows)[i].table)].rows.push_back(i);
    for (size_t i = 0; i < known.rows.size(); ++i)
        theirs[size_t(known.rows[i].table)].rows.push_back(i);
    std::set<int> folders;
    for (const localRow &row : *rows)
        if (row.below >= 0)
            folders.insert((*rows)[size_t(row.below)].table);
    std::vector<bool> taken(known.rows.size());
    for (size_t table = 0; table < mine.size(); ++table) {
        matchInPlace(rows, known, mine[table], theirs[table], &taken);
        const side of = unmatched(mine[table], [&](size_t place) {
            return (*rows)[place].base < 0 ? &(*rows)[place].key : nullptr;
        });
        const side before = unmatched(theirs[table], [&](size_t place) {
            return taken[place] ? nullptr : &known.rows[place].key;
        });
        const auto content = [&](bool later, int place) {
            return later ? (*rows)[of.rows[size_t(place)]].hash
                         : known.rows[before.rows[size_t(place)]].hash;
        };
        const auto parent = [&](bool later, int place) {
            return quint64(later ? baseBelow(*rows, (*rows)[of.rows[size_t(place)]])
                                 : known.rows[before.rows[size_t(place)]].below);
        };
        const auto both = [&](bool later, int place) {
            return content(later, place) + 31 * parent(later, place);
        };
        const recordMatches matches = matchRecords(before.keys, of.keys, {both, content, parent});
        for (size_t i = 0; i < of.rows.size(); ++i)
            if (matches.before[i] >= 0) {
                const size_t found = before.rows[size_t(matches.before[i])];
                (*rows)[of.rows[i]].base = int(found);
                taken[found] = true;
            }
        // A folder has few texts of its own, which others share.
        if (folders.count(int(table)))
            matchByChildren(rows, known, of, before, &taken);
        else
            matchByContent(rows, known, of, before, &taken);
        matchByNeighbours(rows, known, mine[table], theirs[table], &taken);
    }
}

void setPlaces(std::vector<localRow> *rows, const base &known)
{
    std::map<std::pair<int, int>, std::vector<size_t>> lists;
    for (size_t i = 0; i < rows->size(); ++i)
        lists[{(*rows)[i].table, (*rows)[i].below}].push_back(i);
    for (const auto &[parent, list] : lists)
        setPlacesOf(rows, known, list);
}

} // namespace store

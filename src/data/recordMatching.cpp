#include "data/recordMatching.h"

#include <QHash>

namespace {

// The keys of one list as numbers, with their running numbers.
std::vector<int> numbersOf(const std::vector<QString> &keys, QHash<QString, int> &numbered,
                           std::vector<int> &counts, std::vector<int> &running)
{
    std::vector<int> numbers;
    numbers.reserve(keys.size());
    running.reserve(keys.size());
    for (const QString &key : keys) {
        const auto known = numbered.constFind(key);
        const int number =
            known == numbered.constEnd() ? *numbered.insert(key, numbered.size()) : *known;
        if (size_t(number) >= counts.size())
            counts.resize(size_t(number) + 1);
        numbers.push_back(number);
        running.push_back(++counts[size_t(number)]);
    }
    return numbers;
}

// Places that wait for a partner, in order, by the number of their key and their likeness.
class waitingPlaces
{
public:
    waitingPlaces(const std::vector<int> &keys, const std::vector<int> &places,
                  const likeness &alike)
        : m_next(places.size())
        , m_places(places)
    {
        m_first.reserve(int(places.size()));
        for (size_t i = places.size(); i > 0; --i) {
            const int place = places[i - 1];
            int &first =
                *m_first.insert({keys[size_t(place)], alike(false, place)},
                                m_first.value({keys[size_t(place)], alike(false, place)}, -1));
            m_next[i - 1] = first;
            first = int(i - 1);
        }
    }

    // The first of them, which waits no longer; -1 when there is none.
    int take(int key, quint64 alike)
    {
        const auto found = m_first.find({key, alike});
        if (found == m_first.end() || *found < 0)
            return -1;
        const auto taken = size_t(*found);
        *found = m_next[taken];
        return m_places[taken];
    }

private:
    QHash<QPair<int, quint64>, int> m_first;
    std::vector<int> m_next;
    const std::vector<int> &m_places;
};

} // namespace

recordMatches matchRecords(const std::vector<QString> &before, const std::vector<QString> &after,
                           const std::vector<likeness> &likenesses)
{
    recordMatches result;
    QHash<QString, int> numbered;
    numbered.reserve(int(before.size()));
    std::vector<int> countsBefore;
    std::vector<int> countsAfter;
    const std::vector<int> keysBefore =
        numbersOf(before, numbered, countsBefore, result.numbersBefore);
    const std::vector<int> keysAfter = numbersOf(after, numbered, countsAfter, result.numbersAfter);
    const size_t count = size_t(numbered.size());
    countsBefore.resize(count);
    countsAfter.resize(count);

    std::vector<int> onlyBefore(count, -1); // the place of a key that occurs once
    std::vector<int> leftBefore;
    for (size_t i = 0; i < before.size(); ++i) {
        const auto key = size_t(keysBefore[i]);
        if (countsBefore[key] == 1 && countsAfter[key] == 1)
            onlyBefore[key] = int(i);
        else if (countsAfter[key] > 0)
            leftBefore.push_back(int(i));
    }
    std::vector<int> leftAfter;
    result.before.resize(after.size(), -1);
    for (size_t i = 0; i < after.size(); ++i) {
        const auto key = size_t(keysAfter[i]);
        result.before[i] = onlyBefore[key];
        if (onlyBefore[key] < 0 && countsBefore[key] > 0)
            leftAfter.push_back(int(i));
    }

    std::vector<likeness> passes = likenesses;
    passes.emplace_back([](bool, int) { return 0; });
    for (const likeness &alike : passes) {
        if (leftBefore.empty() || leftAfter.empty())
            break;
        waitingPlaces waiting(keysBefore, leftBefore, alike);
        std::vector<bool> taken(before.size());
        std::erase_if(leftAfter, [&](int place) {
            int &found = result.before[size_t(place)];
            found = waiting.take(keysAfter[size_t(place)], alike(true, place));
            if (found >= 0)
                taken[size_t(found)] = true;
            return found >= 0;
        });
        std::erase_if(leftBefore, [&taken](int place) { return taken[size_t(place)]; });
    }
    return result;
}

#include "data/ktmIndex.h"

#include "data/kiv_mat_databaseStruct.h"

void ktmIndex::add(kiv_mat_databaseStruct *database)
{
    m_first.reserve(m_first.size() + database->materialCount());
    for (const auto &group : database->groups)
        for (const auto &material : group->items)
            insert({material.get(), group.get(), database});
}

void ktmIndex::insert(const entry &added)
{
    const QString &ktm = added.material->d_ktm;
    if (ktm.isEmpty())
        return;
    if (!m_first.contains(ktm)) {
        m_first.insert(ktm, added);
    } else {
        m_later[ktm].push_back(added);
        ++m_duplicateCount;
    }
}

void ktmIndex::remove(const materialStruct *material)
{
    const auto first = m_first.find(material->d_ktm);
    if (first == m_first.end())
        return;
    const auto later = m_later.find(material->d_ktm);
    if (later == m_later.end()) {
        if (first->material == material)
            m_first.erase(first);
        return;
    }
    if (first->material == material) {
        *first = later->front();
        later->erase(later->begin());
    } else if (std::erase_if(*later, [&](const entry &e) { return e.material == material; }) == 0) {
        return;
    }
    --m_duplicateCount;
    if (later->empty())
        m_later.erase(later);
}

void ktmIndex::clear()
{
    m_first.clear();
    m_later.clear();
    m_duplicateCount = 0;
}

const ktmIndex::entry *ktmIndex::find(const QString &ktm) const
{
    const auto found = m_first.constFind(ktm);
    return found == m_first.constEnd() ? nullptr : &*found;
}

std::vector<ktmIndex::entry> ktmIndex::all(const QString &ktm) const
{
    std::vector<entry> result;
    if (const entry *first = find(ktm)) {
        result.push_back(*first);
        const std::vector<entry> later = m_later.value(ktm);
        result.insert(result.end(), later.begin(), later.end());
    }
    return result;
}

// Finds a material by its KTM in all loaded databases at once.
#pragma once

#include <QHash>
#include <QString>

#include <vector>

class d_groupStruct;
class kiv_mat_databaseStruct;
class materialStruct;

class ktmIndex
{
public:
    struct entry
    {
        materialStruct *material = nullptr;
        d_groupStruct *group = nullptr;
        kiv_mat_databaseStruct *database = nullptr;
    };

    // Adds every material of a database. Databases are added in the order warehouse, service,
    // mechanics, author: a KTM that several materials have leads to the first of them. Materials
    // without a KTM are not indexed.
    void add(kiv_mat_databaseStruct *database);

    // Keep the index in step with a material that is added, removed, or about to get another KTM
    // (remove it, rename it, insert it again). A removed material's KTM leads to the next one that
    // has it.
    void insert(const entry &added);
    void remove(const materialStruct *material);

    void clear();

    // The material with that KTM; null when no database has it.
    const entry *find(const QString &ktm) const;

    // Number of different KTMs, and number of materials whose KTM an earlier one has too.
    int size() const { return m_first.size(); }
    int duplicateCount() const { return m_duplicateCount; }

    // All materials with that KTM, the one that find() returns first.
    std::vector<entry> all(const QString &ktm) const;

    // The KTMs that several materials have, in no order.
    QList<QString> duplicates() const { return m_later.keys(); }

private:
    QHash<QString, entry> m_first;
    QHash<QString, std::vector<entry>> m_later;
    int m_duplicateCount = 0;
};

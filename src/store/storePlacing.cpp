// What a sync brought, made in the document.
#include "data/loaders.h"
#include "store/storeLocal.h"
#include "store/storeSync.h"

#include <algorithm>
#include <map>
#include <set>

namespace store {

namespace {

// The changes of a result, made in a document.
class placing
{
public:
    placing(const syncResult &result, documentStruct *document)
        : m_document(document)
        , m_tables(tablesOf(document->kind()))
        , m_rows(localRows(*document, withHashes::no))
        , m_fresh(m_tables.size())
        , m_touched(m_tables.size())
    {
        m_known.reserve(int(m_rows.size()));
        std::vector<bool> isFolder(m_tables.size());
        for (const auto &of : m_tables)
            if (of->above >= 0)
                isFolder[size_t(of->above)] = true;
        for (size_t i = 0; i < m_rows.size(); ++i) {
            if (isFolder[size_t(m_rows[i].table)])
                m_folders.insert(result.known[i].id, m_rows[i].record);
            m_known.insert(m_rows[i].record, result.known[i]);
        }
    }

    void run(const syncResult &result)
    {
        // What is new below something new finds it, and what leaves something that goes is out of
        // it before.
        for (size_t t = 0; t < m_tables.size(); ++t)
            for (const rowChange &change : result.changes)
                if (size_t(change.table) == t)
                    prepare(change, *m_tables[t]);
        for (size_t t = m_tables.size(); t > 0; --t)
            arrange(t - 1);
    }

    const QHash<const xmlData *, knownRow> &known() const { return m_known; }

private:
    using records = std::vector<std::unique_ptr<xmlData>>;

    xmlData *root() const { return m_document; }

    void prepare(const rowChange &change, const table &of)
    {
        xmlData *parent = change.below.isEmpty() ? root() : m_folders.value(change.below, nullptr);
        const auto t = size_t(change.table);
        if (change.local < 0) {
            std::unique_ptr<xmlData> record = of.make();
            if (!record || !parent)
                return;
            for (size_t i = 0; i < of.columns.size(); ++i)
                of.setText(record.get(), i, change.texts[int(i)]);
            m_folders.insert(change.id, record.get());
            m_known.insert(record.get(), {change.id, change.release, change.place});
            m_fresh[t][parent].push_back(std::move(record));
            m_touched[t].insert(parent);
            return;
        }
        const localRow &row = m_rows[size_t(change.local)];
        xmlData *home = row.below < 0 ? root() : m_rows[size_t(row.below)].record;
        m_touched[t].insert(home);
        if (change.gone) {
            m_targets.insert(row.record, nullptr);
            return;
        }
        for (size_t i = 0; i < size_t(change.texts.size()); ++i)
            if (of.text(row.record, i) != change.texts[int(i)])
                of.setText(row.record, i, change.texts[int(i)]);
        m_known[row.record].place = change.place;
        if (parent && parent != home) {
            m_targets.insert(row.record, parent);
            m_touched[t].insert(parent);
        }
    }

    // The lists of one table, each in the order of the places.
    void arrange(size_t t)
    {
        const table &of = *m_tables[t];
        std::map<xmlData *, records> lists = std::move(m_fresh[t]);
        for (xmlData *parent : m_touched[t]) {
            records all = of.take(parent);
            for (auto &record : all) {
                xmlData *to = m_targets.value(record.get(), parent);
                if (to)
                    lists[to].push_back(std::move(record));
            }
        }
        for (auto &[parent, list] : lists) {
            std::stable_sort(list.begin(), list.end(), [this](const auto &a, const auto &b) {
                const knownRow &first = *m_known.constFind(a.get());
                const knownRow &second = *m_known.constFind(b.get());
                return first.place != second.place ? first.place < second.place
                                                   : first.id < second.id;
            });
            of.give(parent, std::move(list));
        }
    }

    documentStruct *m_document;
    const tables &m_tables;
    std::vector<localRow> m_rows;
    QHash<QString, xmlData *> m_folders; // of other records, by their ids
    QHash<const xmlData *, knownRow> m_known;
    QHash<const xmlData *, xmlData *> m_targets; // null: it goes
    std::vector<std::map<xmlData *, records>> m_fresh;
    std::vector<std::set<xmlData *>> m_touched;
};

} // namespace

void apply(const syncResult &result, documentStruct *document, base *known)
{
    placing rows(result, document);
    rows.run(result);
    *known = knownOf(*document, rows.known(), std::move(*known), result);
}

base knownOf(documentStruct &document, const QHash<const xmlData *, knownRow> &rows, base before,
             const syncResult &result)
{
    base after = std::move(before);
    after.release = result.release;
    after.mayWrite = result.mayWrite;
    after.rows.clear();
    const tables &of = tablesOf(document.kind());
    const std::vector<localRow> all = localRows(document, withHashes::no);
    after.rows.reserve(all.size());
    std::vector<int> places(all.size(), -1); // among the known rows
    for (size_t i = 0; i < all.size(); ++i) {
        const localRow &row = all[i];
        const auto found = rows.constFind(row.record);
        if (found == rows.constEnd())
            continue;
        places[i] = int(after.rows.size());
        after.rows.push_back(
            {row.table, found->id, row.below < 0 ? -1 : places[size_t(row.below)], found->place,
             found->release,
             found->hash != 0 ? found->hash : of[size_t(row.table)]->hash(row.record), row.key});
    }
    return after;
}

std::unique_ptr<documentStruct> copyOf(documentStruct &document)
{
    std::unique_ptr<documentStruct> copied = newDocument(document.kind());
    const tables &all = tablesOf(document.kind());
    std::map<const xmlData *, xmlData *> copies{{&document, copied.get()}};
    for (size_t t = 0; t < all.size(); ++t) {
        const table &of = *all[t];
        std::map<xmlData *, std::vector<std::unique_ptr<xmlData>>> lists;
        const auto copyBelow = [&](xmlData *parent) {
            for (int i = 0; i < of.count(parent); ++i) {
                const xmlData *record = of.at(parent, i);
                std::unique_ptr<xmlData> made = of.make();
                xmlData *to = made ? made.get() : copied.get();
                for (size_t place = 0; place < of.columns.size(); ++place)
                    of.setText(to, place, of.text(record, place));
                copies[record] = to;
                if (made)
                    lists[copies[parent]].push_back(std::move(made));
            }
        };
        if (of.above < 0)
            copyBelow(&document);
        else
            for (int i = 0; i < all[size_t(of.above)]->count(&document); ++i)
                copyBelow(all[size_t(of.above)]->at(&document, i));
        for (auto &[parent, list] : lists)
            of.give(parent, std::move(list));
    }
    return copied;
}

} // namespace store

// Whole documents of the store: put into it, taken out of it, listed.
#include "data/loaders.h"
#include "store/storeLocal.h"
#include "store/storeRows.h"
#include "store/storeSync.h"

#include <QCoreApplication>

#include <map>

namespace store {

namespace {

// The document's row in the store, with its kind's name and its own.
QString documentId(connection &from, const fileKind &kind, const QString &name)
{
    return from
        .askOne(QStringLiteral("select id from document where kind = ? and name = ?"),
                {kind.root, name})
        .toString();
}

} // namespace

syncResult publish(connection &to, documentStruct &document, const QString &name,
                   const QString &author, base *known, const progressFunction &progress)
{
    syncResult result;
    base made;
    made.store = idOf(to, &result.fault);
    if (made.store.isEmpty())
        return result;
    const auto failed = [&](const QString &fault) {
        to.rollback();
        result.fault = fault;
        return result;
    };
    const fileKind &kind = document.kind();
    made.document = newId();
    made.kind = kind.root;
    made.program = newId();
    std::vector<localRow> rows = localRows(document);
    setPlaces(&rows, made);
    result.known.resize(rows.size());
    if (!to.begin(true)) {
        result.cancelled = to.wasGivenUp();
        return failed(result.cancelled ? QString() : to.fault());
    }
    if (!documentId(to, kind, name).isEmpty())
        return failed(QCoreApplication::translate(
            "store", "there is a document of that name in the shared store: clone it"));
    rowWriter writer(to, kind, made.document);
    result.release = writer.open(author, made.program);
    if (result.release < 0
        || !to.run(
            QStringLiteral("insert into document (id, kind, name, release) values (?, ?, ?, ?)"),
            {made.document, kind.root, name, result.release}))
        return failed(to.fault());
    constexpr size_t most = 1000; // rows in memory twice
    for (size_t begin = 0; begin < rows.size();) {
        std::vector<storedRow> some;
        size_t end = begin;
        for (; end < rows.size() && end - begin < most && rows[end].table == rows[begin].table;
             ++end) {
            const localRow &row = rows[end];
            result.known[end] = {newId(), result.release, row.place, row.hash};
            some.push_back({row.table, result.known[end].id,
                            row.below < 0 ? QString() : result.known[size_t(row.below)].id,
                            row.place, result.release, false,
                            tablesOf(kind)[size_t(row.table)]->texts(row.record)});
        }
        std::vector<const storedRow *> all;
        for (const storedRow &row : some)
            all.push_back(&row);
        if (!writer.add(all))
            return failed(to.fault());
        begin = end;
        if (progress && !progress(qint64(end), qint64(rows.size()))) {
            result.cancelled = true;
            return failed({});
        }
    }
    if (!to.commit())
        return failed(to.fault());
    result.done = true;
    result.sent = writer.written();
    *known = made;
    return result;
}

std::unique_ptr<documentStruct> clone(connection &from, const fileKind &kind, const QString &name,
                                      base *known, QString *fault, const progressFunction &progress)
{
    fault->clear();
    base made;
    made.store = idOf(from, fault);
    if (made.store.isEmpty())
        return nullptr;
    made.kind = kind.root;
    made.program = newId();
    made.mayWrite = mayWrite(from);
    if (!from.begin(false)) {
        *fault = from.fault();
        return nullptr;
    }
    made.document = documentId(from, kind, name);
    made.release = from.askOne(QStringLiteral("select release from about")).toLongLong();
    if (made.document.isEmpty()) {
        from.rollback();
        *fault = QCoreApplication::translate("store", "the shared store has no such document");
        return nullptr;
    }
    const tables &all = tablesOf(kind);
    std::unique_ptr<documentStruct> document = newDocument(kind);
    std::vector<std::map<xmlData *, std::vector<std::unique_ptr<xmlData>>>> lists(all.size());
    QHash<QString, xmlData *> records;
    QHash<const xmlData *, knownRow> ids;
    qint64 done = 0;
    bool isCancelled = false;
    const bool isGood = fetchRows(from, kind, made.document, -1, [&](storedRow &&row) {
        const table &of = *all[size_t(row.table)];
        xmlData *parent = row.below.isEmpty() ? document.get() : records.value(row.below, nullptr);
        std::unique_ptr<xmlData> fresh = of.make();
        xmlData *record = fresh ? fresh.get() : document.get();
        for (size_t i = 0; i < of.columns.size(); ++i)
            if (const QString &text = row.texts[int(i)]; !of.columns[i].nested || !text.isEmpty())
                of.setText(record, i, sharedText(QStringRef(&text)));
        records.insert(row.id, record);
        ids.insert(record, {row.id, row.release, row.place});
        if (fresh && parent)
            lists[size_t(row.table)][parent].push_back(std::move(fresh));
        isCancelled = ++done % 256 == 0 && progress && !progress(done, 0);
        return !isCancelled;
    });
    if (!isGood || !from.commit()) {
        *fault = isCancelled ? QString() : from.fault();
        from.rollback();
        return nullptr;
    }
    for (size_t t = all.size(); t > 0; --t)
        for (auto &[parent, list] : lists[t - 1])
            all[t - 1]->give(parent, std::move(list));
    for (const localRow &row : localRows(*document)) {
        const knownRow &of = *ids.constFind(row.record);
        made.rows.push_back({row.table, of.id, row.below, of.place, of.release, row.hash, row.key});
    }
    *known = std::move(made);
    return document;
}

std::vector<sharedName> documentsIn(connection &of)
{
    std::vector<sharedName> all;
    auto query =
        of.ask(QStringLiteral("select kind, name, release from document order by kind, name"));
    while (query && query->next())
        all.push_back(
            {query->value(0).toString(), query->value(1).toString(), query->value(2).toLongLong()});
    return all;
}

int changesSince(connection &of, const base &known)
{
    const fileKind *kind = kindOf(known.kind);
    int count = 0;
    if (kind)
        for (const auto &table : tablesOf(*kind))
            count +=
                of.askOne(QStringLiteral("select count(*) from %1 where row_document = ? and "
                                         "row_release > ? and row_release not in (select number "
                                         "from release where program = ? and number > ?)")
                              .arg(quoted(table->name)),
                          {known.document, known.release, known.program, known.release})
                    .toInt();
    return count;
}

} // namespace store

#include "store/storeHistory.h"

#include "store/storeRows.h"
#include "store/storeTables.h"

#include <QCoreApplication>
#include <QSqlError>

namespace store {

namespace {

constexpr int materialTable = 1; // among those of a database

const table &materials() { return *tablesOf(fileKinds::database)[materialTable]; }

QString captionOf(const QString &field)
{
    for (const column &one : materials().columns)
        if (one.name == field && one.label)
            return one.label();
    return field;
}

bool isNested(const QString &field)
{
    for (const column &one : materials().columns)
        if (one.name == field)
            return one.nested;
    return false;
}

QString groupName(connection &from, const QString &id)
{
    return from.askOne(QStringLiteral("select name from material_group where row_id = ?"), {id})
        .toString();
}

bool readLines(connection &from, materialHistory *of)
{
    auto query = from.ask(
        QStringLiteral("select c.release, r.at, r.author, r.login, c.what, c.field, c.before, "
                       "c.after from change c join release r on r.number = c.release where "
                       "c.row_id = ? order by c.release desc, c.number desc"),
        {of->id});
    if (!query)
        return false;
    while (query->next()) {
        historyLine line;
        int at = 0;
        line.release = query->value(at++).toLongLong();
        for (QString *text : {&line.at, &line.author, &line.login, &line.what, &line.field,
                              &line.before, &line.after})
            *text = query->value(at++).toString();
        line.caption = captionOf(line.field);
        of->lines.push_back(std::move(line));
    }
    const bool isWhole = !query->lastError().isValid();
    query->finish();
    for (historyLine &line : of->lines) {
        if (line.what == QLatin1String("moved")) {
            line.before = groupName(from, line.before);
            line.after = groupName(from, line.after);
        } else if (isNested(line.field)) {
            line.before = readable(line.before);
            line.after = readable(line.after);
        }
    }
    return isWhole;
}

} // namespace

std::vector<materialHistory> historyOf(connection &from, const QString &ktm,
                                       const QString &document)
{
    std::vector<materialHistory> all;
    // What is compared with the KTM is found by the indexes of both tables.
    auto query =
        from.ask(QStringLiteral(
                     "select m.row_id, m.row_document, d.name, m.row_gone, m.d_ktm, m.d_name from "
                     "material m join document d on d.id = m.row_document where m.d_ktm = ? or "
                     "m.row_id in (select row_id from change where field = 'd_ktm' and before = ?) "
                     "order by d.name, m.row_gone, m.row_id"),
                 {ktm, ktm});
    while (query && query->next()) {
        materialHistory one;
        one.id = query->value(0).toString();
        one.document = query->value(1).toString();
        one.name = query->value(2).toString();
        one.gone = query->value(3).toInt() != 0;
        one.caption =
            (query->value(4).toString() + QLatin1Char(' ') + query->value(5).toString()).trimmed();
        if (document.isEmpty() || one.document == document)
            all.push_back(std::move(one));
    }
    for (materialHistory &one : all)
        if (!readLines(from, &one))
            return {};
    return all;
}

std::optional<QStringList> textsAt(connection &from, const QString &id, qint64 release,
                                   QString *fault)
{
    QHash<QString, storedRow> rows;
    QSet<QString> young;
    const bool isGood = fetchRows(from, fileKinds::database, materialTable, {id},
                                  [&rows](storedRow &&row) {
                                      const QString known = row.id;
                                      rows.insert(known, row);
                                      return true;
                                  })
                        && goBack(from, fileKinds::database, {{id, release}}, {}, &rows, &young);
    if (!isGood) {
        *fault = from.fault();
        return {};
    }
    const auto row = rows.constFind(id);
    if (row == rows.constEnd() || young.contains(id) || row->gone) {
        *fault = QCoreApplication::translate("store", "the material did not exist then");
        return {};
    }
    return row->texts;
}

QString sentenceOf(const historyLine &line)
{
    if (line.what == QLatin1String("added"))
        return QCoreApplication::translate("store", "added");
    if (line.what == QLatin1String("removed"))
        return QCoreApplication::translate("store", "removed");
    if (line.what == QLatin1String("restored"))
        return QCoreApplication::translate("store", "restored");
    if (line.what == QLatin1String("moved"))
        return QCoreApplication::translate("store", "moved from %1 to %2")
            .arg(line.before, line.after);
    return QStringLiteral("%1: %2 \u2192 %3").arg(line.caption, line.before, line.after);
}

} // namespace store

#include "store/storeRows.h"

#include <QCoreApplication>
#include <QSqlError>

#include <algorithm>

namespace store {

namespace {

QString columnsOf(const table &of)
{
    QString all = QStringLiteral("row_id, row_below, row_place, row_release, row_gone");
    for (const column &one : of.columns)
        all += QLatin1String(", ") + quoted(one.name);
    return all;
}

constexpr int ownColumns = 5;

storedRow rowOf(const QSqlQuery &query, int table, size_t columns)
{
    storedRow row;
    row.table = table;
    row.id = query.value(0).toString();
    row.below = query.value(1).toString();
    row.place = query.value(2).toDouble();
    row.release = query.value(3).toLongLong();
    row.gone = query.value(4).toInt() != 0;
    row.texts.reserve(int(columns));
    for (size_t i = 0; i < columns; ++i)
        row.texts.append(query.value(ownColumns + int(i)).toString());
    return row;
}

bool takeAll(std::optional<QSqlQuery> query, int table, const store::table &of,
             const std::function<bool(storedRow &&)> &take)
{
    if (!query)
        return false;
    while (query->next())
        if (!take(rowOf(*query, table, of.columns.size()))) {
            query->finish();
            return false;
        }
    // The server may be gone in the middle.
    const bool isWhole = !query->lastError().isValid();
    query->finish();
    return isWhole;
}

// "?, ?, ?".
QString marks(int count)
{
    return QStringList(QVector<QString>(count, QStringLiteral("?")).toList())
        .join(QLatin1String(", "));
}

// Calls act(some) for so many of the ids at once.
bool inParts(const QStringList &ids, const std::function<bool(const QStringList &)> &act)
{
    constexpr int most = 200;
    for (int begin = 0; begin < ids.size(); begin += most)
        if (!act(ids.mid(begin, most)))
            return false;
    return true;
}

QVariantList valuesOf(const QStringList &texts)
{
    QVariantList values;
    for (const QString &text : texts)
        values.append(text.isNull() ? QLatin1String("") : text);
    return values;
}

} // namespace

bool fetchRows(connection &from, const fileKind &kind, const QString &document, qint64 after,
               const std::function<bool(storedRow &&)> &take)
{
    const tables &all = tablesOf(kind);
    for (size_t t = 0; t < all.size(); ++t) {
        const QString rest =
            after < 0 ? QStringLiteral("row_gone = 0 order by row_below, row_place, row_id")
                      : QStringLiteral("row_release > %1").arg(after);
        const QString sql = QStringLiteral("select %1 from %2 where row_document = '%3' and %4")
                                .arg(columnsOf(*all[t]), quoted(all[t]->name), document, rest);
        if (!takeAll(from.ask(sql), int(t), *all[t], take))
            return false;
    }
    return true;
}

bool fetchRows(connection &from, const fileKind &kind, int table, const QStringList &ids,
               const std::function<bool(storedRow &&)> &take)
{
    const store::table &of = *tablesOf(kind)[size_t(table)];
    return inParts(ids, [&](const QStringList &some) {
        const QString sql = QStringLiteral("select %1 from %2 where row_id in (%3)")
                                .arg(columnsOf(of), quoted(of.name), marks(some.size()));
        return takeAll(from.ask(sql, valuesOf(some)), table, of, take);
    });
}

bool goBack(connection &from, const fileKind &kind, const QHash<QString, qint64> &since,
            const QString &program, QHash<QString, storedRow> *rows, QSet<QString> *young)
{
    const tables &all = tablesOf(kind);
    const QString existence = QStringLiteral("\n"); // no column's name
    return inParts(since.keys(), [&](const QStringList &some) {
        // The latest first: what is taken back last is what stood there.
        const auto query = from.ask(
            QStringLiteral("select c.row_id, c.release, c.what, c.field, c.before, r.program from "
                           "change c join release r on r.number = c.release where c.row_id in (%1) "
                           "order by c.release desc, c.number desc")
                .arg(marks(some.size())),
            valuesOf(some));
        if (!query)
            return false;
        QSqlQuery lines = *query;
        QSet<QPair<QString, QString>> known; // row and column that the program itself sent
        while (lines.next()) {
            const QString id = lines.value(0).toString();
            const auto row = rows->find(id);
            if (row == rows->end() || lines.value(1).toLongLong() <= since.value(id, -1))
                continue;
            const QString what = lines.value(2).toString();
            const QString field = lines.value(3).toString();
            const QPair<QString, QString> place(id, field.isEmpty() ? existence : field);
            if (!program.isEmpty() && lines.value(5).toString() == program)
                known.insert(place);
            if (known.contains(place))
                continue;
            if (what == QLatin1String("added"))
                young->insert(id);
            else if (what == QLatin1String("removed"))
                row->gone = false;
            else if (what == QLatin1String("restored"))
                row->gone = true;
            const auto &columns = all[size_t(row->table)]->columns;
            for (size_t i = 0; i < columns.size(); ++i)
                if (!field.isEmpty() && columns[i].name == field)
                    row->texts[int(i)] = lines.value(4).toString();
        }
        const bool isWhole = !lines.lastError().isValid();
        lines.finish();
        return isWhole;
    });
}

qint64 rowWriter::open(const QString &author, const QString &program)
{
    if (!m_to.run(QStringLiteral("update about set release = release + 1")))
        return -1;
    m_release = m_to.askOne(QStringLiteral("select release from about")).toLongLong();
    return m_release > 0
                   && m_to.run(
                       QStringLiteral(
                           "insert into release (number, author, program) values (?, ?, ?)"),
                       {m_release, author, program})
               ? m_release
               : -1;
}

bool rowWriter::add(const std::vector<const storedRow *> &rows)
{
    if (rows.empty())
        return true;
    const table &of = *tablesOf(m_kind)[size_t(rows.front()->table)];
    constexpr size_t most = 100; // rows in a statement: the values of it are counted in 16 bits
    for (size_t begin = 0; begin < rows.size(); begin += most) {
        const size_t end = qMin(rows.size(), begin + most);
        const int width = ownColumns + 1 + int(of.columns.size());
        QStringList rowMarks;
        QStringList toldMarks;
        QVariantList values;
        QVariantList told;
        for (size_t i = begin; i < end; ++i) {
            const storedRow &row = *rows[i];
            rowMarks.append(QLatin1Char('(') + marks(width) + QLatin1Char(')'));
            values << row.id << (row.below.isNull() ? QLatin1String("") : row.below) << row.place
                   << m_release << 0;
            values += valuesOf(row.texts);
            values << m_document;
            toldMarks.append(QStringLiteral("(?, ?, ?, ?, 'added', 0)"));
            told << m_release << m_document << of.name << row.id;
        }
        if (!m_to.run(QStringLiteral("insert into %1 (%2, row_document) values %3")
                          .arg(quoted(of.name), columnsOf(of), rowMarks.join(QLatin1Char(','))),
                      values)
            || !m_to.run(QStringLiteral("insert into change (release, document, row_table, row_id, "
                                        "what, based_on) values ")
                             + toldMarks.join(QLatin1Char(',')),
                         told))
            return false;
        m_written += int(end - begin);
    }
    return true;
}

bool rowWriter::tell(const storedRow &row, const std::vector<change> &told, qint64 basedOn)
{
    const QString &name = tablesOf(m_kind)[size_t(row.table)]->name;
    for (const change &one : told)
        if (!m_to.run(QStringLiteral("insert into change (release, document, row_table, row_id, "
                                     "what, field, before, after, based_on) values (?, ?, ?, ?, ?, "
                                     "?, ?, ?, ?)"),
                      QVariantList{m_release, m_document, name, row.id, one.what}
                          + valuesOf({one.field, one.before, one.after}) + QVariantList{basedOn}))
            return false;
    return true;
}

bool rowWriter::set(const storedRow &row, qint64 basedOn, const std::vector<size_t> &columns,
                    const std::vector<change> &told)
{
    const table &of = *tablesOf(m_kind)[size_t(row.table)];
    QString sets;
    QStringList texts;
    for (const size_t place : columns) {
        sets += QStringLiteral(", %1 = ?").arg(quoted(of.columns[place].name));
        texts.append(row.texts[int(place)]);
    }
    const QVariantList values = QVariantList{row.below.isNull() ? QLatin1String("") : row.below,
                                             row.place, m_release, row.gone ? 1 : 0}
                                + valuesOf(texts) + QVariantList{row.id, basedOn};
    if (!m_to.run(QStringLiteral("update %1 set row_below = ?, row_place = ?, row_release = ?, "
                                 "row_gone = ?%2 where row_id = ? and row_release = ?")
                      .arg(quoted(of.name), sets),
                  values))
        return false;
    ++m_written;
    // Nobody else writes meanwhile; a row that is another one all the same was changed by hand.
    return m_to.affected() == 1 && tell(row, told, basedOn);
}

} // namespace store

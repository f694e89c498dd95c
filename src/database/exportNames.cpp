#include "database/exportNames.h"

#include "database/workbook.h"
#include "util/text.h"

#include <QFile>
#include <QHash>
#include <QSet>

namespace {

// The words of SQLite's grammar, each between blanks.
constexpr const char *sqlWords =
    " "
    "ABORT ACTION ADD AFTER ALL ALTER ALWAYS ANALYZE AND AS ASC ATTACH AUTOINCREMENT "
    "BEFORE BEGIN BETWEEN BY CASCADE CASE CAST CHECK COLLATE COLUMN COMMIT CONFLICT "
    "CONSTRAINT CREATE CROSS CURRENT CURRENT_DATE CURRENT_TIME CURRENT_TIMESTAMP DATABASE "
    "DEFAULT DEFERRABLE DEFERRED DELETE DESC DETACH DISTINCT DO DROP EACH ELSE END ESCAPE "
    "EXCEPT EXCLUDE EXCLUSIVE EXISTS EXPLAIN FAIL FILTER FIRST FOLLOWING FOR FOREIGN FROM "
    "FULL GENERATED GLOB GROUP GROUPS HAVING IF IGNORE IMMEDIATE IN INDEX INDEXED "
    "INITIALLY INNER INSERT INSTEAD INTERSECT INTO IS ISNULL JOIN KEY LAST LEFT LIKE LIMIT "
    "MATCH MATERIALIZED NATURAL NO NOT NOTHING NOTNULL NULL NULLS OF OFFSET ON OR ORDER "
    "OTHERS OUTER OVER PARTITION PLAN PRAGMA PRECEDING PRIMARY QUERY RAISE RANGE RECURSIVE "
    "REFERENCES REGEXP REINDEX RELEASE RENAME REPLACE RESTRICT RETURNING RIGHT ROLLBACK "
    "ROW ROWS SAVEPOINT SELECT SET TABLE TEMP TEMPORARY THEN TIES TO TRANSACTION TRIGGER "
    "UNBOUNDED UNION UNIQUE UPDATE USING VACUUM VALUES VIEW VIRTUAL WHEN WHERE WINDOW WITH "
    "WITHOUT ";

QHash<QChar, QChar> readReplacements()
{
    QHash<QChar, QChar> table;
    QFile file(QStringLiteral(":/file/files/polish_chars.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return table;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        const QStringList pair = line.trimmed().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (pair.size() >= 2)
            table.insert(pair.at(0).at(0), pair.at(1).at(0));
    }
    return table;
}

// Makes names unique by a number at their end, within the longest length (0: any).
class uniqueNames
{
public:
    uniqueNames(const QStringList &reserved, QChar separator, int longest)
        : m_separator(separator)
        , m_longest(longest)
    {
        for (const QString &name : reserved)
            m_taken.insert(name.toCaseFolded());
    }

    QString take(const QString &name)
    {
        QString result = m_longest > 0 ? text::firstUnits(name, m_longest) : name;
        // Counting goes on where the last equal name stopped: a thousand of them cost no more.
        int &number = m_numbers[result.toCaseFolded()];
        const QString start = result;
        while (m_taken.contains(result.toCaseFolded())) {
            number = qMax(number + 1, 2);
            const QString ending = m_separator + QString::number(number);
            result = (m_longest > 0 ? text::firstUnits(start, m_longest - ending.size()) : start)
                     + ending;
        }
        m_taken.insert(result.toCaseFolded());
        return result;
    }

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_numbers;
    QChar m_separator;
    int m_longest;
};

QString sheetName(const QString &wanted)
{
    QString name = exportNames::replaceCharacters(wanted);
    for (QChar &c : name)
        if (c < QLatin1Char(' ') || QLatin1String("[]:*?/\\").contains(c))
            c = QLatin1Char('_');
    if (name.size() > workbook::maximumName)
        name = text::firstUnits(name, workbook::maximumName).trimmed();
    while (name.startsWith(QLatin1Char('\'')))
        name.remove(0, 1);
    while (name.endsWith(QLatin1Char('\'')))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("Group") : name;
}

QString sqlName(const QString &wanted)
{
    QString name = exportNames::replaceCharacters(wanted).remove(QLatin1Char('\''));
    if (name.startsWith(QLatin1String("sqlite_"), Qt::CaseInsensitive))
        name.prepend(QLatin1Char('_'));
    return name.isEmpty() ? QStringLiteral("Group") : name;
}

} // namespace

namespace exportNames {

QString replaceCharacters(const QString &text)
{
    static const QHash<QChar, QChar> table = readReplacements();
    QString result = text;
    for (QChar &c : result)
        c = table.value(c, c);
    return result;
}

QStringList sheetNames(const QStringList &wanted, const QStringList &reserved)
{
    // Excel keeps this name for itself.
    uniqueNames names(reserved + QStringList(QStringLiteral("History")), QLatin1Char(' '),
                      workbook::maximumName);
    QStringList result;
    for (const QString &name : wanted)
        result.append(names.take(sheetName(name)));
    return result;
}

QStringList sqlNames(const QStringList &wanted, const QStringList &reserved)
{
    uniqueNames names(reserved, QLatin1Char('_'), 0);
    QStringList result;
    for (const QString &name : wanted)
        result.append(names.take(sqlName(name)));
    return result;
}

QString quoted(const QString &sqlName)
{
    static const QSet<QString> words = [] {
        const QStringList list =
            QString::fromLatin1(sqlWords).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        return QSet<QString>(list.begin(), list.end());
    }();
    const auto plain = [](QChar c) {
        return c < QChar(0x80) && (c.isLetterOrNumber() || c == QLatin1Char('_'));
    };
    const bool bare = !sqlName.isEmpty() && !sqlName.at(0).isDigit()
                      && std::all_of(sqlName.begin(), sqlName.end(), plain)
                      && !words.contains(sqlName.toUpper());
    return bare ? sqlName : QLatin1Char('\'') + sqlName + QLatin1Char('\'');
}

} // namespace exportNames

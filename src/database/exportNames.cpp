#include "database/exportNames.h"

#include "util/text.h"
#include "util/workbook.h"

#include <QCryptographicHash>
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

// The last so many UTF-16 units of a text, one less where that would halve a character.
QString lastUnits(const QString &text, int units)
{
    const QString end = text.right(units);
    return !end.isEmpty() && end.at(0).isLowSurrogate() ? end.mid(1) : end;
}

// Of a name that is too long its beginning and its end are kept: names of one family differ at the
// end. What the name becomes depends on nothing else.
QString shortened(const QString &name, int longest)
{
    if (name.size() <= longest)
        return name;
    const QLatin1Char joint('~');
    QString end = lastUnits(name, longest * 2 / 3);
    // From the beginning of a word on, when that leaves something telling.
    const int word = end.indexOf(QLatin1Char(' ')) + 1;
    if (name.at(name.size() - end.size() - 1) != QLatin1Char(' ')
        && end.size() - word >= longest / 4)
        end.remove(0, word);
    return text::firstUnits(name, longest - 1 - end.size()).trimmed() + joint + end.trimmed();
}

// A name that tells apart two that would be equal: with four digits that follow from the full
// name alone.
QString marked(const QString &base, const QString &wanted, QChar separator, int longest)
{
    constexpr int digits = 4;
    const QByteArray sum =
        QCryptographicHash::hash(wanted.toUtf8(), QCryptographicHash::Md5).toHex().left(digits);
    return (longest > 0 ? shortened(base, longest - digits - 1) : base) + separator
           + QString::fromLatin1(sum);
}

// What is used up, in any case of letters.
class takenNames
{
public:
    explicit takenNames(const QStringList &reserved)
    {
        for (const QString &name : reserved)
            take(name);
    }

    bool take(const QString &name)
    {
        const QString folded = name.toCaseFolded();
        if (m_taken.contains(folded))
            return false;
        m_taken.insert(folded);
        return true;
    }

    // The name with the next number that is free.
    QString takeNumbered(const QString &name, QChar separator, int longest)
    {
        // Counting goes on where the last equal name stopped: a thousand of them cost no more.
        int &number = m_numbers[name.toCaseFolded()];
        QString result;
        do {
            number = qMax(number + 1, 2);
            const QString ending = separator + QString::number(number);
            result =
                (longest > 0 ? text::firstUnits(name, longest - ending.size()) : name) + ending;
        } while (!take(result));
        return result;
    }

private:
    QSet<QString> m_taken;
    QHash<QString, int> m_numbers;
};

// One name for each wanted one, made of its base. Who had one of its names before keeps it, so that
// who comes new takes nobody's; then the first one has its base, and the others are marked.
QStringList unique(const QStringList &wanted, const QStringList &bases, const QStringList &reserved,
                   const QHash<QString, QString> &before, QChar separator, int longest)
{
    takenNames taken(reserved);
    QStringList result = QVector<QString>(wanted.size()).toList();
    const auto markedName = [&](int i) {
        return marked(bases.at(i), wanted.at(i), separator, longest);
    };
    for (int i = 0; i < wanted.size(); ++i) {
        const QString kept = before.value(wanted.at(i));
        if (!kept.isEmpty() && (kept == bases.at(i) || kept == markedName(i)) && taken.take(kept))
            result[i] = kept;
    }
    for (int i = 0; i < wanted.size(); ++i) {
        if (!result.at(i).isNull())
            continue;
        if (const QString &base = bases.at(i); taken.take(base))
            result[i] = base;
        else if (const QString name = markedName(i); taken.take(name))
            result[i] = name;
        else
            result[i] = taken.takeNumbered(name, separator, longest);
    }
    return result;
}

QString sheetName(const QString &wanted)
{
    QString name = exportNames::replaceCharacters(wanted);
    for (QChar &c : name)
        if (c < QLatin1Char(' ') || QLatin1String("[]:*?/\\").contains(c))
            c = QLatin1Char('_');
    name = shortened(name, workbook::maximumName);
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

QStringList sheetNames(const QStringList &wanted, const QStringList &reserved,
                       const QHash<QString, QString> &before)
{
    QStringList bases;
    for (const QString &name : wanted)
        bases.append(sheetName(name));
    // Excel keeps this name for itself.
    return unique(wanted, bases, reserved + QStringList(QStringLiteral("History")), before,
                  QLatin1Char('~'), workbook::maximumName);
}

QStringList sqlNames(const QStringList &wanted, const QStringList &reserved,
                     const QHash<QString, QString> &before)
{
    QStringList bases;
    for (const QString &name : wanted)
        bases.append(sqlName(name));
    return unique(wanted, bases, reserved, before, QLatin1Char('_'), 0);
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

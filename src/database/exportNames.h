// Names of sheets, tables and columns that Excel and SQLite accept, made from the names of groups
// and fields.
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace exportNames {

// Replaces the characters that the table ":/file/files/polish_chars.txt" lists (Polish letters by
// plain ones); all others pass.
QString replaceCharacters(const QString &text);

// One sheet name for each wanted one: characters replaced, []:*?/\ and control characters become
// "_", apostrophes at an end go, never empty. Of a name over 31 characters its beginning and its
// end are kept. No two are equal when case is ignored, neither to each other nor to the reserved
// ones: the first one has the name, the others get four digits that follow from their wanted names,
// and equal wanted names a number. before: the names of an earlier time by the wanted ones, which
// stay where they still fit. So a new name changes no other one.
QStringList sheetNames(const QStringList &wanted, const QStringList &reserved = {},
                       const QHash<QString, QString> &before = {});

// One table or column name for each wanted one: characters replaced, apostrophes removed, never
// empty, not beginning with SQLite's own "sqlite_", of any length; unique as above.
QStringList sqlNames(const QStringList &wanted, const QStringList &reserved = {},
                     const QHash<QString, QString> &before = {});

// A name of sqlNames() as it stands in a statement: in single quotes when it is more than a plain
// identifier or a word of SQL's own.
QString quoted(const QString &sqlName);

} // namespace exportNames

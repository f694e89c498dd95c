// Names of sheets, tables and columns that Excel and SQLite accept, made from the names of groups
// and fields.
#pragma once

#include <QString>
#include <QStringList>

namespace exportNames {

// Replaces the characters that the table ":/file/files/polish_chars.txt" lists (Polish letters by
// plain ones); all others pass.
QString replaceCharacters(const QString &text);

// One sheet name for each wanted one: characters replaced, []:*?/\ and control characters become
// "_", apostrophes at an end go, at most 31 characters, never empty, and no two are equal when case
// is ignored, neither to each other nor to the reserved ones.
QStringList sheetNames(const QStringList &wanted, const QStringList &reserved = {});

// One table or column name for each wanted one: characters replaced, apostrophes removed, never
// empty, not beginning with SQLite's own "sqlite_", and no two are equal when case is ignored,
// neither to each other nor to the reserved ones.
QStringList sqlNames(const QStringList &wanted, const QStringList &reserved = {});

// A name of sqlNames() as it stands in a statement: in single quotes when it is more than a plain
// identifier or a word of SQL's own.
QString quoted(const QString &sqlName);

} // namespace exportNames

// The description of an exported library with which Altium opens it (.DbLib).
#pragma once

#include <QByteArray>
#include <QStringList>

namespace libraryDescription {

enum source
{
    workbookFile,
    sqliteFile
};

// One exported column: its name in the file, and what it is to the CAD tool: a parameter's name, or
// one of its reserved fields in square brackets.
struct column
{
    QString name;
    QString parameter;
};

// Whether a table of that name can stand in a description: some characters have a meaning there.
bool canDescribe(const QString &table);

// fileName: the exported file, which lies beside the description. tables: the names of its sheets
// or tables; those that cannot be described are left out. keyColumn: the place in columns of the
// one that finds a part again.
QByteArray text(source kind, const QString &fileName, const QStringList &tables,
                const QList<column> &columns, int keyColumn);

} // namespace libraryDescription

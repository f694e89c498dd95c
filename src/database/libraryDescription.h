// The description of a library with which Altium opens it (.DbLib): of an exported file, or of the
// views that a PostgreSQL server has for it.
#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

class materialStruct;

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

// What a library tells of a material, in this order. A column without a field holds the group's
// name when it has a caption; the one with neither stays empty.
struct content
{
    QString (*caption)();
    QString materialStruct::*field;
    const char *reserved; // the CAD tool's own name for it; null when it has none
};
const std::vector<content> &contents();
// Their captions in the program's language, with the letters that names of columns have.
QStringList captions();

// Whether a table of that name can stand in a description: some characters have a meaning there.
bool canDescribe(const QString &table);

// fileName: the exported file, which lies beside the description. tables: the names of its sheets
// or tables; those that cannot be described are left out. keyColumn: the place in columns of the
// one that finds a part again.
QByteArray text(source kind, const QString &fileName, const QStringList &tables,
                const QList<column> &columns, int keyColumn);

// Where the views are, and as whom they are read. There is no password: the driver finds it.
struct server
{
    QString host; // a folder when it is a socket
    int port = 5432;
    QString database;
    QString login;
    QString sslMode; // as libpq calls them
    QString schema;
};

// What the ODBC driver of PostgreSQL is given; driver is its name, which differs between systems.
QString odbcConnection(const server &at, const QString &driver);
// Of the 64-bit driver on Windows.
QString odbcDriver();

// As canDescribe(), of a view on a server.
bool canDescribeView(const QString &view);

// As text(), of the views of a server.
QByteArray text(const server &at, const QStringList &views, const QList<column> &columns,
                int keyColumn);

} // namespace libraryDescription

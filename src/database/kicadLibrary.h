// The description of an exported SQLite file with which KiCad opens it as a database library
// (.kicad_dbl), by ODBC.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace kicadLibrary {

// What a column is to KiCad.
enum columnUse
{
    parameter,   // a field of the part
    shown,       // the same, to be seen when a part is chosen
    value,       // the field that every part has and its schematic shows
    key,         // by which a placed part is found again
    description, // of the part
    symbol,      // LIBRARY:SYMBOL
    footprint,   // LIBRARY:FOOTPRINT
    unused
};

struct column
{
    QString name;
    columnUse use;
};

// Whether a table of that name can be asked for: it is quoted in the queries.
bool canDescribe(const QString &table);

// fileName: the SQLite file, which lies beside the description. tables: those of the file; the ones
// that cannot be described are left out. Each becomes a library.
QByteArray text(const QString &fileName, const QStringList &tables, const QList<column> &columns);

} // namespace kicadLibrary

// The component library of CAD tools straight from a shared store: views of a shared material
// database on the PostgreSQL server, and their description for Altium. See docs/altium.md.
#pragma once

#include "database/libraryDescription.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace store {
struct address;
class connection;
} // namespace store

namespace sharedLibrary {

struct view
{
    QString name;
    QString group; // the name of the group it shows
    int materials = 0;
};

struct library
{
    QString fault;  // plain text; empty when all was made
    QString schema; // in which the views are
    QStringList columns;
    QList<view> views; // in the order of the groups
};

// The longest name that the server keeps whole, in bytes.
constexpr int longestName = 63;

// Makes the schema "cad_NAME" for a material database of that name in the store, and in it one view
// for each group that has materials, in place of those of the last time: one transaction. The views
// show what the exports hold, as it is at any time; role kivzp_reader may read them. A view is
// named as a table of the exports, of a name too long for the server beginning and end; one that
// was made of a group of that name before keeps it. Only an administrator of the store or the owner
// of the database may; the schema is made by who may make schemas there.
library makeViews(store::connection &to, const QString &document);

// Where the tool finds the server of an address; without login and schema.
libraryDescription::server serverOf(const store::address &at);

struct outcome
{
    QString fault;          // plain text; empty when all was made
    bool isRefused = false; // by the server; else it is the file that cannot be written
    library views;
    QStringList notes; // HTML lines: names changed, views left out of the file
};

// Makes the views and writes their description to path, for the tool to read them with that login
// at the address of the connection. Neither is made when the file cannot be.
outcome exportShared(store::connection &to, const store::address &at, const QString &document,
                     const QString &login, const QString &path);

} // namespace sharedLibrary

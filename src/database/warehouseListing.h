// What the warehouse says of its stock, matched to a material database: a listing as text, or
// another database. The form of listings is described in docs/listings.md.
#pragma once

#include "database/materialChange.h"
#include "util/progress.h"

#include <QString>
#include <QStringList>

#include <optional>

class kiv_mat_databaseStruct;
class ktmIndex;

// One entry of a listing.
struct listingEntry
{
    QString line; // as the user finds it again: its first line, or the name from a database
    QString ktm;  // empty when the line has none
    std::optional<double> stock;        // not set: unreadable or missing
    std::optional<double> averagePrice; // PLN a unit; not set also when nothing is in stock
    bool readable = true;               // its KTM and numbers could be read
};

// The entries of a text listing.
std::vector<listingEntry> parseListing(const QString &text);

// The materials of another database as entries. An empty stock or average price is left alone; one
// that is no number makes the entry unreadable.
std::vector<listingEntry> entriesOf(const kiv_mat_databaseStruct &database);

struct listingResult
{
    std::vector<materialChange> changes; // stock and average price, only where they differ
    QStringList problems;                // HTML lines: unreadable, unknown, repeated entries
    int found = 0;                       // entries whose material exists
    bool cancelled = false;              // by the progress function; then there are no changes
};

// Matches entries to the materials of the index and lists what would change; nothing is written
// until applyChanges(). Of entries with the same KTM the last counts. progress is told entries.
listingResult matchListing(const std::vector<listingEntry> &entries, const ktmIndex &materials,
                           const progressFunction &progress = {});

// Reads the file, a ".xml" as a database after checking it against its schema, any other as a text
// listing in UTF-8. Nothing, with an HTML line in error, when it cannot be read.
std::optional<std::vector<listingEntry>> readListing(const QString &path, QString *error);

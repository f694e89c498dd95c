// What became of a material in the shared store: who changed what when, and what it was.
#pragma once

#include "store/storeConnection.h"

#include <QStringList>

#include <vector>

namespace store {

struct historyLine
{
    qint64 release = 0;
    QString at;     // UTC, "yyyy-MM-ddThh:mm:ssZ"
    QString author; // as the program told it
    QString login;  // as the server knew it; empty with SQLite
    QString what;   // added, removed, restored, moved, changed
    QString field;  // column; empty for a whole row
    QString caption;
    QString before; // of a moved one the groups' names
    QString after;
};

struct materialHistory
{
    QString document; // its id
    QString name;     // of the document
    QString id;       // of the row
    QString caption;  // KTM and name, as they are now
    bool gone = false;
    std::vector<historyLine> lines; // the latest first
};

// Of all materials that have the KTM, or had it once; of one document when it is given. Nothing,
// with the connection's fault, when the store is not to be read.
std::vector<materialHistory> historyOf(connection &from, const QString &ktm,
                                       const QString &document = {});

// The texts of a material's columns after a release; nothing, with the reason in fault, where it
// did not exist then.
std::optional<QStringList> textsAt(connection &from, const QString &id, qint64 release,
                                   QString *fault);

// In the words of the program's language: what happened, with the texts.
QString sentenceOf(const historyLine &line);

} // namespace store

// A document brought together with the shared store: what others changed since the last time comes,
// what was changed here goes, field by field, as one transaction.
#pragma once

#include "data/documentMerge.h"
#include "store/storeBase.h"
#include "store/storeConnection.h"
#include "store/storeTables.h"
#include "util/progress.h"

#include <QHash>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class documentStruct;

namespace store {

// A row as it is to be in the document.
struct rowChange
{
    int table = 0;
    int local = -1; // place among localRows() of the document; -1 for a record that is new there
    QString id;
    QString below;
    double place = 0;
    qint64 release = 0;
    bool gone = false;
    bool moved = false; // it is at another place in the document now
    QStringList texts;  // all columns; none where only the place is another one
};

// What the rows of the records are after it, in the order of localRows().
struct knownRow
{
    QString id;
    qint64 release = 0;
    double place = 0;
    quint64 hash = 0; // of its content; 0 where that is another one now
};

struct syncResult
{
    bool done = false;
    bool cancelled = false; // by the user, who was asked about conflicts, or waited
    QString fault;          // plain text; empty when it is done or cancelled
    int fetched = 0;        // rows that others changed
    int sent = 0;           // rows that were changed here
    int conflicts = 0;      // texts that both changed, and the user picked from
    qint64 release = 0;     // what the document is as of now
    bool mayWrite = true;
    std::vector<rowChange> changes; // of the document
    std::vector<knownRow> known;
};

// Shows rows of mergeRow::both, and has them picked; false gives the whole up. Nothing is locked in
// the store meanwhile.
using conflictsSettled = std::function<bool(std::vector<mergeRow> &rows)>;

// Does all but changing the document: when it is done, the store has what was changed here, and
// what is to be changed in the document is in the result. Whatever fails leaves the store as it
// was. author is who is told to have changed what. known is that of the document.
syncResult synchronize(connection &with, documentStruct &document, const base &known,
                       const QString &author, const conflictsSettled &settle,
                       const progressFunction &progress = {});

// Makes the changes in the document, which is the same one or a copy with the same records in the
// same order, and brings known up to it. Called once for a result.
void apply(const syncResult &result, documentStruct *document, base *known);

// What is known of a document whose records have these rows: of another way to make the changes. A
// record without one is new, and is sent the next time.
base knownOf(documentStruct &document, const QHash<const xmlData *, knownRow> &rows, base before,
             const syncResult &result);

// A document of its own with the same records in the same order.
std::unique_ptr<documentStruct> copyOf(documentStruct &document);

// Puts a document that is not shared into the store, under a name that no other of its kind has
// there. The result's changes are none, and apply() makes what is known of it.
syncResult publish(connection &to, documentStruct &document, const QString &name,
                   const QString &author, base *known, const progressFunction &progress = {});

// The document of that name as it is in the store, with what is known of it; null with the reason
// in fault, which is empty when it was cancelled.
std::unique_ptr<documentStruct> clone(connection &from, const fileKind &kind, const QString &name,
                                      base *known, QString *fault,
                                      const progressFunction &progress = {});

struct sharedName
{
    QString kind; // root element
    QString name;
    qint64 release = 0; // under which it came in
};
std::vector<sharedName> documentsIn(connection &of);

// How many rows others changed since, by documents as they are known; 0 with the connection's
// fault.
int changesSince(connection &of, const base &known);

} // namespace store

// Rows of a shared store: fetched, written, and what they were.
#pragma once

#include "store/storeConnection.h"
#include "store/storeTables.h"
#include "util/progress.h"

#include <QHash>
#include <QSet>
#include <QStringList>

#include <functional>
#include <map>
#include <set>
#include <vector>

namespace store {

struct storedRow
{
    int table = 0;
    QString id;
    QString below; // id of the row that it lies below; empty for the document itself
    double place = 0;
    qint64 release = 0; // that changed it last
    bool gone = false;  // removed; its texts are those that it had
    QStringList texts;
};

// Calls take(row) for the rows of a document that changed after a release, removed ones too; of
// release -1 on for those that are there, ordered as in the file. False with the connection's
// fault, or when take says no.
bool fetchRows(connection &from, const fileKind &kind, const QString &document, qint64 after,
               const std::function<bool(storedRow &&)> &take);
// The same for rows by their ids.
bool fetchRows(connection &from, const fileKind &kind, int table, const QStringList &ids,
               const std::function<bool(storedRow &&)> &take);

// Makes rows what they were as of a release, each its own in since, by the history. What a program
// itself sent later stays, for it knows that; an empty program has all taken back. Rows that are
// younger keep their texts and are told in young.
bool goBack(connection &from, const fileKind &kind, const QHash<QString, qint64> &since,
            const QString &program, QHash<QString, storedRow> *rows, QSet<QString> *young);

// One line of the history.
struct change
{
    QString what;  // added, removed, changed, moved, restored
    QString field; // column; empty for a whole row
    QString before;
    QString after;
};

// Writes rows as one release. Everything happens between the connection's begin(true) and commit().
class rowWriter
{
public:
    rowWriter(connection &to, const fileKind &kind, QString document)
        : m_to(to)
        , m_kind(kind)
        , m_document(std::move(document))
    {
    }

    // The number under which all is written; -1 with the connection's fault.
    qint64 open(const QString &author, const QString &program);
    // Several new rows at once, of one table.
    bool add(const std::vector<const storedRow *> &rows);
    // Writes a row over the one that the store has as of a release, with what is to be told of it.
    // The columns are those that changed.
    bool set(const storedRow &row, qint64 basedOn, const std::vector<size_t> &columns,
             const std::vector<change> &told);
    int written() const { return m_written; }

private:
    bool tell(const storedRow &row, const std::vector<change> &told, qint64 basedOn);

    connection &m_to;
    const fileKind &m_kind;
    QString m_document;
    qint64 m_release = -1;
    int m_written = 0;
};

} // namespace store

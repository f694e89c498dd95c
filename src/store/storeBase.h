// What is known beside a shared document's file: which row of the store each record is, and as of
// which release. The texts are not kept: what a record was is asked of the store's history.
#pragma once

#include "data/documentSaving.h"

#include <QString>

#include <vector>

namespace store {

struct baseRow
{
    int table = 0;  // place in tablesOf()
    QString id;     // of the row in the store
    int below = -1; // place in base::rows of the record that it lies below, which is an earlier one
    double place = 0;
    qint64 release = 0; // of the row as it was fetched or sent last
    quint64 hash = 0;   // table::hash()
    QString key;        // table::key()
};

struct base
{
    QString store;        // the id of the store
    QString document;     // its name there
    QString kind;         // root element
    QString program;      // the id under which this copy sends
    bool mayWrite = true; // as of the last time the store was asked
    qint64 release = 0;   // all changes up to this one are in the document
    fileState synced;     // the file when it held exactly this
    std::vector<baseRow> rows;

    bool isShared() const { return !document.isEmpty(); }

    // The file beside a document's file.
    static QString fileOf(const QString &path);
    // That of a document; one that is not shared when there is none. When it cannot be read, fault
    // says why, and it is not shared.
    static base read(const QString &path, QString *fault);
    // Only the lines before the rows.
    static base readHead(const QString &path);
    // Replaces the file beside the document's; false with the reason in fault when it cannot be.
    bool write(const QString &path, QString *fault) const;
};

// A new id: of a row, of a program, of a store.
QString newId();

} // namespace store

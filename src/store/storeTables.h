// How documents lie in a shared store: which tables a kind of document has, and which columns, made
// from the field tables of its records. One row is one record; what nests in a record and is no
// table of its own is the XML text of a column.
#pragma once

#include "data/documentStruct.h"

#include <memory>
#include <vector>

namespace store {

struct column
{
    QString name;        // as in the store
    QString (*label)();  // what the user calls it; null where nothing shows it
    bool nested = false; // XML of records
};

class table
{
public:
    table(QString tableName, int tableAbove)
        : name(std::move(tableName))
        , above(tableAbove)
    {
    }
    table(const table &) = delete;
    table &operator=(const table &) = delete;
    virtual ~table() = default;

    const QString name; // in the store
    const int above;    // place of the table whose rows these lie below; -1 for the document itself
    std::vector<column> columns;

    // The records of one parent, which is one of the table above or the document.
    virtual int count(xmlData *parent) const = 0;
    virtual xmlData *at(xmlData *parent, int place) const = 0;
    // All of them, in their order; a record that is no more in the list is given up.
    virtual std::vector<std::unique_ptr<xmlData>> take(xmlData *parent) const = 0;
    virtual void give(xmlData *parent, std::vector<std::unique_ptr<xmlData>> records) const = 0;
    virtual std::unique_ptr<xmlData> make() const = 0;

    virtual QString text(const xmlData *record, size_t place) const = 0;
    QStringList texts(const xmlData *record) const;
    virtual void setText(xmlData *record, size_t place, const QString &text) const = 0;
    // What the record is known by where it has no row yet.
    virtual QString key(const xmlData *record) const = 0;
    // What a user calls it.
    virtual QString caption(const xmlData *record) const = 0;
    // A number that records of equal texts share; without the first column, which the key comes
    // from, so that a changed key can be told.
    virtual quint64 hash(const xmlData *record) const = 0;
};

using tables = std::vector<std::unique_ptr<table>>;

// A table stands behind the one above it. Empty for kinds that are not shared.
const tables &tablesOf(const fileKind &kind);

// The kinds that are.
const std::vector<const fileKind *> &sharedKinds();
// As kind() of a new document; null for another name.
const fileKind *kindOf(const QString &root);

// All texts of nested records in one line, for a reader.
QString readable(const QString &nestedText);

} // namespace store

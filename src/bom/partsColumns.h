// What the columns of a list of parts hold: guessed from their captions in English, Polish and
// German and from what stands in them, and corrected by the user.
#pragma once

#include "bom/partsTable.h"

#include <QMap>

namespace partsColumns {

enum field : quint8
{
    none,
    designator,
    quantity,
    ktm,
    partNumber,
    manufacturer,
    value,
    package, // or a footprint, out of which the case is read
    description,
    supplier,
    supplierNumber,
    tolerance,
    voltage,
    power,
    notFitted, // says yes where the part is left out
    fitted,    // says no there
    fieldCount
};

// The name in files and commands, and the caption for the user.
QString nameOf(field of);
QString captionOf(field of);
// none when no field has the name.
field fieldNamed(const QString &name);

// Whether several columns may hold the field, as the maker's and an own part number.
bool mayBeSeveral(field of);

struct guess
{
    int header = -1;       // the row with the captions; -1: there is none
    QVector<field> fields; // of each column

    bool operator==(const guess &) const = default;
    // The first column of a field; -1.
    int columnOf(field of) const { return fields.indexOf(of); }
};

// remembered: what the user decided before, by captions.
guess guessed(const partsTable &table, const QMap<QString, QString> &remembered = {});

// The captions of a table as one text, by which a user's decision is remembered, and the decision
// as a text; the fields of such a text, as many as there are columns.
QString captionSet(const partsTable &table, int header);
QString asText(const QVector<field> &fields);
QVector<field> fromText(const QString &text, int columns);

} // namespace partsColumns

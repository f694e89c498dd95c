// The lines of a list of parts: its rows with their fields, what is one part joined.
#pragma once

#include "bom/partsColumns.h"

struct partsLine
{
    QVector<int> rows; // lines of the file that it was read from, from 1
    QStringList designators;
    QString quantity; // for one board: the number of designators, else what the file states
    QString ktm;
    QString manufacturer;
    QString value;
    QString package;
    QString description;
    QString supplier;
    QString tolerance;
    QString voltage;
    QString power;
    QStringList partNumbers; // the most telling first
    QStringList supplierNumbers;
    bool isLeftOut = false; // not fitted
    QStringList remarks;    // what the user has to know of it

    // By which it is known again: its part number, else all that is stated of it. Empty when that
    // is nothing, which no decision is kept for.
    QString key() const;
    // What stands for a part that no database has: "MAKER PART-NUMBER [VALUE]".
    QString name() const;
};

struct partsList
{
    QVector<partsLine> lines;
    QStringList remarks; // of rows that make no line

    int leftOut() const;
};

// Rows that differ in designators and quantities only are one part; a row with designators alone
// goes on with the one before it.
partsList linesOf(const partsTable &table, const partsColumns::guess &columns);

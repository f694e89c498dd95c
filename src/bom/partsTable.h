// A list of parts as a CAD tool or an office program writes it: a table of texts, whatever the
// file's form.
#pragma once

#include "util/progress.h"

#include <QStringList>
#include <QVector>

#include <optional>

struct partsTable
{
    QVector<QStringList> rows; // all of the same length; rows without any text are left out
    QVector<int> lines;        // of each row: its line or row in the file, from 1
    QString form;              // "CSV", "XLSX", "ODS", "XLS" or "KiCad XML"
    QString encoding;          // of a text, as a name for the user
    QChar separator;           // of a text
    QStringList sheets;        // of a workbook
    int sheet = 0;             // the one that was read
};

struct partsTableOptions
{
    QChar separator;  // null: found out
    QString encoding; // empty: found out; else a name that QTextCodec knows
    int sheet = -1;   // of a workbook; -1: the first with more than one row
};

// Reads CSV and its kin (comma, semicolon, tab or bar between the fields, quoted or not; UTF-8,
// UTF-16 or Windows-1250, with or without a byte order mark), XLSX workbooks, the XML netlist or
// list of parts of KiCad, and, where LibreOffice is installed, ODS and XLS. Nothing, with the
// reason in fault, when the file cannot be read, holds no table, or is cancelled.
std::optional<partsTable> readPartsTable(const QString &path, const partsTableOptions &options,
                                         QString *fault);

// The rows of a text, and the lines in which they begin. Quotes enclose fields that hold
// separators, line ends or doubled quotes; unclosed gets the line of one that encloses all the
// rest, else 0.
QVector<QStringList> splitTable(const QString &text, QChar separator, QVector<int> *lines = nullptr,
                                int *unclosed = nullptr);
// The separator by which most rows have the same number of fields, more than one.
QChar likelySeparator(const QString &text);

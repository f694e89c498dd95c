// A table written for other programs, as a workbook or as text between semicolons.
#pragma once

#include "util/progress.h"

#include <QStringList>

#include <functional>

namespace tableFile {

struct content
{
    QString sheet; // a name that Excel accepts
    QStringList captions;
    int rows = 0;
    std::function<QStringList(int row)> cells;
    QVector<int> numbers; // columns whose texts are numbers for a workbook, where they are any
};

enum result
{
    written,
    cancelled,
    failed
};

// Writes it to the path: as CSV (UTF-8 with its mark, lines with CR LF) when that ends so, else as
// a workbook. The file there stays as it was unless all is written; why it is not goes to fault.
result write(const content &table, const QString &path, QString *fault,
             const progressFunction &progress = {});

} // namespace tableFile

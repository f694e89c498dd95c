// How an operation that writes files of its own went.
#pragma once

#include "database/exportChanges.h"
#include "util/tableFile.h"

#include <QString>
#include <QStringList>

struct exportResult
{
    enum outcome
    {
        done,
        cancelled, // by the progress function; nothing was written
        failed     // older files are as they were; error tells why
    };
    outcome result = done;
    QString error;     // plain text
    QStringList notes; // HTML lines for the errors window: names changed, texts cut
    QStringList files; // paths written
    int materials = 0;
    exportChanges changes; // of the exports that compare with the last one
};

// A table written as a file of its own, a workbook or CSV by the path's ending.
exportResult exportTable(const tableFile::content &table, const QString &path,
                         const progressFunction &progress = {});

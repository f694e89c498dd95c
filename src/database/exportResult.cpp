#include "database/exportResult.h"

exportResult exportTable(const tableFile::content &table, const QString &path,
                         const progressFunction &progress)
{
    exportResult result;
    QString fault;
    switch (tableFile::write(table, path, &fault, progress)) {
    case tableFile::written:
        result.files.append(path);
        break;
    case tableFile::cancelled:
        result.result = exportResult::cancelled;
        break;
    case tableFile::failed:
        result.result = exportResult::failed;
        result.error = path + QLatin1String(": ") + fault;
    }
    return result;
}

// A report saved as a page, printed, or as a table, as the user chooses.
#pragma once

#include "util/tableFile.h"

#include <QString>

#include <functional>

class configStruct;
class workProgress;

struct savedReport
{
    QString proposed; // path
    QString title;    // at the foot of printed pages
    std::function<QString()> page;
    // Writes CSV or a workbook, as the path ends.
    std::function<tableFile::result(const QString &path, QString *fault,
                                    const progressFunction &progress)>
        table;
};

// Asks where to and writes it; a failure is told. Returns the text for the status bar; empty when
// nothing was written. The file is opened where the configuration says so.
QString saveReport(const savedReport &of, const configStruct &config, workProgress &progress);

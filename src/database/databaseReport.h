// The short and the full report of a material database: HTML pages that load nothing.
#pragma once

#include "database/exportResult.h"
#include "util/progress.h"

class kiv_mat_databaseStruct;
class kiv_mat_firmStruct;

enum class databaseReportKind
{
    brief, // a table with one row a material
    full   // all fields, manufacturers, suppliers and files of every material
};

// A coloured dot for a status word, as HTML; nothing for any other text.
QString statusDot(const QString &status);
// A stored price as HTML, grouped and with its currency; nothing for none.
QString priceHtml(const QString &stored);

// Writes the report to path, group after group: memory does not grow with the database. firms, the
// firm register or null, gives the status marks before the names of firms. progress is told
// materials.
exportResult writeDatabaseReport(const kiv_mat_databaseStruct &database,
                                 const kiv_mat_firmStruct *firms, databaseReportKind kind,
                                 const QString &path, const progressFunction &progress = {});

// Where the report goes unless the user says otherwise: beside the database, its name without
// ".xml" and with "_short.html" or "_full.html".
QString databaseReportPath(const QString &databasePath, databaseReportKind kind);

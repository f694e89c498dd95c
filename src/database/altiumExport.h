// The material database as a component library of CAD tools: a workbook, or an SQLite file with the
// script that fills it; and the list of groups as a workbook. See docs/altium.md.
#pragma once

#include "database/exportResult.h"
#include "util/progress.h"

class kiv_mat_databaseStruct;

// Each writes the whole database to path, replacing what was there only when all of it has been
// made. progress is told materials, and a total of 0 while the workbook is packed. Beside the file
// lies its description for Altium, libraryPath(path), and what the next export is compared with
// (exportMemory); changes in the result tells what differs from the last one. A group keeps the
// name that its sheet or table had then.

// One sheet a group: the captions in row 1, then one row a material. All cells are texts.
exportResult exportAltiumXlsx(const kiv_mat_databaseStruct &database, const QString &path,
                              const progressFunction &progress = {});

// An empty SQLite file at path and, at scriptPath(path), the script that makes and fills one table
// a group. The script is not run. kicadPath(path) is the description of the same file for KiCad.
exportResult exportAltiumSqlite(const kiv_mat_databaseStruct &database, const QString &path,
                                const progressFunction &progress = {});

// The sheet "Groups" with name, KTM and CPV of every group, then a sheet a group with the same of
// its materials. No description.
exportResult exportGroups(const kiv_mat_databaseStruct &database, const QString &path,
                          const progressFunction &progress = {});

// The path with its ending ".sqlite" (in any case) replaced by ".txt"; appended when there is none.
QString scriptPath(const QString &path);
// The path with ".DbLib" behind it, so that a workbook and an SQLite file of one name have one
// each.
QString libraryPath(const QString &path);
// The path with its ending ".sqlite" replaced by ".kicad_dbl"; appended when there is none.
QString kicadPath(const QString &path);

// The file to propose for an export: the database's file name with ending (".xlsx" or ".sqlite") in
// place of ".xml", in the folder, or beside the database when there is no such folder.
QString proposedExportPath(const QString &databasePath, const QString &folder,
                           const QString &ending);

// CPV codes of groups and materials: read from a list, handed down from groups, looked up.
#pragma once

#include "database/materialChange.h"
#include "util/progress.h"

#include <QStringList>
#include <QUrl>

class kiv_mat_databaseStruct;

template <class Change>
struct cpvResult
{
    std::vector<Change> changes; // only where the code differs; nothing is written by itself
    QStringList problems;        // HTML lines for the errors window
    bool cancelled = false;      // by the progress function; then there are no changes
};

// Codes for groups from a text file in UTF-8, a line each: group name, TAB, code, perhaps a blank
// and its name. Names are compared exactly; all groups of that name get the code. Listed are a file
// that cannot be read, codes of a wrong form and groups that do not exist. Empty lines are skipped.
// progress is told lines.
cpvResult<groupChange> loadCpvForGroups(const QString &path, kiv_mat_databaseStruct &database,
                                        const progressFunction &progress = {});

// The code of each group for all its materials, also for those that have another. Groups without
// one are left out, groups with one of a wrong form are listed. progress is told groups.
cpvResult<materialChange> moveCpvToMaterials(kiv_mat_databaseStruct &database,
                                             const progressFunction &progress = {});

// The dictionary of codes "_files/Wspolny-Slownik-Zamowien.pdf" as a file address; empty when it
// does not lie there.
QUrl cpvIndexFile();

// A public page that lists the codes.
QUrl cpvIndexPage();

// From a list of parts to a BOM list: its lines with what they were matched with, staged until the
// user sets them.
#pragma once

#include "bom/partsMatching.h"
#include "data/kiv_mat_bomStruct.h"
#include "util/progress.h"

#include <QDate>

namespace bomImport {

enum class state : quint8
{
    matched,
    ambiguous, // there are materials to choose from
    unknown,
    leftOut
};
QString stateText(state of);
QString stateName(state of); // for files

struct stagedLine
{
    partsLine line;
    std::vector<matchCandidate> candidates;
    int chosen = -1;    // of the candidates; -1: none
    bool isOwn = false; // the user settled it

    state stateOf() const;
    // Null when there is none.
    const matchCandidate *match() const
    {
        return chosen < 0 ? nullptr : &candidates[size_t(chosen)];
    }
};

struct staged
{
    std::vector<stagedLine> lines;
    QStringList remarks;

    int count(state of) const;
};

// Matches the lines. False, with nothing staged, when progress cancels.
bool stage(const partsList &list, const partsMatcher &materials, const matchDecisions &decisions,
           staged *to, const progressFunction &progress = {});

// --- What was decided before ---

// The file of decisions beside the BOM lists of a folder: a table of key, KTM, date and words, with
// semicolons, that any program can edit.
QString decisionsFile(const QString &folder);
struct decision
{
    QString key;
    QString ktm;
    QString date;  // yyyy-MM-dd
    QString words; // of the line, for who reads the file
    bool operator==(const decision &) const = default;
};
// A file that is not there holds none; one that cannot be read leaves its reason in fault.
std::vector<decision> readDecisions(const QString &folder, QString *fault);
bool writeDecisions(const QString &folder, const std::vector<decision> &all, QString *fault);
matchDecisions asMap(const std::vector<decision> &all);
// Adds what the user chose, in place of what was decided for the same key.
void takeChosen(const staged &lines, const QDate &today, std::vector<decision> *all);

// --- Writing ---

// Names of parts that no database has, by the KTMs that the BOM lists of a folder gave them.
using unknownParts = QMap<QString, QString>;
unknownParts unknownIn(const QString &folder);

// Left-out lines are not written; several lines of one material become one. Parts that were not
// matched are lines of a KTM 999999-99.99-NNNNN: that of the same name in known, or the next one,
// which is added to known.
std::unique_ptr<kiv_mat_bomStruct> bomOf(const staged &lines, unknownParts *known,
                                         const QDate &today);

// A material for a part that no database has, filled in with what the line says of it.
std::unique_ptr<materialStruct> materialOf(const partsLine &line);

// The table of all lines with state, reason, confidence and remarks, as CSV with semicolons.
QString reportOf(const staged &lines);

} // namespace bomImport

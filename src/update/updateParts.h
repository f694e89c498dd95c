// What an update may renew, part by part, with the releases that are here and on offer.
#pragma once

#include "data/kiv_infoStruct.h"

#include <memory>
#include <vector>

namespace updates {

enum part
{
    program,
    boms,
    firms,
    service,
    warehouse,
    mechanics,
    partCount
};

struct partRow
{
    const char *word;    // on the command line and in the names of packages
    const char *caption; // English source text, context "updates"
    QString kiv_infoStruct::*release;
    QString kiv_infoStruct::*link;
    QLatin1String option; // of the configuration, with the path of its file; empty for the program
};
const partRow &rowOf(part of);
QString captionOf(part of);
// partCount when no part has the word.
part partCalled(const QString &word);

// Negative, 0 or positive. Releases are numbers with points ("3", "1.4.2"); any other text is lower
// than all of them.
int compareReleases(const QString &one, const QString &other);

// The names of an update's own files, at its address.
extern const QString infoName;        // "kiv_info.xml"
extern const QString scriptName;      // "updateScript.xml"
extern const QString sumsName;        // "kiv_update.sums", with sizes and SHA-256 of all the others
extern const QString signatureEnding; // ".minisig", of the sums
extern const QString descriptionName; // "description.html"
// Before the time at which it was made, in the first line of the sums.
constexpr const char *madePrefix = "# made ";

// What is installed in the program's folder: its information file, with the version of the running
// program. Empty releases where there is no readable file.
std::unique_ptr<kiv_infoStruct> installed(const QString &programDir);

struct standing
{
    part of = program;
    QString here;
    QString there;
    QString link;

    bool isNewer() const { return compareReleases(there, here) > 0; }
    bool isLower() const { return compareReleases(there, here) < 0; }
};
// The parts that the address offers a release and a link of.
std::vector<standing> compare(const kiv_infoStruct &here, const kiv_infoStruct &there);

} // namespace updates

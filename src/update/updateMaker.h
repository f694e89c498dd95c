// Makes an update of what is here: packages, information file, script, sums and signature, in a
// folder that is then put at the address.
#pragma once

#include "update/updateParts.h"
#include "update/updateSource.h"
#include "util/progress.h"

#include <QStringList>

#include <map>

namespace updateMaker {

struct job
{
    QString folder; // made when missing; neither of the two folders that are packed
    std::map<updates::part, QString> releases; // of the parts that are in it
    QString programDir; // whose program is packed, without what users change and what working with
                        // it leaves there
    std::map<updates::part, QString> files; // of the parts that are data, with their paths; below
                                            // dataDir, since packages have them relative to it
    QString dataDir;
    QString description;       // HTML; empty leaves out the file
    QString secretKey;         // a file; empty: not signed
    progressFunction progress; // bytes packed, of all; until everything is to be put in place
};
struct result
{
    QString fault; // why nothing was made; empty when it was, or was cancelled
    bool isCancelled = false;
    QStringList files; // that were made and are to be at the address, with their paths
};
// Files of an update that stood in the folder stay when it fails or is cancelled, and are replaced
// together when it does not; packages of earlier releases stay in any case, for those who are
// downloading them. Script and sums are of all parts that the information file names, so that who
// has left out an update gets its parts, too.
//
// Faults, with the file and, where it has them, line and column: a part whose release is none or
// not higher than that of the folder's information file, since nobody would get it; a data file
// that is missing, no valid one of its kind, or outside of dataDir; a program's folder without the
// program; names that no system takes; a package that the information file names and the folder
// has not; a package that would be refused as too large.
result make(const job &of);

// Copies the files to a server by secure copy: packages, then what speaks of them, the information
// file last. The reason when one cannot be, or progress, which is told the bytes that are there,
// says no; what came until then stays. address: as updateSource takes it, with "scp:". Without a
// host key of the account the one that this user has accepted counts.
QString upload(const QStringList &files, const QString &address, const updateSource::login &account,
               const progressFunction &progress = {});

} // namespace updateMaker

// An update from its address to the files in place: what is on offer, whether it may be trusted,
// what it would change, and the change.
#pragma once

#include "data/documentSaving.h"
#include "update/fileSums.h"
#include "update/updateMerge.h"
#include "update/updateParts.h"
#include "update/updateSource.h"

#include <set>

class configStruct;
class materialUses;

namespace updates {

struct settings
{
    QString address; // empty: no updates
    updateSource::login login;
    QString publicKey;            // a file beside the program, which it ships with
    bool acceptsUnsigned = false; // as the configuration allows
};
settings settingsOf(const configStruct &config);

// What the address offers.
struct offer
{
    QString fault;      // why nothing is known; empty when it is
    bool isOut = false; // because the address cannot be reached now
    std::unique_ptr<kiv_infoStruct> info = std::make_unique<kiv_infoStruct>();
    fileSums sums;
    bool isSigned = false;
    std::vector<standing> parts; // with those that are not newer
    QString description;         // HTML, as the sender wrote it
    QString made;                // when, as the list says

    const standing *find(part of) const;
    // Of a part's package; 0 when the list does not name it.
    qint64 sizeOf(const standing &of) const;
    bool hasNewer() const;
};
// Fetches and checks the list of files, its signature, the information file and the description;
// handles events meanwhile. here: what is installed.
offer look(const settings &with, const kiv_infoStruct &here, const progressFunction &progress = {});

// An update that was fetched, checked and merged, and changes nothing yet.
struct prepared
{
    QStringList faults; // why it cannot be installed; then nothing of it is left
    bool isCancelled = false;
    QStringList told; // of files that the user changed, too
    plan what;
    QString root;
    QString scratch;
    QString version;                                   // of the program, after it
    std::vector<std::pair<QString, fileState>> merged; // users' files as they were merged
};
// root: the folder of the program, or of the user's files where that cannot be written; the program
// itself is updated only in the former. wanted: parts of the offer that are newer; others are
// faults.
prepared prepare(const settings &with, const offer &from, const std::set<part> &wanted,
                 const QString &root, const progressFunction &progress = {});

// How many records of a file that comes are new, others, or gone.
struct difference
{
    QString place;
    int added = 0;
    int changed = 0;
    int removed = 0;
    QSet<QString> ktms; // of materials among those that change or go
};
// Of the users' documents among the changes. progress as in compareDocuments(), per file.
std::vector<difference> differencesOf(const prepared &of, const progressFunction &progress = {});

// How many BOM lists and orders have materials that change or go.
struct touched
{
    int lists = 0;
    int orders = 0;
};
touched touchedBy(const std::vector<difference> &differences, const materialUses &uses);

// Whether a user's file has changed since it was merged.
bool isOutdated(const prepared &of);

// Puts it in place, unless it is outdated. The reason when it is not; then all is as it was, or
// settled at the next start
// (updateJournal::install()). Users' files are kept as earlier versions before.
QString install(const prepared &of, configStruct &config);
// Puts back the program that the installed version replaced; data, and their releases, stay. The
// reason when it cannot be.
QString goBack(const QString &root);
// Removes what was fetched of one that is not wanted after all.
void discard(const prepared &of);

} // namespace updates

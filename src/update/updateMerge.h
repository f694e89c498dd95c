// Files that an update brings and users change: what they changed is brought together with what the
// update did, and never overwritten.
#pragma once

#include "update/updatePlan.h"

namespace updates {

// Goes through the changes of users' files: leaves out what would change nothing; merges documents
// by the state that the last update brought, kept below "update/base"; keeps other files that the
// user changed as they are. Where both changed the same text the user's stays. Without that state
// what only the update has is added, and everything else stays.
// told gets a line for each file that did not simply become the update's, with how much of it
// stayed. The reason when a file cannot be read or written, or somebody else has it open; nothing
// of root is changed in any case.
QString mergeUsers(const QString &root, const QString &scratch,
                   std::vector<updateJournal::change> *changes, QStringList *told,
                   const progressFunction &progress = {});

} // namespace updates

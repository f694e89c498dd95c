// Saving a file for the user, the same from every window.
#pragma once

#include "util/progress.h"

#include <QDateTime>
#include <QString>

class configStruct;
class documentStruct;

// A file as it stands on the disk; it differs when another program wrote it.
struct fileState
{
    qint64 size = -1; // none
    QDateTime time;
    bool operator==(const fileState &) const = default;

    static fileState of(const QString &path);
};

// Runs work that reports progress and shows it meanwhile; a window gives one for what takes long.
using workShown = std::function<void(const std::function<void(const progressFunction &)> &work)>;

// Keeps the file as it is among its earlier versions, before it is written over. True when there
// was nothing to keep or it is kept in at least one of the configuration's folders; else the log
// says so, and versionFault() does until the next file is saved. progress: as in
// fileVersions::keep().
bool keepVersion(const QString &path, configStruct &config, const progressFunction &progress = {});
// Keeps a document as it is now, saved or not, among the earlier versions of the file. The same
// results; false also when it cannot be written or the user cancelled that.
bool keepDocument(const QString &path, const documentStruct &document, configStruct &config,
                  const workShown &shown = {});
// What to tell beside "Saved": that no earlier version was kept, and where; empty when one was.
QString versionFault();

// Writes a document over the file, whose earlier version goes to the configuration's folder for
// backups, and says so in the log. False, with the file as it was, when it cannot be written or
// would not open again, or when the user cancelled it or thought better of it. The reason why it
// cannot be written is told, or put into fault where one is given.
bool saveDocument(const QString &path, documentStruct &document, configStruct &config,
                  const workShown &shown = {}, QString *fault = nullptr);

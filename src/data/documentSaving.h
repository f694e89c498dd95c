// Saving a file for the user, the same from every window.
#pragma once

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

// Keeps the file as it is among its earlier versions, before it is written over. True when there
// was nothing to keep or it is kept in at least one of the configuration's folders; else the log
// says so, and versionFault() does until the next file is saved.
bool keepVersion(const QString &path, configStruct &config);
// What to tell beside "Saved": that no earlier version was kept, and where; empty when one was.
QString versionFault();

// Writes a document over the file, whose earlier version goes to the configuration's folder for
// backups, and says so in the log. False, told to the user, with the file as it was, when it cannot
// be written.
bool saveDocument(const QString &path, const documentStruct &document, configStruct &config);

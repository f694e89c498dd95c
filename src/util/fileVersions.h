// Earlier versions of files that are saved, kept packed in a folder of their own:
// "name.HASH-OF-THE-FOLDER.TIME.xml.gz". Older programs kept them unpacked, without the ".gz".
#pragma once

#include "util/progress.h"

#include <QDateTime>
#include <QStringList>

#include <vector>

namespace fileVersions {

// Packs the file as it is into each of the folders, with its permissions, and removes the oldest of
// its versions beyond count there. A file that equals its newest version is not packed again. Files
// of one name from different folders are told apart. True when there was nothing to keep or one
// folder at least has it. progress is told the bytes; false keeps nothing. content: where the file
// is now, when that is another one.
bool keep(const QString &path, const QStringList &folders, int count,
          const progressFunction &progress = {}, const QString &content = {});

// The versions of a file in a folder, the newest first.
QStringList of(const QString &path, const QString &folder);

struct version
{
    QString file; // the version itself
    QString path; // the file that it is of; empty when that is not known
    QString name; // that file's name
    QDateTime time;
    qint64 size = 0; // in bytes, packed
};
// All versions in the folders, each once, the newest first. known: files that there are, by which
// those of older programs are told.
std::vector<version> all(const QStringList &folders, const QStringList &known = {});

// The file of a version, unpacked into the run's scratch folder where it is packed: the caller
// removes that. Empty when it cannot be read or is larger than 4 GB.
QString unpacked(const QString &version);

struct usage
{
    int count = 0;
    qint64 bytes = 0;
    bool operator==(const usage &) const = default;
};
// What the versions in the folders take. keepGoing is asked for each file. May take long.
usage usageOf(const QStringList &folders, const std::function<bool()> &keepGoing);

// Copies the file as it is, for good and into each folder: the copies are none of its versions.
// Returns the path of the last one, empty when none could be made.
QString archive(const QString &path, const QStringList &folders);

} // namespace fileVersions

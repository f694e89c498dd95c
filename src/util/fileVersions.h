// Earlier versions of files that are saved, kept in a folder of their own.
#pragma once

#include <QStringList>

namespace fileVersions {

// Copies the file as it is into the folder, under its name and the time, and removes the oldest of
// its versions beyond count. A file that equals its newest version is not copied again. Files of
// one name from different folders are told apart. True when there was nothing to keep or it is
// kept. With content, that file is kept as a version of the other one.
bool keep(const QString &path, const QString &folder, int count, const QString &content = {});

// The versions of a file, the newest first.
QStringList of(const QString &path, const QString &folder);

// Copies the file as keep() does, but for good and into each folder: the copies are none of its
// versions. Returns the path of the last one, empty when none could be made.
QString archive(const QString &path, const QStringList &folders);

} // namespace fileVersions

// Operations on files and folders. None shows a message: the result says how it went.
#pragma once

#include <QString>
#include <QStringList>

namespace files {

bool folderExists(const QString &path);

// Removes the file; true when it is gone afterwards, also when there was none.
bool removeFile(const QString &path);

// Removes the folder with all its contents; true when it is gone afterwards.
bool removeFolder(const QString &path);

// Copies a file over an existing destination. A failed copy may leave no destination.
bool copyFile(const QString &from, const QString &to);

// The path of a file that does not exist yet: in the run's scratch folder when one was chosen
// (paths::temporaryDir), else in the system's temporary folder.
QString temporaryFileName();

// Writes the text as UTF-8, creating missing folders. The old file stays untouched when the
// writing fails.
bool writeText(const QString &path, const QString &text);

// The whole file as UTF-8 text; empty when it cannot be read.
QString readText(const QString &path);

// Appends the file's lines (UTF-8) to lines; false when the file cannot be opened.
bool readLines(const QString &path, QStringList *lines);

// Makes a folder that only its owner can look into, with the missing folders above it; one that is
// there already becomes so. False when it is a link, somebody else's, or cannot be made.
bool makePrivateFolder(const QString &path);

// Whether two files hold the same bytes; false when one cannot be read.
bool sameContent(const QString &a, const QString &b);

// Why a file could not be written, in the system's words, tried out beside it; empty when nothing
// stands in the way now.
QString whyNotWritten(const QString &path);

// Sum of the sizes in bytes of all files under the folder, hidden ones included, links not
// followed.
qint64 folderSize(const QString &path);

// The files of the folder and its sub-folders whose names match one of the filters ("*.xml"; none
// means all), each as folder + "/" + name with single separators, sorted.
QStringList list(const QString &folder, const QStringList &nameFilters);

} // namespace files

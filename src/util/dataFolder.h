// Where the program keeps what users change. A program installed by an administrator cannot write
// beside itself; its data folders then live in a folder of the user's.
#pragma once

#include <QString>
#include <QStringList>

namespace dataFolder {

// Whether files can be made in the folder, tried out with one.
bool isWritable(const QString &dir);

struct choice
{
    QString dir;        // where to work
    bool perUser;       // true when it is the user's folder
    QStringList copied; // files copied there now
    QStringList failed; // files that could not be copied
};

// The program's folder when it is writable, else the user's, into which the files of "_config",
// "_files", "_zp" and "_e-mail" that it lacks are copied. What the user has there is never
// overwritten.
choice choose(const QString &programDir, const QString &userDir);

} // namespace dataFolder

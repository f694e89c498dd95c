// Where the program keeps what users change. A program installed by an administrator cannot write
// beside itself; its data folders then live in a folder of the user's.
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <vector>

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

// A file of the program's folder that is another one than the user's file was copied from, and
// differs from that.
struct newerFile
{
    QString name; // below both folders
    QDateTime time;
    bool ownChanged; // since it was copied, as far as is known
};
std::vector<newerFile> newerFiles(const QString &programDir, const QString &userDir);

// Puts the program's file in the user's file's place; false when that cannot be.
bool take(const QString &name, const QString &programDir, const QString &userDir);
// Leaves the user's file as it is: the program's one is not newer any more.
void decline(const QString &name, const QString &programDir, const QString &userDir);

} // namespace dataFolder

// Puts an update's files in place of the old ones so that a program that is killed, or a power cut,
// leaves either all of the old ones or, once it is begun again, all of the new ones.
//
// The files wait in a folder of their own, "update/<id>/new", on the same file system. What they
// replace is copied to "update/<id>/old" first; then "update/journal.json" names all of them, and
// only then are they moved, each in one step. Whoever finds that journal moves the rest.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace updateJournal {

struct change
{
    QString place;  // below root, with "/"
    QString source; // a file in the folder that begin() gave; empty: the place is emptied
    // Of the program: goes back with it. What users change does not, since it would lose what they
    // changed since.
    bool goesBack = true;
};

enum class stage
{
    none,       // never updated, or gone back
    installing, // to be finished by settle()
    installed,  // the new program has not started completely yet
    started,    // it has; the way back is there
    goingBack,  // to be finished by settle()
    unreadable  // the journal is damaged: nothing is known
};
// version: what was installed, before: what was replaced; each empty when unknown.
stage stageOf(const QString &root, QString *version = nullptr, QString *before = nullptr);

// Makes the folder for an update's files. Empty, with the reason in fault, when it cannot be made,
// or another program is updating.
QString begin(const QString &root, QString *fault);
// Removes what begin() made, of an update that comes to nothing.
void discard(const QString &folder);

// Moves the files into place. Nothing is changed, and the reason returned, when something cannot be
// kept or written before the first one is moved; after that it is finished by settle() if it is
// not here. The way back to the version before the replaced one is given up.
QString install(const QString &root, const QString &folder, const std::vector<change> &changes,
                const QString &version, const QString &before);

struct settled
{
    bool wasUnfinished = false; // and is finished now
    // Files that could not be moved, as when another program has them open; the next settle() tries
    // again.
    QStringList faults;
};
// To be called before anything else is read. Finishes what was begun, and removes what came to
// nothing.
settled settle(const QString &root);

// The new program starts, or has started completely. beginsAgain() is true when it was begun before
// and has never come so far.
bool beginsAgain(const QString &root);
void noteStarted(const QString &root);

// Puts back the files that the installed version replaced. The reason when there are none, or one
// cannot be.
QString goBack(const QString &root);

} // namespace updateJournal

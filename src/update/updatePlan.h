// What an update's script does, worked out in a scratch folder before anything is changed: each
// file that comes or goes, once.
#pragma once

#include "data/kiv_UpdateStruct.h"
#include "update/updateJournal.h"
#include "util/progress.h"

#include <QSet>

#include <functional>

namespace updates {

// The place below root that a path of a script means, with "/". Empty, with the reason in fault,
// for one that leads out of root, by itself or over a link, is no plain name on every system
// (devices, colons), belongs to the updates themselves, or is something else than a file or folder.
QString placeIn(const QString &path, const QString &root, QString *fault);

// Whether users change what lies there: the configuration, data, orders, templates of messages.
bool isUsers(const QString &place);

struct plan
{
    QStringList faults;                         // nothing is to be done when there are any
    std::vector<updateJournal::change> changes; // the program itself last
    QStringList foldersToRemove;                // if they are empty then
    // For the next start, as the clean-up script has them.
    std::vector<std::pair<QString, QString>> afterwards; // name, path
    QStringList toOpen;                                  // files that the user is to see at once
    QString restartWith; // the program that is begun in the place of this one; empty: none
    bool isCancelled = false;
};

struct planMeans
{
    QString root;    // what is updated
    QString scratch; // as updateJournal::begin() gave it
    // Links of packages that are not wanted; what comes of them is left out.
    QSet<QString> unwanted;
    // Gets the file of a link, checked, into target. The reason when it cannot be.
    std::function<QString(const QString &link, const QString &target)> fetch;
    progressFunction progress; // commands done, of all
};
// Goes through the script with downloads and unpacking in the scratch folder. Nothing of root is
// changed. Commands of other names, and paths that may not be, are faults with the number of the
// command.
plan planOf(const kiv_UpdateStruct &script, const planMeans &with);

} // namespace updates

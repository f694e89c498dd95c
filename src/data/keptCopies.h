// What is kept of files beside the files themselves: their earlier versions, and the copies of
// orders and the changes of other files that were not saved.
#pragma once

#include "util/progress.h"

#include <QDateTime>
#include <QStringList>

#include <memory>
#include <vector>

class documentStruct;
class programData;

struct keptCopy
{
    QString file; // the copy itself
    QString path; // the file that it is of; empty when that has none or is not known
    QString name; // that file's name, for the user
    QDateTime time;
    qint64 size = 0; // in bytes, as it lies there
    bool isUnsaved = false;
    bool isJournal = false; // of changes: the copy is the file with these made
};

// All copies in the folders, the newest first. known: files that there are, by which the versions
// of older programs are told.
std::vector<keptCopy> keptCopies(const QStringList &versionFolders,
                                 const QStringList &recoveryFolders, const QStringList &known);
// Those of a program's own folders.
std::vector<keptCopy> keptCopies(programData &data);

// The document of a copy or of any other file, valid or not; of a journal the file as it is now
// with all the changes, also where others changed the same. Null, with the reason, when it cannot
// be read or progress cancels.
std::unique_ptr<documentStruct> readKept(const QString &file, QString *reason,
                                         const progressFunction &progress = {});

// Number of lines of a copy, as lineCount() has it, or of records that a journal changes; -1 when
// it cannot be read or keepGoing says no. Reads the whole file, in any thread.
int linesOfKept(const QString &file, const std::function<bool()> &keepGoing);

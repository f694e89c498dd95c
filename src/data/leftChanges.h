// Unsaved changes of a file's records that a program left in a journal: its first line names the
// file as it was, each further one a change.
#pragma once

#include "data/documentSaving.h"
#include "data/recordChanges.h"

#include <QDateTime>

#include <vector>

class recoverySlot;

struct leftChanges
{
    int place = 0; // of its folder among recoveryFolders()
    int number = 0;
    QString kind; // root element of the document
    QString path; // of the document
    fileState onDisk;
    fileState settled; // the file that the user knew last of all
    QDateTime time;
    QString note; // what the window noted beside the records last
    int records = 0;
    QByteArray lines;

    // What dead programs left, the newest of each folder first.
    static std::vector<leftChanges> all();
    // The one of a journal's file; without a kind when it is none or cannot be read.
    static leftChanges ofFile(const QString &journal);
    static bool isJournal(const QString &file);
    // Numbered places for journals in a folder.
    static recoverySlot slotIn(const QString &folder);

    QString journal() const; // its file
    void remove() const;
    // Once more, to be offered at the next start, until the user deletes it.
    void setAside() const;

    // Makes the changes in the document, which was read from the path a moment ago.
    recordChanges::outcome repeatIn(documentStruct &document, recordChanges &changes) const;

    // The first line of a journal, the one that says that the file's state is known to the user,
    // and one with a note in place of the one before.
    static QByteArray head(const QString &kind, const QString &path, const fileState &onDisk);
    static QByteArray settledLine(const fileState &state);
    static QByteArray noteLine(const QString &note);
};

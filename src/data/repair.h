// Makes the most of a damaged file: every record before and after the damage, and a list of what
// was mended and what was lost.
#pragma once

#include "data/documentStruct.h"
#include "data/recordTrail.h"
#include "util/progress.h"

#include <memory>

struct repairedFile
{
    // Null when nothing of the file could be read; fault says why.
    std::unique_ptr<documentStruct> document;
    QString fault;
    // What was mended or dropped, with the lines of the damaged file: the first ones, and how many
    // there are. None when the file was good.
    QVector<fileFault> changes;
    int changeCount = 0;
};

// Reads a damaged file of any kind; the file stays as it is. Text of Windows-1250 among UTF-8,
// single "&" and "<", and characters that no file can hold are mended; elements without their end
// are ended, wrong ends put right; what no record takes is dropped. What is left is in the form of
// a good file. Linear in the file's size. When progress cancels, fault is empty.
repairedFile repairFile(const QString &path, const progressFunction &progress = {});

// Files that are saved together: all of them are written, or none.
#pragma once

#include "data/documentSaving.h"

#include <vector>

// A document for a file that is there already.
struct changedDocument
{
    QString path;
    const documentStruct *document = nullptr;
    fileState state; // of the file when the document was read
};

enum class togetherResult
{
    saved,
    failed,
    cancelled
};

// Writes each document beside its file and validates it there, keeps each file among its earlier
// versions, and only then puts the new ones in place. When one of them cannot be written, would not
// open again, is open in another program, changed since it was read or cannot be kept, every file
// is what it was before, and fault gets the file and the reason as plain text. A file stands in the
// list once. progress is told the steps; false cancels as long as no file is in place.
togetherResult saveTogether(const std::vector<changedDocument> &documents, configStruct &config,
                            const progressFunction &progress, QString *fault);

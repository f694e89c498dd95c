// The fast validator: libxml2 reads a file as a stream and checks it against a compiled schema,
// with constant memory at any size of file.
#pragma once

#include "data/recordTrail.h"
#include "util/progress.h"

struct validationResult
{
    bool schemaLoaded = false;
    bool valid = false;
    QVector<fileFault> messages; // the first ones
    int messageCount = 0;        // all of them
    // The one behind which the file cannot be read; without text when it can be read to its end.
    fileFault formFault;
};

// Checks a file against a schema file. Messages beyond maxMessages are counted, not kept. Refuses
// document type declarations before reading them, and fetches nothing that a file names. The
// compiled schema is kept until its file changes. progress is told the bytes read; when it cancels,
// the file counts as unreadable.
validationResult validateStreaming(const QString &xmlPath, const QString &xsdPath,
                                   int maxMessages = 100, const progressFunction &progress = {});

// Whether there is a schema file that can be compiled.
bool schemaLoads(const QString &xsdPath);

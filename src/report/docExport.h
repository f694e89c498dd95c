// Pages as DOC documents, made by the external converters.
#pragma once

#include <QString>

#include <functional>

class childRunner;

// Why there is no converter, with what to install, for the user; empty when there is one.
QString missingConverter();

// Converts the HTML page to the document and puts that into a template, which starts in the folder
// of what users change when its name is relative. Each converter has 10 seconds, lets events
// through and is told to the caller while it runs (null when it has ended), so that a button can
// stop() it; what it says goes to the log. True when the document is there: one that the template
// could not take stays as it was converted. After a failure an older document is as it was.
bool writeDoc(const QString &html, const QString &path, const QString &templateFile,
              const std::function<void(childRunner *)> &running = {});

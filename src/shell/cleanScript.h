// The clean-up that an update leaves behind for the next start.
#pragma once

#include <QString>

#include <functional>

namespace cleanScript {

// What the commands need from outside, replaced by tests.
struct environment
{
    QString programDir;
    QString temporaryDir;
    std::function<bool(const QString &url)> openLink;    // shows a page
    std::function<bool(const QString &path)> loadConfig; // puts a configuration in use
};

// The environment of the running program.
environment ofProgram();

// Carries out "cleanScript.xml" in the program's folder, if there is one, and removes it: one line
// a command goes to the log under the heading "Clean after update". A command that fails does not
// stop the next one. Paths stand in "from", relative to the program's folder. Only what lies within
// the program's or the temporary folder is removed, never one of the two itself.
void run(const environment &env);

} // namespace cleanScript

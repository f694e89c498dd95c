// The run's folder for intermediate files: for its owner alone, gone when the program ends, and
// when that was killed, at the next start.
#pragma once

#include <QString>

namespace scratch {

// paths::temporaryDir(), made and claimed by a lock. Empty when it cannot be made for this user
// alone.
QString folder();

// A pattern for temporary files and folders in it, ending in the suffix; in the system's temporary
// folder when there is none.
QString pattern(const QString &suffix = {});

// Removes the folder.
void remove();
// Leaves it to another program that still reads from it.
void leave();

// Removes what killed programs left; a lock keeps the folder of a living one.
void clearLeft();

// Removes the temporary files beside a file in which killed programs were saving it. One that some
// program has open stays.
void clearLeftSaves(const QString &path);

} // namespace scratch

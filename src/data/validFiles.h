// Remembers between runs which files were valid, so that a large database that has not changed
// since is not checked again at every start.
#pragma once

#include <QString>

namespace validFiles {

// Whether the file was remembered with this schema, and neither has changed since (size and time of
// change).
bool contains(const QString &xmlPath, const QString &xsdPath);

// Remembers a file that was found valid. Small files are not worth a line.
void remember(const QString &xmlPath, const QString &xsdPath);

} // namespace validFiles

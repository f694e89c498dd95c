// Whether a file is open somewhere, which each system tells in its own way.
#pragma once

#include <QString>

#include <optional>

// True when any program has the file open; nothing when the system does not tell.
std::optional<bool> fileInUse(const QString &path);

// Reads what a ZIP archive says it holds, so that it can be refused before it is unpacked.
#pragma once

#include <QString>

#include <optional>
#include <vector>

struct zipEntry
{
    QString name; // UTF-8, or bytes as characters where it is none
    bool isLink = false;
};

// The entries of the archive's directory, in its order. Nothing when the file cannot be read, is no
// archive or a damaged one, or is larger than the plain format allows (65,534 entries, 4 GB).
std::optional<std::vector<zipEntry>> zipEntries(const QString &path);

// Whether the entry, unpacked into the folder, stays there: its name is relative, does not lead
// upwards, follows no link out of the folder, and it is no link itself. Both slashes separate.
bool landsInside(const zipEntry &entry, const QString &folder);

// Reads what a ZIP archive says it holds, so that it can be refused before it is unpacked.
#pragma once

#include <QString>

#include <optional>
#include <vector>

struct zipEntry
{
    QString name; // UTF-8, or bytes as characters where it is none
    bool isLink = false;
    quint64 size = 0; // unpacked, bytes
};

// The entries of the archive's directory, in its order. Nothing when the file cannot be read, is no
// archive or a damaged one, or its directory says other things than its files.
std::optional<std::vector<zipEntry>> zipEntries(const QString &path);

// Whether the entry, unpacked into the folder, stays there: its name is relative, does not lead
// upwards, follows no link out of the folder, and it is no link itself. Both slashes separate.
bool landsInside(const zipEntry &entry, const QString &folder);

// Whether the entries are more than an archive of honest data unpacks to: above 2 GB, or above
// 50 MB and 100 times the archive's size.
bool isTooLarge(const std::vector<zipEntry> &entries, qint64 archiveSize);

// Whether no file of the archive gives more than its entry says. All of it is read, which takes as
// long as unpacking; what the password does not open counts as good, since it cannot be unpacked.
bool unpacksAsSaid(const QString &path, const QString &password);

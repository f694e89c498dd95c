// The one way to the programs of the desktop. Links come with data that others wrote, and the
// desktop starts whatever a link names.
#pragma once

#include <QUrl>

namespace desktop {

// What a link in data may lead to: web and mail addresses, and documents below the program's or the
// data folder. A mail address that would take files along is none.
bool mayFollow(const QUrl &link);

// Opens such a link. Any other is refused in a box that shows it in full. False when it was not
// opened.
bool followLink(const QUrl &link);

// Opens a file that was written or chosen by the user of this program, wherever it lies; only
// documents, too. False when it was not opened.
bool openFile(const QString &path);

// Shows a folder in the desktop's file manager. False when it was not shown.
bool openFolder(const QString &path);

} // namespace desktop

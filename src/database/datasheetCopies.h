// Copies of the documents that materials link to, in a folder of the program's data, to be read
// where there is no network.
#pragma once

#include <QSet>
#include <QString>
#include <QUrl>

namespace datasheetCopies {

QString folder();

// Where a link's document is fetched to, without the suffix: a name that is one on every system,
// made of the link's own and of what tells it from all others. Of no web address: empty.
QString baseOf(const QString &link);

// The names of all copies, for many lookups.
QSet<QString> names();

// The copy of a link; empty when there is none. known: what names() gave, else the disk is asked.
QString of(const QString &link, const QSet<QString> *known = nullptr);

// The address that a link of data is opened at: its copy when there is one and no network, else
// itself.
QUrl toOpen(const QUrl &link, bool isOnline);

// Whether this computer has a network besides itself.
bool isOnline();

// Has a document that was moved keep its copy under the new address, too.
void follow(const QString &before, const QString &after);

} // namespace datasheetCopies

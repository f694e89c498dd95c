// The keys of file servers that a user has accepted: one line a server, "name SHA256:...", in a
// file of the user's own.
#pragma once

#include <QString>

namespace hostKeys {

QString file();

// The key kept of a server; empty when it is not known.
QString keyOf(const QString &host);

// Keeps the key of a server, in the place of another one. False when the file cannot be written.
bool keep(const QString &host, const QString &key);

} // namespace hostKeys

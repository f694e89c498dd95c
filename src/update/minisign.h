// Signatures by the program minisign, which is beside this one or installed.
#pragma once

#include <QString>

namespace minisign {

// Whether it can be run.
bool isThere();

// Why the file is not signed by the owner of the public key; empty when it is. signature and
// publicKey are files.
QString faultOf(const QString &file, const QString &signature, const QString &publicKey);

// Signs a file; the signature lies beside it, with ".minisig". The reason when it cannot be; a key
// with a password cannot be used, since nobody may be asked.
QString sign(const QString &file, const QString &secretKey);

// Makes a pair of keys without a password, in files that are not there yet. The reason when it
// cannot be.
QString makeKeys(const QString &publicKey, const QString &secretKey);

} // namespace minisign

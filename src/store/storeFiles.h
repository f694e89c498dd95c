// Files of shared documents: brought together with the store, put into it, taken out of it.
#pragma once

#include "store/storeSync.h"

class configStruct;

namespace store {

// The option's address of a configuration, or another one that is given instead; nothing with the
// reason in fault.
std::optional<address> addressOf(const configStruct &config, const QString &instead,
                                 QString *fault);

// Who the changes are told to be by: the user of the system.
QString authorName();

// Brings a file and the store together and writes it, whose earlier version is kept, with what is
// known of it beside it. A file that nobody changed is not read when the store has nothing newer.
// fault of the result also says why the file cannot be read or written; the changes were sent then,
// and come back the next time.
syncResult synchronizeFile(connection &with, const QString &path, configStruct &config,
                           const conflictsSettled &settle, const progressFunction &progress = {});

// Whether nothing was changed on either side since the file was brought together with the store
// last, and the user's role is the same: neither needs to be looked at more closely then. head:
// what base::readHead() tells of it.
bool isUpToDate(connection &with, const QString &path, const base &head);

// What a file is called in the store unless somebody says otherwise.
QString usualName(const QString &path);

// Puts a file into the store.
syncResult publishFile(connection &to, const QString &path, const QString &name,
                       const progressFunction &progress = {});

// Makes a file of a document in the store; where there is one, that is refused.
bool cloneFile(connection &from, const fileKind &kind, const QString &name, const QString &path,
               QString *fault, const progressFunction &progress = {});

// The shared files among those that a configuration names, and beside them: databases, register
// and details of firms, reservations, states and offers in the folder of orders.
QStringList sharedFiles(const configStruct &config);

} // namespace store

// The file server that keeps the datasheets and declarations of materials: the links to its files,
// their places on the server, and what is told of sending one there.
#pragma once

#include <QString>
#include <QUrl>

class configStruct;

namespace materialFiles {

enum linkKind
{
    datasheet,
    declaration
};

// The kind of attached file that such a link is.
QString fileKindOf(linkKind kind);

// Where the link of an attached file leads: a web address, also one without "http://", or a file;
// one without a folder of its own lies in the data folder.
QUrl addressOf(const QString &link);

// Copies a file into the folder of attached files, unless it lies in the data folder already, and
// returns the link to it, relative to the data folder. A file there that holds the same is used
// again, one that holds something else stays: the copy gets a number. Empty, with the reason in
// error, when it cannot be copied; made is set to the copy's path when there was none before.
QString keepCopy(const QString &path, QString *error, QString *made = nullptr);

struct fileServer
{
    QString name;    // with a port where the web server has one
    QString account; // of secure copy
    QString password;
};

// As the configuration names it; a name may be written as a web address.
fileServer serverOf(const configStruct &config);

// Its name without a port.
QString hostOf(const fileServer &server);

// Where a local file is proposed to stand on the server: what its folder says behind "redfiles/",
// and its name.
QString proposedPath(const QString &localFile);

// The link to a path below the folder of that kind. Empty when the server has no name, or when the
// path is empty or leads out of that folder.
QString linkTo(const fileServer &server, linkKind kind, const QString &path);

// The file's place on the server; empty when the link leads elsewhere.
QString placeOnServer(const fileServer &server, const QString &link);

// The line of the log about a file that was sent to a target, or was not.
QString sentLine(const QString &file, const QString &target, bool completed);

// What is told of a server that has another key than the accepted one.
QString changedKey(const QString &host);

// The line about one whose sending could not begin.
QString notSentLine(const QString &file, const QString &target);

} // namespace materialFiles

#include "database/materialFiles.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "tools/hostKeys.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace materialFiles {

namespace {

const QLatin1String serverFolder("/redfiles/");

struct linkFolder
{
    const char *folder;
    const char *fileKind;
};
// By linkKind.
constexpr linkFolder linkFolders[] = {{"/redfiles/DATASHEET/", "FILE_DATASHEET"},
                                      {"/redfiles/RoHS/", "FILE_MD"}};

QString tr(const char *text) { return QCoreApplication::translate("materialFiles", text); }

const QLatin1String keptFolder("_files/datasheets");

QUrl serverAddress(const fileServer &server)
{
    QUrl address = QUrl::fromUserInput(server.name);
    address.setScheme(QStringLiteral("http"));
    return address;
}

QString lineOf(const QString &text, const QString &file, const QString &target)
{
    return text + QLatin1String(" <b>") + file.toHtmlEscaped() + QLatin1String("</b>&nbsp;[")
           + target.toHtmlEscaped() + QLatin1Char(']');
}

} // namespace

QString fileKindOf(linkKind kind) { return QLatin1String(linkFolders[kind].fileKind); }

QUrl addressOf(const QString &link)
{
    return QUrl::fromUserInput(link.trimmed(), paths::dataDir());
}

QString keepCopy(const QString &path, QString *error, QString *made)
{
    const QFileInfo file(path);
    const QString data = QFileInfo(paths::dataDir()).canonicalFilePath() + QLatin1Char('/');
    if (file.canonicalFilePath().startsWith(data))
        return file.canonicalFilePath().mid(data.size());
    const QString name = QLatin1Char('/') + file.completeBaseName();
    const QString suffix = file.suffix().isEmpty() ? QString() : QLatin1Char('.') + file.suffix();
    for (int number = 1;; ++number) {
        const QString link = keptFolder + name
                             + (number == 1 ? QString() : QStringLiteral(" (%1)").arg(number))
                             + suffix;
        const QString copy = paths::data(link);
        if (QFileInfo::exists(copy)) {
            if (files::sameContent(path, copy))
                return link;
            continue;
        }
        if (QDir().mkpath(paths::data(keptFolder)) && files::copyFile(path, copy)) {
            if (made)
                *made = copy;
            return link;
        }
        files::removeFile(copy);
        *error = messages::because(
            tr(QT_TRANSLATE_NOOP("materialFiles", "%1 cannot be copied to %2"))
                .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(copy)),
            copy);
        return {};
    }
}

fileServer serverOf(const configStruct &config)
{
    const QUrl address = QUrl::fromUserInput(config.options.value(optionKey::serverName).trimmed());
    return {address.host().isEmpty() ? QString() : address.authority(QUrl::FullyEncoded),
            config.options.value(optionKey::serverUserName),
            config.options.value(optionKey::serverUserPassword)};
}

QString hostOf(const fileServer &server) { return serverAddress(server).host(); }

QString proposedPath(const QString &localFile)
{
    const QFileInfo file(localFile);
    const QString folder =
        text::normalisePath(QDir::fromNativeSeparators(file.path()) + QLatin1Char('/'));
    const QString mark = serverFolder.mid(1);
    const int at = folder.indexOf(mark);
    const QString below = at < 0 ? QString() : folder.mid(at + mark.size());
    return text::normalisePath(below + QLatin1Char('/') + file.fileName());
}

QString linkTo(const fileServer &server, linkKind kind, const QString &path)
{
    const QString folder = QLatin1String(linkFolders[kind].folder);
    const QString place = QDir::cleanPath(folder + QDir::fromNativeSeparators(path.trimmed()));
    if (server.name.isEmpty() || !place.startsWith(folder))
        return {};
    QUrl link = serverAddress(server);
    link.setPath(place);
    return link.toString(QUrl::FullyEncoded);
}

QString placeOnServer(const fileServer &server, const QString &link)
{
    const QUrl address(link.trimmed());
    const QString place = QDir::cleanPath(address.path(QUrl::FullyDecoded));
    const bool isThere = !server.name.isEmpty() && address.host() == hostOf(server)
                         && address.scheme().startsWith(QLatin1String("http"))
                         && place.startsWith(serverFolder);
    return isThere ? place : QString();
}

QString sentLine(const QString &file, const QString &target, bool completed)
{
    return lineOf(tr("Send file"), file, target) + QLatin1String("&nbsp;")
           + (completed ? tr("completed") : tr("error")) + QLatin1String("<br>");
}

QString changedKey(const QString &host)
{
    QString told =
        tr(QT_TRANSLATE_NOOP("materialFiles",
                             "The file server %1 has another key than the one that was accepted. "
                             "Nothing was sent."))
            .arg(host);
    if (!hostKeys::keyOf(host).isEmpty())
        told += QLatin1Char(' ')
                + tr(QT_TRANSLATE_NOOP("materialFiles",
                                       "If its administrator has given it a new one, take its line "
                                       "out of %1."))
                      .arg(QDir::toNativeSeparators(hostKeys::file()));
    return told;
}

QString notSentLine(const QString &file, const QString &target)
{
    return lineOf(tr("Sending error"), file, target) + QLatin1String("<br>");
}

} // namespace materialFiles

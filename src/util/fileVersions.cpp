#include "util/fileVersions.h"

#include "util/files.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>

namespace {

// name.hash-of-the-folder., before the time.
QString beginningOf(const QString &path)
{
    const QFileInfo info(path);
    const QByteArray hash =
        QCryptographicHash::hash(info.absolutePath().toUtf8(), QCryptographicHash::Sha1).toHex();
    constexpr int hashLength = 8;
    return info.completeBaseName() + QLatin1Char('.') + QString::fromLatin1(hash.left(hashLength))
           + QLatin1Char('.');
}

const QString timeForm = QStringLiteral("yyyyMMdd-hhmmss-zzz");

// Names differ in their time alone, so their order is that of time.
QStringList namesIn(const QString &folder, const QString &beginning, const QString &end)
{
    return QDir(folder).entryList({beginning + QLatin1Char('*') + end}, QDir::Files, QDir::Name);
}

// Behind all that are there, also when the clock was put back.
QString newName(const QString &folder, const QString &beginning, const QString &end)
{
    QDateTime time = QDateTime::currentDateTime();
    const QStringList names = namesIn(folder, beginning, end);
    if (!names.isEmpty()) {
        const QDateTime newest =
            QDateTime::fromString(names.last().mid(beginning.size(), timeForm.size()), timeForm);
        if (newest.isValid() && newest >= time)
            time = newest.addMSecs(1);
    }
    return folder + QLatin1Char('/') + beginning + time.toString(timeForm) + end;
}

// With the original's permissions. A full disk is noticed only by what arrived.
bool copyWhole(const QString &from, const QString &to)
{
    if (QFile::copy(from, to) && files::sameContent(from, to))
        return true;
    QFile::remove(to);
    return false;
}

// A folder made here is for its owner alone, and so is one where everybody may put things.
bool prepare(const QString &folder)
{
    const bool isShared =
        QDir::cleanPath(folder).startsWith(QDir::cleanPath(QDir::tempPath()) + QLatin1Char('/'));
    return (!isShared && QFileInfo(folder).isDir()) || files::makePrivateFolder(folder);
}

QString endOf(const QString &path) { return QLatin1Char('.') + QFileInfo(path).suffix(); }

} // namespace

namespace fileVersions {

QStringList of(const QString &path, const QString &folder)
{
    QStringList found;
    for (const QString &name : namesIn(folder, beginningOf(path), endOf(path)))
        found.prepend(QDir(folder).filePath(name));
    return found;
}

bool keep(const QString &path, const QString &folder, int count, const QString &content)
{
    const QString source = content.isEmpty() ? path : content;
    if (!QFileInfo(source).isFile() || count <= 0)
        return true;
    QStringList versions = of(path, folder);
    // Saving often is not to push out what differs.
    if (versions.isEmpty() || !files::sameContent(source, versions.first())) {
        const QString made = newName(folder, beginningOf(path), endOf(path));
        if (!prepare(folder) || !copyWhole(source, made))
            return false;
        versions.prepend(made);
    }
    for (int i = count; i < versions.size(); ++i)
        QFile::remove(versions[i]);
    return true;
}

QString archive(const QString &path, const QStringList &folders)
{
    QString made;
    for (const QString &folder : folders) {
        const QString target = newName(
            folder, QFileInfo(path).completeBaseName() + QStringLiteral(".archive."), endOf(path));
        if (prepare(folder) && copyWhole(path, target))
            made = target;
    }
    return made;
}

} // namespace fileVersions

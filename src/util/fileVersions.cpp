#include "util/fileVersions.h"

#include "util/safeFile.h"

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

bool copyWhole(const QString &from, const QString &to)
{
    QFile source(from);
    safeFile target(to);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly))
        return false;
    constexpr qint64 blockSize = 1 << 20;
    while (!source.atEnd()) {
        const QByteArray block = source.read(blockSize);
        if (block.isEmpty() || target.write(block) != block.size())
            return false;
    }
    return target.commit();
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

bool keep(const QString &path, const QString &folder, int count)
{
    if (!QFileInfo(path).isFile() || count <= 0)
        return true;
    if (!copyWhole(path, newName(folder, beginningOf(path), endOf(path))))
        return false;
    const QStringList versions = of(path, folder);
    for (int i = count; i < versions.size(); ++i)
        QFile::remove(versions[i]);
    return true;
}

QString archive(const QString &path, const QString &folder)
{
    const QString target = newName(
        folder, QFileInfo(path).completeBaseName() + QStringLiteral(".archive."), endOf(path));
    return copyWhole(path, target) ? target : QString();
}

} // namespace fileVersions

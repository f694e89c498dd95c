#include "util/files.h"

#include "util/paths.h"
#include "util/safeFile.h"
#include "util/text.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QTextStream>

#include <algorithm>
#include <cerrno>

namespace files {

bool folderExists(const QString &path) { return QDir(path).exists(); }

bool removeFile(const QString &path) { return !QFile::exists(path) || QFile::remove(path); }

bool removeFolder(const QString &path)
{
    QDir dir(path);
    return !dir.exists() || dir.removeRecursively();
}

bool copyFile(const QString &from, const QString &to)
{
    return removeFile(to) && QFile::copy(from, to);
}

QString temporaryFileName()
{
    QTemporaryFile file;
    if (!file.open())
        return {};
    const QString dir = paths::temporaryDirIfSet();
    if (dir.isEmpty())
        return file.fileName();
    return dir + QLatin1Char('/') + text::fileNameOfPath(file.fileName());
}

bool writeText(const QString &path, const QString &text)
{
    safeFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(text.toUtf8());
    return file.commit();
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool readLines(const QString &path, QStringList *lines)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    QString line;
    while (stream.readLineInto(&line))
        lines->append(line);
    return true;
}

bool makePrivateFolder(const QString &path)
{
    const QFileInfo info(path);
    QDir().mkpath(info.absolutePath());
    QDir().mkdir(path);
    // The system lets nobody but the owner do this.
    return !info.isSymLink() && info.isDir()
           && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

bool sameContent(const QString &a, const QString &b)
{
    QFile one(a);
    QFile other(b);
    if (!one.open(QIODevice::ReadOnly) || !other.open(QIODevice::ReadOnly)
        || one.size() != other.size())
        return false;
    constexpr qint64 blockSize = 1 << 20;
    while (!one.atEnd()) {
        const QByteArray block = one.read(blockSize);
        if (block.isEmpty() || block != other.read(blockSize))
            return false;
    }
    return true;
}

QString whyNotWritten(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir() || info.fileName().isEmpty())
        return qt_error_string(EISDIR);
    if (info.exists() && !info.isWritable())
        return qt_error_string(EACCES);
    if (!QDir().mkpath(info.absolutePath())) {
        const int fault = errno;
        QFileInfo above(info.absolutePath());
        while (!above.exists() && !above.isRoot())
            above.setFile(above.path());
        return qt_error_string(above.isDir() ? fault : ENOTDIR);
    }
    QTemporaryFile probe(path + QLatin1String(".kivzp-XXXXXX"));
    if (!probe.open())
        return probe.errorString();
    // A disk that took the name may have no room for as much as stands there.
    const QByteArray block(1 << 20, '\0');
    for (qint64 left = std::max<qint64>(info.size(), block.size()); left > 0; left -= block.size())
        if (probe.write(block) != block.size() || !probe.flush())
            return probe.errorString();
    return {};
}

qint64 folderSize(const QString &path)
{
    qint64 sum = 0;
    QDirIterator entries(path, QDir::Files | QDir::Hidden | QDir::NoSymLinks | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        entries.next();
        sum += entries.fileInfo().size();
    }
    return sum;
}

QStringList list(const QString &folder, const QStringList &nameFilters)
{
    QStringList result;
    QDirIterator entries(folder, nameFilters, QDir::Files | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext())
        result.append(text::normalisePath(entries.next()));
    result.sort();
    return result;
}

} // namespace files

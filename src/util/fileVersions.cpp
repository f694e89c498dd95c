#include "util/fileVersions.h"

#include "util/files.h"
#include "util/gzipFile.h"
#include "util/scratch.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QTemporaryFile>

#include <algorithm>

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

const QString packedEnd = QStringLiteral(".gz");
constexpr qint64 largestSize = qint64(4) << 30;

bool isPacked(const QString &version) { return version.endsWith(packedEnd); }

QDateTime timeIn(const QString &name, const QString &beginning)
{
    return QDateTime::fromString(name.mid(beginning.size(), timeForm.size()), timeForm);
}

// Names differ in their time first, so their order is that of time.
QStringList namesIn(const QString &folder, const QString &beginning, const QString &end)
{
    // Not by a pattern: a name may have a "[".
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    const auto isOther = [&](const QString &name) {
        return !name.startsWith(beginning)
               || !(name.endsWith(end) || name.endsWith(end + packedEnd))
               || !timeIn(name, beginning).isValid();
    };
    names.erase(std::remove_if(names.begin(), names.end(), isOther), names.end());
    return names;
}

// A name that is behind all that are there, also when the clock was put back.
QString newName(const QStringList &folders, const QString &beginning, const QString &end)
{
    QDateTime time = QDateTime::currentDateTime();
    for (const QString &folder : folders) {
        const QStringList names = namesIn(folder, beginning, end);
        if (!names.isEmpty() && timeIn(names.last(), beginning) >= time)
            time = timeIn(names.last(), beginning).addMSecs(1);
    }
    return QLatin1Char('/') + beginning + time.toString(timeForm) + end;
}

bool sameContent(const QString &version, const QString &file)
{
    return isPacked(version) ? gzipFile::holds(version, file) : files::sameContent(version, file);
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

// Name, hash of the folder, time and ending.
const QRegularExpression &versionName()
{
    static const QRegularExpression form(
        QStringLiteral("^(.+)\\.([0-9a-f]{8})\\.(\\d{8}-\\d{6}-\\d{3})(\\.[^.]*)(\\.gz)?$"));
    return form;
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

bool keep(const QString &path, const QStringList &folders, int count,
          const progressFunction &progress, const QString &content)
{
    const QString source = content.isEmpty() ? path : content;
    if (!QFileInfo(source).isFile() || count <= 0)
        return true;
    const QString name = newName(folders, beginningOf(path), endOf(path)) + packedEnd;
    bool kept = false;
    QString packed;
    for (const QString &folder : folders) {
        QStringList versions = of(path, folder);
        // Saving often is not to push out what differs.
        if (versions.isEmpty() || !sameContent(versions.first(), source)) {
            const QString made = folder + name;
            const bool isMade =
                prepare(folder)
                && (packed.isEmpty()
                        ? gzipFile::pack(source, made, QFileInfo(path).absoluteFilePath(), progress)
                        : copyWhole(packed, made));
            if (!isMade)
                continue;
            QFile::setPermissions(made, QFile::permissions(source));
            packed = made;
            versions.prepend(made);
        }
        kept = true;
        for (int i = count; i < versions.size(); ++i)
            QFile::remove(versions[i]);
    }
    return kept;
}

std::vector<version> all(const QStringList &folders, const QStringList &known)
{
    QHash<QString, QString> paths;
    for (const QString &path : known)
        paths.insert(beginningOf(path), QFileInfo(path).absoluteFilePath());
    std::vector<version> found;
    QHash<QString, QString> names; // in two folders it is the same one
    for (const QString &folder : folders) {
        QDirIterator files(folder, QDir::Files);
        while (files.hasNext()) {
            files.next();
            const QRegularExpressionMatch match = versionName().match(files.fileName());
            if (!match.hasMatch() || names.contains(files.fileName()))
                continue;
            names.insert(files.fileName(), {});
            version one{files.filePath(),
                        {},
                        match.captured(1) + match.captured(4),
                        QDateTime::fromString(match.captured(3), timeForm),
                        files.fileInfo().size()};
            one.path = isPacked(one.file) ? gzipFile::noteOf(one.file) : QString();
            if (one.path.isEmpty())
                one.path = paths.value(match.captured(1) + QLatin1Char('.') + match.captured(2)
                                       + QLatin1Char('.'));
            found.push_back(std::move(one));
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const version &a, const version &b) { return a.time > b.time; });
    return found;
}

QString unpacked(const QString &version)
{
    if (!isPacked(version))
        return QFileInfo(version).isReadable() ? version : QString();
    QTemporaryFile target(scratch::pattern(QStringLiteral(".xml")));
    target.setAutoRemove(false);
    if (!target.open())
        return {};
    const QString path = target.fileName();
    target.close();
    if (gzipFile::unpack(version, path, largestSize))
        return path;
    QFile::remove(path);
    return {};
}

usage usageOf(const QStringList &folders, const std::function<bool()> &keepGoing)
{
    usage found;
    for (const QString &folder : folders) {
        QDirIterator files(folder, QDir::Files);
        while (files.hasNext() && keepGoing()) {
            files.next();
            if (!versionName().match(files.fileName()).hasMatch())
                continue;
            ++found.count;
            found.bytes += files.fileInfo().size();
        }
    }
    return found;
}

QString archive(const QString &path, const QStringList &folders)
{
    QString made;
    for (const QString &folder : folders) {
        const QString target =
            folder
            + newName({folder}, QFileInfo(path).completeBaseName() + QStringLiteral(".archive."),
                      endOf(path));
        if (prepare(folder) && copyWhole(path, target))
            made = target;
    }
    return made;
}

} // namespace fileVersions

#include "util/fileLock.h"

#include "util/fileInUse.h"
#include "util/scratch.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>
#include <QSysInfo>

namespace {

// The first one's and the second one's.
QStringList lockFilesOf(const QString &path)
{
    const QFileInfo info(path);
    const QString beginning = info.absolutePath() + QLatin1String("/.") + info.fileName();
    return {beginning + QLatin1String(".lock"), beginning + QLatin1String(".2.lock")};
}

QString ownerOf(const QLockFile &lock, bool withoutOwn)
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!lock.getLockInfo(&process, &host, &program)
        || (withoutOwn && process == QCoreApplication::applicationPid()
            && host == QSysInfo::machineHostName()))
        return {};
    return QStringLiteral("%1, %2, %3").arg(program, host).arg(process);
}

} // namespace

fileLock::fileLock() = default;
fileLock::~fileLock() = default;

void fileLock::claim(const QString &path)
{
    const QStringList lockFiles = path.isEmpty() ? QStringList() : lockFilesOf(path);
    // A lock goes with its folder, which may be made anew.
    if (path == m_path
        && (path.isEmpty()
            || (m_lock && m_lockFile == lockFiles.first() && QFileInfo::exists(m_lockFile))))
        return;
    m_path = path;
    m_lock.reset();
    m_otherUser.clear();
    if (!path.isEmpty())
        scratch::clearLeftSaves(path);
    for (const QString &lockFile : lockFiles) {
        auto lock = std::make_unique<QLockFile>(lockFile);
        // Only the lock of a dead program is void, however old it is.
        lock->setStaleLockTime(0);
        if (lock->tryLock()) {
            m_lock = std::move(lock);
            m_lockFile = lockFile;
            return;
        }
        if (lock->error() != QLockFile::LockFailedError)
            return;
        if (m_otherUser.isEmpty())
            m_otherUser = ownerOf(*lock, false);
    }
}

QStringList fileLock::othersOf(const QString &path)
{
    QStringList others;
    for (const QString &lockFile : lockFilesOf(path)) {
        const QString owner = ownerOf(QLockFile(lockFile), true);
        // A dead program has no file open; what happens elsewhere cannot be told.
        if (owner.isEmpty()
            || (owner.section(QLatin1String(", "), 1, 1) == QSysInfo::machineHostName()
                && fileInUse(lockFile) == false))
            continue;
        others.append(owner);
    }
    return others;
}

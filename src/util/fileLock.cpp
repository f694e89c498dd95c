#include "util/fileLock.h"

#include "util/scratch.h"

#include <QFileInfo>
#include <QLockFile>

fileLock::fileLock() = default;
fileLock::~fileLock() = default;

void fileLock::claim(const QString &path)
{
    if (path == m_path && (m_lock || path.isEmpty()))
        return;
    m_path = path;
    m_lock.reset();
    m_otherUser.clear();
    if (path.isEmpty())
        return;
    scratch::clearLeftSaves(path);
    const QFileInfo info(path);
    auto lock = std::make_unique<QLockFile>(info.absolutePath() + QLatin1String("/.")
                                            + info.fileName() + QLatin1String(".lock"));
    // Only the lock of a dead program is void, however old it is.
    lock->setStaleLockTime(0);
    if (lock->tryLock()) {
        m_lock = std::move(lock);
        return;
    }
    qint64 process = 0;
    QString host;
    QString program;
    if (lock->error() == QLockFile::LockFailedError && lock->getLockInfo(&process, &host, &program))
        m_otherUser = QStringLiteral("%1, %2, %3").arg(program, host).arg(process);
}

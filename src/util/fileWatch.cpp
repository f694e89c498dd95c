#include "util/fileWatch.h"

#include "util/fileLock.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>
#include <QThreadPool>

namespace {

constexpr int soonMs = 300; // a file that is written tells so many times
constexpr int slowMs = 5000;

} // namespace

fileWatch::fileWatch(QObject *parent)
    : QObject(parent)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(soonMs);
    m_slow.setInterval(slowMs);
    connect(&m_soon, &QTimer::timeout, this, &fileWatch::begin);
    connect(&m_slow, &QTimer::timeout, this, &fileWatch::begin);
    connect(&m_notices, &QFileSystemWatcher::fileChanged, this, &fileWatch::lookSoon);
    connect(&m_notices, &QFileSystemWatcher::directoryChanged, this, &fileWatch::lookSoon);
}

void fileWatch::watch(const QString &path)
{
    if (path != m_path) {
        const QStringList before = m_notices.files() + m_notices.directories();
        if (!before.isEmpty())
            m_notices.removePaths(before);
        m_path = path;
        m_seen.reset();
    }
    if (path.isEmpty()) {
        m_soon.stop();
        m_slow.stop();
        return;
    }
    m_slow.start();
    lookSoon();
}

// A folder in which much happens is not to put it off for ever.
void fileWatch::lookSoon()
{
    if (!m_soon.isActive())
        m_soon.start();
}

// In a thread: the answer of a network that is away takes long.
void fileWatch::begin()
{
    if (m_path.isEmpty())
        return;
    m_lookAgain = m_looking;
    if (std::exchange(m_looking, true))
        return;
    QThreadPool::globalInstance()->start([self = QPointer<fileWatch>(this), path = m_path] {
        const QFileInfo info(path);
        look now;
        if (info.exists())
            now = {info.size(), info.lastModified(), {}};
        now.others = fileLock::othersOf(path);
        QMetaObject::invokeMethod(qApp, [self, path, now] {
            if (self)
                self->take(path, now);
        });
    });
}

void fileWatch::take(const QString &path, const look &now)
{
    m_looking = false;
    if (path != m_path || m_lookAgain)
        lookSoon();
    if (path != m_path)
        return;
    // A file that took another one's place is not the one that was watched.
    for (const QString &place : {path, QFileInfo(path).absolutePath()})
        if (now.size >= 0 && !m_notices.files().contains(place)
            && !m_notices.directories().contains(place))
            m_notices.addPath(place);
    const bool isOther = !(now == m_seen);
    m_seen = now;
    if (isOther)
        emit changed();
}

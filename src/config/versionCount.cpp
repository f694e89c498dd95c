#include "config/versionCount.h"

versionCount::~versionCount() { stop(); }

void versionCount::stop()
{
    m_stopped = true;
    if (m_thread)
        m_thread->wait();
    m_thread.reset();
}

void versionCount::start(const QStringList &folders)
{
    stop();
    m_stopped = false;
    m_thread.reset(QThread::create([this, folders] {
        const fileVersions::usage found =
            fileVersions::usageOf(folders, [this] { return !m_stopped; });
        if (!m_stopped)
            QMetaObject::invokeMethod(this, [this, found] { emit counted(found); });
    }));
    m_thread->start(QThread::LowPriority);
}

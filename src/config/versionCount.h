// Counts the earlier versions that are kept, in a thread of its own: the folder may be huge or far
// away.
#pragma once

#include "util/fileVersions.h"

#include <QThread>

#include <atomic>

class versionCount : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~versionCount() override;

    // Begins anew; counted() is emitted when it is done.
    void start(const QStringList &folders);

signals:
    void counted(const fileVersions::usage &found);

private:
    void stop();

    std::atomic<bool> m_stopped = false;
    std::unique_ptr<QThread> m_thread;
};

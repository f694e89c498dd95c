// Claims a file for this program, so that others can tell who has it open. Nothing is kept from
// anybody: whoever opens a claimed file is told, and so is who had it before.
#pragma once

#include <QStringList>

#include <memory>

class QLockFile;

class fileLock
{
public:
    fileLock();
    ~fileLock();

    // Claims a file in place of the one before, by a file of its own beside it; that one is void
    // once its owner is dead. Who comes second makes a second one, and the first when that is gone
    // and the file is claimed again. An empty path claims none. Where the folder cannot be written
    // nothing is claimed.
    void claim(const QString &path);

    // Who else had the file when it was claimed: "program, computer, process"; empty when nobody.
    const QString &otherUser() const { return m_otherUser; }

    // Who has the file now, without those of this program and those known to be dead. Only reads,
    // from any thread.
    static QStringList othersOf(const QString &path);

private:
    std::unique_ptr<QLockFile> m_lock;
    QString m_path;
    QString m_lockFile;
    QString m_otherUser;
};

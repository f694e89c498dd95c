// Claims a file for this program, so that a second one can tell who has it open. Nothing is kept
// from anybody: whoever opens a claimed file is told.
#pragma once

#include <QString>

#include <memory>

class QLockFile;

class fileLock
{
public:
    fileLock();
    ~fileLock();

    // Claims a file in place of the one before, by a file of its own beside it; that one is void
    // once its owner is dead. An empty path claims none. Where the folder cannot be written nothing
    // is claimed.
    void claim(const QString &path);

    // Who else has the file: "program, computer, process"; empty when nobody.
    const QString &otherUser() const { return m_otherUser; }

private:
    std::unique_ptr<QLockFile> m_lock;
    QString m_path;
    QString m_otherUser;
};

// The only way in which the program writes a file: into a temporary one in the same folder, which
// takes the old one's place when every byte has arrived and the caller finds it good. A full disk,
// a crash or a failing writer leaves the old file as it was.
#pragma once

#include "util/progress.h"

#include <QFile>

class safeFile : public QIODevice
{
    Q_OBJECT
public:
    // progress is told the bytes written, of as many as the old file has; false makes writing fail.
    explicit safeFile(const QString &path, progressFunction progress = {});
    // Removes the temporary file when it was not committed.
    ~safeFile() override;

    // WriteOnly, with or without Text. Creates the missing folders of the path. False when the
    // folder cannot be made or written, or when a folder stands in the file's place.
    bool open(OpenMode mode) override;

    // Puts the new file in the old one's place, with its permissions; where that is a link, in the
    // place of what it names. check is asked about the whole temporary file before. False, with the
    // old file untouched, when any write was refused or cut short or check says no.
    bool commit(const std::function<bool(const QString &temporaryPath)> &check = {});

    // Whether anything was refused, which errorString() then tells.
    bool failed() const { return m_failed; }

    bool isSequential() const override { return true; }

protected:
    qint64 writeData(const char *data, qint64 length) override;
    qint64 readData(char *, qint64) override { return -1; }

private:
    bool writeBlock();
    bool makeTemporary();

    QString m_path;
    QFile m_file; // the temporary one
    progressFunction m_progress;
    QByteArray m_block;
    qint64 m_written = 0;
    qint64 m_oldSize = 0;
    bool m_failed = false;
};

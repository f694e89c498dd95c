// The only way in which the program writes a file: into a temporary one in the same folder, which
// takes the old one's place when every byte has arrived. A full disk, a crash or a failing writer
// leaves the old file as it was.
#pragma once

#include <QIODevice>
#include <QSaveFile>

class safeFile : public QIODevice
{
    Q_OBJECT
public:
    explicit safeFile(const QString &path);

    // WriteOnly, with or without Text. Creates the missing folders of the path. False when the
    // folder cannot be made or written, or when a folder stands in the file's place.
    bool open(OpenMode mode) override;

    // Puts the new file in the old one's place. False, with the old file untouched, when any write
    // was refused or cut short.
    bool commit();

    bool isSequential() const override { return true; }

protected:
    qint64 writeData(const char *data, qint64 length) override;
    qint64 readData(char *, qint64) override { return -1; }

private:
    bool writeBlock();

    QSaveFile m_file;
    QByteArray m_block;
    qint64 m_written = 0;
    bool m_failed = false;
};

// Packs a folder into a ZIP archive, and unpacks one.
#pragma once

#include "tools/childRunner.h"

class zip_compress : public childRunner
{
    Q_OBJECT
public:
    explicit zip_compress(QObject *parent = nullptr);
    ~zip_compress() override;

    // Packs everything in the folder. The archive's name has an extension, or zip adds one. An
    // archive that is there already is replaced by a whole new one, or kept when packing fails; one
    // that lies in the folder itself is not replaced. An empty password packs without.
    void compress(const QString &folder, const QString &archive, const QString &password = {});

    // Unpacks into the folder, which is made when missing; files there are overwritten. An archive
    // that cannot be read, or with an entry that would land outside the folder, is refused before
    // anything is written.
    void decompress(const QString &archive, const QString &folder, const QString &password = {});

    static QString compressCommand(const QString &archive, const QString &password);
    static QString decompressCommand(const QString &archive, const QString &folder,
                                     const QString &password);

signals:
    void updateProgress(const QString &text);

protected:
    void log(const QString &text) override { emit updateProgress(text); }
    void conclude(int result) override;

private:
    bool setOldAside(const QString &folder);
    void settleOld(bool replaced);

    QString m_archive;
    QString m_old; // where the archive that was there stands meanwhile
    QString m_completed;
};

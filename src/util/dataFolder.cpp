#include "util/dataFolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryFile>

namespace dataFolder {

bool isWritable(const QString &dir)
{
    QTemporaryFile probe(dir + QLatin1String("/.kivzp-XXXXXX"));
    return probe.open();
}

choice choose(const QString &programDir, const QString &userDir)
{
    if (isWritable(programDir))
        return {programDir, false, {}, {}};
    choice result{userDir, true, {}, {}};
    const QDir from(programDir);
    for (const char *folder : {"_config", "_files", "_zp", "_e-mail"}) {
        QDirIterator it(from.filePath(QLatin1String(folder)), QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            const QString source = it.next();
            const QString target = userDir + QLatin1Char('/') + from.relativeFilePath(source);
            if (QFile::exists(target))
                continue;
            const bool made =
                QDir().mkpath(QFileInfo(target).absolutePath())
                && QFile::copy(source, target)
                // The copy of a read-only file is to be edited.
                && QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
            (made ? result.copied : result.failed).append(target);
        }
    }
    return result;
}

} // namespace dataFolder

#include "util/paths.h"

#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

QString &programDirOverride()
{
    static QString dir;
    return dir;
}

QString &dataDirOverride()
{
    static QString dir;
    return dir;
}

QString &temporaryDirStore()
{
    static QString dir;
    return dir;
}

} // namespace

namespace paths {

QString programDir()
{
    const QString &dir = programDirOverride();
    return dir.isEmpty() ? QCoreApplication::applicationDirPath() : dir;
}

void setProgramDir(const QString &dir) { programDirOverride() = dir; }

QString beside(const QString &relative)
{
    return QDir::isAbsolutePath(relative) ? relative : programDir() + QLatin1Char('/') + relative;
}

QString schema(const QString &fileName)
{
    return beside(QLatin1String("_validator/") + text::fileNameOfPath(fileName));
}

QString dataDir()
{
    const QString &dir = dataDirOverride();
    return dir.isEmpty() ? programDir() : dir;
}

void setDataDir(const QString &dir) { dataDirOverride() = dir; }

QString data(const QString &relative)
{
    return QDir::isAbsolutePath(relative) ? relative : dataDir() + QLatin1Char('/') + relative;
}

QString userDir() { return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation); }

QString config() { return data(QStringLiteral("_config/kiv_mat_config.xml")); }

QString windowState() { return data(QStringLiteral("_config/windows.ini")); }

QString temporaryDir()
{
    QString &dir = temporaryDirStore();
    if (dir.isEmpty()) {
        // Only the unique name is kept; the folder itself goes with the object.
        const QTemporaryDir reserved(QDir::tempPath() + QLatin1String("/KivZP-XXXXXX"));
        dir = text::normalisePath(reserved.path());
    }
    return dir;
}

QString temporaryDirIfSet() { return temporaryDirStore(); }

} // namespace paths

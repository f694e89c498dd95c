#include "data/validFiles.h"

#include "util/paths.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QSettings>

namespace {

// Smaller files are checked in no time.
constexpr qint64 worthwhileBytes = 4 << 20;

QString keyOf(const QString &path)
{
    const QByteArray hash = QCryptographicHash::hash(QFileInfo(path).absoluteFilePath().toUtf8(),
                                                     QCryptographicHash::Sha1);
    return QLatin1String("valid/") + QString::fromLatin1(hash.toHex());
}

QString stateOf(const QString &path)
{
    const QFileInfo info(path);
    return QStringLiteral("%1-%2").arg(info.size()).arg(info.lastModified().toMSecsSinceEpoch());
}

QString stateOf(const QString &xmlPath, const QString &xsdPath)
{
    return stateOf(xmlPath) + QLatin1Char('-') + stateOf(xsdPath);
}

} // namespace

namespace validFiles {

bool contains(const QString &xmlPath, const QString &xsdPath)
{
    const QSettings settings(paths::windowState(), QSettings::IniFormat);
    return settings.value(keyOf(xmlPath)).toString() == stateOf(xmlPath, xsdPath);
}

void remember(const QString &xmlPath, const QString &xsdPath)
{
    if (QFileInfo(xmlPath).size() < worthwhileBytes)
        return;
    QSettings settings(paths::windowState(), QSettings::IniFormat);
    settings.setValue(keyOf(xmlPath), stateOf(xmlPath, xsdPath));
}

} // namespace validFiles

#include "tools/officeConverter.h"

#include "util/scratch.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace officeConverter {

QString program()
{
    for (const char *name : {"soffice", "libreoffice"}) {
        const QString found = QStandardPaths::findExecutable(QLatin1String(name));
        if (!found.isEmpty())
            return found;
    }
    return {};
}

converted convert(const QString &document, const QString &format)
{
    const QString name = QFileInfo(document).fileName();
    const QString office = program();
    if (office.isEmpty())
        return {{},
                QCoreApplication::translate(
                    "officeConverter", "LibreOffice reads %1 and is not installed: install it, "
                                       "or save the file as CSV or XLSX")
                    .arg(name)};
    // A profile of its own: another LibreOffice may be running.
    const QString folder = scratch::folder() + QLatin1String("/office");
    QDir().mkpath(folder);
    const QString path = folder + QLatin1Char('/') + QFileInfo(document).completeBaseName()
                         + QLatin1Char('.') + format;
    QFile::remove(path);
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    constexpr int timeoutMs = 60'000;
    process.start(office,
                  {QLatin1String("-env:UserInstallation=")
                       + QUrl::fromLocalFile(folder + QLatin1String("/profile")).toString(),
                   QStringLiteral("--headless"), QStringLiteral("--convert-to"), format,
                   QStringLiteral("--outdir"), folder, QFileInfo(document).absoluteFilePath()});
    if (!process.waitForFinished(timeoutMs)) {
        process.kill();
        process.waitForFinished();
    }
    if (QFileInfo::exists(path))
        return {path, {}};
    return {{},
            QCoreApplication::translate("officeConverter", "LibreOffice cannot read %1").arg(name)};
}

} // namespace officeConverter

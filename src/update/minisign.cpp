#include "update/minisign.h"

#include "tools/childProcess.h"
#include "tools/helpers.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace minisign {

namespace {

QString program() { return helpers::path(helpers::minisign); }

// What it said when it failed; nothing is asked of anybody.
QString run(const QStringList &arguments)
{
    constexpr int timeoutMs = 60 * 1000;
    childProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program(), arguments);
    process.closeWriteChannel();
    if (!process.waitForStarted() || !process.waitForFinished(timeoutMs))
        return QCoreApplication::translate("updates", "%1 cannot be run")
            .arg(QDir::toNativeSeparators(program()));
    const QString said = QString::fromUtf8(process.readAll()).simplified();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0 ? QString()
           : said.isEmpty() ? QCoreApplication::translate("updates", "%1 refuses it")
                                  .arg(QDir::toNativeSeparators(program()))
                            : said;
}

QString absolute(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

QString missing(const QString &path)
{
    return QFileInfo(path).isFile() ? QString()
                                    : QCoreApplication::translate("updates", "%1 is missing")
                                          .arg(QDir::toNativeSeparators(path));
}

} // namespace

bool isThere() { return QFileInfo(program()).isExecutable(); }

QString faultOf(const QString &file, const QString &signature, const QString &publicKey)
{
    for (const QString &path : {publicKey, signature, file})
        if (const QString fault = missing(path); !fault.isEmpty())
            return fault;
    return run({QStringLiteral("-V"), QStringLiteral("-q"), QStringLiteral("-p"),
                absolute(publicKey), QStringLiteral("-x"), absolute(signature),
                QStringLiteral("-m"), absolute(file)});
}

QString sign(const QString &file, const QString &secretKey)
{
    for (const QString &path : {secretKey, file})
        if (const QString fault = missing(path); !fault.isEmpty())
            return fault;
    return run({QStringLiteral("-S"), QStringLiteral("-s"), absolute(secretKey),
                QStringLiteral("-m"), absolute(file), QStringLiteral("-x"),
                absolute(file) + QLatin1String(".minisig")});
}

QString makeKeys(const QString &publicKey, const QString &secretKey)
{
    for (const QString &path : {publicKey, secretKey})
        if (QFileInfo::exists(path))
            return QCoreApplication::translate("updates", "%1 is there already")
                .arg(QDir::toNativeSeparators(path));
    return run({QStringLiteral("-G"), QStringLiteral("-W"), QStringLiteral("-p"),
                absolute(publicKey), QStringLiteral("-s"), absolute(secretKey)});
}

} // namespace minisign

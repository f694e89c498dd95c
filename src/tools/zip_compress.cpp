#include "tools/zip_compress.h"

#include "tools/childProcess.h"
#include "tools/helpers.h"
#include "tools/zipEntries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

// unzip takes the archive's name for a pattern.
QString literalName(const QString &path)
{
    const QFileInfo file(path);
    QString name;
    for (const QChar c : file.fileName()) {
        const bool special = QStringLiteral("[*?\\").contains(c);
        name += special ? QLatin1Char('[') + QString(c) + QLatin1Char(']') : QString(c);
    }
    return file.absolutePath() + QLatin1Char('/') + name;
}

} // namespace

zip_compress::zip_compress(QObject *parent)
    : childRunner(parent)
{
}

zip_compress::~zip_compress()
{
    if (m_old.isEmpty())
        return;
    process()->killAll();
    process()->waitForFinished();
    settleOld(false);
}

void zip_compress::compress(const QString &folder, const QString &archive, const QString &password)
{
    if (isStarted())
        return;
    if (!QFileInfo(folder).isDir())
        return refuse(tr("Folder does not exist"), folder);
    // The child works in another folder, and would add to an archive instead of replacing it.
    m_archive = QFileInfo(archive).absoluteFilePath();
    if (archive.isEmpty() || (QFileInfo::exists(m_archive) && !setOldAside(folder)))
        return refuse(tr("File cannot be replaced"), archive);
    m_completed = tr("Compression complete");
    keepSecret(password);
    log(tr("Compression start") + QLatin1String(" [") + archive + QLatin1Char(']'));
    startChild(compressCommand(m_archive, password), folder);
}

void zip_compress::decompress(const QString &archive, const QString &folder,
                              const QString &password)
{
    if (isStarted())
        return;
    const std::optional<std::vector<zipEntry>> entries = zipEntries(archive);
    if (!entries)
        return refuse(tr("Archive cannot be read"), archive);
    for (const zipEntry &entry : *entries)
        if (!landsInside(entry, folder))
            return refuse(tr("Archive entry lies outside the folder"), entry.name);
    if (isTooLarge(*entries, QFileInfo(archive).size()) || !unpacksAsSaid(archive, password))
        return refuse(tr("Archive unpacks to more than it may"), archive);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        return refuse(tr("Folder cannot be created"), folder);
    m_completed = tr("Decompression complete");
    keepSecret(password);
    startChild(decompressCommand(archive, folder, password));
}

QString zip_compress::compressCommand(const QString &archive, const QString &password)
{
    QString text = helpers::zip;
    if (!password.isEmpty())
        text += QLatin1String(" -P ") + helpers::argument(password);
    return text + QLatin1String(" -r ") + helpers::quoted(archive) + QLatin1String(" .");
}

QString zip_compress::decompressCommand(const QString &archive, const QString &folder,
                                        const QString &password)
{
    QString text = helpers::unzip + QLatin1String(" -o ");
    // In one word: unzip takes no password that begins with "-" from the next.
    if (!password.isEmpty())
        text += helpers::argument(QLatin1String("-P") + password) + QLatin1Char(' ');
    return text + helpers::quoted(literalName(archive)) + QLatin1String(" -d ")
           + helpers::quoted(QFileInfo(folder).absoluteFilePath());
}

void zip_compress::conclude(int result)
{
    childRunner::conclude(result);
    settleOld(result == 0);
    if (result != notStarted && result != timedOut)
        log(m_completed);
}

// In the folder that is packed it would be packed too.
bool zip_compress::setOldAside(const QString &folder)
{
    const QString packed = QFileInfo(folder).canonicalFilePath() + QLatin1Char('/');
    if (!QFileInfo(m_archive).isFile()
        || QFileInfo(m_archive).canonicalFilePath().startsWith(packed))
        return false;
    QString old = m_archive + QLatin1String(".old");
    while (QFileInfo::exists(old))
        old += QLatin1Char('_');
    if (!QFile::rename(m_archive, old))
        return false;
    m_old = old;
    return true;
}

void zip_compress::settleOld(bool replaced)
{
    if (m_old.isEmpty())
        return;
    if (replaced) {
        QFile::remove(m_old);
    } else {
        QFile::remove(m_archive);
        QFile::rename(m_old, m_archive);
    }
    m_old.clear();
}

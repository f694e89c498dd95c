#include "util/safeFile.h"

#include "util/diskSync.h"

#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

#include <filesystem>

namespace {

// Documents arrive in millions of small pieces.
constexpr int blockSize = 1 << 18;

// What a killed save leaves is cleared by its name (see scratch::clearLeftSaves).
QString sixLetters()
{
    constexpr int count = 6;
    constexpr int alphabet = 26;
    QString letters;
    for (int i = 0; i < count; ++i)
        letters += QLatin1Char(
            char((i % 2 == 0 ? 'a' : 'A') + QRandomGenerator::global()->bounded(alphabet)));
    return letters;
}

} // namespace

safeFile::safeFile(const QString &path, progressFunction progress)
    : m_path(path)
    , m_progress(std::move(progress))
{
}

safeFile::~safeFile()
{
    m_file.close();
    if (!m_file.fileName().isEmpty())
        m_file.remove();
}

bool safeFile::open(OpenMode mode)
{
    const QFileInfo info(m_path);
    // A folder, a pipe or a device is not replaced by a file; a name that ends as a folder's is
    // one.
    if (info.fileName().isEmpty() || (info.exists() && !info.isFile())) {
        setErrorString(tr("no file can stand there"));
        return false;
    }
    if (!QDir().mkpath(info.absolutePath())) {
        setErrorString(tr("its folder cannot be made"));
        return false;
    }
    if (info.exists() && !info.isWritable()) {
        setErrorString(tr("the file is read-only"));
        return false;
    }
    if (info.isSymLink())
        m_path = info.exists() ? info.canonicalFilePath() : info.symLinkTarget();
    if (!makeTemporary()) {
        setErrorString(m_file.errorString());
        m_file.setFileName({});
        return false;
    }
    if (info.exists()) {
        m_file.setPermissions(info.permissions());
        m_oldSize = info.size();
    }
    m_block.reserve(2 * blockSize);
    return QIODevice::open(mode | QIODevice::Unbuffered);
}

bool safeFile::makeTemporary()
{
    constexpr int attempts = 20;
    for (int i = 0; i < attempts; ++i) {
        m_file.setFileName(m_path + QLatin1String(".kivzp-") + sixLetters());
        // Line ends are translated once, by this device.
        if (m_file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return true;
        if (!m_file.exists())
            return false;
    }
    return false;
}

qint64 safeFile::writeData(const char *data, qint64 length)
{
    m_block.append(data, int(length));
    return m_block.size() < blockSize || writeBlock() ? length : -1;
}

bool safeFile::writeBlock()
{
    // The system may take only a part of a large block and report no error.
    if (m_file.write(m_block) != m_block.size()) {
        m_failed = true;
        setErrorString(m_file.errorString());
    }
    m_written += m_block.size();
    m_block.resize(0);
    if (m_progress && !m_progress(m_written, qMax(m_written, m_oldSize)))
        m_failed = true;
    return !m_failed;
}

bool safeFile::commit(const std::function<bool(const QString &)> &check)
{
    close();
    bool good = writeBlock();
    if (good && (!m_file.flush() || m_file.size() != m_written)) {
        setErrorString(m_file.errorString());
        good = false;
    }
    if (good)
        syncToDisk(m_file);
    m_file.close();
    if (good && check)
        good = check(m_file.fileName());
    if (good) {
        std::error_code fault;
        std::filesystem::rename(QFile::encodeName(m_file.fileName()).toStdString(),
                                QFile::encodeName(m_path).toStdString(), fault);
        good = !fault;
        if (fault)
            setErrorString(QString::fromLocal8Bit(fault.message().c_str()));
    }
    if (!good)
        m_file.remove();
    m_file.setFileName({});
    return good;
}

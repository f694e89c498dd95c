#include "util/safeFile.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Documents arrive in millions of small pieces.
constexpr int blockSize = 1 << 18;

} // namespace

safeFile::safeFile(const QString &path)
    : m_file(path)
{
}

bool safeFile::open(OpenMode mode)
{
    const QFileInfo info(m_file.fileName());
    // A folder, a pipe or a device is not replaced by a file.
    if ((info.exists() && !info.isFile()) || !QDir().mkpath(info.absolutePath()))
        return false;
    // Line ends are translated once, by this device.
    if (!m_file.open(QIODevice::WriteOnly))
        return false;
    m_block.reserve(2 * blockSize);
    return QIODevice::open(mode | QIODevice::Unbuffered);
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
    return !m_failed;
}

bool safeFile::commit()
{
    close();
    if (!writeBlock() || !m_file.flush() || m_file.size() != m_written)
        m_file.cancelWriting();
    return m_file.commit();
}

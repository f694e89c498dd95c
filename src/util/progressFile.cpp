#include "util/progressFile.h"

namespace {

constexpr qint64 stepBytes = 1 << 20;

} // namespace

progressFile::progressFile(const QString &path, progressFunction progress)
    : QFile(path)
    , m_progress(std::move(progress))
{
}

qint64 progressFile::readData(char *data, qint64 length)
{
    if (m_cancelled)
        return -1;
    const qint64 got = QFile::readData(data, length);
    m_read += qMax<qint64>(0, got);
    if (m_progress && m_read - m_told >= stepBytes) {
        m_told = m_read;
        m_cancelled = !m_progress(m_read, size());
    }
    return got;
}

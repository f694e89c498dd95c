#include "util/progressFile.h"

#include <algorithm>

namespace {

constexpr qint64 stepBytes = 1 << 20;

} // namespace

progressFile::progressFile(const QString &path, progressFunction progress)
    : QFile(path)
    , m_progress(std::move(progress))
{
}

// Only a tag that goes on beyond a block can be long. So can a comment or an instruction.
void progressFile::watchTags(const char *data, qint64 length)
{
    qint64 at = length - 1;
    while (at >= 0 && data[at] != '<' && data[at] != '>')
        --at;
    if (at >= 0) {
        const char next = at + 1 < length ? data[at + 1] : 'a';
        m_inTag = data[at] == '<' && next != '!' && next != '?';
        m_equalSigns = 0;
    }
    if (m_inTag)
        m_equalSigns +=
            std::count(data + std::max<qint64>(at, 0), data + std::max<qint64>(length, 0), '=');
}

qint64 progressFile::readData(char *data, qint64 length)
{
    if (m_cancelled || tooManyAttributes())
        return -1;
    const qint64 got = QFile::readData(data, length);
    watchTags(data, got);
    if (tooManyAttributes())
        return -1;
    m_read += qMax<qint64>(0, got);
    if (m_progress && m_read - m_told >= stepBytes) {
        m_told = m_read;
        m_cancelled = !m_progress(m_read, size());
    }
    return got;
}

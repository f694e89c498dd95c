#include "tools/zipEntries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QtEndian>

#include <algorithm>

namespace {

// The end record of an archive, and one line of its directory; offsets of their fields.
constexpr int endSize = 22;
constexpr int endEntries = 10;
constexpr int endDirectorySize = 12;
constexpr int largeLocatorSize = 20;
constexpr int entrySize = 46;
constexpr int entryNameSize = 28;
constexpr int entryExtraSize = 30;
constexpr int entryCommentSize = 32;
constexpr int entryAttributes = 38;
constexpr int largestComment = 0xffff;
constexpr quint32 typeBits = 0170000;
constexpr quint32 linkType = 0120000;

const QByteArray endMark("PK\5\6");
const QByteArray largeLocatorMark("PK\6\7");
const QByteArray entryMark("PK\1\2");

quint16 word(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint16>(bytes.constData() + at);
}

quint32 doubleWord(const QByteArray &bytes, int at)
{
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

QString nameOf(const QByteArray &bytes)
{
    const QString name = QString::fromUtf8(bytes);
    return name.toUtf8() == bytes ? name : QString::fromLatin1(bytes);
}

} // namespace

std::optional<std::vector<zipEntry>> zipEntries(const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const qint64 tailStart =
        std::max<qint64>(0, file.size() - endSize - largestComment - largeLocatorSize);
    file.seek(tailStart);
    const QByteArray tail = file.readAll();
    const int end = tail.lastIndexOf(endMark);
    if (end < 0 || end + endSize > tail.size()
        || tail.mid(std::max(0, end - largeLocatorSize)).startsWith(largeLocatorMark))
        return {};
    const int count = word(tail, end + endEntries);
    const qint64 size = doubleWord(tail, end + endDirectorySize);
    // What stands before the archive, as in one that unpacks itself, shifts the directory.
    if (!file.seek(tailStart + end - size))
        return {};
    const QByteArray directory = file.read(size);
    if (directory.size() != size)
        return {};

    std::vector<zipEntry> entries;
    int at = 0;
    while (at < directory.size()) {
        if (at + entrySize > directory.size() || directory.mid(at, entryMark.size()) != entryMark)
            return {};
        const int nameSize = word(directory, at + entryNameSize);
        const int next = at + entrySize + nameSize + word(directory, at + entryExtraSize)
                         + word(directory, at + entryCommentSize);
        if (next > directory.size())
            return {};
        const quint32 mode = doubleWord(directory, at + entryAttributes) >> 16;
        entries.push_back(
            {nameOf(directory.mid(at + entrySize, nameSize)), (mode & typeBits) == linkType});
        at = next;
    }
    if (static_cast<int>(entries.size()) != count)
        return {};
    return entries;
}

bool landsInside(const zipEntry &entry, const QString &folder)
{
    static const QRegularExpression drive(QStringLiteral("^[A-Za-z]:"));
    QString name = entry.name;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (entry.isLink || name.isEmpty() || name.startsWith(QLatin1Char('/')) || name.contains(drive)
        || name.contains(QChar::Null) || name.split(QLatin1Char('/')).contains(QLatin1String("..")))
        return false;
    // A link that stands in the folder already may lead out of it.
    const QString root = QFileInfo(folder).canonicalFilePath();
    if (root.isEmpty())
        return true;
    QString reached = QDir(folder).absoluteFilePath(name);
    while (!QFileInfo::exists(reached))
        reached = QFileInfo(reached).path();
    const QString real = QFileInfo(reached).canonicalFilePath();
    return real == root || real.startsWith(root + QLatin1Char('/'));
}

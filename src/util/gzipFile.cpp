#include "util/gzipFile.h"

#include "util/safeFile.h"

#include <QFile>
#include <QtEndian>

#include <zlib.h>

#include <memory>

namespace {

constexpr int blockSize = 1 << 18;
constexpr int gzipWindow = MAX_WBITS + 16; // zlib's way of asking for a gzip head and trailer
constexpr int trailerSize = 8;             // check sum and size, 32 bits each

const Bytef *bytesOf(const QByteArray &block)
{
    return reinterpret_cast<const Bytef *>(block.constData());
}

// What the stream has put out into a file; false when that takes no more.
bool take(z_stream &stream, QByteArray &buffer, QIODevice &file)
{
    const qint64 count = buffer.size() - qint64(stream.avail_out);
    stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
    stream.avail_out = uInt(buffer.size());
    return file.write(buffer.constData(), count) == count;
}

struct packing
{
    z_stream stream{};
    gz_header head{};
    bool isReady = false;

    // Much of the gain for little of the time.
    static constexpr int level = 3;
    static constexpr int usualMemory = 8;
    packing()
    {
        isReady =
            deflateInit2(&stream, level, Z_DEFLATED, gzipWindow, usualMemory, Z_DEFAULT_STRATEGY)
            == Z_OK;
    }
    ~packing() { deflateEnd(&stream); }
    packing(const packing &) = delete;
    packing &operator=(const packing &) = delete;
};

struct unpacking
{
    z_stream stream{};
    bool isReady = false;

    unpacking() { isReady = inflateInit2(&stream, gzipWindow) == Z_OK; }
    ~unpacking() { inflateEnd(&stream); }
    unpacking(const unpacking &) = delete;
    unpacking &operator=(const unpacking &) = delete;
};

} // namespace

namespace gzipFile {

bool pack(const QString &from, const QString &to, const QString &note,
          const progressFunction &progress)
{
    QFile in(from);
    safeFile out(to);
    packing work;
    // The head takes Latin-1 alone.
    QByteArray stored = note.toUtf8().toPercentEncoding("/ ");
    work.head.comment = reinterpret_cast<Bytef *>(stored.data());
    if (!work.isReady || !in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)
        || deflateSetHeader(&work.stream, &work.head) != Z_OK)
        return false;
    QByteArray buffer(blockSize, Qt::Uninitialized);
    work.stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
    work.stream.avail_out = uInt(buffer.size());
    const qint64 total = in.size();
    int result = Z_OK;
    while (result != Z_STREAM_END) {
        const QByteArray block = in.read(blockSize);
        if (in.error() != QFile::NoError || (progress && !progress(in.pos(), total)))
            return false;
        work.stream.next_in = const_cast<Bytef *>(bytesOf(block));
        work.stream.avail_in = uInt(block.size());
        do {
            result = deflate(&work.stream, block.isEmpty() ? Z_FINISH : Z_NO_FLUSH);
            if (result == Z_STREAM_ERROR || !take(work.stream, buffer, out))
                return false;
        } while (work.stream.avail_in > 0 || (block.isEmpty() && result == Z_OK));
    }
    return out.commit();
}

bool unpack(const QString &from, const QString &to, qint64 limit)
{
    QFile in(from);
    safeFile out(to);
    unpacking work;
    if (!work.isReady || !in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly))
        return false;
    QByteArray buffer(blockSize, Qt::Uninitialized);
    work.stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
    work.stream.avail_out = uInt(buffer.size());
    int result = Z_OK;
    while (result != Z_STREAM_END) {
        const QByteArray block = in.read(blockSize);
        work.stream.next_in = const_cast<Bytef *>(bytesOf(block));
        work.stream.avail_in = uInt(block.size());
        if (block.isEmpty())
            return false;
        do {
            result = inflate(&work.stream, Z_NO_FLUSH);
            const bool isGood = result == Z_OK || result == Z_STREAM_END || result == Z_BUF_ERROR;
            if (!isGood || qint64(work.stream.total_out) > limit || !take(work.stream, buffer, out))
                return false;
        } while (result == Z_OK);
    }
    return out.commit();
}

bool holds(const QString &packed, const QString &file)
{
    QFile one(packed);
    QFile other(file);
    if (!one.open(QIODevice::ReadOnly) || one.size() < trailerSize
        || !one.seek(one.size() - trailerSize) || !other.open(QIODevice::ReadOnly))
        return false;
    const QByteArray trailer = one.read(trailerSize);
    if (trailer.size() != trailerSize
        || qFromLittleEndian<quint32>(trailer.constData() + sizeof(quint32))
               != quint32(other.size()))
        return false;
    uLong sum = crc32(0, nullptr, 0);
    while (!other.atEnd()) {
        const QByteArray block = other.read(blockSize);
        if (block.isEmpty())
            return false;
        sum = crc32(sum, bytesOf(block), uInt(block.size()));
    }
    return sum == qFromLittleEndian<quint32>(trailer.constData());
}

QString noteOf(const QString &packed)
{
    QFile file(packed);
    unpacking work;
    constexpr int headAtMost = 1 << 15;
    QByteArray note(headAtMost, '\0');
    gz_header head{};
    head.comment = reinterpret_cast<Bytef *>(note.data());
    head.comm_max = uInt(note.size() - 1);
    if (!work.isReady || !file.open(QIODevice::ReadOnly)
        || inflateGetHeader(&work.stream, &head) != Z_OK)
        return {};
    const QByteArray block = file.read(headAtMost);
    Bytef none = 0;
    work.stream.next_in = const_cast<Bytef *>(bytesOf(block));
    work.stream.avail_in = uInt(block.size());
    work.stream.next_out = &none;
    work.stream.avail_out = 0;
    inflate(&work.stream, Z_BLOCK);
    return head.done == 1 ? QString::fromUtf8(QByteArray::fromPercentEncoding(note.constData()))
                          : QString();
}

} // namespace gzipFile

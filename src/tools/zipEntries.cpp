#include "tools/zipEntries.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <zip.h>

#include <memory>

namespace {

constexpr quint32 typeBits = 0170000;
constexpr quint32 linkType = 0120000;

// What is packed here shrinks to a thirtieth; what shrinks to far less was made to fill a disk.
constexpr quint64 usualSize = quint64(50) << 20;
constexpr quint64 largestSize = quint64(2) << 30;
constexpr quint64 largestRatio = 100;

// Reads only: nothing is written back.
struct archiveCloser
{
    void operator()(zip_t *archive) const { zip_discard(archive); }
};

using openArchive = std::unique_ptr<zip_t, archiveCloser>;

// The directory has to agree with what stands before each file.
openArchive opened(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return {};
    return openArchive(
        zip_open(QFile::encodeName(path).constData(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr));
}

QString nameOf(const QByteArray &bytes)
{
    const QString name = QString::fromUtf8(bytes);
    return name.toUtf8() == bytes ? name : QString::fromLatin1(bytes);
}

} // namespace

std::optional<std::vector<zipEntry>> zipEntries(const QString &path)
{
    const openArchive archive = opened(path);
    if (!archive)
        return {};
    std::vector<zipEntry> entries;
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = zip_uint64_t(i);
        zip_stat_t state;
        zip_uint32_t attributes = 0;
        if (zip_stat_index(archive.get(), index, ZIP_FL_ENC_RAW, &state) != 0
            || !(state.valid & ZIP_STAT_NAME) || !(state.valid & ZIP_STAT_SIZE)
            || zip_file_get_external_attributes(archive.get(), index, 0, nullptr, &attributes) != 0)
            return {};
        const bool isLink = ((attributes >> 16) & typeBits) == linkType;
        entries.push_back({nameOf(state.name), isLink, state.size});
    }
    return entries;
}

bool isTooLarge(const std::vector<zipEntry> &entries, qint64 archiveSize)
{
    quint64 sum = 0;
    for (const zipEntry &entry : entries) {
        if (entry.size > largestSize)
            return true;
        sum += entry.size;
        if (sum > largestSize)
            return true;
    }
    return sum > usualSize && sum / largestRatio > quint64(archiveSize);
}

bool unpacksAsSaid(const QString &path, const QString &password)
{
    const openArchive archive = opened(path);
    if (!archive)
        return false;
    zip_set_default_password(archive.get(), password.toLocal8Bit().constData());
    std::vector<char> block(1 << 16);
    const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const auto index = zip_uint64_t(i);
        zip_stat_t state;
        if (zip_stat_index(archive.get(), index, 0, &state) != 0)
            return false;
        zip_file_t *file = zip_fopen_index(archive.get(), index, 0);
        // With the wrong password nothing is unpacked.
        if (!file) {
            const int error = zip_error_code_zip(zip_get_error(archive.get()));
            if (error == ZIP_ER_WRONGPASSWD || error == ZIP_ER_NOPASSWD)
                continue;
            return false;
        }
        quint64 sum = 0;
        zip_int64_t got = 0;
        while (sum <= state.size && (got = zip_fread(file, block.data(), block.size())) > 0)
            sum += quint64(got);
        zip_fclose(file);
        if (sum > state.size)
            return false;
    }
    return true;
}

bool landsInside(const zipEntry &entry, const QString &folder)
{
    static const QRegularExpression drive(QStringLiteral("^[A-Za-z]:"));
    QString name = entry.name;
    name.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (entry.isLink || name.isEmpty() || name.startsWith(QLatin1Char('/')) || name.contains(drive)
        || name.split(QLatin1Char('/')).contains(QLatin1String("..")))
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

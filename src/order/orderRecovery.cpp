#include "order/orderRecovery.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "util/files.h"
#include "util/messages.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

const QString pathEnd = QStringLiteral("path");

// The order's path, then size and time of its file; older copies have the path alone.
QString origin(const QString &path, const fileState &onDisk)
{
    return QStringLiteral("%1\n%2\n%3")
        .arg(path)
        .arg(onDisk.size)
        .arg(onDisk.time.isValid() ? onDisk.time.toMSecsSinceEpoch() : 0);
}

void readOrigin(const QString &text, orderRecovery::copy &copy)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    if (lines.size() >= 3) {
        const qint64 time = lines.takeLast().toLongLong();
        copy.onDisk.size = lines.takeLast().toLongLong();
        if (copy.onDisk.size >= 0)
            copy.onDisk.time = QDateTime::fromMSecsSinceEpoch(time);
    }
    copy.order = lines.join(QLatin1Char('\n'));
}

int linesIn(const QString &file)
{
    return files::readText(file).count(QLatin1String("<order_item>"));
}

} // namespace

orderRecovery::orderRecovery(const QStringList &folders)
{
    for (const QString &folder : folders)
        m_places.emplace_back(folder, QStringLiteral("order"), QStringLiteral("xml"));
    // The others are touched only when they are needed.
    m_places.front().claimFree();
}

void orderRecovery::leave()
{
    for (recoverySlot &one : m_places)
        if (one.isClaimed())
            one.claimFree();
}

bool orderRecovery::store(const kiv_mat_zpStruct &order, const QString &path,
                          const fileState &onDisk)
{
    const auto taken = std::find_if(m_places.begin(), m_places.end(), [&](recoverySlot &one) {
        // The folder may have gone since.
        if (!one.isClaimed() || !QFileInfo(one.folder()).isDir())
            one.claimFree();
        return one.isClaimed() && files::writeText(one.file(pathEnd), origin(path, onDisk))
               && saveXmlNoEvents(one.file(), &order, nullptr, {}, saveRule::whatever) == 0;
    });
    if (taken == m_places.end())
        return false;
    // Copies that others took before are older.
    for (const recoverySlot &one : m_places)
        if (&one != &*taken)
            discard(one);
    return true;
}

void orderRecovery::discard(const recoverySlot &place) const
{
    if (!place.isClaimed())
        return;
    QFile::remove(place.file());
    QFile::remove(place.file(pathEnd));
}

QStringList orderRecovery::faults() const
{
    QStringList lines;
    for (const recoverySlot &one : m_places)
        lines.append(messages::because(QDir::toNativeSeparators(one.folder()), one.file()));
    return lines;
}

void orderRecovery::discard()
{
    for (const recoverySlot &one : m_places)
        discard(one);
}

std::vector<orderRecovery::copy> orderRecovery::left() const
{
    std::vector<copy> found;
    for (size_t place = 0; place < m_places.size(); ++place)
        for (int number : m_places[place].left()) {
            const recoverySlot &in = m_places[place];
            copy one{place, number, in.file(number, QStringLiteral("xml")), {}, {}, {}, 0};
            one.time = QFileInfo(one.file).lastModified();
            one.lines = linesIn(one.file);
            readOrigin(files::readText(in.file(number, pathEnd)), one);
            found.push_back(std::move(one));
        }
    std::stable_sort(found.begin(), found.end(),
                     [](const copy &a, const copy &b) { return a.time > b.time; });
    return found;
}

bool orderRecovery::takeOver(const copy &one) { return m_places[one.place].claim(one.number); }

void orderRecovery::remove(const copy &one)
{
    recoverySlot &place = m_places[one.place];
    recoverySlot other(place.folder(), QStringLiteral("order"), QStringLiteral("xml"));
    if (other.claim(one.number))
        discard(other);
}

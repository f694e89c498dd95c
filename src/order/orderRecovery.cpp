#include "order/orderRecovery.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "util/files.h"
#include "util/messages.h"
#include "util/scratch.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int mostPrograms = 50;

} // namespace

orderRecovery::orderRecovery(const QStringList &folders)
{
    for (const QString &folder : folders)
        m_places.push_back({folder, nullptr});
    // The others are touched only when they are needed.
    m_places.front().claimFree();
}

orderRecovery::~orderRecovery() { discard(); }

QString orderRecovery::place::file(int of, const char *end) const
{
    return QStringLiteral("%1/order-%2.%3").arg(folder).arg(of).arg(QLatin1String(end));
}

// One that nobody left behind, so that what was left stays to be offered.
void orderRecovery::place::claimFree()
{
    lock.reset();
    QDir().mkpath(folder);
    for (int n = 1; n <= mostPrograms && !lock; ++n)
        if (!QFileInfo::exists(file(n, "xml")))
            claim(n);
}

bool orderRecovery::place::claim(int wanted)
{
    auto claimed = std::make_unique<QLockFile>(file(wanted, "lock"));
    // Only a dead owner's lock is void, however old it is.
    claimed->setStaleLockTime(0);
    if (!claimed->tryLock())
        return false;
    lock = std::move(claimed);
    number = wanted;
    scratch::clearLeftSaves(file("xml"));
    return true;
}

bool orderRecovery::place::store(const kiv_mat_zpStruct &order, const QString &path)
{
    // The folder may have gone since.
    if (!lock || !QFileInfo(folder).isDir())
        claimFree();
    return lock && saveXmlNoEvents(file("xml"), &order, nullptr, {}, saveRule::whatever) == 0
           && files::writeText(file("path"), path);
}

void orderRecovery::place::discard() const
{
    if (!lock)
        return;
    QFile::remove(file("xml"));
    QFile::remove(file("path"));
}

void orderRecovery::leave()
{
    for (place &one : m_places)
        if (one.lock)
            one.claimFree();
}

bool orderRecovery::store(const kiv_mat_zpStruct &order, const QString &path)
{
    const auto taken = std::find_if(m_places.begin(), m_places.end(),
                                    [&](place &one) { return one.store(order, path); });
    if (taken == m_places.end())
        return false;
    // Copies that others took before are older.
    for (const place &one : m_places)
        if (&one != &*taken)
            one.discard();
    return true;
}

QStringList orderRecovery::faults() const
{
    QStringList lines;
    for (const place &one : m_places)
        lines.append(messages::because(QDir::toNativeSeparators(one.folder), one.file("xml")));
    return lines;
}

void orderRecovery::discard()
{
    for (const place &one : m_places)
        one.discard();
}

orderRecovery::copy orderRecovery::takeOver()
{
    for (place &one : m_places)
        for (int n = 1; n <= mostPrograms; ++n) {
            const QFileInfo left(one.file(n, "xml"));
            if ((one.lock && n == one.number) || !left.exists() || !one.claim(n))
                continue;
            return {left.filePath(), files::readText(one.file("path")), left.lastModified()};
        }
    return {};
}

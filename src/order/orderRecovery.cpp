#include "order/orderRecovery.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "util/files.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr int mostPrograms = 50;

} // namespace

orderRecovery::orderRecovery(const QString &folder)
    : m_folder(folder)
{
    QDir().mkpath(folder);
    claimFree();
}

orderRecovery::~orderRecovery() { discard(); }

// One that nobody left behind, so that what was left stays to be offered.
void orderRecovery::claimFree()
{
    m_lock.reset();
    for (int n = 1; n <= mostPrograms && !m_lock; ++n)
        if (!QFileInfo::exists(fileOf(n, "xml")))
            claim(n);
}

void orderRecovery::leave() { claimFree(); }

QString orderRecovery::fileOf(int number, const char *end) const
{
    return QStringLiteral("%1/order-%2.%3").arg(m_folder).arg(number).arg(QLatin1String(end));
}

bool orderRecovery::claim(int number)
{
    auto lock = std::make_unique<QLockFile>(fileOf(number, "lock"));
    // Only a dead owner's lock is void, however old it is.
    lock->setStaleLockTime(0);
    if (!lock->tryLock())
        return false;
    m_lock = std::move(lock);
    m_number = number;
    return true;
}

bool orderRecovery::store(const kiv_mat_zpStruct &order, const QString &path)
{
    return m_lock
           && saveXmlNoEvents(fileOf(m_number, "xml"), &order, nullptr, {}, saveRule::whatever) == 0
           && files::writeText(fileOf(m_number, "path"), path);
}

void orderRecovery::discard()
{
    if (!m_lock)
        return;
    QFile::remove(fileOf(m_number, "xml"));
    QFile::remove(fileOf(m_number, "path"));
}

orderRecovery::copy orderRecovery::takeOver()
{
    for (int n = 1; n <= mostPrograms; ++n) {
        const QFileInfo left(fileOf(n, "xml"));
        if (n == m_number || !left.exists() || !claim(n))
            continue;
        return {left.filePath(), files::readText(fileOf(n, "path")), left.lastModified()};
    }
    return {};
}

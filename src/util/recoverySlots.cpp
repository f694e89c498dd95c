#include "util/recoverySlots.h"

#include "util/paths.h"
#include "util/scratch.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

namespace {

constexpr int mostNumbers = 1000;

std::unique_ptr<QLockFile> locked(const QString &path)
{
    auto lock = std::make_unique<QLockFile>(path);
    // Only a dead owner's lock is void, however old it is.
    lock->setStaleLockTime(0);
    return lock->tryLock() ? std::move(lock) : nullptr;
}

const QString lockEnd = QStringLiteral("lock");

} // namespace

QStringList recoveryFolders()
{
    return {paths::data(QStringLiteral("_config/recovery")),
            paths::userDir() + QLatin1String("/recovery")};
}

recoverySlot::recoverySlot(QString folder, QString what, QString end)
    : m_folder(std::move(folder))
    , m_what(std::move(what))
    , m_end(std::move(end))
{
}

recoverySlot::~recoverySlot() = default;
recoverySlot::recoverySlot(recoverySlot &&) noexcept = default;
recoverySlot &recoverySlot::operator=(recoverySlot &&) noexcept = default;

QString recoverySlot::file(int number, const QString &end) const
{
    return QStringLiteral("%1/%2-%3.%4").arg(m_folder, m_what).arg(number).arg(end);
}

bool recoverySlot::claimFree()
{
    release();
    QDir().mkpath(m_folder);
    for (int n = 1; n <= mostNumbers; ++n)
        if (!QFileInfo::exists(file(n, m_end)) && claim(n))
            return true;
    return false;
}

bool recoverySlot::claim(int number)
{
    auto lock = locked(file(number, lockEnd));
    if (!lock)
        return false;
    m_lock = std::move(lock);
    m_number = number;
    scratch::clearLeftSaves(file());
    return true;
}

void recoverySlot::release() { m_lock.reset(); }

std::vector<int> recoverySlot::left() const
{
    std::vector<int> numbers;
    const QStringList names =
        QDir(m_folder).entryList({m_what + QLatin1String("-*.") + m_end}, QDir::Files, QDir::Time);
    for (const QString &name : names) {
        const int number =
            name.section(QLatin1Char('-'), 1).section(QLatin1Char('.'), 0, 0).toInt();
        if (number > 0 && !(isClaimed() && number == m_number) && locked(file(number, lockEnd)))
            numbers.push_back(number);
    }
    return numbers;
}

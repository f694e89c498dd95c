#include "util/fileInUse.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#endif

// Linux gives a lease for writing only on a file that nobody else has open. Windows removes no open
// file, so there is nothing to find out.
std::optional<bool> fileInUse(const QString &path)
{
#if defined(Q_OS_LINUX)
    const int file =
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return {};
    // Whoever opens it right now breaks the lease, and the usual signal of that ends the program.
    ::fcntl(file, F_SETSIG, SIGURG);
    const bool given = ::fcntl(file, F_SETLEASE, F_WRLCK) == 0;
    const bool refused = !given && errno == EAGAIN;
    ::close(file);
    return given || refused ? std::optional(refused) : std::nullopt;
#elif defined(Q_OS_WIN)
    Q_UNUSED(path)
    return false;
#else
    Q_UNUSED(path)
    return {};
#endif
}

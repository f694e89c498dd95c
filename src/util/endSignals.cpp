#include "util/endSignals.h"

#include <QtGlobal>

#ifdef Q_OS_LINUX

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array numbers{SIGTERM, SIGINT, SIGHUP};

// A signal may come within any call, so that its handler may only write to a pipe.
std::array<int, 2> pipeEnds{-1, -1};

void note(int)
{
    const int error = errno;
    const char byte = 1;
    [[maybe_unused]] const auto written = write(pipeEnds[1], &byte, 1);
    errno = error;
}

} // namespace

struct endSignals::handlers
{
    std::array<struct sigaction, numbers.size()> before = {};
    std::unique_ptr<QSocketNotifier> notifier;
};

endSignals::endSignals(std::function<void()> asked)
    : m_handlers(std::make_unique<handlers>())
{
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_handlers->notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    QObject::connect(m_handlers->notifier.get(), &QSocketNotifier::activated,
                     m_handlers->notifier.get(), [asked = std::move(asked)] {
                         char byte = 0;
                         if (read(pipeEnds[0], &byte, 1) == 1)
                             asked();
                     });
    struct sigaction action = {};
    action.sa_handler = note; // NOLINT(cppcoreguidelines-pro-type-union-access): as POSIX has it
    action.sa_flags = SA_RESTART;
    for (size_t i = 0; i < numbers.size(); ++i)
        sigaction(numbers[i], &action, &m_handlers->before[i]);
}

endSignals::~endSignals()
{
    if (!m_handlers->notifier)
        return;
    for (size_t i = 0; i < numbers.size(); ++i)
        sigaction(numbers[i], &m_handlers->before[i], nullptr);
    m_handlers->notifier.reset();
    for (int &end : pipeEnds)
        close(std::exchange(end, -1));
}

#else

// Windows tells the end of a session through the session manager alone. Not verified there.
struct endSignals::handlers
{
};

endSignals::endSignals(std::function<void()>) {}
endSignals::~endSignals() = default;

#endif

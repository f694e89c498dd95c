#include "tools/childProcess.h"

#ifdef Q_OS_UNIX
#include <csignal>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

childProcess::~childProcess()
{
    disconnect();
    if (state() != NotRunning) {
        killAll();
        waitForFinished();
    }
}

void childProcess::killAll()
{
#ifdef Q_OS_UNIX
    if (processId() > 0)
        ::kill(static_cast<pid_t>(-processId()), SIGKILL);
#endif
    kill();
}

void childProcess::setupChildProcess()
{
#ifdef Q_OS_UNIX
    ::setsid();
#endif
#ifdef Q_OS_LINUX
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
}

// Preloaded into a program under test: kills it before the n-th call that changes a folder
// (KIVZP_KILL_AT=n), or lets the disk be full from the n-th write on (KIVZP_FULL_AT=n). Linux only.
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

template <class Function>
Function *original(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

int numberOf(const char *variable)
{
    const char *text = std::getenv(variable);
    return text ? std::atoi(text) : 0;
}

void step()
{
    static int count = 0;
    if (++count == numberOf("KIVZP_KILL_AT"))
        raise(SIGKILL);
}

// Only what goes to files counts: pipes and sockets are never full.
bool isFull(int file)
{
    static int count = 0;
    const int from = numberOf("KIVZP_FULL_AT");
    struct stat state;
    const bool full = from > 0 && fstat(file, &state) == 0 && S_ISREG(state.st_mode) && ++count >= from;
    if (full)
        errno = ENOSPC;
    return full;
}

} // namespace

extern "C" {

int rename(const char *from, const char *to) noexcept
{
    step();
    return original<int(const char *, const char *)>("rename")(from, to);
}

int unlink(const char *path) noexcept
{
    step();
    return original<int(const char *)>("unlink")(path);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    step();
    return original<int(const char *, mode_t)>("mkdir")(path, mode);
}

int rmdir(const char *path) noexcept
{
    step();
    return original<int(const char *)>("rmdir")(path);
}

int fsync(int file)
{
    step();
    return original<int(int)>("fsync")(file);
}

ssize_t write(int file, const void *data, size_t size)
{
    return isFull(file) ? -1 : original<ssize_t(int, const void *, size_t)>("write")(file, data, size);
}

ssize_t sendfile64(int to, int from, off64_t *offset, size_t size) noexcept
{
    return isFull(to) ? -1 : original<ssize_t(int, int, off64_t *, size_t)>("sendfile64")(to, from, offset, size);
}
}

#include "util/diskSync.h"

#include <QFileDevice>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

void syncToDisk(const QFileDevice &file)
{
#ifdef Q_OS_WIN
    _commit(file.handle());
#else
    fsync(file.handle());
#endif
}

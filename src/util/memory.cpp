#include "util/memory.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && defined(__GLIBC__)
#include <malloc.h>
#endif

void giveBackMemory()
{
#if defined(Q_OS_LINUX) && defined(__GLIBC__)
    ::malloc_trim(0);
#endif
}

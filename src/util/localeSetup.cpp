#include "util/localeSetup.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <clocale>
#include <cstring>
#include <langinfo.h>
#endif

void ensureUtf8Locale()
{
#ifdef Q_OS_UNIX
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        qputenv("LC_ALL", "C.UTF-8");
#endif
}

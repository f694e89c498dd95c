#include "tools/KivExe.h"

#include "util/paths.h"

namespace KivExe {

exe::exe(QObject *parent)
    : timedRunner(parent)
{
}

void exe::start(const QStringList &arguments, int timeoutMs)
{
    // Arguments name files such as "_files/BOM_template.dotx".
    startChild(arguments.join(QLatin1Char(' ')), timeoutMs, paths::dataDir());
}

void exe::conclude(int result)
{
    timedRunner::conclude(result);
    if (result == timedOut)
        emit timeout(result);
    else
        emit complete(result);
}

} // namespace KivExe

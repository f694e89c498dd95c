#include "tools/KivScp.h"

#include "tools/helpers.h"

#include <QFileInfo>

namespace KivScp {

scp::scp(QObject *parent)
    : timedRunner(parent)
{
}

void scp::start(const upload &job, int timeoutMs)
{
    for (const QString *field : {&job.account, &job.password, &job.host, &job.source, &job.target})
        if (field->isEmpty()) {
            refuse(tr("Server, account, password or file is missing"));
            return;
        }
    keepSecret(job.password);
    startChild(command(job), timeoutMs);
}

// -batch: pscp never asks, a server it does not know is refused. The source is absolute, so that
// no colon in it is taken for a host, and nothing after "--" for an option.
QString scp::command(const upload &job)
{
    QString text = helpers::pscp + QLatin1String(" -P 22 -pw ") + helpers::argument(job.password)
                   + QLatin1String(" -batch");
    if (!job.hostKey.isEmpty())
        text += QLatin1String(" -hostkey ") + helpers::argument(job.hostKey);
    return text + QLatin1String(" -- ") + helpers::quoted(QFileInfo(job.source).absoluteFilePath())
           + QLatin1Char(' ')
           + helpers::quoted(job.account + QLatin1Char('@') + job.host + QLatin1Char(':')
                             + job.target);
}

} // namespace KivScp

#include "tools/KivScp.h"

#include "tools/helpers.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace KivScp {

QString commandStart(const QString &password, const QString &hostKey)
{
    QString text = helpers::pscp + QLatin1String(" -P 22 -pw ") + helpers::argument(password)
                   + QLatin1String(" -batch");
    if (!hostKey.isEmpty())
        text += QLatin1String(" -hostkey ") + helpers::argument(hostKey);
    return text + QLatin1String(" -- ");
}

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

// Lines come without their ends: the key is as long as it is.
QString scp::offeredKey() const
{
    static const QRegularExpression key(QStringLiteral("SHA256:[A-Za-z0-9+/]{43}"));
    return m_said.contains(QLatin1String("host key is not cached")) ? key.match(m_said).captured()
                                                                    : QString();
}

bool scp::keyChanged() const
{
    return m_said.contains(QLatin1String("POTENTIAL SECURITY BREACH"))
           || m_said.contains(QLatin1String("Host key not in manually configured list"));
}

void scp::log(const QString &text)
{
    constexpr int longestMessage = 1 << 16;
    m_said += text.left(longestMessage - m_said.size());
    emit updateLog(text);
}

// -batch: pscp never asks, a server it does not know is refused. The source is absolute, so that
// no colon in it is taken for a host, and nothing after "--" for an option.
QString scp::command(const upload &job)
{
    return commandStart(job.password, job.hostKey)
           + helpers::quoted(QFileInfo(job.source).absoluteFilePath()) + QLatin1Char(' ')
           + helpers::quoted(job.account + QLatin1Char('@') + job.host + QLatin1Char(':')
                             + job.target);
}

} // namespace KivScp

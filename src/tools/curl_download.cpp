#include "tools/curl_download.h"

#include "tools/helpers.h"

curl_download::curl_download(QObject *parent)
    : childRunner(parent)
{
}

void curl_download::start(const QString &address, const QString &target)
{
    if (address.isEmpty() || target.isEmpty())
        refuse(tr("Address or file is missing"));
    else
        startChild(command(address, target));
}

QString curl_download::command(const QString &address, const QString &target)
{
    return helpers::curl + QLatin1String(" --url ") + helpers::argument(address)
           + QLatin1String(" --output ") + helpers::quoted(target);
}

void curl_download::log(const QString &text)
{
    const QLatin1String unknown("not resolve host");
    m_tail += text;
    m_hostUnknown = m_hostUnknown || m_tail.contains(unknown);
    m_tail = m_tail.right(unknown.size() - 1);
    emit updateProgress(text);
}

void curl_download::conclude(int result)
{
    childRunner::conclude(result);
    if (m_hostUnknown)
        emit updateProgress(tr("Download failed: the host could not be resolved"));
}

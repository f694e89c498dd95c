#include "util/linkCheck.h"

#include <QTcpSocket>

namespace linkCheck {

bool answers(const QUrl &url, quint16 port, int timeoutMs)
{
    const QString host = url.host();
    if (host.isEmpty())
        return false;
    QTcpSocket socket;
    socket.connectToHost(host, port);
    if (!socket.waitForConnected(timeoutMs))
        return false;
    // The encoded forms hold no blank and no line end, so an address cannot add header lines.
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray hostName = url.host(QUrl::FullyEncoded).toLatin1();
    socket.write("HEAD " + path + " HTTP/1.1\r\nHost: " + hostName + "\r\n\r\n");
    QByteArray reply;
    if (socket.waitForReadyRead(timeoutMs))
        reply = socket.readAll();
    socket.abort();
    return reply.contains("200 OK") || reply.contains("301 Moved Permanently");
}

} // namespace linkCheck

#include "util/linkCheck.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr int sliceMs = 50;

// Lets events through until reached() holds. False when the connection ended, the time is up, or
// the caller wants to stop.
template <class Reached>
bool waitUntil(const QTcpSocket &socket, const Reached &reached, int timeoutMs,
               const std::function<bool()> &keepGoing)
{
    QElapsedTimer timer;
    timer.start();
    while (!reached()) {
        const int left = timeoutMs - int(timer.elapsed());
        if (socket.state() == QTcpSocket::UnconnectedState || left <= 0
            || (keepGoing && !keepGoing()))
            return false;
        QEventLoop slice;
        QTimer::singleShot(qMin(left, sliceMs), &slice, &QEventLoop::quit);
        QObject::connect(&socket, &QTcpSocket::stateChanged, &slice, &QEventLoop::quit);
        QObject::connect(&socket, &QTcpSocket::readyRead, &slice, &QEventLoop::quit);
        slice.exec();
    }
    return true;
}

} // namespace

namespace linkCheck {

bool answers(const QUrl &url, quint16 port, int timeoutMs, const std::function<bool()> &keepGoing)
{
    const QString host = url.host();
    if (host.isEmpty())
        return false;
    QTcpSocket socket;
    socket.connectToHost(host, port);
    const auto connected = [&socket] { return socket.state() == QTcpSocket::ConnectedState; };
    if (!waitUntil(socket, connected, timeoutMs, keepGoing))
        return false;
    // The encoded forms hold no blank and no line end, so an address cannot add header lines.
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    const QByteArray hostName = url.host(QUrl::FullyEncoded).toLatin1();
    socket.write("HEAD " + path + " HTTP/1.1\r\nHost: " + hostName + "\r\n\r\n");
    QByteArray reply;
    const auto replied = [&socket] { return socket.bytesAvailable() > 0; };
    if (waitUntil(socket, replied, timeoutMs, keepGoing))
        reply = socket.readAll();
    socket.abort();
    return reply.contains("200 OK") || reply.contains("301 Moved Permanently");
}

} // namespace linkCheck

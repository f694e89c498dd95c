// The link check against a small server that answers as told.
#include "testSupport.h"

#include "util/linkCheck.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

// Takes one connection in a thread of its own, notes the request and gives the reply.
class oneReply : public QThread
{
public:
    explicit oneReply(QByteArray reply)
        : m_reply(std::move(reply))
    {
        start();
        while (!m_ready)
            QThread::msleep(1);
    }
    ~oneReply() override { wait(); }

    quint16 port() const { return m_port; }
    QByteArray request; // complete after the destructor or wait()

protected:
    void run() override
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        m_port = server.serverPort();
        m_ready = true;
        if (!server.waitForNewConnection(5000))
            return;
        QTcpSocket *socket = server.nextPendingConnection();
        while (!request.endsWith("\r\n\r\n") && socket->waitForReadyRead(5000))
            request += socket->readAll();
        if (!m_reply.isEmpty()) {
            socket->write(m_reply);
            socket->flush();
        }
        socket->waitForDisconnected(2000);
    }

private:
    QByteArray m_reply;
    std::atomic<quint16> m_port{0};
    std::atomic<bool> m_ready{false};
};

class tst_linkCheck : public QObject
{
    Q_OBJECT
private slots:
    void replies_data();
    void replies();
    void requestNamesHostAndPath();
    void nothingListens();
    void waitsInSlices();
};

void tst_linkCheck::replies_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<bool>("good");
    QTest::newRow("200") << QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n") << true;
    QTest::newRow("301") << QByteArray("HTTP/1.1 301 Moved Permanently\r\n\r\n") << true;
    QTest::newRow("302") << QByteArray("HTTP/1.1 302 Found\r\nLocation: /x\r\n\r\n") << false;
    QTest::newRow("404") << QByteArray("HTTP/1.1 404 Not Found\r\n\r\n") << false;
    QTest::newRow("half a reply") << QByteArray("HTTP/1.1 20") << false;
    QTest::newRow("no reply in time") << QByteArray() << false;
}

void tst_linkCheck::replies()
{
    QFETCH(QByteArray, reply);
    const oneReply server(reply);
    QTEST(linkCheck::answers(QUrl("https://localhost/a.pdf"), server.port(), 500), "good");
}

void tst_linkCheck::requestNamesHostAndPath()
{
    oneReply server("HTTP/1.1 200 OK\r\n\r\n");
    // What could end the line is encoded, the query is not asked for.
    linkCheck::answers(QUrl("http://localhost/a b\r\nX: y/\u017c.pdf?q=1"), server.port(), 1000);
    server.wait();
    QCOMPARE(server.request, QByteArray("HEAD /a%20b%0D%0AX:%20y/%C5%BC.pdf HTTP/1.1\r\n"
                                        "Host: localhost\r\n\r\n"));
}

void tst_linkCheck::nothingListens()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    const quint16 port = server.serverPort();
    server.close();
    QVERIFY(!linkCheck::answers(QUrl("http://localhost/"), port, 500));
    QVERIFY(!linkCheck::answers(QUrl(), port, 500));
}

// While nothing comes, events get through and the caller is asked whether to go on.
void tst_linkCheck::waitsInSlices()
{
    QTcpServer silent;
    silent.listen(QHostAddress::LocalHost);
    int asked = 0;
    int events = 0;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, [&events] { ++events; });
    ticks.start(20);
    QElapsedTimer timer;
    timer.start();
    const auto keepGoing = [&] { return ++asked < 8; };
    QVERIFY(!linkCheck::answers(QUrl("http://localhost/"), silent.serverPort(), 20000, keepGoing));
    QVERIFY(timer.elapsed() < 5000);
    QCOMPARE(asked, 8);
    QVERIFY(events > 2);
}

KIVZP_TEST(tst_linkCheck)
#include "tst_linkCheck.moc"

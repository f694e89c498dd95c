// The link check against a small server that answers as told.
#include "testSupport.h"

#include "util/linkCheck.h"

using namespace testSupport;

class tst_linkCheck : public QObject
{
    Q_OBJECT
private slots:
    void replies_data()
    {
        const rows<QByteArray, bool> row;
        row("200", "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", true);
        row("301", "HTTP/1.1 301 Moved Permanently\r\n\r\n", true);
        row("302", "HTTP/1.1 302 Found\r\nLocation: /x\r\n\r\n", false);
        row("404", "HTTP/1.1 404 Not Found\r\n\r\n", false);
        row("half a reply", "HTTP/1.1 20", false);
        row("no reply in time", "", false);
    }

    void replies()
    {
        const auto [reply, good] = fetch<QByteArray, bool>();
        const webServer server([reply = reply](const QByteArray &) { return reply; });
        QCOMPARE(linkCheck::answers(QUrl("https://localhost/a.pdf"), server.serverPort(), 500), good);
    }

    void requestNamesHostAndPath()
    {
        const webServer server([](const QByteArray &) { return "HTTP/1.1 200 OK\r\n\r\n"; });
        // What could end the line is encoded, the query is not asked for.
        linkCheck::answers(QUrl("http://localhost/a b\r\nX: y/\u017c.pdf?q=1"), server.serverPort(), 1000);
        QCOMPARE(server.request, QByteArray("HEAD /a%20b%0D%0AX:%20y/%C5%BC.pdf HTTP/1.1\r\n"
                                            "Host: localhost\r\n\r\n"));
    }

    void nothingListens()
    {
        QTcpServer server;
        server.listen(QHostAddress::LocalHost);
        const quint16 port = server.serverPort();
        server.close();
        QVERIFY(!linkCheck::answers(QUrl("http://localhost/"), port, 500));
        QVERIFY(!linkCheck::answers(QUrl(), port, 500));
    }

    // While nothing comes, events get through and the caller is asked whether to go on.
    void waitsInSlices()
    {
        QTcpServer silent;
        silent.listen(QHostAddress::LocalHost);
        int asked = 0;
        int events = 0;
        QTimer ticks;
        connect(&ticks, &QTimer::timeout, [&events] { ++events; });
        ticks.start(20);
        const auto keepGoing = [&] { return ++asked < 8; };
        QVERIFY(!linkCheck::answers(QUrl("http://localhost/"), silent.serverPort(), 20000, keepGoing));
        QCOMPARE(asked, 8);
        QVERIFY(events > 2);
    }
};

KIVZP_TEST(tst_linkCheck)
#include "tst_linkCheck.moc"

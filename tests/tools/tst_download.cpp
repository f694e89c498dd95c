// Downloads with the real curl from a server in this process.
#include "runnerSupport.h"

#include "tools/curl_download.h"

#include <QTcpServer>
#include <QTcpSocket>

namespace {

const QByteArray content = QByteArray("\0\r\n\xff data ", 10).repeated(100000);

// Answers GET of /file and of /moved, which leads to /file.
class webServer : public QTcpServer
{
public:
    webServer()
    {
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                requests += socket->readAll();
                if (!requests.contains("\r\n\r\n"))
                    return;
                socket->write(answer(requests.split(' ').value(1)));
                requests.clear();
                socket->disconnectFromHost();
            });
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        });
        listen(QHostAddress::LocalHost);
    }

private:
    static QByteArray answer(const QByteArray &path)
    {
        const QByteArray close = "Connection: close\r\n\r\n";
        if (path == "/moved")
            return "HTTP/1.1 302 Found\r\nLocation: /file\r\n" + close;
        if (path == "/cut")
            return "HTTP/1.1 200 OK\r\nContent-Length: 99\r\n" + close + "part";
        if (path == "/file" || path == "/[1-2]?a=\"b\"&c")
            return "HTTP/1.1 200 OK\r\n" + close + content;
        return "HTTP/1.1 404 Not Found\r\n" + close + "no";
    }
    QByteArray requests;
};

} // namespace

class tst_download : public QObject
{
    Q_OBJECT
private slots:
    void downloads_data();
    void downloads();
    void hostIsReportedAcrossReads();
    void commandText();
};

void tst_download::downloads_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<int>("result");
    QTest::addColumn<bool>("hostUnknown");
    QTest::newRow("good") << "http://127.0.0.1:%1/file" << 0 << false;
    QTest::newRow("moved") << "http://127.0.0.1:%1/moved" << 0 << false;
    QTest::newRow("brackets and quotes") << "http://127.0.0.1:%1/[1-2]?a=\"b\"&c" << 0 << false;
    QTest::newRow("not there") << "http://127.0.0.1:%1/none" << 22 << false;
    QTest::newRow("cut short") << "http://127.0.0.1:%1/cut" << 18 << false;
    QTest::newRow("blank") << "http://127.0.0.1:%1/a b" << 3 << false;
    QTest::newRow("a local file") << "file:///etc/passwd" << 1 << false;
    QTest::newRow("unknown host") << "http://nobody.invalid/file" << 6 << true;
    QTest::newRow("nobody listens") << "http://127.0.0.1:1/file" << 7 << false;
    QTest::newRow("no address") << "" << -1001 << false;
}

void tst_download::downloads()
{
    QFETCH(QString, address);
    QFETCH(int, result);
    const helperFolder folder;
    folder.ship();
    const webServer server;
    const QString target = folder.path("za\u017c\u00f3\u0142\u0107 'x' \"y\".bin");
    curl_download runner;
    const runnerLog log(&runner, &curl_download::updateProgress);
    runner.start(address.contains("%1") ? address.arg(server.serverPort()) : address, target);
    QVERIFY2(runner.wait() == result, log.bytes());
    QCOMPARE(runner.failed(), result != 0);
    QTEST(runner.hostUnknown(), "hostUnknown");
    QTEST(log.text().contains("the host could not be resolved"), "hostUnknown");
    QCOMPARE(testSupport::read(target) == content, result == 0);
}

// Also when the helper ends as if all were well.
void tst_download::hostIsReportedAcrossReads()
{
    const helperFolder folder;
    folder.script("curl.exe", "printf 'Could not resol' >&2; sleep 0.3; printf 've host: x' >&2");
    curl_download runner;
    runner.start("http://x", folder.path("y"));
    QCOMPARE(runner.wait(), 0);
    QVERIFY(runner.hostUnknown());
    QVERIFY(runner.failed());
}

void tst_download::commandText()
{
    QCOMPARE(curl_download::command("http://h/a", "/t/b c"),
             QString("_bin/curl.exe --url http://h/a --output \"/t/b c\""));
}

KIVZP_TEST(tst_download)
#include "tst_download.moc"

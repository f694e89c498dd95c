// Downloads with the real curl from a server in this process.
#include "tools/runnerSupport.h"

#include "tools/curl_download.h"

using namespace testSupport;

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

class tst_download : public folderTest
{
    Q_OBJECT
private slots:
    void downloads_data()
    {
        const rows<QString, int, bool> row;
        row("good", "http://127.0.0.1:%1/file", 0, false);
        row("moved", "http://127.0.0.1:%1/moved", 0, false);
        row("brackets and quotes", "http://127.0.0.1:%1/[1-2]?a=\"b\"&c", 0, false);
        row("not there", "http://127.0.0.1:%1/none", 22, false);
        row("cut short", "http://127.0.0.1:%1/cut", 18, false);
        row("blank", "http://127.0.0.1:%1/a b", 3, false);
        row("a local file", "file:///etc/passwd", 1, false);
        row("unknown host", "http://nobody.invalid/file", 6, true);
        row("nobody listens", "http://127.0.0.1:1/file", 7, false);
        row("no address", "", -1001, false);
    }

    void downloads()
    {
        const auto [address, result, hostUnknown] = fetch<QString, int, bool>();
        m_folder->ship({"_bin"});
        const webServer server;
        const QString target = m_folder->path("za\u017c\u00f3\u0142\u0107 'x' \"y\".bin");
        curl_download runner;
        const runnerLog log(&runner, &curl_download::updateProgress);
        runner.start(address.contains("%1") ? address.arg(server.serverPort()) : address, target);
        QVERIFY2(runner.wait() == result, log.bytes());
        QCOMPARE(runner.failed(), result != 0);
        QCOMPARE(runner.hostUnknown(), hostUnknown);
        QCOMPARE(log.text().contains("the host could not be resolved"), hostUnknown);
        QCOMPARE(read(target) == content, result == 0);
    }

    // Also when the helper ends as if all were well.
    void hostIsReportedAcrossReads()
    {
        m_folder->script("_bin/curl.exe", "printf 'Could not resol' >&2; sleep 0.3; printf 've host: x' >&2");
        curl_download runner;
        runner.start("http://x", m_folder->path("y"));
        QCOMPARE(runner.wait(), 0);
        QVERIFY(runner.hostUnknown());
        QVERIFY(runner.failed());
    }

    void commandText()
    {
        QCOMPARE(curl_download::command("http://h/a", "/t/b c"),
                 QString("_bin/curl.exe --url http://h/a --output \"/t/b c\""));
    }
};

KIVZP_TEST(tst_download)
#include "tst_download.moc"

// The ways in which a child process ends, what of its arguments and output arrives, and downloads with the real curl
// from a server in this process.
#include "testSupport.h"

#include "tools/KivExe.h"
#include "tools/curl_download.h"
#include "tools/helpers.h"
#include "tools/runnerSupport.h"

#include <QStandardPaths>

#include <csignal>

using namespace testSupport;
using KivExe::exe;

// A runner with what it says.
class watchedRunner : public exe
{
public:
    runnerLog log{static_cast<exe *>(this), &exe::updateLog};
    QSignalSpy completed{this, &exe::complete};
    QSignalSpy timedOut{this, &exe::timeout};
};

namespace {

const QByteArray content = QByteArray("\0\r\n\xff data ", 10).repeated(100000);

// "/moved" leads to "/file".
QByteArray replyFor(const QByteArray &path)
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

} // namespace

class tst_runners : public folderTest
{
    Q_OBJECT
private slots:
    void ends_data()
    {
        const rows<QByteArray, QStringList, int, QByteArray> row;
        row("good", "", {}, 0, "");
        row("line ends are dropped", R"(printf 'a\r\nb\r\n')", {}, 0, "ab");
        row("only line ends", R"(printf '\r\n\n')", {}, 0, "");
        row("error channel", R"(printf 'a\nb' >&2; exit 2)", {}, 2, "ab");
        row("bytes", R"(printf '\304\205\377\000x')", {}, 0, QByteArray("\304\205\377\0x", 5));
        row("crash", "kill -SEGV $$", {}, SIGSEGV, "");
        row("reads nothing", "cat; read -r line || exit 7", {}, 7, "");
        row("words", R"(printf '[%s]' "$@")", {"--type", "doc", "two words"}, 0, "[--type][doc][two][words]");
        row("quoted", R"(printf '[%s]' "$@")",
            {"--out", helpers::quoted("C:\\a b\\za\u017c\u00f3\u0142\u0107 \"x\".doc")}, 0,
            "[--out][C:\\a b\\za\u017c\u00f3\u0142\u0107 \"x\".doc]");
        row("works where the data are", "cd \"$(pwd)\"; cat _files/t", {}, 0, "template");
    }

    void ends()
    {
        const auto [body, arguments, result, text] = fetch<QByteArray, QStringList, int, QByteArray>();
        m_folder->script("_bin/h.exe", body);
        m_folder->write("_files/t", "template");
        watchedRunner runner;
        QVERIFY(!runner.isDone());
        QCOMPARE(runner.wait(), -1001);
        runner.start(QStringList("_bin/h.exe") + arguments, 20000);
        QCOMPARE(runner.wait(), result);
        QVERIFY(runner.isDone());
        QCOMPARE(runner.log.bytes(), text);
        QVERIFY(!runner.log.runs.contains(QString()));
        QCOMPARE(runner.completed.size(), 1);
        QCOMPARE(runner.completed[0][0].toInt(), result);
        QVERIFY(runner.timedOut.isEmpty());
    }

    // The script waits for a program of its own, as a launcher may: that one must go too.
    void hangs()
    {
        const QString pids = m_folder->path("pids");
        m_folder->script("_bin/h.exe", "echo begun; sleep 100 & echo $$ $! >'" + pids.toUtf8() + "'; wait");
        watchedRunner runner;
        runner.start({"h.exe"}, 1500);
        QCOMPARE(runner.wait(), -1003);
        QCOMPARE(runner.log.text(), QString("begun"));
        const QList<QByteArray> numbers = read(pids).simplified().split(' ');
        QCOMPARE(numbers.size(), 2);
        // The killed child's end arrives now and must change nothing.
        for (const QByteArray &number : numbers) {
            const pid_t pid = number.toInt();
            const auto gone = [pid] {
                return kill(pid, 0) != 0 || read(QString("/proc/%1/stat").arg(pid)).contains(") Z ");
            };
            QTRY_VERIFY(gone());
        }
        QTest::qWait(1700);
        QCOMPARE(runner.result(), -1003);
        QCOMPARE(runner.timedOut.size(), 1);
        QCOMPARE(runner.timedOut[0][0].toInt(), -1003);
        QVERIFY(runner.completed.isEmpty());
    }

    void floods()
    {
        m_folder->script("_bin/h.exe", "head -c 5000000 /dev/zero | tr '\\0' e >&2 &\n"
                                       "head -c 5000000 /dev/zero | tr '\\0' o; wait; exit 3");
        exe runner;
        qint64 out = 0;
        qint64 error = 0;
        connect(&runner, &exe::updateLog, this, [&](const QString &run) {
            out += run.count('o');
            error += run.count('e');
        });
        runner.start({"h.exe"}, 60000);
        QCOMPARE(runner.wait(), 3);
        QCOMPARE(out, 5000000);
        QCOMPARE(error, 5000000);
    }

    void cannotBeStarted_data()
    {
        const rows<QStringList> row;
        row("missing", {"_bin\\none.exe", "-pw", "s3cret"});
        row("missing absolute", {"/none/none.exe", "s3cret"});
        row("not executable", {"plain.exe", "s3cret"});
        row("a folder", {"_validator", "s3cret"});
        row("no interpreter", {"broken.exe", "s3cret"});
        row("nothing", {});
    }

    void cannotBeStarted()
    {
        const auto [command] = fetch<QStringList>();
        m_folder->write("plain.exe", "MZ");
        m_folder->script("broken.exe", "");
        m_folder->write("broken.exe", "#!/none/sh\n");
        watchedRunner runner;
        runner.start(command, 100);
        QVERIFY(runner.isDone());
        QCOMPARE(runner.wait(), -1001);
        QString line = "The program cannot be started";
        if (!command.isEmpty())
            line += " [" + command[0] + "]";
        QCOMPARE(runner.log.runs, QStringList(line));
        QTest::qWait(250);
        QCOMPARE(runner.result(), -1001);
        QCOMPARE(runner.completed.size(), 1);
        QVERIFY(runner.timedOut.isEmpty());
    }

    void eventsWhileWaiting()
    {
        m_folder->script("_bin/h.exe", "sleep 1");
        auto *runner = new exe;
        runner->start({"h.exe"}, 20000);
        int ticks = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++ticks; });
        timer.start(20);
        QCOMPARE(runner->wait(), 0);
        QVERIFY2(ticks > 5, qPrintable(QString::number(ticks)));
        delete runner;

        auto *hanging = new exe;
        hanging->start({"h.exe"}, 20000);
        QTimer::singleShot(50, hanging, [hanging] { delete hanging; });
        QCOMPARE(hanging->wait(), -1001);

        exe stopped;
        stopped.start({"h.exe"}, 20000);
        QTimer::singleShot(50, &stopped, &exe::stop);
        QCOMPARE(stopped.wait(), -1003);
    }

    void startedOnce()
    {
        m_folder->script("_bin/h.exe", "echo x >>'" + m_folder->path("ran").toUtf8() + "'; exit 5");
        exe runner;
        runner.start({"h.exe"}, 20000);
        runner.start({"none.exe"}, 1);
        QCOMPARE(runner.wait(), 5);
        runner.start({"h.exe"}, 20000);
        QCOMPARE(runner.wait(), 5);
        QCOMPARE(read(m_folder->path("ran")), QByteArray("x\n"));
    }

    // Any texts, written one after the other into a command text, come apart into the same texts.
    void argumentsArriveWhole()
    {
        const QString alphabet = QString::fromUtf8("a\"\" \t\n'\\$\xc5\x82-\xc2\xa0");
        QRandomGenerator random(20261125);
        for (int round = 0; round < 5000; ++round) {
            QStringList texts;
            QStringList written;
            for (int i = 0; i < 4; ++i) {
                QString text;
                for (int length = 1 + random.bounded(6); length > 0; --length)
                    text += alphabet[random.bounded(alphabet.size())];
                texts.append(text);
                written.append(random.bounded(2) == 0 ? helpers::quoted(text) : helpers::argument(text));
            }
            QCOMPARE(QProcess::splitCommand("x " + written.join(' ')).mid(1), texts);
        }
        QCOMPARE(helpers::argument("http://a/b?c='d'"), QString("http://a/b?c='d'"));
    }

    void whereHelpersAre()
    {
        m_folder->ship({"_bin"});
        for (const QString &name : helpers::all()) {
            const QFileInfo file(helpers::path(name));
            QVERIFY2(file.isExecutable() && file.path() == m_folder->path("_bin"), qPrintable(name));
        }
        // One that stands beside the program under its name goes before the launcher.
        const QString beside = m_folder->path("KIV_TEMPLATE_DOC.exe");
        QVERIFY(QFile::copy(m_folder->path("_bin/zip.exe"), beside));
        QCOMPARE(helpers::path("KIV_TEMPLATE_DOC.exe"), beside);
        QCOMPARE(helpers::path("_bin/none.exe"), m_folder->path("_bin/none.exe"));
        QCOMPARE(helpers::path("/bin/sh"), QString("/bin/sh"));
    }

    // With LibreOffice documents come out; without, the failure says what is missing.
    void documentsAreConverted()
    {
        m_folder->ship({"_bin"});
        const bool installed = !QStandardPaths::findExecutable("soffice").isEmpty();
        const auto convert = [installed](const QStringList &arguments) {
            watchedRunner runner;
            runner.start(arguments, 120000);
            QVERIFY2(runner.wait() == (installed ? 0 : 127), runner.log.bytes());
            QCOMPARE(runner.log.text().contains("LibreOffice is not installed"), !installed);
        };
        const auto document = [&](const QString &name, const QByteArray &text) {
            const QString page = m_folder->write(name + ".html", "<p>" + text + "</p>");
            const QString target = m_folder->path(name + ".doc");
            convert({helpers::htmlToDocPdf, "--type", "doc", "--out", helpers::quoted(target), "--in",
                     helpers::quoted(page)});
            return target;
        };
        const QString list = document("za\u017c \"x\"", "Rezystor");
        QCOMPARE(QFile::exists(list), installed);
        if (!installed)
            return;
        QVERIFY(read(list).startsWith("\xd0\xcf\x11\xe0"));
        convert({helpers::templateDoc, "--temp", helpers::quoted(document("head", "Wzorzec")), "--out",
                 helpers::quoted(list), "--in", helpers::quoted(list)});
        QByteArray filled = read(list);
        filled.replace('\0', QByteArray());
        QVERIFY(filled.contains("Wzorzec") && filled.contains("Rezystor"));
    }

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
        const webServer server(replyFor);
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
};

KIVZP_TEST(tst_runners)
#include "tst_runners.moc"

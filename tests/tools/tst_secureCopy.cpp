// Secure copy: what reaches pscp, and the real pscp against a server started here. The runner's
// port is fixed and 22 is not ours to open, so the launcher of the test puts another in its place;
// and since only the system can check a password, the server knows the user by a key.
#include "tools/runnerSupport.h"

#include "tools/KivScp.h"

#include <QScopeGuard>
#include <QStandardPaths>

using namespace testSupport;
using KivScp::scp;
using KivScp::upload;

class tst_secureCopy : public folderTest
{
    Q_OBJECT
private slots:
    void argumentsAndSecret_data()
    {
        const rows<QString> row;
        for (const char *password :
             {"Secret.23", "two words", "a\"b", "za\u017c\u00f3\u0142\u0107", "-batch", "***", "$(id)`id`"})
            row(password, password);
    }

    // The helper repeats its arguments to the runner, which must not pass the password on.
    void argumentsAndSecret()
    {
        const auto [password] = fetch<QString>();
        m_folder->script("_bin/pscp.exe",
                         "printf '[%s]' \"$@\" | tee '" + m_folder->path("got").toUtf8() + "'; printf '%s' \"$4\" >&2");
        scp runner;
        const runnerLog log(&runner, &scp::updateLog);
        runner.start({"kiv", password, "server", "/a/b c.pdf", "/files/d e.pdf", "SHA256:x"}, 20000);
        QCOMPARE(runner.wait(), 0);
        const QString expected("[-P][22][-pw][%1][-batch][-hostkey][SHA256:x][--][/a/b c.pdf]"
                               "[kiv@server:/files/d e.pdf]");
        QCOMPARE(QString::fromUtf8(read(m_folder->path("got"))), expected.arg(password));
        const QString masked = password == "-batch" ? QString(expected).replace("-batch", "***") : expected;
        QVERIFY(log.text().contains(masked.arg("***")));
        if (password != "***")
            QVERIFY(!QString::fromUtf8(log.bytes()).contains(password));
    }

    void passwordInAPipe_data() { argumentsAndSecret_data(); }

    // The launcher that ships: the password stands in no argument of the program that sends.
    void passwordInAPipe()
    {
        const auto [password] = fetch<QString>();
        m_folder->ship({"_bin"});
        m_folder->script("bin/pscp", "[ \"$1\" = -h ] && exec echo '  -pwfile file'\nprintf '[%s]' \"$@\"; cat \"$4\"");
        const auto sent = run(m_folder->path("_bin/pscp.exe"),
                              {"-P", "22", "-pw", password, "-batch", "--", "/a b", "kiv@server:/-pw"},
                              {"PATH=" + m_folder->path("bin:") + qEnvironmentVariable("PATH")});
        QCOMPARE(sent.out, "[-P][22][-pwfile][/dev/fd/3][-batch][--][/a b][kiv@server:/-pw]" + password + '\n');
    }

    void secretCutByReads()
    {
        m_folder->script("_bin/pscp.exe", "printf 'pw Sec'; sleep 0.3; printf 'ret!'; sleep 0.3; printf Secr");
        scp runner;
        const runnerLog log(&runner, &scp::updateLog);
        runner.start({"kiv", "Secret", "server", "/a", "/b", ""}, 20000);
        QCOMPARE(runner.wait(), 0);
        QCOMPARE(log.text(), QString("pw ***!Secr"));
    }

    void refusals()
    {
        m_folder->script("_bin/pscp.exe", "exit 0");
        const upload good{"a", "p", "h", "/s", "/t", ""};
        for (auto field : {&upload::account, &upload::password, &upload::host, &upload::source, &upload::target}) {
            upload job = good;
            (job.*field).clear();
            scp runner;
            runner.start(job, 20000);
            QVERIFY(runner.isDone());
            QCOMPARE(runner.result(), -1001);
        }
    }

    void copies()
    {
        const QString program = QStandardPaths::findExecutable("sshd", {"/usr/sbin", "/usr/local/sbin", "/usr/bin"});
        if (program.isEmpty() || QStandardPaths::findExecutable("puttygen").isEmpty())
            QSKIP("sshd or puttygen is not installed");
        const QString user = run("id", {"-un"}).out.trimmed();
        const QString hostKey = m_folder->path("host");
        const QString userKey = m_folder->path("user");
        for (const QString &key : {hostKey, userKey})
            run("ssh-keygen", {"-q", "-t", "ed25519", "-N", "", "-f", key});
        run("puttygen", {userKey, "-O", "private", "-o", m_folder->path("user.ppk")});
        const QString finger = run("ssh-keygen", {"-l", "-f", hostKey}).out.split(' ').value(1);
        QTcpServer taken;
        QVERIFY(taken.listen(QHostAddress::LocalHost));
        const QByteArray port = QByteArray::number(taken.serverPort());
        taken.close();
        m_folder->write("sshd.conf", "ListenAddress 127.0.0.1\nPort " + port + "\nHostKey " + hostKey.toUtf8()
                                         + "\nAuthorizedKeysFile " + userKey.toUtf8()
                                         + ".pub\nPidFile none\nUsePAM no\nStrictModes no\n"
                                           "PermitRootLogin yes\nSubsystem sftp internal-sftp\n");
        m_folder->ship({"_bin"});
        QFile::rename(m_folder->path("_bin/pscp.exe"), m_folder->path("_bin/shipped"));
        m_folder->script("_bin/pscp.exe", "[ \"$1 $2 $3\" = '-P 22 -pw' ] || exit 99\npassword=$4\nshift 4\nexec '"
                                              + m_folder->path("_bin/shipped").toUtf8() + "' -P " + port
                                              + " -pw \"$password\" -i '" + m_folder->path("user.ppk").toUtf8()
                                              + "' \"$@\"");
        // As root it wants this folder, which its service makes elsewhere.
        const bool made = user == "root" && QDir().mkdir("/run/sshd");
        const auto removeMade = qScopeGuard([made] {
            if (made)
                QDir().rmdir("/run/sshd");
        });
        QProcess server;
        server.setProcessChannelMode(QProcess::MergedChannels);
        server.start(program, {"-D", "-e", "-f", m_folder->path("sshd.conf")});
        const auto listens = [&] {
            QTcpSocket socket;
            socket.connectToHost("127.0.0.1", port.toUShort());
            return socket.waitForConnected(200);
        };
        for (int i = 0; i < 50 && server.state() != QProcess::NotRunning && !listens(); ++i)
            QTest::qWait(100);
        if (server.state() == QProcess::NotRunning)
            QSKIP("sshd does not start here: " + server.readAll());

        const QByteArray content = QByteArray("\0\r\nbytes", 8).repeated(50000);
        const QString name = QString::fromUtf8("karta katalogowa \xc5\x82\xc3\xb3\xc5\xbc \"1\":2.pdf");
        upload job{user, "Secret", "127.0.0.1", m_folder->write(name, content), m_folder->path("to " + name), finger};
        QString offered;
        bool changed = false;
        const auto send = [&](QString *text) {
            scp runner;
            const runnerLog log(&runner, &scp::updateLog);
            runner.start(job, 60000);
            const int result = runner.wait();
            *text = log.text();
            offered = runner.offeredKey();
            changed = runner.keyChanged();
            return result;
        };
        QString text;
        const int sent = send(&text);
        QVERIFY2(sent == 0, text.toLatin1() + server.readAll());
        QCOMPARE(read(job.target), content);

        // Another key than the server's: nothing is sent, and nobody is asked.
        job.target += "2";
        job.hostKey = "SHA256:" + QString(43, 'A');
        QVERIFY(send(&text) > 0);
        QVERIFY(changed && offered.isEmpty());
        // One that nobody has accepted tells its key.
        job.hostKey.clear();
        QVERIFY(send(&text) > 0);
        QVERIFY(!changed);
        QCOMPARE(offered, finger);
        QVERIFY(!QFile::exists(job.target));
        job.hostKey = finger;
        job.source += "none";
        QVERIFY(send(&text) > 0);
        server.kill();
        server.waitForFinished();
    }
};

KIVZP_TEST(tst_secureCopy)
#include "tst_secureCopy.moc"

// An update from making it to going back, by the command line; killed at every step, and on a full disk.
#include "update/updateJournal.h"

#include "testSupport.h"

using namespace testSupport;

class tst_updateInstall : public folderTest
{
    Q_OBJECT
    using textMap = QMap<QString, QByteArray>;

    QString app() { return m_folder->path("app"); }
    ended call(const QStringList &arguments, const QStringList &environment = {})
    {
        return testSupport::run(m_folder->path("cli/kivzp-cli"), QStringList{"update"} + arguments,
                                QStringList({"LC_ALL=C", "HOME=" + m_folder->path(), "TMPDIR=" + m_folder->path("tmp")})
                                    + environment,
                                m_folder->path());
    }
    ended install(const QStringList &more = {}, const QStringList &environment = {})
    {
        return call(QStringList{"install", "-a", m_folder->path("server"), "--folder", app(), "--key",
                                m_folder->path("ours.pub")}
                        + more,
                    environment);
    }
    static QByteArray firms(const QByteArray &names)
    {
        QByteArray all;
        for (const QByteArray &name : names.split(' '))
            all += "<firm><name>" + name + "</name></firm>";
        return document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd", "<suppliers>" + all + "</suppliers>");
    }
    // All files of the program's folder but what updates keep.
    textMap files(const QString &folder) const
    {
        textMap all;
        QDirIterator found(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (found.hasNext()) {
            const QString path = QDir(folder).relativeFilePath(found.next());
            if (!path.startsWith("update/") && !path.endsWith(".lock"))
                all.insert(path, read(folder + '/' + path));
        }
        return all;
    }
    void put(const QString &folder, const QByteArray &version, const QByteArray &names)
    {
        m_folder->script(folder + "/KivZP", "echo " + version);
        m_folder->write(folder + "/_validator/kiv_mat.xsd",
                        read(paths::schema("kiv_mat.xsd")) + "<!-- " + version + "-->");
        m_folder->write(folder + "/_help/" + version + ".html", version);
        m_folder->write(folder + "/_files/firms.xml", firms(names));
    }
    // A copy of a folder with its links and permissions.
    void copy(const QString &from, const QString &to)
    {
        QVERIFY(files::removeFolder(to));
        QCOMPARE(QProcess::execute("cp", {"-a", from, to}), 0);
    }

private slots:
    void init() override
    {
        folderTest::init();
        m_folder->ship({"_bin"});
        copyFolder(source("_bin"), m_folder->path("cli/_bin"));
        copyFolder(source("_validator"), m_folder->path("cli/_validator"));
        QVERIFY(QFile::copy(KIVZP_CLI, m_folder->path("cli/kivzp-cli")));
        m_folder->write("tmp/x", "");
        put("app", "1", "A B");
        put("next", "2", "A C");
        QCOMPARE(call({"key", "ours"}).code, 0);
        const ended made = call({"create", "server", "--folder", m_folder->path("next"), "--key",
                                 m_folder->path("ours.key"), "--part", "program=99.1", "--part", "firms=7"});
        QVERIFY2(made.code == 0, qPrintable(made.err));
    }

    void updatesAndGoesBack()
    {
        const textMap before = files(app());
        const ended checked =
            call({"check", "-a", m_folder->path("server"), "--folder", app(), "--key", m_folder->path("ours.pub")});
        QVERIFY2(checked.code == 0 && checked.out.contains("firms\t\t7\tnewer"), qPrintable(checked.out + checked.err));
        QCOMPARE(install({"-n"}).code, 0);
        QCOMPARE(files(app()), before);

        const ended done = install();
        QVERIFY2(done.code == 0, qPrintable(done.err));
        QVERIFY2(done.out.contains("_files/firms.xml\t+1\t~0\t-0"), qPrintable(done.out));
        QProcess program;
        program.start(app() + "/KivZP", QStringList{});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAll().trimmed(), QByteArray("2"));
        // Its own firm stays, and the new one comes.
        const QByteArray merged = read(app() + "/_files/firms.xml");
        QVERIFY(merged.contains(">B<") && merged.contains(">C<"));
        QVERIFY(install().out.contains("nothing is newer"));

        QCOMPARE(call({"back", "--folder", app()}).code, 0);
        textMap back = files(app());
        QCOMPARE(back.take("_files/firms.xml"), merged);
        QVERIFY(back.take("kiv_info.xml").contains("<firm_server_release>7<"));
        const ended again =
            call({"check", "-a", m_folder->path("server"), "--folder", app(), "--key", m_folder->path("ours.pub")});
        QVERIFY2(again.out.contains("99.1\tnewer") && again.out.contains("7\tthe same"), qPrintable(again.out));
        textMap wanted = before;
        wanted.remove("_files/firms.xml");
        QCOMPARE(back, wanted);
        QCOMPARE(call({"back", "--folder", app()}).code, 1);
    }

    void refusals_data()
    {
        const rows<QString, QString> row; // file, what becomes of it
        row("another script", "server/updateScript.xml", "<kiv_update/>");
        row("a package changed", "server/firms_7.zip", "PK");
        row("the list changed", "server/kiv_update.sums", "");
        row("no signature", "server/kiv_update.sums.minisig", "");
        row("another key", "ours.pub", "");
    }
    void refusals()
    {
        const auto [file, content] = fetch<QString, QString>();
        const QString path = m_folder->path(file);
        if (tag() == "another key") {
            QCOMPARE(call({"key", "theirs"}).code, 0);
            write(path, read(m_folder->path("theirs.pub")));
        } else if (content.isEmpty() && file.endsWith("sums")) {
            write(path, read(path) + "\n");
        } else if (content.isEmpty()) {
            QVERIFY(QFile::remove(path));
        } else {
            write(path, content.toUtf8());
        }
        const textMap before = files(app());
        const ended done = install();
        QVERIFY2(done.code == 1 && !done.err.isEmpty(), qPrintable(done.err));
        QCOMPARE(files(app()), before);
        QVERIFY(updateJournal::stageOf(app()) == updateJournal::stage::none);
        // Only a missing signature may be allowed.
        QCOMPARE(install({"--accept-unsigned"}).code, tag() == "no signature" ? 0 : 1);
    }
    void lowerReleasesAreRefused()
    {
        QCOMPARE(install().code, 0);
        const textMap before = files(app());
        put("next", "3", "A");
        QVERIFY(files::removeFolder(m_folder->path("server")));
        QCOMPARE(call({"create", "server", "--folder", m_folder->path("next"), "--key", m_folder->path("ours.key"),
                       "--part", "firms=6"})
                     .code,
                 0);
        const ended done = install({"--part", "firms"});
        QVERIFY2(done.code == 1 && done.err.contains("6 is not newer than 7"), qPrintable(done.err));
        QCOMPARE(files(app()), before);
    }

    // Each file is whole at any moment, and after the next start all of them are of one version.
    void killedAtEachStep()
    {
        if (qEnvironmentVariableIsSet("ASAN_OPTIONS"))
            QSKIP("nothing can be loaded before the sanitizer");
        copy(app(), m_folder->path("old"));
        const textMap before = files(app());
        QCOMPARE(install().code, 0);
        const textMap after = files(app());
        int killed = 0;
        int updated = 0;
        for (int at = 1;; at += killed < 40 ? 1 : 3) {
            copy(m_folder->path("old"), app());
            const ended done = install({}, {"LD_PRELOAD=" KIVZP_STOP_AT, "KIVZP_KILL_AT=" + QString::number(at)});
            if (done.code == 0)
                break;
            ++killed;
            const textMap now = files(app());
            for (auto file = now.begin(); file != now.end(); ++file)
                QVERIFY2(*file == before.value(file.key()) || *file == after.value(file.key())
                             || file.key().contains(".kivzp-"),
                         qPrintable(QString("%1: %2").arg(at).arg(file.key())));
            QVERIFY2(now.contains("KivZP"), qPrintable(QString::number(at)));
            QCOMPARE(call({"settle", "--folder", app()}).code, 0);
            const textMap settled = files(app());
            const bool isNew = settled == after;
            updated += isNew ? 1 : 0;
            QVERIFY2(isNew || settled == before, qPrintable(QString::number(at)));
            // Once it is new it is so for all later steps.
            QVERIFY(isNew || updated == 0);
        }
        QVERIFY2(killed > 30 && updated > 5, qPrintable(QString("%1 %2").arg(killed).arg(updated)));
    }
    void fullDisk()
    {
        if (qEnvironmentVariableIsSet("ASAN_OPTIONS"))
            QSKIP("nothing can be loaded before the sanitizer");
        copy(app(), m_folder->path("old"));
        const textMap before = files(app());
        int refused = 0;
        for (int at = 1;; at += 1 + at / 10) {
            copy(m_folder->path("old"), app());
            const ended done = install({}, {"LD_PRELOAD=" KIVZP_STOP_AT, "KIVZP_FULL_AT=" + QString::number(at)});
            if (done.code == 0)
                break;
            ++refused;
            QVERIFY2(!done.err.isEmpty(), qPrintable(QString::number(at)));
            call({"settle", "--folder", app()});
            const textMap now = files(app());
            if (updateJournal::stageOf(app()) == updateJournal::stage::none)
                QCOMPARE(now, before);
            else
                QVERIFY2(now.value("KivZP") != before.value("KivZP"), qPrintable(QString::number(at)));
        }
        QVERIFY(refused > 5);
    }
};

KIVZP_TEST(tst_updateInstall)
#include "tst_updateInstall.moc"

// The start of the program, seen from outside: what the window shows when files are missing, broken
// or locked, and what is left afterwards.
#include "testSupport.h"

#include "util/dataFolder.h"

#include <QSettings>

#include <unistd.h>

using namespace testSupport;

class tst_startUp : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        m_folder->ship({"_config", "_files", "_zp"});
        QVERIFY(QFile::copy(KIVZP_PROBE, m_folder->path("probe")));
    }

    void sampleData()
    {
        const result seen = start();
        QCOMPARE(seen.code, 7);
        QCOMPARE(seen.told["title"], QString("Zam\u00f3wienie"));
        QCOMPARE(seen.told["visible"], QString("yes"));
        QCOMPARE(seen.told["errors"], QString());
        QCOMPARE(seen.told["errorsVisible"], QString("no"));
        QCOMPARE(seen.told["log"], "Otwarto plik zp_0.xml [" + m_folder->path("_zp/zp_0.xml") + "] | ");
        QVERIFY(seen.told["page"].contains("STM32F103C8T6"));
        QVERIFY(seen.told["page"].contains("STMicroelectronics"));
        QVERIFY(!seen.told["temporary"].isEmpty() && !QDir(seen.told["temporary"]).exists());
        // The folder for backups is settled for later runs.
        QVERIFY(read(m_folder->path("_config/kiv_mat_config.xml")).contains("PATH_BACKUP"));
    }

    void faults_data()
    {
        const rows<QString, QString, QByteArray, QStringList, bool> row;
        const QString corrupt = "Plik nie istnieje lub jest uszkodzony ";
        row("no configuration", "_config", "", "",
            {corrupt + "@/_config/kiv_mat_config.xml [ config.xml ]",
             "Utworzono plik domy\u015blny  [@/_config/kiv_mat_config.xml]"},
            true);
        row("broken configuration", "", "_config/kiv_mat_config.xml", "<kiv_config",
            {corrupt + "@/_config/kiv_mat_config.xml [ config.xml ]"}, true);
        row("no schemas: said once", "_validator", "", "",
            {"@/_validator/", "@/_config/kiv_mat_config.xml", "@/_zp/zp_0.xml"}, false);
        row("configuration of another root", "", "_config/kiv_mat_config.xml", "<kiv_confix/>",
            {"@/_config/kiv_mat_config.xml"}, true);
        row("unreadable database", "", "_files/db_warehouse.xml", "nonsense",
            {corrupt + "@/_files/db_warehouse.xml [wiersz 1, kolumna 1"}, true);
        row("database of another kind", "", "_files/db_service.xml",
            document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd", ""),
            {corrupt + "@/_files/db_service.xml [plik jest innego rodzaju]"}, true);
        row("missing firm register", "_files/firms.xml", "", "",
            {corrupt + "@/_files/firms.xml", "Utworzono plik domy\u015blny  [@/_files/firms.xml]"}, true);
        row("missing order", "_zp/zp_0.xml", "", "", {corrupt + "@/_zp/zp_0.xml"}, false);
        row("order with an unknown element", "", "_zp/zp_0.xml", order("\n<colour/>"),
            {corrupt + "@/_zp/zp_0.xml [wiersz 3, kolumna"}, false);
        row("style sheet with errors", "", "style.qss", "QWidget { color: ", {corrupt + "@/style.qss"}, true);
    }

    void faults()
    {
        const auto [removed, written, content, errors, orderShown] =
            fetch<QString, QString, QByteArray, QStringList, bool>();
        if (!removed.isEmpty())
            QVERIFY(QFile::remove(m_folder->path(removed)) || QDir(m_folder->path(removed)).removeRecursively());
        if (!written.isEmpty())
            m_folder->write(written, content);
        const result seen = start();
        QCOMPARE(seen.code, 7);
        QCOMPARE(seen.told["visible"], QString("yes"));
        QCOMPARE(seen.told["errorsVisible"], QString("yes"));
        int lines = 0;
        // Without a database the order's materials are unknown, which is listed behind.
        const QString faults = seen.told["errors"].section("Materiały nie", 0, 0);
        for (const QString &line : faults.split(" | ", Qt::SkipEmptyParts))
            lines += !line.trimmed().isEmpty();
        for (const QString &error : qAsConst(errors))
            QVERIFY2(seen.told["errors"].contains(QString(error).replace("@", m_folder->path())),
                     qPrintable(seen.told["errors"]));
        QCOMPARE(lines, errors.size());
        QCOMPARE(seen.told["page"].contains("STM32F103C8T6"), orderShown);
    }

    void corruptFilesStayAsTheyAre()
    {
        const QStringList files{"_config/kiv_mat_config.xml", "_files/firms.xml", "_zp/zp_0.xml"};
        for (const QString &file : files)
            m_folder->write(file, "corrupt");
        QCOMPARE(start().code, 7);
        for (const QString &file : files)
            QCOMPARE(read(m_folder->path(file)), QByteArray("corrupt"));
        m_folder->write(files.first(), "<kiv_confix/>");
        QCOMPARE(start().code, 7);
        QCOMPARE(read(m_folder->path(files.first())), QByteArray("<kiv_confix/>"));
    }

    void settingsAreReadAndWritten()
    {
        const QString settings = m_folder->path("home/config/VELT/KivZP.conf");
        QFile::copy(m_folder->path("_zp/zp_0.xml"), m_folder->path("_zp/other.xml"));
        m_folder->write("home/config/VELT/KivZP.conf", "[General]\nlastZp=_zp/other.xml\naltiumDir=/altium\n");
        result seen = start();
        QVERIFY(seen.told["log"].contains("other.xml"));
        {
            const QSettings after(settings, QSettings::IniFormat);
            QCOMPARE(after.value("lastZp").toString(), QString("_zp/other.xml"));
            QCOMPARE(after.value("altiumDir").toString(), QString("/altium"));
            QCOMPARE(after.allKeys().size(), 2);
        }
        // A store that can be neither read nor written: the defaults, and the program starts.
        QVERIFY(QFile::remove(settings));
        QVERIFY(QDir().mkpath(settings));
        seen = start();
        QCOMPARE(seen.code, 7);
        QVERIFY(seen.told["log"].contains("zp_0.xml"));
    }

    // As another user, who may read the program's folder but not write it.
    void lockedProgramFolder()
    {
        const uint nobody = geteuid() == 0 ? 65534 : geteuid();
        QDir().mkpath(m_folder->path("home"));
        const auto everybody = QFile::ReadOther | QFile::ExeOther;
        QVERIFY(QFile::setPermissions(m_folder->path("home"), QFile::Permissions(0x7777)));
        const auto owner = QFile::ReadOwner | QFile::ExeOwner;
        QVERIFY(QFile::setPermissions(m_folder->path(), owner | everybody));
        const result seen = start({}, nobody);
        QVERIFY(QFile::setPermissions(m_folder->path(), owner | everybody | QFile::WriteOwner));
        QCOMPARE(seen.code, 7);
        const QString own = m_folder->path("home/data/VELT/KivZP");
        QCOMPARE(seen.told["data"], own);
        QVERIFY2(seen.told["log"].contains(own + " |"), qPrintable(seen.told["log"]));
        QVERIFY2(seen.told["log"].contains("db_warehouse.xml"), qPrintable(seen.told["log"]));
        QVERIFY(seen.told["page"].contains("STM32F103C8T6"));
        QCOMPARE(seen.told["errors"], QString());
        QVERIFY(!read(m_folder->path("_config/kiv_mat_config.xml")).contains("PATH_BACKUP"));
    }

    void endedWhileEditing_data()
    {
        const testSupport::rows<int> row;
        row("crash", -1);
        row("end", 0);
    }
    void endedWhileEditing()
    {
        const auto [code] = fetch<int>();
        // Nothing is offered after a normal end.
        QCOMPARE(start().code, 7);
        QVERIFY(!start("recover").told.contains("question"));
        QCOMPARE(start(tag().toUtf8()).code, code);
        QVERIFY(!read(m_folder->path("_zp/zp_0.xml")).contains("UNSAVED"));
        const result seen = start("recover");
        QVERIFY2(seen.told["question"].contains("zp_0.xml"), qPrintable(seen.told["question"]));
        QCOMPARE(seen.told["firstName"], QString("UNSAVED"));
        QCOMPARE(seen.told["errorsVisible"], QString("no"));
    }

    void english()
    {
        const QString path = m_folder->path("_config/kiv_mat_config.xml");
        m_folder->write("_config/kiv_mat_config.xml",
                        read(path).replace("</options>", "<option editable=\"YES\" type=\"LANGUAGE\" value1=\"en\""
                                                         " value2=\"\" unit=\"\" description=\"\"/></options>"));
        QCOMPARE(start().told["title"], QString("Order"));
    }

    void dataFolderKeepsWhatTheUserHas()
    {
        m_folder->write("own/_zp/zp_0.xml", "mine");
        const QString own = m_folder->path("own");
        QCOMPARE(dataFolder::choose(m_folder->path(), own).perUser, false);
        const dataFolder::choice choice = dataFolder::choose(m_folder->path("none"), own);
        QVERIFY(choice.perUser);
        QVERIFY(choice.copied.isEmpty());
        QCOMPARE(read(m_folder->path("own/_zp/zp_0.xml")), QByteArray("mine"));
    }

    // A shared file that was written since the user's one was copied is offered until it is taken or turned down.
    void newerSharedFiles_data()
    {
        rows<bool, bool>().operator()("taken", false, true);
        rows<bool, bool>().operator()("turned down", true, false);
    }
    void newerSharedFiles()
    {
        const auto [ownChanged, taken] = fetch<bool, bool>();
        const QString own = m_folder->path("own");
        const QString shared = m_folder->path("shared");
        m_folder->write("shared/_files/a.xml", "one");
        m_folder->write("own/_files/a.xml", "one");
        QVERIFY(dataFolder::newerFiles(shared, own).empty());
        if (ownChanged)
            m_folder->write("own/_files/a.xml", "mine");
        QVERIFY(dataFolder::newerFiles(shared, own).empty());
        m_folder->write("shared/_files/a.xml", "second");
        const auto newer = dataFolder::newerFiles(shared, own);
        QCOMPARE(int(newer.size()), 1);
        QCOMPARE(newer[0].name, QString("_files/a.xml"));
        QCOMPARE(newer[0].ownChanged, ownChanged);
        if (taken)
            QVERIFY(dataFolder::take(newer[0].name, shared, own));
        else
            dataFolder::decline(newer[0].name, shared, own);
        QCOMPARE(read(m_folder->path("own/_files/a.xml")), QByteArray(taken ? "second" : "mine"));
        QVERIFY(dataFolder::newerFiles(shared, own).empty());
        m_folder->write("shared/_files/a.xml", "the third");
        QCOMPARE(int(dataFolder::newerFiles(shared, own).size()), 1);
    }

private:
    struct result
    {
        int code;
        QHash<QString, QString> told;
    };
    result start(const QString &task = {}, uint asUser = geteuid()) const
    {
        const QString user = QString::number(asUser);
        const QStringList other{"--reuid=" + user, "--regid=" + user, "--clear-groups", m_folder->path("probe")};
        const bool own = asUser == geteuid();
        const ended done = run(own ? m_folder->path("probe") : "setpriv", own ? QStringList() : other,
                               {"XDG_CONFIG_HOME=" + m_folder->path("home/config"),
                                "XDG_DATA_HOME=" + m_folder->path("home/data"), "KIVZP_PROBE_TASK=" + task},
                               m_folder->path());
        result seen{done.code, {}};
        for (const QString &line : done.out.split('\n'))
            seen.told.insert(line.section(": ", 0, 0), line.section(": ", 1));
        return seen;
    }
};

KIVZP_TEST(tst_startUp)
#include "tst_startUp.moc"

// Updates that are made: what is in them, that they are whole or not made at all, and how they get to a server.
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/programData.h"
#include "tools/zipEntries.h"
#include "update/fileSums.h"
#include "update/minisign.h"
#include "update/updateMaker.h"

#include "testSupport.h"

#include <QScopeGuard>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

using namespace testSupport;

class tst_updateMaker : public folderTest
{
    Q_OBJECT
    using textMap = QMap<QString, QByteArray>;
    using releaseMap = std::map<updates::part, QString>;

    QString made(const QString &name = {}) const
    {
        return m_folder->path("out" + (name.isEmpty() ? name : '/' + name));
    }
    static QByteArray firms(const QByteArray &content)
    {
        return document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd", "<suppliers>" + content + "</suppliers>");
    }
    updateMaker::job jobOf(const releaseMap &releases) const
    {
        updateMaker::job job;
        job.folder = made();
        job.releases = releases;
        job.programDir = m_folder->path("app");
        job.dataDir = m_folder->path("data");
        job.files = {{updates::firms, m_folder->path("data/_files/firms.xml")},
                     {updates::service, m_folder->path("data/_files/db.xml")}};
        return job;
    }
    // What is made, or the fault.
    static QString faultOf(const updateMaker::job &job) { return updateMaker::make(job).fault; }

    // All of an update's folder, as it is when it is not there too.
    textMap all() const
    {
        textMap found;
        QDirIterator files(made(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = files.next();
            found.insert(QDir(made()).relativeFilePath(path), files.fileInfo().isFile() ? read(path) : "folder");
        }
        if (QFileInfo::exists(made()))
            found.insert(".", {});
        return found;
    }
    static QStringList namesIn(const QString &archive)
    {
        QStringList names;
        for (const zipEntry &entry : zipEntries(archive).value_or(std::vector<zipEntry>()))
            names.append(entry.name);
        return names;
    }
    QStringList commands() const
    {
        kiv_UpdateStruct script;
        QString fault;
        if (!readChecked(made("updateScript.xml"), &script, &fault))
            return {fault};
        QStringList lines;
        for (const auto &command : script.commands)
            lines.append(QStringList{command->name, command->from, command->to}.join(' ').trimmed());
        return lines;
    }
    // Of the list of files, each of which has to be the one that it names.
    QStringList listed() const
    {
        QString fault;
        const auto sums = fileSums::read(read(made("kiv_update.sums")), &fault);
        if (!sums)
            return {fault};
        QStringList names;
        for (const fileSum &one : sums->all())
            names.append(one.name + sums->faultOf(one.name, made(one.name)));
        names.sort();
        return names;
    }

private slots:
    void init() override
    {
        folderTest::init();
        m_folder->ship({"_bin"});
        m_folder->script("app/KivZP", "exit 0");
        for (const char *name : {"_help/a b.html", "_validator/kiv_mat.xsd", "_bin/_curlrc", "_config/update.pub",
                                 "_e-mail/KIV_EMAIL.exe"})
            m_folder->write(QString("app/") + name, name);
        m_folder->write("data/_files/firms.xml", firms("<firm><name>A</name></firm>"));
        m_folder->write("data/_files/db.xml", database(""));
    }

    // Only the program, and it can be run where it comes to.
    void packsTheProgram()
    {
        const QStringList program{
            "KivZP",          "_bin/_curlrc",          "_config/update.pub", "_e-mail/KIV_EMAIL.exe",
            "_help/a b.html", "_validator/kiv_mat.xsd"};
        for (const char *other : {"_config/kiv_mat_config.xml",
                                  "_files/db.xml",
                                  "_files/boms/1.xml",
                                  "_zp/zp_0.xml",
                                  "_e-mail/msg_template.htm",
                                  "_E-Mail/MSG_2.htm",
                                  "_Files/x",
                                  "KivZP_BACKUP/a.xml",
                                  "update/journal.json",
                                  "update/1/new/KivZP",
                                  "kiv_info.xml",
                                  "cleanScript.xml",
                                  "KivZP.log",
                                  "_help/x.lock",
                                  "_help/x.html~",
                                  "x.db-journal",
                                  "_help/x.kivzp-aBcDeF",
                                  ".hidden",
                                  "_help/.cache/x",
                                  "ours.key",
                                  "older/kiv_update.sums",
                                  "older/program_1.zip"})
            m_folder->write(QString("app/") + other, other);
        updateMaker::job job = jobOf({{updates::program, "1.4"}});
        job.folder = m_folder->path("app/new/out");
        job.secretKey = m_folder->path("app/plain name");
        QCOMPARE(minisign::makeKeys(m_folder->path("x.pub"), job.secretKey), QString());
        QCOMPARE(faultOf(job), QString());
        const QString archive = job.folder + "/program_1.4.zip";
        QCOMPARE(namesIn(archive), program);

        QCOMPARE(QProcess::execute("unzip", {"-q", archive, "-d", m_folder->path("got")}), 0);
        for (const QString &name : program) {
            QCOMPARE(read(m_folder->path("got/" + name)), read(m_folder->path("app/" + name)));
            QCOMPARE(QFileInfo(m_folder->path("got/" + name)).isExecutable(), name == "KivZP");
        }
        // The folder is not packed into its own next update.
        job.releases[updates::program] = "1.5";
        QCOMPARE(faultOf(job), QString());
        QCOMPARE(namesIn(job.folder + "/program_1.5.zip"), program);
    }

    // A later update speaks of the parts of the earlier ones, too.
    void tellsOfAllParts()
    {
        updateMaker::job job = jobOf({{updates::firms, "12"}});
        job.description = QString::fromUtf8("<p>za\u017c\u00f3\u0142\u0107</p>");
        updateMaker::result result = updateMaker::make(job);
        QCOMPARE(result.fault, QString());
        QCOMPARE(result.files, QStringList({made("firms_12.zip"), made("description.html"), made("updateScript.xml"),
                                            made("kiv_info.xml"), made("kiv_update.sums")}));
        QCOMPARE(namesIn(made("firms_12.zip")), QStringList("_files/firms.xml"));
        QCOMPARE(listed(), QStringList({"description.html", "firms_12.zip", "kiv_info.xml", "updateScript.xml"}));
        QCOMPARE(QString::fromUtf8(read(made("description.html"))), job.description);

        job = jobOf({{updates::program, "1.4"}, {updates::service, "3"}});
        QCOMPARE(faultOf(job), QString());
        QCOMPARE(faultOf(jobOf({{updates::service, "3.1"}})), QString());
        const QStringList wanted{"download_file service_3.1.zip {temp}/service_3.1.zip",
                                 "extract_zip {temp}/service_3.1.zip",
                                 "download_file firms_12.zip {temp}/firms_12.zip",
                                 "extract_zip {temp}/firms_12.zip",
                                 "download_file program_1.4.zip {temp}/program_1.4.zip",
                                 "extract_zip {temp}/program_1.4.zip",
                                 "close_and_run_exe KivZP"};
        QCOMPARE(commands(), wanted);
        kiv_infoStruct info;
        QVERIFY(readChecked(made("kiv_info.xml"), &info));
        QCOMPARE(QStringList({info.kivVersion, info.kivServerLink, info.firmServerRelease, info.firmServerLink,
                              info.serviceServerRelease, info.serviceServerLink, info.bomServerRelease}),
                 QStringList({"1.4", "program_1.4.zip", "12", "firms_12.zip", "3.1", "service_3.1.zip", ""}));
        QCOMPARE(info.kivBuild, QDate::currentDate().toString("yyyyMMdd"));
        // Somebody may still download the package before; a description of another update is gone.
        QCOMPARE(all().keys(), QStringList({".", "firms_12.zip", "kiv_info.xml", "kiv_update.sums", "program_1.4.zip",
                                            "service_3.1.zip", "service_3.zip", "updateScript.xml"}));
        QCOMPARE(listed(), QStringList({"firms_12.zip", "kiv_info.xml", "program_1.4.zip", "service_3.1.zip",
                                        "updateScript.xml"}));
        for (const QString &name : all().keys())
            QVERIFY2(QFileInfo(made(name)).permission(QFile::ReadOther), qPrintable(name));
    }

    void signs()
    {
        const QString publicKey = m_folder->path("our keys.pub");
        updateMaker::job job = jobOf({{updates::firms, "1"}});
        job.secretKey = m_folder->path("our keys.key");
        QCOMPARE(minisign::makeKeys(publicKey, job.secretKey), QString());
        const updateMaker::result result = updateMaker::make(job);
        QCOMPARE(result.fault, QString());
        QCOMPARE(result.files.last(), made("kiv_update.sums.minisig"));
        const QStringList verify{"-V", "-q", "-p", publicKey, "-m", made("kiv_update.sums")};
        QCOMPARE(QProcess::execute("minisign", verify), 0);
        // Once the list is another one, its old signature would have the update refused.
        QCOMPARE(faultOf(jobOf({{updates::firms, "2"}})), QString());
        QVERIFY(!QFileInfo::exists(made("kiv_update.sums.minisig")));
        job.releases[updates::firms] = "3";
        QCOMPARE(faultOf(job), QString());
        QCOMPARE(QProcess::execute("minisign", verify), 0);
    }

    void refusals_data()
    {
        const rows<QString, QString, QString> row; // release of firms, what firms.xml becomes, what is said
        row("equal", "12", "", "12 is not newer than 12");
        row("equal in other words", "12.0", "", "12.0 is not newer than 12");
        row("lower", "9.9", "", "9.9 is not newer than 12");
        row.each({"", "1x", "0", "13/../../x", "../13", "13 ", "-13"}, "<tag>", "", "is no release");
        row("invalid file", "13", firms("\n<firm>\n<colour/></firm>"), "firms.xml: line 4, column ");
        row("no XML", "13", firms("\n<firm>\n<name></firm>"), "firms.xml: line 4, column ");
        row("empty file", "13", "\n", "firms.xml: ");
        row("another kind", "13", database(""), "firms.xml: the file is of another kind");
        row("no file", "13", "<none>", "the file is missing");
        row("elsewhere", "13", "<elsewhere>", "lies outside of");
        row("no name for others", "13", "<con>", "con.xml is no name of a file");
        row("in the data", "13", "<data>", "may not be changed");
        row("in the program", "13", "<program>", "may not be changed");
        row("no folder", "13", "<no folder>", "The folder is missing");
        row("no program", "13", "<no program>", "KivZP is missing");
        row("package gone", "13", "<gone>", "service_3.zip");
        row("information damaged", "13", "<info>", "kiv_info.xml: line ");
        row("no such key", "13", "<key>", "none.key is missing");
        row("nothing", "<none>", "", "Nothing is chosen");
    }
    // The fault names the file, and what there was stays.
    void refusals()
    {
        const auto [release, content, said] = fetch<QString, QString, QString>();
        QCOMPARE(faultOf(jobOf({{updates::firms, "12"}, {updates::service, "3"}})), QString());
        updateMaker::job job = jobOf({{updates::firms, release == "<tag>" ? tag() : release}});
        if (content == "<none>")
            job.files.erase(updates::firms);
        else if (content == "<elsewhere>")
            job.files[updates::firms] = m_folder->write("firms.xml", firms(""));
        else if (content == "<con>")
            job.files[updates::firms] = m_folder->write("data/con.xml", firms(""));
        else if (content == "<data>")
            job.folder = m_folder->path("data/_files/..");
        else if (content == "<program>")
            job.folder = m_folder->path("app/");
        else if (content == "<no folder>")
            job.folder = " ";
        else if (content == "<no program>")
            QVERIFY(QFile::remove(m_folder->path("app/KivZP")));
        else if (content == "<gone>")
            QVERIFY(QFile::remove(made("service_3.zip")));
        else if (content == "<info>")
            write(made("kiv_info.xml"), "<kiv_info>\n");
        else if (content == "<key>")
            job.secretKey = m_folder->path("none.key");
        else if (!content.isEmpty())
            write(job.files[updates::firms], content.toUtf8());
        if (content == "<no program>")
            job.releases[updates::program] = "1";
        if (release == "<none>")
            job.releases.clear();
        const textMap before = all();
        const QString fault = faultOf(job);
        QVERIFY2(fault.contains(said), qPrintable(fault));
        QCOMPARE(all(), before);
        QVERIFY(!QFileInfo::exists(m_folder->path("data/kiv_info.xml")));
        QVERIFY(!QFileInfo::exists(m_folder->path("app/kiv_info.xml")));
    }

    void wholeOrNothing_data()
    {
        const rows<QString, int> row; // what happens, how large files may become
        for (const int size : {0, 100, 400, 700, 1500, 20000})
            row(qPrintable(QString("full at %1").arg(size)), "full", size);
        row("read only", "read only", 0);
        row("a folder in the way", "folder", 0);
        // When it is to take the old one's place, after others did.
        row("the list vanishes", "vanishes", 0);
    }
    // Over an update that is there, and where there is none.
    void wholeOrNothing()
    {
        const auto [what, size] = fetch<QString, int>();
        QRandomGenerator random(20261126);
        QByteArray noise;
        for (int i = 0; i < 100000; ++i)
            noise += static_cast<char>(random.bounded(256));
        m_folder->write("app/noise", noise);
        for (const bool isFirst : {true, false}) {
            QVERIFY(files::removeFolder(made()));
            if (!isFirst)
                QCOMPARE(faultOf(jobOf({{updates::firms, "1"}})), QString());
            updateMaker::job job = jobOf({{updates::program, "1"}, {updates::firms, "2"}});
            const auto unlock = qScopeGuard([this] { QFile::setPermissions(made(), QFile::Permissions(0x7755)); });
            if (what == "folder") {
                m_folder->write("out/kiv_update.sums.minisig/x", "");
                if (isFirst)
                    m_folder->write("out/program_1.zip/x", "");
            }
            if (what == "read only") {
                QDir().mkpath(made());
                QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7755));
                QFile::setPermissions(made(), QFile::Permissions(0x5555));
            }
            if (what == "vanishes")
                job.progress = [this](long long, long long) {
                    for (const QString &name : QDir(made()).entryList({".new-*"}, QDir::Dirs | QDir::Hidden))
                        QFile::remove(made(name + "/kiv_update.sums"));
                    return true;
                };
            const textMap before = all();
            const auto handler = std::signal(SIGXFSZ, SIG_IGN);
            rlimit limit{};
            getrlimit(RLIMIT_FSIZE, &limit);
            rlimit small = limit;
            small.rlim_cur = rlim_t(size);
            const uid_t user = geteuid();
            if (what == "full")
                setrlimit(RLIMIT_FSIZE, &small);
            else if (what == "read only" && user == 0)
                QCOMPARE(seteuid(65534), 0);
            const QString fault = faultOf(job);
            QCOMPARE(seteuid(user), 0);
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, handler);
            QVERIFY(!fault.isEmpty());
            QCOMPARE(all(), before);
        }
        QCOMPARE(listed(), QStringList({"firms_1.zip", "kiv_info.xml", "updateScript.xml"}));
    }

    // Whenever that is: nothing of it is left, and the folder is as it was.
    void cancelled()
    {
        m_folder->write("app/large", QByteArray(3 << 20, 'x'));
        int asked = 0;
        int stopAt = 0;
        long long last = 0;
        const auto job = [&](const QString &release) {
            updateMaker::job one = jobOf({{updates::program, release}, {updates::firms, release}});
            asked = 0;
            last = 0;
            one.progress = [&](long long done, long long total) {
                const bool isBack = done < last || (total > 0 && done > total);
                if (isBack)
                    QTest::qFail("progress goes back", __FILE__, __LINE__);
                last = done;
                return ++asked != stopAt;
            };
            return one;
        };
        QCOMPARE(faultOf(job("1")), QString());
        const int count = asked;
        QVERIFY2(count > 20 && last > 3 << 20, qPrintable(QString("%1 %2").arg(count).arg(last)));
        const textMap before = all();
        for (stopAt = 1; stopAt <= count; ++stopAt) {
            const updateMaker::result result = updateMaker::make(job("2"));
            QVERIFY2(result.isCancelled && result.fault.isEmpty() && result.files.isEmpty(),
                     qPrintable(QString::number(stopAt) + result.fault));
            QCOMPARE(asked, stopAt);
            QCOMPARE(all(), before);
        }
        QVERIFY(files::removeFolder(made()));
        stopAt = count - 1;
        QVERIFY(updateMaker::make(job("2")).isCancelled);
        QVERIFY(!QFileInfo::exists(made()));
    }

    void uploads_data()
    {
        const rows<QString, QString, int, QString> row; // address, what pscp does, how many files come, what is said
        row("all", "scp://files.example/srv/new%20updates", "exit 0", 7, "");
        row("no slash needed", "scp://files.example/srv/new%20updates/", "exit 0", 7, "");
        row("third fails", "scp://files.example/srv/new%20updates",
            "[ $n -lt 3 ] || { echo \"$4: no space\"; exit 1; }", 3, "description.html: ***: no space");
        row("cancelled", "scp://files.example/srv/new%20updates", "[ $n -lt 2 ] || exec sleep 100", 2,
            "It was cancelled");
        row("of the web", "https://files.example/", "exit 0", 0, "is no address of secure copy");
        row("a folder", "/srv", "exit 0", 0, "is no address of secure copy");
    }
    // What speaks of a file comes after it, and the information file last.
    void uploads()
    {
        const auto [address, body, count, said] = fetch<QString, QString, int, QString>();
        const QStringList names{"firms_12.zip",    "program_1.4.zip",         "description.html", "updateScript.xml",
                                "kiv_update.sums", "kiv_update.sums.minisig", "kiv_info.xml"};
        QStringList files;
        QStringList wanted;
        for (const QString &name : names) {
            files.prepend(m_folder->write("out/" + name, "content"));
            if (wanted.size() < count)
                wanted.append("kiv key " + made(name) + " kiv@files.example:/srv/new updates/" + name);
        }
        std::swap(files[5], files[6]); // the packages keep their order
        m_folder->script("_bin/pscp.exe", "echo \"kiv $7 $9 ${10}\" >>'" + m_folder->path("got").toUtf8()
                                              + "'\nn=$(wc -l <'" + m_folder->path("got").toUtf8() + "')\n"
                                              + body.toUtf8());
        long long last = 0;
        const QString fault =
            updateMaker::upload(files, address, {"kiv", "Secret.23", "key"},
                                [&, stop = tag() == "cancelled"](long long done, long long total) {
                                    last = done;
                                    return total == 49
                                           && !(stop && done > 0 && QFile::exists(m_folder->path("got"))
                                                && read(m_folder->path("got")).count('\n') == 2);
                                });
        QVERIFY2(said.isEmpty() ? fault.isEmpty() : fault.contains(said), qPrintable(fault));
        QVERIFY(!fault.contains("Secret"));
        QCOMPARE(QString::fromUtf8(read(m_folder->path("got"))).split('\n', Qt::SkipEmptyParts), wanted);
        if (said.isEmpty())
            QCOMPARE(last, 49LL);
    }
};

KIVZP_TEST(tst_updateMaker)
#include "tst_updateMaker.moc"

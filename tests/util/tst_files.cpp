// Files and folders, and what happens to a file when writing it fails.
#include "testSupport.h"

#include "util/desktop.h"
#include "util/safeFile.h"
#include "util/scratch.h"

#include <QDesktopServices>
#include <QLockFile>

#include <csignal>
#include <sys/resource.h>

using namespace testSupport;

class tst_files : public folderTest
{
    Q_OBJECT
public slots:
    void opened(const QUrl &url) { m_opened.append(url); }

private slots:
    void textsAndLines()
    {
        const QString path = m_folder->path("new/sub/\u017c\u00f3\u0142w.txt");
        QVERIFY(files::writeText(path, "\u0105\r\nb\n"));
        QCOMPARE(read(path), QByteArray("\xc4\x85\r\nb\n"));
        QCOMPARE(files::readText(path), QString("\u0105\r\nb\n"));
        QStringList lines{"kept"};
        QVERIFY(files::readLines(path, &lines));
        QCOMPARE(lines, QStringList({"kept", "\u0105", "b"}));
        QVERIFY(!files::readLines(m_folder->path("none"), &lines));
        QCOMPARE(files::readText(m_folder->path("none")), QString());
        QVERIFY(!files::writeText(m_folder->path("new"), "a folder stands here"));
        QVERIFY(!files::writeText(path + "/below a file", "x"));
    }

    // What is not there counts as removed; what cannot be removed does not.
    void removed()
    {
        const QString file = m_folder->write("d/a", "x");
        m_folder->write("d/e/.hidden", "x");
        for (int i = 0; i < 2; ++i) {
            QVERIFY(files::removeFile(file) && !QFile::exists(file));
            QVERIFY(files::removeFolder(m_folder->path("d/e")) && !QFile::exists(m_folder->path("d/e")));
        }
        QVERIFY(!files::removeFile(m_folder->path("d")));
    }

    void listIsSortedAndFiltered()
    {
        for (const char *name : {"l/z.xml", "l/a/b.xml", "l/a/c.txt"})
            m_folder->write(name, "");
        const QString top = m_folder->path("l");
        QCOMPARE(files::list(top + "//", {"*.xml"}), QStringList({top + "/a/b.xml", top + "/z.xml"}));
        QCOMPARE(files::list(top, {}).size(), 3);
        QVERIFY(files::list(m_folder->path("none"), {}).isEmpty());
    }

    void temporaryNamesFollowTheScratchFolder()
    {
        const QString before = files::temporaryFileName();
        QVERIFY(QDir::isAbsolutePath(before));
        QVERIFY(!QFile::exists(before));
        const QString scratch = paths::temporaryDir();
        QCOMPARE(paths::temporaryDir(), scratch);
        QVERIFY(!QFile::exists(scratch));
        QVERIFY(files::temporaryFileName().startsWith(scratch + '/'));
    }

    void scratchFolderIsOursAlone()
    {
        const QString own = scratch::folder();
        QCOMPARE(own, paths::temporaryDir());
        QCOMPARE(int(QFile::permissions(own)) & 0x77, 0);
        // Another program's start does not take it.
        scratch::clearLeft();
        QVERIFY(QFile::exists(own));
        scratch::remove();
        QVERIFY(!QFile::exists(own));
    }

    void killedProgramsLeaveNothing()
    {
        qputenv("TMPDIR", QFile::encodeName(m_folder->path()));
        m_folder->write("KivZP-killed/.lock", "999999999\nKivZP\n" + QSysInfo::machineHostName().toUtf8() + "\n");
        m_folder->write("KivZP-living/order.pdf", "x");
        m_folder->write("KivZP-mailed/order.pdf", "a composer reads it");
        QLockFile living(m_folder->path("KivZP-living/.lock"));
        living.setStaleLockTime(0);
        QVERIFY(living.tryLock());
        // A folder of one's own begins with clearing.
        scratch::remove();
        scratch::folder();
        qunsetenv("TMPDIR");
        QCOMPARE(QDir(m_folder->path()).entryList({"KivZP-*"}), QStringList({"KivZP-living", "KivZP-mailed"}));
    }

    void killedSavesLeaveNothing()
    {
        QStringList kept{"a.xml",
                         "a.xml.AbCdEf",
                         "a.xml.BACKUP",
                         "a.xml.bakOLD",
                         "a.xml.backup",
                         "a.xml.kivzp-AbCdEfg",
                         "a.xml.kivzp-QwErTy",
                         "a.xml.mojKop",
                         "b.xml.kivzp-AbCdEf",
                         "xa.xml.kivzp-AbCdEf"};
        std::sort(kept.begin(), kept.end());
        for (const QString &name : kept + QStringList{"a.xml.kivzp-AbCdEf", "a.xml.kivzp-zzzzzA"})
            m_folder->write(name, "x");
        QFile living(m_folder->path("a.xml.kivzp-QwErTy"));
        QVERIFY(living.open(QIODevice::WriteOnly));
        scratch::clearLeftSaves(m_folder->path("a.xml"));
        QStringList left = QDir(m_folder->path()).entryList(QDir::Files);
        left.sort();
        QCOMPARE(left, kept);
    }

    void suffixes_data()
    {
        const QString xml = "Xml File (*.xml)", html = "Html File (*.html)", pdf = "Pdf File (*.pdf)";
        const QString both = html + ";;" + pdf;
        // The name typed is the tag.
        const rows<QString, QString, QString> row;
        row("/a/print 1", pdf, pdf, "/a/print 1.pdf");
        row("/a.pdf/p", pdf, pdf, "/a.pdf/p.pdf");
        row("1.5", xml, xml, "1.5.xml");
        row("x.PDF", pdf, pdf, "x.PDF");
        row("no filter", "", "", "no filter");
        row("x.pdf", both, html, "x.pdf");
        row("x", both, html, "x.html");
        row("y", both, pdf, "y.pdf");
        row("y.html", both, pdf, "y.pdf");
        row("y.txt", both, pdf, "y.txt.pdf");
        row("", pdf, pdf, "");
    }

    void suffixes()
    {
        const auto [filters, chosen, written] = fetch<QString, QString, QString>();
        QCOMPARE(prompts::withSuffix(tag(), chosen, filters), written);
    }

    void links_data()
    {
        const rows<bool> row;
        row.each({"http://a.pl/x.exe", "https://a.pl", "mailto:a@b.pl", "file://%/doc.PDF", "file://%/_files/a b.html"},
                 true);
        row.each({"file://%/evil.sh", "file://%/evil.desktop", "file://%/none.pdf", "file://%/linked.pdf",
                  "file://%/out.pdf", "file:///etc/services.txt", "file://%/_files/../../away.pdf", "file://%",
                  "file://server/share/a.pdf", "vbscript:x", "javascript:alert(1)", "ftp://a.pl/x", "http:x", "x.pdf",
                  "mailto:a@b.pl?subject=x&attach=/etc/passwd"},
                 false);
    }

    void links()
    {
        for (const char *name : {"doc.PDF", "_files/a b.html", "evil.sh", "evil.desktop"})
            m_folder->write(name, "x");
        const QTemporaryDir away;
        QVERIFY(QFile(m_folder->path("evil.sh")).link(m_folder->path("linked.pdf")));
        QVERIFY(QFile(m_folder->path("doc.PDF")).copy(away.filePath("away.pdf")));
        QVERIFY(QFile(away.filePath("away.pdf")).link(m_folder->path("out.pdf")));
        const QUrl link(tag().replace('%', m_folder->path()));
        for (const char *scheme : {"http", "https", "mailto", "file", "vbscript", "javascript", "ftp"})
            QDesktopServices::setUrlHandler(scheme, this, "opened");
        m_opened.clear();
        const auto [allowed] = fetch<bool>();
        QCOMPARE(desktop::followLink(link), allowed);
        QCOMPARE(m_opened, allowed ? QList<QUrl>{link} : QList<QUrl>());
        QCOMPARE(m_shown->errors.join("").contains(link.toString()), !allowed);
    }

    void fullDiskKeepsTheOldFile_data()
    {
        const rows<int, int> row;
        row("one large block", 300000, 1);
        row("many small pieces", 300000, 30000);
        row("less than one block", 120000, 10);
    }

    void fullDiskKeepsTheOldFile()
    {
        const auto [size, pieces] = fetch<int, int>();
        const QString path = m_folder->write("f", "old");

        // A limit on the size of files is a disk that fills up in the middle of a write.
        const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        rlimit small = before;
        small.rlim_cur = 100000;
        setrlimit(RLIMIT_FSIZE, &small);
        bool committed = false;
        {
            safeFile file(path);
            if (file.open(QIODevice::WriteOnly))
                for (int i = 0; i < pieces; ++i)
                    file.write(QByteArray(size / pieces, 'x'));
            committed = file.commit();
        }
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, oldHandler);

        QVERIFY(!committed);
        QCOMPARE(read(path), QByteArray("old"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList({"f"}));
    }

    void abandonedWritingLeavesNothing()
    {
        {
            safeFile file(m_folder->path("f"));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("x");
        }
        QVERIFY(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }

private:
    QList<QUrl> m_opened;
};

KIVZP_TEST(tst_files)
#include "tst_files.moc"

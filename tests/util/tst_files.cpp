// Files and folders, and what happens to a file when writing it fails.
#include "testSupport.h"

#include "util/files.h"
#include "util/paths.h"
#include "util/safeFile.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>

class tst_files : public QObject
{
    Q_OBJECT
private slots:
    void textsAndLines();
    void copyRemoveAndSize();
    void listIsSortedAndFiltered();
    void temporaryNamesFollowTheScratchFolder();
    void fullDiskKeepsTheOldFile_data();
    void fullDiskKeepsTheOldFile();
    void abandonedWritingLeavesNothing();
};

void tst_files::textsAndLines()
{
    const testSupport::programFolder folder;
    const QString path = folder.path("new/sub/\u017c\u00f3\u0142w.txt");
    QVERIFY(files::writeText(path, "\u0105\r\nb\n"));
    QCOMPARE(testSupport::read(path), QByteArray("\xc4\x85\r\nb\n"));
    QCOMPARE(files::readText(path), QString("\u0105\r\nb\n"));
    QStringList lines{"kept"};
    QVERIFY(files::readLines(path, &lines));
    QCOMPARE(lines, QStringList({"kept", "\u0105", "b"}));
    QVERIFY(!files::readLines(folder.path("none"), &lines));
    QCOMPARE(files::readText(folder.path("none")), QString());
    QVERIFY(!files::writeText(folder.path("new"), "a folder stands here"));
    QVERIFY(!files::writeText(path + "/below a file", "x"));
    QVERIFY(files::folderExists(folder.path("new/sub")));
}

void tst_files::copyRemoveAndSize()
{
    const testSupport::programFolder folder;
    const QString from = folder.write("d/a", "12345");
    const QString to = folder.write("d/e/.hidden", "old");
    QVERIFY(files::copyFile(from, to));
    QCOMPARE(testSupport::read(to), QByteArray("12345"));
    QVERIFY(!files::copyFile(folder.path("none"), to));
    folder.write("d/e/b", "123");
    QFile::link(folder.path("d"), folder.path("d/e/loop"));
    QCOMPARE(files::folderSize(folder.path("d")), qint64(8));
    QVERIFY(files::removeFile(from));
    QVERIFY(files::removeFile(from));
    QVERIFY(files::removeFolder(folder.path("d")));
    QVERIFY(files::removeFolder(folder.path("d")));
    QVERIFY(!files::folderExists(folder.path("d")));
}

void tst_files::listIsSortedAndFiltered()
{
    const testSupport::programFolder folder;
    folder.write("l/z.xml", "");
    folder.write("l/a/b.xml", "");
    folder.write("l/a/c.txt", "");
    const QString top = folder.path("l");
    QCOMPARE(files::list(top + "//", {"*.xml"}), QStringList({top + "/a/b.xml", top + "/z.xml"}));
    QCOMPARE(files::list(top, {}).size(), 3);
    QVERIFY(files::list(folder.path("none"), {}).isEmpty());
}

void tst_files::temporaryNamesFollowTheScratchFolder()
{
    const QString before = files::temporaryFileName();
    QVERIFY(QDir::isAbsolutePath(before));
    QVERIFY(!QFile::exists(before));
    const QString scratch = paths::temporaryDir();
    QCOMPARE(paths::temporaryDir(), scratch);
    QVERIFY(!files::folderExists(scratch));
    QVERIFY(files::temporaryFileName().startsWith(scratch + '/'));
}

void tst_files::fullDiskKeepsTheOldFile_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("pieces");
    QTest::newRow("one large block") << 300000 << 1;
    QTest::newRow("many small pieces") << 300000 << 30000;
    QTest::newRow("less than one block") << 120000 << 10;
}

void tst_files::fullDiskKeepsTheOldFile()
{
    QFETCH(int, size);
    QFETCH(int, pieces);
    const testSupport::programFolder folder;
    const QString path = folder.write("f", "old");

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
    QCOMPARE(testSupport::read(path), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"f"}));
}

void tst_files::abandonedWritingLeavesNothing()
{
    const testSupport::programFolder folder;
    {
        safeFile file(folder.path("f"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("x");
    }
    QVERIFY(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

KIVZP_TEST(tst_files)
#include "tst_files.moc"

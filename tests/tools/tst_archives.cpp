// Packing and unpacking with the real zip and unzip.
#include "runnerSupport.h"

#include "tools/zipEntries.h"
#include "tools/zip_compress.h"

#include <QtEndian>

using namespace testSupport;

namespace {

const QString polish = QString::fromUtf8("za\xc5\xbc\xc3\xb3\xc5\x82\xc4\x87 g\xc4\x99\xc5\x9bl");
const QStringList packed{"a.xml", ".hidden", "-r", polish + "/b \"c\" [d].txt"};

QByteArray number(quint64 value, int bytes)
{
    QByteArray text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> (8 * i));
    return text;
}

// An archive of one file of one byte "x", stored, or deflated to the size it says.
QByteArray archiveOf(const QByteArray &name, quint32 mode = 0100644, quint32 size = 1)
{
    const QByteArray sizes = number(0x8cdc1683, 4) + number(1, 4) + number(size, 4);
    const QByteArray head =
        number(0, 2) + number(size == 1 ? 0 : 8, 2) + number(0, 4) + sizes + number(name.size(), 2) + number(0, 2);
    const QByteArray file = "PK\3\4" + number(20, 2) + head + name + "x";
    const QByteArray directory = "PK\1\2" + number(0x0314, 2) + number(20, 2) + head + number(0, 2) + number(0, 2)
                                 + number(0, 2) + number(quint64(mode) << 16, 4) + number(0, 4) + name;
    return file + directory + "PK\5\6" + number(0, 4) + number(1, 2) + number(1, 2) + number(directory.size(), 4)
           + number(file.size(), 4) + number(0, 2);
}

QStringList names(const QString &archive)
{
    QStringList list;
    if (const auto entries = zipEntries(archive))
        for (const zipEntry &entry : *entries)
            list.append(entry.name);
    return list;
}

} // namespace

class tst_archives : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<helperFolder>();
        m_folder->ship();
        for (const QString &name : packed)
            m_folder->write("in/" + name, name.toUtf8().repeated(10000));
    }

    void cleanup() { m_folder.reset(); }
    void thereAndBack_data()
    {
        const rows<QString, QString> row;
        row("no password", "a.zip", "");
        row("password", "a.zip", "tajne");
        row("blanks and quotes", "a b.zip", "a \"b\" c");
        row("like an option", "-a.zip", "-r");
        row("Polish", polish + ".zip", polish + "7");
        row("like a pattern", "a[b]*?.zip", "x");
        row("date and time", "boms_2026.11.25_10:00:00.zip", "x");
    }

    void thereAndBack()
    {
        const auto [archive, password] = fetch<QString, QString>();
        const QString path = m_folder->path("to/" + archive);
        QDir().mkpath(m_folder->path("to"));
        // Taken for a pattern, "a[b]*?.zip" names this one.
        m_folder->write("to/ab__.zip", archiveOf("wrong"));

        QVERIFY2(pack(m_folder->path("in"), path, password) == 0, qPrintable(m_log));
        QVERIFY(m_log.startsWith("Compression start [" + path + "]"));
        QVERIFY(m_log.endsWith("Compression complete"));
        if (password.size() > 2)
            QVERIFY(!m_log.contains(password) && !m_log.toLatin1().contains(password.toUtf8()));
        QCOMPARE(names(path).size(), 5);

        const QString target = m_folder->path("out " + polish + "/[x]");
        QVERIFY2(unpack(path, target, password) == 0, qPrintable(m_log));
        QVERIFY(m_log.endsWith("Decompression complete"));
        if (password.size() > 2)
            QVERIFY(!m_log.contains(password) && !m_log.toLatin1().contains(password.toUtf8()));
        for (const QString &name : packed) {
            const QByteArray content = read(m_folder->path("in/" + name));
            QVERIFY(!content.isEmpty());
            QCOMPARE(read(target + '/' + name), content);
        }
    }

    void wrongPassword()
    {
        const QString archive = m_folder->path("a.zip");
        QCOMPARE(pack(m_folder->path("in"), archive, "right"), 0);
        for (const QString &password : {QString("wrong"), QString()}) {
            const QString target = m_folder->path("out" + password);
            QVERIFY(unpack(archive, target, password) > 0);
            QVERIFY(!QFile::exists(target + "/a.xml"));
        }
    }

    void replacesOrKeeps()
    {
        const QString archive = m_folder->path("a.zip");
        m_folder->write("other/old.txt", "old");
        QCOMPARE(pack(m_folder->path("other"), archive), 0);
        const QByteArray before = read(archive);
        const QStringList around = QDir(m_folder->path()).entryList(QDir::Files);

        // Nothing to pack, no zip, and one that is deleted while it works: the old archive stays.
        QDir().mkpath(m_folder->path("empty"));
        QVERIFY(pack(m_folder->path("empty"), archive) > 0);
        QCOMPARE(read(archive), before);
        QFile::rename(m_folder->path("_bin/zip.exe"), m_folder->path("_bin/zip"));
        QCOMPARE(pack(m_folder->path("in"), archive), -1001);
        QCOMPARE(read(archive), before);
        m_folder->script("zip.exe", "echo x >'" + archive.toUtf8() + "'; sleep 100");
        {
            zip_compress runner;
            runner.compress(m_folder->path("in"), archive);
            QTRY_VERIFY(QFile::exists(archive));
        }
        QCOMPARE(read(archive), before);
        QFile::remove(m_folder->path("_bin/zip.exe"));
        QFile::rename(m_folder->path("_bin/zip"), m_folder->path("_bin/zip.exe"));

        QCOMPARE(pack(m_folder->path("in"), archive), 0);
        QVERIFY(!names(archive).contains("old.txt"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), around);

        // In the folder itself: packed without itself, and not replaced.
        const QString inside = m_folder->path("in/self.zip");
        QCOMPARE(pack(m_folder->path("in"), inside), 0);
        QCOMPARE(names(inside).size(), 5);
        QCOMPARE(pack(m_folder->path("in"), inside), -1001);
    }

    void outsideIsRefused_data()
    {
        const rows<quint32, bool> row;
        row.each({"x", "a/..b/x", "a/./x"}, 0100644, true);
        row.each({"../x", "a/../../x", "a/..", "..\\x", "a\\..\\..\\x", "/tmp/kivzp_outside", "\\x", "C:x", "c:\\x"},
                 0100644, false);
        row("link", 0120777, false);
    }

    void outsideIsRefused()
    {
        const auto [mode, inside] = fetch<quint32, bool>();
        const QByteArray name = QTest::currentDataTag();
        const QString archive = m_folder->write("evil.zip", archiveOf(name, mode));
        const QString target = m_folder->path("deep/out");
        QCOMPARE(unpack(archive, target), inside ? 0 : -1001);
        QCOMPARE(QFile::exists(target + '/' + name), inside);
        QCOMPARE(m_log.contains("outside the folder [" + name + "]"), !inside);
        // Refused before anything is written.
        QCOMPARE(QFile::exists(m_folder->path("deep")), inside);
    }

    void linksInTheFolder()
    {
        const QString target = m_folder->path("out");
        QDir().mkpath(target + "/sub");
        QVERIFY(QFile::link(m_folder->path("in"), target + "/away"));
        QVERIFY(QFile::link(target + "/sub", target + "/near"));
        QCOMPARE(unpack(m_folder->write("1.zip", archiveOf("away/n/x")), target), -1001);
        QVERIFY(!QFile::exists(m_folder->path("in/n")));
        QCOMPARE(unpack(m_folder->write("2.zip", archiveOf("near/n/x")), target), 0);
        QVERIFY(QFile::exists(target + "/sub/n/x"));
    }

    // What would fill the disk is refused before anything is written.
    void hugeArchives()
    {
        const auto large = [this](const QByteArray &archive) {
            unpack(m_folder->write("huge.zip", archive), m_folder->path("huge"));
            return m_log.contains("Archive unpacks to more than it may [");
        };
        QVERIFY(large(archiveOf("x", 0100644, 0xfffffff0)));
        QVERIFY(large(archiveOf("x", 0100644, 51 << 20)));
        // 300 MB that say to be 1000 bytes, in the directory and before the file.
        m_folder->write("bomb/x", QByteArray(300 << 20, 0));
        QCOMPARE(pack(m_folder->path("bomb"), m_folder->path("bomb.zip")), 0);
        QByteArray bomb = read(m_folder->path("bomb.zip"));
        QVERIFY(large(bomb));
        bomb.replace(number(300 << 20, 4), number(1000, 4));
        QVERIFY(large(bomb));
        QVERIFY(!QFile::exists(m_folder->path("huge")));
        QVERIFY(!large(archiveOf("x", 0100644, 49 << 20)));
        const std::vector<zipEntry> gigabytes(3, {"x", false, quint64(1) << 30});
        QVERIFY(isTooLarge(gigabytes, qint64(4) << 30));
        QVERIFY(!isTooLarge({gigabytes.begin(), gigabytes.begin() + 2}, qint64(1) << 30));
        QVERIFY(isTooLarge({{"x", false, ~quint64(0)}, {"y", false, 2}}, qint64(1) << 40));
    }

    // Every cut and many changed bytes: read or refused, and nothing is read that is not there.
    void damagedArchives()
    {
        const QByteArray good = archiveOf("name");
        for (int length = 0; length < good.size(); ++length)
            QVERIFY(!zipEntries(m_folder->write("cut.zip", good.left(length))));
        QVERIFY(!zipEntries(m_folder->write("shifted.zip", "#!/bin/sh\n" + good)));
        // One name in the directory, another before the file.
        QVERIFY(zipEntries(m_folder->write("honest.zip", good)));
        QVERIFY(!zipEntries(m_folder->write("lying.zip", QByteArray(good).replace(30, 4, "evil"))));
        QRandomGenerator random(20261125);
        int refused = 0;
        for (int round = 0; round < 1000; ++round) {
            QByteArray bad = good;
            for (int i = 0; i < 3; ++i)
                bad[random.bounded(bad.size())] = static_cast<char>(random.bounded(256));
            const auto entries = zipEntries(m_folder->write("bad.zip", bad));
            refused += entries ? 0 : 1;
            QVERIFY(!entries || entries->size() == 1);
        }
        QVERIFY(refused > 200);
        QCOMPARE(unpack(m_folder->write("no.zip", "no archive"), m_folder->path("no")), -1001);
        QVERIFY(!QFile::exists(m_folder->path("no")));
    }

    void refusals()
    {
        QCOMPARE(pack(m_folder->path("none"), m_folder->path("a.zip")), -1001);
        QCOMPARE(pack("", m_folder->path("a.zip")), -1001);
        QCOMPARE(pack(m_folder->path("in"), ""), -1001);
        // A folder in the archive's place is nobody's archive.
        QCOMPARE(pack(m_folder->path("in"), m_folder->path("_validator")), -1001);
        QVERIFY(QFileInfo(m_folder->path("_validator")).isDir());
        QCOMPARE(unpack(m_folder->path("none.zip"), m_folder->path("out")), -1001);
        const QString good = m_folder->write("good.zip", archiveOf("x"));
        QCOMPARE(unpack(good, ""), -1001);
        QCOMPARE(unpack(good, m_folder->path("in/a.xml")), -1001);
    }

    void commandTexts()
    {
        QCOMPARE(zip_compress::compressCommand("/t/a b.zip", "pw"), QString("_bin\\zip.exe -P pw -r \"/t/a b.zip\" ."));
        QCOMPARE(zip_compress::compressCommand("/t/a.zip", ""), QString("_bin\\zip.exe -r \"/t/a.zip\" ."));
    }

private:
    int wait(const std::function<void(zip_compress &)> &begin)
    {
        zip_compress runner;
        const runnerLog log(&runner, &zip_compress::updateProgress);
        begin(runner);
        const int result = runner.wait();
        m_log = log.text();
        return result;
    }
    int pack(const QString &folder, const QString &archive, const QString &password = {})
    {
        return wait([&](zip_compress &runner) { runner.compress(folder, archive, password); });
    }
    int unpack(const QString &archive, const QString &folder, const QString &password = {})
    {
        return wait([&](zip_compress &runner) { runner.decompress(archive, folder, password); });
    }
    std::unique_ptr<helperFolder> m_folder;
    QString m_log;
};

KIVZP_TEST(tst_archives)
#include "tst_archives.moc"

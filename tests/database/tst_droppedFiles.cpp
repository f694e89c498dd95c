// What files dropped on a database are told to be, what is done with them, and copies of datasheets.
#include "testSupport.h"

#include "database/droppedFiles.h"
#include "database/materialFiles.h"

using namespace testSupport;
namespace to = droppedFiles;

class tst_droppedFiles : public folderTest
{
    Q_OBJECT

private slots:
    void recognised_data()
    {
        // Name, bytes, kind, part of the fault.
        const rows<QString, QByteArray, int, QString> row;
        const QByteArray base = testSupport::database("<d_group name=\"Towar:\"/>");
        row("database", "a.xml", base, to::database, "");
        row("database of another name", "a.bak", base, to::database, "");
        row("database called a picture", "a.pdf", base, to::database, "");
        row("order", "o.xml", order(""), to::other, "no material database");
        row("BOM list", "b.xml", bom(""), to::other, "no material database");
        row("other root", "x.xml", "<svg><a/></svg>", to::other, "no file of this program");
        row("broken", "x.xml", "<kiv_mat", to::other, "1");
        row("listing", "w.txt", "Magazyn\r\nTowar: K\r\n", to::listing, "");
        row("listing without an ending", "w", "Towar: K", to::listing, "");
        row("small letters are none", "w.txt", "towar: K", to::other, "neither");
        row("table", "c.txt", "Rezystory\t31711130-3 Oporniki\n", to::cpvTable, "");
        row("table with bad lines", "c.tsv", "x\nA\t317\nB\t31711130-3", to::cpvTable, "");
        row("table with Windows line ends", "c.csv", "A\t31711130-3\r\nB\t\r\n", to::cpvTable, "");
        row("dictionary", "cpv.tsv", "31711130-3\tResistors\tRezystory\n31711131-0\tA\t31711130-3\n", to::other,
            "neither");
        row("longer number", "c.txt", "A\t31711130-33\nB\t131711130-3", to::other, "neither");
        row("text", "a.txt", "Hello\tworld", to::other, "neither");
        row("pdf", "a.PDF", "%PDF-1.4\n\0", to::datasheet, "");
        row("pdf behind blanks", "a.pdf", QByteArray(500, '\n') + "%PDF-1.4", to::datasheet, "");
        row("pdf by name only", "a.pdf", "Towar: K", to::other, "does not hold");
        row("png", "a.png", "\x89PNG\r\n", to::datasheet, "");
        row("jpeg called png", "a.png", "\xFF\xD8\xFF", to::other, "does not hold");
        row("tif of the other order", "a.tif", QByteArray("MM\0*", 4), to::datasheet, "");
        row("web page", "a.html", "\xEF\xBB\xBF\n<!DOCTYPE html>", to::datasheet, "");
        row("workbook", "a.xlsx", "PK\x03\x04", to::datasheet, "");
        row("archive", "a.zip", QByteArray("PK\x03\x04\0", 5), to::other, "not known");
        row("program", "a.exe", QByteArray("MZ\0Towar:", 9), to::other, "not known");
        row("empty", "a.pdf", "", to::other, "is empty");
    }
    void recognised()
    {
        const auto [name, bytes, is, fault] = fetch<QString, QByteArray, int, QString>();
        const to::file found = to::recognise(m_folder->write(name, bytes));
        QCOMPARE(int(found.is), is);
        QVERIFY2(found.fault.contains(fault), qPrintable(found.fault));
        QCOMPARE(found.fault.isEmpty(), found.is != to::other);
    }

    // The files of a real warehouse, where there are some.
    void realFiles_data()
    {
        const rows<QString, int> row;
        const QString real = qEnvironmentVariable("KIVZP_REAL_DATA");
        row("none", "", to::other);
        const std::pair<const char *, to::content> known[] = {
            {"warehouse*.txt", to::listing}, {"cpv_groups*.txt", to::cpvTable}, {"cpv.tsv", to::other},
            {"db_*.xml", to::database},      {"boms.xml", to::other},           {"firms.xml", to::other},
            {"db_*.gz", to::other},          {"sources.md", to::other}};
        for (const auto &[pattern, is] : known)
            for (const QString &path : real.isEmpty() ? QStringList() : QDir(real).entryList({pattern}))
                row(qPrintable(path), real + '/' + path, is);
        for (const QString &path : real.isEmpty() ? QStringList() : files::list(real + "/boms", {"*.xml"}))
            row(qPrintable(path.section('/', -2)), path, to::other);
    }
    void realFiles()
    {
        const auto [path, is] = fetch<QString, int>();
        QCOMPARE(int(to::recognise(path).is), is);
    }

    void plans_data()
    {
        // The kinds dropped, one letter each: d database, l listing, c CPV table, s datasheet, o other; on what: l
        // locked, m a material, f one with a firm.
        const rows<QString, QString, int, QString> row;
        row("database", "d", "", to::merge, "Compare with a");
        row("database while locked", "d", "l", to::merge, "Compare");
        row("two databases", "dd", "", to::refuse, "Only datasheets");
        row("listing", "l", "mf", to::takeListing, "from a");
        row("listing while locked", "l", "l", to::refuse, "locked");
        row("table", "c", "", to::loadCpv, "from a");
        row("datasheet on a material", "s", "mf", to::attach, "Attach a to M");
        row("datasheets", "sss", "mf", to::attach, "Attach 3 files to M");
        row("datasheet on nothing", "s", "", to::refuse, "dropped on the material");
        row("nobody to belong to", "s", "m", to::refuse, "M has no manufacturer");
        row("datasheet while locked", "s", "lmf", to::refuse, "locked");
        row("datasheet and listing", "sl", "mf", to::refuse, "Only datasheets");
        row("one of them unknown", "sos", "mf", to::refuse, "b is no material database");
        row("nothing", "", "mf", to::refuse, "no file");
    }
    void plans()
    {
        const auto [kinds, on, what, text] = fetch<QString, QString, int, QString>();
        std::vector<to::file> dropped;
        for (const QChar kind : kinds)
            dropped.push_back({QString("/x/") + QChar('a' + int(dropped.size())),
                               to::content(QString("dlcso").indexOf(kind)), "why"});
        const to::plan found =
            to::planOf(dropped, {on.contains('l'), on.contains('m') ? "M" : QString(), on.contains('f')});
        QCOMPARE(int(found.what), what);
        QVERIFY2(found.text.contains(text), qPrintable(found.text));
    }

    void copiesAreKept()
    {
        const QTemporaryDir from;
        const auto keep = [&from](const QString &name, const QByteArray &bytes) {
            testSupport::write(from.filePath(name), bytes);
            QString error;
            const QString link = materialFiles::keepCopy(from.filePath(name), &error);
            return link.isEmpty() ? error : link;
        };
        QCOMPARE(keep("ab c#1.pdf", "1"), QString("_files/datasheets/ab c#1.pdf"));
        QCOMPARE(keep("ab c#1.pdf", "1"), QString("_files/datasheets/ab c#1.pdf"));
        QCOMPARE(keep("ab c#1.pdf", "2"), QString("_files/datasheets/ab c#1 (2).pdf"));
        QCOMPARE(keep("ab c#1.pdf", "3"), QString("_files/datasheets/ab c#1 (3).pdf"));
        QCOMPARE(keep("ab c#1.pdf", "2"), QString("_files/datasheets/ab c#1 (2).pdf"));
        QCOMPARE(read(m_folder->path("_files/datasheets/ab c#1.pdf")), QByteArray("1"));
        // One that lies in the data folder is no copy.
        QString error;
        QCOMPARE(materialFiles::keepCopy(m_folder->write("_files/own/d.pdf", "4"), &error),
                 QString("_files/own/d.pdf"));
        QVERIFY(error.isEmpty());
        QDir(m_folder->path("_files/datasheets")).removeRecursively();
        m_folder->write("_files/datasheets", "in the way");
        QVERIFY(keep("e.pdf", "5").contains("cannot be copied"));

        QCOMPARE(materialFiles::addressOf("_files/own/d.pdf"), QUrl::fromLocalFile(m_folder->path("_files/own/d.pdf")));
        QCOMPARE(materialFiles::addressOf(" www.ti.com/a.pdf"), QUrl("http://www.ti.com/a.pdf"));
    }
};

KIVZP_TEST(tst_droppedFiles)
#include "tst_droppedFiles.moc"

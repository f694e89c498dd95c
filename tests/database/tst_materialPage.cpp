// The page of one material: what it tells, leaves out, escapes, and where its links lead.
#include "testSupport.h"

#include "database/materialPage.h"
#include "util/text.h"
#include "util/translation.h"

using namespace testSupport;

class tst_materialPage : public folderTest
{
    Q_OBJECT

    static QString plain(const materialPage::subject &of, const materialPage::knownUses &uses = {})
    {
        return text::htmlToPlain(materialPage::page(of, uses)).simplified();
    }

private slots:
    void cleanup() override
    {
        translation::install("en");
        folderTest::cleanup();
    }

    void tellsWhatIsFilled()
    {
        kiv_mat_databaseStruct database;
        database.fileName = "db.xml";
        materialStruct *m = material(database, "Rezystory", "K", "Rezystor");
        QString before = plain({m, database.groups[0].get(), &database, nullptr});
        for (const char *caption : {"[ PLN ]", "Parameters", "CAD library", "Manufacturers", "Suppliers", "Comment"})
            QVERIFY2(!before.contains(caption), qPrintable(before));
        QVERIFY(before.contains("Rezystory") && before.contains("db.xml") && before.contains("In no BOM list"));
        m->d_price = "1234,5";
        m->d_inWarehouse = "20";
        m->d_unit = "pcs.";
        m->d_case = "SZARY"; // no status here
        m->d_footprintRef6 = "R0603";
        m->information.status = "ZIELONY";
        manufacturer(m, "Yageo", "RC0603", "http://x/a.pdf")->files.items[0]->type = "FILE_DATASHEET";
        supplier(m, "TME", "TME-77");
        const QStringList parts{"1 234.50 [ PLN ]", "20 pcs.", "Case SZARY", "FootprintRef6 R0603", "Status \u25cf GREEN",
                                "Manufacturers Yageo RC0603 Datasheet http://x/a.pdf", "Suppliers TME TME-77"};
        const QString told = plain({m, nullptr, nullptr, nullptr}).replace(QChar(0xa0), ' ').simplified();
        for (const QString &part : parts)
            QVERIFY2(told.contains(part), qPrintable(part + " in " + told));
        translation::install("pl");
        QVERIFY(plain({m, nullptr, nullptr, nullptr}).contains("20 szt."));
    }

    void firmsOfTheRegister()
    {
        kiv_mat_firmStruct firms;
        firmStruct *firm = appendTo(firms.manufacturers);
        firm->name = "Yageo";
        firm->status = "ZIELONY";
        firm->homepage = "www.yageo.com";
        kiv_mat_databaseStruct database;
        materialStruct *m = material(database, "G", "K", "N");
        manufacturer(m, "Yageo", "1");
        // The supplier of that name is another firm.
        supplier(m, "Yageo", "2");
        const QString page = materialPage::page({m, nullptr, nullptr, &firms}, {});
        QCOMPARE(page.count("<a href=\"http://www.yageo.com\">Yageo</a>"), 1);
        QCOMPARE(page.count("#2E9E4F"), 1);
    }

    void usesAreLinks()
    {
        kiv_mat_databaseStruct database;
        materialStruct *m = material(database, "G", "K", "N");
        m->d_unit = "pcs.";
        materialPage::knownUses uses;
        uses.uses = {{false, "/x/board.xml", 2, "K", "4", "", "R1, R2"},
                     {true, "/x/zp_1.xml", 0, "K", "9", "m", "T"},
                     {true, "/x/zp_2.xml", 6, "K", "5", "", ""}};
        uses.openOrder = "/x/zp_2.xml";
        uses.isComplete = false;
        uses.faults = QStringList("lost.xml: gone");
        const QString page = materialPage::page({m, nullptr, nullptr, nullptr}, uses);
        const QString told = text::htmlToPlain(page).simplified();
        for (const char *part : {"board, line 3: 4 pcs., R1, R2", "zp_1, line 1: 9 m, T", "Open order, line 7: 5",
                                 "still being read", "Not read: lost.xml: gone"})
            QVERIFY2(told.contains(part), qPrintable(told));
        QVERIFY(!told.contains("In no BOM list"));
        QVERIFY(page.contains("\"use:1\""));
        QCOMPARE(materialPage::useOf(QUrl("use:1")), 1);
        QCOMPARE(materialPage::useOf(QUrl("http://use/1")), -1);
        QCOMPARE(materialPage::useOf(QUrl("use:x")), -1);
    }

    void nothingOfDataIsMarkup()
    {
        const QString evil = "<script>\"&'</script>";
        kiv_mat_databaseStruct database;
        database.fileName = evil;
        materialStruct *m = material(database, evil, evil);
        for (const auto &field : materialStruct::fields())
            m->*field.member = evil;
        for (const auto &field : informationsStruct::fields())
            m->information.*field.member = evil;
        manufacturer(m, evil, evil, evil)->files.items[0]->type = evil;
        supplier(m, evil, evil)->description = evil;
        materialPage::knownUses uses;
        uses.uses = {{false, evil, 0, evil, evil, evil, evil}, {true, evil, 0, evil, evil, evil, evil}};
        uses.faults = QStringList(evil);
        for (const materialStruct *shown : {m, static_cast<materialStruct *>(nullptr)}) {
            const QString page = materialPage::page({shown, database.groups[0].get(), &database, nullptr}, uses);
            QVERIFY(!page.contains("<script>") && page.contains("&lt;script&gt;"));
        }
    }

    void withoutMaterial()
    {
        kiv_mat_databaseStruct database;
        material(database, "Rezystory", "K");
        database.groups[0]->cpv = "31712114-2";
        const QString ofGroup = plain({nullptr, database.groups[0].get(), &database, nullptr});
        QVERIFY2(ofGroup.contains("Rezystory CPV 31712114-2 Materials 1"), qPrintable(ofGroup));
        QVERIFY(plain({}).contains("Select a material"));
    }

    void linkTargets_data()
    {
        const rows<QString> row;
        row("", "");
        row("http://x.pl/a b.pdf", "http://x.pl/a%20b.pdf");
        row(" https://x.pl ", "https://x.pl");
        row("www.x.pl/a", "http://www.x.pl/a");
        row("mailto:a@b.pl", "mailto:a@b.pl");
        row("/etc/passwd", "file:///etc/passwd");
        row("_files/a.pdf", "there");
        row("_files/none.pdf", "http://_files/none.pdf");
    }
    void linkTargets()
    {
        const auto [target] = fetch<QString>();
        const QString there = m_folder->write("_files/a.pdf", "pdf");
        const QUrl url = materialPage::linkTarget(tag());
        QCOMPARE(url, target == "there" ? QUrl::fromLocalFile(there) : QUrl(target));
    }
};

KIVZP_TEST(tst_materialPage)
#include "tst_materialPage.moc"

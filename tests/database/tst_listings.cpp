// Listings: those of the warehouse, and the CPV codes for groups, which materials take over.
#include "testSupport.h"

#include "database/cpvOperations.h"
#include "database/warehouseListing.h"

using namespace testSupport;

class tst_listings : public folderTest
{
    Q_OBJECT
private slots:
    void amounts_data()
    {
        const rows<QString, double> row;
        row("plain", "5", 5);
        row("decimal comma", "5,25", 5.25);
        row("decimal point", " 5.25 ", 5.25);
        row("groups", "1 234 567,50", 1234567.5);
        row("no-break blanks", QString("1\u00a0234\u202f567,5"), 1234567.5);
        row("tabs and unit", "\t12,00 \t szt.", 12);
        row("unit at once", "617,25z\u0142", 617.25);
        row("unit with a digit", "12 m2", 12);
        row("zero", "0,00", 0);
        for (const char *unreadable : {"b/d", "", " \u00a0", "-5", "1,234,50", "1.234,50", "5 / 7", "5,"})
            row(unreadable, unreadable, -1);
        row("beyond numbers", QString(400, '9'), -1);
        row("beyond what is exact", QString(16, '9'), -1);
        row("long", QString(100000, ' ') + "-", -1);
    }

    void amounts()
    {
        const auto [amount, value] = fetch<QString, double>();
        const auto entries = parseListing("Towar: K\n x ILOSC:" + amount + "\nWartosc: 10\nilosc: 7777\n");
        QCOMPARE(int(entries.size()), 1);
        QCOMPARE(entries[0].readable, value >= 0);
        QCOMPARE(entries[0].stock.value_or(-1), value);
        QCOMPARE(entries[0].averagePrice.value_or(-1), value > 0 ? 10 / value : -1);
    }

    void entriesAreCut()
    {
        QVERIFY(parseListing("").empty());
        QVERIFY(parseListing("Ilosc: 5\ntowar: K").empty());
        const auto entries =
            parseListing("Heading\r\nIlosc: 9\r\nTowar:\u00a0K1\u00a0name\r\nIlosc: 1\r\nWartosc: 2\r\nTowar: K2\r"
                         "Wartosc: 3\rIlosc: 4\rTowar:\nTowar: K3 Wartosc: 8 zl Ilosc: 2");
        QCOMPARE(int(entries.size()), 4);
        QCOMPARE(entries[0].ktm, QString("K1"));
        QCOMPARE(entries[0].averagePrice.value_or(0), 2.0);
        QCOMPARE(entries[1].ktm, QString("K2"));
        QCOMPARE(entries[1].averagePrice.value_or(0), 0.75);
        QVERIFY(!entries[2].readable);
        QCOMPARE(entries[3].averagePrice.value_or(0), 4.0);
    }

    void changesAreListedAndApplied()
    {
        kiv_mat_databaseStruct database;
        materialStruct *first = material(database, "A", "K1");
        first->d_inWarehouse = "3";
        first->d_averagePrice = "7.00";
        materialStruct *second = material(database, "A", "K2");
        second->d_averagePrice = "5.00";
        const listingResult result = matchListing(parseListing("Towar: K1\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: K1 <name>\nIlosc: 3000,5\nWartosc: 13,5\n"
                                                               "Towar: K2\nIlosc: 0\nWartosc: 0\n"
                                                               "Towar: 317121-01.30-00192\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: <brak indeksu>\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: K2 again\nIlosc: b/d\nWartosc: 1\n"),
                                                  indexOf(database));
        QCOMPARE(result.problems, QStringList({"<b>K1</b>&nbsp;Stands again further down, this one not used<br>",
                                               "<b>317121-01.30-00192</b>&nbsp;Does not exist in databases<br>",
                                               "<b>&lt;brak indeksu&gt;</b>&nbsp;Error in KTM line<br>",
                                               "<b>K2 again</b>&nbsp;Error in KTM line<br>"}));
        QCOMPARE(result.found, 3);
        QCOMPARE(int(result.changes.size()), 3);
        QCOMPARE(first->d_inWarehouse, QString("3"));
        applyChanges(result.changes);
        QCOMPARE(first->d_inWarehouse, QString("3000.5"));
        QCOMPARE(first->d_averagePrice, QString("0.0045"));
        QCOMPARE(second->d_inWarehouse, QString("0"));
        QCOMPARE(second->d_averagePrice, QString("5.00"));
        revertChanges(result.changes);
        QCOMPARE(first->d_inWarehouse, QString("3"));
        QCOMPARE(first->d_averagePrice, QString("7.00"));
        QCOMPARE(second->d_inWarehouse, QString());
    }

    void unchangedNumbersStay()
    {
        kiv_mat_databaseStruct database;
        materialStruct *m = material(database, "A", "K");
        m->d_inWarehouse = "10,0";
        m->d_averagePrice = "0,3333";
        QVERIFY(matchListing(parseListing("Towar: K\nIlosc: 10\nWartosc: 3,333"), indexOf(database)).changes.empty());
        m->d_averagePrice = "";
        const auto changes = matchListing(parseListing("Towar: K\nIlosc: 10\nWartosc: 20"), indexOf(database)).changes;
        QCOMPARE(int(changes.size()), 1);
        QCOMPARE(changes[0].after, QString("2.00"));
    }

    void anotherDatabase()
    {
        kiv_mat_databaseStruct mine;
        materialStruct *m = material(mine, "A", "K1");
        m->d_inWarehouse = "1";
        kiv_mat_databaseStruct other;
        materialStruct *o = material(other, "B", "K1");
        o->d_inWarehouse = "1,5";
        material(other, "B", "K2", "bad")->d_averagePrice = "many";
        material(other, "B", "", "no key");
        const listingResult result = matchListing(entriesOf(other), indexOf(mine));
        QCOMPARE(int(result.changes.size()), 1);
        QCOMPARE(result.changes[0].after, QString("1.5"));
        QCOMPARE(result.problems, QStringList({"<b>K2 bad</b>&nbsp;Error in KTM line<br>",
                                               "<b> no key</b>&nbsp;Error in KTM line<br>"}));
    }

    void cancelled()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "K");
        const auto entries = parseListing(QString("Towar: K\nIlosc: 1\nWartosc: 1\n").repeated(100));
        const listingResult result =
            matchListing(entries, indexOf(database), [](long long done, long long total) { return done < total; });
        QVERIFY(result.cancelled);
        QVERIFY(result.changes.empty());
    }

    void unreadableFiles()
    {
        for (const QString &path :
             {m_folder->path("none.txt"), m_folder->path(), m_folder->write("order.xml", order(""))}) {
            QString error;
            QVERIFY(!readListing(path, &error));
            QVERIFY2(error.contains("corrupted") && error.contains("<b>" + path + "</b>"), qPrintable(error));
        }
    }

    void cpvLines_data()
    {
        const rows<QByteArray, QString, QString> row;
        row("code and name", "Diody\t31712340-5 Diody\n", "31712340-5", "");
        row("code alone, CRLF", "Diody\t31712340-5\r\n", "31712340-5", "");
        row("no line end, blanks", "Diody\t  31712340-5", "31712340-5", "");
        row("third column", "Diody\t31712340-5\tDiodes", "31712340-5", "");
        row("byte order mark",
            "\xef\xbb\xbf"
            "Diody\t31712340-5",
            "31712340-5", "");
        row("the last line counts", "Diody\t31712340-5\nDiody\t31712341-2\n", "31712341-2", "");
        row("the same code", "Diody\told\n", "old", "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;old&nbsp;]<br>");
        row("no hyphen", "Diody\t317123405 x", "old",
            "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;317123405&nbsp;]<br>");
        row("no code", "Diody\n", "old", "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;&nbsp;]<br>");
        row("another case", "DIODY\t31712340-5\n\n \n", "old",
            "Group does not exist<br><b>DIODY</b>&nbsp;[&nbsp;31712340-5&nbsp;]<br>");
        row("no tab", "Diody <31712340-5>", "old",
            "Group does not exist<br><b>Diody &lt;31712340-5&gt;</b>&nbsp;[&nbsp;&nbsp;]<br>");
        row("empty file", "", "old", "");
    }

    void cpvLines()
    {
        const auto [list, cpv, problems] = fetch<QByteArray, QString, QString>();
        kiv_mat_databaseStruct database;
        group(database, "Diody")->cpv = "old";
        group(database, "Other");
        database.groups.push_back(std::make_unique<d_groupStruct>());
        database.groups.back()->name = "Diody";
        database.groups.back()->cpv = "old";
        const auto result = loadCpvForGroups(m_folder->write("list.txt", list), database);
        QCOMPARE(result.problems.join(QString()), problems);
        QCOMPARE(database.groups[0]->cpv, QString("old"));
        QCOMPARE(int(result.changes.size()), cpv == "old" ? 0 : 2);
        applyChanges(result.changes);
        QCOMPARE(database.groups[0]->cpv, cpv);
        QCOMPARE(database.groups[1]->cpv, QString());
        QCOMPARE(database.groups[2]->cpv, cpv);
    }

    void cpvFileIsMissing()
    {
        kiv_mat_databaseStruct database;
        for (const QString &path : {QString("/nowhere/list.txt"), QDir::tempPath()}) {
            const auto result = loadCpvForGroups(path, database);
            QCOMPARE(result.problems.size(), 1);
            QVERIFY(result.problems[0].contains("<b>" + path + "</b>&nbsp;[&nbsp;"));
        }
    }

    void cpvMoves()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "1")->d_cpv = "31712340-5";
        material(database, "A", "2")->d_cpv = "31712341-2";
        material(database, "A", "3");
        material(database, "none", "4")->d_cpv = "31712341-2";
        material(database, "bad", "5")->d_cpv = "31712341-2";
        group(database, "A")->cpv = "31712340-5";
        group(database, "bad")->cpv = "<code>";
        const auto result = moveCpvToMaterials(database);
        QCOMPARE(result.problems,
                 QStringList({"CPV syntax error<br>", "<b>bad</b>&nbsp;[&nbsp;&lt;code&gt;&nbsp;]<br>"}));
        QCOMPARE(int(result.changes.size()), 2);
        applyChanges(result.changes);
        for (const auto &m : database.groups[0]->items)
            QCOMPARE(m->d_cpv, QString("31712340-5"));
        QCOMPARE(database.groups[1]->items[0]->d_cpv, QString("31712341-2"));
        QCOMPARE(database.groups[2]->items[0]->d_cpv, QString("31712341-2"));
    }

    void cpvCancelled()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "1");
        group(database, "A")->cpv = "31712340-5";
        const progressFunction cancel = [](long long, long long) { return false; };
        const auto moved = moveCpvToMaterials(database, cancel);
        QVERIFY(moved.cancelled && moved.changes.empty());
        const auto loaded = loadCpvForGroups(m_folder->write("l.txt", "A\t31712341-2\n"), database, cancel);
        QVERIFY(loaded.cancelled && loaded.changes.empty());
    }

    void cpvIndex()
    {
        QVERIFY(cpvIndexFile().isEmpty());
        const QString path = m_folder->write("_files/Wspolny-Slownik-Zamowien.pdf", "%PDF");
        QCOMPARE(cpvIndexFile(), QUrl("file://" + path));
    }

private:
    static ktmIndex indexOf(kiv_mat_databaseStruct &database)
    {
        ktmIndex index;
        index.add(&database);
        return index;
    }
};

KIVZP_TEST(tst_listings)
#include "tst_listings.moc"

// Listings of the warehouse: what is read of them and what it changes.
#include "testSupport.h"

#include "database/warehouseListing.h"

using namespace testSupport;

class tst_warehouseListing : public folderTest
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
        ktmIndex index;
        index.add(&database);
        const listingResult result = matchListing(parseListing("Towar: K1\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: K1 <name>\nIlosc: 3000,5\nWartosc: 13,5\n"
                                                               "Towar: K2\nIlosc: 0\nWartosc: 0\n"
                                                               "Towar: 317121-01.30-00192\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: <brak indeksu>\nIlosc: 1\nWartosc: 1\n"
                                                               "Towar: K2 again\nIlosc: b/d\nWartosc: 1\n"),
                                                  index);
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
        ktmIndex index;
        index.add(&database);
        QVERIFY(matchListing(parseListing("Towar: K\nIlosc: 10\nWartosc: 3,333"), index).changes.empty());
        m->d_averagePrice = "";
        const auto changes = matchListing(parseListing("Towar: K\nIlosc: 10\nWartosc: 20"), index).changes;
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
        ktmIndex index;
        index.add(&mine);
        const listingResult result = matchListing(entriesOf(other), index);
        QCOMPARE(int(result.changes.size()), 1);
        QCOMPARE(result.changes[0].after, QString("1.5"));
        QCOMPARE(result.problems, QStringList({"<b>K2 bad</b>&nbsp;Error in KTM line<br>",
                                               "<b> no key</b>&nbsp;Error in KTM line<br>"}));
    }

    void cancelled()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "K");
        ktmIndex index;
        index.add(&database);
        const auto entries = parseListing(QString("Towar: K\nIlosc: 1\nWartosc: 1\n").repeated(100));
        const listingResult result =
            matchListing(entries, index, [](long long done, long long total) { return done < total; });
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
};

KIVZP_TEST(tst_warehouseListing)
#include "tst_warehouseListing.moc"

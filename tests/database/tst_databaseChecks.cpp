// Duplicates, empty fields, counts, links and reports of a material database.
#include "testSupport.h"

#include "database/databaseChecks.h"
#include "database/databaseReport.h"
#include "database/linkOperations.h"

using namespace testSupport;

class tst_databaseChecks : public folderTest
{
    Q_OBJECT
private slots:
    void sameKtm()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "2", "<two>");
        material(database, "A", "1", "one");
        material(database, "A", "");
        material(database, "B", "");
        material(database, "B", "3");
        QVERIFY(duplicateKtms(database).empty());
        material(database, "B", "1", "one again");
        material(database, "B", "2", "two again");
        material(database, "B", "1", "one once more");
        QCOMPARE(duplicateLines(duplicateKtms(database)),
                 QStringList(
                     {"<b>2</b> [&lt;two&gt;], [two again]<br>", "<b>1</b> [one], [one again], [one once more]<br>"}));
    }

    void samePartNumber()
    {
        kiv_mat_databaseStruct database;
        materialStruct *first = material(database, "A", "1", "first");
        manufacturer(first, "Yageo", "RC0603");
        manufacturer(first, "Yageo", "RC0603");
        manufacturer(first, "Other", "");
        QVERIFY(duplicatePartNumbers(database).empty());
        // Another maker's part, and one without a number, are others.
        materialStruct *second = material(database, "B", "2", "second");
        manufacturer(second, "Vishay", "RC0603");
        manufacturer(second, "Other", "  ");
        QVERIFY(duplicatePartNumbers(database).empty());
        materialStruct *third = material(database, "B", "3", "third");
        manufacturer(third, " YAGEO ", "rc0603");
        manufacturer(third, "Yageo", "RC0603");
        QCOMPARE(duplicateLines(duplicatePartNumbers(database)),
                 QStringList{"<b>Yageo RC0603</b> [1 first], [3 third]<br>"});
    }

    void emptyFields_data()
    {
        const rows<QString, QStringList> row;
        row("nothing", "", {});
        row("KTM", "d_ktm", {"KTM"});
        row("CPV", "d_cpv", {"CPV"});
        row("name", "d_name", {"Name"});
        row("unit", "d_unit", {"Unit"});
        row("what many materials do not have", "d_voltage", {});
    }

    void emptyFields()
    {
        const auto [field, missing] = fetch<QString, QStringList>();
        kiv_mat_databaseStruct database;
        materialStruct *m = complete(database);
        for (const auto &f : materialStruct::fields())
            if (f.name == field)
                m->*f.member = " \n";
        const std::vector<incompleteMaterial> found = incompleteMaterials(database);
        QCOMPARE(int(found.size()), missing.isEmpty() ? 0 : 1);
        if (!found.empty())
            QCOMPARE(found[0].missing, missing);
        m->information.status.clear();
        m->manufacturers.items.clear();
        QCOMPARE(incompleteMaterials(database)[0].missing,
                 missing + QStringList({"Status", "Manufacturers / Suppliers"}));
    }

    void information()
    {
        kiv_mat_databaseStruct database;
        complete(database);
        material(database, "H", "K2");
        QCOMPARE(informationText(database),
                 QString("<b>Materials count</b> [ 2 ]<br><br>Materials count in database [ 2 ]<br>"
                         "Groups count in database [ 2 ]<br>Materials count with status [ 1 ]<br>"
                         "<br>"));
    }

    void linksAreAskedOnceAndInTurn()
    {
        kiv_mat_databaseStruct database;
        materialStruct *m = material(database, "A", "1");
        manufacturer(m, "Y", "1", "https://good.pl/a b.pdf");
        manufacturer(m, "Y", "2", "http://bad.pl/https:x");
        manufacturer(m, "Y", "3")->files.append(std::make_unique<fileStruct>());
        supplierStruct *s = appendTo(m->suppliers);
        appendTo(s->files)->name = "http://bad.pl/https:x";
        appendTo(s->files)->name = "http://[not valid";
        QStringList asked;
        std::vector<long long> told;
        const linkCheckResult result = checkUrls(
            database,
            [&told](long long done, long long total) {
                told.push_back(done);
                return total == 5;
            },
            [&asked](const QUrl &url, const std::function<bool()> &) {
                asked.append(url.toString());
                return url.host() == "good.pl";
            });
        QCOMPARE(asked, QStringList({"http://good.pl/a b.pdf", "http://bad.pl/http:x"}));
        QCOMPARE(told, std::vector<long long>({0, 1, 2, 3, 4, 5}));
        QVERIFY(!result.cancelled);
        QCOMPARE(linkErrorLines(result),
                 QStringList({"[Error] http://bad.pl/https:x<br>", "[Error] <br>", "[Error] http://bad.pl/https:x<br>",
                              "[Error] http://[not valid<br>"}));
    }

    // Cancelled before or while a link is asked: that link counts as not checked.
    void linkCheckCanBeCancelled()
    {
        kiv_mat_databaseStruct database;
        for (const char *link : {"http://a", "http://b", "http://c"})
            manufacturer(material(database, "A", link), "Y", "1", link);
        int told = 0;
        const auto probe = [](const QUrl &, const std::function<bool()> &keepGoing) {
            for (int wait = 0; wait < 10; ++wait)
                if (!keepGoing())
                    return false;
            return true;
        };
        const linkCheckResult result = checkUrls(
            database, [&told](long long, long long) { return ++told < 15; }, probe);
        QVERIFY(result.cancelled);
        QCOMPARE(told, 15);
        QCOMPARE(int(result.links.size()), 1);
        QVERIFY(result.links[0].answers);
    }

    void reportEscapesAndMarks()
    {
        kiv_mat_databaseStruct database;
        materialStruct *m = complete(database);
        m->d_name = "<b>&\"";
        manufacturer(m, "Bourns", "<2>", "https://x.pl/\"onclick=");
        manufacturer(m, "Unknown", "3", "javascript:alert(1)");
        kiv_mat_firmStruct firms;
        firmStruct *firm = appendTo(firms.manufacturers);
        firm->name = "Bourns";
        firm->status = "ZIELONY";
        for (const auto kind : {databaseReportKind::brief, databaseReportKind::full}) {
            const QString path = databaseReportPath(m_folder->path("db.XML"), kind);
            QCOMPARE(writeDatabaseReport(database, &firms, kind, path).result, exportResult::done);
        }
        const QString brief = QString::fromUtf8(read(m_folder->path("db_short.html")));
        const QString full = QString::fromUtf8(read(m_folder->path("db_full.html")));
        for (const QString &page : {brief, full}) {
            QVERIFY(page.contains("&lt;b&gt;&amp;&quot;"));
            QVERIFY(page.contains("1.00 [ PLN ]"));
            QVERIFY(page.endsWith("</html>\n"));
        }
        QVERIFY(!brief.contains("Bourns"));
        QVERIFY(full.contains("#2E9E4F\">&#9679;</span>&nbsp;Bourns &lt;2&gt;"));
        QVERIFY(full.contains("<br>Unknown 3"));
        QVERIFY(full.contains("<a href=\"https://x.pl/&quot;onclick=\">"));
        QVERIFY(!full.contains("href=\"javascript"));
        QVERIFY(full.contains("Status firmy:"));
    }

    void reportIsWrittenWholeOrNotAtAll()
    {
        const QString path = m_folder->write("r.html", "old");
        kiv_mat_databaseStruct database;
        material(database, "A", "1");
        material(database, "B", "2");
        const progressFunction cancel = [](long long done, long long) { return done < 1; };
        QCOMPARE(writeDatabaseReport(database, nullptr, databaseReportKind::full, path, cancel).result,
                 exportResult::cancelled);
        QCOMPARE(read(path), QByteArray("old"));
        QCOMPARE(
            writeDatabaseReport(database, nullptr, databaseReportKind::full, m_folder->path("r.html/x.html")).result,
            exportResult::failed);
    }

private:
    // A material that lacks nothing.
    static materialStruct *complete(kiv_mat_databaseStruct &database)
    {
        materialStruct *m = material(database, "G", "K", "n");
        m->d_cpv = "c";
        m->d_description = "d";
        m->d_price = "1";
        m->d_unit = "pcs.";
        m->information.status = "SZARY";
        manufacturer(m, "Yageo", "1");
        return m;
    }
};

KIVZP_TEST(tst_databaseChecks)
#include "tst_databaseChecks.moc"

// What a material must have, and where its files stand on the file server.
#include "testSupport.h"

#include "database/materialChecks.h"
#include "database/materialFiles.h"

using namespace testSupport;
using namespace materialFiles;

class tst_materialChecks : public QObject
{
    Q_OBJECT
private slots:
    void firstFault_data()
    {
        const rows<QString, QString, QString, QString, QString, QString, QString> row;
        const QString ktm = "312040-30.12-00220";
        const QString cpv = "31711130-3";
        row("good", ktm, cpv, "R", "Yageo", "", "", "");
        row("supplier only", ktm, cpv, "R", "", "TME", "", "");
        row("long last part", "312040-30.12-002201", cpv, "R", "Yageo", "", "", "");
        row("reserved", "SRV-000.100", cpv, "R", "Yageo", "", "", "");
        row("nothing", "", "", "", "", "", "KTM empty", "d_ktm");
        row("blank KTM", "  ", cpv, "R", "Yageo", "", "KTM empty", "d_ktm");
        row("no CPV", "bad", "", "", "", "", "CPV empty", "d_cpv");
        row("no name", "bad", "bad", "\t", "", "", "Name empty", "d_name");
        row("no firm", "bad", "bad", "R", "", "", "Sets manufacturer or supplier first", "manufacturers");
        row("firm without a name", ktm, cpv, "R", " ", " ", "Sets manufacturer or supplier first", "manufacturers");
        row("bad KTM", "312040-30.12-0022", "bad", "R", "Yageo", "", "Ktm syntax error", "d_ktm");
        row("small letters", "a12040-30.12-00220", cpv, "R", "Yageo", "", "Ktm syntax error", "d_ktm");
        row("markup", "<ktm/>", cpv, "R", "Yageo", "", "Ktm syntax error", "d_ktm");
        row("bad CPV", ktm, "3171113-3", "R", "Yageo", "", "CPV syntax error", "d_cpv");
    }

    void firstFault()
    {
        const programFolder folder;
        const auto [ktm, cpv, name, manufacturer, supplier, text, field] =
            fetch<QString, QString, QString, QString, QString, QString, QString>();
        materialStruct material;
        material.d_ktm = ktm;
        material.d_cpv = cpv;
        material.d_name = name;
        // A row without a name is what the editor begins a firm with.
        if (!manufacturer.isEmpty())
            appendTo(material.manufacturers)->name = manufacturer;
        if (!supplier.isEmpty())
            appendTo(material.suppliers)->name = supplier;
        const auto fault = materialChecks::firstFault(material);
        QCOMPARE(fault ? fault->text : QString(), text);
        QCOMPARE(fault ? fault->field : QString(), field);
    }

    void tidied()
    {
        materialStruct material;
        material.d_ktm = " 312040-30.12-00220\n";
        material.d_description = " kept ";
        auto *named = appendTo(material.manufacturers);
        named->name = "Yageo";
        appendTo(named->files)->type = "FILE_PDF";
        appendTo(named->files)->name = "http://x/y.pdf";
        appendTo(material.manufacturers);
        appendTo(material.suppliers);
        appendTo(material.suppliers)->partNo = "77-1";
        auto *withFile = appendTo(material.suppliers);
        appendTo(withFile->files)->name = "http://x/z.pdf";
        materialChecks::tidy(&material);
        QCOMPARE(material.d_ktm, QString("312040-30.12-00220"));
        QCOMPARE(material.d_description, QString(" kept "));
        QCOMPARE(material.manufacturers.items.size(), size_t(1));
        QCOMPARE(material.manufacturers.items.front()->files.items.size(), size_t(1));
        QCOMPARE(material.manufacturers.items.front()->files.items.front()->name, QString("http://x/y.pdf"));
        // What was typed beside a name that is missing is not thrown away.
        QCOMPARE(material.suppliers.items.size(), size_t(2));
    }

    // Every text of the copy is there, and none is shared with what it was made from.
    void copied()
    {
        materialStruct material;
        for (const auto &field : materialStruct::fields())
            material.*field.member = field.name;
        for (const auto &field : informationsStruct::fields())
            material.information.*field.member = field.name;
        material.d_designator = "R1";
        auto *supplier = appendTo(material.suppliers);
        supplier->partNo = "77-1";
        appendTo(supplier->files)->name = "a";
        appendTo(material.manufacturers)->name = "Yageo";
        const auto copy = material.copy();
        QVERIFY(*copy == material);
        QCOMPARE(copy->d_designator, QString("R1"));
        copy->suppliers.items.front()->files.items.front()->name = "b";
        QVERIFY(!(*copy == material));
        QCOMPARE(supplier->files.items.front()->name, QString("a"));
    }

    void places_data()
    {
        const rows<QString, QString> row;
        row("below", proposedPath("/home/u/redfiles/yageo/rc/RC.pdf"), "yageo/rc/RC.pdf");
        row("doubled", proposedPath("/home/u/redfiles//yageo//RC.pdf"), "yageo/RC.pdf");
        row("the folder itself", proposedPath("/home/u/redfiles/RC.pdf"), "/RC.pdf");
        row("elsewhere", proposedPath("/home/u/RC.pdf"), "/RC.pdf");
        row("first counts", proposedPath("/redfiles/a/redfiles/b.pdf"), "a/redfiles/b.pdf");

        configStruct config;
        config.setDefaults();
        const auto link = [&](const QString &server, linkKind kind, const QString &path) {
            config.options.findOption("SERVER_NAME")->value1 = server;
            return linkTo(serverOf(config), kind, path);
        };
        const QString base = "http://files.kiv.pl/redfiles/";
        row("datasheet", link("files.kiv.pl", datasheet, "yageo/RC.pdf"), base + "DATASHEET/yageo/RC.pdf");
        row("declaration", link("files.kiv.pl", declaration, "/RC.pdf"), base + "RoHS/RC.pdf");
        row("as an address", link(" https://files.kiv.pl/x ", declaration, "a"), base + "RoHS/a");
        row("port", link("server:8080", datasheet, "a.pdf"), "http://server:8080/redfiles/DATASHEET/a.pdf");
        row("odd letters", link("10.0.0.7", datasheet, "ż ó/100%/a#b?c.pdf"),
            "http://10.0.0.7/redfiles/DATASHEET/%C5%BC%20%C3%B3/100%25/a%23b%3Fc.pdf");
        row("within", link("server", datasheet, "a/../b.pdf"), "http://server/redfiles/DATASHEET/b.pdf");
        row("leads out", link("server", datasheet, "../RoHS/b.pdf"), "");
        row("far out", link("server", declaration, "a/../../../../etc/passwd"), "");
        row("blank", link("server", datasheet, "  "), "");
        row("no server", link("  ", datasheet, "a.pdf"), "");

        const auto place = [](const QString &of) { return placeOnServer({"server:8080", {}, {}}, of); };
        row("on the server", place("http://server:8080/redfiles/DATASHEET/a%20b.pdf"), "/redfiles/DATASHEET/a b.pdf");
        row("typed", place(" https://server/redfiles/x/y.pdf"), "/redfiles/x/y.pdf");
        row("link out", place("http://server/redfiles/../etc/passwd"), "");
        row("hidden way out", place("http://server/redfiles/%2e%2e/etc/passwd"), "");
        row("other server", place("http://other/redfiles/DATASHEET/a.pdf"), "");
        row("other scheme", place("ftp://server/redfiles/DATASHEET/a.pdf"), "");
        row("no link", place("redfiles/DATASHEET/a.pdf"), "");
        row("empty", place(""), "");
        row("on no server", placeOnServer({}, "http://server/redfiles/a.pdf"), "");
        row("host", hostOf({"server:8080", {}, {}}), "server");
    }

    void places()
    {
        const auto [text, expected] = fetch<QString, QString>();
        QCOMPARE(text, expected);
    }

    void lines()
    {
        QCOMPARE(sentLine("/a&b.pdf", "server:/redfiles/x", true),
                 QString("Send file <b>/a&amp;b.pdf</b>&nbsp;[server:/redfiles/x]&nbsp;completed<br>"));
        QVERIFY(sentLine("a", "b", false).endsWith("[b]&nbsp;error<br>"));
        QVERIFY(notSentLine("a", "b").startsWith("Sending error <b>a</b>&nbsp;[b]"));
    }
};

KIVZP_TEST(tst_materialChecks)
#include "tst_materialChecks.moc"

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
            material.manufacturers.append(std::make_unique<manufacturerStruct>())->name = manufacturer;
        if (!supplier.isEmpty())
            material.suppliers.append(std::make_unique<supplierStruct>())->name = supplier;
        const auto fault = materialChecks::firstFault(material);
        QCOMPARE(fault ? fault->text : QString(), text);
        QCOMPARE(fault ? fault->field : QString(), field);
    }

    void tidied()
    {
        materialStruct material;
        material.d_ktm = " 312040-30.12-00220\n";
        material.d_description = " kept ";
        auto *named = material.manufacturers.append(std::make_unique<manufacturerStruct>());
        named->name = "Yageo";
        named->files.append(std::make_unique<fileStruct>())->type = "FILE_PDF";
        named->files.append(std::make_unique<fileStruct>())->name = "http://x/y.pdf";
        material.manufacturers.append(std::make_unique<manufacturerStruct>());
        material.suppliers.append(std::make_unique<supplierStruct>());
        material.suppliers.append(std::make_unique<supplierStruct>())->partNo = "77-1";
        auto *withFile = material.suppliers.append(std::make_unique<supplierStruct>());
        withFile->files.append(std::make_unique<fileStruct>())->name = "http://x/z.pdf";
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
        auto *supplier = material.suppliers.append(std::make_unique<supplierStruct>());
        supplier->partNo = "77-1";
        supplier->files.append(std::make_unique<fileStruct>())->name = "a";
        material.manufacturers.append(std::make_unique<manufacturerStruct>())->name = "Yageo";
        const auto copy = material.copy();
        QVERIFY(*copy == material);
        QCOMPARE(copy->d_designator, QString("R1"));
        copy->suppliers.items.front()->files.items.front()->name = "b";
        QVERIFY(!(*copy == material));
        QCOMPARE(supplier->files.items.front()->name, QString("a"));
    }

    void proposals_data()
    {
        const rows<QString, QString> row;
        row("below", "/home/u/redfiles/yageo/rc/RC.pdf", "yageo/rc/RC.pdf");
        row("doubled", "/home/u/redfiles//yageo//RC.pdf", "yageo/RC.pdf");
        row("the folder itself", "/home/u/redfiles/RC.pdf", "/RC.pdf");
        row("elsewhere", "/home/u/RC.pdf", "/RC.pdf");
        row("first counts", "/redfiles/a/redfiles/b.pdf", "a/redfiles/b.pdf");
    }

    void proposals()
    {
        const auto [file, path] = fetch<QString, QString>();
        QCOMPARE(proposedPath(file), path);
    }

    void links_data()
    {
        const rows<QString, int, QString, QString> row;
        const QString base = "http://files.kiv.pl/redfiles/";
        row("datasheet", "files.kiv.pl", int(datasheet), "yageo/RC.pdf", base + "DATASHEET/yageo/RC.pdf");
        row("declaration", "files.kiv.pl", int(declaration), "/RC.pdf", base + "RoHS/RC.pdf");
        row("as an address", " https://files.kiv.pl/x ", int(declaration), "a", base + "RoHS/a");
        row("port", "server:8080", int(datasheet), "a.pdf", "http://server:8080/redfiles/DATASHEET/a.pdf");
        row("odd letters", "10.0.0.7", int(datasheet), QString::fromUtf8("ż ó/100%/a#b?c.pdf"),
            "http://10.0.0.7/redfiles/DATASHEET/"
            "%C5%BC%20%C3%B3/100%25/a%23b%3Fc.pdf");
        row("within", "server", int(datasheet), "a/../b.pdf", "http://server/redfiles/DATASHEET/b.pdf");
        row("leads out", "server", int(datasheet), "../RoHS/b.pdf", "");
        row("far out", "server", int(declaration), "a/../../../../etc/passwd", "");
        row("blank", "server", int(datasheet), "  ", "");
        row("no server", "  ", int(datasheet), "a.pdf", "");
    }

    void links()
    {
        const auto [server, kind, path, link] = fetch<QString, int, QString, QString>();
        configStruct config;
        config.setDefaults();
        config.options.findOption("SERVER_NAME")->value1 = server;
        QCOMPARE(linkTo(serverOf(config), linkKind(kind), path), link);
    }

    void places_data()
    {
        const rows<QString, QString> row;
        row("datasheet", "http://server:8080/redfiles/DATASHEET/a%20b.pdf", "/redfiles/DATASHEET/a b.pdf");
        row("typed", " https://server/redfiles/x/y.pdf", "/redfiles/x/y.pdf");
        row("leads out", "http://server/redfiles/../etc/passwd", "");
        row("hidden way out", "http://server/redfiles/%2e%2e/etc/passwd", "");
        row("other server", "http://other/redfiles/DATASHEET/a.pdf", "");
        row("other scheme", "ftp://server/redfiles/DATASHEET/a.pdf", "");
        row("no link", "redfiles/DATASHEET/a.pdf", "");
        row("empty", "", "");
    }

    void places()
    {
        const auto [link, place] = fetch<QString, QString>();
        QCOMPARE(placeOnServer({"server:8080", {}, {}}, link), place);
        QCOMPARE(placeOnServer({}, link), QString());
        QCOMPARE(hostOf({"server:8080", {}, {}}), QString("server"));
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

// What a material must have, and where its files stand on the file server.
#include "testSupport.h"

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "database/materialChecks.h"
#include "database/materialFiles.h"

using namespace materialFiles;

class tst_materialChecks : public QObject
{
    Q_OBJECT
private slots:
    void firstFault_data();
    void firstFault();
    void tidied();
    void copied();
    void proposals_data();
    void proposals();
    void links_data();
    void links();
    void places_data();
    void places();
    void lines();
};

void tst_materialChecks::firstFault_data()
{
    QTest::addColumn<QString>("ktm");
    QTest::addColumn<QString>("cpv");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("manufacturer");
    QTest::addColumn<QString>("supplier");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("field");
    const QString ktm = "312040-30.12-00220";
    const QString cpv = "31711130-3";
    const auto row = [](const char *name, const QStringList &cells) {
        QTestData &data = QTest::newRow(name);
        for (const QString &cell : cells)
            data << cell;
    };
    row("good", {ktm, cpv, "R", "Yageo", "", "", ""});
    row("supplier only", {ktm, cpv, "R", "", "TME", "", ""});
    row("long last part", {"312040-30.12-002201", cpv, "R", "Yageo", "", "", ""});
    row("reserved", {"SRV-000.100", cpv, "R", "Yageo", "", "", ""});
    row("nothing", {"", "", "", "", "", "KTM empty", "d_ktm"});
    row("blank KTM", {"  ", cpv, "R", "Yageo", "", "KTM empty", "d_ktm"});
    row("no CPV", {"bad", "", "", "", "", "CPV empty", "d_cpv"});
    row("no name", {"bad", "bad", "\t", "", "", "Name empty", "d_name"});
    row("no firm",
        {"bad", "bad", "R", "", "", "Sets manufacturer or supplier first", "manufacturers"});
    row("firm without a name",
        {ktm, cpv, "R", " ", " ", "Sets manufacturer or supplier first", "manufacturers"});
    row("bad KTM", {"312040-30.12-0022", "bad", "R", "Yageo", "", "Ktm syntax error", "d_ktm"});
    row("small letters",
        {"a12040-30.12-00220", cpv, "R", "Yageo", "", "Ktm syntax error", "d_ktm"});
    row("markup", {"<ktm/>", cpv, "R", "Yageo", "", "Ktm syntax error", "d_ktm"});
    row("bad CPV", {ktm, "3171113-3", "R", "Yageo", "", "CPV syntax error", "d_cpv"});
}

void tst_materialChecks::firstFault()
{
    const testSupport::programFolder folder;
    QFETCH(QString, ktm);
    QFETCH(QString, cpv);
    QFETCH(QString, name);
    QFETCH(QString, manufacturer);
    QFETCH(QString, supplier);
    QFETCH(QString, text);
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
    QTEST(fault ? fault->field : QString(), "field");
}

void tst_materialChecks::tidied()
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
    QCOMPARE(material.manufacturers.items.front()->files.items.front()->name,
             QString("http://x/y.pdf"));
    // What was typed beside a name that is missing is not thrown away.
    QCOMPARE(material.suppliers.items.size(), size_t(2));
}

// Every text of the copy is there, and none is shared with what it was made from.
void tst_materialChecks::copied()
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

void tst_materialChecks::proposals_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("path");
    QTest::newRow("below") << "/home/u/redfiles/yageo/rc/RC.pdf"
                           << "yageo/rc/RC.pdf";
    QTest::newRow("doubled") << "/home/u/redfiles//yageo//RC.pdf"
                             << "yageo/RC.pdf";
    QTest::newRow("the folder itself") << "/home/u/redfiles/RC.pdf"
                                       << "/RC.pdf";
    QTest::newRow("elsewhere") << "/home/u/RC.pdf"
                               << "/RC.pdf";
    QTest::newRow("first counts") << "/redfiles/a/redfiles/b.pdf"
                                  << "a/redfiles/b.pdf";
}

void tst_materialChecks::proposals()
{
    QFETCH(QString, file);
    QTEST(proposedPath(file), "path");
}

void tst_materialChecks::links_data()
{
    QTest::addColumn<QString>("server");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("link");
    const QString base = "http://files.kiv.pl/redfiles/";
    QTest::newRow("datasheet") << "files.kiv.pl" << int(datasheet) << "yageo/RC.pdf"
                               << base + "DATASHEET/yageo/RC.pdf";
    QTest::newRow("declaration") << "files.kiv.pl" << int(declaration) << "/RC.pdf"
                                 << base + "RoHS/RC.pdf";
    QTest::newRow("as an address")
        << " https://files.kiv.pl/x " << int(declaration) << "a" << base + "RoHS/a";
    QTest::newRow("port") << "server:8080" << int(datasheet) << "a.pdf"
                          << "http://server:8080/redfiles/DATASHEET/a.pdf";
    QTest::newRow("odd letters") << "10.0.0.7" << int(datasheet)
                                 << QString::fromUtf8("ż ó/100%/a#b?c.pdf")
                                 << "http://10.0.0.7/redfiles/DATASHEET/"
                                    "%C5%BC%20%C3%B3/100%25/a%23b%3Fc.pdf";
    QTest::newRow("within") << "server" << int(datasheet) << "a/../b.pdf"
                            << "http://server/redfiles/DATASHEET/b.pdf";
    QTest::newRow("leads out") << "server" << int(datasheet) << "../RoHS/b.pdf"
                               << "";
    QTest::newRow("far out") << "server" << int(declaration) << "a/../../../../etc/passwd"
                             << "";
    QTest::newRow("blank") << "server" << int(datasheet) << "  "
                           << "";
    QTest::newRow("no server") << "  " << int(datasheet) << "a.pdf"
                               << "";
}

void tst_materialChecks::links()
{
    QFETCH(QString, server);
    QFETCH(int, kind);
    QFETCH(QString, path);
    configStruct config;
    config.setDefaults();
    config.options.findOption("SERVER_NAME")->value1 = server;
    QTEST(linkTo(serverOf(config), linkKind(kind), path), "link");
}

void tst_materialChecks::places_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("place");
    QTest::newRow("datasheet") << "http://server:8080/redfiles/DATASHEET/a%20b.pdf"
                               << "/redfiles/DATASHEET/a b.pdf";
    QTest::newRow("typed") << " https://server/redfiles/x/y.pdf"
                           << "/redfiles/x/y.pdf";
    QTest::newRow("leads out") << "http://server/redfiles/../etc/passwd"
                               << "";
    QTest::newRow("hidden way out") << "http://server/redfiles/%2e%2e/etc/passwd"
                                    << "";
    QTest::newRow("other server") << "http://other/redfiles/DATASHEET/a.pdf"
                                  << "";
    QTest::newRow("other scheme") << "ftp://server/redfiles/DATASHEET/a.pdf"
                                  << "";
    QTest::newRow("no link") << "redfiles/DATASHEET/a.pdf"
                             << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_materialChecks::places()
{
    QFETCH(QString, link);
    QTEST(placeOnServer({"server:8080", {}, {}}, link), "place");
    QCOMPARE(placeOnServer({}, link), QString());
    QCOMPARE(hostOf({"server:8080", {}, {}}), QString("server"));
}

void tst_materialChecks::lines()
{
    QCOMPARE(sentLine("/a&b.pdf", "server:/redfiles/x", true),
             QString("Send file <b>/a&amp;b.pdf</b>&nbsp;[server:/redfiles/x]&nbsp;completed<br>"));
    QVERIFY(sentLine("a", "b", false).endsWith("[b]&nbsp;error<br>"));
    QVERIFY(notSentLine("a", "b").startsWith("Sending error <b>a</b>&nbsp;[b]"));
}

KIVZP_TEST(tst_materialChecks)
#include "tst_materialChecks.moc"

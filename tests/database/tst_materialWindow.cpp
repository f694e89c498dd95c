// The material editor, worked with hands from the database window: what it shows, gives back,
// undoes and sends to the file server.
#include "pressedActions.h"

#include "data/loaders.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/materialWindow.h"

const std::vector<pressedAction> actions = {
    {"set", "material@0/2,1 F2 Ctrl+A 'Nowy' Return #set", "closed|+<d_name>Nowy"},
    {"close", "#close", "closed"},
    {"undo", "material@0/2,1 F2 Ctrl+A 'Nowy' Return #undo", "Undone: "},
    {"redo", "material@0/2,1 F2 Ctrl+A 'Nowy' Return Ctrl+Z #redo", "Done again: |+<d_name>Nowy"},
    {"addManufacturer", "#addManufacturer 'Vishay' Return", "+<name>Vishay</name>"},
    {"fillDown", "material@0/2,1 Shift+Down #fillDown", "Fill down|+<d_description>|-<d_description>"},
    {"addSuppler", "#addSuppler 'Farnell' Return", "+<name>Farnell</name>"},
    {"addFile", "material@3/0,0 #addFile 'http://x/y' Return", "+<file type=\"FILE_DATASHEET\" name=\"http://x/y\"/>"},
    {"addFile, context menu", "material@?4/0,0 #addFile 'http://x/y' Return",
     "+<file type=\"FILE_DATASHEET\" name=\"http://x/y\"/>"},
    {"deleteRows", "material@4/0,0 #deleteRows", "-<name>TME</name>"},
    {"deleteRows, some", "material@3/0,0 +material@4/0,0 #deleteRows Ctrl+Z", "Undone: Delete rows"},
    {"deleteFile", "material@?3/0/1,0 #deleteFile", "-<file|bin/sh"},
    {"deleteFiles", "material@?3/0,0 #deleteFiles", "-<file|bin/sh|a.pdf"},
    {"datasheets", "material@3/0,0 #datasheets 'b c.pdf' Return Return",
     "Please set path where write file|+<file type=\"FILE_DATASHEET\" "
     "name=\"http://server/redfiles/DATASHEET/y/b%20c.pdf\"/>"},
    {"datasheets, cancelled", "material@3/0,0 #datasheets 'b c.pdf' Return Escape", "Please set path where write file"},
    {"datasheets, leads out", "material@3/0,0 #datasheets 'a.pdf' Return Ctrl+A '../b.pdf' Return Escape",
     "Error: ../b.pdf is no path below the folder"},
    {"declarations", "material@3/0,0 #declarations 'a.pdf' Return Ctrl+A 'b.pdf' Return",
     "+<file type=\"FILE_MD\" name=\"http://server/redfiles/RoHS/b.pdf\"/>"},
    {"copyFileToServer", "material@3/0/0,0 #copyFileToServer 'a.pdf' Return ~300",
     "The program cannot be started|"
     "Sending error <b>%1/redfiles/y/a.pdf</b>&nbsp;[server:/redfiles/DATASHEET/a.pdf]"},
    {"open", "material@3/0/0,0 #open", "opened http://server/redfiles/DATASHEET/a.pdf"},
};

class tst_materialWindow : public actionFixture
{
    Q_OBJECT

    // One material, whose manufacturer is not in the register.
    void prepare() override
    {
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(file(), &all), 0);
        all.groups.resize(1);
        all.groups[0]->items.resize(1);
        materialStruct &material = *all.groups[0]->items[0];
        material.manufacturers.items.resize(1);
        material.suppliers.items.resize(1);
        material.suppliers.items[0]->files.items.clear();
        material.suppliers.items[0]->name = "TME";
        manufacturerStruct &maker = *material.manufacturers.items[0];
        maker.name = "Unknown";
        maker.files.items.clear();
        for (const char *name : {"http://server/redfiles/DATASHEET/a.pdf", "file:///bin/sh"}) {
            fileStruct *link = maker.files.append(std::make_unique<fileStruct>());
            link->type = "FILE_DATASHEET";
            link->name = name;
        }
        QCOMPARE(saveXmlNoEvents(file(), &all), 0);
        for (const char *name : {"a.pdf", "b c.pdf"})
            folder().write(QString("redfiles/y/") + name, "pdf");
        // Where files are looked for.
        qputenv("HOME", path("redfiles/y").toUtf8());
        setOption("SERVER_NAME", "server");
        setOption("SERVER_USER_NAME", "kiv");
        setOption("SERVER_USER_PASSWORD", "Top Secret 23 letters!!");
        if (qstrcmp(QTest::currentTestFunction(), "unavailable") != 0)
            return;
        QFETCH(QString, missing);
        if (!missing.isEmpty())
            setOption(missing.toUtf8(), "");
    }
    QString file() { return path("_files/db_warehouse.xml"); }
    materialWindow &editor() { return dynamic_cast<materialWindow &>(window()); }
    Kiv_mat_databaseWindow &database() { return mainWindow().databaseWindow(programData::warehouse); }
    // What the database holds by now.
    const materialStruct &given() { return *database().rows().database().groups[0]->items.back(); }
    void open(const QString &steps = {})
    {
        openWindow(openedWith);
        if (!steps.isEmpty())
            work(steps);
    }
    QModelIndex current() { return editor().findChild<QTreeView *>("material")->currentIndex(); }
    void saveAll() override
    {
        if (window().isVisible() && window().windowTitle().endsWith('*'))
            work("Ctrl+S");
        if (database().isVisible() && database().isModified())
            hands{database()}("Ctrl+S");
    }
    static constexpr const char *openedWith = "Ctrl+D Return|Ctrl+E materials@0,0 Right materials@0/0,0|F4 !Yes";
    std::vector<pressedWindow> windows() override { return {{"material", openedWith, "", actions}}; }

private slots:
    // A field that the record gets later is not to be missing here.
    void showsEveryField()
    {
        open();
        const auto check = [this](const auto &record, const auto &fields) {
            for (const auto &field : fields) {
                const auto *cell = editor().rows().valueOf(field.name);
                QVERIFY2(cell, qPrintable(field.name));
                QCOMPARE(cell->text(), record.*field.member);
            }
        };
        check(given(), materialStruct::fields());
        check(given().information, informationsStruct::fields());
    }

    void newMaterial()
    {
        openWindow("Ctrl+D Return|Ctrl+E materials@0,0|Ins");
        QCOMPARE(window().windowTitle(), QString("New material"));
        // Nothing was typed, so nothing is asked.
        work("Ctrl+W");
        QCOMPARE(boxes(), QStringList());
        turnTo(database());
        openWindow("Ins|F2 'ABCDEF-01.01-00001 ' Return material@0/2,1 F2 'Nowy' Return");
        // A manufacturer without a name is none.
        work("Ctrl+M Escape Ctrl+L 'TME' Return Ctrl+S");
        QCOMPARE(boxes(), QStringList());
        QVERIFY(!window().isVisible());
        saveAll();
        kiv_mat_databaseStruct saved;
        QCOMPARE(loadDatabase(file(), &saved), 0);
        const materialStruct &material = *saved.groups[0]->items.back();
        QCOMPARE(material.d_ktm + material.d_cpv + material.d_name, QString("ABCDEF-01.01-0000131711131-0Nowy"));
        QCOMPARE(material.d_price + material.d_averagePrice, QString("0.000.00"));
        QCOMPARE(material.d_active + material.information.status, QString("NIESZARY"));
        QVERIFY(material.manufacturers.items.empty());
        QCOMPARE(material.suppliers.items[0]->name, QString("TME"));
    }

    // A window that is asked to close, with a name that is good or missing.
    void closing_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<int>("boxes");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QString>("name");
        QTest::newRow("yes") << "'Nowy' Return Ctrl+W !Yes" << 1 << true << "Nowy";
        QTest::newRow("yes, refused") << "Del Return Ctrl+W !Yes Escape" << 2 << false << "";
        QTest::newRow("no") << "'Nowy' Return Ctrl+W !No" << 1 << true << "";
        QTest::newRow("cancel") << "'Nowy' Return Up Ctrl+W Escape" << 1 << false << "";
        QTest::newRow("set in the editor") << "'Nowy' Ctrl+S" << 0 << true << "Nowy";
        QTest::newRow("set, refused") << "Del Return Ctrl+S Escape" << 1 << false << "";
    }
    void closing()
    {
        QFETCH(QString, steps);
        QFETCH(QString, name);
        QFETCH(bool, closed);
        open();
        boxes();
        const QString before = given().d_name;
        work("material@0/2,1 F2 Ctrl+A " + steps);
        QTEST(int(boxes().size()), "boxes");
        QCOMPARE(!window().isVisible(), closed);
        QCOMPARE(given().d_name, name.isEmpty() ? before : name);
        // What is at fault is gone to; the rest is kept.
        if (!closed)
            QCOMPARE(current(), editor().rows().valueOf("d_name")->index());
    }

    void undoTakesBack()
    {
        open("Ctrl+M 'Vishay' Return Ins 'http://x/y' Return material@4/0,1 F2 Ctrl+A '77-1' Return"
             " material@3/0/0,1 F2 Ctrl+A 'http://z' Return");
        work("Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z");
        QVERIFY(window().windowTitle().endsWith(" *"));
        work("Ctrl+Z");
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("Ctrl+Y Ctrl+Y Ctrl+Y Ctrl+Y Ctrl+Y Ctrl+Y Ctrl+S");
        QCOMPARE(given().manufacturers.items[1]->name, QString("Vishay"));
        QCOMPARE(given().manufacturers.items[1]->files.items[0]->name, QString("http://x/y"));
        QCOMPARE(given().manufacturers.items[0]->files.items[0]->name, QString("http://z"));
        QCOMPARE(given().suppliers.items[0]->partNo, QString("77-1"));
    }

    void firmsOfTheRegister()
    {
        open("material@3/0,0");
        QCOMPARE(current().data(Qt::ToolTipRole).toString(), QString("Not in the firm register"));
        work("F2 Ctrl+A 'Vishay' Return material@3/0,0");
        QVERIFY(current().data(Qt::ToolTipRole).toString().contains("ZIELONY"));
    }

    void unavailable_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("reasons");
        const QString noFirm = "no manufacturer or supplier is selected";
        const QString noLink = "no link is selected";
        const QString noServerLink = "no link to the file server is selected";
        const QString link = "material@3/0/0,1 F2 Ctrl+A '%1' Return material@3/0/0,1 #-open";
        QTest::newRow("field") << ""
                               << "material@0/0,1 #-addFile #-deleteRows #-deleteFiles #-datasheets"
                               << QStringList({noFirm, noFirm, noFirm, noFirm}).join('|');
        QTest::newRow("firm") << ""
                              << "material@4/0,0 #-deleteFile #-deleteFiles #-open"
                              << "no file is selected|it has no files|" + noLink;
        QTest::newRow("account") << "SERVER_USER_PASSWORD"
                                 << "material@3/0/0,0 #-copyFileToServer"
                                 << "the configuration has no account on the file server";
        QTest::newRow("server") << "SERVER_NAME"
                                << "material@3/0,0 #-datasheets #-declarations"
                                << "the configuration names no file server|the configuration "
                                   "names no file server";
        QTest::newRow("elsewhere") << "" << link.arg("HTTPS://y.com/a") + " #-copyFileToServer" << noServerLink;
        // The desktop could start a program.
        for (const char *program : {"file:///bin/sh", "javascript:alert(1)", "/bin/sh"})
            QTest::newRow(program) << "" << link.arg(program) << noLink;
    }
    void unavailable()
    {
        QFETCH(QString, steps);
        QFETCH(QString, reasons);
        QDesktopServices::setUrlHandler("https", this, "pageOpened");
        open();
        boxes();
        work(steps);
        QString told;
        for (const QString &line : boxes())
            told += (told.isEmpty() ? "" : "|") + line.section("): ", -1).section(": ", -1);
        QCOMPARE(told, reasons);
    }

    void sends_data()
    {
        QTest::addColumn<QByteArray>("helper");
        QTest::addColumn<QString>("told");
        const QString line = "Send file <b>%1</b>&nbsp;[server:/redfiles/DATASHEET/a.pdf]&nbsp;%2<br>";
        QTest::newRow("completed") << QByteArray("printf 'pw=%s' \"$4\"")
                                   << "pw=***<br>" + line.arg("%1", "completed") + '|';
        QTest::newRow("refused there") << QByteArray("exit 1") << '|' + line.arg("%1", "error");
    }
    void sends()
    {
        QFETCH(QByteArray, helper);
        QFETCH(QString, told);
        const QString source = path("redfiles/y/a.pdf");
        QFile script(folder().write("_bin/pscp.exe",
                                    "#!/bin/sh\nprintf '[%s]' \"$@\" > '" + path("got").toUtf8() + "'; " + helper));
        script.setPermissions(script.permissions() | QFile::ExeOwner);
        open();
        seen().listed.clear();
        seen().logged.clear();
        work("material@3/0/0,0 #copyFileToServer 'a.pdf' Return ~500");
        QCOMPARE(seen().logged + '|' + seen().listed, told.replace("%1", source));
        QCOMPARE(QString::fromUtf8(testSupport::read(path("got"))),
                 QString("[-P][22][-pw][Top Secret 23 letters!!][-batch][--][%1]"
                         "[kiv@server:/redfiles/DATASHEET/a.pdf]")
                     .arg(source));
    }
};

KIVZP_TEST(tst_materialWindow)
#include "tst_materialWindow.moc"

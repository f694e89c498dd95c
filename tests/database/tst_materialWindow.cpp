// The material editor, worked with hands from the database window: what it shows, gives back,
// undoes and sends to the file server.
#include "scenarioFixture.h"

#include "data/loaders.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "database/materialWindow.h"
#include "tools/hostKeys.h"

#define OPEN "Ctrl+D Return|Ctrl+E materials@0,0 Right materials@0/0,0|F4 !Yes"
#define STEPS OPEN "|Ctrl+M 'Vishay' Return Ins 'http://x/y' Return "
#define ASKING "Asking: Set the changed material?"
#define TYPED OPEN "|material@0/2,1 F2 Ctrl+A "
#define NAME "material@0/2,1 F2 Ctrl+A 'Nowy' Return"

using enum lockRule;

const scenario actions[] = {
    {NAME, "#set", "title = closed; saved ~ <d_name>Nowy"},
    {"", "#close", "title = closed; boxes ="},
    {"material@0/2,1 Shift+Down", "#fillDown", "status = Fill down"},
    {"material@0/2,1", "#copyCells", "status = 1 cell copied"},
    {"material@0/2,1 Ctrl+C material@0/3,1", "#pasteCells", "status ~ 1 cell pasted"},
    {NAME, "#undo", "status ~ Undone: ; title !~ *"},
    {NAME " Ctrl+Z", "#redo", "status ~ Done again: ; saved ~ <d_name>Nowy"},
    {"", "#addManufacturer 'Vishay' Return", "saved ~ <name>Vishay</name>"},
    {"", "#addSuppler 'Farnell' Return", "saved ~ <name>Farnell</name>"},
    {"material@3/0,0", "#addFile 'http://x/y' Return", "saved ~ <file type=\"FILE_DATASHEET\" name=\"http://x/y\"/>"},
    {"", "material@?4/0,0 #addFile 'http://x/y' Return", "saved ~ <file type=\"FILE_DATASHEET\" name=\"http://x/y\"/>"},
    {"material@4/0,0", "#deleteRows", "saved !~ <name>TME</name>", edits},
    {"material@3/0,0 +material@4/0,0", "#deleteRows", "material! !~ Unknown; material! !~ TME", edits},
    {"", "material@?3/0/1,0 #deleteFile", "saved !~ bin/sh; saved ~ a.pdf", edits},
    {"", "material@?3/0,0 #deleteFiles", "saved !~ bin/sh; saved !~ a.pdf", edits},
    {"material@3/0,0", "#datasheets 'b c.pdf' Return Return",
     "boxes ~ Please set path where write file; saved ~ \"http://server/redfiles/DATASHEET/y/b{pc}20c.pdf\"", edits},
    {"material@3/0,0", "#datasheets 'b c.pdf' Return Escape", "boxes ~ Please set path where write file", reads},
    {"material@3/0,0", "#datasheets 'a.pdf' Return Ctrl+A '../b.pdf' Return Escape",
     "boxes ~ Error: ../b.pdf is no path below the folder", reads},
    {"material@3/0,0", "#declarations 'a.pdf' Return Ctrl+A 'b.pdf' Return",
     "saved ~ <file type=\"FILE_MD\" name=\"http://server/redfiles/RoHS/b.pdf\"/>", edits},
    {"material@3/0/0,0", "#copyFileToServer 'a.pdf' Return ~300",
     "log ~ The program cannot be started; errors ~ Sending error "
     "<b>%/redfiles/y/a.pdf</b>&nbsp;[server:/redfiles/DATASHEET/a.pdf]"},
    {"material@3/0/0,0", "#open", "desktop = http://server/redfiles/DATASHEET/a.pdf", reads},
};

const scenario scenarios[] = {
    {"typed in a firm and a file",
     OPEN "|material@4/0,1 F2 Ctrl+A '77-1' Return material@3/0/0,1 F2 Ctrl+A 'http://z' Return",
     "saved ~ 77-1<; saved ~ \"http://z\""},
    {"steps undone", STEPS "Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z", "title !~ *; material@3/1,0 ="},
    {"one too few", STEPS "Ctrl+Z Ctrl+Z Ctrl+Z", "title ~ *"},
    {"done again", STEPS "Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Z Ctrl+Y Ctrl+Y Ctrl+Y Ctrl+Y",
     "saved ~ <name>Vishay<; saved ~ \"http://x/y\""},
    {"no firm of the register", OPEN, "material@!3/0,0 ~ Not in the firm register"},
    {"one of it", OPEN "|material@3/0,0 F2 Ctrl+A 'Vishay' Return", "material@!3/0,0 ~ GREEN"},

    {"a KTM that another one has", OPEN "|material@0/0,1 F2 Ctrl+A 'SRV-000.100' Return",
     "status = Another material has this KTM; title !~ *"},

    // --- Firms that the register does not have ---
    {"taken into it", OPEN "|Ctrl+M 'Nowa SA' Return !Add_to_the_register",
     "boxes ~ has no manufacturer Nowa SA; material@!3/1,0 ~ Nowa SA, status GRAY; file _files/firms.xml ~ "
     "<name>Nowa SA</name>; material@3/1,0 = Nowa SA"},
    {"only here", OPEN "|Ctrl+L 'Nowa SA' Return !Only_in_this_material",
     "boxes ~ has no supplier Nowa SA; file _files/firms.xml !~ Nowa SA; saved ~ <name>Nowa SA</name>"},
    {"a slip", OPEN "|material@3/0,0 F2 Ctrl+A 'Nowa SA' Return Escape ~100",
     "material@3/0,0 = Unknown; title !~ *; file _files/firms.xml !~ Nowa SA"},
    {"a slip, set", OPEN "|material@3/0,0 F2 Ctrl+A 'Nowa SA' Ctrl+S Escape ~100",
     "material@3/0,0 = Unknown; title !~ *; title !~ closed"},

    // --- Closing; what is at fault is gone to, the rest is kept ---
    {"yes", TYPED "'Nowy' Return Ctrl+W !Yes", "boxes = " ASKING "; title = closed; saved ~ <d_name>Nowy"},
    {"yes, refused", TYPED "Del Return Ctrl+W !Yes Escape Ctrl+W !No",
     "boxes = " ASKING " | Error: Name empty | " ASKING "; title = closed; saved !~ <d_name></"},
    {"no", TYPED "'Nowy' Return Ctrl+W !No", "boxes = " ASKING "; title = closed; saved !~ Nowy"},
    {"cancel", TYPED "'Nowy' Return Up Ctrl+W Escape", "boxes = " ASKING "; title ~ *; material@0/2,1 = Nowy"},
    {"set in the editor", TYPED "'Nowy' Ctrl+S", "boxes =; title = closed; saved ~ <d_name>Nowy"},
    {"set, refused", TYPED "Del Return material@0/0,1 Ctrl+S Escape F2 'Nowy' Return Ctrl+S",
     "boxes = Error: Name empty; title = closed; saved ~ <d_name>Nowy"},
};

class tst_materialWindow : public scenarioFixture
{
    Q_OBJECT

    // One material, whose manufacturer is not in the register.
    void prepare() override
    {
        scenarioFixture::prepare();
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
    QString file() override { return path("_files/db_warehouse.xml"); }
    materialWindow &editor() { return dynamic_cast<materialWindow &>(window()); }
    Kiv_mat_databaseWindow &database() { return mainWindow().databaseWindow(programData::warehouse); }
    // What the database holds by now.
    const materialStruct &given() { return *database().rows().database().groups[0]->items.back(); }
    void open(const QString &steps = {})
    {
        openWindow(OPEN);
        if (!steps.isEmpty())
            work(steps);
    }
    std::vector<scenarioTable> tables() override { return {{OPEN, false, actions}, {nullptr, false, scenarios}}; }

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

    void unavailable_data()
    {
        QTest::addColumn<QString>("missing");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("reasons");
        const QString open = "material@3/0/0,1 F2 Ctrl+A '%1' Return material@3/0/0,1 #-open";
        const QString noFirm = "no manufacturer or supplier is selected", noLink = "no link is selected";
        const QString noServer = "the configuration names no file server";
        const QStringList rows[] = {
            {"", "material@0/0,1 #-addFile #-deleteRows #-deleteFiles #-datasheets", noFirm, noFirm, noFirm, noFirm},
            {"", "material@4/0,0 #-deleteFile #-deleteFiles #-open", "no file is selected", "it has no files", noLink},
            {"SERVER_USER_PASSWORD", "material@3/0/0,0 #-copyFileToServer",
             "the configuration has no account on the file server"},
            {"SERVER_NAME", "material@3/0,0 #-datasheets #-declarations", noServer, noServer},
            {"", open.arg("HTTPS://y.com/a") + " #-copyFileToServer", "no link to the file server is selected"},
            // The desktop could start a program.
            {"", open.arg("file:///bin/sh") + " Return", "file:///bin/sh"},
            {"", open.arg("javascript:alert(1)") + " Return", "javascript:alert(1)"},
            {"", open.arg("/bin/sh") + " Return", "file:///bin/sh"},
        };
        for (const QStringList &row : rows)
            QTest::addRow("%s", qPrintable(row[1])) << row[0] << row[1] << QStringList(row.mid(2)).join('|');
    }
    void unavailable()
    {
        QFETCH(QString, steps);
        QFETCH(QString, reasons);
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

    // A server that nobody has sent to before: its key is shown, asked for, kept, and held to.
    void hostKey()
    {
        const QString key = "SHA256:" + QString(42, 'q') + '0';
        qputenv("XDG_DATA_HOME", path("home").toLocal8Bit());
        const auto restore = qScopeGuard([] { qunsetenv("XDG_DATA_HOME"); });
        QFile script(folder().write(
            "_bin/pscp.exe", "#!/bin/sh\nprintf '[%s]' \"$@\" >> '" + path("got").toUtf8() + "'\ncase \"$*\" in *"
                                 + key.toUtf8()
                                 + "*) exit 0;; *-hostkey*) echo 'Host key not in manually configured list'; exit 1;;"
                                   " esac\nprintf 'The host key is not cached for this\\n  ssh-ed25519 255 "
                                 + key.toUtf8() + "\\nConnection abandoned.' >&2; exit 1"));
        script.setPermissions(script.permissions() | QFile::ExeOwner);
        open();
        boxes();
        work("material@3/0/0,0 #copyFileToServer 'a.pdf' Return ~500 Escape");
        QVERIFY(boxes().last().contains(key));
        QCOMPARE(status(), QString("Nothing was sent"));
        QCOMPARE(hostKeys::keyOf("server"), QString());
        work("#copyFileToServer ~500 !Accept_the_key_and_send ~500");
        QCOMPARE(status(), QString("a.pdf is on the file server"));
        QCOMPARE(hostKeys::keyOf("SERVER"), key);
        testSupport::write(path("got"), {});
        work("#copyFileToServer ~500");
        QVERIFY(testSupport::read(path("got")).contains("[-hostkey][" + key.toLatin1() + ']'));
        QVERIFY(hostKeys::keep("server", "SHA256:other"));
        boxes();
        work("#copyFileToServer ~500 Return");
        QVERIFY(boxes().last().contains("another key than the one that was accepted"));
        QCOMPARE(hostKeys::keyOf("server"), QString("SHA256:other"));
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

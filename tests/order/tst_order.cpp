// An order's life in the main window: opened, edited, saved, closed, recovered.
#include "scenarioFixture.h"

#include "data/loaders.h"
#include "order/orderRecovery.h"
#include "util/fileVersions.h"
#include "util/gzipFile.h"
#include "window/messageWindow.h"

#include <QLabel>

#define FIVE "#addShipment #addShipment #addShipment #addShipment #addShipment "
#define EDIT "orderLines@0,1 F2 Ctrl+A 'Żuk' Return "

const scenario scenarios[] = {
    // --- Opening and beginning ---
    {"open, stayed", EDIT "Ctrl+O !Cancel",
     "boxes ~ Asking: Save & close order; title = Order *; orderLines@0,1 = Żuk"},
    {"still undone then", EDIT "Ctrl+O !Cancel Ctrl+Z", "title = Order; orderLines = 21"},
    {"open, saved first", EDIT "Ctrl+O !Yes '%/_zp/one.xml' Return", "orderLines = 1; disk ~ Żuk"},
    {"no file chosen", EDIT "Ctrl+O !No Escape Ctrl+Z", "title = Order; orderLines@0,1 = STM32F103C8T6; disk !~ Żuk"},
    {"corrupt", "Ctrl+O '%/_zp/bad.xml' Return Return", "errors ~ or corrupted; orderLines = 0; title = Order"},
    {"and back", "Ctrl+O '%/_zp/bad.xml' Return Return Ctrl+O '%/_zp/zp_0.xml' Return", "orderLines = 21"},
    {"no file, no question", "Ctrl+N #addShipment Ctrl+N", "boxes =; orderLines = 0"},
    {"from the hint", "#deleteAll !Yes Ctrl+S", "disk !~ <order_item>"},
    {"left by its process", "Ctrl+O '%/_zp/left.xml' Return", "boxes = Open File; errors ="},
    {"held", "Ctrl+O '%/_zp/held.xml' Return ~100 Return", "boxes ~ is open elsewhere, too; orderLines = 1"},

    // --- Saving ---
    {"saved as what cannot be", EDIT "#zpSaveAs Ctrl+A '%/_zp/zp_0.xml/a.xml' Return Escape",
     "boxes ~ a.xml cannot be written; title = Order *; disk !~ Żuk"},
    {"saved elsewhere then",
     EDIT "#zpSaveAs Ctrl+A '%/_zp/zp_0.xml/a.xml' Return !Save_elsewhere Ctrl+A '%/b.xml' Return",
     "file b.xml ~ Żuk; title = Order; disk !~ Żuk"},
    {"kept, and goes on", EDIT "#zpSaveAs Ctrl+A '%/_zp/zp_0.xml/a.xml' Return !Keep_in_recovery Ctrl+Q !No",
     "file _config/recovery/order-1.xml =; boxes ~ Save order"},
    {"its new name", "#zpSaveAs Ctrl+A '%/a.xml' Return " EDIT "Ctrl+S",
     "file a.xml ~ Żuk; disk !~ Żuk; title = Order"},
    {"the same is no change", EDIT "Ctrl+S " EDIT "#-undo", "title = Order"},
    {"new order's name", "Ctrl+N #addShipment Ctrl+S Return", "file _zp/zp_new.xml ~ SRV-000.100; title = Order"},

    // --- Lines ---
    {"ten shipments", FIVE FIVE "Return",
     "boxes ~ only ten entries SHIPMENT; orderLines = 30; orderLines@29,11 = SRV-000.109"},
    {"a shipment is refused, the others come", "Ins 'SRV' Tab Ctrl+A Shift+Tab Return Return Escape",
     "boxes ~ In Do can be only one entry SHIPMENT of KTM: SRV-000.100; status ~ 1 material"},
    {"found nothing", "Ins 'nothing has these words' Return Escape", "orderLines = 21"},
    {"so many", "Ins 'stm32f103 ' Tab Tab Ctrl+A '7' Return Escape", "orderLines@21,5 = 7"},
    {"sorted", "orderLines@^1", "orderLines@0,1 = 0217.500HXP; orderLines@0,0 = 1; title = Order *"},
    {"sorted as it was", "orderLines@^1 orderLines@^1 Ctrl+Z", "orderLines@0,1 = STM32F103C8T6; title = Order"},
    {"not sorted while locked", "Ctrl+E orderLines@^1", "orderLines@0,1 = STM32F103C8T6; status = Editing is locked"},
    {"pasted as far as it can be",
     "orderLines@0,8 F2 Ctrl+A 'five' Return orderLines@1,5 +orderLines@0,8 Ctrl+C orderLines@2,5 Ctrl+V",
     "orderLines@3,5 = 25; errors ~ five"},
    {"copied to another order", "orderLines@1,1 +orderLines@2,1 #zpCopy !file !Copy '%/_zp/one.xml' Return",
     "file _zp/one.xml ~ ABLS-8.000MHZ-B4-T; file _zp/one.xml ~ <index>3<; title = Order"},
    {"not to itself", "#zpCopy !file !Copy '%/_zp/zp_0.xml' Return Return", "boxes ~ This order is open here"},
    {"not to one in use", "#zpCopy !file !Copy '%/_zp/held.xml' Return Return",
     "boxes ~ held.xml: it is open elsewhere: gui_tests; file _zp/held.xml !~ STM32"},
    {"not to it", "#zpCopy !file !Copy '%/_zp/bad.xml' Return Return", "boxes ~ bad.xml: ; file _zp/bad.xml = bad"},

    // --- Remarks and options ---
    {"in bold", "#editAttentions Ctrl+A Ctrl+B 'bold' !OK Ctrl+S", "disk ~ &lt;b&gt;bold&lt;/b&gt;; disk !~ style="},
    {"remarks undone", "#editAttentions Ctrl+A 'other' !OK !attentions Ctrl+Z orderLines@0,1 Ctrl+S",
     "disk !~ other; attentions ~ Proszę"},
    {"remarks typed", "!attentions Ctrl+End 'Żuk' Ctrl+S", "disk ~ Żuk; title = Order"},
    {"the person's telephone", "orderOptions@3,1 F2 Ctrl+A 'Paweł Ćwikła' Return Ctrl+S",
     "disk ~ value1=\"Paweł Ćwikła\" value2=\"wew. 231\""},
    {"somebody's is not known", "orderOptions@3,1 F2 Ctrl+A 'Żuk' Return Ctrl+S", "disk ~ value1=\"Żuk\" value2=\"\""},
    {"the person before",
     "orderOptions@3,1 F2 Ctrl+A 'Żuk' Return " EDIT "orderOptions@3,1 Ctrl+Z Ctrl+Z " EDIT "Ctrl+S",
     "disk ~ value1=\"Agnieszka Malinowska-Żak\" value2=\"tel. wew. 214\""},

    // --- Other windows ---
    {"locked, the database's answer", "Ctrl+E Ctrl+D Return|materials@0,0 Right materials@?0/0,0 #toOrder",
     "status = The order is locked, nothing was added"},
    {"the database's material", "Ctrl+D Return|materials@0,0 Right materials@?0/0,0 #toOrderN '3' Return|<",
     "orderLines = 22; orderLines@21,5 = 3; orderLines@21,7 = {+14}"},
    {"a window stays, so all stays", EDIT "#config|options@12,1 F2 Ctrl+A 'Żuk' Return|<Ctrl+Q !Cancel",
     "boxes ~ onfiguration; title = Order *; orderLines@0,1 = Żuk; disk !~ Żuk"},
    {"Escape is no answer", EDIT "Ctrl+Q Escape", "title = Order *; orderLines@0,1 = Żuk; disk !~ Żuk"},
    {"given up twice", EDIT "#config|options@12,1 F2 Ctrl+A 'Żuk' Return|<Ctrl+Q !Cancel Ctrl+Q !No !No",
     "boxes ~ Asking: Save order; title = closed; disk !~ Żuk; file _config/kiv_mat_config.xml !~ Żuk"},
    {"the page follows", "#previewBeside " EDIT "~400", "page ~ Żuk"},
};

class tst_order : public scenarioFixture
{
    Q_OBJECT

    static QByteArray line(const char *ktm, const char *name)
    {
        return testSupport::order(QByteArray("<order_items><order_item><name>") + name + "</name><ktm>" + ktm
                                  + "</ktm></order_item></order_items>");
    }
    void prepare() override
    {
        scenarioFixture::prepare();
        for (const char *name : {"one", "left", "held"})
            folder().write(QString("_zp/%1.xml").arg(name), line("317121-03.01-00001", "ONE"));
        folder().write("_zp/bad.xml", "bad");
        folder().write("_zp/unknown.xml", line("NONE-1", "NONE"));
        const QByteArray host = QSysInfo::machineHostName().toUtf8();
        const QByteArray mine = QByteArray::number(QCoreApplication::applicationPid());
        folder().write("_zp/.left.xml.lock", "999999999\nKivZP\n" + host + "\n");
        folder().write("_zp/.held.xml.lock", mine + "\ngui_tests\n" + host + "\n");
    }
    std::vector<scenarioTable> tables() override { return {{nullptr, false, scenarios}}; }

private slots:
    void lockedWhileMaterialsAreChosen()
    {
        work("Ins 'stm32f103'");
        QWidget *dialog = QApplication::activeWindow();
        steps("<Ctrl+E");
        hands inDialog(*dialog);
        inDialog("Return");
        QStringList told;
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            told.append(label->text());
        QVERIFY2(told.contains("The order is locked, nothing was added"), qPrintable(told.join('|')));
        look("orderLines = 21");
    }

    void oldErrorsStayAway()
    {
        seen().showsErrors = true;
        const errorsWindow &errors = errorsWindow::instance();
        steps("Ctrl+O '%/_zp/unknown.xml' Return ~100");
        QVERIFY(errors.isVisible());
        steps("Escape|<Ctrl+O '%/_zp/one.xml' Return ~100");
        look("orderLines = 1");
        QVERIFY(!errors.isVisible());
    }

    // What was not saved is offered until it is saved or deleted, all of it at once.
    void leftUnsaved()
    {
        work("Ctrl+N #addShipment Ctrl+Q");
        look("boxes =");
        restart("Return");
        look("boxes = Unsaved work; orderLines = 1; title = Order *; status ~ Restored as it was");
        work("Ctrl+Q");
        userState::instance().lastZp = "_zp/one.xml";
        restart("Escape");
        look("orderLines@0,1 = ONE; title = Order; status ~ 1 unsaved file kept");
        steps("Ctrl+O '%/_zp/one.xml' Return " EDIT);
        mainWindow().storeAll();
        testSupport::write(path("_zp/one.xml"), line("317121-03.01-00001", "THEIRS"));
        userState::instance().lastZp = "_zp/gone.xml";
        restart("Return");
        look("boxes = Unsaved work; orderLines@0,1 = Żuk; errors =");
        work("Ctrl+S Escape");
        look("boxes ~ one.xml was changed by another program; file _zp/one.xml ~ THEIRS; title = Order *");
        work("Ctrl+S !Overwrite_it Ctrl+Q");
        look("file _zp/one.xml ~ Żuk");
        restart("!Delete_... Escape !Delete_... !Yes");
        look("boxes ~ for good; orderLines@0,1 = Żuk");
        restart("");
        look("boxes =");
    }

    void changedOnDisk()
    {
        QByteArray theirs = testSupport::read(path("_zp/zp_0.xml"));
        testSupport::write(path("_zp/zp_0.xml"), theirs.replace("STM32F103C8T6", "THEIRS"));
        steps(EDIT "Ctrl+S !Save_as Ctrl+A '%/mine.xml' Return");
        look("disk ~ THEIRS; file mine.xml ~ Żuk; file mine.xml !~ THEIRS");
    }

    void recovered()
    {
        const QStringList place{path("recovery")};
        kiv_mat_zpStruct order;
        QCOMPARE(loadZp(path("_zp/one.xml"), &order), 0);
        const fileState onDisk = fileState::of(path("_zp/one.xml"));
        {
            orderRecovery normal(place);
            QVERIFY(normal.store(order, "x", onDisk));
            // The copy of a running program is not taken from it.
            QVERIFY(orderRecovery(place).left().empty());
            normal.discard();
            QVERIFY(normal.store(order, "x\ny", onDisk));
        }
        orderRecovery next(place);
        QCOMPARE(next.left().size(), size_t(1));
        const orderRecovery::copy copy = next.left().front();
        QVERIFY(next.takeOver(copy));
        QCOMPARE(copy.order, QString("x\ny"));
        QVERIFY(copy.onDisk == onDisk);
        QVERIFY(testSupport::read(copy.file).contains("ONE"));
        QVERIFY(next.left().empty());
    }

    // Where not even a copy can be kept, the program does not end unasked.
    void nowhereToKeep_data()
    {
        const testSupport::rows<bool, QString> row;
        row("Ctrl+N #addShipment Ctrl+Q", true, "boxes =; title = closed");
        row("Ctrl+N #addShipment Ctrl+Q !Cancel", false,
            "boxes ~ recovery: Not a directory; orderLines = 1; title = Order *");
        row("Ctrl+N #addShipment Ctrl+N !Cancel", false, "orderLines = 1; title = Order *");
        row("Ctrl+N #addShipment Ctrl+Q !Leave_it_and_lose_the_changes", false, "title = closed");
        row(EDIT "Ctrl+Q !Yes !Overwrite_it Escape", true,
            "boxes ~ no file can stand there; orderLines@0,1 = Żuk; title = Order *");
        row(EDIT "Ctrl+Q !Yes !Overwrite_it !Keep_in_recovery ~1", true, "title = closed");
        row(EDIT "Ctrl+Q !Yes !Overwrite_it !Keep_in_recovery", false,
            "status ~ recovery: Not a directory; orderLines@0,1 = Żuk; title = Order *");
    }
    void nowhereToKeep()
    {
        const auto [userDir, seen] = testSupport::fetch<bool, QString>();
        if (userDir)
            folder().write("share/x", "");
        else
            folder().write("share", "no folder");
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("share")));
        restart("");
        const QString recovery = path("_config/recovery");
        QVERIFY(QDir(recovery).removeRecursively());
        folder().write("_config/recovery", "no folder");
        if (testSupport::tag().contains("Yes")) {
            QFile::remove(file());
            QVERIFY(QDir().mkpath(file()));
        }
        work(testSupport::tag());
        look(seen);
        if (userDir && seen.contains("closed")) {
            restart("Return");
            look("title = Order *; boxes = Unsaved work");
        }
        qunsetenv("XDG_DATA_HOME");
    }

    void versionsGo_data()
    {
        const char *copies = "files %1/zp_0.*.xml.gz ~ zp_0; status = Saved";
        const testSupport::rows<QString, QString> row;
        row("beside the program", "rel/here", QString(copies).arg("rel/here"));
        row("not only to the temporary folder", "%/tmp/KivZP_BACKUP",
            QString(copies).arg("tmp/KivZP_BACKUP") + "; " + QString(copies).arg("share/gui_tests/KivZP_BACKUP"));
        row("nowhere", "%/_zp/one.xml", "status = Saved, no earlier version could be kept in %/_zp/one.xml");
    }
    void versionsGo()
    {
        const auto [option, seen] = testSupport::fetch<QString, QString>();
        QVERIFY(QDir().mkdir(path("tmp")));
        qputenv("TMPDIR", QFile::encodeName(path("tmp")));
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("share")));
        setOption("PATH_BACKUP", filled(option));
        restart("");
        work(EDIT "Ctrl+S");
        look(seen);
        qunsetenv("TMPDIR");
        qunsetenv("XDG_DATA_HOME");
    }

    void versions()
    {
        const QString backup = path("versions");
        for (int i = 0; i < 5; ++i) {
            folder().write("a.xml", QByteArray::number(i));
            QFile(path("a.xml")).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
            // The second time there is nothing new.
            for (int times = 0; times < 2; ++times)
                QVERIFY(fileVersions::keep(path("a.xml"), {backup}, 3));
        }
        const auto othersMay = [](const QString &made) { return int(QFile::permissions(made)) & 0x77; };
        QCOMPARE(othersMay(backup), 0);
        QCOMPARE(othersMay(fileVersions::of(path("a.xml"), backup)[0]), 0x40);
        folder().write("b/a.xml", "other");
        // Versions of one millisecond are put behind each other, ahead of the clock.
        QTest::qWait(10);
        QVERIFY(fileVersions::keep(path("b/a.xml"), {backup}, 3));
        QByteArray kept;
        for (const QString &version : fileVersions::of(path("a.xml"), backup))
            kept += testSupport::read(fileVersions::unpacked(version));
        QCOMPARE(kept, QByteArray("432"));
        // Known by their path, those of older programs, which are not packed, by the files that there are.
        const QString newest = fileVersions::of(path("a.xml"), backup)[0];
        QCOMPARE(testSupport::run("zcat", {newest}).out, QString("4"));
        QVERIFY(!gzipFile::unpack(newest, path("out"), 0) && gzipFile::unpack(newest, path("out"), 1));
        folder().write("versions/" + QFileInfo(newest).fileName().left(11) + "20200101-000000-000.xml", "old");
        folder().write("versions/a.0000000x.20200101-000000-000.xml", "none");
        const auto all = fileVersions::all({backup, backup}, {path("a.xml")});
        QCOMPARE(int(all.size()), 5);
        QVERIFY(all[0].path == path("b/a.xml") && all[1].file == newest && all[1].path == path("a.xml"));
        QCOMPARE(all[4].path + testSupport::read(fileVersions::unpacked(all[4].file)), path("a.xml") + "old");
        QVERIFY(!fileVersions::keep(path("a.xml"), {path("a.xml")}, 3));
    }
};

KIVZP_TEST(tst_order)
#include "tst_order.moc"

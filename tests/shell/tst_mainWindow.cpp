// The actions of the main window, one by one, and its start.
#include "scenarioFixture.h"

#include "report/myWebView.h"
#include "shell/startupDialog.h"

#include <QWheelEvent>

#define EDIT "orderLines@0,1 F2 Ctrl+A 'Żuk' Return"

using enum lockRule;
const scenario actions[] = {
    {EDIT, "#zpNew !No", "orderLines = 0; orderOptions@1,1 = {+0}; title = Order"},
    {"", "#zpOpen '%/_zp/one.xml' Return", "orderLines = 1; orderLines@0,1 = ONE", same},
    {EDIT, "#save", "status = Saved; title = Order; disk ~ <name>Żuk<; files backup/zp_0.*.xml.gz ~ zp_0", same},
    {EDIT, "#zpSaveAs Ctrl+A '%/o.xml' Return",
     "file o.xml ~ Żuk; file o.html ~ Żuk; disk !~ Żuk; status = Saved as %/o.xml", same},
    // What the question names is what would be written, and No goes back to the name.
    {EDIT, "#zpSaveAs Ctrl+A '%/_files/firms' Return !No Ctrl+A '%/o 1.5' Return",
     "boxes ~ %/_files/firms.xml exists already; file o 1.5.xml ~ Żuk; file _files/firms.xml !~ Żuk", same},
    {EDIT, "#zpSaveAs Ctrl+A '%/_files/firms' Return Escape Escape", "title = Order *; file _files/firms.xml !~ Żuk"},
    {"", "#zpPrint Ctrl+A '%/p&o' Return", "file p&o.pdf ~ PDF; log ~ <b>p&amp;o.pdf; status ~ Printed to %/p", reads},
    {"", "#zpPrint Ctrl+A '%/_zp/zp_0.xml/p.pdf' Return Return", "boxes ~ cannot be written: Not a directory"},
    {"", "#zpSend", "status ~ the message is %/_e-mail/msg_; title = Order", reads},
    {EDIT, "#zpSend !No", "files _e-mail/*.cmd = ; title = Order *"},
    {"", "#archiveDD", "status ~ Archived as; files backup/*.archive.* ~ zp_0", reads},
    {"", "#archiveDatabase", "status ~ 4 database; files backup/*.archive.* ~ db_mechanics", reads},
    {"", "#sendDatabase", "status ~ the message is", reads},
    {"", "#sendBoms", "status ~ the message is", reads},
    {"", "#zpOpen '%/_zp/bad.xml' Return Return !Open_repaired_copy",
     "orderLines = 2; orderLines@1,1 = R & D; title = Order *; errors ~ stands alone"},
    {"", "#zpOpen '%/_zp/bad.xml' Return Return Escape", "orderLines = 0; title = Order", same},
    // What was given up for it comes back.
    {EDIT, "#zpOpen !No Escape Ctrl+S", "disk ~ <name>Żuk<"},
    {EDIT, "#zpOpen !No '%/_help/KIV_ZP.html' Return Return Return ~200",
     "orderLines@0,1 = Żuk; title = Order *; boxes ~ Unsaved; file _config/recovery/order-1.xml ~ Żuk"},
    {EDIT, "#zpOpen !No '%/_help/KIV_ZP.html' Return Return Escape ~200",
     "orderLines = 0; title = Order; file _config/recovery/order-1.xml ~ Żuk"},
    {EDIT, "#zpOpen !No '%/_zp/one.xml' Return", "orderLines@0,1 = ONE; files _config/recovery/*.xml =", same},
    {"", "#zpRepair '%/_zp/bad.xml' Return !Open_repaired_copy", "orderLines = 2; title = Order *"},
    {"", "#zpRepair '%/_files/cut.xml' Return !Open_repaired_copy Ctrl+A '%/_files/whole.xml' Return",
     "file _files/whole.xml ~ <name>F</name>; file _files/cut.xml !~ /firm; orderLines = 21", same},
    {"", "#zpRepair '%/_zp/one.xml' Return Return", "boxes ~ nothing to mend; orderLines = 21", same},
    {"", "#versions", "front = Versions and unsaved orders", same},
    {"", "#exit", "title = closed; boxes ="},
    {"", "#edit", "status = Editing is locked"},
    {"#edit", "#edit", "status = Editing is allowed"},
    {EDIT, "#undo", "status ~ Undone: ; orderLines@0,1 = STM32F103C8T6; title = Order", guards},
    {EDIT " Ctrl+Z", "#redo", "status ~ Done again: ; orderLines@0,1 = Żuk", guards},
    {"orderLines@0,1 +orderLines@1,5", "#copyCells", "clipboard = STM32F103C8T6\n25", reads},
    {"orderLines@1,5 Ctrl+C orderLines@6,5", "#pasteCells", "orderLines@6,5 = 25", edits},
    {"", "#zpCopy !Copy", "status ~ 21 line; clipboard ~ STM32F103C8T6", reads},
    {"", "#zpClear Down Space !Clear", "orderLines:2 =; orderLines@1,1 ~ AMS", edits},
    {"", "#find 'bezpiecznik' Return", "status = Found in line 16", reads},
    {"Ctrl+F 'rezystor' Return", "#findNext", "status = Found in line 6", reads},
    {"", "#zpConfig", "focus = orderOptions", reads},
    {"", "#editAttentions Ctrl+Home 'Żuk' !OK", "attentions ~ Żuk", guards},
    {"", "#addMaterial ~60 'stm32f103' Return Escape", "orderLines = 22; orderLines@21,1 = STM32F103C8T6", edits},
    {"", "#addShipment", "orderLines@21,11 = SRV-000.101; orderLines@21,8 = SHIPMENT; orderLines@21,7 = {+0}", edits},
    {"orderLines@19,1 Del", "#addPCB", "orderLines = 21; orderLines@20,11 = SRV-001.100", edits},
    {"", "#addPCB Return", "boxes = Information: Only one PCB order; orderLines = 21"},
    {"", "#appendBom", "front = Bill of materials", guards},
    {"", "#baskets Escape", "boxes ~ Supplier baskets", reads},
    {"", "#baskets Alt+C ~150 Escape",
     "clipboard ~ Part number\tQuantity\tCustomer reference\nSTM32F103C8T6\t25\t317121-"},
    {"", "#allQuantities '12' Return", "orderLines:5 = 12", edits},
    {"orderLines@1,2 +orderLines@3,2", "orderLines@?1,2 #allQuantities '12' Return !2_selected_lines",
     "orderLines@1,5 = 12; orderLines@3,5 = 12; orderLines@2,5 = 25", edits},
    {"", "#allDates Down Return", "orderLines:7 = {+21}", edits},
    {"", "#allDescriptions 'x' Return", "orderLines:8 = x", edits},
    {"", "#allRoHS Up Return", "orderLines:9 = NIE", edits},
    {"", "#allUnits Down Down Return", "orderLines:6 = tape", edits},
    {"", "#allTargets !Yes Down Return", "orderLines:10 ~ 31", edits},
    {"", "#allTargets !No", "title = Order"},
    {"", "#allDates Escape", "title = Order"},
    {"", "#allSum Return", "boxes ~ [ PLN ]", reads},
    {"", "#clearPrice", "orderLines:2 = 0.00; orderLines:3 = 0.00", edits},
    {"#clearPrice", "#refreshPrices !Yes", "orderLines@0,2 = 18.50", edits},
    {"orderLines@0,8 +orderLines@2,8 +orderLines@2,5 +orderLines@3,5", "#fillDown",
     "orderLines@2,8 ~ Mikrokontroler; orderLines@1,8 ~ Stabilizator; orderLines@3,5 = 25", edits},
    {"orderLines@2,1 +orderLines@4,1", "#moveUp",
     "orderLines@1,1 ~ ABLS; orderLines@3,1 ~ 10K; orderLines:0 ~ 1|2|3|4|5", edits},
    {"orderLines@0,1 Shift+Down", "#moveDown Ctrl+S",
     "orderLines@0,1 ~ ABLS; orderLines@1,1 ~ STM32; orderLines@0,0 = 1"},
    {"orderLines@0,1 +orderLines@2,1 +orderLines@20,1", "orderLines@?2,1 #deleteLines",
     "orderLines = 18; orderLines@0,1 = AMS1117-3.3; orderLines@0,0 = 1", edits},
    {"", "#deleteAll !Yes #-allDates", "orderLines = 0; boxes ~ has no lines", edits},
    {"", "#database Return", "front ~ db_warehouse.xml"},
    {"", "#bom", "front = Bill of materials"},
    {"", "#firm", "front = List of manufacturers and suppliers"},
    {"", "#orders", "front = Orders"},
    {"", "#annualPlan", "front = Annual plan"},
    {"", "#requests", "front ~ Requests for quotation for "},
    {"", "#offers", "front ~ Offers for "},
    {"", "#synchronizeAll", "status = No file is shared: put one into the shared store first", reads},
    {"", "#takeShared Return", "boxes ~ the configuration names no shared store", reads},
    {"", "#putShared '%/_zp/zp_0.xml' Return Return Return", "boxes ~ the configuration names no shared store", reads},
    {"", "#update", "front = Update; state ~ names no address"},
    {"", "#createUpdate Escape", "boxes = Make an update"},
    {"", "#updateDesc 'Nowe ceny' !OK", "file _config/update_description.html ~ Nowe ceny"},
    {"", "#lastPrices", "status = None of these materials was ordered before"},
    {"", "#delivery 'WZ 7' Alt+N", "status = 15 lines delivered; orderLines@20,13 ~ WZ 7, ", edits},
    // Of one line a part came: the rest stands behind it, and one step takes it back.
    {"orderLines@6,1 +orderLines@7,1", "#delivery Return '4' Return '0' Return Alt+N",
     "orderLines@6,13 ~ {+0}; orderLines@6,5 = 4; orderLines@7,5 = 56; orderLines@7,13 =; orderLines@8,13 =; "
     "orderLines = 22",
     guards},
    {"#delivery 'WZ 7' Alt+N ~200 Ctrl+S ~400", "#deliveredToStock Return",
     "front ~ Database; status ~ Delivered into stock", same},
    {"Ctrl+Shift+O|Return End Ctrl+M|<", "#sentChanges ", "status = Nothing was changed since it was sent"},
    {"", "#messageTemplate Ctrl+End ' Dziękuję' !OK", "file _e-mail/msg_template.htm ~ Dziękuję"},
    {"", "#messageTemplate !OK", "file _e-mail/msg_template.htm = <p>Order <b>{Do_no}</b></p>"},
    {"", "#config", "front = Configuration"},
    {"#previewBeside", "#previewBeside", "orderLines = 21"},
    {EDIT, "#previewBeside ~400", "page ~ Żuk"},
    {"", "#log", "front = Log"},
    {"", "#errors", "front = Errors"},
    {"", "#help", "desktop = file://%/_help/KIV_ZP.html"},
    {"", "#about Escape", "boxes = About"},
};

class tst_mainWindow : public scenarioFixture
{
    Q_OBJECT

    void prepare() override
    {
        scenarioFixture::prepare();
        for (const char *name : {"_e-mail", "_bin"})
            testSupport::copyFolder(testSupport::source(name), path(name));
        QFile::remove(path("_e-mail/KIV_EMAIL.exe"));
        folder().write("_help/KIV_ZP.html", "manual");
        folder().write("_e-mail/msg_template.htm", "<p>Order <b>{Do_no}</b></p>");
        folder().write("_zp/one.xml", testSupport::order("<order_items><order_item><name>ONE</name>"
                                                         "</order_item></order_items>"));
        folder().write("_zp/bad.xml", testSupport::order("<order_items><order_item><name>ONE</name></order_item>"
                                                         "<order_item><name>R & D</name></order_item></order_items>"));
        folder().write("_files/cut.xml", testSupport::document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd",
                                                               "<suppliers><firm><name>F")
                                             .chopped(16));
    }
    std::vector<scenarioTable> tables() override { return {{"", true, actions}}; }

private slots:
    // What is attached is there when the mail program reads the message, and goes with the program.
    void sent_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("attached");
        QTest::addColumn<QByteArray>("begins");
        QTest::newRow("order") << EDIT " Ctrl+M !Yes"
                               << ".pdf" << QByteArray("%PDF");
        for (const char *name : {"Database", "Boms"})
            QTest::newRow(name) << QString("#send%1").arg(name) << QString("/%1_").arg(name).toLower()
                                << QByteArray("PK");
    }
    void sent()
    {
        QFETCH(QString, steps);
        QFETCH(QString, attached);
        QFETCH(QByteArray, begins);
        work(steps);
        const QString message = testSupport::read(status().section("the message is ", 1));
        const QString file = message.section("attachment", -1).section('[', 1).section(']', 0, 0);
        QVERIFY2(file.contains(attached), qPrintable(message));
        QVERIFY(testSupport::read(file).startsWith(begins));
        if (attached == ".pdf")
            QVERIFY(message.contains(path("_zp/zp_0.xml") + ']'));
        work("Ctrl+Q");
        QVERIFY(!QFile::exists(file));
    }

    // What deliveries brought is in the stock once: it waits to be noted, goes with its step, is there again after the
    // program was killed, and counts for the order under another name, too.
    void deliveriesGoIntoStockOnce()
    {
        const QString states = path("_zp/order_states.xml");
        const auto proposesNothing = [this] {
            turnTo(mainWindow());
            work("#deliveredToStock ~200");
            look("status = No delivery is to be taken into stock");
        };
        const auto turnToDatabase = [this] {
            for (QMainWindow *shown : shownWindows())
                if (shown->windowTitle().contains("Database"))
                    turnTo(*shown);
        };
        openWindow("#deliveredToStock Return");
        look("title ~ Database; title ~ *");
        proposesNothing();
        turnToDatabase();
        work("Ctrl+Z");
        look("title !~ *");
        openWindow("<#deliveredToStock Return");
        look("title ~ *");
        restart("Return");
        boxes();
        proposesNothing();
        turnToDatabase();
        look("title ~ *");
        work("Ctrl+S");
        look("title !~ *");
        const int noted = testSupport::read(states).count("<stocked ");
        QVERIFY(noted > 3);
        proposesNothing();
        work("#zpSaveAs Ctrl+A '" + path("_zp/renamed.xml") + "' Return ~400");
        QCOMPARE(testSupport::read(states).count("<stocked "), 2 * noted);
        proposesNothing();
        testSupport::write(states, "<spoilt");
        work("#deliveredToStock ~200 Return");
        look("boxes ~ cannot be seen which deliveries are in stock");
    }

    void stagesAdvanceTheSplash()
    {
        class watchedSplash : public startupDialog
        {
        public:
            QStringList seen;

        protected:
            void drawContents(QPainter *painter) override
            {
                const QString step = QString("%1/%2").arg(progress()).arg(maximum());
                if (seen.isEmpty() || seen.last() != step)
                    seen.append(step);
                startupDialog::drawContents(painter);
            }
        };
        // A file that is switched off has its stage all the same.
        setOption("LOAD_DB_MECHANICS", "NIE");
        watchedSplash dialog;
        splash::hold(&dialog);
        splash::setProgress(0, 10);
        splash::show();
        QCoreApplication::processEvents();
        restart("");
        splash::hold(nullptr);
        QCOMPARE(dialog.seen.join(' '), QString("0/10 1/9 2/9 3/9 4/9 5/9 6/9 7/9 8/9 9/9"));
        // The order has lines of the database left out.
        look("errors ~ Materials does not exist in database:<br><b>");
    }

    void wheelZooms()
    {
        work("#previewBeside");
        auto *view = window().findChild<myWebView *>();
        const auto wheel = [view](int delta, Qt::KeyboardModifiers modifiers) {
            QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(view, &event);
            return float(view->zoomFactor());
        };
        QCOMPARE(wheel(120, Qt::NoModifier), 1.0f);
        QCOMPARE(wheel(-360, Qt::ControlModifier), 0.7f);
        QCOMPARE(wheel(-119, Qt::ControlModifier), 0.7f);
        QCOMPARE(wheel(480, Qt::ControlModifier), 1.1f);
        // There is no lower bound.
        wheel(-120 * 20, Qt::ControlModifier);
        view->showReport("<p>x</p>");
        QVERIFY(wheel(120 * 20, Qt::ControlModifier) > 1.0);
    }
};

KIVZP_TEST(tst_mainWindow)
#include "tst_mainWindow.moc"

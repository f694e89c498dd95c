// The window of the firm register, worked with hands: edited, renamed in the materials, saved.
#include "scenarioFixture.h"

#include "data/loaders.h"
#include "firm/firmOperations.h"
#include "util/fileVersions.h"

#define DETAILS "_files/firm_details.xml"
#define FIRST "#firm|manufacturers@0,0 F4 "
#define ADDRESS FIRST "'Krucza 1' !OK "
#define NAME "F2 Ctrl+A 'Nowa' Return"

using namespace firmOperations;
using enum lockRule;

const scenario actions[] = {
    {NAME, "#save", "log ~ Save file <b>firms.xml</b> [; saved ~ <fullname>Nowa; saved !~ <fullname>Abracon LLC", same},
    {"", "#versions", "front = Versions and unsaved orders", same},
    {"", "#close", "title = closed; boxes ="},
    {"", "#edit", "status = Editing is locked"},
    {"manufacturers@0,1 Shift+Down", "#fillDown", "manufacturers@1,1 = Abracon LLC", edits},
    {NAME, "#undo", "status ~ Undone: ; at = Abracon LLC", guards},
    {NAME " Ctrl+Z", "#redo", "status ~ Done again: ; saved ~ <fullname>Nowa", guards},
    {"", "#copyCells", "status = 1 cell copied; clipboard = Abracon LLC", reads},
    {"manufacturers@2,1 Ctrl+C manufacturers@0,1", "#pasteCells", "status ~ 1 cell; manufacturers@0,1 ~ Allegro",
     edits},
    {"", "#find 'semicond' Return", "status = Found in line 4; at ~ Alpha & Omega", reads},
    {"", "#find 'in no firm' Return", "status ~ No line holds in no firm; at = Abracon LLC", reads},
    {"Ctrl+F 'semicond' Return", "#findNext", "status = Found in line 4; at ~ Limited", reads},
    {"", "#add", "manufacturers = 60; saved ~ <name>FIRM</name>; saved ~ <fullname>FIRM SA", edits},
    {"!Suppliers", "#add", "suppliers = 12; saved ~ <name>FIRM</name>", edits},
    {"", "manufacturers@?0,1 #add", "manufacturers = 60", edits},
    {"Ins manufacturers@59,0", "#delete", "status ~ 1 firm deleted; manufacturers = 59", edits},
    {"", "#delete Escape", "boxes ~ is deleted: Abracon: ; errors ~ <b>Abracon</b>: ; manufacturers = 59", guards},
    {"+manufacturers@1,1", "#mergeFirms Return",
     "status = 1 firm merged into Abracon; manufacturers = 58; saved !~ <name>Advanced Monolithic", edits},
    {"", "#synchronize", "status = This file is not shared: put it into the shared store first", reads},
    {"", "#publish Escape", "at = Abracon LLC", reads},
    {"", "#homePage", "desktop = https://abracon.com", reads},
    {"", "#details Tab 'a@b.example' Return",
     "file " DETAILS " ~ <email>a@b.example</email>; status = The details of Abracon are saved; title !~ *", guards},
};

#define QUESTION "#firm|Down F2 Ctrl+A 'Żuk1' "
#define GOES_ON " Tab Return Down Right F2 Ctrl+A 'Żuk2' Ctrl+S"

const scenario scenarios[] = {
    // A question that comes up while a value is taken leaves the keyboard in the tree.
    {"keys after Return", QUESTION "Return" GOES_ON, "boxes ~ Materials use the old name; disk ~ Żuk1; disk ~ Żuk2"},
    {"keys after Ctrl+S", QUESTION "Ctrl+S" GOES_ON, "boxes ~ Materials use the old name; disk ~ Żuk1; disk ~ Żuk2"},
    // An action that has nothing to do until what is being typed is in.
    {"typed, its key", "#firm|Ins manufacturers@59,4 F2 'https://x.example' Ctrl+H", "desktop = https://x.example"},
    {"typed, its menu", "#firm|Ins manufacturers@59,4 F2 'https://x.example' #homePage", "desktop = https://x.example"},
    {"a wrong tax number", "#firm|manufacturers@0,6 F2 '1234563217' Return", "manufacturers@!0,6 ~ ! The tax number"},
    {"undone", "#firm|manufacturers@0,6 F2 '1234563217' Return Ctrl+Z", "manufacturers@!0,6 ="},
    {"a right one", "#firm|manufacturers@0,6 F2 '123-456-32-18' Return", "manufacturers@!0,6 ="},
    {"a click", "#firm|manufacturers@0,4", "desktop ="},
    {"a click with Ctrl", "#firm|manufacturers@0,4 +manufacturers@0,4", "desktop = https://abracon.com"},
    // --- Details ---
    {"found again", ADDRESS "F4 Ctrl+End ' m. 2' !OK", "file " DETAILS " ~ <address>Krucza 1 m. 2</address>"},
    {"of the other list's firm", ADDRESS "!Suppliers suppliers@0,0 F4 'Lubicz' !OK",
     "file " DETAILS " ~ <address>Krucza 1</address>; file " DETAILS " ~ <address>Lubicz</address>"},
    {"nothing said any more", ADDRESS "F4 Ctrl+A Del !OK", "file " DETAILS " !~ <details>"},
    {"nothing changed", FIRST "Escape F4 Tab Return F4 !OK", "files " DETAILS " =; boxes !~ Save the changed"},
    {"a wrong address", FIRST "Tab 'a@b' Return Escape !No", "files " DETAILS " =; boxes ~ Save the changed details"},
    {"a wrong discount", FIRST "Alt+D '101' Return Ctrl+A '10,5' Return",
     "file " DETAILS " ~ <discount>10,5</discount>"},
    {"a wrong one is not saved by Escape", FIRST "Alt+D '101' Escape !Yes Escape !No", "files " DETAILS " ="},
    {"kept open", FIRST "'x' Escape !Cancel 'y' Escape !Yes", "file " DETAILS " ~ <address>xy</address>"},
    {"ready columns", FIRST "Alt+R #readySemicolon Tab Return",
     "file " DETAILS " ~ <separator>semicolon<; file " DETAILS
     " ~ <column kind=\"own_reference\" caption=\"Customer reference\" text=\"\"/>"},
    {"columns by keys",
     FIRST "Alt+M ~150 Down Alt+M ~150 End Up Alt+T 'PO 7' Alt+P Ctrl+A 'Ref' Alt+U ~150 Alt+I ~150 Alt+S End Return",
     "file " DETAILS " ~ <column kind=\"text\" caption=\"Ref\" text=\"PO 7\"/>\n            <column kind=\"quantity\" "
     "caption=\"Quantity\"; file " DETAILS " ~ <captions>NIE</captions>; file " DETAILS " ~ <separator>tab<"},
    {"a column less", FIRST "Alt+R #readyComma Alt+V ~150 Alt+D Return", "file " DETAILS " !~ part_number"},
    {"with another name", ADDRESS "manufacturers@0,0 F2 Ctrl+A 'Nowa' Return ~50 !Rename_in_this_list_only Ctrl+S",
     "file " DETAILS " ~ <name>Nowa</name>; file " DETAILS " !~ Abracon"},
    {"found by it before it is saved",
     ADDRESS "manufacturers@0,0 F2 Ctrl+A 'Nowa' Return ~50 !Rename_in_this_list_only manufacturers@0,0 F4 'x' !OK",
     "file " DETAILS " ~ <name>Abracon</name>; file " DETAILS " ~ xKrucza"},
    {"with a name taken back",
     ADDRESS "manufacturers@0,0 F2 Ctrl+A 'Nowa' Return ~50 !Rename_in_this_list_only Ctrl+Z "
             "manufacturers@0,1 F2 Ctrl+A 'z' Return Ctrl+S",
     "file " DETAILS " ~ <name>Abracon</name>; saved ~ <fullname>z<"},
    {"of a firm that no material names",
     "#firm|Ins F2 Ctrl+A 'Nowa' Return Ctrl+S F4 'x' !OK|F2 Ctrl+A 'Nowsza' Return Ctrl+S",
     "file " DETAILS " ~ <name>Nowsza<"},
    {"merged", ADDRESS "manufacturers@0,0 +manufacturers@1,0 Ctrl+M ~50 Down Return Ctrl+S",
     "file " DETAILS " ~ <name>Advanced Monolithic Systems<; file " DETAILS " ~ Krucza; file " DETAILS " !~ Abracon"},
    {"a program", "#firm|manufacturers@0,4 F2 Ctrl+A 'file:///x' Return Up #-homePage", "boxes ~ no firm with a home"},
};

class tst_firmWindow : public scenarioFixture
{
    Q_OBJECT

    QString file() override { return path("_files/firms.xml"); }
    QString database() { return path("_files/db_warehouse.xml"); }
    QString onDisk()
    {
        kiv_mat_firmStruct saved;
        return loadFirm(file(), &saved) == 0 ? saved.manufacturers.items[0]->name : QString();
    }
    static int uses(const QString &firm)
    {
        return int(usesOf({firm}, manufacturer, programData::instance().databases()).size());
    }
    QString renamed(const QString &to)
    {
        return QString("manufacturers@0,0 F2 Ctrl+A '%1' Return ~50 !Rename_in_5_places").arg(to);
    }
    QModelIndex current() { return window().findChild<QTreeView *>("manufacturers")->currentIndex(); }
    std::vector<scenarioTable> tables() override
    {
        return {{"#firm|manufacturers@0,1", true, actions}, {nullptr, false, scenarios}};
    }

private slots:
    void usedFirmsStay()
    {
        openWindow("#firm");
        // The new one could go, but not in part.
        work("Ins manufacturers@59,1 +manufacturers@0,0 Del Escape");
        QCOMPARE(boxes().size(), 1);
        QCOMPARE(current().model()->rowCount(), 60);
    }

    // A file may have a firm twice: either can go, and both can be edited but for the name.
    void firmsThatStandTwice()
    {
        testSupport::write(file(), testSupport::read(file()).replace("<name>Allegro MicroSystems<", "<name>Abracon<"));
        openWindow(
            "#firm|manufacturers@2,0 F2 Return manufacturers@2,1 F2 Ctrl+A 'x' Return manufacturers@0,0 Del Ctrl+S");
        QCOMPARE(boxes(), QStringList());
        QCOMPARE(current().model()->rowCount(), 58);
        QVERIFY(onDisk() != "Abracon" && testSupport::read(file()).contains("<name>Abracon<"));
        // What was saved over is kept.
        QCOMPARE(fileVersions::of(file(), path("backup")).size(), 1);
    }

    // No way leads to a second firm of a name.
    void secondOnesAreRefused_data()
    {
        QTest::addColumn<QString>("clipboard");
        QTest::addColumn<QString>("steps");
        QTest::addColumn<QString>("seen");
        QTest::newRow("typed") << ""
                               << "manufacturers@1,0 F2 Ctrl+A 'abracon ' Return Escape"
                               << "";
        QTest::newRow("added") << ""
                               << "Ins Escape Ins Escape"
                               << "Error: The list has a new firm FIRM already";
        QTest::newRow("filled") << ""
                                << "manufacturers@0,0 Shift+Down Ctrl+Shift+D Escape"
                                << "has a firm Abracon already";
        QTest::newRow("pasted") << "Abracon"
                                << "manufacturers@1,0 Ctrl+V Escape"
                                << "two firms of a name: Abracon";
        QTest::newRow("pasted twice") << "New\nNEW"
                                      << "manufacturers@1,0 Ctrl+V Escape"
                                      << "two firms of a name: NEW";
    }
    void secondOnesAreRefused()
    {
        QFETCH(QString, clipboard);
        QFETCH(QString, steps);
        QFETCH(QString, seen);
        openWindow("#firm");
        const int before = current().model()->rowCount();
        QGuiApplication::clipboard()->setText(clipboard);
        work(steps);
        const QString said = QString(boxes().join('|')).remove('\n').remove(QChar(0x2028));
        QVERIFY2(said.contains(seen) && said.isEmpty() == seen.isEmpty(), qPrintable(said));
        work("Ctrl+S");
        kiv_mat_firmStruct saved;
        QCOMPARE(loadFirm(file(), &saved), 0);
        QSet<QString> names;
        for (const auto &firm : saved.manufacturers.items)
            names.insert(firm->name.toLower());
        QCOMPARE(names.size(), int(saved.manufacturers.items.size()));
        QCOMPARE(current().model()->rowCount() - before, steps.startsWith("Ins") ? 1 : 0);
    }

    void renamedInMaterials_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("renamed");
        QTest::newRow("materials too") << "!Rename_in_5_places" << true;
        QTest::newRow("list only") << "!Rename_in_this_list_only" << false;
    }
    void renamingTakenBack()
    {
        openWindow("#firm|manufacturers@0,0 F2 Ctrl+A 'Abracon Group' Return ~50 Escape");
        QCOMPARE(boxes().size(), 1);
        QCOMPARE(status(), QString("The name was not changed"));
        QCOMPARE(current().sibling(0, 0).data().toString(), QString("Abracon"));
        QVERIFY(!window().windowTitle().endsWith('*'));
        // What was undone before can still be done again, and the next name asks for itself alone.
        work("manufacturers@0,1 F2 Ctrl+A 'x' Return Ctrl+Z manufacturers@1,0 F2 Ctrl+A 'y' Return ~50 Escape Ctrl+Y");
        QCOMPARE(boxes().size(), 1);
        QVERIFY(window().windowTitle().endsWith('*'));
        QCOMPARE(uses("Abracon"), 5);
    }

    // Merged as one step; the materials follow when the register is saved.
    void mergedInMaterials()
    {
        const int both = uses("Abracon") + uses("Advanced Monolithic Systems");
        openWindow("#firm|manufacturers@0,0 +manufacturers@1,0 #mergeFirms ~50 Escape");
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("Ctrl+M ~50 Up Return ~50 Ctrl+Z Ctrl+Y");
        QCOMPARE(current().model()->rowCount(), 58);
        QCOMPARE(status(), QString("Done again: 1 firm merged into Abracon"));
        QCOMPARE(current().sibling(0, 7).data().toInt(), both);
        QCOMPARE(uses("Abracon"), 5);
        work("Ctrl+S");
        QCOMPARE(uses("Abracon"), both);
        QCOMPARE(testSupport::read(database()).count("<name>Abracon<"), both);
        QVERIFY(!testSupport::read(file()).contains("Advanced Monolithic"));
    }
    void renamedInMaterials()
    {
        QFETCH(QString, answer);
        QFETCH(bool, renamed);
        const QByteArray before = testSupport::read(database());
        openWindow("#firm");
        work("manufacturers@0,0 F2 Ctrl+A 'Abracon Group' Return ~50 " + answer);
        QCOMPARE(boxes().size(), 1);
        work("Ctrl+Z Up");
        QCOMPARE(current().data().toString(), QString("Abracon"));
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("Ctrl+Y");
        // Materials stay as they are until the register is saved; then they use the new name.
        QCOMPARE(uses("Abracon"), 5);
        work(QString("manufacturers@0,0 Del ") + (renamed ? "Escape" : "Ctrl+Z"));
        QCOMPARE(boxes().size(), renamed ? 1 : 0);
        work("Ctrl+S");
        QCOMPARE(uses("Abracon Group"), renamed ? 5 : 0);
        QCOMPARE(onDisk(), QString("Abracon Group"));
        const QByteArray after = testSupport::read(database());
        QCOMPARE(after != before, renamed);
        QCOMPARE(after.count("<name>Abracon Group</name>"), renamed ? 5 : 0);
        const searchQuery query = searchQuery::parse("\"abracon group\"");
        QCOMPARE(programData::instance().search().find(query, 99).total, renamed ? 5 : 0);
    }

    // While the database window is open the new name is one of its steps.
    void renamedInOpenWindow_data()
    {
        QTest::addColumn<QString>("steps");
        QTest::addColumn<int>("inFile");
        QTest::addColumn<int>("inUse");
        QTest::newRow("saved") << "Ctrl+S" << 5 << 5;
        QTest::newRow("undone") << "#undo Ctrl+W" << 0 << 0;
        QTest::newRow("done again") << "#undo #redo Ctrl+W !Yes" << 5 << 5;
        QTest::newRow("given up") << "Ctrl+W !No" << 0 << 0;
    }
    void renamedInOpenWindow()
    {
        QFETCH(QString, steps);
        openWindow("Ctrl+D Return|Ctrl+E");
        QMainWindow &materials = window();
        turnTo(mainWindow());
        const QByteArray before = testSupport::read(database());
        openWindow("#firm|" + renamed("Abracon Group") + " Ctrl+S");
        QCOMPARE(onDisk(), QString("Abracon Group"));
        QVERIFY(!window().windowTitle().endsWith('*'));
        QVERIFY(materials.windowTitle().endsWith(" *"));
        QCOMPARE(testSupport::read(database()), before);
        QCOMPARE(uses("Abracon Group"), 5);
        turnTo(materials);
        work(steps);
        QVERIFY(!materials.windowTitle().endsWith('*'));
        QTEST(int(testSupport::read(database()).count("<name>Abracon Group<")), "inFile");
        QTEST(uses("Abracon Group"), "inUse");
    }

    // Without that window the file is written at once, with what another program wrote there.
    void renamedInChangedFile()
    {
        openWindow("Ctrl+D Return|Ctrl+W");
        turnTo(mainWindow());
        openWindow("#firm|" + renamed("Abracon Group"));
        QByteArray theirs = testSupport::read(database());
        testSupport::write(database(), theirs.replace("<d_group name=\"", "<d_group name=\"Their "));
        boxes();
        work("Ctrl+S Escape");
        QVERIFY(boxes().value(0).contains("was changed by another program"));
        QCOMPARE(testSupport::read(database()), theirs);
        QCOMPARE(status(), QString("Saved, but firms are not renamed in every database"));
        QVERIFY(window().windowTitle().endsWith('*'));
        work("Ctrl+S !Read_it_again,_rename_there_and_save_it");
        QVERIFY(testSupport::read(database()).contains("<d_group name=\"Their Rezystory"));
        QCOMPARE(testSupport::read(database()).count("<name>Abracon Group<"), 5);
        QCOMPARE(uses("Abracon Group"), 5);
        // The window that is opened next takes it for its own.
        turnTo(mainWindow());
        openWindow("Ctrl+D Return|Ctrl+E materials@0,0 F2 Ctrl+A 'Mine' Return Ctrl+S");
        QCOMPARE(boxes(), QStringList());
        QVERIFY(testSupport::read(database()).contains("<d_group name=\"Mine\""));
    }

    // A database that cannot be written keeps the window from closing as if all was done.
    void unwritable()
    {
        openWindow("#firm|" + renamed("New"));
        QFile::remove(database());
        QVERIFY(QDir().mkpath(database()));
        work("Ctrl+S !Read_it_again,_rename_there_and_save_it");
        QVERIFY(seen().listed.contains("db_warehouse.xml"));
        QCOMPARE(onDisk(), QString("New"));
        QVERIFY(window().windowTitle().endsWith('*'));
        QVERIFY(QDir().rmdir(database()));
        work("Ctrl+S !Save_it_anew");
        QVERIFY(!window().windowTitle().endsWith('*'));
        QCOMPARE(testSupport::read(database()).count("<name>New</name>"), 5);
    }

    void pastedNamesAskOnce()
    {
        const int second = uses("Advanced Monolithic Systems");
        openWindow("#firm");
        QGuiApplication::clipboard()->setText("Advanced Monolithic Systems\tx\nAbracon");
        work("manufacturers@0,0 Ctrl+V !Rename_in_7_places");
        QCOMPARE(boxes().size(), 1);
        work("Ctrl+Z");
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("Ctrl+Y Ctrl+S");
        // The two have changed their names with each other.
        QCOMPARE(uses("Advanced Monolithic Systems"), 5);
        QCOMPARE(uses("Abracon"), second);
        QVERIFY(testSupport::read(file()).contains("<fullname>x<"));
    }

    // The change and its plan for the materials outlive the history; the file keeps its order.
    void sortingEndsTheHistory()
    {
        openWindow("#firm|" + renamed("zzz") + " manufacturers@^0 manufacturers@^0 #-undo");
        QVERIFY(boxes().join(' ').contains("is disabled: Undo (Ctrl+Z)"));
        QCOMPARE(current().model()->index(0, 0).data().toString(), QString("zzz"));
        work("Ctrl+S");
        QCOMPARE(onDisk(), QString("zzz"));
        QCOMPARE(uses("zzz"), 5);
    }

    // What cannot be read is told with its place and never written over, also by what is saved beside it.
    void unreadableDetails()
    {
        const QByteArray broken = "<kiv_mat_firm_details>\n<details><oops";
        folder().write(DETAILS, broken);
        openWindow("#firm|manufacturers@0,0 F4 Return");
        QVERIFY(boxes().value(0).contains("firm_details.xml cannot be read"));
        work("F2 Ctrl+A 'Nowa' Return ~50 !Rename_in_this_list_only Ctrl+S Return");
        QVERIFY(boxes().join(' ').contains("line 2"));
        QCOMPARE(onDisk(), QString("Nowa"));
        QCOMPARE(testSupport::read(path(DETAILS)), broken);
    }

    // What another program wrote there meanwhile is asked about when it is this firm's, else kept.
    void changedDetails()
    {
        const auto others = [this](const char *name) {
            folder().write(DETAILS, testSupport::document("kiv_mat_firm_details", "KIV_MAT_FIRM_DETAILS_1",
                                                          "kiv_mat_firm_details.xsd",
                                                          QByteArray("<details><name>") + name
                                                              + "</name><address>theirs</address></details>"));
        };
        openWindow("#firm");
        QTimer::singleShot(150, this, [&] { others("Rohm"); });
        work("manufacturers@0,0 F4 'mine' ~400 !OK");
        QVERIFY(testSupport::read(path(DETAILS)).contains("theirs")
                && testSupport::read(path(DETAILS)).contains("mine"));
        boxes();
        QTimer::singleShot(150, this, [&] { others("Abracon"); });
        work("F4 'x' ~400 !OK Escape Escape !No");
        QVERIFY(boxes().join(' ').contains("Another program has changed the details of Abracon"));
        QVERIFY(!testSupport::read(path(DETAILS)).contains("mine"));
    }

    void unreadable()
    {
        testSupport::write(file(), "<kiv_mat_firm><oops");
        openWindow("#firm|#-edit #-save #-add");
        QVERIFY(seen().listed.contains("firms.xml"));
        QCOMPARE(boxes().filter("the file cannot be read").size(), 3);
        work("Ctrl+E Ins Ctrl+S");
        QCOMPARE(testSupport::read(file()), QByteArray("<kiv_mat_firm><oops"));
    }
};

KIVZP_TEST(tst_firmWindow)
#include "tst_firmWindow.moc"

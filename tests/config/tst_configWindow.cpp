// The window of the configuration, worked with hands; and what the configuration forbids elsewhere.
#include "pressedActions.h"

#include "config/configOperations.h"

const std::vector<pressedAction> actions = {
    {"save", "F2 Ctrl+A 'ZP/7' Return #save", "Saved|+<option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\"ZP/7\""},
    {"default", "#default", "+<option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\"\"", true},
    {"close", "#close", "closed"},
    {"edit", "#edit", "Editing is "},
    {"undo", "F2 Ctrl+A 'ZP/7' Return #undo", "Undone: |at ZP/13/2026", true},
    {"redo", "F2 Ctrl+A 'ZP/7' Return Ctrl+Z #redo", "Done again: |value1=\"ZP/7\"|-<option", true},
    {"add", "!Persons #add", "rows 9|+<person type=\"PERSON_AUTHOR\"", true},
    {"add, target", "!Targets #add", "rows 7|+<target ", true},
    {"delete", "!Persons persons@0,0 #delete", "rows 7|-<person type=\"PERSON_AUTHOR\" working_begin=\"01.09.2014\"",
     true},
};

class tst_configWindow : public actionFixture
{
    Q_OBJECT

    QString file() { return path("_config/kiv_mat_config.xml"); }
    QString onDisk(const char *key)
    {
        configStruct saved;
        return saved.load(file()) ? saved.options.value(key) : QString();
    }
    // What the window would add is there already.
    void prepare() override
    {
        configStruct config;
        QVERIFY(config.load(file()));
        configOperations::addMissing(&config);
        QVERIFY(config.save(file()));
        if (qstrcmp(QTest::currentTestFunction(), "forbidden") != 0)
            return;
        QFETCH(QString, option);
        setOption(option.toUtf8(), "NIE");
    }
    std::vector<pressedWindow> windows() override
    {
        return {{"configuration", "#config|options@12,1", "Ctrl+E", actions}};
    }

private slots:
    void saved()
    {
        // Nothing of it is saved while one option is wrong.
        folder().write("file", "");
        setOption("PATH_BACKUP", path("file/x"));
        openWindow("#config|#-add #-delete");
        QCOMPARE(boxes().filter("options are neither added nor deleted").size(), 2);
        work("options@6,1 F2 Ctrl+A '20' Return Ctrl+S Escape");
        QCOMPARE(boxes(), QStringList("Error: Backup folder: is no folder"));
        QCOMPARE(onDisk("FONT_SIZE"), QString("14"));
        QVERIFY(QFile::remove(path("file")));
        work("!Persons persons@0,4 F2 Ctrl+A 'New Name' Return");
        // The database's file is read by the next start only.
        work("!Options options@27,1 F2 Up Return Ctrl+S Escape");
        QVERIFY(boxes().join(' ').contains("These options count from the next start on: Load"));
        QCOMPARE(onDisk("FONT_SIZE"), QString("20"));
        QVERIFY(testSupport::read(file()).contains("name=\"New Name\""));
        QCOMPARE(programData::instance().config().options.value("FONT_SIZE"), QString("20"));
        QCOMPARE(mainWindow().findChild<QTreeView *>("orderLines")->font().pixelSize(), 20);
        // Sorting ends the history, not the changes.
        work("!Persons persons@0,4 F2 Ctrl+A 'Newer' Return persons@^4 #-undo Ctrl+W Escape");
        QVERIFY(boxes().value(0).contains("it is disabled: Undo") && window().isVisible());
        work("Ctrl+W !No");
        QVERIFY(!window().isVisible());
        QVERIFY(!testSupport::read(file()).contains("Newer"));
    }

    // The lock says where it comes from.
    void forbidden_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("opened");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("reason");
        QTest::newRow("database") << "EDIT_DATABASE"
                                  << "Ctrl+D Return"
                                  << "materials@0,0 F2 Ctrl+A 'Nowy' Return Ctrl+S"
                                  << "the configuration forbids it: EDIT_DATABASE is NIE";
        QTest::newRow("firms") << "EDIT_FIRM"
                               << "#firm"
                               << "manufacturers@0,1 F2 Ctrl+A 'Nowy' Return Ctrl+S"
                               << "the configuration forbids it: EDIT_FIRM is NIE";
        QTest::newRow("configuration") << "EDIT_CONFIG"
                                       << "#config"
                                       << "options@12,1 F2 Ctrl+A 'Nowy' Return Ctrl+S"
                                       << "EDIT_CONFIG is NIE; change line 5 of %1";
    }
    void forbidden()
    {
        QFETCH(QString, option);
        QFETCH(QString, opened);
        QFETCH(QString, typed);
        QFETCH(QString, reason);
        openWindow(opened);
        QMainWindow &forbidden = window();
        work("#-edit");
        QVERIFY2(boxes().value(0).endsWith(reason.replace("%1", file())), qPrintable(status()));
        work("Ctrl+E " + typed);
        QVERIFY(!forbidden.windowTitle().endsWith('*'));
        if (option == "EDIT_CONFIG") {
            QVERIFY(!testSupport::read(file()).contains("Nowy"));
            return;
        }
        // Allowed again, which the open window hears.
        turnTo(mainWindow());
        const int row = option == "EDIT_DATABASE" ? 2 : 3;
        openWindow(QString("#config|options@%1,1 F2 Down Return Ctrl+S").arg(row));
        QCOMPARE(onDisk(option.toUtf8()), QString("TAK"));
        turnTo(forbidden);
        work("#edit " + typed);
        QVERIFY(testSupport::read(path(option == "EDIT_FIRM" ? "_files/firms.xml" : "_files/db_warehouse.xml"))
                    .contains("Nowy"));
    }
};

KIVZP_TEST(tst_configWindow)
#include "tst_configWindow.moc"

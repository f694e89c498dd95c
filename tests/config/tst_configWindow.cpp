// The window of the configuration, worked with hands; and what the configuration forbids elsewhere.
#include "scenarioFixture.h"

#include "config/configOperations.h"

#define NAME "F2 Ctrl+A 'ZP/7' Return"

using enum lockRule;

const scenario actions[] = {
    {NAME, "#save", "status ~ Saved; saved ~ <option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\"ZP/7\"", same},
    {"", "#default", "saved ~ <option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\"\"", edits},
    {"", "#close", "title = closed; boxes ="},
    {"~100", "#edit", "status = Editing is locked; options:2 ~ 0 versions, 0.0 MB"},
    {NAME, "#undo", "status ~ Undone: ; at = ZP/13/2026", guards},
    {NAME " Ctrl+Z", "#redo", "status ~ Done again: ; saved ~ value1=\"ZP/7\"", guards},
    {"!Persons persons@0,1 Shift+Down", "#fillDown", "status = Fill down", edits},
    {"!Persons persons@0,1", "#copyCells", "status = 1 cell copied", reads},
    {"!Persons persons@0,1 Ctrl+C persons@1,1", "#pasteCells", "status ~ 1 cell pasted", edits},
    {"!Persons", "#add", "persons = 9; saved ~ <person type=\"PERSON_AUTHOR\" ", edits},
    {"!Targets", "#add", "targets = 7", edits},
    {"!Persons persons@0,0", "#delete", "persons = 7; saved !~ working_begin=\"01.09.2014\"", edits},
};

// Options 2, 3 and 1 of the file.
const struct
{
    const char *option;
    const char *opened;
    const char *cell;
    const char *file;
    const char *reason;
} forbiddenWindows[] = {
    {"EDIT_DATABASE", "Ctrl+D Return", "materials@0,0", "_files/db_warehouse.xml",
     "the configuration forbids it: EDIT_DATABASE is NIE"},
    {"EDIT_FIRM", "#firm", "manufacturers@0,1", "_files/firms.xml", "the configuration forbids it: EDIT_FIRM is NIE"},
    {"EDIT_CONFIG", "#config", "options@12,1", "_config/kiv_mat_config.xml", "EDIT_CONFIG is NIE; change line 5 of %1"},
};

class tst_configWindow : public scenarioFixture
{
    Q_OBJECT

    QString file() override { return path("_config/kiv_mat_config.xml"); }
    // What the window would add is there already.
    void prepare() override
    {
        scenarioFixture::prepare();
        configStruct config;
        QVERIFY(config.load(file()));
        configOperations::addMissing(&config);
        QVERIFY(config.save(file()));
        if (qstrcmp(QTest::currentTestFunction(), "forbidden") != 0)
            return;
        QFETCH(int, row);
        setOption(forbiddenWindows[row].option, "NIE");
    }
    std::vector<scenarioTable> tables() override { return {{"#config|options@12,1", true, actions}}; }

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
        QVERIFY(testSupport::read(file()).contains("FONT_SIZE\" value1=\"14\""));
        QVERIFY(QFile::remove(path("file")));
        work("!Persons persons@0,4 F2 Ctrl+A 'New Name' Return");
        // The database's file is read by the next start only.
        work("!Options options@27,1 F2 Up Return Ctrl+S Escape");
        QVERIFY(boxes().join(' ').contains("These options count from the next start on: Load"));
        QVERIFY(testSupport::read(file()).contains("FONT_SIZE\" value1=\"20\""));
        QVERIFY(testSupport::read(file()).contains("name=\"New Name\""));
        QCOMPARE(programData::instance().config().options.value("FONT_SIZE"), QString("20"));
        QCOMPARE(mainWindow().findChild<QTreeView *>("orderLines")->font().pixelSize(), 20);
        // Sorting ends the history, not the changes.
        work("!Persons persons@0,4 F2 Ctrl+A 'Newer' Return persons@^4 #-undo Ctrl+W Escape");
        QVERIFY(boxes().value(0).contains("is disabled: Undo") && window().isVisible());
        work("Ctrl+W !No");
        QVERIFY(!window().isVisible());
        QVERIFY(!testSupport::read(file()).contains("Newer"));
    }

    // The lock says where it comes from.
    void forbidden_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < 3; ++row)
            QTest::newRow(forbiddenWindows[row].option) << row;
    }
    void forbidden()
    {
        QFETCH(int, row);
        const auto [option, opened, cell, relative, reason] = forbiddenWindows[row];
        const QString file = path(relative);
        openWindow(QString(opened) + "|#-edit");
        QVERIFY(boxes().value(0).endsWith(": " + QString(reason).replace("%1", file)));
        QMainWindow &forbidden = window();
        const QString typed = cell + QString(" F2 Ctrl+A 'Żuk7' Return Ctrl+S");
        work("Ctrl+E " + typed);
        QVERIFY(!testSupport::read(file).contains("Żuk7"));
        if (row == 2)
            return;
        // Allowed again, which the open window hears.
        turnTo(mainWindow());
        openWindow(QString("#config|options@%1,1 F2 Down Return Ctrl+S").arg(row + 2));
        turnTo(forbidden);
        work("#edit " + typed);
        QVERIFY(testSupport::read(file).contains("Żuk7"));
    }
};

KIVZP_TEST(tst_configWindow)
#include "tst_configWindow.moc"

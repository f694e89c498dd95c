// What all editing windows have in common, with hands: what is typed is what is saved, whatever key
// leaves the editor; closing, locking, and files that another program changed.
#include "editingFixture.h"

struct editedWindow
{
    const char *name;
    const char *opened; // from the main window
    const char *cell;   // a text in it
    const char *other;  // another cell, to click elsewhere
    const char *file;   // where it is saved
    const char *close;  // the key that closes it
    const char *unlock; // what allows editing, if it begins locked
    const char *save = "Ctrl+S";
};

const editedWindow windows[] = {
    {"order", "", "orderLines@0,1", "orderLines@1,1", "_zp/zp_0.xml", "Ctrl+Q", ""},
    {"database", "Ctrl+D Return", "materials@0,0", "materials@1,0", "_files/db_warehouse.xml", "Ctrl+W", "Ctrl+E"},
    {"firms", "#firm", "manufacturers@0,1", "manufacturers@1,1", "_files/firms.xml", "Ctrl+W", ""},
    {"configuration", "#config", "options@12,1", "options@32,1", "_config/kiv_mat_config.xml", "Ctrl+W", ""},
    {"BOM lists", "Ctrl+B", "boms@0,0", "boms@0/0,0", "_files/boms.xml", "Ctrl+W", "", "#save"},
    {"BOM list", "Ctrl+B|boms@0/0/0,0 Return", "lines@0,2", "lines@1,2", "", "Ctrl+W", "Ctrl+E"},
};

class tst_editWindows : public editingFixture
{
    Q_OBJECT

    static void addRows(std::initializer_list<const char *> rows)
    {
        QTest::addColumn<int>("window");
        QTest::addColumn<QString>("way");
        for (size_t w = 0; w < std::size(windows); ++w)
            for (const char *row : rows)
                QTest::addRow("%s: %s", windows[w].name, row) << int(w) << row;
    }
    QString fileOf(const editedWindow &w)
    {
        return w.file[0] ? path(w.file)
                         : dynamic_cast<QWidget &>(window()).windowTitle().section('[', 1).section(']', 0, 0);
    }
    // The window opened and unlocked, ready to be worked in.
    const editedWindow &open()
    {
        const editedWindow &w = windows[QTest::currentDataTag() ? fetched() : 0];
        openWindow(w.opened);
        if (w.unlock[0])
            work(w.unlock);
        return w;
    }
    static int fetched()
    {
        QFETCH(int, window);
        return window;
    }

private slots:
    void typedIsSaved_data() { addRows({"Return", "Tab", "Escape", "elsewhere", "save", "close"}); }
    void typedIsSaved()
    {
        QFETCH(QString, way);
        const editedWindow &w = open();
        const QString file = fileOf(w);
        const QHash<QString, QString> ends{{"elsewhere", w.other}, {"save", ""}, {"close", w.close + QString(" !Yes")}};
        work(QString("%1 F2 Ctrl+A 'Zażółć 7' %2 %3").arg(w.cell, ends.value(way, way), way == "close" ? "" : w.save));
        QCOMPARE(testSupport::read(file).contains("Zażółć 7"), way != "Escape");
        QCOMPARE(window().isVisible(), way != "close");
        QVERIFY(way == "close" || !window().windowTitle().endsWith('*'));
    }

    // Undo back to what the file holds, and nothing is asked.
    void undoneIsNotAsked_data() { addRows({""}); }
    void undoneIsNotAsked()
    {
        const editedWindow &w = open();
        const QString file = fileOf(w);
        const QByteArray before = testSupport::read(file);
        work(QString("%1 F2 Ctrl+A 'Żuk1' Return %2 F2 Ctrl+A 'Żuk2' Return").arg(w.cell, w.other));
        QVERIFY(window().windowTitle().endsWith(" *"));
        work("Ctrl+Z Ctrl+Z");
        QVERIFY(!window().windowTitle().endsWith('*'));
        QVERIFY(status().startsWith("Undone: "));
        work("Ctrl+Y");
        QVERIFY(window().windowTitle().endsWith(" *"));
        QVERIFY(status().startsWith("Done again: "));
        work(QString("Ctrl+Z %1").arg(w.close));
        QCOMPARE(boxes(), QStringList());
        QVERIFY(!window().isVisible());
        QCOMPARE(testSupport::read(file), before);
    }

    void lockedTakesNothing_data() { addRows({""}); }
    void lockedTakesNothing()
    {
        const editedWindow &w = open();
        if (!window().findChild<QAction *>("edit"))
            return;
        work(QString("%1 F2 Ctrl+A 'Żuk1' Return Ctrl+E").arg(w.cell));
        QCOMPARE(status(), QString("Editing is locked"));
        work(QString("Ctrl+Z %1 F2 Ctrl+A 'Żuk2' Return").arg(w.cell));
        QVERIFY(window().windowTitle().endsWith(" *"));
        work("Ctrl+E");
        QCOMPARE(status(), QString("Editing is allowed"));
        work(QString("Ctrl+S"));
        QVERIFY(testSupport::read(fileOf(w)).contains("Żuk1"));
        QVERIFY(!testSupport::read(fileOf(w)).contains("Żuk2"));
    }

    // Another program's work is neither written over nor read unasked.
    void changedOnDisk_data() { addRows({"Escape", "Reload", "Overwrite"}); }
    void changedOnDisk()
    {
        QFETCH(QString, way);
        const editedWindow &w = open();
        const QString file = fileOf(w);
        work(QString("%1 F2 Ctrl+A 'Żuk3' Return").arg(w.cell));
        QByteArray theirs = testSupport::read(file);
        theirs.replace("?>", "?><!-- theirs -->");
        testSupport::write(file, theirs);
        const QHash<QString, QString> answers{{"Reload", "!Reload_it_and_lose_the_changes_here"},
                                              {"Overwrite", "!Overwrite_it"}};
        work(QString("%1 %2").arg(w.save, answers.value(way, way)));
        QVERIFY(boxes().value(0).contains("was changed by another program"));
        QCOMPARE(testSupport::read(file).contains("theirs"), way != "Overwrite");
        QCOMPARE(testSupport::read(file).contains("Żuk3"), way == "Overwrite");
        QCOMPARE(window().windowTitle().endsWith(" *"), way == "Escape");
    }
};

KIVZP_TEST(tst_editWindows)
#include "tst_editWindows.moc"

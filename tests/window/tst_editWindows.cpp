// What all editing windows have in common, with hands: what is typed is what is saved, whatever key
// leaves the editor; closing, locking, and files that another program changed.
#include "scenarioFixture.h"

#include "util/fileVersions.h"

#include <csignal>
#include <sys/resource.h>

// No file of this process grows over a size.
class fileSizeLimit
{
public:
    explicit fileSizeLimit(int bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        set(rlim_t(bytes));
    }
    ~fileSizeLimit() { lift(); }
    void lift() const { set(RLIM_INFINITY); }

private:
    static void set(rlim_t bytes)
    {
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
};

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
    const char *theirs = nullptr; // a cell that somebody else changes, if not the other one
};

const editedWindow windows[] = {
    {"order", "", "orderLines@0,1", "orderLines@1,1", "_zp/zp_0.xml", "Ctrl+Q", ""},
    {"database", "Ctrl+D Return", "materials@0,0", "materials@1,0", "_files/db_warehouse.xml", "Ctrl+W", "Ctrl+E"},
    {"firms", "#firm", "manufacturers@0,1", "manufacturers@1,1", "_files/firms.xml", "Ctrl+W", ""},
    {"configuration", "#config", "options@12,1", "options@32,1", "_config/kiv_mat_config.xml", "Ctrl+W", "", "Ctrl+S",
     "options@25,1"},
    {"BOM lists", "Ctrl+B", "boms@0,0", "boms@0/0,0", "_files/boms.xml", "Ctrl+W", "", "#save", "boms@1,0"},
    {"BOM list", "Ctrl+B|boms@0/0/0,0 Return", "lines@0,2", "lines@1,2", "", "Ctrl+W", "Ctrl+E"},
};

#define DATABASE "Ctrl+D Return|Ctrl+E materials@0,0 Right "

const scenario keys[] = {
    {"nothing is selected after Escape", "orderLines@3,1 Escape Del", "orderLines = 21; status = No line is selected"},
    {"one is selected after Ctrl+S", DATABASE "materials@0/1,0 F4 !Yes Ctrl+S Del", "status = 1 material deleted"},
    {"what is hidden stays", DATABASE "materials@0/1,0 Ctrl+F 'zzzz' ~100 Tab Del", "status = No material is selected"},
    {"what is closed stays", DATABASE "materials@0/1,0 materials@1,0 +materials@0/1,0 materials@0,0 Left Del",
     "status = Only empty groups are deleted"},
    {"to the order", DATABASE "materials@0/1,0 Ctrl+F Ctrl+Return", "status = 1 line added"},
    {"found and to the order", "Ctrl+D Return|'RC0603FR-0722RL' Return Ctrl+Return", "status = 1 line added"},
    {"the lock from a field", DATABASE "Ctrl+F 'x' Ctrl+E", "title ~ locked"},
    {"undo from a field", DATABASE "materials@0,0 F2 Ctrl+A 'x' Return Ctrl+F Ctrl+Z", "status ~ Undone: "},
    {"undo of a field", DATABASE "materials@0,0 F2 Ctrl+A 'x' Return Ctrl+F 'y' ~100 Ctrl+Z ~100",
     "title ~ *; materials@0,0 = x"},
    {"redo of attentions", "!attentions 'Żuk' Ctrl+Z Ctrl+Y", "attentions ~ Żuk"},
    {"redo of an editor", "orderLines@0,8 F2 'Żuk' Ctrl+Z Ctrl+Y Return", "orderLines@0,8 = Żuk"},
    {"Return goes down", "orderLines@0,5 F2 Ctrl+A '7' Return F2 Ctrl+A '8' Return",
     "orderLines@0,5 = 7; orderLines@1,5 = 8"},
    {"Ctrl+Return fills", "orderLines@0,5 Shift+Down Shift+Down F2 Ctrl+A '25' Ctrl+Return",
     "orderLines@0,5 = 25; orderLines@1,5 = 25; orderLines@2,5 = 25; orderLines@3,5 = 4000"},
    {"filled in one step", "orderLines@0,8 Shift+Down Shift+Down F2 Ctrl+A 'x' Ctrl+Return Ctrl+Z",
     "orderLines@0,8 ~ Mikro; orderLines@2,8 ~ Rezo; title = Order"},
    {"a comma in a price", "orderLines@0,2 F2 '12,5' Return Ctrl+S", "disk ~ <price>12.50<"},
    {"a fraction of what is measured", "orderLines@17,5 F2 '2,45 kg' Return Ctrl+S", "disk ~ <quantity>2.45<"},
    {"a fraction of a piece", "orderLines@1,1 F2 'Żuk' Return orderLines@0,5 F2 '2,5' Ctrl+S Ctrl+Q",
     "status ~ whole number; title = Order *; disk !~ Żuk"},
    {"refused behind another page", "orderLines@1,1 F2 'Żuk' Return orderLines@0,5 F2 '-3' !Preview_Do Ctrl+S",
     "title = Order *; disk !~ Żuk; focus = editor"},
    {"refused before a header", "orderLines@0,5 F2 '-3' orderLines@^1",
     "title = Order; orderLines@0,1 ~ STM; focus = editor"},
    {"a typed day for all", "#allDates '+14' Return", "orderLines:7 = {+14}"},
    {"a past day for all", "#allDates '1.1.2020' Return Escape", "title = Order"},
    {"a negative number of sets", "Ctrl+B|boms@0/0/0,1 F2 '-3' Return ~100 Escape Escape #set", "status ~ all numbers"},
    {"a unit", "orderLines@0,6 F2 'kg' Return Ctrl+S", "disk ~ <unit>kg<"},
    {"a person by a part of the name", "orderOptions@3,1 F2 'walska' Return", "orderOptions@3,1 ~ walska"},
    {"a day", "orderLines@0,7 F2 '+14' Return orderLines@1,7 F2 'nie' Return", "orderLines:7 ~ {+14}|NIE|"},
    {"lines past the end", "orderLines@0,8 Shift+Down Shift+Down Ctrl+C orderLines@20,8 Ctrl+V Return",
     "orderLines = 23; orderLines@22,8 ~ Rezonator; orderLines@22,0 = 23"},
    {"no more lines wanted", "orderLines@0,8 Shift+Down Ctrl+C orderLines@20,8 Ctrl+V Right Return",
     "orderLines = 21; orderLines@20,8 ~ Mikro; errors ~ 1 line past"},
    {"what does not fit", "orderLines@0,8 Ctrl+C orderLines@0,5 Ctrl+V",
     "errors ~ row 1: Mikro; errors ~ is not a number"},
    {"undo goes there", "orderLines@20,1 F2 'Żuk' Return orderLines@0,1 Ctrl+Z F2 Ctrl+A 'Wół' Return",
     "orderLines@20,1 = Wół"},
    {"nothing unseen is moved", "orderLines@3,1 !Preview_Do Alt+Down Ctrl+Shift+D Ctrl+V", "title = Order"},
    {"undo finds what was moved", "orderLines@1,1 Alt+Down PgDown Ctrl+Z Del",
     "orderLines = 20; orderLines@0,1 ~ STM; orderLines@1,1 ~ ABLS"},
    {"Ctrl+D is no Delete", "!attentions Ctrl+Home Ctrl+D Escape", "attentions ~ Prosz; boxes ~ atabase"},
    {"dates are filled", "orderLines@0,7 Shift+Down F2 '+20' Ctrl+Return",
     "orderLines@0,7 = {+20}; orderLines@1,7 = {+20}"},
    {"Ctrl with an arrow selects", "orderLines@0,1 Ctrl+Down Ctrl+Down Del",
     "orderLines@0,1 ~ STM; orderLines@2,1 ~ GRM"},
    {"the row below comes next", "orderLines@3,1 Del Del", "orderLines@3,1 = RC0603FR-074K7L"},
    {"the sum follows the keys", "orderLines@2,1 Shift+Down Shift+Down Shift+Up ~100", "sums ~ 2 selected"},
    {"a link is edited",
     "#editAttentions Ctrl+Home Ctrl+L 'www.a.pl' Return Left Ctrl+L Ctrl+A 'b@c.pl' Return !OK Ctrl+S",
     "file _zp/zp_0.xml ~ mailto:b@c.pl; file _zp/zp_0.xml !~ //www.a.pl"},
    {"no link", "#editAttentions Ctrl+Home Ctrl+L '/x' Return Return Escape Escape",
     "boxes ~ is no address; title = Order"},
    {"Escape asks", "#editAttentions Ctrl+Home 'Żuk' Escape !Yes", "attentions ~ Żuk"},
    {"Escape at closing", DATABASE "materials@0,0 F2 Ctrl+A 'Żuk' Return Ctrl+W Escape",
     "title ~ *; materials@0,0 = Żuk"},
    {"a field is emptied", "#config|options@12,1 Del", "options@12,1 =; status = Clear"},
    {"Tab to the next number", "Ctrl+B|boms@0/0/0,1 F2 Ctrl+A '3' Tab Ctrl+A '4' Return",
     "boms@0/0/0,1 = 3; boms@1/0/0,1 = 4"},
};

class tst_editWindows : public scenarioFixture
{
    Q_OBJECT

    std::vector<scenarioTable> tables() override { return {{nullptr, false, keys}}; }
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
    // Deleted and brought back in a sorted tree, a material stands where it stood in its file.
    void sortedPlacesStay()
    {
        openWindow(DATABASE "materials@^6 materials@^6");
        const auto ktms = [this] {
            const QString all = testSupport::read(path("_files/db_warehouse.xml"));
            QStringList found;
            for (auto it = QRegularExpression("<d_ktm>[^<]*").globalMatch(all); it.hasNext();)
                found.append(it.next().captured());
            return found;
        };
        const QStringList before = ktms();
        work("materials@0/3,0 Del Ctrl+Z materials@0/5,8 F2 'Żuk' Return Ctrl+S");
        QVERIFY(testSupport::read(path("_files/db_warehouse.xml")).contains("Żuk"));
        QCOMPARE(ktms(), before);
    }

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

    void prepare() override
    {
        scenarioFixture::prepare();
        setOption("PATH_BACKUP", path("kept"));
        m_file.clear();
    }
    // The file with the text of a cell changed, as another program does it: by a file that takes its place.
    void changeElsewhere(const QString &file, const QString &cell) { changeText(file, seenAt(cell)); }
    void changeText(const QString &file, const QString &seen)
    {
        const QByteArray text = seen.toHtmlEscaped().toUtf8();
        QByteArray all = testSupport::read(file);
        const QByteArray before = all;
        for (const char *form : {">%1<", "\"%1\""})
            if (all == before)
                all.replace(QString(form).arg(text.constData()).toUtf8(), QString(form).arg("Żaba").toUtf8());
        QVERIFY(all != before);
        testSupport::write(file + ".new", all);
        QFile::remove(file);
        QVERIFY(QFile::rename(file + ".new", file));
        work("~500");
    }
    bool isKept(const char *text)
    {
        const QFileInfoList all = QDir(path("kept")).entryInfoList(QDir::Files);
        return std::any_of(all.begin(), all.end(), [&](const QFileInfo &f) {
            return testSupport::read(fileVersions::unpacked(f.filePath())).contains(text);
        });
    }

    // Another program's work is neither written over nor read unasked, and neither is lost.
    void changedOnDisk_data() { addRows({"Escape", "Return", "Reload", "Damaged", "Overwrite", "Gone", "Anew"}); }
    void changedOnDisk()
    {
        QFETCH(QString, way);
        const editedWindow &w = open();
        const QString file = fileOf(w);
        work(QString("%1 F2 Ctrl+A 'Żuk3' Return").arg(w.cell));
        const QByteArray before = testSupport::read(file);
        const QByteArray theirs = QByteArray(before).replace("?>", "?><!-- theirs -->");
        const bool isGone = way == "Gone" || way == "Anew";
        if (isGone)
            QFile::remove(file);
        else
            testSupport::write(file, way == "Damaged" ? theirs.left(theirs.size() / 2) : theirs);
        const QHash<QString, QString> answers{{"Reload", "!Reload_it,_keep_what_is_here_as_a_version"},
                                              {"Damaged", "!Reload_it,_keep_what_is_here_as_a_version"},
                                              {"Overwrite", "!Overwrite_it"},
                                              {"Gone", "Return"},
                                              {"Anew", "!Save_it_anew"}};
        const bool showsFaults = way == "Damaged" && (w.name == QString("order") || w.name == QString("configuration"));
        work(QString("%1 %2 %3").arg(w.save, answers.value(way, way), showsFaults ? "Escape" : ""));
        QVERIFY(boxes().value(0).contains(isGone ? "is gone" : "was changed by another program"));
        const bool written = way == "Overwrite" || way == "Anew";
        QCOMPARE(testSupport::read(file).contains("theirs"), !isGone && !written);
        QCOMPARE(testSupport::read(file).contains("Żuk3"), written);
        QCOMPARE(isKept("Żuk3"), way == "Reload" || way == "Damaged");
        QCOMPARE(window().windowTitle().endsWith(" *"), way != "Reload" && !written);
        if (way == "Damaged") {
            testSupport::write(file, before);
            work(QString("Ctrl+Z Ctrl+Y %1 !Overwrite_it").arg(w.save));
            QVERIFY(testSupport::read(file).contains("Żuk3"));
        }
    }

    // The bar over the tree tells of it at once; what it does is done without a question.
    void toldAtOnce_data() { addRows({"reloadVersion", "keepMine", "compareVersions"}); }
    void toldAtOnce()
    {
        QFETCH(QString, way);
        const editedWindow &w = open();
        const QString file = fileOf(w);
        const QString theirs = w.theirs ? w.theirs : w.other;
        work(QString("%1 F2 Ctrl+A 'Żuk3' Return").arg(w.cell));
        work(QString("%1 %2 F2 Ctrl+A 'Żuk4' Return ~500").arg(w.save, w.cell));
        QVERIFY(!window().findChild<QWidget *>("changedBar"));
        changeElsewhere(file, theirs);
        const auto *bar = window().findChild<QWidget *>("changedBar");
        QVERIFY(bar);
        QVERIFY(bar->isVisible());
        look("changedText ~ changed by another program");
        work('!' + way + (way == "compareVersions" ? " !mergeVersions" : "") + " ~500");
        QVERIFY(!bar->isVisible());
        boxes();
        const bool own = way != "reloadVersion";
        const bool other = way != "keepMine";
        QVERIFY2((seenAt(w.cell) == "Żuk4") == own, qPrintable(seenAt(w.cell)));
        QVERIFY2((seenAt(theirs) == "Żaba") == other, qPrintable(seenAt(theirs)));
        QCOMPARE(window().windowTitle().endsWith(" *"), own);
        QCOMPARE(isKept("Żuk4"), !own);
        if (own && other) {
            work("Ctrl+Z");
            QVERIFY(seenAt(w.cell) == "Żuk4" && seenAt(theirs) != "Żaba");
            work("Ctrl+Y");
        }
        work(w.save);
        QCOMPARE(boxes(), QStringList());
        QCOMPARE(testSupport::read(file).contains("Żuk4"), own);
        QCOMPARE(testSupport::read(file).contains("Żaba"), other);
    }

    void bothChanged()
    {
        const editedWindow &w = windows[0];
        work("orderLines@0,1 F2 Ctrl+A 'Żuk4' Return Up");
        const QString cell = "orderLines@0,1";
        work("Ctrl+Z");
        changeElsewhere(path(w.file), cell);
        work("Ctrl+Y !compareVersions !mergeVersions !takeTheirs !mergeVersions");
        look("orderLines@0,1 = Żaba; status ~ Merged");
        work("Ctrl+Z");
        look("orderLines@0,1 = Żuk4");
    }

    void othersComeAndGo()
    {
        const QString lock = folder().write("_zp/.zp_0.xml.2.lock", "4242\nKivZP\nelsewhere\n");
        work("~500");
        look("changedText ~ opened elsewhere, too: KivZP, elsewhere, 4242");
        QFile::remove(lock);
        work("~500");
        look("changedText ~ closed elsewhere: KivZP");
        work("!hideNote");
        QVERIFY(!window().findChild<QWidget *>("changedBar")->isVisible());
    }

    // The folder goes, and comes again with the file.
    void folderIsGone()
    {
        work("orderLines@0,1 F2 Ctrl+A 'Żuk' Return");
        QVERIFY(QDir(path("_zp")).removeRecursively());
        work("~500");
        look("changedText = The file is gone.; orderLines = 21");
        work("Ctrl+S !Save_it_anew");
        look("orderLines = 21; file _zp/zp_0.xml ~ Żuk; title = Order; status = Saved");
        QVERIFY(QFile::exists(path("_zp/.zp_0.xml.lock")));
        QVERIFY(!window().findChild<QWidget *>("changedBar")->isVisible());
    }

    // What was not saved when the program was killed is saved after it as it would have been before.
    void recovered_data()
    {
        const testSupport::rows<int, QString> row;
        row("group, material, deleted and back", 1,
            "materials@0,0 F2 Ctrl+A 'Żuk' Return materials@0,0 Right materials@0/2,0 Del Del Ctrl+Z materials@0/4,9 "
            "F2 'x' Return");
        row("cut and pasted, sorted", 1,
            "materials@^6 materials@0,0 Right materials@0/2,0 Shift+Down Ctrl+X materials@3,0 Ctrl+V "
            "materials@0/1,0 Del Ctrl+Z Ctrl+Y materials@0/3,0 F2 Ctrl+A 'Żuk' Return");
        row("new group", 1, "#addGroup 'Żuk' Return materials@0,0 Right materials@0/1,0 Ctrl+X End Ctrl+V");
        row("texts of many", 1, "#moveCpv ~50 Return");
        row("firms", 2,
            "manufacturers@0,1 F2 Ctrl+A 'Żuk' Return manufacturers@2,1 Del Ins 'Wół' Return !Suppliers "
            "suppliers@1,1 F2 Ctrl+A 'Koń' Return Ins 'Bąk' Return Del Ctrl+Z Ctrl+Z");
        row("BOM lists", 4, "boms@0,0 F2 Ctrl+A 'Żuk' Return boms@0/0/0,0 #delete Ctrl+Z #addGroup 'Wół' Return");
        row("BOM lines", 5,
            "lines@0,2 F2 Ctrl+A 'Żuk' Return Alt+Down Alt+Down lines@3,2 Shift+Down Alt+Up lines@5,2 Del Ctrl+Z "
            "Ctrl+Z Ctrl+Y");
    }
    void recovered()
    {
        const auto [number, steps] = testSupport::fetch<int, QString>();
        const editedWindow &w = windows[number];
        QString saved[2];
        for (const bool killed : {false, true}) {
            openWindow(w.opened);
            const QString file = fileOf(w);
            const QByteArray before = testSupport::read(file);
            work(QString("%1 %2").arg(w.unlock, steps));
            QVERIFY(window().windowTitle().endsWith(" *"));
            if (killed)
                recover({});
            work(w.save);
            saved[killed] = QString(testSupport::read(file)).remove(QRegularExpression("<update>[^<]*"));
            QVERIFY(saved[killed] != QString(before).remove(QRegularExpression("<update>[^<]*")));
            testSupport::write(file, before);
            restart("");
            QCOMPARE(boxes(), QStringList());
        }
        QCOMPARE(saved[1], saved[0]);
    }
    void recover(const QString &answers)
    {
        restart("Return " + answers);
        const QStringList told = boxes();
        QCOMPARE(told.value(0), QString("Unsaved work"));
        for (QMainWindow *shown : shownWindows())
            if (shown != &mainWindow())
                turnTo(*shown);
        QVERIFY2(status().startsWith("Restored as it was"), qPrintable(status()));
        m_told = told.mid(1).join(' ');
    }

    // Records that another program changed meanwhile stay as it has them, the others are restored.
    void recoveredOverOthers_data()
    {
        const testSupport::rows<QByteArray, QByteArray, QString, QString> row;
        const QString all = "disk ~ Żuk; disk ~ Wół; disk ~ <name>Koń<";
        row("another record", "Amphenol Corporation", "Theirs", "", all + "; disk ~ Theirs");
        row("the same change", "Abracon LLC", "Żuk", "", all);
        row("the same record", "Abracon LLC", "Theirs", "not restored: Abracon",
            "disk ~ Theirs; disk !~ Żuk; disk ~ Wół");
        row("one of that name", "<manufacturers>",
            "<manufacturers><firm><name>Koń</name><fullname>Theirs</fullname></firm>", "not restored: Koń",
            "disk ~ Theirs; disk ~ Żuk; disk ~ Wół; manufacturers = 60");
    }
    void recoveredOverOthers()
    {
        const auto [from, to, told, seen] = testSupport::fetch<QByteArray, QByteArray, QString, QString>();
        openWindow("#firm|manufacturers@0,1 F2 Ctrl+A 'Żuk' Return manufacturers@1,1 F2 Ctrl+A 'Wół' Return "
                   "Ins F2 Ctrl+A 'Koń' Return");
        m_file = path("_files/firms.xml");
        testSupport::write(m_file, testSupport::read(m_file).replace(from, to));
        recover(told.isEmpty() ? "" : "Return");
        QVERIFY2(told.isEmpty() ? m_told.isEmpty() : m_told.contains(told), qPrintable(m_told));
        work("Ctrl+S");
        look(seen);
    }

    // Where a file cannot be written, here as on a full disk, nothing is lost, whatever is answered.
    // What the user settled with another program's version is restored in that version.
    void recoveredAfterSettling_data()
    {
        const testSupport::rows<int, bool> row;
        row("database, merged", 1, true);
        row("firms, merged", 2, true);
        row("firms, kept", 2, false);
        row("BOM lists, merged", 4, true);
        row("BOM list, merged", 5, true);
        row("BOM list, kept", 5, false);
    }
    void recoveredAfterSettling()
    {
        const auto [number, merged] = testSupport::fetch<int, bool>();
        const editedWindow &w = windows[number];
        openWindow(w.opened);
        const QString file = fileOf(w);
        const QString theirs = !merged ? w.cell : w.theirs ? w.theirs : w.other;
        const QString text = seenAt(theirs);
        work(QString("%1 %2 F2 Ctrl+A 'Żuk4' Return ~300").arg(w.unlock, w.cell));
        changeText(file, text);
        work(merged ? "!compareVersions !mergeVersions ~300" : "!keepMine ~300");
        if (merged)
            work(QString("%1 F2 Ctrl+A 'Wół5' Return ~300").arg(theirs));
        boxes();
        recover({});
        QCOMPARE(m_told, QString());
        work(w.save);
        const QByteArray saved = testSupport::read(file);
        QVERIFY(saved.contains("Żuk4"));
        QCOMPARE(saved.contains("Wół5"), merged);
        QVERIFY(!saved.contains("Żaba"));
    }

    void fullDisk_data() { addRows({"~300 !Retry", "Escape", "!Keep_in_recovery"}); }
    void fullDisk()
    {
        QFETCH(QString, way);
        const editedWindow &w = open();
        const bool isKept = w.name != QString("order") && w.name != QString("configuration");
        if (way.contains("Keep") && !isKept)
            return;
        const QString file = fileOf(w);
        const QByteArray before = testSupport::read(file);
        const fileSizeLimit limit(qMin(before.size() - 1, 1000));
        if (way.contains("Retry"))
            QTimer::singleShot(250, qApp, [&limit] { limit.lift(); });
        work(QString("%1 F2 Ctrl+A 'Żuk' Return %2 !Yes %3").arg(w.cell, w.close, way));
        limit.lift();
        QVERIFY(boxes().value(1).contains("cannot be written"));
        QCOMPARE(window().isVisible(), way == "Escape");
        QCOMPARE(testSupport::read(file) != before, way.contains("Retry"));
        QVERIFY(way != "Escape" || window().windowTitle().endsWith('*'));
        if (way.contains("Keep")) {
            recover({});
            work(w.save);
        }
        QCOMPARE(testSupport::read(file).contains("Żuk"), way != "Escape");
    }

private:
    QString file() override { return m_file.isEmpty() ? scenarioFixture::file() : m_file; }
    QString m_file;
    QString m_told;
};

KIVZP_TEST(tst_editWindows)
#include "tst_editWindows.moc"

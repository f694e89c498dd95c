// The windows of BOM lists, what they put into the order, and the messages of the main window.
#include "testSupport.h"

#include "bom/Kiv_bomViewWindow.h"
#include "bom/Kiv_bomWindow.h"
#include "bom/needsDialog.h"
#include "commands/commandSys.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "order/orderDocument.h"
#include "order/orderView.h"
#include "shell/MainWindow.h"
#include "tree/myTreeView.h"
#include "util/paths.h"
#include "util/userState.h"

#include <QApplication>
#include <QHeaderView>
#include <QRadioButton>
#include <QTimer>
#include <QTreeWidget>

using answer = prompts::answer;
using bomOperations::bomSets;

class tst_bomWindows : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void setsLiveInTheWindow();
    void allQuantities();
    void setChangesAndSaves();
    void emptySetTakesAFile();
    void unreadableListOrdersNothing();
    void exports();
    void linesOfAList();
    void insertFromTheDatabase();
    void intoTheOrder_data();
    void intoTheOrder();
    void needsTable();
    void orderIsSent();
    void dataAreSent_data();
    void dataAreSent();

private:
    Kiv_bomWindow &window() { return m_window->bomWindow(); }
    QStandardItem *file(int at) { return bomTree::allFiles(window().model()).at(at); }
    void setSets(int at, int sets) { window().model()->setValue(bomTree::setsCell(file(at)), sets); }
    void select(QStandardItem *item) { window().view()->setCurrentIndex(item->index()); }
    QString setPath() { return m_folder->path("_files/boms.xml"); }
    // A list of one line in the set's folder.
    QString writeList(const char *name, const QByteArray &ktm, const QByteArray &quantity)
    {
        return m_folder->write(QString("_files/boms/") + name,
                               testSupport::document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd",
                                                     "<update>1</update><material><d_ktm>" + ktm
                                                         + "</d_ktm><d_name>own</d_name><d_quantity>" + quantity
                                                         + "</d_quantity><d_designator>R1</d_designator></material>"));
    }
    // A list added to the set, with its number of sets.
    void addList(const char *name, const QByteArray &ktm, const QByteArray &quantity, int sets)
    {
        m_shown->file = writeList(name, ktm, quantity);
        window().commandAddFile(false);
        for (QStandardItem *added : bomTree::allFiles(window().model()))
            if (bomTree::fileOf(added)->name.endsWith(name))
                window().model()->setValue(bomTree::setsCell(added), sets);
    }
    // Answers the next needsDialog: ticks the named buttons and presses the last one.
    static void answerNeeds(const QStringList &names)
    {
        QTimer::singleShot(0, [names] {
            auto *dialog = qobject_cast<needsDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            for (const QString &name : names)
                dialog->findChild<QAbstractButton *>(name)->click();
            if (!names.contains("go"))
                dialog->reject();
        });
    }
    kiv_mat_zpStruct &order() { return m_window->document().order(); }
    orderItemStruct &firstLine() { return *order().orderItems.items.front(); }

    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
    std::unique_ptr<MainWindow> m_window;
};

void tst_bomWindows::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    for (const char *folder : {"_config", "_files", "_zp", "_e-mail", "_bin"})
        testSupport::copyFolder(testSupport::source(folder), m_folder->path(folder));
    QFile::remove(m_folder->path("_e-mail/KIV_EMAIL.exe"));
    userState::instance().lastZp = "_zp/zp_0.xml";
    configStruct config;
    QVERIFY(config.load(m_folder->path("_config/kiv_mat_config.xml")));
    config.backupPath();
    config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
    QVERIFY(config.save(m_folder->path("_config/kiv_mat_config.xml")));
    m_window = std::make_unique<MainWindow>(programData::instance());
    m_window->action("edit")->setChecked(true);
    QCOMPARE(m_shown->listed, QString());
}

void tst_bomWindows::cleanup()
{
    m_window.reset();
    pendingSysCommands::discardAll();
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_bomWindows::setsLiveInTheWindow()
{
    QVERIFY(!window().hasSets());
    QVERIFY(!window().action("set")->isEnabled());
    setSets(0, 4);
    setSets(2, 1000000);
    QVERIFY(window().hasSets());
    // The file has no place for them.
    QVERIFY(!window().isModified());
    window().close();
    QVERIFY(m_shown->questions.isEmpty());
    QCOMPARE(bomTree::setsOf(file(2)), 1000000);

    window().commandUndo(false);
    QCOMPARE(bomTree::setsOf(file(2)), 0);
    m_shown->nextAnswer = answer::no;
    window().commandClear(false);
    QCOMPARE(bomTree::setsOf(file(0)), 4);
    m_shown->nextAnswer = answer::yes;
    window().commandClear(false);
    QVERIFY(!window().hasSets());
    window().commandUndo(false);
    QCOMPARE(bomTree::setsOf(file(0)), 4);

    window().view()->sortByColumn(bomTree::nameColumn, Qt::DescendingOrder);
    QVERIFY(!window().action("undo")->isEnabled() && !window().action("redo")->isEnabled());
    QVERIFY(window().hasSets());
}

void tst_bomWindows::allQuantities()
{
    m_shown->input = 7;
    window().commandAllQuantities(false);
    for (const QStandardItem *each : bomTree::allFiles(window().model()))
        QCOMPARE(bomTree::setsOf(each), 7);
    window().commandUndo(false);
    QVERIFY(!window().hasSets());
    // With a folder selected, the files below it.
    select(window().model()->item(1));
    window().commandAllQuantities(false);
    QCOMPARE(bomTree::setsOf(file(0)), 0);
    QCOMPARE(bomTree::setsOf(file(1)), 7);
    QCOMPARE(bomTree::setsOf(file(3)), 7);
    QCOMPARE(bomTree::setsOf(file(4)), 0);
    m_shown->input = {};
    window().commandAllQuantities(false);
    QCOMPARE(bomTree::setsOf(file(1)), 7);
}

void tst_bomWindows::setChangesAndSaves()
{
    const QByteArray before = testSupport::read(setPath());
    setSets(1, 3);
    select(file(1));
    const auto &group = programData::instance().boms().categories[1]->items[0];
    addList("new.xml", "X", "1", 2);
    QCOMPARE(group->items.size(), size_t(2));
    QCOMPARE(group->items[1]->name, QString("boms/new.xml"));
    QVERIFY(window().isModified());

    // Not saved: the set is what the file holds, and the sets stay.
    window().show();
    m_shown->nextAnswer = answer::no;
    window().close();
    QCOMPARE(bomTree::allFiles(window().model()).size(), 5);
    QCOMPARE(bomTree::setsOf(file(1)), 3);
    QCOMPARE(testSupport::read(setPath()), before);

    select(file(1));
    addList("new.xml", "X", "1", 2);
    select(file(0));
    window().commandDelete(false);
    QCOMPARE(bomTree::allFiles(window().model()).size(), 5);
    window().commandUndo(false);
    QCOMPARE(bomTree::allFiles(window().model()).size(), 6);
    window().commandRedo(false);
    window().commandSave(false);
    kiv_mat_bomsStruct saved;
    QCOMPARE(loadBoms(setPath(), &saved), 0);
    QVERIFY(saved.categories[0]->items[0]->items.empty());
    QCOMPARE(saved.categories[1]->items[0]->items[1]->name, QString("boms/new.xml"));
    QVERIFY(!window().isModified());

    // No BOM list is not added.
    m_shown->file = m_folder->path("_files/firms.xml");
    window().commandAddFile(false);
    QVERIFY(m_shown->listed.contains("firms.xml</b>"));
    QVERIFY(!window().isModified());
}

void tst_bomWindows::emptySetTakesAFile()
{
    m_window.reset();
    m_folder->write("_files/boms.xml", testSupport::document("kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd",
                                                             "<update>1</update><server_release>1</server_release>"));
    m_window = std::make_unique<MainWindow>(programData::instance());
    QCOMPARE(window().model()->rowCount(), 0);
    addList("first.xml", "X", "1", 2);
    QCOMPARE(bomTree::allFiles(window().model()).size(), 1);
    window().commandSave(false);
    kiv_mat_bomsStruct saved;
    QCOMPARE(loadBoms(setPath(), &saved), 0);
    QCOMPARE(saved.categories[0]->items[0]->items[0]->name, QString("boms/first.xml"));
    window().commandUndo(false);
}

void tst_bomWindows::unreadableListOrdersNothing()
{
    int ordered = 0;
    connect(&window(), &Kiv_bomWindow::appendToOrder, this, [&ordered] { ++ordered; });
    setSets(0, 1);
    setSets(1, 1);
    QFile::remove(m_folder->path("_files/boms/modul_stm32f103.xml"));
    window().commandSet(false);
    QVERIFY(m_shown->listed.contains("modul_stm32f103.xml</b>"));
    QCOMPARE(ordered, 0);
}

void tst_bomWindows::exports()
{
    addList("two.xml", "NONE-1", "2,5", 0);
    for (QStandardItem *each : bomTree::allFiles(window().model()))
        if (bomTree::fileOf(each)->name.endsWith("two.xml"))
            select(each);
    m_shown->file = m_folder->path("out.csv");
    window().commandCsv(false);
    QVERIFY(m_shown->proposed.endsWith("/two.csv"));
    QCOMPARE(testSupport::read(m_shown->file), QByteArray("!!!!!NONE-1\t2,5\n"));
    m_shown->file = m_folder->path("out.html");
    window().commandFullReport(false);
    QVERIFY(testSupport::read(m_shown->file).contains("!!!!!NONE-1"));
    // The converter is not there: told, and nothing written.
    QFile::remove(m_folder->path("_bin/KIV_HTML_TO_DOC_PDF.exe"));
    m_shown->file = m_folder->path("out.doc");
    window().commandDoc(false);
    QCOMPARE(m_shown->errors.size(), 1);
    QVERIFY(!QFile::exists(m_shown->file));
    m_shown->file = m_folder->path("_files");
    window().commandCsv(false);
    QCOMPARE(m_shown->errors.size(), 2);
}

void tst_bomWindows::linesOfAList()
{
    const QByteArray known =
        programData::instance().database(programData::warehouse).groups[0]->items[0]->d_ktm.toUtf8();
    const QString path = writeList("lines.xml", "NONE-1", "2");
    Kiv_bomViewWindow &list = window().viewWindow(path);
    list.showNow();
    const int widths[] = {50, 320, 150, 80, 80, 80, 150, 80, 80, 200, 80, 80, 250};
    QCOMPARE(list.model()->columnCount(), int(std::size(widths)));
    for (int column = 0; column < int(std::size(widths)); ++column)
        QCOMPARE(list.view()->header()->sectionSize(column), widths[column]);
    const auto text = [&list](int column) { return list.model()->item(0, column)->text(); };
    QVERIFY(list.windowTitle().endsWith("] Editing locked"));
    QVERIFY(list.view()->isEditingLocked());
    QCOMPARE(text(bomTree::ktmColumn), QString("!!!!!NONE-1"));
    QCOMPARE(text(bomTree::lineNameColumn), QString("own"));

    // Another KTM is another material, and the mark is never stored.
    list.action("edit")->setChecked(true);
    auto *ktm = static_cast<myItem::myItemStandard *>(list.model()->item(0, bomTree::ktmColumn));
    list.model()->setValue(ktm, QString("!!!!!NONE-2"));
    QCOMPARE(list.edited().materials[0]->d_ktm, QString("NONE-2"));
    list.model()->setValue(ktm, QString(known));
    QCOMPARE(text(bomTree::ktmColumn), QString(known));
    QVERIFY(text(bomTree::lineNameColumn) != "own");
    list.commandUndo(false);
    list.commandUndo(false);
    QCOMPARE(text(bomTree::ktmColumn), QString("!!!!!NONE-1"));
    QCOMPARE(text(bomTree::lineNameColumn), QString("own"));
    QCOMPARE(list.edited().materials[0]->d_ktm, QString("NONE-1"));
    list.commandRedo(false);
    list.commandRedo(false);

    list.commandShowSum(false);
    QVERIFY(m_shown->informations.last().contains("1"));
    list.commandSave(false);
    kiv_mat_bomStruct saved;
    QCOMPARE(loadBom(path, &saved), 0);
    QCOMPARE(saved.materials[0]->d_ktm, QString(known));
    QCOMPARE(saved.materials[0]->d_name, QString("own"));
    QVERIFY(!list.isModified());
}

void tst_bomWindows::insertFromTheDatabase()
{
    const QString known = programData::instance().database(programData::warehouse).groups[0]->items[0]->d_ktm;
    emit m_window->databaseWindow(programData::warehouse).insertToBom(known);
    QVERIFY(m_shown->informations.last().contains("No BOM list is open"));

    select(file(0));
    window().commandBom(false);
    Kiv_bomViewWindow &list = window().viewWindow(m_folder->path("_files/boms/zasilacz_liniowy_5v.xml"));
    QVERIFY(list.isVisible());
    const int before = list.model()->rowCount();
    emit m_window->databaseWindow(programData::warehouse).insertToBom(known);
    QVERIFY(m_shown->informations.last().contains("is locked"));
    list.action("edit")->setChecked(true);
    emit m_window->databaseWindow(programData::warehouse).insertToBom("NONE-1");
    QVERIFY(m_shown->listed.contains("[ NONE-1 ] does not exist<br>"));
    QCOMPARE(list.model()->rowCount(), before);
    QVERIFY(!list.isModified());

    emit m_window->databaseWindow(programData::warehouse).insertToBom(known);
    QCOMPARE(list.model()->rowCount(), before + 1);
    QCOMPARE(list.edited().materials.back()->d_ktm, known);
    list.commandUndo(false);
    QCOMPARE(int(list.edited().materials.size()), before);
    QVERIFY(!list.isModified());
    list.commandRedo(false);
    m_shown->nextAnswer = answer::cancel;
    list.close();
    QVERIFY(list.isVisible());
    m_shown->nextAnswer = answer::no;
    list.close();
    QVERIFY(!list.isVisible());
}

void tst_bomWindows::intoTheOrder_data()
{
    QTest::addColumn<QStringList>("buttons");
    QTest::addColumn<int>("newLines");
    QTest::addColumn<QString>("quantity"); // of the first line, 25 before
    QTest::newRow("raised") << QStringList{"go"} << 0 << "32.5";
    QTest::newRow("added") << QStringList{"add", "go"} << 1 << "25";
    QTest::newRow("skipped") << QStringList{"skip", "go"} << 0 << "25";
    QTest::newRow("only what is short") << QStringList{"short", "go"} << 0 << "31.5";
    QTest::newRow("cancelled") << QStringList{} << 0 << "25";
}

void tst_bomWindows::intoTheOrder()
{
    QFETCH(const QStringList, buttons);
    QFETCH(const int, newLines);
    QFETCH(const QString, quantity);
    const QString ktm = firstLine().ktm;
    firstLine().unit.clear();
    auto *material = const_cast<materialStruct *>(programData::instance().materials().find(ktm)->material);
    material->d_inWarehouse = "1";
    const auto lines = order().orderItems.items.size();
    // Two lists of one material are one need; an unknown one is told and not ordered.
    addList("one.xml", ktm.toUtf8(), "1,5", 3);
    addList("two.xml", ktm.toUtf8(), "3", 1);
    addList("unknown.xml", "NONE-1", "3", 1);
    answerNeeds(buttons);
    m_window->action("appendBom")->trigger();
    QCOMPARE(order().orderItems.items.size(), lines + newLines);
    QCOMPARE(firstLine().quantity.replace(',', '.'), quantity);
    QCOMPARE(m_shown->listed.contains("NONE-1"), buttons.contains("go"));
    const bool changed = newLines > 0 || quantity != "25";
    QCOMPARE(m_window->stack().undoCount(), size_t(changed));
    if (!changed)
        return;
    m_window->commandZpUndo(false);
    QCOMPARE(order().orderItems.items.size(), lines);
    QCOMPARE(firstLine().quantity, QString("25"));
    m_window->commandZpRedo(false);
    QCOMPARE(order().orderItems.items.size(), lines + newLines);
    QCOMPARE(firstLine().quantity.replace(',', '.'), quantity);
}

void tst_bomWindows::needsTable()
{
    kiv_mat_bomStruct bom;
    for (const char *quantity : {"3", "many"}) {
        bom.materials.push_back(std::make_unique<materialStruct>());
        bom.materials.back()->d_ktm = "NONE-1";
        bom.materials.back()->d_quantity = quantity;
    }
    const std::vector<bomSets> lists{{&bom, 2}};
    const ktmIndex &materials = programData::instance().materials();
    const auto of = bomOperations::demandOf(lists, materials);
    needsDialog dialog(of, bomOperations::sumsOf(lists, materials), nullptr);
    const auto *table = dialog.findChild<QTreeWidget *>("needs");
    QStringList texts;
    for (int row = 0; row < table->topLevelItemCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            texts.append(table->topLevelItem(row)->text(column));
    QCOMPARE(texts.join('|'), QString("NONE-1||6|?|6|No|NONE-1||many|||"));
}

void tst_bomWindows::orderIsSent()
{
    m_window->view().lines()->setValue(
        static_cast<myItem::myItemStandard *>(m_window->view().lines()->item(0, orderTree::quantityColumn)), 77);
    m_shown->nextAnswer = answer::no;
    m_window->commandZpSend(false);
    QDir folder(m_folder->path("_e-mail"));
    QVERIFY(folder.entryList({"*.cmd"}).isEmpty());

    m_shown->nextAnswer = answer::yes;
    m_window->commandZpSend(false);
    QVERIFY(!m_window->isModified());
    const QStringList written = folder.entryList({"*.cmd"});
    QCOMPARE(written.size(), 1);
    const QString message = testSupport::read(folder.filePath(written.first()));
    QVERIFY(message.contains("/_zp/zp_0.xml]"));
    const QString pdf = message.section("attachment", -1).section('[', 1).section(']', 0, 0);
    QVERIFY(testSupport::read(pdf).startsWith("%PDF"));
    m_window->close();
    QVERIFY(!QFile::exists(pdf));
    QCOMPARE(m_shown->errors, QStringList());
}

void tst_bomWindows::dataAreSent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("archive");
    QTest::newRow("databases") << "sendDatabase"
                               << "/database_";
    QTest::newRow("lists") << "sendBoms"
                           << "/boms_";
}

void tst_bomWindows::dataAreSent()
{
    QFETCH(const QString, name);
    QFETCH(const QString, archive);
    m_window->action(name.toLatin1().constData())->trigger();
    QCOMPARE(m_shown->errors, QStringList());
    QCOMPARE(pendingSysCommands::instance().size(), size_t(3));
    const QString text = testSupport::read(QFileInfo(paths::temporaryDir() + "/msg_database.cmd").absoluteFilePath());
    const QString zip = text.section("attachment", -1).section('[', 1).section(']', 0, 0);
    QVERIFY2(zip.contains(archive) && QFile::exists(zip), qPrintable(text));
    m_window->close();
    QVERIFY(!QFile::exists(zip));
}

KIVZP_TEST(tst_bomWindows)
#include "tst_bomWindows.moc"

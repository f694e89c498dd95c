// The material editor: what it shows, gives back, undoes and sends to the file server.
#include "tools/runnerSupport.h"

#include "data/programData.h"
#include "data/vocabulary.h"
#include "database/materialWindow.h"
#include "tree/myTreeView.h"

#include <QLineEdit>
#include <QMenu>

Q_DECLARE_METATYPE(prompts::answer)

using answer = prompts::answer;

class tst_materialWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void showsEveryField();
    void handsBack_data();
    void handsBack();
    void refusedKeepsAll();
    void newBegins();
    void undoTakesBack();
    void deletesRows();
    void firmsOfTheRegister();
    void typedValueCounts();
    void closing_data();
    void closing();
    void serverLinks_data();
    void serverLinks();
    void missingFile();
    void sends_data();
    void sends();
    void opensWebLinksOnly_data();
    void opensWebLinksOnly();
    void actionsAreReachable();

private:
    // Shows a material that passes the checks.
    void showGood()
    {
        m_material = std::make_unique<materialStruct>();
        m_material->d_ktm = "312040-30.12-00220";
        m_material->d_cpv = "31711130-3";
        m_material->d_name = "RC0603";
        auto *maker = m_material->manufacturers.append(std::make_unique<manufacturerStruct>());
        maker->name = "Yageo";
        for (const char *name : {"http://server/redfiles/DATASHEET/a.pdf", "file:///bin/sh"}) {
            fileStruct *file = maker->files.append(std::make_unique<fileStruct>());
            file->type = "FILE_DATASHEET";
            file->name = name;
        }
        m_material->suppliers.append(std::make_unique<supplierStruct>())->name = "TME";
        QVERIFY(m_window->openExisting(nullptr, *m_material));
    }
    const materialStruct &edited() { return m_window->edited(); }
    // As a user does it, who leaves the cell that was edited before.
    void edit(QStandardItem *cell, const QVariant &value)
    {
        m_window->view()->setCurrentIndex({});
        select(cell);
        m_window->model()->setValue(static_cast<myItem::myItemStandard *>(cell), value);
    }
    QStandardItem *firm(materialTree::rowKind kind, int row = 0) { return m_window->rows().section(kind)->child(row); }
    void select(const QStandardItem *item)
    {
        QVERIFY(item);
        m_window->view()->setCurrentIndex(item->index());
    }
    const QStringList links(int row = 0)
    {
        QStringList found;
        for (const auto &file : edited().manufacturers.items.at(size_t(row))->files.items)
            found.append(file->type + ' ' + file->name);
        return found;
    }
    void setOption(const char *key, const QString &value)
    {
        programData::instance().config().options.findOption(key)->value1 = value;
    }

    std::unique_ptr<helperFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
    std::unique_ptr<materialWindow> m_window;
    std::unique_ptr<materialStruct> m_material;
};

void tst_materialWindow::init()
{
    m_folder = std::make_unique<helperFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    programData &known = programData::instance();
    known.clear();
    known.config().setDefaults();
    setOption("SERVER_NAME", "server");
    setOption("SERVER_USER_NAME", "kiv");
    setOption("SERVER_USER_PASSWORD", "Top Secret 23 letters!!");
    firmStruct *firm = known.firm().manufacturers.append(std::make_unique<firmStruct>());
    firm->name = "Vishay";
    firm->status = statusWord::green;
    m_window = std::make_unique<materialWindow>(programData::instance());
}

void tst_materialWindow::cleanup()
{
    m_window.reset();
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

// A field that the record gets later is not to be missing here.
void tst_materialWindow::showsEveryField()
{
    showGood();
    for (const auto &field : materialStruct::fields()) {
        auto *cell = m_window->rows().valueOf(field.name);
        QVERIFY2(cell, qPrintable(field.name));
        QCOMPARE(cell->text(), edited().*field.member);
    }
    for (const auto &field : informationsStruct::fields()) {
        QVERIFY2(m_window->rows().valueOf(field.name), qPrintable(field.name));
        edit(m_window->rows().valueOf(field.name), QString("x"));
        QCOMPARE(edited().information.*field.member, QString("x"));
    }
    QVERIFY(m_material->information == informationsStruct());
    QCOMPARE(links(),
             QStringList({"FILE_DATASHEET http://server/redfiles/DATASHEET/a.pdf", "FILE_DATASHEET file:///bin/sh"}));
}

void tst_materialWindow::handsBack_data()
{
    QTest::addColumn<int>("opener");
    QTest::newRow("new") << 0;
    QTest::newRow("group and row") << 1;
    QTest::newRow("own row") << 2;
}

void tst_materialWindow::handsBack()
{
    QFETCH(int, opener);
    showGood();
    QStandardItem item;
    QStringList given;
    std::unique_ptr<materialStruct> received;
    const auto receive = [&](const char *how, QStandardItem *at, int row, materialStruct *material) {
        received.reset(material);
        given.append(QString("%1 %2 %3").arg(how).arg(at == &item).arg(row));
    };
    connect(m_window.get(), &materialWindow::addNew, this,
            [&](QStandardItem *at, materialStruct *m) { receive("new", at, 0, m); });
    connect(m_window.get(), qOverload<QStandardItem *, int, materialStruct *>(&materialWindow::editExist), this,
            [&](QStandardItem *at, int row, materialStruct *m) { receive("row", at, row, m); });
    connect(m_window.get(), qOverload<QStandardItem *, materialStruct *>(&materialWindow::editExist), this,
            [&](QStandardItem *at, materialStruct *m) { receive("own", at, 0, m); });
    const QStringList expected{"new 1 0", "row 1 7", "own 1 0"};
    if (opener == 0) {
        QVERIFY(m_window->openNew(&item, "31711130-3"));
        edit(m_window->rows().valueOf("d_ktm"), "312040-30.12-00220 ");
        m_window->commandAddSuppler(true);
        edit(firm(materialTree::supplier), "TME");
        m_window->commandAddManufacture(true);
    } else if (opener == 1) {
        QVERIFY(m_window->openExisting(&item, 7, *m_material));
    } else {
        QVERIFY(m_window->openExisting(&item, *m_material));
    }
    edit(m_window->rows().valueOf("d_name"), "Another");
    m_window->commandSet(true);
    QCOMPARE(m_shown->errors, QStringList());
    QCOMPARE(given, QStringList(expected.at(opener)));
    QCOMPARE(received->d_name, QString("Another"));
    QCOMPARE(received->d_ktm, QString("312040-30.12-00220"));
    QCOMPARE(received->manufacturers.items.size(), size_t(opener == 0 ? 0 : 1));
    QCOMPARE(m_material->d_name, QString("RC0603"));
    QVERIFY(m_window->isHidden());
}

void tst_materialWindow::refusedKeepsAll()
{
    showGood();
    edit(m_window->rows().valueOf("d_name"), "Another");
    edit(m_window->rows().valueOf("d_cpv"), "");
    m_window->commandSet(true);
    QCOMPARE(m_shown->errors, QStringList("CPV empty"));
    QCOMPARE(m_window->view()->currentIndex(), m_window->rows().valueOf("d_cpv")->index());
    QVERIFY(m_window->isVisible());
    QCOMPARE(edited().d_name, QString("Another"));
    m_window->commandUndo(true);
    QCOMPARE(edited().d_cpv, QString("31711130-3"));
}

void tst_materialWindow::newBegins()
{
    QVERIFY(m_window->openNew(nullptr, "31711130-3"));
    QCOMPARE(m_window->windowTitle(), QString("New material"));
    QCOMPARE(edited().d_cpv, QString("31711130-3"));
    QCOMPARE(edited().d_price + edited().d_averagePrice, QString("0.000.00"));
    QCOMPARE(edited().d_active + edited().information.status, QString("NIESZARY"));
    // Nothing was typed, so nothing is asked.
    m_window->close();
    QCOMPARE(m_shown->questions, QStringList());
}

void tst_materialWindow::undoTakesBack()
{
    showGood();
    const auto before = edited().copy();
    m_window->commandAddManufacture(true);
    edit(firm(materialTree::manufacturer, 1), "Vishay");
    m_window->commandAddFile(true);
    edit(firm(materialTree::manufacturer, 1)->child(0, materialTree::valueColumn), "http://x/y");
    edit(firm(materialTree::manufacturer)->child(0), "FILE_PDF");
    edit(firm(materialTree::supplier)->parent()->child(0, materialTree::valueColumn), "77-1");
    const auto after = edited().copy();
    QCOMPARE(links(1), QStringList("FILE_DATASHEET http://x/y"));
    QCOMPARE(links().first(), QString("FILE_PDF http://server/redfiles/DATASHEET/a.pdf"));
    QCOMPARE(edited().suppliers.items.front()->partNo, QString("77-1"));
    int steps = 0;
    for (; m_window->action("undo")->isEnabled(); ++steps)
        m_window->commandUndo(true);
    QCOMPARE(steps, 6);
    QVERIFY(edited() == *before);
    while (m_window->action("redo")->isEnabled())
        m_window->commandRedo(true);
    QVERIFY(edited() == *after);
}

void tst_materialWindow::deletesRows()
{
    showGood();
    const auto before = edited().copy();
    select(m_window->rows().valueOf("d_ktm"));
    QVERIFY(!m_window->action("deleteRows")->isEnabled());
    m_window->commandDeleteRows(true);
    QVERIFY(edited() == *before);

    select(firm(materialTree::manufacturer)->child(1));
    m_window->commandDeleteFile(true);
    QCOMPARE(links(), QStringList("FILE_DATASHEET http://server/redfiles/DATASHEET/a.pdf"));
    m_window->commandUndo(true);
    select(firm(materialTree::manufacturer));
    m_window->commandDeleteFiles(true);
    QCOMPARE(links(), QStringList());
    m_window->commandUndo(true);
    // One step for a firm with its files and another firm.
    m_window->view()->selectAll();
    m_window->commandDeleteRows(true);
    QVERIFY(edited().manufacturers.items.empty() && edited().suppliers.items.empty());
    m_window->commandUndo(true);
    QVERIFY(edited() == *before);
    QVERIFY(!m_window->action("undo")->isEnabled());
}

void tst_materialWindow::firmsOfTheRegister()
{
    showGood();
    auto *cell = static_cast<myItem::myItemComboBox *>(firm(materialTree::manufacturer));
    QCOMPARE(cell->entries().first().value, QString("Vishay"));
    QCOMPARE(cell->text(), QString("Yageo"));
    QCOMPARE(cell->toolTip(), QString("Not in the firm register"));
    edit(cell, "Vishay");
    QVERIFY(cell->toolTip().contains("ZIELONY"));
    QCOMPARE(edited().manufacturers.items.front()->name, QString("Vishay"));
}

// Ctrl+S does not take the focus from an editor.
void tst_materialWindow::typedValueCounts()
{
    showGood();
    std::unique_ptr<materialStruct> received;
    connect(m_window.get(), qOverload<QStandardItem *, materialStruct *>(&materialWindow::editExist), this,
            [&](QStandardItem *, materialStruct *m) { received.reset(m); });
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->view()->edit(m_window->rows().valueOf("d_name")->index());
    auto *editor = m_window->view()->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    QTest::keyClicks(editor, "Typed");
    m_window->action("set")->trigger();
    QVERIFY(received);
    QCOMPARE(received->d_name, QString("Typed"));
}

void tst_materialWindow::closing_data()
{
    QTest::addColumn<answer>("user");
    QTest::addColumn<bool>("good");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<int>("given");
    QTest::newRow("yes") << answer::yes << true << true << 1;
    QTest::newRow("yes, refused") << answer::yes << false << false << 0;
    QTest::newRow("no") << answer::no << true << true << 0;
    QTest::newRow("cancel") << answer::cancel << true << false << 0;
}

void tst_materialWindow::closing()
{
    QFETCH(answer, user);
    QFETCH(bool, good);
    showGood();
    int given = 0;
    connect(m_window.get(), qOverload<QStandardItem *, materialStruct *>(&materialWindow::editExist), this,
            [&](QStandardItem *, materialStruct *m) {
                const std::unique_ptr<materialStruct> received(m);
                ++given;
            });
    edit(m_window->rows().valueOf("d_name"), good ? "Another" : "");
    m_shown->nextAnswer = user;
    m_window->close();
    QTEST(m_window->isHidden(), "closed");
    QTEST(given, "given");
    QCOMPARE(m_shown->questions.size(), 1);
    if (m_window->isVisible()) {
        QVERIFY(!m_window->openNew(nullptr));
        QCOMPARE(edited().d_ktm, m_material->d_ktm);
        m_shown->nextAnswer = answer::no;
        QVERIFY(m_window->openNew(nullptr));
    }
}

void tst_materialWindow::serverLinks_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariant>("path");
    QTest::addColumn<QString>("link");
    QTest::addColumn<int>("errors");
    const QString base = "http://server/redfiles/";
    QTest::newRow("datasheet") << "datasheets" << QVariant("y/b c.pdf")
                               << "FILE_DATASHEET " + base + "DATASHEET/y/b%20c.pdf" << 0;
    QTest::newRow("declaration") << "declarations" << QVariant("b.pdf") << "FILE_MD " + base + "RoHS/b.pdf" << 0;
    QTest::newRow("cancelled") << "datasheets" << QVariant() << "" << 0;
    QTest::newRow("leads out") << "datasheets" << QVariant("../b.pdf") << "" << 1;
}

void tst_materialWindow::serverLinks()
{
    QFETCH(QString, command);
    QFETCH(QVariant, path);
    QFETCH(QString, link);
    showGood();
    m_shown->file = m_folder->write("redfiles/y/b c.pdf", "pdf");
    m_shown->input = path;
    select(firm(materialTree::manufacturer));
    m_window->action(qPrintable(command))->trigger();
    QCOMPARE(m_shown->questions, QStringList("Please set path where write file"));
    QCOMPARE(links().size(), link.isEmpty() ? 2 : 3);
    if (!link.isEmpty())
        QCOMPARE(links().last(), link);
    QTEST(int(m_shown->errors.size()), "errors");
}

void tst_materialWindow::missingFile()
{
    showGood();
    m_shown->file = m_folder->path("none.pdf");
    select(firm(materialTree::manufacturer));
    m_window->commandDatasheets(true);
    QCOMPARE(m_shown->errors.size(), 1);
    QVERIFY(m_shown->errors.first().startsWith("File does not exist or corrupted"));
    QCOMPARE(m_shown->questions, QStringList());
    QCOMPARE(links().size(), 2);
}

void tst_materialWindow::sends_data()
{
    QTest::addColumn<QByteArray>("helper");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QString>("listed");
    const QString done = "Send file <b>%1</b>&nbsp;[server:/redfiles/DATASHEET/a.pdf]&nbsp;%2<br>";
    QTest::newRow("completed") << QByteArray("printf 'pw=%s' \"$4\"") << "pw=***<br>" + done.arg("%1", "completed")
                               << "";
    QTest::newRow("refused there") << QByteArray("exit 1") << "" << done.arg("%1", "error");
    QTest::newRow("no helper") << QByteArray() << "The program cannot be started [_bin/pscp.exe]<br>"
                               << "Sending error <b>%1</b>&nbsp;"
                                  "[server:/redfiles/DATASHEET/a.pdf]<br>";
}

void tst_materialWindow::sends()
{
    QFETCH(QByteArray, helper);
    QFETCH(QString, logged);
    QFETCH(QString, listed);
    if (!helper.isEmpty())
        m_folder->script("pscp.exe", "printf '[%s]' \"$@\" > '" + m_folder->path("got").toUtf8() + "'; " + helper);
    showGood();
    m_shown->file = m_folder->write("a.pdf", "pdf");
    select(firm(materialTree::manufacturer)->child(0));
    QVERIFY(m_window->action("copyFileToServer")->isEnabled());
    m_window->commandCopyFileToServer(true);
    const QString source = m_folder->path("a.pdf");
    QCOMPARE(m_shown->logged, QString(logged).replace("%1", source));
    QCOMPARE(m_shown->listed, QString(listed).replace("%1", source));
    QVERIFY(!(m_shown->logged + m_shown->listed).contains("Secret"));
    if (!helper.isEmpty())
        QCOMPARE(QString::fromUtf8(testSupport::read(m_folder->path("got"))),
                 QString("[-P][22][-pw][Top Secret 23 letters!!][-batch][--][%1]"
                         "[kiv@server:/redfiles/DATASHEET/a.pdf]")
                     .arg(source));
}

void tst_materialWindow::opensWebLinksOnly_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("sends");
    QTest::newRow("on the server") << "http://server/redfiles/DATASHEET/a.pdf" << true << true;
    QTest::newRow("elsewhere") << "HTTPS://yageo.com/a.pdf" << true << false;
    QTest::newRow("program") << "file:///bin/sh" << false << false;
    QTest::newRow("script") << "javascript:alert(1)" << false << false;
    QTest::newRow("path") << "/bin/sh" << false << false;
}

void tst_materialWindow::opensWebLinksOnly()
{
    QFETCH(QString, link);
    showGood();
    QStandardItem *file = firm(materialTree::manufacturer)->child(0);
    edit(file->parent()->child(0, materialTree::valueColumn), link);
    select(file);
    QTEST(m_window->action("open")->isEnabled(), "opens");
    QTEST(m_window->action("copyFileToServer")->isEnabled(), "sends");
    setOption("SERVER_USER_PASSWORD", {});
    select(firm(materialTree::manufacturer));
    QVERIFY(!m_window->action("open")->isEnabled());
    select(file);
    QVERIFY(!m_window->action("copyFileToServer")->isEnabled());
}

void tst_materialWindow::actionsAreReachable()
{
    showGood();
    QStringList texts;
    QSet<QString> shortcuts;
    for (const QAction *action : m_window->findChildren<QAction *>()) {
        if (action->objectName().isEmpty() || action->isSeparator())
            continue;
        QVERIFY2(!action->icon().isNull() && !action->icon().availableSizes().isEmpty(),
                 qPrintable(action->objectName()));
        const QString shortcut = action->shortcut().toString();
        QVERIFY2(shortcut.isEmpty() || !shortcuts.contains(shortcut), qPrintable(shortcut));
        shortcuts.insert(shortcut);
    }
    auto *menu = m_window->findChild<QMenu *>("contextMenu");
    for (const QAction *action : menu->actions())
        texts.append(QString(action->text()).remove('&'));
    QCOMPARE(texts,
             QStringList({"Add manufacturer", "Add suppler", "Add file", "Delete file", "Delete files", "Open"}));
    const QStandardItem *row = firm(materialTree::manufacturer);
    const QPoint place = m_window->view()->visualRect(row->index()).center();
    QTest::mouseClick(m_window->view()->viewport(), Qt::RightButton, {}, place);
    QVERIFY(menu->isVisible());
    QCOMPARE(m_window->view()->currentIndex().row(), row->row());
    menu->hide();
}

KIVZP_TEST(tst_materialWindow)
#include "tst_materialWindow.moc"

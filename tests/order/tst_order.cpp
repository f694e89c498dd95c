// An order's life in the main window: edited, saved, closed, recovered.
#include "testSupport.h"

#include "config/configWindow.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "dialogs/emailTempWindow.h"
#include "order/addMaterialDialog.h"
#include "order/orderDocument.h"
#include "order/orderView.h"
#include "shell/MainWindow.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "util/fileVersions.h"
#include "util/userState.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QSpinBox>

using answer = prompts::answer;

class tst_order : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void openAsksFirst();
    void openEditorIsSaved();
    void saveEndsTheHistory();
    void newOrderHasNoFile();
    void saveAsWritesTheReport();
    void changedOnDisk_data();
    void changedOnDisk();
    void closingAsks_data();
    void closingAsks();
    void bulkEdits_data();
    void bulkEdits();
    void selectedLinesOnly();
    void specialLines();
    void deleteAndSort();
    void pricesAndSums();
    void copyAndFind();
    void addMaterials();
    void messageTemplate();
    void attentions();
    void options();
    void locked();
    void recovered();
    void otherProgram();
    void versions();
    void configuration();

private:
    orderView &view() { return m_window->view(); }
    kiv_mat_zpStruct &order() { return m_window->document().order(); }
    QAction *action(const char *name) { return m_window->action(name); }
    QString path() { return m_folder->path("_zp/zp_0.xml"); }
    // All texts of a column, from the records.
    QStringList column(QString orderItemStruct::*member)
    {
        QStringList texts;
        for (const auto &line : order().orderItems.items)
            texts.append((*line).*member);
        return texts;
    }
    void edit(int row, int column, const QVariant &value)
    {
        view().lines()->setValue(static_cast<myItem::myItemStandard *>(view().lines()->item(row, column)), value);
    }

    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
    std::unique_ptr<MainWindow> m_window;
};

void tst_order::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    for (const char *folder : {"_config", "_files", "_zp"})
        testSupport::copyFolder(testSupport::source(folder), m_folder->path(folder));
    userState::instance().lastZp = "_zp/zp_0.xml";
    configStruct config;
    QVERIFY(config.load(m_folder->path("_config/kiv_mat_config.xml")));
    config.backupPath();
    config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
    QVERIFY(config.save(m_folder->path("_config/kiv_mat_config.xml")));
    m_window = std::make_unique<MainWindow>(programData::instance());
    QCOMPARE(m_shown->listed, QString());
    QVERIFY(!m_window->isModified());
}

void tst_order::cleanup()
{
    m_window.reset();
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_order::openAsksFirst()
{
    edit(0, orderTree::quantityColumn, 77);
    QVERIFY(m_window->isModified());
    m_shown->nextAnswer = answer::cancel;
    m_window->commandZpOpen(true);
    QVERIFY(m_shown->questions.last().startsWith("Save & close order [  " + path()));
    QCOMPARE(m_window->document().path(), path());
    QCOMPARE(m_window->stack().undoCount(), size_t(1));
    QCOMPARE(order().orderItems.items[0]->quantity, QString("77"));

    // A missing file is listed, and the order stays.
    m_shown->nextAnswer = answer::no;
    m_shown->file = m_folder->path("none.xml");
    m_window->commandZpOpen(true);
    QVERIFY(m_shown->listed.contains("none.xml</b>"));
    // A corrupt one leaves an empty order without a path.
    m_shown->file = m_folder->write("bad.xml", testSupport::order("<x/>"));
    m_window->commandZpOpen(true);
    QVERIFY(!m_shown->errors.isEmpty());
    QCOMPARE(m_window->document().path(), QString());
    QCOMPARE(view().lines()->rowCount(), 0);
    m_shown->file = path();
    m_window->commandZpOpen(true);
    QCOMPARE(order().orderItems.items[0]->quantity, QString("25"));
    QCOMPARE(userState::instance().lastZp, path());
}

void tst_order::openEditorIsSaved()
{
    m_window->show();
    myTreeView *lines = view().linesView();
    lines->setFocus();
    lines->setCurrentIndex(view().lines()->index(0, orderTree::nameColumn));
    QTest::keyClick(lines, Qt::Key_F2);
    auto *editor = lines->viewport()->findChild<QLineEdit *>("editor");
    QVERIFY(editor);
    editor->setText("STILL OPEN");
    m_window->commandZpSave(true);
    QVERIFY(testSupport::read(path()).contains("STILL OPEN"));
}

void tst_order::saveEndsTheHistory()
{
    edit(0, orderTree::quantityColumn, 77);
    edit(1, orderTree::descriptionColumn, QString("a & b"));
    m_window->commandZpUndo(true);
    QVERIFY(action("undo")->isEnabled() && action("redo")->isEnabled());
    m_window->commandZpSave(true);
    QVERIFY(!action("undo")->isEnabled() && !action("redo")->isEnabled());
    QVERIFY(!m_window->isModified());
    QVERIFY(m_shown->logged.contains("Save file <b>zp_0.xml</b> ["));
    kiv_mat_zpStruct saved;
    QCOMPARE(loadZp(path(), &saved), 0);
    QCOMPARE(saved.orderItems.items[0]->quantity, QString("77"));
    QCOMPARE(saved.attentions, order().attentions);
    // What was saved over is kept.
    QCOMPARE(fileVersions::of(path(), m_folder->path("backup")).size(), 1);
}

void tst_order::newOrderHasNoFile()
{
    m_window->commandZpNew(true);
    QCOMPARE(m_shown->questions, QStringList());
    QCOMPARE(view().lines()->rowCount(), 0);
    QCOMPARE(order().options.value("ORDER_DATE"), QDate::currentDate().toString("dd.MM.yyyy"));
    m_window->appendToOrder({"317121-03.03-00008"}, 3);
    QCOMPARE(view().lines()->rowCount(), 1);
    // Without a path it is never asked about; its copy is offered at the next start.
    m_window->commandZpNew(true);
    QCOMPARE(m_shown->questions, QStringList());
    m_window = nullptr;
    m_window = std::make_unique<MainWindow>(programData::instance());
    m_shown->nextAnswer = answer::yes;
    m_window->offerRecovery();
    QCOMPARE(m_shown->questions.size(), 1);
    QCOMPARE(view().lines()->rowCount(), 1);
    m_window->commandZpSave(true);
    QCOMPARE(m_shown->proposed, m_folder->path("_zp/zp_new.xml"));
}

void tst_order::saveAsWritesTheReport()
{
    m_shown->file = m_folder->path("orders/other.xml");
    edit(0, orderTree::nameColumn, QString("EDITED"));
    m_window->commandZpSaveAs(true);
    QCOMPARE(m_window->document().path(), m_shown->file);
    QVERIFY(testSupport::read(m_folder->path("orders/other.html")).contains("EDITED"));
    QVERIFY(!testSupport::read(path()).contains("EDITED"));
    // Where nothing can be written, everything stays as it was.
    edit(0, orderTree::nameColumn, QString("AGAIN"));
    m_shown->file = m_folder->path("orders/other.xml/below.xml");
    m_window->commandZpSaveAs(true);
    QCOMPARE(m_shown->errors.size(), 1);
    QVERIFY(m_window->isModified());
    QCOMPARE(m_window->stack().undoCount(), size_t(1));
}

void tst_order::changedOnDisk_data()
{
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("onDisk");
    QTest::addColumn<QString>("here");
    QTest::newRow("cancel") << QVariant() << "99"
                            << "77";
    QTest::newRow("reload") << QVariant(0) << "99"
                            << "99";
    QTest::newRow("overwrite") << QVariant(1) << "77"
                               << "77";
    QTest::newRow("save as") << QVariant(2) << "99"
                             << "77";
}

void tst_order::changedOnDisk()
{
    edit(0, orderTree::quantityColumn, 77);
    kiv_mat_zpStruct other;
    QCOMPARE(loadZp(path(), &other), 0);
    other.orderItems.items[0]->quantity = "99";
    other.attentions += " and longer";
    QCOMPARE(saveXmlNoEvents(path(), &other), 0);
    QFETCH(QVariant, input);
    m_shown->input = input;
    m_shown->file = m_folder->path("elsewhere.xml");
    m_window->commandZpSave(true);
    QCOMPARE(m_shown->questions.size(), 1);
    QCOMPARE(loadZp(path(), &other), 0);
    kiv_mat_zpStruct saved;
    QCOMPARE(loadZp(path(), &saved), 0);
    QTEST(saved.orderItems.items[0]->quantity, "onDisk");
    QTEST(order().orderItems.items[0]->quantity, "here");
}

void tst_order::closingAsks_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<QString>("onDisk");
    QTest::newRow("no") << int(answer::no) << "25";
    QTest::newRow("yes") << int(answer::yes) << "77";
}

void tst_order::closingAsks()
{
    QFETCH(int, given);
    m_window->show();
    edit(0, orderTree::quantityColumn, 77);
    m_shown->nextAnswer = answer(given);
    QVERIFY(m_window->close());
    QCOMPARE(m_shown->questions.size(), 1);
    QVERIFY(m_shown->questions[0].startsWith("Save order [  "));
    kiv_mat_zpStruct saved;
    QCOMPARE(loadZp(path(), &saved), 0);
    QTEST(saved.orderItems.items[0]->quantity, "onDisk");
    m_window = std::make_unique<MainWindow>(programData::instance());
    m_window->offerRecovery();
    QCOMPARE(m_shown->questions.size(), 1);
}

using slot = void (MainWindow::*)(bool);
using field = QString orderItemStruct::*;
Q_DECLARE_METATYPE(slot)
Q_DECLARE_METATYPE(field)

void tst_order::bulkEdits_data()
{
    QTest::addColumn<slot>("command");
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<field>("member");
    QTest::addColumn<QString>("set");
    const QDate date = QDate::currentDate().addDays(9);
    QTest::newRow("Set all quantities") << slot(&MainWindow::commandZpAllQuantities) << QVariant(12)
                                        << field(&orderItemStruct::quantity) << "12";
    QTest::newRow("Set all dates") << slot(&MainWindow::commandZpAllDates) << QVariant(date)
                                   << field(&orderItemStruct::wait) << date.toString("dd.MM.yyyy");
    QTest::newRow("Set all descriptions") << slot(&MainWindow::commandZpAllDescriptions) << QVariant(QString("x"))
                                          << field(&orderItemStruct::description) << "x";
    QTest::newRow("Set all RoHS") << slot(&MainWindow::commandZpAllRoHS) << QVariant(0)
                                  << field(&orderItemStruct::rohsRequired) << "NIE";
    QTest::newRow("Set all units") << slot(&MainWindow::commandZpAllUnits) << QVariant(2)
                                   << field(&orderItemStruct::unit) << "tape";
    QTest::newRow("Set all targets") << slot(&MainWindow::commandZpAllTargets) << QVariant(3)
                                     << field(&orderItemStruct::target) << "315-00032026";
}

void tst_order::bulkEdits()
{
    QFETCH(slot, command);
    QFETCH(field, member);
    QFETCH(QString, set);
    const QStringList before = column(member);
    m_shown->nextAnswer = answer::yes;
    (m_window.get()->*command)(true); // cancelled
    QCOMPARE(m_window->stack().undoCount(), size_t(0));
    QCOMPARE(m_shown->questions.last(), QString(QTest::currentDataTag()));
    QFETCH(QVariant, input);
    m_shown->input = input;
    (m_window.get()->*command)(true);
    QCOMPARE(column(member), QVector<QString>(before.size(), set).toList());
    QCOMPARE(m_window->stack().undoCount(), size_t(1));
    m_window->commandZpUndo(true);
    QCOMPARE(column(member), before);
    // The order's report follows.
    m_window->commandZpRedo(true);
    m_window->refreshPreview();
    QVERIFY(m_window->document().report().contains(member == &orderItemStruct::unit ? "taśma" : set)
            || member == &orderItemStruct::rohsRequired || member == &orderItemStruct::unit);
}

void tst_order::selectedLinesOnly()
{
    QItemSelectionModel *selection = view().linesView()->selectionModel();
    for (int row : {1, 3})
        selection->select(view().lines()->index(row, 2), QItemSelectionModel::Select);
    m_shown->input = 1; // the quantity, and "selected lines"
    m_window->commandZpAllQuantities(true);
    QStringList expected = column(&orderItemStruct::quantity);
    QCOMPARE(expected[1] + expected[3], QString("11"));
    QVERIFY(expected[0] != "1" && expected[2] != "1");
}

void tst_order::specialLines()
{
    const int before = view().lines()->rowCount();
    const auto last = [this] { return order().orderItems.items.back().get(); };
    QStringList added;
    while (m_shown->informations.isEmpty() && added.size() < 12) {
        m_window->commandAddShipment(true);
        added.append(last()->ktm);
    }
    QCOMPARE(m_shown->informations.last(), QString("In Do can be only ten entries SHIPMENT"));
    QCOMPARE(column(&orderItemStruct::ktm).filter("SRV-000.10").size(), 10);
    QCOMPARE(last()->description, QString("SHIPMENT"));
    QCOMPARE(last()->wait, QDate::currentDate().toString("dd.MM.yyyy"));
    QCOMPARE(last()->index, QString::number(view().lines()->rowCount()));
    while (action("undo")->isEnabled())
        m_window->commandZpUndo(true);
    QCOMPARE(view().lines()->rowCount(), before);

    m_shown->informations.clear();
    m_window->commandAddPCB(true);
    QVERIFY(m_shown->informations.value(0).contains("Only one PCB order") || last()->ktm == "SRV-001.100");
    m_shown->informations.clear();
    m_window->commandAddPCB(true);
    QCOMPARE(m_shown->informations.value(0).simplified(), QString("Only one PCB order"));

    // What is refused does not keep the others out; all of them are one step.
    m_shown->informations.clear();
    const QString shipment = column(&orderItemStruct::ktm).filter("SRV-000.10").value(0);
    const QString known = column(&orderItemStruct::ktm).first();
    const size_t steps = m_window->stack().undoCount();
    const int lines = view().lines()->rowCount();
    m_window->appendToOrder({known, shipment, "no such KTM", known}, 5);
    QCOMPARE(m_shown->informations, QStringList("In Do can be only one entry SHIPMENT of KTM: " + shipment));
    QCOMPARE(view().lines()->rowCount(), lines + 2);
    QCOMPARE(m_window->stack().undoCount(), steps + 1);
    QCOMPARE(last()->quantity, QString("5"));
    QCOMPARE(last()->wait, QDate::currentDate().addDays(14).toString("dd.MM.yyyy"));
}

void tst_order::deleteAndSort()
{
    const QStringList names = column(&orderItemStruct::name);
    for (int row : {0, 2, 20})
        view().linesView()->selectionModel()->select(view().lines()->index(row, 1), QItemSelectionModel::Select);
    m_window->commandDeleteLines(true);
    QCOMPARE(column(&orderItemStruct::name).size(), names.size() - 3);
    QCOMPARE(column(&orderItemStruct::name).first(), names[1]);
    QCOMPARE(column(&orderItemStruct::index).first(), QString("1"));
    m_window->commandZpUndo(true);
    QCOMPARE(column(&orderItemStruct::name), names);
    m_shown->nextAnswer = answer::yes;
    m_window->commandZpDeleteAll(true);
    QCOMPARE(view().lines()->rowCount(), 0);
    QVERIFY(!action("allDates")->isEnabled());
    QVERIFY(action("allDates")->toolTip().contains("no lines"));
    m_window->commandZpUndo(true);

    QHeaderView *header = view().linesView()->header();
    m_window->resize(1200, 800);
    m_window->show();
    const QPoint place(header->sectionViewportPosition(orderTree::nameColumn) + 30, 5);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QStringList sorted = names;
    sorted.sort();
    QCOMPARE(column(&orderItemStruct::name), sorted);
    const size_t steps = m_window->stack().undoCount();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_window->stack().undoCount(), steps);
    m_window->commandZpUndo(true);
    QCOMPARE(column(&orderItemStruct::name), names);
}

void tst_order::pricesAndSums()
{
    const QStringList prices = column(&orderItemStruct::price);
    m_window->commandZpClearPrices(true);
    QCOMPARE(column(&orderItemStruct::price).count("0.00"), view().lines()->rowCount());
    m_window->commandZpAllSum(true);
    QVERIFY2(m_shown->informations.last().contains("0.00 [ PLN ]"), qPrintable(m_shown->informations.last()));
    m_shown->nextAnswer = answer::yes;
    m_window->commandZpRefreshPrices(true);
    QVERIFY(!column(&orderItemStruct::price).contains("0.00"));
    m_window->commandZpUndo(true);
    m_window->commandZpUndo(true);
    QCOMPARE(column(&orderItemStruct::price), prices);
}

void tst_order::copyAndFind()
{
    view().linesView()->selectionModel()->select(view().lines()->index(0, orderTree::nameColumn),
                                                 QItemSelectionModel::Select);
    view().linesView()->selectionModel()->select(view().lines()->index(1, orderTree::quantityColumn),
                                                 QItemSelectionModel::Select);
    m_window->commandCopyCells(true);
    QCOMPARE(QApplication::clipboard()->text(), QString("STM32F103C8T6\n25"));
    QApplication::clipboard()->setText("5\nfive");
    view().linesView()->clearSelection();
    view().linesView()->setCurrentIndex(view().lines()->index(0, orderTree::quantityColumn));
    view().linesView()->clearSelection();
    m_window->commandPasteCells(true);
    QCOMPARE(order().orderItems.items[0]->quantity, QString("5"));
    QVERIFY(m_shown->listed.contains("five"));

    m_shown->input = QString("bezpiecznik");
    m_window->commandFind(true);
    QCOMPARE(view().linesView()->currentIndex(), view().lines()->index(15, orderTree::descriptionColumn));

    const QString other = m_folder->path("other.xml");
    QVERIFY(QFile::copy(path(), other));
    QString reason;
    QVERIFY(
        orderOperations::appendToFile(other, view().records({2}), {1, 5}, programData::instance().config(), &reason));
    kiv_mat_zpStruct target;
    QCOMPARE(loadZp(other, &target), 0);
    QCOMPARE(target.orderItems.items.back()->name, QString("ABLS-8.000MHZ-B4-T"));
    QCOMPARE(target.orderItems.items.back()->ktm, QString());
    QCOMPARE(target.orderItems.items.back()->index, QString("22"));
    QVERIFY(!orderOperations::appendToFile(m_folder->write("bad.xml", "bad"), {}, {}, programData::instance().config(),
                                           &reason));
    QCOMPARE(testSupport::read(m_folder->path("bad.xml")), QByteArray("bad"));
}

// Without the mouse: words, arrows, Enter.
void tst_order::addMaterials()
{
    m_window->show();
    m_window->commandAddMaterial(true);
    auto *dialog = m_window->findChild<addMaterialDialog *>();
    auto *words = dialog->findChild<QLineEdit *>("words");
    const int before = view().lines()->rowCount();
    QTest::keyClicks(words, "stm32f103 ");
    const auto *found = dialog->findChild<QTreeView *>("found")->model();
    QVERIFY(found->rowCount() >= 1);
    QCOMPARE(found->index(0, 0).data().toString(), QString("STM32F103C8T6"));
    dialog->findChild<QSpinBox *>("quantity")->setValue(7);
    QTest::keyClick(words, Qt::Key_Down);
    QTest::keyClick(words, Qt::Key_Up);
    QTest::keyClick(words, Qt::Key_Return);
    QCOMPARE(view().lines()->rowCount(), before + 1);
    QCOMPARE(order().orderItems.items.back()->quantity, QString("7"));
    words->setText("nothing has these words");
    QCOMPARE(found->rowCount(), 0);
    QTest::keyClick(words, Qt::Key_Return);
    QCOMPARE(view().lines()->rowCount(), before + 1);
    m_window->commandZpUndo(true);
    QCOMPARE(view().lines()->rowCount(), before);
    dialog->close();
}

void tst_order::messageTemplate()
{
    const QString path =
        m_folder->write("_e-mail/msg_template.htm", "<html><body><p>Order <b>{Do_no}</b></p></body></html>");
    const QByteArray before = testSupport::read(path);
    emailTempWindow looked;
    looked.accept();
    QCOMPARE(testSupport::read(path), before);
    emailTempWindow window;
    auto *edit = window.findChild<QTextEdit *>("text");
    edit->append(QString::fromUtf8("Dziękuję"));
    window.accept();
    const QByteArray after = testSupport::read(path);
    QVERIFY2(after.contains("<b>{Do_no}</b>") && after.contains("Dziękuję"), after);
    // It can be edited again.
    emailTempWindow again;
    QVERIFY(again.findChild<QTextEdit *>("text")->toPlainText().startsWith("Order {Do_no}"));
}

void tst_order::attentions()
{
    const QString before = view().attentions()->toPlainText();
    view().replaceAttentions("<p>in <b>bold</b></p>");
    QVERIFY(m_window->isModified());
    view().takeAttentions();
    QVERIFY2(order().attentions.contains("<b>bold</b>"), qPrintable(order().attentions));
    QVERIFY(!order().attentions.contains("style="));
    view().attentions()->undo();
    QCOMPARE(view().attentions()->toPlainText(), before);
    // The order follows, although the editor is as it was.
    view().takeAttentions();
    QVERIFY(!order().attentions.contains("<b>bold</b>"));
}

void tst_order::options()
{
    const auto value = [this](int row) {
        return static_cast<myItem::myItemStandard *>(view().options()->item(row, 1));
    };
    view().options()->setValue(value(0), QString("ZP/99"));
    QCOMPARE(order().options.value("ORDER_NUMBER"), QString("ZP/99"));
    // A person brings the telephone along, and takes it back.
    optionStruct *author = order().options.findOption("PERSON_AUTHOR");
    const QString telephone = author->value2;
    view().options()->setValue(value(3), QString("Paweł Ćwikła"));
    QCOMPARE(author->value1, QString("Paweł Ćwikła"));
    QVERIFY(author->value2 != telephone && !author->value2.isEmpty());
    view().options()->setValue(value(3), QString("Somebody Else"));
    QCOMPARE(author->value2, QString());
    m_window->commandZpUndo(true);
    m_window->commandZpUndo(true);
    QCOMPARE(author->value2, telephone);
    m_window->commandZpUndo(true);
    QCOMPARE(order().options.value("ORDER_NUMBER"), QString("ZP/12/2026"));
}

void tst_order::locked()
{
    action("edit")->setChecked(false);
    QVERIFY(view().attentions()->isReadOnly());
    QVERIFY(!action("allUnits")->isEnabled());
    QVERIFY(action("allUnits")->toolTip().contains("locked"));
    QVERIFY(action("save")->isEnabled() && action("allSum")->isEnabled());
    const int lines = view().lines()->rowCount();
    m_window->appendToOrder({"317121-03.03-00008"}, 1);
    QCOMPARE(view().lines()->rowCount(), lines);
    action("edit")->setChecked(true);
    QVERIFY(action("allUnits")->isEnabled());
}

void tst_order::recovered()
{
    const QString folder = m_folder->path("recovery");
    order().orderItems.items[0]->name = "UNSAVED";
    {
        orderRecovery normal(folder);
        QVERIFY(normal.store(order(), path()));
        // The copy of a running program is not taken from it.
        QVERIFY(orderRecovery(folder).takeOver().file.isEmpty());
    }
    QVERIFY(orderRecovery(folder).takeOver().file.isEmpty());
    {
        orderRecovery left(folder);
        QVERIFY(left.store(order(), path()));
        left.leave();
    }
    orderRecovery next(folder);
    const orderRecovery::copy copy = next.takeOver();
    QCOMPARE(copy.order, path());
    QVERIFY(testSupport::read(copy.file).contains("UNSAVED"));
}

void tst_order::otherProgram()
{
    QCOMPARE(m_shown->listed, QString());
    // A lock of a process that is no more is void.
    m_shown->file = m_folder->path("second.xml");
    QVERIFY(QFile::copy(path(), m_shown->file));
    m_folder->write(".second.xml.lock", "999999999\nKivZP\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    m_window->commandZpOpen(true);
    QCOMPARE(m_shown->listed, QString());
    m_shown->file = m_folder->path("third.xml");
    QVERIFY(QFile::copy(path(), m_shown->file));
    QLockFile other(m_folder->path(".third.xml.lock"));
    QVERIFY(other.lock());
    m_window->commandZpOpen(true);
    QVERIFY(m_shown->listed.contains("third.xml"));
}

void tst_order::versions()
{
    const QString backup = m_folder->path("versions");
    for (int i = 0; i < 5; ++i) {
        m_folder->write("a.xml", QByteArray::number(i));
        QVERIFY(fileVersions::keep(m_folder->path("a.xml"), backup, 3));
    }
    m_folder->write("b/a.xml", "other");
    QVERIFY(fileVersions::keep(m_folder->path("b/a.xml"), backup, 3));
    QByteArray kept;
    for (const QString &version : fileVersions::of(m_folder->path("a.xml"), backup))
        kept += testSupport::read(version);
    QCOMPARE(kept, QByteArray("432"));
    QVERIFY(!fileVersions::keep(m_folder->path("a.xml"), m_folder->path("a.xml"), 3));
    m_window->commandArchiveDD(true);
    m_window->commandArchiveDatabase(true);
    QCOMPARE(QDir(m_folder->path("backup")).entryList({"*.archive.*"}).size(), 5);
}

void tst_order::configuration()
{
    configWindow window(programData::instance());
    window.showNow();
    const auto option = [&window](const QString &key) {
        for (int row = 0; row < window.options()->rowCount(); ++row)
            if (window.options()->item(row, 1)->whatsThis() == key)
                return static_cast<myItem::myItemStandard *>(window.options()->item(row, 1));
        return static_cast<myItem::myItemStandard *>(nullptr);
    };
    const QSignalSpy announced(&window, &configWindow::configChange);
    window.options()->setValue(option("FONT_SIZE"), 20);
    window.options()->setValue(option("LANGUAGE"), QString("en"));
    window.commandDefault(true);
    QCOMPARE(option("FONT_SIZE")->text(), QString("14"));
    window.commandUndo(true);
    window.options()->setValue(option("PATH_BACKUP"), m_folder->path("_config/kiv_mat_config.xml/x"));
    window.commandSave(true);
    QCOMPARE(m_shown->errors.size(), 1);
    QCOMPARE(announced.count(), 0);
    window.commandUndo(true);
    window.persons()->setValue(static_cast<myItem::myItemStandard *>(window.persons()->item(0, 4)),
                               QString("New Name"));
    window.commandSave(true);
    QCOMPARE(announced.count(), 1);
    QVERIFY(m_shown->informations.value(0).contains("start"));
    QVERIFY(!window.action("undo")->isEnabled());
    configStruct saved;
    QVERIFY(saved.load(m_folder->path("_config/kiv_mat_config.xml")));
    QCOMPARE(saved.options.value("FONT_SIZE"), QString("20"));
    QCOMPARE(saved.persons.items[0]->name, QString("New Name"));
    QCOMPARE(programData::instance().config().options.value("FONT_SIZE"), QString("20"));
    // The order's lines do not look at the configuration that went.
    view().refreshLooks();
    // Sorting ends the history, not the changes.
    window.persons()->setValue(static_cast<myItem::myItemStandard *>(window.persons()->item(0, 4)), QString("Newer"));
    window.persons()->sort(4);
    m_shown->nextAnswer = answer::cancel;
    window.show();
    QVERIFY(!window.close());
    m_shown->nextAnswer = answer::no;
    QVERIFY(window.close());
}

KIVZP_TEST(tst_order)
#include "tst_order.moc"

// The database window and the merge view on the sample warehouse.
#include "testSupport.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "database/Kiv_mat_databaseMergeWindow.h"
#include "database/Kiv_mat_databaseWindow.h"
#include "tree/myTreeView.h"
#include "util/fileVersions.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QTreeWidget>

class tst_databaseWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void groupsFirst();
    void filters();
    void editsReachTheIndexes();
    void groupsAndCpv();
    void copyCutPaste();
    void closingWithoutSaving();
    void saving();
    void listingIsOneStep();
    void mergeView();
    void updateDeletesWhatIsMarked();
    void toOrder();

private:
    kiv_mat_databaseStruct &database() { return m_window->rows().database(); }
    materialStruct *first() { return database().groups.front()->items.front().get(); }
    void search(const char *words)
    {
        m_window->findChild<QLineEdit *>("words")->setText(words);
        QTest::keyClick(m_window->findChild<QLineEdit *>("words"), Qt::Key_Return);
    }
    // As one text, in file order.
    QByteArray content()
    {
        saveXmlNoEvents(m_folder->path("content.xml"), &database());
        return testSupport::read(m_folder->path("content.xml"));
    }

    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
    std::unique_ptr<Kiv_mat_databaseWindow> m_window;
};

void tst_databaseWindow::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    for (const char *folder : {"_config", "_files"})
        testSupport::copyFolder(testSupport::source(folder), m_folder->path(folder));
    programData &known = programData::instance();
    known.clear();
    known.loadConfiguration();
    known.loadFirm();
    known.loadDatabase(programData::warehouse);
    m_window = std::make_unique<Kiv_mat_databaseWindow>(programData::instance(), programData::warehouse);
    m_window->show();
    m_window->commandEdit(true);
}

void tst_databaseWindow::cleanup()
{
    m_window.reset();
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_databaseWindow::groupsFirst()
{
    QVERIFY(m_window->windowTitle().startsWith("Database of material ["));
    QCOMPARE(m_window->model()->rowCount(), int(database().groups.size()));
    QCOMPARE(m_window->model()->item(0)->rowCount(), 0);
    QVERIFY(m_window->model()->hasChildren(m_window->model()->index(0, 0)));
    m_window->commandExpand(true);
    QCOMPARE(m_window->model()->item(0)->rowCount(), int(database().groups.front()->items.size()));
    const QStandardItem *status = m_window->model()->item(0)->child(0, databaseTree::statusColumn);
    QCOMPARE(status->whatsThis(), first()->information.status);
    m_window->commandEdit(false);
    QVERIFY(m_window->windowTitle().contains("Editing locked"));
}

void tst_databaseWindow::filters()
{
    const int all = database().materialCount();
    const auto count = [this](const QString &status) {
        int found = 0;
        for (const auto &group : database().groups)
            for (const auto &material : group->items)
                found += status.isEmpty() || material->information.status == status;
        return found;
    };
    m_window->action("green")->trigger();
    QCOMPARE(m_window->shownCount(), count("ZIELONY"));
    // Only one status at a time; the active one again shows all.
    m_window->action("gray")->trigger();
    QVERIFY(!m_window->action("green")->isChecked());
    QCOMPARE(m_window->shownCount(), count("SZARY"));
    // What is fetched later is filtered when it comes.
    m_window->commandExpand(true);
    int visible = 0;
    for (int g = 0; g < m_window->model()->rowCount(); ++g)
        for (int r = 0; r < m_window->model()->item(g)->rowCount(); ++r)
            visible += !m_window->view()->isRowHidden(r, m_window->model()->index(g, 0));
    QCOMPARE(visible, count("SZARY"));
    m_window->action("gray")->trigger();
    QCOMPARE(m_window->shownCount(), all);

    search("rezystor 0603 value:10k");
    QVERIFY(m_window->shownCount() > 0 && m_window->shownCount() < 10);
    search("");
    QCOMPARE(m_window->shownCount(), all);
}

void tst_databaseWindow::editsReachTheIndexes()
{
    const ktmIndex &known = programData::instance().materials();
    materialStruct *material = first();
    const QString ktm = material->d_ktm;
    const QByteArray before = content();
    m_window->selectMaterial(material);
    auto *cell = static_cast<myItem::myItemStandard *>(
        m_window->rows().find(material)->parent()->child(0, databaseTree::ktmColumn));
    m_window->model()->setValue(cell, QString("ABCDEF-01.01-00001"));
    QVERIFY(!known.find(ktm) && known.find("ABCDEF-01.01-00001")->material == material);
    search("ktm:ABCDEF-01.01-00001");
    QCOMPARE(m_window->shownCount(), 1);
    QVERIFY(m_window->isModified());
    m_window->commandUndo(true);
    QVERIFY(known.find(ktm));
    // What must not be stored is refused in the cell, too.
    for (const QString &wrong : {QString("wrong"), database().groups[1]->items[0]->d_ktm})
        m_window->model()->setValue(cell, wrong);
    QTRY_COMPARE(m_shown->errors, QStringList({"Ktm syntax error", "Another material has this KTM"}));
    QCOMPARE(material->d_ktm, ktm);
    m_window->selectMaterial(material);
    m_window->commandDeleteMaterials(true);
    QVERIFY(!known.find(ktm));
    QCOMPARE(database().materialCount(), known.size());
    m_window->commandUndo(true);
    QCOMPARE(known.find(ktm)->material, first());
    QCOMPARE(content(), before);
}

void tst_databaseWindow::groupsAndCpv()
{
    m_shown->input = database().groups.front()->name;
    m_window->commandAddGroup(true);
    QCOMPARE(m_shown->informations, QStringList("Group already exists"));
    m_shown->input = QString("New group");
    m_window->commandAddGroup(true);
    QCOMPARE(database().groups.back()->name, QString("New group"));
    m_shown->input = QString("not a code");
    m_window->commandEditCpv(true);
    QCOMPARE(m_shown->errors, QStringList("CPV syntax error"));
    m_shown->input = QString("31712114-1");
    m_window->commandEditCpv(true);
    QCOMPARE(database().groups.back()->cpv, QString("31712114-1"));
    m_window->commandUndo(true);
    m_window->commandUndo(true);
    QVERIFY(database().groups.back()->name != "New group");
}

void tst_databaseWindow::copyCutPaste()
{
    const QByteArray before = content();
    materialStruct *material = first();
    const QString ktm = material->d_ktm;
    m_window->selectMaterial(material);
    m_window->commandCopyMaterials(true);
    m_window->commandPasteMaterials(true);
    // A KTM stands for one material.
    QCOMPARE(database().groups.front()->items.back()->d_ktm, QString());
    QCOMPARE(database().groups.front()->items.back()->d_name, material->d_name);
    m_window->commandUndo(true);
    m_window->selectMaterial(material);
    m_window->commandCutMaterials(true);
    m_window->view()->setCurrentIndex(m_window->model()->index(1, 0));
    m_window->view()->clearSelection();
    m_window->commandPasteMaterials(true);
    QCOMPARE(database().groups[1]->items.back()->d_ktm, ktm);
    QCOMPARE(programData::instance().materials().find(ktm)->group, database().groups[1].get());
    m_window->commandUndo(true);
    m_window->commandUndo(true);
    QCOMPARE(content(), before);
}

void tst_databaseWindow::closingWithoutSaving()
{
    const QString ktm = first()->d_ktm;
    const QByteArray file = testSupport::read(m_folder->path("_files/db_warehouse.xml"));
    m_window->selectMaterial(first());
    m_window->commandDeleteMaterials(true);
    m_shown->nextAnswer = prompts::answer::no;
    QVERIFY(m_window->close());
    QCOMPARE(m_shown->questions, QStringList("Save database"));
    QVERIFY(programData::instance().materials().find(ktm));
    QCOMPARE(testSupport::read(m_folder->path("_files/db_warehouse.xml")), file);
    QVERIFY(!m_window->action("undo")->isEnabled());
}

void tst_databaseWindow::saving()
{
    const QString ktm = first()->d_ktm;
    m_window->selectMaterial(first());
    m_window->commandDeleteMaterials(true);
    m_window->commandSave(true);
    QVERIFY(!m_window->isModified() && !m_window->action("undo")->isEnabled());
    kiv_mat_databaseStruct saved;
    QCOMPARE(loadDatabase(m_folder->path("_files/db_warehouse.xml"), &saved), 0);
    QCOMPARE(saved.materialCount(), database().materialCount());
    QVERIFY(saved.update.startsWith(QDate::currentDate().toString("yyyy.MM.dd")));
    // Another program's work is not overwritten without a word.
    saved.groups.front()->name = "written elsewhere";
    QCOMPARE(saveXmlNoEvents(m_folder->path("_files/db_warehouse.xml"), &saved), 0);
    m_window->save();
    QCOMPARE(m_shown->questions.size(), 1);
    m_shown->input = 0;
    m_window->save();
    QCOMPARE(database().groups.front()->name, QString("written elsewhere"));
    QVERIFY(!fileVersions::of(m_folder->path("_files/db_warehouse.xml"), programData::instance().config().backupPath())
                 .isEmpty());
}

void tst_databaseWindow::listingIsOneStep()
{
    const QByteArray before = content();
    const QString stock = first()->d_inWarehouse;
    m_shown->file = m_folder->write("stock.txt", "Towar: " + first()->d_ktm.toUtf8()
                                                     + " x\nIlosc: 1 234\nWartosc: 2468,00\n"
                                                       "Towar: ABCDEF-01.01-00001 y\nIlosc: 1\nWartosc: 1\n");
    // The list of changes waits for its answer.
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->accept();
    });
    answer.start(10);
    m_window->commandParse(true);
    QCOMPARE(first()->d_inWarehouse, QString("1234"));
    QCOMPARE(first()->d_averagePrice, QString("2.00"));
    QVERIFY2(m_shown->listed.contains("Does not exist in databases"), qPrintable(m_shown->listed));
    m_window->commandUndo(true);
    QCOMPARE(content(), before);
}

void tst_databaseWindow::mergeView()
{
    const QString path = m_folder->path("other.xml");
    QVERIFY(QFile::copy(m_folder->path("_files/db_warehouse.xml"), path));
    Kiv_mat_databaseMergeWindow merge(m_window.get());
    QVERIFY(merge.open(path));
    QCOMPARE(m_shown->informations, QStringList("All materials in database"));
    kiv_mat_databaseStruct other;
    QCOMPARE(loadDatabase(path, &other), 0);
    other.groups[0]->items[0]->d_price = "77.00";
    other.groups[0]->items[0]->d_description = "other";
    other.groups[1]->items[0]->d_ktm = "ADDED-KTM";
    QCOMPARE(saveXmlNoEvents(path, &other), 0);
    QVERIFY(merge.open(path));
    QCOMPARE(merge.model()->rowCount(), 2);
    QCOMPARE(merge.model()->headerData(1, Qt::Horizontal).toString(), QString("Value [orgin]"));

    // One field of the changed material, then all that is left; nothing is deleted.
    const QByteArray before = content();
    const int count = database().materialCount();
    QStandardItem *changed = merge.model()->item(0);
    for (int row = 0; row < changed->rowCount(); ++row)
        if (changed->child(row, 2)->text() == "77.00")
            merge.view()->selectionModel()->select(changed->child(row)->index(), QItemSelectionModel::Select);
    merge.commandSet(true);
    QCOMPARE(first()->d_price, QString("77.00"));
    QVERIFY(first()->d_description != "other");
    merge.view()->clearSelection();
    merge.commandSet(true);
    QCOMPARE(first()->d_description, QString("other"));
    QVERIFY(programData::instance().materials().find("ADDED-KTM"));
    QCOMPARE(database().materialCount(), count + 1);
    QCOMPARE(merge.model()->rowCount(), 0);
    m_window->commandUndo(true);
    m_window->commandUndo(true);
    QCOMPARE(content(), before);
    QVERIFY(!merge.open(m_folder->write("bad.xml", "bad")));
    QVERIFY(m_shown->listed.contains("bad.xml</b>"));
}

void tst_databaseWindow::updateDeletesWhatIsMarked()
{
    const QString path = m_folder->path("other.xml");
    const QString deleted = first()->d_ktm;
    const QString kept = database().groups[0]->items[1]->d_ktm;
    kiv_mat_databaseStruct other;
    QCOMPARE(loadDatabase(database().filePath, &other), 0);
    other.groups[0]->items.erase(other.groups[0]->items.begin(), other.groups[0]->items.begin() + 2);
    QCOMPARE(saveXmlNoEvents(path, &other), 0);
    kiv_mat_zpStruct order;
    order.initialise(programData::instance().config());
    for (const QString &ktm : {deleted, kept})
        order.orderItems.append(std::make_unique<orderItemStruct>())->ktm = ktm;
    m_window->openOrder = [&order]() -> const kiv_mat_zpStruct & { return order; };

    m_shown->file = path;
    QTimer answer;
    connect(&answer, &QTimer::timeout, this, [&kept] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        for (QTreeWidgetItem *item : dialog->findChild<QTreeWidget *>()->findItems(kept, Qt::MatchExactly))
            item->setCheckState(0, Qt::Unchecked);
        dialog->accept();
    });
    answer.start(10);
    m_window->commandUpdate(true);
    const ktmIndex &known = programData::instance().materials();
    QVERIFY(!known.find(deleted) && known.find(kept));
    // In the list of the deleted ones and in that of their uses.
    QCOMPARE(m_shown->listed.count(deleted), 2);
    QCOMPARE(m_shown->listed.count(kept), 0);
}

void tst_databaseWindow::toOrder()
{
    const QSignalSpy sent(m_window.get(), &Kiv_mat_databaseWindow::appendToOrder);
    m_window->selectMaterial(first());
    m_window->commandToOrder(true);
    m_shown->input = 12;
    m_window->commandToOrderN(true);
    QCOMPARE(sent.count(), 2);
    QCOMPARE(sent.last().at(0).toStringList(), QStringList(first()->d_ktm));
    QCOMPARE(sent.last().at(1).toUInt(), 12u);
}

KIVZP_TEST(tst_databaseWindow)
#include "tst_databaseWindow.moc"

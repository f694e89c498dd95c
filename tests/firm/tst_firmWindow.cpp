// The window of the firm register: edited, renamed in the materials, saved.
#include "testSupport.h"

#include "data/loaders.h"
#include "data/programData.h"
#include "firm/firmWindow.h"
#include "tree/myTreeView.h"
#include "util/fileVersions.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>

using namespace firmOperations;
using answer = prompts::answer;

// Asks as the program does, with the editor of the cell still open.
class modalPrompts : public testSupport::recordingPrompts
{
public:
    std::optional<int> decide(const QString &html, const QStringList &buttons) override
    {
        QDialog box(QApplication::activeWindow());
        box.setModal(true);
        QTimer::singleShot(50, &box, &QDialog::accept);
        box.exec();
        return recordingPrompts::decide(html, buttons);
    }
};

class tst_firmWindow : public QObject
{
    Q_OBJECT
public slots:
    void opened(const QUrl &url) { m_opened.append(url.toString()); }
private slots:
    void init();
    void cleanup();
    void editedAndSaved();
    void usedFirmsStay();
    void renamedEverywhere_data();
    void renamedEverywhere();
    void typedNameAsksOnce();
    void pastedNamesAskOnce();
    void sortingEndsTheHistory();
    void closingAsks_data();
    void closingAsks();
    void changedOnDisk_data();
    void changedOnDisk();
    void locked();
    void unreadable();
    void unwritable();
    void found();
    void homePageOpens();
    void taxNumberIsMarked();

private:
    enum column
    {
        name,
        fullName,
        status,
        homePageColumn = 4,
        nip = 6
    };
    myItem::myItemStandard *cell(int row, int at, firmKind kind = manufacturer)
    {
        return static_cast<myItem::myItemStandard *>(m_window->model(kind)->item(row, at));
    }
    void edit(int row, int at, const QString &text, firmKind kind = manufacturer)
    {
        m_window->model(kind)->setValue(cell(row, at, kind), text);
    }
    QString path() { return m_folder->path("_files/firms.xml"); }
    QString database() { return m_folder->path("_files/db_warehouse.xml"); }
    QString onDisk()
    {
        kiv_mat_firmStruct saved;
        return loadFirm(path(), &saved) == 0 ? saved.manufacturers.items[0]->name : QString();
    }
    static int uses(const QString &firm, firmKind kind = manufacturer)
    {
        std::vector<const kiv_mat_databaseStruct *> all;
        for (int i = 0; i < programData::databaseCount; ++i)
            all.push_back(&programData::instance().database(programData::databaseKind(i)));
        return int(usesOf({firm}, kind, all).size());
    }

    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
    std::unique_ptr<firmWindow> m_window;
    QStringList m_opened;
};

void tst_firmWindow::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    for (const char *folder : {"_config", "_files"})
        testSupport::copyFolder(testSupport::source(folder), m_folder->path(folder));
    programData &known = programData::instance();
    known.loadConfiguration();
    known.config().backupPath();
    known.config().options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
    known.loadFirm();
    known.loadDatabase(programData::warehouse);
    QCOMPARE(m_shown->listed, QString());
    m_window = std::make_unique<firmWindow>(programData::instance());
    m_window->showNow();
    m_window->action("edit")->setChecked(true);
}

void tst_firmWindow::cleanup()
{
    m_window.reset();
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_firmWindow::editedAndSaved()
{
    QCOMPARE(m_window->windowTitle(), QString("List of manufacturers and suppliers"));
    const int before = m_window->model(supplier)->rowCount();
    m_window->findChild<QTabWidget *>("pages")->setCurrentIndex(supplier);
    m_window->commandAdd(true);
    QCOMPARE(cell(before, fullName, supplier)->text(), QString("FIRM SA"));
    edit(before, name, "a & b", supplier);
    edit(before, status, "NIEBIESKI", supplier);
    QVERIFY(!cell(before, status, supplier)->text().isEmpty());
    m_window->commandDelete(true);
    QCOMPARE(m_window->model(supplier)->rowCount(), before);
    m_window->commandUndo(true);
    QCOMPARE(m_window->edited().suppliers.items.back()->name, QString("a & b"));
    QCOMPARE(m_shown->questions, QStringList());
    const auto *changed = m_window->findChild<QLabel *>("changed");
    QVERIFY(changed->isVisible() && m_window->windowTitle().endsWith(" *"));
    m_window->commandSave(true);
    QVERIFY(!changed->isVisible());
    QVERIFY(!m_window->isModified() && !m_window->action("undo")->isEnabled());
    QVERIFY(m_shown->logged.contains("Save file <b>firms.xml</b> ["));
    kiv_mat_firmStruct saved;
    QCOMPARE(loadFirm(path(), &saved), 0);
    QVERIFY(
        equalFields(*saved.suppliers.items.back(), *m_window->edited().suppliers.items.back(), firmStruct::fields()));
    QCOMPARE(saved.suppliers.items.back()->status, QString("NIEBIESKI"));
    QCOMPARE(programData::instance().firm().suppliers.items.back()->name, QString("a & b"));
    // What was saved over is kept.
    QCOMPARE(fileVersions::of(path(), m_folder->path("backup")).size(), 1);
}

void tst_firmWindow::usedFirmsStay()
{
    const int before = m_window->model(manufacturer)->rowCount();
    QItemSelectionModel *selection = m_window->view(manufacturer)->selectionModel();
    m_window->commandAdd(true);
    selection->select(m_window->model(manufacturer)->index(0, 0), QItemSelectionModel::Select);
    m_window->commandDelete(true);
    // The new one could go, but not in part.
    QCOMPARE(m_window->model(manufacturer)->rowCount(), before + 1);
    QVERIFY(m_shown->errors.value(0).contains("Abracon: "));
    QCOMPARE(m_shown->listed.count("<b>Abracon</b>: "), uses("Abracon"));
    // A firm that stands twice can go once.
    edit(before, name, "Abracon");
    selection->select(m_window->model(manufacturer)->index(0, 0), QItemSelectionModel::ClearAndSelect);
    m_window->commandDelete(true);
    QCOMPARE(m_shown->errors.size(), 1);
    QCOMPARE(m_window->edited().manufacturers.items.back()->name, QString("Abracon"));
    QCOMPARE(m_window->edited().manufacturers.items.size(), size_t(before));
}

void tst_firmWindow::renamedEverywhere_data()
{
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<bool>("renamed");
    QTest::newRow("materials too") << QVariant(0) << true;
    QTest::newRow("list only") << QVariant(1) << false;
    QTest::newRow("closed") << QVariant() << false;
}

void tst_firmWindow::renamedEverywhere()
{
    QFETCH(QVariant, input);
    QFETCH(bool, renamed);
    const int count = uses("Abracon");
    QVERIFY(count > 0);
    const QByteArray before = testSupport::read(database());
    const QSignalSpy announced(m_window.get(), &firmWindow::materialsChanged);
    m_shown->input = input;
    edit(0, name, "Abracon Group");
    QCOMPARE(m_shown->questions.size(), 1);
    m_window->commandUndo(true);
    QCOMPARE(cell(0, name)->text(), QString("Abracon"));
    QVERIFY(!m_window->isModified());
    m_window->commandRedo(true);
    QCOMPARE(m_shown->questions.size(), 1);
    // Materials stay as they are until the register is saved; then they use the new name.
    QCOMPARE(uses("Abracon"), count);
    m_window->view(manufacturer)->setCurrentIndex(cell(0, name)->index());
    m_window->commandDelete(true);
    QCOMPARE(m_shown->errors.size(), renamed ? 1 : 0);
    if (!renamed)
        m_window->commandUndo(true);
    m_window->commandSave(true);
    QCOMPARE(uses("Abracon Group"), renamed ? count : 0);
    QCOMPARE(announced.count(), renamed ? 1 : 0);
    QCOMPARE(onDisk(), QString("Abracon Group"));
    const QByteArray after = testSupport::read(database());
    QCOMPARE(after != before, renamed);
    QCOMPARE(after.count("<name>Abracon Group</name>"), renamed ? count : 0);
    const searchQuery query = searchQuery::parse("\"abracon group\"");
    QCOMPARE(programData::instance().search().find(query, 99).total, renamed ? count : 0);
}

void tst_firmWindow::typedNameAsksOnce()
{
    modalPrompts modal;
    modal.input = 0;
    m_window->show();
    m_window->activateWindow();
    myTreeView *view = m_window->view(manufacturer);
    view->setCurrentIndex(cell(0, name)->index());
    view->edit(view->currentIndex());
    auto *editor = view->viewport()->findChild<QLineEdit *>();
    QVERIFY(editor);
    editor->setText("Typed");
    QTest::keyClick(editor, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(modal.questions.size(), 1);
    QCOMPARE(cell(0, name)->text(), QString("Typed"));
    m_window->commandUndo(true);
    QVERIFY(!m_window->isModified());
    m_window->commandRedo(true);
    m_window->commandSave(true);
    QVERIFY(uses("Typed") > 0);
}

void tst_firmWindow::pastedNamesAskOnce()
{
    const QString first = cell(0, name)->text();
    const QString second = cell(1, name)->text();
    const int firstUses = uses(first);
    const int secondUses = uses(second);
    QApplication::clipboard()->setText(second + "\tx\n" + first);
    m_window->view(manufacturer)->setCurrentIndex(cell(0, name)->index());
    m_shown->input = 0;
    m_window->commandPasteCells(true);
    QCOMPARE(m_shown->questions.size(), 1);
    QCOMPARE(cell(0, fullName)->text(), QString("x"));
    m_window->commandCopyCells(true);
    QCOMPARE(QApplication::clipboard()->text(), second);
    m_window->commandUndo(true);
    QVERIFY(!m_window->isModified());
    m_window->commandRedo(true);
    m_window->commandSave(true);
    // The two have changed their names with each other.
    QCOMPARE(uses(second), firstUses);
    QCOMPARE(uses(first), secondUses);
}

void tst_firmWindow::sortingEndsTheHistory()
{
    m_window->view(manufacturer)->sortByColumn(fullName, Qt::DescendingOrder);
    QVERIFY(!m_window->isModified());
    m_window->view(manufacturer)->sortByColumn(name, Qt::AscendingOrder);
    m_shown->input = 0;
    edit(0, name, "zzz");
    m_window->view(manufacturer)->sortByColumn(name, Qt::DescendingOrder);
    QCOMPARE(cell(0, name)->text(), QString("zzz"));
    QVERIFY(!m_window->action("undo")->isEnabled());
    // The change and its plan for the materials outlive the history; the file keeps its order.
    QVERIFY(m_window->action("save")->isEnabled());
    m_window->commandSave(true);
    QCOMPARE(onDisk(), QString("zzz"));
    QVERIFY(uses("zzz") > 0);
    QCOMPARE(uses("Abracon"), 0);
}

void tst_firmWindow::closingAsks_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QString>("saved");
    QTest::newRow("yes") << int(answer::yes) << true << "New";
    QTest::newRow("no") << int(answer::no) << true << "Abracon";
    QTest::newRow("cancel") << int(answer::cancel) << false << "Abracon";
}

void tst_firmWindow::closingAsks()
{
    QFETCH(int, given);
    QFETCH(bool, closes);
    m_window->showNow();
    m_window->action("edit")->setChecked(true);
    edit(0, name, "New");
    m_shown->nextAnswer = answer(given);
    m_window->commandClose(true);
    QCOMPARE(m_shown->questions.size(), 2); // the materials' names, and saving
    QCOMPARE(!m_window->isVisible(), closes);
    QTEST(onDisk(), "saved");
    // A closed window begins with the file.
    m_window->showNow();
    QFETCH(QString, saved);
    QCOMPARE(cell(0, name)->text(), closes ? saved : QString("New"));
    m_shown->nextAnswer = answer::no;
}

void tst_firmWindow::changedOnDisk_data()
{
    QTest::addColumn<QVariant>("input");
    QTest::addColumn<QString>("disk");
    QTest::addColumn<QString>("here");
    QTest::newRow("cancel") << QVariant() << "Theirs"
                            << "Abracon LLC";
    QTest::newRow("reload") << QVariant(0) << "Theirs"
                            << "Abracon LLC";
    QTest::newRow("overwrite") << QVariant(1) << "Abracon"
                               << "Mine";
}

void tst_firmWindow::changedOnDisk()
{
    edit(0, fullName, "Mine");
    kiv_mat_firmStruct other;
    QCOMPARE(loadFirm(path(), &other), 0);
    other.manufacturers.items[0]->name = "Theirs";
    other.manufacturers.items[1]->name = "Theirs, too";
    QCOMPARE(saveXmlNoEvents(path(), &other), 0);
    QFETCH(QVariant, input);
    m_shown->input = input;
    m_window->commandSave(true);
    QCOMPARE(m_shown->questions.size(), 1);
    QTEST(onDisk(), "disk");
    QFETCH(QString, here);
    QCOMPARE(cell(0, fullName)->text(), input.isValid() ? here : QString("Mine"));
    QCOMPARE(m_window->isModified(), !input.isValid());
}

void tst_firmWindow::locked()
{
    m_window->view(manufacturer)->setCurrentIndex(cell(0, name)->index());
    for (const char *action : {"add", "delete", "pasteCells"})
        QVERIFY(m_window->action(action)->isEnabled());
    m_window->action("edit")->setChecked(false);
    for (const char *action : {"add", "delete", "pasteCells"})
        QVERIFY(m_window->action(action)->toolTip().contains("editing is locked"));
    QVERIFY(m_window->view(supplier)->isEditingLocked());
    programData::instance().config().options.findOption("EDIT_FIRM")->value1 = "NIE";
    firmWindow second(programData::instance());
    second.showNow();
    QVERIFY(!second.action("edit")->isEnabled());
}

void tst_firmWindow::unreadable()
{
    m_folder->write("_files/firms.xml", "<kiv_mat_firm><oops");
    firmWindow window(programData::instance());
    window.showNow();
    QVERIFY(m_shown->listed.contains("firms.xml"));
    QVERIFY(!window.action("edit")->isEnabled());
    window.commandEdit(true);
    QVERIFY(window.view(manufacturer)->isEditingLocked());
    window.commandSave(true);
    QCOMPARE(testSupport::read(path()), QByteArray("<kiv_mat_firm><oops"));
}

// A database that cannot be written keeps the window from closing as if all was done.
void tst_firmWindow::unwritable()
{
    m_shown->input = 0;
    edit(0, name, "New");
    QFile::remove(database());
    QVERIFY(QDir().mkpath(database()));
    m_window->commandSave(true);
    QVERIFY(m_shown->listed.contains("db_warehouse.xml"));
    QCOMPARE(onDisk(), QString("New"));
    QVERIFY(m_window->isModified());
    QVERIFY(QDir().rmdir(database()));
    m_window->commandSave(true);
    QVERIFY(!m_window->isModified());
    QVERIFY(testSupport::read(database()).contains("<name>New</name>"));
}

void tst_firmWindow::found()
{
    m_shown->input = QString("semicond");
    m_window->commandFind(true);
    const QModelIndex first = m_window->view(manufacturer)->currentIndex();
    QVERIFY(first.data().toString().contains("Semicond"));
    int steps = 0;
    do {
        m_window->commandFindNext(true);
        QVERIFY(
            m_window->view(manufacturer)->currentIndex().data().toString().contains("semicond", Qt::CaseInsensitive));
    } while (m_window->view(manufacturer)->currentIndex() != first && ++steps < 100);
    QVERIFY(steps > 0 && steps < 100);
    m_shown->input = QString("in no firm");
    m_window->commandFind(true);
    QCOMPARE(m_window->view(manufacturer)->currentIndex(), first);
}

void tst_firmWindow::homePageOpens()
{
    QDesktopServices::setUrlHandler("https", this, "opened");
    m_window->resize(1200, 700);
    m_window->show();
    myTreeView *view = m_window->view(manufacturer);
    const QPoint place = view->visualRect(cell(0, homePageColumn)->index()).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_opened, QStringList());
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    QCOMPARE(m_opened, QStringList("https://abracon.com"));
    edit(0, homePageColumn, "file:///etc/passwd");
    QVERIFY(!m_window->action("homePage")->isEnabled());
    m_window->commandHomePage(true);
    QCOMPARE(m_opened.size(), 1);
    QDesktopServices::unsetUrlHandler("https");
}

void tst_firmWindow::taxNumberIsMarked()
{
    edit(0, nip, "1234563217");
    QVERIFY(!cell(0, nip)->icon().isNull() && !cell(0, nip)->toolTip().isEmpty());
    QCOMPARE(m_window->edited().manufacturers.items[0]->nip, QString("1234563217"));
    m_window->commandUndo(true);
    QVERIFY(cell(0, nip)->icon().isNull() && cell(0, nip)->toolTip().isEmpty());
    m_window->commandRedo(true);
    edit(0, nip, "123-456-32-18");
    QVERIFY(cell(0, nip)->icon().isNull());
}

KIVZP_TEST(tst_firmWindow)
#include "tst_firmWindow.moc"

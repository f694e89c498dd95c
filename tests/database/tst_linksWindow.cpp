// The window of links, worked with hands on materials whose links a small server answers.
#include "scenarioFixture.h"
#include "util/linkServer.h"

#include "database/Kiv_mat_databaseWindow.h"
#include "database/datasheetCopies.h"

#include <QNetworkProxy>

#define OPEN "Ctrl+D Return|Ctrl+E|#examineLinks ~900"

// Rows: a moved datasheet, the same of another material, one that is gone, a web page, no web address.
const scenario linkActions[] = {
    {"", "#takeOver",
     "status = 2 links changed in the database; links@0,2 ~ /new.pdf; links@1,2 ~ /new.pdf; "
     "links@0,3 = answers; saved ~ /new.pdf; saved !~ /301/"},
    {"", "#close", "title = closed"},
    {"links@2,0", "#copy", "status = 1 row copied; clipboard ~ 317111-01.01-00003; clipboard ~ is gone (404)"},
    {"links@0,1", "#mark", "counts ~ 2 moved, of these 1 marked"},
    {"links@0,1 Shift+Down Space", "#mark", "counts ~ 2 moved, of these 2 marked"},
    {"#markNone", "#markAll", "counts ~ of these 2 marked"},
    {"", "#markNone #-takeOver", "counts ~ of these 0 marked; boxes ~ no new address is marked"},
    {"", "#examine", "status = All links were examined in the last 30 days"},
    {"links@2,0", "#examineAgain !This_one ~600", "status = 1 link examined"},
    {"links@0,0", "#fetch !This_one ~600", "status = 1 document fetched; links@0,6 ~ .pdf; links@2,6 ="},
    {"links@3,0", "#fetch !This_one ~600", "status = 0 documents fetched, 1 not; links@3,6 = is no PDF or picture"},
    {"links@0,0", "#fetch !All ~600", "status = 1 document fetched"},
    {"", "#-stop", "boxes ~ no links are being examined"},
    {"links@0,0", "#open", "desktop ~ http://127.0.0.1"},
    {"links@0,0 #fetch !This_one ~600", "#openCopy", "desktop ~ file://%/_files/datasheets/new-"},
    {"links@2,0", "#material", "front ~ Database of material; materials! ~ M2"},
    {"", "#findings", "links! ~ 00001; links! ~ 00003; counts ~ 4 of 5 links shown"},
    {"", "!linkFilter 'gone' ~50", "links! = 317111-01.01-00003; counts ~ 1 of 5 links"},
};

class tst_linksWindow : public scenarioFixture
{
    Q_OBJECT

    std::unique_ptr<testSupport::linkServer> m_server;

    QString file() override { return path("_files/db_warehouse.xml"); }

    void prepare() override
    {
        scenarioFixture::prepare();
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
        QFile::remove(linkExamination::file());
        m_server = std::make_unique<testSupport::linkServer>();
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(file(), &all), 0);
        all.groups.resize(1);
        all.groups[0]->items.resize(4);
        const QString links[] = {m_server->link("/301/new.pdf"), m_server->link("/301/new.pdf"),
                                 m_server->link("/404", "127.0.0.2"), m_server->link("/page.pdf", "127.0.0.3")};
        for (int i = 0; i < 4; ++i) {
            materialStruct &material = *all.groups[0]->items[i];
            material.d_name = QString("M%1").arg(i);
            material.d_ktm = QString("317111-01.01-%1").arg(i + 1, 5, 10, QChar('0'));
            material.suppliers.items.clear();
            material.manufacturers.items.clear();
            manufacturerStruct *maker = testSupport::manufacturer(&material, "M", "1", links[i]);
            maker->files.items[0]->type = i == 3 ? "FILE_HTML" : "FILE_DATASHEET";
            if (i == 3)
                testSupport::appendTo(maker->files)->name = "C:/x.pdf";
        }
        QCOMPARE(saveXmlNoEvents(file(), &all), 0);
    }
    std::vector<scenarioTable> tables() override { return {{OPEN, false, linkActions}}; }

    QMainWindow &databaseWindow() { return mainWindow().databaseWindow(programData::warehouse); }

private slots:
    void examinesAtOnceAndOnlyOnce()
    {
        openWindow(OPEN);
        look("status = 4 links examined; links@0,3 = moved for good; links@0,5 ~ /new.pdf; links@2,3 = is gone (404); "
             "links@4,3 = no web address; counts ~ 3 answer, 2 moved, of these 2 marked; counts ~ 2 do not");
        QCOMPARE(m_server->count("HEAD"), 4); // one of them where another leads
        const int asked = m_server->requests.size();
        work("Ctrl+W");
        turnTo(databaseWindow());
        openWindow("#examineLinks ~300");
        look("links@0,3 = moved for good; status ~ in the last 30 days");
        QCOMPARE(m_server->requests.size(), asked);
    }

    // One step of the database's window, after whose undo the list follows.
    void takenOverIsOneStep()
    {
        openWindow(OPEN);
        QMainWindow &links = window();
        work("Ctrl+S");
        turnTo(databaseWindow());
        QVERIFY(window().windowTitle().endsWith('*'));
        work("Ctrl+Z");
        QVERIFY(!window().windowTitle().endsWith('*'));
        work("Ctrl+Y Ctrl+Z ~500");
        turnTo(links);
        look("links@0,3 = moved for good; counts ~ of these 2 marked");
        turnTo(databaseWindow());
        work("Ctrl+E");
        turnTo(links);
        work("#-takeOver");
        QVERIFY(boxes().join(' ').contains("editing of the database is locked"));
    }

    void stopsWhenTold()
    {
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(file(), &all), 0);
        for (int i = 0; i < 4; ++i)
            all.groups[0]->items[i]->manufacturers.items[0]->files.items[0]->name =
                m_server->link(QString("/hang%1").arg(i), i == 0 ? "127.0.0.2" : "127.0.0.1");
        QCOMPARE(saveXmlNoEvents(file(), &all), 0);
        restart("");
        openWindow("Ctrl+D Return|#examineLinks ~700");
        look("links@4,3 = no web address; links@0,3 = not examined yet");
        work("Escape ~50");
        look("status = 1 link examined, then stopped");
        work("Ctrl+W");
        look("title = closed");
    }

    // What the database's window opens without a network.
    void copyIsOpenedBesideTheLink()
    {
        openWindow(OPEN);
        work("links@0,0 #fetch !This_one ~600 Ctrl+W");
        turnTo(databaseWindow());
        work("materials@0,0 Right materials@0/0,0 #openCopy");
        look("desktop ~ file://%/_files/datasheets/new-");
        work("#openLink");
        look(datasheetCopies::isOnline() ? "desktop ~ http://127" : "desktop ~ file://");
    }
};

KIVZP_TEST(tst_linksWindow)
#include "tst_linksWindow.moc"

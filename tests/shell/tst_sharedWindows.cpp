// The windows' part in the shared store: putting in, taking out, synchronising with and without conflicts, the way
// back in the history, and who may only read.
#include "scenarioFixture.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/loaders.h"
#include "store/storeFiles.h"

#define DATABASE "Ctrl+D Return|Ctrl+E materials@0,0 Right"

const scenario mainRows[] = {
    {"empty store", "#takeShared ~100", "status = The shared store is empty"},
    {"given up", "#putShared Ctrl+A '%/_files/firms.xml' Return Escape", "status = Nothing was put into the shared store"},
    {"an order", "#putShared Ctrl+A '%/_zp/zp_0.xml' Return Return Return ~100",
     "boxes ~ documents of this kind are not shared; status = Nothing was put into the shared store"},
};

class tst_sharedWindows : public scenarioFixture
{
    Q_OBJECT

    store::connection m_store;
    std::unique_ptr<configStruct> m_config;

    QString file() override { return path("_files/db_warehouse.xml"); }
    QString copy() const { return path("others.xml"); }

    void prepare() override
    {
        scenarioFixture::prepare();
        m_store.close();
        m_config = std::make_unique<configStruct>();
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(file(), &all), 0);
        all.groups.resize(1);
        all.groups[0]->items.resize(3);
        for (int i = 0; i < 3; ++i) {
            all.groups[0]->items[size_t(i)]->d_name = QString("M%1").arg(i);
            all.groups[0]->items[size_t(i)]->d_ktm = QString("317111-01.01-0000%1").arg(i + 1);
        }
        QCOMPARE(saveXmlNoEvents(file(), &all), 0);
        const QString address = "sqlite:" + path("store.sqlite");
        QString fault;
        QVERIFY(m_store.open(*store::address::parse(address, &fault)) && store::makeTables(m_store));
        QVERIFY(m_config->load(path("_config/kiv_mat_config.xml")));
        optionStruct *option = m_config->options.append(std::make_unique<optionStruct>());
        option->type = "STORE_ADDRESS";
        option->value1 = address;
        QVERIFY(m_config->save(path("_config/kiv_mat_config.xml")));
    }
    std::vector<scenarioTable> tables() override { return {{nullptr, false, mainRows}}; }

    // Somebody else changes a name and sends it.
    void changeByOthers(size_t row, const QString &name)
    {
        kiv_mat_databaseStruct all;
        QCOMPARE(loadDatabase(copy(), &all), 0);
        all.groups[0]->items[row]->d_name = name;
        QVERIFY(saveXml(copy(), &all) >= 0);
        const store::syncResult result = store::synchronizeFile(m_store, copy(), *m_config, {});
        QVERIFY2(result.done, qPrintable(result.fault));
    }
    QString othersNames()
    {
        kiv_mat_databaseStruct all;
        store::synchronizeFile(m_store, copy(), *m_config, {});
        if (loadDatabase(copy(), &all) != 0)
            return {};
        QStringList names;
        for (const auto &material : all.groups[0]->items)
            names.append(material->d_name);
        return names.join('|');
    }

private slots:
    void database()
    {
        openWindow(DATABASE);
        work("materials@0/2,0 F2 Ctrl+A 'Mine' Return");
        // What is not saved is saved with it.
        work("#publish Ctrl+A 'magazyn' Return ~200");
        look("status ~ records are in the shared store; title !~ *; disk ~ <d_name>Mine<");
        work("#publish ~100");
        look("status ~ is shared already");
        openWindow("<#takeShared Return Ctrl+A '" + copy() + "' Return ~200");
        look("status ~ magazyn");
        QCOMPARE(othersNames(), QString("M0|M1|Mine"));

        // Theirs comes, mine goes, and nothing is asked.
        changeByOthers(0, "Theirs");
        openWindow("<Ctrl+D Return");
        work("materials@0/1,0 F2 Ctrl+A 'Żuk' Return Ctrl+Shift+Y ~200");
        look("status = 1 change fetched, 1 sent; title !~ *; materials@0/0,0 = Theirs; disk ~ <d_name>Theirs<; "
             "disk ~ <d_name>Żuk<");
        QCOMPARE(othersNames(), QString("Theirs|Żuk|Mine"));
        work("Ctrl+Shift+Y ~200");
        look("status = The shared store holds the same");
    }

    void conflict_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("here");
        QTest::addColumn<QString>("there");
        QTest::newRow("mine") << "Alt+M ~200 Return" << "Mine" << "Mine|M1|M2";
        QTest::newRow("theirs") << "!takeTheirs Return" << "Theirs" << "Theirs|M1|M2";
        QTest::newRow("given up") << "Escape" << "Mine" << "Theirs|M1|M2";
    }
    void conflict()
    {
        QFETCH(QString, keys);
        QFETCH(QString, here);
        QFETCH(QString, there);
        QVERIFY(store::publishFile(m_store, file(), "db").done);
        QString fault;
        QVERIFY(store::cloneFile(m_store, fileKinds::database, "db", copy(), &fault));
        changeByOthers(0, "Theirs");
        openWindow(DATABASE);
        work("materials@0/0,0 F2 Ctrl+A 'Mine' Return Ctrl+Shift+Y ~200 " + keys + " ~200");
        look("boxes ~ Changes here and by others; materials@0/0,0 = " + here);
        look(keys == "Escape" ? "title ~ *; status = Nothing was fetched and nothing sent; disk ~ <d_name>M0<"
                              : "title !~ *; disk ~ <d_name>" + here + "<");
        QCOMPARE(othersNames(), there);
    }

    void backInTheHistory()
    {
        QVERIFY(store::publishFile(m_store, file(), "db").done);
        QString fault;
        QVERIFY(store::cloneFile(m_store, fileKinds::database, "db", copy(), &fault));
        changeByOthers(0, "One");
        changeByOthers(0, "Two");
        openWindow(DATABASE);
        work("Ctrl+Shift+Y ~200 materials@0/0,0 Ctrl+Shift+J ~200 Down Alt+B ~100");
        look("materials@0/0,0 = One; title ~ *; disk ~ <d_name>Two<");
        work("Ctrl+Z");
        look("materials@0/0,0 = Two; title !~ *");
        work("Ctrl+Y Ctrl+Shift+Y ~200");
        QCOMPARE(othersNames(), QString("One|M1|M2"));
        work("Ctrl+Shift+J ~200 Escape");
        look("boxes ~ History; title !~ *");
    }

    // Everything that is shared, from the main window: what a window has open goes through it, the rest as a file.
    void all()
    {
        const QString firms = path("_files/firms.xml");
        QVERIFY(store::publishFile(m_store, file(), "db").done);
        QVERIFY(store::publishFile(m_store, firms, "firms").done);
        QString fault;
        QVERIFY(store::cloneFile(m_store, fileKinds::database, "db", copy(), &fault));
        restart("");
        // No window was opened yet.
        kiv_mat_firmStruct others;
        QVERIFY(store::cloneFile(m_store, fileKinds::firm, "firms", path("firms2.xml"), &fault));
        QCOMPARE(loadFirm(path("firms2.xml"), &others), 0);
        others.manufacturers.items[1]->fullname = "Nowa SA";
        QVERIFY(saveXml(path("firms2.xml"), &others) >= 0);
        QVERIFY(store::synchronizeFile(m_store, path("firms2.xml"), *m_config, {}).done);
        work("Ctrl+Shift+Y ~400");
        look("status = 2 shared files: 1 change fetched, 0 sent; file _files/firms.xml ~ >Nowa SA<");
        changeByOthers(1, "Theirs");
        openWindow("#firm|manufacturers@0,1 F2 Ctrl+A 'Żuk & Syn' Return");
        openWindow("<Ctrl+Shift+Y ~400");
        look("status = 2 shared files: 1 change fetched, 1 sent; file _files/firms.xml ~ Syn<");
        look("disk ~ <d_name>Theirs<");
        QCOMPARE(m_store.askOne("select count(*) from change where field = 'fullname' and after = 'Żuk & Syn'").toInt(), 1);
        work("#putShared Ctrl+A '" + firms + "' Return ~100");
        look("status ~ is shared already");
        work("#takeShared Return Ctrl+A '" + copy() + "' Return !Yes Return ~100");
        look("boxes ~ there is such a file already");
    }

    // What is known of a file is spoilt: that is told, and nothing changes on either side.
    void spoiltBeside()
    {
        QVERIFY(store::publishFile(m_store, file(), "db").done);
        testSupport::write(store::base::fileOf(file()), "<spoilt");
        const QByteArray before = testSupport::read(file());
        openWindow(DATABASE);
        work("Ctrl+Shift+Y ~200 Return");
        look("boxes ~ " + store::base::fileOf(file()) + "; title !~ *");
        openWindow("<#synchronizeAll ~200 Return");
        look("boxes ~ db_warehouse.xml; status ~ Not synchronised: db_warehouse.xml");
        QCOMPARE(testSupport::read(file()), before);
    }

    // Who may only read is told so, and fetches all the same.
    void reader()
    {
        QVERIFY(store::publishFile(m_store, file(), "db").done);
        QString fault;
        QVERIFY(store::cloneFile(m_store, fileKinds::database, "db", copy(), &fault));
        store::base known = store::base::read(file(), &fault);
        known.mayWrite = false;
        QVERIFY(known.write(file(), &fault));
        changeByOthers(0, "Theirs");
        openWindow(DATABASE);
        work("materials@0/0,0 F2 'x'");
        look("materials@0/0,0 = M0; title !~ *");
        work("Ctrl+Shift+Y ~200");
        look("materials@0/0,0 = Theirs; title !~ *");
    }
};

KIVZP_TEST(tst_sharedWindows)
#include "tst_sharedWindows.moc"

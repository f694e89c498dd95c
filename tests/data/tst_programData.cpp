// The data files as the configuration names them. Faults at the start are tested with the program.
#include "testSupport.h"

#include "data/programData.h"
#include "data/validFiles.h"

using namespace testSupport;

class tst_programData : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        programData::instance().clear();
        programData::instance().config().setDefaults();
    }

    void cleanup() override
    {
        programData::instance().clear();
        folderTest::cleanup();
    }

    void databasesAreSearchedInOrder()
    {
        programData &data = programData::instance();
        const auto load = [&](programData::databaseKind kind, const char *file, const char *name) {
            m_folder->write(QString("_files/db_") + file + ".xml", databaseOf(name));
            data.loadDatabase(kind);
            return data.materials().find("K")->material->d_name
                   + data.search().find(searchQuery::parse("ktm:K"), 1).entries[0].material->d_name;
        };
        // Whichever is loaded first.
        QCOMPARE(load(programData::mechanics, "mechanics", "m"), QString("mm"));
        QCOMPARE(load(programData::author, "author", "a"), QString("mm"));
        QCOMPARE(load(programData::service, "service", "s"), QString("ss"));
        QCOMPARE(load(programData::mechanics, "mechanics", "n"), QString("ss"));
        QCOMPARE(data.materials().duplicateCount(), 2);
        QCOMPARE(m_shown->listed, QString());
    }

    void optionsSwitchFilesOff()
    {
        programData &data = programData::instance();
        setOption("LOAD_DB_WAREHOUSE", "NIE");
        setOption("LOAD_BOMS", "nie");
        setOption("FILE_FIRM", "");
        data.loadDatabase(programData::warehouse);
        data.loadBoms();
        data.loadFirm();
        QCOMPARE(m_shown->listed, QString());
        QVERIFY(!QFile::exists(m_folder->path("_files")));
        setOption("LOAD_BOMS", "TAK");
        data.loadBoms();
        QVERIFY(m_shown->listed.contains("Create default file"));
        kiv_mat_bomsStruct made;
        QVERIFY(readChecked(m_folder->path("_files/boms.xml"), &made));
    }

    void previousConfiguration()
    {
        programData &data = programData::instance();
        configStruct previous;
        QVERIFY(!data.replaceConfiguration(m_folder->path("none.xml")));
        QVERIFY(previous.save(m_folder->path("previous.xml")));
        QVERIFY(!data.config().options.items.empty());
        QVERIFY(data.replaceConfiguration(m_folder->path("previous.xml")));
        QVERIFY(data.config().options.items.empty());
    }

    void cancelledLoading()
    {
        const QByteArray large = databaseOf(QByteArray(5 << 20, 'x'));
        const QString path = m_folder->write("large.xml", large);
        int told = 0;
        kiv_mat_databaseStruct record;
        QVERIFY(!readChecked(path, &record, nullptr, [&](long long done, long long total) {
            return done <= total && total == large.size() && ++told < 2;
        }));
        QCOMPARE(told, 2);
        QVERIFY(readChecked(path, &record));
    }

    void validFilesAreRememberedUntilTheyChange()
    {
        const QString large = m_folder->write("large.xml", databaseOf(QByteArray(5 << 20, 'x')));
        const QString small = m_folder->write("small.xml", databaseOf("x"));
        const QString schema = paths::schema("kiv_mat.xsd");
        kiv_mat_databaseStruct record;
        QVERIFY(!validFiles::contains(large, schema));
        QVERIFY(readChecked(large, &record));
        QVERIFY(readChecked(small, &record));
        QVERIFY(validFiles::contains(large, schema));
        QVERIFY(!validFiles::contains(small, schema));
        QVERIFY(!validFiles::contains(large, paths::schema("kiv.xsd")));
        m_folder->write("large.xml", read(large).replace("d_group", "d_grouq"));
        QFile changed(large);
        QVERIFY(changed.open(QIODevice::ReadWrite));
        changed.setFileTime(QDateTime::currentDateTime().addSecs(5), QFileDevice::FileModificationTime);
        changed.close();
        QVERIFY(!validFiles::contains(large, schema));
        QVERIFY(!readChecked(large, &record));
    }

private:
    void setOption(const QString &key, const QString &value)
    {
        optionStruct *option = programData::instance().config().options.findOption(key);
        QVERIFY(option);
        option->value1 = value;
    }
    static QByteArray databaseOf(const QByteArray &name)
    {
        return database("<d_group><material><d_ktm>K</d_ktm><d_name>" + name + "</d_name></material></d_group>");
    }
};

KIVZP_TEST(tst_programData)
#include "tst_programData.moc"

// The data files as the configuration names them. Faults at the start are tested with the program.
#include "testSupport.h"

#include "data/loaders.h"
#include "data/programData.h"
#include "data/validFiles.h"
#include "util/paths.h"

class tst_programData : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void databasesAreSearchedInOrder();
    void optionsSwitchFilesOff();
    void previousConfiguration();
    void cancelledLoading();
    void validFilesAreRememberedUntilTheyChange();

private:
    void setOption(const QString &key, const QString &value)
    {
        optionStruct *option = programData::instance().config().options.findOption(key);
        QVERIFY(option);
        option->value1 = value;
    }
    static QByteArray database(const QByteArray &name)
    {
        return testSupport::document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                                     "<d_group><material><d_ktm>K</d_ktm><d_name>" + name
                                         + "</d_name></material></d_group>");
    }
    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
};

void tst_programData::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    programData::instance().clear();
    programData::instance().config().setDefaults();
}

void tst_programData::cleanup()
{
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_programData::databasesAreSearchedInOrder()
{
    m_folder->write("_files/db_author.xml", database("author"));
    m_folder->write("_files/db_service.xml", database("service"));
    programData &data = programData::instance();
    data.loadDatabase(programData::service);
    data.loadDatabase(programData::author);
    QCOMPARE(data.materials().find("K")->material->d_name, QString("service"));
    QCOMPARE(data.materials().duplicateCount(), 1);
    QCOMPARE(m_shown->listed, QString());
}

void tst_programData::optionsSwitchFilesOff()
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

void tst_programData::previousConfiguration()
{
    programData &data = programData::instance();
    configStruct previous;
    QVERIFY(!data.replaceConfiguration(m_folder->path("none.xml")));
    QVERIFY(previous.save(m_folder->path("previous.xml")));
    QVERIFY(!data.config().options.items.empty());
    QVERIFY(data.replaceConfiguration(m_folder->path("previous.xml")));
    QVERIFY(data.config().options.items.empty());
}

void tst_programData::cancelledLoading()
{
    const QByteArray large = database(QByteArray(5 << 20, 'x'));
    const QString path = m_folder->write("large.xml", large);
    int told = 0;
    kiv_mat_databaseStruct record;
    QVERIFY(!readChecked(path, &record, nullptr, [&](long long done, long long total) {
        return done <= total && total == large.size() && ++told < 2;
    }));
    QCOMPARE(told, 2);
    QVERIFY(readChecked(path, &record));
}

void tst_programData::validFilesAreRememberedUntilTheyChange()
{
    const QString large = m_folder->write("large.xml", database(QByteArray(5 << 20, 'x')));
    const QString small = m_folder->write("small.xml", database("x"));
    const QString schema = paths::schema("kiv_mat.xsd");
    kiv_mat_databaseStruct record;
    QVERIFY(!validFiles::contains(large, schema));
    QVERIFY(readChecked(large, &record));
    QVERIFY(readChecked(small, &record));
    QVERIFY(validFiles::contains(large, schema));
    QVERIFY(!validFiles::contains(small, schema));
    QVERIFY(!validFiles::contains(large, paths::schema("kiv.xsd")));
    m_folder->write("large.xml", testSupport::read(large).replace("d_group", "d_grouq"));
    QFile changed(large);
    QVERIFY(changed.open(QIODevice::ReadWrite));
    changed.setFileTime(QDateTime::currentDateTime().addSecs(5), QFileDevice::FileModificationTime);
    changed.close();
    QVERIFY(!validFiles::contains(large, schema));
    QVERIFY(!readChecked(large, &record));
}

KIVZP_TEST(tst_programData)
#include "tst_programData.moc"

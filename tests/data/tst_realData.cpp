// Every file of the folder of real data: valid, read, written back byte for byte, reported. The
// folder is named by KIVZP_REAL_DATA; without it the test says so and passes.
#include "testSupport.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "data/orderSums.h"
#include "report/orderReport.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QDirIterator>
#include <QProcess>

class tst_realData : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void roundTrip_data();
    void roundTrip();
    void ordersReportTheirMaterials();

private:
    testSupport::programFolder m_folder;
    QStringList m_files;
};

void tst_realData::initTestCase()
{
    if (testSupport::realData().isEmpty()) {
        qInfo("KIVZP_REAL_DATA is not set: real data not tested");
        return;
    }
    for (QDirIterator it(testSupport::realData(), {"*.xml", "*.xml.gz"}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        QString path = it.next();
        if (path.contains("/raw/"))
            continue;
        if (path.endsWith(".gz")) {
            const QString unpacked = m_folder.path(it.fileName().chopped(3));
            QProcess gzip;
            gzip.setStandardOutputFile(unpacked);
            gzip.start("gzip", {"-dc", path});
            QVERIFY(gzip.waitForFinished(60000) && gzip.exitCode() == 0);
            path = unpacked;
        }
        m_files.append(path);
    }
    QVERIFY(m_files.size() >= 20);
}

void tst_realData::roundTrip_data()
{
    QTest::addColumn<QString>("path");
    for (const QString &path : qAsConst(m_files))
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    if (m_files.isEmpty())
        QTest::newRow("no real data") << QString();
}

void tst_realData::roundTrip()
{
    QFETCH(QString, path);
    if (path.isEmpty())
        return;
    const fileKind *kind = fileKinds::ofFile(path);
    QVERIFY(kind);
    QVERIFY(validateXml(path, paths::schema(kind->schema), false));
    const auto record = newDocument(*kind);
    QCOMPARE(loadDocument(path, record.get()), 0);
    const QString saved = m_folder.path("saved.xml");
    QCOMPARE(saveXml(saved, record.get()), 0);
    QVERIFY(testSupport::read(saved) == testSupport::read(path));
}

void tst_realData::ordersReportTheirMaterials()
{
    const QStringList databases = m_files.filter("db_real.xml");
    if (databases.isEmpty())
        return;
    kiv_mat_databaseStruct database;
    QCOMPARE(loadDatabase(databases.first(), &database), 0);
    ktmIndex index;
    index.add(&database);
    QCOMPARE(index.size(), 16880);
    QCOMPARE(index.duplicateCount(), 0);
    for (const QString &path : m_files.filter("/orders/")) {
        kiv_mat_zpStruct order;
        QCOMPARE(loadZp(path, &order), 0);
        const QString page = orderReport(order, index);
        QCOMPARE(page.count("<tr class=\"line\">"), int(order.orderItems.items.size()));
        QVERIFY(page.count(labels::manufacturers()) >= int(order.orderItems.items.size()) / 2);
        QVERIFY(sumsOf(order).price > 0);
    }
}

KIVZP_TEST(tst_realData)
#include "tst_realData.moc"

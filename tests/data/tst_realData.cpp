// Results over the folder of real data, counted by hand there: reports, listings and CPV codes. The folder is named
// by KIVZP_REAL_DATA; without it the test says so.
#include "testSupport.h"

#include "data/lineSums.h"
#include "database/cpvOperations.h"
#include "database/warehouseListing.h"
#include "report/orderReport.h"
#include "util/labels.h"

using namespace testSupport;

class tst_realData : public folderTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (realData().isEmpty())
            QSKIP("KIVZP_REAL_DATA is not set");
        QCOMPARE(loadDatabase(realFiles().filter("db_real.xml").value(0), &m_database), 0);
        m_index.add(&m_database);
    }

    void ordersReportTheirMaterials()
    {
        QCOMPARE(m_index.size(), 16880);
        QCOMPARE(m_index.duplicateCount(), 0);
        const QStringList orders = realFiles().filter("/orders/");
        QVERIFY(!orders.isEmpty());
        for (const QString &path : orders) {
            kiv_mat_zpStruct order;
            QCOMPARE(loadZp(path, &order), 0);
            const QString page = orderReport(order, m_index);
            QCOMPARE(page.count("<tr class=\"line\">"), int(order.orderItems.items.size()));
            QVERIFY(page.count(labels::manufacturers()) >= int(order.orderItems.items.size()) / 2);
            QVERIFY(sumsOf(order).price.amount > decimal());
        }
    }

    // Every entry of the clean listing is found; the faults of the dirty one are those that stand in it.
    void listings()
    {
        const auto match = [this](const QString &name) {
            QString error;
            const auto entries = readListing(realData() + name, &error);
            return entries ? matchListing(*entries, m_index) : listingResult();
        };
        const listingResult clean = match("/warehouse.txt");
        QCOMPARE(clean.found, 200);
        QCOMPARE(clean.problems, QStringList());
        const listingResult dirty = match("/warehouse_dirty.txt");
        QCOMPARE(dirty.problems.filter("Does not exist in databases").size(), 4);
        QCOMPARE(dirty.problems.filter("brak indeksu").size(), 4);
        QCOMPARE(dirty.found + dirty.problems.size(), 40);
        // Five entries without a value, four with "b/d" for a quantity.
        QCOMPARE(dirty.problems.filter("Error in KTM line").size(), 4 + 5 + 4);
    }

    // The clean list has a good code for each of its groups. The dirty one has two bad codes, three names that no
    // group has and a line that begins with a tab.
    void cpvCodes()
    {
        kiv_mat_databaseStruct database;
        for (const QByteArray &line : read(realData() + "/cpv_groups.txt").split('\n'))
            if (!line.isEmpty())
                group(database, QString::fromUtf8(line.split('\t')[0]));
        const auto clean = loadCpvForGroups(realData() + "/cpv_groups.txt", database);
        QCOMPARE(clean.problems, QStringList());
        QCOMPARE(clean.changes.size(), database.groups.size());
        const auto dirty = loadCpvForGroups(realData() + "/cpv_groups_dirty.txt", database);
        QCOMPARE(dirty.problems.size(), 1 + 2 + 1 + 4);
        QVERIFY(dirty.changes.size() > 15);
    }

private:
    kiv_mat_databaseStruct m_database;
    ktmIndex m_index;
};

KIVZP_TEST(tst_realData)
#include "tst_realData.moc"

#include "testSupport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/ktmIndex.h"

#include <QRandomGenerator>

class tst_ktmIndex : public QObject
{
    Q_OBJECT
private slots:
    void firstDatabaseWins();
    void randomChangesStayInStep();

private:
    static materialStruct *append(kiv_mat_databaseStruct &database, const QString &ktm)
    {
        if (database.groups.empty())
            database.groups.push_back(std::make_unique<d_groupStruct>());
        materialStruct *material = database.groups[0]->append(std::make_unique<materialStruct>());
        material->d_ktm = ktm;
        return material;
    }
};

void tst_ktmIndex::firstDatabaseWins()
{
    kiv_mat_databaseStruct warehouse;
    kiv_mat_databaseStruct author;
    const materialStruct *first = append(warehouse, "A");
    append(warehouse, "");
    append(warehouse, "");
    const materialStruct *second = append(author, "A");
    append(author, "B");
    ktmIndex index;
    index.add(&warehouse);
    index.add(&author);
    QCOMPARE(index.size(), 2);
    QCOMPARE(index.duplicateCount(), 1);
    QCOMPARE(index.duplicates(), QList<QString>({"A"}));
    QCOMPARE(index.find("A")->material, first);
    QCOMPARE(index.find("B")->database, &author);
    QCOMPARE(index.find("B")->group, author.groups[0].get());
    QVERIFY(!index.find("a"));
    QVERIFY(!index.find(""));
    QCOMPARE(index.all("A")[1].material, second);
    QVERIFY(index.all("C").empty());
}

// Inserts, removals and renames in any order leave what a fresh index over the same materials has.
void tst_ktmIndex::randomChangesStayInStep()
{
    QRandomGenerator random(20261124);
    kiv_mat_databaseStruct database;
    for (int i = 0; i < 40; ++i)
        append(database, QString::number(random.bounded(15)));
    std::vector<materialStruct *> in;
    ktmIndex index;
    for (int step = 0; step < 2000; ++step) {
        materialStruct *material = database.groups[0]->items[random.bounded(40u)].get();
        const auto at = std::find(in.begin(), in.end(), material);
        if (at != in.end()) {
            index.remove(material);
            in.erase(at);
        }
        if (random.bounded(3) != 0) {
            material->d_ktm = QString::number(random.bounded(15));
            index.insert({material, database.groups[0].get(), &database});
            in.push_back(material);
        }
        // One that was never put in has no effect on the others with its KTM.
        materialStruct stranger;
        stranger.d_ktm = material->d_ktm;
        index.remove(&stranger);

        ktmIndex fresh;
        for (materialStruct *present : in)
            fresh.insert({present, database.groups[0].get(), &database});
        QCOMPARE(index.size(), fresh.size());
        QCOMPARE(index.duplicateCount(), fresh.duplicateCount());
        for (int ktm = 0; ktm < 15; ++ktm) {
            const std::vector<ktmIndex::entry> a = index.all(QString::number(ktm));
            const std::vector<ktmIndex::entry> b = fresh.all(QString::number(ktm));
            QCOMPARE(a.size(), b.size());
            for (size_t i = 0; i < a.size(); ++i)
                QCOMPARE(a[i].material, b[i].material);
        }
    }
}

KIVZP_TEST(tst_ktmIndex)
#include "tst_ktmIndex.moc"

#include "testSupport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/materialSearch.h"

#include <QRandomGenerator>

class tst_materialSearch : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void queries_data();
    void queries();
    void order_data();
    void order();
    void limitAndTotal();
    void faults_data();
    void faults();
    void typingFindsWhatAFreshSearchFinds();
    void randomChangesStayInStep();
    void slicesAndCancel();

private:
    materialStruct *append(const QString &ktm, const QString &name,
                           const QString &description = {});
    // The KTMs found, in order.
    static QStringList found(materialSearch &search, const QString &query)
    {
        QStringList result;
        for (const materialSearch::entry &entry :
             search.find(searchQuery::parse(query), 1000).entries)
            result << entry.material->d_ktm;
        return result;
    }
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
};

materialStruct *tst_materialSearch::append(const QString &ktm, const QString &name,
                                           const QString &description)
{
    materialStruct *material = m_database->groups[0]->append(std::make_unique<materialStruct>());
    material->d_ktm = ktm;
    material->d_name = name;
    material->d_description = description;
    return material;
}

void tst_materialSearch::init()
{
    m_database = std::make_unique<kiv_mat_databaseStruct>();
    m_database->groups.push_back(std::make_unique<d_groupStruct>());
    m_database->groups[0]->name = QString::fromUtf8("Elementy różne");
}

void tst_materialSearch::queries_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("ktms");
    const auto row = [](const char *query, const char *ktms) {
        QTest::newRow(query) << QString::fromUtf8(query) << QString(ktms);
    };
    row("", "R1 R2 C1 D1 S1");
    row("kondensator", "C1");
    row("KONDENSATOR", "C1");
    row("DŁAWIK", "D1");
    row("dlawik", "D1");
    row("zyst", "R1 R2");
    row("rezystor 0603", "R1");
    row("0603 rezystor", "R1");
    row("rezystor kondensator", "");
    row("\"rezystor smd\"", "R1");
    row("\"smd rezystor\"", "");
    row("yageo", "R1");
    row("rc0603fr", "R1");
    row("supplier:yageo", "");
    row("maker:yageo", "R1");
    row("producent:YAGEO", "R1");
    row("part:rc0603", "R1");
    row("dostawca:tme", "R1 C1");
    row("tme-77", "C1");
    row("różne", "R1 R2 C1 D1 S1");
    row("grupa:rozne d1", "D1");
    // Numbers by value.
    row("4k7", "R1 R2");
    row("4.7k", "R1 R2");
    row("4.7 kΩ", "R1 R2");
    row("4700", "R1 R2");
    row("value:4.7kohm", "R1 R2");
    row("value:4.7 kohm", "R1 R2");
    row("wartość:4k7", "R1 R2");
    row("value:4.7", "");
    row("value:>4k", "R1 R2");
    row("value:>= 4k7 case:1206", "R2");
    row("value:<1u", "C1");
    row("value:470mOhm", "");
    row("100n", "C1");
    row("0.1u", "C1");
    row("0,1 µF", "C1");
    row("100nH", "");
    row("10 %", "C1");
    row("16 A", "R2");
    row("16A", "");
    row("tolerance:<=5", "R1");
    row("value:M3", "S1");
    row("value:=M3", "S1");
    // Fields.
    row("case:0603", "R1");
    row("case:060", "R1");
    row("case:=060", "");
    row("obudowa:1206", "R2");
    row("opis:0603", "R1");
    row("name:0603", "R1");
    row("case:rezystor", "");
    row("case:\"\"", "D1 S1");
    row("part:\"\"", "R2 D1 S1");
    row("ktm:r", "R1 R2");
    row("status:zielony", "R1 C1");
    row("status:green case:0603", "R1");
    row("status:szary", "R2");
    row("active:yes", "R1");
    row("aktywny:NIE ktm:d", "D1");
    row("price:>10", "C1 D1");
    row("price:> 10", "C1 D1");
    row("cena:12,5", "C1");
    row("price:1250.00", "D1");
    row("price:<=0.02", "R1");
    row("stock:0", "C1");
    row("stock:\"\"", "D1 S1");
    row("price:2", "");
    row("stan:>0", "R1 R2");
    row("magazyn:=500", "R2");
    row("case: yageo", "R1");
    row("case:", "R1 R2 C1 D1 S1");
    // Colons that make no field.
    row("http://x.pl", "D1");
    row("1:10", "D1");
    // Amounts are found by their field only.
    row("1250", "");
}

void tst_materialSearch::queries()
{
    materialStruct *m = append("R1", "RC0603FR-074K7L", "Rezystor SMD 0603");
    m->d_value = QString::fromUtf8("4.7kΩ");
    m->d_case = "0603";
    m->d_tolerance = QString::fromUtf8("±5%");
    m->d_price = "0.02";
    m->d_inWarehouse = "100";
    m->d_active = "TAK";
    m->information.status = "ZIELONY";
    auto maker = std::make_unique<manufacturerStruct>();
    maker->name = "Yageo";
    maker->partNo = "RC0603FR-074K7L";
    m->manufacturers.append(std::move(maker));
    auto supplier = std::make_unique<supplierStruct>();
    supplier->name = "TME";
    supplier->partNo = "RC0603FR-074K7L";
    m->suppliers.append(std::move(supplier));

    m = append("R2", "Rezystor", "drutowy 16 A");
    m->d_value = "4k7 1%";
    m->d_case = "1206";
    m->d_inWarehouse = "500";
    m->information.status = "SZARY";

    m = append("C1", "Kondensator", "ceramiczny X7R");
    m->d_value = "100 nF";
    m->d_case = "0805";
    m->d_tolerance = QString::fromUtf8("±10%");
    m->d_price = "12.50";
    m->d_inWarehouse = "0";
    m->information.status = "ZIELONY";
    supplier = std::make_unique<supplierStruct>();
    supplier->name = "TME";
    supplier->partNo = "TME-77";
    m->suppliers.append(std::move(supplier));

    m = append("D1", QString::fromUtf8("Dławik"), "1:10 http://x.pl");
    m->d_price = QString::fromUtf8("1 250,00");
    append("S1", "Wkręt")->d_value = "M3";

    QFETCH(QString, query);
    materialSearch search;
    search.add(m_database.get());
    const searchQuery parsed = searchQuery::parse(query);
    QVERIFY2(parsed.errors().isEmpty(), qPrintable(parsed.errors().join(' ')));
    QStringList ktms = found(search, query);
    QStringList filtered;
    for (const auto &material : m_database->groups[0]->items)
        if (search.matches(material.get(), parsed))
            filtered << material->d_ktm;
    QTEST(filtered.join(' '), "ktms");
    std::sort(ktms.begin(), ktms.end());
    std::sort(filtered.begin(), filtered.end());
    QCOMPARE(ktms, filtered);
}

void tst_materialSearch::order_data()
{
    QTest::addColumn<QString>("query");
    QTest::addColumn<QString>("ktms");
    QTest::newRow("one word") << "lm358"
                              << "3 LM358 4 5 2 1 0";
    QTest::newRow("whole name of two words") << "op amp"
                                             << "7 6";
    QTest::newRow("equal part number first, equal case not") << "qq"
                                                             << "12 11 10";
    QTest::newRow("equal number before inside") << "10k"
                                                << "8 9";
}

void tst_materialSearch::order()
{
    append("0", "a", "xLM358");
    append("1", "aLM358");
    append("2", "b", "zamiennik LM358");
    append("3", "lm358");
    append("LM358", "c");
    append("4", "Wzmacniacz LM358N");
    auto maker = std::make_unique<manufacturerStruct>();
    maker->partNo = "LM358-SMD";
    append("5", "d")->manufacturers.append(std::move(maker));
    append("6", "op amp dual", "");
    append("7", "op amp", "");
    append("9", "x110k");
    append("10", "f")->d_case = "QQ";
    append("11", "QQ g");
    materialStruct *two = append("12", "h");
    for (const char *number : {"QQ-100", "QQ"}) {
        auto supplier = std::make_unique<supplierStruct>();
        supplier->partNo = number;
        two->suppliers.append(std::move(supplier));
    }
    append("8", "e")->d_value = "0.01M";
    QFETCH(QString, query);
    materialSearch search;
    search.add(m_database.get());
    QTEST(found(search, query).join(' '), "ktms");
}

void tst_materialSearch::limitAndTotal()
{
    for (int i = 0; i < 50; ++i)
        append(QString::number(100 + i), "x");
    kiv_mat_databaseStruct second;
    materialSearch search;
    search.add(m_database.get());
    search.add(&second);
    const materialSearch::result some = search.find(searchQuery::parse("x"), 3);
    QCOMPARE(some.total, 50);
    QCOMPARE(some.entries.size(), size_t(3));
    QCOMPARE(some.entries[2].material->d_ktm, QString("102"));
    QCOMPARE(some.entries[2].database, m_database.get());
    QCOMPARE(some.entries[2].group, m_database->groups[0].get());
    QCOMPARE(search.find(searchQuery::parse("x"), 100).entries.size(), size_t(50));
    QCOMPARE(search.find(searchQuery::parse("x"), -1).total, 50);
}

void tst_materialSearch::faults_data()
{
    QTest::addColumn<QString>("named");
    QTest::newRow("colour:red x") << "colour";
    QTest::newRow("kolor:\"a b\" x") << "kolor";
    QTest::newRow("price:>abc x") << "abc";
    QTest::newRow("name:>5 x") << "name";
    QTest::newRow("obudowa:<=0603 x") << "obudowa";
}

void tst_materialSearch::faults()
{
    const searchQuery query = searchQuery::parse(QTest::currentDataTag());
    QFETCH(QString, named);
    QCOMPARE(query.errors().size(), 1);
    QVERIFY(query.errors()[0].contains(named));
    // The rest still counts.
    QCOMPARE(query.terms().size(), size_t(1));
}

// What a search remembers of the one before never changes its answer.
void tst_materialSearch::typingFindsWhatAFreshSearchFinds()
{
    const QStringList words{"4k7", "4700", "0603", "rez", "ystor", "100n", "x7r", "4", "k"};
    QRandomGenerator random(20261125);
    for (int i = 0; i < 200; ++i) {
        materialStruct *m =
            append(QString::number(i),
                   words[random.bounded(words.size())] + words[random.bounded(words.size())],
                   words[random.bounded(words.size())]);
        m->d_value = words[random.bounded(words.size())];
    }
    materialSearch typed;
    typed.add(m_database.get());
    for (const QString text :
         {"rezystor 4k7 0603", "4700 100 n value:4k", "0603 0603", "\"k rez"}) {
        QVector<int> lengths;
        for (int length = 0; length <= text.size(); ++length)
            lengths << length;
        for (int length = text.size(); length >= 0; length -= 3)
            lengths << length;
        for (const int length : lengths) {
            materialSearch fresh;
            fresh.add(m_database.get());
            QCOMPARE(found(typed, text.left(length)), found(fresh, text.left(length)));
        }
    }
}

// Insertions, removals and changes in any order leave what a fresh index over the same materials
// finds.
void tst_materialSearch::randomChangesStayInStep()
{
    const QStringList words{"alfa", "beta", "gamma", "4k7", "100n", "4700", "delta"};
    QRandomGenerator random(20261125);
    for (int i = 0; i < 30; ++i)
        append(QString::number(i), "alfa", QString(2000, 'z'));
    d_groupStruct *group = m_database->groups[0].get();
    std::vector<materialStruct *> in;
    materialSearch search;
    for (int step = 0; step < 12000; ++step) {
        materialStruct *material = group->items[random.bounded(30u)].get();
        const auto at = std::find(in.begin(), in.end(), material);
        const auto change = [&] {
            material->d_name = words[random.bounded(words.size())];
            material->d_value = words[random.bounded(words.size())];
        };
        if (at == in.end()) {
            search.remove(material);
            search.update(material);
            change();
            search.insert({material, group, m_database.get()});
            in.push_back(material);
        } else if (random.bounded(3) == 0) {
            search.remove(material);
            in.erase(at);
        } else {
            change();
            search.update(material);
        }
        QCOMPARE(search.size(), int(in.size()));
        // Now and then, so that some changes come before the texts are read.
        if (random.bounded(20) != 0)
            continue;
        materialSearch fresh;
        for (materialStruct *present : in)
            fresh.insert({present, group, m_database.get()});
        for (const QString &word : words + QStringList{words.front()})
            QCOMPARE(found(search, word), found(fresh, word));
    }
    // What is out of use does not pile up.
    QVERIFY2(search.memory() < 400000, qPrintable(QString::number(search.memory())));
}

void tst_materialSearch::slicesAndCancel()
{
    for (int i = 0; i < 2500; ++i)
        append(QString::number(i), "x");
    materialSearch search;
    search.add(m_database.get());
    QList<qint64> done;
    const auto once = [&](qint64 at, qint64 total) {
        done << at << total;
        return false;
    };
    QVERIFY(!search.prepare(once));
    QVERIFY(!search.prepare(once));
    // Gone before its texts were read.
    search.remove(m_database->groups[0]->items.back().get());
    m_database->groups[0]->items.pop_back();
    QVERIFY(search.prepare(once));
    QCOMPARE(done, QList<qint64>({1000, 2500, 2000, 2500, 2500, 2500}));
    QVERIFY(search.prepare(once));
    QCOMPARE(done.size(), 6);
    QCOMPARE(search.find(searchQuery::parse("x"), 1).total, 2499);
    search.clear();
    QCOMPARE(search.find(searchQuery::parse("x"), 1).total, 0);
}

KIVZP_TEST(tst_materialSearch)
#include "tst_materialSearch.moc"

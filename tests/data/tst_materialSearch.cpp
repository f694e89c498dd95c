// Finding materials by what is typed, and by their KTM.
#include "testSupport.h"

#include "data/materialSearch.h"
#include "util/translation.h"

using namespace testSupport;

class tst_materialSearch : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        group(*m_database, "Elementy różne");
    }

    void cleanup() { translation::install("en"); }

    // Grouped by what is found.
    void queries_data()
    {
        const rows<QString> row;
        row.each({"", "różne", "case:"}, "R1 R2 C1 D1 S1");
        row.each({"kondensator", "KONDENSATOR", "tme-77", "value:<1u", "100n", "0.1u", "0,1 µF", "10 %", "cena:12,5",
                  "stock:0"},
                 "C1");
        row.each({"DŁAWIK", "dlawik", "grupa:rozne d1", "aktywny:NIE ktm:d", "price:1250.00", "http://x.pl", "1:10"},
                 "D1");
        row.each({"zyst", "4k7", "4.7k", "4.7 kΩ", "4700", "value:4.7kohm", "value:4.7 kohm", "wartość:4k7",
                  "value:>4k", "ktm:r", "stan:>0"},
                 "R1 R2");
        row.each({"rezystor 0603", "0603 rezystor", "\"rezystor smd\"", "yageo", "rc0603fr", "maker:yageo",
                  "producent:YAGEO", "part:rc0603", "tolerance:<=5", "case:0603", "case:060", "opis:0603", "name:0603",
                  "status:green case:0603", "active:yes", "price:<=0.02", "case: yageo", "unit:szt.",
                  "unit:pcs."},
                 "R1");
        row.each({"rezystor kondensator", "\"smd rezystor\"", "supplier:yageo", "value:4.7", "value:470mOhm", "100nH",
                  "16A", "case:=060", "case:rezystor", "price:2", "1250"},
                 "");
        row.each({"dostawca:tme", "status:zielony"}, "R1 C1");
        row.each({"value:>= 4k7 case:1206", "16 A", "obudowa:1206", "status:szary", "magazyn:=500"}, "R2");
        row.each({"value:M3", "value:=M3"}, "S1");
        row.each({"case:\"\"", "stock:\"\""}, "D1 S1");
        row.each({"part:\"\""}, "R2 D1 S1");
        row.each({"price:>10", "price:> 10", "C1|D1", "price:12..2000"}, "C1 D1");
        row.each({"value:4k..5k", "value:4k7\u00b11%", "value:4.6k+-5%", "value:1k..", "4k7|0R1", "!C1|D1|S1"},
                 "R1 R2");
        row.each({"case:0603|0805", "case:0603|ktm:C1 !szary", "price:0.01..12.5", "rezystor|kondensator !drutowy"},
                 "R1 C1");
        row.each({"power:1/4", "power:1/4W", "power:250mW", "power:>=0.2", "1/4 W", "power:0.2..1/3W", "power:..1W"},
                 "R2");
        row.each({"stock:\"x\"", "name:=\"op amp\"", "value:\"0..1\"", "opis:=\"16 A\""}, "");
        row("opis:=\"ceramiczny X7R\"", "C1");
        row("price:>\"1000\" active:n", "D1");
        row("opis:x7r|\"drutowy 16\"", "R2 C1");
        row.each({"!opis:x", "-opis:x", "! !opis:x", "!opis:x|"}, "R1 R2 S1");
    }

    void queries()
    {
        materialStruct *m = append("R1", "RC0603FR-074K7L", "Rezystor SMD 0603");
        fill(m, "4.7kΩ", "0603", "100", "ZIELONY", "0.02", "±5%");
        m->d_active = "TAK";
        m->d_unit = "pcs.";
        manufacturer(m, "Yageo", "RC0603FR-074K7L");
        supplier(m, "TME", "RC0603FR-074K7L");
        m = append("R2", "Rezystor", "drutowy 16 A");
        fill(m, "4k7 1%", "1206", "500", "SZARY");
        m->d_power = "1/4";
        m = append("C1", "Kondensator", "ceramiczny X7R");
        fill(m, "100 nF", "0805", "0", "ZIELONY", "12.50", "±10%");
        supplier(m, "TME", "TME-77");
        append("D1", "Dławik", "1:10 http://x.pl")->d_price = "1 250,00";
        append("S1", "Wkręt")->d_value = "M3";

        const auto [ktms] = fetch<QString>();
        materialSearch search;
        search.add(m_database.get());
        translation::install("pl");
        const searchQuery parsed = searchQuery::parse(tag());
        QVERIFY2(parsed.errors().isEmpty(), qPrintable(parsed.errors().join(' ')));
        QStringList filtered;
        for (const auto &present : m_database->groups[0]->items)
            if (search.matches(present.get(), parsed))
                filtered << present->d_ktm;
        QCOMPARE(filtered.join(' '), ktms);
        QStringList all = found(search, tag());
        std::sort(all.begin(), all.end());
        std::sort(filtered.begin(), filtered.end());
        QCOMPARE(all, filtered);
    }

    void order_data()
    {
        const rows<QString> row;
        row("lm358", "3 LM358 4 5 2 1 0");
        // The whole name of two words.
        row("op amp", "7 6");
        // An equal part number first, an equal case not.
        row("qq", "12 11 10");
        // An equal number before the inside of another.
        row("10k", "8 9");
    }

    void order()
    {
        append("0", "a", "xLM358");
        append("1", "aLM358");
        append("2", "b", "zamiennik LM358");
        append("3", "lm358");
        append("LM358", "c");
        append("4", "Wzmacniacz LM358N");
        manufacturer(append("5", "d"), "", "LM358-SMD");
        append("6", "op amp dual", "");
        append("7", "op amp", "");
        append("9", "x110k");
        append("10", "f")->d_case = "QQ";
        append("11", "QQ g");
        materialStruct *two = append("12", "h");
        supplier(two, "", "QQ-100");
        supplier(two, "", "QQ");
        append("8", "e")->d_value = "0.01M";
        const auto [ktms] = fetch<QString>();
        materialSearch search;
        search.add(m_database.get());
        QCOMPARE(found(search, tag()).join(' '), ktms);
    }

    // Equal matches come in the order of the databases and their materials, not in that of their texts.
    void limitAndTotal()
    {
        for (int i = 0; i < 50; ++i)
            append(QString::number(149 - i), "x");
        kiv_mat_databaseStruct second;
        material(second, "A", "000", "x");
        materialSearch search;
        search.add(m_database.get());
        search.add(&second);
        const materialSearch::result some = search.find(searchQuery::parse("x"), 3);
        QCOMPARE(some.total, 51);
        QCOMPARE(some.entries.size(), size_t(3));
        QCOMPARE(some.entries[2].material->d_ktm, QString("147"));
        QCOMPARE(some.entries[2].database, m_database.get());
        QCOMPARE(some.entries[2].group, m_database->groups[0].get());
        const materialSearch::result all = search.find(searchQuery::parse("x"), 100);
        QCOMPARE(all.entries.size(), size_t(51));
        QCOMPARE(all.entries.back().database, &second);
        QCOMPARE(search.find(searchQuery::parse("x"), -1).total, 51);
    }

    // What is named, and what is marked.
    void faults_data()
    {
        const rows<QString, QString> row;
        row("colour:red x", "colour", "colour");
        row("kolor:\"a b\" x", "kolor", "kolor");
        row("price:>abc x", "abc", ">abc");
        row("price:1..b x", "1..b", "1..b");
        row("price:.. x", "..", "..");
        row("name:>5 x", "name", ">5");
        row("obudowa:<=0603 x", "obudowa", "<=0603");
        row("case:0603..0805 x", "case", "0603..0805");
        row("x price:1|cheap", "cheap", "cheap");
        row("voltage:5x x", "5x", "5x");
        row("!active:perhaps x", "perhaps", "perhaps");
        row("x colour:red|blue", "colour", "colour");
    }

    void faults()
    {
        const searchQuery query = searchQuery::parse(tag());
        const auto [named, marked] = fetch<QString, QString>();
        QCOMPARE(query.errors().size(), 1);
        QVERIFY(query.errors()[0].contains(named));
        QCOMPARE(tag().mid(query.faults()[0].begin, query.faults()[0].length), marked);
        // The rest still counts.
        QCOMPARE(query.terms().size(), size_t(tag().contains("price:1|") ? 2 : 1));
    }

    // What a search remembers of the one before never changes its answer.
    void typingFindsWhatAFreshSearchFinds()
    {
        const QStringList words{"4k7", "4700", "0603", "rez", "ystor", "100n", "x7r", "4", "k"};
        QRandomGenerator random(20261125);
        for (int i = 0; i < 200; ++i) {
            const auto word = [&] { return words[random.bounded(words.size())]; };
            append(QString::number(i), word() + word(), word())->d_value = word();
        }
        materialSearch typed;
        typed.add(m_database.get());
        for (const QString text : {"rezystor 4k7 0603", "4700 100 n value:4k", "0603 0603", "\"k rez"}) {
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
    void randomChangesStayInStep()
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

    void slicesAndCancel()
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

    void ktmOfTheFirstDatabaseWins()
    {
        kiv_mat_databaseStruct warehouse;
        kiv_mat_databaseStruct author;
        const materialStruct *first = material(warehouse, "G", "A");
        material(warehouse, "G", "");
        material(warehouse, "G", "");
        const materialStruct *second = material(author, "G", "A");
        material(author, "G", "B");
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
    void ktmIndexStaysInStep()
    {
        QRandomGenerator random(20261124);
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 40; ++i)
            material(database, "G", QString::number(random.bounded(15)));
        std::vector<materialStruct *> in;
        ktmIndex index;
        for (int step = 0; step < 2000; ++step) {
            materialStruct *chosen = database.groups[0]->items[random.bounded(40u)].get();
            const auto at = std::find(in.begin(), in.end(), chosen);
            if (at != in.end()) {
                index.remove(chosen);
                in.erase(at);
            }
            if (random.bounded(3) != 0) {
                chosen->d_ktm = QString::number(random.bounded(15));
                index.insert({chosen, database.groups[0].get(), &database});
                in.push_back(chosen);
            }
            // One that was never put in has no effect on the others with its KTM.
            materialStruct stranger;
            stranger.d_ktm = chosen->d_ktm;
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

private:
    materialStruct *append(const QString &ktm, const QString &name, const QString &description = {})
    {
        materialStruct *added = material(*m_database, m_database->groups[0]->name, ktm, name);
        added->d_description = description;
        return added;
    }
    static void fill(materialStruct *m, const char *value, const char *box, const char *stock, const char *status,
                     const char *price = "", const char *tolerance = "")
    {
        m->d_value = value;
        m->d_case = box;
        m->d_inWarehouse = stock;
        m->information.status = status;
        m->d_price = price;
        m->d_tolerance = tolerance;
    }
    // The KTMs found, in order.
    static QStringList found(materialSearch &search, const QString &query)
    {
        QStringList result;
        for (const materialSearch::entry &entry : search.find(searchQuery::parse(query), 1000).entries)
            result << entry.material->d_ktm;
        return result;
    }
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
};

KIVZP_TEST(tst_materialSearch)
#include "tst_materialSearch.moc"

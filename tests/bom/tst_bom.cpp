// BOM lists: sums, what is needed, order lines, and exports.
#include "testSupport.h"

#include "bom/boardStock.h"
#include "bom/bomReport.h"
#include "data/configStruct.h"
#include "data/reservationsFile.h"

using namespace testSupport;
using namespace bomOperations;

class tst_bom : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_database->groups.push_back(std::make_unique<d_groupStruct>());
        addMaterial("A", "0,5", "10");
        addMaterial("B", "2", "1000");
        addMaterial("C", "none", "", "m");
        addMaterial("D", "1", "-3");
        addMaterial("SRV-000.100", "20", "0");
        m_index.add(m_database.get());
    }

    void cleanup() override
    {
        m_index.clear();
        m_lists.clear();
        m_database.reset();
        folderTest::cleanup();
    }

    void sumsPerSetAndTimesSets()
    {
        const kiv_mat_bomStruct *one = list("A 4;B 1,5;X 7;C 2;A many;A -1;B inf");
        const lineSums sums = sumsOf(*one, m_index);
        QCOMPARE(sums.lines, 7);
        QCOMPARE(sums.unknown, 1);
        QCOMPARE(sums.quantity.amount.text(), QString("14.5"));
        QCOMPARE(
            sums.price.money() + sums.price.note(),
            QString("5.00 (3 lines without a readable quantity are left out; 1 line of an unknown material is left "
                    "out; 1 line whose price is no number is left out)"));
        QCOMPARE(sums.averagePrice.money(), QString("7.50"));
        const lineSums all = sumsOf({{one, 2}, {list("B 1"), 10}, {list("B 1"), 0}}, m_index);
        QCOMPARE(all.price.money(), QString("30.00"));
        QCOMPARE(all.price.leftOut, sums.price.leftOut);
        QCOMPARE(all.lines, 8);
    }

    void demandIsSummedFirst()
    {
        const kiv_mat_bomStruct *odd = list("A 4;A x;E -1;X 1;X 2");
        const kiv_mat_bomStruct *nameless = list(" 3; 5");
        nameless->materials[1]->d_name = "another";
        const demand of = demandOf({{odd, 3}, {list("B 5"), 0}, {nameless, 1}, {list("A 0.5;D 2;C 3"), 2}}, m_index);
        QString needs;
        for (const need &one : of.needs)
            for (int column = 0; column < bomReport::needColumns; ++column)
                needs += bomReport::needText(one, bomReport::needColumn(column)) + '|';
        QCOMPARE(needs, QString("A|name of A|13|10|3|Yes|X|own name|9|?|9|No||own name|3|?|3|No||another|5|?|5|No|"
                                "D|name of D|4|-3|4|Yes|C|name of C|6|?|6|Yes|"));
        QCOMPARE(of.uncounted, std::vector<const materialStruct *>({odd->materials[1].get(), odd->materials[2].get()}));
        QCOMPARE(shortagesOf(of).size(), size_t(6));
        QVERIFY(shortagesOf(demandOf({{list("A 0.1;A 2,6"), 3}, {list("A 1.9"), 1}}, m_index)).empty());
    }

    void intoTheOrder_data()
    {
        const rows<QString, int, int, QString, int> row;
        const int all = int(amount::needed);
        const int some = int(amount::shortage);
        const int topUp = int(amount::topUp);
        const int raise = int(present::raise);
        const int add = int(present::add);
        const int skip = int(present::skip);
        // Needed: 12 A, 2 B and 3 metres of C.
        row("empty", "", all, raise, "A 12 pcs.;B 2 pcs.;C 3 m", 0);
        row("short", "", some, raise, "A 2 pcs.;C 3 m", 0);
        row("raise", "A 1,5 pcs.;Z 1;B 1", all, raise, "A 13.5 pcs.;Z 1;B 3;C 3 m", 0);
        row("raise the first", "A 1;A 2", some, raise, "A 3;A 2;C 3 m", 0);
        row("raise an empty one", "A  pcs.", some, raise, "A 2 pcs.;C 3 m", 0);
        row("other unit", "C 1 reel;C 2 m", some, raise, "C 1 reel;C 5 m;A 2 pcs.", 0);
        row("only other units", "C 1 reel;A 1", some, raise, "C 1 reel;A 3;C 3 m", 0);
        row("no number is kept", "A some", some, raise, "A some;A 2 pcs.;C 3 m", 0);
        row("top up", "A 11.5;B 7", topUp, raise, "A 12;B 7;C 3 m", 0);
        row("top up beside", "A 5;A 4 reel;C 3 m", topUp, add, "A 5;A 4 reel;C 3 m;A 7 pcs.;B 2 pcs.", 0);
        row("topped up once", "A 12;B 2", topUp, raise, "A 12;B 2;C 3 m", 0);
        row("add", "A 1", some, add, "A 1;A 2 pcs.;C 3 m", 0);
        row("skip", "A 1;C x", all, skip, "A 1;C x;B 2 pcs.", 2);
    }

    void intoTheOrder()
    {
        const auto [before, which, existing, after, skipped] = fetch<QString, int, int, QString, int>();
        kiv_mat_zpStruct order;
        fill(order, before);
        const demand of = demandOf({{list("A 4;B 0;C 1"), 3}, {list("B 1;A 0"), 2}}, m_index);
        orderPlan plan = planOf(of, order, {amount(which), present(existing)}, QDate(2026, 11, 24));
        QCOMPARE(shown(order), before);
        QCOMPARE(plan.skipped, skipped);
        apply(std::move(plan), &order);
        QCOMPARE(shown(order), after);
        const orderItemStruct &last = *order.orderItems.items.back();
        QCOMPARE(last.index, QString::number(order.orderItems.items.size()));
        QCOMPARE(last.wait, QString("24.11.2026"));
    }

    void rules_data()
    {
        const rows<QString, QString, QString, QString> row;
        // Needed are 12 A of case 0402 and 3 metres of C; what is ordered of both, and what is not understood.
        row("none", "", "", "A 12;C 3", "");
        row("share", "0402: 5%; *: 50 %", "", "A 13;C 4.5", "");
        row("at least", "0402:1% 10", "", "A 22;C 3", "");
        row("least alone", "* : 2", "", "A 14;C 5", "");
        row("comma", "0402: 12,5%", "", "A 14;C 3", "");
        row("multiple", "", "pcs.: 5; m: 2", "A 15;C 4", "");
        row("both", "0402: 30%", "pcs.:4", "A 16;C 3", "");
        row("faults", "0402; 0603: x; :5; 0402: 1%", "reel: 0; foot: 3", "A 13;C 3", "0402|0603: x|:5|reel: 0|foot: 3");
    }

    void rules()
    {
        const auto [attrition, multiples, ordered, faults] = fetch<QString, QString, QString, QString>();
        orderRules rules;
        const QStringList found = rules.readAttrition(attrition) + rules.readMultiples(multiples);
        QCOMPARE(found.join('|'), faults);
        materialStruct pieces;
        pieces.d_case = " 0402";
        materialStruct metres;
        metres.d_unit = "m";
        const auto shown = [&rules](const materialStruct &material, const char *needed) {
            const decimal amount = *decimal::read(needed);
            return rules.raised(material, amount + rules.extra(material, amount)).text();
        };
        QCOMPARE("A " + shown(pieces, "12") + ";C " + shown(metres, "3"), ordered);
    }

    // --- Stock for boards ---

    void releasing_data()
    {
        const rows<QString, int, QString, QString> row;
        // Reserved are boards "SETS: KTM QUANTITY, ..."; what is left of them, and what was released.
        row("none", "", 3, "", "");
        row("a whole one", "3: A 12", 3, "", "3: A 12");
        row("more than there is", "3: A 12", 9, "", "3: A 12");
        row("a part, whole pieces stay whole", "3: A 10, B 7", 1, "2: A 7, B 5", "1: A 3, B 2");
        row("fractions", "4: A 1.5", 1, "3: A 1.125", "1: A 0.375");
        row("the oldest first", "2: A 2;5: A 5", 3, "4: A 4", "2: A 2;1: A 1");
    }

    void releasing()
    {
        const auto [before, sets, left, taken] = fetch<QString, int, QString, QString>();
        kiv_mat_reservationsStruct all;
        all.filePath = m_folder->path("reservations.xml");
        reserve(all, "b.xml", before);
        reserve(all, "other.xml", "7: A 7");
        const auto released = releaseReserved(&all, m_folder->path("b.xml"), sets);
        QCOMPARE(shown(released), taken);
        QCOMPARE(shown(all.reserved.items), (left.isEmpty() ? QString() : left + ';') + "7: A 7");
    }

    void reservedForOthers()
    {
        kiv_mat_reservationsStruct all;
        all.filePath = m_folder->path("reservations.xml");
        reserve(all, "b.xml", "5: A 20, B 900");
        reserve(all, "other.xml", "1: A 3, B 1");
        kiv_mat_bomStruct *bom = list("A 4;B 300");
        bom->filePath = m_folder->path("b.xml");
        const std::vector<bomSets> lists{{bom, 2}};
        demand of = demandOf(lists, m_index);
        boardStock::noteReserved(&of, lists, m_index, all);
        // Of its own 20 A the board needs 8 now; 15 are left reserved, and nothing of 10 in stock is free.
        QCOMPARE(of.needs[0].reserved.text() + ' ' + of.needs[0].shortage().text(), QString("15 8"));
        QCOMPARE(of.needs[1].reserved.text() + ' ' + of.needs[1].shortage().text(), QString("301 0"));
    }

    void takingOut()
    {
        auto *bom = list("A 4;B 0,5;C 1;D 2;X 1;A 1");
        bom->filePath = m_folder->path("b.xml");
        m_database->filePath = m_folder->path("db.xml");
        const std::vector<bomSets> lists{{bom, 3}};
        const demand of = demandOf(lists, m_index);
        const auto takings = boardStock::takingsOf(of, m_index, true);
        QString seen;
        for (const auto &one : takings)
            seen += one.of->ktm + ' ' + one.wanted.text() + ' ' + one.before.text() + ' ' + one.after.text() + ' '
                    + one.lacking.text() + (one.fault.isEmpty() ? "" : " " + one.fault) + '|';
        QCOMPARE(seen, QString("A 15 10 0 5 not enough in stock|B 1.5 1000 998.5 0|C 3 0 0 3 the stock is no number|"
                               "D 6 -3 -3 6 not enough in stock|X 3 0 0 3 in no database|"));

        // What is kept of it, through the file and back.
        reservationsFile file(m_folder->path("reservations.xml"));
        configStruct config;
        config.setDefaults();
        QString fault;
        QVERIFY(file.change(
            [&](kiv_mat_reservationsStruct &all) {
                reserve(all, "b.xml", "5: A 20");
                return true;
            },
            config, &fault));
        const auto withdrawals = boardStock::withdrawalsOf(takings, lists, m_index, {}, file.path(), {"me", {}, true});
        QCOMPARE(withdrawals.size(), size_t(1));
        QCOMPARE(withdrawals[0].changes.size(), size_t(2));
        QCOMPARE(withdrawals[0].changes[1].material->d_ktm + withdrawals[0].changes[1].after, QString("B998.5"));
        const boardStruct &board = *withdrawals[0].boards.at(0);
        QVERIFY(file.change(
            [&board](kiv_mat_reservationsStruct &all) {
                noteBuilt(&all, board);
                return true;
            },
            config, &fault));
        QCOMPARE(shown(file.now().reserved.items), QString("2: A 8"));
        QCOMPARE(shown(file.now().built.items), QString("3: A 15, B 1.5, C 3, D 6"));
        const boardStruct &built = *file.now().built.items[0];
        QCOMPARE(built.list + built.author + built.database + built.released, QString("b.xmlmedb.xml3"));
        QCOMPARE(built.items[1]->before + '>' + built.items[1]->after, QString("1000>998.5"));
    }

    // What cannot be read is said with its place, and stays as it is.
    void brokenReservations()
    {
        const QByteArray broken = document("kiv_mat_reservations", "KIV_MAT_RESERVATIONS_1", "kiv_mat_reservations.xsd",
                                           "<reserved><board colour=\"1\"/></reserved>");
        m_folder->write("reservations.xml", broken);
        reservationsFile file(m_folder->path("reservations.xml"));
        configStruct config;
        QVERIFY(file.now().reserved.items.empty());
        QVERIFY2(file.fault().contains("line 2, column") && file.fault().contains("colour"), qPrintable(file.fault()));
        QString fault;
        QVERIFY(!file.change([](kiv_mat_reservationsStruct &) { return true; }, config, &fault));
        QCOMPARE(fault, file.fault());
        QCOMPARE(read(file.path()), broken);
    }

    void shipmentIsNeverDoubled()
    {
        for (const present existing : {present::add, present::raise}) {
            kiv_mat_zpStruct order;
            fill(order, "SRV-000.100 1 set");
            apply(planOf(demandOf({{list("SRV-000.100 1"), 1}}, m_index), order, {amount::needed, existing}, {}), &order);
            QCOMPARE(shown(order), QString("SRV-000.100 1 set"));
        }
    }

    void unknownMaterialsAreNamed()
    {
        const kiv_mat_zpStruct order;
        const demand of = demandOf({{list("X 1; 2;A 1"), 1}}, m_index);
        const orderPlan plan = planOf(of, order, {amount::needed, present::raise}, {});
        QCOMPARE(plan.unknown, std::vector<const need *>({&of.needs[0], &of.needs[1]}));
        QCOMPARE(of.needs[0].name, QString("own name"));
        QCOMPARE(plan.changes.size(), size_t(1));
    }

    void csv()
    {
        QCOMPARE(bomReport::csv(*list(""), m_index), QString());
        QCOMPARE(bomReport::csv(*list("A 4;\u0179-1 2,5;B many\t\"a\"\n"), m_index),
                 QString("A\t4\n!!!!!\u0179-1\t2,5\nB\tmany \"a\" \n"));
    }

    void page()
    {
        const kiv_mat_bomStruct *bom = list("A 4;X<b> 1");
        bom->materials[0]->d_designator = "R1 & R2";
        auto maker = std::make_unique<manufacturerStruct>();
        maker->name = "Yageo";
        maker->partNo = "RC<1";
        m_database->groups[0]->items[0]->manufacturers.append(std::move(maker));
        const QString html = bomReport::page({{bom, 3}}, m_index);
        QVERIFY(html.startsWith("<!DOCTYPE html><meta charset=\"UTF-8\">\n"));
        QCOMPARE(html.count("<table"), 1);
        QCOMPARE(html.count("<tr"), 3);
        QVERIFY(html.contains("<b>name of A</b><br>A<"));
        QVERIFY(html.contains("Yageo RC&lt;1"));
        QVERIFY(html.contains("R1 &amp; R2"));
        QVERIFY(html.contains("!!!!!X&lt;b&gt;"));
        QVERIFY(html.contains("2.00 [ PLN ]") && html.contains("6.00 [ PLN ]"));
        QVERIFY(!bomReport::page({{bom, 1}}, m_index).contains("6.00 [ PLN ]"));
        QVERIFY(bomReport::sums(sumsOf(*bom, m_index), 3).startsWith("<table style=\"width:80%\">"));
    }

    void reading_data()
    {
        const rows<QByteArray, QString> row;
        row("good", testSupport::bom("<update/><material><d_ktm>A</d_ktm></material>"), "");
        row("invalid", bom("<colour/>"), "File corrupted<b>%1</b>&nbsp;[");
        row("cut", bom("<material>").chopped(20), "File corrupted<b>%1</b>&nbsp;[");
        row("missing", QByteArray(), "File does not exist or corrupted<b>%1</b>&nbsp;[");
    }

    void reading()
    {
        auto [content, error] = fetch<QByteArray, QString>();
        const QString path = m_folder->path("b.xml");
        if (!content.isEmpty())
            m_folder->write("b.xml", content);
        kiv_mat_bomStruct bom;
        QString line;
        QCOMPARE(readBom(path, &bom, &line), error.isEmpty());
        if (!error.isEmpty())
            // The catalogues end the text with a blank.
            QVERIFY2(line.remove(' ').startsWith(error.remove(' ').arg(path)) && line.endsWith("]<br>"),
                     qPrintable(line));
    }

    void namesInASet()
    {
        kiv_mat_bomsStruct boms;
        QCOMPARE(loadBoms(source("_files/boms.xml"), &boms), 0);
        const QStringList paths = filesOf(boms, source("_files/boms.xml"));
        QCOMPARE(paths.size(), 5);
        for (const QString &path : paths)
            QVERIFY2(QFile::exists(path), qPrintable(path));
        fileStruct entry;
        QCOMPARE(pathOf(entry, "/x/boms.xml"), QString());
        entry.name = "../y/b.xml";
        QCOMPARE(pathOf(entry, "/x/boms.xml"), QString("/y/b.xml"));
        entry.name = "/z/b.xml";
        QCOMPARE(pathOf(entry, "/x/boms.xml"), QString("/z/b.xml"));
    }

    void newLine()
    {
        QVERIFY(!newBomLine("X", m_index));
        QCOMPARE(doesNotExist("X"), QString("Material [ X ] does not exist<br>"));
        const auto line = newBomLine("B", m_index);
        QCOMPARE(line->d_ktm + line->d_name + line->d_quantity, QString("Bname of B1"));
    }

private:
    void addMaterial(const char *ktm, const char *price, const char *stock, const char *unit = "")
    {
        materialStruct *m = m_database->groups[0]->append(std::make_unique<materialStruct>());
        m->d_ktm = ktm;
        m->d_name = QString("name of ") + ktm;
        m->d_price = price;
        m->d_averagePrice = "1";
        m->d_inWarehouse = stock;
        m->d_unit = unit;
    }
    // A list of "KTM quantity" pairs, separated by ";".
    kiv_mat_bomStruct *list(const QString &lines)
    {
        m_lists.push_back(std::make_unique<kiv_mat_bomStruct>());
        for (const QString &pair : lines.split(';', Qt::SkipEmptyParts)) {
            auto line = std::make_unique<materialStruct>();
            line->d_ktm = pair.section(' ', 0, 0);
            line->d_quantity = pair.section(' ', 1);
            line->d_name = "own name";
            m_lists.back()->materials.push_back(std::move(line));
        }
        return m_lists.back().get();
    }
    // Boards as "SETS: KTM QUANTITY, ...", separated by ";".
    static void reserve(kiv_mat_reservationsStruct &all, const char *list, const QString &boards)
    {
        for (const QString &text : boards.split(';', Qt::SkipEmptyParts)) {
            boardStruct *board = all.reserved.append(std::make_unique<boardStruct>());
            board->list = list;
            board->sets = text.section(": ", 0, 0);
            for (const QString &pair : text.section(": ", 1).split(", ")) {
                boardLineStruct *line = board->append(std::make_unique<boardLineStruct>());
                line->ktm = pair.section(' ', 0, 0);
                line->quantity = pair.section(' ', 1);
            }
        }
    }
    static QString shown(const std::vector<std::unique_ptr<boardStruct>> &boards)
    {
        QStringList texts;
        for (const auto &board : boards) {
            QStringList pairs;
            for (const auto &line : board->items)
                pairs.append(line->ktm + ' ' + line->quantity);
            texts.append(board->sets + ": " + pairs.join(", "));
        }
        return texts.join(';');
    }
    // The same form for the lines of an order, with the unit behind.
    static void fill(kiv_mat_zpStruct &order, const QString &lines)
    {
        for (const QString &text : lines.split(';', Qt::SkipEmptyParts)) {
            orderItemStruct *line = order.orderItems.append(std::make_unique<orderItemStruct>());
            line->ktm = text.section(' ', 0, 0);
            line->quantity = text.section(' ', 1, 1);
            line->unit = text.section(' ', 2);
        }
    }
    static QString shown(const kiv_mat_zpStruct &order)
    {
        QStringList lines;
        for (const auto &line : order.orderItems.items)
            lines.append((line->ktm + ' ' + line->quantity + ' ' + line->unit).trimmed());
        return lines.join(';');
    }

    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    ktmIndex m_index;
    std::vector<std::unique_ptr<kiv_mat_bomStruct>> m_lists;
};

KIVZP_TEST(tst_bom)
#include "tst_bom.moc"

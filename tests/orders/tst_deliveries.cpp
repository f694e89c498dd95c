// What came of orders: in whole and in part, into stock once, and orders with others in their place.
#include "bom/bomOperations.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "order/deliveries.h"
#include "orders/deliveredStock.h"
#include "orders/orderRegister.h"
#include "testSupport.h"

using namespace testSupport;

class tst_deliveries : public folderTest
{
    Q_OBJECT
    // "KTM quantity unit delivery" between semicolons.
    static std::unique_ptr<kiv_mat_zpStruct> orderOf(const QString &lines)
    {
        auto order = std::make_unique<kiv_mat_zpStruct>();
        for (const QString &one : lines.split(';', Qt::SkipEmptyParts)) {
            auto *line = appendTo(order->orderItems);
            line->ktm = one.section(' ', 0, 0);
            line->quantity = one.section(' ', 1, 1);
            line->unit = one.section(' ', 2, 2);
            line->delivery = one.section(' ', 3);
            line->price = "2";
            line->index = QString::number(order->orderItems.items.size());
        }
        return order;
    }
    static QString shown(const kiv_mat_zpStruct &order)
    {
        QStringList all;
        for (const auto &line : order.orderItems.items)
            all.append(QStringList{line->index + ":" + line->ktm, line->quantity, line->unit, line->delivery}
                           .join(' ')
                           .trimmed());
        return all.join(';');
    }
    static materialStruct *material(kiv_mat_databaseStruct &database, const QString &ktm, const QString &stock)
    {
        if (database.groups.empty())
            database.groups.push_back(std::make_unique<d_groupStruct>());
        auto *one = appendTo(*database.groups.front());
        one->d_ktm = ktm;
        one->d_unit = "pcs.";
        one->d_inWarehouse = stock;
        return one;
    }

private slots:
    void linesComeInParts_data()
    {
        const rows<QString, QString> row;
        const QString order = "A 10;B 2.5 m;C 4 pcs. WZ;D x";
        row("1", "1:A 10  W;2:B 2.5 m;3:C 4 pcs. WZ;4:D x", "");
        row("1=4", "1:A 4  W;2:A 6;3:B 2.5 m;4:C 4 pcs. WZ;5:D x", "");
        row("2=0.5, 1=9.75", "1:A 9.75  W;2:A 0.25;3:B 0.5 m W;4:B 2 m;5:C 4 pcs. WZ;6:D x", "");
        row("1-2", "1:A 10  W;2:B 2.5 m W;3:C 4 pcs. WZ;4:D x", "");
        row("1=10", "1:A 10  W;2:B 2.5 m;3:C 4 pcs. WZ;4:D x", "");
        // All or nothing.
        row("1, 2=3", "", "Line 2 B: 3 came, but only 2.5 were ordered");
        row("1=0", "", "Line 1 A: nothing came of it");
        row("1=-1", "", "Line 1 A: nothing came of it");
        row("3", "", "Line 3 C was delivered already, or has no quantity");
        row("4", "", "Line 4 D was delivered already, or has no quantity");
        row("1, 1=2", "", "Line 1 is named twice");
        row("5", "", "names no lines");
        row("2-1", "", "names no lines");
        row("1=x", "", "names no lines");
        row("", "", "names no lines");
    }
    void linesComeInParts()
    {
        const auto [after, fault] = fetch<QString, QString>();
        const auto order = orderOf("A 10;B 2.5 m;C 4 pcs. WZ;D x");
        const QString before = shown(*order);
        QString why;
        const auto what = deliveries::read(tag(), *order, &why);
        if (what)
            why = deliveries::note(order.get(), *what, "W").faults.join('|');
        QVERIFY2(fault.isEmpty() ? why.isEmpty() : why.contains(fault), qPrintable(why));
        QCOMPARE(shown(*order), fault.isEmpty() ? after : before);
    }

    // Each delivery grows the stock once, also when more of it comes later, and of several databases.
    void deliveriesGoIntoStockOnce()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "5");
        material(database, "B", "");
        material(database, "X", "some");
        ktmIndex materials;
        materials.add(&database);
        const QString path = m_folder->path("zp/o.xml");
        const auto told = [&](const QString &lines, const deliveredStock::takenList &before) {
            QStringList all;
            for (const auto &one : deliveredStock::openOf(*orderOf(lines), materials, before))
                all.append(QStringList{one.ktm, one.delivery, one.quantity.text(), one.before, one.after, one.fault}
                               .join(' ')
                               .trimmed());
            return all.join(';');
        };
        const QString first =
            "A 3 pcs. W1;A 4 pcs. W1;A 2 pcs. W2;B 1 pcs. W1;A 9 pcs.;B 6 reel W3;N 1 pcs. W1;X 1 pcs. W1";
        const QString open = told(first, {});
        QCOMPARE(open, QString("A W1 7 5 12;A W2 2 12 14;B W1 1  1;B W3 6 1  the stock is counted in another unit;"
                               "N W1 1   no database has this KTM;X W1 1 some  the stock is no number"));
        configStruct config;
        QString fault;
        auto taken = deliveredStock::openOf(*orderOf(first), materials, {});
        taken.resize(3);
        QVERIFY2(deliveredStock::noteTaken(path, deliveredStock::takenOf(taken), config, &fault), qPrintable(fault));
        const auto before = deliveredStock::takenOf(path, &fault);
        QVERIFY(before && before->size() == 3);
        QCOMPARE(told("A 3 pcs. W1;A 4 pcs. W1;A 2 pcs. W2", *before), QString());
        QCOMPARE(told("A 9 pcs. W1;A 1 pcs. W4", *before), QString("A W4 1 5 6"));
        // A text that was corrected in its line is the same delivery.
        QCOMPARE(told("A 7 pcs. W1/2026;A 2 pcs. W2", *before), QString());
        QCOMPARE(told("A 8 pcs. W1/2026;A 2 pcs. W2", *before), QString("A W1/2026 1 5 6"));
        QVERIFY(deliveredStock::takenOf(m_folder->path("zp/p.xml"), &fault)->empty());
        // What was taken cannot be known from a damaged file.
        m_folder->write("zp/order_states.xml", "<spoilt");
        fault.clear();
        QVERIFY(!deliveredStock::takenOf(path, &fault) && fault.contains("line 1"));
        QVERIFY(!deliveredStock::noteTaken(path, deliveredStock::takenOf(taken), config, &fault));
    }

    // What came is on the way until it is in stock, where it counts as such.
    void stockIsNotOnTheWay()
    {
        const auto order = orderOf("K 10 pcs. W1;K 5 pcs.;K 2 reel W1");
        const QString path = m_folder->path("zp/o.xml");
        QCOMPARE(saveXmlNoEvents(path, order.get()), 0);
        orderRegister orders;
        configStruct config;
        QString fault;
        QStringList told;
        for (const char *taken : {"0", "4", "6"}) {
            QVERIFY(deliveredStock::noteTaken(path, {{"K", "W1", *decimal::read(taken)}}, config, &fault));
            orders.update({m_folder->path("zp")});
            told.append(
                QString("%1 in %2").arg(orders.beforeOf("K").onTheWayText()).arg(orders.beforeOf("K").open.size()));
        }
        QCOMPARE(told, (QStringList{"15 pcs., 2 reel in 3", "11 pcs., 2 reel in 3", "5 pcs., 2 reel in 2"}));
    }

    // Others are in the place of an order as long as one of them is there: then it is not on the way.
    void partedOrdersDoNotCount()
    {
        const auto put = [&](const QString &name, const QString &lines, const QString &number = {}) {
            const auto order = orderOf(lines);
            order->options.findOption(optionKey::orderNumber)->value1 = number.isEmpty() ? name : number;
            order->options.findOption(optionKey::orderDate)->value1 = "05.03.2026";
            return saveXmlNoEvents(m_folder->path("zp/" + name + ".xml"), order.get()) == 0;
        };
        QVERIFY(put("o", "K 10 pcs.") && put("o_A", "K 7 pcs.") && put("o_B", "K 3 pcs."));
        const QString path = m_folder->path("zp/o.xml");
        orderRegister orders;
        orders.update({m_folder->path("zp")});
        configStruct config;
        QString fault;
        for (const char *name : {"zp/o.xml", "zp/o_A.xml"})
            QVERIFY(orders.noteSent(m_folder->path(name), {"n", "anna", ""}, config, &fault));
        const auto told = [&] {
            const orderedBefore before = orders.beforeOf("K");
            return before.onTheWayText() + "|" + before.open.join(' ') + "|" + before.lastText();
        };
        QCOMPARE(told(), QString("17 pcs.|o_A: 7 pcs. o: 10 pcs.|05.03.2026, 2.00 PLN, o_A"));
        const int before = orders.revision();
        QVERIFY(orders.noteParted(path, {m_folder->path("zp/o_A.xml"), m_folder->path("zp/o_B.xml")}, config, &fault));
        QVERIFY(orders.revision() != before);
        QCOMPARE(told(), QString("7 pcs.|o_A: 7 pcs.|05.03.2026, 2.00 PLN, o_A"));
        for (const auto &order : orders.index().orders())
            QCOMPARE(orders.stageOf(order) == orderStage::parted, order.path == path);
        // The next number goes on from the order's own, not from those of its parts.
        QVERIFY(put("o", "K 10 pcs.", "ZP/8/2026") && put("o_A", "K 7 pcs.", "ZP/8/2026/1")
                && put("o_B", "K 3 pcs.", "ZP/8/2026/2"));
        orders.update({m_folder->path("zp")});
        QCOMPARE(orders.nextNumber(), nextOrderNumber({"ZP/8/2026"}, QDate::currentDate()));
        QVERIFY(put("o", "K 10 pcs."));
        QFile::remove(m_folder->path("zp/o_A.xml"));
        QFile::remove(m_folder->path("zp/o_B.xml"));
        orders.update({m_folder->path("zp")});
        QCOMPARE(told(), QString("10 pcs.|o: 10 pcs.|05.03.2026, 2.00 PLN, o"));
    }

    // What is on the way in the material's unit is not ordered again when the user says so.
    void neverTwice_data()
    {
        const rows<bool, QString> row;
        row("all", false, "A 12");
        row("less", true, "A 5");
    }
    void neverTwice()
    {
        const auto [neverTwice, ordered] = fetch<bool, QString>();
        kiv_mat_databaseStruct database;
        material(database, "A", "0");
        ktmIndex materials;
        materials.add(&database);
        kiv_mat_bomStruct bom;
        bom.materials.push_back(std::make_unique<materialStruct>());
        bom.materials.front()->d_ktm = "A";
        bom.materials.front()->d_quantity = "4";
        auto of = bomOperations::demandOf({{&bom, 3}}, materials);
        bomOperations::noteOrdered(
            &of,
            [](const QString &ktm, const QString &except) {
                orderedBefore before;
                if (ktm == "A" && except == "me")
                    before.onTheWay = {{"reel", *decimal::read("100")}, {"pcs.", *decimal::read("7")}};
                return before;
            },
            "me");
        kiv_mat_zpStruct order;
        bomOperations::apply(
            bomOperations::planOf(of, order, {bomOperations::amount::needed, bomOperations::present::raise, neverTwice},
                                  {}),
            &order);
        QCOMPARE(order.orderItems.items.front()->ktm + ' ' + order.orderItems.items.front()->quantity, ordered);
    }
};

KIVZP_TEST(tst_deliveries)
#include "tst_deliveries.moc"

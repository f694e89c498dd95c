// The register of orders: what is read of their files, kept, found and told of their lines.
#include "orders/orderRegister.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "testSupport.h"

using namespace testSupport;

class tst_orderIndex : public folderTest
{
    Q_OBJECT
    struct lineOf
    {
        QString ktm, name, quantity, price, delivery, invoice;
    };
    QString order(const QString &name, const QString &number, const QString &date, const std::vector<lineOf> &lines)
    {
        kiv_mat_zpStruct order;
        order.options.findOption(optionKey::orderNumber)->value1 = number;
        order.options.findOption(optionKey::orderDate)->value1 = date;
        order.options.findOption(optionKey::orderTarget)->value1 = "312-Łódź";
        for (const lineOf &one : lines) {
            auto *line = appendTo(order.orderItems);
            line->ktm = one.ktm;
            line->name = one.name;
            line->quantity = one.quantity;
            line->price = one.price;
            line->unit = "szt.";
            line->delivery = one.delivery;
            line->invoice = one.invoice;
        }
        const QString path = m_folder->path("zp/" + name);
        return saveXmlNoEvents(path, &order) == 0 ? path : QString();
    }
    QString linesOf(const orderIndex &index, const std::vector<orderIndex::place> &places)
    {
        QStringList all;
        for (const auto &at : places) {
            const auto &one = index.orders()[size_t(at.order)];
            all.append(one.number + ":" + QString::number(at.line));
        }
        return all.join(' ');
    }
    QStringList folders() { return {m_folder->path("zp")}; }

private slots:
    void init() override
    {
        folderTest::init();
        order("a.xml", "ZP/1/2025", "03.02.2025",
              {{"K-1", "Rezystor 10kΩ 0603", "100", "0.10", "WZ 7", "FV 8"},
               {"K-2", "Łącznik", "5", "2", "WZ 7", "FV 9"}});
        order("b.xml", "ZP/9/2026", "01.03.2026",
              {{"K-1", "Rezystor 10kΩ 0603", "40", "0.125", "WZ 12", ""}, {"K-3", "STM32F103", "2,5", "x", "", ""}});
        order("c.xml", "ZP/10/2026", "05.03.2026", {{"K-1", "Rezystor 10k", "7", "", "", ""}});
        m_folder->write("zp/other.xml", "<kiv_mat_firm/>");
        m_folder->write("zp/broken.xml", "<kiv_mat_zp><order_items>");
    }

    void ordersAreTold()
    {
        orderIndex index;
        QVERIFY(index.update(folders()));
        QStringList told;
        for (const auto &one : index.orders())
            told.append(QString("%1 %2 %3 %4 %5 %6")
                            .arg(one.number, one.date.toString(Qt::ISODate), one.sum.text())
                            .arg(one.leftOut)
                            .arg(one.lines.size())
                            .arg(stageName(one.stage)));
        QCOMPARE(told.join('|'),
                 QString("ZP/10/2026 2026-03-05 0 1 1 edited|ZP/9/2026 2026-03-01 5 1 2 partly_delivered|"
                         "ZP/1/2025 2025-02-03 20 0 2 invoiced"));
    }

    // Words of a line, of its order, and part numbers of its material, in whatever order and letters.
    void wordsFindLines_data()
    {
        const rows<QString> row;
        row("rezystor", "ZP/10/2026:0 ZP/9/2026:0 ZP/1/2025:0");
        row("k-1 0603", "ZP/10/2026:0 ZP/9/2026:0 ZP/1/2025:0");
        row("k-2 0603", "");
        row("LACZNIK", "ZP/1/2025:1");
        row("10kohm", "ZP/9/2026:0 ZP/1/2025:0");
        row("fv 8", "ZP/1/2025:0");
        row("zp/9/2026 stm", "ZP/9/2026:1");
        row("lodz 2025", "ZP/1/2025:0 ZP/1/2025:1");
        row("RC0603FR rezystor", "ZP/10/2026:0 ZP/9/2026:0 ZP/1/2025:0");
        row("RC0603FR fv", "ZP/1/2025:0");
        row("nothing", "");
        row("rezystor\nk-2", "");
        row("   ", "");
    }
    void wordsFindLines()
    {
        const auto [seen] = fetch<QString>();
        kiv_mat_databaseStruct database;
        auto group = std::make_unique<d_groupStruct>();
        auto *material = appendTo(*group);
        material->d_ktm = "K-1";
        appendTo(material->manufacturers)->partNo = "RC0603FR-0710KL";
        database.groups.push_back(std::move(group));
        ktmIndex materials;
        materials.add(&database);
        orderIndex index;
        index.update(folders());
        index.setMaterials(materials);
        const auto found = index.search(tag(), 100);
        QCOMPARE(linesOf(index, found.lines), seen);
        QCOMPARE(found.total, int(found.lines.size()));
        QCOMPARE(index.search("rezystor", 2).lines.size(), size_t(2));
        QCOMPARE(index.search("rezystor", 2).total, 3);
        QCOMPARE(index.search("rezystor", 2).orders, 3);
    }

    // The cache gives back what was read; changed, new and lost files are seen; one that is damaged costs a reading.
    void theCacheIsKeptInStep()
    {
        const QString cache = m_folder->path("cache/orders.sqlite");
        const auto told = [&](orderIndex &index) {
            int files = 0;
            index.update(folders(), [&files](long long, long long total) {
                files = int(total);
                return true;
            });
            QStringList all;
            for (const auto &one : index.orders())
                for (const auto &line : one.lines)
                    all.append(index.textOf(line, orderIndex::ktm) + index.textOf(line, orderIndex::quantity)
                               + one.sum.text() + one.number + stageName(one.stage));
            return QString::number(files) + ": " + all.join(' ');
        };
        const auto fresh = [&] { return told(*std::make_unique<orderIndex>(cache)); };
        const QString all = fresh();
        QVERIFY2(all.startsWith("5: ") && all.contains("K-17"), qPrintable(all));
        QCOMPARE(fresh(), "0" + all.mid(1));
        order("c.xml", "ZP/10/2026", "05.03.2026", {{"K-9", "new", "8", "1", "", ""}, {"K-1", "", "1", "", "", ""}});
        order("d.xml", "ZP/11/2026", "06.03.2026", {{"K-4", "", "3", "", "", ""}});
        QVERIFY(QFile::remove(m_folder->path("zp/a.xml")));
        const QString changed = fresh();
        QVERIFY2(changed.startsWith("2: K-4") && changed.contains("K-98") && !changed.contains("ZP/1/"),
                 qPrintable(changed));
        orderIndex plain;
        QCOMPARE(told(plain).section(": ", 1), changed.section(": ", 1));
        QCOMPARE(fresh().section(": ", 1), changed.section(": ", 1));
        write(cache, "no database");
        QFile::remove(cache + "-wal");
        QCOMPARE(fresh().section(": ", 1), changed.section(": ", 1));
        QVERIFY(fresh().startsWith("0: "));
    }

    void aCancelledReadingGoesOnLater()
    {
        orderIndex index(m_folder->path("o.sqlite"));
        QVERIFY(!index.update(folders(), [](long long done, long long) { return done < 2; }));
        int read = 0;
        QVERIFY(index.update(folders(), [&read](long long done, long long) {
            read = int(done);
            return true;
        }));
        QCOMPARE(read, 3);
        QCOMPARE(index.orders().size(), size_t(3));
    }

    void numbersGoOn_data()
    {
        const rows<QString> row;
        row("ZP/12/2026", "ZP/13/2026");
        row("ZP/9/2026 ZP/12/2026 X-77", "ZP/13/2026");
        row("ZP/12/2025 ZP/3/2024", "ZP/1/2026");
        row("2025-007 2025-012", "2026-001");
        row("2026-007 2026-012", "2026-013");
        row("A099", "A100");
        row("none 2026", "");
        row("", "");
        row("DO/332/20.08.2026 DO/340/3.01.2026 DO/900/2026", "DO/341/26.11.2026");
        row("12/2026/7", "12/2026/8");
    }
    void numbersGoOn()
    {
        const auto [next] = fetch<QString>();
        QCOMPARE(nextOrderNumber(tag().split(' ', Qt::SkipEmptyParts), QDate(2026, 11, 26)), next);
    }

    // Ordered is what was sent, or of which something came; invoiced is on the way no more.
    void materialsOnTheWay()
    {
        orderRegister orders;
        orders.update(folders());
        const auto told = [&](const QString &except = {}) {
            const orderedMaterial one = orders.orderedOf("K-1", except);
            QStringList all;
            for (const auto &[unit, quantity] : one.onTheWay)
                all.append(quantity.text() + ' ' + unit);
            if (one.last)
                all.append(linesOf(orders.index(), {*one.last}));
            return all.join('|');
        };
        QCOMPARE(told(), QString("40 szt.|ZP/9/2026:0"));
        QCOMPARE(told(m_folder->path("zp/b.xml")), QString("ZP/1/2025:0"));
        configStruct config;
        QString fault;
        const QString path = m_folder->path("zp/c.xml");
        QVERIFY2(orders.noteSent(path, {"ZP/10/2026", "anna", "a@b.pl"}, config, &fault), qPrintable(fault));
        QCOMPARE(told(), QString("47 szt.|ZP/9/2026:0"));
        QCOMPARE(orders.sentState(path)->by, QString("anna"));
        // The copy stays as it was sent; another program's look at the states agrees.
        const QByteArray sent = read(path);
        order("c.xml", "ZP/10/2026", "05.03.2026", {});
        QCOMPARE(read(orders.sentCopy(path)), sent);
        orderRegister other;
        other.update(folders());
        QCOMPARE(other.stageOf(other.index().orders().front()), orderStage::sent);
        QVERIFY(orders.takeBackSent(path, config, &fault));
        QVERIFY(!other.sentState(path));
        // A copy elsewhere is none.
        write(
            m_folder->path("zp/order_states.xml"),
            read(m_folder->path("zp/order_states.xml"))
                .replace("</kiv_mat_order_states>", "<order file=\"c.xml\" copy=\"../x.xml\"/></kiv_mat_order_states>")
                .replace("/>\n", "><order file=\"c.xml\" copy=\"../x.xml\"/></kiv_mat_order_states>\n"));
        m_folder->write("x.xml", "");
        QCOMPARE(other.sentCopy(path), QString());
    }

    // Nothing is noted of an order that cannot be kept, or where the states cannot be read.
    void nothingIsNotedHalf()
    {
        orderRegister orders;
        configStruct config;
        QString fault;
        QVERIFY(!orders.noteSent(m_folder->path("zp/none.xml"), {"n", "b", "t"}, config, &fault));
        QVERIFY(!fault.isEmpty() && !orders.sentState(m_folder->path("zp/none.xml")));
        m_folder->write("zp/order_states.xml", "<spoilt");
        fault.clear();
        QVERIFY(!orders.noteSent(m_folder->path("zp/a.xml"), {"n", "b", "t"}, config, &fault));
        QVERIFY(fault.contains("line 1"));
        QCOMPARE(orders.faults().size(), 1);
        QCOMPARE(read(m_folder->path("zp/order_states.xml")), QByteArray("<spoilt"));
        QVERIFY(QDir(m_folder->path("zp/sent")).isEmpty());
    }
};

KIVZP_TEST(tst_orderIndex)
#include "tst_orderIndex.moc"

// What is to be bought, parted by supplier: who gets what, with which part number, and in which file.
#include "testSupport.h"

#include "bom/supplierBasket.h"

using namespace testSupport;
using namespace supplierBasket;

class tst_supplierBasket : public folderTest
{
    Q_OBJECT

    // "TME/T-1,/x": names and part numbers.
    template <class List>
    static void fill(List &list, const QString &texts)
    {
        for (const QString &text : texts.split(',', Qt::SkipEmptyParts)) {
            auto *source = appendTo(list);
            source->name = text.section('/', 0, 0);
            source->partNo = text.section('/', 1, 1);
        }
    }
    void add(const QString &ktm, const QString &suppliers, const QString &makers, const QString &price = "2")
    {
        materialStruct *added = material(*m_database, "G", ktm, "name of " + ktm);
        added->d_price = price;
        fill(added->suppliers, suppliers);
        fill(added->manufacturers, makers);
    }
    // "SUPPLIER: KTM NUMBER QUANTITY (FAULT), ...; ..."
    static QString shown(const std::vector<basket> &baskets)
    {
        QStringList all;
        for (const basket &one : baskets) {
            QStringList lines;
            for (const line &each : one.lines)
                lines.append(QString("%1 %2 %3%4")
                                 .arg(each.of.ktm, each.partNumber, each.of.writtenQuantity,
                                      each.fault.isEmpty() ? "" : " (" + each.fault + ")"));
            all.append(one.supplier + ": " + lines.join(", "));
        }
        return all.join("; ");
    }
    std::vector<item> ordered(const QString &lines)
    {
        for (const QString &text : lines.split(';')) {
            auto *line = appendTo(m_order.orderItems);
            line->ktm = text.section(' ', 0, 0);
            line->quantity = text.section(' ', 1, 1);
            line->unit = text.section(' ', 2);
        }
        return itemsOf(m_order, m_index);
    }

private slots:
    void init() override
    {
        folderTest::init();
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_order.orderItems.items.clear();
        add("A", "TME/T-1,Mouser/M-1", "Yageo/Y-1");
        add("B", "tme ,Mouser/M-2", "/,Vishay/ V-2 ");
        add("C", "Mouser/,Mouser/M-3", "", "none");
        add("D", "", "Yageo/Y-4");
        add("E", " /x,Farnell", "Yageo");
        m_index.clear();
        m_index.add(m_database.get());
    }

    void parted_data()
    {
        const rows<QString, QString, QString, QString> row;
        const QString all = "A 1;B 2,5;C 3;D 4;E 5;X 6";
        const QString rest =
            "; Farnell: E  5 (no part number); : D Y-4 4 (the material has no supplier), X  6 (in no database)";
        row("first ones", all, "", "", "TME: A T-1 1, B V-2 2.5; Mouser: C M-3 3" + rest);
        row("another one", all, "A>mouser", "", "Mouser: A M-1 1, C M-3 3; tme : B V-2 2.5" + rest);
        row("one that has it not", all, "A>Farnell", "", "TME: A T-1 1, B V-2 2.5; Mouser: C M-3 3" + rest);
        row("preferred", all, "", "MOUSER", "Mouser: A M-1 1, B M-2 2.5, C M-3 3" + rest);
        row("chosen before preferred", all, "B>TME", "Mouser", "Mouser: A M-1 1, C M-3 3; tme : B V-2 2.5" + rest);
        row("several lines", "A 1;C 1;A 2,25;A 1 reel", "", "", "TME: A T-1 3.25, A T-1 1; Mouser: C M-3 1");
        row("no quantity", "A 1;A some;A 0;A -1", "", "",
            "TME: A T-1 1, A T-1 some (the quantity is no number above 0; the line is left out), "
            "A T-1 0 (the quantity is no number above 0; the line is left out), "
            "A T-1 -1 (the quantity is no number above 0; the line is left out)");
        row("nothing known", "X 1", "", "Mouser", ": X  1 (in no database)");
    }
    void parted()
    {
        const auto [lines, chosen, preferred, baskets] = fetch<QString, QString, QString, QString>();
        choices of;
        if (!chosen.isEmpty())
            of.insert(chosen.section('>', 0, 0), chosen.section('>', 1));
        QCOMPARE(shown(basketsOf(ordered(lines), of, preferred)), baskets);
    }

    // Of BOM lists: what is needed of all of them, ticked or not; the rest is named.
    void ofLists()
    {
        kiv_mat_bomStruct bom;
        for (const char *text : {"A 2 R1", "A 1 R2,R3", "D 1 U1", "X 1 X1", "A many R9", "C 1 C1"}) {
            auto &line = bom.materials.emplace_back(std::make_unique<materialStruct>());
            line->d_ktm = QString(text).section(' ', 0, 0);
            line->d_quantity = QString(text).section(' ', 1, 1);
            line->d_designator = QString(text).section(' ', 2);
        }
        const auto of = bomOperations::demandOf({{&bom, 3}, {&bom, 0}, {&bom, 1}}, m_index);
        const auto rows =
            bomOperations::orderedNeeds(of, {}, {bomOperations::amount::needed, bomOperations::present::raise});
        const auto items = itemsOf(of, rows, [](const bomOperations::need &one) { return one.ktm != "C"; });
        QCOMPARE(shown(basketsOf(items)),
                 QString("TME: A T-1 12; : D Y-4 4 (the material has no supplier), X  4 (in no database), A  many (the "
                         "quantity is no number above 0; the line is left out), A  many (the quantity is no number "
                         "above 0; the line is left out)"));
        QCOMPARE(items[0].designators, QString("R1, R2,R3"));
    }

    void sums()
    {
        const auto baskets = basketsOf(ordered("A 1;B 2,5;C 3;X 1"));
        const decimal half = *decimal::read("0.5");
        const decimal whole = *decimal::read("1");
        QCOMPARE(baskets[0].sum(whole).money() + ' ' + baskets[0].sum(half).money(), QString("7.00 3.50"));
        // A price that is no number is in no sum.
        QCOMPARE(baskets[1].sum(whole).money(), QString("0.00"));
        QVERIFY(!baskets[1].lines[0].amount(whole));
        QCOMPARE(baskets[2].faults(), 1);
    }

    // What has no quantity is in no file, and only what is not plain gets a mark.
    void written()
    {
        auto items = ordered("A 1;E 5;A some");
        const auto baskets = basketsOf(items);
        firmDetailsStruct form;
        QString fault;
        const QString path = m_folder->path("new/a.csv");
        QVERIFY(write(baskets[0], form, path, &fault));
        QCOMPARE(read(path), QByteArray("Part number,Quantity,Customer reference\r\nT-1,1,A\r\n"));
        QCOMPARE(tabbedText(baskets[0], form), QString("Part number\tQuantity\tCustomer reference\nT-1\t1\tA\n"));
        appendTo(form.basket)->kind = "name";
        form.captions = "NIE";
        items[0].name = QString::fromUtf8("Żuk, \"x\"");
        QVERIFY(write(basketsOf(items)[0], form, path, &fault));
        QCOMPARE(read(path), QByteArray("\xef\xbb\xbf\"Żuk, \"\"x\"\"\"\r\n"));
        QVERIFY(!write(baskets[0], form, path + "/b.csv", &fault) && !fault.isEmpty());
    }

    void namesOfFiles()
    {
        kiv_mat_firmDetailsStruct details;
        auto &known = details.details.emplace_back(std::make_unique<firmDetailsStruct>());
        known->name = "a/b";
        known->nip = "7";
        known->separator = "tab";
        kiv_mat_firmStruct firms;
        firmStruct *firm = appendTo(firms.suppliers);
        firm->name = "A/B";
        firm->nip = "7";
        std::vector<basket> baskets;
        for (const char *name : {"TME", "A/B", "a:b", "A?B.", "..", "", "tme"})
            baskets.push_back({name, {}});
        QCOMPARE(fileNames(baskets, formsOf(details, firms)).join(' '),
                 QString("TME.csv A_B.txt a_b.csv A_B_2.csv no_supplier.csv no_supplier_2.csv tme_2.csv"));
    }

private:
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    ktmIndex m_index;
    kiv_mat_zpStruct m_order;
};

KIVZP_TEST(tst_supplierBasket)
#include "tst_supplierBasket.moc"

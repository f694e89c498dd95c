// The annual plan: sums by code, target and supplier against a recomputation, thresholds, and what the open order
// passes.
#include "orders/annualPlanReport.h"

#include "bom/workbookReader.h"
#include "data/kiv_mat_offersStruct.h"
#include "orders/orderRegister.h"
#include "testSupport.h"

#include <map>

using namespace annualPlan;
using namespace testSupport;

namespace {

// Price in 1/1000 PLN, quantity in 1/10: amounts are whole in 1/10000 PLN.
struct literal
{
    const char *order;
    const char *date;
    bool isDelivered;
    int price;
    int quantity;
    const char *cpv;
    const char *target;
};
constexpr literal literals[] = {
    {"a", "03.01.2026", true, 100, 1000, "31711100-4", "312-A"},
    {"a", "03.01.2026", true, 205, 33, "31711100", "312-B"},
    {"a", "03.01.2026", true, 1, 1, "31711000-3", "312-A"},
    {"b", "31.12.2026", false, 333, 3333, "31712118-1", ""},
    {"b", "31.12.2026", false, 9999, 7, "30213000-5", "312-A"},
    {"b", "31.12.2026", false, 125, 8, "", "312-B"},
    {"c", "01.06.2026", false, 700, 60, "brak", "312-A"},
    {"c", "01.06.2026", false, 300, 10, "3171-4", "312-A"},
    {"c", "01.06.2026", false, 50, 2001, "31711100-4", "312-A"},
    {"d", "31.12.2025", true, 5000, 100, "31711100-4", "X"},
    {"e", "01.01.2027", true, 7000, 100, "31711100-4", "X"},
};

// In 1/10000 PLN, by what a line is counted under.
struct amounts
{
    qint64 estimated = 0;
    qint64 ordered = 0;
    int lines = 0;
};
using table = std::map<QString, amounts>;

QString exact(qint64 amount) { return QString("%1.%2").arg(amount / 10000).arg(amount % 10000, 4, 10, QChar('0')); }

template <class Key>
table recomputed(const Key &keyOf)
{
    table all;
    for (const literal &one : literals) {
        if (!QString(one.date).endsWith("2026"))
            continue;
        amounts &to = all[keyOf(one)];
        const qint64 amount = qint64(one.price) * one.quantity;
        to.estimated += amount;
        to.ordered += one.isDelivered ? amount : 0;
        ++to.lines;
    }
    return all;
}

QString codeNamed(const literal &of, int digits)
{
    const QString cpv = of.cpv;
    if (cpv.isEmpty())
        return "without a CPV code";
    return cpv.startsWith("3") && cpv.size() > 7 ? cpv.left(digits) : "not a CPV code: " + cpv;
}

QString textOf(const thresholds &of)
{
    QStringList all;
    for (const auto &one : of.limits)
        all.append(one.digits + '=' + one.amount.text());
    return all.join(' ') + '|' + of.faults.join('|');
}

QString textOf(const std::vector<thresholdWarning> &of)
{
    QStringList all;
    for (const auto &one : of) {
        QStringList lines;
        for (const int line : one.lines)
            lines.append(QString::number(line));
        all.append(one.category + ' ' + one.sum.text() + ">" + one.threshold.text() + " " + lines.join(','));
    }
    return all.join("; ");
}

} // namespace

class tst_annualPlan : public folderTest
{
    Q_OBJECT
    struct lineOf
    {
        QString price, quantity, cpv;
        QString ktm = "K-1", name = "part", target = {}, delivery = {}, unit = "szt.";
    };
    static void fill(kiv_mat_zpStruct &order, const QString &number, const QString &date,
                     const std::vector<lineOf> &lines)
    {
        order.options.findOption(optionKey::orderNumber)->value1 = number;
        order.options.findOption(optionKey::orderDate)->value1 = date;
        for (const lineOf &one : lines) {
            auto *line = appendTo(order.orderItems);
            line->price = one.price;
            line->quantity = one.quantity;
            line->cpv = one.cpv;
            line->ktm = one.ktm;
            line->name = one.name;
            line->target = one.target;
            line->delivery = one.delivery;
            line->unit = one.unit;
        }
    }
    QString save(const QString &name, const QString &date, const std::vector<lineOf> &lines)
    {
        kiv_mat_zpStruct order;
        fill(order, "ZP/" + name, date, lines);
        const QString path = m_folder->path("zp/" + QString(name).remove('<') + ".xml");
        return saveXmlNoEvents(path, &order) == 0 ? path : QString();
    }
    void saveLiterals()
    {
        std::map<QString, std::vector<lineOf>> lines;
        std::map<QString, QString> dates;
        for (const literal &one : literals) {
            lines[one.order].push_back({QString("%1,%2").arg(one.price / 1000).arg(one.price % 1000, 3, 10, QChar('0')),
                                        QString("%1.%2").arg(one.quantity / 10).arg(one.quantity % 10), one.cpv, "K",
                                        "n", one.target, one.isDelivered ? "WZ" : ""});
            dates[one.order] = one.date;
        }
        for (const auto &[name, all] : lines)
            save(name, dates[name], all);
    }
    orderIndex &read()
    {
        m_index = std::make_unique<orderIndex>();
        m_index->update({m_folder->path("zp")});
        return *m_index;
    }
    plan planFor(const question &what, const QString &limits = {}, const options &by = {})
    {
        return planOf(read(), what, readThresholds(limits), by);
    }
    static QString rowsOf(const plan &of)
    {
        QStringList all;
        for (const row &one : of.rows)
            all.append(nameOf(one) + ' ' + one.of.estimated.text());
        return all.join("; ");
    }
    std::unique_ptr<orderIndex> m_index;

private slots:
    void codes_data()
    {
        const rows<QString> row;
        row("31711100-4", "31711100");
        row(" 31711100 ", "31711100");
        row("31711100-4 Elementy", "31711100");
        row.each({"3171110", "CPV 31711100-4", "317 11100-4", "", "3171110O-4", "٣١٧١١١٠٠"}, "");
    }
    void codes()
    {
        const auto [code] = fetch<QString>();
        QCOMPARE(codeOf(tag()), code);
    }

    void thresholdsAreRead_data()
    {
        const rows<QString> row;
        row("302: 50000; 31711: 130000; *: 130000", "302=50000 31711=130000 =130000|");
        row(" 3 :1 ;31711100:0,5;", "3=1 31711100=0.5|");
        row("302: 1 300 000,50", "302=1300000.5|");
        row("302: 13 00", "|302: 13 00");
        row("302: 5; 302: 6; *:1; *: 2", "302=5 =1|302: 6|*: 2");
        row("302; 302:; :5; x: 5; 302: -5; 302: 0; 302: 5 PLN; 317111000: 5; 302: 1e5; 302: nan; 31: 7",
            "31=7|302|302:|:5|x: 5|302: -5|302: 0|302: 5 PLN|317111000: 5|302: 1e5|302: nan");
        row("", "|");
        row(";;", "|");
    }
    void thresholdsAreRead()
    {
        const auto [seen] = fetch<QString>();
        QCOMPARE(textOf(readThresholds(tag())), seen);
    }

    // The most digits count, and "*" parts the others by three.
    void aCodeHasOneCategory_data()
    {
        const rows<QString> row;
        row("30213000", "30213 3");
        row("30200000", "302 2");
        row("30300000", "3 1");
        row("45000000", "450 9");
    }
    void aCodeHasOneCategory()
    {
        const auto [seen] = fetch<QString>();
        const auto category = readThresholds("3: 1; *: 9; 30213: 3; 302: 2").categoryOf(tag());
        QCOMPARE(category->digits + ' ' + category->amount.text(), seen);
        QVERIFY(!readThresholds("6: 1").categoryOf(tag()));
    }

    void standings_data()
    {
        const rows<int> row;
        row("79.999999", int(standing::below));
        row("80", int(standing::almost));
        row("100", int(standing::almost));
        row("100.000001", int(standing::above));
        row("-5", int(standing::below));
    }
    void standings()
    {
        const auto [state] = fetch<int>();
        QCOMPARE(int(standingOf(*decimal::read(tag()), *decimal::read("100"))), state);
    }

    // Each grouping against sums of whole numbers, to the last digit.
    void sumsAgree_data()
    {
        const rows<int, int> row;
        row("cpv", int(grouping::cpv), 8);
        for (const char *digits : {"3", "4", "5", "6", "7", "8"})
            row(digits, int(grouping::group), QString(digits).toInt());
        row("target", int(grouping::target), 3);
    }
    void sumsAgree()
    {
        const auto [by, digits] = fetch<int, int>();
        saveLiterals();
        const plan made = planFor({2026, grouping(by), digits});
        const table wanted = recomputed([&what = made.what](const literal &of) -> QString {
            if (what.by != grouping::target)
                return codeNamed(of, what.digits);
            return *of.target ? of.target : "without a target";
        });
        QCOMPARE(made.rows.size(), wanted.size());
        amounts total;
        for (const row &one : made.rows) {
            const auto found = wanted.find(nameOf(one));
            QVERIFY2(found != wanted.end(), qPrintable(nameOf(one)));
            QCOMPARE(one.of.estimated.text(4, 4), exact(found->second.estimated));
            QCOMPARE(one.of.ordered.text(4, 4), exact(found->second.ordered));
            QCOMPARE(one.of.rest().text(4, 4), exact(found->second.estimated - found->second.ordered));
            QCOMPARE(one.of.lines, found->second.lines);
            total.estimated += found->second.estimated;
            total.lines += found->second.lines;
        }
        QCOMPARE(made.total.estimated.text(4, 4), exact(total.estimated));
        QCOMPARE(made.total.lines, 9);
        QCOMPARE(total.lines, 9);
        QCOMPARE(made.total.orders, 3);
        QVERIFY(std::is_sorted(made.rows.begin(), made.rows.end(),
                               [](const row &a, const row &b) { return a.of.estimated > b.of.estimated; }));
    }

    void rowsAreCounted()
    {
        saveLiterals();
        plan made = planFor({2026, grouping::group, 5});
        QCOMPARE(yearsOf(*m_index), (std::vector<int>{2027, 2026, 2025}));
        // 10 + 0.6765 + 0.0001 + 10.005; 110.9889; 6.9993; 4.2; 0.3; 0.1: of 143.2698.
        QCOMPARE(rowsOf(made), QString("31712 110.9889; 31711 20.6816; 30213 6.9993; not a CPV code: brak 4.2; "
                                       "not a CPV code: 3171-4 0.3; without a CPV code 0.1"));
        QCOMPARE(shareOf(made.rows[0], made.total) + ' ' + shareOf(made.rows[5], made.total), QString("77.5 0.1"));
        QCOMPARE(made.rows[1].of.orders, 2);
        sortRows(made.rows, true);
        QCOMPARE(rowsOf(made).section(' ', 0, 0) + nameOf(made.rows.back()), QString("30213without a CPV code"));
        QStringList lines;
        for (const auto &one : made.withoutCode)
            lines.append(annualPlanReport::lineText(one));
        QCOMPARE(lines.join('|'), QString("ZP/b, line 3: n|ZP/c, line 1: n (not a CPV code: brak)|"
                                          "ZP/c, line 2: n (not a CPV code: 3171-4)"));
        // Whatever the rows are.
        QCOMPARE(planFor({2026, grouping::target, 3}).withoutCode.size(), size_t(3));
        QVERIFY(planFor({2020, grouping::group, 3}).rows.empty());
        QCOMPARE(shareOf({rowKind::firm, {}, {}, {}, standing::none, {}, {}}, {}), QString());
    }

    // What has no number is named, and is no 0.
    void linesWithoutNumbersAreLeftOut()
    {
        save("a", "01.01.2026",
             {{"", "5", "30213000"}, {"2", "x", "30213000"}, {"2", "", "30213000"}, {"1,5", "3", "30213000"}});
        const plan made = planFor({2026});
        QCOMPARE(rowsOf(made), QString("302 4.5"));
        QCOMPARE(made.rows[0].of.leftOut, 3);
        QCOMPARE(made.rows[0].of.lines, 4);
        QVERIFY(annualPlanReport::leftOut(made).value(0).startsWith("3 "));
        QCOMPARE(annualPlanReport::cell(made.rows[0], annualPlanReport::leftOutColumn, made.total), QString("3"));
    }

    // A row is marked as the worst of its categories; it has a threshold where it is one.
    void thresholdsMarkRows_data()
    {
        const rows<int, int, QString> row;
        const int group = int(grouping::group);
        row("302: 100", group, 3, "302 above 100; 317 none ");
        row("30213: 100; *: 200", group, 3, "302 above (30213); 317 almost 200");
        row("30213: 100; *: 200;", group, 5,
            "30213 above 100; 30233 below 200; 31711 almost (317); 31712 almost (317)");
        row("302: 181; 31711: 60", int(grouping::cpv), 3,
            "30213000 almost (302); 30233000 almost (302); 31711000 above (31711); 31711100 above (31711); 31712000 "
            "none ");
        row("302: 1", int(grouping::target), 3, "312 none ");
    }
    void thresholdsMarkRows()
    {
        const auto [by, digits, seen] = fetch<int, int, QString>();
        save("a", "01.01.2026",
             {{"120", "1", "30213000-5", "K", "n", "312"},
              {"60", "1", "30233000-1", "K", "n", "312"},
              {"61", "1", "31711100-4", "K", "n", "312"},
              {"9", "1", "31711000-3", "K", "n", "312"},
              {"100", "1", "31712000", "K", "n", "312"}});
        plan made = planFor({2026, grouping(by), digits}, tag());
        sortRows(made.rows, true);
        QStringList all;
        for (const row &one : made.rows)
            all.append(nameOf(one) + ' ' + QStringList{"none", "below", "almost", "above"}[int(one.state)] + ' '
                       + (one.threshold         ? one.threshold->text()
                          : one.worst.isEmpty() ? QString()
                                                : '(' + one.worst.join(' ') + ')'));
        QCOMPARE(all.join("; "), seen);
    }

    void categoriesAreThoseOfTheYear()
    {
        saveLiterals();
        const plan made = planFor({2026, grouping::target, 3}, "31711: 20; 30: 8; 45: 1; *: 1000");
        QStringList all;
        for (const category &one : made.categories)
            all.append(one.digits + ' ' + one.of.estimated.text() + '/' + one.threshold.text());
        QCOMPARE(all.join("; "), QString("30 6.9993/8; 317 110.9889/1000; 31711 20.6816/20"));
        QCOMPARE(annualPlanReport::reached(made, standing::above),
                 QStringList{"CPV 31711: 20.68 PLN, above the threshold of 20.00 PLN"});
        QCOMPARE(annualPlanReport::reached(made, standing::almost),
                 QStringList{"CPV 30: 7.00 PLN, near the threshold of 8.00 PLN"});
    }

    // Parts count, what was parted does not; firms come by KTM, or by name, and by unit where there are several.
    void partsAndFirms()
    {
        save("a", "01.01.2026",
             {{"1", "1", "30213000", "K-1", "x"},
              {"2", "1", "30213000", " K-2 ", "x"},
              {"4", "1", "30213000", "", "by name"},
              {"8", "1", "30213000", "K-1", "x", {}, {}, "kg"},
              {"16", "1", "30213000", "K-9", "x"}});
        save("b", "02.01.2026", {{"1000", "1", "30213000", "K-1"}});
        options by;
        by.isParted = [](const orderIndex::order &order) { return order.number == "ZP/b"; };
        by.firmOf = [](const orderIndex::order &, const QString &key) {
            return QHash<QString, QString>{{"K-1", "Farnell"}, {"K-2", "TME"}, {"by name", "TME"}, {"K-1 kg", "Mouser"}}
                .value(key);
        };
        by.isOrdered = [](const orderIndex::order &) { return true; };
        const plan made = planFor({2026, grouping::firm}, {}, by);
        QCOMPARE(rowsOf(made), QString("supplier not known 16; Mouser 8; TME 6; Farnell 1"));
        QCOMPARE(made.parted, 1);
        QVERIFY(annualPlanReport::leftOut(made).value(0).startsWith("1 "));
        QCOMPARE(made.total.rest().text(), QString("0"));
    }

    // The register's own words on orders: sent, parted, firms chosen.
    void registersTell()
    {
        const QString first = save("a", "01.01.2026", {{"1", "1", "30213000", "K-1"}});
        const QString second = save("b", "01.01.2026", {{"10", "1", "30213000", "K-1"}});
        save("c", "01.01.2026", {{"100", "1", "30213000", "K-1"}});
        kiv_mat_offersStruct offers;
        auto choice = std::make_unique<choiceStruct>();
        choice->key = "K-1";
        choice->firm = "TME";
        offers.choices.push_back(std::move(choice));
        QDir().mkpath(m_folder->path("zp/offers/a"));
        QVERIFY(saveXmlNoEvents(m_folder->path("zp/offers/a/offers.xml"), &offers) == 0);
        orderRegister orders;
        orders.update({m_folder->path("zp")});
        configStruct config;
        QString fault;
        QVERIFY2(orders.noteSent(first, {"ZP/a", "anna", "t"}, config, &fault), qPrintable(fault));
        const auto told = [&] {
            const plan made = planOf(orders.index(), {2026, grouping::firm}, {}, optionsOf(orders));
            return rowsOf(made) + " ordered " + made.total.ordered.text();
        };
        QCOMPARE(told(), QString("supplier not known 110; TME 1 ordered 1"));
        // Where its part is, the order does not count.
        QVERIFY2(orders.noteParted(m_folder->path("zp/c.xml"), {second}, config, &fault), qPrintable(fault));
        orders.update({m_folder->path("zp")});
        QCOMPARE(told(), QString("supplier not known 10; TME 1 ordered 1"));
    }

    // The open order's lines count in place of its file's, in the year of its date.
    void theOpenOrder_data()
    {
        const rows<QString, QString> row;
        // Others of 2026 in 302: 60, of 2025: 500. Its file has 30.
        row("as in its file", "01.05.2026 30:30213000", "");
        row("exactly the threshold", "01.05.2026 40:30213000", "");
        row("above", "01.05.2026 40.01:30213000", "302 100.01>100 0");
        row("several lines", "01.05.2026 20:30213000 7:45000000 21:30233000", "302 101>100 0,2");
        row("another year", "01.05.2025 1:30213000", "302 501>100 0");
        row("a year without orders", "01.05.2024 99:30213000", "");
        row("no category", "01.05.2026 9999:45000000", "");
        row("no code, no number", "01.05.2026 9999: x:30213000", "");
        row("a line without a number where others pass", "01.05.2025 x:30213000", "302 500>100 0");
        row("no lines", "01.05.2026", "");
        row("without a date, that of its file", "- 41:30213000", "302 101>100 0");
        row("new order", "new 01.05.2026 11:30213000", "302 101>100 0");
        row("parted: the others alone", "parted 01.05.2026 9999:30213000", "");
    }
    void theOpenOrder()
    {
        const auto [open, seen] = fetch<QString, QString>();
        save("a", "01.01.2026", {{"60", "1", "30213000-5"}, {"500", "1", "45000000"}});
        save("b", "01.01.2025", {{"250", "2", "30200000"}});
        const QString path = save("open", "01.02.2026", {{"30", "1", "30213000"}});
        QStringList words = open.split(' ');
        const bool isNew = words.removeAll("new") > 0;
        const bool isParted = words.removeAll("parted") > 0;
        kiv_mat_zpStruct order;
        std::vector<lineOf> lines;
        for (const QString &word : words.mid(1))
            lines.push_back({word.section(':', 0, 0), "1", word.section(':', 1)});
        fill(order, "n", words.first(), lines);
        // A new order is beside the file's 30.
        options by;
        by.isParted = [&](const orderIndex::order &of) { return isParted && of.path == path; };
        yearSums known;
        const auto warned = thresholdWarnings(order, isNew ? QString() : path, readThresholds("302: 100"), known,
                                              read(), 1, by, QDate(2026, 7, 7));
        QCOMPARE(textOf(warned), seen);
        QVERIFY(thresholdWarnings(order, path, {}, known, *m_index, 1, by).empty());
    }

    // The others are added up anew for another revision alone.
    void theOthersAreKept()
    {
        save("a", "01.01.2026", {{"100", "1", "30213000"}});
        kiv_mat_zpStruct order;
        fill(order, "n", "01.01.2026", {{"1", "1", "30213000"}});
        int asked = 0;
        options by;
        by.isParted = [&asked](const orderIndex::order &) { return ++asked < 0; };
        orderIndex &index = read();
        yearSums known;
        const auto warned = [&] {
            return textOf(thresholdWarnings(order, {}, readThresholds("*: 100"), known, index, index.revision(), by));
        };
        QCOMPARE(warned(), QString("302 101>100 0"));
        order.orderItems.items[0]->price = "2";
        QCOMPARE(warned(), QString("302 102>100 0"));
        QCOMPARE(asked, 1);
        save("b", "01.01.2026", {{"5", "1", "30213000"}});
        index.update({m_folder->path("zp")});
        QCOMPARE(warned(), QString("302 107>100 0"));
        QCOMPARE(asked, 3);
        QCOMPARE(
            warningText(thresholdWarnings(order, {}, readThresholds("*: 100"), known, index, index.revision(), by)[0]),
            QString("CPV 302: 107.00 PLN in 2026, above the threshold of 100.00 PLN"));
    }

    void aCancelledPlanSaysSo()
    {
        saveLiterals();
        QVERIFY(!planOf(read(), {2026}, {}, {}, [](long long, long long) { return false; }).complete);
    }

    // Texts of files are no markup; the printer finds its rows.
    void pagesAndTables()
    {
        save("a<b", "01.01.2026",
             {{"1500000", "1", "30213000"}, {"2", "1", "<b>x</b>", "<i>", "R&D"}, {"x", "1", "30213000"}});
        const plan made = planFor({2026}, "302: 1500000");
        const QString page = annualPlanReport::page(made, QDate(2026, 11, 26));
        for (const char *part : {"<h1>Annual plan of purchases 2026</h1>", "26.11.2026", "&lt;b&gt;x&lt;/b&gt;",
                                 "R&amp;D", "&lt;i&gt;", "ZP/a&lt;b", "1\u00a0500\u00a0000.00", "near the threshold",
                                 "<tr class=\"line almost\">", "1\u00a0500\u00a0002.00", "class=\"line total\""})
            QVERIFY2(page.contains(QString::fromUtf8(part)), part);
        QVERIFY(!page.contains("<b>x") && !page.contains("<i>"));
        QCOMPARE(page.count("<table class=\"lines\">"), 3);
        QString fault;
        const QString book = m_folder->path("p.xlsx");
        QCOMPARE(annualPlanReport::write(made, book, &fault), tableFile::written);
        const auto sheets = workbookReader::read(book, &fault);
        QVERIFY2(sheets, qPrintable(fault));
        QStringList names;
        for (const auto &one : *sheets)
            names.append(one.name);
        QCOMPARE(names, (QStringList{"Plan", "Thresholds", "Without CPV"}));
        QVERIFY(sheets->at(0).rows.contains(
            QStringList{"302", "1500000", "0", "1500000", "100", "2", "1", "1", "1500000", "80 % reached"}));
        QCOMPARE(sheets->at(2).rows.last(), (QStringList{"ZP/a<b", "2", "<i>", "R&D", "<b>x</b>"}));
        const QString csv = m_folder->path("p.csv");
        QCOMPARE(annualPlanReport::write(made, csv, &fault), tableFile::written);
        QVERIFY(testSupport::read(csv).contains("302;1500000.00;0.00;1500000.00;100.0;2;1;1;1500000.00;80 % reached"));
        const QString folder = m_folder->path("folder.csv");
        QVERIFY(QDir().mkpath(folder));
        QCOMPARE(annualPlanReport::write(made, folder, &fault), tableFile::failed);
        QVERIFY(!fault.isEmpty());
    }
};

KIVZP_TEST(tst_annualPlan)
#include "tst_annualPlan.moc"

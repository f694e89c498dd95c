// The page of an order.
#include "testSupport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/orderSums.h"
#include "data/vocabulary.h"
#include "report/orderReport.h"
#include "util/translation.h"

class tst_orderReport : public QObject
{
    Q_OBJECT
private slots:
    void sums();
    void rowsShowTheLine();
    void everyTextIsEscaped();
    void emptyOrder();
    void captionsFollowTheLanguage();

private:
    static orderItemStruct *append(kiv_mat_zpStruct &order, const QString &price,
                                   const QString &quantity)
    {
        orderItemStruct *item = order.orderItems.append(std::make_unique<orderItemStruct>());
        item->price = price;
        item->averagePrice = price;
        item->quantity = quantity;
        return item;
    }
};

void tst_orderReport::sums()
{
    kiv_mat_zpStruct order;
    append(order, "30,95", "2");
    append(order, "0.10", "2,5")->averagePrice = "1";
    append(order, "", "5");
    append(order, "1", "many");
    append(order, "nan", "1");
    append(order, "1e300", "1e300");
    const orderSums sums = sumsOf(order);
    QCOMPARE(sums.price, 62.15);
    QCOMPARE(sums.averagePrice, 64.4);
    QCOMPARE(sums.uncounted, 4);
    QCOMPARE(sums.lines, 6);
    QVERIFY(orderReport(order, {}).contains("<b>62.15</b> [ PLN ]"));
    QVERIFY(orderReport(order, {}).contains("4 lines without a price or quantity"));
}

void tst_orderReport::rowsShowTheLine()
{
    kiv_mat_databaseStruct database;
    database.groups.push_back(std::make_unique<d_groupStruct>());
    materialStruct *material = database.groups[0]->append(std::make_unique<materialStruct>());
    material->d_ktm = "317111-00.01-00001";
    auto manufacturer = std::make_unique<manufacturerStruct>();
    manufacturer->name = "Yageo";
    manufacturer->partNo = "RC0603";
    material->manufacturers.append(std::move(manufacturer));
    material->suppliers.append(std::make_unique<supplierStruct>());
    ktmIndex index;
    index.add(&database);

    kiv_mat_zpStruct order;
    orderItemStruct *known = append(order, "1", "10");
    known->index = "77";
    known->ktm = material->d_ktm;
    known->unit = "pcs.";
    known->wait = "NIE";
    known->rohsRequired = "TAK";
    append(order, "1", "1")->ktm = "unknown";
    const QString page = orderReport(order, index);
    QVERIFY(page.contains("<td class=\"number\">1</td>"));
    QVERIFY(page.contains("Manufacturers: </span>Yageo RC0603</td>"));
    QVERIFY(!page.contains("Suppliers: </span>"));
    QVERIFY(page.contains("<td class=\"number\">10 pcs.</td>"));
    // A date that is none is shown as it stands; a stored word in the language.
    QVERIFY(page.contains("<td class=\"middle\">NIE</td>"));
    QVERIFY(page.contains("RoHS: </span>YES"));
    QCOMPARE(page.count("<tr class=\"line\">"), 2);
}

void tst_orderReport::everyTextIsEscaped()
{
    const QString evil = "<script>\"&'%1</script>";
    kiv_mat_databaseStruct database;
    database.groups.push_back(std::make_unique<d_groupStruct>());
    materialStruct *material = database.groups[0]->append(std::make_unique<materialStruct>());
    material->d_ktm = evil;
    auto manufacturer = std::make_unique<manufacturerStruct>();
    manufacturer->name = manufacturer->partNo = evil;
    material->manufacturers.append(std::move(manufacturer));
    auto supplier = std::make_unique<supplierStruct>();
    supplier->name = supplier->partNo = evil;
    material->suppliers.append(std::move(supplier));
    ktmIndex index;
    index.add(&database);

    kiv_mat_zpStruct order;
    orderItemStruct *item = append(order, "1", "1");
    for (const auto &field : orderItemStruct::fields())
        item->*field.member = evil;
    for (const auto &option : order.options.items)
        option->value1 = option->value2 = evil;
    order.attentions = "<p>kept</p><script>x</script>";
    const QString page = orderReport(order, index);
    QVERIFY(!page.contains("<script"));
    QVERIFY(page.contains("<p>kept</p>"));
    // Eleven texts of the line, two names and two numbers of its sources; four options with their
    // notes; number and date in the title and in the header.
    QCOMPARE(page.count("&lt;script&gt;&quot;&amp;'%1&lt;/script&gt;"), 11 + 4 + 8 + 4);
}

void tst_orderReport::emptyOrder()
{
    const QString page = orderReport({}, {});
    QCOMPARE(page.count("<tr class=\"line\">"), 0);
    QVERIFY(page.contains("<b>0.00</b> [ PLN ]"));
    QVERIFY(page.contains("xxx-xxxxxxxx"));
    QVERIFY(!page.contains("<h2>"));
    QVERIFY(page.endsWith("</html>\n"));
}

void tst_orderReport::captionsFollowTheLanguage()
{
    translation::install("pl");
    const QString page = orderReport({}, {});
    translation::install("en");
    QVERIFY(page.contains("Producenci"));
    QVERIFY(!page.contains("Manufacturers"));
}

KIVZP_TEST(tst_orderReport)
#include "tst_orderReport.moc"

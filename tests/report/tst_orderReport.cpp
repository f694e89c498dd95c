// The page of an order.
#include "testSupport.h"

#include "report/orderReport.h"
#include "util/translation.h"

using namespace testSupport;

class tst_orderReport : public QObject
{
    Q_OBJECT
private slots:
    void sums()
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
        QVERIFY(orderReport(order, {}).contains("<b>62.15</b> [ PLN ]"));
        QVERIFY(orderReport(order, {}).contains("4 lines without a price or quantity"));
    }

    void rowsShowTheLine()
    {
        kiv_mat_databaseStruct database;
        materialStruct *known = material(database, "G", "317111-00.01-00001");
        manufacturer(known, "Yageo", "RC0603");
        supplier(known, "");
        ktmIndex index;
        index.add(&database);

        kiv_mat_zpStruct order;
        orderItemStruct *line = append(order, "1", "10");
        line->index = "77";
        line->ktm = known->d_ktm;
        line->unit = "pcs.";
        line->wait = "NIE";
        line->rohsRequired = "TAK";
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

    void everyTextIsEscaped()
    {
        const QString evil = "<script>\"&'%1</script>";
        kiv_mat_databaseStruct database;
        materialStruct *listed = material(database, "G", evil);
        manufacturer(listed, evil, evil);
        supplier(listed, evil, evil);
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

    void emptyOrder()
    {
        const QString page = orderReport({}, {});
        QCOMPARE(page.count("<tr class=\"line\">"), 0);
        QVERIFY(page.contains("<b>0.00</b> [ PLN ]"));
        QVERIFY(page.contains("xxx-xxxxxxxx"));
        QVERIFY(!page.contains("<h2>"));
        QVERIFY(page.endsWith("</html>\n"));
    }

    void captionsFollowTheLanguage()
    {
        translation::install("pl");
        const QString page = orderReport({}, {});
        translation::install("en");
        QVERIFY(page.contains("Producenci"));
        QVERIFY(!page.contains("Manufacturers"));
    }

private:
    static orderItemStruct *append(kiv_mat_zpStruct &order, const QString &price, const QString &quantity)
    {
        orderItemStruct *item = appendTo(order.orderItems);
        item->price = item->averagePrice = price;
        item->quantity = quantity;
        return item;
    }
};

KIVZP_TEST(tst_orderReport)
#include "tst_orderReport.moc"

// The window of all orders, worked with keys: listed, searched, opened, copied, and noted as sent.
#include "scenarioFixture.h"

namespace {

#define ORDERS "Ctrl+Shift+O|"
const scenario rows[] = {
    {"", ORDERS,
     "title = Orders; orders = 3; orders:0 = ZP/12/2026|ZP/78/2020|ZP/77/2020; orders@2,6 = 6.00; "
     "orders:2 ~ being prepared; counts = 3 orders; focus = words"},
    {"", ORDERS "'zarowka'", "lines = 2; lines@0,3 = Żarówka; counts = 2 lines, 2 orders"},
    {"", ORDERS "'fv 6 z-1'", "lines = 1; lines@0,0 = ZP/77/2020"},
    {"", ORDERS "'nothing'", "lines = 0; counts = 0 lines, 0 orders"},
    {"", ORDERS "'z-1' Escape", "orders = 3; counts = 3 orders"},
    {"", ORDERS "'drut' Return Return", "front ~ Order; at = Z-2; orderLines = 2"},
    {"", ORDERS "Return Down Return", "front ~ Order; orderLines = 1"},
    {"", ORDERS "'drut' Return Ctrl+C", "clipboard ~ ZP/77/2020\t01.02.2020\tZ-2\tdrut\t"},
    {"", ORDERS "'drut' Return Ctrl+N", "front = Order *; orderLines = 2"},
    {"", ORDERS "Return Ctrl+M #notSent", "orders:2 !~ sent; file _zp/order_states.xml !~ zp_0.xml"},
    {"", ORDERS "Ctrl+W", "title = closed"},
};

} // namespace

class tst_ordersWindow : public scenarioFixture
{
    Q_OBJECT
    QString file() override { return path("_zp/zp_0.xml"); }
    void write(const char *name, const QByteArray &number, const QByteArray &date, const QByteArray &lines)
    {
        folder().write(name, testSupport::order("<options><option editable=\"YES\" type=\"ORDER_NUMBER\" value1=\""
                                                + number + "\"/><option editable=\"YES\" type=\"ORDER_DATE\" value1=\""
                                                + date + "\"/></options><order_items>" + lines + "</order_items>"));
    }
    std::vector<scenarioTable> tables() override { return {{nullptr, false, rows}}; }
    void prepare() override
    {
        scenarioFixture::prepare();
        write("_zp/a.xml", "ZP/77/2020", "01.02.2020",
              "<order_item><name>Żarówka</name><price>2</price><quantity>3</quantity><ktm>Z-1</ktm>"
              "<delivery>WZ 5</delivery><invoice>FV 6</invoice></order_item><order_item><name>drut</name><ktm>Z-2</ktm>"
              "</order_item>");
        write("_zp/b.xml", "ZP/78/2020", "02.02.2020", "<order_item><name>Żarówka</name><ktm>Z-1</ktm></order_item>");
    }

private slots:
    // What was deleted or written meanwhile is seen when the window is read again.
    void filesChangeMeanwhile()
    {
        // The row that is current is there no more.
        steps(ORDERS "Return End");
        QVERIFY(QFile::remove(path("_zp/a.xml")));
        QVERIFY(QFile::remove(path("_zp/b.xml")));
        write("_zp/c.xml", "ZP/79/2020", "03.02.2020", "");
        work("F5");
        look("orders:0 = ZP/12/2026|ZP/79/2020; counts = 2 orders");
        // Nothing changed: what is selected stays.
        work("End F5");
        look("at = ZP/79/2020; status ~ as their files are");
    }

    // Saving the open order reads the register again while the window still shows what it was.
    void rowsAreTheOrdersShown()
    {
        steps(ORDERS "Return End");
        look("at = ZP/77/2020");
        QVERIFY(QFile::remove(path("_zp/b.xml")));
        write("_zp/c.xml", "ZP/79/2020", "03.01.2020", "");
        QMainWindow &list = window();
        turnTo(mainWindow());
        work("orderLines@0,1 F2 'x' Return Ctrl+S");
        turnTo(list);
        work("Ctrl+M");
        look("file _zp/order_states.xml ~ a.xml; file _zp/order_states.xml !~ c.xml");
    }

    // A sent order opens locked; what is changed all the same is shown beside what was sent.
    void sentOrders()
    {
        steps(ORDERS "'drut' Return Ctrl+M Return");
        turnTo(mainWindow());
        look("status ~ This order was sent on; orderLines = 2");
        work("orderLines@1,1 F2 'x' Return");
        look("orderLines@1,1 = drut; title = Order");
        work("Ctrl+E orderLines@1,1 F2 Ctrl+A 'lut' Return");
        look("orderLines@1,1 = lut; title = Order *");
        work("#sentChanges");
        bool found = false;
        for (const auto *view : mainWindow().findChildren<QTreeView *>())
            for (int row = 0; view->window() != &mainWindow() && row < view->model()->rowCount(); ++row)
                found = found || view->model()->index(row, 3).data().toString() == "lut";
        QVERIFY(found);
    }

    // A copy begins with the next number, without what came of the other one.
    void copiesAreNew()
    {
        write("_zp/c.xml", "ZP/7/" + QByteArray::number(QDate::currentDate().year()),
              QDate::currentDate().addDays(1).toString("dd.MM.yyyy").toUtf8(),
              "<order_item><name>x</name><ktm>X</ktm><delivery>WZ</delivery><invoice>FV</invoice></order_item>");
        steps(ORDERS "Return Ctrl+N");
        const auto &order = mainWindow().document().order();
        QCOMPARE(mainWindow().document().path(), QString());
        QCOMPARE(order.orderItems.items.size(), size_t(1));
        QCOMPARE(order.orderItems.items[0]->delivery + order.orderItems.items[0]->invoice, QString());
        QCOMPARE(order.options.value(optionKey::orderNumber), QString("ZP/13/%1").arg(QDate::currentDate().year()));
        QCOMPARE(order.options.value(optionKey::orderDate), QDate::currentDate().toString("dd.MM.yyyy"));
    }
};

KIVZP_TEST(tst_ordersWindow)
#include "tst_ordersWindow.moc"

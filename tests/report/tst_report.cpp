// The page of an order, the fragments it is built of, foreign HTML reduced to plain markup, and documents made by the
// converters, for which scripts stand here.
#include "testSupport.h"

#include "data/lineSums.h"
#include "report/docExport.h"
#include "report/html.h"
#include "report/orderReport.h"
#include "tools/childRunner.h"
#include "util/cleanHtml.h"
#include "util/translation.h"

using namespace testSupport;

class tst_report : public folderTest
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
        append(order, "0,0042", "25");
        append(order, "1000", "4");
        const lineSums sums = sumsOf(order);
        QCOMPARE(sums.price.amount.text(), QString("4062.255"));
        QCOMPARE(sums.averagePrice.amount.text(), QString("4064.505"));
        QCOMPARE(sums.lines, 8);
        const QString page = orderReport(order, {});
        QVERIFY(page.contains("<b>4\u00a0062.26</b> [ PLN ]"));
        QVERIFY(page.contains("1 line without a price is left out;") && page.contains("an average price is left out;"));
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

    void fragments_data()
    {
        const rows<QString, QString> rows;
        const auto row = [&rows](const char *name, const QString &expected, const auto &build) {
            html::htmlTable table;
            build(table);
            rows(name, table.text(), expected);
        };
        using table = html::htmlTable;
        row("table", "<table a>\n<tr ><td b>c%1</td>\n</tr>\n</table>\n", [](table &t) {
            t.openTable("a");
            t.openRow("");
            t.cell("b", "c%1");
            t.closeRow();
            t.closeTable();
        });
        row("separator 3 leaves its cell open", "<tr><td colspan=\"2\" /><td><hr size=\"1\" color=\"#1\"/></tr>\n",
            [](table &t) { t.separatorRow(3, "#1"); });
        row("label",
            "<tr><td style=\"width:20%\" valign=\"top\" align=\"right\">L:</td><td><b>V</b></td></tr>\n"
            "<tr><td style=\"width:20%\" /><td><b>V</b></td></tr>\n",
            [](table &t) { (t.labelRow("L", "V"), t.labelRow("", "V")); });
        row("link, and one to nowhere", "<a href=\"u\">T</a>\n", [](table &t) { (t.link("u", "T"), t.link("", "T")); });
    }

    void fragments()
    {
        const auto [text, expected] = fetch<QString, QString>();
        QCOMPARE(text, expected);
    }

    void clean_data()
    {
        const rows<QString, QString> row;
        row("empty", "", "");
        row("empty document", "<html><body><p></p></body></html>", "");
        row("plain text", "a < b & c\n<= 14", "<p>a &lt; b &amp; c</p>\n<p>&lt;= 14</p>\n");
        row("styles of an editor",
            "<html><head><style>p{margin:9px}</style></head><body style='font-size:8pt'><p style='margin-top:0px; "
            "-qt-block-indent:0'><span style='font-weight:600; color:#ff0000'>b</span><i>i</i><u>u</u><s>s</s>"
            "<sup>2</sup></p></body></html>",
            "<p><span style=\"color:#ff0000\"><b>b</b></span><i>i</i><u>u</u><s>s</s><sup>2</sup></p>\n");
        row("alignment and empty lines",
            "<p align='center'>a</p><p style='-qt-paragraph-type:empty;'><br /></p><p align=right>b</p>",
            "<p align=\"center\">a</p>\n<p><br></p>\n<p align=\"right\">b</p>\n");
        row("lists", "<ol><li>a<ul><li>b</li></ul></li><li>c</li></ol><p>d</p>",
            "<ol><li>a<ul><li>b</li></ul>\n</li>\n<li>c</li></ol>\n<p>d</p>\n");
        row("table", "<table><tr><td colspan=2>a</td></tr><tr><td>b</td><td>c</td></tr></table>",
            "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n<tr><td colspan=\"2\"><p>a</p>\n</td></tr>\n"
            "<tr><td><p>b</p>\n</td><td><p>c</p>\n</td></tr>\n</table>\n");
        row("links", "<a href=\"https://a.b/?x=1&amp;y=&quot;\">l</a> <a href='javascript:x()'>j</a>",
            "<p><a href=\"https://a.b/?x=1&amp;y=&quot;\">l</a> j</p>\n");
        row("what could run or load",
            "<script>alert(1)</script><img src='http://x/y.png' onerror='z()'><iframe src='http://x'></iframe>"
            "<link rel='stylesheet' href='file:///etc/passwd' />a<br>b",
            "<p>a<br>b</p>\n");
        row("spaces that show", "<p>a&nbsp; b</p>", "<p>a\u00a0 b</p>\n");
    }

    void clean()
    {
        const auto [html, expected] = fetch<QString, QString>();
        QCOMPARE(cleanHtml(html), expected);
        QCOMPARE(cleanHtml(expected), expected);
    }

    // Deep nesting neither hangs nor overflows the stack, and the text is kept.
    void hostileNesting()
    {
        const QString tables = cleanHtml(QString("<table><tr><td>").repeated(20000) + "x");
        QVERIFY(!tables.contains("<table") && tables.contains('x'));
        QVERIFY(cleanHtml(QString("<div><b><ul><li>").repeated(5000) + "x").contains('x'));
    }

    void converted()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "[ $1$2 = --typedoc ] && cp \"$6\" \"$4\"; echo 'a<b'");
        m_folder->script("_bin/KIV_TEMPLATE_DOC.exe", "printf ' in %s' \"$2\" >> \"$4\"; [ \"$4\" = \"$6\" ]");
        m_folder->write("_files/t x.dotx", "");
        const QString path = m_folder->path("a \"b\".doc");
        QVERIFY(writeDoc("<p>", path, "_files/t x.dotx"));
        QCOMPARE(read(path), QByteArray("<p> in _files/t x.dotx"));
        QCOMPARE(m_shown->logged, QString("a&lt;b<br>"));
        // A template that fails leaves the document.
        m_folder->script("_bin/KIV_TEMPLATE_DOC.exe", "exit 1");
        QVERIFY(writeDoc("<p>", path, "none"));
        QCOMPARE(read(path), QByteArray("<p>"));
    }

    void stopped()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "exec sleep 60");
        int told = 0;
        const QString path = m_folder->write("kept.doc", "old");
        QVERIFY(!writeDoc("", path, "t", [&told](childRunner *runner) {
            ++told;
            if (runner)
                QMetaObject::invokeMethod(runner, &childRunner::stop, Qt::QueuedConnection);
        }));
        QCOMPARE(told, 2);
        QCOMPARE(read(path), QByteArray("old"));
    }

    // The shipped launcher needs LibreOffice, another converter does not.
    void missing()
    {
        const QByteArray found = qgetenv("PATH");
        qputenv("PATH", m_folder->path("bin").toLocal8Bit());
        QVERIFY(missingConverter().contains("KIV_HTML_TO_DOC_PDF.exe is not there"));
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "exit 7");
        QCOMPARE(missingConverter(), QString());
        m_folder->write("_bin/libreoffice.sh", "");
        QVERIFY(missingConverter().contains("libreoffice-writer"));
        m_folder->script("bin/soffice", "exit 0");
        QCOMPARE(missingConverter(), QString());
        qputenv("PATH", found);
    }

    void refused()
    {
        m_folder->script("_bin/KIV_HTML_TO_DOC_PDF.exe", "exit 7");
        QVERIFY(!writeDoc("", m_folder->path("no.doc"), "t"));
        QFile::remove(m_folder->path("_bin/KIV_HTML_TO_DOC_PDF.exe"));
        QVERIFY(!writeDoc("", m_folder->path("no.doc"), "t"));
        QVERIFY(!QFile::exists(m_folder->path("no.doc")));
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

KIVZP_TEST(tst_report)
#include "tst_report.moc"

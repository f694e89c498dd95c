// HTML: the fragments that pages are built of, to the letter, and foreign HTML reduced to plain markup.
#include "testSupport.h"

#include "report/html.h"
#include "util/cleanHtml.h"

using namespace testSupport;

class tst_html : public QObject
{
    Q_OBJECT
private slots:
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
};

KIVZP_TEST(tst_html)
#include "tst_html.moc"

// The fragments of HTML, to the letter.
#include "testSupport.h"

#include "report/html.h"

class tst_html : public QObject
{
    Q_OBJECT
private slots:
    void fragments_data();
    void fragments();
    void operationsOnlyAppend();
};

void tst_html::fragments_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &expected, const auto &build) {
        html::htmlTable table;
        build(table);
        QTest::newRow(name) << table.text() << expected;
    };
    using table = html::htmlTable;
    row("table", "<table border=\"1\">\n</table>\n", [](table &t) {
        t.openTable("border=\"1\"");
        t.closeTable();
    });
    row("row", "<tr ><td a>b</td>\n</tr>\n", [](table &t) {
        t.openRow("");
        t.cell("a", "b");
        t.closeRow();
    });
    row("separator 1", "<tr><td style=\"width:20%\"><hr size=\"1\" color=\"#1\"/></td><td/></tr>\n",
        [](table &t) { t.separatorRow(1, "#1"); });
    row("separator 2", "<tr><td style=\"width:20%\"/><td><hr size=\"1\" color=\"#1\"/></td></tr>\n",
        [](table &t) { t.separatorRow(2, "#1"); });
    row("separator 3 leaves its cell open",
        "<tr><td colspan=\"2\" /><td><hr size=\"1\" color=\"#1\"/></tr>\n",
        [](table &t) { t.separatorRow(3, "#1"); });
    row("label",
        "<tr><td style=\"width:20%\" valign=\"top\" "
        "align=\"right\">L:</td><td><b>V</b></td></tr>\n",
        [](table &t) { t.labelRow("L", "V"); });
    row("empty label", "<tr><td style=\"width:20%\" /><td><b>V</b></td></tr>\n",
        [](table &t) { t.labelRow("", "V"); });
    row("image", "<img src=\"s\" alt=\"a\" height=\"2\" width=\"3\" />\n",
        [](table &t) { t.image("s", "a", 2, 3); });
    row("image of no width", "<img src=\"s\" />\n", [](table &t) { t.image("s", "", 2, 0); });
    row("text", "<font face=\"F\" color=\"#1\" size=\"2\" >T</font>\n",
        [](table &t) { t.fontText("F", "#1", "2", "T"); });
    row("text of no font", "<font >T</font>\n", [](table &t) { t.fontText("", "", "", "T"); });
    row("bold with note",
        "<font size=\"2\" ><b>T</b></font>\n<br/> \n<font size=\"2\" ><i>N</i></font>\n",
        [](table &t) { t.boldText("", "", "2", "T", "N"); });
    row("bold", "<font color=\"#1\" ><b>T</b></font>\n",
        [](table &t) { t.boldText("", "#1", "", "T", ""); });
    row("link", "<a href=\"u\">T</a>\n", [](table &t) { t.link("u", "T"); });
    row("link to nowhere", "", [](table &t) { t.link("", "T"); });
    row("values that look like places", "<td %1>%2</td>\n", [](table &t) { t.cell("%1", "%2"); });
}

void tst_html::fragments()
{
    QFETCH(QString, text);
    QTEST(text, "expected");
}

void tst_html::operationsOnlyAppend()
{
    html::htmlTable table;
    table.append("x");
    table.openTable("");
    table.link("", "T");
    QCOMPARE(table.text(), QString("x<table >\n"));
}

KIVZP_TEST(tst_html)
#include "tst_html.moc"

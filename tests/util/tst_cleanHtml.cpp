// Foreign HTML reduced to plain markup.
#include "testSupport.h"

#include "util/cleanHtml.h"

class tst_cleanHtml : public QObject
{
    Q_OBJECT
private slots:
    void markup_data();
    void markup();
    void cleaningTwiceChangesNothing();
    void hostileNesting();
};

void tst_cleanHtml::markup_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("expected");
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("empty document") << "<html><body><p></p></body></html>"
                                    << "";
    QTest::newRow("plain text") << "a < b & c\n<= 14"
                                << "<p>a &lt; b &amp; c</p>\n<p>&lt;= 14</p>\n";
    QTest::newRow("styles of an editor")
        << "<html><head><style>p{margin:9px}</style></head><body style='font-size:8pt'><p style='"
           "margin-top:0px; -qt-block-indent:0'><span style='font-weight:600; "
           "color:#ff0000'>b</span>"
           "<i>i</i><u>u</u><s>s</s></p></body></html>"
        << "<p><span style=\"color:#ff0000\"><b>b</b></span><i>i</i><u>u</u><s>s</s></p>\n";
    QTest::newRow("alignment and empty lines")
        << "<p align='center'>a</p><p style='-qt-paragraph-type:empty;'><br /></p>"
           "<p align=right>b</p>"
        << "<p align=\"center\">a</p>\n<p><br></p>\n"
           "<p align=\"right\">b</p>\n";
    QTest::newRow("lists") << "<ol><li>a<ul><li>b</li></ul></li><li>c</li></ol><p>d</p>"
                           << "<ol><li>a<ul><li>b</li></ul>\n</li>\n<li>c</li></ol>\n<p>d</p>\n";
    QTest::newRow("table")
        << "<table><tr><td colspan=2>a</td></tr><tr><td>b</td><td>c</td></tr></table>"
        << "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n<tr><td "
           "colspan=\"2\"><p>a</p>\n</td></tr>\n<tr><td><p>b</p>\n</td><td><p>c</p>\n"
           "</td></tr>\n</table>\n";
    QTest::newRow("links")
        << "<a href=\"https://a.b/?x=1&amp;y=&quot;\">l</a> <a href='javascript:x()'>j</a>"
        << "<p><a href=\"https://a.b/?x=1&amp;y=&quot;\">l</a> j</p>\n";
    QTest::newRow("what could run or load")
        << "<script>alert(1)</script><img src='http://x/y.png' onerror='z()'><iframe "
           "src='http://x'>"
           "</iframe><link rel='stylesheet' href='file:///etc/passwd' />a<br>b"
        << "<p>a<br>b</p>\n";
    QTest::newRow("spaces that show") << "<p>a&nbsp; b</p>"
                                      << "<p>a\u00a0 b</p>\n";
}

void tst_cleanHtml::markup()
{
    QFETCH(QString, html);
    QTEST(cleanHtml(html), "expected");
}

void tst_cleanHtml::cleaningTwiceChangesNothing()
{
    const QString once =
        cleanHtml("<p align='justify'>a <b>b <i>c</i></b></p><ul><li>d</li></ul>"
                  "<table><tr><td>e</td></tr></table>x<sup>2</sup> <a href='http://f'>g</a>");
    QVERIFY(once.contains("<sup>2</sup>"));
    QCOMPARE(cleanHtml(once), once);
}

void tst_cleanHtml::hostileNesting()
{
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!cleanHtml(QString("<table><tr><td>").repeated(20000) + "x").contains("<table"));
    QVERIFY(cleanHtml(QString("<div><b><ul><li>").repeated(5000) + "x").contains('x'));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

KIVZP_TEST(tst_cleanHtml)
#include "tst_cleanHtml.moc"

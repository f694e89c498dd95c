// Texts, numbers, dates and colours.
#include "testSupport.h"

#include "util/colours.h"
#include "util/dates.h"
#include "util/numbers.h"
#include "util/text.h"

class tst_values : public QObject
{
    Q_OBJECT
private slots:
    void texts_data();
    void texts();
    void numberChecks_data();
    void numberChecks();
    void numberErrorsAreCollected();
    void monthNames_data();
    void monthNames();
    void colourTexts();
};

void tst_values::texts_data()
{
    QTest::addColumn<QString>("result");
    QTest::addColumn<QString>("expected");
    using namespace text;
    const auto row = [](const char *name, const QString &result, const QString &expected) {
        QTest::newRow(name) << result << expected;
    };
    row("trailing tabs only", chopTrailingTabs("\ta\tb \t\t"), "\ta\tb ");
    row("tabs of an empty text", chopTrailingTabs(""), "");
    row("only tabs", chopTrailingTabs("\t\t"), "");
    row("leading spaces, not tabs", trimLeadingSpaces("  \t a "), "\t a ");
    row("trailing spaces", trimTrailingSpaces(" a \t  "), " a \t");
    row("double spaces", collapseDoubleSpaces("a     b  c d"), "a b c d");
    row("html", htmlToPlain("a&nbsp;<b>b</b><br>c &lt; &#x119;"), "a b\nc < \u0119");
    row("slashes", normalisePath("a//b///c"), "a/b/c");
    row("backslashes", normalisePath("\\\\a\\\\\\b/"), "\\a\\b/");
    row("file name", fileNameOfPath("/x/y/\u017c.tar.gz"), "\u017c.tar.gz");
    row("line ends", storable("a\r\nb\rc\n"), "a\nb\nc\n");
    row("control characters", storable(QString("a\u0001\tb\u001f") + QChar(0)), "a\tb");
    row("not characters", storable(QString("a") + QChar(0xfffe) + QChar(0xffff) + "b"), "ab");
    row("pairs stay, halves go",
        storable(QString::fromUcs4(U"\U0001F600", 1) + QChar(0xd83d) + "x" + QChar(0xde00)),
        QString::fromUcs4(U"\U0001F600", 1) + "x");
    row("escaped with line ends", toHtml("<a & \"b\">\nc"), "&lt;a &amp; &quot;b&quot;&gt;<br>c");
}

void tst_values::texts()
{
    QFETCH(QString, result);
    QTEST(result, "expected");
}

void tst_values::numberChecks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isNumber");
    QTest::addColumn<double>("value");
    QTest::newRow("hexadecimal") << "0x1F" << true << 31.0;
    QTest::newRow("hexadecimal prefix is case-sensitive") << "0X1F" << false << 0.0;
    QTest::newRow("hexadecimal without prefix") << "1F" << false << 0.0;
    QTest::newRow("comma") << "3,14" << true << 3.14;
    QTest::newRow("point") << "3.14" << true << 3.14;
    QTest::newRow("negative") << "-2" << true << -2.0;
    QTest::newRow("empty") << "" << false << 0.0;
    QTest::newRow("two commas") << "1,2,3" << false << 0.0;
    QTest::newRow("unit behind") << "5 szt." << false << 0.0;
    QTest::newRow("hexadecimal past 32 bits") << "0x1FFFFFFFF" << false << 0.0;
}

void tst_values::numberChecks()
{
    QFETCH(QString, text);
    QFETCH(bool, isNumber);
    QCOMPARE(numbers::check(text), isNumber);
    QTEST(numbers::value(text), "value");
}

void tst_values::numberErrorsAreCollected()
{
    QString errors;
    QVERIFY(!numbers::check("", &errors));
    QVERIFY(!numbers::check("1F", &errors));
    QVERIFY(numbers::check("2,5", &errors));
    QCOMPARE(errors, QString("&nbsp;&nbsp;is not a number<br>&nbsp;1F&nbsp;is not a number<br>"));
}

void tst_values::monthNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("compiler's form") << "Nov  4 2026"
                                     << "04.11.2026";
    QTest::newRow("upper case") << "JAN 31 2027"
                                << "31.01.2027";
    QTest::newRow("december falls through") << "dec 24 2026"
                                            << "24.12.2026";
    QTest::newRow("any other word too") << "xyz 1 2026"
                                        << "01.12.2026";
    QTest::newRow("no year") << "apr 2"
                             << "02.04.";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_values::monthNames()
{
    QFETCH(QString, text);
    QTEST(dates::fromMonthNames(text), "expected");
}

void tst_values::colourTexts()
{
    QCOMPARE(colours::toRgb("#ff8000"), QString("rgb(255, 128, 0)"));
    QCOMPARE(colours::toRgb("red"), QString("rgb(127, 0, 0)"));
    QCOMPARE(colours::fromText("#0A1b2C"), QColor(10, 27, 44));
    QVERIFY(!colours::fromText("#0A1b2").isValid());
    QCOMPARE(colours::backgroundAttribute("#FCF7D9"), QString("bgcolor=\"#FCF7D9\""));
}

KIVZP_TEST(tst_values)
#include "tst_values.moc"

#include "testSupport.h"

#include "util/foldedText.h"
#include "util/quantity.h"

class tst_quantity : public QObject
{
    Q_OBJECT
private slots:
    void values_data();
    void values();
    void noQuantities_data();
    void noQuantities();
    void startOfText_data();
    void startOfText();
    void comparison();
    void folding_data();
    void folding();
};

void tst_quantity::values_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("unit");
    const auto row = [](const char *text, double value, quantity::unitKind unit = quantity::none) {
        QTest::newRow(text) << value << int(unit);
    };
    row("4k7", 4700);
    row("4K7", 4700);
    row("4.7 kΩ", 4700, quantity::ohm);
    row("4,7kohm", 4700, quantity::ohm);
    row("4.7 k\u2126", 4700, quantity::ohm);
    row("4k7Ω", 4700, quantity::ohm);
    row("4700", 4700);
    row("0", 0);
    row("0.5", 0.5);
    row(".5", 0.5);
    row("2M2", 2.2e6);
    row("2m2", 2.2e-3);
    row("0R1", 0.1, quantity::ohm);
    row("R47", 0.47, quantity::ohm);
    row("47R", 47, quantity::ohm);
    row("47r", 47, quantity::ohm);
    row("100n", 100e-9);
    row("100 nF", 100e-9, quantity::farad);
    row("0.1uf", 100e-9, quantity::farad);
    row("0,1µF", 100e-9, quantity::farad);
    row("0,1\u03bcF", 100e-9, quantity::farad);
    row("4n7", 4.7e-9);
    row("5p", 5e-12);
    row("10mH", 0.01, quantity::henry);
    row("3V3", 3.3, quantity::volt);
    row("3.3 V", 3.3, quantity::volt);
    row("24VDC", 24, quantity::volt);
    row("-5V", -5, quantity::volt);
    row("10 %", 10, quantity::percent);
    row("±10%", 10, quantity::percent);
    row("+/-0.5 %", 0.5, quantity::percent);
    row("350mA", 0.35, quantity::ampere);
    row("1.2Ah", 1.2, quantity::ampereHour);
    row("8MHz", 8e6, quantity::hertz);
    row("8 mhz", 8e6, quantity::hertz);
    row("1 250,50", 1250.5);
    row("1\u00a0250,50 zł", 1250.5, quantity::zloty);
    row("12.50 PLN", 12.5, quantity::zloty);
}

void tst_quantity::values()
{
    QFETCH(double, value);
    const std::optional<quantity> read =
        quantity::parse(QString::fromUtf8(QTest::currentDataTag()));
    QVERIFY(read);
    QVERIFY2(qAbs(read->value - value) <= 1e-12 * qAbs(value),
             qPrintable(QString::number(read->value)));
    QTEST(int(read->unit), "unit");
}

void tst_quantity::noQuantities_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"",
          " ",
          "R",
          "k",
          "0603",
          "M3",
          "1x3",
          "4k7k",
          "4k7 kΩ",
          "10mm",
          "32kB",
          "74HC595",
          "BC547",
          "1.2.3",
          "1e5",
          "0x10",
          "5 V 3",
          "100pcs",
          "--5",
          "±",
          "4..7",
          "100nF/50V",
          ("999999999999999999999999999999999999999999999999999999999999999999999"
           "999999999999999T9T")})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void tst_quantity::noQuantities()
{
    QFETCH(QString, text);
    QVERIFY(!quantity::parse(text));
}

void tst_quantity::startOfText_data()
{
    QTest::addColumn<double>("value"); // 0: none
    QTest::newRow("100nF/50V") << 100e-9;
    QTest::newRow("4k7 1%") << 4700.0;
    QTest::newRow("10k±5%") << 10e3;
    QTest::newRow("100 pcs") << 100.0;
    QTest::newRow("5V") << 5.0;
    QTest::newRow("1x3") << 0.0;
    QTest::newRow("10-pin") << 0.0;
    QTest::newRow("STM32 5V") << 0.0;
}

void tst_quantity::startOfText()
{
    const std::optional<quantity> read =
        quantity::parseStart(QString::fromUtf8(QTest::currentDataTag()));
    QTEST(read ? read->value : 0.0, "value");
}

void tst_quantity::comparison()
{
    const auto of = [](const char *text) { return *quantity::parse(QString::fromUtf8(text)); };
    QCOMPARE(of("100n").compare(of("0.1u")), 0);
    QCOMPARE(of("0.0000001").compare(of("100nF")), 0);
    QVERIFY(of("99.9n").compare(of("0.1u")) < 0);
    QVERIFY(of("12345.68").compare(of("12345.67")) > 0);
    QVERIFY(of("100n").fits(of("100nF")));
    QVERIFY(!of("5V").fits(of("5A")));
}

void tst_quantity::folding_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("folded");
    const auto row = [](const char *text, const char *folded) {
        QTest::newRow(folded) << QString::fromUtf8(text) << QString::fromUtf8(folded);
    };
    row("ZAŻÓŁĆ GĘŚLĄ JAŹŃ", "zazolc gesla jazn");
    row("zaz\u0307o\u0301łc\u0301", "zazolc");
    row("100 µF 4.7\u2126", "100 uf 4.7ohm");
    row("Straße Ærø", "strasse aero");
    row("\t7,5 ×\u00a0\n9 mm²\u2013", " 7,5 x 9 mm2-");
    row("Ц ж \u6f22", "ц ж \u6f22");
    row("a\U0001D400b", "aab");
}

void tst_quantity::folding()
{
    QFETCH(QString, text);
    QTEST(QString::fromStdString(text::folded(text)), "folded");
    // Half of a surrogate pair is dropped.
    QCOMPARE(text::folded("a" + QString(QChar(0xd801)) + "b"), std::string("ab"));
}

KIVZP_TEST(tst_quantity)
#include "tst_quantity.moc"

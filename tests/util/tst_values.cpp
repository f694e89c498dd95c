// Texts, numbers with units, dates, and words in both languages.
#include "testSupport.h"

#include "data/lineSums.h"
#include "util/dates.h"
#include "util/decimal.h"
#include "util/foldedText.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/quantity.h"
#include "util/text.h"
#include "util/translation.h"
#include "util/visibleBlanks.h"

using namespace testSupport;

class tst_values : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { translation::install("en"); }

    void texts_data()
    {
        using namespace text;
        const rows<QString, QString> row;
        row("trailing spaces", trimTrailingSpaces(" a \t  "), " a \t");
        row("html", htmlToPlain("a&nbsp;<b>b</b><br>c &lt; &#x119;"), "a b\nc < \u0119");
        row("slashes", normalisePath("a//b///c"), "a/b/c");
        row("backslashes", normalisePath("\\\\a\\\\\\b/"), "\\a\\b/");
        row("file name", fileNameOfPath("/x/y/\u017c.tar.gz"), "\u017c.tar.gz");
        row("line ends", storable("a\r\nb\rc\n"), "a\nb\nc\n");
        row("control characters", storable(QString("a\u0001\tb\u001f") + QChar(0)), "a\tb");
        row("not characters", storable(QString("a") + QChar(0xfffe) + QChar(0xffff) + "b"), "ab");
        const QString pair = QString::fromUcs4(U"\U0001F600", 1);
        row("pairs stay, halves go", storable(pair + QChar(0xd83d) + "x" + QChar(0xde00)), pair + "x");
        row("escaped with line ends", toHtml("<a & \"b\">\nc"), "&lt;a &amp; &quot;b&quot;&gt;<br>c");
        row("single blanks stay", visibleBlanks("a b c"), "a b c");
        row("blanks at the ends", visibleBlanks(" a  b "), "\u00b7a\u00b7\u00b7b\u00b7");
        row("nothing but blanks", visibleBlanks("  "), "\u00b7\u00b7");
        row("line ends", visibleBlanks("a \nb\n"), "a\u00b7\u21b5 b\u21b5");
        row("Windows line ends", visibleBlanks("a\r\nb"), "a\u25af\u21b5 b");
        row("other blanks", visibleBlanks("a\tb\u00a0c\u200bd"), "a\u2192b\u237dc\u25afd");
        row("pairs are seen", visibleBlanks(pair), pair);
        row("month by the compiler", dates::fromMonthNames("Nov  4 2026"), "04.11.2026");
        row("month in capitals", dates::fromMonthNames("JAN 31 2027"), "31.01.2027");
        row("any other word is December", dates::fromMonthNames("xyz 1 2026"), "01.12.2026");
        row("no year", dates::fromMonthNames("apr 2"), "02.04.");
        row("no date", dates::fromMonthNames(""), "");
        row("binary", numbers::plain(0.1 + 0.2), "0.3");
        row("large", numbers::plain(1e12), "1000000000000");
        row("nearly nothing", numbers::plain(-1e-9), "0");
        row("small", numbers::plain(0.0005), "0.0005");
        row("negative", numbers::plain(-2.50), "-2.5");
    }

    void texts()
    {
        const auto [result, expected] = fetch<QString, QString>();
        QCOMPARE(result, expected);
    }

    // The number, or -99 for none.
    void numberChecks_data()
    {
        const rows<double> row;
        row("0x1F", 31);
        row("0X1F", -99);
        row("1F", -99);
        row("3,14", 3.14);
        row("3.14", 3.14);
        row("-2", -2);
        row("", -99);
        row("1,2,3", -99);
        row("5 szt.", -99);
        row("0x1FFFFFFFF", -99);
    }

    void numberChecks()
    {
        const auto [value] = fetch<double>();
        QString errors;
        QCOMPARE(numbers::check(tag(), &errors), value != -99);
        QCOMPARE(errors, value == -99 ? "&nbsp;" + tag() + "&nbsp;is not a number<br>" : QString());
        QCOMPARE(numbers::value(tag()), value == -99 ? 0 : value);
    }

    // The exact number, or nothing for none; the price as pages show it.
    void decimals_data()
    {
        const rows<QString, QString> row;
        row("0.0042", "0.0042", "0.0042");
        row("0.5", "0.5", "0.50");
        row("12,3456", "12.3456", "12.3456");
        row("-1234.005", "-1234.005", "-1\u00a0234.005");
        row("1e6", "1000000", "1\u00a0000\u00a0000.00");
        row("125E-5", "0.00125", "0.00125");
        row("0.1234565", "0.1234565", "0.123457");
        row("-0.0000001", "-0.0000001", "0.00");
        row("999.9999995", "999.9999995", "1\u00a0000.00");
        row(" +5. ", "5", "5.00");
        row(".5", "0.5", "0.50");
        row("0x1F", "31", "31.00");
        row("0e99999999999", "0", "0.00");
        row("999999999999999999.000000000000000001", "999999999999999999.000000000000000001",
            "999\u00a0999\u00a0999\u00a0999\u00a0999\u00a0999.00");
        for (const char *none : {"1e18", "1e-19", "1e99999999999", "nan", "inf", "", "-", "1,2,3", "1e", "123456 zl"})
            row(none, "", none);
    }

    void decimals()
    {
        const auto [exact, price] = fetch<QString, QString>();
        const std::optional<decimal> number = decimal::read(tag());
        QCOMPARE(number ? number->text() : QString(), exact);
        QCOMPARE(numbers::grouped(numbers::price(tag())), price);
        QVERIFY(!number || numbers::finite(tag()));
    }

    // As whole numbers add up: a thousandth of a piece at a millionth of a zloty.
    void sumsAreExact()
    {
        QRandomGenerator random(20261125);
        const auto written = [&random](qint64 units, int decimals) {
            const QString digits = QString::number(qAbs(units)).rightJustified(decimals + 1, '0');
            return (units < 0 ? "-" : "") + digits.chopped(decimals) + ".,"[random.bounded(2)] + digits.right(decimals);
        };
        for (int round = 0; round < 500; ++round) {
            lineSums sums;
            qint64 expected = 0;
            const int sets = 1 + random.bounded(9);
            for (int line = random.bounded(50); line >= 0; --line) {
                const qint64 quantity = random.bounded(1000) * QList<qint64>{1, 50, 1000}.at(random.bounded(3));
                const qint64 price = random.bounded(-20000, 200000) * QList<qint64>{1, 50, 1000}.at(random.bounded(3));
                sums.add(decimal::read(written(quantity, 3)), written(price, 6), "x");
                expected += quantity * price * sets;
            }
            const qint64 grosz = (qAbs(expected) + 5000000) / 10000000;
            QCOMPARE(sums.times(sets).price.amount.money(),
                     written(expected < 0 ? -grosz : grosz, 2).replace(',', '.'));
        }
    }

    void storedWordsAreShownInTheLanguage()
    {
        QCOMPARE(labels::storedUnits().size(), 15);
        QCOMPARE(labels::shown("pcs."), QString("pcs."));
        QCOMPARE(labels::shown("TAK"), QString("YES"));
        QCOMPARE(labels::signature(), QString(" Signature"));
        // A word only where the field holds words, whatever leads to it.
        QCOMPARE(labels::shownIn("status", "ZIELONY"), QString("GREEN"));
        QCOMPARE(labels::shownIn("d_case", "ZIELONY"), QString("ZIELONY"));
        QCOMPARE(labels::shownIn("supplier[A/B]/file[x]/type", "FILE_DATASHEET"), QString("Datasheet"));
        QCOMPARE(labels::shownIn("type", "ORDER_NUMBER"), labels::optionCaption("ORDER_NUMBER"));
        QCOMPARE(labels::shownIn("type", "?"), QString("?"));
        QCOMPARE(labels::storedOf("green"), QString("ZIELONY"));
        QCOMPARE(labels::storedOf("Yes"), QString("TAK"));
        QCOMPARE(labels::storedOf("green LED"), QString("green LED"));
        translation::install("pl");
        // A foreign unit stays, also when it is a text of the catalogue.
        const QStringList words{"pcs.", "TAK", "YES", "NIE", "Price"};
        QStringList shown;
        for (const QString &word : words)
            shown += labels::shown(word);
        QCOMPARE(shown, QStringList({"szt.", "TAK", "TAK", "NIE", "Price"}));
        QCOMPARE(labels::storedOf("SZT."), QString("pcs."));
        lineSums sums;
        sums.add(decimal(), "", "x");
        sums.add(decimal(), "", "");
        sums.add({}, "1", "1");
        QCOMPARE(sums.price.note(),
                 QString(" (pominięto 1 pozycję bez czytelnej ilości; pominięto 2 pozycje bez ceny)"));
        QCOMPARE(labels::dateFormat(), QString("dd.MM.yyyy"));
        QCOMPARE(labels::optionCaption("FILE_DB_WAREHOUSE"), QString("Plik bazy danych wearhouse"));
        QCOMPARE(labels::optionCaption("EDIT_FIRM"), QString("Edycja bazy danych producent\u00f3wi dostawc\u00f3w"));
    }

    // Grouped by what they mean.
    void values_data()
    {
        const rows<double, int> row;
        row.each({"4k7", "4K7", "4700"}, 4700, quantity::none);
        row.each({"4.7 kΩ", "4,7kohm", "4.7 k\u2126", "4k7Ω"}, 4700, quantity::ohm);
        row.each({"0"}, 0, quantity::none);
        row.each({"0.5", ".5"}, 0.5, quantity::none);
        row.each({"2M2"}, 2.2e6, quantity::none);
        row.each({"2m2"}, 2.2e-3, quantity::none);
        row.each({"0R1"}, 0.1, quantity::ohm);
        row.each({"R47"}, 0.47, quantity::ohm);
        row.each({"47R", "47r"}, 47, quantity::ohm);
        row.each({"100n"}, 100e-9, quantity::none);
        row.each({"100 nF", "0.1uf", "0,1µF", "0,1\u03bcF"}, 100e-9, quantity::farad);
        row.each({"4n7"}, 4.7e-9, quantity::none);
        row.each({"5p"}, 5e-12, quantity::none);
        row.each({"10mH"}, 0.01, quantity::henry);
        row.each({"3V3", "3.3 V"}, 3.3, quantity::volt);
        row.each({"24VDC"}, 24, quantity::volt);
        row.each({"-5V"}, -5, quantity::volt);
        row.each({"10 %", "±10%"}, 10, quantity::percent);
        row.each({"+/-0.5 %"}, 0.5, quantity::percent);
        row.each({"350mA"}, 0.35, quantity::ampere);
        row.each({"1.2Ah"}, 1.2, quantity::ampereHour);
        row.each({"8MHz", "8 mhz"}, 8e6, quantity::hertz);
        row.each({"1 250,50"}, 1250.5, quantity::none);
        row.each({"1\u00a0250,50 zł"}, 1250.5, quantity::zloty);
        row.each({"12.50 PLN"}, 12.5, quantity::zloty);
    }

    void values()
    {
        const auto [value, unit] = fetch<double, int>();
        const std::optional<quantity> read = quantity::parse(tag());
        QVERIFY(read);
        QVERIFY2(qAbs(read->value - value) <= 1e-12 * qAbs(value), qPrintable(QString::number(read->value)));
        QCOMPARE(int(read->unit), unit);
    }

    void noQuantities()
    {
        for (const char *text :
             {"",        " ",     "R",     "k",   "0603", "M3",    "1x3",    "4k7k", "4k7 kΩ", "10mm", "32kB",
              "74HC595", "BC547", "1.2.3", "1e5", "0x10", "5 V 3", "100pcs", "--5",  "±",      "4..7", "100nF/50V"})
            QVERIFY2(!quantity::parse(QString::fromUtf8(text)), text);
        QVERIFY(!quantity::parse(QString(84, '9') + "T9T"));
    }

    void startOfText_data()
    {
        const rows<double> row;
        row("100nF/50V", 100e-9);
        row("4k7 1%", 4700.0);
        row("10k±5%", 10e3);
        row("100 pcs", 100.0);
        row("5V", 5.0);
        row("1x3", 0.0);
        row("10-pin", 0.0);
        row("STM32 5V", 0.0);
    }

    void startOfText()
    {
        const auto [value] = fetch<double>();
        const std::optional<quantity> read = quantity::parseStart(tag());
        QCOMPARE(read ? read->value : 0.0, value);
    }

    void comparison()
    {
        const auto of = [](const char *text) { return *quantity::parse(QString::fromUtf8(text)); };
        QCOMPARE(of("100n").compare(of("0.1u")), 0);
        QCOMPARE(of("0.0000001").compare(of("100nF")), 0);
        QVERIFY(of("99.9n").compare(of("0.1u")) < 0);
        QVERIFY(of("12345.68").compare(of("12345.67")) > 0);
        QVERIFY(of("100n").fits(of("100nF")));
        QVERIFY(!of("5V").fits(of("5A")));
    }

    void folding_data()
    {
        const rows<QString> row;
        row("ZAŻÓŁĆ GĘŚLĄ JAŹŃ", "zazolc gesla jazn");
        row("zaz\u0307o\u0301łc\u0301", "zazolc");
        row("100 µF 4.7\u2126", "100 uf 4.7ohm");
        row("Straße Ærø", "strasse aero");
        row("\t7,5 ×\u00a0\n9 mm²\u2013", " 7,5 x 9 mm2-");
        row("Ц ж \u6f22", "ц ж \u6f22");
        row("a\U0001D400b", "aab");
    }

    void folding()
    {
        const auto [folded] = fetch<QString>();
        QCOMPARE(QString::fromStdString(text::folded(tag())), folded);
        // Half of a surrogate pair is dropped.
        QCOMPARE(text::folded("a" + QString(QChar(0xd801)) + "b"), std::string("ab"));
    }
};

KIVZP_TEST(tst_values)
#include "tst_values.moc"

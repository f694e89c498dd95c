// Texts, numbers, dates, and words in both languages.
#include "testSupport.h"

#include "util/dates.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"
#include "util/translation.h"

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
        row("month by the compiler", dates::fromMonthNames("Nov  4 2026"), "04.11.2026");
        row("month in capitals", dates::fromMonthNames("JAN 31 2027"), "31.01.2027");
        row("any other word is December", dates::fromMonthNames("xyz 1 2026"), "01.12.2026");
        row("no year", dates::fromMonthNames("apr 2"), "02.04.");
        row("no date", dates::fromMonthNames(""), "");
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

    void storedWordsAreShownInTheLanguage()
    {
        QCOMPARE(labels::storedUnits().size(), 15);
        QCOMPARE(labels::shown("pcs."), QString("pcs."));
        QCOMPARE(labels::shown("TAK"), QString("YES"));
        QCOMPARE(labels::signature(), QString(" Signature"));
        translation::install("pl");
        // A foreign unit stays, also when it is a text of the catalogue.
        const QStringList words{"pcs.", "TAK", "YES", "NIE", "Price"};
        QStringList shown;
        for (const QString &word : words)
            shown += labels::shown(word);
        QCOMPARE(shown, QStringList({"szt.", "TAK", "TAK", "NIE", "Price"}));
        QCOMPARE(labels::dateFormat(), QString("dd.MM.yyyy"));
        QCOMPARE(labels::optionCaption("FILE_DB_WAREHOUSE"), QString("Plik bazy danych wearhouse"));
        QCOMPARE(labels::optionCaption("EDIT_FIRM"), QString("Edycja bazy danych producent\u00f3wi dostawc\u00f3w"));
    }
};

KIVZP_TEST(tst_values)
#include "tst_values.moc"

// Labels and stored words in both languages.
#include "testSupport.h"

#include "util/labels.h"
#include "util/translation.h"

class tst_labels : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { translation::install("en"); }
    void storedWordsAreShownInTheLanguage();
    void optionCaptions();
};

void tst_labels::storedWordsAreShownInTheLanguage()
{
    QCOMPARE(labels::storedUnits().size(), 15);
    QCOMPARE(labels::shown("pcs."), QString("pcs."));
    QCOMPARE(labels::shown("TAK"), QString("YES"));
    QCOMPARE(labels::signature(), QString(" Signature"));
    translation::install("pl");
    QCOMPARE(labels::shown("pcs."), QString("szt."));
    QCOMPARE(labels::shown("TAK"), QString("TAK"));
    QCOMPARE(labels::shown("YES"), QString("TAK"));
    QCOMPARE(labels::shown("NIE"), QString("NIE"));
    // A foreign unit stays, also when it is a text of the catalogue.
    QCOMPARE(labels::shown("Price"), QString("Price"));
    QCOMPARE(labels::dateFormat(), QString("dd.MM.yyyy"));
}

void tst_labels::optionCaptions()
{
    translation::install("pl");
    QCOMPARE(labels::optionCaption("FILE_DB_WAREHOUSE"), QString("Plik bazy danych wearhouse"));
    QCOMPARE(labels::optionCaption("EDIT_FIRM"),
             QString("Edycja bazy danych producent\u00f3wi dostawc\u00f3w"));
}

KIVZP_TEST(tst_labels)
#include "tst_labels.moc"

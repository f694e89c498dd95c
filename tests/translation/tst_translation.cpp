// The Polish catalogue has every text of the sources, finished, with its places for values.
#include "testSupport.h"

#include <QXmlStreamReader>

using namespace testSupport;

class tst_translation : public folderTest
{
    Q_OBJECT
private slots:
    // A fresh look at the sources finds no text that the catalogue lacks.
    void everyTextIsTranslated()
    {
        const QString catalogue = m_folder->write("KIV_ZP_pl.ts", read(source("resources/translations/KIV_ZP_pl.ts")));
        QProcess lupdate;
        lupdate.start(KIVZP_LUPDATE, {"-silent", "-locations", "none", source("src"), "-ts", catalogue});
        QVERIFY(lupdate.waitForFinished(60000) && lupdate.exitCode() == 0);
        // Such a text gets into no catalogue.
        QVERIFY(!lupdate.readAllStandardError().contains("without context"));
        const QByteArray fresh = read(catalogue);
        QCOMPARE(fresh.count("type=\"unfinished\""), 0);
        QCOMPARE(fresh.count("type=\"vanished\"") + fresh.count("type=\"obsolete\""), 0);
        QVERIFY(fresh.count("<message") > 200);
    }

    void placesAndEndsAgree()
    {
        QXmlStreamReader reader(read(source("resources/translations/KIV_ZP_pl.ts")));
        QString context;
        QString source;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement())
                continue;
            if (reader.name() == "name") {
                context = reader.readElementText();
            } else if (reader.name() == "source") {
                source = reader.readElementText();
            } else if (reader.name() == "numerusform") {
                QVERIFY2(reader.readElementText().contains("%n"), qPrintable(source));
            } else if (reader.name() == "translation" && !source.contains("%n")) {
                const QString text = reader.readElementText();
                for (const char *place : {"%1", "%2", "%3"})
                    QVERIFY2(text.count(place) == source.count(place), qPrintable(source));
                // The beginnings of log lines get their blank from the catalogue.
                if (context == "log")
                    continue;
                QVERIFY2(text.startsWith(' ') == source.startsWith(' '), qPrintable(source));
                QVERIFY2(text.endsWith(' ') == source.endsWith(' '), qPrintable(source));
            }
        }
        QVERIFY(!reader.hasError());
    }
};

KIVZP_TEST(tst_translation)
#include "tst_translation.moc"

// The Polish catalogue has every text of the sources, finished, with its places for values.
#include "testSupport.h"

#include <QDirIterator>
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

    // What a file's own tr() looks up stands in its context: the catalogue takes it from the namespace.
    void ownContextsAreTheNamespaces()
    {
        QHash<QString, QSet<QString>> texts;
        QXmlStreamReader reader(read(source("resources/translations/KIV_ZP_pl.ts")));
        QString context;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == "name")
                context = reader.readElementText();
            else if (reader.isStartElement() && reader.name() == "source")
                texts[context].insert(reader.readElementText());
        }
        static const QRegularExpression own("^QString tr\\(const char[^{]*\\{[^}]*translate\\(\"(\\w+)\"",
                                            QRegularExpression::MultilineOption);
        static const QRegularExpression used("\\btr\\(\"([^\"\\\\]+)\"[,)]");
        QDirIterator files(source("src"), {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
        int count = 0;
        while (files.hasNext()) {
            const QString text = read(files.next());
            const QString name = own.match(text).captured(1);
            for (auto at = used.globalMatch(text); !name.isEmpty() && at.hasNext(); ++count) {
                const QString wanted = at.next().captured(1);
                QVERIFY2(texts[name].contains(wanted), qPrintable(name + ": " + wanted));
            }
        }
        QVERIFY(count > 20);
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

    // Alt with a letter presses one button of a dialog, not now this and now that one.
    void lettersAreGivenOnce()
    {
        // Of these two only one is there.
        const QStringList never{"&Zarezerwuj", "&Zdejmij ze stanu"};
        static const QRegularExpression letter("&([^\\W_])(?!\\w*;)", QRegularExpression::UseUnicodePropertiesOption);
        QXmlStreamReader reader(read(source("resources/translations/KIV_ZP_pl.ts")));
        QHash<QString, QString> given;
        int count = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            if (reader.isStartElement() && reader.name() == "context")
                given.clear();
            if (!reader.isStartElement() || reader.name() != "translation")
                continue;
            const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
            const QString key = letter.match(text).captured(1).toLower();
            if (key.isEmpty() || never.contains(text))
                continue;
            QVERIFY2(!given.contains(key), qPrintable(text + " and " + given.value(key)));
            given.insert(key, text);
            ++count;
        }
        QVERIFY(count > 50);
    }
};

KIVZP_TEST(tst_translation)
#include "tst_translation.moc"

// The Polish catalogue has every text of the sources, and none unfinished.
#include "testSupport.h"

#include <QProcess>
#include <QXmlStreamReader>

class tst_translation : public QObject
{
    Q_OBJECT
private slots:
    void everyTextIsTranslated();
    void placesAndEndsAgree();
};

namespace {

struct message
{
    QString source;
    QStringList translations; // several for plural forms
    bool finished = true;
    bool vanished = false;
};

QVector<message> messages(const QString &path)
{
    QVector<message> result;
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == "message") {
            result.append(message());
        } else if (reader.name() == "source") {
            result.last().source = reader.readElementText();
        } else if (reader.name() == "translation") {
            const QStringRef type = reader.attributes().value("type");
            result.last().finished = type != "unfinished";
            result.last().vanished = type == "vanished" || type == "obsolete";
            const QString text = reader.readElementText(QXmlStreamReader::IncludeChildElements);
            result.last().translations =
                text.contains('\n') && text.trimmed() != text
                    ? text.split('\n', Qt::SkipEmptyParts)
                          .replaceInStrings(QRegularExpression("^ +| +$"), "")
                    : QStringList(text);
        }
    }
    return result;
}

} // namespace

// A fresh look at the sources finds no text that the catalogue lacks.
void tst_translation::everyTextIsTranslated()
{
    const testSupport::programFolder folder;
    const QString catalogue = folder.path("KIV_ZP_pl.ts");
    QVERIFY(QFile::copy(testSupport::source("resources/translations/KIV_ZP_pl.ts"), catalogue));
    QProcess lupdate;
    lupdate.start(KIVZP_LUPDATE,
                  {"-silent", "-locations", "none", testSupport::source("src"), "-ts", catalogue});
    QVERIFY(lupdate.waitForFinished(60000));
    QCOMPARE(lupdate.exitCode(), 0);
    QStringList unfinished;
    QStringList unused;
    const QVector<message> all = messages(catalogue);
    for (const message &m : all) {
        if (!m.finished)
            unfinished.append(m.source);
        if (m.vanished)
            unused.append(m.source);
    }
    QVERIFY(all.size() > 100);
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join('\n')));
    QVERIFY2(unused.isEmpty(), qPrintable(unused.join('\n')));
}

// A translation keeps the places for values and the blanks at the ends.
void tst_translation::placesAndEndsAgree()
{
    for (const message &m : messages(testSupport::source("resources/translations/KIV_ZP_pl.ts"))) {
        for (const char *place : {"%1", "%2", "%3", "%n"})
            for (const QString &translation : m.translations)
                QVERIFY2(translation.count(place) == m.source.count(place) ||
                             m.translations.size() > 1,
                         qPrintable(m.source));
        if (m.translations.size() == 1) {
            QVERIFY2(m.translations[0].startsWith(' ') == m.source.startsWith(' '),
                     qPrintable(m.source));
            QVERIFY2(m.translations[0].endsWith(' ') == m.source.endsWith(' '),
                     qPrintable(m.source));
        }
    }
}

KIVZP_TEST(tst_translation)
#include "tst_translation.moc"

// Damaged and hostile files: a verdict and a result code in bounded time and memory, and the same
// verdict from both validators.
#include "testSupport.h"

#include "data/XmlValidator.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "util/paths.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTextCodec>
#include <QXmlSchema>
#include <QXmlSchemaValidator>

#include <sys/resource.h>

using testSupport::order;

class silentHandler : public QAbstractMessageHandler
{
protected:
    void handleMessage(QtMsgType, const QString &, const QUrl &, const QSourceLocation &) override
    {
    }
};

class tst_damagedFiles : public QObject
{
    Q_OBJECT
private slots:
    void damaged_data();
    void damaged();
    void validatorsAgree_data();
    void validatorsAgree();
};

namespace {

struct damagedFile
{
    const char *name;
    QByteArray content;
    bool valid;
    int loaded; // result of loadZp
};

QByteArray item(const QByteArray &content)
{
    return order("<order_items><order_item>" + content + "</order_item></order_items>");
}

QByteArray bomb(const QByteArray &kind)
{
    // Each entity is ten times the one before: ten of them are 10 GB.
    QByteArray dtd = "<?xml version=\"1.0\"?>\n<!DOCTYPE kiv_mat_zp [\n<!ENTITY " + kind
                     + "e0 \"0123456789\">\n";
    for (int i = 1; i < 10; ++i) {
        dtd += "<!ENTITY " + kind + "e" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            dtd += (kind.isEmpty() ? "&e" : "&#37;e") + QByteArray::number(i - 1) + ";";
        dtd += "\">\n";
    }
    if (!kind.isEmpty())
        dtd += "%e9;\n";
    return dtd + "]>\n<kiv_mat_zp><attentions>&e9;</attentions></kiv_mat_zp>";
}

const std::vector<damagedFile> &damagedFiles()
{
    const QByteArray good = item("<name>a</name>");
    const QByteArray deepOpen = QByteArray("<a>").repeated(100000);
    static const std::vector<damagedFile> files{
        {"good", good, true, 0},
        {"empty", "", false, -1},
        {"only blanks", " \n", false, -1},
        {"no XML", "Towar: 1", false, -1},
        {"truncated in a tag", good.left(good.indexOf("</name>") + 3), false, -1},
        {"truncated before the end", good.chopped(14), false, -1},
        {"truncated declaration", good.left(10), false, -1},
        {"wrong root", "<kiv_zp/>", false, 0},
        {"two roots", good + "<kiv_mat_zp/>", false, -1},
        {"text behind the root", good + "x", false, -1},
        {"UTF-16",
         QTextCodec::codecForName("UTF-16")->fromUnicode(QString(good).replace("UTF-8", "UTF-16")),
         true, 0},
        {"Latin 2 that says UTF-8", item("<name>\xb1\xe6</name>"), false, -1},
        {"unknown encoding", QByteArray(good).replace("UTF-8", "KOI-99"), false, -1},
        {"NUL byte", QByteArray(good).replace("a</name>", QByteArray("a\0</name>", 9)), false, -1},
        {"NUL behind the root", good + QByteArray(1, '\0'), false, -1},
        {"control character", item("<name>\x01</name>"), false, -1},
        {"reference to a control character", item("<name>&#1;</name>"), false, -1},
        {"XML 1.5", QByteArray(good).replace("version=\"1.0\"", "version=\"1.5\""), false, -1},
        {"undefined entity", item("<name>&what;</name>"), false, -1},
        {"attribute twice", order("<options><option type=\"a\" type=\"b\"/></options>"), false, -1},
        {"tag not closed", item("<name>a</index>"), false, -1},
        {"byte order mark", "\xef\xbb\xbf" + good, true, 0},
        {"comment and instruction", good + "<!-- c --><?pi x?>", true, 0},
        {"CDATA", item("<name><![CDATA[<a>&]]></name>"), true, 0},
        {"document type", "<!DOCTYPE kiv_mat_zp>\n<kiv_mat_zp/>", false, -1},
        {"entity bomb", bomb(""), false, -1},
        {"parameter entity bomb", bomb("% "), false, -1},
        {"outside entity",
         "<!DOCTYPE k [<!ENTITY x SYSTEM \"file:///etc/hostname\">]><kiv_mat_zp><attentions>&x;"
         "</attentions></kiv_mat_zp>",
         false, -1},
        {"10 MB in one element", item("<name>" + QByteArray(10 << 20, 'x') + "</name>"), true, 0},
        {"10 MB in one attribute",
         order("<options><option type=\"" + QByteArray(10 << 20, 'x') + "\"/></options>"), false,
         0},
        {"100,000 levels", order(deepOpen + QByteArray("</a>").repeated(100000)), false, 0},
        {"100,000 levels left open", order(deepOpen), false, -1},
        {"1,000 attributes",
         [] {
             QByteArray content = "<options><option";
             for (int i = 0; i < 1000; ++i)
                 content += " a" + QByteArray::number(i) + "=\"\"";
             return order(content + "/></options>");
         }(),
         false, 0},
    };
    return files;
}

// Instrumented code copies a text each time it grows.
constexpr qint64 allowedMs = KIVZP_SANITIZED ? 60000 : 5000;
constexpr long allowedKilobytes = 1 << 20;

} // namespace

void tst_damagedFiles::damaged_data()
{
    QTest::addColumn<int>("index");
    for (size_t i = 0; i < damagedFiles().size(); ++i)
        QTest::newRow(damagedFiles()[i].name) << int(i);
}

void tst_damagedFiles::damaged()
{
    QFETCH(int, index);
    const damagedFile &file = damagedFiles()[size_t(index)];
    const testSupport::programFolder folder;
    testSupport::recordingPrompts shown;
    const QString path = folder.write("f.xml", file.content);
    QElapsedTimer timer;
    timer.start();
    kiv_mat_zpStruct record;
    QString error;
    QCOMPARE(loadDocument(path, &record, &error), file.loaded);
    QCOMPARE(error.isEmpty(), file.loaded == 0);
    QCOMPARE(validateXml(path, paths::schema("kiv_mat.xsd"), true), file.valid);
    // A refusal says why.
    QCOMPARE(shown.errors.isEmpty(), file.valid);
    fileKinds::ofFile(path);
    QVERIFY2(timer.elapsed() < allowedMs, qPrintable(QString::number(timer.elapsed())));
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    QVERIFY2(usage.ru_maxrss < allowedKilobytes, qPrintable(QString::number(usage.ru_maxrss)));
}

void tst_damagedFiles::validatorsAgree_data()
{
    QTest::addColumn<QByteArray>("content");
    constexpr int smallFile = 1 << 20;
    for (const damagedFile &file : damagedFiles())
        if (file.content.size() < smallFile)
            QTest::newRow(file.name) << file.content;
    for (QDirIterator it(testSupport::source("tests/files"), QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = it.next();
        QTest::newRow(qPrintable(it.fileName())) << testSupport::read(path);
    }
}

// The verdict of the thorough validator, asked alone, is that of the streaming one. Files with a
// document type are left out: the program refuses them before either is asked.
void tst_damagedFiles::validatorsAgree()
{
    QFETCH(QByteArray, content);
    if (content.contains("<!DOCTYPE"))
        return;
    const testSupport::programFolder folder;
    const QString path = folder.write("f.xml", content);
    const fileKind *kind = fileKinds::ofFile(path);
    const QString schemaPath = paths::schema(kind ? kind->schema : QString("kiv_mat.xsd"));
    silentHandler silent;
    QXmlSchema schema;
    schema.setMessageHandler(&silent);
    QVERIFY(schema.load(QUrl::fromLocalFile(schemaPath)));
    QXmlSchemaValidator thorough(schema);
    thorough.setMessageHandler(&silent);
    QCOMPARE(validateStreaming(path, schemaPath).valid,
             thorough.validate(content, QUrl::fromLocalFile(path)));
}

KIVZP_TEST(tst_damagedFiles)
#include "tst_damagedFiles.moc"

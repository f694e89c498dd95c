// The reading loop and the loaders' results.
#include "testSupport.h"

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"

#include <QDirIterator>
#include <QTextCodec>

using testSupport::document;
using testSupport::order;

class tst_loaders : public QObject
{
    Q_OBJECT
private slots:
    void results_data();
    void results();
    void unknownElementsAreWalkedThrough();
    void attributePrefixesDoNotCount();
    void lineEndsBecomeLf();
    void encodings_data();
    void encodings();
    void configurationIsValidatedFirst();
    void kindsAreFoundByTheirRoot();
    void repeatedTextsShareTheirMemory();
    void shippedFilesKeepTheirBytes_data();
    void shippedFilesKeepTheirBytes();
};

void tst_loaders::results_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("result");
    QTest::addColumn<int>("lines");
    const QByteArray items = "<order_items><order_item><name>a</name></order_item>"
                             "<order_item><name>b</name></order_item></order_items>";
    QTest::newRow("whole") << order(items) << 0 << 2;
    QTest::newRow("empty file") << QByteArray() << -1 << 0;
    QTest::newRow("wrong root") << document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd", items)
                                << 0 << 0;
    QTest::newRow("root inside another") << "<x>" + order(items).mid(39) + "</x>" << 0 << 2;
    QTest::newRow("cut in the second line")
        << order(items).left(order(items).indexOf("b</name>")) << -1 << 2;
    QTest::newRow("cut before the root's end")
        << order(items).left(order(items).indexOf("</kiv")) << -1 << 2;
    QTest::newRow("two roots") << order(items) + "<more/>" << -1 << 2;
    QTest::newRow("element inside a text")
        << order("<attentions>a<b/></attentions>" + items) << -1 << 0;
    QTest::newRow("undeclared prefix") << order("<p:options/>") << -1 << 0;
    QTest::newRow("document type")
        << "<!DOCTYPE kiv_mat_zp [<!ENTITY e 'x'>]>" + order(items).mid(39) << -1 << 0;
    QTest::newRow("NUL byte") << order(items).replace("b</name>", QByteArray("b\0</name>", 9)) << -1
                              << 2;
}

void tst_loaders::results()
{
    QFETCH(QByteArray, content);
    const testSupport::programFolder folder;
    kiv_mat_zpStruct record;
    QTEST(loadZp(folder.write("o.xml", content), &record), "result");
    QTEST(int(record.orderItems.items.size()), "lines");
    // What was read before the fault stays.
    if (!record.orderItems.items.empty())
        QCOMPARE(record.orderItems.items[0]->name, QString("a"));
    kiv_mat_zpStruct none;
    QCOMPARE(loadZp(folder.path("none.xml"), &none), -1);
    QCOMPARE(loadZp(folder.path(), &none), -1);
}

void tst_loaders::unknownElementsAreWalkedThrough()
{
    const testSupport::programFolder folder;
    kiv_mat_databaseStruct record;
    const QString path = folder.write(
        "d.xml", document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                          "<later><update>seen</update></later><d_group name=\"g\" colour=\"red\">"
                          "<box><material><stamp>1</stamp><d_name>n</d_name><deep><d_ktm>k</d_ktm>"
                          "</deep></material></box></d_group>"));
    QCOMPARE(loadDatabase(path, &record), 0);
    QCOMPARE(record.update, QString("seen"));
    QCOMPARE(record.groups[0]->items[0]->d_name, QString("n"));
    QCOMPARE(record.groups[0]->items[0]->d_ktm, QString("k"));
}

void tst_loaders::attributePrefixesDoNotCount()
{
    const testSupport::programFolder folder;
    kiv_mat_zpStruct record;
    const QString path = folder.write(
        "o.xml",
        "<kiv_mat_zp xmlns:q=\"urn:q\" q:type=\"T\" q:noNamespaceSchemaLocation=\"s.xsd\"/>");
    QCOMPARE(loadZp(path, &record), 0);
    QCOMPARE(record.xsiType, QString("T"));
    QCOMPARE(record.schemaLocation, QString("s.xsd"));
}

void tst_loaders::lineEndsBecomeLf()
{
    const testSupport::programFolder folder;
    kiv_mat_zpStruct record;
    QCOMPARE(
        loadZp(folder.write("o.xml", order("<attentions>a\r\nb\rc&#13;&#10;d&#13;</attentions>")),
               &record),
        0);
    QCOMPARE(record.attentions, QString("a\nb\nc\nd\n"));
}

void tst_loaders::encodings_data()
{
    QTest::addColumn<QByteArray>("codec");
    QTest::addColumn<QByteArray>("declared");
    QTest::addColumn<int>("result");
    QTest::newRow("UTF-16 with mark") << QByteArray("UTF-16") << QByteArray("UTF-16") << 0;
    QTest::newRow("Latin 2") << QByteArray("ISO-8859-2") << QByteArray("ISO-8859-2") << 0;
    QTest::newRow("Latin 2 that says UTF-8")
        << QByteArray("ISO-8859-2") << QByteArray("UTF-8") << -1;
    QTest::newRow("unknown") << QByteArray("UTF-8") << QByteArray("KOI-99") << -1;
}

void tst_loaders::encodings()
{
    QFETCH(QByteArray, codec);
    QFETCH(QByteArray, declared);
    const testSupport::programFolder folder;
    // The letters hold bytes 0x0D in UTF-16, which are no line ends there.
    const QString polish = QString::fromUtf8("\u010d\u017c\u00f3\u0142w");
    const QString text = QString::fromUtf8(order("<attentions>@</attentions>"))
                             .replace("UTF-8", declared)
                             .replace("@", polish);
    kiv_mat_zpStruct record;
    const QString path = folder.write("o.xml", QTextCodec::codecForName(codec)->fromUnicode(text));
    QFETCH(int, result);
    QCOMPARE(loadZp(path, &record), result);
    if (result == 0)
        QCOMPARE(record.attentions, polish);
}

void tst_loaders::configurationIsValidatedFirst()
{
    const testSupport::programFolder folder;
    testSupport::recordingPrompts shown;
    configStruct record;
    const QString bad =
        folder.write("c.xml", document("kiv_config", "KIV_CONFIG_1", "kiv.xsd",
                                       "<options><option type=\"EDIT_ZP\"/></options>"
                                       "<colour/>"));
    QCOMPARE(loadConfig(bad, &record), 1);
    QVERIFY(record.options.items.empty());
    QVERIFY(!shown.errors.isEmpty());
    QVERIFY(!record.load(bad));
    QCOMPARE(loadConfig(folder.path("none.xml"), &record), -1);
    // A schema outside "_validator/" is not used.
    folder.write("any.xsd", "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                            "<xs:element name=\"kiv_config\"/></xs:schema>");
    const QString elsewhere =
        folder.write("c.xml", document("kiv_config", "KIV_CONFIG_1", "../any.xsd", "<colour/>"));
    QCOMPARE(loadConfig(elsewhere, &record), 1);
}

void tst_loaders::kindsAreFoundByTheirRoot()
{
    const testSupport::programFolder folder;
    QCOMPARE(fileKinds::ofFile(folder.write("a", order("").left(60))), nullptr);
    QCOMPARE(fileKinds::ofFile(folder.write("a", "<kiv_mat_boms/>")), &fileKinds::boms);
    QCOMPARE(fileKinds::ofFile(folder.write("a", "<kiv_check/>")), nullptr);
    QCOMPARE(fileKinds::ofFile(folder.path("none")), nullptr);
    for (const fileKind *kind : {&fileKinds::order, &fileKinds::update, &fileKinds::info})
        QCOMPARE(newDocument(*kind)->kind().root, kind->root);
}

void tst_loaders::repeatedTextsShareTheirMemory()
{
    const testSupport::programFolder folder;
    kiv_mat_zpStruct record;
    const QByteArray line = "<order_item><unit>pcs.</unit><name>same</name></order_item>";
    QCOMPARE(loadZp(folder.write("o.xml", order("<order_items>" + line + line + "</order_items>")),
                    &record),
             0);
    QCOMPARE(record.orderItems.items[0]->unit.constData(),
             record.orderItems.items[1]->unit.constData());
}

void tst_loaders::shippedFilesKeepTheirBytes_data()
{
    QTest::addColumn<QString>("path");
    for (const char *dir : {"_config", "_files", "_zp", "tests/files"})
        for (QDirIterator it(testSupport::source(dir), {"*.xml"}, QDir::Files,
                             QDirIterator::Subdirectories);
             it.hasNext();) {
            const QString path = it.next();
            QTest::newRow(qPrintable(path.mid(testSupport::source("").size()))) << path;
        }
}

void tst_loaders::shippedFilesKeepTheirBytes()
{
    QFETCH(QString, path);
    const testSupport::programFolder folder;
    const fileKind *kind = fileKinds::ofFile(path);
    QVERIFY(kind);
    const auto first = newDocument(*kind);
    QCOMPARE(loadDocument(path, first.get()), 0);
    QCOMPARE(saveXml(folder.path("1.xml"), first.get()), 0);
    QCOMPARE(testSupport::read(folder.path("1.xml")), testSupport::read(path));
}

KIVZP_TEST(tst_loaders)
#include "tst_loaders.moc"

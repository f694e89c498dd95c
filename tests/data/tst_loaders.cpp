// The reading loop and the loaders' results.
#include "testSupport.h"

#include "data/XmlValidator.h"

#include <QTextCodec>

using namespace testSupport;

class tst_loaders : public folderTest
{
    Q_OBJECT
private slots:
    void results_data()
    {
        const rows<QByteArray, int, int> row;
        const QByteArray items = "<order_items><order_item><name>a</name></order_item>"
                                 "<order_item><name>b</name></order_item></order_items>";
        row("whole", order(items), 0, 2);
        row("wrong root", document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd", items), 0, 0);
        row("root inside another", "<x>" + order(items).mid(39) + "</x>", 0, 2);
        row("cut in the second line", order(items).left(order(items).indexOf("b</name>")), -1, 2);
        row("cut before the root's end", order(items).left(order(items).indexOf("</kiv")), -1, 2);
        row("element inside a text", order("<attentions>a<b/></attentions>" + items), -1, 0);
        row("undeclared prefix", order("<p:options/>"), -1, 0);
        row("NUL byte", order(items).replace("b</name>", QByteArray("b\0</name>", 9)), -1, 2);
    }

    void results()
    {
        const auto [content, result, lines] = fetch<QByteArray, int, int>();
        kiv_mat_zpStruct record;
        QCOMPARE(loadZp(m_folder->write("o.xml", content), &record), result);
        QCOMPARE(int(record.orderItems.items.size()), lines);
        // What was read before the fault stays.
        if (!record.orderItems.items.empty())
            QCOMPARE(record.orderItems.items[0]->name, QString("a"));
        kiv_mat_zpStruct none;
        QCOMPARE(loadZp(m_folder->path("none.xml"), &none), -1);
        QCOMPARE(loadZp(m_folder->path(), &none), -1);
    }

    void unknownElementsAreWalkedThrough()
    {
        kiv_mat_databaseStruct record;
        const QString path =
            m_folder->write("d.xml", database("<later><update>seen</update></later><d_group name=\"g\" colour=\"red\">"
                                              "<box><material><stamp>1</stamp><d_name>n</d_name><deep><d_ktm>k</d_ktm>"
                                              "</deep></material></box></d_group>"));
        QCOMPARE(loadDatabase(path, &record), 0);
        QCOMPARE(record.update, QString("seen"));
        QCOMPARE(record.groups[0]->items[0]->d_name, QString("n"));
        QCOMPARE(record.groups[0]->items[0]->d_ktm, QString("k"));
    }

    void attributePrefixesDoNotCount()
    {
        kiv_mat_zpStruct record;
        const QString path = m_folder->write(
            "o.xml", "<kiv_mat_zp xmlns:q=\"urn:q\" q:type=\"T\" q:noNamespaceSchemaLocation=\"s.xsd\"/>");
        QCOMPARE(loadZp(path, &record), 0);
        QCOMPARE(record.xsiType, QString("T"));
        QCOMPARE(record.schemaLocation, QString("s.xsd"));
    }

    void lineEndsBecomeLf()
    {
        kiv_mat_zpStruct record;
        QCOMPARE(loadZp(m_folder->write("o.xml", order("<attentions>a\r\nb\rc&#13;&#10;d&#13;</attentions>")), &record),
                 0);
        QCOMPARE(record.attentions, QString("a\nb\nc\nd\n"));
    }

    void encodings_data()
    {
        const rows<QByteArray, QByteArray, int> row;
        row("UTF-16 with mark", "UTF-16", "UTF-16", 0);
        row("Latin 2", "ISO-8859-2", "ISO-8859-2", 0);
        row("Latin 2 that says UTF-8", "ISO-8859-2", "UTF-8", -1);
    }

    void encodings()
    {
        const auto [codec, declared, result] = fetch<QByteArray, QByteArray, int>();
        // The letters hold bytes 0x0D in UTF-16, which are no line ends there.
        const QString polish = ("\u010d\u017c\u00f3\u0142w");
        const QString text =
            QString::fromUtf8(order("<attentions>@</attentions>")).replace("UTF-8", declared).replace("@", polish);
        kiv_mat_zpStruct record;
        const QString path = m_folder->write("o.xml", QTextCodec::codecForName(codec)->fromUnicode(text));
        QCOMPARE(loadZp(path, &record), result);
        if (result == 0)
            QCOMPARE(record.attentions, polish);
    }

    void configurationIsValidatedFirst()
    {
        configStruct record;
        const QString bad = m_folder->write("c.xml", document("kiv_config", "KIV_CONFIG_1", "kiv.xsd",
                                                              "<options><option type=\"EDIT_ZP\"/></options>"
                                                              "<colour/>"));
        QCOMPARE(loadConfig(bad, &record), 1);
        QVERIFY(record.options.items.empty());
        QVERIFY(!m_shown->errors.isEmpty());
        QVERIFY(!record.load(bad));
        QCOMPARE(loadConfig(m_folder->path("none.xml"), &record), -1);
        // A schema outside "_validator/" is not used.
        m_folder->write("any.xsd", "<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\">"
                                   "<xs:element name=\"kiv_config\"/></xs:schema>");
        const QString elsewhere =
            m_folder->write("c.xml", document("kiv_config", "KIV_CONFIG_1", "../any.xsd", "<colour/>"));
        QCOMPARE(loadConfig(elsewhere, &record), 1);
    }

    void kindsAreFoundByTheirRoot()
    {
        QCOMPARE(fileKinds::ofFile(m_folder->write("a", order("").left(60))), nullptr);
        QCOMPARE(fileKinds::ofFile(m_folder->write("a", "<kiv_mat_boms/>")), &fileKinds::boms);
        QCOMPARE(fileKinds::ofFile(m_folder->write("a", "<kiv_check/>")), nullptr);
        QCOMPARE(fileKinds::ofFile(m_folder->path("none")), nullptr);
        for (const fileKind *kind : {&fileKinds::order, &fileKinds::update, &fileKinds::info})
            QCOMPARE(newDocument(*kind)->kind().root, kind->root);
    }

    void repeatedTextsShareTheirMemory()
    {
        kiv_mat_zpStruct record;
        const QByteArray line = "<order_item><unit>pcs.</unit><name>same</name></order_item>";
        QCOMPARE(loadZp(m_folder->write("o.xml", order("<order_items>" + line + line + "</order_items>")), &record), 0);
        QCOMPARE(record.orderItems.items[0]->unit.constData(), record.orderItems.items[1]->unit.constData());
    }

    // Files that ship, samples, and the real data where there are some: valid, and saved byte for byte.
    void filesKeepTheirBytes_data()
    {
        const rows<QString> row;
        for (const QString &path : sources({"_config", "_files", "_zp", "tests/files/kept"}, {"*.xml"})
                                       + (realData().isEmpty() ? QStringList() : realFiles()))
            row(qPrintable(path.section('/', -2)), path);
    }

    void filesKeepTheirBytes()
    {
        const auto [path] = fetch<QString>();
        const fileKind *kind = fileKinds::ofFile(path);
        QVERIFY(kind);
        QVERIFY(validateXml(path, paths::schema(kind->schema), false));
        const auto record = newDocument(*kind);
        QCOMPARE(loadDocument(path, record.get()), 0);
        QCOMPARE(saveXml(m_folder->path("1.xml"), record.get()), 0);
        QVERIFY(read(m_folder->path("1.xml")) == read(path));
    }
};

KIVZP_TEST(tst_loaders)
#include "tst_loaders.moc"

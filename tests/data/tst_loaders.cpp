// Reading files: results, encodings, and damaged and hostile files, which get a verdict and a result code in bounded
// memory.
#include "testSupport.h"

#include "data/XmlValidator.h"
#include "data/documentSaving.h"

#include <QTextCodec>

#include <sys/resource.h>

using namespace testSupport;

namespace {

QByteArray item(const QByteArray &content)
{
    return order("<order_items><order_item>" + content + "</order_item></order_items>");
}

QByteArray bomb(const QByteArray &kind)
{
    // Each entity is ten times the one before: ten of them are 10 GB.
    QByteArray dtd = "<?xml version=\"1.0\"?>\n<!DOCTYPE kiv_mat_zp [\n<!ENTITY " + kind + "e0 \"0123456789\">\n";
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

} // namespace

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

    void unknownContentIsTold_data()
    {
        const rows<QByteArray, QString> row;
        row("element", order("\n<colour><deep a=\"1\"/>x</colour>\n<attentions/>"), "colour (line 3)");
        row("attributes", order("<options>\n<option colour=\"1\" type=\"a\"/></options><attentions a=\"\"/>"),
            "colour= (line 3), a= (line 3)");
        row("attribute of a list", database("<d_group shape=\"\" ktm=\"1\"><material red=\"\"/></d_group>"),
            "shape= (line 2), red= (line 2)");
        row("attribute of the root", "<kiv_mat_zp colour=\"1\"/>", "colour= (line 1)");
        row("text", order("<options>a</options>"), "text (line 2)");
        row("inside an empty one", order("<options><option><x/></option></options>"), "x (line 2)");
        row("material outside a group", database("<material><d_name>a</d_name></material>"), "material (line 2)");
        row("group in a BOM list", bom("<d_group><material/></d_group>"), "d_group (line 2)");
        row("supplier among manufacturers",
            database("<d_group><material><manufacturers><supplier><name>a</name></supplier></manufacturers></material>"
                     "</d_group>"),
            "supplier (line 2)");
        row("field twice", item("<name>a</name>\n<name>b</name>\n<unit/><unit>m</unit>"),
            "name a second time (line 3)");
        row("remarks twice", order("<attentions>a</attentions><attentions>b</attentions>"),
            "attentions a second time (line 2)");
        row("the same twice", item("<name>a</name><name>a</name><unit>m</unit>"), "");
        row("many", order(QByteArray("<a/>").repeated(7)),
            "a (line 2), a (line 2), a (line 2), a (line 2), a (line 2), and 2 more");
        row("what is dropped on purpose",
            database("<d_group ktm=\"1\"><material><d_designator>R1</d_designator></material></d_group>"), "");
        row("further fields of a BOM line", bom("<material><d_price>1</d_price><suppliers/></material>"), "");
    }
    // It is read, told in one line, and not lost unless the user says so.
    void unknownContentIsTold()
    {
        const auto [content, unknown] = fetch<QByteArray, QString>();
        const QString path = m_folder->write("f.xml", content);
        const auto record = newDocument(*fileKinds::ofFile(path));
        QCOMPARE(loadDocument(path, record.get()), 0);
        QCOMPARE(record->leftOut.text(), unknown);
        QCOMPARE(m_shown->listed.count("<br>"), unknown.isEmpty() ? 0 : 1);
        QVERIFY2(m_shown->listed.contains(unknown), qPrintable(m_shown->listed));
        configStruct config;
        QString reason;
        QCOMPARE(saveXmlNoEvents(path, record.get(), &reason) == 0, unknown.isEmpty());
        QVERIFY2(reason.contains(unknown), qPrintable(reason));
        if (unknown.isEmpty())
            return;
        QVERIFY(!saveDocument(path, *record, config));
        QCOMPARE(read(path), content);
        m_shown->answered = prompts::answer::yes;
        QVERIFY(saveDocument(path, *record, config));
        QVERIFY2(m_shown->asked.contains(unknown), qPrintable(m_shown->asked));
        QVERIFY(saveDocument(path, *record, config));
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

    // Files that ship, samples, and the real data where there are some: valid, and saved byte for byte.
    void filesKeepTheirBytes_data()
    {
        const rows<QString> row;
        const QString real = qEnvironmentVariable("KIVZP_REAL_DATA", "none");
        for (const QString &path :
             sources({"_config", "_files", "_zp", "tests/files/kept"}, {"*.xml"}) + files::list(real, {"*.xml"}))
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

    // Whether a file is valid, and the result of reading it.
    void damaged_data()
    {
        const rows<QByteArray, bool, int> row;
        const QByteArray good = item("<name>a</name>");
        const QByteArray deepOpen = QByteArray("<a>").repeated(100000);
        row("good", good, true, 0);
        row("empty", "", false, -1);
        row("only blanks", " \n", false, -1);
        row("no XML", "Towar: 1", false, -1);
        row("truncated in a tag", good.left(good.indexOf("</name>") + 3), false, -1);
        row("truncated before the end", good.chopped(14), false, -1);
        row("truncated declaration", good.left(10), false, -1);
        row("wrong root", "<kiv_zp/>", false, 0);
        row("two roots", good + "<kiv_mat_zp/>", false, -1);
        row("text behind the root", good + "x", false, -1);
        row("UTF-16", QTextCodec::codecForName("UTF-16")->fromUnicode(QString(good).replace("UTF-8", "UTF-16")), true,
            0);
        row("Latin 2 that says UTF-8", item("<name>\xb1\xe6</name>"), false, -1);
        row("unknown encoding", QByteArray(good).replace("UTF-8", "KOI-99"), false, -1);
        row("NUL byte", QByteArray(good).replace("a</name>", QByteArray("a\0</name>", 9)), false, -1);
        row("NUL behind the root", good + QByteArray(1, '\0'), false, -1);
        row("control character", item("<name>\x01</name>"), false, -1);
        row("reference to a control character", item("<name>&#1;</name>"), false, -1);
        row("XML 1.5", QByteArray(good).replace("version=\"1.0\"", "version=\"1.5\""), false, -1);
        row("undefined entity", item("<name>&what;</name>"), false, -1);
        row("attribute twice", order("<options><option type=\"a\" type=\"b\"/></options>"), false, -1);
        row("tag not closed", item("<name>a</index>"), false, -1);
        row("byte order mark", "\xef\xbb\xbf" + good, true, 0);
        row("comment and instruction", good + "<!-- c --><?pi x?>", true, 0);
        row("CDATA", item("<name><![CDATA[<a>&]]></name>"), true, 0);
        row("document type", "<!DOCTYPE kiv_mat_zp>\n<kiv_mat_zp/>", false, -1);
        row("entity bomb", bomb(""), false, -1);
        row("parameter entity bomb", bomb("% "), false, -1);
        row("outside entity",
            "<!DOCTYPE k [<!ENTITY x SYSTEM \"file:///etc/hostname\">]><kiv_mat_zp><attentions>&x;"
            "</attentions></kiv_mat_zp>",
            false, -1);
        row("10 MB in one element", item("<name>" + QByteArray(10 << 20, 'x') + "</name>"), true, 0);
        row("10 MB in one attribute", order("<options><option type=\"" + QByteArray(10 << 20, 'x') + "\"/></options>"),
            false, 0);
        row("100,000 levels", order(deepOpen + QByteArray("</a>").repeated(100000)), false, 0);
        row("100,000 levels left open", order(deepOpen), false, -1);
        row("many namespaces around", order(QByteArray("<a xmlns:b=\"u\">").repeated(100000)), false, -1);
        row(
            "1,000 attributes",
            [] {
                QByteArray content = "<options><option";
                for (int i = 0; i < 1000; ++i)
                    content += " a" + QByteArray::number(i) + "=\"\"";
                return order(content + "/></options>");
            }(),
            false, 0);
        for (const QString &path : sources(
                 {"tests/files/read", "tests/files/kept", "tests/files/valid", "tests/files/invalid", "fuzz/corpus"},
                 {"*.xml"}))
            row(qPrintable(path.section('/', -3)), read(path), !path.contains("/invalid/"), 0);
    }

    // A test that needs more time than ctest allows has found a file that takes forever.
    void damaged()
    {
        const auto [content, valid, loaded] = fetch<QByteArray, bool, int>();
        const QString path = m_folder->write("f.xml", content);
        const fileKind *kind = fileKinds::ofFile(path);
        const QString schemaPath = paths::schema(kind ? kind->schema : QString("kiv_mat.xsd"));
        const auto record = newDocument(kind ? *kind : fileKinds::order);
        QString error;
        QCOMPARE(loadDocument(path, record.get(), &error), loaded);
        QCOMPARE(error.isEmpty(), loaded == 0);
        QVERIFY2(!valid || record->leftOut.count == 0, qPrintable(record->leftOut.text()));
        QCOMPARE(validateXml(path, schemaPath, true), valid);
        // A refusal says why.
        QCOMPARE(m_shown->errors.isEmpty(), valid);
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        QVERIFY2(usage.ru_maxrss < 1 << 20, qPrintable(QString::number(usage.ru_maxrss)));
    }
};

KIVZP_TEST(tst_loaders)
#include "tst_loaders.moc"

// The schemas, and the two validators that read them.
#include "testSupport.h"

#include "data/XmlValidator.h"

#include <QXmlSchema>
#include <QXmlSchemaValidator>

using namespace testSupport;

class tst_validation : public QObject
{
    Q_OBJECT
private slots:
    void structure_data()
    {
        const rows<QByteArray, QString, bool> add;
        const auto row = [&add](const char *name, const QByteArray &content, bool expected,
                                const char *schema = "kiv_mat.xsd") { add(name, content, schema, expected); };
        const auto database = [](const QByteArray &content) {
            return document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd", content);
        };
        const auto bom = [](const QByteArray &content) {
            return document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd", content);
        };
        row("order of nothing", order(""), true);
        row("order in another order",
            order("<attentions/><order_items><order_item><ktm>odd</ktm>"
                  "<index/></order_item></order_items><options/>"),
            true);
        row("unknown element", order("<order_items><order_item><colour/></order_item></order_items>"), false);
        row("unknown attribute", order("<options><option colour=\"1\"/></options>"), false);
        row("element inside a text", order("<attentions><b/></attentions>"), false);
        row("text between elements", order("x<options/>"), false);
        row("another version", document("kiv_mat_zp", "KIV_MAT_ZP_2", "kiv_mat.xsd", ""), false);
        row("another kind's version", document("kiv_mat_zp", "KIV_MAT_BOM_1", "kiv_mat.xsd", ""), false);
        row("unknown root", document("kiv_mat_xx", "KIV_MAT_ZP_1", "kiv_mat.xsd", ""), false);
        row("no version", "<kiv_mat_zp/>", true);
        row("group with ktm", database("<d_group ktm=\"3\" name=\"g\" cpv=\"c\"><material/></d_group>"), true);
        row("designator in a database",
            database("<d_group><material><d_designator/><suppliers/><d_ktm/></material></d_group>"), true);
        row("material outside a group", database("<material/>"), false);
        row("sources of a material",
            database("<d_group><material><manufacturers><manufacturer><files><file name=\"n\"/></files>"
                     "<name/></manufacturer></manufacturers></material></d_group>"),
            true);
        row("supplier among manufacturers",
            database("<d_group><material><manufacturers><supplier/></manufacturers></material></d_group>"), false);
        row("all fields in a BOM line",
            bom("<material><d_price/><d_cpv/><information><status/>"
                "</information></material><update/>"),
            true);
        row("group in a BOM", bom("<d_group/>"), false);
        row("firm",
            document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd",
                     "<suppliers><firm><awatar/><name/></firm></suppliers><manufacturers/>"),
            true);
        row("configuration",
            document("kiv_config", "KIV_CONFIG_1", "kiv.xsd",
                     "<targets><target priorytet=\"1\"/></targets><persons><person "
                     "etat=\"1\"/></persons><options/>"),
            true, "kiv.xsd");
        row("BOM set",
            document("kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd",
                     "<category name=\"c\"><group name=\"g\"><file type=\"t\" name=\"n\"/>"
                     "</group></category><server_release/><update/>"),
            true, "kiv_mat_boms.xsd");
        row("information", document("kiv_info", "KIV_INFO_1", "kiv_info.xsd", "<wearhouse_server_link/><kiv_build/>"),
            true, "kiv_info.xsd");
        row("update script",
            document("kiv_update", "KIV_UPDATE_1", "kiv_update.xsd", "<command><to/><name>any</name></command>"), true,
            "kiv_update.xsd");
        row("update script with more",
            document("kiv_update", "KIV_UPDATE_1", "kiv_update.xsd", "<command><if/></command>"), false,
            "kiv_update.xsd");
    }

    void structure()
    {
        const auto [content, schema, expected] = fetch<QByteArray, QString, bool>();
        QCOMPARE(valid(content, qPrintable(schema)), expected);
    }

    void ktmForms_data()
    {
        const rows<bool> row;
        row.each({"312040-30.12-00220", "XXXXXX-XX.XX-XXXXXX", "A1B2C3-Z9.0A-12345", "SRV-000.100", "SRV-001.100"},
                 true);
        row.each({"", "312040-30.12-0022", "312040-30.12-0022001", "312040-3.12-00220", "312040-30,12-00220",
                  "abcdef-30.12-00220", " 312040-30.12-00220", "312040-30.12-00220\n", "SRV-000.10", "SRV-00A.100",
                  "SRV-000.1000", "31204\xc4\x84-30.12-00220", "<ktm>"},
                 false);
        row("312040-30.12-0022\001", false);
    }

    void ktmForms()
    {
        const auto [expected] = fetch<bool>();
        QCOMPARE(checkKtm(tag()), expected);
    }

    void cpvForms_data()
    {
        const rows<bool> row;
        row("31711130-3", true);
        row.each({"", "31711130", "3171113-3", "317111300-3", "31711130-33", "3171113A-3", "31711130-3 "}, false);
    }

    void cpvForms()
    {
        const auto [expected] = fetch<bool>();
        QCOMPARE(checkCpv(tag()), expected);
    }

    void fastAsByFile_data()
    {
        const rows<QByteArray, QByteArray> row;
        const QByteArray pattern = "<xs:pattern value=\"[0-9]{8}-[0-9]\"/>";
        row("as shipped", "", "");
        row("any text", pattern, "<xs:pattern value=\".*\"/>");
        row("no pattern", pattern, "");
        row("length", pattern, pattern + "<xs:maxLength value=\"9\"/>");
        row("white space", pattern, "<xs:whiteSpace value=\"collapse\"/>" + pattern);
        row("token", "<xs:restriction base=\"xs:string\">", "<xs:restriction base=\"xs:token\">");
        row("digits", pattern, "<xs:pattern value=\"\\d{8}-\\d\"/>");
        row("anchor", pattern, "<xs:pattern value=\"^[0-9]{8}-[0-9]$\"/>");
        row("two steps", "base=\"xs:string\">\n            " + pattern, "base=\"ktmType\">" + pattern);
        row("sequence", "type=\"cpvType\"/>\n        </xs:choice>",
            "type=\"cpvType\"/><xs:element name=\"x\"/>\n        </xs:choice>");
        row("twice", "name=\"cpv\" type=\"cpvType\"/>",
            "name=\"cpv\" type=\"cpvType\" minOccurs=\"2\" maxOccurs=\"2\"/>");
        row("broken", pattern, "<xs:pattern value=\"[\"/>");
        row("not well-formed", pattern, "<");
    }
    // What is found without a file is what the validation of one finds.
    void fastAsByFile()
    {
        const auto [from, to] = fetch<QByteArray, QByteArray>();
        QByteArray xsd = testSupport::read(testSupport::source("_validator/kiv_mat.xsd"));
        if (!from.isEmpty()) {
            QVERIFY(xsd.contains(from));
            xsd.replace(from, to);
        }
        m_folder->write("_validator/kiv_mat.xsd", xsd);

        QStringList values{"",
                           "312040-30.12-00220",
                           "SRV-000.100",
                           "31711130-3",
                           "31711130-3 ",
                           " 31711130-3",
                           "31711130-3\n",
                           "a\r\nb",
                           "\t",
                           "&amp;<x>]]>",
                           "\u0105\u2028",
                           "\u0663"};
        values << QString(QChar(1)) << QString(QChar(0xfffe)) << QString(QChar(0xd800))
               << QString::fromUcs4(U"\U0001f600") << QString(3000, 'A');
        QRandomGenerator random(20261125);
        while (values.size() < (from.isEmpty() ? 80 : 25)) {
            QString value = values[1 + random.bounded(3)];
            const QString letters = "AZ09-. az\u0104\n";
            for (int i = random.bounded(3); i > 0; --i)
                value.replace(random.bounded(value.size()), random.bounded(2), letters[random.bounded(letters.size())]);
            values.append(value);
        }
        for (const QString &value : qAsConst(values)) {
            QVERIFY2(checkKtm(value) == checkByFile("ktm", value), qPrintable(value));
            QVERIFY2(checkCpv(value) == checkByFile("cpv", value), qPrintable(value));
        }
        // A schema that is written anew counts at once.
        m_folder->write("_validator/kiv_mat.xsd", "<x/>");
        QVERIFY(!checkCpv("31711130-3"));
        QFile::remove(m_folder->path("_validator/kiv_mat.xsd"));
        QVERIFY(!checkCpv("31711130-3"));
    }

    void messagesNameLineAndColumn()
    {
        recordingPrompts shown;
        const QString path = m_folder->write("v.xml", order("\n<options>\n  <colour/></options>"));
        XmlValidator validator;
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(shown.errors.size(), 1);
        QVERIFY2(QRegularExpression("colour.*\nLine: 4\nColumn: [0-9]+", QRegularExpression::DotMatchesEverythingOption)
                     .match(shown.errors.at(0))
                     .hasMatch(),
                 qPrintable(shown.errors.at(0)));
        QCOMPARE(validator.details().messages.at(0).line, 4);
        QVERIFY(validator.details().messages.at(0).column > 2);
        QVERIFY(validator.details().messages.at(0).text.contains("colour"));

        // Without messages the refusal is silent.
        shown.errors.clear();
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), false));
        QVERIFY(shown.errors.isEmpty());
        QVERIFY(!validator.validate(m_folder->path("none.xml"), paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(shown.errors.size(), 1);
    }

    void fewBoxesAreShown()
    {
        recordingPrompts shown;
        QByteArray lines;
        for (int i = 0; i < 20000; ++i)
            lines += "<order_item><name>a name long enough for a megabyte</name><colour/></order_item>\n";
        const QString path = m_folder->write("v.xml", order("<order_items>" + lines + "</order_items>"));
        XmlValidator validator;
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(shown.errors.size(), 4);
        QCOMPARE(shown.errors.last(), QString("and 19997 more"));
        QCOMPARE(validator.details().messageCount, 20000);
        QCOMPARE(validator.details().messages.size(), 100);
    }

    void largeFilesGetTheStreamingVerdict()
    {
        const QByteArray padding = "<attentions>" + QByteArray(2 << 20, 'x') + "</attentions>";
        QVERIFY(valid(order(padding)));
        QVERIFY(!valid(order(padding + "<colour/>")));
    }

    void missingOrBrokenSchemaIsSilent()
    {
        recordingPrompts shown;
        const QString path = m_folder->write("v.xml", order(""));
        QVERIFY(!validateXml(path, m_folder->path("none.xsd"), true));
        QVERIFY(!validateXml(path, m_folder->write("broken.xsd", "<xs:schema"), true));
        QVERIFY(!validateXml(path, m_folder->path(), true));
        QVERIFY(shown.errors.isEmpty());
    }

    void changedSchemaIsReadAgain()
    {
        const auto schemaOf = [](const char *root) {
            return QByteArray("<xs:schema xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"><xs:element name=\"") + root
                   + "\"/></xs:schema>";
        };
        const QString xml = m_folder->write("v.xml", "<second/>");
        QVERIFY(!validateXml(xml, m_folder->write("s.xsd", schemaOf("first")), false));
        QVERIFY(validateXml(xml, m_folder->write("s.xsd", schemaOf("second")), false));
    }

    void nothingIsFetched()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QByteArray address = "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/kiv_mat.xsd";
        const QByteArray content = document("kiv_mat_zp", "KIV_MAT_ZP_1", address, "<colour/>");
        recordingPrompts shown;
        QVERIFY(!validateXml(m_folder->write("v.xml", content), paths::schema("kiv_mat.xsd"), true));
        // With a good document both the address and the version are accepted without a look.
        QVERIFY(valid(document("kiv_mat_zp", "KIV_MAT_ZP_1", address, "")));
        QVERIFY(!valid("<!DOCTYPE kiv_mat_zp SYSTEM \"" + address + "\"><kiv_mat_zp/>"));
        QVERIFY(!server.waitForNewConnection(200));
    }

private:
    bool valid(const QByteArray &content, const char *schema = "kiv_mat.xsd") const
    {
        return validateXml(m_folder->write("v.xml", content), paths::schema(schema), false);
    }
    std::unique_ptr<programFolder> m_folder;

private slots:
    void init() { m_folder = std::make_unique<programFolder>(); }
    void cleanup() { m_folder.reset(); }
};

KIVZP_TEST(tst_validation)
#include "tst_validation.moc"

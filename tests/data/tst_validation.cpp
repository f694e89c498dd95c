// The schemas, and what is said of files that they refuse.
#include "testSupport.h"

#include "data/XmlValidator.h"

using namespace testSupport;

class tst_validation : public folderTest
{
    Q_OBJECT
private slots:
    void codeForms_data()
    {
        const rows<bool, bool> row;
        row.each({"312040-30.12-00220", "XXXXXX-XX.XX-XXXXXX", "A1B2C3-Z9.0A-12345", "SRV-000.100", "SRV-001.100"},
                 true, false);
        row("31711130-3", false, true);
        row.each({"", "312040-30.12-0022", "312040-30.12-0022001", "312040-3.12-00220", "312040-30,12-00220",
                  "abcdef-30.12-00220", " 312040-30.12-00220", "312040-30.12-00220\n", "SRV-000.10", "SRV-00A.100",
                  "SRV-000.1000", "31204\xc4\x84-30.12-00220", "<ktm>", "312040-30.12-0022\001"},
                 false, false);
        row.each({"31711130", "3171113-3", "317111300-3", "31711130-33", "3171113A-3", "31711130-3 "}, false, false);
    }

    void codeForms()
    {
        const auto [ktm, cpv] = fetch<bool, bool>();
        QCOMPARE(checkKtm(tag()), ktm);
        QCOMPARE(checkCpv(tag()), cpv);
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
        QByteArray xsd = read(source("_validator/kiv_mat.xsd"));
        if (!from.isEmpty()) {
            QVERIFY(xsd.contains(from));
            xsd.replace(from, to);
        }
        m_folder->write("_validator/kiv_mat.xsd", xsd);

        QStringList values = QString("|312040-30.12-00220|SRV-000.100|31711130-3|31711130-3 | 31711130-3|31711130-3\n|"
                                     "a\r\nb|\t|&amp;<x>]]>|\u0105\u2028|\u0663")
                                 .split('|');
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
        const QString path = m_folder->write("v.xml", order("\n<options>\n  <colour/></options>"));
        XmlValidator validator;
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(m_shown->errors, QStringList("v.xml: unknown field colour\nLine: 4\nColumn: 10\n"));

        // Without messages the refusal is silent.
        m_shown->errors.clear();
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), false));
        QVERIFY(m_shown->errors.isEmpty());
        QVERIFY(!validator.validate(m_folder->path("none.xml"), paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(m_shown->errors.size(), 1);
    }

    void fewBoxesAreShown()
    {
        QByteArray lines;
        for (int i = 0; i < 20000; ++i)
            lines += "<order_item><name>a name long enough for a megabyte</name><colour/></order_item>\n";
        const QString path = m_folder->write("v.xml", order("<order_items>" + lines + "</order_items>"));
        XmlValidator validator;
        QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
        QCOMPARE(m_shown->errors.size(), 4);
        QCOMPARE(m_shown->errors.last(), QString("and 19997 more"));
        QCOMPARE(validator.details().messageCount, 20000);
        QCOMPARE(validator.details().messages.size(), 100);
    }

    void oneFaultOneMessage_data()
    {
        const rows<QByteArray, QString> row;
        const auto inLine = [&](const char *tag, const QByteArray &wrong, const QString &sentence) {
            row(tag, "<order_items><order_item><name>n</name>" + wrong + "</order_item></order_items>",
                "line n: " + sentence);
        };
        const QString ampersand = "\"&\" stands alone; it is written &amp;";
        const QString less = "\"<\" stands alone; it is written &lt;";
        inLine("tag", "<unit>a</uni>", "unit, which began in line 2, ends as uni");
        inLine("no end", "<unit>a<wait>b</wait>", "wait in unit, which holds no elements");

        inLine("ampersand", "<unit>R & D</unit>", ampersand);
        inLine("ampersand in front of a word", "<unit>R &D</unit>", ampersand);
        inLine("less", "<unit>a < b</unit>", less);
        inLine("entity", "<unit>a&nbsp;b</unit>", "&nbsp; is not known");
        inLine("Windows-1250", "<unit>\xb9</unit>", "a byte that is no UTF-8, as in a file of Windows-1250");
        inLine("control character", "<unit>\x01</unit>", "a character that no file can hold: code 1");
        inLine("unknown field", "<colour>red</colour>", "unknown field colour");
        inLine("text in many pieces", "a&amp;b<!-- -->c<![CDATA[ ]]>", "text in order_item, where none belongs");
        row("attribute twice", "<options><option type=\"a\" type=\"b\"/></options>", "the attribute type stands twice");
        row("attributes without a gap", "<options><option type=\"a\"unit=\"b\"/></options>", "an attribute is broken");
        row("less in an attribute", "<options><option type=\"<\"/></options>", less);
        row("unknown attribute", "<options><option colour=\"\" type=\"a\"/></options>",
            "option a: unknown attribute colour of option");
        row("text in an attribute's element", "<options><option>a</option></options>",
            "option no. 1: text in option, where none belongs");
        row("undeclared prefix", "<p:attentions/>", "the prefix p is not declared");
        row("wrong place", "<option/>", "option no. 1: option does not belong into kiv_mat_zp");
        row("no end of a record", "<order_items><order_item><name>n</name><order_item/></order_items>",
            "line n: order_item does not belong into order_item");
        row("no end of the file", "<attentions>", "order_items in attentions, which holds no elements");
    }
    // Nothing that follows from it is told; who reads the file without its schema hears the same.
    void oneFaultOneMessage()
    {
        const auto [fault, sentence] = fetch<QByteArray, QString>();
        const QByteArray rest = "<order_items><order_item><name>a</name></order_item></order_items>\n";
        for (int repeated : {1, (1 << 20) / rest.size() + 1}) {
            m_shown->errors.clear();
            XmlValidator validator;
            const QString path = m_folder->write("v.xml", order(fault + rest.repeated(repeated)));
            QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
            QVERIFY2(m_shown->errors.size() == 1, qPrintable(m_shown->errors.join('\n')));
            QCOMPARE(validator.details().messageCount, 1);
            QCOMPARE(validator.details().messages.at(0).sentence(), sentence);
            kiv_mat_zpStruct record;
            QString error;
            // Where an end is missing its element is told here, and there the end that does not fit.
            const bool endIsMissing = sentence.contains("holds no elements") || sentence.contains("order_item does");
            if (loadDocument(path, &record, &error) != 0 && !endIsMissing)
                QCOMPARE(error, validator.fault());
        }
    }

    void recordsAreNamed_data()
    {
        const rows<QByteArray, QString> row;
        const QByteArray group = "<d_group name=\"Rezystory\"><material><d_name>r</d_name></material><material>@"
                                 "</material></d_group>";
        const auto in = [&](const QByteArray &content) { return database(QByteArray(group).replace("@", content)); };
        row("by KTM", in("<zz/><d_name>r1</d_name><d_ktm>317111-00.01-00001</d_ktm>"),
            "material 317111-00.01-00001, group Rezystory: unknown field zz");
        row("by name", in("<zz/><d_name>r1</d_name>"), "material r1, group Rezystory: unknown field zz");
        row("by number", in("<zz/>"), "material no. 2, group Rezystory: unknown field zz");
        row("deep", in("<d_ktm>k</d_ktm><suppliers><supplier><name>TME</name><zz/></supplier></suppliers>"),
            "supplier TME, material k, group Rezystory: unknown field zz");
        row("a group", database("<d_group name=\"Rezystory\"><zz/></d_group>"), "group Rezystory: unknown field zz");
        row("target of a line",
            order("<order_items><order_item><target>t</target><name>n</name><zz/></order_item>"
                  "</order_items>"),
            "line n: unknown field zz");
        row("outside of all", order("<zz/>"), "unknown field zz");
    }
    void recordsAreNamed()
    {
        const auto [content, sentence] = fetch<QByteArray, QString>();
        const auto result = validateStreaming(m_folder->write("v.xml", content), paths::schema("kiv_mat.xsd"));
        QCOMPARE(result.messageCount, 1);
        QCOMPARE(result.messages.at(0).sentence(), sentence);
    }

    void documentTypeIsToldOnce()
    {
        const QByteArray whole = order("").replace("<kiv_mat_zp", "<!DOCTYPE kiv_mat_zp>\n<kiv_mat_zp");
        const auto result = validateStreaming(m_folder->write("v.xml", whole), paths::schema("kiv_mat.xsd"));
        QVERIFY(!result.valid);
        QCOMPARE(result.messageCount, 1);
        QCOMPARE(result.formFault.text, result.messages.at(0).text);
    }

    void unknownRoot() { QVERIFY(!valid(document("kiv_mat_xx", "KIV_MAT_ZP_1", "kiv_mat.xsd", ""))); }

    void largeFilesGetTheStreamingVerdict()
    {
        const QByteArray padding = "<attentions>" + QByteArray(2 << 20, 'x') + "</attentions>";
        QVERIFY(valid(order(padding)));
        QVERIFY(!valid(order(padding + "<colour/>")));
    }

    void missingOrBrokenSchemaIsSilent()
    {
        const QString path = m_folder->write("v.xml", order(""));
        QVERIFY(!validateXml(path, m_folder->path("none.xsd"), true));
        QVERIFY(!validateXml(path, m_folder->write("broken.xsd", "<xs:schema"), true));
        QVERIFY(!validateXml(path, m_folder->path(), true));
        QVERIFY(m_shown->errors.isEmpty());
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
};

KIVZP_TEST(tst_validation)
#include "tst_validation.moc"

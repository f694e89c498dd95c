// The schemas, and the two validators that read them.
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
        QCOMPARE(m_shown->errors.size(), 1);
        QVERIFY2(QRegularExpression("colour.*\nLine: 4\nColumn: [0-9]+", QRegularExpression::DotMatchesEverythingOption)
                     .match(m_shown->errors.at(0))
                     .hasMatch(),
                 qPrintable(m_shown->errors.at(0)));
        QCOMPARE(validator.details().messages.at(0).line, 4);
        QVERIFY(validator.details().messages.at(0).column > 2);
        QVERIFY(validator.details().messages.at(0).text.contains("colour"));

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
        const rows<QByteArray> row;
        const QByteArray item = "<order_items><order_item>@</order_item></order_items>";
        const auto text = [&](const QByteArray &wrong) { return QByteArray(item).replace("@", wrong); };
        row("tag", text("<name>a</nam>"));
        row("ampersand", text("<name>R & D</name>"));
        row("less", text("<name>a < b</name>"));
        row("entity", text("<name>a&nbsp;b</name>"));
        row("Windows-1250", text("<name>\xb9</name>"));
        row("control character", text("<name>\x01</name>"));
        row("attribute twice", "<options><option type=\"a\" type=\"b\"/></options>");
        row("undeclared prefix", "<p:attentions/>");
        row("text in many pieces", text("a&amp;b<!-- -->c<![CDATA[ ]]>"));
    }
    // Nothing that follows from it is told, whichever validator tells it.
    void oneFaultOneMessage()
    {
        const auto [fault] = fetch<QByteArray>();
        const QByteArray rest = "<order_items><order_item><name>a</name></order_item></order_items>\n";
        for (int repeated : {1, (1 << 20) / rest.size() + 1}) {
            m_shown->errors.clear();
            XmlValidator validator;
            const QString path = m_folder->write("v.xml", order(fault + rest.repeated(repeated)));
            QVERIFY(!validator.validate(path, paths::schema("kiv_mat.xsd"), true));
            QVERIFY2(m_shown->errors.size() == 1, qPrintable(m_shown->errors.join('\n')));
            QCOMPARE(validator.details().messageCount, 1);
        }
    }

    // One of the two validators alone would take it.
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

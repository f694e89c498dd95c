// What the records read, default and write, kind by kind.
#include "testSupport.h"

#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"

#include <QDate>
#include <QDir>

using testSupport::document;
using testSupport::order;

class tst_records : public QObject
{
    Q_OBJECT
private slots:
    void orderDefaultsStandWhereTheFileIsSilent();
    void orderLinesKeepOrderAndWriteAllElements();
    void newOrderTakesOptionsFromTheConfiguration();
    void databaseDropsWhatItOnlyReads();
    void databaseWithoutEmptyGroups();
    void materialDefaultsAndEquality();
    void firmDefaults();
    void bomWritesTheShortForm();
    void bomSetKeepsItsTree();
    void infoReadsAnyOrder();
    void updateCommandWithoutTarget();
    void configurationFont_data();
    void configurationFont();
    void configurationBackupPath();
    void configurationYesWords();

private:
    // Loads the bytes as that kind and returns what saving writes.
    template <class Record>
    QByteArray resaved(const QByteArray &bytes, Record &record)
    {
        const QString path = m_folder->write("in.xml", bytes);
        if (loadDocument(path, &record) != 0 || saveXml(m_folder->path("out.xml"), &record) < 0)
            return "failed";
        return testSupport::read(m_folder->path("out.xml"));
    }
    std::unique_ptr<testSupport::programFolder> m_folder;

private slots:
    void init() { m_folder = std::make_unique<testSupport::programFolder>(); }
    void cleanup() { m_folder.reset(); }
};

void tst_records::orderDefaultsStandWhereTheFileIsSilent()
{
    kiv_mat_zpStruct silent;
    const QByteArray saved = resaved(order("<attentions>a</attentions>"), silent);
    QCOMPARE(silent.options.items.size(), size_t(6));
    QCOMPARE(silent.options.value("ORDER_TARGET"), QString("xxx-xxxxxxxx"));
    QCOMPARE(silent.options.findOption("PERSON_AUTHOR")->editable, QString("YES"));
    QVERIFY(saved.contains("<order_items/>"));

    kiv_mat_zpStruct own;
    resaved(order("<options><option type=\"X\" value1=\"1\"/></options>"
                  "<options><option type=\"Y\"/></options>"),
            own);
    QCOMPARE(own.options.items.size(), size_t(2));
    QCOMPARE(own.options.value("X"), QString("1"));
    QVERIFY(!own.options.findOption("x"));
}

void tst_records::orderLinesKeepOrderAndWriteAllElements()
{
    kiv_mat_zpStruct record;
    const QByteArray saved =
        resaved(order("<order_items><order_item><quantity> 2,5 </quantity><index>9</index>"
                      "</order_item><order_item><wait>NIE</wait><ktm>odd ktm</ktm></order_item>"
                      "</order_items>"),
                record);
    QCOMPARE(record.orderItems.items.size(), size_t(2));
    QCOMPARE(record.orderItems.items[0]->quantity, QString(" 2,5 "));
    QCOMPARE(record.orderItems.items[1]->ktm, QString("odd ktm"));
    QCOMPARE(orderItemStruct::fields().size(), size_t(16));
    const QByteArray second = saved.mid(saved.lastIndexOf("<order_item>"));
    int at = 0;
    for (const auto &field : orderItemStruct::fields()) {
        at = second.indexOf("<" + field.name.toUtf8() + ">", at);
        QVERIFY2(at > 0, qPrintable(field.name));
    }
    QVERIFY(second.contains("<name></name>"));
    QVERIFY(second.contains("<attentions></attentions>\n</kiv_mat_zp>"));
}

void tst_records::newOrderTakesOptionsFromTheConfiguration()
{
    configStruct config;
    auto author = std::make_unique<optionStruct>();
    author->type = optionKey::personAuthor;
    author->value1 = "Anna Nowak";
    author->description = "Autor";
    config.options.append(std::move(author));
    auto number = std::make_unique<optionStruct>();
    number->type = optionKey::orderNumber;
    number->value1 = "ZP/1";
    config.options.append(std::move(number));

    kiv_mat_zpStruct record;
    record.orderItems.append(std::make_unique<orderItemStruct>());
    record.initialise(config);
    QStringList keys;
    for (const auto &option : record.options.items)
        keys.append(option->type);
    QCOMPARE(keys.join(' '), QString("PERSON_AUTHOR PERSON_APPROVED PERSON_CONTRACTOR "
                                     "ORDER_TARGET ORDER_NUMBER ORDER_DATE"));
    QCOMPARE(record.options.findOption("PERSON_AUTHOR")->description, QString("Autor"));
    QCOMPARE(record.options.value("PERSON_APPROVED"), QString("First and second name"));
    QCOMPARE(record.options.value("ORDER_NUMBER"), QString());
    QCOMPARE(record.options.value("ORDER_DATE"), QDate::currentDate().toString("dd.MM.yyyy"));
    QVERIFY(record.orderItems.items.empty());
    QVERIFY(record.attentions.contains("RoHS"));
}

void tst_records::databaseDropsWhatItOnlyReads()
{
    kiv_mat_databaseStruct record;
    const QByteArray saved =
        resaved(document("kiv_mat_database", "KIV_MAT_DATABASE_9", "old.xsd",
                         "<update>u</update><server_release>7</server_release>"
                         "<d_group ktm=\"317\" cpv=\"31711130-3\" name=\"R &amp; C\"><material>"
                         "<d_designator>R1</d_designator><d_name>n</d_name>"
                         "<manufacturers><manufacturer><name>M</name><part_no>p</part_no><files>"
                         "<file name=\"http://a\" type=\"FILE_DATASHEET\"/></files></manufacturer>"
                         "</manufacturers></material></d_group>"),
                record);
    QCOMPARE(record.groups[0]->ktm, QString("317"));
    QCOMPARE(record.groups[0]->items[0]->d_designator, QString("R1"));
    QCOMPARE(record.fileName, QString("in.xml"));
    QCOMPARE(record.filePath, m_folder->path("in.xml"));
    // The root attributes of the file are kept, whatever they say.
    QVERIFY(saved.contains("noNamespaceSchemaLocation=\"old.xsd\""));
    QVERIFY(saved.contains("xsi:type=\"KIV_MAT_DATABASE_9\""));
    QVERIFY(saved.contains("<d_group name=\"R &amp; C\" cpv=\"31711130-3\">"));
    QVERIFY(!saved.contains("designator"));
    QVERIFY(saved.contains("<server_release>7</server_release>\n    <!-- -->\n"));
    QVERIFY(saved.contains("<file type=\"FILE_DATASHEET\" name=\"http://a\"/>"));
    QVERIFY(saved.contains("<suppliers/>"));
}

void tst_records::databaseWithoutEmptyGroups()
{
    kiv_mat_databaseStruct record;
    const QByteArray with =
        resaved(document("kiv_mat_database", "KIV_MAT_DATABASE_1", "kiv_mat.xsd",
                         "<d_group name=\"e\"/><d_group name=\"f\"><material/>"
                         "</d_group>"),
                record);
    QVERIFY(with.contains("<d_group name=\"e\" cpv=\"\"/>"));
    record.writeEmptyGroups = false;
    QCOMPARE(saveXml(m_folder->path("out.xml"), &record), 0);
    const QByteArray without = testSupport::read(m_folder->path("out.xml"));
    QVERIFY(!without.contains("\"e\""));
    QVERIFY(without.contains("\"f\""));
    record.groups.clear();
    QCOMPARE(saveXml(m_folder->path("out.xml"), &record), 0);
}

void tst_records::materialDefaultsAndEquality()
{
    materialStruct a;
    materialStruct b;
    for (const auto &field : materialStruct::fields())
        QCOMPARE(a.*field.member, field.name == "d_active" ? QString("NIE") : QString());
    QCOMPARE(materialStruct::fields().size(), size_t(24));
    QVERIFY(a == b);
    b.d_designator = "R1";
    QVERIFY(a == b);
    b.d_description = "x";
    a.d_description = "X";
    QVERIFY(!(a == b));
    a.d_description = "x";
    a.suppliers.append(std::make_unique<supplierStruct>());
    QVERIFY(!(a == b));
    b.suppliers.append(std::make_unique<supplierStruct>());
    QVERIFY(a == b);
    b.suppliers.items[0]->files.append(std::make_unique<fileStruct>());
    QVERIFY(!(a == b));
    a.information.comment = "c";
    b.suppliers.items[0]->files.items.clear();
    QVERIFY(!(a == b));
}

void tst_records::firmDefaults()
{
    kiv_mat_firmStruct record;
    const QByteArray saved =
        resaved(document("kiv_mat_firm", "KIV_MAT_FIRM_1", "kiv_mat.xsd",
                         "<suppliers><firm><name>TME</name></firm></suppliers>"),
                record);
    QVERIFY(saved.contains("<manufacturers/>\n    <suppliers>"));
    QVERIFY(saved.simplified().contains(
        "<name>TME</name> <fullname>FIRM SA</fullname> <status>SZARY</status> "
        "<business></business> "
        "<homepage>http://www</homepage> <awatar>1</awatar> <nip></nip>"));
}

void tst_records::bomWritesTheShortForm()
{
    kiv_mat_bomStruct record;
    const QByteArray saved =
        resaved(document("kiv_mat_bom", "KIV_MAT_BOM_1", "kiv_mat.xsd",
                         "<material><d_price>1</d_price><d_designator>C1, C2</d_designator>"
                         "<d_quantity>2</d_quantity><d_ktm>k</d_ktm></material>"),
                record);
    QCOMPARE(record.materials[0]->d_price, QString("1"));
    QVERIFY(saved.simplified().contains(
        "<update></update> <!-- --> <material> <d_ktm>k</d_ktm> <d_name></d_name> "
        "<d_quantity>2</d_quantity> <d_designator>C1, C2</d_designator> </material> "
        "</kiv_mat_bom>"));
}

void tst_records::bomSetKeepsItsTree()
{
    kiv_mat_bomsStruct record;
    const QByteArray content = "<update></update><server_release></server_release><!-- -->"
                               "<category name=\"A\"><group name=\"1\"><file type=\"FILE_XML\" "
                               "name=\"a.xml\"/></group><group name=\"2\"/></category>"
                               "<category name=\"B\"/>";
    const QByteArray saved =
        resaved(document("kiv_mat_boms", "KIV_MAT_BOMS_1", "kiv_mat_boms.xsd", content), record);
    QCOMPARE(record.categories[0]->items[0]->items[0]->name, QString("a.xml"));
    QVERIFY(saved.simplified().replace("> <", "><").contains(content));
}

void tst_records::infoReadsAnyOrder()
{
    kiv_infoStruct record;
    const QByteArray saved = resaved(
        document("kiv_info", "KIV_INFO_1", "kiv_info.xsd",
                 "<wearhouse_server_link>http://l</wearhouse_server_link><kiv_build>9</kiv_build>"),
        record);
    QCOMPARE(record.wearhouseServerLink, QString("http://l"));
    QCOMPARE(kiv_infoStruct::fields().size(), size_t(13));
    QVERIFY(saved.contains("<kiv_version></kiv_version>\n    <kiv_build>9</kiv_build>\n"));
}

void tst_records::updateCommandWithoutTarget()
{
    kiv_UpdateStruct record;
    const QByteArray saved =
        resaved(document("kiv_update", "KIV_UPDATE_1", "kiv_update.xsd",
                         "<command><name>remove_file</name><from>b</from></command>"
                         "<command><from>a</from><name>open_file</name></command>"),
                record);
    QCOMPARE(record.commands[0]->to, QString());
    QCOMPARE(record.commands[1]->name, QString("open_file"));
    QVERIFY(saved.simplified().contains("<from>b</from> <to></to> </command> <command>"));
    record.commands.clear();
    QCOMPARE(saveXmlNoEvents(m_folder->path("out.xml"), &record), 0);
}

void tst_records::configurationFont_data()
{
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("size");
    QTest::newRow("none") << QByteArray() << "Arial" << 14;
    QTest::newRow("size alone") << QByteArray("<option type=\"FONT_SIZE\" value1=\"20\"/>")
                                << "Arial" << 14;
    QTest::newRow("both") << QByteArray("<option type=\"FONT_NAME\" value1=\"Courier\"/>"
                                        "<option type=\"FONT_SIZE\" value1=\"20\"/>")
                          << "Courier" << 20;
    QTest::newRow("size unreadable") << QByteArray("<option type=\"FONT_NAME\" value1=\"Courier\"/>"
                                                   "<option type=\"FONT_SIZE\" value1=\"big\"/>")
                                     << "Courier" << 14;
}

void tst_records::configurationFont()
{
    QFETCH(QByteArray, options);
    configStruct record;
    const QString path = m_folder->write("c.xml", document("kiv_config", "KIV_CONFIG_1", "kiv.xsd",
                                                           "<options>" + options + "</options>"));
    QVERIFY(record.load(path));
    QTEST(record.font().family(), "family");
    QTEST(record.font().pixelSize(), "size");
}

void tst_records::configurationBackupPath()
{
    const QString standard = QDir::tempPath() + "/KivZP_BACKUP";
    configStruct none;
    QCOMPARE(none.backupPath(), standard);
    QCOMPARE(none.options.items.size(), size_t(1));
    const optionStruct *option = none.options.findOption("PATH_BACKUP");
    QCOMPARE(option->value2, standard);
    QCOMPARE(option->editable, QString("YES"));
    none.options.findOption("PATH_BACKUP")->value1 = "/b";
    QCOMPARE(none.backupPath(), QString("/b"));
    // An empty one met in a file is filled rather than doubled.
    none.options.findOption("PATH_BACKUP")->value1.clear();
    QCOMPARE(none.backupPath(), standard);
    QCOMPARE(none.options.items.size(), size_t(1));
    QVERIFY(none.save(m_folder->path("c.xml")));
    configStruct later;
    QVERIFY(later.load(m_folder->path("c.xml")));
    QCOMPARE(later.options.value("PATH_BACKUP"), standard);
}

void tst_records::configurationYesWords()
{
    configStruct record;
    QVERIFY(!record.isOn("EDIT_ZP"));
    auto option = std::make_unique<optionStruct>();
    option->type = "EDIT_ZP";
    const optionStruct *kept = record.options.append(std::move(option));
    for (const char *word : {"TAK", "tak", "Yes"}) {
        record.options.findOption(kept->type)->value1 = word;
        QVERIFY2(record.isOn("EDIT_ZP"), word);
    }
    record.options.findOption(kept->type)->value1 = "NIE";
    QVERIFY(!record.isOn("EDIT_ZP"));
}

KIVZP_TEST(tst_records)
#include "tst_records.moc"

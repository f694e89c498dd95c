// What the records read, default and write, kind by kind.
#include "testSupport.h"

#include "data/configStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"

#include <QDate>
#include <QDir>

using testSupport::document;

class tst_records : public QObject
{
    Q_OBJECT
private slots:
    void roundTrips_data();
    void roundTrips();
    void rootAttributesAreKept();
    void orderDefaults();
    void newOrder();
    void emptyGroupsOnWish();
    void materialEquality();
    void configurationFont_data();
    void configurationFont();
    void configurationBackupPath();
    void configurationYesWords();
};

// The content of a file that is read, and what saving it gives between the root's tags.
void tst_records::roundTrips_data()
{
    QTest::addColumn<QByteArray>("root");
    QTest::addColumn<QByteArray>("in");
    QTest::addColumn<QByteArray>("out");
    const auto row = [](const char *name, const char *root, const char *in, const char *out) {
        QTest::newRow(name) << QByteArray(root) << QByteArray(in) << QByteArray(out);
    };
    row("order: lines keep their order and get all sixteen elements", "kiv_mat_zp",
        "<options/><order_items><order_item><quantity> 2,5 </quantity><index>9</index>"
        "</order_item><order_item><wait>NIE</wait><ktm>odd ktm</ktm></order_item></order_items>",
        "<options/><order_items><order_item><index>9</index><name></name><price></price>"
        "<average_price></average_price><in_warehouse></in_warehouse><quantity> 2,5 </quantity>"
        "<unit></unit><wait></wait><description></description><rohs_required></rohs_required>"
        "<target></target><ktm></ktm><cpv></cpv><delivery></delivery><invoice></invoice>"
        "<attentions></attentions></order_item><order_item><index></index><name></name>"
        "<price></price><average_price></average_price><in_warehouse></in_warehouse>"
        "<quantity></quantity><unit></unit><wait>NIE</wait><description></description>"
        "<rohs_required></rohs_required><target></target><ktm>odd ktm</ktm><cpv></cpv>"
        "<delivery></delivery><invoice></invoice><attentions></attentions></order_item>"
        "</order_items><attentions></attentions>");
    row("order: its own options replace the defaults, several lists add up", "kiv_mat_zp",
        "<options><option value2=\"&quot;\" type=\"X\"/></options><options><option/></options>",
        "<options><option editable=\"\" type=\"X\" value1=\"\" value2=\"&quot;\" unit=\"\" "
        "description=\"\"/><option editable=\"\" type=\"\" value1=\"\" value2=\"\" unit=\"\" "
        "description=\"\"/></options><order_items/><attentions></attentions>");
    row("database: ktm of a group and designators are read only", "kiv_mat_database",
        "<server_release>7</server_release><d_group ktm=\"317\" cpv=\"c\" name=\"R &amp; C\"/>"
        "<d_group name=\"e\"><material><suppliers><supplier><part_no>p</part_no></supplier>"
        "</suppliers><information><comment>i</comment></information>"
        "<d_designator>R1</d_designator><d_ktm>k</d_ktm><manufacturers><manufacturer><files>"
        "<file name=\"n\" type=\"t\"/></files></manufacturer></manufacturers></material></d_group>",
        "<update></update><server_release>7</server_release><!-- --><d_group name=\"R &amp; C\" "
        "cpv=\"c\"/><d_group name=\"e\" cpv=\"\"><material><d_ktm>k</d_ktm><d_cpv></d_cpv>"
        "<d_name></d_name><d_description></d_description><d_value></d_value><d_case></d_case>"
        "<d_power></d_power><d_voltage></d_voltage><d_current></d_current>"
        "<d_tolerance></d_tolerance><d_otherParameters></d_otherParameters><d_price></d_price>"
        "<d_averagePrice></d_averagePrice><d_inWarehouse></d_inWarehouse><d_unit></d_unit>"
        "<d_active>NIE</d_active><d_libraryRef></d_libraryRef><d_footprintRef></d_footprintRef>"
        "<d_footprintRef2></d_footprintRef2><d_footprintRef3></d_footprintRef3>"
        "<d_footprintRef4></d_footprintRef4><d_footprintRef5></d_footprintRef5>"
        "<d_footprintRef6></d_footprintRef6><d_quantity></d_quantity><information>"
        "<status></status><added></added><checked></checked><approved></approved>"
        "<rohs_required></rohs_required><rohs_probability></rohs_probability>"
        "<comment>i</comment><edited></edited></information><manufacturers><manufacturer>"
        "<name></name><part_no></part_no><description></description><files><file type=\"t\" "
        "name=\"n\"/></files></manufacturer></manufacturers><suppliers><supplier><name></name>"
        "<part_no>p</part_no><description></description><files/></supplier></suppliers>"
        "</material></d_group>");
    row("firm: the defaults of a new one", "kiv_mat_firm",
        "<suppliers><firm><name>TME</name></firm></suppliers>",
        "<server_release></server_release><manufacturers/><suppliers><firm><name>TME</name>"
        "<fullname>FIRM SA</fullname><status>SZARY</status><business></business>"
        "<homepage>http://www</homepage><awatar>1</awatar><nip></nip></firm></suppliers>");
    row("configuration", "kiv_config",
        "<targets><target priorytet=\"1\"/></targets><persons><person etat=\"1\"/></persons>",
        "<options/><persons><person type=\"\" working_begin=\"\" position=\"\" etat=\"1\" "
        "name=\"\" department=\"\" link=\"\" phone=\"\"/></persons><targets><target "
        "priorytet=\"1\" type=\"\" name=\"\" description=\"\"/></targets>");
    row("BOM: the short form", "kiv_mat_bom",
        "<material><d_price>1</d_price><d_designator>C1</d_designator><d_cpv>c</d_cpv>"
        "<d_quantity>2</d_quantity><d_ktm>k</d_ktm></material>",
        "<update></update><!-- --><material><d_ktm>k</d_ktm><d_name></d_name>"
        "<d_quantity>2</d_quantity><d_designator>C1</d_designator></material>");
    row("BOM: empty", "kiv_mat_bom", "", "<update></update><!-- -->");
    row("BOM set", "kiv_mat_boms",
        "<category name=\"A\"><group name=\"1\"><file name=\"a.xml\"/></group></category>",
        "<update></update><server_release></server_release><!-- --><category name=\"A\"><group "
        "name=\"1\"><file type=\"\" name=\"a.xml\"/></group></category>");
    row("information: any order is read", "kiv_info",
        "<wearhouse_server_link>l</wearhouse_server_link><kiv_build>9</kiv_build>",
        "<kiv_version></kiv_version><kiv_build>9</kiv_build><bom_server_release>"
        "</bom_server_release><firm_server_release></firm_server_release>"
        "<service_server_release></service_server_release><wearhouse_server_release>"
        "</wearhouse_server_release><mechanics_server_release></mechanics_server_release>"
        "<kiv_server_link></kiv_server_link><bom_server_link></bom_server_link>"
        "<firm_server_link></firm_server_link><service_server_link></service_server_link>"
        "<wearhouse_server_link>l</wearhouse_server_link><mechanics_server_link>"
        "</mechanics_server_link>");
    row("update: a command without target", "kiv_update",
        "<command><from>b</from><name>remove_file</name></command><command/>",
        "<command><name>remove_file</name><from>b</from><to></to></command>"
        "<command><name></name><from></from><to></to></command>");
}

void tst_records::roundTrips()
{
    QFETCH(QByteArray, root);
    QFETCH(QByteArray, in);
    const testSupport::programFolder folder;
    const QString path = folder.write("in.xml", document(root, "KIV_CONFIG_1", "kiv.xsd", in));
    const fileKind *kind = fileKinds::ofFile(path);
    QVERIFY(kind);
    const auto record = newDocument(*kind);
    QCOMPARE(loadDocument(path, record.get()), 0);
    QCOMPARE(saveXml(folder.path("out.xml"), record.get()), 0);
    QByteArray saved = testSupport::read(folder.path("out.xml"));
    const int start = saved.indexOf('>', saved.indexOf("xsi:type")) + 1;
    saved = saved.mid(start, saved.lastIndexOf("</") - start);
    // The layout's line ends and blanks stand between tags only.
    QTEST(
        QByteArray(QString(saved).replace(QRegularExpression(">\\n *<"), "><").trimmed().toUtf8()),
        "out");
}

void tst_records::rootAttributesAreKept()
{
    const testSupport::programFolder folder;
    kiv_mat_databaseStruct record;
    QCOMPARE(record.xsiType, QString("KIV_MAT_DATABASE_1"));
    const QString path = folder.write("d.xml", document("kiv_mat_database", "V9", "old.xsd", ""));
    QCOMPARE(loadDatabase(path, &record), 0);
    QCOMPARE(record.fileName, QString("d.xml"));
    QCOMPARE(record.filePath, path);
    QCOMPARE(saveXml(path, &record), 0);
    QVERIFY(testSupport::read(path).contains(
        "<kiv_mat_database xsi:noNamespaceSchemaLocation=\"old.xsd\" "
        "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:type=\"V9\">"));
}

void tst_records::orderDefaults()
{
    const testSupport::programFolder folder;
    kiv_mat_zpStruct silent;
    QCOMPARE(loadZp(folder.write("o.xml", testSupport::order("")), &silent), 0);
    QCOMPARE(silent.options.items.size(), size_t(6));
    QCOMPARE(silent.options.value("ORDER_TARGET"), QString("xxx-xxxxxxxx"));
    QCOMPARE(silent.options.findOption("PERSON_AUTHOR")->editable, QString("YES"));
    QVERIFY(!silent.options.findOption("person_author"));
}

void tst_records::newOrder()
{
    configStruct config;
    for (QLatin1String key : {optionKey::personAuthor, optionKey::orderNumber}) {
        optionStruct *option = config.options.append(std::make_unique<optionStruct>());
        option->type = key;
        option->value1 = option->description = "configured";
    }
    kiv_mat_zpStruct record;
    record.orderItems.append(std::make_unique<orderItemStruct>());
    record.initialise(config);
    QStringList keys;
    for (const auto &option : record.options.items)
        keys.append(option->type);
    QCOMPARE(keys.join(' '), QString("PERSON_AUTHOR PERSON_APPROVED PERSON_CONTRACTOR "
                                     "ORDER_TARGET ORDER_NUMBER ORDER_DATE"));
    QCOMPARE(record.options.findOption("PERSON_AUTHOR")->description, QString("configured"));
    QCOMPARE(record.options.value("PERSON_APPROVED"), QString("First and second name"));
    QCOMPARE(record.options.value("ORDER_NUMBER"), QString());
    QCOMPARE(record.options.value("ORDER_DATE"), QDate::currentDate().toString("dd.MM.yyyy"));
    QVERIFY(record.orderItems.items.empty());
    QVERIFY(record.attentions.contains("RoHS"));
}

void tst_records::emptyGroupsOnWish()
{
    const testSupport::programFolder folder;
    const QString path = folder.path("d.xml");
    kiv_mat_databaseStruct record;
    record.writeEmptyGroups = false;
    QCOMPARE(saveXml(path, &record), 0);
    for (const char *name : {"empty", "full"}) {
        record.groups.push_back(std::make_unique<d_groupStruct>());
        record.groups.back()->name = name;
    }
    record.groups.back()->append(std::make_unique<materialStruct>());
    QCOMPARE(saveXml(path, &record), 0);
    QVERIFY(!testSupport::read(path).contains("\"empty\""));
    QVERIFY(testSupport::read(path).contains("\"full\""));
}

void tst_records::materialEquality()
{
    materialStruct a;
    materialStruct b;
    b.d_designator = "R1";
    QVERIFY(a == b);
    a.d_description = "x";
    b.d_description = "X";
    QVERIFY(!(a == b));
    b.d_description = "x";
    supplierStruct *supplier = a.suppliers.append(std::make_unique<supplierStruct>());
    QVERIFY(!(a == b));
    b.suppliers.append(std::make_unique<supplierStruct>());
    QVERIFY(a == b);
    supplier->files.append(std::make_unique<fileStruct>());
    QVERIFY(!(a == b));
    supplier->files.items.clear();
    a.information.comment = "c";
    QVERIFY(!(a == b));
}

void tst_records::configurationFont_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("size");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << ""
                          << ""
                          << "Arial 14";
    QTest::newRow("size alone") << ""
                                << "20"
                                << "Arial 14";
    QTest::newRow("both") << "Courier"
                          << "20"
                          << "Courier 20";
    QTest::newRow("size unreadable") << "Courier"
                                     << "big"
                                     << "Courier 14";
}

void tst_records::configurationFont()
{
    QFETCH(QString, family);
    QFETCH(QString, size);
    configStruct record;
    const auto set = [&record](QLatin1String key, const QString &value) {
        if (value.isEmpty())
            return;
        optionStruct *option = record.options.append(std::make_unique<optionStruct>());
        option->type = key;
        option->value1 = value;
    };
    set(optionKey::fontName, family);
    set(optionKey::fontSize, size);
    QTEST(QString("%1 %2").arg(record.font().family()).arg(record.font().pixelSize()), "expected");
}

void tst_records::configurationBackupPath()
{
    const testSupport::programFolder folder;
    const QString standard = QDir::tempPath() + "/KivZP_BACKUP";
    configStruct record;
    QCOMPARE(record.backupPath(), standard);
    optionStruct *option = record.options.findOption("PATH_BACKUP");
    QCOMPARE(option->value2, standard);
    QCOMPARE(option->editable, QString("YES"));
    option->value1 = "/b";
    QCOMPARE(record.backupPath(), QString("/b"));
    // An empty one met in a file is filled rather than doubled.
    option->value1.clear();
    QCOMPARE(record.backupPath(), standard);
    QCOMPARE(record.options.items.size(), size_t(1));
    QVERIFY(record.save(folder.path("c.xml")));
    configStruct later;
    QVERIFY(later.load(folder.path("c.xml")));
    QCOMPARE(later.options.value("PATH_BACKUP"), standard);
}

void tst_records::configurationYesWords()
{
    configStruct record;
    QVERIFY(!record.isOn("EDIT_ZP"));
    optionStruct *option = record.options.append(std::make_unique<optionStruct>());
    option->type = "EDIT_ZP";
    for (const char *word : {"TAK", "tak", "Yes", "NIE", ""}) {
        option->value1 = word;
        QCOMPARE(record.isOn("EDIT_ZP"), QByteArray(word).size() == 3 && *word != 'N');
    }
}

KIVZP_TEST(tst_records)
#include "tst_records.moc"

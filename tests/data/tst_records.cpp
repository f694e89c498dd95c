// What the records read, default and write, and that saving loses nothing that was on disk.
#include "testSupport.h"

#include "data/XmlValidator.h"
#include "data/documentSaving.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_offersStruct.h"

#include <unistd.h>

using namespace testSupport;

// Fails after its start tag, as a record with a broken child would.
class failingRecord : public xmlData
{
public:
    int writeXml(QXmlStreamWriter *writer) const override
    {
        writer->writeStartElement("broken");
        return -7;
    }
};

class tst_records : public folderTest
{
    Q_OBJECT
private slots:
    // Each file of the folder "read" is saved as the one of that name in "kept".
    void readAndKept_data()
    {
        const rows<QString> row;
        for (const QString &path : sources({"tests/files/read"}, {"*.xml"}))
            row(qPrintable(QFileInfo(path).fileName()), path);
    }

    void readAndKept()
    {
        const auto [path] = fetch<QString>();
        const auto record = newDocument(*fileKinds::ofFile(path));
        QCOMPARE(loadDocument(path, record.get()), 0);
        QCOMPARE(saveXml(m_folder->path("out.xml"), record.get()), 0);
        QCOMPARE(QString(read(m_folder->path("out.xml"))), QString(read(source("tests/files/kept/" + tag()))));
    }

    void rootAttributesAreKept()
    {
        kiv_mat_databaseStruct record;
        const QString path = m_folder->write("d.xml", document("kiv_mat_database", "V9", "old.xsd", ""));
        QCOMPARE(loadDatabase(path, &record), 0);
        QCOMPARE(record.filePath + record.fileName, path + "d.xml");
        QCOMPARE(saveXml(path, &record), 0);
        QVERIFY(read(path).contains("<kiv_mat_database xsi:noNamespaceSchemaLocation=\"old.xsd\" "
                                    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" xsi:type=\"V9\">"));
    }

    void orderDefaults()
    {
        kiv_mat_zpStruct silent;
        QCOMPARE(loadZp(m_folder->write("o.xml", order("")), &silent), 0);
        QCOMPARE(silent.options.items.size(), size_t(6));
        QCOMPARE(silent.options.value("ORDER_TARGET"), QString("xxx-xxxxxxxx"));
        QCOMPARE(silent.options.findOption("PERSON_AUTHOR")->editable, QString("YES"));
        QVERIFY(!silent.options.findOption("person_author"));
    }

    void newOrder()
    {
        configStruct config;
        for (QLatin1String key : {optionKey::personAuthor, optionKey::orderNumber}) {
            optionStruct *option = appendTo(config.options);
            option->type = key;
            option->value1 = option->description = "configured";
        }
        kiv_mat_zpStruct record;
        appendTo(record.orderItems);
        record.initialise(config);
        QStringList options;
        for (const auto &option : record.options.items)
            options.append(option->type + '=' + option->value1);
        QCOMPARE(options, QStringList({"PERSON_AUTHOR=configured", "PERSON_APPROVED=First and second name",
                                       "PERSON_CONTRACTOR=First and second name", "ORDER_TARGET=xxx-xxxxxxxx",
                                       "ORDER_NUMBER=", "ORDER_DATE=" + QDate::currentDate().toString("dd.MM.yyyy")}));
        QCOMPARE(record.options.items[0]->description, QString("configured"));
        QVERIFY(record.orderItems.items.empty());
        QVERIFY(record.attentions.contains("RoHS"));
    }

    void emptyGroupsOnWish()
    {
        kiv_mat_databaseStruct record;
        record.writeEmptyGroups = false;
        group(record, "empty");
        material(record, "full", "K");
        QCOMPARE(saveXml(m_folder->path("d.xml"), &record), 0);
        const QByteArray saved = read(m_folder->path("d.xml"));
        QVERIFY(!saved.contains("\"empty\"") && saved.contains("\"full\""));
    }

    void materialEquality()
    {
        materialStruct a;
        materialStruct b;
        b.d_designator = "R1";
        QVERIFY(a == b);
        a.d_description = "x";
        b.d_description = "X";
        QVERIFY(!(a == b));
        b.d_description = "x";
        supplierStruct *sold = appendTo(a.suppliers);
        QVERIFY(!(a == b));
        appendTo(b.suppliers);
        QVERIFY(a == b);
        appendTo(sold->files);
        QVERIFY(!(a == b));
        sold->files.items.clear();
        a.information.comment = "c";
        QVERIFY(!(a == b));
    }

    void configurationFont_data()
    {
        const rows<QString, QString> row;
        row("Arial 14", "", "");
        row("Arial 14 ", "", "20");
        row("Courier 20", "Courier", "20");
        row("Courier 14", "Courier", "big");
    }

    void configurationFont()
    {
        const auto [family, size] = fetch<QString, QString>();
        configStruct record;
        for (const auto &[key, value] : {std::pair(optionKey::fontName, family), {optionKey::fontSize, size}}) {
            if (value.isEmpty())
                continue;
            optionStruct *option = appendTo(record.options);
            option->type = key;
            option->value1 = value;
        }
        QCOMPARE(record.font().family() + ' ' + QString::number(record.font().pixelSize()), tag().trimmed());
    }

    void configurationBackupPath()
    {
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
        QVERIFY(record.save(m_folder->path("c.xml")));
        configStruct later;
        QVERIFY(later.load(m_folder->path("c.xml")));
        QCOMPARE(later.options.value("PATH_BACKUP"), standard);
    }

    void configurationWithPasswordIsNotForEverybody_data()
    {
        const rows<int> row;
        row("LANGUAGE", 4);
        row.each({"SERVER_USER_PASSWORD", "ARCHIVE_PASSWORD"}, 0);
    }
    void configurationWithPasswordIsNotForEverybody()
    {
        configStruct record;
        record.setDefaults();
        record.options.findOption(tag())->value1 = "en";
        const QString path = m_folder->write("c.xml", "");
        QFile::setPermissions(path, QFile::Permissions(0x6644));
        QVERIFY(record.save(path));
        QCOMPARE(int(QFile::permissions(path)) & 0x77, 0x40 + std::get<0>(fetch<int>()));
    }

    void configurationYesWords()
    {
        configStruct record;
        QVERIFY(!record.isOn("EDIT_ZP"));
        optionStruct *option = appendTo(record.options);
        option->type = "EDIT_ZP";
        QStringList on;
        for (const char *word : {"TAK", "tak", "Yes", "NIE", "no", ""}) {
            option->value1 = word;
            if (record.isOn("EDIT_ZP"))
                on.append(word);
        }
        QCOMPARE(on, QStringList({"TAK", "tak", "Yes"}));
    }

    void placesForSaving()
    {
        const kiv_mat_zpStruct record;
        m_folder->write("place/kept", "x");
        QCOMPARE(saveXml(m_folder->path("a/b/o.xml"), &record), 0);
        QVERIFY(read(m_folder->path("a/b/o.xml")).startsWith("<?xml version=\"1.0\" encoding"));
        QCOMPARE(saveXml(m_folder->path("place"), &record), -1);
        QCOMPARE(saveXml(m_folder->path("place/kept/o.xml"), &record), -1);
        QCOMPARE(saveXml("", &record), -1);
        QCOMPARE(read(m_folder->path("place/kept")), QByteArray("x"));
    }

    void readOnlyFolder()
    {
        const kiv_mat_zpStruct record;
        const QString path = m_folder->write("locked/o.xml", "old");
        const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        QFile::setPermissions(m_folder->path(), QFile::permissions(m_folder->path()) | QFile::ExeOther);
        QFile::setPermissions(m_folder->path("locked"),
                              QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
        // Permissions stop everybody but root.
        const bool root = geteuid() == 0;
        const uid_t nobody = 65534;
        QVERIFY(!root || seteuid(nobody) == 0);
        const int result = saveXml(path, &record);
        QVERIFY(!root || seteuid(0) == 0);
        QFile::setPermissions(m_folder->path("locked"), all);
        QCOMPARE(result, -1);
        QCOMPARE(read(path), QByteArray("old"));
    }

    void failuresKeepTheOldFile()
    {
        const QString path = m_folder->write("o.xml", "old");
        QCOMPARE(saveXml(path, std::make_unique<failingRecord>().get()), -7);
        kiv_mat_zpStruct record;
        orderItemStruct *item = appendTo(record.orderItems);
        for (const QString &text : {QString("a") + QChar(1), QString(QChar(0xffff)), QString(QChar(0xd83d)) + "x"}) {
            item->name = text;
            QCOMPARE(saveXml(path, &record), -1);
        }
        QCOMPARE(read(path), QByteArray("old"));
        QCOMPARE(QDir(m_folder->path()).entryList({"o*"}, QDir::Files | QDir::Hidden), QStringList({"o.xml"}));
    }

    void aRootWithoutAttributesIsSavedAsItsKind()
    {
        const QString path = m_folder->path("r.xml");
        for (const fileKind *kind : {&fileKinds::order, &fileKinds::database, &fileKinds::firm, &fileKinds::config,
                                     &fileKinds::bom, &fileKinds::boms, &fileKinds::info, &fileKinds::update,
                                     &fileKinds::firmDetails, &fileKinds::reservations, &fileKinds::orderStates,
                                     &fileKinds::offers}) {
            m_folder->write("r.xml", '<' + kind->root.toUtf8() + "/>");
            const auto record = newDocument(*kind);
            QCOMPARE(loadDocument(path, record.get()), 0);
            QCOMPARE(saveXml(path, record.get()), 0);
            QVERIFY(validateXml(path, paths::schema(kind->schema), false));
            QVERIFY(read(path).contains("xsi:type=\"" + kind->xsiType.toUtf8() + '"'));
        }
    }

    void whatWouldNotOpenAgainIsNotSaved()
    {
        const QString path = m_folder->path("o.xml");
        kiv_mat_zpStruct record;
        configStruct config;
        QVERIFY(saveDocument(path, record, config));
        const QByteArray good = read(path);
        for (const char *version : {"", "KIV_MAT_BOM_1", "later"}) {
            record.xsiType = version;
            QVERIFY(!saveDocument(path, record, config));
            QVERIFY2(m_shown->errors.takeLast().contains("would not open again: line 2"), version);
            QVERIFY(!saveDocument(m_folder->path("new.xml"), record, config));
            QCOMPARE(saveXml(path, &record), -1);
            QCOMPARE(read(path), good);
        }
        QCOMPARE(saveXmlNoEvents(path, &record, nullptr, {}, saveRule::whatever), 0);
        QCOMPARE(saveXml(path, &record), 0);
        // A cancelled save is a failed one of which nothing is told.
        m_shown->errors.clear();
        record.xsiType = record.kind().xsiType;
        const workShown cancelling = [](const auto &work) { work([](long long, long long) { return false; }); };
        QVERIFY(!saveDocument(path, record, config, cancelling));
        QVERIFY(m_shown->errors.isEmpty());
        QVERIFY(read(path).contains("later"));
        QCOMPARE(QDir(m_folder->path()).entryList({"o*", "new*"}, QDir::Files | QDir::Hidden), QStringList({"o.xml"}));
    }

    void textsComeBackAsTheyWere()
    {
        kiv_mat_zpStruct first;
        first.attentions = "<p>a &amp; \"b\" 'c'</p>\n\t  \u017c";
        appendTo(first.options)->value1 = "line\nend\ttab \"q\" <&>";
        QCOMPARE(saveXml(m_folder->path("1.xml"), &first), 0);
        kiv_mat_zpStruct second;
        QCOMPARE(loadZp(m_folder->path("1.xml"), &second), 0);
        QCOMPARE(second.attentions, first.attentions);
        QCOMPARE(second.options.items.back()->value1, first.options.items.back()->value1);
    }
};

KIVZP_TEST(tst_records)
#include "tst_records.moc"

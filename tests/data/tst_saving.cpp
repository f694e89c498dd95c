// Saving: nothing that was on disk is lost, whatever goes wrong.
#include "testSupport.h"

#include "data/kiv_mat_zpStruct.h"
#include "data/loaders.h"

#include <QDir>

#include <unistd.h>

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

class tst_saving : public QObject
{
    Q_OBJECT
private slots:
    void createsMissingFolders();
    void refusedPlaces();
    void readOnlyFolder();
    void failingRecordKeepsTheOldFile();
    void controlCharacterKeepsTheOldFile_data();
    void controlCharacterKeepsTheOldFile();
    void twiceSavedIsIdentical();
};

void tst_saving::createsMissingFolders()
{
    const testSupport::programFolder folder;
    const kiv_mat_zpStruct record;
    QCOMPARE(saveXml(folder.path("a/b/o.xml"), &record), 0);
    QVERIFY(
        testSupport::read(folder.path("a/b/o.xml")).startsWith("<?xml version=\"1.0\" encoding"));
    QCOMPARE(xmlData().writeXml(nullptr), -1);
    QCOMPARE(xmlData().readXml(nullptr), 0);
}

void tst_saving::refusedPlaces()
{
    const testSupport::programFolder folder;
    const kiv_mat_zpStruct record;
    folder.write("place/kept", "x");
    QCOMPARE(saveXml(folder.path("place"), &record), -1);
    QCOMPARE(saveXml(folder.path("place/kept/o.xml"), &record), -1);
    QCOMPARE(saveXml("", &record), -1);
    QCOMPARE(testSupport::read(folder.path("place/kept")), QByteArray("x"));
}

void tst_saving::readOnlyFolder()
{
    const testSupport::programFolder folder;
    const kiv_mat_zpStruct record;
    const QString path = folder.write("locked/o.xml", "old");
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(folder.path(), QFile::permissions(folder.path()) | QFile::ExeOther);
    QFile::setPermissions(folder.path("locked"),
                          QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther);
    // Permissions stop everybody but root.
    const bool root = geteuid() == 0;
    const uid_t nobody = 65534;
    QVERIFY(!root || seteuid(nobody) == 0);
    const int result = saveXml(path, &record);
    QVERIFY(!root || seteuid(0) == 0);
    QFile::setPermissions(folder.path("locked"), all);
    QCOMPARE(result, -1);
    QCOMPARE(testSupport::read(path), QByteArray("old"));
}

void tst_saving::failingRecordKeepsTheOldFile()
{
    const testSupport::programFolder folder;
    const QString path = folder.write("o.xml", "old");
    const failingRecord record;
    QCOMPARE(saveXml(path, &record), -7);
    QCOMPARE(testSupport::read(path), QByteArray("old"));
    QCOMPARE(QDir(folder.path()).entryList({"o*"}, QDir::Files | QDir::Hidden),
             QStringList({"o.xml"}));
}

void tst_saving::controlCharacterKeepsTheOldFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("control character") << QString("a") + QChar(1);
    QTest::newRow("not a character") << QString(QChar(0xffff));
    QTest::newRow("half a pair") << QString(QChar(0xd83d)) + "x";
}

void tst_saving::controlCharacterKeepsTheOldFile()
{
    QFETCH(QString, text);
    const testSupport::programFolder folder;
    kiv_mat_zpStruct record;
    auto item = std::make_unique<orderItemStruct>();
    item->name = text;
    record.orderItems.append(std::move(item));
    const QString path = folder.write("o.xml", "old");
    QCOMPARE(saveXml(path, &record), -1);
    QCOMPARE(testSupport::read(path), QByteArray("old"));
}

void tst_saving::twiceSavedIsIdentical()
{
    const testSupport::programFolder folder;
    kiv_mat_zpStruct first;
    first.attentions = "<p>a &amp; \"b\" 'c'</p>\n\t  \u017c";
    auto option = std::make_unique<optionStruct>();
    option->value1 = "line\nend\ttab \"q\" <&>";
    first.options.append(std::move(option));
    QCOMPARE(saveXml(folder.path("1.xml"), &first), 0);
    kiv_mat_zpStruct second;
    QCOMPARE(loadZp(folder.path("1.xml"), &second), 0);
    QCOMPARE(second.attentions, first.attentions);
    QCOMPARE(second.options.items.back()->value1, first.options.items.back()->value1);
    QCOMPARE(saveXml(folder.path("2.xml"), &second), 0);
    QCOMPARE(testSupport::read(folder.path("2.xml")), testSupport::read(folder.path("1.xml")));
}

KIVZP_TEST(tst_saving)
#include "tst_saving.moc"

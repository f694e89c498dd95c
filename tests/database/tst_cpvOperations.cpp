// CPV codes loaded for groups and handed down to materials.
#include "database/databaseSupport.h"
#include "testSupport.h"

#include "database/cpvOperations.h"
#include "util/paths.h"

using testSupport::group;
using testSupport::material;

class tst_cpvOperations : public QObject
{
    Q_OBJECT
private slots:
    void lines_data();
    void lines();
    void missingFile();
    void realList();
    void moving();
    void cancelled();
    void indexFile();
};

void tst_cpvOperations::lines_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("cpv"); // what the group "Diody" has afterwards
    QTest::addColumn<QString>("problems");
    const auto row = [](const char *name, const char *list, const char *cpv,
                        const char *problems = "") {
        QTest::newRow(name) << QByteArray(list) << QString(cpv) << QString(problems);
    };
    row("code and name", "Diody\t31712340-5 Diody\n", "31712340-5");
    row("code alone, CRLF", "Diody\t31712340-5\r\n", "31712340-5");
    row("no line end, blanks", "Diody\t  31712340-5", "31712340-5");
    row("third column", "Diody\t31712340-5\tDiodes", "31712340-5");
    row("byte order mark",
        "\xef\xbb\xbf"
        "Diody\t31712340-5",
        "31712340-5");
    row("the last line counts", "Diody\t31712340-5\nDiody\t31712341-2\n", "31712341-2");
    row("the same code", "Diody\told\n", "old",
        "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;old&nbsp;]<br>");
    row("no hyphen", "Diody\t317123405 x", "old",
        "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;317123405&nbsp;]<br>");
    row("no code", "Diody\n", "old", "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;&nbsp;]<br>");
    row("another case", "DIODY\t31712340-5\n\n \n", "old",
        "Group does not exist<br><b>DIODY</b>&nbsp;[&nbsp;31712340-5&nbsp;]<br>");
    row("no tab", "Diody <31712340-5>", "old",
        "Group does not exist<br><b>Diody &lt;31712340-5&gt;</b>&nbsp;[&nbsp;&nbsp;]<br>");
    row("empty file", "", "old");
}

void tst_cpvOperations::lines()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, cpv);
    const testSupport::programFolder folder;
    kiv_mat_databaseStruct database;
    group(database, "Diody")->cpv = "old";
    group(database, "Other");
    database.groups.push_back(std::make_unique<d_groupStruct>());
    database.groups.back()->name = "Diody";
    database.groups.back()->cpv = "old";
    const auto result = loadCpvForGroups(folder.write("list.txt", list), database);
    QTEST(result.problems.join(QString()), "problems");
    QCOMPARE(database.groups[0]->cpv, QString("old"));
    QCOMPARE(int(result.changes.size()), cpv == "old" ? 0 : 2);
    applyChanges(result.changes);
    QCOMPARE(database.groups[0]->cpv, cpv);
    QCOMPARE(database.groups[1]->cpv, QString());
    QCOMPARE(database.groups[2]->cpv, cpv);
}

void tst_cpvOperations::missingFile()
{
    kiv_mat_databaseStruct database;
    for (const QString &path : {QString("/nowhere/list.txt"), QDir::tempPath()}) {
        const auto result = loadCpvForGroups(path, database);
        QCOMPARE(result.problems.size(), 1);
        QVERIFY(result.problems[0].contains("<b>" + path + "</b>&nbsp;[&nbsp;"));
    }
}

// The clean list has a good code for each of its groups. The dirty one has two bad codes, three
// names that no group has and a line that begins with a tab.
void tst_cpvOperations::realList()
{
    const QString folder = testSupport::realData();
    if (folder.isEmpty())
        QSKIP("KIVZP_REAL_DATA is not set");
    const testSupport::programFolder program;
    kiv_mat_databaseStruct database;
    QStringList names;
    QFile list(folder + "/cpv_groups.txt");
    QVERIFY(list.open(QIODevice::ReadOnly));
    for (const QByteArray &line : list.readAll().split('\n'))
        if (!line.isEmpty())
            group(database, QString::fromUtf8(line.split('\t')[0]));
    const auto clean = loadCpvForGroups(list.fileName(), database);
    QCOMPARE(clean.problems, QStringList());
    QCOMPARE(clean.changes.size(), database.groups.size());
    const auto dirty = loadCpvForGroups(folder + "/cpv_groups_dirty.txt", database);
    QCOMPARE(dirty.problems.size(), 1 + 2 + 1 + 4);
    QVERIFY(dirty.changes.size() > 15);
}

void tst_cpvOperations::moving()
{
    const testSupport::programFolder folder;
    kiv_mat_databaseStruct database;
    material(database, "A", "1")->d_cpv = "31712340-5";
    material(database, "A", "2")->d_cpv = "31712341-2";
    material(database, "A", "3");
    material(database, "none", "4")->d_cpv = "31712341-2";
    material(database, "bad", "5")->d_cpv = "31712341-2";
    group(database, "A")->cpv = "31712340-5";
    group(database, "bad")->cpv = "<code>";
    const auto result = moveCpvToMaterials(database);
    QCOMPARE(result.problems, QStringList({"CPV syntax error<br>",
                                           "<b>bad</b>&nbsp;[&nbsp;&lt;code&gt;&nbsp;]<br>"}));
    QCOMPARE(int(result.changes.size()), 2);
    applyChanges(result.changes);
    for (const auto &m : database.groups[0]->items)
        QCOMPARE(m->d_cpv, QString("31712340-5"));
    QCOMPARE(database.groups[1]->items[0]->d_cpv, QString("31712341-2"));
    QCOMPARE(database.groups[2]->items[0]->d_cpv, QString("31712341-2"));
}

void tst_cpvOperations::cancelled()
{
    const testSupport::programFolder folder;
    kiv_mat_databaseStruct database;
    material(database, "A", "1");
    group(database, "A")->cpv = "31712340-5";
    const progressFunction cancel = [](long long, long long) { return false; };
    const auto moved = moveCpvToMaterials(database, cancel);
    QVERIFY(moved.cancelled && moved.changes.empty());
    const auto loaded =
        loadCpvForGroups(folder.write("l.txt", "A\t31712341-2\n"), database, cancel);
    QVERIFY(loaded.cancelled && loaded.changes.empty());
}

void tst_cpvOperations::indexFile()
{
    const testSupport::programFolder folder;
    QVERIFY(cpvIndexFile().isEmpty());
    const QString path = folder.write("_files/Wspolny-Slownik-Zamowien.pdf", "%PDF");
    QCOMPARE(cpvIndexFile(), QUrl("file://" + path));
}

KIVZP_TEST(tst_cpvOperations)
#include "tst_cpvOperations.moc"

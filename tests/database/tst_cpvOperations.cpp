// CPV codes loaded for groups and handed down to materials.
#include "testSupport.h"

#include "database/cpvOperations.h"

using namespace testSupport;

class tst_cpvOperations : public folderTest
{
    Q_OBJECT
private slots:
    void lines_data()
    {
        const rows<QByteArray, QString, QString> row;
        row("code and name", "Diody\t31712340-5 Diody\n", "31712340-5", "");
        row("code alone, CRLF", "Diody\t31712340-5\r\n", "31712340-5", "");
        row("no line end, blanks", "Diody\t  31712340-5", "31712340-5", "");
        row("third column", "Diody\t31712340-5\tDiodes", "31712340-5", "");
        row("byte order mark",
            "\xef\xbb\xbf"
            "Diody\t31712340-5",
            "31712340-5", "");
        row("the last line counts", "Diody\t31712340-5\nDiody\t31712341-2\n", "31712341-2", "");
        row("the same code", "Diody\told\n", "old", "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;old&nbsp;]<br>");
        row("no hyphen", "Diody\t317123405 x", "old",
            "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;317123405&nbsp;]<br>");
        row("no code", "Diody\n", "old", "CPV syntax error<br><b>Diody</b>&nbsp;[&nbsp;&nbsp;]<br>");
        row("another case", "DIODY\t31712340-5\n\n \n", "old",
            "Group does not exist<br><b>DIODY</b>&nbsp;[&nbsp;31712340-5&nbsp;]<br>");
        row("no tab", "Diody <31712340-5>", "old",
            "Group does not exist<br><b>Diody &lt;31712340-5&gt;</b>&nbsp;[&nbsp;&nbsp;]<br>");
        row("empty file", "", "old", "");
    }

    void lines()
    {
        const auto [list, cpv, problems] = fetch<QByteArray, QString, QString>();
        kiv_mat_databaseStruct database;
        group(database, "Diody")->cpv = "old";
        group(database, "Other");
        database.groups.push_back(std::make_unique<d_groupStruct>());
        database.groups.back()->name = "Diody";
        database.groups.back()->cpv = "old";
        const auto result = loadCpvForGroups(m_folder->write("list.txt", list), database);
        QCOMPARE(result.problems.join(QString()), problems);
        QCOMPARE(database.groups[0]->cpv, QString("old"));
        QCOMPARE(int(result.changes.size()), cpv == "old" ? 0 : 2);
        applyChanges(result.changes);
        QCOMPARE(database.groups[0]->cpv, cpv);
        QCOMPARE(database.groups[1]->cpv, QString());
        QCOMPARE(database.groups[2]->cpv, cpv);
    }

    void missingFile()
    {
        kiv_mat_databaseStruct database;
        for (const QString &path : {QString("/nowhere/list.txt"), QDir::tempPath()}) {
            const auto result = loadCpvForGroups(path, database);
            QCOMPARE(result.problems.size(), 1);
            QVERIFY(result.problems[0].contains("<b>" + path + "</b>&nbsp;[&nbsp;"));
        }
    }

    void moving()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "1")->d_cpv = "31712340-5";
        material(database, "A", "2")->d_cpv = "31712341-2";
        material(database, "A", "3");
        material(database, "none", "4")->d_cpv = "31712341-2";
        material(database, "bad", "5")->d_cpv = "31712341-2";
        group(database, "A")->cpv = "31712340-5";
        group(database, "bad")->cpv = "<code>";
        const auto result = moveCpvToMaterials(database);
        QCOMPARE(result.problems,
                 QStringList({"CPV syntax error<br>", "<b>bad</b>&nbsp;[&nbsp;&lt;code&gt;&nbsp;]<br>"}));
        QCOMPARE(int(result.changes.size()), 2);
        applyChanges(result.changes);
        for (const auto &m : database.groups[0]->items)
            QCOMPARE(m->d_cpv, QString("31712340-5"));
        QCOMPARE(database.groups[1]->items[0]->d_cpv, QString("31712341-2"));
        QCOMPARE(database.groups[2]->items[0]->d_cpv, QString("31712341-2"));
    }

    void cancelled()
    {
        kiv_mat_databaseStruct database;
        material(database, "A", "1");
        group(database, "A")->cpv = "31712340-5";
        const progressFunction cancel = [](long long, long long) { return false; };
        const auto moved = moveCpvToMaterials(database, cancel);
        QVERIFY(moved.cancelled && moved.changes.empty());
        const auto loaded = loadCpvForGroups(m_folder->write("l.txt", "A\t31712341-2\n"), database, cancel);
        QVERIFY(loaded.cancelled && loaded.changes.empty());
    }

    void indexFile()
    {
        QVERIFY(cpvIndexFile().isEmpty());
        const QString path = m_folder->write("_files/Wspolny-Slownik-Zamowien.pdf", "%PDF");
        QCOMPARE(cpvIndexFile(), QUrl("file://" + path));
    }
};

KIVZP_TEST(tst_cpvOperations)
#include "tst_cpvOperations.moc"

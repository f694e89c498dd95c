// The exports for the CAD tool, read back by other programs.
#include "testSupport.h"

#include "database/altiumExport.h"
#include "database/exportNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>

using namespace testSupport;

namespace {

const QString longText = QString(40000, 'x');

// Everything that a spreadsheet or SQL could take for something else.
void fillNasty(kiv_mat_databaseStruct &database)
{
    const QStringList names =
        QString("Group|group|Case|0603|R-SMD|Układy scalone|O'Brien's|'|||sqlite_stat|a[b]:*?/\\c|"
                "History|Groups|with \"quotes\"|Złącza 2.54 mm jednorzędowe Samtec TSW|"
                "Złącza 2.54 mm jednorzędowe Samtec SSW|x;drop table y--|id")
            .split('|');
    const QStringList values = QString("00220|=1+1|1e5|12,50|it's 'q'| blanks |a\nb\tc|-|<&>|0Ω ±1%|😀|';--").split('|');
    int number = 0;
    for (const QString &name : names) {
        database.groups.push_back(std::make_unique<d_groupStruct>());
        database.groups.back()->name = name;
        for (const QString &value : values) {
            materialStruct *added = database.groups.back()->append(std::make_unique<materialStruct>());
            added->d_ktm = QString("%1").arg(++number, 5, 10, QChar('0'));
            added->d_name = added->d_value = added->d_footprintRef6 = value;
        }
    }
    database.groups.front()->items.front()->d_description = longText;
}

// What a program wrote; an error's text when it failed or complained.
QByteArray output(const QString &program, const QStringList &arguments, const QString &input = {})
{
    const ended done = run(program, arguments, {}, {}, input);
    return done.code == 0 && done.err.isEmpty() ? done.out.toUtf8() : "failed: " + done.err.toUtf8();
}

// The sheets in order, each as its name and rows of cells.
QJsonArray readWorkbook(const QString &path)
{
    const QByteArray json = output("/usr/bin/python3", {source("tests/files/readWorkbook.py"), path});
    if (!json.startsWith('['))
        qWarning("%s", json.constData());
    return QJsonDocument::fromJson(json).array();
}

} // namespace

class tst_altiumExport : public folderTest
{
    Q_OBJECT
private slots:
    void names_data()
    {
        const rows<QStringList, QStringList> row;
        const auto sheets = [](const QStringList &wanted) { return exportNames::sheetNames(wanted, {"Groups"}); };
        row("Polish letters", sheets({"Łódź"}), {"Lodz"});
        row("refused characters", sheets({"[a]:*?/\\b"}), {"_a______b"});
        row("apostrophes", sheets({"''a'b'", "'"}), {"a'b", "Group"});
        row("empty", sheets({"", ""}), {"Group", "Group~d41d"});
        row("case", sheets({"ab", "AB", "aB"}), {"ab", "AB~b86f", "aB~081b"});
        row("equal", sheets({"a", "a~0cc1", "a", "a"}), {"a", "a~0cc1", "a~0cc1~2", "a~0cc1~3"});
        row("reserved", sheets({"groups", "History"}), {"groups~1471", "History~16d2"});
        const QString a(40, 'a');
        row("long", sheets({a, a.toUpper()}),
            {a.left(10) + "~" + a.left(20), (a.left(8) + "~" + a.left(17)).toUpper() + "~a945"});
        row("the telling end", sheets({"Układy programowalne CPLD (CPLD_Microchip)", "Pamięci " + a + " EEPROM I2C"}),
            {"Uklady program~(CPLD_Microchip)", "Pamieci aaaaaaaaaaaa~EEPROM I2C"});
        row("apostrophe where it is cut", sheets({"'" + a}), {a.left(9) + "~" + a.left(20)});
        row("no half character", sheets({a.left(11) + "😀" + a.left(19)}), {a.left(11) + "~" + a.left(19)});
        const QString sql = "Rezystory|Other parameters|Układy|O'Brien|group|0603|R-SMD|Ω|_x1||SQLite_x|ID";
        QStringList quoted;
        for (const QString &name : sql.split('|'))
            quoted.append(exportNames::quoted(exportNames::sqlNames({name}, {"id"}).at(0)));
        row("SQL", quoted,
            QString("Rezystory|'Other parameters'|Uklady|OBrien|'group'|'0603'|'R-SMD'|'Ω'|_x1|'Group'|_SQLite_x|ID_b718")
                .split('|'));
    }

    void names()
    {
        const auto [given, expected] = fetch<QStringList, QStringList>();
        QCOMPARE(given, expected);
    }

    // Whatever is put in wherever, nobody else's table gets another name.
    void namesStay_data()
    {
        const rows<QString> row;
        row("another one", "Moduły");
        row("in capitals", "REZYSTORY");
        row("without its letters", "Uklady");
        row("with them", "Ukłądy");
        row("of the family", "Układy programowalne CPLD (CPLD_Xilinx)");
        row("one that is cut alike", "Układy programowalnych i innych CPLD (CPLD_Microchip)");
    }

    void namesStay()
    {
        const auto [added] = fetch<QString>();
        QStringList groups{"Rezystory",
                           "Układy",
                           "History",
                           "rezystory",
                           "Układy programowalne CPLD (CPLD_Microchip)",
                           "Układy programowalne CPLD (CPLD_Altera)"};
        using function = QStringList (*)(const QStringList &, const QStringList &, const QHash<QString, QString> &);
        for (const function make : {exportNames::sheetNames, exportNames::sqlNames}) {
            const QStringList before = make(groups, {}, {});
            QHash<QString, QString> known;
            for (int i = 0; i < groups.size(); ++i)
                known.insert(groups.at(i), before.at(i));
            QCOMPARE(make(groups + QStringList(added), {}, {}).mid(0, groups.size()), before);
            for (int place = 0; place <= groups.size(); ++place) {
                QStringList more = groups;
                more.insert(place, added);
                QStringList after = make(more, {}, known);
                QVERIFY(!before.contains(after.takeAt(place), Qt::CaseInsensitive));
                QCOMPARE(after, before);
            }
        }
        // A name that another rule would have given is not kept.
        QCOMPARE(exportNames::sqlNames({"Układy"}, {}, {{"Układy", "Uklady 2"}}), QStringList("Uklady"));
    }

    void scriptText()
    {
        kiv_mat_databaseStruct database;
        QCOMPARE(exportAltiumSqlite(database, path("a.sqlite")).result, exportResult::done);
        QCOMPARE(read(path("a.txt")), QByteArray("BEGIN TRANSACTION;\n\nCOMMIT;\n"));
        materialStruct *m = material(database, "Układy a", "");
        for (const auto &field : materialStruct::fields())
            m->*field.member = QString(field.name).mid(2);
        m->d_name = "it's";
        QCOMPARE(exportAltiumSqlite(database, path("a.sqlite")).result, exportResult::done);
        QCOMPARE(QString(read(path("a.txt"))), QString(read(source("tests/files/altiumScript.txt"))));
    }

    // sqlite3 runs the script without a word; every row and value is there.
    void scriptRuns()
    {
        kiv_mat_databaseStruct database;
        fillNasty(database);
        const exportResult result = exportAltiumSqlite(database, path("a.SQLITE"));
        QCOMPARE(result.result, exportResult::done);
        QCOMPARE(result.materials, database.materialCount());
        QCOMPARE(output("sqlite3", {path("a.SQLITE")}, path("a.txt")), QByteArray());

        QStringList names;
        for (const auto &group : database.groups)
            names.append(group->name);
        const QStringList tables = exportNames::sqlNames(names);
        {
            QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", "test");
            connection.setDatabaseName(path("a.SQLITE"));
            QVERIFY(connection.open());
            QCOMPARE(connection.tables().size(), tables.size());
            for (int i = 0; i < tables.size(); ++i) {
                const d_groupStruct &group = *database.groups[size_t(i)];
                QSqlQuery query(connection);
                QVERIFY(query.exec("select * from " + exportNames::quoted(tables.at(i)) + " order by id"));
                for (const auto &expected : group.items) {
                    QVERIFY(query.next());
                    QCOMPARE(query.value(1).toString(), expected->d_ktm);
                    QCOMPARE(query.value(2).toString(), group.name);
                    QCOMPARE(query.value(9).toString(), expected->d_description);
                    QCOMPARE(query.value(10).toString(), expected->d_name);
                    QCOMPARE(query.value(23).toString(), expected->d_footprintRef6);
                }
                QVERIFY(!query.next());
            }
        }
        QSqlDatabase::removeDatabase("test");
    }

    void workbookReadsBack()
    {
        kiv_mat_databaseStruct database;
        fillNasty(database);
        const exportResult result = exportAltiumXlsx(database, path("a.xlsx"));
        QCOMPARE(result.result, exportResult::done);
        QVERIFY(result.notes.join("").contains("<b>00001</b>&nbsp;[Description]"));
        QVERIFY(result.notes.join("").contains("<b>group</b>&nbsp;[group~"));

        const QJsonArray sheets = readWorkbook(path("a.xlsx"));
        QCOMPARE(sheets.size(), int(database.groups.size()));
        for (int i = 0; i < sheets.size(); ++i) {
            const d_groupStruct &group = *database.groups[size_t(i)];
            const QJsonArray rows = sheets[i][1].toArray();
            QCOMPARE(rows.size(), 1 + int(group.items.size()));
            QCOMPARE(rows[0].toArray().size(), 23);
            QCOMPARE(rows[0][15].toString(), QString("Comment"));
            for (int row = 1; row < rows.size(); ++row) {
                const materialStruct &expected = *group.items[size_t(row - 1)];
                QCOMPARE(rows[row][0].toString(), expected.d_ktm);
                QCOMPARE(rows[row][1].toString(), group.name);
                QCOMPARE(rows[row][8].toString(), expected.d_description.left(32767));
                QCOMPARE(rows[row][9].toString(), expected.d_name);
                QVERIFY(rows[row][15].isNull());
                QCOMPARE(rows[row][22].toString(), expected.d_footprintRef6);
            }
        }
    }

    void groupsReadBack()
    {
        kiv_mat_databaseStruct database;
        material(database, "Groups", "K1", "n1")->d_cpv = "c1";
        material(database, "Groups", "K2", "n2");
        group(database, "empty")->cpv = "31711130-3";
        database.groups.back()->ktm = "317111";
        QCOMPARE(exportGroups(database, path("g.xlsx")).result, exportResult::done);
        const QByteArray found = QJsonDocument(readWorkbook(path("g.xlsx"))).toJson(QJsonDocument::Compact);
        QCOMPARE(found, QByteArray("[[\"Groups\",[[\"Name\",\"KTM\",\"CPV\"],[\"Groups\",null,null],"
                                   "[\"empty\",\"317111\",\"31711130-3\"]]],"
                                   "[\"Groups~a37e\",[[\"Name\",\"KTM\",\"CPV\"],[\"n1\",\"K1\",\"c1\"],"
                                   "[\"n2\",\"K2\",null]]],[\"empty\",[[\"Name\",\"KTM\",\"CPV\"]]]]"));
    }

    void oldFilesAreReplacedWhole()
    {
        kiv_mat_databaseStruct database;
        material(database, "G", "K");
        const QString target = path("a.sqlite");
        QVERIFY(output("sqlite3", {target, "create table G(a); insert into G values(1);"}).isEmpty());
        m_folder->write("a.sqlite-journal", "left by another program");
        // Twice: the second export replaces what the script has made of the first.
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(exportAltiumSqlite(database, target).result, exportResult::done);
            QVERIFY(!QFile::exists(target + "-journal"));
            QCOMPARE(output("sqlite3", {target}, path("a.txt")), QByteArray());
            QCOMPARE(output("sqlite3", {target, "select count(*), KTM from G"}), QByteArray("1|K\n"));
        }
    }

    // Cancelled, or without a place to write: old files stay, no other file is left.
    void nothingIsLeftHalfDone()
    {
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 200; ++i)
            material(database, "G", QString::number(i));
        for (const char *name : {"a.sqlite", "a.txt", "a.sqlite.DbLib", "a.xlsx.DbLib", "a.kicad_dbl", "a.xlsx"})
            m_folder->write(name, "old");
        const progressFunction cancel = [](long long done, long long total) { return total != 200 || done < 100; };
        const progressFunction cancelPacking = [](long long, long long total) { return total > 0; };
        for (const auto function : {exportAltiumXlsx, exportGroups, exportAltiumSqlite}) {
            const QString ending = function == exportAltiumSqlite ? ".sqlite" : ".xlsx";
            QCOMPARE(function(database, m_folder->path("a" + ending), cancel).result, exportResult::cancelled);
            if (ending == ".xlsx")
                QCOMPARE(function(database, m_folder->path("a.xlsx"), cancelPacking).result, exportResult::cancelled);
            const exportResult refused = function(database, m_folder->path("a.txt/x" + ending), {});
            QCOMPARE(refused.result, exportResult::failed);
            QVERIFY(refused.error.contains("a.txt"));
        }
        // The description cannot be written: the workbook is not replaced either.
        for (const char *name : {"a.sqlite.DbLib", "a.xlsx.DbLib"})
            QVERIFY(QFile::remove(path(name)) && QDir().mkdir(path(name)));
        QCOMPARE(exportAltiumXlsx(database, path("a.xlsx")).result, exportResult::failed);
        QCOMPARE(exportAltiumSqlite(database, path("a.sqlite")).result, exportResult::failed);
        for (const char *name : {"a.sqlite", "a.txt", "a.xlsx", "a.kicad_dbl"})
            QCOMPARE(read(m_folder->path(name)), QByteArray("old"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 4);
    }

    // Each described table and column stands in the exported file under that name.
    void descriptionNamesWhatIsThere()
    {
        kiv_mat_databaseStruct database;
        for (const char *name : {"A.b", "with|bar", "with]bracket", "Group"})
            material(database, name, "K");
        m_folder->write("part s.DbLib", "both kinds had this one once");
        const exportResult workbook = exportAltiumXlsx(database, path("part s.xlsx"));
        QVERIFY(workbook.files.contains(path("part s.xlsx.DbLib")));
        QCOMPARE(workbook.notes.filter("<b>part s.DbLib</b>&nbsp;[part s.xlsx.DbLib]").size(), 1);
        const QString text = QString::fromUtf8(read(path("part s.xlsx.DbLib")));
        QVERIFY(text.contains("Data Source=.\\part s.xlsx;"));
        QVERIFY(!text.contains("with|"));
        QVERIFY(text.contains("TableName=with_bracket$"));
        QVERIFY(text.contains("TableName=A#b$\r\n"));
        QVERIFY(text.contains("TableName=Group$\r\n"));
        QCOMPARE(text.count("[FieldMap"), 3 * 23);
        QVERIFY(text.contains("FieldName=Group$.LibraryRef|TableNameOnly=Group$|FieldNameOnly="
                              "LibraryRef|FieldType=1|ParameterName=[Library Ref]|"));
        const QStringList notes = exportAltiumSqlite(database, path("p.sqlite")).notes;
        QCOMPARE(notes.filter("<b>with").size(), 2);
        const QString sql = QString::fromUtf8(read(path("p.sqlite.DbLib")));
        QVERIFY(sql.contains("Database=.\\p.sqlite;"));
        QVERIFY(sql.contains("TableName=A.b\r\n"));
        exportAltiumXlsx(database, path("p.xlsx"));
        QCOMPARE(QString::fromUtf8(read(path("p.sqlite.DbLib"))), sql);
    }

    // Every table and column of KiCad's description is there under its exact name; a library's name
    // has none of the characters that part a name.
    void kicadNamesWhatIsThere()
    {
        kiv_mat_databaseStruct database;
        fillNasty(database);
        group(database, "a/b");
        QVERIFY(exportAltiumSqlite(database, path("k.sqlite")).files.contains(path("k.kicad_dbl")));
        QCOMPARE(output("sqlite3", {path("k.sqlite")}, path("k.txt")), QByteArray());
        const QJsonObject description = QJsonDocument::fromJson(read(path("k.kicad_dbl"))).object();
        QVERIFY(description["source"].toObject()["connection_string"].toString().endsWith(";Database=${CWD}/k.sqlite"));
        const QJsonArray libraries = description["libraries"].toArray();
        // Without the one whose name holds a quotation mark.
        QCOMPARE(libraries.size(), int(database.groups.size()) - 1);
        QStringList names;
        for (const auto &each : libraries) {
            const QJsonObject library = each.toObject();
            names.append(library["name"].toString());
            const QString table = library["table"].toString();
            QStringList columns{library["key"].toString(), library["symbols"].toString(),
                                library["footprints"].toString(),
                                library["properties"].toObject()["description"].toString()};
            QCOMPARE(columns, QStringList({"KTM", "LibraryRef", "FootprintRef", "Description"}));
            for (const auto &field : library["fields"].toArray())
                columns.append(field.toObject()["column"].toString());
            // Neither the empty column nor the row's number is a field.
            QCOMPARE(columns.size(), 22);
            const QByteArray made = output("sqlite3", {path("k.sqlite"), "pragma table_info(\"" + table + "\")"});
            for (const QString &column : qAsConst(columns))
                QVERIFY2(made.contains("|" + column.toUtf8() + "|"), qPrintable(table + ": " + column));
        }
        QVERIFY(names.contains("a_b"));
        QCOMPARE(names.filter(QRegularExpression("[:/]")), QStringList());
        QCOMPARE(names.removeDuplicates(), 0);
    }

    // What differs from the export before, by each kind of export.
    void changesAreTold()
    {
        kiv_mat_databaseStruct database;
        for (const QString &place : QString("A1 A2 A3 A3 A4 B5 B6 C7").split(' '))
            material(database, place.left(1), "K" + place.mid(1), "n" + place.mid(1));
        using function = exportResult (*)(const kiv_mat_databaseStruct &, const QString &, const progressFunction &);
        const QList<QPair<function, QString>> exports{{exportAltiumXlsx, path("c.xlsx")},
                                                      {exportAltiumSqlite, path("c.sqlite")}};
        for (const auto &[run, target] : exports) {
            QVERIFY(!run(database, target, {}).changes.compared);
            const exportChanges same = run(database, target, {}).changes;
            QVERIFY(same.compared && same.rows.empty() && !same.since.isEmpty());
        }
        auto &groups = database.groups;
        groups[0]->items[0]->d_value = "a\tb\\\nc";
        groups[0]->items[0]->d_price = "1";
        groups[0]->items.erase(groups[0]->items.begin() + 1);
        groups[0]->items[2]->d_name = "second of its KTM";
        groups[2]->items.push_back(std::move(groups[0]->items[3]));
        groups[0]->items.pop_back();
        groups[1]->name = "Układy";
        group(database, "B");
        groups.back()->name = "E";
        material(database, "E", "K9", "n9");
        // Nothing that is not exported counts.
        groups[1]->items[0]->d_cpv = "31712116-6";
        const QStringList expected{"+ E",
                                   "> B -> Uklady",
                                   "~ A, K1, n1, Value:  -> a\tb\\\\nc",
                                   "~ A, K1, n1, Price:  -> 1",
                                   "~ A, K3, second of its KTM, Name: n3 -> second of its KTM",
                                   "> C, K4, n4: A -> C",
                                   "+ E, K9, n9",
                                   "- A, K2, n2"};
        for (const auto &[run, target] : exports) {
            const exportChanges changes = run(database, target, {}).changes;
            QStringList lines;
            for (const exportChange &change : changes.rows)
                lines.append(lineOf(change));
            QCOMPARE(lines, expected);
            QVERIFY(summaryOf(changes).contains("2"));
        }
        groups.pop_back();
        m_folder->write("c.xlsx.last.gz", "no archive");
        QVERIFY(!exportAltiumXlsx(database, path("c.xlsx")).changes.compared);
        const exportChanges less = exportAltiumSqlite(database, path("c.sqlite")).changes;
        QCOMPARE(int(less.rows.size()), 2);
        QCOMPARE(lineOf(less.rows[0]), QString("- E"));
        QCOMPARE(lineOf(less.rows[1]), QString("- E, K9, n9"));
    }

private:
    QString path(const char *name) const { return m_folder->path(name); }
};

KIVZP_TEST(tst_altiumExport)
#include "tst_altiumExport.moc"

// The component library of the CAD tool straight from the shared store, read as the tool reads it.
#include "testSupport.h"

#include "database/altiumExport.h"
#include "database/exportNames.h"
#include "database/libraryDescription.h"
#include "database/sharedLibrary.h"
#include "store/storeConnection.h"
#include "store/storeSync.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

using namespace testSupport;

namespace {

using table = QList<QStringList>;

// Everything that a server, its driver or the tool could take for something else.
void fillNasty(kiv_mat_databaseStruct &database)
{
    const QString hundred = QString(90, 'x');
    QStringList names = QString("Group|Rezystory|rezystory|Układy|O'Brien's|with \"quotes\"|;drop schema kivzp--|"
                                "%1 %2|a\\b|Uklady|sqlite_x|select|?|:x|[a]|ΩΩ")
                            .split('|');
    names << QString() << "with|bar" << hundred + " A" << hundred + " B" << QString(100, QChar(0x3a9));
    const QStringList values =
        QString("00220|=1+1|12,50|it's 'q'| blanks |a\nb\tc|-|<&>|0Ω ±1%|😀|';--|\"|\\|{x}|?").split('|');
    int number = 0;
    for (const QString &name : qAsConst(names))
        for (const QString &value : values) {
            materialStruct *m = material(database, name, {}, value);
            for (const auto &field : materialStruct::fields())
                m->*field.member = field.name + value;
            m->d_ktm = QString("%1").arg(++number, 5, 10, QChar('0'));
            supplier(m, "x");
        }
    database.groups[1]->items.front()->d_description = QString("ąb ").repeated(3000);
    database.groups[1]->items.back()->d_otherParameters.clear();
    // Two of one name, and one without materials.
    database.groups.push_back(std::make_unique<d_groupStruct>());
    database.groups.back()->name = "Rezystory";
    database.groups.back()->append(std::make_unique<materialStruct>())->d_ktm = "99999";
    group(database, "empty");
}

QString nameIn(const QString &schema, const QString &view) { return store::quoted(schema) + '.' + store::quoted(view); }

// The rows of a query, with a fault as one of its own.
table rowsOf(QSqlQuery &query, int from = 0)
{
    if (!query.isActive())
        return {{query.lastError().text()}};
    table rows;
    while (query.next()) {
        QStringList row;
        for (int i = from; i < query.record().count(); ++i)
            row.append(query.value(i).toString());
        rows.append(row);
    }
    return rows;
}

table ask(store::connection &of, const QString &sql)
{
    std::optional<QSqlQuery> query = of.ask(sql);
    return query ? rowsOf(*query) : table{{of.fault()}};
}

// What the file export holds: its column names, and the rows of each table that has some.
std::pair<QStringList, QList<table>> exported(const kiv_mat_databaseStruct &database, const QString &path)
{
    QStringList names;
    for (const auto &each : database.groups)
        names.append(each->name);
    std::pair<QStringList, QList<table>> all;
    if (exportAltiumSqlite(database, path).result != exportResult::done
        || run("sqlite3", {path}, {}, {}, scriptPath(path)).code != 0)
        return all;
    {
        QSqlDatabase connection = QSqlDatabase::addDatabase("QSQLITE", "exported");
        connection.setDatabaseName(path);
        connection.open();
        for (const QString &name : exportNames::sqlNames(names)) {
            QSqlQuery query("select * from " + exportNames::quoted(name) + " order by id", connection);
            all.first.clear();
            for (int i = 1; i < query.record().count(); ++i)
                all.first.append(query.record().fieldName(i));
            const table rows = rowsOf(query, 1);
            if (!rows.isEmpty())
                all.second.append(rows);
        }
    }
    QSqlDatabase::removeDatabase("exported");
    return all;
}

// What the description tells the ODBC driver, with the driver's name on Debian.
QString odbcOf(const QByteArray &description)
{
    const QString text = QString::fromUtf8(description);
    const QRegularExpression form("\r\nConnectionString=Provider=MSDASQL.1;Persist Security Info=False;"
                                  "Extended Properties=\"(.*)\"\r\n");
    QString odbc = form.match(text).captured(1);
    return odbc.replace("\"\"", "\"").replace("{PostgreSQL Unicode(x64)}", "{PostgreSQL Unicode}");
}

} // namespace

class tst_sharedLibrary : public folderTest
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        // The server may run as a user of its own.
        QVERIFY(m_server.isValid());
        QVERIFY(QFile::setPermissions(m_server.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                           | QFile::ExeGroup | QFile::ExeOther));
        const ended started = run("sh", {source("tests/store/postgres.sh"), "start", socket()});
        QVERIFY2(started.code == 0, qPrintable(started.err));
        store::connection owner;
        QVERIFY2(openAs("owner", &owner), qPrintable(owner.fault()));
        QVERIFY2(store::makeTables(owner), qPrintable(owner.fault()));
        for (const char *sql : {"grant kivzp_reader to reader, guarded", "grant kivzp_editor to editor",
                                "grant kivzp_administrator to admin", "create role stranger login"})
            QVERIFY2(owner.run(sql), qPrintable(owner.fault()));
    }

    void cleanupTestCase() { QCOMPARE(run("sh", {source("tests/store/postgres.sh"), "remove", socket()}).code, 0); }

    void init() override
    {
        folderTest::init();
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_known = store::base();
        m_owner = std::make_unique<store::connection>();
        m_reader = std::make_unique<store::connection>();
        QVERIFY2(openAs("owner", m_owner.get()), qPrintable(m_owner->fault()));
        QVERIFY2(openAs("reader", m_reader.get()), qPrintable(m_reader->fault()));
    }

    void cleanup() override
    {
        m_reader.reset();
        m_owner.reset();
        m_database.reset();
        folderTest::cleanup();
    }

    // Every value of the file export, by the reader and through ODBC by what the description says.
    void viewsShowTheRecords()
    {
        fillNasty(*m_database);
        publish("Magazyn ż");
        const QString path = m_folder->path("library.DbLib");
        const auto made = sharedLibrary::exportShared(*m_owner, at("owner"), "Magazyn ż", "reader", path);
        QCOMPARE(made.fault, QString());
        QCOMPARE(made.views.schema, QString("cad_Magazyn z"));
        const auto [columns, tables] = exported(*m_database, m_folder->path("x.sqlite"));
        QCOMPARE(columns.size(), 23);
        QCOMPARE(made.views.columns, columns);
        QCOMPARE(made.views.views.size(), tables.size());
        QCOMPARE(tables.size(), int(m_database->groups.size()) - 1);
        QStringList groups;
        for (const sharedLibrary::view &view : made.views.views)
            groups.append(view.group);
        const QStringList usual = exportNames::sqlNames(groups);

        const QString odbc = odbcOf(read(path));
        QVERIFY(odbc.contains("Uid=reader;"));
        QSet<QString> names;
        for (int i = 0; i < tables.size(); ++i) {
            const sharedLibrary::view &view = made.views.views[i];
            QVERIFY(view.name.toUtf8().size() <= sharedLibrary::longestName);
            QVERIFY2(!names.contains(view.name.toCaseFolded()), qPrintable(view.name));
            names.insert(view.name.toCaseFolded());
            if (view.group.size() < 50)
                QCOMPARE(view.name, usual[i]);
            QCOMPARE(view.materials, tables[i].size());
            const QString from = " from " + nameIn(made.views.schema, view.name);
            QCOMPARE(ask(*m_reader, "select *" + from), tables[i]);
            QCOMPARE(askOdbc(odbc, "select *, chr(30) as ends" + from), tables[i]);
        }
        // The schema is looked in where a query does not say it, and names of columns are those.
        QCOMPARE(askOdbc(odbc, "select \"KTM\", chr(30) as ends from \"Uklady\" where \"Group\" = 'Układy' and "
                               "\"Other parameters\" like '%+1'"),
                 table{{tables[3][1][0]}});
    }

    // What the file tells of tables and columns is there, and nothing that is secret.
    void description()
    {
        for (const char *name : {"A.b", "Układy", "with|bar", "with]bracket", "with\"quote", "two\nlines"})
            material(*m_database, name, "K");
        publish("described");
        const QString path = m_folder->path("d.DbLib");
        const auto made = sharedLibrary::exportShared(*m_owner, at("owner"), "described", "kivzp_cad", path);
        QCOMPARE(made.fault, QString());
        const QString text = QString::fromUtf8(read(path));
        const auto captured = [&text](const char *form) {
            QStringList all;
            for (auto found = QRegularExpression(form).globalMatch(text); found.hasNext();)
                all.append(found.next().captured(1));
            return all;
        };
        QCOMPARE(captured("\r\nTableName=(.*)\r\n"), QStringList({"A.b", "Uklady"}));
        QCOMPARE(captured("\r\nSchemaName=(.*)\r\n"), QStringList({"cad_described", "cad_described"}));
        QCOMPARE(captured("\r\nUserWhereText=(.*)\r\n"), QStringList({"\"KTM\" = '{KTM}'", "\"KTM\" = '{KTM}'"}));
        QCOMPARE(captured("TableNameOnly=Uklady\\|FieldNameOnly=([^|]*)"), made.views.columns);
        QCOMPARE(captured("TableNameOnly=Uklady\\|.*ParameterName=\\[([^|]*)\\]\\|").join(','),
                 QString("Description,Library Ref,Footprint Ref,Footprint Ref 2,Footprint Ref 3,Footprint Ref 4,"
                         "Footprint Ref 5,Footprint Ref 6"));
        for (const char *line : {"LeftQuote=\"", "RightQuote=\"", "UseTableSchemaName=1", "DatabasePathRelative=0",
                                 "LibraryDatabasePath="})
            QVERIFY2(text.contains(QString("\r\n") + line + "\r\n"), line);
        QVERIFY(!text.contains("pwd", Qt::CaseInsensitive) && !text.contains("password", Qt::CaseInsensitive));
        QCOMPARE(made.notes.filter("Name changed").size(), 0);
        QCOMPARE(made.notes.filter("Left out of the library description").size(), 4);
        QCOMPARE(made.notes.filter("Read on this computer only").size(), 1);
    }

    void connectionText_data()
    {
        const rows<QString, QString> row;
        const QString end = "MaxVarcharSize=4000;ConnSettings=set%20search_path%20to%20%22cad_x%22;";
        row("usual", "postgresql://me@srv.firma.pl/kivzp",
            "Server=srv.firma.pl;Port=5432;Database=kivzp;Uid=kivzp_cad;SSLmode=prefer;" + end);
        row("another port, encrypted", "postgresql://srv:5433/kivzp?connect_timeout=9&sslmode=verify-full",
            "Server=srv;Port=5433;Database=kivzp;Uid=kivzp_cad;SSLmode=verify-full;" + end);
        row("no host", "postgresql:///kivzp",
            "Server=localhost;Port=5432;Database=kivzp;Uid=kivzp_cad;SSLmode=prefer;" + end);
        row("a number", "postgresql:///kivzp?hostaddr=10.0.0.7",
            "Server=10.0.0.7;Port=5432;Database=kivzp;Uid=kivzp_cad;SSLmode=prefer;" + end);
        row("what the driver parts at", "postgresql://h/a;b%7Dc",
            "Server=h;Port=5432;Database={a;b}}c};Uid=kivzp_cad;SSLmode=prefer;" + end);
    }

    void connectionText()
    {
        const auto [address, expected] = fetch<QString, QString>();
        QString fault;
        const auto parsed = store::address::parse(address, &fault);
        QVERIFY2(parsed.has_value(), qPrintable(fault));
        libraryDescription::server server = sharedLibrary::serverOf(*parsed);
        server.login = "kivzp_cad";
        server.schema = "cad_x";
        const QByteArray text = libraryDescription::text(server, {"V"}, {{"KTM", "KTM"}}, 0);
        QCOMPARE(odbcOf(text), "Driver={PostgreSQL Unicode};" + expected);
    }

    // The driver finds the password where libpq does.
    void passwordIsNotInTheFile()
    {
        material(*m_database, "G", "K1");
        publish("guarded");
        const QString path = m_folder->path("g.DbLib");
        QCOMPARE(sharedLibrary::exportShared(*m_owner, at("owner"), "guarded", "guarded", path).fault, QString());
        const QString odbc = odbcOf(read(path));
        const QString query = "select \"KTM\", chr(30) as ends from \"cad_guarded\".\"G\"";
        const QString known = m_folder->write("pgpass", QString(socket() + ":5432:kivzp:guarded:Zażółć 7\n").toUtf8());
        QFile::setPermissions(known, QFile::ReadOwner | QFile::WriteOwner);
        QCOMPARE(askOdbc(odbc, query, {"PGPASSFILE=" + known}), table{{"K1"}});
        QVERIFY(askOdbc(odbc, query, {"PGPASSFILE=" + m_folder->path("none")}).value(0).value(0).contains("password"));
    }

    void rights_data()
    {
        const rows<QString, QString, QString> row;
        const QString view = "\"cad_rights\".\"G\"";
        row("reads", "reader", "select count(*) from " + view, "1");
        row("editor reads", "editor", "select count(*) from " + view, "1");
        row("stranger", "stranger", "select count(*) from " + view, "permission denied for schema");
        row("puts in", "reader", "insert into " + view + " default values", "permission denied|cannot insert");
        row("changes", "reader", "update " + view + " set \"KTM\" = 'x'", "permission denied|cannot update");
        row("deletes", "reader", "delete from " + view, "permission denied|cannot delete");
        row("drops", "reader", "drop view " + view, "must be owner");
        row("editor drops", "editor", "drop view " + view, "must be owner");
        row("makes", "reader", "create table \"cad_rights\".t(a int)", "permission denied for schema");
        row("changes below", "reader", "update kivzp.material set d_ktm = 'x'", "permission denied for table");
        row("another schema", "reader", "select * from private.t", "permission denied for schema");
    }

    void rights()
    {
        const auto [login, sql, expected] = fetch<QString, QString, QString>();
        if (ask(*m_owner, "select 1 from pg_namespace where nspname = 'cad_rights'").isEmpty()) {
            material(*m_database, "G", "K1");
            publish("rights");
            QCOMPARE(sharedLibrary::makeViews(*m_owner, "rights").fault, QString());
            QVERIFY(m_owner->run("create schema private") && m_owner->run("create table private.t(a int)"));
        }
        store::connection as;
        QVERIFY(openAs(login, &as));
        const QString answer = ask(as, sql).value(0).value(0);
        QVERIFY2(QRegularExpression(expected).match(answer).hasMatch(), qPrintable(answer));
    }

    void whoMayMake()
    {
        material(*m_database, "G", "K1");
        publish("makers");
        QVERIFY(m_owner->run("revoke create on database kivzp from kivzp_administrator"));
        const auto faultAs = [this](const char *login, const char *document) {
            store::connection as;
            return openAs(login, &as) ? sharedLibrary::makeViews(as, document).fault : as.fault();
        };
        for (const char *login : {"reader", "editor"}) {
            const QString fault = faultAs(login, "makers");
            QVERIFY2(fault.contains("only an administrator") && fault.endsWith(QString(login) + " is none"),
                     qPrintable(fault));
        }
        QVERIFY(faultAs("stranger", "makers").contains("you may not read it"));
        QVERIFY(faultAs("admin", "makers").endsWith(": grant create on database \"kivzp\" to kivzp_administrator"));
        QVERIFY(faultAs("owner", "no such").endsWith("no material database no such"));
        QCOMPARE(ask(*m_owner, "select nspname from pg_namespace where nspname like 'cad_makers%'"), table());
        // Once the owner has made it, an administrator makes it again; and with the right also first.
        QCOMPARE(faultAs("owner", "makers"), QString());
        QCOMPARE(faultAs("admin", "makers"), QString());
        QCOMPARE(ask(*m_reader, "select \"KTM\" from \"cad_makers\".\"G\""), table{{"K1"}});
        QVERIFY(m_owner->run("grant create on database kivzp to kivzp_administrator"));
        publish("by admin");
        QCOMPARE(faultAs("admin", "by admin"), QString());
        QCOMPARE(faultAs("owner", "by admin"), QString());
        QVERIFY(faultAs("editor", "by admin").contains("only an administrator"));
        QCOMPARE(ask(*m_reader, "select \"KTM\" from \"cad_by admin\".\"G\""), table{{"K1"}});

        // They read with rights that no single login takes with it.
        QCOMPARE(
            ask(*m_owner, "select distinct viewowner from pg_views where schemaname in ('cad_makers', 'cad_by admin')"),
            table{{"kivzp_administrator"}});

        store::connection file;
        QString fault;
        QVERIFY(file.open(*store::address::parse("sqlite:" + m_folder->path("store"), &fault)));
        QVERIFY(sharedLibrary::makeViews(file, "makers").fault.contains("PostgreSQL"));
    }

    // No document's library takes another one's schema, nor one that somebody made.
    void schemas()
    {
        material(*m_database, "G", "K1");
        const QStringList names{"Łódź", "Lodz", "LODZ", "it's \"q\"", QString(99, 'n') + "A", QString(99, 'n') + "B",
                                "taken"};
        QVERIFY(m_owner->run("create schema cad_taken") && m_owner->run("create table cad_taken.t(a int)"));
        QStringList schemas;
        for (const QString &name : names) {
            publish(name);
            m_database->groups[0]->items[0]->d_ktm += "x";
            const auto made = sharedLibrary::makeViews(*m_owner, name);
            QCOMPARE(made.fault, QString());
            schemas.append(made.schema);
        }
        QCOMPARE(schemas.mid(0, 4), QStringList({"cad_Lodz", "cad_Lodz_" + schemas[1].right(4),
                                                 "cad_LODZ_" + schemas[2].right(4), "cad_its \"q\""}));
        QCOMPARE(schemas.removeDuplicates(), 0);
        QVERIFY(schemas.last().startsWith("cad_taken_"));
        for (int i = names.size(); i-- > 0;) {
            QCOMPARE(sharedLibrary::makeViews(*m_owner, names[i]).schema, schemas[i]);
            QCOMPARE(ask(*m_reader, "select \"KTM\" from " + nameIn(schemas[i], "G")), table{{"K1" + QString(i, 'x')}});
        }
        QCOMPARE(ask(*m_owner, "select count(*) from cad_taken.t"), table{{"0"}});
    }

    // What others send is seen at once; groups come and go when the library is made again.
    void viewsLive()
    {
        material(*m_database, "R", "K1")->d_price = "1";
        material(*m_database, "R", "K2")->d_price = "2";
        material(*m_database, "C", "K3");
        m_database->groups[0]->cpv = "31711130-3";
        publish("living");
        QCOMPARE(sharedLibrary::makeViews(*m_owner, "living").fault, QString());
        const QString resistors = "select \"KTM\", \"Group\", \"Price\" from \"cad_living\".\"R\"";
        QCOMPARE(ask(*m_reader, resistors), (table{{"K1", "R", "1"}, {"K2", "R", "2"}}));
        auto &groups = m_database->groups;
        groups[0]->items[0]->d_price = "1.50";
        std::swap(groups[0]->items[0], groups[0]->items[1]);
        groups[0]->name = "Rez";
        material(*m_database, "Rez", "K4");
        material(*m_database, "New", "K5");
        groups[1]->items.clear();
        synchronize();
        QCOMPARE(ask(*m_reader, resistors), (table{{"K2", "Rez", "2"}, {"K1", "Rez", "1.50"}, {"K4", "Rez", ""}}));
        QCOMPARE(ask(*m_reader, "select count(*) from \"cad_living\".\"C\""), table{{"0"}});
        QVERIFY(ask(*m_reader, "select * from \"cad_living\".\"New\"").value(0).value(0).contains("does not exist"));
        QCOMPARE(namesOf(sharedLibrary::makeViews(*m_owner, "living")), QStringList({"Rez", "New"}));
        QCOMPARE(ask(*m_reader, "select count(*) from pg_views where schemaname = 'cad_living'"), table{{"2"}});
        groups.erase(groups.begin());
        synchronize();
        QCOMPARE(ask(*m_reader, "select count(*) from \"cad_living\".\"Rez\""), table{{"0"}});
        QCOMPARE(namesOf(sharedLibrary::makeViews(*m_owner, "living")), QStringList("New"));
    }

    // A placed part finds its table again whatever group comes before it.
    void namesStay()
    {
        const QString family = QString(70, 'a');
        for (const QString &name : {QString("Układy"), QString("Uklady"), QString(), family + " B"})
            material(*m_database, name, name.left(5));
        for (const char *ktm : {"K1", "K2"}) {
            m_database->groups.push_back(std::make_unique<d_groupStruct>());
            m_database->groups.back()->name = "Rez";
            m_database->groups.back()->append(std::make_unique<materialStruct>())->d_ktm = ktm;
        }
        publish("staying");
        const QStringList before = namesOf(sharedLibrary::makeViews(*m_owner, "staying"));
        QCOMPARE(before.size(), 6);
        QCOMPARE(before[0] + before[2] + before[4], QString("UkladyGroupRez"));
        QCOMPARE(namesOf(sharedLibrary::makeViews(*m_owner, "staying")), before);
        int number = 0;
        for (const QString &name : {QString("UKLADY"), QString("Group"), family + " A", QString("Ukłądy")}) {
            material(*m_database, name, QString::number(++number));
            std::rotate(m_database->groups.begin(), m_database->groups.end() - 1, m_database->groups.end());
        }
        synchronize();
        const QStringList after = namesOf(sharedLibrary::makeViews(*m_owner, "staying"));
        QCOMPARE(after.size(), 10);
        QCOMPARE(after.mid(4), before);
        for (const auto &[view, ktm] : {std::pair(0, "Układ"), {1, "Uklad"}, {4, "K1"}, {5, "K2"}})
            QCOMPARE(ask(*m_reader, "select \"KTM\" from " + nameIn("cad_staying", before[view])), table{{ktm}});
    }

    // What somebody put into the schema stays, and what hangs on a view keeps it as it was.
    void othersThings()
    {
        material(*m_database, "A", "K1");
        publish("others");
        QCOMPARE(namesOf(sharedLibrary::makeViews(*m_owner, "others")), QStringList("A"));
        QVERIFY(m_owner->run("create view \"cad_others\".\"B\" as select 1 as one"));
        material(*m_database, "B", "K2");
        synchronize();
        const QStringList names = namesOf(sharedLibrary::makeViews(*m_owner, "others"));
        QCOMPARE(names.size(), 2);
        QVERIFY(names[1].startsWith("B_"));
        QCOMPARE(ask(*m_owner, "select one from \"cad_others\".\"B\""), table{{"1"}});
        QVERIFY(m_owner->run("create view public.mine as select * from \"cad_others\".\"A\""));
        const QString fault = sharedLibrary::makeViews(*m_owner, "others").fault;
        QVERIFY2(fault.contains("other objects depend on it"), qPrintable(fault));
        QCOMPARE(ask(*m_reader, "select \"KTM\" from " + nameIn("cad_others", names[1])), table{{"K2"}});
        // The connection goes on.
        QVERIFY(m_owner->run("drop view public.mine"));
        QCOMPARE(namesOf(sharedLibrary::makeViews(*m_owner, "others")), names);
    }

    // Neither is made without the other.
    void fileOrNothing()
    {
        material(*m_database, "A", "K1");
        publish("filed");
        m_folder->write("folder.DbLib/x", "");
        m_folder->write("old.DbLib", "old");
        const auto refused =
            sharedLibrary::exportShared(*m_owner, at("owner"), "filed", "r", m_folder->path("folder.DbLib"));
        QVERIFY(!refused.isRefused && refused.fault.contains("cannot be written"));
        QCOMPARE(ask(*m_owner, "select nspname from pg_namespace where nspname = 'cad_filed'"), table());
        const auto none =
            sharedLibrary::exportShared(*m_reader, at("reader"), "filed", "r", m_folder->path("old.DbLib"));
        QVERIFY(none.isRefused && none.fault.contains("only an administrator"));
        QCOMPARE(read(m_folder->path("old.DbLib")), QByteArray("old"));
    }

private:
    QString socket() const { return m_server.filePath("s"); }
    store::address at(const QString &login) const
    {
        QString fault;
        return *store::address::parse("postgresql://" + login + "@/kivzp?host=" + socket(), &fault);
    }
    bool openAs(const QString &login, store::connection *to) const { return to->open(at(login)); }

    static QStringList namesOf(const sharedLibrary::library &made)
    {
        QStringList names;
        if (!made.fault.isEmpty())
            names.append("failed: " + made.fault);
        for (const sharedLibrary::view &each : made.views)
            names.append(each.name);
        return names;
    }

    void publish(const QString &name)
    {
        m_known = store::base();
        const store::syncResult result = store::publish(*m_owner, *m_database, name, "tester", &m_known);
        QVERIFY2(result.done, qPrintable(result.fault));
        store::apply(result, m_database.get(), &m_known);
    }

    void synchronize()
    {
        const auto none = [](std::vector<mergeRow> &) { return false; };
        const store::syncResult result = store::synchronize(*m_owner, *m_database, m_known, "tester", none);
        QVERIFY2(result.done, qPrintable(result.fault));
        store::apply(result, m_database.get(), &m_known);
    }

    // Rows of a query whose last column is chr(30), as ODBC gives them; a fault as one of its own.
    table askOdbc(const QString &connection, const QString &sql, const QStringList &environment = {}) const
    {
        const QString input = m_folder->write("query", sql.toUtf8() + "\n");
        const ended done = run("isql", {"-k", connection, "-b", "-v", "-L100000", "-x0x1f"}, environment, {}, input);
        if (done.code != 0 || !done.err.isEmpty() || !done.out.endsWith("\x1e\n"))
            return {{done.out + done.err}};
        table rows;
        for (const QString &row : done.out.split("\x1f\x1e\n", Qt::SkipEmptyParts))
            rows.append(row.split('\x1f'));
        return rows;
    }

    QTemporaryDir m_server;
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    store::base m_known;
    std::unique_ptr<store::connection> m_owner;
    std::unique_ptr<store::connection> m_reader;
};

KIVZP_TEST(tst_sharedLibrary)
#include "tst_sharedLibrary.moc"

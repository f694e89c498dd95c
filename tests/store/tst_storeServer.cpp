// The shared store on a server of its own: what each login may do, what is left of a sync whose server
// dies, who waits for whom, and that nothing is otherwise than in a file.
#include "testSupport.h"

#include "data/programData.h"
#include "store/storeFiles.h"
#include "store/storeHistory.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace testSupport;

namespace {

// The next sync's server dies there.
enum class moment
{
    never,
    before,   // nothing was asked yet
    waiting,  // for somebody else's lock
    fetching, // some of what others changed is there
    asking,   // the user is asked about a conflict
    sending   // some of it is written
};

// Who has a copy of the database.
struct person
{
    store::connection with;
    kiv_mat_databaseStruct database;
    store::base known;
    bool takesTheirs = false;
    int asked = 0; // conflicts of the last time
    // Called with where the sync is; false cancels it.
    std::function<bool(moment)> passes;

    bool open(const QString &address, const QString &password = {})
    {
        QString fault;
        const auto to = store::address::parse(address, &fault);
        return to && with.open(*to, password);
    }

    // Takes the database "db"; the reason why not.
    QString clone()
    {
        QString fault;
        const auto cloned = store::clone(with, fileKinds::database, "db", &known, &fault);
        if (cloned)
            database.groups = std::move(static_cast<kiv_mat_databaseStruct &>(*cloned).groups);
        return fault;
    }

    store::syncResult publish(const QString &name = "db")
    {
        store::syncResult result = store::publish(with, database, name, "Zażółć 'O\\", &known);
        if (result.done)
            store::apply(result, &database, &known);
        return result;
    }

    store::syncResult sync(bool applies = true)
    {
        asked = 0;
        const auto settle = [this](std::vector<mergeRow> &rows) {
            asked = int(rows.size());
            for (mergeRow &row : rows)
                row.takeTheirs = takesTheirs;
            return !passes || passes(moment::asking);
        };
        const auto progress = [this](qint64, qint64 total) {
            return !passes || passes(total == 0 ? moment::fetching : moment::sending);
        };
        store::syncResult result = store::synchronize(with, database, known, "Zażółć 'O\\", settle, progress);
        if (result.done && applies)
            store::apply(result, &database, &known);
        return result;
    }

    d_groupStruct *group(const QString &name)
    {
        for (const auto &one : database.groups)
            if (one->name == name)
                return one.get();
        database.groups.push_back(std::make_unique<d_groupStruct>());
        database.groups.back()->name = name;
        return database.groups.back().get();
    }

    materialStruct *add(const QString &ktm, const QString &groupName)
    {
        auto made = std::make_unique<materialStruct>();
        made->d_ktm = ktm;
        materialStruct *material = made.get();
        group(groupName)->append(std::move(made));
        return material;
    }

    std::unique_ptr<materialStruct> take(const QString &ktm)
    {
        for (const auto &one : database.groups)
            for (auto it = one->items.begin(); it != one->items.end(); ++it)
                if ((*it)->d_ktm == ktm) {
                    std::unique_ptr<materialStruct> taken = std::move(*it);
                    one->items.erase(it);
                    return taken;
                }
        return nullptr;
    }

    void move(const QString &ktm, const QString &groupName) { group(groupName)->append(take(ktm)); }

    materialStruct &at(const QString &ktm)
    {
        for (const auto &one : database.groups)
            for (const auto &material : one->items)
                if (material->d_ktm == ktm)
                    return *material;
        // What is compared with it tells.
        static std::unique_ptr<materialStruct> none;
        none = std::make_unique<materialStruct>();
        return *none;
    }

    // All of the document, byte for byte.
    QByteArray content() const
    {
        QByteArray all;
        for (const auto &one : database.groups)
            all += contentOf(*one) + '\n';
        return all;
    }

    // What is known of it, as it would be written.
    QStringList facts() const
    {
        QStringList all{known.store, known.document, known.program, QString::number(known.release)};
        for (const store::baseRow &row : known.rows)
            all.append(QString("%1 %2 %3 %4 %5 %6 %7")
                           .arg(row.table)
                           .arg(row.id)
                           .arg(row.below)
                           .arg(row.place)
                           .arg(row.release)
                           .arg(row.hash)
                           .arg(row.key));
        return all;
    }

    // "G1(A B) G2()".
    QString outline() const
    {
        QStringList groups;
        for (const auto &one : database.groups) {
            QStringList inside;
            for (const auto &material : one->items)
                inside.append(material->d_ktm);
            groups.append(one->name + "(" + inside.join(" ") + ")");
        }
        return groups.join(" ");
    }
};

} // namespace

Q_DECLARE_METATYPE(moment)

class tst_storeServer : public folderTest
{
    Q_OBJECT

    // A socket's path is short.
    QTemporaryDir m_place{QDir::tempPath() + "/pg-XXXXXX"};
    std::unique_ptr<store::connection> m_owner;

    QString socket() const { return m_place.filePath("s"); }
    QString address(const QString &login) const { return "postgresql://" + login + "@/kivzp?host=" + socket(); }

    bool act(const char *what) const
    {
        const ended done = run("sh", {source("tests/store/postgres.sh"), what, socket()});
        if (done.code != 0)
            qWarning("%s: %s", what, qPrintable(done.err));
        return done.code == 0;
    }

    void openOwner()
    {
        m_owner = std::make_unique<store::connection>();
        QString fault;
        QVERIFY2(m_owner->open(*store::address::parse(address("owner"), &fault)), qPrintable(m_owner->fault()));
    }

    void killServer()
    {
        m_owner.reset();
        QVERIFY(act("kill"));
        // Where nobody waits for the killed process it stays in the list of processes for a while, and
        // would be taken for a server that runs.
        for (const char *mark : {"/data/postmaster.pid", "/.s.PGSQL.5432", "/.s.PGSQL.5432.lock"})
            QFile::remove(socket() + mark);
    }

    void startServer()
    {
        // The children of a killed one go when they notice.
        bool isStarted = act("start");
        for (int tries = 0; !isStarted && tries < 20; ++tries)
            isStarted = act("start");
        QVERIFY(isStarted);
        openOwner();
    }

    // The store's rows, table by table: their number and a sum of all that is in them.
    QStringList rowsOf() const
    {
        QStringList all;
        auto names = m_owner->ask("select tablename from pg_tables where schemaname = 'kivzp' order by 1");
        while (names && names->next())
            all.append(names->value(0).toString());
        for (QString &one : all)
            one += ' '
                   + m_owner
                         ->askOne("select count(*) || ' ' || coalesce(md5(string_agg(t::text, '' order by t::text)), "
                                  "'') from "
                                  + store::quoted(one) + " t")
                         .toString();
        return all;
    }

    int countOf(const QString &rest) const { return m_owner->askOne("select count(*) from " + rest).toInt(); }

    // Each number from 1 to the last one stands once in the list of releases, and every line of the
    // history belongs to one.
    void releasesAreWhole() const
    {
        QStringList numbers;
        auto all = m_owner->ask("select number from release order by number");
        while (all && all->next())
            numbers.append(all->value(0).toString());
        QStringList expected;
        for (int i = 1; i <= m_owner->askOne("select release from about").toInt(); ++i)
            expected.append(QString::number(i));
        QVERIFY(!expected.isEmpty());
        QCOMPARE(numbers, expected);
        QCOMPARE(countOf("change where release not in (select number from release)"), 0);
        QCOMPARE(countOf("release where number not in (select release from change)"), 0);
    }

    // Two editors with "G1(A B C) G2(D)".
    void begin(person *first, person *second)
    {
        QVERIFY2(first->open(address("editor")), qPrintable(first->with.fault()));
        QVERIFY2(second->open(address("guarded"), "Zażółć 7"), qPrintable(second->with.fault()));
        for (const char *ktm : {"A", "B", "C"})
            first->add(ktm, "G1");
        first->add("D", "G2");
        const store::syncResult made = first->publish();
        QVERIFY2(made.done, qPrintable(made.fault));
        QCOMPARE(second->clone(), QString());
    }

    // What a statement is refused with; empty when it is not.
    static QString refusal(const store::connection &with, const QString &sql)
    {
        QSqlQuery query(with.database());
        return query.exec(sql) ? QString() : query.lastError().nativeErrorCode();
    }

private slots:
    void initTestCase()
    {
        QVERIFY(m_place.isValid());
        // The server may run as a user of its own.
        QVERIFY(QFile::setPermissions(m_place.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner
                                                          | QFile::ExeGroup | QFile::ExeOther));
        startServer();
        QVERIFY2(store::makeTables(*m_owner), qPrintable(m_owner->fault()));
        // What a killed server wrote is the system's already: no need to wait for the disk.
        for (const char *sql : {"alter system set fsync = off", "select pg_reload_conf()",
                                "grant kivzp_reader to reader", "grant kivzp_editor to editor, guarded",
                                "grant kivzp_administrator to admin", "create role stranger login"})
            QVERIFY2(m_owner->run(sql), qPrintable(m_owner->fault()));
    }

    void cleanupTestCase()
    {
        m_owner.reset();
        QVERIFY(act("remove"));
        QVERIFY(!QFile::exists(socket()));
    }

    // Each begins with an empty store; the logins have their roles from the first one.
    void init() override
    {
        folderTest::init();
        if (!m_owner)
            startServer();
        if (QTest::currentTestFailed())
            return;
        QVERIFY2(m_owner->run("drop schema if exists kivzp cascade"), qPrintable(m_owner->fault()));
        QVERIFY2(store::makeTables(*m_owner), qPrintable(m_owner->fault()));
        QVERIFY2(store::makeTables(*m_owner), qPrintable(m_owner->fault()));
    }

    void reader()
    {
        person anna;
        person other;
        begin(&anna, &other);
        person reads;
        QVERIFY(reads.open(address("reader")));
        QVERIFY(!store::mayWrite(reads.with));
        QVERIFY(store::mayWrite(anna.with));
        QCOMPARE(reads.clone(), QString());
        QVERIFY(!reads.known.mayWrite);
        QCOMPARE(reads.content(), anna.content());

        anna.at("A").d_price = "2";
        anna.take("B");
        QVERIFY(anna.sync().done);
        store::syncResult result = reads.sync();
        QVERIFY2(result.done, qPrintable(result.fault));
        QVERIFY(!result.mayWrite);
        QCOMPARE(result.fetched, 2);
        QCOMPARE(reads.content(), anna.content());
        QCOMPARE(store::changesSince(reads.with, reads.known), 0);

        // An own change is refused, whatever others did meanwhile, and also a conflict's.
        const QStringList rows = rowsOf();
        for (const bool isConflict : {false, true}) {
            if (isConflict) {
                anna.at("A").d_price = "3";
                QVERIFY(anna.sync().done);
            }
            const QStringList before = isConflict ? rowsOf() : rows;
            reads.at("A").d_price = "9";
            const QByteArray content = reads.content();
            const QStringList facts = reads.facts();
            result = reads.sync();
            QVERIFY(!result.done && !result.cancelled);
            QVERIFY2(result.fault.contains("you may read the shared store"), qPrintable(result.fault));
            QCOMPARE(reads.content(), content);
            QCOMPARE(reads.facts(), facts);
            QCOMPARE(rowsOf(), before);
        }
        reads.takesTheirs = true;
        QVERIFY(reads.sync().done);
        QCOMPARE(reads.content(), anna.content());

        person puts;
        QVERIFY(puts.open(address("reader")));
        puts.add("X", "G1");
        const store::syncResult put = puts.publish("mine");
        QVERIFY(!put.done && !put.fault.isEmpty());
        QCOMPARE(countOf("document"), 1);
    }

    // The rights that no program of ours would try.
    void rights_data()
    {
        const rows<QString, QString, bool> row;
        const QString release = "insert into release (number, author, program%1) values (99, 'a', 'p'%2)";
        const QString change = "insert into change (release, document, row_table, row_id, what, based_on) values (1, "
                               "'d', 'material', 'r', 'added', 0)";
        for (const QString login : {"reader", "editor", "admin"}) {
            const auto refused = [&](const char *name, const QString &sql) {
                row(qPrintable(login + ": " + name), login, sql, false);
            };
            refused("changes the history", "update change set before = 'x'");
            refused("moves the history", "update change set row_id = 'x'");
            refused("removes history", "delete from change");
            refused("empties the history", "truncate change");
            refused("renames an author", "update release set author = 'x'");
            refused("changes a login", "update release set login = 'x'");
            refused("removes a release", "delete from release");
            refused("another login", release.arg(", login", ", 'boss'"));
            refused("another time", release.arg(", at", ", '2000-01-01T00:00:00Z'"));
            refused("removes a material", "delete from material");
            refused("removes a group", "delete from material_group");
            refused("renames a document", "update document set name = 'x'");
            refused("another store", "update about set id = 'x'");
            refused("another version", "update about set version = 2");
            refused("no store", "delete from about");
            refused("a second store", "insert into about (version, id, release) values (1, 'x', 0)");
            refused("drops a table", "drop table material");
            refused("drops the history", "drop table change cascade");
            refused("drops an index", "drop index change_row");
            refused("drops the schema", "drop schema kivzp cascade");
            refused("a column more", "alter table material add x text");
            refused("a column less", "alter table change drop before");
            refused("another default", "alter table release alter login set default 'boss'");
            refused("a table more", "create table kivzp.more (x text)");
            refused("a trigger", "create trigger t before insert on change execute function "
                                 "suppress_redundant_updates_trigger()");
            refused("a role more", "grant kivzp_administrator to reader");
        }
        for (const QString login : {"reader", "editor"})
            row(qPrintable(login + ": removes a document"), login, "delete from document", false);
        row("reader: a release", "reader", release.arg("", ""), false);
        row("reader: history", "reader", change, false);
        row("reader: a text", "reader", "update material set d_price = '9'", false);
        row("reader: a number", "reader", "update about set release = release + 1", false);
        row("reader: locks", "reader", "select release from about for update", false);
        // So that the others are not refused for another reason.
        row("editor: a release", "editor", release.arg("", ""), true);
        row("editor: history", "editor", change, true);
        row("editor: a text", "editor", "update material set d_price = '9'", true);
        row("admin: removes a document", "admin", "delete from document", true);
    }

    void rights()
    {
        const auto [login, sql, isAllowed] = fetch<QString, QString, bool>();
        person anna;
        person other;
        begin(&anna, &other);
        const QStringList before = rowsOf();
        person tries;
        QVERIFY(tries.open(address(login)));
        const QString notAllowed = "42501";
        QCOMPARE(refusal(tries.with, sql), isAllowed ? QString() : notAllowed);
        QCOMPARE(rowsOf() == before, !isAllowed);
    }

    // The server says who it was, whatever the program tells.
    void loginOfTheServer()
    {
        person anna;
        person guarded;
        begin(&anna, &guarded);
        // Being in a role for the moment is no other login.
        QVERIFY(anna.with.run("set role kivzp_editor"));
        anna.at("A").d_price = "2";
        QVERIFY(anna.sync().done);
        guarded.at("B").d_price = "2";
        QVERIFY(guarded.sync().done);
        QStringList all;
        auto releases = m_owner->ask("select author, login from release order by number");
        while (releases && releases->next())
            all.append(releases->value(0).toString() + "|" + releases->value(1).toString());
        QCOMPARE(all, (QStringList{"Zażółć 'O\\|editor", "Zażółć 'O\\|editor", "Zażółć 'O\\|guarded"}));
        const auto history = store::historyOf(anna.with, "B");
        QCOMPARE(int(history.size()), 1);
        QCOMPARE(history[0].lines.front().login, QString("guarded"));
    }

    // Who may log in and no more is told so, whatever is tried.
    void stranger()
    {
        person anna;
        person other;
        begin(&anna, &other);
        person stranger;
        QVERIFY2(stranger.open(address("stranger")), qPrintable(stranger.with.fault()));
        QVERIFY(!store::mayWrite(stranger.with));
        const QString text = "there is no shared store yet, or you may not read it: ";
        const QString cloned = stranger.clone();
        QVERIFY2(cloned.startsWith(text) && cloned.size() > text.size(), qPrintable(cloned));
        stranger.known = anna.known;
        const store::syncResult synced = stranger.sync();
        QVERIFY2(!synced.done && synced.fault.startsWith(text), qPrintable(synced.fault));
        stranger.add("X", "G");
        const store::syncResult put = stranger.publish("mine");
        QVERIFY2(!put.done && put.fault.startsWith(text), qPrintable(put.fault));
        QVERIFY(store::documentsIn(stranger.with).empty());
        QVERIFY(!stranger.with.fault().isEmpty());
        // A store that was not made yet.
        QVERIFY(m_owner->run("drop schema kivzp cascade"));
        const QString none = anna.clone();
        QVERIFY2(none.startsWith(text), qPrintable(none));
    }

    void password_data()
    {
        const rows<QString, QByteArray, bool> row; // typed, in the file, whether it is right
        row("none", "", "", false);
        row("wrong", "Tajne-1", "", false);
        row("wrong, with signs of its own", "Tajne-1' host='/nowhere\\", "", false);
        row("nearly", "Zażółć 7 ", "", false);
        row("right", "Zażółć 7", "", true);
        row("from the file", "", "*:*:*:editor:x\n*:*:kivzp:guarded:Zażółć 7\n", true);
        row("wrong in the file", "", "*:*:*:guarded:Tajne-1\n", false);
        row("typed over the file's", "Zażółć 7", "*:*:*:guarded:Tajne-1\n", true);
    }

    void password()
    {
        const auto [typed, file, isRight] = fetch<QString, QByteArray, bool>();
        // Without one libpq would look into the user's own.
        const QString path = m_folder->write("passwords", file);
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
        qputenv("PGPASSFILE", QFile::encodeName(path));
        person guarded;
        const bool isOpen = guarded.open(address("guarded"), typed);
        qunsetenv("PGPASSFILE");
        QVERIFY2(isOpen == isRight, qPrintable(guarded.with.fault()));
        QCOMPARE(guarded.with.isOpen(), isRight);
        QCOMPARE(guarded.with.wantsPassword(), !isRight);
        QCOMPARE(guarded.with.fault().isEmpty(), isRight);
        QVERIFY2(!guarded.with.fault().contains("Tajne") && !guarded.with.fault().contains("Zażółć"),
                 qPrintable(guarded.with.fault()));
        // Once more with the right one, as after the question.
        QVERIFY2(guarded.open(address("guarded"), "Zażółć 7"), qPrintable(guarded.with.fault()));
        QVERIFY(!guarded.with.wantsPassword() && guarded.with.fault().isEmpty());
        QVERIFY(store::mayWrite(guarded.with));
    }

    // Nobody is asked for a password where none would help.
    void notReached()
    {
        person lost;
        QVERIFY(!lost.open("postgresql://editor@/kivzp?host=" + m_folder->path()));
        QVERIFY(!lost.with.fault().isEmpty() && !lost.with.wantsPassword());
        QVERIFY(!lost.open("postgresql://editor@/none?host=" + socket()));
        QVERIFY2(lost.with.fault().contains("none") && !lost.with.wantsPassword(), qPrintable(lost.with.fault()));
        QVERIFY(!lost.with.isOpen());
    }

    // The server dies in the middle: nothing of it is in the store, nothing has changed here, and the
    // same sync goes well with the server that is started again.
    void killed_data()
    {
        const rows<moment, bool> row; // whether it dies, or the user cancels there
        row("before", moment::before, true);
        row("waiting for another writer", moment::waiting, true);
        row("fetching", moment::fetching, true);
        row("asking", moment::asking, true);
        row("sending", moment::sending, true);
        row("cancelled fetching", moment::fetching, false);
        row("cancelled asking", moment::asking, false);
        row("cancelled sending", moment::sending, false);
        row("cancelled waiting", moment::waiting, false);
    }

    void killed()
    {
        const auto row = fetch<moment, bool>();
        // No bindings: a lambda may not hold one.
        const moment where = std::get<0>(row);
        const bool dies = std::get<1>(row);
        person anna;
        QVERIFY(anna.open(address("editor")));
        constexpr int count = 600;
        for (int i = 0; i < count; ++i)
            anna.add(QString("K%1").arg(i), QString("G%1").arg(i % 3))->d_price = "1";
        QVERIFY(anna.publish().done);
        person me;
        QVERIFY(me.open(address("editor")));
        QCOMPARE(me.clone(), QString());
        for (int i = 0; i < count; i += 2)
            anna.at(QString("K%1").arg(i)).d_value = "theirs";
        QVERIFY(anna.sync().done);
        for (int i = 0; i < count; i += 3)
            me.at(QString("K%1").arg(i)).d_price = "2";
        me.at("K0").d_value = "mine";
        me.take("K1");
        me.add("New", "G9");

        const QStringList stored = rowsOf();
        const QByteArray content = me.content();
        const QStringList facts = me.facts();
        int times = 0;
        const auto happens = [&] {
            if (++times == 1 && dies)
                killServer();
            return dies;
        };
        me.passes = [&](moment now) { return now != where || happens(); };
        store::connection holds;
        if (where == moment::waiting) {
            QString fault;
            QVERIFY(holds.open(*store::address::parse(address("admin"), &fault)));
            QVERIFY(holds.begin(true));
            me.with.setWaiting(happens);
        }
        if (where == moment::before)
            happens();
        store::syncResult result = me.sync();
        QVERIFY(times > 0);
        QVERIFY(!result.done);
        QCOMPARE(result.cancelled, !dies);
        QCOMPARE(result.fault.isEmpty(), !dies);
        QCOMPARE(me.content(), content);
        QCOMPARE(me.facts(), facts);
        holds.close();

        me.passes = {};
        me.with.setWaiting({});
        if (dies) {
            startServer();
            if (QTest::currentTestFailed())
                return;
            QVERIFY2(me.open(address("editor")), qPrintable(me.with.fault()));
            QVERIFY2(anna.open(address("editor")), qPrintable(anna.with.fault()));
        }
        QCOMPARE(rowsOf(), stored);
        result = me.sync();
        QVERIFY2(result.done, qPrintable(result.fault));
        QCOMPARE(me.asked, 1);
        QCOMPARE(result.fetched, count / 2);
        QCOMPARE(me.at("K0").d_value, QString("mine"));
        QCOMPARE(countOf("material where d_price = '2' and row_gone = 0"), count / 3);
        QCOMPARE(countOf("material where d_value = 'theirs'"), count / 2 - 1);
        QCOMPARE(countOf("material where row_gone = 1"), 1);
        QCOMPARE(countOf("material"), count + 1);
        releasesAreWhole();
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.content(), me.content());
    }

    // The store has taken it, and what comes of it was not put into the document: sent once more,
    // nothing is there twice.
    void killedAfterwards()
    {
        person anna;
        person me;
        begin(&anna, &me);
        anna.at("B").d_value = "7";
        anna.at("A").d_value = "8";
        QVERIFY(anna.sync().done);
        const QByteArray before = me.content();
        me.at("A").d_price = "2";
        me.at("C").d_ktm = "C2";
        me.take("D");
        me.add("E", "G3")->d_name = "new";
        const QByteArray content = me.content();
        const store::syncResult lost = me.sync(false);
        QVERIFY2(lost.done, qPrintable(lost.fault));
        QVERIFY(content != before && me.content() == content);
        const QStringList stored = rowsOf();
        killServer();
        startServer();
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(rowsOf(), stored);
        QVERIFY(me.open(address("editor")));
        const store::syncResult again = me.sync();
        QVERIFY2(again.done, qPrintable(again.fault));
        QCOMPARE(me.asked, 0);
        QCOMPARE(again.sent, 0);
        QCOMPARE(rowsOf(), stored);
        QCOMPARE(me.outline(), QString("G1(A B C2) G2() G3(E)"));
        QCOMPARE(me.at("A").d_value + me.at("A").d_price + me.at("B").d_value, QString("827"));
        QVERIFY(anna.open(address("editor")));
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.content(), me.content());
        releasesAreWhole();
    }

    // The same with files: neither is touched, and the command line goes on from there.
    void killedFile()
    {
        const QString tool = m_folder->path("kivzp-cli");
        QVERIFY(QFile::copy(KIVZP_CLI, tool));
        person anna;
        QVERIFY(anna.open(address("editor")));
        for (int i = 0; i < 200; ++i)
            anna.add(QString("K%1").arg(i), "G");
        QVERIFY(anna.publish().done);
        const QString path = m_folder->path("mine.xml");
        const QString shared = store::base::fileOf(path);
        QString fault;
        QVERIFY2(store::cloneFile(anna.with, fileKinds::database, "db", path, &fault), qPrintable(fault));
        kiv_mat_databaseStruct mine;
        QCOMPARE(loadDatabase(path, &mine), 0);
        for (const auto &material : mine.groups[0]->items)
            material->d_price = "5";
        QVERIFY(saveXml(path, &mine) >= 0);
        const QByteArray file = read(path);
        const QByteArray known = read(shared);
        const QStringList stored = rowsOf();
        configStruct config;
        bool isKilled = false;
        const auto progress = [&](qint64, qint64 total) {
            if (total == 200 && !isKilled) {
                isKilled = true;
                killServer();
            }
            return true;
        };
        const store::syncResult result = store::synchronizeFile(anna.with, path, config, {}, progress);
        QVERIFY(isKilled && !result.done && result.fault.contains("mine.xml"));
        QCOMPARE(read(path), file);
        QCOMPARE(read(shared), known);
        startServer();
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(rowsOf(), stored);
        const ended done = run(tool, {"sync", "--store", address("editor"), path});
        QVERIFY2(done.code == 0, qPrintable(done.err));
        QCOMPARE(done.out.section('\t', 1).trimmed(), QString("0\t200\t2"));
        QCOMPARE(countOf("material where d_price = '5'"), 200);
        releasesAreWhole();
    }

    // Programs of several people at once: all of it comes in, under numbers of its own.
    void programsAtOnce()
    {
        const QString tool = m_folder->path("kivzp-cli");
        QVERIFY(QFile::copy(KIVZP_CLI, tool));
        person anna;
        person other;
        begin(&anna, &other);
        constexpr int programs = 3;
        constexpr int rounds = 3;
        QStringList files;
        QString fault;
        for (int i = 0; i < programs; ++i) {
            files.append(m_folder->path(QString("copy%1.xml").arg(i)));
            QVERIFY2(store::cloneFile(anna.with, fileKinds::database, "db", files[i], &fault), qPrintable(fault));
        }
        for (int round = 0; round < rounds; ++round) {
            std::vector<std::unique_ptr<QProcess>> running;
            for (int i = 0; i < programs; ++i) {
                kiv_mat_databaseStruct mine;
                QCOMPARE(loadDatabase(files[i], &mine), 0);
                auto made = std::make_unique<materialStruct>();
                made->d_ktm = QString("N-%1-%2").arg(i).arg(round);
                mine.groups[0]->append(std::move(made));
                mine.groups[1]->items[0]->d_price = QString::number(10 * round + i);
                QVERIFY(saveXml(files[i], &mine) >= 0);
            }
            for (const QString &file : files) {
                running.push_back(std::make_unique<QProcess>());
                running.back()->start(tool, {"sync", "--mine", "--store", address("editor"), file});
            }
            for (const auto &one : running) {
                QVERIFY(one->waitForFinished(60000));
                QVERIFY2(one->exitCode() == 0, one->readAllStandardError().constData());
            }
        }
        for (const QString &file : files) {
            const ended last = run(tool, {"sync", "--store", address("editor"), file});
            QVERIFY2(last.code == 0, qPrintable(last.err));
        }
        QCOMPARE(m_owner->askOne("select release from about").toInt(), 1 + programs * rounds);
        releasesAreWhole();
        QCOMPARE(countOf("material where d_ktm like 'N-%'"), programs * rounds);
        QCOMPARE(countOf("(select d_ktm from material group by 1 having count(*) > 1) d"), 0);
        // Each price was set on the one that stood there: none was written over unseen.
        QCOMPARE(countOf("(select before, lag(after) over (order by number) as last from change where field = "
                         "'d_price') c where before <> coalesce(last, '')"),
                 0);
        QVERIFY(anna.sync().done);
        for (const QString &file : files) {
            person copy;
            QCOMPARE(loadDatabase(file, &copy.database), 0);
            QCOMPARE(copy.content(), anna.content());
        }
    }

    // Somebody else writes: one waits for the end of it, or tells that it takes too long. Who only
    // reads waits for nobody.
    void lockHeld()
    {
        person anna;
        person me;
        begin(&anna, &me);
        store::connection holds;
        QString fault;
        QVERIFY(holds.open(*store::address::parse(address("admin"), &fault)));
        QVERIFY(holds.begin(true));
        me.with.setWaiting({});
        QVERIFY(me.sync().done);
        const QStringList stored = rowsOf();

        me.at("A").d_price = "2";
        QVERIFY(me.with.run("set lock_timeout to '300ms'"));
        QElapsedTimer timer;
        timer.start();
        store::syncResult late = me.sync();
        QVERIFY(timer.elapsed() >= 300);
        QVERIFY(!late.done && !late.fault.isEmpty());
        QCOMPARE(rowsOf(), stored);

        int waited = 0;
        me.with.setWaiting([&] {
            if (++waited == 3)
                holds.rollback();
            return true;
        });
        late = me.sync();
        QVERIFY2(late.done, qPrintable(late.fault));
        QVERIFY(waited >= 3);
        QCOMPARE(late.release, qint64(2));
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.content(), me.content());
        releasesAreWhole();
    }

    // What one wrote is seen by the other that waited for it: no lost update, no doubled number.
    void waitedFor()
    {
        person anna;
        person me;
        begin(&anna, &me);
        anna.at("A").d_price = "2";
        me.at("A").d_price = "3";
        store::connection holds;
        QString fault;
        QVERIFY(holds.open(*store::address::parse(address("editor"), &fault)));
        QVERIFY(holds.begin(true));
        bool isSent = false;
        me.with.setWaiting([&] {
            if (!isSent) {
                holds.rollback();
                isSent = anna.sync().done;
            }
            return true;
        });
        const store::syncResult result = me.sync();
        QVERIFY2(isSent && result.done, qPrintable(result.fault));
        QCOMPARE(me.asked, 1);
        QCOMPARE(result.release, qint64(3));
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.at("A").d_price, QString("3"));
        releasesAreWhole();
    }

    void awkwardTexts_data()
    {
        const rows<QString> row;
        row("backslashes", R"(\ \\ \' \n \x41 \u0041 E'\101' %1 $1 ?)");
        row("backslash at the end", R"(C:\Temp\)");
        row("quotes", R"("a" 'b' ''c'' `d` „e” ''')");
        row("statement", "'); drop table material; --");
        row("dollars", "$$ $1 $a$ x $a$ {1,\"2\",NULL} NULL");
        row("signs of XML", "<b>&amp;</b> ]]> <!-- &#10;");
        row("line ends", "a\nb\n\nc\n");
        row("tab", "a\tb\t");
        row("spaces", "  a  b  ");
        row("Polish", "Zażółć gęślą jaźń ŻÓŁĆ Ω µ ±5% „”");
        row("emoji", QString::fromUtf8("😀👩‍🔧🇵🇱 𝔘 e\u0301 \u200b"));
        row("right to left", QString::fromUtf8("שלום \u202eabc\u202c"));
        row("long", QString(2500, 'a') + QString(2500, QChar(0x119)) + QString("\\'").repeated(2500));
        row("long with spaces", QString("ab \"c\" ").repeated(1429));
    }

    void awkwardTexts()
    {
        const auto [text] = fetch<QString>();
        person anna;
        QVERIFY(anna.open(address("editor")));
        const auto fill = [&text = text](materialStruct *material) {
            material->d_name = text;
            material->d_otherParameters = text + text;
            auto made = std::make_unique<supplierStruct>();
            made->name = text;
            material->suppliers.append(std::move(made));
        };
        anna.add("A", text);
        fill(&anna.at("A"));
        anna.add("B", "G");
        const store::syncResult put = anna.publish("db");
        QVERIFY2(put.done, qPrintable(put.fault));
        person other;
        QVERIFY(other.open(address("editor")));
        QCOMPARE(other.clone(), QString());
        QCOMPARE(other.content(), anna.content());
        QCOMPARE(other.at("A").d_name, text);
        QCOMPARE(other.group(text)->items.size(), size_t(1));
        // Changed, added, and written over.
        fill(&other.at("B"));
        fill(other.add(text, "G"));
        other.at("A").d_name = "short";
        store::syncResult result = other.sync();
        QVERIFY2(result.done, qPrintable(result.fault));
        QCOMPARE(result.sent, 3);
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.content(), other.content());
        QCOMPARE(anna.at("B").d_name, text);
        QCOMPARE(anna.at("B").d_otherParameters, text + text);
        QCOMPARE(anna.at(text).d_ktm, text);
        result = other.sync();
        QCOMPARE(result.sent + result.fetched, 0);
        const auto history = store::historyOf(anna.with, "A");
        QCOMPARE(int(history.size()), 1);
        QCOMPARE(history[0].lines.front().before, text);
        // A document's name, too.
        person named;
        QVERIFY(named.open(address("editor")));
        named.add("X", "G");
        QVERIFY(named.publish(text).done);
        QCOMPARE(countOf("document"), 2);
        QVERIFY(!named.publish(text).done);
    }

    // Texts that a simple sum of characters would not tell apart.
    void sameNumber()
    {
        person anna;
        person me;
        begin(&anna, &me);
        me.at("A").d_value = "4R7";
        me.at("B").d_value = "Aa";
        QCOMPARE(me.sync().sent, 2);
        QVERIFY(anna.sync().done);
        me.at("A").d_value = "537";
        me.at("B").d_value = "BB";
        anna.at("A").d_price = "2";
        QVERIFY(anna.sync().done);
        QCOMPARE(me.sync().sent, 2);
        QCOMPARE(me.at("A").d_value + me.at("A").d_price, QString("5372"));
        QVERIFY(anna.sync().done);
        QCOMPARE(anna.content(), me.content());
    }

    // The same work comes to the same on a server as in a file: documents, history, and what is asked.
    void sameInAFile_data()
    {
        const rows<bool> row;
        row("server", true);
        row("file", false);
    }

    void sameInAFile()
    {
        const auto [isServer] = fetch<bool>();
        const QString to = isServer ? address("editor") : "sqlite:" + m_folder->path("store.sqlite");
        person anna;
        person me;
        QVERIFY(anna.open(to) && me.open(to));
        if (!isServer)
            QVERIFY(store::makeTables(anna.with));
        for (const char *ktm : {"A", "B", "C", "D"})
            anna.add(ktm, "G1")->d_name = "name";
        anna.add("E", "G2");
        QVERIFY(anna.publish().done);
        QCOMPARE(me.clone(), QString());
        QStringList seen;
        const auto both = [&] {
            // Release, fetched, sent and conflicts of each.
            for (person *one : {&anna, &me, &anna}) {
                const store::syncResult result = one->sync();
                QVERIFY2(result.done, qPrintable(result.fault));
                seen.append(
                    QString("%1/%2/%3/%4").arg(result.release).arg(result.fetched).arg(result.sent).arg(one->asked));
            }
            QCOMPARE(anna.content(), me.content());
            seen.append(me.outline());
        };
        // Fields of one row and of others, one of them on both sides.
        anna.at("A").d_price = "1";
        anna.at("B").d_unit = "m";
        me.at("A").d_price = "2";
        me.at("A").d_value = "10k";
        both();
        // Rows: new, removed, moved, below a new group, removed and changed.
        anna.take("C");
        anna.at("D").d_price = "4";
        anna.move("B", "G3");
        me.take("D");
        me.at("C").d_price = "5";
        me.add("F", "G2")->d_name = "same";
        anna.add("F", "G2")->d_unit = "szt";
        both();
        // Groups: renamed, removed.
        anna.group("G2")->name = "G2'";
        me.group("G3")->cpv = "31711130-1";
        me.move("B", "G1");
        me.takesTheirs = true;
        anna.at("F").d_name = "theirs";
        me.at("F").d_name = "mine";
        both();
        seen.append(anna.at("A").d_price + ' ' + anna.at("A").d_value + ' ' + anna.at("F").d_name + ' '
                    + anna.at("F").d_unit + ' ' + anna.at("C").d_price);
        auto lines = me.with.ask("select c.release, m.d_ktm, c.what, c.field, c.before, c.after from change c join "
                                 "material m on m.row_id = c.row_id where c.release > 1 order by c.number");
        QStringList told;
        while (lines && lines->next()) {
            const bool isMoved = lines->value(2).toString() == "moved";
            QStringList line;
            for (int i = 0; i < (isMoved ? 3 : 6); ++i)
                line.append(lines->value(i).toString());
            told.append(line.join(' ').trimmed());
        }
        told.sort();
        QCOMPARE(seen, (QStringList{"2/0/2/0", "3/2/1/1", "3/1/0/0", "G1(A B C D) G2(E)", "4/0/5/0", "5/5/3/2",
                                    "5/3/0/0", "G1(A C) G2(E F) G3(B)", "6/0/2/0", "7/2/2/1", "7/2/0/0",
                                    "G1(A C B) G2'(E F) G3()", "2 10k theirs szt 5"}));
        QCOMPARE(told, (QStringList{"2 A changed d_price  1", "2 B changed d_unit  m", "3 A changed d_price 1 2",
                                    "3 A changed d_value  10k", "4 B moved", "4 C removed", "4 D changed d_price  4",
                                    "4 F added", "5 C changed d_price  5", "5 C restored", "5 D removed",
                                    "5 F changed d_name  same", "6 F changed d_name same theirs", "7 B moved"}));
    }
};

KIVZP_TEST(tst_storeServer)
#include "tst_storeServer.moc"

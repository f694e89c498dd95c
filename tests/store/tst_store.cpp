// The shared store: what comes of two people's changes, row by row, on a store of one machine.
#include "data/programData.h"
#include "store/storeFiles.h"
#include "store/storeHistory.h"
#include "store/storeRows.h"

#include <QSqlError>
#include <QSqlQuery>

namespace {

const store::table &materials() { return *store::tablesOf(fileKinds::database)[1]; }

// One person with a copy of the database.
struct site
{
    store::connection with;
    std::unique_ptr<kiv_mat_databaseStruct> database = std::make_unique<kiv_mat_databaseStruct>();
    store::base known;
    std::vector<mergeRow> asked; // conflicts of the last time
    bool takesTheirs = false;
    bool refuses = false;
    QString name;

    void open(const QString &file)
    {
        QString fault;
        QVERIFY2(with.open(*store::address::parse(QStringLiteral("sqlite:") + file, &fault)), qPrintable(with.fault()));
    }

    d_groupStruct *group(const QString &called, bool make = true)
    {
        for (const auto &one : database->groups)
            if (one->name == called)
                return one.get();
        if (!make)
            return nullptr;
        database->groups.push_back(std::make_unique<d_groupStruct>());
        database->groups.back()->name = called;
        return database->groups.back().get();
    }

    std::pair<d_groupStruct *, size_t> find(const QString &ktm)
    {
        for (const auto &one : database->groups)
            for (size_t i = 0; i < one->items.size(); ++i)
                if (one->items[i]->d_ktm == ktm)
                    return {one.get(), i};
        return {nullptr, 0};
    }

    // "+B@G1" adds a material, "-B" removes it, "B>G2" moves it, "B.d_price=5" changes a text,
    // "B^" puts it before all of its group, "--G1" removes a group, "G1:=G3" renames one.
    void edit(const QString &script)
    {
        for (const QString &one : script.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            editOnce(one);
    }

    void editOnce(const QString &one)
    {
        if (one.startsWith(QLatin1String("--"))) {
            const QString called = one.mid(2);
            std::erase_if(database->groups, [&](const auto &g) { return g->name == called; });
        } else if (one.startsWith(QLatin1Char('+'))) {
            auto made = std::make_unique<materialStruct>();
            made->d_ktm = one.section(QLatin1Char('@'), 0, 0).mid(1);
            group(one.section(QLatin1Char('@'), 1))->append(std::move(made));
        } else if (one.startsWith(QLatin1Char('-'))) {
            const auto [from, place] = find(one.mid(1));
            from->items.erase(from->items.begin() + int(place));
        } else if (one.endsWith(QLatin1Char('^'))) {
            const auto [of, place] = find(one.chopped(1));
            std::rotate(of->items.begin(), of->items.begin() + int(place), of->items.begin() + int(place) + 1);
        } else if (one.contains(QLatin1String(":="))) {
            group(one.section(QLatin1Char(':'), 0, 0))->name = one.section(QLatin1Char('='), 1);
        } else if (!one.contains(QLatin1Char('=')) && one.contains(QLatin1Char('>'))) {
            const auto [from, place] = find(one.section(QLatin1Char('>'), 0, 0));
            std::unique_ptr<materialStruct> moved = std::move(from->items[place]);
            from->items.erase(from->items.begin() + int(place));
            group(one.section(QLatin1Char('>'), 1))->append(std::move(moved));
        } else {
            const auto [of, place] = find(one.section(QLatin1Char('.'), 0, 0));
            const QString field = one.section(QLatin1Char('.'), 1).section(QLatin1Char('='), 0, 0);
            setField(of->items[place].get(), field, one.section(QLatin1Char('='), 1));
        }
    }

    static void setField(materialStruct *material, const QString &field, const QString &text)
    {
        if (field == QLatin1String("supplier")) {
            auto made = std::make_unique<supplierStruct>();
            made->name = text;
            material->suppliers.items.clear();
            material->suppliers.append(std::move(made));
            return;
        }
        for (size_t i = 0; i < materials().columns.size(); ++i)
            if (materials().columns[i].name == field)
                materials().setText(material, i, text);
    }

    store::syncResult sync(bool applies = true)
    {
        asked.clear();
        store::syncResult result =
            store::synchronize(with, *database, known, name, [this](std::vector<mergeRow> &rows) {
                asked = rows;
                for (mergeRow &row : rows)
                    row.takeTheirs = takesTheirs;
                return !refuses;
            });
        if (result.done && applies)
            store::apply(result, database.get(), &known);
        return result;
    }

    // "G1(A B[d_price=5]) G2()": groups and materials in their order, with the texts that are not
    // usual ones.
    QString state() const
    {
        static const materialStruct fresh;
        QStringList groups;
        for (const auto &one : database->groups) {
            QStringList inside;
            for (const auto &material : one->items) {
                QStringList texts;
                for (size_t i = 1; i < materials().columns.size(); ++i) {
                    QString text = materials().text(material.get(), i);
                    if (text == materials().text(&fresh, i))
                        continue;
                    if (materials().columns[i].nested)
                        text = store::readable(text);
                    texts.append(materials().columns[i].name + QLatin1Char('=') + text);
                }
                inside.append(material->d_ktm
                              + (texts.isEmpty() ? QString()
                                                 : QLatin1Char('[') + texts.join(QLatin1Char(',')) + QLatin1Char(']')));
            }
            groups.append(one->name + QLatin1Char('(') + inside.join(QLatin1Char(' ')) + QLatin1Char(')'));
        }
        return groups.join(QLatin1Char(' '));
    }

    QString idOf(const QString &ktm) const
    {
        for (const store::baseRow &row : known.rows)
            if (row.table == 1 && row.key == ktm)
                return row.id;
        return {};
    }
};

} // namespace

class tst_store : public QObject
{
    Q_OBJECT

    testSupport::programFolder m_folder;
    QString m_file;
    int m_count = 0;

    // Two people with "G1(A B C) G2(D)".
    void begin(site *first, site *second)
    {
        m_file = m_folder.path(QStringLiteral("store-%1.sqlite").arg(++m_count));
        first->name = QStringLiteral("Anna");
        second->name = QStringLiteral("Bolesław");
        first->open(m_file);
        second->open(m_file);
        QVERIFY2(store::makeTables(first->with), qPrintable(first->with.fault()));
        first->edit(QStringLiteral("+A@G1 +B@G1 +C@G1 +D@G2 A.d_price=1 A.d_name=opornik"));
        const store::syncResult made =
            store::publish(first->with, *first->database, QStringLiteral("db"), first->name, &first->known);
        QVERIFY2(made.done, qPrintable(made.fault));
        store::apply(made, first->database.get(), &first->known);
        copy(second);
    }

    void copy(site *to)
    {
        QString fault;
        auto cloned = store::clone(to->with, fileKinds::database, QStringLiteral("db"), &to->known, &fault);
        QVERIFY2(cloned, qPrintable(fault));
        to->database.reset(static_cast<kiv_mat_databaseStruct *>(cloned.release()));
    }

private slots:
    // Both change, the first sends, the second brings both together, the first gets it.
    void bothChanged_data()
    {
        QTest::addColumn<QString>("mine");
        QTest::addColumn<QString>("theirs"); // sent first
        QTest::addColumn<bool>("takesTheirs");
        QTest::addColumn<QStringList>("conflicts"); // "line field: was|mine|theirs"
        QTest::addColumn<QString>("state");

        const QString a = QStringLiteral("A[d_name=opornik,d_price=1]");
        const auto row = [](const char *name, const char *mine, const char *theirs, bool takes,
                            const QStringList &conflicts, const QString &state) {
            QTest::newRow(name) << QString::fromUtf8(mine) << QString::fromUtf8(theirs) << takes << conflicts << state;
        };
        row("nothing", "", "", false, {}, "G1(" + a + " B C) G2(D)");
        row("other fields of one", "A.d_price=2", "A.d_name=rezystor", false, {},
            "G1(A[d_name=rezystor,d_price=2] B C) G2(D)");
        row("the same field, mine", "A.d_price=2", "A.d_price=3", false, {"G1 / A opornik d_price: 1|2|3"},
            "G1(A[d_name=opornik,d_price=2] B C) G2(D)");
        row("the same field, theirs", "A.d_price=2 B.d_unit=m", "A.d_price=3", true, {"G1 / A opornik d_price: 1|2|3"},
            "G1(A[d_name=opornik,d_price=3] B[d_unit=m] C) G2(D)");
        row("the same change", "A.d_price=2", "A.d_price=2", false, {}, "G1(A[d_name=opornik,d_price=2] B C) G2(D)");
        row("there and back", "A.d_price=2 A.d_price=1", "A.d_price=3", false, {},
            "G1(A[d_name=opornik,d_price=3] B C) G2(D)");
        row("added on both sides", "+E@G1", "+F@G1", false, {}, "G1(" + a + " B C F E) G2(D)");
        row("the same added, other fields", "+E@G1 E.d_price=4", "+E@G1 E.d_unit=m", false, {},
            "G1(" + a + " B C E[d_price=4,d_unit=m]) G2(D)");
        row("the same added, conflict", "+E@G1 E.d_price=4", "+E@G1 E.d_price=5", true, {"G1 / E d_price: |4|5"},
            "G1(" + a + " B C E[d_price=5]) G2(D)");
        row("removed by both", "-B", "-B", false, {}, "G1(" + a + " C) G2(D)");
        row("removed, and changed by them: mine", "-A", "A.d_price=3", false,
            {"G1 / A opornik : A; opornik; 1; NIE|(none)|A; opornik; 3; NIE"}, "G1(B C) G2(D)");
        row("removed, and changed by them: theirs", "-A", "A.d_price=3", true,
            {"G1 / A opornik : A; opornik; 1; NIE|(none)|A; opornik; 3; NIE"},
            "G1(A[d_name=opornik,d_price=3] B C) G2(D)");
        row("changed, and removed by them: mine", "A.d_price=3", "-A", false,
            {"G1 / A opornik : A; opornik; 1; NIE|A; opornik; 3; NIE|(none)"},
            "G1(A[d_name=opornik,d_price=3] B C) G2(D)");
        row("changed, and removed by them: theirs", "A.d_price=3", "-A", true,
            {"G1 / A opornik : A; opornik; 1; NIE|A; opornik; 3; NIE|(none)"}, "G1(B C) G2(D)");
        row("another KTM and another field", "A.d_ktm=A2", "A.d_price=3", false, {},
            "G1(A2[d_name=opornik,d_price=3] B C) G2(D)");
        row("another KTM and text at once", "A.d_ktm=A2 A2.d_unit=m", "B.d_price=3", false, {},
            "G1(A2[d_name=opornik,d_price=1,d_unit=m] B[d_price=3] C) G2(D)");
        row("another one in its place", "-A +E@G1 E.d_name=dioda E^", "A.d_unit=m", false,
            {"G1 / A opornik : A; opornik; 1; NIE|(none)|A; opornik; 1; m; NIE"}, "G1(E[d_name=dioda] B C) G2(D)");
        row("another KTM on both sides", "B.d_ktm=B2", "B.d_ktm=B3", false, {"G1 / B2 d_ktm: B|B2|B3"},
            "G1(" + a + " B2 C) G2(D)");
        row("a second of one KTM", "+A@G2 A.d_price=9", "C.d_price=3", false, {},
            "G1(A[d_name=opornik,d_price=9] B C[d_price=3]) G2(D A)");
        row("moved, and changed by them", "B>G2", "B.d_price=3", false, {}, "G1(" + a + " C) G2(D B[d_price=3])");
        row("moved by both", "B>G2", "B>G3", true, {"G2 / B d_group: G1|G2|G3"}, "G1(" + a + " C) G2(D) G3(B)");
        row("moved by both to the same", "B>G2", "B>G2", false, {}, "G1(" + a + " C) G2(D B)");
        row("moved to a new group", "B>G3", "", false, {}, "G1(" + a + " C) G2(D) G3(B)");
        row("first in its group", "C^", "+E@G1", false, {}, "G1(C " + a + " B E) G2(D)");
        row("group removed, and they put something in", "--G2", "+E@G2", false, {}, "G1(" + a + " B C) G2(E)");
        row("they removed the group, I put something in", "+E@G2", "--G2", false, {}, "G1(" + a + " B C) G2(E)");
        row("group renamed, and they put something in", "G2:=G9", "+E@G2", false, {}, "G1(" + a + " B C) G9(D E)");
        row("group removed, and another one made in its place", "--G2 +E@G5", "G2:=G6", false, {"G6 : G2|(none)|G6"},
            "G1(" + a + " B C) G5(E)");
        row("group renamed, and the one beside it removed", "--G1 G2:=G9", "D.d_unit=m", false, {}, "G9(D[d_unit=m])");
        row("group renamed, and they move out of it", "G1:=G9", "B>G2", false, {}, "G9(" + a + " C) G2(D B)");
        row("groups of the same name", "+E@G7", "+F@G7", false, {}, "G1(" + a + " B C) G2(D) G7(F E)");
        row("suppliers, mine", "A.supplier=TME", "A.supplier=Farnell", false,
            {"G1 / A opornik suppliers: |TME|Farnell"}, "G1(A[d_name=opornik,d_price=1,suppliers=TME] B C) G2(D)");
        row("awkward texts", "A.d_name=O'Hara\\\\\"<b>&żółć;--", "B.d_name=%1?$1", false, {},
            "G1(A[d_name=O'Hara\\\\\"<b>&żółć;--,d_price=1] B[d_name=%1?$1] C) G2(D)");
    }

    void bothChanged()
    {
        QFETCH(QString, mine);
        QFETCH(QString, theirs);
        QFETCH(bool, takesTheirs);
        QFETCH(QStringList, conflicts);
        QFETCH(QString, state);

        site me;
        site they;
        begin(&they, &me);
        me.takesTheirs = takesTheirs;
        const QString id = me.idOf(QStringLiteral("A"));
        me.edit(mine);
        they.edit(theirs);
        QVERIFY(they.sync().done);
        const store::syncResult result = me.sync();
        QVERIFY2(result.done, qPrintable(result.fault));
        QStringList asked;
        const auto shown = [](const QString &text) { return text.isNull() ? QStringLiteral("(none)") : text; };
        for (const mergeRow &row : me.asked)
            asked.append(QStringLiteral("%1 %2: %3|%4|%5")
                             .arg(row.line, row.field, row.opened.isNull() ? QString() : row.opened, shown(row.mine),
                                  shown(row.theirs)));
        QCOMPARE(asked, conflicts);
        QCOMPARE(me.state(), state);
        QVERIFY(they.sync().done);
        QCOMPARE(they.state(), state);
        // Nothing is left to send, and nobody's file has to be looked into.
        for (site *one : {&me, &they}) {
            const store::syncResult again = one->sync();
            QVERIFY(again.done && again.fetched == 0 && again.sent == 0);
            QCOMPARE(store::changesSince(one->with, one->known), 0);
        }
        for (const char *ktm : {"A", "A2"})
            if (const QString now = me.idOf(QLatin1String(ktm)); !now.isEmpty())
                QCOMPARE(now, id);
    }

    // Who thinks better of a conflict has changed nothing anywhere; who asks once more is asked
    // again.
    void givenUp()
    {
        site me;
        site they;
        begin(&they, &me);
        me.edit(QStringLiteral("A.d_price=2 +E@G1"));
        they.edit(QStringLiteral("A.d_price=3"));
        QVERIFY(they.sync().done);
        me.refuses = true;
        const QString before = me.state();
        const store::syncResult result = me.sync();
        QVERIFY(result.cancelled && !result.done && result.fault.isEmpty());
        QCOMPARE(me.state(), before);
        QCOMPARE(they.sync().fetched, 0);
        // Meanwhile they changed it again: what was picked for one text counts for no other.
        me.refuses = false;
        QString fault;
        int times = 0;
        const store::syncResult late =
            store::synchronize(me.with, *me.database, me.known, me.name, [&](std::vector<mergeRow> &rows) {
                if (++times == 1) {
                    they.edit(QStringLiteral("A.d_price=4"));
                    if (!they.sync().done)
                        return false;
                }
                for (mergeRow &row : rows)
                    row.takeTheirs = row.theirs == QLatin1String("3");
                return true;
            });
        QVERIFY(late.done);
        QCOMPARE(times, 2);
        store::apply(late, me.database.get(), &me.known);
        QVERIFY(they.sync().done);
        QCOMPARE(they.state(), QStringLiteral("G1(A[d_name=opornik,d_price=2] B C E) G2(D)"));
    }

    // The store took it, and its answer got lost: what is changed afterwards is no conflict with
    // oneself, nothing comes twice, and what others did before or after it stays.
    void answerLost_data()
    {
        QTest::addColumn<QString>("theirsBefore");
        QTest::addColumn<QString>("sent");
        QTest::addColumn<QString>("theirsAfter");
        QTest::addColumn<QString>("mine");
        QTest::addColumn<QString>("state");
        QTest::newRow("changed once more") << ""
                                           << "A.d_price=2 +E@G1 E.d_price=7 B.d_ktm=B2"
                                           << ""
                                           << "A.d_price=5 E.d_price=8 -C"
                                           << "G1(A[d_name=opornik,d_price=5] B2 E[d_price=8]) G2(D)";
        QTest::newRow("they had changed another text") << "A.d_value=7"
                                                       << "A.d_price=2"
                                                       << ""
                                                       << ""
                                                       << "G1(A[d_name=opornik,d_value=7,d_price=2] B C) G2(D)";
        QTest::newRow("they change the same afterwards") << ""
                                                         << "A.d_price=2"
                                                         << "A.d_price=3"
                                                         << "B.d_unit=m"
                                                         << "G1(A[d_name=opornik,d_price=3] B[d_unit=m] C) G2(D)";
        QTest::newRow("they change what was added") << ""
                                                    << "+E@G1 E.d_price=2"
                                                    << "E.d_price=3"
                                                    << ""
                                                    << "G1(A[d_name=opornik,d_price=1] B C E[d_price=3]) G2(D)";
        QTest::newRow("set back meanwhile") << ""
                                            << "A.d_price=2"
                                            << ""
                                            << "A.d_price=1"
                                            << "G1(A[d_name=opornik,d_price=1] B C) G2(D)";
    }

    void answerLost()
    {
        QFETCH(QString, theirsBefore);
        QFETCH(QString, sent);
        QFETCH(QString, theirsAfter);
        QFETCH(QString, mine);
        QFETCH(QString, state);

        site me;
        site they;
        begin(&they, &me);
        they.edit(theirsBefore);
        QVERIFY(they.sync().done);
        me.edit(sent);
        QVERIFY(me.sync(false).done);
        QVERIFY(they.sync().done);
        they.edit(theirsAfter);
        QVERIFY(they.sync().done);
        me.edit(mine);
        QVERIFY(me.sync().done);
        QCOMPARE(int(me.asked.size()), 0);
        QCOMPARE(me.state(), state);
        QVERIFY(they.sync().done);
        QCOMPARE(they.state(), state);
    }

    // Five people at random: all have the same in the end, and the history leads from what each row
    // is back to what it was.
    void manyAtRandom()
    {
        site people[5];
        begin(&people[0], &people[1]);
        for (int i = 2; i < 5; ++i) {
            people[i].name = QString::number(i);
            people[i].open(m_file);
            copy(&people[i]);
        }
        QRandomGenerator random(20);
        int made = 0;
        QHash<QString, QString> sentPrices; // by row: what was sent last
        for (int round = 0; round < 400; ++round) {
            site &one = people[random.bounded(5)];
            for (int edits = random.bounded(4); edits > 0; --edits) {
                QStringList ktms;
                for (const auto &group : one.database->groups)
                    for (const auto &material : group->items)
                        ktms.append(material->d_ktm);
                const QString some = ktms.isEmpty() ? QString() : ktms[random.bounded(ktms.size())];
                const QString group = QStringLiteral("G%1").arg(random.bounded(4));
                const int what = random.bounded(10);
                const QString next = QString::number(++made);
                if (some.isEmpty() || what == 0)
                    one.edit(QStringLiteral("+N%1@%2").arg(next, group));
                else if (what == 1 && ktms.size() > 5)
                    one.edit(QLatin1Char('-') + some);
                else if (what == 2)
                    one.edit(some + QLatin1Char('>') + group);
                else if (what == 3)
                    one.edit(some + QLatin1Char('^'));
                else if (what == 4)
                    one.edit(some + QLatin1String(".d_ktm=R") + next);
                else if (what == 5)
                    one.edit(some + QLatin1String(".supplier=S") + next);
                else
                    one.edit(some + QLatin1String(".d_price=") + next);
            }
            one.takesTheirs = random.bounded(2) == 0;
            const store::syncResult result = one.sync();
            QVERIFY2(result.done, qPrintable(result.fault));
        }
        for (int twice = 0; twice < 2; ++twice)
            for (site &one : people)
                QVERIFY(one.sync().done);
        for (site &one : people)
            QCOMPARE(one.state(), people[0].state());
        historyIsComplete(people[0]);
        // The files' rows are those of the store, too: a new copy is the same.
        site late;
        late.open(m_file);
        copy(&late);
        QCOMPARE(late.state(), people[0].state());
    }

private:
    void historyIsComplete(site &of)
    {
        QHash<QString, store::storedRow> rows;
        QVERIFY(store::fetchRows(of.with, fileKinds::database, of.known.document, 0, [&rows](store::storedRow &&row) {
            const QString id = row.id;
            rows.insert(id, row);
            return true;
        }));
        QVERIFY(rows.size() > 20);
        int steps = 0;
        auto log =
            of.with.ask(QStringLiteral("select row_id, what, field, before, after from change order by number desc"));
        QVERIFY(log);
        while (log->next()) {
            const auto row = rows.find(log->value(0).toString());
            QVERIFY(row != rows.end());
            const QString what = log->value(1).toString();
            const auto &columns = store::tablesOf(fileKinds::database)[size_t(row->table)]->columns;
            if (what == QLatin1String("changed")) {
                const auto column = std::find_if(columns.begin(), columns.end(), [&](const store::column &one) {
                    return one.name == log->value(2).toString();
                });
                QVERIFY(column != columns.end());
                QString &text = row->texts[int(column - columns.begin())];
                QCOMPARE(log->value(4).toString(), text);
                text = log->value(3).toString();
                ++steps;
            } else if (what == QLatin1String("moved")) {
                QCOMPARE(log->value(4).toString(), row->below);
                row->below = log->value(3).toString();
            } else if (what == QLatin1String("removed") || what == QLatin1String("restored")) {
                QCOMPARE(row->gone, what == QLatin1String("removed"));
                row->gone = !row->gone;
            } else {
                QCOMPARE(what, QStringLiteral("added"));
                QVERIFY(!row->gone);
            }
        }
        QVERIFY(steps > 100);
    }

private slots:
    // Every kind comes out as it went in.
    void everyKind_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &file :
             QStringList{"database", "firm", "firmDetails", "reservations", "orderStates", "offers"})
            QTest::newRow(qPrintable(file)) << file;
    }

    void everyKind()
    {
        QFETCH(QString, file);
        const QString name = QStringLiteral("/tests/files/kept/%1.xml").arg(file);
        QString source = QLatin1String(KIVZP_SOURCE_DIR) + name;
        if (!QFileInfo::exists(source))
            source = QLatin1String(KIVZP_SOURCE_DIR) + QStringLiteral("/tests/store/%1.xml").arg(file);
        const QString path = m_folder.path(file + QLatin1String(".xml"));
        QVERIFY2(QFile::copy(source, path), qPrintable(source));
        store::connection with;
        QString fault;
        QVERIFY(with.open(*store::address::parse(
            QStringLiteral("sqlite:") + m_folder.path(file + QLatin1String(".sqlite")), &fault)));
        QVERIFY2(store::makeTables(with), qPrintable(with.fault()));
        const store::syncResult made = store::publishFile(with, path, file);
        QVERIFY2(made.done && made.fault.isEmpty(), qPrintable(made.fault));
        QVERIFY(made.sent > 0);
        const fileKind *kind = fileKinds::ofFile(path);
        const QString other = m_folder.path(file + QLatin1String("-2.xml"));
        QVERIFY2(store::cloneFile(with, *kind, file, other, &fault), qPrintable(fault));
        const auto contents = [&](const QString &of) {
            const auto document = newDocument(*kind);
            QStringList all{QString::number(loadQuietly(of, document.get()))};
            for (const auto &table : store::tablesOf(*kind))
                if (table->above < 0)
                    for (int i = 0; i < table->count(document.get()); ++i)
                        if (xmlData *record = table->at(document.get(), i); record != document.get())
                            all.append(QString::fromUtf8(contentOf(*record)));
            return all;
        };
        QVERIFY(contents(path).size() > 1);
        QCOMPARE(contents(other), contents(path));
        QVERIFY2(readChecked(other, newDocument(*kind).get(), &fault), qPrintable(fault));
        // Put in twice, or taken out over something, nothing is lost.
        QVERIFY(!store::publishFile(with, path, file).done);
        QVERIFY(!store::cloneFile(with, *kind, file, other, &fault));
        configStruct config;
        const store::syncResult none = store::synchronizeFile(with, other, config, {});
        QVERIFY2(none.done && none.fault.isEmpty(), qPrintable(none.fault));
        QCOMPARE(none.sent + none.fetched, 0);
    }

    void history()
    {
        site me;
        site they;
        begin(&they, &me);
        they.edit(QStringLiteral("A.d_price=2"));
        QVERIFY(they.sync().done);
        const qint64 then = they.known.release;
        QVERIFY(me.sync().done);
        me.edit(QStringLiteral("A.d_ktm=A2"));
        QVERIFY(me.sync().done);
        me.edit(QStringLiteral("A2.d_price=3 A2>G2 A2.supplier=TME"));
        QVERIFY(me.sync().done);
        const auto found = store::historyOf(me.with, QStringLiteral("A"));
        QCOMPARE(int(found.size()), 1);
        QCOMPARE(found[0].caption, QStringLiteral("A2 opornik"));
        QStringList lines;
        for (const store::historyLine &line : found[0].lines)
            lines.append(line.author + QLatin1Char(' ') + line.what + QLatin1Char(' ') + line.field + QLatin1Char(' ')
                         + line.before + QLatin1Char('|') + line.after);
        QCOMPARE(lines, (QStringList{"Bolesław changed suppliers |TME", "Bolesław changed d_price 2|3",
                                     "Bolesław moved  G1|G2", "Bolesław changed d_ktm A|A2", "Anna changed d_price 1|2",
                                     "Anna added  |"}));
        QString fault;
        const auto texts = store::textsAt(me.with, found[0].id, then, &fault);
        QVERIFY2(texts, qPrintable(fault));
        materialStruct was;
        for (size_t i = 0; i < materials().columns.size(); ++i)
            materials().setText(&was, i, (*texts)[int(i)]);
        QCOMPARE(was.d_ktm + was.d_price, QStringLiteral("A2"));
        QVERIFY(was.suppliers.items.empty());
        QVERIFY(!store::textsAt(me.with, found[0].id, 0, &fault) && !fault.isEmpty());
    }

    // What is known of a document: written and read, and told where it is damaged.
    void baseFile()
    {
        store::base known;
        known.store = QStringLiteral("s");
        known.document = QStringLiteral("d");
        known.kind = fileKinds::database.root;
        known.program = QStringLiteral("p");
        known.release = 7;
        known.mayWrite = false;
        known.rows.push_back({0, "g", -1, 1024, 3, 5, "Grupa\t\\n\nżółć"});
        known.rows.push_back({1, "m", 0, 0.1, 7, ~quint64(0), {}});
        const QString path = m_folder.path(QStringLiteral("known.xml"));
        QString fault;
        QVERIFY(known.write(path, &fault));
        const store::base read = store::base::read(path, &fault);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
        QCOMPARE(read.program, known.program);
        QCOMPARE(read.release, known.release);
        QVERIFY(!read.mayWrite);
        QCOMPARE(int(read.rows.size()), 2);
        QCOMPARE(read.rows[0].key, known.rows[0].key);
        QCOMPARE(read.rows[1].hash, ~quint64(0));
        QVERIFY(read.rows[1].place == 0.1 && read.rows[1].below == 0);
        // A copy is another program.
        const QString copied = m_folder.path(QStringLiteral("copied.xml"));
        QVERIFY(QFile::copy(store::base::fileOf(path), store::base::fileOf(copied)));
        QVERIFY(store::base::read(copied, &fault).program != known.program);
        // Cut off at any line, or in one, it is not taken for a whole one.
        QFile file(store::base::fileOf(path));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        for (int size = 0; size < whole.size(); ++size) {
            m_folder.write(QStringLiteral("cut.xml.shared"), whole.left(size));
            const store::base cut = store::base::read(m_folder.path(QStringLiteral("cut.xml")), &fault);
            QVERIFY2(!fault.isEmpty() && !cut.isShared(), qPrintable(QString::number(size)));
        }
    }

    void addresses_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("read"); // user, host, port, database, options; empty: refused
        QTest::newRow("all") << "postgresql://anna@db.example:5433/kivzp?sslmode=verify-full"
                             << "anna|db.example|5433|kivzp|sslmode='verify-full';connect_timeout=5";
        QTest::newRow("short") << "postgres://db/kivzp"
                               << "|db|-1|kivzp|connect_timeout=5";
        QTest::newRow("socket") << "postgresql://anna@/kivzp?host=/run/x&connect_timeout=2"
                                << "anna|/run/x|-1|kivzp|connect_timeout='2'";
        QTest::newRow("file") << "sqlite:/a/b.sqlite"
                              << "||-1|/a/b.sqlite|";
        QTest::newRow("password") << "postgresql://anna:tajne@db/kivzp"
                                  << "";
        QTest::newRow("password as an option") << "postgresql://anna@db/kivzp?password=tajne"
                                               << "";
        QTest::newRow("options behind an option") << "postgresql://db/kivzp?sslmode=a;password=tajne"
                                                  << "";
        QTest::newRow("no database") << "postgresql://anna@db"
                                     << "";
        QTest::newRow("something else") << "https://db/kivzp"
                                        << "";
        QTest::newRow("nothing") << "sqlite:"
                                 << "";
    }

    void addresses()
    {
        QFETCH(QString, text);
        QFETCH(QString, read);
        QString fault;
        const auto parsed = store::address::parse(text, &fault);
        QCOMPARE(parsed.has_value(), !read.isEmpty());
        if (parsed)
            QCOMPARE(QStringList(
                         {parsed->user, parsed->host, QString::number(parsed->port), parsed->database, parsed->options})
                         .join(QLatin1Char('|')),
                     read);
        QCOMPARE(fault.isEmpty(), !read.isEmpty());
        QVERIFY2(!fault.contains(QLatin1String("tajne")), qPrintable(fault));
    }
};

KIVZP_TEST(tst_store)
#include "tst_store.moc"

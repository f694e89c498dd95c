// Which materials use a firm, what a new name does to them, where a home page leads, and tax numbers.
#include "testSupport.h"

#include "firm/firmChecks.h"
#include "firm/firmMerge.h"
#include "firm/firmUsage.h"

using namespace testSupport;
using namespace firmOperations;
Q_DECLARE_METATYPE(firmOperations::firmKind)
Q_DECLARE_METATYPE(taxNumberState)

class tst_firmOperations : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_database->fileName = "db.xml";
        const auto add = [this](const QString &ktm, const QStringList &made, const QStringList &sold) {
            materialStruct *added = material(*m_database, "G", ktm, "<" + ktm + ">");
            for (const QString &name : made)
                appendTo(added->manufacturers)->name = name;
            for (const QString &name : sold)
                appendTo(added->suppliers)->name = name;
        };
        add("1", {"A", "B", "A"}, {"TME"});
        add("2", {"B"}, {"A"});
        add("3", {"a", ""}, {});
    }

    // Firms, and firm and KTM of what is found; "planned": B is to be A, and A is to be C.
    void uses_data()
    {
        const auto makers = firmOperations::manufacturer;
        const auto sellers = firmOperations::supplier;
        const rows<firmKind, QStringList, bool, QStringList> row;
        row("maker", makers, {"A"}, false, {"A1"});
        row("seller", sellers, {"A"}, false, {"A2"});
        row("two", makers, {"A", "B"}, false, {"A1", "B1", "B2"});
        row("empty", makers, {""}, false, {});
        row("none", makers, {}, false, {});
        row("planned", makers, {"A", "B", "C"}, true, {"C1", "A1", "A2"});
        row("other kind", sellers, {"A"}, true, {"A2"});
    }

    void uses()
    {
        const auto [kind, firms, planned, expected] = fetch<firmKind, QStringList, bool, QStringList>();
        renameStep step;
        step[firmOperations::manufacturer] = {{"B", "A"}, {"A", "C"}};
        const auto uses = usesOf(QSet<QString>(firms.begin(), firms.end()), kind, {m_database.get()},
                                 planned ? renameList{step} : renameList());
        QStringList found;
        for (const firmUse &use : uses)
            found.append(use.firm + use.material->d_ktm);
        QCOMPARE(found, expected);
        if (!uses.empty())
            QVERIFY(useLines(uses)[0].contains("&lt;" + uses[0].material->d_ktm + "&gt; [db.xml]"));
    }

    // Steps of new names for makers, the makers of the three materials afterwards, and how many changed.
    void renamed_data()
    {
        const rows<QVector<names>, QString, int> row;
        row("nothing", {}, "A B A|B|a ", 0);
        row("exactly", {{{"A", "X"}}}, "X B X|B|a ", 2);
        row("exchanged", {{{"A", "B"}, {"B", "A"}}}, "B A B|A|a ", 4);
        row("one after the other", {{{"A", "B"}}, {{"B", "C"}}}, "C C C|C|a ", 4);
        row("there and back", {{{"A", "X"}}, {{"X", "A"}}}, "A B A|B|a ", 0);
    }

    void renamed()
    {
        const auto [makers, after, changed] = fetch<QVector<names>, QString, int>();
        renameList steps;
        for (const names &step : makers)
            steps.emplace_back()[firmOperations::manufacturer] = step;
        const auto changes = changesOf(*m_database, steps);
        QCOMPARE(int(changes.size()), changed);
        applyNames(changes);
        revertNames(changes);
        applyNames(changes);
        QStringList made;
        for (const auto &present : m_database->groups[0]->items) {
            QStringList firms;
            for (const auto &maker : present->manufacturers.items)
                firms.append(maker->name);
            made.append(firms.join(' '));
        }
        QCOMPARE(made.join('|'), after);
        // Sellers of the same name are other firms.
        QCOMPARE(m_database->groups[0]->items[1]->suppliers.items[0]->name, QString("A"));
    }

    void homePages_data()
    {
        const rows<QString> row;
        row("https://www.ti.com/a?b=c", "https://www.ti.com/a?b=c");
        row(" www.ti.com ", "http://www.ti.com");
        row.each({"http://www", "", "file:///etc/passwd", "/etc/passwd", "javascript:alert(1.0)", "no page at all"},
                 "");
    }

    void homePages()
    {
        const auto [url] = fetch<QString>();
        QCOMPARE(homePage(tag()).toString(), url);
    }

    void taxNumbers_data()
    {
        const rows<taxNumberState> row;
        for (const char *none : {"", " - "})
            row(none, taxNumberState::none);
        for (const char *good : {"5260250274", "526-025-02-74", "PL 526 025 02 74", "pl5260250274"})
            row(good, taxNumberState::good);
        // In the last, a sum leaves 10, which fits no digit.
        for (const char *wrong :
             {"5260250275", "526025027", "52602502740", "526025027X", "0000000000", "PL", "brak", "1000010000"})
            row(wrong, taxNumberState::wrong);
        row("DE123456789", taxNumberState::foreign);
    }

    void taxNumbers()
    {
        const auto [state] = fetch<taxNumberState>();
        QCOMPARE(int(checkTaxNumber(tag())), int(state));
        QCOMPARE(taxNumberWarning(tag()).contains(tag()) && !tag().isEmpty(), state == taxNumberState::wrong);
    }

    void everyWrongDigitIsFound()
    {
        const QString good = "5260250274";
        for (int place = 0; place < good.size(); ++place) {
            for (char digit = '0'; digit <= '9'; ++digit) {
                QString number = good;
                number[place] = digit;
                QCOMPARE(checkTaxNumber(number) == taxNumberState::good, number == good);
            }
        }
    }

    void wrongTaxNumbersAreListed()
    {
        kiv_mat_firmStruct firms;
        for (const char *nip : {"", "5260250274", "1"}) {
            appendTo(firms.manufacturers)->nip = nip;
            appendTo(firms.suppliers)->nip = nip;
        }
        QVERIFY(firmsWithWrongTaxNumber(firms)
                == decltype(firmsWithWrongTaxNumber(firms))(
                    {firms.manufacturers.items[2].get(), firms.suppliers.items[2].get()}));
    }

    // Lists of firms as "name/full name/NIP", the places that become one, the first of which stays; and the lists
    // and the makers and sellers of the materials afterwards.
    void merged_data()
    {
        const rows<QString, QString, QVector<int>, QString, QString> row;
        row("two", "A,B,C", "", {1, 0}, "B,C|", "B B B,B,a |TME,B,");
        row("the other list", "A,B", "TME,A", {1, 0}, "B|TME,B", "B B B,B,a |TME,B,");
        row("both in it", "A,B", "A,TME,B", {1, 0}, "B|TME,B", "B B B,B,a |TME,B,");
        row("three", "A,B,a", "", {2, 0, 1}, "a|", "a a a,a,a |TME,a,");
        row("equal names", "A,B,A", "A", {0, 2}, "A,B|A", "A B A,B,a |TME,A,");
        row("what it lacks", "A/Alpha/1,B/Beta/,C/FIRM SA/3", "", {2, 1, 0}, "C/Beta/3|", "C C C,C,a |TME,C,");
        row("what it does not", "A/Alpha/1,B", "", {1, 0}, "B/Alpha/1|", "B B B,B,a |TME,B,");
    }

    void merged()
    {
        const auto [makers, sellers, places, lists, materials] =
            fetch<QString, QString, QVector<int>, QString, QString>();
        kiv_mat_firmStruct firms;
        for (const firmKind kind : {firmOperations::manufacturer, firmOperations::supplier})
            for (const QString &text :
                 (kind == firmOperations::manufacturer ? makers : sellers).split(',', Qt::SkipEmptyParts)) {
                auto &added = listOf(firms, kind).emplace_back(std::make_unique<firmStruct>());
                added->name = text.section('/', 0, 0);
                added->fullname = text.section('/', 1, 1);
                added->nip = text.section('/', 2, 2);
            }
        const std::vector<size_t> going(places.begin() + 1, places.end());
        const mergePlan plan =
            planMerge(firms, firmOperations::manufacturer, size_t(places[0]), going, {m_database.get()});
        const auto changes = changesOf(*m_database, {plan.names});
        QCOMPARE(plan.uses.empty(), changes.empty());
        QVERIFY(mergeRows(plan).size() == int(plan.changes.size() + plan.uses.size()));
        const auto merged = copyOf(firms);
        mergeFirms(*merged, plan);
        applyNames(changes);
        QStringList kept;
        for (const firmKind kind : {firmOperations::manufacturer, firmOperations::supplier}) {
            QStringList texts;
            for (const auto &firm : listOf(*merged, kind)) {
                QString text = firm->name + "/" + firm->fullname + "/" + firm->nip;
                while (text.endsWith('/'))
                    text.chop(1);
                texts.append(text);
            }
            kept.append(texts.join(','));
        }
        QCOMPARE(kept.join('|'), lists);
        QStringList made;
        QStringList sold;
        for (const auto &present : m_database->groups[0]->items) {
            QStringList texts;
            for (const auto &maker : present->manufacturers.items)
                texts.append(maker->name);
            made.append(texts.join(' '));
            sold.append(present->suppliers.items.empty() ? "" : present->suppliers.items[0]->name);
        }
        QCOMPARE(made.join(',') + "|" + sold.join(','), materials);
    }

    // Orders of a folder, and the one that is open.
    void figures()
    {
        const QTemporaryDir folder;
        const auto path = [&folder](const QString &name) { return folder.filePath(name); };
        const auto order = [&path](const char *name, const char *date, const char *ktms) {
            QString text = R"(<kiv_mat_zp><options><option type="ORDER_DATE" value1="%1"/></options><order_items>)";
            text = text.arg(date);
            for (const QString &ktm : QString(ktms).split(' '))
                text += "<order_item><ktm>" + ktm + "</ktm></order_item>";
            testSupport::write(path(name), (text + "</order_items></kiv_mat_zp>").toUtf8());
        };
        order("a.xml", "03.02.2026", "1 1 2");
        order("b.xml", "16.11.2026", "2 9");
        testSupport::write(path("broken.xml"), "<kiv_mat_zp><order_items><order_item><ktm>1</ktm>");
        testSupport::write(path("other.xml"), "<kiv_mat_firm><ktm>1</ktm></kiv_mat_firm>");
        orderScan scan;
        QVERIFY(scan.update({folder.path()}));
        auto its = figuresOf({m_database.get()}, {}, scan.orders());
        const auto seen = [&its](firmKind kind, const QString &name) {
            const firmFigures found = its[kind].value(name);
            return QString("%1 %2 ").arg(found.materials).arg(found.orders) + found.lastUsed.toString("yyyyMMdd");
        };
        QCOMPARE(seen(firmOperations::manufacturer, "A"), QString("1 1 20260203"));
        QCOMPARE(seen(firmOperations::manufacturer, "B"), QString("2 2 20261116"));
        QCOMPARE(seen(firmOperations::supplier, "A"), QString("1 2 20261116"));
        QCOMPARE(seen(firmOperations::manufacturer, "a"), QString("1 0 "));
        // Read again when it changed, forgotten when it is gone; a name planned counts already.
        order("a.xml", "24.12.2026", "3 1 1 3"); // of another size: both may be written in one tick of the clock
        QVERIFY(QFile::remove(path("b.xml")));
        QVERIFY(scan.update({folder.path()}));
        renameStep step;
        step[firmOperations::manufacturer] = {{"a", "A"}};
        its = figuresOf({m_database.get()}, {step}, scan.orders());
        QCOMPARE(seen(firmOperations::manufacturer, "A"), QString("2 1 20261224"));
        QCOMPARE(seen(firmOperations::supplier, "A"), QString("1 0 "));
        QVERIFY(!orderScan().update({folder.path()}, [](long long, long long) { return false; }));
    }

private:
    using names = QHash<QString, QString>;
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
};

KIVZP_TEST(tst_firmOperations)
#include "tst_firmOperations.moc"

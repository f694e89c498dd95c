// Which materials use a firm, what a new name does to them, and where a home page leads.
#include "testSupport.h"

#include "data/kiv_mat_databaseStruct.h"
#include "firm/firmOperations.h"

using namespace firmOperations;
Q_DECLARE_METATYPE(firmOperations::firmKind)

class tst_firmOperations : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void uses_data();
    void uses();
    void renamed_data();
    void renamed();
    void homePages_data();
    void homePages();

private:
    // "KTM: manufacturers / suppliers" of all materials.
    QStringList shown() const;

    std::unique_ptr<kiv_mat_databaseStruct> m_database;
};

void tst_firmOperations::init()
{
    m_database = std::make_unique<kiv_mat_databaseStruct>();
    m_database->fileName = "db.xml";
    const auto add = [this](const QString &ktm, const QStringList &made, const QStringList &sold) {
        m_database->groups.push_back(std::make_unique<d_groupStruct>());
        auto *material = m_database->groups.back()->append(std::make_unique<materialStruct>());
        material->d_ktm = ktm;
        material->d_name = "<" + ktm + ">";
        for (const QString &name : made)
            material->manufacturers.append(std::make_unique<manufacturerStruct>())->name = name;
        for (const QString &name : sold)
            material->suppliers.append(std::make_unique<supplierStruct>())->name = name;
    };
    add("1", {"A", "B", "A"}, {"TME"});
    add("2", {"B"}, {"A"});
    add("3", {"a", ""}, {});
}

QStringList tst_firmOperations::shown() const
{
    QStringList lines;
    for (const auto &group : m_database->groups)
        for (const auto &material : group->items) {
            QString line = material->d_ktm + ":";
            for (const auto &source : material->manufacturers.items)
                line += " " + source->name;
            line += " /";
            for (const auto &source : material->suppliers.items)
                line += " " + source->name;
            lines.append(line);
        }
    return lines;
}

void tst_firmOperations::uses_data()
{
    QTest::addColumn<firmKind>("kind");
    QTest::addColumn<QStringList>("firms");
    QTest::addColumn<bool>("planned");
    QTest::addColumn<QStringList>("found"); // firm and KTM
    QTest::newRow("maker") << manufacturer << QStringList("A") << false << QStringList("A1");
    QTest::newRow("seller") << supplier << QStringList("A") << false << QStringList("A2");
    QTest::newRow("two") << manufacturer << QStringList({"A", "B"}) << false
                         << QStringList({"A1", "B1", "B2"});
    QTest::newRow("empty") << manufacturer << QStringList("") << false << QStringList();
    QTest::newRow("none") << manufacturer << QStringList() << false << QStringList();
    // B is to be A, and A is to be C.
    QTest::newRow("planned") << manufacturer << QStringList({"A", "B", "C"}) << true
                             << QStringList({"C1", "A1", "A2"});
    QTest::newRow("other kind") << supplier << QStringList("A") << true << QStringList("A2");
}

void tst_firmOperations::uses()
{
    QFETCH(QStringList, firms);
    QFETCH(firmKind, kind);
    QFETCH(bool, planned);
    renameStep step;
    step[manufacturer] = {{"B", "A"}, {"A", "C"}};
    QStringList found;
    const auto uses = usesOf(QSet<QString>(firms.begin(), firms.end()), kind, {m_database.get()},
                             planned ? renameList{step} : renameList());
    for (const firmUse &use : uses)
        found.append(use.firm + use.material->d_ktm);
    QTEST(found, "found");
    if (!uses.empty())
        QVERIFY(useLines(uses)[0].contains("&lt;" + uses[0].material->d_ktm + "&gt; [db.xml]"));
}

void tst_firmOperations::renamed_data()
{
    using names = QHash<QString, QString>;
    QTest::addColumn<QVector<names>>("makers");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<int>("changed");
    QTest::newRow("nothing") << QVector<names>() << shown() << 0;
    QTest::newRow("exactly") << QVector<names>{{{"A", "X"}}}
                             << QStringList({"1: X B X / TME", "2: B / A", "3: a  /"}) << 2;
    QTest::newRow("exchanged") << QVector<names>{{{"A", "B"}, {"B", "A"}}}
                               << QStringList({"1: B A B / TME", "2: A / A", "3: a  /"}) << 4;
    QTest::newRow("one after the other")
        << QVector<names>{{{"A", "B"}}, {{"B", "C"}}}
        << QStringList({"1: C C C / TME", "2: C / A", "3: a  /"}) << 4;
    QTest::newRow("there and back") << QVector<names>{{{"A", "X"}}, {{"X", "A"}}}
                                    << QStringList({"1: A B A / TME", "2: B / A", "3: a  /"}) << 0;
}

void tst_firmOperations::renamed()
{
    using names = QHash<QString, QString>;
    QFETCH(QVector<names>, makers);
    renameList steps;
    for (const names &step : makers) {
        steps.emplace_back();
        steps.back()[manufacturer] = step;
    }
    const auto changes = changesOf(*m_database, steps);
    QTEST(int(changes.size()), "changed");
    const QStringList before = shown();
    revertNames(changes);
    QCOMPARE(shown(), before);
    applyNames(changes);
    QFETCH(QStringList, after);
    if (!makers.isEmpty())
        QCOMPARE(shown(), after);
}

void tst_firmOperations::homePages_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("url");
    QTest::newRow("whole") << "https://www.ti.com/a?b=c"
                           << "https://www.ti.com/a?b=c";
    QTest::newRow("short") << " www.ti.com "
                           << "http://www.ti.com";
    QTest::newRow("default") << "http://www"
                             << "";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("file") << "file:///etc/passwd"
                          << "";
    QTest::newRow("path") << "/etc/passwd"
                          << "";
    QTest::newRow("script") << "javascript:alert(1.0)"
                            << "";
    QTest::newRow("text") << "no page at all"
                          << "";
}

void tst_firmOperations::homePages()
{
    QFETCH(QString, text);
    QTEST(homePage(text).toString(), "url");
}

KIVZP_TEST(tst_firmOperations)
#include "tst_firmOperations.moc"

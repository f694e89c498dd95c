// The findings of a database: what is found, that it is kept in step with every change, and its files.
#include "testSupport.h"

#include "database/databaseFindings.h"

#include <QJsonDocument>

#include <map>

using namespace testSupport;

namespace {

// "kind field detail", a line each.
QStringList told(const std::vector<finding> &found)
{
    QStringList lines;
    for (const finding &one : found)
        lines.append(QStringList({findingText::key(one.kind), one.field, one.detail}).join(' ').trimmed());
    return lines;
}

} // namespace

class tst_databaseFindings : public folderTest
{
    Q_OBJECT
private slots:
    void init() override
    {
        folderTest::init();
        m_folder->write("docs/there.pdf", "x");
        m_firms.manufacturers.items.clear();
        m_firms.suppliers.items.clear();
        appendTo(m_firms.manufacturers)->name = "Bourns";
        appendTo(m_firms.suppliers)->name = "TME";
    }

    void faults_data()
    {
        const rows<QString, QStringList> row;
        row("good", "", {});
        row("KTM", "d_ktm=31711-01.01-00001", {"ktm d_ktm 31711-01.01-00001"});
        row("CPV", "d_cpv=317", {"cpv d_cpv 317"});
        row("no KTM", "d_ktm= ", {"empty d_ktm"});
        row("no unit", "d_unit=\t", {"empty d_unit"});
        row("no status", "status=", {"empty status"});
        row("firms without names", "maker= ", {"empty manufacturers"});
        row("no firms", "none=", {"empty manufacturers"});
        row("unknown maker", "maker=TME", {"firm manufacturers TME"});
        row("unknown supplier", "supplier=Bourns", {"firm suppliers Bourns"});
        row("written otherwise", "maker= bourns", {"firm manufacturers  bourns (it has Bourns)"});
        row("address", "link=https://www.ti.com/a b.pdf?x=[1]", {});
        row("no host", "link=http:///a.pdf", {"link file http:///a.pdf"});
        row("no such host", "link=http://[a", {"link file http://[a"});
        row("no scheme", "link=www.ti.com/a.pdf", {"link file www.ti.com/a.pdf"});
        row("half a scheme", "link=http//ti.com", {"link file http//ti.com"});
        row("other scheme", "link=htp://ti.com", {"link file htp://ti.com"});
        row("mail", "link=mailto:a@b.pl", {});
        row("no address", "link= ", {"link file"});
        row("file", "link=docs/there.pdf", {});
        row("absolute file", "link=%/docs/there.pdf", {});
        row("file as address", "link=file://%/docs/there.pdf", {});
        row("missing", "link=docs/none.pdf", {"file file docs/none.pdf"});
        row("missing elsewhere", "link=file:///none/a.pdf", {"file file file:///none/a.pdf"});
        row("missing on another system", "link=C:\\docs\\a.pdf", {"file file C:\\docs\\a.pdf"});
    }

    void faults()
    {
        const auto [change, expected] = fetch<QString, QStringList>();
        kiv_mat_databaseStruct database;
        materialStruct *m = good(database, "317111-01.01-00001");
        const QString value = change.section('=', 1).replace('%', m_folder->path());
        const QHash<QString, std::function<void()>> set{{"d_ktm", [&] { m->d_ktm = value; }},
                                                        {"d_cpv", [&] { m->d_cpv = value; }},
                                                        {"d_unit", [&] { m->d_unit = value; }},
                                                        {"status", [&] { m->information.status = value; }},
                                                        {"maker", [&] { m->manufacturers.items[0]->name = value; }},
                                                        {"supplier", [&] { supplier(m, value); }},
                                                        {"none", [&] { m->manufacturers.items.clear(); }},
                                                        // What stands twice is told once.
                                                        {"link", [&] {
                                                             for (int i = 0; i < 2; ++i)
                                                                 appendTo(m->manufacturers.items[0]->files)->name =
                                                                     value;
                                                         }}};
        if (!change.isEmpty())
            set[change.section('=', 0, 0)]();
        databaseFindings checks({m_folder->path()});
        checks.setFirms(m_firms);
        const auto found = checks.check(database);
        QCOMPARE(told(*found), expected);
        for (const finding &one : *found) {
            QVERIFY(one.material == m && one.ktm == m->d_ktm && one.groupName == "G");
            QVERIFY(!findingText::reason(one).contains("%1"));
        }
    }

    void groupsAndDuplicates()
    {
        kiv_mat_databaseStruct database;
        const QString ktm = "317111-01.01-0000%1";
        for (int i = 1; i <= 6; ++i) {
            materialStruct *m = good(database, i < 3 ? ktm.arg(1) : ktm.arg(i));
            m->d_name = QString("M%1").arg(i);
            // The same part twice in one material is no duplicate.
            manufacturer(m, i % 2 ? "BOURNS" : "Bourns ", i == 2 ? "other" : "X");
            manufacturer(m, "Bourns", i == 2 ? "other" : "x");
        }
        database.groups[0]->cpv = "7";
        databaseFindings checks;
        const auto found = checks.check(database);
        const QString other = "317111-01.01-0000";
        QCOMPARE(
            told(*found),
            QStringList(
                {"cpv d_cpv 7", "duplicate d_ktm M2 [G]",
                 QString("duplicate manufacturers %13 M3 [G], %14 M4 [G], %15 M5 [G] and 1 more").replace("%1", other),
                 "duplicate d_ktm M1 [G]",
                 QString("duplicate manufacturers %11 M1 [G], %14 M4 [G], %15 M5 [G] and 1 more").replace("%1", other),
                 QString("duplicate manufacturers %11 M1 [G], %13 M3 [G], %15 M5 [G] and 1 more").replace("%1", other),
                 QString("duplicate manufacturers %11 M1 [G], %13 M3 [G], %14 M4 [G] and 1 more").replace("%1", other),
                 QString("duplicate manufacturers %11 M1 [G], %13 M3 [G], %14 M4 [G] and 1 more")
                     .replace("%1", other)}));
        QVERIFY(!found->front().material && found->front().record() == database.groups[0].get());
    }

    void cancelledIsNothing()
    {
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 200; ++i)
            material(database, "G", "K");
        databaseFindings checks;
        QVERIFY(!checks.check(database, [](long long done, long long) { return done < 100; }));
        checks.willChange(database.groups[0]->items[0].get());
        QVERIFY(!checks.hasChanges());
    }

    // What the register or an answer changes is told of the materials that it concerns.
    void registerAndAnswers()
    {
        kiv_mat_databaseStruct database;
        materialStruct *m = good(database, "317111-01.01-00001");
        appendTo(m->manufacturers.items[0]->files)->name = "http://a.pl";
        good(database, "317111-01.01-00002")->manufacturers.items[0]->name = "Vishay";
        databaseFindings checks;
        QCOMPARE(told(*checks.check(database)), QStringList());
        checks.setFirms(m_firms);
        QCOMPARE(told(checks.takeChanges(100).found), QStringList("firm manufacturers Vishay"));
        appendTo(m_firms.manufacturers)->name = "Vishay";
        appendTo(m_firms.manufacturers)->name = "Yageo";
        checks.setFirms(m_firms);
        auto changes = checks.takeChanges(100);
        QCOMPARE(changes.records, QSet<const xmlData *>{database.groups[0]->items[1].get()});
        QCOMPARE(told(changes.found), QStringList());
        checks.setDeadLinks({{"http://a.pl", "today"}, {"http://b.pl", "today"}});
        changes = checks.takeChanges(100);
        QCOMPARE(changes.records, QSet<const xmlData *>{m});
        QCOMPARE(told(changes.found), QStringList("link file http://a.pl (today)"));
        checks.setDeadLinks({});
        QCOMPARE(told(checks.takeChanges(100).found), QStringList());
    }

    // Whatever changes, what was found is what a new check finds.
    // A material of a BOM list is to have a status with which it may be ordered.
    void statusOfListedOnes()
    {
        kiv_mat_databaseStruct database;
        const char *const ktms[] = {"317111-01.01-00001", "317111-01.01-00002", "317111-01.01-00003"};
        for (const char *ktm : ktms)
            good(database, ktm);
        database.groups[0]->items[0]->information.status = "ZIELONY";
        materialStruct *grey = database.groups[0]->items[1].get();
        grey->information.status = "szary";
        databaseFindings checks;
        QCOMPARE(told(*checks.check(database)), QStringList());
        checks.setLists({{ktms[0], {"a"}}, {ktms[1], {"a", "b", "c", "d", "e"}}, {"X", {"a"}}});
        QVERIFY(checks.hasChanges());
        QCOMPARE(told(checks.takeChanges(9).found), QStringList("status status a, b, c and 2 more"));
        QCOMPARE(told(*checks.check(database)), QStringList("status status a, b, c and 2 more"));
        checks.willChange(grey);
        grey->information.status = "ZIELONY";
        const auto changed = checks.takeChanges(9);
        QVERIFY(changed.found.empty() && changed.records == QSet<const xmlData *>{grey});
        checks.setLists({{ktms[1], {"a"}}, {ktms[2], {"f"}}});
        QCOMPARE(told(checks.takeChanges(9).found), QStringList("status status f"));
        checks.setLists({{ktms[1], {"a"}}, {ktms[2], {"f"}}});
        QVERIFY(!checks.hasChanges());
    }

    void followsEveryChange()
    {
        size_t most = 0;
        QRandomGenerator random(7);
        kiv_mat_databaseStruct database;
        const auto ktm = [&] { return QString("317111-01.01-%1").arg(random.bounded(12), 5, 10, QChar('0')); };
        const auto changeSome = [&](materialStruct *m) {
            switch (random.bounded(4)) {
            case 0:
                m->d_ktm = ktm();
                break;
            case 1:
                m->d_cpv = random.bounded(2) ? "31711000-1" : "x";
                break;
            case 2:
                m->manufacturers.items[0]->partNo = QString::number(random.bounded(20));
                break;
            default:
                m->d_name = QString("M%1").arg(random.bounded(100));
            }
        };
        for (int i = 0; i < 30; ++i)
            good(database, ktm(), QString("G%1").arg(i % 4));
        databaseFindings checks;
        std::multimap<const xmlData *, finding> present;
        const auto found = checks.check(database);
        for (const finding &one : *found)
            present.emplace(one.record(), one);
        std::vector<std::unique_ptr<materialStruct>> taken;
        for (int step = 0; step < 2000; ++step) {
            d_groupStruct *group = database.groups[random.bounded(int(database.groups.size()))].get();
            const int at = group->items.empty() ? -1 : random.bounded(int(group->items.size()));
            materialStruct *m = at < 0 ? nullptr : group->items[at].get();
            switch (random.bounded(6)) {
            case 0:
                if (m) {
                    checks.willBeTaken(m);
                    taken.push_back(std::move(group->items[at]));
                    group->items.erase(group->items.begin() + at);
                }
                break;
            case 1:
                if (!taken.empty()) {
                    checks.inserted(group->append(std::move(taken.back())), group);
                    taken.pop_back();
                }
                break;
            case 2:
                group->cpv = random.bounded(2) ? "7" : "";
                group->name = QString("G%1").arg(step);
                checks.changed(group);
                break;
            case 3:
                if (database.groups.size() > 3 && step % 5 == 0) {
                    checks.willBeTaken(group);
                    std::erase_if(database.groups, [group](const auto &one) { return one.get() == group; });
                } else if (database.groups.size() < 6) {
                    good(database, ktm(), QString("New%1").arg(step));
                    checks.inserted(database.groups.back().get());
                }
                break;
            default:
                if (m) {
                    checks.willChange(m);
                    changeSome(m);
                }
            }
            if (random.bounded(3) > 0)
                continue;
            while (checks.hasChanges()) {
                const auto changes = checks.takeChanges(5);
                for (const xmlData *record : changes.records)
                    present.erase(record);
                for (const finding &one : changes.found)
                    present.emplace(one.record(), one);
            }
            most = std::max(most, present.size());
            std::vector<finding> now;
            for (const auto &[record, one] : present)
                now.push_back(one);
            QCOMPARE(comparable(now), comparable(*databaseFindings().check(database)));
        }
        QVERIFY(most > 5);
    }

    void exports()
    {
        kiv_mat_databaseStruct database;
        material(database, "G;1", "a\"b", "two\nlines")->d_description = "d";
        databaseFindings checks;
        const auto found = checks.check(database);
        std::vector<const finding *> wanted;
        for (const finding &one : *found)
            if (one.kind == findingKind::ktm || one.field == QLatin1String("d_unit"))
                wanted.insert(wanted.begin(), &one);
        const QString csv = m_folder->path("a.csv");
        const QString xlsx = m_folder->path("a.xlsx");
        QCOMPARE(exportFindings(wanted, csv).files, QStringList(csv));
        QCOMPARE(QString::fromUtf8(read(csv)),
                 QString("\ufeffKind;KTM;Material;Group;Field;Reason\r\n"
                         "KTM;\"a\"\"b\";\"two\nlines\";\"G;1\";KTM;\"\"\"a\"\"b\"\" has not the form "
                         "XXXXXX-XX.XX-XXXXXX\"\r\n"
                         "Empty field;\"a\"\"b\";\"two\nlines\";\"G;1\";Unit;empty\r\n"));
        QCOMPARE(exportFindings(wanted, xlsx).result, exportResult::done);
        const QJsonDocument sheets = QJsonDocument::fromJson(
            run("/usr/bin/python3", {source("tests/files/readWorkbook.py"), xlsx}).out.toUtf8());
        // The same cells: here without what parts them.
        const QString cells = QString(sheets.toJson(QJsonDocument::Compact)).remove('[').remove(']');
        QCOMPARE(cells, "\"Checks\",\"Kind\",\"KTM\",\"Material\",\"Group\",\"Field\",\"Reason\","
                        "\"KTM\",\"a\\\"b\",\"two\\nlines\",\"G;1\",\"KTM\","
                        "\"\\\"a\\\"b\\\" has not the form XXXXXX-XX.XX-XXXXXX\","
                        "\"Empty field\",\"a\\\"b\",\"two\\nlines\",\"G;1\",\"Unit\",\"empty\"");
        // Given up or refused, nothing is left.
        for (const char *name : {"b.csv", "b.xlsx"}) {
            const QString path = m_folder->path(name);
            QCOMPARE(exportFindings(wanted, path, [](long long, long long) { return false; }).result,
                     exportResult::cancelled);
            QVERIFY(!QFile::exists(path));
            const exportResult refused = exportFindings(wanted, m_folder->path("docs/there.pdf/") + name);
            QVERIFY(refused.result == exportResult::failed && refused.error.contains(name));
        }
    }

private:
    // A material that has everything.
    static materialStruct *good(kiv_mat_databaseStruct &database, const QString &ktm, const QString &group = "G")
    {
        materialStruct *m = material(database, group, ktm, "n");
        m->d_cpv = "31711000-1";
        m->d_description = "d";
        m->d_price = "1";
        m->d_unit = "pcs.";
        m->information.status = "SZARY";
        manufacturer(m, "Bourns", {});
        return m;
    }

    // The others that a duplicate names stand in no order.
    static QStringList comparable(const std::vector<finding> &found)
    {
        QStringList lines;
        for (const finding &one : found) {
            QStringList others = one.detail.split(", ");
            others.sort();
            const QString detail = one.detail.contains(" more") ? one.detail.section("and ", 1) : others.join(", ");
            lines.append(QString("%1 %2 %3 %4 %5 %6 %7")
                             .arg(quintptr(one.record()))
                             .arg(findingText::key(one.kind), one.ktm, one.name, one.groupName, one.field, detail));
        }
        lines.sort();
        return lines;
    }

    kiv_mat_firmStruct m_firms;
};

KIVZP_TEST(tst_databaseFindings)
#include "tst_databaseFindings.moc"

// One material in the place of another: what that changes in lists and orders, and that of several files all are
// written or none.
#include "testSupport.h"

#include "bom/materialReplacement.h"
#include "data/configStruct.h"
#include "data/loaders.h"
#include "util/fileVersions.h"

#include <unistd.h>

using namespace testSupport;
using namespace materialReplacement;

namespace {

using readOne = materialReplacement::document;

const char *const header = "<index>7</index><name>Old</name><price>1</price><average_price>2</average_price>"
                           "<in_warehouse>3</in_warehouse><quantity>4,5</quantity>";
const char *const footer = "<wait>01.02.2027</wait><rohs_required>NIE</rohs_required><target>T-1</target>"
                           "<ktm>OLD</ktm><cpv>31700000-3</cpv><delivery>D</delivery><invoice>FV</invoice>"
                           "<attentions>A</attentions>";

QByteArray orderLine(const QByteArray &ktm, const QByteArray &unit, const QByteArray &description = {})
{
    return "<order_item>" + QByteArray(header) + "<unit>" + unit + "</unit><description>" + description
           + "</description>" + QByteArray(footer).replace("OLD", ktm) + "</order_item>";
}
QByteArray listLine(const QByteArray &ktm)
{
    return "<material><d_ktm>" + ktm
           + "</d_ktm><d_name>Own</d_name><d_quantity>2,5</d_quantity>"
             "<d_designator>R1, R2</d_designator><d_price>9</d_price></material>";
}

} // namespace

class tst_materialReplacement : public folderTest
{
    Q_OBJECT

    kiv_mat_databaseStruct m_database;
    ktmIndex m_index;
    configStruct m_config;

    materialStruct &material(const QString &ktm) { return *m_index.find(ktm)->material; }
    replacement wanted(const QString &before, const QString &after)
    {
        QString fault;
        const replacement what = replacementOf(before, after, m_index, &fault);
        m_fault = fault;
        return what;
    }
    QString m_fault;

    std::vector<readOne> readAll(const QStringList &names) const
    {
        QStringList paths;
        for (const QString &name : names)
            paths.append(m_folder->path(name));
        return std::move(*readFiles(paths));
    }
    static std::vector<readOne *> all(std::vector<readOne> &documents)
    {
        std::vector<readOne *> chosen;
        for (readOne &in : documents)
            chosen.push_back(&in);
        return chosen;
    }
    // "line:quantity detail [remarks]", of a document that holds those lines.
    QString told(const QByteArray &content, bool isOrder, const replacement &what)
    {
        m_folder->write("d.xml", isOrder ? order("<order_items>" + content + "</order_items>") : bom(content));
        const auto documents = readAll({"d.xml"});
        const change of = changeOf(documents.front(), what);
        QStringList lines;
        for (const line &one : of.lines)
            lines.append(QString("%1:%2 %3").arg(one.number).arg(one.quantity, one.detail)
                         + (one.otherUnit ? " unit" : "") + (one.ownText ? " text" : ""));
        return lines.join('|') + (of.standsTwice ? " twice" : "") + (of.refusal.isEmpty() ? "" : " refused");
    }

private slots:
    void init() override
    {
        folderTest::init();
        m_database.groups.clear();
        m_index.clear();
        m_database.groups.push_back(std::make_unique<d_groupStruct>());
        for (const char *row : {"OLD pcs. GRAY", "NEW pcs. ZIELONY", "METRE m NIEBIESKI", "GREY pcs. SZARY",
                                "NONE pcs.", "SRV-001.100 pcs. ZIELONY"}) {
            const QStringList cells = QString(row).split(' ');
            materialStruct *added = appendTo(*m_database.groups.front());
            added->d_ktm = cells[0];
            added->d_name = "Name of " + cells[0];
            added->d_description = "About " + cells[0];
            added->d_unit = cells[1];
            added->d_price = "0.25";
            added->d_averagePrice = "0.30";
            added->d_inWarehouse = "100";
            added->d_cpv = "31711000-3";
            added->information.status = cells.value(2);
        }
        m_index.add(&m_database);
        m_config.setDefaults();
        m_config.backupPath();
        m_config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("backup");
    }

    void materials_data()
    {
        const rows<QString, QString, QString, QString> row;
        row("good", "OLD", "NEW", "", "");
        row("unknown old one", "999999-99.99-00001", "NEW", "", "");
        row("no old one", "", "NEW", "no material to replace", "");
        row("no new one", "OLD", "", "no new material", "");
        row("the same", "NEW", "NEW", "the same", "");
        row("unknown new one", "OLD", "X", "no database has the material X", "");
        row("grey", "OLD", "GREY", "", "(GRAY)");
        row("no status", "OLD", "NONE", "", "(none)");
    }
    void materials()
    {
        const auto [before, after, fault, remark] = fetch<QString, QString, QString, QString>();
        const replacement what = wanted(before, after);
        QVERIFY2(m_fault.contains(fault) && m_fault.isEmpty() == fault.isEmpty(), qPrintable(m_fault));
        QCOMPARE(what.after != nullptr, fault.isEmpty());
        const QString told = statusRemark(what);
        QVERIFY2(told.contains(remark) && told.isEmpty() == remark.isEmpty(), qPrintable(told));
    }

    void changes_data()
    {
        const rows<bool, QByteArray, QString, QString> row;
        const QByteArray other = listLine("X");
        row("list", false, other + listLine("OLD"), "NEW", "1:2,5 R1, R2");
        row("two lines", false, listLine("OLD") + other + listLine("OLD"), "NEW", "0:2,5 R1, R2|2:2,5 R1, R2 twice");
        row("there already", false, listLine("NEW") + listLine("OLD"), "NEW", "1:2,5 R1, R2 twice");
        row("no line of it", false, listLine("NEW") + listLine("NEW"), "NEW", "");
        row("of another unit", false, listLine("OLD"), "METRE", "0:2,5 R1, R2 unit");
        row("order", true, orderLine("X", "pcs.") + orderLine("OLD", "pcs."), "NEW", "1:4,5 T-1");
        row("no unit is pieces", true, orderLine("OLD", ""), "NEW", "0:4,5 T-1");
        row("other unit", true, orderLine("OLD", "pcs."), "METRE", "0:4,5 T-1 unit");
        row("description of the old one", true, orderLine("OLD", "pcs.", "About OLD"), "NEW", "0:4,5 T-1");
        row("own description", true, orderLine("OLD", "pcs.", "for the lab"), "NEW", "0:4,5 T-1 text");
        row("of which an order takes one", true, orderLine("SRV-001.100", "") + orderLine("OLD", ""), "SRV-001.100",
            "1:4,5 T-1 twice refused");
        row("the first of those", true, orderLine("OLD", ""), "SRV-001.100", "0:4,5 T-1");
    }
    void changes()
    {
        const auto [isOrder, content, after, expected] = fetch<bool, QByteArray, QString, QString>();
        QCOMPARE(told(content, isOrder, wanted("OLD", after)), expected);
    }

    // What is read again of the written files.
    void writtenLines()
    {
        m_folder->write("a.xml", bom("<update>u</update>" + listLine("X") + listLine("OLD")));
        m_folder->write("b.xml", order("<order_items>" + orderLine("OLD", "m", "About OLD") + orderLine("X", "m")
                                       + "</order_items><attentions>all</attentions>"));
        auto documents = readAll({"a.xml", "b.xml"});
        QString fault;
        QCOMPARE(replaceInFiles(all(documents), wanted("OLD", "NEW"), m_config, {}, &fault), togetherResult::saved);
        kiv_mat_bomStruct list;
        kiv_mat_zpStruct order;
        QCOMPARE(loadBom(m_folder->path("a.xml"), &list), 0);
        QCOMPARE(loadZp(m_folder->path("b.xml"), &order), 0);
        const materialStruct &line = *list.materials[1];
        QCOMPARE(QStringList({list.materials[0]->d_ktm, line.d_ktm, line.d_name, line.d_quantity, line.d_designator}),
                 QStringList({"X", "NEW", "Name of NEW", "2,5", "R1, R2"}));
        QStringList texts;
        for (const auto &field : orderItemStruct::fields())
            texts.append((*order.orderItems.items[0]).*field.member);
        QCOMPARE(texts.join('|'), QString("7|Name of NEW|0.25|0.30|100|4,5|pcs.|01.02.2027|About NEW|NIE|T-1|NEW|"
                                          "31711000-3|D|FV|A"));
        QCOMPARE(order.orderItems.items[1]->ktm, QString("X"));
        QCOMPARE(order.attentions, QString("all"));
    }

    // A file is there once, however it is named, and what cannot be read or would lose something says why.
    void readFilesOnce()
    {
        m_folder->write("a.xml", bom(listLine("OLD")));
        m_folder->write("broken.xml", "<kiv_mat_bom>");
        m_folder->write("other.xml", database(""));
        QVERIFY(QFile::link(m_folder->path("a.xml"), m_folder->path("link.xml")));
        const auto documents = readAll({"link.xml", "./a.xml", "a.xml", "none.xml", "broken.xml", "other.xml"});
        QCOMPARE(documents.size(), size_t(4));
        QVERIFY(documents[0].list && documents[0].fault.isEmpty());
        for (size_t i : {1, 2, 3})
            QVERIFY2(!documents[i].list && !documents[i].order && !documents[i].fault.isEmpty(),
                     qPrintable(documents[i].path));
        QVERIFY(!readFiles({m_folder->path("a.xml")}, [](long long, long long) { return false; }));
        // The link still leads to the file.
        auto linked = readAll({"link.xml"});
        QString fault;
        QCOMPARE(replaceInFiles(all(linked), wanted("OLD", "NEW"), m_config, {}, &fault), togetherResult::saved);
        QVERIFY(QFileInfo(m_folder->path("link.xml")).isSymLink());
        QVERIFY(read(m_folder->path("a.xml")).contains("NEW"));
    }

    void allOrNothing_data()
    {
        // What happens at which step: of nine, the first three write beside the files, three keep versions, three put
        // the new files in place.
        const rows<QString, int, QString> row;
        row("good", "", 0, "");
        row("changed before", "change", 0, "b.xml: it was changed meanwhile");
        row("changed while files are kept", "change", 4, "b.xml: it was changed meanwhile");
        row("changed while files are put in place", "change", 7, "b.xml: it was changed meanwhile");
        row("the last one changed", "changeLast", 8, "c.xml: it was changed meanwhile");
        row("gone", "remove", 7, "b.xml: it is gone");
        row("open elsewhere", "lock", 0, "b.xml: it is open in KivZP, elsewhere, 4242");
        row("a text that no file can hold", "text", 0, "a.xml: a text has a character");
        row("no folder for versions", "backup", 0, "a.xml: no earlier version could be kept");
        row("cancelled at once", "cancel", 1, "cancelled");
        row("cancelled", "cancel", 5, "cancelled");
        row("cancelled too late", "cancel", 7, "");
    }
    void allOrNothing()
    {
        const auto [what, when, expected] = fetch<QString, int, QString>();
        m_folder->write("f/a.xml", bom(listLine("OLD")));
        m_folder->write("f/b.xml", order("<order_items>" + orderLine("OLD", "pcs.") + "</order_items>"));
        m_folder->write("f/c.xml", bom(listLine("OLD") + listLine("OLD")));
        QFile::setPermissions(m_folder->path("f/a.xml"), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        const QStringList names{"f/a.xml", "f/b.xml", "f/c.xml"};
        QList<QByteArray> before;
        for (const QString &name : names)
            before.append(read(m_folder->path(name)));
        const QDateTime time = QFileInfo(m_folder->path("f/a.xml")).lastModified();
        auto documents = readAll(names);
        QCOMPARE(documents.size(), size_t(3));
        const replacement wantedOne = wanted("OLD", "NEW");

        const QString happening = what;
        const auto happens = [&, happening] {
            if (happening == "change")
                m_folder->write("f/b.xml", before[1] = order("<!-- other -->"));
            else if (happening == "changeLast")
                m_folder->write("f/c.xml", before[2] = bom("<!-- other -->"));
            else if (happening == "remove" && QFile::remove(m_folder->path("f/b.xml")))
                before[1].clear();
            else if (happening == "lock")
                m_folder->write("f/.b.xml.lock", "4242\nKivZP\nelsewhere\n");
            else if (happening == "text")
                material("NEW").d_name = QChar(1);
            else if (happening == "backup")
                m_config.options.findOption("PATH_BACKUP")->value1 = m_folder->path("f/a.xml/backup");
        };
        if (when == 0)
            happens();
        const int at = when;
        const progressFunction progress = [&](long long done, long long) {
            if (done == at)
                happens();
            return happening != "cancel" || done < at;
        };
        QString fault;
        const togetherResult result = replaceInFiles(all(documents), wantedOne, m_config, progress, &fault);
        const QString told = result == togetherResult::cancelled ? "cancelled" : fault;
        QVERIFY2(told.contains(expected) && told.isEmpty() == expected.isEmpty(), qPrintable(told));
        QCOMPARE(result == togetherResult::saved, expected.isEmpty());
        for (int i = 0; i < names.size(); ++i) {
            const QByteArray now = read(m_folder->path(names[i]));
            if (expected.isEmpty())
                QVERIFY2(now.contains("NEW") && !now.contains("OLD"), now.constData());
            else
                QCOMPARE(now, before[i]);
            if (expected.isEmpty())
                QCOMPARE(fileVersions::of(m_folder->path(names[i]), m_folder->path("backup")).size(), 1);
        }
        if (!expected.isEmpty())
            QCOMPARE(QFileInfo(m_folder->path("f/a.xml")).lastModified(), time);
        QVERIFY(!(QFile::permissions(m_folder->path("f/a.xml")) & QFile::ReadOther));
        // Nothing is left beside the files.
        QStringList there = QDir(m_folder->path("f")).entryList(QDir::Files | QDir::Hidden);
        there.removeAll(".b.xml.lock");
        if (happening == "remove")
            there.append("b.xml");
        there.sort();
        QCOMPARE(there, QStringList({"a.xml", "b.xml", "c.xml"}));
    }

    void readOnlyFolder()
    {
        m_folder->write("open/a.xml", bom(listLine("OLD")));
        m_folder->write("locked/b.xml", bom(listLine("OLD")));
        const auto everybody = QFile::Permissions(0x7777);
        for (const char *name : {"", "open"})
            QFile::setPermissions(m_folder->path(name), everybody);
        QFile::setPermissions(m_folder->path("locked"), QFile::Permissions(0x5555));
        auto documents = readAll({"open/a.xml", "locked/b.xml"});
        // Permissions stop everybody but root.
        const bool root = geteuid() == 0;
        const uid_t nobody = 65534;
        QVERIFY(!root || seteuid(nobody) == 0);
        QString fault;
        const togetherResult result = replaceInFiles(all(documents), wanted("OLD", "NEW"), m_config, {}, &fault);
        QVERIFY(!root || seteuid(0) == 0);
        QFile::setPermissions(m_folder->path("locked"), everybody);
        QCOMPARE(result, togetherResult::failed);
        QVERIFY2(fault.contains("b.xml"), qPrintable(fault));
        for (const char *name : {"open/a.xml", "locked/b.xml"})
            QVERIFY(read(m_folder->path(name)).contains("OLD"));
        QCOMPARE(QDir(m_folder->path("open")).entryList(QDir::Files | QDir::Hidden), QStringList("a.xml"));
    }
};

KIVZP_TEST(tst_materialReplacement)
#include "tst_materialReplacement.moc"

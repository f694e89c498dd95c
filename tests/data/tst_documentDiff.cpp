// Two documents of one kind compared.
#include "testSupport.h"

#include "data/documentDiff.h"
#include "data/recordMatching.h"

using namespace testSupport;

class tst_documentDiff : public folderTest
{
    Q_OBJECT
private slots:
    void everyTextCounts_data()
    {
        const rows<QString> row;
        for (const QString &path : sources({"tests/files/kept"}, {"*.xml"}))
            row(qPrintable(QFileInfo(path).fileName()), path);
    }

    // Each text and attribute below the root, changed alone, is found under its name, both ways.
    void everyTextCounts()
    {
        const auto [path] = fetch<QString>();
        const QString text = testSupport::read(path);
        const auto load = [this, kind = fileKinds::ofFile(path)](const QString &content) {
            auto record = newDocument(*kind);
            loadDocument(m_folder->write("c.xml", content.toUtf8()), record.get());
            return record;
        };
        const auto record = load(text);
        QVERIFY(compareDocuments(*record, *load(text)).rows.empty());
        const QRegularExpression values("<(\\w+)>([^<>]*)</|\\b(\\w+)=\"([^\"]*)\"");
        auto found = values.globalMatch(text, int(text.indexOf("xsi:type")) + 9);
        while (found.hasNext()) {
            const QRegularExpressionMatch match = found.next();
            const int place = match.capturedEnd(2) < 0 ? match.capturedEnd(4) : match.capturedEnd(2);
            const auto other = load(QString(text).insert(place, "x"));
            const documentDiff diff = compareDocuments(*record, *other);
            QVERIFY2(!diff.rows.empty(), qPrintable(match.captured()));
            QCOMPARE(compareDocuments(*other, *record).rows.size(), diff.rows.size());
            if (diff.rows.size() == 1)
                QCOMPARE(diff.rows[0].field.section('/', -1), match.captured(1) + match.captured(3));
        }
    }

    void differences_data()
    {
        const auto material = [](const QString &ktm, const QString &name, const QString &more = {}) {
            return QString("<material><d_ktm>%1</d_ktm><d_name>%2</d_name>%3</material>").arg(ktm, name, more);
        };
        const auto group = [](const QString &name, const QString &materials) {
            return QString("<d_group name=\"%1\" cpv=\"\">%2</d_group>").arg(name, materials);
        };
        const auto sourced = [](const QString &part, const QString &file) {
            return QString("<suppliers><supplier><name>TME</name><part_no>%1</part_no><files>"
                           "<file type=\"FILE_TR\" name=\"%2\"/></files></supplier></suppliers>")
                .arg(part, file);
        };
        const auto line = [](const QString &ktm, const QString &name, const QString &price) {
            return QString("<order_item><name>%2</name><price>%3</price><ktm>%1</ktm></order_item>")
                .arg(ktm, name, price);
        };
        const auto lines = [](const QString &items) { return "<order_items>" + items + "</order_items>"; };
        const auto option = [](const QString &value) {
            return "<options><option editable=\"YES\" type=\"ARCHIVE_PASSWORD\" value1=\"" + value
                   + "\" value2=\"\" unit=\"\" description=\"\"/></options><persons/><targets/>";
        };
        const QString one = material("1", "a");
        const QString two = material("2", "b");
        const rows<QString, QString, QString, QStringList> row;
        row("the repeated line that differs is named", "kiv_mat_zp",
            lines(line("1", "a", "1") + line("1", "a", "2") + line("", "n", "1")),
            lines(line("1", "a", "3") + line("1", "a", "1") + line("", "n", "4\n")),
            {"> 1 a: 2 -> 1", "~ 1 a, Price: 2 -> 3", "~ n, Price: 1 -> 4\\n"});
        row("removed where it stood", "kiv_mat_zp",
            lines(line("1", "a", "1") + line("2", "b", "1") + line("3", "c", "")),
            lines(line("1", "a", "1") + line("3", "c", "2") + line("4", "d", "7")),
            {"- 2 b: b; 1; 2", "~ 3 c, Price:  -> 2", "+ 4 d: d; 7; 4"});
        row("moves are as few as can be", "kiv_mat_zp",
            lines(line("1", "", "") + line("2", "", "") + line("3", "", "")),
            lines(line("3", "", "") + line("1", "", "") + line("2", "", "")), {"> 3: 3 -> 1"});
        row("to another group", "kiv_mat_database", group("A", one + two) + group("B", ""),
            group("A", one) + group("B", material("2", "c")), {"> B, 2 c: A -> B", "~ B, 2 c, Name: b -> c"});
        row("a group with another name", "kiv_mat_database", group("A", one + two), group("C", one + two),
            {"~ C, Group: A -> C"});
        row("what nests in a material", "kiv_mat_database", group("A", material("1", "a", sourced("p", "f"))),
            group("A", material("1", "a", sourced("q", "g"))),
            {"~ A, 1 a, Supplier TME: Part no: p -> q", "+ A, 1 a, Supplier TME: File g: FILE_TR; g",
             "- A, 1 a, Supplier TME: File f: FILE_TR; f"});
        row("a list of firms", "kiv_mat_firm", "<manufacturers/><suppliers/>",
            "<manufacturers/><suppliers><firm><name>F</name></firm></suppliers>",
            {"+ Suppliers, F: F; FIRM SA; SZARY; http://www; 1"});
        row("no password is told", "kiv_config", option("a"), option("b"), {"~ ARCHIVE_PASSWORD, Value: *** -> ***"});
        row("a file of a set in another group", "kiv_mat_boms",
            "<category name=\"C\"><group name=\"G\"><file type=\"t\" name=\"f\"/></group><group "
            "name=\"H\"/></category>",
            "<category name=\"C\"><group name=\"G\"/><group name=\"H\"><file type=\"t\" "
            "name=\"f\"/></group></category>",
            {"> C / H, f: C / G -> C / H"});
    }

    void differences()
    {
        const auto [root, before, after, expected] = fetch<QString, QString, QString, QStringList>();
        const auto load = [this, root = root](const QString &content) {
            const QString path =
                m_folder->write("c.xml", document(qPrintable(root), "KIV_CONFIG_1", "kiv.xsd", content.toUtf8()));
            auto record = newDocument(*fileKinds::ofFile(path));
            if (loadDocument(path, record.get()) != 0)
                QTest::qFail("a row's document cannot be read", __FILE__, __LINE__);
            return record;
        };
        const auto first = load(before);
        const auto second = load(after);
        const documentDiff diff = compareDocuments(*first, *second);
        QStringList texts;
        for (const documentDifference &row : diff.rows)
            texts.append(lineOf(row));
        QCOMPARE(texts, expected);
    }

    // However many lines have one KTM.
    void manyOfOneName()
    {
        kiv_mat_zpStruct before;
        kiv_mat_zpStruct after;
        constexpr int count = 50000;
        for (int i = 0; i < count; ++i) {
            before.orderItems.append(std::make_unique<orderItemStruct>())->price = QString::number(i);
            after.orderItems.append(std::make_unique<orderItemStruct>())->price = QString::number(count - i);
        }
        const documentDiff diff = compareDocuments(before, after);
        QCOMPARE(int(diff.rows.size()), count - 1);
        QVERIFY(compareDocuments(before, after, [](long long done, long long) { return done < 100; }).cancelled);
        QVERIFY(!compareDocuments(before, configStruct()).comparable);
    }
};

KIVZP_TEST(tst_documentDiff)
#include "tst_documentDiff.moc"

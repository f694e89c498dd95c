// Damaged files: what is kept of them, what is said of the rest, and that good files are left as they are.
#include "testSupport.h"

#include "data/repair.h"

#include <QTextCodec>

using namespace testSupport;

namespace {

// Three lines; the second is given.
QByteArray lines(const QByteArray &second)
{
    return order("\n<order_items>\n<order_item><name>1</name><unit>m</unit></order_item>\n" + second
                 + "\n<order_item><name>3</name></order_item>\n</order_items>\n<attentions>end</attentions>\n");
}

QString changesOf(const repairedFile &repaired)
{
    QStringList all;
    for (const fileFault &change : repaired.changes)
        all.append(QString::number(change.line) + ' ' + change.sentence());
    return all.join('|');
}

} // namespace

class tst_repair : public folderTest
{
    Q_OBJECT
private slots:
    void damage_data()
    {
        const rows<QByteArray, QString, QString> row;
        const auto line = [&](const char *tag, const QByteArray &second, const QString &kept, const QString &changes) {
            row(tag, lines(second), kept, changes);
        };
        line("none", "<order_item><name>2</name></order_item>", "2", "");
        line("wrong end of a field", "<order_item><name>2</nam><wait>7</wait></order_item>", "2 wait 7",
             "5 line 2: name ended as nam");
        line("no end of a field", "<order_item><name>2<wait>7</wait></order_item>", "2 wait 7",
             "5 line 2: the end of name was missing");
        line("no end of a line", "<order_item><name>2</name>", "2", "6 line 2: the end of order_item was missing");
        line("no beginning of a line", "<name>2</name></order_item>", "",
             "5 unknown field name|5 text that belongs to no field was dropped: 2|"
             "5 an end of name without its beginning was dropped|5 an end of order_item without its beginning was "
             "dropped");
        line("end without >", "<order_item><name>2</name</order_item>", "2", "5 line 2: \">\" was missing behind name");
        line("ampersands", "<order_item><name>R & D &x; &amp;</name></order_item>", "R & D &x; &",
             "5 line R & D &x; &: \"&\" stands alone; it is written &amp;|"
             "5 line R & D &x; &: \"&\" stands alone; it is written &amp;");
        line("less", "<order_item><name>a < b <c> </d></name></order_item>", "a < b <c> </d>",
             "5 line a < b <c> </d>: \"<\" stands alone; it is written &lt;|"
             "5 line a < b <c> </d>: \"<\" stands alone; it is written &lt;|"
             "5 line a < b <c> </d>: \"<\" stands alone; it is written &lt;");
        line("entities", "<order_item><name>a&nbsp;b&#1;</name></order_item>", "a\u00a0b ",
             "5 line a b: &nbsp; was read as its character|5 line a b: &#1; stands for nothing and became a blank");
        line("control characters", "<order_item><name>2\x01\x02</name></order_item>", "2",
             "5 2 characters that no file can hold were dropped");
        line("Windows-1250", "<order_item><name>za\xbf\xf3\xb3\xe6</name></order_item>", "zażółć",
             "5 4 bytes that are no UTF-8 were read as Windows-1250");
        line("Windows-1250 beside UTF-8", "<order_item><name>\xc5\x82\xb3</name></order_item>", "łł",
             "5 1 byte that is no UTF-8 was read as Windows-1250");
        line("unknown field", "<order_item><name>2</name><zz a=\"1\">x</zz></order_item>", "2",
             "5 line 2: unknown field zz|5 line 2: text that belongs to no field was dropped: x");
        row("broken attribute", order("<options><option type=\"TARGET\" value1=\"x/>\n<option/></options>"), "",
            "2 a broken tag: value1=\"x/ was dropped");
        row("document type", "<!DOCTYPE kiv_mat_zp>\n" + lines(""), "", "1 document type declarations are not allowed");
        row("UTF-16 that says UTF-8", QTextCodec::codecForName("UTF-16")->fromUnicode(QString(lines(""))), "",
            "0 the file was read as UTF-16LE");
        row("more behind the end", lines("<order_item><name>2</name></order_item>") + "</kiv_mat_zp>", "2", "");
    }
    // The lines before and after are there, and nothing is changed in silence.
    void damage()
    {
        const auto [content, kept, changes] = fetch<QByteArray, QString, QString>();
        const QString path = m_folder->write("f.xml", content);
        const repairedFile repaired = repairFile(path);
        QVERIFY2(repaired.document, qPrintable(repaired.fault));
        QCOMPARE(changesOf(repaired), changes);
        QCOMPARE(read(path), content);
        const auto &order = dynamic_cast<const kiv_mat_zpStruct &>(*repaired.document);
        if (!content.contains("end"))
            return;
        QStringList names;
        for (const auto &item : order.orderItems.items)
            names.append(item->name + (item->wait.isEmpty() ? "" : " wait " + item->wait));
        QCOMPARE(names, kept.isEmpty() ? QStringList({"1", "3"}) : QStringList({"1", kept, "3"}));
        QCOMPARE(order.orderItems.items[0]->unit, QString("m"));
        QCOMPARE(order.attentions, QString("end"));
    }

    void nothingToKeep_data()
    {
        const rows<QByteArray> row;
        row("empty", "");
        row("text", "Towar: 1");
        row("other XML", "<html/>");
    }
    void nothingToKeep()
    {
        const auto [content] = fetch<QByteArray>();
        const repairedFile repaired = repairFile(m_folder->write("f.xml", content));
        QVERIFY(!repaired.document);
        QVERIFY(!repaired.fault.isEmpty());
        QVERIFY(!repairFile(m_folder->path("none.xml")).document);
    }

    // Whatever is done to the bytes, a file comes out that can be saved, and a good one stays as it is.
    void anyDamage_data()
    {
        const rows<QString> row;
        for (const QString &path :
             sources({"_config", "_files", "_zp", "tests/files/kept", "tests/files/valid"}, {"*.xml"}))
            row(qPrintable(path.section('/', -2)), path);
    }
    void anyDamage()
    {
        const auto [path] = fetch<QString>();
        const QByteArray good = read(path);
        const repairedFile same = repairFile(path);
        QCOMPARE(changesOf(same), QString());
        const auto loaded = newDocument(*fileKinds::ofFile(path));
        QCOMPARE(loadDocument(path, loaded.get()), 0);
        loaded->schemaLocation = same.document->schemaLocation;
        loaded->xsiType = same.document->xsiType;
        QCOMPARE(saveXml(m_folder->path("1.xml"), same.document.get()), 0);
        QCOMPARE(saveXml(m_folder->path("2.xml"), loaded.get()), 0);
        QCOMPARE(read(m_folder->path("1.xml")), read(m_folder->path("2.xml")));

        QRandomGenerator random(20261125);
        for (int i = 0; i < 20; ++i) {
            QByteArray damaged = good;
            const int at = random.bounded(damaged.size());
            switch (random.bounded(4)) {
            case 0:
                damaged.truncate(at);
                break;
            case 1:
                damaged.remove(at, 1 + random.bounded(30));
                break;
            case 2:
                damaged.insert(at, QByteArray("<\"&>\xb9/").mid(random.bounded(6), 1 + random.bounded(2)));
                break;
            default:
                damaged[at] = char(random.bounded(256));
            }
            const repairedFile repaired = repairFile(m_folder->write("f.xml", damaged));
            if (!repaired.document)
                continue;
            // What was dropped stands among the changes, and nowhere else.
            QCOMPARE(repaired.document->leftOut.count, 0);
            QCOMPARE(m_shown->listed, QString());
            QString reason;
            QVERIFY2(saveXmlNoEvents(m_folder->path("1.xml"), repaired.document.get(), &reason, {}, saveRule::onlyGood)
                         == 0,
                     qPrintable(reason + '\n' + damaged));
        }
    }
};

KIVZP_TEST(tst_repair)
#include "tst_repair.moc"

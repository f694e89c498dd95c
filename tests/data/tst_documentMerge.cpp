// Two versions of a file brought together.
#include "testSupport.h"

#include "data/documentMerge.h"

using namespace testSupport;

class tst_documentMerge : public folderTest
{
    Q_OBJECT

    // "A 1 x, B 2" is a line of the KTM A, the quantity 1 and the description x, then one of B.
    static QByteArray orderOf(const QString &lines)
    {
        QByteArray content;
        for (const QString &line : lines.split(", ", Qt::SkipEmptyParts)) {
            const QStringList texts = line.split(' ');
            content += QString("<order_item><index>%1</index><quantity>%2</quantity><description>%3</description>"
                               "<ktm>%4</ktm></order_item>")
                           .arg(content.count("<index>") + 1)
                           .arg(texts.value(1), texts.value(2), texts.value(0))
                           .toUtf8();
        }
        return order("<order_items>" + content + "</order_items>");
    }
    QString summaryOf(const QByteArray &bytes) const
    {
        kiv_mat_zpStruct read;
        if (loadZp(m_folder->write("merged.xml", bytes), &read) != 0)
            return "unreadable";
        QStringList lines;
        for (const auto &item : read.orderItems.items) {
            if (item->index != QString::number(lines.size() + 1))
                return "wrong number";
            lines.append((item->ktm + ' ' + item->quantity + ' ' + item->description).trimmed());
        }
        return lines.join(", ");
    }

private slots:
    void merged_data()
    {
        // Opened, mine, theirs; who changed what, "!" where the user picks; what comes of it when the user takes
        // theirs.
        const rows<QString, QString, QString, QString, QString> row;
        row("the same", "A 1", "A 2", "A 2", "", "A 2");
        row("two fields", "A 1 x, B 1", "A 2 x, B 1", "A 1 y, B 1", "A quantity me, A description them", "A 2 y, B 1");
        row("one field", "A 1", "A 2", "A 3", "A quantity !", "A 3");
        row("added by both", "A 1", "A 1, B 1", "C 1, A 1", "C them, B me", "C 1, A 1, B 1");
        row("added alike", "A 1", "A 1, B 1", "A 1, B 2", "B quantity !", "A 1, B 2");
        row("deleted by them", "A 1, B 1", "A 2, B 1", "A 1", "A quantity me, B them", "A 2");
        row("deleted by me", "A 1, B 1", "B 1", "A 1, B 2", "A me, B quantity them", "B 2");
        row("deleted, changed", "A 1, B 1", "B 1", "A 2, B 1", "A !", "A 2, B 1");
        row("of one KTM", "A 1, A 2", "A 1, A 3", "A 4, A 2", "A quantity them, A quantity me", "A 4, A 3");
        row("nobody knows what it was", "", "A 1, B 1", "A 2, C 1", "A quantity !, C !, B !", "A 2, C 1");
    }
    void merged()
    {
        const auto [opened, mine, theirs, seen, result] = fetch<QString, QString, QString, QString, QString>();
        documentMerge merge(opened.isEmpty() ? QString() : m_folder->write("o.xml", orderOf(opened)),
                            m_folder->write("m.xml", orderOf(mine)), m_folder->write("t.xml", orderOf(theirs)));
        QVERIFY(merge.isReadable());
        QStringList found;
        for (mergeRow &of : merge.rows) {
            const QString who = of.who == mergeRow::both ? "!" : of.who == mergeRow::me ? "me" : "them";
            found.append(QStringList{of.line, of.field, who}.join(' ').simplified());
            QCOMPARE(of.picked, of.who != mergeRow::both);
            of.takeTheirs = of.who != mergeRow::me;
        }
        QCOMPARE(found.join(", "), seen);
        QCOMPARE(summaryOf(merge.merged()), result);
    }

    // Every kind keeps what it holds, and a password is not shown.
    void nothingIsLost_data()
    {
        const rows<int> row;
        row.each({"_zp/zp_0.xml", "_files/db_warehouse.xml", "_files/firms.xml", "_files/boms.xml",
                  "_files/boms/modul_stm32f103.xml", "_config/kiv_mat_config.xml"},
                 0);
    }
    void nothingIsLost()
    {
        const QString path = source(tag());
        const documentMerge merge(path, path, path);
        QVERIFY(merge.isReadable() && merge.rows.empty());
        const QString merged = m_folder->write("merged.xml", merge.merged());
        const auto saved = [this](const QString &from) {
            auto record = newDocument(*fileKinds::ofFile(from));
            const QString to = m_folder->path("saved.xml");
            return loadDocument(from, record.get()) == 0 && saveXmlNoEvents(to, record.get()) >= 0 ? read(to)
                                                                                                   : QByteArray();
        };
        QVERIFY(!saved(path).isEmpty());
        QCOMPARE(saved(merged), saved(path));
    }

    void passwordsStaySecret()
    {
        const auto config = [](const char *password) {
            return document("kiv_config", "KIV_CONFIG_1", "kiv.xsd",
                            QByteArray("<options><option editable=\"YES\" type=\"ARCHIVE_PASSWORD\" value1=\"")
                                + password + "\" value2=\"\" unit=\"\" description=\"\"/></options>");
        };
        const documentMerge merge({}, m_folder->write("m.xml", config("one")), m_folder->write("t.xml", config("two")));
        QCOMPARE(int(merge.rows.size()), 1);
        QCOMPARE(merge.rows[0].mine + merge.rows[0].theirs, QString("******"));
    }

    void unreadable()
    {
        const QString good = m_folder->write("m.xml", orderOf("A 1"));
        QVERIFY(!documentMerge({}, good, m_folder->write("t.xml", "<kiv_mat_zp><oops")).isReadable());
        QVERIFY(!documentMerge({}, good, source("_files/firms.xml")).isReadable());
        const QString large = source("_files/db_warehouse.xml");
        QVERIFY(!documentMerge({}, large, large, [](long long, long long) { return false; }).isReadable());
    }
};

KIVZP_TEST(tst_documentMerge)
#include "tst_documentMerge.moc"

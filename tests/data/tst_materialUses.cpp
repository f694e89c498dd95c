// Which lines of which files use a material, as files come, change and go.
#include "testSupport.h"

#include "data/materialUses.h"

using namespace testSupport;

class tst_materialUses : public folderTest
{
    Q_OBJECT

    QString list(const QString &name, const QByteArray &lines) const { return m_folder->write(name, bom(lines)); }
    static QByteArray line(const char *ktm, const char *quantity)
    {
        return QByteArray("<material><d_ktm>") + ktm + "</d_ktm><d_quantity>" + quantity
               + "</d_quantity><d_designator>R1</d_designator></material>";
    }
    static int readAll(materialUses &uses)
    {
        int count = 0;
        while (uses.readNext())
            ++count;
        return count;
    }
    static QString told(const materialUses &uses, const QString &ktm)
    {
        QStringList lines;
        for (const materialUses::use &use : uses.of(ktm))
            lines += QFileInfo(use.path).fileName() + ':' + QString::number(use.line) + ' ' + use.quantity + ' '
                     + use.detail;
        return lines.join(", ");
    }

private slots:
    void linesOfListsAndOrders()
    {
        const QString first = list("a.xml", line("K", "2") + line("L", "1") + line("K", "3"));
        const QString second = m_folder->write(
            "_zp/b.xml", order("<order_items><order_item><quantity>5</quantity><target>T</target>"
                               "<ktm>K</ktm></order_item></order_items>"));
        const QStringList found{second, list("c.xml", line("L", "7")), m_folder->write("_zp/note.xml", "<note/>"),
                                m_folder->write("_zp/broken.xml", "<kiv_mat_zp>")};
        materialUses uses;
        uses.follow({first, m_folder->path("none.xml"), first}, found);
        QVERIFY(!uses.isComplete());
        QCOMPARE(told(uses, "K"), QString());
        QVERIFY(uses.readNext());
        QCOMPARE(told(uses, "K"), QString("a.xml:0 2 R1, a.xml:2 3 R1"));
        // Each file once.
        QCOMPARE(readAll(uses), 5);
        QVERIFY(uses.isComplete());
        QCOMPARE(told(uses, "K"), QString("a.xml:0 2 R1, a.xml:2 3 R1, b.xml:0 5 T"));
        QCOMPARE(told(uses, "L"), QString("a.xml:1 1 R1, c.xml:0 7 R1"));
        QCOMPARE(told(uses, ""), QString());
        QVERIFY(uses.of("K")[2].inOrder && !uses.of("K")[0].inOrder);
        // Of the lists alone, each once.
        QCOMPARE(uses.lists(), (QHash<QString, QStringList>{{"K", {"a"}}, {"L", {"a", "c"}}}));
        // Only a file that somebody named is missed.
        QCOMPARE(uses.faults().size(), 1);
        QVERIFY2(uses.faults()[0].startsWith("none.xml"), qPrintable(uses.faults()[0]));
    }

    void followsTheFiles()
    {
        const QString first = list("a.xml", line("K", "2"));
        const QString second = list("b.xml", line("K", "4"));
        materialUses uses;
        uses.follow({first, second}, {});
        QCOMPARE(readAll(uses), 2);
        uses.follow({first, second}, {});
        QCOMPARE(readAll(uses), 0);
        list("a.xml", line("L", "22") + line("K", "33"));
        uses.follow({second, first}, {});
        QCOMPARE(told(uses, "K"), QString("b.xml:0 4 R1"));
        QCOMPARE(readAll(uses), 1);
        QCOMPARE(told(uses, "K"), QString("b.xml:0 4 R1, a.xml:1 33 R1"));
        uses.follow({first}, {});
        QCOMPARE(told(uses, "K"), QString("a.xml:1 33 R1"));
    }

    void linesOfTheOrderAtHand()
    {
        kiv_mat_zpStruct order;
        for (const char *ktm : {"", "K", "L", "K"})
            appendTo(order.orderItems)->ktm = ktm;
        const auto uses = materialUses::in(order, "K");
        QCOMPARE(uses.size(), size_t(2));
        QCOMPARE(uses[1].line, 3);
        QVERIFY(materialUses::in(order, "").empty());
    }
};

KIVZP_TEST(tst_materialUses)
#include "tst_materialUses.moc"

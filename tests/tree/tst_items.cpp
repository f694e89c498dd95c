// Cells and models: typed values beside texts that stay as they were read.
#include "testSupport.h"

#include "commands/commandStack.h"
#include "commands/editCommands.h"
#include "tree/columnTable.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace testSupport;
using namespace myItem;

namespace {

class twoBelow : public modelRecords
{
public:
    void cellChanged(myItemStandard *, myItemStandard *) override {}
    void rowInserted(QStandardItem *, int, myItemStandard *) override {}
    void rowTaken(QStandardItem *, int, myItemStandard *) override {}
    std::vector<row> childRows(myItemStandard *) override
    {
        ++asked;
        return {{new myItemStandard("x")}, {new myItemStandard("y")}};
    }
    int asked = 0;
};

} // namespace

class tst_items : public QObject
{
    Q_OBJECT
private slots:
    void kinds()
    {
        const myItemSpinBox spin("key", 0, 0, 7, false);
        QCOMPARE(spin.maximum, 1);
        QCOMPARE(spin.whatsThis(), QString("key"));
        QVERIFY(spin.readOnly && !spin.isEditable());
        QCOMPARE(myItemMoney("key", "1,5", true).value(), 1.5);
        myItemComboBox combo("key", QStringList{"a", "b"}, true);
        combo.setCurrentIndex(1);
        QCOMPARE(combo.text(), QString("b"));
        combo.setCurrentIndex(2);
        QCOMPARE(combo.currentIndex(), 0);
        const myItemComboBox described("key", comboEntries{{"a", "why", {}, {}}, {"b", "", {}, {}}}, 0, true);
        QCOMPARE(described.displayText(), QString("a - why"));
        for (int kind = standardKind; kind <= pathEditKind; ++kind) {
            const std::unique_ptr<myItemStandard> cell(
                makeCell({"k", myItem::kind(kind), true, entriesOf(QStringList{"x"}), false, 0, 9}, "x"));
            QCOMPARE(cell->type(), kind);
            QVERIFY(!cell->highlighted && !cell->colourOn);
        }
    }

    void textsStayAsRead_data()
    {
        const rows<int, QString, QString, QVariant, QString> row;
        row("quantity with a fraction", int(spinBoxKind), "2,5", "2,5", QVariant(2), "2");
        row("no quantity", int(spinBoxKind), "", "", QVariant(0), "0");
        row("price with a comma", int(moneyKind), "30,95", "30.95", QVariant(30.95), "30.95");
        row("no price", int(moneyKind), "", "", QVariant(0.0), "0.00");
        row("price in words", int(moneyKind), "gratis", "gratis", QVariant(1.0), "1.00");
        row("past date", int(dateEditKind), "01.02.2003", "01.02.2003", QVariant(QDate(2027, 3, 4)), "04.03.2027");
        row("a word for a date", int(dateEditKind), "NIE", "NIE", QVariant(QDate(2027, 3, 4)), "04.03.2027");
        row("foreign word", int(comboBoxKind), "MOŻE", "MOŻE", QVariant(0), "TAK");
        row("word in the user's language", int(comboBoxKind), "TAK", "YES", QVariant(QString("NIE")), "NIE");
        row("formatted text", int(textEditKind), "<b>a</b>", "a", QVariant(QString("b")), "b");
    }

    void textsStayAsRead()
    {
        const auto [kind, stored, shown, edited, after] = fetch<int, QString, QString, QVariant, QString>();
        myModel model(nullptr);
        commandStack stack(nullptr, nullptr);
        recordEdits(&model, &stack);
        myItemStandard *cell =
            makeCell({"k", myItem::kind(kind), true, entriesOf(QStringList{"TAK"}), false, 0, 100}, stored);
        model.appendRow(cell);
        QCOMPARE(cell->text(), stored);
        QCOMPARE(displayText(*cell), shown);
        model.setValue(cell, valueOf(*cell));
        if (!isForeign(*cell) && kind != spinBoxKind && kind != moneyKind && kind != dateEditKind)
            QCOMPARE(stack.undoCount(), size_t(0));
        stack.clear();
        setStoredText(cell, stored);

        model.setValue(cell, edited);
        QCOMPARE(cell->text(), after);
        QCOMPARE(stack.undoCount(), size_t(1));
        model.setValue(cell, edited);
        QCOMPARE(stack.undoCount(), size_t(1));
        stack.undo();
        QCOMPARE(cell->text(), stored);
        stack.redo();
        QCOMPARE(cell->text(), after);
    }

    void rowHelpers()
    {
        myModel model(nullptr);
        model.appendRow(myItem::row());
        QCOMPARE(model.rowCount(), 0);
        auto *first = new myItemStandard("a");
        model.appendRow({first, new myItemLineEdit("b", "text", true)});
        first->appendRow(new myItemStandard("c"));
        const row items = childRow(model.invisibleRootItem(), 0);
        QCOMPARE(items.size(), 2);
        QVERIFY(childRow(model.invisibleRootItem(), 1).isEmpty());
        QCOMPARE(find(items, "b", "text"), items[1]);
        QVERIFY(!find(items, "b", "other"));
        QCOMPARE(allOfKey(items, "a"), row{first});
        QCOMPARE(allItems(model.invisibleRootItem()).size(), 3);
        setHighlighted(items, true);
        setReadOnly(items, true);
        QVERIFY(first->highlighted && first->readOnly);
    }

    void rowsMadeWhenNeeded()
    {
        twoBelow records;
        myModel model(nullptr);
        auto *group = new myItemStandard("group");
        group->childrenPending = true;
        model.appendRow(group);
        model.setRecords(&records);
        QVERIFY(model.hasChildren(group->index()));
        QCOMPARE(group->rowCount(), 0);
        model.fetchMore(group->index());
        QCOMPARE(group->rowCount(), 2);
        QVERIFY(!model.canFetchMore(group->index()));
        QCOMPARE(records.asked, 1);
        const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

    void sortsByValue()
    {
        myModel model(nullptr);
        const QSignalSpy sorted(&model, &myModel::sorted);
        for (const char *amount : {"100", "9,5", "20", "none"})
            model.appendRow(new myItemMoney("price", amount, true));
        model.sort(0);
        QStringList texts;
        for (int r = 0; r < model.rowCount(); ++r)
            texts.append(model.item(r)->text());
        QCOMPARE(texts, QStringList({"none", "9,5", "20", "100"}));
        QCOMPARE(sorted.count(), 1);
    }
};

KIVZP_TEST(tst_items)
#include "tst_items.moc"

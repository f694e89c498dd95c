// Edits of a tree and of the records behind it, undone and done again in any order.
#include "testSupport.h"

#include "commands/cellBlock.h"
#include "commands/commandStack.h"
#include "commands/editCommands.h"
#include "order/orderTree.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

using namespace testSupport;
using myItem::myItemStandard;

namespace {

// An order in a model, with its history.
struct fixture
{
    explicit fixture(int lines)
        : rows(orderTree::columns(config, order, materials))
        , tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal)
    {
        for (int i = 0; i < lines; ++i)
            order.orderItems.append(line(i));
        rows.show(&model, &order.orderItems.items);
        model.setRecords(&rows);
        recordEdits(&model, &stack);
    }
    ~fixture() { stack.clear(); }

    static std::unique_ptr<orderItemStruct> line(int i)
    {
        auto made = std::make_unique<orderItemStruct>();
        made->index = QString::number(i + 1);
        made->name = QString("name%1").arg(i * 7 % 10);
        made->quantity = QString::number(i);
        made->price = "30,95";
        made->wait = "NIE";
        made->unit = "odd unit";
        return made;
    }
    myItemStandard *cell(int row, int column) { return static_cast<myItemStandard *>(model.item(row, column)); }
    // As the main window does after every change.
    void renumber()
    {
        for (int r = 0; r < model.rowCount(); ++r) {
            cell(r, 0)->setText(QString::number(r + 1));
            model.writeCell(cell(r, 0));
        }
    }
    // Tree and records as one text; they have to say the same.
    QString snapshot()
    {
        QStringList lines;
        for (int r = 0; r < model.rowCount(); ++r) {
            QStringList shown;
            QStringList stored;
            for (size_t c = 0; c < orderItemStruct::fields().size(); ++c) {
                shown.append(cell(r, int(c))->text());
                stored.append((*order.orderItems.items.at(size_t(r))).*orderItemStruct::fields()[c].member);
            }
            if (shown != stored)
                return "row " + QString::number(r) + " differs from its record";
            lines.append(shown.join('|'));
        }
        return order.orderItems.items.size() == size_t(model.rowCount()) ? lines.join('\n') : "other number of records";
    }

    configStruct config;
    kiv_mat_zpStruct order;
    ktmIndex materials;
    commandStack stack{nullptr, nullptr};
    myModel model{nullptr};
    listRows<orderItemStruct> rows;
    QAbstractItemModelTester tester;
};

class countedView : public htmlView
{
public:
    void refreshHtml() override { ++count; }
    int count = 0;
};

} // namespace

class tst_editCommands : public QObject
{
    Q_OBJECT
private slots:
    // Hundreds of edits with undo and redo between them; the states before are met again.
    void randomWalk()
    {
        fixture f(12);
        QRandomGenerator random(20261124);
        QStringList states{f.snapshot()};
        int at = 0;
        for (int step = 0; step < 600; ++step) {
            const int kind = random.bounded(9);
            const int row = f.model.rowCount() ? random.bounded(f.model.rowCount()) : 0;
            if (kind >= 6) {
                const bool undo = kind < 8;
                if (undo && at > 0) {
                    f.stack.undo();
                    --at;
                } else if (!undo && at + 1 < states.size()) {
                    f.stack.redo();
                    ++at;
                }
                f.renumber();
                QCOMPARE(f.snapshot(), states[at]);
                continue;
            }
            const size_t before = f.stack.undoCount();
            if (kind == 0 || f.model.rowCount() == 0) {
                f.stack.push(
                    std::make_unique<appendNewMaterial>(&f.model, f.rows.makeDetachedRow(fixture::line(step))));
            } else if (kind == 1) {
                f.stack.push(std::make_unique<deleteMaterial>(&f.model, f.model.index(row, 0)));
            } else if (kind == 2) {
                f.stack.push(std::make_unique<sortOrderModel>(&f.model, random.bounded(16)));
            } else if (kind == 3) {
                f.stack.push(std::make_unique<changeRow>(f.model.invisibleRootItem(), row,
                                                         f.rows.makeDetachedRow(fixture::line(step))));
            } else if (kind == 4) {
                std::vector<std::unique_ptr<command>> members;
                members.push_back(std::make_unique<changeValue>(&f.model, f.cell(row, orderTree::waitColumn),
                                                                QDate(2027, 1, 1 + step % 28)));
                members.push_back(std::make_unique<deleteFromItem>(f.model.invisibleRootItem(), f.model.item(row)));
                f.stack.push(std::make_unique<appendCommands>(std::move(members)));
            } else {
                f.model.setValue(f.cell(row, orderTree::quantityColumn), random.bounded(5));
            }
            f.renumber();
            if (f.stack.undoCount() > before) {
                states = states.mid(0, at + 1);
                states.append(f.snapshot());
                ++at;
            }
            QCOMPARE(f.snapshot(), states[at]);
            QCOMPARE(f.stack.undoCount(), size_t(at));
        }
        while (at > 0) {
            f.stack.undo();
            f.renumber();
            QCOMPARE(f.snapshot(), states[--at]);
        }
    }

    void rowsBelowAParent()
    {
        myModel model(nullptr);
        auto *group = new myItemStandard("group");
        model.appendRow(group);
        group->appendRow(new myItemStandard("one"));
        appendItems change(group, {new myItemStandard("two")});
        QCOMPARE(group->rowCount(), 2);
        change.undo();
        // With fewer rows than before it goes to the end, not past it.
        group->removeRow(0);
        change.redo();
        QCOMPARE(group->rowCount(), 1);
        QCOMPARE(group->child(0)->text(), QString("two"));
        deleteFromItem gone(group, group->child(0));
        QCOMPARE(group->rowCount(), 0);
        gone.undo();
        QCOMPARE(group->rowCount(), 1);
        appendItems nowhere(nullptr, {new myItemStandard("three")});
        nowhere.undo();
        nowhere.redo();
    }

    void rowsOutsideAreFreed()
    {
        // A leak or a double free here is the sanitizer's to tell.
        fixture f(3);
        const QString before = f.snapshot();
        {
            deleteMaterial change(&f.model, f.model.index(1, 0));
            QCOMPARE(f.order.orderItems.items.size(), size_t(2));
            change.undo();
        }
        QCOMPARE(f.snapshot(), before);
        {
            const deleteMaterial change(&f.model, f.model.index(0, 0));
        }
        QCOMPARE(f.model.rowCount(), 2);
    }

    void increase()
    {
        for (const auto &[text, expected] : {std::pair("41", "43"), std::pair("none", "2")}) {
            QStandardItem item{QString(text)};
            increaseValue change(&item, 2);
            QCOMPARE(item.text(), QString(expected));
            change.undo();
            QCOMPARE(item.text().toUInt(), QString(text).toUInt());
        }
    }

    void sortAndBack()
    {
        fixture f(12);
        const auto column = [&](int c) {
            QStringList texts;
            for (int r = 0; r < f.model.rowCount(); ++r)
                texts.append(f.model.item(r, c)->text());
            return texts;
        };
        const QStringList names = column(orderTree::nameColumn);
        const QStringList quantities = column(orderTree::quantityColumn);
        const QStringList numbers = column(orderTree::indexColumn);
        sortOrderModel change(&f.model, orderTree::nameColumn);
        QStringList sorted = names;
        sorted.sort();
        QCOMPARE(column(orderTree::nameColumn), sorted);
        QCOMPARE(column(orderTree::indexColumn), numbers);
        // Equal ones keep their order: 10 repeats the name of 0, 11 that of 1.
        QCOMPARE(column(orderTree::quantityColumn).mid(0, 2), QStringList({"0", "10"}));
        change.undo();
        QCOMPARE(column(orderTree::quantityColumn), quantities);
        QCOMPARE(column(orderTree::indexColumn), numbers);
        QVERIFY(!f.snapshot().contains("differs"));
    }

    // One gesture, one step, one signal of each kind, one refresh.
    void groups()
    {
        fixture f(10);
        countedView view;
        const QString before = f.snapshot();
        const QSignalSpy changes(&f.model, &myModel::changeValueOccured);
        QList<myItemStandard *> cells;
        for (int r = 0; r < 10; ++r)
            cells.append(f.cell(r, orderTree::descriptionColumn));
        auto change = cellBlock::set(
            &f.model, cells, [](const myItemStandard &) { return QVariant(QString("all")); }, &view);
        QVERIFY(change);
        QCOMPARE(changes.count(), 1);
        change->undo();
        QCOMPARE(f.snapshot(), before);
        change->redo();
        QCOMPARE(changes.count(), 3);
        QCOMPARE(view.count, 3);
        QVERIFY(!cellBlock::set(&f.model, cells, [](const myItemStandard &) { return QVariant(QString("all")); }));
    }

    void pasteBlock_data()
    {
        const rows<QString, int, QString, int> row;
        using namespace orderTree;
        row("block", "1\tpcs.\n2\tkg\n", int(quantityColumn), "1 pcs. 2 kg", 0);
        row("what does not fit", "x\tkg\r\n2000000\tno unit", int(quantityColumn), "0 kg 1 odd unit", 3);
        row("words as they are shown", "TAK\tnew target", int(rohsColumn), "TAK new target  ", 0);
        row("no past dates", "01.01.2020\tdescription", int(waitColumn), "NIE description NIE ", 1);
        row("amounts with a comma", "1,5\t-1", int(priceColumn), "1.50  30,95 ", 1);
        row("read-only cells", "9", int(inWarehouseColumn), " 0  1", 1);
    }

    void pasteBlock()
    {
        const auto [text, column, result, refused] = fetch<QString, int, QString, int>();
        fixture f(2);
        const QString before = f.snapshot();
        QList<int> columns;
        for (int c = 0; c < orderTree::columnCount; ++c)
            columns.append(c);
        auto pasted =
            cellBlock::paste(&f.model, f.model.index(0, column), {f.model.index(0, column)}, {0, 1}, columns, text, false);
        QStringList cells;
        for (int r = 0; r < 2; ++r)
            for (int c : {column, column + 1})
                cells.append(f.cell(r, c)->text());
        QCOMPARE(cells.join(' '), result);
        QCOMPARE(int(pasted.refused.size()), refused);
        if (pasted.change)
            pasted.change->undo();
        QCOMPARE(f.snapshot(), before);
    }
};

KIVZP_TEST(tst_editCommands)
#include "tst_editCommands.moc"

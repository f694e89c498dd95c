// Plans for a database and for an order, carried out on records and in trees.
#include "bom/orderLinesTarget.h"
#include "commands/editCommands.h"
#include "database/databaseRowsTarget.h"
#include "order/orderTree.h"
#include "testSupport.h"

using namespace testSupport;

namespace {

// A record as it would be saved.
QByteArray saved(const xmlData &record)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    record.writeXml(&writer);
    return bytes;
}

std::unique_ptr<kiv_mat_databaseStruct> copyOf(const kiv_mat_databaseStruct &database)
{
    auto copy = std::make_unique<kiv_mat_databaseStruct>();
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            testSupport::group(*copy, group->name)->append(material->copy());
    for (const auto &group : database.groups)
        testSupport::group(*copy, group->name)->cpv = group->cpv;
    return copy;
}

// The texts of the rows below an index.
QStringList shown(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        for (int column = 0; column < model.columnCount(parent); ++column)
            texts.append(model.index(row, column, parent).data().toString());
        texts += shown(model, model.index(row, 0, parent));
    }
    return texts;
}

class noPage : public htmlView
{
public:
    void refreshHtml() override {}
};

} // namespace

class tst_takeOver : public QObject
{
    Q_OBJECT
private slots:
    // A random part of what a random other database differs in: the same records as without a tree,
    // whichever rows were made before and whatever a filter hides, and back and forth.
    void databases()
    {
        QRandomGenerator random(20261125);
        const configStruct config;
        for (int round = 0; round < 100; ++round) {
            kiv_mat_databaseStruct mine;
            kiv_mat_databaseStruct other;
            for (int i = 0; i < 60; ++i) {
                const QString ktm = random.bounded(10) == 0 ? "" : QString::number(random.bounded(50));
                for (kiv_mat_databaseStruct *database : {&mine, &other})
                    if (random.bounded(4) != 0) {
                        const QString group = QString::number(random.bounded(5));
                        materialStruct *m = material(*database, group, ktm, "n");
                        testSupport::group(*database, group)->cpv = QString::number(random.bounded(2));
                        m->d_price = QString::number(random.bounded(2));
                        m->d_unit = QString::number(random.bounded(2));
                    }
            }
            const QByteArray before = saved(mine);
            const QByteArray theirs = saved(other);
            const auto alone = copyOf(mine);
            const auto absent = random.bounded(2) ? absentOnes::remove : absentOnes::keep;

            ktmIndex index;
            index.add(&mine);
            databaseTree::rows rows(&mine, databaseTree::columns(config), &index, nullptr);
            myModel model(nullptr);
            rows.show(&model);
            for (int row = 0; row < model.rowCount(); ++row)
                if (random.bounded(2))
                    model.fetch(model.item(row));
            comparison inTree = compareDatabases(mine, other);
            comparison onRecords = compareDatabases(*alone, other);
            const bool all = round % 4 == 0;
            for (size_t i = inTree.differences.size(); i-- > 0 && !all;) {
                for (comparison *plan : {&inTree, &onRecords})
                    if (round % 3 == 0 && plan->differences[i].fields.size() > 1)
                        plan->differences[i].fields.pop_back();
                if (random.bounded(3) != 0)
                    continue;
                for (comparison *plan : {&inTree, &onRecords})
                    plan->differences.erase(plan->differences.begin() + qint64(i));
            }

            const auto filter = [&] {
                const QString unit = QString::number(random.bounded(3));
                rows.setFilter([unit](const materialStruct &m) { return m.d_unit == unit || unit == "2"; });
            };
            if (round % 2)
                filter();
            // Given up at some place, it leaves nothing.
            databaseRowsTarget givenUp(&model, &rows);
            int left = random.bounded(20);
            carryOut(inTree.differences, absent, mine, givenUp, [&left](auto, auto) { return left-- > 0; });
            givenUp.revert();
            QCOMPARE(saved(mine), before);
            databaseRowsTarget target(&model, &rows);
            carryOut(inTree.differences, absent, mine, target);
            const auto step = target.step();
            carryOut(onRecords.differences, absent, alone.get());
            const QByteArray after = saved(mine);
            QCOMPARE(after, saved(*alone));
            QCOMPARE(saved(other), theirs);
            if (all && absent == absentOnes::remove)
                QVERIFY(compareDatabases(mine, other).differences.empty());
            if (!step) {
                QCOMPARE(after, before);
                continue;
            }
            for (int time = 0; time < 2; ++time) {
                if (round % 2)
                    filter();
                step->undo();
                QCOMPARE(saved(mine), before);
                if (round % 2)
                    filter();
                step->redo();
                QCOMPARE(saved(mine), after);
            }
            rows.setFilter({});
            // The rows and the index are those of a database that is shown anew.
            ktmIndex fresh;
            fresh.add(&mine);
            QCOMPARE(index.size(), fresh.size());
            for (int row = 0; row < model.rowCount(); ++row)
                model.fetch(model.item(row));
            const QStringList rowsAfter = shown(model);
            databaseTree::rows anew(&mine, databaseTree::columns(config), nullptr, nullptr);
            anew.show(&model);
            for (int row = 0; row < model.rowCount(); ++row)
                model.fetch(model.item(row));
            QCOMPARE(rowsAfter, shown(model));
        }
    }

    void orders()
    {
        QRandomGenerator random(20261126);
        kiv_mat_databaseStruct database;
        for (int i = 0; i < 20; ++i)
            material(database, "A", QString::number(i))->d_unit = i % 3 ? "pcs." : "m";
        ktmIndex index;
        index.add(&database);
        const configStruct config;
        noPage page;
        for (int round = 0; round < 50; ++round) {
            kiv_mat_zpStruct inTree;
            kiv_mat_zpStruct alone;
            for (int i = random.bounded(15); i > 0; --i) {
                const int ktm = random.bounded(25);
                const QString quantity = QStringList{"", "2", "1,5", "x"}.at(random.bounded(4));
                const QString unit = QStringList{"", "m", "pcs."}.at(random.bounded(3));
                for (kiv_mat_zpStruct *order : {&inTree, &alone}) {
                    auto *line = order->orderItems.append(std::make_unique<orderItemStruct>());
                    line->ktm = QString::number(ktm);
                    line->quantity = quantity;
                    line->unit = unit;
                }
            }
            kiv_mat_bomStruct bom;
            for (int i = 0; i < 10; ++i) {
                auto line = std::make_unique<materialStruct>();
                line->d_ktm = QString::number(random.bounded(25));
                line->d_quantity = QStringList{"1", "0,25", "no"}.at(random.bounded(3));
                bom.materials.push_back(std::move(line));
            }
            const bomOperations::demand needed = bomOperations::demandOf({{&bom, 1 + random.bounded(3)}}, index);
            const auto existing = bomOperations::present(random.bounded(3));
            const auto plan = [&](const kiv_mat_zpStruct &order) {
                return planOf(needed, order, {bomOperations::amount::needed, existing}, QDate(2026, 11, 25));
            };
            const QByteArray before = saved(inTree);
            listRows<orderItemStruct> rows(orderTree::columns(config, inTree, index));
            myModel model(nullptr);
            rows.show(&model, &inTree.orderItems.items);
            model.setRecords(&rows);
            orderLinesTarget target(&model, &rows);
            const int changes = apply(plan(inTree), target);
            const auto step = target.step(&page);
            QCOMPARE(apply(plan(alone), &alone), changes);
            const QByteArray after = saved(inTree);
            QCOMPARE(after, saved(alone));
            for (int time = 0; time < 2; ++time) {
                step->undo();
                QCOMPARE(saved(inTree), before);
                step->redo();
                QCOMPARE(saved(inTree), after);
            }
        }
    }
};

KIVZP_TEST(tst_takeOver)
#include "tst_takeOver.moc"

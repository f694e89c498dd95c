// Rows of a database under a filter: which there are, that their cells come when they are needed and stay what they
// are, and that the history finds its rows whatever the filter did meanwhile.
#include "databaseSupport.h"
#include "testSupport.h"

#include "commands/commandStack.h"
#include "commands/editCommands.h"
#include "data/configStruct.h"
#include "database/databaseTree.h"
#include "tree/myTreeView.h"

#include <QHeaderView>

using namespace testSupport;
using myItem::myItemStandard;

namespace {

QByteArray saved(const xmlData &record)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    record.writeXml(&writer);
    return bytes;
}

// How many cells were made of the rows below an item.
int cellsMade(const QStandardItem *parent) { return myItem::allItems(parent).size(); }

} // namespace

class tst_filteredRows : public QObject
{
    Q_OBJECT
private slots:
    // Two groups of ten; the units are u0, u1, u2, u0 ...
    void init()
    {
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        for (int i = 0; i < 20; ++i) {
            materialStruct *m = material(*m_database, i < 10 ? "A" : "B", QString::number(i), QString("n%1").arg(i));
            m->d_unit = QString("u%1").arg(i % 3);
            m->d_price = QString::number((i * 7) % 10);
        }
        m_model = std::make_unique<myModel>(nullptr);
        m_stack = std::make_unique<commandStack>(nullptr, nullptr);
        recordEdits(m_model.get(), m_stack.get());
        m_rows = std::make_unique<databaseTree::rows>(m_database.get(), databaseTree::columns(configStruct()), nullptr,
                                                      nullptr);
        m_rows->show(m_model.get());
    }

    void cleanup()
    {
        m_view.reset();
        m_stack.reset();
        m_model->detach();
        m_rows.reset();
        m_model.reset();
    }

    // "2 of 10" and rows for these alone; without a filter all of them.
    void counts()
    {
        m_model->fetch(group(0));
        QCOMPARE(m_model->item(0, databaseTree::ktmColumn)->text(), QString("10 materials"));
        showUnit("u1");
        QCOMPARE(names(0), QStringList({"n1", "n4", "n7"}));
        QCOMPARE(m_model->item(0, databaseTree::ktmColumn)->text(), QString("3 of 10"));
        QCOMPARE(m_model->item(1, databaseTree::ktmColumn)->text(), QString("4 of 10"));
        QVERIFY(group(1)->rowCount() == 0 && m_model->canFetchMore(group(1)->index()));
        m_model->fetch(group(1));
        QCOMPARE(names(1), QStringList({"n10", "n13", "n16", "n19"}));
        m_rows->setFilter({});
        QCOMPARE(names(0).size() + names(1).size(), 20);
    }

    // Painting, moving the cursor and copying make nothing but the first cells of the rows that were current.
    void looking()
    {
        openView();
        m_view->expandAll();
        m_view->grab();
        for (int column = 0; column < m_model->columnCount(); ++column)
            m_view->setColumnHidden(column, false);
        m_view->grab();
        for (int row = 0; row < 5; ++row)
            m_view->goTo(m_model->index(row, 3, group(0)->index()));
        m_view->selectAll();
        QCOMPARE(m_view->selectedCells().size(), 22 * m_model->columnCount());
        QCOMPARE(cellsMade(group(0)), 5);
        QCOMPARE(cellsMade(group(1)), 0);
        // A cell that comes to be while its row is the current one has the row's mark.
        const QModelIndex price = m_model->index(4, priceColumn(), group(0)->index());
        QVERIFY(m_model->look(price)->highlighted);
        QVERIFY(m_model->cell(price)->highlighted);
        m_view->goTo(m_model->index(3, 0, group(0)->index()));
        QVERIFY(!m_model->cell(price)->highlighted);
        QCOMPARE(m_model->data(price).toString(), m_database->groups[0]->items[4]->d_price);
    }

    // A change beside the tree is seen, in cells that are made and others.
    void refreshed()
    {
        openView();
        m_view->expandAll();
        for (int row : {0, 1}) {
            materialStruct *material = m_database->groups[0]->items[row].get();
            const QModelIndex price = m_model->index(row, priceColumn(), group(0)->index());
            if (row == 0)
                m_model->cell(price);
            QCOMPARE(m_model->look(price)->text(), material->d_price);
            QSignalSpy changed(m_model.get(), &QAbstractItemModel::dataChanged);
            m_rows->willChange(material);
            material->d_price = "77";
            m_rows->refresh(material);
            QCOMPARE(m_model->look(price)->text(), QString("77"));
            QTRY_VERIFY(!changed.isEmpty());
        }
    }

    // What is edited under a filter stays until the filter is set again; so does what is put in, and what an undo
    // brings back.
    void staysUnderTheHands()
    {
        m_model->fetch(group(0));
        showUnit("u1");
        edit(cell(0, 1, "d_unit"), "u2");
        m_rows->follow();
        QCOMPARE(names(0), QStringList({"n1", "n4", "n7"}));
        auto fresh = std::make_unique<materialStruct>();
        fresh->d_name = "new";
        m_stack->push(std::make_unique<appendItems>(group(0), m_rows->makeRow(std::move(fresh))));
        m_rows->follow();
        QCOMPARE(names(0), QStringList({"n1", "n4", "n7", "new"}));
        QCOMPARE(m_database->groups[0]->items.back()->d_name, QString("new"));
        QCOMPARE(m_model->item(0, databaseTree::ktmColumn)->text(), QString("4 of 11"));
        showUnit("u0");
        QCOMPARE(names(0), QStringList({"n0", "n3", "n6", "n9"}));
        m_stack->undo();
        m_stack->undo();
        m_rows->follow();
        QCOMPARE(names(0), QStringList({"n0", "n3", "n4", "n6", "n9"}));
        QCOMPARE(m_database->groups[0]->items[4]->d_unit, QString("u1"));
        // Too many for hands are shown as far as they match.
        std::vector<std::unique_ptr<command>> many;
        for (int i = 0; i < 200; ++i) {
            auto added = std::make_unique<materialStruct>();
            added->d_unit = i % 50 ? "u1" : "u0";
            many.push_back(std::make_unique<appendItems>(group(0), m_rows->makeRow(std::move(added))));
        }
        m_stack->push(std::make_unique<appendCommands>(std::move(many), m_model.get()));
        m_rows->follow();
        QCOMPARE(names(0).size(), 5 + 4);
    }

    // Selection, current cell and cells themselves are those of their records, wherever the rows go.
    void sameAcrossFilters()
    {
        openView();
        m_view->expandAll();
        const QModelIndex four = m_model->index(4, 1, group(0)->index());
        m_view->goTo(four);
        const myItemStandard *before = m_model->cell(four);
        showUnit("u1");
        QCOMPARE(m_view->currentIndex(), m_model->index(1, 1, group(0)->index()));
        QCOMPARE(m_view->selectedCells(), QModelIndexList{m_view->currentIndex()});
        QCOMPARE(m_model->cell(m_view->currentIndex()), before);
        m_model->sort(priceColumn(), Qt::DescendingOrder);
        // The prices of 1, 4, 7 are 7, 8, 9.
        QCOMPARE(names(0), QStringList({"n7", "n4", "n1"}));
        QCOMPARE(m_model->cell(m_view->currentIndex()), before);
        m_rows->setFilter({});
        QCOMPARE(names(0), QStringList({"n7", "n4", "n1", "n8", "n5", "n2", "n9", "n6", "n3", "n0"}));
        QCOMPARE(m_model->cell(m_view->currentIndex()), before);
        showUnit("u2");
        QCOMPARE(names(0), QStringList({"n8", "n5", "n2"}));
        QVERIFY(!before->model() && m_view->selectedCells().isEmpty());
        m_rows->setFilter({});
        QCOMPARE(m_model->cell(m_model->index(1, 1, group(0)->index())), before);
    }

    // A long random work: rows are always those of the shown records in the order of the file with their texts, and
    // undone to its beginning everything is as it was, done again as it was left.
    void randomWork()
    {
        QRandomGenerator random(20261125);
        for (int round = 0; round < 30; ++round) {
            if (round > 0) {
                cleanup();
                init();
            }
            const QByteArray begun = saved(*m_database);
            for (int step = 0; step < 60; ++step) {
                QStandardItem *of = group(random.bounded(2));
                const int rows = of->rowCount();
                const auto rowAt = [&](int row) { return m_model->cell(m_model->index(row, 0, of->index())); };
                switch (random.bounded(8)) {
                case 0:
                    m_model->fetch(of);
                    break;
                case 1:
                    showUnit(QString("u%1").arg(random.bounded(3)));
                    break;
                case 2:
                    m_rows->setFilter({});
                    break;
                case 3:
                    if (rows > 0)
                        edit(cell(of->row(), random.bounded(rows), "d_unit"), QString("u%1").arg(random.bounded(4)));
                    break;
                case 4:
                    if (rows > 0)
                        m_stack->push(std::make_unique<deleteFromItem>(of, rowAt(random.bounded(rows))));
                    break;
                case 5: {
                    auto added = std::make_unique<materialStruct>();
                    added->d_name = QString("a%1").arg(step);
                    m_stack->push(std::make_unique<appendItems>(of, m_rows->makeRow(std::move(added))));
                    break;
                }
                case 6:
                    if (rows > 0) {
                        const int row = random.bounded(rows);
                        auto changed = databaseTree::rows::materialOf(rowAt(row))->copy();
                        changed->d_name += 'c';
                        m_stack->push(std::make_unique<changeRow>(of, row, m_rows->makeRow(std::move(changed))));
                    }
                    break;
                default:
                    if (random.bounded(2))
                        m_stack->undo();
                    else
                        m_stack->redo();
                }
                m_rows->follow();
                if (!inStep())
                    return;
            }
            const QByteArray left = saved(*m_database);
            const size_t steps = m_stack->undoCount();
            while (m_stack->undoCount() > 0) {
                showUnit(QString("u%1").arg(random.bounded(3)));
                m_stack->undo();
                m_rows->follow();
                if (!inStep())
                    return;
            }
            QCOMPARE(saved(*m_database), begun);
            for (size_t step = 0; step < steps; ++step) {
                if (step % 3 == 0)
                    m_rows->setFilter({});
                m_stack->redo();
            }
            m_rows->follow();
            QCOMPARE(saved(*m_database), left);
            if (!inStep())
                return;
        }
    }

private:
    myItemStandard *group(int row) const { return static_cast<myItemStandard *>(m_model->item(row)); }

    void showUnit(const QString &unit)
    {
        m_rows->setFilter([unit](const materialStruct &material) { return material.d_unit == unit; });
    }

    int columnOf(const QString &key) const
    {
        for (size_t c = 0; c < m_rows->columns().size(); ++c)
            if (m_rows->columns()[c].key == key)
                return int(c);
        return -1;
    }
    int priceColumn() const { return columnOf("d_price"); }

    myItemStandard *cell(int ofGroup, int row, const QString &key) const
    {
        return m_model->cell(m_model->index(row, columnOf(key), group(ofGroup)->index()));
    }

    void edit(myItemStandard *cell, const QString &text) { m_model->setValue(cell, text); }

    QStringList names(int ofGroup) const
    {
        QStringList names;
        for (int row = 0; row < group(ofGroup)->rowCount(); ++row)
            names.append(m_model->index(row, 0, group(ofGroup)->index()).data().toString());
        return names;
    }

    void openView()
    {
        m_view = std::make_unique<myTreeView>();
        m_view->setModel(m_model.get());
        m_view->resize(900, 700);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    }

    // Whether the rows that are made show the records that are to be seen.
    bool inStep() const
    {
        for (int g = 0; g < m_model->rowCount(); ++g) {
            if (!group(g)->below)
                continue;
            int row = 0;
            for (const auto &material : m_database->groups[size_t(g)]->items) {
                if (!m_rows->isShown(*material))
                    continue;
                const QModelIndex first = m_model->index(row++, 0, group(g)->index());
                bool same = m_model->recordAt(first) == material.get();
                for (size_t c = 0; c < m_rows->columns().size() && same; ++c)
                    same = first.siblingAtColumn(int(c)).data(Qt::EditRole).toString()
                           == m_rows->columns()[c].read(*material);
                if (!QTest::qVerify(same, "a row and its record", qPrintable(material->d_name), __FILE__, __LINE__))
                    return false;
            }
            if (!QTest::qCompare(group(g)->rowCount(), row, "rows", "shown", __FILE__, __LINE__))
                return false;
        }
        return true;
    }

    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    std::unique_ptr<myModel> m_model;
    std::unique_ptr<commandStack> m_stack;
    std::unique_ptr<databaseTree::rows> m_rows;
    std::unique_ptr<myTreeView> m_view;
};

KIVZP_TEST(tst_filteredRows)
#include "tst_filteredRows.moc"

// The trees as users drive them: editors, keys, mouse, highlight.
#include "testSupport.h"

#include "commands/commandStack.h"
#include "commands/editCommands.h"
#include "tree/IPCtrl.h"
#include "tree/columnTable.h"
#include "tree/myCalendarWidget.h"
#include "tree/myModelDelegate.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextDocument>
#include <QToolTip>

using namespace testSupport;
using namespace myItem;

class tst_views : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_stack = std::make_unique<commandStack>(nullptr, nullptr);
        m_model = std::make_unique<myModel>(nullptr);
        recordEdits(m_model.get(), m_stack.get());
        for (int r = 0; r < 3; ++r)
            m_model->appendRow({new myItemStandard("shown"), new myItemLineEdit("text", "text", true),
                                new myItemSpinBox("number", 0, 100, 5, true),
                                new myItemLineEdit("locked", "locked", false)});
        m_view = std::make_unique<myTreeView>();
        m_view->setModel(m_model.get());
        m_view->resize(600, 300);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
        m_view->setFocus();
    }

    void cleanup()
    {
        m_view.reset();
        m_model.reset();
        m_stack.reset();
    }

    // A kind of cell with a text, what is shown of it, and what it holds after keys in its editor. Opened and left
    // alone it stays as it was read, and there is no step to undo.
    void edited_data()
    {
        const rows<int, QString, QString, QString, QString> row;
        row("fraction", int(spinBoxKind), "2,5", "2,5", "2", "2");
        row("sign", int(spinBoxKind), "2", "2", "+14", "14");
        row("blanks", int(moneyKind), "5", "5.00", "1 234,50 z\u0142", "1234.50");
        row("six places", int(moneyKind), "5", "5.00", "0,004200", "0.0042");
        row("comma typed", int(doubleSpinBoxKind), "1", "1", "12,5", "12.50");
        row("above the maximum", int(spinBoxKind), "5000", "5000", "3", "3");
        row("no quantity", int(spinBoxKind), "", "", "0", "0");
        row("comma", int(moneyKind), "30,95", "30.95", "31", "31.00");
        row("no more price", int(moneyKind), "0.0123", "0.0123", "\b", "");
        row("beyond the range", int(moneyKind), "2000000", "2000000.00", "7.25", "7.25");
        row("no price", int(moneyKind), "", "", "0", "0.00");
        row("price in words", int(moneyKind), "gratis", "gratis", "1", "1.00");
        const QString soon = QDate::currentDate().addDays(14).toString("dd.MM.yyyy");
        row("past date", int(dateEditKind), "01.02.2003", "01.02.2003", "+14", soon);
        row("no date", int(dateEditKind), "NIE", "NO", soon, soon);
        row("a word for a date", int(dateEditKind), soon, soon, "nie", "NIE");
        row("foreign word", int(comboBoxKind), "MOŻE", "MOŻE", "N", "NIE");
        row("word in the user's language", int(comboBoxKind), "TAK", "YES", "N", "NIE");
        row("text", int(lineEditKind), " two  blanks ", " two  blanks ", "one", "one");
    }

    void edited()
    {
        const auto [kind, stored, shown, keys, after] = fetch<int, QString, QString, QString, QString>();
        const cellTraits traits{"k", myItem::kind(kind), true, entriesOf(QStringList{"TAK", "NIE"}), false, 0, 100};
        m_model->setItem(0, 1, makeCell(traits, stored));
        QCOMPARE(cell(0, 1)->text(), stored);
        QCOMPARE(displayText(*cell(0, 1)), shown);
        const QPoint elsewhere = m_view->visualRect(m_model->index(2, 3)).center();
        bool byMouse = false;
        for (const bool typing : {false, false, true}) {
            m_view->setCurrentIndex(m_model->index(0, 1));
            QTest::keyClick(m_view.get(), Qt::Key_F2);
            QVERIFY(editor());
            if (typing)
                type(keys);
            if (std::exchange(byMouse, !byMouse))
                QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, elsewhere);
            else
                QTest::keyClick(editor(), Qt::Key_Return);
            QTRY_VERIFY(!editor());
            QCOMPARE(cell(0, 1)->text(), typing ? after : stored);
            QCOMPARE(m_stack->undoCount(), size_t(typing));
        }
        m_stack->undo();
        QCOMPARE(cell(0, 1)->text(), stored);
        m_stack->redo();
        QCOMPARE(cell(0, 1)->text(), after);
    }

    // What cannot be taken stays in its editor, whatever key or click would leave it, until it is mended or Escape.
    void refused_data()
    {
        const rows<int, QString, QString> row;
        row("comma and point", int(moneyKind), "1.234,50", "either a comma or a point");
        row("blank anywhere", int(moneyKind), "1 2", "is not a number");
        row("seven places", int(moneyKind), "0.0000001", "at most 6 decimal");
        row("negative", int(moneyKind), "-3", "from 0 to 1000000");
        row("another currency", int(moneyKind), "5 EUR", "the unit here is PLN");
        row("pieces in parts", int(spinBoxKind), "2,5", "whole number");
        row("above the maximum", int(spinBoxKind), "101", "from 0 to 100");
        row("nothing", int(spinBoxKind), "\b", "A number is needed");
        row("past date", int(dateEditKind), "01.02.2003", "dates from");
        row("no date", int(dateEditKind), "31.02", "is no date");
        row("not in the list", int(comboBoxKind), "xyz", "is not in the list");
    }

    void refused()
    {
        const auto [kind, keys, fault] = fetch<int, QString, QString>();
        const cellTraits traits{"k", myItem::kind(kind), true, entriesOf(QStringList{"TAK", "NIE"}), false, 0, 100};
        m_model->setItem(0, 1, makeCell(traits, "TAK"));
        const QPoint elsewhere = m_view->visualRect(m_model->index(2, 3)).center();
        m_view->setCurrentIndex(m_model->index(0, 1));
        QTest::keyClick(m_view.get(), Qt::Key_F2);
        type(keys);
        for (const int way : {int(Qt::Key_Return), int(Qt::Key_Tab), 0}) {
            if (way)
                QTest::keyClick(editor(), Qt::Key(way));
            else
                QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, elsewhere);
            QTRY_VERIFY2(editor()->toolTip().contains(fault), qPrintable(editor()->toolTip()));
            QTRY_COMPARE(m_view->currentIndex(), m_model->index(0, 1));
            QVERIFY(editor()->isVisible() && !m_view->finishEditing());
        }
        QCOMPARE(cell(0, 1)->text(), QString("TAK"));
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(!editor());
        QCOMPARE(cell(0, 1)->text(), QString("TAK"));
        QCOMPARE(m_stack->undoCount(), size_t(0));
    }

    void calendar()
    {
        m_model->setItem(0, 1, new myItemDateEdit("k", "01.02.2003", true));
        m_view->setCurrentIndex(m_model->index(0, 1));
        QTest::keyClick(m_view.get(), Qt::Key_F2);
        auto *opened = qobject_cast<myCalendarWidget *>(editor());
        QVERIFY(opened);
        QCOMPARE(opened->calendar()->minimumDate(), QDate::currentDate());
        QCOMPARE(opened->calendar()->maximumDate(), QDate::currentDate().addYears(1));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::mouseClick(opened->findChild<QPushButton *>("set"), Qt::LeftButton);
        QTRY_COMPARE(cell(0, 1)->text(), QDate::currentDate().addDays(1).toString("dd.MM.yyyy"));
        QCOMPARE(m_stack->undoCount(), size_t(1));
    }

    void tabGoesToTheNextEditableCell()
    {
        m_view->setCurrentIndex(m_model->index(0, 1));
        for (const QPoint expected : {QPoint(2, 0), QPoint(1, 1), QPoint(2, 1)}) {
            QTest::keyClick(m_view.get(), Qt::Key_Tab);
            QCOMPARE(QPoint(m_view->currentIndex().column(), m_view->currentIndex().row()), expected);
        }
        QTest::keyClick(m_view.get(), Qt::Key_Backtab);
        QCOMPARE(m_view->currentIndex(), m_model->index(1, 1));
    }

    void readOnlyAndLocked()
    {
        for (const auto &[column, locked, key] : {std::tuple(3, false, Qt::Key_Return),
                                                  {1, true, Qt::Key_Return},
                                                  {1, true, Qt::Key_F2},
                                                  {1, true, Qt::Key_A},
                                                  {1, false, Qt::Key_Delete}}) {
            m_view->setEditingLocked(locked);
            m_view->setCurrentIndex(m_model->index(0, column));
            QTest::keyClick(m_view.get(), key);
            QVERIFY(!editor());
        }
    }

    void mouseTells()
    {
        const QSignalSpy clicked(m_view.get(), qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked));
        for (const QPoint place : {m_view->visualRect(m_model->index(1, 1)).center(), QPoint(50, 280)})
            QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().at(2).toModelIndex(), m_model->index(1, 1));
        myTextEdit text;
        const QSignalSpy pressed(&text, &myTextEdit::clicked);
        const QSignalSpy twice(&text, &myTextEdit::doubleClicked);
        QTest::mouseClick(text.viewport(), Qt::RightButton, {}, QPoint(3, 4));
        QTest::mouseDClick(text.viewport(), Qt::LeftButton, {}, QPoint(3, 4));
        QCOMPARE(pressed.first().at(1).toUInt(), uint(Qt::RightButton));
        QCOMPARE(twice.count(), 1);
    }

    void rowsAreDraggedByTheirFirstCell()
    {
        m_view->setRowsDragged(true);
        std::vector<int> rows;
        int before = -1;
        connect(m_view.get(), &myTreeView::rowsDragged, this, [&](const std::vector<int> &dragged, int to) {
            rows = dragged;
            before = to;
        });
        for (int column : {1, 0}) {
            const auto place = [&](int row) { return m_view->visualRect(m_model->index(row, column)).center(); };
            QTest::mousePress(m_view->viewport(), Qt::LeftButton, {}, place(0));
            QMouseEvent move(QEvent::MouseMove, place(2) + QPoint(0, 4), Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(m_view->viewport(), &move);
            QTest::mouseRelease(m_view->viewport(), Qt::LeftButton, {}, place(2) + QPoint(0, 4));
            QCOMPARE(before, column == 0 ? 3 : -1);
        }
        // The others were selected by the first drag.
        QCOMPARE(rows, (std::vector<int>{0, 1, 2}));
    }

    // A material's name is no HTML, whatever it looks like.
    void toolTipsArePlain()
    {
        const QString name = "<img src=\"file:///etc/x.png\"> a name longer than the cell is wide in this tree here";
        m_model->setItem(0, 1, new myItemLineEdit("k", name, true));
        const QPoint place = m_view->visualRect(m_model->index(0, 1)).center();
        QHelpEvent help(QEvent::ToolTip, place, m_view->viewport()->mapToGlobal(place));
        QApplication::sendEvent(m_view->viewport(), &help);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        QCOMPARE(shown.toPlainText(), name);
    }

    void highlightFollowsTheCurrentRow()
    {
        const auto marked = [this] {
            QString rows;
            for (const QStandardItem *item : allItems(m_model->invisibleRootItem()))
                if (static_cast<const myItemStandard *>(item)->highlighted && item->column() == 3)
                    rows += QString::number(item->row());
            return rows;
        };
        m_view->setCurrentIndex(m_model->index(0, 1));
        QTest::keyClick(m_view.get(), Qt::Key_Down);
        QCOMPARE(marked(), QString("1"));
        // A row that leaves the tree loses its mark, and comes back without.
        const row taken = m_model->takeRow(1);
        m_model->insertRow(2, taken);
        QTest::mouseMove(m_view->viewport(), QPoint(20, 10));
        QTest::keyClick(m_view.get(), Qt::Key_Up);
        QCOMPARE(marked(), QString::number(m_view->currentIndex().row()));
        // Escape takes it away, from an editor too.
        QTest::keyClick(m_view.get(), Qt::Key_F2);
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_COMPARE(marked(), QString());
        QVERIFY(!m_view->selectionModel()->hasSelection());
    }

    void headerSortsByValue()
    {
        int row = 0;
        for (const char *amount : {"100", "9,5", "none"})
            m_model->setItem(row++, 1, new myItemMoney("price", amount, true));
        const QSignalSpy sorted(m_model.get(), &myModel::sorted);
        const QPoint press(m_view->header()->sectionViewportPosition(1) + 20, 5);
        QTest::mousePress(m_view->header()->viewport(), Qt::LeftButton, {}, press);
        QTest::mouseRelease(m_view->header()->viewport(), Qt::LeftButton, {}, press + QPoint(2, 1));
        QCOMPARE(cell(0, 1)->text() + '|' + cell(1, 1)->text() + '|' + cell(2, 1)->text(), QString("none|9,5|100"));
        QCOMPARE(sorted.count(), 1);
    }

    void oddCells()
    {
        const myItemSpinBox spin("key", 0, 0, 7, false);
        QCOMPARE(spin.maximum, 1);
        QVERIFY(spin.readOnly && !spin.isEditable());
        myItemComboBox combo("key", comboEntries{{"a", "why", {}, {}}, {"b", "", {}, {}}}, 1, true);
        combo.setCurrentIndex(2);
        QCOMPARE(combo.displayText(), QString("a - why"));
        QCOMPARE(displayText(myItemTextEdit("key", "<b>a</b>", true)), QString("a"));
    }

    void barColours()
    {
        myModelDelegate delegate;
        delegate.setThresholds({25, 50, 75});
        const std::pair<int, const char *> shares[] = {
            {0, "#fe5a3c"}, {50, "#fe5a3c"}, {51, "#ffbe1e"}, {150, "#ffff64"}, {151, "#beffbe"}};
        for (const auto &[value, colour] : shares)
            QCOMPARE(delegate.barColour(value, 0, 200).name(), QString(colour));
    }

    void addresses()
    {
        IPCtrl address;
        address.setText("192.168.1.254");
        QCOMPARE(address.text(), QString("192.168.1.254"));
        address.setText("1.256.x.01");
        QCOMPARE(address.text(), QString("1..."));
    }

private:
    QWidget *editor() { return m_view->findChild<QWidget *>("editor"); }
    void type(const QString &keys)
    {
        if (keys == "\b")
            QTest::keyClick(editor(), Qt::Key_Backspace);
        else
            for (const QChar key : keys)
                QTest::sendKeyEvent(QTest::Click, editor(), Qt::Key_unknown, QString(key), Qt::NoModifier);
    }
    myItemStandard *cell(int row, int column) { return static_cast<myItemStandard *>(m_model->item(row, column)); }

    std::unique_ptr<commandStack> m_stack;
    std::unique_ptr<myModel> m_model;
    std::unique_ptr<myTreeView> m_view;
};

KIVZP_TEST(tst_views)
#include "tst_views.moc"

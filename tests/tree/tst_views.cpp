// The trees as users drive them: editors, keys, mouse, highlight.
#include "testSupport.h"

#include "commands/commandStack.h"
#include "commands/editCommands.h"
#include "tree/IPCtrl.h"
#include "tree/columnTable.h"
#include "tree/myCalendarWidget.h"
#include "tree/myHeaderView.h"
#include "tree/myModelDelegate.h"
#include "tree/myTextEdit.h"
#include "tree/myTreeView.h"
#include "tree/richtexteditDialog.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTextEdit>
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

    void lookingChangesNothing_data()
    {
        const rows<int, QString> row;
        row("fraction", int(spinBoxKind), "2,5");
        row("above the maximum", int(spinBoxKind), "5000");
        row("comma", int(moneyKind), "30,95");
        row("four places", int(moneyKind), "0.0123");
        row("beyond the editor's range", int(moneyKind), "2000000");
        row("no price", int(moneyKind), "");
        row("past date", int(dateEditKind), "01.02.2003");
        row("no date", int(dateEditKind), "NIE");
        row("foreign word", int(comboBoxKind), "MOŻE");
        row("text", int(lineEditKind), " two  blanks ");
    }

    // An editor is opened and confirmed: the text is as it was, and there is no step to undo.
    void lookingChangesNothing()
    {
        const auto [kind, stored] = fetch<int, QString>();
        m_model->setItem(
            0, 1, makeCell({"k", myItem::kind(kind), true, entriesOf(QStringList{"TAK"}), false, 0, 100}, stored));
        const QModelIndex index = m_model->index(0, 1);
        const auto *delegate = static_cast<myModelDelegate *>(m_view->itemDelegate());
        QStyleOptionViewItem option;
        const std::unique_ptr<QWidget> opened(delegate->createEditor(m_view->viewport(), option, index));
        QVERIFY(opened);
        delegate->setEditorData(opened.get(), index);
        delegate->setModelData(opened.get(), m_model.get(), index);
        QCOMPARE(cell(0, 1)->text(), stored);
        QCOMPARE(m_stack->undoCount(), size_t(0));
        // The user's own change counts.
        if (auto *box = qobject_cast<QSpinBox *>(opened.get())) {
            box->setValue(3);
            delegate->setModelData(opened.get(), m_model.get(), index);
            QCOMPARE(cell(0, 1)->text(), QString("3"));
            QCOMPARE(m_stack->undoCount(), size_t(1));
        }
    }

    void calendar()
    {
        m_model->setItem(0, 1, new myItemDateEdit("k", "01.02.2003", true));
        m_view->setCurrentIndex(m_model->index(0, 1));
        QTest::keyClick(m_view.get(), Qt::Key_F2);
        auto *opened = qobject_cast<myCalendarWidget *>(editor());
        QVERIFY(opened);
        QCOMPARE(opened->size(), QSize(220, 182));
        QCOMPARE(opened->calendar()->minimumDate(), QDate::currentDate());
        QCOMPARE(opened->calendar()->maximumDate(), QDate::currentDate().addYears(1));
        opened->calendar()->setSelectedDate(QDate::currentDate().addDays(3));
        QTest::mouseClick(opened->findChild<QPushButton *>("set"), Qt::LeftButton);
        QTRY_COMPARE(cell(0, 1)->text(), QDate::currentDate().addDays(3).toString("dd.MM.yyyy"));
        QCOMPARE(m_stack->undoCount(), size_t(1));
    }

    void enterAndEscape()
    {
        QStringList valuesAtEnter;
        connect(m_view.get(), &myTreeView::keyEnter, this, [&] { valuesAtEnter.append(cell(0, 1)->text()); });
        QSignalSpy escapes(m_view.get(), &myTreeView::keyEscape);
        m_view->setCurrentIndex(m_model->index(0, 1));
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        auto *line = qobject_cast<QLineEdit *>(editor());
        QVERIFY(line);
        line->setText("new");
        QTest::keyClick(line, Qt::Key_Return);
        QTRY_COMPARE(valuesAtEnter, QStringList({"text", "new"}));
        QTRY_VERIFY(!editor());

        QTest::keyClick(m_view.get(), Qt::Key_F2);
        QVERIFY(editor());
        qobject_cast<QLineEdit *>(editor())->setText("lost");
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(!editor());
        QCOMPARE(cell(0, 1)->text(), QString("new"));
        QCOMPARE(escapes.count(), 1);
        QVERIFY(!m_view->selectionModel()->hasSelection());
        QVERIFY(!cell(0, 1)->highlighted);
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
        m_view->setCurrentIndex(m_model->index(0, 3));
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QVERIFY(!editor());
        m_view->setEditingLocked(true);
        m_view->setCurrentIndex(m_model->index(0, 1));
        for (Qt::Key key : {Qt::Key_Return, Qt::Key_F2, Qt::Key_A})
            QTest::keyClick(m_view.get(), key);
        QVERIFY(!editor());
        m_view->setEditingLocked(false);
        // Delete is the window's.
        QTest::keyClick(m_view.get(), Qt::Key_Delete);
        QVERIFY(!editor());
    }

    void mouseTells()
    {
        const QSignalSpy clicked(m_view.get(), qOverload<QPoint, uint, QModelIndex>(&myTreeView::clicked));
        const QSignalSpy released(m_view.get(), qOverload<QModelIndex>(&myTreeView::release));
        const QPoint place = m_view->visualRect(m_model->index(1, 1)).center();
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().at(0).toPoint(), place);
        QCOMPARE(clicked.first().at(2).toModelIndex(), m_model->index(1, 1));
        QCOMPARE(released.count(), 1);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, QPoint(50, 280));
        QCOMPARE(clicked.count(), 1);
        myTextEdit text;
        const QSignalSpy pressed(&text, &myTextEdit::clicked);
        const QSignalSpy twice(&text, &myTextEdit::doubleClicked);
        QTest::mouseClick(text.viewport(), Qt::RightButton, {}, QPoint(3, 4));
        QTest::mouseDClick(text.viewport(), Qt::LeftButton, {}, QPoint(3, 4));
        QCOMPARE(pressed.first().at(0).toPoint(), QPoint(3, 4));
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
    }

    void headerTells()
    {
        auto *header = static_cast<myHeaderView *>(m_view->header());
        const QSignalSpy clicked(header, &myHeaderView::clicked);
        const QSignalSpy sorted(m_model.get(), &myModel::sorted);
        const QPoint press(header->sectionViewportPosition(1) + 20, 5);
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, press);
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, press + QPoint(2, 1));
        QCOMPARE(clicked.count(), 1);
        QCOMPARE(clicked.first().at(0).toPoint(), press);
        QCOMPARE(clicked.first().at(2).toInt(), 1);
        QCOMPARE(sorted.count(), 1);
        QVERIFY(!header->sectionsClickable());
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

    void formattedText()
    {
        richtexteditDialog dialog;
        const QString given = "<p>plain <b>bold</b></p><script>alert(1)</script>";
        dialog.setHtml(given);
        QCOMPARE(dialog.html(), given);
        auto *edit = dialog.findChild<QTextEdit *>("text");
        edit->selectAll();
        dialog.findChild<QAction *>("italic")->trigger();
        dialog.findChild<QAction *>("align_center")->trigger();
        const QString html = dialog.html();
        QVERIFY2(html.contains("<b>") && html.contains("<i>") && html.contains("center"), qPrintable(html));
        QVERIFY2(!html.contains("style=") && !html.contains("script"), qPrintable(html));
    }

private:
    QWidget *editor() { return m_view->viewport()->findChild<QWidget *>("editor"); }
    myItemStandard *cell(int row, int column) { return static_cast<myItemStandard *>(m_model->item(row, column)); }

    std::unique_ptr<commandStack> m_stack;
    std::unique_ptr<myModel> m_model;
    std::unique_ptr<myTreeView> m_view;
};

KIVZP_TEST(tst_views)
#include "tst_views.moc"

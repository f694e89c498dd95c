// The search field with keys: completion, faults, kept searches.
#include "hands.h"
#include "testSupport.h"

#include "data/keptSearches.h"
#include "tree/myTreeView.h"
#include "window/searchLine.h"

#include <QLabel>
#include <QMainWindow>
#include <QStandardItemModel>
#include <QTreeWidget>

using namespace testSupport;

class tst_searchLine : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_prompts = std::make_unique<seenPrompts>();
        m_database = std::make_unique<kiv_mat_databaseStruct>();
        m_search = std::make_unique<materialSearch>();
        int count = 0;
        for (const char *box : {"0603", "0603", "0805", "SOT 23"}) {
            materialStruct *m = material(*m_database, "G", QString::number(++count));
            m->d_case = box;
            m->d_power = "1/4W";
        }
        m_search->add(m_database.get());
        m_window = std::make_unique<QMainWindow>();
        auto *page = new QWidget;
        m_view = new myTreeView(page);
        auto *model = new QStandardItemModel(3, 1, m_view);
        static_cast<QTreeView *>(m_view)->QTreeView::setModel(model);
        m_line = new searchLine(m_view);
        m_line->completeFrom(*m_search);
        m_window->setCentralWidget(page);
        m_window->resize(700, 300);
        connect(m_line, &searchLine::wanted, this, [this] { m_wanted << m_line->text(); });
        m_hands = std::make_unique<hands>(*m_window);
        m_line->setFocus();
    }
    void cleanup()
    {
        m_hands.reset();
        m_window.reset();
        m_prompts.reset();
        m_wanted.clear();
        QFile::remove(keptSearches::file());
    }

    // What stands in the field then, what is in the list ("-" marks the chosen one), and who has the
    // keyboard.
    void keys_data()
    {
        const rows<QString, QString, QString> row;
        row("'po'", "po", "power:", "line");
        row("'po' Tab", "power:", "1/4W", "line");
        row("'po' Tab Tab", "power:1/4W", "", "line");
        row("'po' Return", "po", "", "tree");
        row("'po' Down Return", "power:", "1/4W", "line");
        row("'po' Escape", "po", "", "line");
        row("'po' Escape Escape", "", "", "line");
        row("'po' Escape Down", "po", "", "tree");
        row("'po' Escape Tab", "po", "", "tree");
        row("'po' Left", "po", "", "line");
        row("'rez' Tab", "rez", "", "tree");
        row("'case:0'", "case:0", "0603 0805", "line");
        row("'case:0' Down Down", "case:0", "0603 -0805", "line");
        row("'case:0' Down Down Down Down Return", "case:0805", "", "line");
        row("'case:0' Down Up", "case:0", "0603 0805", "line");
        row("'case:0' Up Return Return", "case:0805", "", "tree");
        row("'case:s' Tab ' x'", "case:\"SOT 23\" x", "", "line");
        row("'case:08' Escape Ctrl+Space Tab", "case:0805", "", "line");
        row("'case:08' Tab Ctrl+Z", "case:08", "0805", "line");
        row("'a' Ctrl+Space", "a", "average: active: approved: added:", "line");
        row("'case:0603|08' Tab", "case:0603|0805", "", "line");
    }

    void keys()
    {
        const auto [text, listed, focus] = fetch<QString, QString, QString>();
        (*m_hands)(tag());
        QCOMPARE(m_line->text(), text);
        QCOMPARE(list(), listed);
        QCOMPARE(QApplication::focusWidget() == m_line ? "line" : "tree", focus);
        // Return searches at once, a chosen completion is no search yet.
        QTRY_COMPARE(m_wanted.value(m_wanted.size() - 1), text);
    }

    void clickedCompletion()
    {
        (*m_hands)("'case:0'");
        auto *shown = m_line->findChild<QTreeWidget *>("completions");
        QTest::mouseClick(shown->viewport(), Qt::LeftButton, {},
                          shown->visualItemRect(shown->topLevelItem(1)).center());
        QCOMPARE(m_line->text() + list(), QString("case:0805"));
        // The numbers are seen beside the values.
        (*m_hands)("Ctrl+A 'case:0'");
        const QRect number = shown->visualItemRect(shown->topLevelItem(0));
        QVERIFY(shown->columnWidth(1) >= shown->fontMetrics().horizontalAdvance("2"));
        QVERIFY(number.right() <= shown->viewport()->width());
    }

    void faultsAreSaidInTheField()
    {
        const auto *fault = m_line->findChild<QLabel *>("fault");
        // Not while it is being typed.
        (*m_hands)("'colour:red'");
        QVERIFY(fault->isVisible());
        (*m_hands)("Ctrl+A 'price:1x'");
        QVERIFY(!fault->isVisible());
        QTRY_VERIFY(fault->isVisible());
        QVERIFY2(fault->text().contains("1x is no number"), qPrintable(fault->text()));
        QCOMPARE(m_line->accessibleDescription(), QString("1x is no number; a text goes in quotes"));
        (*m_hands)("Backspace");
        QVERIFY(!fault->isVisible());
        QCOMPARE(m_line->toolTip(), QString());
        (*m_hands)("'y' Return");
        QVERIFY(fault->isVisible());
        m_line->setText("colour:red size:1");
        QVERIFY(m_line->toolTip().contains("colour") && m_line->toolTip().contains("size"));
        // Neither covers the text nor the field.
        QVERIFY(m_line->textMargins().right() >= fault->width());
        QVERIFY(fault->width() <= m_line->width() * 2 / 3);
        m_line->clear();
        QCOMPARE(m_line->textMargins().right(), 0);
    }

    // The part at fault is drawn otherwise, and that alone.
    void faultsAreMarked()
    {
        const auto picture = [this](const QString &text) {
            m_line->setText(text);
            m_line->setCursorPosition(0);
            m_view->setFocus();
            return m_line->grab(QRect(0, 0, m_line->width() / 4, m_line->height())).toImage();
        };
        const QImage good = picture("case:1 status:2");
        const QImage bad = picture("case:1 statux:2");
        int first = good.width();
        for (int x = good.width() - 1; x >= 0; --x)
            for (int y = 0; y < good.height(); ++y)
                if (good.pixel(x, y) != bad.pixel(x, y))
                    first = x;
        const int before = m_line->fontMetrics().horizontalAdvance("case:1");
        QVERIFY2(first > before && first < good.width(), qPrintable(QString::number(first)));
        QCOMPARE(picture("case:1 status:2"), good);
    }

    void searchesAreKept()
    {
        (*m_hands)("'case:0603' Alt+Down #keepSearch Ctrl+A 'Małe' Return");
        QCOMPARE(keptSearches::all(), (std::vector<keptSearch>{{"Małe", "case:0603"}}));
        // Another one of that name asks.
        (*m_hands)("Ctrl+A 'price:<1' Alt+Down #keepSearch Ctrl+A 'małe' Return Escape");
        QVERIFY(m_hands->boxes().join(' ').contains("There is a kept search Małe: case:0603"));
        QCOMPARE(keptSearches::all(), (std::vector<keptSearch>{{"Małe", "case:0603"}}));
        (*m_hands)("Alt+Down #keepSearch Ctrl+A 'małe' Return !Replace_it");
        QCOMPARE(keptSearches::all(), (std::vector<keptSearch>{{"małe", "price:<1"}}));
        // Chosen, it searches at once.
        (*m_hands)("Ctrl+A 'x' Alt+Down #keptSearch");
        QCOMPARE(m_line->text() + m_wanted.last(), QString("price:<1price:<1"));
        QCOMPARE(keptSearches::last().join('|'), QString("price:<1|x|case:0603"));
        (*m_hands)("Alt+Down #changeKept F2 Ctrl+A 'Inne' Return Tab Tab !OK");
        QCOMPARE(keptSearches::all(), (std::vector<keptSearch>{{"Inne", "price:<1"}}));
        (*m_hands)("Alt+Down #changeKept Del Escape");
        QCOMPARE(keptSearches::all().size(), size_t(1));
        (*m_hands)("Alt+Down #changeKept Del !OK Alt+Down #forgetLast");
        QVERIFY(keptSearches::all().empty() && keptSearches::last().isEmpty());
    }

    void namesAreRefused()
    {
        QVERIFY(keptSearches::setAll({{"a", "1"}, {"b", "2"}}));
        (*m_hands)("Alt+Down #changeKept F2 Ctrl+A 'B' Return !OK ~50 F2 Ctrl+A ' ' Return !OK ~50 Escape");
        QCOMPARE(keptSearches::all(), (std::vector<keptSearch>{{"a", "1"}, {"b", "2"}}));
    }

private:
    QString list() const
    {
        const auto *shown = m_line->findChild<QTreeWidget *>("completions");
        QStringList rows;
        for (int row = 0; row < shown->topLevelItemCount() && shown->isVisible(); ++row)
            rows << (shown->currentItem() == shown->topLevelItem(row) ? "-" : "") + shown->topLevelItem(row)->text(0);
        return rows.join(' ');
    }

    std::unique_ptr<seenPrompts> m_prompts;
    std::unique_ptr<kiv_mat_databaseStruct> m_database;
    std::unique_ptr<materialSearch> m_search;
    std::unique_ptr<QMainWindow> m_window;
    std::unique_ptr<hands> m_hands;
    myTreeView *m_view = nullptr;
    searchLine *m_line = nullptr;
    QStringList m_wanted;
};

KIVZP_TEST(tst_searchLine)
#include "tst_searchLine.moc"

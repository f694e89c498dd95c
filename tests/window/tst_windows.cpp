// What all windows have: actions, progress, a remembered place; and the log and errors windows.
#include "testSupport.h"

#include "window/messageWindow.h"
#include "window/workProgress.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

using namespace testSupport;

class sampleWindow : public baseWindow
{
    Q_OBJECT
public:
    sampleWindow();

    int printed = 0;
    void print(bool) { ++printed; }
    void edit(bool) {}
};

static const windowAction<sampleWindow> sampleTable[] = {
    {{"print", "File", "Print", "action_print", "Ctrl+P", "About", true}, &sampleWindow::print},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr}, nullptr},
    {{"edit", "File", "Exit", nullptr, nullptr, nullptr, false, true}, &sampleWindow::edit},
};

sampleWindow::sampleWindow()
    : baseWindow("sampleWindow")
{
    addActions(sampleTable);
    auto *splitter = new QSplitter(this);
    splitter->setObjectName("splitter");
    splitter->addWidget(new QWidget);
    splitter->addWidget(new QWidget);
    setCentralWidget(splitter);
}

class tst_windows : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_folder = std::make_unique<programFolder>(); }
    void cleanup() { m_folder.reset(); }
    void tableMakesMenusAndToolBar()
    {
        sampleWindow window;
        const QAction *print = window.action("print");
        QCOMPARE(print->toolTip(), QString("About (Ctrl+P)"));
        QVERIFY(window.menuBar()->findChild<QMenu *>("menuFile")->actions().at(1)->isSeparator());
        QCOMPARE(window.findChild<QToolBar *>()->actions().size(), 1);
        // Mnemonics do not collide.
        QCOMPARE(print->text() + window.action("edit")->text(), QString("&Print&Exit"));
    }

    void placeIsRemembered()
    {
        {
            sampleWindow window;
            window.show();
            window.resize(612, 345);
            window.findChild<QSplitter *>()->setSizes({100, 500});
            QCoreApplication::processEvents();
            window.hide();
        }
        sampleWindow again;
        again.show();
        QCOMPARE(again.size(), QSize(612, 345));
        const QList<int> sizes = again.findChild<QSplitter *>()->sizes();
        QVERIFY(sizes[0] * 3 < sizes[1]);
        // A file of nonsense is no obstacle.
        m_folder->write("_config/windows.ini", QByteArray("\x00[[=sampleWindow\n", 17));
        sampleWindow third;
        third.show();
        QVERIFY(third.isVisible());
    }

    void progressShowsAndCancels()
    {
        sampleWindow window;
        window.show();
        auto *bar = window.findChild<QProgressBar *>();
        auto *cancel = window.findChild<QToolButton *>("cancelButton");
        QVERIFY(!bar->isVisible());
        int steps = 0;
        bool entered = false;
        {
            workProgress::scope work(window.progress(), "Work");
            const progressFunction tell = work.function();
            while (tell(steps, 1000) && steps < 1000) {
                QTest::qSleep(5);
                ++steps;
                if (steps == 100) {
                    QVERIFY(bar->isVisible());
                    QVERIFY(bar->value() > 0);
                    // Neither a key nor closing reaches the window while it works.
                    QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier);
                    entered = window.printed > 0;
                    window.close();
                    QVERIFY(window.isVisible());
                    QTest::mouseClick(cancel, Qt::LeftButton);
                }
            }
            QVERIFY(work.cancelled());
        }
        QVERIFY(!entered);
        QVERIFY(steps < 200);
        QVERIFY(!bar->isVisible());
        // The next work starts uncancelled.
        workProgress::scope next(window.progress(), "Next");
        QVERIFY(!next.cancelled());
    }

    void messagesWaitForTheWindow()
    {
        logWindow &log = logWindow::instance();
        auto *view = log.findChild<QTextEdit *>("text");
        log.commandClear(true);
        log.append("one<br>");
        QCOMPARE(log.text(), QString("one<br>"));
        QCOMPARE(view->toPlainText(), QString());
        log.showNow();
        QCOMPARE(view->toPlainText().trimmed(), QString("one"));
        log.append("<b>two</b><br>");
        QCOMPARE(view->toPlainText().split('\n', Qt::SkipEmptyParts), QStringList({"one", "two"}));
        QTest::keyClick(&log, Qt::Key_Escape);
        QVERIFY(!log.isVisible());
        log.append("three");
        log.showNow();
        QVERIFY(view->toPlainText().endsWith("three"));
        QTest::keyClick(&log, Qt::Key_F, Qt::AltModifier);
        QTRY_VERIFY(QApplication::activePopupWidget());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_C);
        QCOMPARE(log.text() + view->toPlainText(), QString());
        log.append("four");
        QCOMPARE(view->toPlainText(), QString("four"));
        log.hideNow();
        log.commandClear(true);
        log.appendToLog("<b>100 %</b>");
        QCOMPARE(log.text(), QString("&lt;b&gt;100 %&lt;/b&gt;<br>"));
    }

private:
    std::unique_ptr<programFolder> m_folder;
};

KIVZP_TEST(tst_windows)
#include "tst_windows.moc"

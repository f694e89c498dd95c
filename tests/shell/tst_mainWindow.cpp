// The main window on the sample data.
#include "testSupport.h"

#include "data/programData.h"
#include "order/orderDocument.h"
#include "report/myWebView.h"
#include "shell/MainWindow.h"
#include "shell/startupDialog.h"
#include "util/userState.h"

#include <QAction>
#include <QApplication>
#include <QStatusBar>
#include <QWheelEvent>

class tst_mainWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void stagesAdvanceTheSplash();
    void actionsAreReachable();
    void printAsksForAFile();
    void wheelZooms();

private:
    std::unique_ptr<testSupport::programFolder> m_folder;
    std::unique_ptr<testSupport::recordingPrompts> m_shown;
};

void tst_mainWindow::init()
{
    m_folder = std::make_unique<testSupport::programFolder>();
    m_shown = std::make_unique<testSupport::recordingPrompts>();
    for (const char *folder : {"_config", "_files", "_zp"})
        testSupport::copyFolder(testSupport::source(folder), m_folder->path(folder));
    userState::instance().lastZp = "_zp/zp_0.xml";
}

void tst_mainWindow::cleanup()
{
    programData::instance().clear();
    m_shown.reset();
    m_folder.reset();
}

void tst_mainWindow::stagesAdvanceTheSplash()
{
    // A file that is switched off has its stage all the same.
    configStruct config;
    QVERIFY(config.load(m_folder->path("_config/kiv_mat_config.xml")));
    config.options.findOption("LOAD_DB_MECHANICS")->value1 = "NIE";
    QVERIFY(config.save(m_folder->path("_config/kiv_mat_config.xml")));

    class watchedSplash : public startupDialog
    {
    public:
        QStringList seen;

    protected:
        void drawContents(QPainter *painter) override
        {
            const QString step = QString("%1/%2").arg(progress()).arg(maximum());
            if (seen.isEmpty() || seen.last() != step)
                seen.append(step);
            startupDialog::drawContents(painter);
        }
    };
    watchedSplash dialog;
    QCOMPARE(dialog.maximum(), 100);
    splash::hold(&dialog);
    splash::setProgress(0, 10);
    splash::show();
    QCoreApplication::processEvents();
    const MainWindow window(programData::instance());
    splash::hold(nullptr);
    splash::setProgress(3, 4);
    QCOMPARE(dialog.seen.join(' '), QString("0/10 1/9 2/9 3/9 4/9 5/9 6/9 7/9 8/9 9/9"));
    // The order has lines of the database left out.
    QVERIFY2(m_shown->listed.startsWith("Materials does not exist in database:<br><b>"), qPrintable(m_shown->listed));
    QVERIFY(m_shown->logged.startsWith("Open file <b>zp_0.xml</b> ["));
    QVERIFY(programData::instance().database(programData::mechanics).groups.empty());
    QVERIFY(programData::instance().materials().find("SRV-000.100"));
}

void tst_mainWindow::actionsAreReachable()
{
    const MainWindow window(programData::instance());
    QCOMPARE(window.windowTitle(), QString("Order"));

    QSet<QString> shortcuts;
    for (const QAction *action : window.findChildren<QAction *>()) {
        if (action->objectName().isEmpty() || action->isSeparator())
            continue;
        QVERIFY2(!action->icon().isNull() && !action->icon().availableSizes().isEmpty(),
                 qPrintable(action->objectName()));
        const QString shortcut = action->shortcut().toString();
        QVERIFY2(shortcut.isEmpty() || !shortcuts.contains(shortcut), qPrintable(shortcut));
        shortcuts.insert(shortcut);
    }
    QVERIFY(shortcuts.contains("Ctrl+P"));
}

void tst_mainWindow::printAsksForAFile()
{
    MainWindow window(programData::instance());
    m_shown->logged.clear();
    window.commandZpPrint(true);
    QCOMPARE(m_shown->proposed, m_folder->path("_zp/zp_0.pdf"));
    QCOMPARE(m_shown->logged, QString());
    m_shown->file = m_folder->path("print & more/o");
    window.commandZpPrint(true);
    QVERIFY(testSupport::read(m_shown->file + ".pdf").startsWith("%PDF"));
    QCOMPARE(m_shown->logged, "Print to file <b>o.pdf</b> [" + QString(m_shown->file).toHtmlEscaped() + ".pdf]<br>");
    QVERIFY(window.statusBar()->currentMessage().contains("o.pdf"));
    m_shown->file = m_folder->path("_zp/zp_0.xml/o.pdf");
    window.commandZpPrint(true);
    QCOMPARE(m_shown->errors.size(), 1);
}

void tst_mainWindow::wheelZooms()
{
    myWebView view;
    view.showReport("<p>x</p>");
    const auto wheel = [&view](int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, delta), Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
        return float(view.zoomFactor());
    };
    QCOMPARE(wheel(120, Qt::NoModifier), 1.0f);
    QCOMPARE(wheel(-360, Qt::ControlModifier), 0.7f);
    QCOMPARE(wheel(100, Qt::ControlModifier), 0.7f);
    QCOMPARE(wheel(-119, Qt::ControlModifier), 0.7f);
    QCOMPARE(wheel(480, Qt::ControlModifier), 1.1f);
    // There is no lower bound.
    wheel(-120 * 20, Qt::ControlModifier);
    view.showReport("<p>x</p>");
    QVERIFY(wheel(120 * 20, Qt::ControlModifier) > 1.0);
}

KIVZP_TEST(tst_mainWindow)
#include "tst_mainWindow.moc"

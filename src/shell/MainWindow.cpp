#include "shell/MainWindow.h"

#include "data/kiv_infoStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "dialogs/aboutDialog.h"
#include "report/orderReport.h"
#include "report/pdfPrinter.h"
#include "shell/logos.h"
#include "shell/orderDocument.h"
#include "shell/startupDialog.h"
#include "shell/userState.h"
#include "tree/myWebView.h"
#include "util/labels.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/prompts.h"
#include "util/text.h"
#include "window/messageWindow.h"
#include "window/workProgress.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QSslConfiguration>
#include <QStatusBar>
#include <QTabWidget>
#include <QTimer>
#include <QUrl>
#include <QVersionNumber>

namespace {

constexpr int stages = 9;
constexpr int updateCheckDelayMs = 50;

const windowAction<MainWindow> actionTable[] = {
    {{"zpPrint", "File", QT_TRANSLATE_NOOP("actions", "Print"), "action_print", "Ctrl+P",
      QT_TRANSLATE_NOOP("actions", "Print the order to a PDF file"), true},
     &MainWindow::commandZpPrint},
    {{nullptr, "File", nullptr, nullptr, nullptr, nullptr, true}, nullptr},
    {{"exit", "File", QT_TRANSLATE_NOOP("actions", "Exit"), "action_exit", "Ctrl+Q", nullptr},
     &MainWindow::commandExit},
    {{"log", QT_TRANSLATE_NOOP("actions", "Window"), QT_TRANSLATE_NOOP("actions", "Log"),
      "action_log", nullptr, QT_TRANSLATE_NOOP("actions", "What was done, and how it went"), true},
     &MainWindow::commandShowLog},
    {{"errors", "Window", QT_TRANSLATE_NOOP("actions", "Errors"), "action_errors", nullptr,
      QT_TRANSLATE_NOOP("actions", "What could not be read or found"), true},
     &MainWindow::commandShowErrors},
    {{"help", QT_TRANSLATE_NOOP("actions", "Help"), QT_TRANSLATE_NOOP("actions", "Help"),
      "action_help", "F1", QT_TRANSLATE_NOOP("actions", "Open the manual"), true},
     &MainWindow::commandHelp},
    {{"about", "Help", QT_TRANSLATE_NOOP("actions", "About"), "action_about", nullptr,
      QT_TRANSLATE_NOOP("actions", "Version of the program")},
     &MainWindow::commandAbout},
};

bool keepSplashPainted(long long, long long)
{
    splash::keepPainted();
    return true;
}

// Later downloads trust the program's own certificates beside those of the system.
void prepareCertificates()
{
    const QString path = paths::beside(QStringLiteral("CaCertificates"));
    if (!QFileInfo::exists(path))
        return;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificates(QFileInfo(path).isDir() ? path + QLatin1String("/*") : path,
                                    QSsl::Pem, QSslCertificate::PatternSyntax::Wildcard);
    QSslConfiguration::setDefaultConfiguration(configuration);
}

} // namespace

MainWindow::MainWindow()
    : baseWindow(QStringLiteral("MainWindow"))
{
    buildWidgets();
    prepareCertificates();
    loadDataFiles();
    QTimer::singleShot(updateCheckDelayMs, this, &MainWindow::checkUpdate);
    openLastOrder();
    splash::setProgress(stages, stages);
    userPrompts().showErrors();
}

void MainWindow::buildWidgets()
{
    setWindowTitle(tr("Order"));
    setWindowIcon(logos::logo());
    addActions(actionTable);
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_preview = new myWebView(m_tabs);
    m_preview->setObjectName(QStringLiteral("preview"));
    m_preview->setAccessibleName(labels::previewDo());
    m_tabs->addTab(m_preview, labels::previewDo());
    setCentralWidget(m_tabs);
    constexpr QSize usualSize(1240, 820);
    resize(usualSize);
}

void MainWindow::loadDataFiles()
{
    programData &files = programData::instance();
    int stage = 0;
    const auto passed = [&stage] { splash::setProgress(++stage, stages); };
    files.loadConfiguration();
    passed();
    files.loadFirm(keepSplashPainted);
    passed();
    for (int kind = 0; kind < programData::databaseCount; ++kind) {
        files.loadDatabase(programData::databaseKind(kind), keepSplashPainted);
        passed();
    }
    files.loadBoms();
    passed();
    // The windows that show these data are made when they are first opened.
    passed();
}

void MainWindow::openLastOrder()
{
    const QString last = userState::instance().lastZp;
    if (!last.isEmpty() && !orderDocument::instance().load(paths::data(last)))
        userState::instance().lastZp.clear();
    refreshPreview();
    showPath();
}

void MainWindow::refreshPreview() { m_preview->showReport(orderDocument::instance().report()); }

void MainWindow::showPath()
{
    const QString path = orderDocument::instance().path();
    statusBar()->showMessage(path.isEmpty() ? tr("No order is open")
                                            : QDir::toNativeSeparators(path));
}

void MainWindow::commandZpPrint(bool)
{
    QString proposed = orderDocument::instance().path();
    if (proposed.endsWith(QLatin1String(".xml")))
        proposed.chop(int(qstrlen(".xml")));
    const QString chosen =
        userPrompts().saveFile(tr("Save to File"), proposed + QLatin1String(".pdf"),
                               tr("Pdf File") + QLatin1String(" (*.pdf)"));
    if (chosen.isEmpty())
        return;
    const QString path = pdfPath(chosen);
    userPrompts().log(messages::done(messages::printToFile(), text::fileNameOfPath(path), path));
    workProgress::scope work(progress(), tr("Printing"));
    const bool printed =
        printPdf(m_preview, path, orderTitle(orderDocument::instance().order()), work.function());
    if (printed)
        statusBar()->showMessage(tr("Printed to %1").arg(QDir::toNativeSeparators(path)));
    else if (work.cancelled())
        statusBar()->showMessage(tr("Printing was cancelled"));
    else
        userPrompts().showError(tr("The file %1 cannot be written")
                                    .arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
}

void MainWindow::commandShowLog(bool) { logWindow::instance().showNow(); }

void MainWindow::commandShowErrors(bool) { errorsWindow::instance().showNow(); }

void MainWindow::commandHelp(bool)
{
    const QString path = paths::beside(QStringLiteral("_help/KIV_ZP.html"));
    if (!QFileInfo::exists(path) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        userPrompts().showError(tr("The manual %1 cannot be opened")
                                    .arg(QDir::toNativeSeparators(path).toHtmlEscaped()));
}

void MainWindow::commandAbout(bool) { aboutDialog(logos::logo(), this).exec(); }

void MainWindow::commandExit(bool) { close(); }

// Tells of a newer program named by the information file that lies beside this one.
void MainWindow::checkUpdate()
{
    const QString path = paths::beside(QStringLiteral("kiv_info.xml"));
    kiv_infoStruct info;
    if (!QFileInfo::exists(path) || !readChecked(path, &info))
        return;
    if (QVersionNumber::fromString(info.kivVersion)
        > QVersionNumber::fromString(QCoreApplication::applicationVersion()))
        userPrompts().log(messages::done(tr("A newer version is available "), info.kivVersion,
                                         info.kivServerLink));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    logWindow::instance().hideNow();
    errorsWindow::instance().hideNow();
    baseWindow::closeEvent(event);
}

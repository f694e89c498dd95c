#include "shell/startUp.h"

#include "data/programData.h"
#include "dialogs/changesDialog.h"
#include "shell/MainWindow.h"
#include "shell/MyProxyStyle.h"
#include "shell/cleanScript.h"
#include "shell/startupDialog.h"
#include "update/updateRun.h"
#include "util/dataFolder.h"
#include "util/endSignals.h"
#include "util/labels.h"
#include "util/localeSetup.h"
#include "util/messages.h"
#include "util/paths.h"
#include "util/scratch.h"
#include "util/translation.h"
#include "util/userState.h"
#include "window/dialogPrompts.h"
#include "window/messageWindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QProcess>
#include <QSessionManager>

namespace {

const QString styleFile = QStringLiteral("style.qss");
bool styleIsFaulty = false;
QtMessageHandler earlierHandler = nullptr;

// Qt tells of a faulty style sheet only here, when it is first used.
void noteStyleFaults(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (text.contains(QLatin1String("Could not parse"))
        && text.contains(QLatin1String("stylesheet")))
        styleIsFaulty = true;
    else if (earlierHandler)
        earlierHandler(type, context, text);
}

void applyStyleSheet()
{
    QFile file(styleFile);
    if (file.exists() && file.open(QIODevice::ReadOnly | QIODevice::Text))
        qApp->setStyleSheet(QString::fromUtf8(file.readAll()));
}

// Without a font for Polish, texts are rows of boxes.
void listMissingLetters()
{
    const QFont font = QApplication::font();
    const QFontMetrics metrics(font);
    for (const QChar letter : QStringLiteral("ąćęłńóśźżĄĆĘŁŃÓŚŹŻ"))
        if (!metrics.inFont(letter)) {
            userPrompts().listError(messages::failed(
                QCoreApplication::translate("log", "No font with Polish letters is installed "),
                font.family()));
            return;
        }
}

// The configuration that will be read, known before the data folder is settled.
QString configPath()
{
    const QString ofUser = paths::userDir() + QLatin1String("/_config/kiv_mat_config.xml");
    return !dataFolder::isWritable(paths::programDir()) && QFileInfo::exists(ofUser)
               ? ofUser
               : paths::config();
}

// Offers what an administrator changed since the user's files were copied. Before anything is read;
// what the user changed is not marked, and is kept as a version when it is replaced all the same.
void offerNewerFiles(const QString &userDir)
{
    const QString programDir = paths::programDir();
    const std::vector<dataFolder::newerFile> newer = dataFolder::newerFiles(programDir, userDir);
    if (newer.empty())
        return;
    const auto translated = [](const char *text) {
        return QCoreApplication::translate("startUp", text);
    };
    QList<QStringList> rows;
    for (const dataFolder::newerFile &file : newer)
        rows.append({QDir::toNativeSeparators(file.name),
                     file.time.toString(QStringLiteral("dd.MM.yyyy hh:mm")),
                     file.ownChanged
                         ? translated(QT_TRANSLATE_NOOP("startUp", "Changed by you, too"))
                         : QString()});
    changesDialog dialog(
        translated(QT_TRANSLATE_NOOP("startUp", "The shared files are newer than your copies")),
        {labels::file(), translated(QT_TRANSLATE_NOOP("startUp", "Shared file of")),
         translated(QT_TRANSLATE_NOOP("startUp", "Your copy"))},
        rows, nullptr);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint); // over the start-up picture
    for (size_t i = 0; i < newer.size(); ++i)
        if (newer[i].ownChanged)
            dialog.unmark(int(i));
    if (dialog.exec() != QDialog::Accepted)
        return;
    configStruct config;
    config.load(paths::config());
    const std::vector<int> chosen = dialog.chosen();
    for (size_t i = 0; i < newer.size(); ++i) {
        const QString &name = newer[i].name;
        const QString own = userDir + QLatin1Char('/') + name;
        if (std::find(chosen.begin(), chosen.end(), int(i)) == chosen.end())
            dataFolder::decline(name, programDir, userDir);
        else if (!keepVersion(own, config) || !dataFolder::take(name, programDir, userDir))
            userPrompts().listError(messages::failed(
                QCoreApplication::translate("log", "Copy file"), own, messages::error()));
        else
            userPrompts().log(messages::done(QCoreApplication::translate("log", "Copy file"), own,
                                             messages::ok()));
    }
}

// A program that cannot write beside itself works in a folder of the user's.
void settleDataFolder()
{
    const dataFolder::choice choice = dataFolder::choose(paths::programDir(), paths::userDir());
    if (!choice.perUser)
        return;
    paths::setDataDir(choice.dir);
    userPrompts().log(
        QCoreApplication::translate("log", "The program's folder cannot be written; working in ")
        + QLatin1String("<b>") + choice.dir.toHtmlEscaped() + QLatin1String("</b><br>"));
    for (const QString &file : choice.copied)
        userPrompts().log(
            messages::done(QCoreApplication::translate("log", "Copy file"), file, messages::ok()));
    for (const QString &file : choice.failed)
        userPrompts().listError(messages::failed(QCoreApplication::translate("log", "Copy file"),
                                                 file, messages::error()));
    offerNewerFiles(choice.dir);
}

void beginAnew() { QProcess::startDetached(QCoreApplication::applicationFilePath(), {}); }

// Finishes an update that was broken off, before anything of it is read; this program may be the
// one before it then. True when it is to begin anew.
bool settleUpdate()
{
    const QString root = paths::programDir();
    const updateJournal::settled result = updateJournal::settle(root);
    for (const QString &path : result.faults)
        userPrompts().listError(messages::failed(
            QCoreApplication::translate("log", "An update cannot replace "), path));
    if (result.wasUnfinished)
        return true;
    if (!updateJournal::beginsAgain(root)
        || userPrompts().decide(
               QCoreApplication::translate("startUp", "The updated program has not started "
                                                      "completely. Go back to the one before it?")
                   .toHtmlEscaped(),
               {QCoreApplication::translate("startUp", "Go back"),
                QCoreApplication::translate("startUp", "Try again")})
               != 0)
        return false;
    const QString fault = updates::goBack(root);
    if (!fault.isEmpty())
        userPrompts().showError(fault.toHtmlEscaped());
    return fault.isEmpty();
}

// What killed programs left of saving; orders follow when they are opened.
void clearLeftSaves()
{
    programData &data = programData::instance();
    scratch::clearLeftSaves(paths::config());
    scratch::clearLeftSaves(data.firm().filePath);
    scratch::clearLeftSaves(data.boms().filePath);
    for (const kiv_mat_databaseStruct *database : data.databases())
        scratch::clearLeftSaves(database->filePath);
}

} // namespace

int runProgram(int &argc, char **argv, const std::function<void(MainWindow &)> &whenShown)
{
    ensureUtf8Locale();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("KivZP"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELT"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("velt.example"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KIVZP_VERSION));

    userState &state = userState::instance();
    state.load();
    if (!state.runningMarker.isEmpty())
        state.lastZp.clear();
    state.runningMarker = QStringLiteral("1");

    QApplication::setStyle(new MyProxyStyle);
    styleIsFaulty = false;
    earlierHandler = qInstallMessageHandler(noteStyleFaults);
    applyStyleSheet();
    translation::install(configStruct::languageIn(configPath()));
    dialogPrompts dialogs;
    installPrompts(&dialogs);

    if (settleUpdate()) {
        installPrompts(nullptr);
        beginAnew();
        return 0;
    }
    auto dialog = std::make_unique<startupDialog>();
    splash::hold(dialog.get());
    constexpr int stepsBeforeLoading = 10;
    splash::setProgress(0, stepsBeforeLoading);
    splash::show();
    QCoreApplication::processEvents();
    paths::temporaryDir();
    scratch::clearLeft();
    settleDataFolder();

    auto window = std::make_unique<MainWindow>(programData::instance());
    window->show();
    clearLeftSaves();
    cleanScript::run(cleanScript::ofProgram());
    dialog->finish(window.get());
    splash::hold(nullptr);
    dialog.reset();
    if (styleIsFaulty)
        userPrompts().listError(
            messages::failed(messages::fileCorrupted(), QFileInfo(styleFile).absoluteFilePath()));
    if (const QString store = userState::unwritableStore(); !store.isEmpty())
        userPrompts().listError(messages::failed(
            QCoreApplication::translate("log", "The settings cannot be written "), store));
    listMissingLetters();
    // Over the main window, which has just come up.
    if (errorsWindow::instance().isVisible())
        errorsWindow::instance().showNow();
    userPrompts().showErrors();
    bool ends = false;
    const endSignals ended([&window, &ends] {
        ends = true;
        window->endNow();
    });
    // The end of a session asks nothing either; it may still be called off.
    QGuiApplication::setFallbackSessionManagementEnabled(false);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, window.get(),
                     [&window] { window->storeAll(); });
    if (whenShown)
        whenShown(*window);
    window->offerRecovery();

    const int code = ends ? 0 : QApplication::exec();

    state.runningMarker.clear();
    state.save();
    scratch::remove();
    const bool beginsAnew = window->beginsAnew();
    window.reset();
    if (beginsAnew)
        beginAnew();
    installPrompts(nullptr);
    qInstallMessageHandler(earlierHandler);
    return code;
}

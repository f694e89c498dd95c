// kivzp-cli: what the program does without a window. It opens no display and no dialog.
#include "cli/arguments.h"
#include "util/localeSetup.h"
#include "util/translation.h"

#include <QApplication>

namespace {

const QList<const cli::subcommand *> &commands()
{
    static const QList<const cli::subcommand *> table{
        &cli::validateCommand,
        &cli::reportCommand,
        &cli::findCommand,
        &cli::infoCommand,
        &cli::resaveCommand,
        &cli::repairCommand,
        &cli::diffCommand,
        &cli::altiumCommand,
        &cli::groupsCommand,
        &cli::duplicatesCommand,
        &cli::emptyCommand,
        &cli::checkUrlsCommand,
        &cli::dbReportCommand,
        &cli::parseListingCommand,
        &cli::mergeCommand,
        &cli::loadCpvCommand,
        &cli::moveCpvCommand,
        &cli::checkNipCommand,
        &cli::checkMaterialsCommand,
        &cli::firmUsesCommand,
        &cli::bomCsvCommand,
        &cli::bomReportCommand,
        &cli::bomOrderCommand,
        &cli::bomShortageCommand,
        &cli::bomImportCommand,
        &cli::bomDiffCommand,
        &cli::bomReserveCommand,
        &cli::bomBuiltCommand,
        &cli::reservationsCommand,
        &cli::mailCommand,
        &cli::helpersCommand,
        &cli::downloadCommand,
        &cli::uploadCommand,
        &cli::updateCommandOf,
        &cli::publishCommand,
        &cli::cloneCommand,
        &cli::syncCommand,
        &cli::historyCommand,
        &cli::packCommand,
        &cli::unpackCommand,
        &cli::versionsCommand,
        &cli::checkCommand,
        &cli::setFieldCommand,
        &cli::materialCommand,
        &cli::examineLinksCommand,
        &cli::firmMergeCommand,
        &cli::replaceMaterialCommand,
        &cli::bomBasketCommand,
        &cli::ordersCommand,
        &cli::planCommand,
        &cli::deliverCommand,
        &cli::offersCommand,
        &cli::requestCommand,
    };
    return table;
}

QString usage()
{
    QString text = QCoreApplication::translate(
        "cli", "Usage: kivzp-cli [--language pl|en] COMMAND ARGUMENTS...\n\nCommands:\n");
    for (const cli::subcommand *command : commands())
        text += QStringLiteral("  %1 %2\n")
                    .arg(QLatin1String(command->name), -13)
                    .arg(QCoreApplication::translate("cli", command->summary));
    text += QCoreApplication::translate(
        "cli", "\nkivzp-cli COMMAND --help tells the arguments of a command.\n"
               "Exit codes: 0 done, 1 the input was refused or the answer is "
               "no, 2 wrong call, 3 could not write.\n");
    return text;
}

// Takes "--language X" or "--language=X" out of the arguments; the environment's when there is
// none.
QString takeLanguage(QStringList &arguments)
{
    const QLatin1String name("--language");
    for (int i = 0; i < arguments.size(); ++i) {
        if (arguments.at(i) == name && i + 1 < arguments.size()) {
            arguments.removeAt(i);
            return arguments.takeAt(i);
        }
        if (arguments.at(i).startsWith(name + QLatin1Char('=')))
            return arguments.takeAt(i).mid(name.size() + 1);
    }
    return translation::ofEnvironment();
}

// What the libraries mutter about the environment is no answer to the caller.
void onlyCritical(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        cli::err() << text << '\n' << Qt::flush;
}

} // namespace

int main(int argc, char *argv[])
{
    ensureUtf8Locale();
    qInstallMessageHandler(onlyCritical);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // What is kept of a user is the same as in the program with windows.
    QCoreApplication::setApplicationName(QStringLiteral("KivZP"));
    QCoreApplication::setOrganizationName(QStringLiteral("VELT"));
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString language = takeLanguage(arguments);
    if (!translation::languages().contains(language)) {
        cli::err() << "kivzp-cli: unknown language: " << language << '\n' << Qt::flush;
        return cli::wrongCall;
    }
    translation::install(language);
    if (arguments.isEmpty()) {
        cli::err() << usage() << Qt::flush;
        return cli::wrongCall;
    }
    const QString name = arguments.takeFirst();
    if (name == QLatin1String("--help") || name == QLatin1String("-h")
        || name == QLatin1String("help")) {
        cli::out() << usage() << Qt::flush;
        return cli::done;
    }
    for (const cli::subcommand *command : commands())
        if (name == QLatin1String(command->name))
            return command->run(arguments);
    cli::err() << "kivzp-cli: "
               << QCoreApplication::translate("cli", "unknown command: %1").arg(name) << '\n'
               << usage() << Qt::flush;
    return cli::wrongCall;
}

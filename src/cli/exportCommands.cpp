// altium and groups: a material database for other programs.
#include "cli/arguments.h"

#include "data/configStruct.h"
#include "database/altiumExport.h"
#include "database/sharedLibrary.h"
#include "store/storeFiles.h"
#include "util/paths.h"

#include <QCoreApplication>

namespace cli {

namespace {

using exportFunction = exportResult (*)(const kiv_mat_databaseStruct &, const QString &,
                                        const progressFunction &);

using endingList = QList<QPair<QString, exportFunction>>;

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

QCommandLineOption fileOption()
{
    return outputOption(
        QT_TRANSLATE_NOOP("cli", "The file to write; its ending decides its kind."));
}

int refuseEnding(const subcommand &command, const QStringList &known)
{
    err() << command.name << ": "
          << QCoreApplication::translate("cli", "give an output file that ends in %1")
                 .arg(known.join(QLatin1String(" / ")))
          << '\n'
          << Qt::flush;
    return wrongCall;
}

// endings: those of the output file, each with the export that writes it. tellsChanges: whether it
// compares with the last export.
int exportFile(const subcommand &command, const QString &path, const QString &target,
               const endingList &endings, bool tellsChanges)
{
    exportFunction function = nullptr;
    QStringList known;
    for (const auto &ending : endings) {
        known.append(ending.first);
        if (target.endsWith(ending.first, Qt::CaseInsensitive))
            function = ending.second;
    }
    if (!function)
        return refuseEnding(command, known);
    const auto database = readDatabase(path);
    if (!database)
        return refused;
    const exportResult result = function(*database, target, {});
    printNotes(result.notes);
    if (result.result == exportResult::failed) {
        err() << result.error << '\n' << Qt::flush;
        return notWritten;
    }
    for (const QString &written : result.files)
        out() << written << '\n';
    if (tellsChanges) {
        out() << summaryOf(result.changes) << '\n';
        for (const exportChange &change : result.changes.rows)
            out() << lineOf(change) << '\n';
    }
    out() << Qt::flush;
    return done;
}

// Makes the views of a shared database, and writes their description.
int exportViews(const QString &document, const QString &address, const QString &login,
                const QString &target)
{
    const QString ending = QStringLiteral(".DbLib");
    if (!target.endsWith(ending, Qt::CaseInsensitive))
        return refuseEnding(altiumCommand, {ending});
    configStruct config;
    if (!config.load(paths::config()))
        config.setDefaults();
    QString fault;
    const auto at = store::addressOf(config, address, &fault);
    store::connection to;
    if (!at || !to.open(*at)) {
        err() << (at ? at->shown() + QLatin1String(": ") + to.fault() : fault) << '\n' << Qt::flush;
        return refused;
    }
    const sharedLibrary::outcome made =
        sharedLibrary::exportShared(to, *at, document, login, target);
    printNotes(made.notes);
    if (!made.fault.isEmpty()) {
        err() << made.fault << '\n' << Qt::flush;
        return made.isRefused ? refused : notWritten;
    }
    out() << target << '\n';
    for (const sharedLibrary::view &each : made.views.views)
        out() << made.views.schema << '\t' << each.name << '\t' << each.materials << '\n';
    out() << Qt::flush;
    return done;
}

int runAltium(const QStringList &arguments)
{
    parser given(altiumCommand, QStringLiteral("[DB]"), 0, 1);
    const QCommandLineOption output = fileOption();
    const QCommandLineOption shared{
        QStringLiteral("shared"),
        told(QT_TRANSLATE_NOOP("cli",
                               "Instead of DB: the name of a material database in the "
                               "shared store. Makes views of it on the server, and OUT.DbLib "
                               "by which Altium reads them.")),
        QStringLiteral("NAME")};
    const QCommandLineOption at{
        QStringLiteral("store"),
        told(QT_TRANSLATE_NOOP("cli", "The store: postgresql://user@server/database or "
                                      "sqlite:FILE; else the configuration's. A password comes "
                                      "from ~/.pgpass or PGPASSWORD.")),
        QStringLiteral("ADDRESS")};
    const QCommandLineOption login{
        QStringLiteral("login"),
        told(QT_TRANSLATE_NOOP("cli", "With --shared: the login as which Altium reads the views, "
                                      "a member of kivzp_reader.")),
        QStringLiteral("LOGIN"), QStringLiteral("kivzp_cad")};
    given.addOptions({output, shared, at, login});
    if (!given.accept(arguments))
        return given.code();
    const QStringList files = given.positionalArguments();
    if (files.isEmpty() != given.isSet(shared))
        return refuseCall(altiumCommand,
                          told(QT_TRANSLATE_NOOP("cli", "give a database or --shared")));
    if (!given.isSet(shared) && (given.isSet(at) || given.isSet(login)))
        return refuseCall(altiumCommand,
                          told(QT_TRANSLATE_NOOP("cli", "--store and --login belong to --shared")));
    if (given.isSet(shared))
        return exportViews(given.value(shared), given.value(at), given.value(login),
                           given.value(output));
    return exportFile(altiumCommand, files.first(), given.value(output),
                      {{QStringLiteral(".xlsx"), exportAltiumXlsx},
                       {QStringLiteral(".sqlite"), exportAltiumSqlite}},
                      true);
}

int runGroups(const QStringList &arguments)
{
    parser given(groupsCommand, QStringLiteral("DB"), 1, 1);
    const QCommandLineOption output = fileOption();
    given.addOption(output);
    if (!given.accept(arguments))
        return given.code();
    return exportFile(groupsCommand, given.positionalArguments().first(), given.value(output),
                      {{QStringLiteral(".xlsx"), exportGroups}}, false);
}

} // namespace

const subcommand altiumCommand{
    "altium",
    QT_TRANSLATE_NOOP("cli",
                      "Writes a material database as a component library for CAD tools: OUT.xlsx, "
                      "or OUT.sqlite with its script OUT.txt, and a description of each for Altium "
                      "(.DbLib), of the SQLite file for KiCad, too (.kicad_dbl). Lists the files, "
                      "then what has changed since the last export. With --shared: a library that "
                      "Altium reads straight from the shared store; lists the file and the views "
                      "with how many materials each has."),
    runAltium};
const subcommand groupsCommand{
    "groups", QT_TRANSLATE_NOOP("cli", "Writes the groups of a material database as a workbook."),
    runGroups};

} // namespace cli

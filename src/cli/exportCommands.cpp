// altium and groups: a material database for other programs.
#include "cli/arguments.h"

#include "database/altiumExport.h"

#include <QCoreApplication>

namespace cli {

namespace {

using exportFunction = exportResult (*)(const kiv_mat_databaseStruct &, const QString &,
                                        const progressFunction &);

// endings: those of the output file, each with the export that writes it. tellsChanges: whether it
// compares with the last export.
int runExport(const subcommand &command, const QStringList &arguments,
              const QList<QPair<QString, exportFunction>> &endings, bool tellsChanges)
{
    parser options(command, QStringLiteral("DB"), 1, 1);
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "The file to write; its ending decides its kind."));
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    exportFunction function = nullptr;
    QStringList known;
    for (const auto &ending : endings) {
        known.append(ending.first);
        if (target.endsWith(ending.first, Qt::CaseInsensitive))
            function = ending.second;
    }
    if (!function) {
        err() << command.name << ": "
              << QCoreApplication::translate("cli", "give an output file that ends in %1")
                     .arg(known.join(QLatin1String(" / ")))
              << '\n'
              << Qt::flush;
        return wrongCall;
    }
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const exportResult result = function(*database, target, {});
    printNotes(result.notes);
    if (result.result == exportResult::failed) {
        err() << result.error << '\n' << Qt::flush;
        return notWritten;
    }
    for (const QString &path : result.files)
        out() << path << '\n';
    if (tellsChanges) {
        out() << summaryOf(result.changes) << '\n';
        for (const exportChange &change : result.changes.rows)
            out() << lineOf(change) << '\n';
    }
    out() << Qt::flush;
    return done;
}

int runAltium(const QStringList &arguments)
{
    return runExport(altiumCommand, arguments,
                     {{QStringLiteral(".xlsx"), exportAltiumXlsx},
                      {QStringLiteral(".sqlite"), exportAltiumSqlite}},
                     true);
}

int runGroups(const QStringList &arguments)
{
    return runExport(groupsCommand, arguments, {{QStringLiteral(".xlsx"), exportGroups}}, false);
}

} // namespace

const subcommand altiumCommand{
    "altium",
    QT_TRANSLATE_NOOP("cli",
                      "Writes a material database as a component library for CAD tools: OUT.xlsx, "
                      "or OUT.sqlite with its script OUT.txt, and a description of each for Altium "
                      "(.DbLib), of the SQLite file for KiCad, too (.kicad_dbl). Lists the files, "
                      "then what has changed since the last export."),
    runAltium};
const subcommand groupsCommand{
    "groups", QT_TRANSLATE_NOOP("cli", "Writes the groups of a material database as a workbook."),
    runGroups};

} // namespace cli

// check: everything that is wrong with the materials of databases, as the table of checks has it.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/materialUses.h"
#include "database/databaseFindings.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

namespace {

QString allKinds()
{
    QStringList keys;
    for (int kind = 0; kind < findingKinds; ++kind)
        keys.append(findingText::key(findingKind(kind)));
    return keys.join(QLatin1String(", "));
}

void print(const finding &found)
{
    QStringList cells = findingText::cells(found);
    // Tabs and line ends would break the columns.
    for (QString &cell : cells)
        cell = cell.simplified();
    out() << cells.join(QLatin1Char('\t')) << '\n';
}

QJsonObject object(const finding &found)
{
    return {{QStringLiteral("kind"), findingText::key(found.kind)},
            {QStringLiteral("ktm"), found.ktm},
            {QStringLiteral("name"), found.name},
            {QStringLiteral("group"), found.groupName},
            {QStringLiteral("field"), QString(found.field)},
            {QStringLiteral("caption"), findingText::field(found)},
            {QStringLiteral("reason"), findingText::reason(found)}};
}

void printJson(const std::vector<const finding *> &findings)
{
    QJsonObject counts;
    QJsonArray rows;
    for (const finding *found : findings) {
        const QString key = findingText::key(found->kind);
        counts[key] = counts[key].toInt() + 1;
        rows.append(object(*found));
    }
    cli::printJson({{QStringLiteral("counts"), counts}, {QStringLiteral("findings"), rows}});
}

int runCheck(const QStringList &arguments)
{
    parser options(checkCommand, QStringLiteral("DB..."), 1, -1);
    const QCommandLineOption firmFile(
        {QStringLiteral("f"), QStringLiteral("firms")},
        QCoreApplication::translate(
            "cli", "The firm register, in which manufacturers and suppliers are to stand."),
        QStringLiteral("FIRMS"));
    const QCommandLineOption usedIn(
        {QStringLiteral("u"), QStringLiteral("used-in")},
        QCoreApplication::translate("cli", "A BOM list or a set of BOM lists, whose materials are "
                                           "to have a status valid for ordering. May be given "
                                           "several times."),
        QStringLiteral("FILE"));
    const QCommandLineOption kindOption(
        {QStringLiteral("k"), QStringLiteral("kind")},
        QCoreApplication::translate("cli", "Only findings of this kind; may be given several "
                                           "times: %1.")
            .arg(allKinds()),
        QStringLiteral("KIND"));
    const QCommandLineOption output = outputOption(
        QT_TRANSLATE_NOOP("cli", "A workbook (.xlsx) or CSV file (.csv) for the findings."));
    const QCommandLineOption json = jsonOption();
    options.addOptions({firmFile, usedIn, kindOption, output, json});
    if (!options.accept(arguments))
        return options.code();
    const QStringList kinds = options.values(kindOption);
    if (!std::all_of(kinds.begin(), kinds.end(), findingText::kindOf))
        return refuseCall(
            checkCommand,
            QCoreApplication::translate("cli", "the kinds of findings are: %1").arg(allKinds()));
    kiv_mat_firmStruct firms;
    if (options.isSet(firmFile)
        && !readFile(options.value(firmFile), &firms,
                     QCoreApplication::translate("cli", "is no firm register")))
        return refused;
    materialUses uses;
    databaseSet databases;
    if (!readUses(options.values(usedIn), &uses) || !databases.load(options.positionalArguments()))
        return refused;

    std::vector<finding> all;
    for (const auto &database : databases.all()) {
        databaseFindings checks({paths::data(QStringLiteral("_files")), paths::programDir(),
                                 QFileInfo(database->filePath).absolutePath()});
        checks.setFirms(firms);
        checks.setLists(uses.lists());
        const auto found = checks.check(*database);
        std::copy_if(found->begin(), found->end(), std::back_inserter(all),
                     [&kinds](const finding &one) {
                         return kinds.isEmpty() || kinds.contains(findingText::key(one.kind));
                     });
    }
    std::vector<const finding *> findings;
    for (const finding &one : all)
        findings.push_back(&one);
    if (options.isSet(json))
        printJson(findings);
    else if (!options.isSet(output))
        for (const finding *found : findings)
            print(*found);
    out() << Qt::flush;
    if (options.isSet(output)) {
        const exportResult saved = exportFindings(findings, options.value(output));
        if (saved.result == exportResult::failed) {
            err() << saved.error << '\n' << Qt::flush;
            return notWritten;
        }
    }
    return findings.empty() ? done : refused;
}

} // namespace

const subcommand checkCommand{
    "check",
    QT_TRANSLATE_NOOP("cli", "Lists what is wrong with the materials of databases: duplicates, "
                             "empty fields, codes, links, files, firms, and materials of BOM "
                             "lists that may not be ordered. Exit code 1 when there is "
                             "something."),
    runCheck};

} // namespace cli

// duplicates, empty, check-urls and db-report: what a material database holds and lacks; and
// check-nip for the firm register.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/kiv_mat_firmStruct.h"
#include "data/loaders.h"
#include "database/databaseChecks.h"
#include "database/databaseReport.h"
#include "database/linkOperations.h"
#include "firm/firmChecks.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

void printDuplicates(const QString &caption, const std::vector<duplicateSet> &duplicates)
{
    if (duplicates.empty())
        return;
    out() << caption << '\n';
    for (const duplicateSet &set : duplicates) {
        out() << set.key << '\t';
        for (const materialStruct *material : set.materials)
            out() << '[' << duplicateName(set, *material) << "] ";
        out() << '\n';
    }
}

int runDuplicates(const QStringList &arguments)
{
    parser options(duplicatesCommand, QStringLiteral("DB"), 1, 1);
    if (!options.accept(arguments))
        return options.code();
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const std::vector<duplicateSet> ktms = duplicateKtms(*database);
    const std::vector<duplicateSet> parts = duplicatePartNumbers(*database);
    if (ktms.empty())
        out() << allKtmsAreUnique() << '\n';
    printDuplicates(QCoreApplication::translate("cli", "The same KTM:"), ktms);
    printDuplicates(QCoreApplication::translate("cli", "The same manufacturer's part number:"),
                    parts);
    out() << Qt::flush;
    return ktms.empty() && parts.empty() ? done : refused;
}

int runEmpty(const QStringList &arguments)
{
    parser options(emptyCommand, QStringLiteral("DB"), 1, 1);
    if (!options.accept(arguments))
        return options.code();
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const std::vector<incompleteMaterial> incomplete = incompleteMaterials(*database);
    for (const incompleteMaterial &found : incomplete)
        out() << found.material->d_ktm << '\t' << found.material->d_name << '\t'
              << found.missing.join(QLatin1String(", ")) << '\n';
    out() << Qt::flush;
    return incomplete.empty() ? done : refused;
}

// Tells how far the work is, on a terminal line of its own.
bool tellProgress(long long finished, long long total)
{
    err() << '\r' << finished << " / " << total << (finished == total ? "\n" : "") << Qt::flush;
    return true;
}

int runCheckUrls(const QStringList &arguments)
{
    parser options(checkUrlsCommand, QStringLiteral("DB"), 1, 1);
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "A workbook (.xlsx) for the results."));
    const QCommandLineOption showProgress(
        QStringLiteral("progress"),
        QCoreApplication::translate("cli", "Tell on standard error how many links are checked."));
    options.addOption(output);
    const QCommandLineOption json = jsonOption();
    options.addOptions({showProgress, json});
    if (!options.accept(arguments))
        return options.code();
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const linkCheckResult checked =
        checkUrls(*database, options.isSet(showProgress) ? tellProgress : progressFunction());
    bool allAnswer = true;
    QJsonArray links;
    for (const checkedLink &link : checked.links) {
        if (options.isSet(json))
            links.append(QJsonObject{{QStringLiteral("ktm"), link.material->d_ktm},
                                     {QStringLiteral("name"), link.material->d_name},
                                     {QStringLiteral("link"), link.link},
                                     {QStringLiteral("answers"), link.answers}});
        else if (!link.answers)
            out() << "[Error] " << link.link << '\n';
        allAnswer = allAnswer && link.answers;
    }
    if (options.isSet(json))
        printJson({{QStringLiteral("links"), links}});
    out() << Qt::flush;
    if (options.isSet(output)) {
        const exportResult saved = exportLinks(checked, options.value(output));
        if (saved.result == exportResult::failed) {
            err() << saved.error << '\n' << Qt::flush;
            return notWritten;
        }
    }
    return allAnswer ? done : refused;
}

// Validates, then reads a firm register. Prints what is wrong; false when it is refused.
bool readFirms(const QString &path, kiv_mat_firmStruct *firms)
{
    if (!validateFile(path))
        return false;
    if (fileKinds::ofFile(path) == &fileKinds::firm && loadFirm(path, firms) == 0)
        return true;
    err() << path << ": " << QCoreApplication::translate("cli", "is no firm register") << '\n'
          << Qt::flush;
    return false;
}

int runCheckNip(const QStringList &arguments)
{
    parser options(checkNipCommand, QStringLiteral("FIRMS"), 1, 1);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    kiv_mat_firmStruct firms;
    if (!readFirms(options.positionalArguments().at(0), &firms))
        return refused;
    const std::vector<const firmStruct *> wrong = firmsWithWrongTaxNumber(firms);
    if (options.isSet(json)) {
        QJsonArray found;
        for (const firmStruct *firm : wrong)
            found.append(QJsonObject{{QStringLiteral("name"), firm->name},
                                     {QStringLiteral("nip"), firm->nip}});
        printJson({{QStringLiteral("firms"), found}});
    } else {
        for (const firmStruct *firm : wrong)
            out() << firm->name << '\t' << firm->nip << '\n';
    }
    out() << Qt::flush;
    return wrong.empty() ? done : refused;
}

int runDbReport(const QStringList &arguments)
{
    parser options(dbReportCommand, QStringLiteral("DB"), 1, 1);
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "The HTML file to write."));
    const QCommandLineOption brief(
        QStringLiteral("short"),
        QCoreApplication::translate("cli", "One row a material instead of everything."));
    const QCommandLineOption firmFile(
        {QStringLiteral("f"), QStringLiteral("firms")},
        QCoreApplication::translate("cli", "The firm register, for the status of firms."),
        QStringLiteral("FIRMS"));
    options.addOption(output);
    options.addOption(brief);
    options.addOption(firmFile);
    if (!options.accept(arguments))
        return options.code();
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    kiv_mat_firmStruct firms;
    if (options.isSet(firmFile)) {
        if (!readFirms(options.value(firmFile), &firms))
            return refused;
    }
    const databaseReportKind kind =
        options.isSet(brief) ? databaseReportKind::brief : databaseReportKind::full;
    const QString target = options.isSet(output) ? options.value(output)
                                                 : databaseReportPath(database->filePath, kind);
    const exportResult written = writeDatabaseReport(*database, &firms, kind, target);
    if (written.result == exportResult::done)
        return done;
    err() << written.error << '\n' << Qt::flush;
    return notWritten;
}

} // namespace

const subcommand duplicatesCommand{
    "duplicates",
    QT_TRANSLATE_NOOP("cli", "Lists materials with the same KTM, or with the same part number of "
                             "a manufacturer. Exit code 1 when there are some."),
    runDuplicates};
const subcommand emptyCommand{
    "empty",
    QT_TRANSLATE_NOOP("cli", "Lists materials with empty fields. Exit code 1 when there are some."),
    runEmpty};
const subcommand checkUrlsCommand{
    "check-urls",
    QT_TRANSLATE_NOOP("cli", "Lists the links of a material database that do not answer. Exit code "
                             "1 when there are some."),
    runCheckUrls};
const subcommand dbReportCommand{
    "db-report", QT_TRANSLATE_NOOP("cli", "Writes the report of a material database as HTML."),
    runDbReport};

const subcommand checkNipCommand{
    "check-nip",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the firms whose tax number is wrong. Exit code 1 when there are "
                      "some."),
    runCheckNip};

} // namespace cli

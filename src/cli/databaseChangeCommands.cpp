// parse-listing: shows what would change in a material database, and writes it when asked to.
#include "cli/arguments.h"

#include "data/loaders.h"
#include "database/warehouseListing.h"

#include <QCoreApplication>

namespace cli {

namespace {

QString fieldName(QString materialStruct::*field)
{
    for (const auto &f : materialStruct::fields())
        if (f.member == field)
            return f.name;
    return {};
}

// Saves the database when an output file was asked for.
int saveTo(const QString &target, const kiv_mat_databaseStruct &database)
{
    return target.isEmpty() || saveXmlNoEvents(target, &database) == 0 ? int(done)
                                                                       : cannotWrite(target);
}

// KTM, field, value before and after, separated by tabs.
void printChanges(const std::vector<materialChange> &changes)
{
    for (const materialChange &change : changes)
        out() << change.record->d_ktm << '\t' << fieldName(change.field) << '\t' << change.before
              << '\t' << change.after << '\n';
    out() << Qt::flush;
}

int runParseListing(const QStringList &arguments)
{
    parser options(parseListingCommand, QStringLiteral("LISTING"), 1, 1);
    const QCommandLineOption databaseFile =
        databaseOption(QT_TRANSLATE_NOOP("cli", "The material database."));
    const QCommandLineOption output = outputOption(QT_TRANSLATE_NOOP(
        "cli", "Where the changed database goes; without it nothing is written."));
    options.addOption(databaseFile);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    if (!options.isSet(databaseFile)) {
        err() << "parse-listing: "
              << QCoreApplication::translate("cli", "give a material database with -d") << '\n'
              << Qt::flush;
        return wrongCall;
    }
    const auto database = readDatabase(options.value(databaseFile));
    if (!database)
        return refused;
    QString error;
    const auto entries = readListing(options.positionalArguments().at(0), &error);
    if (!entries) {
        printNotes({error});
        return refused;
    }
    ktmIndex index;
    index.add(database.get());
    const listingResult result = matchListing(*entries, index);
    printNotes(result.problems);
    printChanges(result.changes);
    applyChanges(result.changes);
    return saveTo(options.value(output), *database);
}

} // namespace

const subcommand parseListingCommand{
    "parse-listing",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the stock and average prices that a listing of the warehouse, or "
                      "another database, changes in a material database."),
    runParseListing};

} // namespace cli

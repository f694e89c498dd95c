// parse-listing, merge, load-cpv and move-cpv: show what would change in a material database, and
// write it when asked to.
#include "cli/arguments.h"

#include "data/loaders.h"
#include "data/vocabulary.h"
#include "database/cpvOperations.h"
#include "database/databaseMerge.h"
#include "database/warehouseListing.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <set>

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
    return target.isEmpty() ? int(done) : writeDocument(target, database);
}

// KTM, field, value before and after, separated by tabs.
void printChanges(const std::vector<materialChange> &changes)
{
    for (const materialChange &change : changes)
        out() << change.record->d_ktm << '\t' << fieldName(change.field) << '\t' << change.before
              << '\t' << change.after << '\n';
    out() << Qt::flush;
}

const char *const changedDatabase =
    QT_TRANSLATE_NOOP("cli", "Where the changed database goes; without it nothing is written.");

// The database of the option -d, or null with the exit code in code.
std::unique_ptr<kiv_mat_databaseStruct> readNamed(const parser &options,
                                                  const QCommandLineOption &option,
                                                  const char *command, int *code)
{
    if (options.isSet(option)) {
        *code = refused;
        return readDatabase(options.value(option));
    }
    *code = wrongCall;
    err() << command << ": "
          << QCoreApplication::translate("cli", "give a material database with -d") << '\n'
          << Qt::flush;
    return nullptr;
}

int runParseListing(const QStringList &arguments)
{
    parser options(parseListingCommand, QStringLiteral("LISTING"), 1, 1);
    const QCommandLineOption databaseFile =
        databaseOption(QT_TRANSLATE_NOOP("cli", "The material database."));
    const QCommandLineOption output = outputOption(changedDatabase);
    options.addOption(databaseFile);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    int code = done;
    const auto database = readNamed(options, databaseFile, parseListingCommand.name, &code);
    if (!database)
        return code;
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

int runLoadCpv(const QStringList &arguments)
{
    parser options(loadCpvCommand, QStringLiteral("LIST"), 1, 1);
    const QCommandLineOption databaseFile =
        databaseOption(QT_TRANSLATE_NOOP("cli", "The material database."));
    const QCommandLineOption output = outputOption(changedDatabase);
    options.addOption(databaseFile);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    int code = done;
    const auto database = readNamed(options, databaseFile, loadCpvCommand.name, &code);
    if (!database)
        return code;
    const QString list = options.positionalArguments().at(0);
    const auto result = loadCpvForGroups(list, *database);
    printNotes(result.problems);
    if (!QFileInfo(list).isFile())
        return refused;
    for (const groupChange &change : result.changes)
        out() << change.record->name << '\t' << change.before << '\t' << change.after << '\n';
    out() << Qt::flush;
    applyChanges(result.changes);
    return saveTo(options.value(output), *database);
}

int runMoveCpv(const QStringList &arguments)
{
    parser options(moveCpvCommand, QStringLiteral("DB"), 1, 1);
    const QCommandLineOption output = outputOption(changedDatabase);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const auto result = moveCpvToMaterials(*database);
    printNotes(result.problems);
    printChanges(result.changes);
    applyChanges(result.changes);
    return saveTo(options.value(output), *database);
}

// What differs, KTM and name; below a changed or repeated one its fields with both values, and its
// groups when it moved. A group stands in its name's place.
void printDifference(const materialDifference &difference)
{
    static const char *const words[] = {"new", "changed", "absent", "repeated", "group"};
    if (difference.kind == materialDifference::groupCpv) {
        out() << words[difference.kind] << "\t\t" << difference.myGroup->name << "\n\tcpv\t"
              << difference.myGroup->cpv << '\t' << difference.otherGroup->cpv << '\n';
        return;
    }
    const materialStruct &shown = difference.other ? *difference.other : *difference.mine;
    out() << words[difference.kind] << '\t' << shown.d_ktm << '\t' << shown.d_name << '\n';
    for (int index : difference.fields) {
        const comparedField &field = comparedFields()[size_t(index)];
        const auto oneLine = [&field](const materialStruct &material) {
            return field.text(material).replace(QLatin1Char('\n'), QLatin1String("; "));
        };
        out() << '\t' << field.name << '\t' << oneLine(*difference.mine) << '\t'
              << oneLine(*difference.other) << '\n';
    }
    if (difference.moved)
        out() << "\tgroup\t" << difference.myGroup->name << '\t' << difference.otherGroup->name
              << '\n';
}

constexpr QLatin1String groupWord = word("group");

// The places of fields by their names; an unknown one is printed, then there are none.
std::set<int> placesOf(const QString &names)
{
    std::set<int> places;
    for (const QString &name : names.split(QLatin1Char(','))) {
        const auto place = name.trimmed() == groupWord ? groupPlace() : placeOf(name.trimmed());
        if (!place) {
            QStringList known;
            for (const comparedField &field : comparedFields())
                known.append(field.name);
            known.append(groupWord);
            refuseCall(mergeCommand, QCoreApplication::translate(
                                         "cli", "%1 is no field of a material; these are: %2")
                                         .arg(name, known.join(QLatin1String(", "))));
            return {};
        }
        places.insert(*place);
    }
    return places;
}

int runMerge(const QStringList &arguments)
{
    parser options(mergeCommand, QStringLiteral("DB OTHER"), 2, 2);
    const QCommandLineOption apply(
        QStringLiteral("apply"),
        QCoreApplication::translate("cli", "Take over what is new or changed; wants -o."));
    const QCommandLineOption update(
        QStringLiteral("update"),
        QCoreApplication::translate(
            "cli", "The other database wins: list, and with --apply delete, what it lacks."));
    const QCommandLineOption fields(
        QStringLiteral("fields"),
        QCoreApplication::translate(
            "cli", "Only these fields of materials that both have, by their names as in files, and "
                   "group for the place; no new materials: d_price,d_description,group."),
        QStringLiteral("LIST"));
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "Where the merged database goes."));
    options.addOption(apply);
    options.addOption(update);
    options.addOption(fields);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    if (options.isSet(update) && options.isSet(fields))
        return refuseCall(mergeCommand,
                          QCoreApplication::translate("cli", "--update takes over all fields"));
    const std::set<int> places =
        options.isSet(fields) ? placesOf(options.value(fields)) : std::set<int>();
    if (options.isSet(fields) && places.empty())
        return wrongCall;
    if (options.isSet(apply) != options.isSet(output)) {
        err() << "merge: " << QCoreApplication::translate("cli", "--apply and -o belong together")
              << '\n'
              << Qt::flush;
        return wrongCall;
    }
    const auto mine = readDatabase(options.positionalArguments().at(0));
    const auto other = mine ? readDatabase(options.positionalArguments().at(1)) : nullptr;
    if (!other)
        return refused;
    std::vector<materialDifference> differences = compareDatabases(*mine, *other).differences;
    if (!options.isSet(update))
        std::erase_if(differences, [](const materialDifference &difference) {
            return difference.kind == materialDifference::absent;
        });
    if (options.isSet(fields))
        std::erase_if(differences, [&places](materialDifference &difference) {
            return (difference.kind != materialDifference::changed
                    && difference.kind != materialDifference::repeated)
                   || !narrow(difference, [&places](int place) { return places.count(place) > 0; });
        });
    if (differences.empty())
        out() << (options.isSet(fields)
                      ? QCoreApplication::translate("cli", "These fields are the same in both")
                      : allMaterialsInDatabase())
              << '\n';
    for (const materialDifference &difference : differences)
        printDifference(difference);
    out() << Qt::flush;
    // Which one of a KTM's materials is meant, nobody can tell.
    if (!options.isSet(update))
        std::erase_if(differences, [](const materialDifference &difference) {
            return difference.kind == materialDifference::repeated;
        });
    carryOut(differences, options.isSet(update) ? absentOnes::remove : absentOnes::keep,
             mine.get());
    return saveTo(options.value(output), *mine);
}

} // namespace

const subcommand mergeCommand{
    "merge",
    QT_TRANSLATE_NOOP("cli", "Lists the materials of another database that are new or changed, and "
                             "takes them over when asked to."),
    runMerge};
const subcommand parseListingCommand{
    "parse-listing",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the stock and average prices that a listing of the warehouse, or "
                      "another database, changes in a material database."),
    runParseListing};

const subcommand loadCpvCommand{
    "load-cpv",
    QT_TRANSLATE_NOOP("cli", "Lists the CPV codes of groups that a text file changes in a material "
                             "database."),
    runLoadCpv};
const subcommand moveCpvCommand{
    "move-cpv",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the materials whose CPV code is another than their group's, and "
                      "gives them that."),
    runMoveCpv};

} // namespace cli

// firm-uses: the materials that name a firm, and another name for it in all of them. firm-merge:
// two firms made one.
#include "cli/arguments.h"

#include "data/firmDetails.h"
#include "data/loaders.h"
#include "firm/firmDetailsMoves.h"
#include "firm/firmMerge.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace cli {

namespace {

using namespace firmOperations;

int runFirmUses(const QStringList &arguments)
{
    parser options(firmUsesCommand, QStringLiteral("DB NAME"), 2, 2);
    const QCommandLineOption newName(
        QStringLiteral("rename"),
        QCoreApplication::translate("cli", "Give these materials another name for the firm."),
        QStringLiteral("NEW"));
    const QCommandLineOption output =
        outputOption(QT_TRANSLATE_NOOP("cli", "Where the changed database goes."));
    options.addOption(newName);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QString after = options.value(newName);
    if (options.isSet(newName) != options.isSet(output)
        || (options.isSet(newName) && after.isEmpty())) {
        err() << "firm-uses: "
              << QCoreApplication::translate("cli", "--rename with a name and -o belong together")
              << '\n'
              << Qt::flush;
        return wrongCall;
    }
    const auto database = readDatabase(options.positionalArguments().at(0));
    if (!database)
        return refused;
    const QString name = options.positionalArguments().at(1);
    renameStep step;
    bool isUsed = false;
    for (firmKind kind : {manufacturer, supplier}) {
        step[kind].insert(name, after);
        for (const firmUse &use : usesOf({name}, kind, {database.get()})) {
            isUsed = true;
            out() << (kind == manufacturer ? "manufacturer\t" : "supplier\t") << use.material->d_ktm
                  << '\t' << use.material->d_name.simplified() << '\n';
        }
    }
    out() << Qt::flush;
    if (!isUsed) {
        err() << QCoreApplication::translate("cli", "no material names %1").arg(name) << '\n'
              << Qt::flush;
        return refused;
    }
    if (!options.isSet(output))
        return done;
    applyNames(changesOf(*database, {step}));
    return writeDocument(options.value(output), *database);
}

// Writes a changed file under its name into a folder.
int writeInto(const QString &folder, const QString &path, const documentStruct &document)
{
    const QString target = folder + QLatin1Char('/') + QFileInfo(path).fileName();
    QString reason;
    if (saveXmlNoEvents(target, &document, &reason) < 0)
        return cannotWrite(target, reason);
    out() << target << '\n';
    return done;
}

int runFirmMerge(const QStringList &arguments)
{
    parser options(firmMergeCommand, QStringLiteral("FIRMS GOES STAYS"), 3, 3);
    const QCommandLineOption databases =
        databaseOption(QT_TRANSLATE_NOOP("cli", "A material database that names the firms."));
    const QCommandLineOption suppliers(
        QStringLiteral("suppliers"),
        QCoreApplication::translate("cli", "The firms are suppliers, not manufacturers."));
    const QCommandLineOption output = outputOption(QT_TRANSLATE_NOOP(
        "cli",
        "The folder for the changed register and databases; without it nothing is written."));
    options.addOption(databases);
    options.addOption(suppliers);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QStringList given = options.positionalArguments();
    kiv_mat_firmStruct firms;
    if (!readFile(given.at(0), &firms, QCoreApplication::translate("cli", "is no firm register")))
        return refused;
    std::vector<std::unique_ptr<kiv_mat_databaseStruct>> read;
    std::vector<const kiv_mat_databaseStruct *> all;
    for (const QString &path : options.values(databases)) {
        read.push_back(readDatabase(path));
        if (!read.back())
            return refused;
        all.push_back(read.back().get());
    }
    const firmKind kind = options.isSet(suppliers) ? supplier : manufacturer;
    std::array<std::optional<size_t>, 2> places;
    for (int i = 0; i < 2; ++i)
        places[size_t(i)] = placeOf(listOf(firms, kind), given.at(1 + i));
    // The second firm of a name is meant when both names are one.
    if (places[0] && places[0] == places[1]) {
        const firmList &list = listOf(firms, kind);
        places[0].reset();
        for (size_t place = *places[1] + 1; place < list.size() && !places[0]; ++place)
            if (isSameFirm(list[place]->name, given.at(1)))
                places[0] = place;
    }
    for (int i = 0; i < 2; ++i)
        if (!places[size_t(i)]) {
            err() << QCoreApplication::translate("cli", "the list has no firm %1")
                         .arg(given.at(1 + i))
                  << '\n'
                  << Qt::flush;
            return refused;
        }
    kiv_mat_firmDetailsStruct details;
    const QString detailsPath = firmDetails::pathBeside(given.at(0));
    if (QFileInfo::exists(detailsPath)
        && !readFile(detailsPath, &details,
                     QCoreApplication::translate("cli", "is no file of firm details")))
        return refused;
    const mergePlan plan = planMerge(firms, kind, *places[1], {*places[0]}, all);
    for (const QStringList &row : mergeRows(plan)) {
        QStringList cells;
        for (const QString &cell : row)
            cells.append(cell.simplified());
        out() << cells.join(QLatin1Char('\t')) << '\n';
    }
    out() << Qt::flush;
    if (!options.isSet(output))
        return done;
    const auto before = copyOf(firms);
    mergeFirms(firms, plan);
    const QString folder = options.value(output);
    int code = writeInto(folder, given.at(0), firms);
    if (code == done && moveDetails(&details, *before, firms, {plan.names}))
        code = writeInto(folder, detailsPath, details);
    for (size_t i = 0; i < read.size() && code == done; ++i) {
        const std::vector<nameChange> changes = changesOf(*read[i], {plan.names});
        applyNames(changes);
        if (!changes.empty())
            code = writeInto(folder, options.values(databases).at(int(i)), *read[i]);
    }
    out() << Qt::flush;
    return code;
}

} // namespace

const subcommand firmMergeCommand{
    "firm-merge",
    QT_TRANSLATE_NOOP("cli", "Lists what making one firm of two changes in the register and in the "
                             "materials, and writes it into a folder when asked to."),
    runFirmMerge};

const subcommand firmUsesCommand{
    "firm-uses",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the materials that name a firm as manufacturer or supplier, and "
                      "can rename it there. Exit code 1 when there are none."),
    runFirmUses};

} // namespace cli

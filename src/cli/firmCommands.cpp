// firm-uses: the materials that name a firm, and another name for it in all of them.
#include "cli/arguments.h"

#include "data/loaders.h"
#include "firm/firmOperations.h"

#include <QCoreApplication>

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

} // namespace

const subcommand firmUsesCommand{
    "firm-uses",
    QT_TRANSLATE_NOOP("cli",
                      "Lists the materials that name a firm as manufacturer or supplier, and "
                      "can rename it there. Exit code 1 when there are none."),
    runFirmUses};

} // namespace cli

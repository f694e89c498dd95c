// check-materials: the materials of a database that the editor would not accept.
#include "cli/arguments.h"

#include "database/materialChecks.h"

#include <QCoreApplication>

namespace cli {

namespace {

int runCheckMaterials(const QStringList &arguments)
{
    parser options(checkMaterialsCommand, QStringLiteral("DB..."), 1, -1);
    if (!options.accept(arguments))
        return options.code();
    databaseSet databases;
    if (!databases.load(options.positionalArguments()))
        return refused;
    bool allPass = true;
    for (const auto &database : databases.all())
        for (const auto &group : database->groups)
            for (const auto &material : group->items)
                if (const auto fault = materialChecks::firstFault(*material)) {
                    allPass = false;
                    out() << material->d_ktm.simplified() << '\t' << material->d_name.simplified()
                          << '\t' << fault->text << '\n';
                }
    out() << Qt::flush;
    return allPass ? done : refused;
}

} // namespace

const subcommand checkMaterialsCommand{
    "check-materials",
    QT_TRANSLATE_NOOP("cli", "Lists the materials that the editor would not accept, with the "
                             "reason. Exit code 1 when there are some."),
    runCheckMaterials};

} // namespace cli

// check-materials: the materials of a database that the editor would not accept.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "database/materialChecks.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

int runCheckMaterials(const QStringList &arguments)
{
    parser options(checkMaterialsCommand, QStringLiteral("DB..."), 1, -1);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    databaseSet databases;
    if (!databases.load(options.positionalArguments()))
        return refused;
    QJsonArray faults;
    for (const auto &database : databases.all())
        for (const auto &group : database->groups)
            for (const auto &material : group->items)
                if (const auto fault = materialChecks::firstFault(*material)) {
                    faults.append(QJsonObject{{QStringLiteral("ktm"), material->d_ktm},
                                              {QStringLiteral("name"), material->d_name},
                                              {QStringLiteral("group"), group->name},
                                              {QStringLiteral("field"), fault->field},
                                              {QStringLiteral("fault"), fault->text}});
                    if (options.isSet(json))
                        continue;
                    out() << material->d_ktm.simplified() << '\t' << material->d_name.simplified()
                          << '\t' << fault->text << '\n';
                }
    if (options.isSet(json))
        printJson({{QStringLiteral("faults"), faults}});
    out() << Qt::flush;
    return faults.isEmpty() ? done : refused;
}

} // namespace

const subcommand checkMaterialsCommand{
    "check-materials",
    QT_TRANSLATE_NOOP("cli", "Lists the materials that the editor would not accept, with the "
                             "reason. Exit code 1 when there are some."),
    runCheckMaterials};

} // namespace cli

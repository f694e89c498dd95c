// versions: what is kept of the program's files, without its window.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/documentDiff.h"
#include "data/keptCopies.h"
#include "util/paths.h"
#include "util/recoverySlots.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

namespace {

constexpr const char *timeForm = "yyyy-MM-ddThh:mm:ss";

void printList(const std::vector<keptCopy> &copies, bool asJson)
{
    QJsonArray array;
    for (const keptCopy &copy : copies) {
        const QString time = copy.time.toString(QLatin1String(timeForm));
        if (asJson)
            array.append(QJsonObject{{QStringLiteral("version"), copy.file},
                                     {QStringLiteral("file"), copy.path},
                                     {QStringLiteral("name"), copy.name},
                                     {QStringLiteral("time"), time},
                                     {QStringLiteral("bytes"), copy.size},
                                     {QStringLiteral("unsaved"), copy.isUnsaved}});
        else
            out() << time << '\t' << copy.size << '\t'
                  << (copy.path.isEmpty() ? copy.name : copy.path) << '\t' << copy.file << '\n';
    }
    if (asJson)
        printJson({{QStringLiteral("versions"), array}});
    out() << Qt::flush;
}

int runVersions(const QStringList &arguments)
{
    parser options(versionsCommand, QStringLiteral("[FILE]"), 0, 1);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    configStruct config;
    if (!loadConfiguration(&config))
        return refused;
    const QString wanted = options.positionalArguments().value(0);
    const QString path = wanted.isEmpty() ? QString() : QFileInfo(wanted).absoluteFilePath();
    std::vector<keptCopy> copies =
        keptCopies(config.backupFolders(), recoveryFolders(), QStringList{path});
    if (!path.isEmpty())
        std::erase_if(copies, [&path](const keptCopy &copy) { return copy.path != path; });
    printList(copies, options.isSet(json));
    return copies.empty() ? refused : done;
}

} // namespace

const subcommand versionsCommand{
    "versions",
    QT_TRANSLATE_NOOP("cli", "Lists the earlier versions and unsaved orders that are kept, of one "
                             "file or of all. Exit code 1 when there are none."),
    runVersions};

} // namespace cli

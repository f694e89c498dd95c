// replace-material: one material in the place of another one in BOM lists and orders, all of the
// files or none.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "bom/materialReplacement.h"
#include "data/configStruct.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

using namespace materialReplacement;

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

// What a document becomes.
struct planned
{
    document *in;
    change of;
};

void print(const planned &one, const replacement &what)
{
    for (const line &changed : one.of.lines)
        out() << QStringList{one.in->path, QString::number(changed.number + 1), changed.quantity,
                             changed.detail.simplified(),
                             (one.of.remarks() + changed.remarks(what)).join(QLatin1String("; "))}
                     .join(QLatin1Char('\t'))
              << '\n';
}

QJsonArray linesJson(const planned &one)
{
    QJsonArray lines;
    for (const line &changed : one.of.lines) {
        QJsonArray remarks;
        const std::pair<bool, const char *> all[] = {{changed.otherUnit, "unit"},
                                                     {changed.ownText, "description"},
                                                     {one.of.standsTwice, "twice"}};
        for (const auto &[applies, key] : all)
            if (applies)
                remarks.append(QLatin1String(key));
        lines.append(
            QJsonObject{{QStringLiteral("file"), one.in->path},
                        {QStringLiteral("kind"),
                         one.in->order ? QStringLiteral("order") : QStringLiteral("bom")},
                        {QStringLiteral("line"), changed.number + 1},
                        {QStringLiteral("quantity"), numberOrText(changed.quantity)},
                        {one.in->order ? QStringLiteral("target") : QStringLiteral("designator"),
                         changed.detail},
                        {QStringLiteral("remarks"), remarks}});
    }
    return lines;
}

// The documents that use the material; nothing, with the reasons printed, when one cannot be read
// or does not take the new one.
std::optional<std::vector<planned>> planOf(std::vector<document> &documents,
                                           const replacement &what)
{
    std::vector<planned> plan;
    bool isGood = true;
    for (document &in : documents) {
        change of = changeOf(in, what);
        const QString fault = in.fault.isEmpty() ? of.refusal : in.fault;
        if (!fault.isEmpty()) {
            err() << in.path << ": " << fault << '\n' << Qt::flush;
            isGood = false;
        } else if (!of.lines.empty()) {
            plan.push_back({&in, std::move(of)});
        }
    }
    return isGood ? std::optional(std::move(plan)) : std::nullopt;
}

int write(const std::vector<planned> &plan, const replacement &what)
{
    std::vector<document *> chosen;
    for (const planned &one : plan)
        chosen.push_back(one.in);
    // Without one the usual folders take the versions.
    configStruct config;
    config.load(paths::config());
    QString fault;
    if (replaceInFiles(chosen, what, config, {}, &fault) == togetherResult::saved)
        return done;
    err() << told(QT_TRANSLATE_NOOP("cli", "nothing was replaced")) << ": " << fault << '\n'
          << Qt::flush;
    return notWritten;
}

int runReplaceMaterial(const QStringList &arguments)
{
    constexpr int leastArguments = 3;
    parser options(replaceMaterialCommand, QStringLiteral("OLD NEW FILE..."), leastArguments, -1);
    const QCommandLineOption database = databaseOption(QT_TRANSLATE_NOOP(
        "cli", "A material database, which has the new material. May be given several times."));
    const QCommandLineOption dryRun{
        QStringLiteral("dry-run"),
        told(QT_TRANSLATE_NOOP("cli", "Only print what would change; nothing is written."))};
    const QCommandLineOption json = jsonOption();
    options.addOptions({database, dryRun, json});
    if (!options.accept(arguments))
        return options.code();
    if (!options.isSet(database))
        return refuseCall(replaceMaterialCommand,
                          told(QT_TRANSLATE_NOOP("cli", "give a database with -d")));
    databaseSet databases;
    QStringList files;
    if (!databases.load(options.values(database))
        || !listedFiles(options.positionalArguments().mid(2), &files))
        return refused;
    QString fault;
    const replacement what =
        replacementOf(options.positionalArguments().at(0), options.positionalArguments().at(1),
                      databases.index(), &fault);
    if (!what.after) {
        err() << fault << '\n' << Qt::flush;
        return refused;
    }
    auto documents = readFiles(files);
    const auto plan = planOf(*documents, what);
    if (!plan)
        return refused;
    if (const QString remark = statusRemark(what); !remark.isEmpty())
        err() << remark << '\n';
    int lines = 0;
    QJsonArray all;
    for (const planned &one : *plan) {
        lines += int(one.of.lines.size());
        if (!options.isSet(json))
            print(one, what);
        for (const auto &value : linesJson(one))
            all.append(value);
    }
    err() << told(QT_TRANSLATE_NOOP("cli", "lines to replace %1, in files %2 of %3"))
                 .arg(lines)
                 .arg(plan->size())
                 .arg(documents->size())
          << '\n'
          << Qt::flush;
    out() << Qt::flush;
    const int code = plan->empty()           ? int(refused)
                     : options.isSet(dryRun) ? int(done)
                                             : write(*plan, what);
    if (options.isSet(json))
        printJson({{QStringLiteral("old"), what.before},
                   {QStringLiteral("new"), what.after->d_ktm},
                   {QStringLiteral("status_valid"), statusRemark(what).isEmpty()},
                   {QStringLiteral("written"), code == done && !options.isSet(dryRun)},
                   {QStringLiteral("lines"), all}});
    return code;
}

} // namespace

const subcommand replaceMaterialCommand{
    "replace-material",
    QT_TRANSLATE_NOOP("cli",
                      "Puts one material in the place of another one in BOM lists, all lists "
                      "of sets, and orders, and keeps the files as they were among their "
                      "versions. All files are written, or none."),
    runReplaceMaterial};

} // namespace cli

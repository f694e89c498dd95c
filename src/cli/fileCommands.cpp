// validate, info and resave: what kivzp-cli does with any file of the program.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_firmDetailsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_offersStruct.h"
#include "data/kiv_mat_orderStatesStruct.h"
#include "data/kiv_mat_reservationsStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/lineSums.h"
#include "data/loaders.h"
#include "data/repair.h"
#include "data/streamValidation.h"
#include "report/orderReport.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace cli {

namespace {

// One line of what info prints: a name that scripts can rely on, untranslated, and a value as text
// and for JSON.
struct fact
{
    const char *name;
    QString text;
    QJsonValue value = text;
};

fact count(const char *name, size_t number)
{
    return {name, QString::number(number), qint64(number)};
}

QList<fact> factsOf(const documentStruct &document)
{
    if (const auto *order = dynamic_cast<const kiv_mat_zpStruct *>(&document)) {
        const lineSums sums = sumsOf(*order);
        QList<fact> facts{count("options", order->options.items.size()),
                          count("lines", order->orderItems.items.size())};
        const auto add = [&facts](const char *name, const char *leftOutName, const lineSum &sum) {
            facts.append({name, sum.amount.money(), numberOrText(sum.amount.money())});
            const QString leftOut = sum.leftOutText();
            if (!leftOut.isEmpty())
                facts.append({leftOutName, leftOut});
        };
        add("sum", "sum_left_out", sums.price);
        add("average_sum", "average_sum_left_out", sums.averagePrice);
        return facts;
    }
    if (const auto *database = dynamic_cast<const kiv_mat_databaseStruct *>(&document)) {
        ktmIndex index;
        index.add(const_cast<kiv_mat_databaseStruct *>(database));
        return {count("groups", database->groups.size()),
                count("materials", size_t(database->materialCount())),
                count("ktms", size_t(index.size())),
                count("duplicates", size_t(index.duplicateCount()))};
    }
    if (const auto *firm = dynamic_cast<const kiv_mat_firmStruct *>(&document))
        return {count("manufacturers", firm->manufacturers.items.size()),
                count("suppliers", firm->suppliers.items.size())};
    if (const auto *all = dynamic_cast<const kiv_mat_firmDetailsStruct *>(&document))
        return {count("firms", all->details.size())};
    if (const auto *boards = dynamic_cast<const kiv_mat_reservationsStruct *>(&document))
        return {count("reserved", boards->reserved.items.size()),
                count("built", boards->built.items.size())};
    if (const auto *states = dynamic_cast<const kiv_mat_orderStatesStruct *>(&document))
        return {count("sent", states->orders.size()), count("parted", states->parted.size()),
                count("stocked", states->stocked.size())};
    if (const auto *offers = dynamic_cast<const kiv_mat_offersStruct *>(&document))
        return {count("requests", offers->requests.size()), count("offers", offers->offers.size()),
                count("choices", offers->choices.size())};
    if (const auto *config = dynamic_cast<const configStruct *>(&document))
        return {count("options", config->options.items.size()),
                count("persons", config->persons.items.size()),
                count("targets", config->targets.items.size())};
    if (const auto *bom = dynamic_cast<const kiv_mat_bomStruct *>(&document))
        return {count("lines", bom->materials.size())};
    if (const auto *boms = dynamic_cast<const kiv_mat_bomsStruct *>(&document)) {
        size_t groups = 0;
        size_t files = 0;
        for (const auto &category : boms->categories) {
            groups += category->items.size();
            for (const auto &group : category->items)
                files += group->items.size();
        }
        return {count("categories", boms->categories.size()), count("groups", groups),
                count("files", files)};
    }
    if (const auto *info = dynamic_cast<const kiv_infoStruct *>(&document))
        return {{"version", info->kivVersion}, {"build", info->kivBuild}};
    if (const auto *update = dynamic_cast<const kiv_UpdateStruct *>(&document))
        return {count("commands", update->commands.size())};
    return {};
}

int runValidate(const QStringList &arguments)
{
    parser options(validateCommand, QStringLiteral("FILE..."), 1, -1);
    if (!options.accept(arguments))
        return options.code();
    int result = done;
    for (const QString &path : options.positionalArguments()) {
        if (validateFile(path))
            out() << path << ": " << QCoreApplication::translate("cli", "valid") << '\n'
                  << Qt::flush;
        else
            result = refused;
    }
    return result;
}

int runInfo(const QStringList &arguments)
{
    parser options(infoCommand, QStringLiteral("FILE"), 1, 1);
    const QCommandLineOption validate(
        QStringLiteral("validate"),
        QCoreApplication::translate("cli", "Check the file against its schema first."));
    const QCommandLineOption json = jsonOption();
    options.addOptions({validate, json});
    if (!options.accept(arguments))
        return options.code();
    const QString path = options.positionalArguments().at(0);
    if (options.isSet(validate) && !validateFile(path))
        return refused;
    const auto document = readAny(path);
    if (!document)
        return refused;
    const QList<fact> facts = factsOf(*document);
    if (options.isSet(json)) {
        QJsonObject answer{{QStringLiteral("file"), path},
                           {QStringLiteral("kind"), document->kind().root},
                           {QStringLiteral("format"), document->xsiType}};
        for (const fact &f : facts)
            answer.insert(QLatin1String(f.name), f.value);
        printJson(answer);
        return done;
    }
    out() << "kind: " << document->kind().root << '\n' << "version: " << document->xsiType << '\n';
    for (const fact &f : facts)
        out() << f.name << ": " << f.text << '\n';
    out() << Qt::flush;
    return done;
}

int runResave(const QStringList &arguments)
{
    parser options(resaveCommand, QStringLiteral("IN OUT"), 2, 2);
    const QCommandLineOption force(
        QStringLiteral("force"),
        QCoreApplication::translate("cli", "Write also when unknown content is lost."));
    options.addOption(force);
    if (!options.accept(arguments))
        return options.code();
    const auto document = readAny(options.positionalArguments().at(0));
    if (!document)
        return refused;
    const QString target = options.positionalArguments().at(1);
    if (options.isSet(force)) {
        document->leftOut = {};
    } else if (document->leftOut.count > 0) {
        err() << options.positionalArguments().at(0) << ": "
              << QCoreApplication::translate("cli", "not written, since it would lose %1; --force "
                                                    "writes all the same")
                     .arg(document->leftOut.text())
              << '\n'
              << Qt::flush;
        return refused;
    }
    return writeDocument(target, *document);
}

int runRepair(const QStringList &arguments)
{
    parser options(repairCommand, QStringLiteral("IN OUT"), 2, 2);
    if (!options.accept(arguments))
        return options.code();
    const QString source = options.positionalArguments().at(0);
    const QString target = options.positionalArguments().at(1);
    if (QFileInfo::exists(target) && QFileInfo(source) == QFileInfo(target))
        return refuseCall(repairCommand,
                          QCoreApplication::translate("cli", "OUT is IN, which must stay"));
    const repairedFile repaired = repairFile(source);
    printFaults(source, repaired.changes, repaired.changeCount);
    if (!repaired.document) {
        err() << source << ": " << repaired.fault << '\n' << Qt::flush;
        return refused;
    }
    const int written = writeDocument(target, *repaired.document);
    if (written != done)
        return written;
    out() << "kind: " << repaired.document->kind().root << '\n';
    for (const fact &f : factsOf(*repaired.document))
        out() << f.name << ": " << f.text << '\n';
    out() << "changes: " << repaired.changeCount << '\n' << Qt::flush;
    return done;
}

} // namespace

std::unique_ptr<documentStruct> readAny(const QString &path)
{
    const fileKinds::fileHead head = fileKinds::headOf(path);
    if (!head.kind) {
        err() << path << ": " << head.fault << '\n' << Qt::flush;
        return nullptr;
    }
    auto document = newDocument(*head.kind);
    QString error;
    if (!head.otherForm.isEmpty())
        error = head.otherForm;
    else if (loadDocument(path, document.get(), &error) == 0)
        return document;
    const QString schema = paths::schema(head.schema);
    if (error.isEmpty() && !schemaLoads(schema))
        error = QCoreApplication::translate("cli", "The schema %1 cannot be loaded").arg(schema);
    // The configuration's schema errors have been shown already.
    if (!error.isEmpty())
        err() << path << ": " << error << '\n' << Qt::flush;
    return nullptr;
}

const subcommand validateCommand{
    "validate", QT_TRANSLATE_NOOP("cli", "Checks files against their schemas."), runValidate};
const subcommand infoCommand{
    "info", QT_TRANSLATE_NOOP("cli", "Tells the kind of a file and counts what it holds."),
    runInfo};
const subcommand resaveCommand{
    "resave", QT_TRANSLATE_NOOP("cli", "Reads a file and writes it again in the program's form."),
    runResave};
const subcommand repairCommand{
    "repair",
    QT_TRANSLATE_NOOP("cli", "Reads what can be read of a damaged file, writes it in the program's "
                             "form, and prints what was mended or dropped."),
    runRepair};

} // namespace cli

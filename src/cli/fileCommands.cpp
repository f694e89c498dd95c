// validate, info and resave: what kivzp-cli does with any file of the program.
#include "cli/arguments.h"

#include "data/configStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_infoStruct.h"
#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_bomsStruct.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/lineSums.h"
#include "data/loaders.h"
#include "report/orderReport.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace cli {

namespace {

// One line of what info prints: a name that scripts can rely on, untranslated, and a value.
using fact = std::pair<const char *, QString>;

QString count(size_t number) { return QString::number(number); }

QList<fact> factsOf(const documentStruct &document)
{
    if (const auto *order = dynamic_cast<const kiv_mat_zpStruct *>(&document)) {
        const lineSums sums = sumsOf(*order);
        QList<fact> facts{{"options", count(order->options.items.size())},
                          {"lines", count(order->orderItems.items.size())}};
        const auto add = [&facts](const char *name, const char *leftOutName, const lineSum &sum) {
            facts.append({name, sum.amount.money()});
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
        return {{"groups", count(database->groups.size())},
                {"materials", count(size_t(database->materialCount()))},
                {"ktms", count(size_t(index.size()))},
                {"duplicates", count(size_t(index.duplicateCount()))}};
    }
    if (const auto *firm = dynamic_cast<const kiv_mat_firmStruct *>(&document))
        return {{"manufacturers", count(firm->manufacturers.items.size())},
                {"suppliers", count(firm->suppliers.items.size())}};
    if (const auto *config = dynamic_cast<const configStruct *>(&document))
        return {{"options", count(config->options.items.size())},
                {"persons", count(config->persons.items.size())},
                {"targets", count(config->targets.items.size())}};
    if (const auto *bom = dynamic_cast<const kiv_mat_bomStruct *>(&document))
        return {{"lines", count(bom->materials.size())}};
    if (const auto *boms = dynamic_cast<const kiv_mat_bomsStruct *>(&document)) {
        size_t groups = 0;
        size_t files = 0;
        for (const auto &category : boms->categories) {
            groups += category->items.size();
            for (const auto &group : category->items)
                files += group->items.size();
        }
        return {{"categories", count(boms->categories.size())},
                {"groups", count(groups)},
                {"files", count(files)}};
    }
    if (const auto *info = dynamic_cast<const kiv_infoStruct *>(&document))
        return {{"version", info->kivVersion}, {"build", info->kivBuild}};
    if (const auto *update = dynamic_cast<const kiv_UpdateStruct *>(&document))
        return {{"commands", count(update->commands.size())}};
    return {};
}

// Reads a file of whatever kind; prints what is wrong and returns null when it cannot.
std::unique_ptr<documentStruct> read(const QString &path)
{
    const fileKind *kind = fileKinds::ofFile(path);
    if (!kind) {
        err() << path << ": "
              << (QFileInfo(path).isFile()
                      ? QCoreApplication::translate("cli", "is no file of this program")
                      : QCoreApplication::translate("cli", "cannot be read"))
              << '\n'
              << Qt::flush;
        return nullptr;
    }
    auto document = newDocument(*kind);
    QString error;
    if (loadDocument(path, document.get(), &error) == 0)
        return document;
    const QString schema = paths::schema(kind->schema);
    if (error.isEmpty() && !QFileInfo::exists(schema))
        error = QCoreApplication::translate("cli", "the schema %1 is missing").arg(schema);
    // The configuration's schema errors have been shown already.
    if (!error.isEmpty())
        err() << path << ": " << error << '\n' << Qt::flush;
    return nullptr;
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
    options.addOption(validate);
    if (!options.accept(arguments))
        return options.code();
    const QString path = options.positionalArguments().at(0);
    if (options.isSet(validate) && !validateFile(path))
        return refused;
    const auto document = read(path);
    if (!document)
        return refused;
    out() << "kind: " << document->kind().root << '\n' << "version: " << document->xsiType << '\n';
    for (const fact &f : factsOf(*document))
        out() << f.first << ": " << f.second << '\n';
    out() << Qt::flush;
    return done;
}

int runResave(const QStringList &arguments)
{
    parser options(resaveCommand, QStringLiteral("IN OUT"), 2, 2);
    if (!options.accept(arguments))
        return options.code();
    const auto document = read(options.positionalArguments().at(0));
    if (!document)
        return refused;
    const QString target = options.positionalArguments().at(1);
    return saveXmlNoEvents(target, document.get()) == 0 ? done : cannotWrite(target);
}

} // namespace

const subcommand validateCommand{
    "validate", QT_TRANSLATE_NOOP("cli", "Checks files against their schemas."), runValidate};
const subcommand infoCommand{
    "info", QT_TRANSLATE_NOOP("cli", "Tells the kind of a file and counts what it holds."),
    runInfo};
const subcommand resaveCommand{
    "resave", QT_TRANSLATE_NOOP("cli", "Reads a file and writes it again in the program's form."),
    runResave};

} // namespace cli

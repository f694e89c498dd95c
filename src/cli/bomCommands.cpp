// bom-csv, bom-report, bom-order, bom-shortage, bom-basket: BOM lists without their windows.
#include "cli/arguments.h"
#include "cli/bomLists.h"

#include "bom/boardStock.h"
#include "bom/bomReport.h"
#include "bom/supplierBasket.h"
#include "data/configStruct.h"
#include "data/firmDetails.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/loaders.h"
#include "data/reservationsFile.h"
#include "order/orderOperations.h"
#include "orders/orderRegister.h"
#include "util/files.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace cli {

using namespace bomOperations;

namespace {

QCommandLineOption materialsOption()
{
    return databaseOption(QCoreApplication::translate(
        "cli", "A material database that the lines are looked up in. May be given several times."));
}

QCommandLineOption outputOption(const QString &help)
{
    return {{QStringLiteral("o"), QStringLiteral("output")}, help, QStringLiteral("OUT")};
}

// Tells on standard error which materials were left out.
void warn(const QString &text, const QString &subject)
{
    err() << text << ": " << subject.simplified() << '\n';
}

int runCsv(const QStringList &arguments)
{
    parser options(bomCsvCommand, QStringLiteral("BOM"), 1, 1);
    const QCommandLineOption database = materialsOption();
    const QCommandLineOption output =
        outputOption(QCoreApplication::translate("cli", "The file to write."));
    options.addOption(database);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (target.isEmpty())
        return refuseCall(bomCsvCommand,
                          QCoreApplication::translate("cli", "give an output file with -o"));
    kiv_mat_bomStruct bom;
    databaseSet databases;
    if (!readBomList(options.positionalArguments().at(0), &bom)
        || !databases.load(options.values(database)))
        return refused;
    return files::writeText(target, bomReport::csv(bom, databases.index())) ? done
                                                                            : cannotWrite(target);
}

int runReport(const QStringList &arguments)
{
    parser options(bomReportCommand, QStringLiteral("BOM..."), 1, -1);
    const QCommandLineOption database = materialsOption();
    const QCommandLineOption output = outputOption(QCoreApplication::translate(
        "cli", "The file to write; its ending, .html or .pdf, decides its kind."));
    options.addOption(database);
    options.addOption(output);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (!isPageFile(target))
        return refuseCall(
            bomReportCommand,
            QCoreApplication::translate("cli", "give an output file that ends in .html or .pdf"));
    listsWithSets read;
    databaseSet databases;
    for (const QString &path : options.positionalArguments())
        read.add(path, 1);
    if (!read.read() || !databases.load(options.values(database)))
        return refused;
    return writePage(bomReport::page(read.lists, databases.index()), target,
                     bomReport::title(read.lists));
}

// What other boards have reserved does not count as stock.
bool takeReserved(const QString &path, demand *needed, const listsWithSets &lists,
                  const databaseSet &databases)
{
    reservationsFile file(path);
    if (path.isEmpty())
        return true;
    if (!isReadable(file))
        return false;
    boardStock::noteReserved(needed, lists.lists, databases.index(), file.now());
    return true;
}

struct word
{
    QLatin1String text;
    present meaning;
};
const word presentWords[] = {{QLatin1String("raise"), present::raise},
                             {QLatin1String("add"), present::add},
                             {QLatin1String("skip"), present::skip}};

// The order to add to, or a new one as the program's configuration makes it.
bool startOrder(const QString &path, configStruct &config, kiv_mat_zpStruct *order)
{
    if (!config.load(paths::config()))
        config.setDefaults();
    if (!path.isEmpty())
        return readFile(path, order, QCoreApplication::translate("cli", "is no order"));
    order->initialise(config);
    return true;
}

int runOrder(const QStringList &arguments)
{
    parser options(bomOrderCommand, QStringLiteral("BOM=SETS..."), 1, -1);
    const QCommandLineOption database = materialsOption();
    const QCommandLineOption output =
        outputOption(QCoreApplication::translate("cli", "The order to write."));
    const QCommandLineOption from(
        QStringLiteral("from"),
        QCoreApplication::translate("cli",
                                    "An order whose lines come first; it may be OUT itself."),
        QStringLiteral("ORDER"));
    const QCommandLineOption onlyShort(
        QStringLiteral("short"),
        QCoreApplication::translate("cli", "Order only what is short of stock."));
    const QCommandLineOption existing(
        QStringLiteral("existing"),
        QCoreApplication::translate("cli",
                                    "What becomes of materials that the order has: raise the "
                                    "line (usual), add a line, or skip them."),
        QStringLiteral("raise|add|skip"), presentWords[0].text);
    const QCommandLineOption topUp(
        QStringLiteral("top-up"),
        QCoreApplication::translate("cli", "Order only what ORDER lacks of what is needed."));
    const QCommandLineOption neverTwice(
        QStringLiteral("never-twice"),
        QCoreApplication::translate(
            "cli", "Order less what other orders, in the configured folders, have on the way."));
    const QCommandLineOption reservations = reservationsOption();
    for (const QCommandLineOption &option :
         {database, output, from, onlyShort, topUp, neverTwice, existing, reservations})
        options.addOption(option);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (target.isEmpty())
        return refuseCall(bomOrderCommand,
                          QCoreApplication::translate("cli", "give an output file with -o"));
    if (options.isSet(onlyShort) && options.isSet(topUp))
        return refuseCall(bomOrderCommand, QCoreApplication::translate(
                                               "cli", "--short and --top-up exclude each other"));
    const auto chosen =
        std::find_if(std::begin(presentWords), std::end(presentWords),
                     [&](const word &w) { return w.text == options.value(existing); });
    if (chosen == std::end(presentWords))
        return refuseCall(bomOrderCommand,
                          QCoreApplication::translate("cli", "%1 is none of raise, add and skip")
                              .arg(options.value(existing)));
    listsWithSets lists;
    QString fault;
    if (!lists.parse(options.positionalArguments(), &fault))
        return refuseCall(bomOrderCommand, fault);

    configStruct config;
    kiv_mat_zpStruct order;
    databaseSet databases;
    if (!startOrder(options.value(from), config, &order) || !lists.read()
        || !databases.load(options.values(database)))
        return refused;
    demand needed = demandOf(lists.lists, databases.index(), orderRules(config));
    if (!takeReserved(options.value(reservations), &needed, lists, databases))
        return refused;
    warnOfUncounted(needed);
    if (options.isSet(neverTwice)) {
        orderRegister orders(orderIndex::usualCache());
        orders.update(config.orderFolders());
        noteOrdered(
            &needed,
            [&orders](const QString &ktm, const QString &except) {
                return orders.beforeOf(ktm, except);
            },
            target);
    }
    orderPlan plan = planOf(needed, order,
                            {options.isSet(onlyShort) ? amount::shortage
                             : options.isSet(topUp)   ? amount::topUp
                                                      : amount::needed,
                             chosen->meaning, options.isSet(neverTwice)},
                            orderOperations::usualDate(config));
    for (const need *one : plan.unknown)
        warn(QCoreApplication::translate("cli", "in no database, left out"),
             one->ktm + QLatin1Char(' ') + one->name);
    const int skipped = plan.skipped;
    const int changed = apply(std::move(plan), &order);
    const int written = writeDocument(target, order);
    if (written != done)
        return written;
    err() << QCoreApplication::translate("cli", "%n line(s) added or raised", nullptr, changed)
          << QLatin1String(", ")
          << QCoreApplication::translate("cli", "%n material(s) skipped", nullptr, skipped) << '\n'
          << Qt::flush;
    return done;
}

int runShortage(const QStringList &arguments)
{
    parser options(bomShortageCommand, QStringLiteral("BOM=SETS..."), 1, -1);
    const QCommandLineOption database = materialsOption();
    const QCommandLineOption reservations = reservationsOption();
    options.addOptions({database, reservations});
    if (!options.accept(arguments))
        return options.code();
    listsWithSets lists;
    QString fault;
    if (!lists.parse(options.positionalArguments(), &fault))
        return refuseCall(bomShortageCommand, fault);
    databaseSet databases;
    if (!lists.read() || !databases.load(options.values(database)))
        return refused;

    demand needed = demandOf(lists.lists, databases.index());
    if (!takeReserved(options.value(reservations), &needed, lists, databases))
        return refused;
    const std::vector<const need *> missing = shortagesOf(needed);
    for (const need *one : missing) {
        for (int column = 0; column < bomReport::needColumns; ++column)
            out() << (column > 0 ? "\t" : "")
                  << bomReport::needText(*one, bomReport::needColumn(column)).simplified();
        out() << '\n';
    }
    out() << Qt::flush;
    warnOfUncounted(needed);
    // A line that could not be counted may be short too.
    return missing.empty() && needed.uncounted.empty() ? done : refused;
}

// What is said of the firms of a register; nothing without one. Prints what is wrong; false when a
// file was refused.
bool readFirms(const QString &path, kiv_mat_firmStruct *firms, kiv_mat_firmDetailsStruct *details)
{
    if (path.isEmpty())
        return true;
    if (!readFile(path, firms, QCoreApplication::translate("cli", "is no firm register")))
        return false;
    const QString beside = firmDetails::pathBeside(path);
    return !QFileInfo::exists(beside)
           || readFile(beside, details,
                       QCoreApplication::translate("cli", "is no file of firm details"));
}

// Writes the baskets, into a folder each under its name; tells of the lines with a remark, and of
// those in no file. Returns the exit code.
int writeBaskets(const std::vector<supplierBasket::basket> &baskets,
                 const supplierBasket::formOf &forms, const QString &onlyOf, const QString &target)
{
    const QStringList names = supplierBasket::fileNames(baskets, forms);
    const bool isFolder = target.endsWith(QLatin1Char('/')) || QFileInfo(target).isDir();
    const bool isOneFile = !onlyOf.isEmpty() && !isFolder;
    for (size_t i = 0; i < baskets.size(); ++i) {
        const supplierBasket::basket &one = baskets[i];
        const bool isWritten =
            !one.supplier.isEmpty()
            && (onlyOf.isEmpty() || firmDetails::isSameName(one.supplier, onlyOf));
        for (const supplierBasket::line &line : one.lines) {
            QString remark = line.fault;
            if (!isWritten && !one.supplier.isEmpty())
                remark =
                    QCoreApplication::translate("cli", "%1 does not have it, left out").arg(onlyOf);
            else if (isWritten && !remark.isEmpty())
                remark = one.supplier + QLatin1String(", ") + remark;
            if (!remark.isEmpty())
                warn(remark, line.of.ktm + QLatin1Char(' ') + line.of.name);
        }
        err() << Qt::flush;
        if (!isWritten)
            continue;
        const QString path = isOneFile ? target : QDir(target).filePath(names.at(int(i)));
        QString fault;
        if (!supplierBasket::write(one, forms(one.supplier), path, &fault))
            return cannotWrite(path, fault);
        out() << path << '\n' << Qt::flush;
    }
    return done;
}

int runBasket(const QStringList &arguments)
{
    parser options(bomBasketCommand, QStringLiteral("[BOM=SETS...]"), 0, -1);
    const QCommandLineOption database = materialsOption();
    const QCommandLineOption output = outputOption(QCoreApplication::translate(
        "cli", "The folder for a file for each supplier; with --supplier a folder (it is there, or "
               "ends in a slash) or the file."));
    const QCommandLineOption firmsOption(
        QStringLiteral("firms"),
        QCoreApplication::translate(
            "cli", "The firm register; the details beside it say how baskets are written."),
        QStringLiteral("FIRMS"));
    const QCommandLineOption supplier(
        QStringLiteral("supplier"),
        QCoreApplication::translate("cli",
                                    "Only the basket of this supplier, with all that it has."),
        QStringLiteral("NAME"));
    const QCommandLineOption from(
        QStringLiteral("from"),
        QCoreApplication::translate("cli",
                                    "An order whose lines are bought, in place of BOM lists."),
        QStringLiteral("ORDER"));
    const QCommandLineOption onlyShort(
        QStringLiteral("short"),
        QCoreApplication::translate("cli", "Buy only what is short of stock."));
    for (const QCommandLineOption &option :
         {database, output, firmsOption, supplier, from, onlyShort})
        options.addOption(option);
    if (!options.accept(arguments))
        return options.code();
    const QString target = options.value(output);
    if (target.isEmpty())
        return refuseCall(bomBasketCommand,
                          QCoreApplication::translate("cli", "give an output file with -o"));
    listsWithSets lists;
    QString fault;
    if (!lists.parse(options.positionalArguments(), &fault))
        return refuseCall(bomBasketCommand, fault);
    if (options.positionalArguments().isEmpty() == !options.isSet(from))
        return refuseCall(bomBasketCommand, QCoreApplication::translate(
                                                "cli", "give either BOM=SETS or --from ORDER"));

    configStruct config;
    kiv_mat_zpStruct order;
    kiv_mat_firmStruct firms;
    kiv_mat_firmDetailsStruct details;
    databaseSet databases;
    if (!startOrder(options.value(from), config, &order) || !lists.read()
        || !databases.load(options.values(database))
        || !readFirms(options.value(firmsOption), &firms, &details))
        return refused;
    const demand needed = demandOf(lists.lists, databases.index(), orderRules(config));
    const std::vector<supplierBasket::item> items =
        options.isSet(from)
            ? supplierBasket::itemsOf(order, databases.index())
            : supplierBasket::itemsOf(
                needed,
                orderedNeeds(needed, order,
                             {options.isSet(onlyShort) ? amount::shortage : amount::needed}));
    const QString onlyOf = options.value(supplier);
    const auto baskets = supplierBasket::basketsOf(items, {}, onlyOf);
    const auto isWanted = [&onlyOf](const supplierBasket::basket &one) {
        return !one.supplier.isEmpty()
               && (onlyOf.isEmpty() || firmDetails::isSameName(one.supplier, onlyOf));
    };
    const int code = writeBaskets(baskets, supplierBasket::formsOf(details, firms), onlyOf, target);
    if (code != done || std::any_of(baskets.begin(), baskets.end(), isWanted))
        return code;
    err()
        << (onlyOf.isEmpty()
                ? QCoreApplication::translate("cli", "no material has a supplier")
                : QCoreApplication::translate("cli", "no material has the supplier %1").arg(onlyOf))
        << '\n'
        << Qt::flush;
    return refused;
}

} // namespace

const subcommand bomBasketCommand{
    "bom-basket",
    QT_TRANSLATE_NOOP("cli", "Writes what BOM lists, each times its number of sets, or an order "
                             "need as baskets for the shops of the suppliers."),
    runBasket};
const subcommand bomCsvCommand{
    "bom-csv", QT_TRANSLATE_NOOP("cli", "Writes the KTMs and quantities of a BOM list as text."),
    runCsv};
const subcommand bomReportCommand{
    "bom-report", QT_TRANSLATE_NOOP("cli", "Writes the report of BOM lists as HTML or PDF."),
    runReport};
const subcommand bomOrderCommand{
    "bom-order",
    QT_TRANSLATE_NOOP("cli", "Orders the materials of BOM lists, each times its number of sets."),
    runOrder};
const subcommand bomShortageCommand{
    "bom-shortage",
    QT_TRANSLATE_NOOP("cli",
                      "Prints what BOM lists, each times its number of sets, need beyond the "
                      "stock: KTM, name, needed, in stock, short, known. Exit code 1 when "
                      "something is short."),
    runShortage};

} // namespace cli

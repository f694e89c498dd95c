// bom-reserve, bom-built, reservations: what boards take of the stock.
#include "cli/arguments.h"
#include "cli/bomLists.h"
#include "cli/jsonOutput.h"

#include "bom/boardStock.h"
#include "data/configStruct.h"
#include "data/reservationsFile.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace cli {

using namespace bomOperations;

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

boardStock::occasion occasionOf(const QString &author)
{
    boardStock::occasion when;
    if (!author.isEmpty())
        when.author = author;
    return when;
}

QCommandLineOption byOption()
{
    return {QStringLiteral("by"), told(QT_TRANSLATE_NOOP("cli", "Who does it; usually the user.")),
            QStringLiteral("NAME")};
}

QCommandLineOption stockDatabaseOption()
{
    return databaseOption(told(QT_TRANSLATE_NOOP(
        "cli", "A material database with the stock. May be given several times.")));
}

// What both commands need: lists, databases, rules and a file of reservations that can be read.
struct boardCall
{
    listsWithSets lists;
    databaseSet databases;
    configStruct config;
    reservationsFile file;
    int code = done;

    boardCall(const subcommand &command, const parser &options, const QStringList &databasePaths,
              const QString &path)
        : file(path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath())
    {
        QString fault;
        if (path.isEmpty())
            fault = told(QT_TRANSLATE_NOOP("cli", "give the file of reservations with -r"));
        else
            lists.parse(options.positionalArguments(), &fault);
        if (!config.load(paths::config()))
            config.setDefaults();
        if (!fault.isEmpty())
            code = refuseCall(command, fault);
        else if (!lists.read() || !databases.load(databasePaths) || !isReadable(file))
            code = refused;
    }
    bool change(const std::function<bool(kiv_mat_reservationsStruct &)> &edit)
    {
        QString fault;
        if (!file.change(edit, config, &fault))
            code = cannotWrite(file.path(), fault);
        return code == done;
    }
};

int runReserve(const QStringList &arguments)
{
    parser options(bomReserveCommand, QStringLiteral("BOM=SETS..."), 1, -1);
    const QCommandLineOption database = stockDatabaseOption();
    const QCommandLineOption reservations = reservationsOption();
    const QCommandLineOption by = byOption();
    const QCommandLineOption releasing(
        QStringLiteral("release"),
        told(QT_TRANSLATE_NOOP("cli", "Release so many sets of the boards instead.")));
    options.addOptions({database, reservations, by, releasing});
    if (!options.accept(arguments))
        return options.code();
    boardCall call(bomReserveCommand, options, options.values(database),
                   options.value(reservations));
    if (call.code != done)
        return call.code;
    const orderRules rules(call.config);
    bool isEnough = true;
    call.change([&](kiv_mat_reservationsStruct &all) {
        for (const bomSets &list : call.lists.lists) {
            if (!options.isSet(releasing)) {
                if (list.sets > 0)
                    all.reserved.append(boardStock::boardOf(list, call.databases.index(), rules,
                                                            call.file.path(),
                                                            occasionOf(options.value(by))));
                continue;
            }
            int sets = 0;
            for (const auto &part : releaseReserved(&all, list.bom->filePath, list.sets))
                sets += part->sets.toInt();
            if (sets < list.sets) {
                isEnough = false;
                err() << list.bom->filePath << ": "
                      << QCoreApplication::translate("cli", "only %n set(s) were reserved", nullptr,
                                                     sets)
                      << '\n'
                      << Qt::flush;
            }
        }
        // All that was asked for, or nothing.
        return isEnough;
    });
    warnOfUncounted(demandOf(call.lists.lists, call.databases.index(), rules));
    return call.code == done && !isEnough ? refused : call.code;
}

int runBuilt(const QStringList &arguments)
{
    parser options(bomBuiltCommand, QStringLiteral("BOM=SETS..."), 1, -1);
    const QCommandLineOption database = stockDatabaseOption();
    const QCommandLineOption reservations = reservationsOption();
    const QCommandLineOption by = byOption();
    const QCommandLineOption dryRun(
        QStringLiteral("dry-run"),
        told(QT_TRANSLATE_NOOP("cli", "Print what would be taken out, and write nothing.")));
    options.addOptions({database, reservations, by, dryRun});
    if (!options.accept(arguments))
        return options.code();
    boardCall call(bomBuiltCommand, options, options.values(database), options.value(reservations));
    if (call.code != done)
        return call.code;
    const orderRules rules(call.config);
    const ktmIndex &materials = call.databases.index();
    const demand needed = demandOf(call.lists.lists, materials, rules);
    const std::vector<boardStock::taking> takings = boardStock::takingsOf(needed, materials, true);
    bool isWhole = needed.uncounted.empty();
    for (const boardStock::taking &one : takings) {
        isWhole = isWhole && one.lacking == decimal();
        QStringList cells{one.of->ktm,       one.of->name,     one.wanted.text(),
                          one.before.text(), one.after.text(), one.lacking.text(),
                          one.fault};
        for (QString &cell : cells)
            cell = cell.simplified();
        out() << cells.join(QLatin1Char('\t')) << '\n';
    }
    out() << Qt::flush;
    warnOfUncounted(needed);
    if (options.isSet(dryRun))
        return isWhole ? done : refused;
    for (const boardStock::withdrawal &one :
         boardStock::withdrawalsOf(takings, call.lists.lists, materials, rules, call.file.path(),
                                   occasionOf(options.value(by)))) {
        for (const auto &[material, after] : one.changes)
            material->d_inWarehouse = after;
        one.database->update =
            QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm:ss"));
        if (const int written = writeDocument(one.database->filePath, *one.database);
            written != done)
            return written;
        if (!call.change([&](kiv_mat_reservationsStruct &all) {
                for (const auto &board : one.boards)
                    noteBuilt(&all, *board);
                return true;
            }))
            return call.code;
    }
    return isWhole ? done : refused;
}

QJsonObject jsonOf(const boardStruct &board, const char *state)
{
    QJsonArray lines;
    for (const auto &line : board.items) {
        QJsonObject cells{{QStringLiteral("ktm"), line->ktm},
                          {QStringLiteral("name"), line->name},
                          {QStringLiteral("quantity"), numberOrText(line->quantity)}};
        if (!line->before.isEmpty()) {
            cells.insert(QStringLiteral("before"), numberOrText(line->before));
            cells.insert(QStringLiteral("after"), numberOrText(line->after));
        }
        lines.append(cells);
    }
    return {{QStringLiteral("state"), QLatin1String(state)},
            {QStringLiteral("list"), board.list},
            {QStringLiteral("sets"), numberOrText(board.sets)},
            {QStringLiteral("date"), board.date},
            {QStringLiteral("by"), board.author},
            {QStringLiteral("database"), board.database},
            {QStringLiteral("lines"), lines}};
}

int runReservations(const QStringList &arguments)
{
    parser options(reservationsCommand, QStringLiteral("FILE"), 1, 1);
    const QCommandLineOption json = jsonOption();
    options.addOption(json);
    if (!options.accept(arguments))
        return options.code();
    const QString path = QFileInfo(options.positionalArguments().at(0)).absoluteFilePath();
    if (!validateFile(path))
        return refused;
    reservationsFile file(path);
    if (!isReadable(file))
        return refused;
    QJsonArray array;
    const auto print = [&](const auto &boards, const char *state) {
        for (const auto &board : boards.items) {
            array.append(jsonOf(*board, state));
            if (options.isSet(json))
                continue;
            out() << state << '\t' << board->list << '\t' << board->sets << '\t' << board->date
                  << '\t' << board->author << '\n';
            for (const auto &line : board->items)
                out() << '\t' << line->ktm << '\t' << line->name.simplified() << '\t'
                      << line->quantity << '\n';
        }
    };
    print(file.now().reserved, "reserved");
    print(file.now().built, "built");
    if (options.isSet(json))
        printJson({{QStringLiteral("boards"), array}});
    out() << Qt::flush;
    return done;
}

} // namespace

const subcommand bomReserveCommand{
    "bom-reserve",
    QT_TRANSLATE_NOOP("cli", "Reserves stock for boards before they are built, or releases it."),
    runReserve};
const subcommand bomBuiltCommand{
    "bom-built",
    QT_TRANSLATE_NOOP("cli", "Takes the materials of built boards out of the databases' stock, and "
                             "notes them beside the reservations: KTM, name, wanted, before, "
                             "after, lacking. Exit code 1 when something was lacking."),
    runBuilt};
const subcommand reservationsCommand{
    "reservations", QT_TRANSLATE_NOOP("cli", "Lists reserved and built boards."), runReservations};

} // namespace cli

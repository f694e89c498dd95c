// orders: what stands in all orders, without opening one.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "orders/orderRegister.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <limits>

namespace cli {

namespace {

constexpr int shownAtMost = 200;

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

QString dayOf(const QDate &date) { return date.toString(QStringLiteral("dd.MM.yyyy")); }

void printRow(QStringList cells)
{
    for (QString &cell : cells)
        cell = cell.simplified();
    out() << cells.join(QLatin1Char('\t')) << '\n';
}

void list(orderRegister &orders, bool asJson)
{
    QJsonArray all;
    for (const orderIndex::order &order : orders.index().orders()) {
        const QString stage = stageName(orders.stageOf(order));
        const orderStateStruct *sent = orders.sentState(order.path);
        if (asJson)
            all.append(QJsonObject{{QStringLiteral("file"), order.path},
                                   {QStringLiteral("number"), order.number},
                                   {QStringLiteral("date"), dayOf(order.date)},
                                   {QStringLiteral("target"), order.target},
                                   {QStringLiteral("author"), order.author},
                                   {QStringLiteral("lines"), int(order.lines.size())},
                                   {QStringLiteral("sum"), order.sum.text()},
                                   {QStringLiteral("left_out"), order.leftOut},
                                   {QStringLiteral("state"), stage},
                                   {QStringLiteral("sent"), sent ? sent->sent : QString()}});
        else
            printRow({order.number, dayOf(order.date), stage, QString::number(order.lines.size()),
                      order.sum.money(), order.target, order.author, order.path});
    }
    if (asJson)
        printJson({{QStringLiteral("orders"), all}});
}

void printLines(const orderIndex &index, const std::vector<orderIndex::place> &places, int total,
                bool asJson)
{
    QJsonArray all;
    for (const orderIndex::place &at : places) {
        const orderIndex::order &order = index.orders()[size_t(at.order)];
        const orderIndex::line &line = order.lines[size_t(at.line)];
        const auto text = [&](orderIndex::field which) { return index.textOf(line, which); };
        if (asJson)
            all.append(
                QJsonObject{{QStringLiteral("file"), order.path},
                            {QStringLiteral("number"), order.number},
                            {QStringLiteral("date"), dayOf(order.date)},
                            {QStringLiteral("line"), at.line + 1},
                            {QStringLiteral("ktm"), text(orderIndex::ktm)},
                            {QStringLiteral("name"), text(orderIndex::name)},
                            {QStringLiteral("quantity"), numberOrText(text(orderIndex::quantity))},
                            {QStringLiteral("unit"), text(orderIndex::unit)},
                            {QStringLiteral("price"), numberOrText(text(orderIndex::price))},
                            {QStringLiteral("target"), text(orderIndex::target)},
                            {QStringLiteral("delivery"), text(orderIndex::delivery)},
                            {QStringLiteral("invoice"), text(orderIndex::invoice)}});
        else
            printRow({order.number, dayOf(order.date), QString::number(at.line + 1),
                      text(orderIndex::ktm), text(orderIndex::name), text(orderIndex::quantity),
                      text(orderIndex::unit), text(orderIndex::price), text(orderIndex::target),
                      text(orderIndex::delivery), text(orderIndex::invoice), order.path});
    }
    if (asJson)
        printJson({{QStringLiteral("total"), total}, {QStringLiteral("lines"), all}});
    if (total > int(places.size()))
        err()
            << told(QT_TRANSLATE_NOOP("cli", "%1 of %2 lines shown")).arg(places.size()).arg(total)
            << '\n'
            << Qt::flush;
}

int runOrders(const QStringList &arguments)
{
    parser options(ordersCommand, QStringLiteral("list|find|where-used [WORDS...|KTM]"), 1, -1);
    options.setApplicationDescription(
        options.applicationDescription() + QLatin1String("\n\n")
        + told(QT_TRANSLATE_NOOP("cli",
                                 "  list             all orders, the latest first\n"
                                 "  find WORDS...    the lines that hold all of the words\n"
                                 "  where-used KTM   the lines of a material\n"
                                 "Example: kivzp-cli orders find -f _zp 0603 100nF --json")));
    const QCommandLineOption folder(
        {QStringLiteral("f"), QStringLiteral("folder")},
        told(QT_TRANSLATE_NOOP("cli", "A folder of orders, in place of those that the "
                                      "configuration names. May be given several times.")),
        QStringLiteral("FOLDER"));
    const QCommandLineOption database = databaseOption(told(QT_TRANSLATE_NOOP(
        "cli", "A material database whose part numbers are found, too. May be given several "
               "times.")));
    const QCommandLineOption cache(
        QStringLiteral("cache"),
        told(QT_TRANSLATE_NOOP("cli", "A file for what was read, so that only changed orders are "
                                      "read the next time; the program's own without -f.")),
        QStringLiteral("FILE"));
    const QCommandLineOption number(
        {QStringLiteral("n"), QStringLiteral("number")},
        told(QT_TRANSLATE_NOOP("cli", "How many lines to print at most (0: all).")),
        QStringLiteral("N"), QString::number(shownAtMost));
    const QCommandLineOption json = jsonOption();
    options.addOptions({folder, database, cache, number, json});
    if (!options.accept(arguments))
        return options.code();
    QStringList words = options.positionalArguments();
    const QString what = words.takeFirst();
    const bool lists = what == QLatin1String("list");
    const bool finds = what == QLatin1String("find");
    if (!lists && !finds && what != QLatin1String("where-used"))
        return refuseCall(
            ordersCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is none of list, find, where-used")).arg(what));
    if (lists != words.isEmpty() || (!lists && !finds && words.size() > 1))
        return refuseCall(ordersCommand,
                          lists || words.size() > 1
                              ? told(QT_TRANSLATE_NOOP("cli", "too many arguments"))
                              : told(QT_TRANSLATE_NOOP("cli", "an argument is missing")));
    bool isNumber = false;
    int limit = options.value(number).toInt(&isNumber);
    if (!isNumber || limit < 0)
        return refuseCall(
            ordersCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is no number of lines")).arg(options.value(number)));
    if (limit == 0)
        limit = std::numeric_limits<int>::max();

    QStringList folders = options.values(folder);
    QString cachePath = options.value(cache);
    if (folders.isEmpty()) {
        configStruct config;
        if (!loadConfiguration(&config))
            return refused;
        folders = config.orderFolders();
        if (cachePath.isEmpty())
            cachePath = orderIndex::usualCache();
    }
    for (const QString &one : qAsConst(folders))
        if (!QFileInfo(one).isDir()) {
            err() << one << ": " << told(QT_TRANSLATE_NOOP("cli", "is no folder")) << '\n'
                  << Qt::flush;
            return refused;
        }
    databaseSet databases;
    if (!databases.load(options.values(database)))
        return refused;
    orderRegister orders(cachePath);
    orders.update(folders);
    const orderIndex &index = orders.index();
    if (lists) {
        list(orders, options.isSet(json));
    } else if (finds) {
        orders.index().setMaterials(databases.index());
        const orderIndex::foundLines found = index.search(words.join(QLatin1Char(' ')), limit);
        printLines(index, found.lines, found.total, options.isSet(json));
    } else {
        std::vector<orderIndex::place> places = index.linesOf(words.first());
        const int total = int(places.size());
        places.resize(size_t(std::min(total, limit)));
        printLines(index, places, total, options.isSet(json));
    }
    out() << Qt::flush;
    for (const QString &fault : orders.faults())
        err() << fault << '\n';
    err() << Qt::flush;
    return done;
}

} // namespace

const subcommand ordersCommand{
    "orders", QT_TRANSLATE_NOOP("cli", "Lists orders, and finds lines in all of them."), runOrders};

} // namespace cli

// deliver: what came of an order's lines, and into the stock of databases.
#include "cli/arguments.h"

#include "data/configStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "order/deliveries.h"
#include "orders/deliveredStock.h"
#include "orders/orderRegister.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

namespace cli {

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

int noteDelivery(const QString &path, kiv_mat_zpStruct &order, const QString &lines,
                 const QString &delivery)
{
    QString fault;
    const auto what = deliveries::read(lines, order, &fault);
    if (!what)
        return refuseCall(deliverCommand, fault);
    const deliveries::result done = deliveries::note(&order, *what, delivery);
    for (const QString &one : done.faults)
        err() << path << ": " << one << '\n' << Qt::flush;
    if (!done.faults.isEmpty())
        return refused;
    out()
        << told(QT_TRANSLATE_NOOP("cli", "whole: %1, in part: %2")).arg(done.whole).arg(done.parted)
        << '\n'
        << Qt::flush;
    return writeDocument(path, order);
}

// Only the databases whose stock grew are written. What cannot be noted is taken back again: it
// would be added once more the next time.
int takeIntoStock(const QString &path, const kiv_mat_zpStruct &order,
                  const QStringList &databasePaths, bool isTrial)
{
    databaseSet databases;
    if (!databases.load(databasePaths))
        return refused;
    configStruct config;
    if (!config.load(paths::config()))
        config.setDefaults();
    QString fault;
    const auto before = deliveredStock::takenOf(path, &fault);
    if (!before) {
        err() << fault << '\n' << Qt::flush;
        return refused;
    }
    const auto open = deliveredStock::openOf(order, databases.index(), *before);
    bool isWhole = true;
    for (const deliveredStock::delivery &one : open) {
        isWhole = isWhole && one.fault.isEmpty();
        if (!one.fault.isEmpty())
            err() << one.ktm << ": " << one.fault << '\n' << Qt::flush;
        else
            out() << one.ktm << '\t' << one.delivery << '\t' << one.before << '\t' << one.after
                  << '\n'
                  << Qt::flush;
    }
    for (const auto &database : databases.all()) {
        std::vector<deliveredStock::delivery> own;
        for (const deliveredStock::delivery &one : open)
            if (one.fault.isEmpty() && one.database == database.get())
                own.push_back(one);
        if (own.empty() || isTrial)
            continue;
        const QString update = database->update;
        for (const deliveredStock::delivery &one : own)
            one.material->d_inWarehouse = one.after;
        database->update =
            QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm:ss"));
        if (const int code = writeDocument(database->filePath, *database); code != done)
            return code;
        if (deliveredStock::noteTaken(path, deliveredStock::takenOf(own), config, &fault))
            continue;
        for (auto one = own.rbegin(); one != own.rend(); ++one)
            one->material->d_inWarehouse = one->before;
        database->update = update;
        writeDocument(database->filePath, *database);
        return cannotWrite(orderRegister::statesIn(QFileInfo(path).absolutePath()), fault);
    }
    return isWhole ? done : refused;
}

int run(const QStringList &arguments)
{
    parser given(deliverCommand, QStringLiteral("ORDER"), 1, 1);
    const QCommandLineOption number(QStringLiteral("number"),
                                    told(QT_TRANSLATE_NOOP("cli", "Number of the delivery note.")),
                                    QStringLiteral("TEXT"));
    const QCommandLineOption date(
        QStringLiteral("date"),
        told(QT_TRANSLATE_NOOP("cli", "Day of the delivery, dd.MM.yyyy; usually today.")),
        QStringLiteral("DATE"), QDate::currentDate().toString(labels::dateFormat()));
    const QCommandLineOption lines(
        QStringLiteral("lines"),
        told(QT_TRANSLATE_NOOP("cli", "The lines that came, such as \"1, 3=40, 5-8\": of line 3 "
                                      "only 40. Decimals have a point here.")),
        QStringLiteral("LINES"));
    const QCommandLineOption stock(
        QStringLiteral("to-stock"),
        told(QT_TRANSLATE_NOOP("cli", "Add what was delivered, and was not added before, to the "
                                      "stock of the databases.")));
    const QCommandLineOption trial(
        {QStringLiteral("n"), QStringLiteral("dry-run")},
        told(QT_TRANSLATE_NOOP("cli", "With --to-stock: tell only, write nothing.")));
    const QCommandLineOption database = databaseOption(told(QT_TRANSLATE_NOOP(
        "cli", "A material database with the stock. May be given several times.")));
    given.addOptions({lines, number, date, stock, trial, database});
    if (!given.accept(arguments))
        return given.code();
    if (given.isSet(lines) == given.isSet(stock))
        return refuseCall(deliverCommand,
                          told(QT_TRANSLATE_NOOP("cli", "give either --lines or --to-stock")));
    const QDate day = QDate::fromString(given.value(date), labels::dateFormat());
    if (!day.isValid())
        return refuseCall(deliverCommand,
                          told(QT_TRANSLATE_NOOP("cli", "%1 is no date")).arg(given.value(date)));
    const QString path = QFileInfo(given.positionalArguments().at(0)).absoluteFilePath();
    kiv_mat_zpStruct order;
    if (!readFile(path, &order, told(QT_TRANSLATE_NOOP("cli", "is no order"))))
        return refused;
    return given.isSet(stock)
               ? takeIntoStock(path, order, given.values(database), given.isSet(trial))
               : noteDelivery(path, order, given.value(lines),
                              deliveries::textOf(given.value(number), day));
}

} // namespace

const subcommand deliverCommand{
    "deliver",
    QT_TRANSLATE_NOOP("cli", "Notes in an order what came of its lines, in whole or in part, or "
                             "adds what was delivered to the stock of databases."),
    run};

} // namespace cli

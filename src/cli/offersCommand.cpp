// offers: takes in what firms offer for an order, compares it, and parts the order by firm.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "order/orderOperations.h"
#include "orders/offerImport.h"
#include "orders/offerReport.h"
#include "orders/offerStoring.h"
#include "orders/orderRegister.h"
#include "orders/orderSplitting.h"
#include "util/paths.h"
#include "util/userName.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

namespace cli {

using namespace offerComparison;

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

constexpr struct
{
    const char *word;
    mode by;
} modes[] = {{"cheapest", mode::cheapest},
             {"one", mode::oneFirm},
             {"fewest", mode::fewestFirms},
             {"date", mode::byDate}};

QCommandLineOption valued(const QStringList &names, const char *help, const char *value,
                          const char *usual = "")
{
    return {names, told(help), QLatin1String(value), QLatin1String(usual)};
}

QCommandLineOption valued(const char *name, const char *help, const char *value,
                          const char *usual = "")
{
    return valued(QStringList{QLatin1String(name)}, help, value, usual);
}

QCommandLineOption flag(const char *name, const char *help)
{
    return {QLatin1String(name), told(help)};
}

struct offersOptions
{
    // What is known of an offer beside its file.
    QCommandLineOption firm =
        valued("firm", QT_TRANSLATE_NOOP("cli", "The firm; else the one that the request went to."),
               "NAME");
    QCommandLineOption nip = valued("nip", QT_TRANSLATE_NOOP("cli", "Its tax number."), "NIP");
    QCommandLineOption received =
        valued("received", QT_TRANSLATE_NOOP("cli", "The day on which it came; today."), "DATE");
    QCommandLineOption currency = valued(
        "currency",
        QT_TRANSLATE_NOOP("cli", "The currency of its prices; else what the file says, or PLN."),
        "CODE");
    QCommandLineOption rate =
        valued("rate", QT_TRANSLATE_NOOP("cli", "PLN for one of the currency."), "RATE");
    QCommandLineOption rateDate =
        valued("rate-date", QT_TRANSLATE_NOOP("cli", "The day of that rate."), "DATE");
    QCommandLineOption vat = valued(
        "vat",
        QT_TRANSLATE_NOOP("cli", "VAT in percent: of the offer that is imported; in a comparison, "
                                 "of those that do not say it (23)."),
        "PERCENT");
    QCommandLineOption gross = flag("gross", QT_TRANSLATE_NOOP("cli", "Its prices hold the tax."));
    QCommandLineOption leadTime =
        valued("lead-time",
               QT_TRANSLATE_NOOP("cli", "Days until it delivers, where no row says it."), "DAYS");
    QCommandLineOption validity =
        valued("validity", QT_TRANSLATE_NOOP("cli", "The last day on which it holds."), "DATE");
    QCommandLineOption column = valued(
        "column",
        QT_TRANSLATE_NOOP("cli", "What a column of the file holds, as price=5 for the fifth: key, "
                                 "part_number, from, price, prices, minimum, multiple, lead_time, "
                                 "remarks, currency or none. May be given several times."),
        "FIELD=N");
    QCommandLineOption replace =
        flag("replace", QT_TRANSLATE_NOOP("cli", "In place of the firm's offer before."));
    QCommandLineOption database = databaseOption(told(QT_TRANSLATE_NOOP(
        "cli", "A material database whose part numbers rows without our number are matched by. "
               "May be given several times.")));
    // Of a comparison.
    QCommandLineOption by = valued(
        "by",
        QT_TRANSLATE_NOOP("cli", "What is proposed: cheapest (each material), one (firm for all), "
                                 "fewest (firms), date (what comes in time)."),
        "MODE", "cheapest");
    QCommandLineOption within = valued(
        "within",
        QT_TRANSLATE_NOOP("cli", "With fewest: how much more than the cheapest it may cost."),
        "PERCENT", "5");
    QCommandLineOption until = valued(
        "until", QT_TRANSLATE_NOOP("cli", "With date: the day by which it has to come."), "DATE");
    QCommandLineOption json = jsonOption();
    QCommandLineOption output = valued(
        {QStringLiteral("o"), QStringLiteral("output")},
        QT_TRANSLATE_NOOP("cli", "The file to write; its ending, .html, .pdf, .xlsx or .csv, "
                                 "decides its kind."),
        "OUT");
    QCommandLineOption reason =
        valued("reason", QT_TRANSLATE_NOOP("cli", "Why these firms are chosen."), "TEXT");
    QCommandLineOption keepQuantities =
        flag("keep-quantities",
             QT_TRANSLATE_NOOP("cli", "Do not raise quantities to what has to be bought."));

    QList<QCommandLineOption> all() const
    {
        return {firm,   nip,      received, currency, rate,    rateDate,      vat,
                gross,  leadTime, validity, column,   replace, database,      by,
                within, until,    json,     output,   reason,  keepQuantities};
    }
};

// What all verbs work on.
struct files
{
    QString path; // of the order
    kiv_mat_zpStruct order;
    std::unique_ptr<offersFile> file;
    configStruct config;

    QString number() const { return order.options.value(optionKey::orderNumber); }
    const kiv_mat_offersStruct &offers() const { return file->now(); }
};

bool isTable(const QString &path)
{
    return path.endsWith(QLatin1String(".xlsx"), Qt::CaseInsensitive)
           || path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

int refuse(const QString &path, const QString &fault)
{
    err() << path << ": " << fault << '\n' << Qt::flush;
    return refused;
}

bool readFiles(const QString &path, files *of)
{
    of->path = path;
    if (!readFile(path, &of->order, told(QT_TRANSLATE_NOOP("cli", "is no order"))))
        return false;
    of->file = std::make_unique<offersFile>(orderOffers::fileOf(path));
    of->file->now();
    if (!of->file->fault().isEmpty()) {
        refuse(of->file->path(), of->file->fault());
        return false;
    }
    // Without one the usual folders take the earlier versions.
    if (!of->config.load(paths::config()))
        of->config.setDefaults();
    return true;
}

// --- import

QString readTerms(const parser &given, const offersOptions &known, offerImport::terms *to)
{
    to->firm = given.value(known.firm);
    to->nip = given.value(known.nip);
    to->currency = given.value(known.currency);
    to->rate = given.value(known.rate);
    to->vat = given.value(known.vat);
    to->leadTime = given.value(known.leadTime);
    to->validity = given.value(known.validity);
    if (given.isSet(known.gross))
        to->isGross = true;
    for (const auto &[option, date] :
         {std::pair(&known.received, &to->received), std::pair(&known.rateDate, &to->rateDate)}) {
        if (!given.isSet(*option))
            continue;
        *date = offerImport::dateOf(given.value(*option));
        if (!date->isValid())
            return told(QT_TRANSLATE_NOOP("cli", "%1 is no date")).arg(given.value(*option));
    }
    return {};
}

using columnList = QVector<std::pair<int, offerImport::field>>;

// "price=5", counted from 1. The fault of the call, or nothing.
QString readColumns(const QStringList &given, columnList *to)
{
    for (const QString &one : given) {
        const int equals = one.indexOf(QLatin1Char('='));
        const offerImport::field what = offerImport::fieldCalled(one.left(equals).trimmed());
        bool isNumber = false;
        const int column = one.mid(equals + 1).toInt(&isNumber);
        if (equals < 0 || what == offerImport::fieldCount || !isNumber || column < 1)
            return told(QT_TRANSLATE_NOOP("cli", "%1 is not what a column holds, as price=5"))
                .arg(one);
        to->append({column - 1, what});
    }
    return {};
}

int importOffer(const parser &given, const offersOptions &known, const QString &path,
                const QString &source)
{
    offerImport::terms terms;
    if (const QString fault = readTerms(given, known, &terms); !fault.isEmpty())
        return refuseCall(offersCommand, fault);
    columnList columns;
    if (const QString fault = readColumns(given.values(known.column), &columns); !fault.isEmpty())
        return refuseCall(offersCommand, fault);
    files of;
    databaseSet databases;
    if (!readFiles(path, &of) || !databases.load(given.values(known.database)))
        return refused;
    QString fault;
    auto sheet = offerImport::readSheet(source, {}, &fault);
    if (!sheet)
        return refuse(source, fault);
    if (!offerImport::setFields(&*sheet, columns))
        return refuse(
            source, told(QT_TRANSLATE_NOOP("cli", "it has %1 columns")).arg(sheet->fields.size()));
    const offerImport::order asked{of.number(), orderOffers::needsOf(of.order), of.offers(),
                                   &databases.index()};
    const offerImport::result read = offerImport::offerOf(*sheet, terms, asked);
    for (const QString &line : read.faults + read.remarks)
        err() << source << ": " << line << '\n';
    err() << Qt::flush;
    if (!read.offer)
        return refused;
    const bool replaces = given.isSet(known.replace);
    const bool isThere =
        orderOffers::offerOn(of.offers(), read.offer->firm, read.offer->nip, read.offer->request)
        != nullptr;
    QString stored;
    if (!offerImport::store(*read.offer, source, path, of.number(), replaces, of.config, &fault,
                            &stored))
        return isThere && !replaces ? refuse(source, fault) : cannotWrite(of.file->path(), fault);
    out() << told(QT_TRANSLATE_NOOP("cli", "%1: %2 offered, %3 not offered, %4 not named"))
                 .arg(read.offer->firm, QString::number(read.offered),
                      QString::number(read.withoutPrice), QString::number(read.notNamed.size()))
          << '\t' << stored << '\n'
          << Qt::flush;
    return done;
}

// --- compare

// Reads what is asked; the fault of the call, or nothing.
QString readQuestion(const parser &given, const offersOptions &known, question *what, decimal *vat)
{
    const QString by = given.value(known.by);
    const auto *found = std::find_if(std::begin(modes), std::end(modes),
                                     [&by](const auto &one) { return by == one.word; });
    if (found == std::end(modes))
        return told(QT_TRANSLATE_NOOP("cli", "%1 is none of cheapest, one, fewest, date")).arg(by);
    what->by = found->by;
    const auto share = offerImport::numberOf(given.value(known.within));
    if (!share || *share < decimal())
        return told(QT_TRANSLATE_NOOP("cli", "%1 is no percentage")).arg(given.value(known.within));
    what->within = *share;
    what->until = offerImport::dateOf(given.value(known.until));
    if (what->by == mode::byDate && !what->until.isValid())
        return told(QT_TRANSLATE_NOOP("cli", "give the day with --until"));
    const QString percent = given.isSet(known.vat) ? given.value(known.vat) : QStringLiteral("23");
    const auto tax = offerImport::numberOf(percent);
    if (!tax || *tax < decimal() || *tax > *decimal::read(QStringLiteral("100")))
        return told(QT_TRANSLATE_NOOP("cli", "%1 is no percentage")).arg(percent);
    *vat = *tax;
    const QString target = given.value(known.output);
    if (given.isSet(known.output) && !isPageFile(target) && !isTable(target))
        return told(QT_TRANSLATE_NOOP(
            "cli", "give an output file that ends in .html, .pdf, .xlsx or .csv"));
    return {};
}

void printRow(QStringList cells)
{
    for (QString &one : cells)
        one = one.simplified();
    out() << cells.join(QLatin1Char('\t')) << '\n';
}

QString daysText(const std::optional<int> &days)
{
    return days ? QString::number(*days) : QString();
}

void printRows(const comparison &of, const selection &chosen)
{
    for (size_t i = 0; i < of.materials.size(); ++i) {
        const material &line = of.materials[i];
        QStringList row{line.need.key, line.need.name, line.need.quantity.text(), line.need.unit};
        const int place = chosen.firmOf[i];
        if (place >= 0) {
            const cell &at = line.cells[size_t(place)];
            row += {of.firms[size_t(place)].name,
                    at.price.text(6, 2),
                    at.bought.text(),
                    at.cost.text(),
                    daysText(at.leadTime),
                    at.remark};
        }
        printRow(row);
    }
    printRow({told(QT_TRANSLATE_NOOP("cli", "Total")), chosen.net.money(), chosen.tax.money(),
              chosen.gross().money()});
}

// What the firms come to, so that standard output stays one table.
void printFirms(const comparison &of)
{
    for (const firm &one : of.firms) {
        QString line =
            told(QT_TRANSLATE_NOOP("cli", "%1: %2 offered, %3 missing, %4 PLN net, %5 PLN gross"))
                .arg(one.name, QString::number(one.offered), QString::number(one.missing),
                     one.cost.money(), one.gross().money());
        if (one.isExpired)
            line += QLatin1String(", ") + told(QT_TRANSLATE_NOOP("cli", "expired"));
        if (!one.fault.isEmpty())
            line += QLatin1String(", ") + one.fault;
        err() << line << '\n';
    }
    err() << Qt::flush;
}

QJsonValue daysValue(const std::optional<int> &days)
{
    return days ? QJsonValue(*days) : QJsonValue();
}

QJsonObject jsonOf(const cell &of, const QString &firm)
{
    QJsonObject object{{QStringLiteral("firm"), firm},
                       {QStringLiteral("offered"), of.isOffered},
                       {QStringLiteral("best"), of.isBest},
                       {QStringLiteral("remark"), of.remark}};
    if (of.isOffered) {
        object.insert(QStringLiteral("price"), of.price.text());
        object.insert(QStringLiteral("bought"), of.bought.text());
        object.insert(QStringLiteral("cost"), of.cost.text());
        object.insert(QStringLiteral("lead_time"), daysValue(of.leadTime));
    }
    return object;
}

QJsonObject jsonOf(const firm &of)
{
    return {{QStringLiteral("firm"), of.name},
            {QStringLiteral("nip"), of.nip},
            {QStringLiteral("request"), of.request},
            {QStringLiteral("received"), orderOffers::dateText(of.received)},
            {QStringLiteral("currency"), of.currency},
            {QStringLiteral("rate"), of.rate.text()},
            {QStringLiteral("gross_prices"), of.isGross},
            {QStringLiteral("vat"), of.vat.text()},
            {QStringLiteral("validity"), orderOffers::dateText(of.validity)},
            {QStringLiteral("expired"), of.isExpired},
            {QStringLiteral("fault"), of.fault},
            {QStringLiteral("offered"), of.offered},
            {QStringLiteral("missing"), of.missing},
            {QStringLiteral("longest_lead_time"), daysValue(of.longestLeadTime)},
            {QStringLiteral("net"), of.cost.text()},
            {QStringLiteral("tax"), of.tax.text()},
            {QStringLiteral("gross"), of.gross().text()}};
}

void printAsJson(const comparison &of, const selection &chosen, const QString &by)
{
    QJsonArray firms, materials, chosenFirms, missing;
    for (const firm &one : of.firms)
        firms.append(jsonOf(one));
    for (size_t i = 0; i < of.materials.size(); ++i) {
        const material &line = of.materials[i];
        QJsonArray cells;
        for (size_t j = 0; j < of.firms.size(); ++j)
            cells.append(jsonOf(line.cells[j], of.firms[j].name));
        const int place = chosen.firmOf[i];
        materials.append(QJsonObject{
            {QStringLiteral("key"), line.need.key},
            {QStringLiteral("name"), line.need.name},
            {QStringLiteral("quantity"), line.need.quantity.text()},
            {QStringLiteral("unit"), line.need.unit},
            {QStringLiteral("offers"), cells},
            {QStringLiteral("chosen"), place < 0 ? QString() : of.firms[size_t(place)].name}});
    }
    for (const int one : chosen.firms)
        chosenFirms.append(of.firms[size_t(one)].name);
    for (const int one : chosen.missing)
        missing.append(of.materials[size_t(one)].need.key);
    printJson({{QStringLiteral("number"), of.number},
               {QStringLiteral("day"), orderOffers::dateText(of.day)},
               {QStringLiteral("by"), by},
               {QStringLiteral("firms"), firms},
               {QStringLiteral("materials"), materials},
               {QStringLiteral("chosen_firms"), chosenFirms},
               {QStringLiteral("missing"), missing},
               {QStringLiteral("net"), chosen.net.text()},
               {QStringLiteral("tax"), chosen.tax.text()},
               {QStringLiteral("gross"), chosen.gross().text()}});
}

int writeReport(const offerReport::content &of, const QString &path)
{
    if (!isTable(path))
        return writePage(offerReport::page(of), path, offerReport::title(of));
    QString fault;
    return offerReport::write(of, path, &fault) == tableFile::written ? int(done)
                                                                      : cannotWrite(path, fault);
}

// Prices into the order, whose earlier version is kept, and the firms into its offers file; when
// the latter fails the order becomes what it was.
int writeChoice(files *of, const comparison &compared, const selection &chosen,
                const QString &reason, bool raisesQuantities)
{
    const auto before = orderOperations::copyOf(of->order);
    const applied changed = applyChoice(&of->order, compared, chosen, raisesQuantities);
    const bool changes = changed.prices + changed.quantities > 0;
    if (changes)
        if (const int code = writeDocument(of->path, of->order); code != done)
            return code;
    QString fault;
    const choiceList choices =
        choicesOf(compared, chosen, reason, QDate::currentDate(), userName());
    if (!storeChoices(of->path, of->number(), choices, of->config, &fault)) {
        if (changes)
            writeDocument(of->path, *before);
        return cannotWrite(of->file->path(), fault);
    }
    err() << told(QT_TRANSLATE_NOOP("cli", "%1 materials chosen, %2 prices and %3 quantities set"))
                 .arg(QString::number(choices.size()), QString::number(changed.prices),
                      QString::number(changed.quantities))
          << '\n'
          << Qt::flush;
    return done;
}

int compareOffers(const parser &given, const offersOptions &known, const QString &path,
                  bool chooses)
{
    question what;
    decimal vat;
    if (const QString fault = readQuestion(given, known, &what, &vat); !fault.isEmpty())
        return refuseCall(offersCommand, fault);
    const QString reason = given.value(known.reason).trimmed();
    if (chooses && reason.isEmpty())
        return refuseCall(offersCommand, told(QT_TRANSLATE_NOOP("cli", "give a --reason")));
    files of;
    if (!readFiles(path, &of))
        return refused;
    if (of.offers().offers.empty())
        return refuse(path, told(QT_TRANSLATE_NOOP("cli", "there are no offers for it")));
    const comparison compared = comparisonOf(of.order, of.offers(), vat);
    const selection chosen = propose(compared, what);
    for (const int line : compared.uncounted)
        err() << told(QT_TRANSLATE_NOOP("cli", "line %1 has no quantity above 0, and is left out"))
                     .arg(line + 1)
              << '\n';
    for (const int one : chosen.missing)
        err() << told(QT_TRANSLATE_NOOP("cli", "without an offer: %1"))
                     .arg(compared.materials[size_t(one)].need.key)
              << '\n';
    printFirms(compared);
    offerReport::content report{
        compared, chosen, of.order.options.value(optionKey::orderDate), !chooses, {}, {}, {}};
    if (chooses) {
        if (chosen.firms.empty())
            return refuse(path, told(QT_TRANSLATE_NOOP("cli", "there is nothing to choose")));
        const int code =
            writeChoice(&of, compared, chosen, reason, !given.isSet(known.keepQuantities));
        if (code != done)
            return code;
        report.reason = reason;
        report.date = QDate::currentDate();
        report.by = userName();
    }
    if (given.isSet(known.json))
        printAsJson(compared, chosen, given.value(known.by));
    else if (!given.isSet(known.output))
        printRows(compared, chosen);
    out() << Qt::flush;
    return given.isSet(known.output) ? writeReport(report, given.value(known.output)) : done;
}

// --- split

int splitOrder(const QString &path)
{
    files of;
    if (!readFiles(path, &of))
        return refused;
    orderRegister orders;
    QString fault = orderSplitting::faultOf(of.order, path, of.offers(), orders);
    if (!fault.isEmpty())
        return refuse(path, fault);
    const QStringList written =
        orderSplitting::split(of.order, path, of.offers(), orders, of.config, &fault);
    if (written.isEmpty())
        return cannotWrite(path, fault);
    for (const QString &one : written)
        out() << one << '\n';
    out() << Qt::flush;
    return done;
}

int runOffers(const QStringList &arguments)
{
    parser given(offersCommand, QStringLiteral("import|compare|choose|split ORDER [FILE]"), 2, 3);
    given.setApplicationDescription(
        given.applicationDescription() + QLatin1String("\n\n")
        + told(QT_TRANSLATE_NOOP(
            "cli",
            "  import ORDER FILE  takes in the table of a request filled in, or a price list\n"
            "  compare ORDER      a row for each material with: number, name, quantity, unit, and\n"
            "                     of the proposed firm its name, price, quantity to buy, cost,\n"
            "                     lead time, remark\n"
            "  choose ORDER       the same, and writes prices into the order\n"
            "  split ORDER        one order for each chosen firm, beside the order\n"
            "Example: kivzp-cli offers compare _zp/zp_7.xml --by fewest --within 5 -o "
            "offers.pdf")));
    const offersOptions known;
    given.addOptions(known.all());
    if (!given.accept(arguments))
        return given.code();
    const QStringList words = given.positionalArguments();
    const QString &verb = words.first();
    const bool imports = verb == QLatin1String("import");
    const bool chooses = verb == QLatin1String("choose");
    const bool splits = verb == QLatin1String("split");
    if (!imports && !chooses && !splits && verb != QLatin1String("compare"))
        return refuseCall(
            offersCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is none of import, compare, choose, split"))
                .arg(verb));
    constexpr int withFile = 3;
    if (imports != (words.size() == withFile))
        return refuseCall(offersCommand,
                          imports ? told(QT_TRANSLATE_NOOP("cli", "an argument is missing"))
                                  : told(QT_TRANSLATE_NOOP("cli", "too many arguments")));
    if (imports)
        return importOffer(given, known, words[1], words[2]);
    return splits ? splitOrder(words[1]) : compareOffers(given, known, words[1], chooses);
}

} // namespace

const subcommand offersCommand{
    "offers",
    QT_TRANSLATE_NOOP("cli", "Takes in offers for an order, compares them, parts it by firm."),
    runOffers};

} // namespace cli

// plan: what the orders of a year come to.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "orders/annualPlanReport.h"
#include "orders/orderRegister.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

using namespace annualPlan;

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

constexpr struct
{
    const char *word;
    grouping by;
} groupings[] = {{"cpv", grouping::cpv},
                 {"group", grouping::group},
                 {"target", grouping::target},
                 {"firm", grouping::firm}};

constexpr const char *standings[] = {"", "below", "almost", "above"};

QString wordOf(standing state) { return QLatin1String(standings[size_t(state)]); }

bool isTable(const QString &path)
{
    return path.endsWith(QLatin1String(".xlsx"), Qt::CaseInsensitive)
           || path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

// --- Output

void printRows(const plan &of)
{
    using namespace annualPlanReport;
    const auto print = [](const std::function<QString(column)> &cell) {
        QStringList cells;
        for (int i = 0; i < columns; ++i)
            cells.append(cell(column(i)).simplified());
        out() << cells.join(QLatin1Char('\t')) << '\n';
    };
    for (const row &one : of.rows)
        print([&](column which) { return cell(one, which, of.total); });
    print([&](column which) { return totalCell(of.total, which); });
}

QJsonObject jsonOf(const sums &of)
{
    return {{QStringLiteral("estimated"), of.estimated.text()},
            {QStringLiteral("ordered"), of.ordered.text()},
            {QStringLiteral("rest"), of.rest().text()},
            {QStringLiteral("lines"), of.lines},
            {QStringLiteral("orders"), of.orders},
            {QStringLiteral("left_out"), of.leftOut}};
}

void printAsJson(const plan &of)
{
    QJsonArray rows, categories, without;
    for (const row &one : of.rows) {
        QJsonObject object = jsonOf(one.of);
        object.insert(QStringLiteral("name"), nameOf(one));
        object.insert(QStringLiteral("share"), shareOf(one, of.total));
        object.insert(QStringLiteral("threshold"),
                      one.threshold ? one.threshold->text() : QString());
        object.insert(QStringLiteral("state"), wordOf(one.state));
        rows.append(object);
    }
    for (const category &one : of.categories) {
        QJsonObject object = jsonOf(one.of);
        object.insert(QStringLiteral("cpv"), one.digits);
        object.insert(QStringLiteral("threshold"), one.threshold.text());
        object.insert(QStringLiteral("state"), wordOf(one.state()));
        categories.append(object);
    }
    for (const lineWithoutCode &one : of.withoutCode)
        without.append(QJsonObject{{QStringLiteral("file"), one.path},
                                   {QStringLiteral("number"), one.order},
                                   {QStringLiteral("line"), one.line + 1},
                                   {QStringLiteral("ktm"), one.ktm},
                                   {QStringLiteral("name"), one.name},
                                   {QStringLiteral("cpv"), one.cpv}});
    QJsonObject all{
        {QStringLiteral("year"), of.what.year},     {QStringLiteral("total"), jsonOf(of.total)},
        {QStringLiteral("parted"), of.parted},      {QStringLiteral("rows"), rows},
        {QStringLiteral("categories"), categories}, {QStringLiteral("without_cpv"), without}};
    for (const auto &one : groupings)
        if (one.by == of.what.by)
            all.insert(QStringLiteral("by"), QLatin1String(one.word));
    if (of.what.by == grouping::group)
        all.insert(QStringLiteral("digits"), of.what.digits);
    printJson(all);
}

// What is passed, what is not in the sums, and what no threshold can be held against.
void warn(const plan &of)
{
    using namespace annualPlanReport;
    QStringList lines = reached(of, standing::above) + reached(of, standing::almost)
                        + annualPlanReport::leftOut(of);
    for (const lineWithoutCode &one : of.withoutCode)
        lines.append(told(QT_TRANSLATE_NOOP("cli", "without a CPV code: %1")).arg(lineText(one)));
    for (const QString &line : qAsConst(lines))
        err() << QString(line).replace(QChar::Nbsp, QLatin1Char(' ')) << '\n';
    err() << Qt::flush;
}

int writeFile(const plan &of, const QString &path)
{
    if (!isTable(path))
        return writePage(annualPlanReport::page(of), path, annualPlanReport::title(of));
    QString fault;
    return annualPlanReport::write(of, path, &fault) == tableFile::written
               ? int(done)
               : cannotWrite(path, fault);
}

// --- The call

struct planOptions
{
    QCommandLineOption folder{
        {QStringLiteral("f"), QStringLiteral("folder")},
        told(QT_TRANSLATE_NOOP("cli", "A folder of orders, in place of those that the "
                                      "configuration names. May be given several times.")),
        QStringLiteral("FOLDER")};
    QCommandLineOption year{
        {QStringLiteral("y"), QStringLiteral("year")},
        told(QT_TRANSLATE_NOOP("cli", "The year of the orders; usually the newest one.")),
        QStringLiteral("YEAR")};
    QCommandLineOption by{
        QStringLiteral("by"),
        told(QT_TRANSLATE_NOOP("cli", "What the sums are of: cpv, group, target or firm.")),
        QStringLiteral("WHAT"), QStringLiteral("group")};
    QCommandLineOption digits{
        QStringLiteral("digits"),
        told(QT_TRANSLATE_NOOP("cli", "The first digits of a CPV code that make a group, 3 to 8.")),
        QStringLiteral("N"), QString::number(fewestDigits)};
    QCommandLineOption limits{
        {QStringLiteral("t"), QStringLiteral("thresholds")},
        told(QT_TRANSLATE_NOOP("cli", "Thresholds by first digits of CPV codes, in PLN, in place "
                                      "of the configuration's.")),
        QStringLiteral("THRESHOLDS")};
    QCommandLineOption output{
        {QStringLiteral("o"), QStringLiteral("output")},
        told(QT_TRANSLATE_NOOP("cli", "The file to write; its ending, .html, .pdf, .xlsx or .csv, "
                                      "decides its kind.")),
        QStringLiteral("OUT")};
    QCommandLineOption json = jsonOption();
};

// Reads the question; the fault of the call, or nothing.
QString readQuestion(const parser &parsed, const planOptions &of, question *what)
{
    const QString by = parsed.value(of.by);
    const auto *known = std::find_if(std::begin(groupings), std::end(groupings),
                                     [&by](const auto &one) { return by == one.word; });
    if (known == std::end(groupings))
        return told(QT_TRANSLATE_NOOP("cli", "%1 is none of cpv, group, target, firm")).arg(by);
    what->by = known->by;
    bool isNumber = false;
    what->digits = parsed.value(of.digits).toInt(&isNumber);
    if (!isNumber || what->digits < fewestDigits || what->digits > mostDigits)
        return told(QT_TRANSLATE_NOOP("cli", "%1 is no number of digits from 3 to 8"))
            .arg(parsed.value(of.digits));
    what->year = parsed.value(of.year).toInt(&isNumber);
    if (parsed.isSet(of.year) && (!isNumber || what->year < 1))
        return told(QT_TRANSLATE_NOOP("cli", "%1 is no year")).arg(parsed.value(of.year));
    const QString target = parsed.value(of.output);
    if (parsed.isSet(of.output) && !isPageFile(target) && !isTable(target))
        return told(QT_TRANSLATE_NOOP(
            "cli", "give an output file that ends in .html, .pdf, .xlsx or .csv"));
    return {};
}

int runPlan(const QStringList &arguments)
{
    parser parsed(planCommand, {}, 0, 0);
    parsed.setApplicationDescription(
        parsed.applicationDescription() + QLatin1String("\n\n")
        + told(QT_TRANSLATE_NOOP(
            "cli", "Prints a row for each with: name, estimated, ordered, rest, share, lines, "
                   "orders, lines left out, threshold, state.\n"
                   "Example: kivzp-cli plan -y 2026 --by group -t \"302: 50000; *: 130000\"")));
    const planOptions options;
    parsed.addOptions({options.folder, options.year, options.by, options.digits, options.limits,
                       options.output, options.json});
    if (!parsed.accept(arguments))
        return parsed.code();
    question what;
    if (const QString fault = readQuestion(parsed, options, &what); !fault.isEmpty())
        return refuseCall(planCommand, fault);
    thresholds limits = readThresholds(parsed.value(options.limits));
    if (!limits.faults.isEmpty())
        return refuseCall(planCommand, told(QT_TRANSLATE_NOOP("cli", "is not understood: %1"))
                                           .arg(limits.faults.join(QLatin1String("; "))));

    QStringList folders = parsed.values(options.folder);
    configStruct config;
    const bool ownFolders = folders.isEmpty();
    if (ownFolders && !loadConfiguration(&config))
        return refused;
    // With folders given there need not be a configuration.
    if (!ownFolders && !config.load(paths::config()))
        config.setDefaults();
    if (ownFolders)
        folders = config.orderFolders();
    for (const QString &one : qAsConst(folders))
        if (!QFileInfo(one).isDir()) {
            err() << one << ": " << told(QT_TRANSLATE_NOOP("cli", "is no folder")) << '\n'
                  << Qt::flush;
            return refused;
        }
    if (!parsed.isSet(options.limits)) {
        limits = readThresholds(config.options.value(QString(optionKey::orderThresholds)));
        for (const QString &fault : qAsConst(limits.faults))
            err() << QString(optionKey::orderThresholds) << ": "
                  << told(QT_TRANSLATE_NOOP("cli", "is not understood: %1")).arg(fault) << '\n';
    }

    orderRegister orders(ownFolders ? orderIndex::usualCache() : QString());
    orders.update(folders);
    const std::vector<int> years = yearsOf(orders.index());
    if (!parsed.isSet(options.year))
        what.year = years.empty() ? QDate::currentDate().year() : years.front();
    if (std::find(years.begin(), years.end(), what.year) == years.end())
        err() << told(QT_TRANSLATE_NOOP("cli", "There are no orders of %1")).arg(what.year) << '\n';
    const plan made = planOf(orders.index(), what, limits, optionsOf(orders));
    warn(made);
    for (const QString &fault : orders.faults())
        err() << fault << '\n';
    err() << Qt::flush;
    if (parsed.isSet(options.json))
        printAsJson(made);
    else if (!parsed.isSet(options.output))
        printRows(made);
    out() << Qt::flush;
    return parsed.isSet(options.output) ? writeFile(made, parsed.value(options.output)) : done;
}

} // namespace

const subcommand planCommand{
    "plan", QT_TRANSLATE_NOOP("cli", "Adds up the orders of a year, and tells of thresholds."),
    runPlan};

} // namespace cli

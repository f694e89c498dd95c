// request: asks firms for quotations for an order, reminds them, and tells who got what.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/firmDetails.h"
#include "data/kiv_mat_firmStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/vocabulary.h"
#include "mail/mail.h"
#include "orders/quotationRequests.h"
#include "util/files.h"
#include "util/labels.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>

namespace cli {

using namespace quotationRequests;

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

constexpr const char *states[] = {"waiting", "overdue", "answered", "written"};

int refuse(const QString &what)
{
    err() << what << '\n' << Qt::flush;
    return refused;
}

struct requestOptions
{
    QCommandLineOption firms{
        QStringLiteral("firms"),
        told(QT_TRANSLATE_NOOP("cli", "The register of firms, with their details beside it.")),
        QStringLiteral("REGISTER")};
    QCommandLineOption firm{
        QStringLiteral("firm"),
        told(QT_TRANSLATE_NOOP("cli", "The name or tax number of a firm of the register. May be "
                                      "given several times.")),
        QStringLiteral("NAME")};
    QCommandLineOption deadline{
        QStringLiteral("deadline"),
        told(QT_TRANSLATE_NOOP("cli", "Day by which offers are expected, dd.MM.yyyy; usually a "
                                      "week from today.")),
        QStringLiteral("DATE"), usualDeadline(QDate::currentDate()).toString(labels::dateFormat())};
    QCommandLineOption database = databaseOption(told(QT_TRANSLATE_NOOP(
        "cli", "A material database with makers and their part numbers. May be given several "
               "times.")));
    QCommandLineOption lines{
        QStringLiteral("lines"),
        told(QT_TRANSLATE_NOOP("cli", "The lines that are asked for, such as \"1,3-5\"; usually "
                                      "all.")),
        QStringLiteral("LINES")};
    QCommandLineOption send{
        QStringLiteral("send"),
        told(QT_TRANSLATE_NOOP("cli", "Start the mail program with each message, and note it as "
                                      "sent."))};
    QCommandLineOption remind{
        QStringLiteral("remind"),
        told(QT_TRANSLATE_NOOP("cli", "Remind the firms that sent no offer yet, or those given "
                                      "with --firm."))};
    QCommandLineOption list{
        QStringLiteral("list"),
        told(QT_TRANSLATE_NOOP("cli", "Print who was asked and when, and who answered."))};
    QCommandLineOption json = jsonOption();

    QList<QCommandLineOption> all() const
    {
        return {firms, firm, deadline, database, lines, send, remind, list, json};
    }
};

// The lines of a text such as "1,3-5", from 0; nothing, with the part that names none in fault.
std::optional<std::vector<int>> readLines(const QString &text, int count, QString *fault)
{
    static const QRegularExpression form(QStringLiteral(R"(^(\d{1,6})(?:\s*-\s*(\d{1,6}))?$)"));
    std::vector<int> all;
    for (const QString &part : text.split(QLatin1Char(','))) {
        const QRegularExpressionMatch match = form.match(part.trimmed());
        const int first = match.captured(1).toInt();
        const int last = match.captured(2).isEmpty() ? first : match.captured(2).toInt();
        if (!match.hasMatch() || first < 1 || last < first || last > count) {
            *fault = told(QT_TRANSLATE_NOOP("cli", "\"%1\" names no lines of the order"))
                         .arg(part.trimmed());
            return {};
        }
        for (int line = first; line <= last; ++line)
            all.push_back(line - 1);
    }
    return all;
}

// --- The list

void printList(const kiv_mat_offersStruct &offers)
{
    const QDate today = QDate::currentDate();
    for (const auto &one : offers.requests) {
        QStringList cells{one->number, one->firm,     one->sent, one->deadline,
                          {},          one->reminded, one->to,   {}};
        cells[4] = QLatin1String(states[size_t(stateOf(*one, offers, today))]);
        cells[7] = QString::number(one->items.size());
        for (QString &cell : cells)
            cell = cell.simplified();
        out() << cells.join(QLatin1Char('\t')) << '\n';
    }
    out() << Qt::flush;
}

void printListAsJson(const kiv_mat_offersStruct &offers)
{
    QJsonArray all;
    for (const auto &one : offers.requests) {
        QJsonArray materials;
        for (const auto &item : one->items)
            materials.append(QJsonObject{{QStringLiteral("key"), item->key},
                                         {QStringLiteral("name"), item->name},
                                         {QStringLiteral("quantity"), numberOrText(item->quantity)},
                                         {QStringLiteral("unit"), item->unit},
                                         {QStringLiteral("needed_by"), item->wait}});
        const state standing = stateOf(*one, offers, QDate::currentDate());
        all.append(QJsonObject{
            {QStringLiteral("number"), one->number},
            {QStringLiteral("firm"), one->firm},
            {QStringLiteral("nip"), one->nip},
            {QStringLiteral("to"), QJsonArray::fromStringList(mail::addresses(one->to))},
            {QStringLiteral("language"), one->language},
            {QStringLiteral("sent"), one->sent},
            {QStringLiteral("by"), one->by},
            {QStringLiteral("deadline"), one->deadline},
            {QStringLiteral("reminded"), one->reminded},
            {QStringLiteral("state"), QLatin1String(states[size_t(standing)])},
            {QStringLiteral("document"), one->document},
            {QStringLiteral("table"), one->table},
            {QStringLiteral("materials"), materials}});
    }
    printJson({{QStringLiteral("order"), offers.number}, {QStringLiteral("requests"), all}});
}

// --- Sending

int printResult(const result &of)
{
    if (!of.fault.isEmpty())
        return refuse(of.fault);
    for (const outcome &one : of.firms)
        for (const QString &file : one.files)
            out() << file << '\n';
    out() << Qt::flush;
    const QStringList faults = of.faults();
    for (const QString &fault : faults)
        err() << fault << '\n';
    err() << Qt::flush;
    return faults.isEmpty() ? int(done) : int(notWritten);
}

// The firms of these names or tax numbers; false, with the fault printed, when one is not known, or
// is several firms' name.
bool choose(const QStringList &names, const std::vector<candidate> &from,
            std::vector<candidate> *chosen)
{
    for (const QString &name : names) {
        std::vector<const candidate *> found;
        for (const candidate &one : from)
            if (firmDetails::isSameName(one.firm, name)
                || (!one.nip.isEmpty() && firmDetails::isSameNip(one.nip, name)))
                found.push_back(&one);
        if (found.size() != 1) {
            refuse(found.empty()
                       ? told(QT_TRANSLATE_NOOP("cli", "%1 is no firm of the register")).arg(name)
                       : told(QT_TRANSLATE_NOOP("cli", "%1 is the name of several firms; give the "
                                                       "tax number"))
                             .arg(name));
            return false;
        }
        const candidate &one = *found.front();
        if (std::none_of(chosen->begin(), chosen->end(), [&one](const candidate &other) {
                return other.firm == one.firm && other.nip == one.nip;
            }))
            chosen->push_back(one);
    }
    return true;
}

// What a call works with.
struct material
{
    QString path;
    kiv_mat_zpStruct order;
    kiv_mat_firmStruct firms;
    kiv_mat_firmDetailsStruct details;
    configStruct config;
    offersFile offers;
};

bool isCalled(const requestStruct &of, const QString &name)
{
    return firmDetails::isSameName(of.firm, name)
           || (!of.nip.isEmpty() && firmDetails::isSameNip(of.nip, name));
}

int remind(material &with, const means &how, const QStringList &names)
{
    const std::vector<const requestStruct *> open = unanswered(with.offers.now());
    for (const QString &name : names)
        if (std::none_of(open.begin(), open.end(),
                         [&name](const requestStruct *one) { return isCalled(*one, name); }))
            return refuse(
                told(QT_TRANSLATE_NOOP("cli", "%1 has no request without an offer")).arg(name));
    QStringList numbers;
    for (const requestStruct *one : open)
        if (names.isEmpty() || std::any_of(names.begin(), names.end(), [one](const QString &name) {
                return isCalled(*one, name);
            }))
            numbers.append(one->number);
    if (numbers.isEmpty())
        return refuse(told(QT_TRANSLATE_NOOP("cli", "no firm is to be reminded")));
    return printResult(sendKept(occasion::reminder, with.path, numbers, how, with.config));
}

int request(material &with, const means &how, const parser &given, const requestOptions &options)
{
    const QDate deadline = QDate::fromString(given.value(options.deadline), labels::dateFormat());
    if (!deadline.isValid())
        return refuseCall(
            requestCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is no date")).arg(given.value(options.deadline)));
    if (deadline < QDate::currentDate())
        return refuseCall(
            requestCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is past")).arg(given.value(options.deadline)));
    std::optional<std::vector<int>> lines;
    if (given.isSet(options.lines)) {
        QString fault;
        lines =
            readLines(given.value(options.lines), int(with.order.orderItems.items.size()), &fault);
        if (!lines)
            return refuseCall(requestCommand, fault);
    }
    databaseSet databases;
    if (!databases.load(given.values(options.database)))
        return refused;
    const orderOffers::needs needs = asked(with.order, lines);
    for (const int line : needs.uncounted)
        err() << told(QT_TRANSLATE_NOOP("cli", "line %1 has no quantity above 0, and is left out"))
                     .arg(line + 1)
              << '\n';
    err() << Qt::flush;
    std::vector<candidate> chosen;
    if (!choose(given.values(options.firm),
                candidatesOf(with.firms, with.details, needs, databases.index(), with.offers.now()),
                &chosen))
        return refused;
    return printResult(send({&with.order, with.path, lines, chosen, deadline, &databases.index()},
                            how, with.config));
}

int run(const QStringList &arguments)
{
    parser given(requestCommand, QStringLiteral("ORDER"), 1, 1);
    given.setApplicationDescription(
        given.applicationDescription() + QLatin1String("\n\n")
        + told(QT_TRANSLATE_NOOP(
            "cli", "Prints the files that were written; with --list a row for each request with: "
                   "number, firm, sent, deadline, state, reminded, addresses, materials.\n"
                   "Example: kivzp-cli request zp_13.xml --firms _files/firms.xml --firm TME "
                   "--firm Mouser -d _files/db_warehouse.xml --send")));
    const requestOptions options;
    given.addOptions(options.all());
    if (!given.accept(arguments))
        return given.code();
    const bool asks = !given.isSet(options.list) && !given.isSet(options.remind);
    if (given.isSet(options.list) && given.isSet(options.remind))
        return refuseCall(requestCommand,
                          told(QT_TRANSLATE_NOOP("cli", "give either --list or --remind")));
    if (asks && (!given.isSet(options.firms) || !given.isSet(options.firm)))
        return refuseCall(requestCommand,
                          told(QT_TRANSLATE_NOOP("cli", "give --firms and --firm")));

    material with;
    with.path = QFileInfo(given.positionalArguments().at(0)).absoluteFilePath();
    if (!readFile(with.path, &with.order, told(QT_TRANSLATE_NOOP("cli", "is no order"))))
        return refused;
    with.offers = offersFile(orderOffers::fileOf(with.path));
    const kiv_mat_offersStruct &offers = with.offers.now();
    if (!with.offers.fault().isEmpty())
        return refuse(with.offers.path() + QLatin1String(": ") + with.offers.fault());
    if (given.isSet(options.list)) {
        if (given.isSet(options.json))
            printListAsJson(offers);
        else
            printList(offers);
        return done;
    }
    if (given.isSet(options.firms)) {
        const QString path = given.value(options.firms);
        const QString beside = firmDetails::pathBeside(path);
        QString fault;
        if (!readFile(path, &with.firms, told(QT_TRANSLATE_NOOP("cli", "is no register of firms"))))
            return refused;
        if (!firmDetails::read(beside, &with.details, &fault))
            return refuse(beside + QLatin1String(": ") + fault);
    }
    if (!with.config.load(paths::config()))
        with.config.setDefaults();

    means how;
    how.print = [](const QString &html, const QString &path, const QString &title, QString *fault) {
        if (writePage(html, path, title) == done)
            return true;
        *fault = files::whyNotWritten(path);
        return false;
    };
    if (given.isSet(options.send))
        how.start = [&with](const QString &description) {
            return mail::start(description, with.config);
        };
    if (given.isSet(options.firms))
        how.details = &with.details;
    return given.isSet(options.remind) ? remind(with, how, given.values(options.firm))
                                       : request(with, how, given, options);
}

} // namespace

const subcommand requestCommand{
    "request",
    QT_TRANSLATE_NOOP("cli", "Asks firms for quotations for an order, each with a table to fill "
                             "in, reminds them, and tells who was asked."),
    run};

} // namespace cli

// set-field: gives a field of many materials another text, as the database window does.
#include "cli/arguments.h"

#include "data/materialSearch.h"
#include "database/bulkEdit.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>

#include <numeric>

namespace cli {

namespace {

using bulkEdit::request;

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

QCommandLineOption valued(const char *name, const char *help, const char *value)
{
    return {QLatin1String(name), told(help), QLatin1String(value)};
}

struct options
{
    QCommandLineOption find = valued(
        "find", QT_TRANSLATE_NOOP("cli", "Which materials, as \"find\" searches them."), "QUERY");
    QCommandLineOption field = valued(
        "field", QT_TRANSLATE_NOOP("cli", "The field: its name in a search or in the file."), "F");
    QCommandLineOption set = valued("set", QT_TRANSLATE_NOOP("cli", "Give it this text."), "V");
    QCommandLineOption replace = valued(
        "replace", QT_TRANSLATE_NOOP("cli", "Replace this part of its text; wants --with."), "A");
    QCommandLineOption with =
        valued("with", QT_TRANSLATE_NOOP("cli", "What stands in its place then."), "B");
    QCommandLineOption pattern{
        QStringLiteral("pattern"),
        told(QT_TRANSLATE_NOOP("cli", "A is a regular expression; $1 in B is what its first "
                                      "bracket found."))};
    QCommandLineOption form =
        valued("template",
               QT_TRANSLATE_NOOP("cli", "Compose it from other fields: \"{value} {case}\"."), "T");
    QCommandLineOption dryRun{
        QStringLiteral("dry-run"),
        told(QT_TRANSLATE_NOOP("cli", "Only print what would change; nothing is written."))};
};

// What is asked for; nothing, with the fault, when that is not clear.
std::optional<request> requestOf(const parser &given, const options &known, QString *fault)
{
    const int ways = int(given.isSet(known.set)) + int(given.isSet(known.replace))
                     + int(given.isSet(known.form));
    if (!given.isSet(known.find) || !given.isSet(known.field) || ways != 1) {
        *fault = told(QT_TRANSLATE_NOOP(
            "cli", "give --find, --field, and one of --set, --replace and --template"));
        return {};
    }
    if (given.isSet(known.with) != given.isSet(known.replace)
        || (given.isSet(known.pattern) && !given.isSet(known.replace))) {
        *fault = told(QT_TRANSLATE_NOOP("cli", "--replace and --with belong together, and "
                                               "--pattern to them"));
        return {};
    }
    request wanted;
    wanted.target = bulkEdit::findField(given.value(known.field));
    if (!wanted.target) {
        QStringList names;
        for (const bulkEdit::field &field : bulkEdit::fields())
            names.append(field.name);
        *fault = told(QT_TRANSLATE_NOOP("cli", "there is no field %1; the fields: %2"))
                     .arg(given.value(known.field), names.join(QLatin1Char(' ')));
        return {};
    }
    wanted.isPattern = given.isSet(known.pattern);
    wanted.with = given.value(known.with);
    if (given.isSet(known.set)) {
        wanted.text = given.value(known.set);
    } else if (given.isSet(known.replace)) {
        wanted.kind = request::replace;
        wanted.text = given.value(known.replace);
    } else {
        wanted.kind = request::compose;
        wanted.text = given.value(known.form);
    }
    const bulkEdit::faults found = bulkEdit::faultsOf(wanted, {});
    *fault = found.text.isEmpty() ? found.with : found.text;
    return fault->isEmpty() ? std::optional(wanted) : std::nullopt;
}

// The materials that a search finds, in file order.
std::vector<bulkEdit::place> placesOf(kiv_mat_databaseStruct &database, const searchQuery &query)
{
    materialSearch search;
    search.add(&database);
    std::vector<bulkEdit::place> places;
    for (const auto &group : database.groups)
        for (const auto &material : group->items)
            if (search.matches(material.get(), query))
                places.push_back({material.get(), group.get(), &database});
    return places;
}

// A line a material: KTM, field, before and after; refused ones and the counts to standard error.
void printPlan(const bulkEdit::plan &plan, int found)
{
    const auto oneLine = [](const QString &text) { return text.simplified(); };
    for (const bulkEdit::row &row : plan.changes)
        out() << row.at.material->d_ktm << '\t' << plan.made.target->name << '\t'
              << oneLine(row.before) << '\t' << oneLine(row.after) << '\n';
    out() << Qt::flush;
    for (const bulkEdit::row &row : plan.refused)
        err() << row.at.material->d_ktm << '\t' << plan.made.target->name << '\t'
              << oneLine(row.before) << '\t' << row.refusal << '\n';
    if (!plan.note.isEmpty())
        err() << plan.note << '\n';
    err() << told(QT_TRANSLATE_NOOP("cli", "found %1, to change %2, unchanged %3, refused %4"))
                 .arg(found)
                 .arg(plan.changes.size())
                 .arg(plan.unchanged)
                 .arg(plan.refused.size())
          << '\n'
          << Qt::flush;
}

int runSetField(const QStringList &arguments)
{
    parser given(setFieldCommand, QStringLiteral("DB"), 1, 1);
    const options known;
    given.addOptions({known.find, known.field, known.set, known.replace, known.with, known.pattern,
                      known.form, known.dryRun});
    if (!given.accept(arguments))
        return given.code();
    QString fault;
    const std::optional<request> wanted = requestOf(given, known, &fault);
    if (!wanted)
        return refuseCall(setFieldCommand, fault);
    const searchQuery query = searchQuery::parse(given.value(known.find));
    if (!query.errors().isEmpty())
        return refuseCall(setFieldCommand, query.errors().join(QLatin1String("; ")));
    const QString path = QFileInfo(given.positionalArguments().at(0)).absoluteFilePath();
    const auto database = readDatabase(path);
    if (!database)
        return refused;
    const std::vector<bulkEdit::place> places = placesOf(*database, query);
    if (places.empty()) {
        err() << QCoreApplication::translate("cli", "nothing found") << '\n' << Qt::flush;
        return refused;
    }
    ktmIndex index;
    index.add(database.get());
    const bulkEdit::plan plan = bulkEdit::planOf(*wanted, places, index);
    printPlan(plan, int(places.size()));
    // All or nothing: a script cannot look at the preview.
    if (!plan.refused.empty() || (plan.changes.empty() && plan.unchanged == 0))
        return refused;
    if (given.isSet(known.dryRun) || plan.changes.empty())
        return done;
    std::vector<int> all(plan.changes.size());
    std::iota(all.begin(), all.end(), 0);
    bulkEdit::changes(plan, all).apply({}, {});
    database->update = QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm:ss"));
    return writeDocument(path, *database);
}

} // namespace

const subcommand setFieldCommand{
    "set-field",
    QT_TRANSLATE_NOOP("cli", "Changes a field of all materials that a search finds, and writes the "
                             "database; the file as it was is kept among its versions. Nothing is "
                             "written when one of them is refused."),
    runSetField};

} // namespace cli

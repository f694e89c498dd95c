// find: searches the materials of databases.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/keptSearches.h"
#include "data/materialSearch.h"

#include <QCoreApplication>
#include <QJsonArray>

namespace cli {

namespace {

constexpr int shownAtMost = 200;

void printFound(const materialSearch::result &found)
{
    for (const materialSearch::entry &entry : found.entries) {
        const materialStruct &m = *entry.material;
        QStringList cells{m.d_ktm,         m.d_name, m.d_description, m.d_value,           m.d_case,
                          m.d_inWarehouse, m.d_unit, m.d_price,       m.information.status};
        // Tabs and line ends would break the columns.
        for (QString &cell : cells)
            cell = cell.simplified();
        out() << cells.join(QLatin1Char('\t')) << '\n';
    }
    out() << Qt::flush;
}

void printFoundJson(const materialSearch::result &found)
{
    QJsonArray materials;
    for (const materialSearch::entry &entry : found.entries) {
        const materialStruct &m = *entry.material;
        materials.append(
            QJsonObject{{QStringLiteral("ktm"), m.d_ktm},
                        {QStringLiteral("name"), m.d_name},
                        {QStringLiteral("group"), entry.group->name},
                        {QStringLiteral("description"), m.d_description},
                        {QStringLiteral("value"), m.d_value},
                        {QStringLiteral("case"), m.d_case},
                        {QStringLiteral("in_warehouse"), numberOrText(m.d_inWarehouse)},
                        {QStringLiteral("unit"), m.d_unit},
                        {QStringLiteral("price"), numberOrText(m.d_price)},
                        {QStringLiteral("status"), m.information.status}});
    }
    printJson({{QStringLiteral("total"), found.total}, {QStringLiteral("materials"), materials}});
}

QString grammar()
{
    return QCoreApplication::translate(
        "cli",
        "Conditions are parted by blanks, and all of them must hold:\n"
        "  rezystor 0603        both words, in any field, also inside a word\n"
        "  \"rezystor smd\"       these words in this order\n"
        "  case:0603            that text in one field; case:=0603 the whole of it, case:\"\" "
        "none\n"
        "  group:=\"Dioda TVS\"   quotes hold a text with blanks together, also behind a sign\n"
        "  value:4k7            an equal number: 4700, 4,7 kOhm; a power may be a fraction: 1/4W\n"
        "  price:>10            more; also >=, <, <= and =\n"
        "  value:1k..10k        from the first to the last; value:1k.. value:..10k\n"
        "  value:4k7+-5%        within so much of the number\n"
        "  case:0603|0805       one of them\n"
        "  !status:grey         without it; also -status:grey\n"
        "Fields: %1");
}

QString fieldNames()
{
    QStringList names;
    for (const searchField &field : searchField::all())
        names.append(QLatin1String(field.names.front()));
    return names.join(QLatin1Char(' '));
}

// The searches that the program keeps; refused when there are none.
int listKept(bool asJson)
{
    QJsonArray list;
    for (const keptSearch &kept : keptSearches::all()) {
        list.append(QJsonObject{{QStringLiteral("name"), kept.name},
                                {QStringLiteral("words"), kept.words}});
        if (!asJson)
            out() << kept.name << '\t' << kept.words << '\n';
    }
    if (asJson)
        printJson({{QStringLiteral("kept"), list}});
    out() << Qt::flush;
    if (!list.isEmpty())
        return done;
    err() << QCoreApplication::translate("cli", "no search is kept") << '\n' << Qt::flush;
    return refused;
}

int runFind(const QStringList &arguments)
{
    parser options(findCommand, QStringLiteral("WORDS..."), 0, -1);
    options.setApplicationDescription(options.applicationDescription() + QLatin1String("\n\n")
                                      + grammar().arg(fieldNames()));
    const QCommandLineOption database(
        {QStringLiteral("d"), QStringLiteral("database")},
        QCoreApplication::translate("cli",
                                    "A material database to search. May be given several times."),
        QStringLiteral("DB"));
    const QCommandLineOption number(
        {QStringLiteral("n"), QStringLiteral("number")},
        QCoreApplication::translate("cli", "How many materials to print at most (0: all)."),
        QStringLiteral("N"), QString::number(shownAtMost));
    const QCommandLineOption kept(
        QStringLiteral("kept"),
        QCoreApplication::translate(
            "cli", "A search kept in the program under that name; WORDS narrow it."),
        QStringLiteral("NAME"));
    const QCommandLineOption list(
        QStringLiteral("list-kept"),
        QCoreApplication::translate("cli", "Prints the kept searches and searches nothing."));
    const QCommandLineOption json = jsonOption();
    options.addOptions({database, number, kept, list, json});
    if (!options.accept(arguments))
        return options.code();
    const auto refuse = [](const QString &fault) { return refuseCall(findCommand, fault); };
    if (options.isSet(list))
        return listKept(options.isSet(json));
    bool isNumber = false;
    int limit = options.value(number).toInt(&isNumber);
    if (!isNumber || limit < 0)
        return refuse(QCoreApplication::translate("cli", "%1 is no number of materials")
                          .arg(options.value(number)));
    if (limit == 0)
        limit = std::numeric_limits<int>::max();
    QStringList words = options.positionalArguments();
    if (options.isSet(kept)) {
        const std::optional<keptSearch> search = keptSearches::find(options.value(kept));
        if (!search)
            return refuse(
                QCoreApplication::translate("cli", "no search %1 is kept; see --list-kept")
                    .arg(options.value(kept)));
        words.prepend(search->words);
    }
    if (words.isEmpty())
        return refuse(QCoreApplication::translate("cli", "an argument is missing"));
    if (!options.isSet(database))
        return refuse(QCoreApplication::translate("cli", "give a database with -d"));
    const searchQuery query = searchQuery::parse(words.join(QLatin1Char(' ')));
    if (!query.errors().isEmpty())
        return refuse(query.errors().join(QLatin1String("; ")));

    databaseSet databases;
    if (!databases.load(options.values(database)))
        return refused;
    materialSearch search;
    for (const auto &loaded : databases.all())
        search.add(loaded.get());
    const materialSearch::result found = search.find(query, limit);
    if (options.isSet(json))
        printFoundJson(found);
    else
        printFound(found);
    if (found.total == 0) {
        err() << QCoreApplication::translate("cli", "nothing found") << '\n' << Qt::flush;
        return refused;
    }
    if (found.total > int(found.entries.size()))
        err() << QCoreApplication::translate("cli", "%1 of %2 materials shown")
                     .arg(found.entries.size())
                     .arg(found.total)
              << '\n'
              << Qt::flush;
    return done;
}

} // namespace

const subcommand findCommand{
    "find", QT_TRANSLATE_NOOP("cli", "Searches the materials of databases."), runFind};

} // namespace cli

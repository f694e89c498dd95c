// publish, clone, sync, history: the shared store of a department.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/loaders.h"
#include "store/storeFiles.h"
#include "store/storeHistory.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

QCommandLineOption storeOption()
{
    return {QStringLiteral("store"),
            told(QT_TRANSLATE_NOOP("cli", "The store: postgresql://user@server/database or "
                                          "sqlite:FILE; else the configuration's. A password comes "
                                          "from ~/.pgpass or PGPASSWORD.")),
            QStringLiteral("ADDRESS")};
}

int refuse(const QString &fault)
{
    err() << fault << '\n' << Qt::flush;
    return refused;
}

struct session
{
    configStruct config;
    store::connection with;
    QString fault;

    // False, with what was told, when the store cannot be reached.
    bool open(const parser &given, const QCommandLineOption &option)
    {
        if (!config.load(paths::config()))
            config.setDefaults();
        const auto to = store::addressOf(config, given.value(option), &fault);
        if (to && with.open(*to))
            return true;
        err() << (to ? to->shown() + QLatin1String(": ") + with.fault() : fault) << '\n'
              << Qt::flush;
        return false;
    }
};

QString absolute(const QString &path) { return QFileInfo(path).absoluteFilePath(); }

// --- publish

int runPublish(const QStringList &arguments)
{
    parser given(publishCommand, QStringLiteral("[FILE...]"), 0, -1);
    const QCommandLineOption at = storeOption();
    const QCommandLineOption init{
        QStringLiteral("init"),
        told(QT_TRANSLATE_NOOP("cli", "Make the tables, and on a server the roles kivzp_reader, "
                                      "kivzp_editor and kivzp_administrator, where they are "
                                      "missing."))};
    const QCommandLineOption as{
        QStringLiteral("as"),
        told(QT_TRANSLATE_NOOP("cli", "The document's name in the store; else the file's.")),
        QStringLiteral("NAME")};
    given.addOptions({at, init, as});
    if (!given.accept(arguments))
        return given.code();
    const QStringList files = given.positionalArguments();
    if (files.isEmpty() != given.isSet(init) && files.isEmpty())
        return refuseCall(publishCommand, told(QT_TRANSLATE_NOOP("cli", "give files, or --init")));
    if (given.isSet(as) && files.size() != 1)
        return refuseCall(publishCommand, told(QT_TRANSLATE_NOOP("cli", "--as is for one file")));
    session of;
    if (!of.open(given, at))
        return refused;
    if (given.isSet(init) && !store::makeTables(of.with))
        return refuse(of.with.fault());
    for (const QString &file : files) {
        const QString path = absolute(file);
        const QString name = given.isSet(as) ? given.value(as) : store::usualName(path);
        const store::syncResult result = store::publishFile(of.with, path, name);
        if (!result.done || !result.fault.isEmpty())
            return refuse(result.fault);
        out() << name << '\t' << result.sent << '\n' << Qt::flush;
    }
    return done;
}

// --- clone

int list(session &of)
{
    for (const store::sharedName &one : store::documentsIn(of.with))
        out() << one.kind << '\t' << one.name << '\n';
    out() << Qt::flush;
    return of.with.fault().isEmpty() ? int(done) : refuse(of.with.fault());
}

int runClone(const QStringList &arguments)
{
    parser given(cloneCommand, QStringLiteral("[NAME FILE]"), 0, 2);
    const QCommandLineOption at = storeOption();
    const QCommandLineOption kindOption{
        QStringLiteral("kind"),
        told(QT_TRANSLATE_NOOP("cli", "The root element, where documents of several kinds have "
                                      "that name.")),
        QStringLiteral("ROOT")};
    given.addOptions({at, kindOption});
    if (!given.accept(arguments))
        return given.code();
    const QStringList words = given.positionalArguments();
    if (words.size() == 1)
        return refuseCall(cloneCommand, told(QT_TRANSLATE_NOOP("cli", "an argument is missing")));
    session of;
    if (!of.open(given, at))
        return refused;
    if (words.isEmpty())
        return list(of);
    QStringList kinds;
    for (const store::sharedName &one : store::documentsIn(of.with))
        if (one.name == words[0]
            && (!given.isSet(kindOption) || given.value(kindOption) == one.kind))
            kinds.append(one.kind);
    if (!of.with.fault().isEmpty())
        return refuse(of.with.fault());
    if (kinds.size() != 1)
        return refuse(
            kinds.isEmpty()
                ? told(QT_TRANSLATE_NOOP("cli", "the store has no document %1")).arg(words[0])
                : told(QT_TRANSLATE_NOOP("cli", "there are several, give --kind: %1"))
                      .arg(kinds.join(QLatin1String(", "))));
    const fileKind *kind = store::kindOf(kinds.first());
    if (!kind)
        return refuse(
            told(QT_TRANSLATE_NOOP("cli", "%1 is no known kind of file")).arg(kinds.first()));
    QString fault;
    return store::cloneFile(of.with, *kind, words[0], absolute(words[1]), &fault) ? int(done)
                                                                                  : refuse(fault);
}

// --- sync

enum class onConflict
{
    refuse,
    mine,
    theirs
};

void printConflict(const mergeRow &row)
{
    const auto shown = [](const QString &text) {
        return text.isNull() ? told(QT_TRANSLATE_NOOP("cli", "(none)")) : text.simplified();
    };
    err() << row.line << '\t' << row.field << '\t' << shown(row.opened) << '\t' << shown(row.mine)
          << '\t' << shown(row.theirs) << '\n';
}

int syncOne(session &of, const QString &path, onConflict how, bool asJson, QJsonArray *rows)
{
    int conflicts = 0;
    const auto settle = [&](std::vector<mergeRow> &found) {
        conflicts = int(found.size());
        for (mergeRow &row : found) {
            row.picked = true;
            row.takeTheirs = how == onConflict::theirs;
            if (how == onConflict::refuse)
                printConflict(row);
        }
        err() << Qt::flush;
        return how != onConflict::refuse;
    };
    const store::syncResult result = store::synchronizeFile(of.with, path, of.config, settle);
    if (!result.fault.isEmpty())
        return refuse(result.fault);
    if (result.cancelled)
        return refuse(path + QLatin1String(": ")
                      + told(QT_TRANSLATE_NOOP("cli", "both sides changed the same: give --mine or "
                                                      "--theirs, or settle it in the program")));
    if (asJson)
        rows->append(QJsonObject{{QStringLiteral("file"), path},
                                 {QStringLiteral("fetched"), result.fetched},
                                 {QStringLiteral("sent"), result.sent},
                                 {QStringLiteral("conflicts"), conflicts},
                                 {QStringLiteral("release"), double(result.release)}});
    else
        out() << path << '\t' << result.fetched << '\t' << result.sent << '\t' << result.release
              << '\n'
              << Qt::flush;
    return done;
}

int runSync(const QStringList &arguments)
{
    parser given(syncCommand, QStringLiteral("[FILE...]"), 0, -1);
    const QCommandLineOption at = storeOption();
    const QCommandLineOption mine{
        QStringLiteral("mine"),
        told(QT_TRANSLATE_NOOP("cli", "Where both sides changed the same, what is here stays."))};
    const QCommandLineOption theirs{
        QStringLiteral("theirs"),
        told(QT_TRANSLATE_NOOP("cli",
                               "Where both sides changed the same, what the store has comes."))};
    const QCommandLineOption json = jsonOption();
    given.addOptions({at, mine, theirs, json});
    if (!given.accept(arguments))
        return given.code();
    if (given.isSet(mine) && given.isSet(theirs))
        return refuseCall(syncCommand, told(QT_TRANSLATE_NOOP("cli", "give --mine or --theirs")));
    session of;
    if (!of.open(given, at))
        return refused;
    QStringList files;
    for (const QString &file : given.positionalArguments())
        files.append(absolute(file));
    if (files.isEmpty())
        files = store::sharedFiles(of.config);
    if (files.isEmpty())
        return refuse(told(QT_TRANSLATE_NOOP("cli", "no file is shared")));
    const onConflict how = given.isSet(mine)     ? onConflict::mine
                           : given.isSet(theirs) ? onConflict::theirs
                                                 : onConflict::refuse;
    QJsonArray rows;
    int code = done;
    // One that cannot be does not keep the others back.
    for (const QString &file : qAsConst(files))
        code = qMax(code, syncOne(of, file, how, given.isSet(json), &rows));
    if (given.isSet(json))
        printJson({{QStringLiteral("files"), rows}});
    return code;
}

// --- history

int goBack(session &of, const store::base &known, const QString &path, const QString &ktm,
           const store::materialHistory &material, qint64 release)
{
    QString fault;
    const auto texts = store::textsAt(of.with, material.id, release, &fault);
    if (!texts)
        return refuse(fault);
    const auto database = readDatabase(path);
    if (!database)
        return refused;
    const store::table &materials = *store::tablesOf(fileKinds::database)[1];
    ktmIndex index;
    index.add(database.get());
    const ktmIndex::entry *found = index.find(ktm);
    if (!found)
        return refuse(told(QT_TRANSLATE_NOOP("cli", "%1 has no material %2")).arg(path, ktm));
    if (known.document != material.document)
        return refuse(
            told(QT_TRANSLATE_NOOP("cli", "%1 is another document of the store")).arg(path));
    for (size_t i = 0; i < materials.columns.size(); ++i)
        if (materials.text(found->material, i) != (*texts)[int(i)])
            materials.setText(found->material, i, (*texts)[int(i)]);
    return writeDocument(path, *database);
}

QJsonObject jsonOf(const store::materialHistory &material)
{
    QJsonArray lines;
    for (const store::historyLine &line : material.lines)
        lines.append(QJsonObject{{QStringLiteral("release"), double(line.release)},
                                 {QStringLiteral("at"), line.at},
                                 {QStringLiteral("author"), line.author},
                                 {QStringLiteral("login"), line.login},
                                 {QStringLiteral("what"), line.what},
                                 {QStringLiteral("field"), line.field},
                                 {QStringLiteral("before"), line.before},
                                 {QStringLiteral("after"), line.after}});
    return {{QStringLiteral("document"), material.name},
            {QStringLiteral("material"), material.caption},
            {QStringLiteral("gone"), material.gone},
            {QStringLiteral("changes"), lines}};
}

int runHistory(const QStringList &arguments)
{
    parser given(historyCommand, QStringLiteral("KTM"), 1, 1);
    const QCommandLineOption at = storeOption();
    const QCommandLineOption file =
        databaseOption(told(QT_TRANSLATE_NOOP("cli", "Only of this shared database.")));
    const QCommandLineOption back{
        QStringLiteral("back"),
        told(QT_TRANSLATE_NOOP("cli",
                               "With -d: make the material in the file what it was after this "
                               "release. The next sync sends that.")),
        QStringLiteral("RELEASE")};
    const QCommandLineOption json = jsonOption();
    given.addOptions({at, file, back, json});
    if (!given.accept(arguments))
        return given.code();
    const QString ktm = given.positionalArguments().first();
    if ((given.isSet(back) && !given.isSet(file)) || given.values(file).size() > 1)
        return refuseCall(historyCommand, told(QT_TRANSLATE_NOOP("cli", "give one database")));
    bool isNumber = true;
    const qint64 release = given.isSet(back) ? given.value(back).toLongLong(&isNumber) : 0;
    if (!isNumber)
        return refuseCall(
            historyCommand,
            told(QT_TRANSLATE_NOOP("cli", "%1 is no release")).arg(given.value(back)));
    store::base known;
    const QString path = given.isSet(file) ? absolute(given.value(file)) : QString();
    if (!path.isEmpty()) {
        known = store::base::readHead(path);
        if (!known.isShared())
            return refuse(told(QT_TRANSLATE_NOOP("cli", "%1 is not shared")).arg(path));
    }
    session of;
    if (!of.open(given, at))
        return refused;
    const auto all = store::historyOf(of.with, ktm, known.document);
    if (!of.with.fault().isEmpty())
        return refuse(of.with.fault());
    if (all.empty())
        return refuse(told(QT_TRANSLATE_NOOP("cli", "the store has no material %1")).arg(ktm));
    if (given.isSet(back))
        return goBack(of, known, path, ktm, all.front(), release);
    QJsonArray materials;
    for (const store::materialHistory &material : all) {
        materials.append(jsonOf(material));
        if (given.isSet(json))
            continue;
        out() << material.name << '\t' << material.caption << '\n';
        for (const store::historyLine &line : material.lines)
            out() << line.release << '\t' << line.at << '\t'
                  << (line.login.isEmpty() ? line.author
                                           : line.author + QLatin1Char('/') + line.login)
                  << '\t' << store::sentenceOf(line).simplified() << '\n';
    }
    if (given.isSet(json))
        printJson({{QStringLiteral("materials"), materials}});
    out() << Qt::flush;
    return done;
}

} // namespace

const subcommand publishCommand{
    "publish",
    QT_TRANSLATE_NOOP("cli",
                      "Puts databases, the firm register, reservations, states of orders and "
                      "offers into a shared store."),
    runPublish};

const subcommand cloneCommand{
    "clone",
    QT_TRANSLATE_NOOP("cli", "Makes a file of a document in the shared store; without arguments "
                             "lists what there is."),
    runClone};

const subcommand syncCommand{
    "sync",
    QT_TRANSLATE_NOOP("cli", "Brings shared files and the store together: what others changed "
                             "comes, what was changed here goes. A row a file: how many rows came "
                             "and went, and the release."),
    runSync};

const subcommand historyCommand{
    "history",
    QT_TRANSLATE_NOOP("cli",
                      "Who changed what of a material in the shared store, the latest first."),
    runHistory};

} // namespace cli

// update: what an address offers, installed and taken back, and made from what is here.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "data/configStruct.h"
#include "data/vocabulary.h"
#include "update/minisign.h"
#include "update/updateMaker.h"
#include "update/updateRun.h"
#include "util/files.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

using namespace updates;

namespace {

QString told(const char *text) { return QCoreApplication::translate("cli", text); }

struct updateOptions
{
    QCommandLineOption address{
        {QStringLiteral("a"), QStringLiteral("address")},
        told(QT_TRANSLATE_NOOP("cli", "Where updates are: http(s)://, scp://host/folder or a "
                                      "folder; else the configuration's.")),
        QStringLiteral("ADDRESS")};
    QCommandLineOption folder{
        QStringLiteral("folder"),
        told(QT_TRANSLATE_NOOP("cli", "The folder that is updated, or whose data are packed; the "
                                      "program's.")),
        QStringLiteral("FOLDER")};
    QCommandLineOption part{
        QStringLiteral("part"),
        told(QT_TRANSLATE_NOOP("cli", "Only this part: program, boms, firms, service, warehouse or "
                                      "mechanics. With create its release, as firms=12. May be "
                                      "given several times.")),
        QStringLiteral("PART")};
    QCommandLineOption key{
        QStringLiteral("key"),
        told(QT_TRANSLATE_NOOP("cli", "The key that signatures are checked with, or with create "
                                      "made with; else that of the program, or none.")),
        QStringLiteral("FILE")};
    QCommandLineOption acceptUnsigned{
        QStringLiteral("accept-unsigned"),
        told(QT_TRANSLATE_NOOP("cli", "Take an update that nobody signed."))};
    QCommandLineOption description{
        QStringLiteral("description"),
        told(QT_TRANSLATE_NOOP("cli", "With create: a page that says what is new.")),
        QStringLiteral("HTML")};
    QCommandLineOption upload{
        QStringLiteral("upload"),
        told(
            QT_TRANSLATE_NOOP("cli", "With create: also copy it to the address, by secure copy."))};
    QCommandLineOption trial{
        QStringLiteral("n"),
        told(QT_TRANSLATE_NOOP("cli", "With install: only tell what would change."))};
    QCommandLineOption json = jsonOption();

    QList<QCommandLineOption> all() const
    {
        return {address, folder, part, key, acceptUnsigned, description, upload, trial, json};
    }
};

int refuse(const QString &fault)
{
    err() << fault << '\n' << Qt::flush;
    return refused;
}

struct setting
{
    settings with;
    configStruct config;
    QString root;
};

void readSetting(const parser &given, const updateOptions &known, setting *to)
{
    if (!to->config.load(paths::config()))
        to->config.setDefaults();
    to->with = settingsOf(to->config);
    if (given.isSet(known.address))
        to->with.address = given.value(known.address);
    if (given.isSet(known.key))
        to->with.publicKey = given.value(known.key);
    to->with.acceptsUnsigned = to->with.acceptsUnsigned || given.isSet(known.acceptUnsigned);
    to->root = QDir(given.isSet(known.folder) ? given.value(known.folder) : paths::programDir())
                   .absolutePath();
}

// --- check

QString wordOf(const standing &one)
{
    return one.isNewer()   ? told(QT_TRANSLATE_NOOP("cli", "newer"))
           : one.isLower() ? told(QT_TRANSLATE_NOOP("cli", "lower"))
                           : told(QT_TRANSLATE_NOOP("cli", "the same"));
}

int check(const parser &given, const updateOptions &known, const setting &of)
{
    const offer found = look(of.with, *installed(of.root));
    if (!found.fault.isEmpty())
        return refuse(found.fault);
    if (given.isSet(known.json)) {
        QJsonArray parts;
        for (const standing &one : found.parts)
            parts.append(QJsonObject{{QStringLiteral("part"), QLatin1String(rowOf(one.of).word)},
                                     {QStringLiteral("here"), one.here},
                                     {QStringLiteral("there"), one.there},
                                     {QStringLiteral("newer"), one.isNewer()},
                                     {QStringLiteral("bytes"), double(found.sizeOf(one))}});
        printJson({{QStringLiteral("signed"), found.isSigned}, {QStringLiteral("parts"), parts}});
        return done;
    }
    for (const standing &one : found.parts)
        out() << rowOf(one.of).word << '\t' << one.here << '\t' << one.there << '\t' << wordOf(one)
              << '\t' << found.sizeOf(one) << '\n';
    out() << Qt::flush;
    return done;
}

// --- install

// The parts that are named, else all that are newer. The fault of the call, or nothing.
QString readParts(const QStringList &words, const offer &from, std::set<part> *to)
{
    for (const QString &word : words) {
        if (partCalled(word) == partCount)
            return told(QT_TRANSLATE_NOOP("cli", "%1 is no part")).arg(word);
        to->insert(partCalled(word));
    }
    for (const standing &one : from.parts)
        if (words.isEmpty() && one.isNewer())
            to->insert(one.of);
    return {};
}

int installOffer(const parser &given, const updateOptions &known, setting &of)
{
    updateJournal::settle(of.root);
    const offer found = look(of.with, *installed(of.root));
    if (!found.fault.isEmpty())
        return refuse(found.fault);
    std::set<part> wanted;
    if (const QString fault = readParts(given.values(known.part), found, &wanted); !fault.isEmpty())
        return refuseCall(updateCommandOf, fault);
    if (wanted.empty()) {
        out() << told(QT_TRANSLATE_NOOP("cli", "nothing is newer")) << '\n' << Qt::flush;
        return done;
    }
    const prepared made = prepare(of.with, found, wanted, of.root);
    for (const QString &line : made.faults + made.told)
        err() << line << '\n';
    err() << Qt::flush;
    if (!made.faults.isEmpty())
        return refused;
    for (const difference &one : differencesOf(made))
        out() << one.place << "\t+" << one.added << "\t~" << one.changed << "\t-" << one.removed
              << '\n';
    for (const updateJournal::change &one : made.what.changes)
        if (!isUsers(one.place) && !one.place.startsWith(QLatin1String("update/")))
            out() << (one.source.isEmpty() ? '-' : '+') << '\t' << one.place << '\n';
    out() << Qt::flush;
    if (given.isSet(known.trial)) {
        discard(made);
        return done;
    }
    const QString fault = install(made, of.config);
    for (const QString &place : made.what.toOpen)
        out() << told(QT_TRANSLATE_NOOP("cli", "to read")) << '\t' << place << '\n' << Qt::flush;
    return fault.isEmpty() ? int(done) : cannotWrite(of.root, fault);
}

int back(const setting &of)
{
    QString before;
    QString version;
    updateJournal::stageOf(of.root, &version, &before);
    if (const QString fault = updates::goBack(of.root); !fault.isEmpty())
        return refuse(fault);
    out() << version << " -> " << before << '\n' << Qt::flush;
    return done;
}

int settleNow(const setting &of)
{
    const updateJournal::settled result = updateJournal::settle(of.root);
    for (const QString &path : result.faults)
        err() << path << ": " << told(QT_TRANSLATE_NOOP("cli", "cannot be replaced now")) << '\n';
    err() << Qt::flush;
    return result.faults.isEmpty() ? done : notWritten;
}

// --- create

QString readReleases(const QStringList &given, const setting &of, updateMaker::job *to)
{
    for (const QString &one : given) {
        const part which = partCalled(one.section(QLatin1Char('='), 0, 0));
        const QString release = one.section(QLatin1Char('='), 1).trimmed();
        if (which == partCount || release.isEmpty())
            return told(QT_TRANSLATE_NOOP("cli", "%1 is no part with its release, as firms=12"))
                .arg(one);
        to->releases[which] = release;
        if (which != program)
            to->files[which] =
                QDir(of.root).absoluteFilePath(of.config.options.value(rowOf(which).option));
    }
    return to->releases.empty()
               ? told(QT_TRANSLATE_NOOP("cli", "give at least one --part, as --part firms=12"))
               : QString();
}

int create(const parser &given, const updateOptions &known, const setting &of,
           const QString &folder)
{
    updateMaker::job job;
    job.folder = folder;
    job.programDir = of.root;
    job.dataDir = of.root;
    job.secretKey = given.value(known.key);
    if (given.isSet(known.description)) {
        job.description = files::readText(given.value(known.description));
        if (job.description.isEmpty())
            return refuse(told(QT_TRANSLATE_NOOP("cli", "%1 cannot be read"))
                              .arg(given.value(known.description)));
    }
    if (const QString fault = readReleases(given.values(known.part), of, &job); !fault.isEmpty())
        return refuseCall(updateCommandOf, fault);
    if (given.isSet(known.upload) && of.with.address.isEmpty())
        return refuseCall(updateCommandOf, told(QT_TRANSLATE_NOOP("cli", "give an --address")));
    const updateMaker::result made = updateMaker::make(job);
    if (!made.fault.isEmpty())
        return refuse(made.fault);
    for (const QString &file : made.files)
        out() << file << '\n';
    out() << Qt::flush;
    if (job.secretKey.isEmpty())
        err() << told(QT_TRANSLATE_NOOP("cli", "It is not signed: give a --key")) << '\n'
              << Qt::flush;
    if (!given.isSet(known.upload))
        return done;
    const QString fault = updateMaker::upload(made.files, of.with.address, of.with.login);
    return fault.isEmpty() ? int(done) : refuse(fault);
}

int makeKeys(const QString &name)
{
    const QString fault =
        minisign::makeKeys(name + QLatin1String(".pub"), name + QLatin1String(".key"));
    if (!fault.isEmpty())
        return refuse(fault);
    out() << name << ".pub\n" << name << ".key\n" << Qt::flush;
    return done;
}

int runUpdate(const QStringList &arguments)
{
    parser given(updateCommandOf, QStringLiteral("check|install|back|settle|create|key [PATH]"), 1,
                 2);
    given.setApplicationDescription(
        given.applicationDescription() + QLatin1String("\n\n")
        + told(QT_TRANSLATE_NOOP(
            "cli",
            "  check          a row for each part on offer: its release here and there, size\n"
            "  install        downloads and checks what is newer, merges what was changed here,\n"
            "                 and puts it in place\n"
            "  back           puts back the files of the program that the last update replaced\n"
            "  settle         finishes an update that was broken off, as each start does\n"
            "  create FOLDER  packages, information file, script and signature, for the address\n"
            "  key NAME       makes NAME.pub, which goes beside the program as "
            "_config/update.pub,\n"
            "                 and NAME.key, which is nobody else's business\n"
            "Example: kivzp-cli update create out --part firms=12 --key ours.key")));
    const updateOptions known;
    given.addOptions(known.all());
    if (!given.accept(arguments))
        return given.code();
    const QStringList words = given.positionalArguments();
    const QString &verb = words.first();
    static const QStringList verbs{QStringLiteral("check"),  QStringLiteral("install"),
                                   QStringLiteral("back"),   QStringLiteral("settle"),
                                   QStringLiteral("create"), QStringLiteral("key")};
    if (!verbs.contains(verb))
        return refuseCall(updateCommandOf, told(QT_TRANSLATE_NOOP("cli", "%1 is none of %2"))
                                               .arg(verb, verbs.join(QLatin1String(", "))));
    const bool hasPath = verb == QLatin1String("create") || verb == QLatin1String("key");
    if (hasPath != (words.size() == 2))
        return refuseCall(updateCommandOf,
                          hasPath ? told(QT_TRANSLATE_NOOP("cli", "an argument is missing"))
                                  : told(QT_TRANSLATE_NOOP("cli", "too many arguments")));
    setting of;
    readSetting(given, known, &of);
    const bool needsAddress = verb == QLatin1String("check") || verb == QLatin1String("install");
    if (needsAddress && of.with.address.isEmpty())
        return refuseCall(updateCommandOf, told(QT_TRANSLATE_NOOP("cli", "give an --address")));
    if (verb == QLatin1String("check"))
        return check(given, known, of);
    if (verb == QLatin1String("install"))
        return installOffer(given, known, of);
    if (verb == QLatin1String("back"))
        return back(of);
    if (verb == QLatin1String("settle"))
        return settleNow(of);
    return verb == QLatin1String("create") ? create(given, known, of, words[1])
                                           : makeKeys(words[1]);
}

} // namespace

const subcommand updateCommandOf{
    "update", QT_TRANSLATE_NOOP("cli", "Updates: looks for them, installs them, makes them."),
    runUpdate};

} // namespace cli

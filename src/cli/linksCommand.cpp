// examine-links: what came of the links of material databases, and copies of their datasheets.
#include "cli/arguments.h"
#include "cli/jsonOutput.h"

#include "database/datasheetCopies.h"
#include "database/linkExamination.h"
#include "util/dataFolder.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QJsonArray>

namespace cli {

namespace {

using namespace linkExamination;

// Waits until the examiner has answered everything; each answer is told as it comes.
void await(linkExaminer &examiner, int count, bool showProgress,
           const std::function<void(const linkReply &)> &told)
{
    if (examiner.isIdle())
        return;
    QEventLoop loop;
    int answered = 0;
    QObject::connect(&examiner, &linkExaminer::told, &loop, [&](const linkReply &reply) {
        told(reply);
        ++answered;
        if (showProgress)
            err() << '\r' << answered << " / " << count << (answered == count ? "\n" : "")
                  << Qt::flush;
    });
    QObject::connect(&examiner, &linkExaminer::finished, &loop, &QEventLoop::quit);
    loop.exec();
}

QJsonObject jsonOf(const materialLink &link, const result &known, const QString &copy)
{
    const linkReply &reply = known.reply;
    QJsonObject object{{QStringLiteral("ktm"), link.ktm},
                       {QStringLiteral("name"), link.name},
                       {QStringLiteral("link"), webLinks::withoutPassword(link.link)},
                       {QStringLiteral("state"), word(reply.state)},
                       {QStringLiteral("caption"), caption(reply)},
                       {QStringLiteral("date"), known.date.toString(Qt::ISODate)}};
    if (reply.status > 0)
        object.insert(QStringLiteral("status"), reply.status);
    if (!reply.movedTo.isEmpty())
        object.insert(QStringLiteral("moved_to"), reply.movedTo);
    if (!reply.type.isEmpty())
        object.insert(QStringLiteral("type"), reply.type);
    if (reply.size >= 0)
        object.insert(QStringLiteral("bytes"), double(reply.size));
    if (!copy.isEmpty())
        object.insert(QStringLiteral("copy"), copy);
    return object;
}

int runExamineLinks(const QStringList &arguments)
{
    parser options(examineLinksCommand, QStringLiteral("DB..."), 1, -1);
    const QCommandLineOption json = jsonOption();
    const QCommandLineOption fetch(
        QStringLiteral("fetch"),
        QCoreApplication::translate("cli", "Fetch copies of the datasheets that answer, too."));
    const QCommandLineOption daysOption(
        QStringLiteral("days"),
        QCoreApplication::translate("cli",
                                    "How many days a kept result counts; 0: examine all again."),
        QStringLiteral("N"), QString::number(usualDays));
    const QCommandLineOption showProgress(
        QStringLiteral("progress"),
        QCoreApplication::translate("cli", "Tell on standard error how many links are examined."));
    options.addOptions({json, fetch, daysOption, showProgress});
    if (!options.accept(arguments))
        return options.code();
    bool isNumber = false;
    const int days = options.value(daysOption).toInt(&isNumber);
    if (!isNumber || days < 0)
        return refuseCall(examineLinksCommand,
                          QCoreApplication::translate("cli", "--days takes a number of days"));
    databaseSet databases;
    if (!databases.load(options.positionalArguments()))
        return refused;
    std::vector<materialLink> links;
    for (const auto &database : databases.all()) {
        const std::vector<materialLink> more = linksOf(*database);
        links.insert(links.end(), more.begin(), more.end());
    }

    // As the program with windows does where its own folder cannot be written.
    if (options.isSet(fetch) && !dataFolder::isWritable(paths::programDir()))
        paths::setDataDir(paths::userDir());
    results known = load();
    results newer;
    {
        linkExaminer examiner;
        const QStringList asked = toExamine(links, known, days, QDateTime::currentDateTimeUtc());
        for (const QString &link : asked)
            examiner.examine(link);
        await(examiner, asked.size(), options.isSet(showProgress), [&](const linkReply &reply) {
            newer.insert(reply.link, {reply, QDateTime::currentDateTimeUtc()});
            // A long run may be interrupted.
            if (constexpr int part = 200; newer.size() % part == 0)
                keep(newer);
        });
    }
    for (auto one = newer.begin(); one != newer.end(); ++one)
        known.insert(one.key(), *one);
    int code = done;
    if (!newer.isEmpty() && !keep(newer))
        code = cannotWrite(file());

    QSet<QString> copies = datasheetCopies::names();
    bool allGood = true;
    if (options.isSet(fetch)) {
        linkExaminer examiner;
        const QStringList asked = toFetch(links, known, copies);
        for (const QString &link : asked)
            examiner.fetch(link, datasheetCopies::baseOf(link));
        await(examiner, asked.size(), options.isSet(showProgress), [&](const linkReply &reply) {
            if (doesAnswer(reply.state)) {
                copies.insert(QFileInfo(reply.file).fileName());
                return;
            }
            allGood = false;
            code = reply.state == linkState::notSaved ? int(notWritten) : code;
            err() << webLinks::withoutPassword(reply.link) << ": " << caption(reply) << '\n'
                  << Qt::flush;
        });
    }

    QJsonArray list;
    for (const materialLink &link : links) {
        const result came = known.value(link.link);
        const linkState state = came.reply.state;
        allGood = allGood && doesAnswer(state);
        if (options.isSet(json))
            list.append(jsonOf(link, came, datasheetCopies::of(link.link, &copies)));
        else if (state != linkState::answers)
            out() << word(state) << '\t' << link.ktm << '\t' << webLinks::withoutPassword(link.link)
                  << '\t'
                  << (came.reply.movedTo.isEmpty() ? caption(came.reply) : came.reply.movedTo)
                  << '\n';
    }
    if (options.isSet(json))
        printJson({{QStringLiteral("links"), list}});
    out() << Qt::flush;
    return code != done ? code : allGood ? done : refused;
}

} // namespace

const subcommand examineLinksCommand{
    "examine-links",
    QT_TRANSLATE_NOOP("cli",
                      "Examines the links of material databases over HTTP and HTTPS, and lists "
                      "those that moved or do not answer. Exit code 1 when some do not."),
    runExamineLinks};

} // namespace cli

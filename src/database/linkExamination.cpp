#include "database/linkExamination.h"

#include "data/kiv_mat_databaseStruct.h"
#include "database/datasheetCopies.h"
#include "util/files.h"
#include "util/paths.h"

#include <QCoreApplication>

#include <algorithm>

namespace linkExamination {

namespace {

struct stateWords
{
    linkState state;
    const char *word;
    const char *caption;
};

const stateWords allWords[] = {
    {linkState::answers, "answers", QT_TRANSLATE_NOOP("linkExamination", "answers")},
    {linkState::moved, "moved", QT_TRANSLATE_NOOP("linkExamination", "moved for good")},
    {linkState::redirected, "redirected", QT_TRANSLATE_NOOP("linkExamination", "moved for now")},
    {linkState::missing, "missing", QT_TRANSLATE_NOOP("linkExamination", "is gone")},
    {linkState::refused, "refused", QT_TRANSLATE_NOOP("linkExamination", "is refused")},
    {linkState::failing, "failing", QT_TRANSLATE_NOOP("linkExamination", "the server fails")},
    {linkState::silent, "silent", QT_TRANSLATE_NOOP("linkExamination", "no answer in time")},
    {linkState::unreachable, "unreachable",
     QT_TRANSLATE_NOOP("linkExamination", "cannot be reached")},
    {linkState::untrusted, "untrusted",
     QT_TRANSLATE_NOOP("linkExamination", "the certificate is not trusted")},
    {linkState::circular, "circular",
     QT_TRANSLATE_NOOP("linkExamination", "is redirected in a circle")},
    {linkState::notWeb, "not_web", QT_TRANSLATE_NOOP("linkExamination", "no web address")},
    {linkState::tooLarge, "too_large", QT_TRANSLATE_NOOP("linkExamination", "is too large")},
    {linkState::wrongType, "wrong_type",
     QT_TRANSLATE_NOOP("linkExamination", "is no PDF or picture")},
    {linkState::notSaved, "not_saved", QT_TRANSLATE_NOOP("linkExamination", "cannot be saved")},
};

const stateWords &wordsOf(linkState state)
{
    return *std::find_if(std::begin(allWords), std::end(allWords),
                         [state](const stateWords &one) { return one.state == state; });
}

// Visits the files of a database: the material and the file.
template <class Visit>
void forEachFile(const kiv_mat_databaseStruct &database, const Visit &visit)
{
    const auto ofSources = [&visit](materialStruct &material, const auto &sources) {
        for (const auto &source : sources.items)
            for (const auto &file : source->files.items)
                visit(material, *file);
    };
    for (const auto &group : database.groups)
        for (const auto &material : group->items) {
            ofSources(*material, material->manufacturers);
            ofSources(*material, material->suppliers);
        }
}

// One line's field: tabs and line ends part fields and lines.
QString field(const QString &text) { return text.simplified(); }

bool isKept(const QString &link)
{
    return webLinks::withoutPassword(link) == link
           && std::none_of(link.begin(), link.end(),
                           [](QChar letter) { return letter < QLatin1Char(' '); });
}

bool isPdf(const QString &path)
{
    return path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive);
}

} // namespace

std::vector<materialLink> linksOf(const kiv_mat_databaseStruct &database)
{
    std::vector<materialLink> links;
    forEachFile(database, [&links](const materialStruct &material, const fileStruct &one) {
        if (!one.name.trimmed().isEmpty())
            links.push_back({material.d_ktm, material.d_name, one.type, one.name});
    });
    return links;
}

QString file() { return paths::userDir() + QLatin1String("/links.txt"); }

results read(const QString &text)
{
    enum place
    {
        linkPlace,
        datePlace,
        statePlace,
        statusPlace,
        movedPlace,
        typePlace,
        sizePlace,
        reasonPlace,
        placeCount
    };
    results known;
    const auto lines = text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QStringRef &line : lines) {
        const auto fields = line.split(QLatin1Char('\t'));
        if (fields.size() != placeCount)
            continue;
        const auto *words = std::find_if(std::begin(allWords), std::end(allWords),
                                         [&fields](const stateWords &one) {
                                             return fields[statePlace] == QLatin1String(one.word);
                                         });
        const QDateTime date = QDateTime::fromString(fields[datePlace].toString(), Qt::ISODate);
        bool isNumber = false;
        const qint64 size = fields[sizePlace].toLongLong(&isNumber);
        if (words == std::end(allWords) || !date.isValid() || !isNumber
            || fields[linkPlace].isEmpty())
            continue;
        const QString moved = fields[movedPlace].toString();
        if (words->state == linkState::moved && !webLinks::addressOf(moved).isValid())
            continue;
        const QString link = fields[linkPlace].toString();
        known.insert(link, {{link,
                             words->state,
                             fields[statusPlace].toInt(),
                             moved,
                             fields[typePlace].toString(),
                             size,
                             fields[reasonPlace].toString(),
                             {}},
                            date});
    }
    return known;
}

QString written(const results &known, const QDateTime &now)
{
    QStringList lines;
    for (auto one = known.begin(); one != known.end(); ++one) {
        const linkReply &reply = one->reply;
        if (!isKept(one.key()) || one->date < now.addYears(-1))
            continue;
        lines.append(QStringList{one.key(), one->date.toUTC().toString(Qt::ISODate),
                                 word(reply.state), QString::number(reply.status),
                                 field(reply.movedTo), field(reply.type),
                                 QString::number(reply.size), field(reply.reason)}
                         .join(QLatin1Char('\t')));
    }
    lines.sort();
    return lines.isEmpty() ? QString() : lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

results load() { return read(files::readText(file())); }

bool keep(const results &newer)
{
    results all = load();
    for (auto one = newer.begin(); one != newer.end(); ++one)
        all.insert(one.key(), *one);
    return files::writeText(file(), written(all, QDateTime::currentDateTimeUtc()));
}

bool isFresh(const result &known, int days, const QDateTime &now)
{
    const linkState state = known.reply.state;
    const bool saysLittle = state == linkState::failing || state == linkState::silent
                            || state == linkState::unreachable;
    const QDateTime last = known.date.addDays(saysLittle ? std::min(days, 1) : days);
    // A clock that was wrong must not keep a result for ever.
    return known.date.isValid() && now < last && known.date <= now.addDays(1);
}

QStringList toExamine(const std::vector<materialLink> &links, const results &known, int days,
                      const QDateTime &now)
{
    QSet<QString> seen;
    QStringList asked;
    for (const materialLink &one : links) {
        if (seen.contains(one.link))
            continue;
        seen.insert(one.link);
        const auto found = known.find(one.link);
        if (found == known.end() || !isFresh(*found, days, now))
            asked.append(one.link);
    }
    return asked;
}

QStringList toFetch(const std::vector<materialLink> &links, const results &known,
                    const QSet<QString> &copies)
{
    QSet<QString> seen;
    QStringList asked;
    for (const materialLink &one : links) {
        if (one.kind != QLatin1String("FILE_DATASHEET") || seen.contains(one.link))
            continue;
        seen.insert(one.link);
        const auto found = known.find(one.link);
        if (found != known.end() && doesAnswer(found->reply.state)
            && datasheetCopies::of(one.link, &copies).isEmpty())
            asked.append(one.link);
    }
    return asked;
}

bool doesAnswer(linkState state)
{
    return state == linkState::answers || state == linkState::moved
           || state == linkState::redirected;
}

bool isDoubtful(const linkReply &reply)
{
    const auto isFront = [](const QUrl &url) { return url.path().size() < 2 && !url.hasQuery(); };
    const QUrl before(reply.link);
    const QUrl after(reply.movedTo);
    // The new address comes without the name and password that the link may need.
    if (isFront(after) || !before.userInfo().isEmpty())
        return !isFront(before) || !before.userInfo().isEmpty();
    const bool isPage = reply.type == QLatin1String("text/html");
    return isPdf(before.path()) && reply.type != QLatin1String("application/pdf")
           && (isPage || !isPdf(after.path()));
}

QString word(linkState state) { return QLatin1String(wordsOf(state).word); }

QString caption(const linkReply &reply)
{
    QString text = QCoreApplication::translate("linkExamination", wordsOf(reply.state).caption);
    if (!doesAnswer(reply.state) && reply.status > 0 && reply.reason.isEmpty()
        && reply.state < linkState::notWeb && reply.state != linkState::circular)
        text += QStringLiteral(" (%1)").arg(reply.status);
    return reply.reason.isEmpty() ? text
                                  : text + QLatin1String(": ")
                                        + QCoreApplication::translate(
                                            "linkReasons", reply.reason.toUtf8().constData());
}

std::vector<firmOperations::nameChange> changesOf(kiv_mat_databaseStruct &database,
                                                  const std::vector<replacement> &replacements)
{
    QHash<QPair<QString, QString>, QString> wanted;
    for (const replacement &one : replacements)
        wanted.insert({one.ktm, one.before}, one.after);
    std::vector<firmOperations::nameChange> changes;
    forEachFile(database, [&](materialStruct &material, fileStruct &one) {
        const auto found = wanted.constFind({material.d_ktm, one.name});
        if (found != wanted.constEnd() && *found != one.name)
            changes.push_back({&material, &one.name, one.name, *found});
    });
    return changes;
}

} // namespace linkExamination

#include "update/updateJournal.h"

#include "util/diskSync.h"
#include "util/files.h"
#include "util/safeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QUuid>

#include <filesystem>
#include <memory>
#include <optional>

namespace updateJournal {

namespace {

const QString ownFolder = QStringLiteral("update");

struct entry
{
    QString place;
    QString source; // below the entry's folder; empty: the place is emptied
    QString kept;   // below it; empty: nothing was there
    bool goesBack = true;
};

struct journal
{
    QString stage;  // a word of words
    QString folder; // below root
    QString version;
    QString before;
    bool begun = false; // the new program was started once
    std::vector<entry> entries;
};

struct stageWord
{
    stage of;
    QLatin1String word;
};
const stageWord words[] = {
    {stage::installing, QLatin1String("installing")},
    {stage::installed, QLatin1String("installed")},
    {stage::started, QLatin1String("started")},
    {stage::goingBack, QLatin1String("going back")},
};

QString wordOf(stage of)
{
    for (const stageWord &one : words)
        if (one.of == of)
            return one.word;
    return {};
}

stage stageCalled(const QString &word)
{
    for (const stageWord &one : words)
        if (word == one.word)
            return one.of;
    return stage::unreadable;
}

QString journalPath(const QString &root)
{
    return root + QLatin1Char('/') + ownFolder + QLatin1String("/journal.json");
}

// A damaged or foreign journal must not move anything elsewhere.
bool isBelow(const QString &place)
{
    return !place.isEmpty() && QDir::isRelativePath(place) && QDir::cleanPath(place) == place
           && !place.startsWith(QLatin1String("..")) && !place.contains(QLatin1Char('\\'));
}

// Nothing where there is no journal; one with an empty stage where it is damaged.
std::optional<journal> read(const QString &root)
{
    QFile file(journalPath(root));
    if (!file.exists())
        return {};
    journal found;
    if (!file.open(QIODevice::ReadOnly))
        return found;
    const QJsonObject all = QJsonDocument::fromJson(file.readAll()).object();
    found.folder = all.value(QLatin1String("folder")).toString();
    found.version = all.value(QLatin1String("version")).toString();
    found.before = all.value(QLatin1String("before")).toString();
    found.begun = all.value(QLatin1String("begun")).toBool();
    bool isGood = isBelow(found.folder);
    for (const auto &value : all.value(QLatin1String("files")).toArray()) {
        const QJsonObject one = value.toObject();
        entry of{one.value(QLatin1String("place")).toString(),
                 one.value(QLatin1String("source")).toString(),
                 one.value(QLatin1String("kept")).toString(),
                 one.value(QLatin1String("goesBack")).toBool(true)};
        isGood = isGood && isBelow(of.place) && (of.source.isEmpty() || isBelow(of.source))
                 && (of.kept.isEmpty() || isBelow(of.kept));
        found.entries.push_back(std::move(of));
    }
    if (isGood)
        found.stage = all.value(QLatin1String("stage")).toString();
    return found;
}

QString write(const QString &root, const journal &of)
{
    QJsonArray entries;
    for (const entry &one : of.entries)
        entries.append(QJsonObject{{QStringLiteral("place"), one.place},
                                   {QStringLiteral("source"), one.source},
                                   {QStringLiteral("kept"), one.kept},
                                   {QStringLiteral("goesBack"), one.goesBack}});
    const QByteArray text = QJsonDocument(QJsonObject{{QStringLiteral("stage"), of.stage},
                                                      {QStringLiteral("folder"), of.folder},
                                                      {QStringLiteral("version"), of.version},
                                                      {QStringLiteral("before"), of.before},
                                                      {QStringLiteral("begun"), of.begun},
                                                      {QStringLiteral("files"), entries}})
                                .toJson();
    safeFile file(journalPath(root));
    if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
        return {};
    return QDir::toNativeSeparators(journalPath(root)) + QLatin1String(": ") + file.errorString();
}

// In one step where the system can; a running program on Windows has to be moved out of the way
// first.
bool moveOver(const QString &from, const QString &to)
{
    const auto name = [](const QString &path) {
        return std::filesystem::path(path.toStdU16String());
    };
    std::error_code fault;
    QDir().mkpath(QFileInfo(to).absolutePath());
    std::filesystem::rename(name(from), name(to), fault);
    if (!fault)
        return true;
    const QString aside = to + QLatin1String(".before-update");
    QFile::remove(aside);
    std::filesystem::rename(name(to), name(aside), fault);
    if (fault)
        return false;
    std::filesystem::rename(name(from), name(to), fault);
    if (fault) {
        std::filesystem::rename(name(aside), name(to), fault);
        return false;
    }
    QFile::remove(aside); // which cannot be while it runs; settle() removes it
    return true;
}

bool empty(const QString &path) { return !QFileInfo::exists(path) || QFile::remove(path); }

// A copy that is on the disk when this returns.
QString keep(const QString &from, const QString &to)
{
    QDir().mkpath(QFileInfo(to).absolutePath());
    QFile file(from);
    if (!file.copy(to))
        return QDir::toNativeSeparators(to) + QLatin1String(": ") + file.errorString();
    QFile copy(to);
    copy.setPermissions(copy.permissions() | QFileDevice::WriteOwner);
    if (copy.open(QIODevice::ReadWrite))
        syncToDisk(copy);
    copy.setPermissions(file.permissions());
    return QFileInfo(to).size() == QFileInfo(from).size()
               ? QString()
               : QDir::toNativeSeparators(to) + QLatin1String(": ") + copy.errorString();
}

// Moves what is not moved yet.
QStringList moveAll(const QString &root, const journal &of)
{
    QStringList faults;
    const QString base = root + QLatin1Char('/') + of.folder + QLatin1Char('/');
    for (const entry &one : of.entries) {
        const QString place = root + QLatin1Char('/') + one.place;
        const bool good = one.source.isEmpty() ? empty(place)
                                               : !QFileInfo::exists(base + one.source)
                                                     || moveOver(base + one.source, place);
        if (!good)
            faults.append(QDir::toNativeSeparators(place));
        QFile::remove(place + QLatin1String(".before-update"));
    }
    return faults;
}

// The folders of other updates, of which no journal speaks.
void removeOthers(const QString &root, const QString &folder)
{
    const QDir own(root + QLatin1Char('/') + ownFolder);
    for (const QString &name : own.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        if (ownFolder + QLatin1Char('/') + name != folder && name != QLatin1String("base"))
            files::removeFolder(own.filePath(name));
}

// One program updates at a time; nobody waits.
class claim
{
public:
    explicit claim(const QString &root)
        : m_lock(root + QLatin1Char('/') + ownFolder + QLatin1String("/lock"))
    {
        m_lock.setStaleLockTime(0); // whose owner is dead is void at once
        m_taken = m_lock.tryLock(0);
    }
    bool isTaken() const { return m_taken; }

private:
    QLockFile m_lock;
    bool m_taken = false;
};

// Held from begin() to install() or discard().
std::unique_ptr<claim> &held()
{
    static std::unique_ptr<claim> one;
    return one;
}

// Finishes the stage that moves, and notes that it is finished.
QStringList finish(const QString &root, journal of)
{
    const QStringList faults = moveAll(root, of);
    if (!faults.isEmpty())
        return faults;
    const bool isBack = of.stage == wordOf(stage::goingBack);
    of.stage = wordOf(stage::installed);
    if (isBack ? !QFile::remove(journalPath(root)) : !write(root, of).isEmpty())
        return {QDir::toNativeSeparators(journalPath(root))};
    removeOthers(root, isBack ? QString() : of.folder);
    // Only what was replaced is of use any more.
    for (const char *name : {"/new", "/temp"})
        files::removeFolder(root + QLatin1Char('/') + of.folder + QLatin1String(name));
    return {};
}

} // namespace

stage stageOf(const QString &root, QString *version, QString *before)
{
    const auto found = read(root);
    if (!found)
        return stage::none;
    if (version)
        *version = found->version;
    if (before)
        *before = found->before;
    return stageCalled(found->stage);
}

QString begin(const QString &root, QString *fault)
{
    const QString own = root + QLatin1Char('/') + ownFolder;
    if (!QDir().mkpath(own)) {
        *fault = QDir::toNativeSeparators(own) + QLatin1String(": ") + files::whyNotWritten(own);
        return {};
    }
    held() = std::make_unique<claim>(root);
    if (!held()->isTaken()) {
        held().reset();
        *fault = QCoreApplication::translate("updates",
                                             "Another program is updating, or cannot write %1")
                     .arg(QDir::toNativeSeparators(own));
        return {};
    }
    const QString folder =
        own + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::Id128).left(8);
    if (QDir().mkpath(folder + QLatin1String("/new")))
        return folder;
    held().reset();
    *fault = QDir::toNativeSeparators(folder) + QLatin1String(": ") + files::whyNotWritten(folder);
    return {};
}

void discard(const QString &folder)
{
    files::removeFolder(folder);
    held().reset();
}

QString install(const QString &root, const QString &folder, const std::vector<change> &changes,
                const QString &version, const QString &before)
{
    journal of;
    of.stage = wordOf(stage::installing);
    of.folder = QDir(root).relativeFilePath(folder);
    of.version = version;
    of.before = before;
    QString fault;
    for (size_t i = 0; i < changes.size() && fault.isEmpty(); ++i) {
        const change &one = changes[i];
        entry made{one.place, {}, {}, one.goesBack};
        const QString place = root + QLatin1Char('/') + one.place;
        if (QFileInfo::exists(place)) {
            made.kept = QStringLiteral("old/%1").arg(i);
            fault = keep(place, folder + QLatin1Char('/') + made.kept);
        }
        if (!one.source.isEmpty()) {
            made.source = QDir(folder).relativeFilePath(one.source);
            QFile file(one.source);
            if (file.open(QIODevice::ReadWrite))
                syncToDisk(file);
        }
        of.entries.push_back(std::move(made));
    }
    if (fault.isEmpty())
        fault = write(root, of);
    if (!fault.isEmpty()) {
        discard(folder);
        return fault;
    }
    const QStringList faults = finish(root, of);
    held().reset();
    return faults.isEmpty()
               ? QString()
               : QCoreApplication::translate(
                     "updates", "%1 cannot be replaced now; it is replaced at the next start")
                     .arg(faults.join(QLatin1String(", ")));
}

settled settle(const QString &root)
{
    settled result;
    if (!QFileInfo(root + QLatin1Char('/') + ownFolder).isDir())
        return result;
    const claim own(root);
    if (!own.isTaken())
        return result;
    const auto found = read(root);
    if (!found) {
        removeOthers(root, {});
        return result;
    }
    const stage at = stageCalled(found->stage);
    if (at == stage::installing || at == stage::goingBack) {
        result.faults = finish(root, *found);
        result.wasUnfinished = result.faults.isEmpty();
    } else if (at != stage::unreadable) {
        removeOthers(root, found->folder);
    }
    return result;
}

bool beginsAgain(const QString &root)
{
    auto found = read(root);
    if (!found || stageCalled(found->stage) != stage::installed)
        return false;
    if (found->begun)
        return true;
    found->begun = true;
    write(root, *found);
    return false;
}

void noteStarted(const QString &root)
{
    auto found = read(root);
    if (!found || stageCalled(found->stage) != stage::installed)
        return;
    found->stage = wordOf(stage::started);
    write(root, *found);
}

QString goBack(const QString &root)
{
    auto found = read(root);
    const stage at = found ? stageCalled(found->stage) : stage::none;
    if (at != stage::installed && at != stage::started)
        return QCoreApplication::translate("updates", "There is no version to go back to");
    const claim own(root);
    if (!own.isTaken())
        return QCoreApplication::translate("updates",
                                           "Another program is updating, or cannot write %1")
            .arg(QDir::toNativeSeparators(root + QLatin1Char('/') + ownFolder));
    journal back;
    back.stage = wordOf(stage::goingBack);
    back.folder = found->folder;
    back.version = found->before;
    back.before = found->version;
    // In the reverse order: the program itself comes first.
    for (auto one = found->entries.rbegin(); one != found->entries.rend(); ++one)
        if (one->goesBack)
            back.entries.push_back({one->place, one->kept, {}, true});
    if (const QString fault = write(root, back); !fault.isEmpty())
        return fault;
    const QStringList faults = finish(root, back);
    return faults.isEmpty()
               ? QString()
               : QCoreApplication::translate(
                     "updates", "%1 cannot be replaced now; it is replaced at the next start")
                     .arg(faults.join(QLatin1String(", ")));
}

} // namespace updateJournal

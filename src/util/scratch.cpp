#include "util/scratch.h"

#include "util/fileInUse.h"
#include "util/files.h"
#include "util/paths.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QRegularExpression>

#include <memory>

namespace {

QString lockOf(const QString &folder) { return folder + QLatin1String("/.lock"); }

std::unique_ptr<QLockFile> claimed(const QString &folder)
{
    auto lock = std::make_unique<QLockFile>(lockOf(folder));
    // Only the lock of a dead program is void, however old it is.
    lock->setStaleLockTime(0);
    return lock->tryLock() ? std::move(lock) : nullptr;
}

// Goes with the program.
struct ownFolder
{
    std::unique_ptr<QLockFile> lock;
    ~ownFolder()
    {
        if (lock)
            scratch::remove();
    }
};

ownFolder &own()
{
    static ownFolder one;
    return one;
}

// The name that safeFile gives a temporary file beside the one that it saves. Anything else was put
// there by somebody else, however it looks.
bool isOwn(const QString &end)
{
    static const QRegularExpression form(QStringLiteral("^kivzp-[A-Za-z]{6}$"));
    return form.match(end).hasMatch();
}

// Where that cannot be told, what was not written to for a day is nobody's.
bool isAbandoned(const QFileInfo &file)
{
    constexpr int longestSaving = 24 * 60 * 60;
    const std::optional<bool> used = fileInUse(file.filePath());
    return used ? !*used : file.lastModified().secsTo(QDateTime::currentDateTime()) > longestSaving;
}

} // namespace

namespace scratch {

QString folder()
{
    const QString path = paths::temporaryDir();
    if (own().lock && QFileInfo::exists(lockOf(path)))
        return path;
    own().lock.reset();
    // The command line has no start of its own at which to do it.
    clearLeft();
    if (files::makePrivateFolder(path))
        own().lock = claimed(path);
    return own().lock ? path : QString();
}

QString pattern(const QString &suffix)
{
    const QString path = folder();
    return (path.isEmpty() ? QDir::tempPath() + QLatin1String("/KivZP-XXXXXX")
                           : path + QLatin1String("/XXXXXX"))
           + suffix;
}

void remove()
{
    own().lock.reset();
    files::removeFolder(paths::temporaryDir());
}

void leave() { own().lock.reset(); }

void clearLeft()
{
    const QFileInfoList all =
        QDir(QDir::tempPath())
            .entryInfoList({QStringLiteral("KivZP-??????")},
                           QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    for (const QFileInfo &left : all) {
        const QString path = left.filePath();
        // Somebody else's cannot be made private.
        if (!QFileInfo::exists(lockOf(path)) || !files::makePrivateFolder(path) || !claimed(path))
            continue;
        files::removeFolder(path);
    }
}

void clearLeftSaves(const QString &path)
{
    if (path.isEmpty())
        return;
    const QFileInfo saved(path);
    const QString beginning = saved.fileName() + QLatin1Char('.');
    const QFileInfoList all =
        saved.absoluteDir().entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &file : all)
        if (file.fileName().startsWith(beginning) && isOwn(file.fileName().mid(beginning.size()))
            && isAbandoned(file))
            QFile::remove(file.filePath());
}

} // namespace scratch

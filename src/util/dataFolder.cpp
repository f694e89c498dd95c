#include "util/dataFolder.h"

#include "util/files.h"
#include "util/safeFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSettings>
#include <QTemporaryFile>

namespace {

// Which state of a shared file the user's one goes back to, and how that was then.
class origins
{
public:
    origins(const QString &programDir, const QString &userDir)
        : m_programDir(programDir)
        , m_userDir(userDir)
        , m_settings(userDir + QLatin1String("/.shared.ini"), QSettings::IniFormat)
    {
    }

    QString shared(const QString &name) const { return m_programDir + QLatin1Char('/') + name; }
    QString own(const QString &name) const { return m_userDir + QLatin1Char('/') + name; }

    bool isKnown(const QString &name) const { return m_settings.contains(name); }
    bool isSharedAsThen(const QString &name) const
    {
        return m_settings.value(name).toStringList().value(0) == stateOf(shared(name));
    }
    bool isOwnAsThen(const QString &name) const
    {
        return m_settings.value(name).toStringList().value(1) == stateOf(own(name));
    }

    // ownIsCopy: what stands in the user's file came from the shared one.
    void note(const QString &name, bool ownIsCopy)
    {
        const QString before = m_settings.value(name).toStringList().value(1);
        m_settings.setValue(
            name, QStringList{stateOf(shared(name)), ownIsCopy ? stateOf(own(name)) : before});
    }

private:
    static QString stateOf(const QString &path)
    {
        const QFileInfo info(path);
        return QStringLiteral("%1 %2")
            .arg(info.size())
            .arg(info.lastModified().toMSecsSinceEpoch());
    }

    QString m_programDir;
    QString m_userDir;
    QSettings m_settings;
};

QStringList filesBelow(const QString &programDir)
{
    QStringList names;
    const QDir from(programDir);
    for (const char *folder : {"_config", "_files", "_zp", "_e-mail"}) {
        QDirIterator it(from.filePath(QLatin1String(folder)), QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            names.append(from.relativeFilePath(it.next()));
    }
    return names;
}

} // namespace

namespace dataFolder {

bool isWritable(const QString &dir)
{
    QTemporaryFile probe(dir + QLatin1String("/.kivzp-XXXXXX"));
    return probe.open();
}

choice choose(const QString &programDir, const QString &userDir)
{
    if (isWritable(programDir))
        return {programDir, false, {}, {}};
    choice result{userDir, true, {}, {}};
    origins known(programDir, userDir);
    const QStringList names = filesBelow(programDir);
    for (const QString &name : names) {
        const QString target = known.own(name);
        if (QFile::exists(target))
            continue;
        const bool made =
            QDir().mkpath(QFileInfo(target).absolutePath())
            && QFile::copy(known.shared(name), target)
            // The copy of a read-only file is to be edited.
            && QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
        (made ? result.copied : result.failed).append(target);
        if (made)
            known.note(name, true);
    }
    return result;
}

std::vector<newerFile> newerFiles(const QString &programDir, const QString &userDir)
{
    std::vector<newerFile> newer;
    origins known(programDir, userDir);
    const QStringList names = filesBelow(programDir);
    for (const QString &name : names) {
        const QFileInfo own(known.own(name));
        if (!own.exists() || (known.isKnown(name) && known.isSharedAsThen(name)))
            continue;
        const QFileInfo shared(known.shared(name));
        if (files::sameContent(shared.filePath(), own.filePath()))
            known.note(name, true);
        else if (known.isKnown(name) || shared.lastModified() > own.lastModified())
            newer.push_back({name, shared.lastModified(), !known.isOwnAsThen(name)});
    }
    return newer;
}

bool take(const QString &name, const QString &programDir, const QString &userDir)
{
    origins known(programDir, userDir);
    QFile shared(known.shared(name));
    safeFile own(known.own(name));
    if (!shared.open(QIODevice::ReadOnly) || !own.open(QIODevice::WriteOnly)
        || own.write(shared.readAll()) != shared.size() || !own.commit())
        return false;
    known.note(name, true);
    return true;
}

void decline(const QString &name, const QString &programDir, const QString &userDir)
{
    origins(programDir, userDir).note(name, false);
}

} // namespace dataFolder

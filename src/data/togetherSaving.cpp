#include "data/togetherSaving.h"

#include "data/documentStruct.h"
#include "data/loaders.h"
#include "util/fileLock.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <filesystem>

namespace fs = std::filesystem;

namespace {

QString told(const char *text) { return QCoreApplication::translate("data", text); }

fs::path systemPath(const QString &path) { return QFile::encodeName(path).toStdString(); }

// A file of its own beside another one, which goes with the object unless it was moved away. By its
// name it is cleared when the program is killed meanwhile.
class besideFile
{
public:
    explicit besideFile(const QString &path)
    {
        QTemporaryFile made(path + QLatin1String(".kivzp-XXXXXX"));
        if (!made.open()) {
            m_fault = made.errorString();
            return;
        }
        made.setAutoRemove(false);
        m_name = made.fileName();
    }
    ~besideFile()
    {
        if (!m_name.isEmpty())
            QFile::remove(m_name);
    }
    besideFile(const besideFile &) = delete;
    besideFile &operator=(const besideFile &) = delete;

    const QString &name() const { return m_name; } // empty when there is none
    const QString &fault() const { return m_fault; }

    // In the place of another file, in one step.
    bool moveTo(const QString &path)
    {
        std::error_code fault;
        fs::rename(systemPath(m_name), systemPath(path), fault);
        if (fault)
            m_fault = QString::fromLocal8Bit(fault.message().c_str());
        else
            m_name.clear();
        return !fault;
    }
    // Becomes a copy of another file, with its time and permissions.
    bool copyFrom(const QString &path)
    {
        std::error_code fault;
        fs::copy_file(systemPath(path), systemPath(m_name), fs::copy_options::overwrite_existing,
                      fault);
        if (!fault)
            fs::last_write_time(systemPath(m_name), fs::last_write_time(systemPath(path)), fault);
        QFile::setPermissions(m_name, QFile::permissions(path));
        if (fault)
            m_fault = QString::fromLocal8Bit(fault.message().c_str());
        return !fault;
    }

private:
    QString m_name;
    QString m_fault;
};

// One of the files on its way.
struct waiting
{
    const changedDocument *of;
    QString target; // what a link leads to
    fileLock lock;
    std::unique_ptr<besideFile> fresh;
    std::unique_ptr<besideFile> old; // as the file was, to be put back
    fileState written;               // of the new file
    bool isInPlace = false;

    explicit waiting(const changedDocument &document)
        : of(&document)
        , target(QFileInfo(document.path).canonicalFilePath())
    {
    }

    QString changedMeanwhile() const
    {
        return !QFileInfo::exists(target) ? told(QT_TRANSLATE_NOOP("data", "it is gone"))
               : fileState::of(target) == of->state
                   ? QString()
                   : told(QT_TRANSLATE_NOOP("data", "it was changed meanwhile"));
    }

    // Beside the old file; the reason when that cannot be.
    QString write()
    {
        if (QString fault = changedMeanwhile(); !fault.isEmpty())
            return fault;
        if (!QFileInfo(target).isWritable())
            return told(QT_TRANSLATE_NOOP("data", "the file is read-only"));
        const QStringList others = fileLock::othersOf(of->path);
        if (!others.isEmpty())
            return told(QT_TRANSLATE_NOOP("data", "it is open in %1"))
                .arg(others.join(QLatin1String("; ")));
        lock.claim(of->path);
        fresh = std::make_unique<besideFile>(target);
        if (fresh->name().isEmpty())
            return fresh->fault();
        QString fault;
        if (saveXmlNoEvents(fresh->name(), of->document, &fault, {}, saveRule::onlyGood) < 0)
            return fault;
        QFile::setPermissions(fresh->name(), QFile::permissions(target));
        return {};
    }

    QString keep(configStruct &config)
    {
        if (!keepVersion(of->path, config))
            return versionFault();
        old = std::make_unique<besideFile>(target);
        return old->name().isEmpty() || !old->copyFrom(target) ? old->fault() : QString();
    }

    QString putInPlace()
    {
        if (QString fault = changedMeanwhile(); !fault.isEmpty())
            return fault;
        written = fileState::of(fresh->name());
        isInPlace = fresh->moveTo(target);
        return isInPlace ? QString() : fresh->fault();
    }

    // The reason when that cannot be; what another program made of the new file stays.
    QString putBack()
    {
        if (!isInPlace)
            return {};
        if (!(fileState::of(target) == written))
            return changedMeanwhile();
        isInPlace = !old->moveTo(target);
        return isInPlace ? old->fault() : QString();
    }
};

QString named(const waiting &file, const QString &reason)
{
    return QDir::toNativeSeparators(file.of->path) + QLatin1String(": ") + reason;
}

} // namespace

togetherResult saveTogether(const std::vector<changedDocument> &documents, configStruct &config,
                            const progressFunction &progress, QString *fault)
{
    std::vector<std::unique_ptr<waiting>> files;
    for (const changedDocument &document : documents)
        files.push_back(std::make_unique<waiting>(document));
    constexpr int phases = 3;
    const long long total = phases * static_cast<long long>(files.size());
    long long done = 0;
    const auto goesOn = [&] { return !progress || progress(++done, total); };

    for (const auto &step : {+[](waiting &file, configStruct &) { return file.write(); },
                             +[](waiting &file, configStruct &in) { return file.keep(in); }})
        for (const auto &file : files) {
            const QString reason = step(*file, config);
            if (!reason.isEmpty()) {
                *fault = named(*file, reason);
                return togetherResult::failed;
            }
            if (!goesOn())
                return togetherResult::cancelled;
        }

    QString failed;
    for (const auto &file : files) {
        const QString reason = file->putInPlace();
        if (!reason.isEmpty()) {
            failed = named(*file, reason);
            break;
        }
        goesOn();
    }
    if (!failed.isEmpty()) {
        for (const auto &file : files)
            if (const QString reason = file->putBack(); !reason.isEmpty())
                failed +=
                    QLatin1Char('\n')
                    + named(*file, told(QT_TRANSLATE_NOOP(
                                            "data", "it could not be put back as it was (%1); the "
                                                    "file is among its earlier versions"))
                                       .arg(reason));
        *fault = failed;
        return togetherResult::failed;
    }
    for (const auto &file : files)
        userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(file->of->path),
                                         file->of->path));
    return togetherResult::saved;
}

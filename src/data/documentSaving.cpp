#include "data/documentSaving.h"

#include "data/configStruct.h"
#include "data/documentStruct.h"
#include "data/loaders.h"
#include "data/vocabulary.h"
#include "util/beside.h"
#include "util/fileVersions.h"
#include "util/messages.h"
#include "util/prompts.h"
#include "util/scratch.h"
#include "util/text.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

fileState fileState::of(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() ? fileState{info.size(), info.lastModified()} : fileState{};
}

namespace {

QString &lastVersionFault()
{
    static QString fault;
    return fault;
}

} // namespace

QString versionFault() { return lastVersionFault(); }

namespace {

bool keepIn(const QString &path, const QString &content, configStruct &config,
            const progressFunction &progress = {})
{
    constexpr int usualCount = 20;
    const optionStruct *count = config.options.findOption(optionKey::backupCount);
    const QStringList folders = config.backupFolders();
    lastVersionFault().clear();
    bool cancelled = false;
    const auto watched = [&](long long done, long long total) {
        cancelled = progress && !progress(done, total);
        return !cancelled;
    };
    const bool kept = fileVersions::keep(path, folders, count ? count->value1.toInt() : usualCount,
                                         watched, content);
    if (kept || cancelled)
        return kept;
    const QString places = folders.join(QLatin1String(", "));
    userPrompts().log(messages::done(
        QCoreApplication::translate("log", "No backup could be written "), path, places));
    lastVersionFault() =
        QCoreApplication::translate("data", "no earlier version could be kept in %1").arg(places);
    return false;
}

void run(const workShown &shown, const std::function<void(const progressFunction &)> &work)
{
    if (shown)
        shown(work);
    else
        work({});
}

} // namespace

bool keepVersion(const QString &path, configStruct &config, const progressFunction &progress)
{
    return keepIn(path, {}, config, progress);
}

bool keepDocument(const QString &path, const documentStruct &document, configStruct &config,
                  const workShown &shown)
{
    const QTemporaryDir folder(scratch::pattern());
    const QString content = folder.filePath(text::fileNameOfPath(path));
    bool written = false;
    run(shown, [&](const progressFunction &progress) {
        written = saveXmlNoEvents(content, &document, nullptr, progress, saveRule::whatever) >= 0;
    });
    // As secret as the file is.
    QFile::setPermissions(content, QFileInfo::exists(path) ? QFile::permissions(path)
                                                           : QFile::ReadOwner | QFile::WriteOwner);
    return written && keepIn(path, content, config);
}

bool saveDocument(const QString &path, documentStruct &document, configStruct &config,
                  const workShown &shown, QString *fault)
{
    const leftOutContent leftOut = document.leftOut;
    if (leftOut.count > 0
        && userPrompts().ask(
               QCoreApplication::translate("data", "Saving %1 loses what the program does not know:"
                                                   " %2. Save it all the same?")
                   .arg(QDir::toNativeSeparators(path).toHtmlEscaped(),
                        leftOut.text().toHtmlEscaped()),
               false)
               != prompts::answer::yes)
        return false;
    document.leftOut = {};
    bool written = false;
    bool cancelled = false;
    QString reason;
    run(shown, [&](const progressFunction &progress) {
        const auto watched = [&](long long done, long long total) {
            cancelled = cancelled || (progress && !progress(done, total));
            return !cancelled;
        };
        keepVersion(path, config, watched);
        written = !cancelled
                  && saveXmlNoEvents(path, &document, &reason, watched, saveRule::onlyGood) >= 0;
    });
    if (!written && !cancelled && fault)
        *fault = reason;
    else if (!written && !cancelled)
        userPrompts().showError(messages::notWritten(path, reason));
    if (!written) {
        document.leftOut = leftOut;
        return false;
    }
    userPrompts().log(messages::done(messages::saveFile(), text::fileNameOfPath(path), path));
    return true;
}

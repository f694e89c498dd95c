#include "update/updateMaker.h"

#include "data/documentStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "tools/KivScp.h"
#include "tools/hostKeys.h"
#include "tools/zipEntries.h"
#include "update/fileSums.h"
#include "update/minisign.h"
#include "update/updatePlan.h"
#include "util/files.h"
#include "util/safeFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>

#include <zip.h>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace updateMaker {

namespace {

using namespace updates;

QString faultOf(const QString &path, const QString &reason)
{
    return QDir::toNativeSeparators(path) + QLatin1String(": ") + reason;
}

QString packageOf(const standing &one)
{
    return QFileInfo(QUrl(one.link).path(QUrl::FullyDecoded)).fileName();
}

// --- What is packed

bool begins(const QString &place, const char *with)
{
    return place.startsWith(QLatin1String(with), Qt::CaseInsensitive);
}

// Whether a file below the program's folder is the program's, and no trace of working with it. A
// key to sign with is nobody else's business.
bool isProgram(const QString &place)
{
    static const QRegularExpression traces(
        QStringLiteral("~$|\\.(lock|log|journal|key)$|-journal$|\\.kivzp-[^/]*$"),
        QRegularExpression::CaseInsensitiveOption);
    // The key that updates are checked with ships.
    if (place == QLatin1String("_config/update.pub"))
        return true;
    if (isUsers(place) && (!begins(place, "_e-mail/") || begins(place, "_e-mail/msg_")))
        return false;
    return !begins(place, "update/") && !begins(place, "KivZP_BACKUP/") && place != infoName
           && place != QLatin1String("cleanScript.xml") && !place.contains(traces);
}

const fileKind &kindOf(part of)
{
    return of == boms ? fileKinds::boms : of == firms ? fileKinds::firm : fileKinds::database;
}

// Packs files into an archive; what is executable stays so.
class packer
{
public:
    // tell: how much is packed, 0 to 1; false cancels.
    explicit packer(std::function<bool(double)> tell)
        : m_tell(std::move(tell))
    {
    }

    // places: below folder. The reason when it cannot be, or was cancelled.
    QString pack(const QString &archive, const QString &folder, const QStringList &places)
    {
        int code = 0;
        m_zip = zip_open(QFile::encodeName(archive), ZIP_CREATE | ZIP_EXCL, &code);
        if (!m_zip)
            return faultOf(archive, files::whyNotWritten(archive));
        for (const QString &place : places)
            if (!add(folder + QLatin1Char('/') + place, place))
                return failed(folder + QLatin1Char('/') + place);
        constexpr double precision = 0.001;
        zip_register_progress_callback_with_state(m_zip, precision, told, nullptr, this);
        zip_register_cancel_callback_with_state(m_zip, isCancelled, nullptr, this);
        return zip_close(m_zip) == 0 ? QString() : failed(archive);
    }

private:
    bool add(const QString &path, const QString &place)
    {
        // Without a look it would be told of the archive.
        if (!QFileInfo(path).isReadable())
            return false;
        zip_source_t *source = zip_source_file(m_zip, QFile::encodeName(path), 0, -1);
        const zip_int64_t at =
            source ? zip_file_add(m_zip, place.toUtf8(), source, ZIP_FL_ENC_UTF_8) : -1;
        if (at < 0) {
            zip_source_free(source);
            return false;
        }
        constexpr zip_uint32_t plainFile = 0100644;
        constexpr zip_uint32_t executable = 0100755;
        const zip_uint32_t mode = QFileInfo(path).isExecutable() ? executable : plainFile;
        return zip_file_set_external_attributes(m_zip, zip_uint64_t(at), 0, ZIP_OPSYS_UNIX,
                                                mode << 16U)
               == 0;
    }
    QString failed(const QString &path)
    {
        zip_error_t *error = zip_get_error(m_zip);
        const QString reason = zip_error_code_zip(error) == ZIP_ER_OK
                                   ? QCoreApplication::translate("updates", "it cannot be read")
                                   : QString::fromLocal8Bit(zip_error_strerror(error));
        zip_discard(m_zip);
        return faultOf(path, reason);
    }
    static void told(zip_t *, double part, void *self)
    {
        auto &own = *static_cast<packer *>(self);
        own.m_cancelled = own.m_cancelled || !own.m_tell(part);
    }
    static int isCancelled(zip_t *, void *self)
    {
        return static_cast<packer *>(self)->m_cancelled ? 1 : 0;
    }

    std::function<bool(double)> m_tell;
    zip_t *m_zip = nullptr;
    bool m_cancelled = false;
};

class maker
{
public:
    explicit maker(const job &of)
        : m_job(of)
        , m_folder(QDir(of.folder).absolutePath())
    {
    }

    result run()
    {
        for (const auto step :
             {&maker::check, &maker::chooseFiles, &maker::makeFolder, &maker::writePackages,
              &maker::writeTexts, &maker::writeSums, &maker::replaceAll}) {
            const QString fault = (this->*step)();
            if (fault.isEmpty() && tell(0))
                continue;
            m_scratch.reset();
            if (m_isFolderNew)
                QDir().rmdir(m_folder);
            return {m_cancelled ? QString() : fault, m_cancelled, {}};
        }
        result made;
        for (const QString &name : qAsConst(m_made))
            made.files.append(target(name));
        return made;
    }

private:
    QString at(const QString &name) const { return m_scratch->filePath(name); }
    QString target(const QString &name) const { return m_folder + QLatin1Char('/') + name; }

    // The bytes that are packed, and more of the package that is written; false when it was
    // cancelled. Once all is in place nothing can be.
    bool tell(qint64 more)
    {
        m_cancelled = m_cancelled
                      || (!m_inPlace && m_job.progress && !m_job.progress(m_done + more, m_total));
        return !m_cancelled;
    }

    // --- Before anything is written

    QString check()
    {
        if (m_job.releases.empty())
            return QCoreApplication::translate("updates", "Nothing is chosen");
        if (m_job.folder.trimmed().isEmpty())
            return QCoreApplication::translate("updates", "The folder is missing");
        // There the information file says what is installed.
        for (const QString &used : {m_job.programDir, m_job.dataDir})
            if (m_folder == QDir(used).absolutePath()
                || (QFileInfo::exists(m_folder)
                    && QFileInfo(m_folder).canonicalFilePath()
                           == QFileInfo(used).canonicalFilePath()))
                return QCoreApplication::translate("updates", "%1 may not be changed")
                    .arg(QDir::toNativeSeparators(m_folder));
        QString fault;
        if (QFileInfo::exists(target(infoName)) && !readChecked(target(infoName), &m_info, &fault))
            return faultOf(target(infoName), fault);
        for (const auto &[of, release] : m_job.releases)
            if (fault = faultOfRelease(of, release); !fault.isEmpty())
                return fault;
        return {};
    }
    // It is also a part of a file's name.
    QString faultOfRelease(part of, const QString &release) const
    {
        static const QRegularExpression form(QStringLiteral("^\\d+(\\.\\d+)*$"));
        const QString &before = m_info.*rowOf(of).release;
        if (!release.contains(form) || compareReleases(release, QStringLiteral("0")) <= 0)
            return QCoreApplication::translate("updates",
                                               "%1: \"%2\" is no release, as 12 or 1.4 is")
                .arg(captionOf(of), release);
        return compareReleases(release, before) > 0
                   ? QString()
                   : QCoreApplication::translate("updates", "%1: %2 is not newer than %3")
                         .arg(captionOf(of), release, before);
    }

    struct package
    {
        part of;
        QString name;
        QString folder;
        QStringList places;
        qint64 size; // of its files
    };
    QString chooseFiles()
    {
        for (const auto &[of, release] : m_job.releases) {
            package one{of,
                        QStringLiteral("%1_%2.zip").arg(QLatin1String(rowOf(of).word), release),
                        QDir(of == program ? m_job.programDir : m_job.dataDir).absolutePath(),
                        {},
                        0};
            const QString fault = of == program ? chooseProgram(&one) : chooseData(&one);
            if (!fault.isEmpty())
                return fault;
            for (const QString &place : qAsConst(one.places)) {
                one.size += QFileInfo(one.folder + QLatin1Char('/') + place).size();
                // What nobody's program would take.
                QString wrong;
                if (placeIn(place, target(QStringLiteral(".nowhere")), &wrong).isEmpty())
                    return wrong;
            }
            m_total += one.size;
            m_packages.push_back(one);
        }
        return {};
    }
    // Of links to files what they lead to; hidden files are not looked for.
    QString chooseProgram(package *to) const
    {
        QDirIterator all(to->folder, QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            const QString path = all.next();
            const QString place = QDir(to->folder).relativeFilePath(path);
            // Updates that were made there are none of it.
            const bool isMade =
                path.startsWith(m_folder + QLatin1Char('/'))
                || QFileInfo::exists(all.fileInfo().path() + QLatin1Char('/') + sumsName);
            if (!isMade && isProgram(place) && !isKey(all.fileInfo()))
                to->places.append(place);
        }
        to->places.sort();
        return to->places.contains(programName())
                   ? QString()
                   : QCoreApplication::translate("updates", "%1 is missing")
                         .arg(QDir::toNativeSeparators(to->folder + QLatin1Char('/')
                                                       + programName()));
    }
    bool isKey(const QFileInfo &file) const
    {
        return !m_job.secretKey.isEmpty() && file == QFileInfo(m_job.secretKey);
    }
    QString programName() const
    {
        const QString windows = QStringLiteral("KivZP.exe");
        return QFileInfo::exists(m_job.programDir + QLatin1Char('/') + windows)
                   ? windows
                   : QStringLiteral("KivZP");
    }
    QString chooseData(package *to)
    {
        const auto found = m_job.files.find(to->of);
        if (found == m_job.files.end() || !QFileInfo(found->second).isFile())
            return QCoreApplication::translate("updates", "%1: the file is missing: %2")
                .arg(captionOf(to->of), found == m_job.files.end()
                                            ? QString()
                                            : QDir::toNativeSeparators(found->second));
        const QString path = QFileInfo(found->second).absoluteFilePath();
        const QString place = QDir(to->folder).relativeFilePath(path);
        if (place.startsWith(QLatin1String("../")) || QDir::isAbsolutePath(place))
            return QCoreApplication::translate("updates", "%1 lies outside of %2")
                .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(to->folder));
        to->places.append(place);
        QString fault;
        const bool isGood = readChecked(path, newDocument(kindOf(to->of)).get(), &fault,
                                        [this](long long, long long) { return tell(0); });
        return isGood ? QString() : faultOf(path, fault);
    }

    QString makeFolder()
    {
        m_isFolderNew = !QFileInfo::exists(m_folder);
        if (QDir().mkpath(m_folder))
            m_scratch = std::make_unique<QTemporaryDir>(target(QStringLiteral(".new-XXXXXX")));
        return m_scratch && m_scratch->isValid() && QDir().mkpath(at(QStringLiteral("old")))
                   ? QString()
                   : faultOf(m_folder, files::whyNotWritten(target(infoName)));
    }

    // --- In the scratch folder

    QString writePackages()
    {
        for (const package &one : m_packages) {
            packer packing(
                [this, &one](double part) { return tell(qint64(part * double(one.size))); });
            const QString archive = at(one.name);
            if (const QString fault = packing.pack(archive, one.folder, one.places);
                !fault.isEmpty())
                return fault;
            m_done += one.size;
            if (!tell(0))
                return {};
            // It would be refused wherever it comes.
            const auto entries = zipEntries(archive);
            if (!entries || isTooLarge(*entries, QFileInfo(archive).size()))
                return QCoreApplication::translate("updates", "%1 is larger than it should be")
                    .arg(one.name);
            m_info.*rowOf(one.of).release = m_job.releases.at(one.of);
            m_info.*rowOf(one.of).link = one.name;
            if (one.of == program)
                m_info.kivBuild = QDate::currentDate().toString(QStringLiteral("yyyyMMdd"));
            m_made.append(one.name);
        }
        return {};
    }

    static void add(kiv_UpdateStruct *to, const QString &name, const QString &from,
                    const QString &target)
    {
        auto command = std::make_unique<commandStruct>();
        command->name = name;
        command->from = from;
        command->to = target;
        to->commands.push_back(std::move(command));
    }
    // Of all parts: who has left out an update gets the parts of that one, too. The program last.
    QString writeTexts()
    {
        std::vector<standing> parts = compare(kiv_infoStruct(), m_info);
        std::reverse(parts.begin(), parts.end());
        kiv_UpdateStruct script;
        for (const standing &one : parts) {
            const QString got = QStringLiteral("{temp}/") + packageOf(one);
            add(&script, updateCommand::downloadFile, one.link, got);
            add(&script, updateCommand::extractZip, got, {});
        }
        if (!parts.empty() && parts.back().of == program)
            add(&script, updateCommand::closeAndRunExe, programName(), {});
        if (!m_job.description.isEmpty()) {
            if (!files::writeText(at(descriptionName), m_job.description))
                return faultOf(target(descriptionName), files::whyNotWritten(at(descriptionName)));
            m_made.append(descriptionName);
        }
        QString fault;
        if (saveXmlNoEvents(at(scriptName), &script, &fault, {}, saveRule::onlyGood) < 0)
            return faultOf(target(scriptName), fault);
        if (saveXmlNoEvents(at(infoName), &m_info, &fault, {}, saveRule::onlyGood) < 0)
            return faultOf(target(infoName), fault);
        m_made += {scriptName, infoName};
        return {};
    }

    QString writeSums()
    {
        fileSums sums;
        QString fault;
        for (const QString &name : qAsConst(m_made))
            if (!sums.add(at(name), &fault) || !tell(0))
                return fault;
        // Packages of earlier updates. One that is missing would make the whole script fail.
        for (const standing &one : compare(kiv_infoStruct(), m_info))
            if (!m_made.contains(packageOf(one))
                && (!sums.add(target(packageOf(one)), &fault) || !tell(0)))
                return fault;
        const QByteArray text =
            madePrefix
            + QDateTime::currentDateTime().toString(QStringLiteral("yyyy.MM.dd hh:mm")).toUtf8()
            + '\n' + sums.text();
        safeFile file(at(sumsName));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
            return faultOf(target(sumsName), file.errorString());
        m_made.append(sumsName);
        if (m_job.secretKey.isEmpty())
            return {};
        m_made.append(sumsName + signatureEnding);
        return minisign::sign(at(sumsName), m_job.secretKey);
    }

    // --- Into the folder

    static bool move(const QString &from, const QString &to)
    {
        std::error_code fault;
        std::filesystem::rename(std::filesystem::path(from.toStdU16String()),
                                std::filesystem::path(to.toStdU16String()), fault);
        return !fault;
    }
    QString kept(const QString &name) const { return at(QStringLiteral("old/") + name); }
    // By a second name where there is such a thing: packages are large.
    bool keep(const QString &name) const
    {
        if (!QFileInfo::exists(target(name)))
            return true;
        if (!QFileInfo(target(name)).isFile())
            return false;
        std::error_code fault;
        std::filesystem::create_hard_link(std::filesystem::path(target(name).toStdU16String()),
                                          std::filesystem::path(kept(name).toStdU16String()),
                                          fault);
        return !fault || files::copyFile(target(name), kept(name));
    }
    // Each file in one step, so that whoever downloads finds the old one or the new one; those that
    // the new list does not speak of, and would contradict it, go.
    QString replaceAll()
    {
        QStringList gone;
        for (const QString &name : {descriptionName, sumsName + signatureEnding})
            if (!m_made.contains(name) && QFileInfo::exists(target(name)))
                gone.append(name);
        const QStringList all = m_made + gone;
        for (const QString &name : all)
            if (!keep(name))
                return cannotReplace(name);
        QStringList changed;
        for (const QString &name : all) {
            changed.prepend(name);
            const bool isNew = m_made.contains(name);
            if (isNew ? move(at(name), target(name)) : files::removeFile(target(name)))
                continue;
            const QString fault = cannotReplace(name);
            return putBack(changed) ? fault : fault + leftIn();
        }
        m_inPlace = true;
        return {};
    }
    static QString whyNot(const QString &path)
    {
        const QString reason = files::whyNotWritten(path);
        return reason.isEmpty() ? QCoreApplication::translate("updates", "it cannot be replaced")
                                : reason;
    }
    QString cannotReplace(const QString &name) const
    {
        return faultOf(target(name), whyNot(target(name)));
    }
    bool putBack(const QStringList &names) const
    {
        bool isWhole = true;
        for (const QString &name : names) {
            const bool isBack = QFileInfo::exists(kept(name)) ? move(kept(name), target(name))
                                                              : files::removeFile(target(name));
            isWhole = isWhole && isBack;
        }
        return isWhole;
    }
    QString leftIn()
    {
        m_scratch->setAutoRemove(false);
        return QLatin1String("; ")
               + QCoreApplication::translate("updates", "the files before are in %1")
                     .arg(QDir::toNativeSeparators(at(QStringLiteral("old"))));
    }

    const job &m_job;
    QString m_folder;
    bool m_isFolderNew = false;
    std::unique_ptr<QTemporaryDir> m_scratch; // in the folder, to be on its file system
    kiv_infoStruct m_info;
    std::vector<package> m_packages;
    QStringList m_made; // names, in the order in which they are put in place
    qint64 m_done = 0;
    qint64 m_total = 0;
    bool m_inPlace = false;
    bool m_cancelled = false;
};

// --- To the server

// What others speak of is there before them.
int rankOf(const QString &file)
{
    static const QStringList last{descriptionName, scriptName, sumsName, sumsName + signatureEnding,
                                  infoName};
    return last.indexOf(QFileInfo(file).fileName());
}

// tell: whether to go on. The reason when it is not there then.
QString send(const KivScp::upload &job, const std::function<bool()> &tell)
{
    constexpr int timeoutMs = 10 * 60 * 1000;
    constexpr int askMs = 100;
    KivScp::scp runner;
    QString said;
    QObject::connect(&runner, &KivScp::scp::updateLog, &runner,
                     [&said](const QString &text) { said += text; });
    bool isCancelled = false;
    QTimer asking;
    QObject::connect(&asking, &QTimer::timeout, &runner, [&] {
        isCancelled = isCancelled || !tell();
        if (isCancelled)
            runner.stop();
    });
    asking.start(askMs);
    runner.start(job, timeoutMs);
    const int ended = runner.wait();
    if (isCancelled)
        return QCoreApplication::translate("updates", "It was cancelled");
    if (ended == 0)
        return {};
    const QString name = QFileInfo(job.source).fileName();
    if (ended == childRunner::timedOut)
        said += QLatin1Char(' ') + QCoreApplication::translate("updates", "it took too long");
    return name + QLatin1String(": ") + said.simplified();
}

} // namespace

result make(const job &of) { return maker(of).run(); }

QString upload(const QStringList &files, const QString &address, const updateSource::login &account,
               const progressFunction &progress)
{
    const updateSource source(address, account);
    const QUrl base = source.urlOf(infoName);
    if (base.scheme() != QLatin1String("scp"))
        return QCoreApplication::translate("updates", "%1 is no address of secure copy")
            .arg(address);
    QStringList sorted = files;
    std::stable_sort(sorted.begin(), sorted.end(), [](const QString &one, const QString &other) {
        return rankOf(one) < rankOf(other);
    });
    qint64 total = 0;
    for (const QString &file : qAsConst(sorted))
        total += QFileInfo(file).size();
    const QString key = account.hostKey.isEmpty() ? hostKeys::keyOf(base.host()) : account.hostKey;
    qint64 done = 0;
    for (const QString &file : qAsConst(sorted)) {
        const QString path = source.urlOf(QFileInfo(file).fileName()).path(QUrl::FullyDecoded);
        const QString fault =
            send({account.account, account.password, base.host(), file, path, key},
                 [&] { return !progress || progress(done, total); });
        if (!fault.isEmpty())
            return fault;
        done += QFileInfo(file).size();
    }
    if (progress)
        progress(total, total);
    return {};
}

} // namespace updateMaker

#include "update/updateRun.h"

#include "data/configStruct.h"
#include "data/documentDiff.h"
#include "data/documentSaving.h"
#include "data/documentStruct.h"
#include "data/kiv_UpdateStruct.h"
#include "data/kiv_mat_databaseStruct.h"
#include "data/loaders.h"
#include "data/materialUses.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "tools/hostKeys.h"
#include "update/minisign.h"
#include "util/files.h"
#include "util/paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>

namespace updates {

namespace {

// More than any of an update's own texts has.
constexpr qint64 mostOfText = 4 << 20;

QString fileNameOf(const QString &link)
{
    return QFileInfo(QUrl(link).path(QUrl::FullyDecoded)).fileName();
}

// Whether only the user's files lie there, since the program's folder cannot be written.
bool isUsersOnly(const QString &root)
{
    return paths::dataDir() != paths::programDir()
           && QFileInfo(root).canonicalFilePath()
                  == QFileInfo(paths::dataDir()).canonicalFilePath();
}

// Everything that is got goes through here: nothing unlisted, nothing of another content.
class checkedSource
{
public:
    checkedSource(const settings &with, const fileSums &sums)
        : m_source(with.address, with.login)
        , m_sums(sums)
    {
    }

    QString fetch(const QString &link, const QString &target, const progressFunction &progress = {})
    {
        const QString name = fileNameOf(link);
        const fileSum *sum = m_sums.find(name);
        if (!sum)
            return QCoreApplication::translate("updates", "%1 is not in the list of files")
                .arg(name);
        QString fault = m_source.fetch(link, target, sum->size, progress);
        if (fault.isEmpty())
            fault = m_sums.faultOf(name, target);
        if (!fault.isEmpty())
            QFile::remove(target);
        return fault;
    }

private:
    updateSource m_source;
    const fileSums &m_sums;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// --- What is on offer

class looking
{
public:
    looking(const settings &with, const progressFunction &progress)
        : m_with(with)
        , m_progress(progress)
    {
    }

    offer look(const kiv_infoStruct &here)
    {
        if (fetchList())
            readTexts(here);
        return std::move(m_offer);
    }

private:
    QString at(const QString &name) const { return m_folder.filePath(name); }
    bool refuse(const QString &fault)
    {
        m_offer.fault = fault;
        return false;
    }

    bool fetchList()
    {
        updateSource source(m_with.address, m_with.login);
        if (!source.fault().isEmpty() || !m_folder.isValid())
            return refuse(source.fault());
        if (const QString fault = source.fetch(sumsName, at(sumsName), mostOfText, m_progress);
            !fault.isEmpty()) {
            m_offer.isOut = true;
            return refuse(fault);
        }
        const QString signature = sumsName + signatureEnding;
        const QString missing = source.fetch(signature, at(signature), mostOfText, m_progress);
        const QString fault = missing.isEmpty()
                                  ? minisign::faultOf(at(sumsName), at(signature), m_with.publicKey)
                                  : QCoreApplication::translate("updates", "it is not signed");
        m_offer.isSigned = fault.isEmpty();
        // A wrong signature is worse than none.
        if (!m_offer.isSigned && !(m_with.acceptsUnsigned && !missing.isEmpty()))
            return refuse(
                QCoreApplication::translate("updates", "The update is refused: %1").arg(fault));
        QString wrong;
        auto sums = fileSums::read(bytesOf(at(sumsName)), &wrong);
        if (!sums)
            return refuse(wrong);
        m_offer.sums = std::move(*sums);
        const QByteArray head = bytesOf(at(sumsName)).split('\n').value(0);
        if (head.startsWith(madePrefix))
            m_offer.made = QString::fromUtf8(head.mid(int(qstrlen(madePrefix)))).trimmed();
        return true;
    }

    void readTexts(const kiv_infoStruct &here)
    {
        checkedSource source(m_with, m_offer.sums);
        if (const QString fault = source.fetch(infoName, at(infoName), m_progress);
            !fault.isEmpty()) {
            refuse(fault);
            return;
        }
        QString fault;
        if (!readChecked(at(infoName), m_offer.info.get(), &fault)) {
            refuse(infoName + QLatin1String(": ") + fault);
            return;
        }
        m_offer.parts = compare(here, *m_offer.info);
        if (m_offer.sums.find(descriptionName)
            && source.fetch(descriptionName, at(descriptionName), m_progress).isEmpty())
            m_offer.description = QString::fromUtf8(bytesOf(at(descriptionName)));
    }

    const settings &m_with;
    const progressFunction &m_progress;
    QTemporaryDir m_folder;
    offer m_offer;
};

// --- What comes of it

class preparing
{
public:
    preparing(const settings &with, const offer &from, const std::set<part> &wanted,
              const progressFunction &progress)
        : m_with(with)
        , m_from(from)
        , m_wanted(wanted)
        , m_source(with, from.sums)
        , m_progress([this, progress](long long done, long long total) {
            m_cancelled = m_cancelled || (progress && !progress(done, total));
            return !m_cancelled;
        })
    {
    }

    prepared run(const QString &root)
    {
        m_made.root = root;
        checkWanted();
        if (!m_made.faults.isEmpty())
            return std::move(m_made);
        QString fault;
        m_made.scratch = updateJournal::begin(root, &fault);
        if (m_made.scratch.isEmpty())
            return refused(fault);
        kiv_UpdateStruct script;
        if (!readScript(&script, &fault))
            return refused(fault);
        m_made.what = planOf(script, means());
        if (!m_made.what.faults.isEmpty() || m_cancelled) {
            m_made.faults = m_made.what.faults;
            return refused({});
        }
        for (const updateJournal::change &one : m_made.what.changes)
            if (isUsers(one.place)) {
                const QString path = root + QLatin1Char('/') + one.place;
                m_made.merged.emplace_back(path, fileState::of(path));
            }
        fault = mergeUsers(root, m_made.scratch, &m_made.what.changes, &m_made.told, m_progress);
        if (fault.isEmpty())
            fault = addOwnFiles();
        return fault.isEmpty() ? std::move(m_made) : refused(fault);
    }

private:
    prepared refused(const QString &fault)
    {
        if (!fault.isEmpty())
            m_made.faults.append(fault);
        m_made.isCancelled = m_cancelled;
        if (!m_made.scratch.isEmpty())
            updateJournal::discard(m_made.scratch);
        m_made.scratch.clear();
        return std::move(m_made);
    }

    void checkWanted()
    {
        for (const part one : m_wanted) {
            const standing *found = m_from.find(one);
            if (!found)
                m_made.faults.append(QCoreApplication::translate("updates", "%1 is not on offer")
                                         .arg(captionOf(one)));
            else if (!found->isNewer())
                m_made.faults.append(
                    QCoreApplication::translate("updates", "%1: %2 is not newer than %3")
                        .arg(captionOf(one), found->there, found->here));
            else if (one == program && isUsersOnly(m_made.root))
                m_made.faults.append(
                    QCoreApplication::translate("updates",
                                                "The program's folder cannot be written: the "
                                                "package is %1")
                        .arg(updateSource(m_with.address).urlOf(found->link).toDisplayString()));
        }
        if (m_wanted.empty())
            m_made.faults.append(QCoreApplication::translate("updates", "Nothing is chosen"));
    }

    bool readScript(kiv_UpdateStruct *script, QString *fault)
    {
        const QString path = m_made.scratch + QLatin1Char('/') + scriptName;
        *fault = m_source.fetch(scriptName, path, m_progress);
        if (!fault->isEmpty())
            return false;
        if (readChecked(path, script, fault))
            return true;
        *fault = scriptName + QLatin1String(": ") + *fault;
        return false;
    }

    planMeans means()
    {
        planMeans with;
        with.root = m_made.root;
        with.scratch = m_made.scratch;
        for (const standing &one : m_from.parts)
            if (m_wanted.count(one.of) == 0)
                with.unwanted.insert(one.link);
        with.fetch = [this](const QString &link, const QString &target) {
            return m_source.fetch(link, target, m_progress);
        };
        return with;
    }

    // The information file with the releases that are here then, and what is left to the next
    // start.
    QString addOwnFiles()
    {
        const auto info = installed(m_made.root);
        for (const standing &one : m_from.parts) {
            if (m_wanted.count(one.of) == 0)
                continue;
            (*info).*rowOf(one.of).release = one.there;
            (*info).*rowOf(one.of).link = one.link;
            if (one.of == program)
                info->kivBuild = m_from.info->kivBuild;
        }
        m_made.version = info->kivVersion;
        if (m_wanted.count(program) == 0)
            m_made.what.restartWith.clear();
        QString fault = addDocument(infoName, *info);
        if (!fault.isEmpty() || m_made.what.afterwards.empty())
            return fault;
        kiv_UpdateStruct later;
        const QString before = m_made.root + QLatin1String("/cleanScript.xml");
        if (QFileInfo::exists(before))
            loadUpdate(before, &later);
        for (const auto &[name, path] : m_made.what.afterwards) {
            later.commands.push_back(std::make_unique<commandStruct>());
            later.commands.back()->name = name;
            later.commands.back()->from = path;
        }
        return addDocument(QStringLiteral("cleanScript.xml"), later);
    }
    // The data's releases stay when the program goes back.
    QString addDocument(const QString &place, const documentStruct &document)
    {
        const QString path = m_made.scratch + QLatin1String("/new/") + place;
        QString fault;
        if (saveXmlNoEvents(path, &document, &fault) < 0)
            return QDir::toNativeSeparators(path) + QLatin1String(": ") + fault;
        // Before the program itself, which is the last.
        m_made.what.changes.insert(m_made.what.changes.begin(), {place, path, place != infoName});
        return {};
    }

    const settings &m_with;
    const offer &m_from;
    const std::set<part> &m_wanted;
    checkedSource m_source;
    const progressFunction m_progress; // which notes that the user has cancelled
    bool m_cancelled = false;
    prepared m_made;
};

} // namespace

settings settingsOf(const configStruct &config)
{
    settings with;
    with.address = config.options.value(optionKey::updateAddress).trimmed();
    with.login.account = config.options.value(optionKey::serverUserName).trimmed();
    with.login.password = config.options.value(optionKey::serverUserPassword);
    with.login.hostKey = hostKeys::keyOf(QUrl(with.address).host());
    with.publicKey = paths::beside(QStringLiteral("_config/update.pub"));
    with.acceptsUnsigned = config.isOn(optionKey::updateUnsigned);
    return with;
}

const standing *offer::find(part of) const
{
    const auto found = std::find_if(parts.begin(), parts.end(),
                                    [of](const standing &one) { return one.of == of; });
    return found == parts.end() ? nullptr : &*found;
}

qint64 offer::sizeOf(const standing &of) const
{
    const fileSum *sum = sums.find(fileNameOf(of.link));
    return sum ? sum->size : 0;
}

bool offer::hasNewer() const
{
    return std::any_of(parts.begin(), parts.end(),
                       [](const standing &one) { return one.isNewer(); });
}

offer look(const settings &with, const kiv_infoStruct &here, const progressFunction &progress)
{
    return looking(with, progress).look(here);
}

prepared prepare(const settings &with, const offer &from, const std::set<part> &wanted,
                 const QString &root, const progressFunction &progress)
{
    return preparing(with, from, wanted, progress).run(root);
}

std::vector<difference> differencesOf(const prepared &of, const progressFunction &progress)
{
    std::vector<difference> all;
    for (const updateJournal::change &one : of.what.changes) {
        const QString mine = of.root + QLatin1Char('/') + one.place;
        const fileKind *kind =
            isUsers(one.place) && !one.source.isEmpty() ? fileKinds::ofFile(one.source) : nullptr;
        if (!kind)
            continue;
        const auto before = newDocument(*kind);
        const auto after = newDocument(*kind);
        if (QFileInfo::exists(mine))
            loadQuietly(mine, before.get());
        loadQuietly(one.source, after.get());
        difference made{one.place, 0, 0, 0, {}};
        QString last;
        for (const documentDifference &row : compareDocuments(*before, *after, progress).rows) {
            const QString id = row.record + row.id + QString::number(row.number);
            if (row.field.isEmpty() && row.kind == documentDifference::added)
                ++made.added;
            else if (row.field.isEmpty() && row.kind == documentDifference::removed)
                ++made.removed;
            else if (id != last)
                ++made.changed;
            last = id;
            // A material that comes is in no list yet.
            if (row.record == materialStruct::element && row.recordBefore)
                made.ktms.insert(
                    static_cast<const materialStruct *>(row.recordBefore)->d_ktm.trimmed());
        }
        all.push_back(made);
    }
    return all;
}

touched touchedBy(const std::vector<difference> &differences, const materialUses &uses)
{
    QSet<QString> lists;
    QSet<QString> orders;
    for (const difference &one : differences)
        for (const QString &ktm : one.ktms)
            for (const materialUses::use &use : uses.of(ktm))
                (use.inOrder ? orders : lists).insert(use.path);
    return {lists.size(), orders.size()};
}

bool isOutdated(const prepared &of)
{
    return std::any_of(of.merged.begin(), of.merged.end(),
                       [](const auto &one) { return fileState::of(one.first) != one.second; });
}

QString install(const prepared &of, configStruct &config)
{
    if (isOutdated(of)) {
        discard(of);
        return QCoreApplication::translate(
            "updates", "A file was changed meanwhile; nothing was put in place. Install it again");
    }
    for (const updateJournal::change &one : of.what.changes)
        if (const QString path = of.root + QLatin1Char('/') + one.place;
            isUsers(one.place) && QFileInfo::exists(path))
            keepVersion(path, config);
    QString fault = updateJournal::install(of.root, of.scratch, of.what.changes, of.version,
                                           installed(of.root)->kivVersion);
    if (!fault.isEmpty())
        return fault;
    for (const QString &folder : of.what.foldersToRemove)
        QDir().rmdir(of.root + QLatin1Char('/') + folder);
    return {};
}

// The version is noted first: a program that is newer than that is known by itself.
QString goBack(const QString &root)
{
    QString before;
    const updateJournal::stage at = updateJournal::stageOf(root, nullptr, &before);
    if (at != updateJournal::stage::installed && at != updateJournal::stage::started)
        return updateJournal::goBack(root);
    const QString path = root + QLatin1Char('/') + infoName;
    const auto info = installed(root);
    const auto note = [&](const QString &version) {
        info->kivVersion = version;
        if (QFileInfo::exists(path))
            saveXmlNoEvents(path, info.get());
    };
    const QString version = info->kivVersion;
    note(before);
    const QString fault = updateJournal::goBack(root);
    if (!fault.isEmpty() && updateJournal::stageOf(root) != updateJournal::stage::goingBack)
        note(version);
    return fault;
}

void discard(const prepared &of)
{
    if (!of.scratch.isEmpty())
        updateJournal::discard(of.scratch);
}

} // namespace updates

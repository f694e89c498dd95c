#include "store/storeFiles.h"

#include "data/configStruct.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "util/fileLock.h"
#include "util/paths.h"
#include "util/scratch.h"
#include "util/userName.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace store {

namespace {

// As saving shows its progress, for those who have none.
workShown quietly(const progressFunction &progress)
{
    return
        [&progress](const std::function<void(const progressFunction &)> &work) { work(progress); };
}

syncResult refused(const QString &fault)
{
    syncResult result;
    result.fault = fault;
    return result;
}

QString inFile(const QString &path, const QString &fault)
{
    return QDir::toNativeSeparators(path) + QLatin1String(": ")
           + (fault.isEmpty() ? QCoreApplication::translate("store", "it cannot be read") : fault);
}

// Writes what came, and what is known of it. The document first: what is known of less than there
// is only makes the next time ask for it again.
QString writeBoth(const QString &path, documentStruct &document, const syncResult &result,
                  base *known, configStruct &config, const progressFunction &progress)
{
    apply(result, &document, known);
    QString fault;
    if (!result.changes.empty() && !saveDocument(path, document, config, quietly(progress), &fault))
        return fault.isEmpty() ? QCoreApplication::translate("store", "the file was not written")
                               : fault;
    known->synced = fileState::of(path);
    known->write(path, &fault);
    return fault;
}

} // namespace

std::optional<address> addressOf(const configStruct &config, const QString &instead, QString *fault)
{
    const QString text =
        instead.isEmpty() ? config.options.value(optionKey::storeAddress).trimmed() : instead;
    if (text.isEmpty()) {
        *fault = QCoreApplication::translate("store", "the configuration names no shared store");
        return {};
    }
    return address::parse(text, fault);
}

bool isUpToDate(connection &with, const QString &path, const base &head)
{
    if (!(fileState::of(path) == head.synced))
        return false;
    QString fault;
    return idOf(with, &fault) == head.store && changesSince(with, head) == 0
           && with.fault().isEmpty() && mayWrite(with) == head.mayWrite;
}

QString authorName() { return userName(); }

syncResult synchronizeFile(connection &with, const QString &path, configStruct &config,
                           const conflictsSettled &settle, const progressFunction &progress)
{
    syncResult result;
    // What a run that was killed left.
    scratch::clearLeftSaves(path);
    scratch::clearLeftSaves(base::fileOf(path));
    const base head = base::readHead(path);
    if (head.isShared() && isUpToDate(with, path, head)) {
        result.done = true;
        result.release = head.release;
        return result;
    }
    QString fault;
    base known = base::read(path, &fault);
    if (!fault.isEmpty())
        return refused(fault);
    const fileKind *kind = kindOf(known.kind);
    if (!known.isShared() || !kind)
        return refused(
            inFile(path, QCoreApplication::translate("store", "this document is not shared")));
    if (const QStringList others = fileLock::othersOf(path); !others.isEmpty())
        return refused(inFile(path, QCoreApplication::translate("store", "it is open elsewhere: %1")
                                        .arg(others.join(QLatin1String(", ")))));
    const std::unique_ptr<documentStruct> document = newDocument(*kind);
    const fileState state = fileState::of(path);
    if (!readChecked(path, document.get(), &fault, progress))
        return refused(inFile(path, fault));
    result = synchronize(with, *document, known, authorName(), settle, progress);
    if (!result.done) {
        if (!result.fault.isEmpty())
            result.fault = inFile(path, result.fault);
        return result;
    }
    if (!(fileState::of(path) == state))
        result.fault =
            inFile(path, QCoreApplication::translate("store", "it was changed meanwhile"));
    else
        result.fault = writeBoth(path, *document, result, &known, config, progress);
    return result;
}

// Offers lie in a folder named after their order, and are all called the same.
QString usualName(const QString &path)
{
    const QFileInfo info(path);
    return info.completeBaseName() == QLatin1String("offers") ? info.dir().dirName()
                                                              : info.completeBaseName();
}

syncResult publishFile(connection &to, const QString &path, const QString &name,
                       const progressFunction &progress)
{
    if (base::readHead(path).isShared() || QFileInfo::exists(base::fileOf(path)))
        return refused(
            inFile(path, QCoreApplication::translate("store", "this document is shared already")));
    const fileKind *kind = fileKinds::ofFile(path);
    if (!kind || tablesOf(*kind).empty())
        return refused(inFile(
            path, QCoreApplication::translate("store", "documents of this kind are not shared")));
    const std::unique_ptr<documentStruct> document = newDocument(*kind);
    const fileState state = fileState::of(path);
    QString fault;
    if (!readChecked(path, document.get(), &fault, progress))
        return refused(inFile(path, fault));
    base known;
    syncResult result = publish(to, *document, name, authorName(), &known, progress);
    if (!result.done) {
        if (!result.fault.isEmpty())
            result.fault = inFile(path, result.fault);
        return result;
    }
    apply(result, document.get(), &known);
    known.synced = state;
    known.write(path, &result.fault);
    return result;
}

bool cloneFile(connection &from, const fileKind &kind, const QString &name, const QString &path,
               QString *fault, const progressFunction &progress)
{
    if (QFileInfo::exists(path) || QFileInfo::exists(base::fileOf(path))) {
        *fault = inFile(path, QCoreApplication::translate("store", "there is such a file already"));
        return false;
    }
    base known;
    const std::unique_ptr<documentStruct> document =
        clone(from, kind, name, &known, fault, progress);
    if (!document || saveXmlNoEvents(path, document.get(), fault, progress, saveRule::onlyGood) < 0)
        return false;
    known.synced = fileState::of(path);
    return known.write(path, fault);
}

QStringList sharedFiles(const configStruct &config)
{
    QStringList folders;
    for (const QLatin1String key :
         {optionKey::fileDbWarehouse, optionKey::fileDbService, optionKey::fileDbMechanics,
          optionKey::fileDbAuthor, optionKey::fileFirm, optionKey::fileBoms})
        if (const QString file = config.options.value(key); !file.isEmpty())
            folders.append(QFileInfo(paths::data(file)).absolutePath());
    for (const QString &folder : config.orderFolders()) {
        folders.append(QDir(folder).absolutePath());
        // A folder for what was sent to firms, for each order.
        const QDir offers(folder + QLatin1String("/offers"));
        for (const QString &one : offers.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            folders.append(offers.absoluteFilePath(one));
    }
    folders.removeDuplicates();
    QStringList found;
    const QString ending = base::fileOf({});
    for (const QString &folder : qAsConst(folders))
        for (const QString &name :
             QDir(folder).entryList({QLatin1Char('*') + ending}, QDir::Files, QDir::Name))
            if (const QString path = folder + QLatin1Char('/') + name.chopped(ending.size());
                QFileInfo::exists(path))
                found.append(path);
    return found;
}

} // namespace store

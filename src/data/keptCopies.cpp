#include "data/keptCopies.h"

#include "data/documentDiff.h"
#include "data/documentStruct.h"
#include "data/firmDetails.h"
#include "data/leftChanges.h"
#include "data/loaders.h"
#include "data/programData.h"
#include "data/vocabulary.h"
#include "util/fileVersions.h"
#include "util/files.h"
#include "util/paths.h"
#include "util/recoverySlots.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

// A version's content while it lives, in a file of its own where it is packed.
class openedCopy
{
public:
    explicit openedCopy(const QString &version)
        : m_path(fileVersions::unpacked(version))
        , m_isOwn(m_path != version)
    {
    }
    ~openedCopy()
    {
        if (m_isOwn)
            QFile::remove(m_path);
    }
    openedCopy(const openedCopy &) = delete;
    openedCopy &operator=(const openedCopy &) = delete;

    const QString &path() const { return m_path; }

private:
    QString m_path;
    bool m_isOwn;
};

// The element that is a line of a kind.
QString lineOfKind(const fileKind &kind)
{
    if (&kind == &fileKinds::order)
        return QStringLiteral("order_item");
    if (&kind == &fileKinds::firm)
        return QStringLiteral("firm");
    if (&kind == &fileKinds::firmDetails)
        return firmDetailsStruct::element;
    if (&kind == &fileKinds::boms)
        return QStringLiteral("file");
    return &kind == &fileKinds::database || &kind == &fileKinds::bom ? QStringLiteral("material")
                                                                     : QString();
}

} // namespace

std::vector<keptCopy> keptCopies(const QStringList &versionFolders,
                                 const QStringList &recoveryFolders, const QStringList &known)
{
    std::vector<keptCopy> copies;
    for (const fileVersions::version &one : fileVersions::all(versionFolders, known))
        copies.push_back({one.file, one.path, one.name, one.time, one.size});
    for (const QString &folder : recoveryFolders)
        for (const QFileInfo &copy :
             QDir(folder).entryInfoList({QStringLiteral("order-*.xml")}, QDir::Files)) {
            // Below the path stands what the file was like.
            const QString path = files::readText(folder + QLatin1Char('/') + copy.completeBaseName()
                                                 + QLatin1String(".path"))
                                     .section(QLatin1Char('\n'), 0, 0);
            copies.push_back({copy.filePath(), path,
                              path.isEmpty() ? QCoreApplication::translate("data", "New order")
                                             : QFileInfo(path).fileName(),
                              copy.lastModified(), copy.size(), true});
        }
    std::stable_sort(copies.begin(), copies.end(),
                     [](const keptCopy &a, const keptCopy &b) { return a.time > b.time; });
    return copies;
}

std::vector<keptCopy> keptCopies(programData &data)
{
    QStringList known{paths::config(), data.boms().filePath};
    for (const kiv_mat_databaseStruct *database : data.databases())
        known.append(database->filePath);
    known += filesOf(data.boms(), data.boms().filePath);
    const QString firms = data.config().options.value(optionKey::fileFirm);
    if (!firms.isEmpty())
        known += {paths::data(firms), firmDetails::pathBeside(paths::data(firms))};
    known.removeAll({});
    std::vector<keptCopy> copies =
        keptCopies(data.config().backupFolders(), recoveryFolders(), known);
    for (const leftChanges &one : leftChanges::all()) {
        const QFileInfo journal(one.journal());
        const auto place = std::find_if(copies.begin(), copies.end(),
                                        [&](const keptCopy &copy) { return copy.time < one.time; });
        copies.insert(place, {journal.filePath(), one.path, QFileInfo(one.path).fileName(),
                              one.time, journal.size(), true, true});
    }
    return copies;
}

std::unique_ptr<documentStruct> readKept(const QString &file, QString *reason,
                                         const progressFunction &progress)
{
    if (leftChanges::isJournal(file)) {
        leftChanges journal = leftChanges::ofFile(file);
        auto changed = readKept(journal.path, reason, progress);
        if (changed) {
            journal.settled = fileState::of(journal.path);
            recordChanges changes(changed->kind());
            journal.repeatIn(*changed, changes);
        }
        return changed;
    }
    const openedCopy opened(file);
    const fileKinds::fileHead head = fileKinds::headOf(opened.path());
    if (!head.kind) {
        *reason = head.fault;
        return nullptr;
    }
    auto document = newDocument(*head.kind);
    if (loadDocument(opened.path(), document.get(), reason, progress) == 0)
        return document;
    if (reason->isEmpty())
        *reason = QCoreApplication::translate("data", "the file cannot be read");
    return nullptr;
}

int linesOfKept(const QString &file, const std::function<bool()> &keepGoing)
{
    if (leftChanges::isJournal(file))
        return leftChanges::ofFile(file).records;
    const openedCopy opened(file);
    const fileKinds::fileHead head = fileKinds::headOf(opened.path());
    QFile content(opened.path());
    if (!head.kind || !content.open(QIODevice::ReadOnly))
        return -1;
    const QString line = lineOfKind(*head.kind);
    QXmlStreamReader reader(&content);
    int count = 0;
    while (!line.isEmpty() && readToElement(&reader, line)) {
        ++count;
        if (!keepGoing())
            return -1;
    }
    return reader.hasError() ? -1 : count;
}

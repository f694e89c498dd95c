#include "data/leftChanges.h"

#include "data/documentStruct.h"
#include "util/files.h"
#include "util/recoverySlots.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QString endOfName = QStringLiteral("journal");
const QLatin1String kindKey("kind");
const QLatin1String pathKey("file");
const QLatin1String sizeKey("size");
const QLatin1String timeKey("time");
const QLatin1String settledKey("settled");
const QLatin1String noteKey("note");

QJsonObject withState(QJsonObject line, const fileState &state)
{
    line.insert(sizeKey, double(state.size));
    line.insert(timeKey, double(state.time.isValid() ? state.time.toMSecsSinceEpoch() : 0));
    return line;
}

fileState stateIn(const QJsonObject &line)
{
    fileState state;
    state.size = qint64(line.value(sizeKey).toDouble(-1));
    if (state.size >= 0)
        state.time = QDateTime::fromMSecsSinceEpoch(qint64(line.value(timeKey).toDouble()));
    return state;
}

QByteArray written(const QJsonObject &line)
{
    return QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
}

// What the last one of the lines with a key says.
QJsonValue lastOf(const QLatin1String &key, const QByteArray &lines)
{
    QJsonValue last;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.contains(key.data()))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (object.contains(key))
            last = object.value(key);
    }
    return last;
}

} // namespace

QByteArray leftChanges::head(const QString &kind, const QString &path, const fileState &onDisk)
{
    return written(withState({{kindKey, kind}, {pathKey, path}}, onDisk));
}

QByteArray leftChanges::settledLine(const fileState &state)
{
    return written({{settledKey, withState({}, state)}});
}

QByteArray leftChanges::noteLine(const QString &note) { return written({{noteKey, note}}); }

recoverySlot leftChanges::slotIn(const QString &folder)
{
    return {folder, QStringLiteral("changes"), endOfName};
}

bool leftChanges::isJournal(const QString &file)
{
    return file.endsWith(QLatin1Char('.') + endOfName);
}

leftChanges leftChanges::ofFile(const QString &journal)
{
    leftChanges one;
    QFile file(journal);
    if (!file.open(QIODevice::ReadOnly))
        return one;
    const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
    one.kind = head.value(kindKey).toString();
    one.path = head.value(pathKey).toString();
    one.onDisk = stateIn(head);
    one.time = QFileInfo(file).lastModified();
    one.lines = file.readAll();
    one.records = recordChanges::countIn(one.lines);
    if (const QJsonValue settled = lastOf(settledKey, one.lines); settled.isObject())
        one.settled = stateIn(settled.toObject());
    one.note = lastOf(noteKey, one.lines).toString();
    return one;
}

std::vector<leftChanges> leftChanges::all()
{
    std::vector<leftChanges> found;
    const QStringList folders = recoveryFolders();
    for (int at = 0; at < folders.size(); ++at) {
        const recoverySlot place = slotIn(folders[at]);
        for (int number : place.left()) {
            leftChanges one = ofFile(place.file(number, endOfName));
            if (!one.time.isValid())
                continue;
            one.place = at;
            one.number = number;
            found.push_back(std::move(one));
        }
    }
    return found;
}

QString leftChanges::journal() const
{
    return slotIn(recoveryFolders().value(place)).file(number, endOfName);
}

void leftChanges::remove() const
{
    recoverySlot slot = slotIn(recoveryFolders().value(place));
    if (slot.claim(number))
        QFile::remove(slot.file());
}

void leftChanges::setAside() const
{
    recoverySlot slot = slotIn(recoveryFolders().value(place));
    if (slot.claimFree())
        files::writeText(slot.file(), QString::fromUtf8(head(kind, path, onDisk) + lines));
}

recordChanges::outcome leftChanges::repeatIn(documentStruct &document, recordChanges &changes) const
{
    const fileState now = fileState::of(path);
    return changes.repeat(lines, document,
                          now == onDisk    ? recordChanges::asItWas
                          : now == settled ? recordChanges::settled
                                           : recordChanges::changedByOthers);
}

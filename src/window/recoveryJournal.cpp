#include "window/recoveryJournal.h"

#include "data/documentStruct.h"
#include "util/diskSync.h"
#include "util/files.h"
#include "util/messages.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

namespace {

const QString endOfName = QStringLiteral("journal");
const QLatin1String kindKey("kind");
const QLatin1String pathKey("file");
const QLatin1String sizeKey("size");
const QLatin1String timeKey("time");
const QLatin1String settledKey("settled");

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

QByteArray headOf(const QString &kind, const QString &path, const fileState &onDisk)
{
    return written(withState({{kindKey, kind}, {pathKey, path}}, onDisk));
}

// The last one of the lines that settle.
fileState settledIn(const QByteArray &lines)
{
    fileState settled;
    for (const QByteArray &line : lines.split('\n')) {
        if (!line.contains(settledKey.data()))
            continue;
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        if (object.contains(settledKey))
            settled = stateIn(object.value(settledKey).toObject());
    }
    return settled;
}

recoverySlot slotIn(const QString &folder)
{
    return {folder, QStringLiteral("changes"), endOfName};
}

} // namespace

// Tells the levels of records that a model shows.
class recoveryJournal::levelWatch final : public recordWatch
{
public:
    levelWatch(recoveryJournal *journal, size_t level)
        : m_journal(journal)
        , m_level(level)
    {
    }
    void willChange(const xmlData *record, int depth) override
    {
        m_journal->changes().willChange(m_level + size_t(depth), record);
    }
    void changed(const xmlData *record, int depth) override
    {
        m_journal->changes().changed(m_level + size_t(depth), record);
    }
    void inserted(xmlData *parent, const xmlData *record, int depth, int row) override
    {
        m_journal->changes().put(m_level + size_t(depth),
                                 depth > 0 ? parent : m_journal->m_source.document(), record, row);
    }
    void willBeTaken(const xmlData *record, int depth) override
    {
        m_journal->changes().willTake(m_level + size_t(depth), record);
    }

private:
    recoveryJournal *m_journal;
    size_t m_level;
};

recoveryJournal::recoveryJournal(const fileKind &kind, source of, QObject *parent)
    : QObject(parent)
    , m_kind(kind)
    , m_source(std::move(of))
    , m_changes(kind)
    , m_soon(new QTimer(this))
{
    for (const QString &folder : recoveryFolders())
        m_places.push_back(slotIn(folder));
    m_soon->setSingleShot(true);
    m_soon->setInterval(0);
    connect(m_soon, &QTimer::timeout, this, [this] {
        if (m_clears)
            discard();
        else
            write();
    });
}

recoveryJournal::~recoveryJournal()
{
    if (m_clears)
        discard();
}

void recoveryJournal::watch(myModel *model, size_t level)
{
    m_watches.push_back(std::make_unique<levelWatch>(this, level));
    model->setWatch(m_watches.back().get());
}

// Before something is noted.
recordChanges &recoveryJournal::changes()
{
    if (m_clears)
        discard();
    m_soon->start();
    return m_changes;
}

void recoveryJournal::clear()
{
    m_clears = true;
    m_soon->start();
}

void recoveryJournal::keep() { m_clears = false; }

void recoveryJournal::discard()
{
    m_clears = false;
    m_failed = false;
    m_changes.clear();
    m_lines.clear();
    m_file.close();
    for (recoverySlot &place : m_places)
        if (place.isClaimed()) {
            QFile::remove(place.file());
            place.release();
        }
}

QByteArray recoveryJournal::head() const
{
    return headOf(m_kind.root, QFileInfo(m_source.path()).absoluteFilePath(), m_source.onDisk());
}

// A line that is cut short would spoil the next one.
bool recoveryJournal::append(const QByteArray &lines)
{
    const qint64 before = m_file.size();
    if (m_file.write(lines) == lines.size() && m_file.flush())
        return true;
    m_file.resize(before);
    return false;
}

// All of it, in a folder that had none of it.
bool recoveryJournal::begin(recoverySlot &place)
{
    m_file.close();
    if (!place.claimFree())
        return false;
    m_file.setFileName(place.file());
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)
        && append(head() + m_lines))
        return true;
    m_file.close();
    QFile::remove(place.file());
    place.release();
    return false;
}

bool recoveryJournal::write()
{
    const QByteArray lines = m_changes.takeLines();
    m_lines += lines;
    if (m_clears || m_lines.isEmpty())
        return true;
    if (m_file.isOpen() && QFileInfo::exists(m_file.fileName())
        && (lines.isEmpty() || append(lines)))
        return true;
    const QString before = m_file.fileName();
    const bool written = std::any_of(m_places.begin(), m_places.end(),
                                     [this](recoverySlot &place) { return begin(place); });
    if (written && !before.isEmpty() && before != m_file.fileName())
        QFile::remove(before);
    if (!written && !std::exchange(m_failed, true))
        emit failed();
    return written;
}

bool recoveryJournal::writeThrough()
{
    if (!write())
        return false;
    if (m_file.isOpen())
        syncToDisk(m_file);
    return true;
}

QStringList recoveryJournal::faults() const
{
    QStringList lines;
    for (const recoverySlot &place : m_places)
        lines.append(messages::because(QDir::toNativeSeparators(place.folder()),
                                       place.folder() + QLatin1String("/x.") + endOfName));
    return lines;
}

bool recoveryJournal::leave()
{
    if (!write())
        return false;
    m_file.close();
    for (recoverySlot &place : m_places)
        place.release();
    m_clears = false;
    m_changes.clear();
    m_lines.clear();
    return true;
}

void recoveryJournal::settle()
{
    write();
    if (m_lines.isEmpty())
        return; // its head will name that file
    const QByteArray line = written({{settledKey, withState({}, m_source.onDisk())}});
    m_lines += line;
    if (m_file.isOpen())
        append(line);
}

std::vector<recoveryJournal::left> recoveryJournal::allLeft()
{
    std::vector<left> all;
    const QStringList folders = recoveryFolders();
    for (int at = 0; at < folders.size(); ++at) {
        const recoverySlot place = slotIn(folders[at]);
        for (int number : place.left()) {
            QFile file(place.file(number, endOfName));
            if (!file.open(QIODevice::ReadOnly))
                continue;
            const QJsonObject head = QJsonDocument::fromJson(file.readLine()).object();
            left one;
            one.place = size_t(at);
            one.number = number;
            one.kind = head.value(kindKey).toString();
            one.path = head.value(pathKey).toString();
            one.onDisk = stateIn(head);
            one.time = QFileInfo(file).lastModified();
            one.lines = file.readAll();
            one.records = recordChanges::countIn(one.lines);
            one.settled = settledIn(one.lines);
            all.push_back(std::move(one));
        }
    }
    return all;
}

void recoveryJournal::remove(const left &one)
{
    recoverySlot place = slotIn(recoveryFolders().value(int(one.place)));
    if (place.claim(one.number))
        QFile::remove(place.file());
}

std::optional<recordChanges::outcome> recoveryJournal::takeUp(const left &one,
                                                              documentStruct &document)
{
    discard();
    recoverySlot &place = m_places[one.place];
    if (!place.claim(one.number))
        return {};
    m_file.setFileName(place.file());
    m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered);
    m_lines = one.lines;
    if (!m_lines.endsWith('\n')) {
        // Cut short when that program ended.
        m_lines += '\n';
        append("\n");
    }
    const fileState now = fileState::of(one.path);
    const auto outcome = m_changes.repeat(one.lines, document,
                                          now == one.onDisk    ? recordChanges::asItWas
                                          : now == one.settled ? recordChanges::settled
                                                               : recordChanges::changedByOthers);
    // They are not in the document, with which this journal goes.
    if (outcome.made > 0 && !outcome.refused.isEmpty())
        setAside(one);
    return outcome;
}

// Once more, to be offered at the next start, until the user deletes it.
void recoveryJournal::setAside(const left &one) const
{
    recoverySlot place = slotIn(recoveryFolders().value(int(one.place)));
    if (place.claimFree())
        files::writeText(place.file(),
                         QString::fromUtf8(headOf(one.kind, one.path, one.onDisk) + one.lines));
}

#include "window/recoveryJournal.h"

#include "data/documentStruct.h"
#include "util/diskSync.h"
#include "util/messages.h"

#include <QDir>
#include <QFileInfo>
#include <QTimer>

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
        m_places.push_back(leftChanges::slotIn(folder));
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
    m_note.clear();
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
    return leftChanges::head(m_kind.root, QFileInfo(m_source.path()).absoluteFilePath(),
                             m_source.onDisk());
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
    const QByteArray lines = m_changes.takeLines() + std::exchange(m_note, {});
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
                                       place.folder() + QLatin1String("/x")));
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
    const QByteArray line = leftChanges::settledLine(m_source.onDisk());
    m_lines += line;
    if (m_file.isOpen())
        append(line);
}

void recoveryJournal::note(const QString &text)
{
    changes();
    m_note = leftChanges::noteLine(text);
}

std::optional<recordChanges::outcome> recoveryJournal::takeUp(const leftChanges &one,
                                                              documentStruct &document)
{
    discard();
    recoverySlot &place = m_places[size_t(one.place)];
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
    const auto outcome = one.repeatIn(document, m_changes);
    // They are not in the document, with which this journal goes.
    if (outcome.made > 0 && !outcome.refused.isEmpty())
        one.setAside();
    return outcome;
}

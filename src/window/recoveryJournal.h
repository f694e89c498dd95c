// What is changed in a document that is too large to be copied: a journal of its changed records,
// written aside with every edit, from which the next start makes the changes again.
#pragma once

#include "data/leftChanges.h"
#include "tree/myModel.h"
#include "util/recoverySlots.h"

#include <QFile>
#include <QObject>

#include <optional>

class QTimer;
class documentStruct;
struct fileKind;

class recoveryJournal : public QObject
{
    Q_OBJECT
public:
    // What the journal asks its window.
    struct source
    {
        std::function<documentStruct *()> document;
        std::function<QString()> path;
        std::function<fileState()> onDisk; // the file as the document was read from it
    };
    recoveryJournal(const fileKind &kind, source of, QObject *parent);
    ~recoveryJournal() override;

    // Notes what changes in a model that shows the records of a level and those below.
    void watch(myModel *model, size_t level);

    // The document is as its file has it, so there is nothing to recover. It is gone when events
    // are handled next, so that keep() can still take it back, or with the next change.
    void clear();
    void keep();
    void discard();
    // Writes what was noted. False when no folder takes it.
    bool write();
    // The same, until it has reached the disk.
    bool writeThrough();
    QStringList faults() const;
    // Leaves it to be found at the next start; false when it cannot be written.
    bool leave();
    // What the file holds now is known to the user, who wants what is in the document: what is
    // noted before and after is to be made in that file.
    void settle();

    // What belongs to the changes without being a record of the document, in place of the note
    // before: leftChanges::note of what is left.
    void note(const QString &text);

    // Makes those changes in a document that was read just now, and goes on with that journal.
    // Nothing when another program has it by now.
    std::optional<recordChanges::outcome> takeUp(const leftChanges &one, documentStruct &document);

signals:
    // No folder takes it.
    void failed();

private:
    class levelWatch;

    recordChanges &changes();
    bool append(const QByteArray &lines);
    bool begin(recoverySlot &place);
    QByteArray head() const;

    const fileKind &m_kind;
    source m_source;
    recordChanges m_changes;
    std::vector<std::unique_ptr<levelWatch>> m_watches;
    std::vector<recoverySlot> m_places;
    QFile m_file;
    QByteArray m_lines; // all that was noted
    QByteArray m_note;  // a line that is still to be written
    QTimer *m_soon;
    bool m_clears = false;
    bool m_failed = false;
};

// A copy of the unsaved order, written aside while it is edited, so that a crash costs a few
// seconds.
#pragma once

#include "data/documentSaving.h"
#include "util/recoverySlots.h"

class kiv_mat_zpStruct;

class orderRecovery
{
public:
    // Each running program has a copy of its own in the first folder that can be written. What it
    // has when it ends stays to be found.
    explicit orderRecovery(const QStringList &folders);

    // Writes the order aside; path is the file that it belongs to, empty when it has none, and
    // onDisk what that file was when it was read. False when no folder takes it.
    bool store(const kiv_mat_zpStruct &order, const QString &path, const fileState &onDisk);
    // Why no folder takes one, a line for each.
    QStringList faults() const;
    // The order was saved or given up: there is nothing to recover.
    void discard();
    // Leaves the copy to be found at the next start; further ones go elsewhere.
    void leave();

    struct copy
    {
        size_t place;
        int number;
        QString file;     // the copy itself
        QString order;    // the file that it belongs to, empty when it had none
        fileState onDisk; // as it was then
        QDateTime time;
        int lines;
    };
    // The copies that other programs left, the newest first.
    std::vector<copy> left() const;
    // Makes one of them this program's own; false when another program has it by now.
    bool takeOver(const copy &one);
    // Removes one of them.
    void remove(const copy &one);

private:
    void discard(const recoverySlot &place) const;

    std::vector<recoverySlot> m_places;
};

// A copy of the unsaved order, written aside while it is edited, so that a crash costs a minute.
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QStringList>

#include <memory>
#include <vector>

class kiv_mat_zpStruct;

class orderRecovery
{
public:
    // Each running program has a copy of its own in the first folder that can be written, claimed
    // by a lock that is void once its owner is dead.
    explicit orderRecovery(const QStringList &folders);
    ~orderRecovery();

    // Writes the order aside; path is the file that it belongs to, empty when it has none. False
    // when no folder takes it.
    bool store(const kiv_mat_zpStruct &order, const QString &path);
    // Why no folder takes one, a line for each.
    QStringList faults() const;
    // The order was saved or given up: there is nothing to recover.
    void discard();
    // Leaves the copy to be found at the next start; further ones go elsewhere.
    void leave();

    struct copy
    {
        QString file;  // the copy itself
        QString order; // the file that it belongs to, empty when it had none
        QDateTime time;
    };
    // Takes over the copy that a dead program left, as this one's own; a default one when there is
    // none.
    copy takeOver();

private:
    struct place
    {
        QString folder;
        std::unique_ptr<QLockFile> lock;
        int number = 0;

        QString file(const char *end) const { return file(number, end); }
        QString file(int of, const char *end) const;
        bool claim(int wanted);
        void claimFree();
        bool store(const kiv_mat_zpStruct &order, const QString &path);
        void discard() const;
    };

    std::vector<place> m_places;
};

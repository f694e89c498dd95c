// A copy of the unsaved order, written aside while it is edited, so that a crash costs a minute.
#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>

#include <memory>

class kiv_mat_zpStruct;

class orderRecovery
{
public:
    // Each running program has a copy of its own in the folder, claimed by a lock that is void once
    // its owner is dead.
    explicit orderRecovery(const QString &folder);
    ~orderRecovery();

    // Writes the order aside; path is the file that it belongs to, empty when it has none.
    bool store(const kiv_mat_zpStruct &order, const QString &path);
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
    void claimFree();
    bool claim(int number);
    QString fileOf(int number, const char *end) const;

    QString m_folder;
    std::unique_ptr<QLockFile> m_lock;
    int m_number = 0;
};

// Where unsaved work is put aside: numbered files in the first folder that takes them, each claimed
// by a lock that is void once its owner is dead, so that the next start finds what was left.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QLockFile;

// Where they lie: in the data folder, else in the user's.
QStringList recoveryFolders();

// The numbered files of one folder, one of which is this owner's.
class recoverySlot
{
public:
    // Files are named as in "order-3.xml": what, number, end.
    recoverySlot(QString folder, QString what, QString end);
    ~recoverySlot();
    recoverySlot(recoverySlot &&) noexcept;
    recoverySlot &operator=(recoverySlot &&) noexcept;

    const QString &folder() const { return m_folder; }
    bool isClaimed() const { return m_lock != nullptr; }
    // The owner's file, or one beside it with another end.
    QString file() const { return file(m_number, m_end); }
    QString file(const QString &end) const { return file(m_number, end); }

    // Claims a number under which nothing is left; false when the folder cannot be written.
    bool claimFree();
    // Claims what a dead program left; false when somebody else has it by now.
    bool claim(int number);
    // Leaves the file to be found.
    void release();

    // The numbers of what nobody has.
    std::vector<int> left() const;
    QString file(int number, const QString &end) const;

private:
    QString m_folder;
    QString m_what;
    QString m_end;
    std::unique_ptr<QLockFile> m_lock;
    int m_number = 0;
};

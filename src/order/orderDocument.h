// The order that is open: its record, where it came from, and whether it was changed since.
#pragma once

#include "data/documentSaving.h"
#include "data/kiv_mat_zpStruct.h"

#include <QLockFile>

#include <memory>

class orderDocument
{
public:
    static orderDocument &instance();

    kiv_mat_zpStruct &order() { return *m_order; }
    // The path of the order's file; empty when it has none.
    const QString &path() const { return m_path; }

    // Where file dialogs begin: the order's folder, else that of the last one's option.
    QString folder() const;

    bool isModified() const { return m_modified; }
    void setModified(bool modified) { m_modified = modified; }

    // Checks and reads a file; showMessages shows each fault in a box. True when it was read; else
    // it is listed in the errors window, and the document is empty and without a path. Lines that
    // no database knows, or whose material may not be ordered, are listed too.
    bool load(const QString &path, bool showMessages = false);

    // Reads the copy of an order that was never saved; it counts as modified, and belongs to path.
    bool recover(const QString &copy, const QString &path);

    // An empty order with the configuration's persons and target, without a path.
    void startNew();

    // Writes the order, which then belongs to that path; an earlier version goes to the backup
    // folder. False, told to the user, with everything as it was, when it cannot be written.
    bool save(const QString &path);

    // Whether the file is another one than was read or written last.
    bool changedOnDisk() const;

    // Who else has the order open: "program, process" of the other one; empty when nobody.
    const QString &otherUser() const { return m_otherUser; }

    // The page of the order with the materials of the loaded databases, as it is now.
    QString report() const;

private:
    orderDocument();
    void settle(const QString &path);
    void listFaults() const;

    std::unique_ptr<kiv_mat_zpStruct> m_order;
    QString m_path;
    bool m_modified = false;
    fileState m_onDisk;
    std::unique_ptr<QLockFile> m_lock;
    QString m_otherUser;
};

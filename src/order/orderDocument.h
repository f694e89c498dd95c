// The order that is open: its record, and where it came from.
#pragma once

#include "data/documentSaving.h"
#include "data/kiv_mat_zpStruct.h"

#include <memory>

class programData;

class orderDocument
{
public:
    explicit orderDocument(programData &known);

    kiv_mat_zpStruct &order() { return *m_order; }
    // The path of the order's file; empty when it has none.
    const QString &path() const { return m_path; }

    // Where file dialogs begin: the order's folder, else that of the last one's option.
    QString folder() const;

    // Checks and reads a file; showMessages shows each fault in a box. True when it was read; else
    // it is listed in the errors window, and the document is empty and without a path. Lines that
    // no database knows, or whose material may not be ordered, are listed too.
    bool load(const QString &path, bool showMessages = false);
    // Reads the order's file again; one that cannot be read is listed, and the order stays.
    bool reload();

    // Reads the copy of an order that was never saved, which belongs to path, a file that was like
    // onDisk when it was read.
    bool recover(const QString &copy, const QString &path, const fileState &onDisk);

    // Takes an order that has no file of its own.
    void take(std::unique_ptr<kiv_mat_zpStruct> order) { settle(std::move(order), {}); }

    // An empty order with the configuration's persons and target, without a path.
    void startNew();

    // Writes the order, which then belongs to that path; an earlier version goes to the backup
    // folder. False, with everything as it was, when it cannot be written; why, is told to the user
    // or put into fault.
    bool save(const QString &path, QString *fault = nullptr);

    // The file as it was when it was read or written last.
    fileState &onDisk() { return m_onDisk; }

    // The page of the order with the materials of the loaded databases, as it is now.
    QString report() const;

private:
    std::unique_ptr<kiv_mat_zpStruct> read(const QString &path, bool showMessages) const;
    void settle(std::unique_ptr<kiv_mat_zpStruct> order, const QString &path);
    void listFaults() const;

    programData &m_known;
    std::unique_ptr<kiv_mat_zpStruct> m_order;
    QString m_path;
    fileState m_onDisk;
};

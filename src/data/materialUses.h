// Where materials are used: the lines of BOM lists and orders by KTM. The files are read one at a
// time, so that whoever waits for none of them does not wait; afterwards a KTM is looked up without
// any of them.
#pragma once

#include "data/documentSaving.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class kiv_mat_bomStruct;
class kiv_mat_zpStruct;

class materialUses
{
public:
    // One line that names a material.
    struct use
    {
        bool inOrder = false; // else in a BOM list
        QString path;         // of its file
        int line = 0;         // from 0
        QString ktm;
        QString quantity; // as stored
        QString unit;     // of an order's line, as stored
        QString detail;   // a list's designators, an order's target
    };

    // The files whose lines count from now on. named: one that cannot be read, or is
    // neither a BOM list nor an order, is told by faults(). found: files of a folder; what is
    // neither is passed over. What was read of a file is kept while the file is as it was; the
    // others wait to be read.
    void follow(const QStringList &named, const QStringList &found);
    // Reads the next one that waits; false when none does.
    bool readNext();
    bool isComplete() const;

    // The lines of a KTM, file after file; none of an empty one. Files that wait are not among
    // them.
    std::vector<use> of(const QString &ktm) const;
    // The names of the BOM lists that use each KTM, in their order.
    QHash<QString, QStringList> lists() const;
    // Those of a document that is at hand.
    static std::vector<use> in(const kiv_mat_zpStruct &order, const QString &ktm);

    // Why named files cannot be read, a line each: the file's name and the reason.
    QStringList faults() const;

private:
    struct document
    {
        QString path;
        bool named = false;
        bool waits = true;
        bool failed = false;
        fileState state;
        QString fault;
        QHash<QString, std::vector<use>> lines;
    };
    static void read(document &file);

    std::vector<document> m_files;
};

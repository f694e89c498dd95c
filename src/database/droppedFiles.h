// Files that are dropped on the window of a material database: what each is, and what is to be done
// with them there.
#pragma once

#include <QString>

#include <vector>

namespace droppedFiles {

enum content
{
    database,  // a material database, by its root element
    listing,   // of the warehouse
    cpvTable,  // the codes of groups
    datasheet, // a document or picture that the desktop opens
    other      // none of these, or it cannot be read
};

struct file
{
    QString path;
    content is = other;
    QString fault; // why it is none of these
};

// Tells what a file is by what it holds, of which it reads the beginning only; documents must have
// the name of their kind, too. A text is a listing when it holds "Towar:", and a table of codes
// when a line of it has a CPV code behind the first tab.
file recognise(const QString &path);

enum action
{
    merge,
    takeListing,
    loadCpv,
    attach,
    refuse
};

struct plan
{
    action what = refuse;
    QString text; // plain: what would be done, or why nothing
};

// What the files are dropped on.
struct place
{
    bool isLocked = false; // the database
    QString material;      // what the material below the mouse is called; empty when there is none
    bool hasFirm = false;  // it has a manufacturer or supplier, to which its files belong
};

// Several files are taken when all are datasheets.
plan planOf(const std::vector<file> &files, const place &on);

} // namespace droppedFiles

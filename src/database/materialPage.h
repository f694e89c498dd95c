// One material as a page beside the tree: what is filled in of it, its firms with part numbers and
// files, and where it is used.
#pragma once

#include "data/materialUses.h"

#include <QUrl>

class d_groupStruct;
class kiv_mat_databaseStruct;
class kiv_mat_firmStruct;
class kiv_mat_reservationsStruct;
class materialStruct;

namespace materialPage {

// What a page is about; null where there is none. firms, the register, gives the firms' status
// and home pages, reservations what is left of the stock.
struct subject
{
    const materialStruct *material = nullptr;
    const d_groupStruct *group = nullptr;
    const kiv_mat_databaseStruct *database = nullptr;
    const kiv_mat_firmStruct *firms = nullptr;
    const kiv_mat_reservationsStruct *reservations = nullptr;
    bool isShared = false; // in a shared store, which knows its history
    QString editor = {};   // who else edits it now; empty when nobody does
};

// Where the material is used, as far as that is known yet.
struct knownUses
{
    std::vector<materialUses::use> uses;
    QString openOrder; // path of the order that is open; its lines are told from those of others
    bool isComplete = true;
    QStringList faults; // of files that could not be read
};

// One filled field of a material, in the order of files.
struct field
{
    QString name; // as in files
    QString caption;
    QString stored;
};
std::vector<field> filledFields(const materialStruct &material);

// The page as HTML that loads nothing; texts of data are escaped. Without a material it is about
// the group, without that it says what to do. Links lead to what linkTarget() gives, or have the
// scheme "use" and the place of one of the uses: "use:3".
QString page(const subject &of, const knownUses &uses);

// Whether a link of the page is the one to the material's history.
bool isHistory(const QUrl &link);

// What a stored link or file name leads to: a web address, which may be written without "http://",
// or a file, whose relative name starts at the data folder. Invalid for an empty text. Whether it
// may be followed is not asked.
QUrl linkTarget(const QString &stored);

// The place of the use that a link of the page names; -1 when it names none.
int useOf(const QUrl &link);

} // namespace materialPage

// A material put in the place of another one in BOM lists and orders: what that changes, to be
// shown before, and the files of it, all of which are written or none.
#pragma once

#include "data/kiv_mat_bomStruct.h"
#include "data/kiv_mat_zpStruct.h"
#include "data/ktmIndex.h"
#include "data/togetherSaving.h"

#include <optional>

namespace materialReplacement {

struct replacement
{
    QString before;                      // KTM; no database needs to have it
    const materialStruct *old = nullptr; // null when none has it
    const materialStruct *after = nullptr;
};
// What two KTMs say. Without a material "after" nothing can be replaced, and fault says why.
replacement replacementOf(const QString &before, const QString &after, const ktmIndex &materials,
                          QString *fault);
// That the new material may not be ordered; empty when it may.
QString statusRemark(const replacement &what);

// --- What it changes ---

// A BOM list or an order.
struct document
{
    QString path;  // empty for an order that has no file yet
    QString fault; // why it cannot be read, or not be changed
    // One of the two, as it is now; none when it cannot be read.
    const kiv_mat_bomStruct *list = nullptr;
    const kiv_mat_zpStruct *order = nullptr;
    bool isOpen = false; // in a window, which changes it

    // Of one that is read from its file.
    fileState state;
    std::unique_ptr<documentStruct> record;
};
// Reads and validates the files, each once. Nothing when progress, which is told files, cancelled.
std::optional<std::vector<document>> readFiles(const QStringList &paths,
                                               const progressFunction &progress = {});

// A line that gets the new material.
struct line
{
    int number = 0;         // from 0
    QString quantity;       // as stored, and as it stays
    QString unit;           // that it had, as stored
    QString detail;         // a list's designators, an order's target
    bool otherUnit = false; // the new material has another one
    bool ownText = false;   // an order's description that is not the old material's goes

    QStringList remarks(const replacement &what) const;
};

struct change
{
    std::vector<line> lines;
    bool standsTwice = false; // several lines have the new material then; they stay apart
    QString refusal;          // why the document does not take the new material

    QStringList remarks() const;
};
// Nothing of a document that cannot be read.
change changeOf(const document &in, const replacement &what);

// --- Carrying it out ---

// What becomes of a line: it keeps its quantity and designators; of an order also its number,
// target, dates, RoHS demand, invoice and remarks, and gets unit, prices, stock, description and
// CPV with the material.
std::unique_ptr<materialStruct> replaced(const materialStruct &line, const replacement &what);
std::unique_ptr<orderItemStruct> replaced(const orderItemStruct &line, const replacement &what);
inline const QString &ktmOf(const materialStruct &line) { return line.d_ktm; }
inline const QString &ktmOf(const orderItemStruct &line) { return line.ktm; }

// Replaces it in the files among the documents, by saveTogether(); those that are open are left to
// their windows. What was read of them counts no more afterwards.
togetherResult replaceInFiles(const std::vector<document *> &documents, const replacement &what,
                              configStruct &config, const progressFunction &progress,
                              QString *fault);

} // namespace materialReplacement

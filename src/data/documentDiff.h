// What two documents of one kind differ in, record by record and field by field: a file and its
// earlier version, an order and a colleague's. Whatever a field table of the kind names is
// compared, nested lists too; what the kind does not write (the root's attributes, a group's KTM,
// the other fields of BOM lines) is not.
//
// Records belong together by what names them: order lines and materials by KTM, without one by
// name; options by type; groups, firms, persons, targets, categories and files by name; commands by
// name and first argument. Of several with one name those with the same content belong together,
// then those of the same group, then the others in file order. A group that was given another name
// is known by its materials.
#pragma once

#include "util/progress.h"

#include <QString>

#include <vector>

class documentStruct;
class materialStruct;
class xmlData;

struct documentDifference
{
    enum differenceKind
    {
        added,
        removed,
        changed,
        moved // to another group, or to another place of its list
    };
    differenceKind kind = changed;
    // The record: its element ("order_item", "material", ...); what it is known by, and its running
    // number among those known by the same; what the user calls it: the KTM and the name. All empty
    // for the fields of the document itself.
    QString record;
    QString id;
    int number = 1;
    QString name;
    // Where it stands (removed: stood): the group, category and group, or list of firms.
    QString group;
    // What differs of it. field is the key as in files, led by the records nested in this one:
    // "d_price", "manufacturer[TI]/part_no", "supplier[TME]/file[a.pdf]"; caption is the same for
    // users. Both are empty when the record as a whole was added, removed or moved.
    QString field;
    QString caption;
    // The texts as stored, save passwords, which are "***". Of something added or removed all its
    // texts, in one line; of something moved its groups, or the places below.
    QString before;
    QString after;
    // The record's places in its lists, from 1; 0 where it is not. Of a nested one that was moved
    // its own places.
    int placeBefore = 0;
    int placeAfter = 0;
    // The record in each of the documents, never a nested one; null where it is not, and for the
    // fields of the document. Valid while the documents live unchanged.
    const xmlData *recordBefore = nullptr;
    const xmlData *recordAfter = nullptr;
};

struct documentDiff
{
    std::vector<documentDifference> rows; // as in the later file, removed ones where they stood
    bool comparable = true;               // false: the documents are of different kinds
    bool cancelled = false;               // by the progress function; then there are no rows
};

// progress is told the records of the later document. Linear in the size of both.
documentDiff compareDocuments(const documentStruct &before, const documentStruct &after,
                              const progressFunction &progress = {});

// A number that materials of equal content share.
quint64 contentHash(const materialStruct &material);

// Number of records of a document that are a line to its user: order lines, materials, firms, files
// of a set, options, persons and targets, commands; 0 for an information file.
int lineCount(const documentStruct &document);

// One line for a reader: sign (+ - ~ >), name, field, texts. Line ends in texts show as "\n".
QString lineOf(const documentDifference &difference);

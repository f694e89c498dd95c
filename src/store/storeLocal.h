// The records of a shared document in its file's order, and which row of the store each of them is.
#pragma once

#include "store/storeBase.h"
#include "store/storeTables.h"

#include <vector>

namespace store {

struct localRow
{
    xmlData *record = nullptr;
    int table = 0;
    int below = -1; // place among the local rows of the record that it lies below, an earlier one
    quint64 hash = 0;
    QString key;
    int base = -1;        // place in base::rows; -1 for a record that has no row yet
    bool isGuess = false; // by its neighbours alone: its texts are to be compared
    double place = 0;
};

enum class withHashes
{
    no, // they stay 0
    yes
};

// All records, those of a table in file order, tables in theirs.
std::vector<localRow> localRows(documentStruct &document, withHashes hashes = withHashes::yes);

// Finds the row of each record: by what it is known by; of several with one key, and where the key
// changed, by its content; last of all by its neighbours, which may also be another record in the
// place of one that was removed. So a record whose KTM was changed, or of which there are two,
// keeps its row.
void matchRows(std::vector<localRow> *rows, const base &known);

// Gives each record a place that puts it where it stands: as few as possible get another one than
// before.
void setPlaces(std::vector<localRow> *rows, const base &known);

} // namespace store

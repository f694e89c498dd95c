// How what is typed to search materials may go on: names of fields, and the values that a field has
// in the data.
#pragma once

#include "data/materialSearch.h"

struct searchSuggestion
{
    QString text;  // what is put in place of the part
    QString shown; // the same without quotes
    QString note;  // other names of a field; how often a value stands in the data
};

struct searchCompletion
{
    // The part of what was typed that a suggestion replaces.
    int begin = 0;
    int length = 0;
    bool ofFields = false; // names of fields, which want a value next
    std::vector<searchSuggestion> items;

    // For the text before the caret. What begins with it comes first, then what has a word that
    // does; the more frequent values first. Names of fields are suggested from two letters on;
    // asked: by less, too. Nothing within a word, for a closed quote and for prices and stocks.
    static searchCompletion at(const QString &typed, int caret, materialSearch &search,
                               const kiv_mat_databaseStruct *database = nullptr,
                               bool asked = false);
};

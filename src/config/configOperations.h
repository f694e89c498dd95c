// What the configuration window knows of options, as functions on the record.
#pragma once

#include "data/configStruct.h"

namespace configOperations {

enum class optionKind
{
    text,
    yesNo,
    number,
    fontName,
    file,
    folder,
    password,
    date,
    language,
    target,
    person
};

struct optionType
{
    optionKind kind = optionKind::text;
    int minimum = 0;
    int maximum = 0;
    bool needsRestart = false; // read at the start only
};
// By the option's key; a key that the program does not know is a text.
optionType typeOf(const QString &key);

// Adds the options that a newer program knows and the file does not, with their defaults.
void addMissing(configStruct *config);

// The default value of an option; null when the program knows none.
QString defaultValue(const QString &key);

// What is wrong: "caption: what" for numbers that are none or out of their range, dates that are
// none, folders that are missing and cannot be made.
QStringList faultsOf(const configStruct &config);

// The captions of options that differ and count from the next start on only.
QStringList restartNeeded(const configStruct &before, const configStruct &after);

// The line of a configuration's file in which an option stands; 0 when there is none.
int lineOf(const QString &key, const QString &path);

// A path within the program's data folder as the configuration stores it: relative to it.
QString storedPath(const QString &path);

} // namespace configOperations

// The translatable names of units, columns, fields and captions, one function each: labels::price()
// returns the text in the user's language. The texts stand in labelList.h.
#pragma once

#include <QString>
#include <QStringList>

namespace labels {

#define LABEL(name, text) QString name();
#define UNIT(name, text) QString name();
#include "util/labelList.h"
#undef LABEL
#undef UNIT

// The unit names as files store them ("pcs.", "tray", ...), untranslated, in the order offered.
const QStringList &storedUnits();

// Whether a unit counts pieces, so that only whole quantities of it make sense. Units that are
// none of the stored ones, and none at all, count nothing.
bool isCounted(const QString &storedUnit);

// What the user sees for a word stored in a file: a unit name or one of the words TAK, YES and NIE
// in the user's language; any other text unchanged.
QString shown(const QString &stored);

// The caption of a configuration option: the translation of "OPTION_" + key.
QString optionCaption(const QString &key);

} // namespace labels

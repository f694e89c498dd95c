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

// The unit of a record, which is pieces when it has none.
const QString &unitOrPieces(const QString &stored);

// Whether a unit counts pieces, so that only whole quantities of it make sense. Units that are
// none of the stored ones, and none at all, count nothing.
bool isCounted(const QString &storedUnit);

// What the user sees for a word stored in a file: a unit, a status, yes or no, a probability or the
// kind of an attached file in the user's language; any other text unchanged.
QString shown(const QString &stored);

// The same for the text of a record's field, which is named as in files ("d_unit"; what leads to a
// nested record, as in "supplier[TME]/type", may stand before it): fields that hold no such words
// are shown as they are, whatever their text.
QString shownIn(const QString &field, const QString &stored);

// The stored word of a text that shown() gives in the user's language, in any case of letters; any
// other text unchanged.
QString storedOf(const QString &text);

// The caption of a configuration option: the translation of "OPTION_" + key.
QString optionCaption(const QString &key);

} // namespace labels

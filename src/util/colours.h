// Conversions of colours written as "#RRGGBB".
#pragma once

#include <QColor>
#include <QString>

namespace colours {

// "rgb(r, g, b)" in decimal; a text that is not seven characters long gives "rgb(127, 0, 0)".
QString toRgb(const QString &colour);

// The colour; an invalid one when the text is not seven characters long. A pair that is no
// hexadecimal number counts as 0.
QColor fromText(const QString &colour);

// The attribute of an HTML table cell: bgcolor="colour".
QString backgroundAttribute(const QString &colour);

} // namespace colours

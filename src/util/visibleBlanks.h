// Blanks that one would not see, made visible where texts are compared.
#pragma once

#include <QString>

namespace text {

// The text in one line: blanks at its ends, at those of its lines, and more than one in a row as
// middle dots, line ends and tabs as arrows, no-break and other blanks as an open box, other
// characters that show nothing as a frame. Single blanks between words stay.
QString visibleBlanks(const QString &text);

} // namespace text

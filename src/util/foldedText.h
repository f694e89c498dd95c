// Texts in the form in which a search compares them: small letters without diacritics.
#pragma once

#include <QString>

#include <string>

namespace text {

// Appends the text folded, as UTF-8: small letters, diacritics dropped (ł and ø too), ligatures,
// superscripts and wide forms as plain letters, the micro sign as "u", the ohm sign as "ohm", the
// multiplication sign as "x", dashes as "-". White space and control characters become one space
// for each run, so the result never holds a line end.
void appendFolded(const QString &text, std::string &to);

std::string folded(const QString &text);

// Whether a byte of a folded text belongs to a word: a letter, a digit or a part of a character
// outside ASCII.
inline bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')
           || static_cast<unsigned char>(c) >= 0x80;
}

} // namespace text

// Small operations on texts that users type or files hold: trimming, plain text out of HTML,
// path separators, and the removal of characters that an XML file cannot store.
#pragma once

#include <QString>
#include <QStringList>

namespace text {

// Removes every tab at the end of the text.
QString chopTrailingTabs(const QString &text);

// Remove every space (U+0020 only) at the start, or at the end.
QString trimLeadingSpaces(const QString &text);
QString trimTrailingSpaces(const QString &text);

// Reduces every run of spaces to one space.
QString collapseDoubleSpaces(const QString &text);

// The text of an HTML fragment without tags and entities. Loads nothing the fragment refers to.
QString htmlToPlain(const QString &html);

// Reduces runs of "/" and runs of "\" to one; so the doubled start of a network path goes too.
QString normalisePath(const QString &path);

// The last component of a path, file name and extension.
QString fileNameOfPath(const QString &path);

// What an XML 1.0 file can hold of the text: line ends become LF, forbidden characters (control
// characters, lone surrogates, U+FFFE, U+FFFF) are dropped. Call it where text enters the program.
QString storable(const QString &text);

// The first so many UTF-16 units of a text, one less where that would halve a character.
QString firstUnits(const QString &text, int units);

// HTML-escaped text with its line ends as "<br>".
QString toHtml(const QString &text);

// A text for a tool tip, which shows it as it is: left alone, one that looks like HTML would be
// shown as such, with pictures and all.
QString toolTip(const QString &text);

// A row of a table of values between semicolons, quoted where they have to be; without a line end.
QString csvRow(const QStringList &values);

// A row of a table for the clipboard: values between tabs, each in one line.
QString tabbedRow(const QStringList &values);

} // namespace text

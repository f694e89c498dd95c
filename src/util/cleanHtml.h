// Makes HTML of unknown origin (a rich text editor, an old file, a web page pasted) fit to stand in
// a page of ours.
#pragma once

#include <QString>

// The content of the HTML as body markup of a few plain tags: paragraphs with their alignment,
// lists, tables, bold, italic, underlined, struck out, text colour, sub- and superscript, and links
// to http, https, mailto and ftp addresses. Scripts, styles, images and everything else are left
// out. A text without tags counts as plain text. Empty when there is no content.
QString cleanHtml(const QString &html);

// An address as a link that cleanHtml() keeps: one without a scheme becomes a web or mail address.
// Empty when it is none.
QString linkAddress(const QString &typed);

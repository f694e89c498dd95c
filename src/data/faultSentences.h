// What libxml2 finds wrong with a file, said so that the file's owner understands it.
#pragma once

#include <QString>

class recordTrail;
struct _xmlError;

// The sentence for an error, without place and record. trail stands where the error was found.
// An error that none of the sentences is for comes with the parser's own text.
QString faultSentence(const _xmlError &error, const recordTrail &trail);

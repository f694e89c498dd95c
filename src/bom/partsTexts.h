// What stands in the cells of lists of parts: designators, cases, part numbers, and that a part is
// not fitted.
#pragma once

#include <QStringList>

namespace partsTexts {

// The designators of a cell, in its order and each once: "R1, R2 R5-R9" is seven. Separated by
// blanks, commas, semicolons or bars; a range has the same letters at both ends, which the second
// may leave out, and at most 1,000 designators. What is none is kept as it is.
QStringList designatorsIn(const QString &cell);
// Whether there are some and nothing else.
bool areDesignators(const QString &cell);
// In the order that people count in: C2 before C10.
void sortDesignators(QStringList *designators);

// The size of a chip ("0402") or the family and pins of a case ("SOIC-8") in a case, a footprint or
// a description, by which those that are written differently are compared; empty where none is
// named.
QString caseIn(const QString &text);

// A text as a part number, folded once.
class partNumber
{
public:
    explicit partNumber(const QString &text);

    // As it is compared: capital letters and digits only.
    const QString &folded() const { return m_folded; }
    // Whether it may be ordered by: letters and digits mixed, and no value ("100nF", "4k7").
    bool isLikely() const;
    // The number of its digits when it has nothing else but signs between them, and enough of them
    // for a maker's number; else 0. It is one only where part numbers are expected.
    int digits() const;
    // The folded one without what a maker adds for the packaging ("-TR", "/REEL", "#PBF", ",115");
    // the same where nothing of that kind stands at its end.
    QString withoutPackaging() const;

private:
    QString m_text;
    QString m_folded;
};
bool looksLikePartNumber(const QString &text);

// The letters before the number of a designator, as capitals: what kind of part it is.
QString designatorLetters(const QString &designator);

// "DNP", "do not mount", "n/m", "nie montować": in a value or description, or as a mark.
bool saysNotFitted(const QString &text);
// yes, 1, x, TAK ...; no, 0, NIE ...
bool saysYes(const QString &text);
bool saysNo(const QString &text);

} // namespace partsTexts

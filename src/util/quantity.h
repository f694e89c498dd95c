// Numbers with a unit as they stand in parameters of components: 4k7, 4.7 kΩ and 4700 are equal.
#pragma once

#include <QString>

#include <optional>

struct quantity
{
    // What the number measures; none fits every other.
    enum unitKind : char
    {
        none,
        ohm,
        farad,
        henry,
        volt,
        ampere,
        watt,
        hertz,
        ampereHour,
        percent,
        zloty
    };

    double value = 0;
    unitKind unit = none;
    // Written as digits only: neither decimals, nor a prefix, nor a unit.
    bool bare = false;

    // Reads a number with a decimal comma or point, an optional prefix (p n u µ m k K M G T) and an
    // optional unit (Ω, ohm, R, F, H, V, VDC, VAC, A, W, Hz, Ah, %, PLN, zł; capitals do not
    // count), blanks allowed between them; or a prefix, R, V or A in the place of the point (4k7,
    // 0R1, R47, 3V3). "±" may stand before it. Small m is milli and capital M mega, but for Hz both
    // are mega. A power may be a fraction (1/4W). Nothing when the text is anything else, or digits
    // that begin with a zero (0603 names a case).
    static std::optional<quantity> parse(const QString &text);

    // The same from the start of a text that may go on after a blank or one of / , ; ( ± as in
    // "100nF/50V" and "4k7 1%".
    static std::optional<quantity> parseStart(const QString &text);

    // Whether the units fit, and less than 0, 0 or more than 0 as this is less than, equal to or
    // greater than the other.
    bool fits(const quantity &other) const
    {
        return unit == none || other.unit == none || unit == other.unit;
    }
    int compare(const quantity &other) const;

    bool operator==(const quantity &) const = default;
};

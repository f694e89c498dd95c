// The fields by which materials are searched, in one table: their names in a query, where their
// texts stand, and whether they are words, numbers, or found by any word.
#pragma once

#include "util/quantity.h"

#include <QString>

#include <array>
#include <string>
#include <string_view>
#include <vector>

class d_groupStruct;
class materialStruct;

struct searchField
{
    enum fieldKind
    {
        key,      // searched by any word, and matches in it come first
        text,     // searched by any word
        measure,  // a number with a unit: searched by any word and by any equal number
        number,   // a number, searched by its name only
        yesNo,    // TAK or NIE, searched by its name only
        colour,   // a status word, searched by any word
        unit,     // a stored unit or the one shown for it, searched by its name only
        plainText // a text searched by its name only
    };
    using textList = std::vector<const QString *>;

    // English and Polish names, folded.
    std::vector<const char *> names;
    fieldKind kind;
    // Appends the field's texts of a material in a group (null: in none).
    void (*collect)(const materialStruct &material, const d_groupStruct *group, textList &texts);
    // The same of what is proposed while the field's value is typed; null when it is all of that.
    void (*propose)(const materialStruct &material, const d_groupStruct *group,
                    textList &texts) = nullptr;

    bool numeric() const { return kind == measure || kind == number; }
    // Whether anything but a number is a fault in it, unless it stands in quotes. Among values
    // there are texts, such as the thread of a screw.
    bool numbersOnly() const { return numeric() && names.front() != std::string_view("value"); }
    // A text of the field as one to read a number from: a power is a fraction also without its
    // unit.
    QString numberText(const QString &stored) const;
    bool byAnyWord() const
    {
        return kind == key || kind == text || kind == measure || kind == colour;
    }

    // All of them: the keys first, then those found by any word, then the others.
    static const std::vector<searchField> &all();
    // The field with that name, or null.
    static const searchField *find(const std::string &foldedName);
    // The numeric ones, and the place of one among them.
    static constexpr size_t numericCount = 8;
    static const std::array<const searchField *, numericCount> &numericFields();
    size_t numericPlace() const;
};

// Texts stand in files in Polish; what a user may type for one instead, folded: "green" for
// "zielony", "yes" for "tak". Empty when there is none.
std::string storedWord(const std::string &foldedWord);
// The other way round: the English word for a stored one, folded; null when there is none.
const char *englishWord(const std::string &foldedStored);

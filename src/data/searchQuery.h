// What a user types to search materials, taken apart. The grammar is told in docs/search.md.
#pragma once

#include "data/searchField.h"
#include "util/quantity.h"

#include <QStringList>

#include <optional>
#include <string>
#include <vector>

// One condition. Those of one group stand beside each other and are alternatives; a material has to
// meet one of each group.
struct searchTerm
{
    enum relationKind
    {
        contains, // the text, or an equal number
        equal,
        less,
        lessOrEqual,
        greater,
        greaterOrEqual,
        between // number and last, both counted in
    };

    const searchField *field = nullptr; // null: any of those searched by any word
    relationKind relation = contains;
    std::string text;    // folded
    std::string altText; // another way to write it, empty when there is none
    std::optional<quantity> number;
    std::optional<quantity> last;
    int group = 0;
    bool negated = false; // the same for all of a group: none of them may be met

    bool operator==(const searchTerm &) const = default;
};

// A piece of a query between blanks: a field's name (empty when there is none) and a value, and
// where they stand in what was typed.
struct searchToken
{
    QString name;
    QString value; // without its quotes
    bool quoted = false;
    bool closed = false; // the last quote is there
    bool negated = false;
    bool isAlternative = false; // to the one before, whose name it has unless it gives its own
    int begin = 0;              // behind the "!"
    int valueBegin = 0;
    int end = 0;
    int plainLength = 0; // of the value, before its first quote

    static std::vector<searchToken> all(const QString &typed);
};

// What cannot be made a condition of: one sentence, plain text in the user's language, and the
// faulty part of what was typed.
struct searchFault
{
    QString text;
    int begin = 0;
    int length = 0;
};

class searchQuery
{
public:
    // Never fails: a faulty condition is left out and told in faults(). One whose value is still to
    // be typed ("case:") is left out too.
    static searchQuery parse(const QString &typed);

    // Takes the sign of a comparison off the start of a value.
    static searchTerm::relationKind takeRelation(QString &value);

    const std::vector<searchTerm> &terms() const { return m_terms; }
    const std::vector<searchFault> &faults() const { return m_faults; }
    // The sentences of the faults.
    QStringList errors() const;

    // The query as one folded text when it is words only: a name that equals it comes first.
    const std::string &phrase() const { return m_phrase; }

    bool operator==(const searchQuery &other) const
    {
        return m_terms == other.m_terms && m_phrase == other.m_phrase;
    }

private:
    void addField(const searchToken &token, searchTerm term);

    std::vector<searchTerm> m_terms;
    std::vector<searchFault> m_faults;
    std::string m_phrase;
};

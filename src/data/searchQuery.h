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

class searchQuery
{
public:
    // Never fails: a faulty condition is left out and told in errors(). One whose value is still to
    // be typed ("case:") is left out too.
    static searchQuery parse(const QString &typed);

    const std::vector<searchTerm> &terms() const { return m_terms; }
    // One sentence for each fault, plain text in the user's language.
    const QStringList &errors() const { return m_errors; }

    // The query as one folded text when it is words only: a name that equals it comes first.
    const std::string &phrase() const { return m_phrase; }

    bool operator==(const searchQuery &other) const
    {
        return m_terms == other.m_terms && m_phrase == other.m_phrase;
    }

private:
    void addField(const QString &name, QString value, bool quoted, searchTerm term);

    std::vector<searchTerm> m_terms;
    QStringList m_errors;
    std::string m_phrase;
};

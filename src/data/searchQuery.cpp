#include "data/searchQuery.h"

#include "util/foldedText.h"

#include <QCoreApplication>

#include <cmath>
#include <utility>

namespace {

// A piece of the query between blanks: a field's name (empty when there is none) and a value.
struct token
{
    QString name;
    QString value;
    bool quoted = false;
    bool negated = false;
    bool isAlternative = false; // to the one before
};

bool isName(const QString &text)
{
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// Cuts at blanks and bars outside double quotes. Only letters before a colon make a field's name:
// "1:10" and "http://x" are words. What follows a bar is of the field before it.
std::vector<token> tokensOf(const QString &typed)
{
    std::vector<token> result;
    int at = 0;
    bool isAlternative = false;
    while (at < typed.size()) {
        if (typed.at(at).isSpace() || typed.at(at) == QLatin1Char('|')) {
            isAlternative = isAlternative || typed.at(at) == QLatin1Char('|');
            ++at;
            continue;
        }
        token next;
        next.isAlternative = std::exchange(isAlternative, false) && !result.empty();
        if (next.isAlternative)
            next.negated = result.back().negated;
        // "!!!!!" marks what is unknown.
        else if (typed.at(at) == QLatin1Char('!')
                 && typed.midRef(at + 1, 1) != QLatin1String("!")) {
            next.negated = true;
            ++at;
        }
        QString piece;
        for (; at < typed.size() && !typed.at(at).isSpace() && typed.at(at) != QLatin1Char('|');
             ++at) {
            const QChar c = typed.at(at);
            if (c == QLatin1Char('"')) {
                // A missing second quote is still to be typed.
                const int end = typed.indexOf(QLatin1Char('"'), at + 1);
                piece += typed.mid(at + 1, end < 0 ? -1 : end - at - 1);
                next.quoted = true;
                at = end < 0 ? typed.size() - 1 : end;
            } else if (c == QLatin1Char(':') && next.name.isEmpty() && !next.quoted && isName(piece)
                       && typed.midRef(at, 3) != QLatin1String("://")) {
                next.name = piece;
                piece.clear();
            } else {
                piece += c;
            }
        }
        next.value = piece;
        if (next.isAlternative && next.name.isEmpty())
            next.name = result.back().name;
        // A condition of which only the "!" is typed waits for the rest.
        if (!next.value.isEmpty() || !next.name.isEmpty() || next.quoted)
            result.push_back(next);
    }
    return result;
}

searchTerm::relationKind takeRelation(QString &value)
{
    static const std::pair<QLatin1String, searchTerm::relationKind> relations[] = {
        {QLatin1String(">="), searchTerm::greaterOrEqual},
        {QLatin1String("<="), searchTerm::lessOrEqual},
        {QLatin1String(">"), searchTerm::greater},
        {QLatin1String("<"), searchTerm::less},
        {QLatin1String("="), searchTerm::equal}};
    for (const auto &[sign, relation] : relations) {
        if (value.startsWith(sign)) {
            value.remove(0, sign.size());
            return relation;
        }
    }
    return searchTerm::contains;
}

// Whether the second of two pieces is a unit of the first, as in "4.7 kΩ" and "voltage:>10 V".
bool isNumberWithUnit(const token &first, const token &second)
{
    if (first.quoted || second.quoted || second.isAlternative || second.negated
        || !second.name.isEmpty() || second.value.isEmpty() || second.value.at(0).isDigit())
        return false;
    QString value = first.value;
    if (!first.name.isEmpty())
        takeRelation(value);
    const std::optional<quantity> number = quantity::parse(value);
    const std::optional<quantity> whole = quantity::parse(value + second.value);
    return number && number->unit == quantity::none && whole && whole->unit != quantity::none;
}

// Puts together what blanks part that belongs together: "price:> 10" and "4.7 kΩ". The latter may
// stand either way in a text.
token takeToken(const std::vector<token> &tokens, size_t &at, QString &apart)
{
    token result = tokens[at++];
    QString value = result.value;
    if (at < tokens.size() && !result.name.isEmpty() && !result.quoted
        && takeRelation(value) != searchTerm::contains && value.isEmpty()
        && tokens[at].name.isEmpty() && !tokens[at].quoted && !tokens[at].isAlternative)
        result.value += tokens[at++].value;
    if (at < tokens.size() && isNumberWithUnit(result, tokens[at])) {
        apart = result.value + QLatin1Char(' ') + tokens[at].value;
        result.value += tokens[at++].value;
    }
    return result;
}

// "1k..10k", "1k..", "..10k" and "4k7±5%" as the first and last number that fit; false when the
// value is nothing of the kind.
bool takeRange(const QString &value, searchTerm &term, bool &isFaulty)
{
    const int dots = value.indexOf(QLatin1String(".."));
    if (dots >= 0) {
        const QString first = value.left(dots).trimmed();
        const QString last = value.mid(dots + 2).trimmed();
        term.number = quantity::parse(first.isEmpty() ? last : first);
        term.last = quantity::parse(last);
        term.relation = first.isEmpty()  ? searchTerm::lessOrEqual
                        : last.isEmpty() ? searchTerm::greaterOrEqual
                                         : searchTerm::between;
        isFaulty = !term.number || (!last.isEmpty() && !term.last);
        return true;
    }
    static const QString signs[] = {QStringLiteral("\u00b1"), QStringLiteral("+/-"),
                                    QStringLiteral("+-")};
    for (const QString &sign : signs) {
        const int at = value.indexOf(sign);
        const auto middle = at <= 0 ? std::nullopt : quantity::parse(value.left(at));
        const auto percent = at <= 0 ? std::nullopt : quantity::parse(value.mid(at + sign.size()));
        if (!middle || !percent || percent->unit != quantity::percent)
            continue;
        constexpr double whole = 100;
        const double part = std::abs(middle->value) * std::abs(percent->value) / whole;
        term.number = term.last = middle;
        term.number->value -= part;
        term.last->value += part;
        term.relation = searchTerm::between;
        return true;
    }
    return false;
}

// Without the blanks around it, which the index does not keep apart from others.
std::string foldedValue(const QString &value) { return text::folded(value.trimmed()); }

} // namespace

void searchQuery::addField(const QString &name, QString value, bool quoted, searchTerm term)
{
    const searchField *field = searchField::find(text::folded(name));
    if (!field) {
        m_errors << QCoreApplication::translate("searchQuery", "There is no field %1").arg(name);
        return;
    }
    term.field = field;
    term.relation = quoted ? searchTerm::contains : takeRelation(value);
    if (value.isEmpty() && !quoted)
        return;
    term.text = foldedValue(value);
    // A field that shall be empty.
    if (term.text.empty())
        term.relation = searchTerm::equal;
    bool isFaulty = false;
    const bool isRange = field->numeric() && !quoted && term.relation == searchTerm::contains
                         && takeRange(value, term, isFaulty);
    if (field->numeric() && !isRange)
        term.number = quantity::parse(field->numberText(value));
    else if (field->kind == searchField::yesNo || field->kind == searchField::colour)
        term.altText = storedWord(term.text);
    if (term.relation > searchTerm::equal && !field->numeric()) {
        m_errors << QCoreApplication::translate("searchQuery",
                                                "The field %1 is no number to compare with")
                        .arg(name);
        return;
    }
    if (isFaulty || (term.relation > searchTerm::equal && !term.number)) {
        m_errors << QCoreApplication::translate("searchQuery", "%1 is no number").arg(value);
        return;
    }
    m_terms.push_back(std::move(term));
}

searchQuery searchQuery::parse(const QString &typed)
{
    searchQuery query;
    const std::vector<token> tokens = tokensOf(typed);
    bool wordsOnly = true;
    int group = 0;
    for (size_t i = 0; i < tokens.size();) {
        QString apart;
        const token next = takeToken(tokens, i, apart);
        searchTerm term;
        term.group = next.isAlternative ? group : ++group;
        term.negated = next.negated;
        wordsOnly = wordsOnly && next.name.isEmpty() && !next.negated && !next.isAlternative;
        if (!next.name.isEmpty()) {
            query.addField(next.name, next.value, next.quoted, term);
            continue;
        }
        term.text = foldedValue(next.value);
        term.altText = foldedValue(apart);
        if (!next.quoted)
            term.number = quantity::parse(next.value);
        if (!term.text.empty())
            query.m_terms.push_back(std::move(term));
    }
    if (wordsOnly && query.m_terms.size() > 1)
        query.m_phrase = foldedValue(typed.simplified());
    return query;
}

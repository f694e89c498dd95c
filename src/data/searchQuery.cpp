#include "data/searchQuery.h"

#include "util/foldedText.h"
#include "util/labels.h"

#include <QCoreApplication>

#include <cmath>
#include <utility>

namespace {

bool isName(const QString &text)
{
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// "!" before anything, or "-" before a field, as other searches have it; "-00100" is a text.
bool isNegation(const QString &typed, int at)
{
    // "!!!!!" marks what is unknown.
    if (typed.at(at) == QLatin1Char('!'))
        return typed.midRef(at + 1, 1) != QLatin1String("!");
    const int colon = typed.indexOf(QLatin1Char(':'), at);
    return typed.at(at) == QLatin1Char('-') && colon > at
           && isName(typed.mid(at + 1, colon - at - 1));
}

// Whether the second of two pieces is a unit of the first, as in "4.7 kΩ" and "voltage:>10 V".
bool isNumberWithUnit(const searchToken &first, const searchToken &second)
{
    if (first.quoted || second.quoted || second.isAlternative || second.negated
        || !second.name.isEmpty() || second.value.isEmpty() || second.value.at(0).isDigit())
        return false;
    QString value = first.value;
    if (!first.name.isEmpty())
        searchQuery::takeRelation(value);
    const std::optional<quantity> number = quantity::parse(value);
    const std::optional<quantity> whole = quantity::parse(value + second.value);
    return number && number->unit == quantity::none && whole && whole->unit != quantity::none;
}

// Puts together what blanks part that belongs together: "price:> 10" and "4.7 kΩ". The latter may
// stand either way in a text.
searchToken takeToken(const std::vector<searchToken> &tokens, size_t &at, QString &apart)
{
    searchToken result = tokens[at++];
    QString value = result.value;
    if (at < tokens.size() && !result.name.isEmpty() && !result.quoted
        && searchQuery::takeRelation(value) != searchTerm::contains && value.isEmpty()
        && tokens[at].name.isEmpty() && !tokens[at].quoted && !tokens[at].isAlternative) {
        result.end = tokens[at].end;
        result.value += tokens[at++].value;
    }
    if (at < tokens.size() && isNumberWithUnit(result, tokens[at])) {
        apart = result.value + QLatin1Char(' ') + tokens[at].value;
        result.end = tokens[at].end;
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

// Whether a text is meant as the first and last of something: "0603..0805", but not "and so on...".
bool looksLikeRange(const QString &value)
{
    return value.contains(QLatin1String("..")) && !value.contains(QLatin1String("..."));
}

// The stored form of "yes", "no", "tak" and "nie", also while they are typed; else empty.
std::string yesOrNo(const std::string &typed)
{
    for (const char *word : {"tak", "nie", "yes", "no"})
        if (std::string_view(word).starts_with(typed))
            return storedWord(word).empty() ? word : storedWord(word);
    return {};
}

} // namespace

// Cuts at blanks and bars outside double quotes. Only letters before a colon make a field's name:
// "1:10" and "http://x" are words. What follows a bar is of the field before it.
std::vector<searchToken> searchToken::all(const QString &typed)
{
    std::vector<searchToken> result;
    int at = 0;
    bool isAlternative = false;
    while (at < typed.size()) {
        if (typed.at(at).isSpace() || typed.at(at) == QLatin1Char('|')) {
            isAlternative = isAlternative || typed.at(at) == QLatin1Char('|');
            ++at;
            continue;
        }
        searchToken next;
        next.isAlternative = std::exchange(isAlternative, false) && !result.empty();
        if (next.isAlternative) {
            next.negated = result.back().negated;
        } else if (isNegation(typed, at)) {
            next.negated = true;
            ++at;
        }
        next.begin = next.valueBegin = at;
        QString piece;
        for (; at < typed.size() && !typed.at(at).isSpace() && typed.at(at) != QLatin1Char('|');
             ++at) {
            const QChar c = typed.at(at);
            next.closed = false;
            if (c == QLatin1Char('"')) {
                // A missing second quote is still to be typed.
                const int end = typed.indexOf(QLatin1Char('"'), at + 1);
                if (!next.quoted)
                    next.plainLength = piece.size();
                piece += typed.mid(at + 1, end < 0 ? -1 : end - at - 1);
                next.quoted = true;
                next.closed = end >= 0;
                at = end < 0 ? typed.size() - 1 : end;
            } else if (c == QLatin1Char(':') && next.name.isEmpty() && !next.quoted && isName(piece)
                       && typed.midRef(at, 3) != QLatin1String("://")) {
                next.name = piece;
                next.valueBegin = at + 1;
                piece.clear();
            } else {
                piece += c;
            }
        }
        next.value = piece;
        next.end = at;
        if (next.isAlternative && next.name.isEmpty())
            next.name = result.back().name;
        // A condition of which only the "!" is typed waits for the rest.
        if (!next.value.isEmpty() || !next.name.isEmpty() || next.quoted)
            result.push_back(next);
    }
    return result;
}

searchTerm::relationKind searchQuery::takeRelation(QString &value)
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

QStringList searchQuery::errors() const
{
    QStringList texts;
    for (const searchFault &fault : m_faults)
        texts << fault.text;
    return texts;
}

void searchQuery::addField(const searchToken &token, searchTerm term)
{
    QString value = token.value;
    const auto fault = [&](const QString &text, const QString &part) {
        m_faults.push_back(
            {text.arg(part), token.valueBegin, qMax(token.end - token.valueBegin, 1)});
    };
    const searchField *field = searchField::find(text::folded(token.name));
    if (!field) {
        // An alternative of that field is left out with it, and told once.
        if (token.valueBegin > token.begin)
            m_faults.push_back(
                {QCoreApplication::translate("searchQuery", "There is no field %1").arg(token.name),
                 token.begin, token.name.size()});
        return;
    }
    term.field = field;
    // A sign stands before the quotes: what is within them is a text.
    QString sign = token.quoted ? value.left(token.plainLength) : value;
    const int length = sign.size();
    term.relation = takeRelation(sign);
    if (token.quoted && !sign.isEmpty())
        term.relation = searchTerm::contains;
    else
        value.remove(0, length - sign.size());
    if (value.isEmpty() && !token.quoted)
        return;
    term.text = foldedValue(value);
    // A field that shall be empty.
    if (term.text.empty())
        term.relation = searchTerm::equal;
    bool isFaulty = false;
    const bool isRange = field->numeric() && !token.quoted && term.relation == searchTerm::contains
                         && takeRange(value, term, isFaulty);
    if (field->numeric() && !isRange)
        term.number = quantity::parse(field->numberText(value));
    else if (field->kind == searchField::colour)
        term.altText = storedWord(term.text);
    else if (field->kind == searchField::unit)
        term.altText = text::folded(labels::storedOf(value.trimmed()));
    if (!field->numeric() && !token.quoted
        && (term.relation > searchTerm::equal || looksLikeRange(value)))
        fault(
            QCoreApplication::translate("searchQuery", "The field %1 is no number to compare with"),
            token.name);
    else if (isFaulty || (term.relation > searchTerm::equal && !term.number))
        fault(QCoreApplication::translate("searchQuery", "%1 is no number"), value);
    else if (field->numbersOnly() && !token.quoted && !term.number)
        fault(QCoreApplication::translate("searchQuery", "%1 is no number; a text goes in quotes"),
              value);
    else if (field->kind == searchField::yesNo && !token.quoted
             && (term.altText = yesOrNo(term.text)).empty())
        fault(QCoreApplication::translate("searchQuery", "%1 is neither yes nor no"), value);
    else
        m_terms.push_back(std::move(term));
}

searchQuery searchQuery::parse(const QString &typed)
{
    searchQuery query;
    const std::vector<searchToken> tokens = searchToken::all(typed);
    bool wordsOnly = true;
    int group = 0;
    for (size_t i = 0; i < tokens.size();) {
        QString apart;
        const searchToken next = takeToken(tokens, i, apart);
        searchTerm term;
        term.group = next.isAlternative ? group : ++group;
        term.negated = next.negated;
        wordsOnly = wordsOnly && next.name.isEmpty() && !next.negated && !next.isAlternative;
        if (!next.name.isEmpty()) {
            query.addField(next, term);
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

#include "data/searchQuery.h"

#include "util/foldedText.h"

#include <QCoreApplication>

namespace {

// A piece of the query between blanks: a field's name (empty when there is none) and a value.
struct token
{
    QString name;
    QString value;
    bool quoted = false;
};

bool isName(const QString &text)
{
    return !text.isEmpty()
           && std::all_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

// Cuts at blanks outside double quotes. Only letters before a colon make a field's name: "1:10"
// and "http://x" are words.
std::vector<token> tokensOf(const QString &typed)
{
    std::vector<token> result;
    int at = 0;
    while (at < typed.size()) {
        if (typed.at(at).isSpace()) {
            ++at;
            continue;
        }
        token next;
        QString piece;
        for (; at < typed.size() && !typed.at(at).isSpace(); ++at) {
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
    if (first.quoted || second.quoted || !second.name.isEmpty() || second.value.at(0).isDigit())
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
        && tokens[at].name.isEmpty() && !tokens[at].quoted)
        result.value += tokens[at++].value;
    if (at < tokens.size() && isNumberWithUnit(result, tokens[at])) {
        apart = result.value + QLatin1Char(' ') + tokens[at].value;
        result.value += tokens[at++].value;
    }
    return result;
}

// Without the blanks around it, which the index does not keep apart from others.
std::string foldedValue(const QString &value) { return text::folded(value.trimmed()); }

} // namespace

void searchQuery::addField(const QString &name, QString value, bool quoted)
{
    const searchField *field = searchField::find(text::folded(name));
    if (!field) {
        m_errors << QCoreApplication::translate("searchQuery", "There is no field %1").arg(name);
        return;
    }
    searchTerm term;
    term.field = field;
    term.relation = quoted ? searchTerm::contains : takeRelation(value);
    if (value.isEmpty() && !quoted)
        return;
    term.text = foldedValue(value);
    // A field that shall be empty.
    if (term.text.empty())
        term.relation = searchTerm::equal;
    if (field->numeric())
        term.number = quantity::parse(value);
    else if (field->kind == searchField::yesNo || field->kind == searchField::colour)
        term.altText = storedWord(term.text);
    if (term.relation > searchTerm::equal && !field->numeric()) {
        m_errors << QCoreApplication::translate("searchQuery",
                                                "The field %1 is no number to compare with")
                        .arg(name);
        return;
    }
    if (term.relation > searchTerm::equal && !term.number) {
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
    for (size_t i = 0; i < tokens.size();) {
        QString apart;
        const token next = takeToken(tokens, i, apart);
        if (!next.name.isEmpty()) {
            wordsOnly = false;
            query.addField(next.name, next.value, next.quoted);
            continue;
        }
        searchTerm term;
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

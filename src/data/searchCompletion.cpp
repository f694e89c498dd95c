#include "data/searchCompletion.h"

#include "util/foldedText.h"
#include "util/translation.h"

#include <QLocale>

namespace {

constexpr size_t mostSuggestions = 40;
constexpr int usualLetters = 2;

bool isEnglish() { return translation::current() == QLatin1String("en"); }

void addFields(const QString &typed, searchCompletion &completion)
{
    const std::string wanted = text::folded(typed);
    completion.ofFields = true;
    for (const searchField &field : searchField::all()) {
        // Asked for all of them, each comes by the name in the user's language.
        const char *name = nullptr;
        if (wanted.empty())
            name = isEnglish() ? field.names.front() : field.names.back();
        for (size_t i = 0; i < field.names.size() && !name; ++i)
            if (std::string_view(field.names[i]).starts_with(wanted))
                name = field.names[i];
        if (!name)
            continue;
        QStringList others;
        for (const char *other : field.names)
            if (other != name)
                others << QLatin1String(other);
        const QString text = QLatin1String(name) + QLatin1Char(':');
        completion.items.push_back({text, text, others.join(QLatin1String(", "))});
    }
}

// A value as it has to be typed; empty when it cannot be.
QString written(const searchField &field, const QString &value)
{
    if (value.contains(QLatin1Char('"')))
        return {};
    const bool needsQuotes =
        std::any_of(value.begin(), value.end(),
                    [](QChar c) { return c.isSpace() || c == QLatin1Char('|'); })
        || QStringLiteral("=<>").contains(value.at(0)) || value.contains(QLatin1String(".."))
        || (field.numeric() && value.indexOf(QChar(0xb1)) > 0)
        || (field.numbersOnly() && !quantity::parse(field.numberText(value)));
    return needsQuotes ? QLatin1Char('"') + value + QLatin1Char('"') : value;
}

// Better is less: begins with it, has a word that does, neither. Decimals are no word.
int rankOf(std::string_view text, std::string_view wanted)
{
    size_t at = text.find(wanted);
    if (at == 0)
        return 0;
    for (; at != std::string_view::npos; at = text.find(wanted, at + 1))
        if (!text::isWordByte(text[at - 1]) && text[at - 1] != '.' && text[at - 1] != ',')
            return 1;
    return 2;
}

void addValues(const searchField &field, const QString &typed, searchCompletion &completion,
               const std::vector<materialSearch::fieldValue> &values)
{
    const std::string wanted = text::folded(typed);
    const bool hasEnglish = field.kind == searchField::colour || field.kind == searchField::yesNo;
    const QLocale locale;
    std::vector<searchSuggestion> inside;
    for (const materialSearch::fieldValue &value : values) {
        if (completion.items.size() >= mostSuggestions)
            break;
        const char *english = hasEnglish ? englishWord(value.folded) : nullptr;
        const bool byEnglish = english && std::string_view(english).starts_with(wanted);
        const int rank = byEnglish ? 0 : rankOf(value.folded, wanted);
        if (rank > 1 || (rank == 1 && inside.size() >= mostSuggestions))
            continue;
        // Stored words are shown in the user's language, unless the other one is being typed.
        const bool isStored = value.folded.starts_with(wanted);
        const QString word = byEnglish && (isEnglish() || !isStored) ? QLatin1String(english)
                                                                     : value.text.simplified();
        const QString text = written(field, word);
        if (text.isEmpty())
            continue;
        (rank == 0 ? completion.items : inside)
            .push_back({text, word, locale.toString(value.count)});
    }
    for (size_t i = 0; i < inside.size() && completion.items.size() < mostSuggestions; ++i)
        completion.items.push_back(std::move(inside[i]));
}

} // namespace

searchCompletion searchCompletion::at(const QString &typed, int caret, materialSearch &search,
                                      const kiv_mat_databaseStruct *database, bool asked)
{
    searchCompletion completion;
    const auto endsWord = [](QChar c) { return c.isSpace() || c == QLatin1Char('|'); };
    if (caret < typed.size() && !endsWord(typed.at(caret)))
        return completion;
    const QString before = typed.left(caret);
    const std::vector<searchToken> tokens = searchToken::all(before);
    const bool isOpen = !tokens.empty() && tokens.back().end == caret;
    if (!isOpen) {
        completion.begin = caret;
        // A bar wants another value of the same field.
        if (!tokens.empty() && !before.isEmpty() && before.at(caret - 1) == QLatin1Char('|')) {
            if (const searchField *field = searchField::find(text::folded(tokens.back().name)))
                addValues(*field, {}, completion, search.values(*field, database));
        } else if (asked) {
            addFields({}, completion);
        }
        return completion;
    }
    const searchToken &token = tokens.back();
    if (token.closed)
        return completion;
    const searchField *field = searchField::find(text::folded(token.name));
    if (field && field->kind != searchField::number) {
        // A sign stays; what is in quotes has none.
        QString value = token.value;
        if (!token.quoted || token.plainLength > 0)
            searchQuery::takeRelation(value);
        completion.begin = token.valueBegin + token.value.size() - value.size();
        completion.length = caret - completion.begin;
        addValues(*field, value, completion, search.values(*field, database));
    }
    const bool mayBeName = !token.quoted && token.valueBegin == token.begin
                           && !token.value.isEmpty()
                           && std::all_of(token.value.begin(), token.value.end(),
                                          [](QChar c) { return c.isLetter(); });
    if (completion.items.empty() && mayBeName && (asked || token.value.size() >= usualLetters)) {
        completion.begin = token.begin;
        completion.length = caret - token.begin;
        addFields(token.value, completion);
    }
    // Nothing is left to complete.
    if (completion.items.size() == 1
        && completion.items.front().text == typed.mid(completion.begin, completion.length))
        completion.items.clear();
    return completion;
}

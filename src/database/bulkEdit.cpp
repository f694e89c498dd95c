#include "database/bulkEdit.h"

#include "data/XmlValidator.h"
#include "data/searchField.h"
#include "data/vocabulary.h"
#include "util/foldedText.h"
#include "util/labels.h"
#include "util/numbers.h"
#include "util/text.h"
#include "util/translation.h"
#include "util/typed.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace bulkEdit {

namespace {

QString tr(const char *text, const char *comment = nullptr, int n = -1)
{
    return QCoreApplication::translate("bulkEdit", text, comment, n);
}

// --- Texts of a field
// -----------------------------------------------------------------------------

struct reading
{
    QString text;
    QString fault;
};

reading numberOf(const QString &typed, const typed::numberForm &form)
{
    const QString trimmed = typed.trimmed();
    if (trimmed.isEmpty())
        return {};
    const auto [text, fault] = typed::readNumber(trimmed, form);
    return {text, fault};
}

// One of the words, as it is stored, as it is shown, or as a search takes it.
reading wordOf(const QString &typed, const QStringList &words, bool orAnother)
{
    const QString trimmed = typed.trimmed();
    const QString meant = QString::fromStdString(storedWord(text::folded(trimmed)));
    for (const QString &word : words)
        for (const QString &name : {word, labels::shown(word)})
            if (name.compare(trimmed, Qt::CaseInsensitive) == 0
                || name.compare(meant, Qt::CaseInsensitive) == 0)
                return {word, {}};
    if (orAnother)
        return {text::storable(trimmed), {}};
    return {{}, tr("\"%1\" is not in the list").arg(trimmed)};
}

// What a text means in a field, as it means in a cell. Codes are checked once for each text.
class reader
{
public:
    explicit reader(const field &of)
        : m_field(of)
    {
    }
    reading read(const QString &typed, const materialStruct &material)
    {
        constexpr int longest = 32767; // characters, which a cell of a workbook holds, too
        if (typed.size() > longest)
            return {{}, QCoreApplication::translate("bulkEdit", "The text would be too long")};
        switch (m_field.kind) {
        case field::ktm:
            return code(typed, checkKtm,
                        QCoreApplication::translate("bulkEdit", "Ktm syntax error"));
        case field::cpv:
            return typed.trimmed().isEmpty()
                       ? reading{}
                       : code(typed, checkCpv,
                              QCoreApplication::translate("bulkEdit", "CPV syntax error"));
        case field::price:
            return numberOf(typed, typed::priceForm());
        case field::stock:
            return numberOf(typed, typed::quantityForm(material.d_unit));
        case field::unit:
            return wordOf(typed, labels::storedUnits(), true);
        case field::word:
            return wordOf(typed, m_field.words, false);
        case field::text:
            break;
        }
        return {text::storable(typed), {}};
    }

private:
    reading code(const QString &typed, bool (*check)(const QString &), const QString &fault)
    {
        const QString trimmed = typed.trimmed();
        if (trimmed != m_checked || m_checked.isNull()) {
            m_checked = trimmed;
            m_good = check(trimmed);
        }
        return m_good ? reading{trimmed, {}} : reading{{}, fault};
    }

    const field &m_field;
    QString m_checked;
    bool m_good = false;
};

bool isNumber(const field &of) { return of.kind == field::price || of.kind == field::stock; }

// --- Replacing
// ------------------------------------------------------------------------------------

// The steps that a pattern may take on one text, about a hundredth of a second, and how many texts
// may exceed them.
constexpr const char *stepLimit = "(*LIMIT_MATCH=1000000)";
constexpr int slowAtMost = 20;

QRegularExpression patternOf(const request &wanted)
{
    QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
    if (!wanted.matchCase)
        options |= QRegularExpression::CaseInsensitiveOption;
    return QRegularExpression(QLatin1String(stepLimit) + wanted.text, options);
}

// What stands in the place of what a pattern found.
class replacement
{
public:
    // groups: how many brackets the pattern has.
    replacement(const QString &typed, int groups, QString *fault)
    {
        QString literal;
        for (int i = 0; i < typed.size(); ++i) {
            const QChar c = typed.at(i);
            const QChar next = i + 1 < typed.size() ? typed.at(i + 1) : QChar();
            const bool isSign = c == QLatin1Char('$') || c == QLatin1Char('\\');
            if (!isSign || (next != c && (next < QLatin1Char('0') || next > QLatin1Char('9')))) {
                literal += c;
                continue;
            }
            ++i;
            if (next == c) {
                literal += c;
                continue;
            }
            const int group = next.digitValue();
            if (group > groups && fault->isEmpty())
                *fault = QCoreApplication::translate(
                             "bulkEdit", "The pattern has %n bracket(s), so that there is no %1",
                             nullptr, groups)
                             .arg(QString(c) + next);
            m_pieces.push_back({std::exchange(literal, {}), group});
        }
        m_end = literal;
    }
    void append(const QRegularExpressionMatch &found, QString *to) const
    {
        for (const auto &[before, group] : m_pieces) {
            *to += before;
            *to += found.capturedRef(group);
        }
        *to += m_end;
    }

private:
    std::vector<std::pair<QString, int>> m_pieces; // a text, and what a group found behind it
    QString m_end;
};

// Nothing when the pattern takes too many steps.
std::optional<QString> replaced(const QString &text, const QRegularExpression &pattern,
                                const replacement &with)
{
    QString result;
    int from = 0;   // what is copied next
    int offset = 0; // where to look
    while (offset <= text.size()) {
        const QRegularExpressionMatch found = pattern.match(text, offset);
        if (!found.isValid())
            return std::nullopt;
        if (!found.hasMatch())
            break;
        result += text.midRef(from, found.capturedStart() - from);
        with.append(found, &result);
        from = offset = found.capturedEnd();
        if (found.capturedLength() > 0)
            continue;
        // One character further, which may be two units.
        ++offset;
        if (offset < text.size() && text.at(offset).isLowSurrogate())
            ++offset;
    }
    return result += text.midRef(from);
}

// --- Plans
// ----------------------------------------------------------------------------------------

QStringList linesOf(const QString &text)
{
    QStringList lines = QString(text).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
    if (lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

// The texts of a pasted column for the materials.
class pastedColumn
{
public:
    explicit pastedColumn(const QString &text)
        : m_lines(linesOf(text))
    {
        m_byKtm = !m_lines.isEmpty()
                  && std::all_of(m_lines.begin(), m_lines.end(), [](const QString &line) {
                         return line.count(QLatin1Char('\t')) == 1;
                     });
        if (m_byKtm)
            for (const QString &line : qAsConst(m_lines))
                m_texts.insert(line.section(QLatin1Char('\t'), 0, 0).trimmed(),
                               line.section(QLatin1Char('\t'), 1));
    }
    std::optional<QString> textFor(const materialStruct &material, int number)
    {
        if (!m_byKtm)
            return number < m_lines.size() ? std::optional(m_lines.at(number)) : std::nullopt;
        const auto found = m_texts.constFind(material.d_ktm);
        if (found == m_texts.constEnd())
            return std::nullopt;
        m_used.insert(material.d_ktm);
        return *found;
    }
    QString note(int materials) const
    {
        if (m_byKtm)
            return m_used.size() == m_texts.size()
                       ? QString()
                       : QCoreApplication::translate(
                           "bulkEdit", "%n KTM(s) of the lines are none of these materials'",
                           nullptr, m_texts.size() - m_used.size());
        if (m_lines.size() == materials)
            return {};
        return QCoreApplication::translate("bulkEdit", "%n line(s) for", nullptr, m_lines.size())
               + QLatin1Char(' ')
               + QCoreApplication::translate("bulkEdit", "%n material(s)", nullptr, materials);
    }

private:
    QStringList m_lines;
    bool m_byKtm = false;
    QHash<QString, QString> m_texts;
    QSet<QString> m_used;
};

// What a request makes of one text: another one, nothing, or why it cannot be.
struct outcome
{
    std::optional<QString> text;
    QString fault;
};
using maker = std::function<outcome(const place &at, int number)>;

// Of patterns that take too long; too many of them end the plan.
struct slowTexts
{
    int count = 0;
    bool areTooMany() const { return count >= slowAtMost; }
};

maker replacer(const request &wanted, slowTexts *slow)
{
    if (!wanted.isPattern)
        return [&wanted](const place &at, int) -> outcome {
            return {QString(wanted.target->of(*at.material))
                        .replace(wanted.text, wanted.with,
                                 wanted.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive),
                    {}};
        };
    QRegularExpression pattern = patternOf(wanted);
    pattern.optimize();
    QString fault;
    const replacement with(wanted.with, pattern.captureCount(), &fault);
    return [&wanted, pattern, with, slow](const place &at, int) -> outcome {
        auto text = replaced(wanted.target->of(*at.material), pattern, with);
        if (text)
            return {std::move(text), {}};
        ++slow->count;
        return {{}, tr("The pattern takes too long on this text")};
    };
}

maker composer(const QString &typed)
{
    QString fault;
    return [form = textTemplate(typed, &fault)](const place &at, int) -> outcome {
        auto text = form.textFor(at);
        return {text, text ? QString() : tr("The fields of the template are empty")};
    };
}

template <class List>
QString joinedNames(const List &list)
{
    QStringList names;
    for (const auto &source : list.items)
        names.append((source->name + QLatin1Char(' ') + source->partNo).trimmed());
    return names.join(QLatin1String(", "));
}

template <class List>
bool hasFirm(const List &list, const QString &name)
{
    return std::any_of(list.items.begin(), list.items.end(),
                       [&name](const auto &source) { return source->name == name; });
}

void addText(plan &made, const place &at, const outcome &wanted, reader &reads)
{
    const field &target = *made.made.target;
    const QString &before = target.of(*at.material);
    if (!wanted.fault.isEmpty()) {
        made.refused.push_back({at, before, {}, wanted.fault});
        return;
    }
    // What it has stays, also where it is no proper value.
    if (!wanted.text || *wanted.text == before) {
        ++made.unchanged;
        return;
    }
    const reading after = reads.read(*wanted.text, *at.material);
    if (!after.fault.isEmpty()) {
        made.refused.push_back({at, before, *wanted.text, after.fault});
        return;
    }
    const bool keepsNumbers =
        isNumber(target) && (made.made.kind == request::set || made.made.kind == request::paste);
    const auto number = keepsNumbers ? numbers::finite(before) : std::nullopt;
    if (after.text == before || (number && number == numbers::finite(after.text)))
        ++made.unchanged;
    else
        made.changes.push_back({at, before, after.text, {}});
}

void addGroup(plan &made, const place &at)
{
    if (at.group->name == made.made.text)
        ++made.unchanged;
    else
        made.changes.push_back({at, at.group->name, made.made.text, {}});
}

template <class List>
void addFirm(plan &made, const place &at, const List &list, const textTemplate &partNumber)
{
    if (hasFirm(list, made.made.text))
        ++made.unchanged;
    else
        made.changes.push_back(
            {at, joinedNames(list), partNumber.textFor(at).value_or(QString()), {}});
}

} // namespace

// --- Templates
// ------------------------------------------------------------------------------------

textTemplate::textTemplate(const QString &typed, QString *fault)
{
    QString literal;
    const auto refuse = [fault](const QString &why) {
        if (fault->isEmpty())
            *fault = why;
    };
    fault->clear();
    for (int i = 0; i < typed.size(); ++i) {
        const QChar c = typed.at(i);
        const bool isBrace = c == QLatin1Char('{') || c == QLatin1Char('}');
        if (isBrace && i + 1 < typed.size() && typed.at(i + 1) == c)
            ++i;
        else if (isBrace) {
            const int end = typed.indexOf(QLatin1Char('}'), i);
            if (c == QLatin1Char('}') || end < 0) {
                refuse(c == QLatin1Char('}') ? QCoreApplication::translate(
                           "bulkEdit", "A \"}\" has no \"{\" before it")
                                             : QCoreApplication::translate(
                                                 "bulkEdit", "A \"{\" has no \"}\" behind it"));
                return;
            }
            const QString name = typed.mid(i + 1, end - i - 1).trimmed();
            const searchField *field = searchField::find(text::folded(name));
            if (!field)
                refuse(
                    QCoreApplication::translate("bulkEdit", "There is no field \"%1\"").arg(name));
            m_pieces.push_back({std::exchange(literal, {}), nullptr});
            m_pieces.push_back({{}, field});
            i = end;
            continue;
        }
        literal += c;
    }
    m_pieces.push_back({literal, nullptr});
}

std::optional<QString> textTemplate::textFor(const place &at) const
{
    QString result;
    bool namesFields = false;
    bool hasText = false;
    searchField::textList texts;
    for (const piece &part : m_pieces) {
        if (!part.field) {
            result += part.text;
            continue;
        }
        namesFields = true;
        texts.clear();
        part.field->collect(*at.material, at.group, texts);
        const auto found = std::find_if(texts.begin(), texts.end(),
                                        [](const QString *text) { return !text->isEmpty(); });
        if (found == texts.end())
            continue;
        hasText = true;
        result += **found;
    }
    return namesFields && !hasText ? std::nullopt : std::optional(result.simplified());
}

QStringList textTemplate::names()
{
    // The Polish ones come last.
    const bool polish = translation::current() == QLatin1String("pl");
    QStringList all;
    for (const searchField &field : searchField::all())
        all.append(QLatin1String(polish ? field.names.back() : field.names.front()));
    return all;
}

// --- Plans
// ----------------------------------------------------------------------------------------

faults faultsOf(const request &wanted, const kiv_mat_databaseStruct &database)
{
    faults found;
    switch (wanted.kind) {
    case request::set:
    case request::paste:
        break;
    case request::replace:
        if (wanted.text.isEmpty())
            found.text = tr("Type what is to be replaced");
        else if (wanted.isPattern) {
            const QRegularExpression pattern = patternOf(wanted);
            const int at = pattern.patternErrorOffset() - int(qstrlen(stepLimit));
            if (!pattern.isValid())
                found.text = tr("Character %1: %2").arg(at + 1).arg(pattern.errorString());
            else
                replacement(wanted.with, pattern.captureCount(), &found.with);
        }
        break;
    case request::compose:
        textTemplate(wanted.text, &found.text);
        if (wanted.text.trimmed().isEmpty())
            found.text = tr("Type a template, such as %1").arg(QLatin1String("{value} {case}"));
        break;
    case request::toGroup:
        if (std::none_of(database.groups.begin(), database.groups.end(),
                         [&](const auto &group) { return group->name == wanted.text; }))
            found.text = tr("There is no group of this name");
        break;
    case request::addMaker:
    case request::addSupplier:
        textTemplate(wanted.with, &found.with);
        if (wanted.text.trimmed().isEmpty())
            found.text = tr("Choose a firm");
        break;
    }
    return found;
}

std::vector<row> takenKtms(std::vector<row> &changes, const ktmIndex &known)
{
    QHash<QString, size_t> wanted; // who gets a KTM
    QHash<const materialStruct *, size_t> leaving;
    QStringList kept; // KTMs that stay where they are
    const auto refuse = [&](row &one, const QString &why) {
        one.refusal = why;
        leaving.remove(one.at.material);
        kept.append(one.before);
    };
    for (size_t i = 0; i < changes.size(); ++i)
        if (wanted.contains(changes[i].after)) {
            refuse(changes[i], tr("Another selected material gets this KTM"));
        } else {
            wanted.insert(changes[i].after, i);
            leaving.insert(changes[i].at.material, i);
        }
    const QString taken = tr("Another material has this KTM");
    for (row &one : changes) {
        const auto having = known.all(one.after);
        if (one.refusal.isEmpty()
            && std::any_of(having.begin(), having.end(), [&](const place &other) {
                   return other.material != one.at.material && !leaving.contains(other.material);
               }))
            refuse(one, taken);
    }
    // Who counted on one that stays.
    while (!kept.isEmpty()) {
        const auto found = wanted.constFind(kept.takeLast());
        if (found != wanted.constEnd() && changes[*found].refusal.isEmpty())
            refuse(changes[*found], taken);
    }
    std::vector<row> refused;
    std::copy_if(changes.begin(), changes.end(), std::back_inserter(refused),
                 [](const row &one) { return !one.refusal.isEmpty(); });
    std::erase_if(changes, [](const row &one) { return !one.refusal.isEmpty(); });
    return refused;
}

plan planOf(const request &wanted, const std::vector<place> &materials, const ktmIndex &known,
            const progressFunction &progress)
{
    plan made;
    made.made = wanted;
    const request &what = made.made;
    const bool isText = what.target && what.kind <= request::compose;
    QString fault;
    const textTemplate partNumber(what.with, &fault);
    pastedColumn column(what.kind == request::paste ? what.text : QString());
    slowTexts slow;
    maker make;
    if (what.kind == request::replace)
        make = replacer(what, &slow);
    else if (what.kind == request::compose)
        make = composer(what.text);
    else if (what.kind == request::paste)
        make = [&column](const place &at, int number) -> outcome {
            return {column.textFor(*at.material, number), {}};
        };
    else
        make = [text = QString(what.text).replace(QLatin1Char('\n'), QLatin1Char(' '))](
                   const place &, int) -> outcome {
            return {text, {}};
        };
    std::optional<reader> reads;
    if (isText)
        reads.emplace(*what.target);
    int number = 0;
    progressSteps steps(progress, qint64(materials.size()));
    for (const place &at : materials) {
        if (isText)
            addText(made, at, make(at, number++), *reads);
        else if (what.kind == request::toGroup)
            addGroup(made, at);
        else if (what.kind == request::addMaker)
            addFirm(made, at, at.material->manufacturers, partNumber);
        else if (what.kind == request::addSupplier)
            addFirm(made, at, at.material->suppliers, partNumber);
        if (slow.areTooMany() || !steps.next()) {
            plan none;
            none.made = wanted;
            none.cancelled = !slow.areTooMany();
            if (slow.areTooMany())
                none.note = tr("The pattern takes too long: make it simpler");
            return none;
        }
    }
    if (isText && what.target->kind == field::ktm) {
        std::vector<row> taken = takenKtms(made.changes, known);
        made.refused.insert(made.refused.end(), std::make_move_iterator(taken.begin()),
                            std::make_move_iterator(taken.end()));
    }
    if (what.kind == request::paste)
        made.note = column.note(int(materials.size()));
    return made;
}

QString shownBefore(const request &wanted, const row &one)
{
    return wanted.target && wanted.target->kind != field::text ? labels::shown(one.before)
                                                               : one.before;
}

QString shownAfter(const request &wanted, const row &one)
{
    if (wanted.kind == request::addMaker || wanted.kind == request::addSupplier)
        return (wanted.text + QLatin1Char(' ') + one.after).trimmed();
    return wanted.target && wanted.target->kind != field::text ? labels::shown(one.after)
                                                               : one.after;
}

// --- Carrying out
// ---------------------------------------------------------------------------------

changes::changes(const plan &made, const std::vector<int> &chosen)
    : m_target(made.made.target)
    , m_kind(made.made.kind)
{
    const auto firm = [&](auto source, const row &from) {
        source->name = made.made.text;
        source->partNo = from.after;
        return source;
    };
    m_all.reserve(chosen.size());
    for (int number : chosen) {
        const row &from = made.changes[size_t(number)];
        m_all.push_back({from.at, from.after, {}, {}});
        if (m_kind == request::addMaker)
            m_all.back().manufacturer = firm(std::make_unique<manufacturerStruct>(), from);
        else if (m_kind == request::addSupplier)
            m_all.back().supplier = firm(std::make_unique<supplierStruct>(), from);
    }
}

namespace {

// At the end of the list, or back from there: the same record, which others may know.
template <class List, class Source>
void exchangeFirm(List &list, std::unique_ptr<Source> &held, bool forth)
{
    if (forth) {
        list.append(std::move(held));
    } else {
        held = std::move(list.items.back());
        list.items.pop_back();
    }
}

} // namespace

void changes::exchange(one &change, bool forth) const
{
    materialStruct &material = *change.at.material;
    if (m_kind == request::addMaker)
        exchangeFirm(material.manufacturers, change.manufacturer, forth);
    else if (m_kind == request::addSupplier)
        exchangeFirm(material.suppliers, change.supplier, forth);
    else if (m_target)
        m_target->of(material).swap(change.text);
}

bool changes::apply(const told &before, const told &after, const progressFunction &progress)
{
    progressSteps steps(progress, qint64(m_all.size()));
    for (size_t i = 0; i < m_all.size(); ++i) {
        if (before)
            before(m_all[i].at);
        exchange(m_all[i], true);
        if (after)
            after(m_all[i].at);
        if (steps.next())
            continue;
        for (++i; i-- > 0;) {
            if (before)
                before(m_all[i].at);
            exchange(m_all[i], false);
            if (after)
                after(m_all[i].at);
        }
        return false;
    }
    return true;
}

void changes::revert(const told &before, const told &after, const progressFunction &progress)
{
    progressSteps steps(progress, qint64(m_all.size()));
    for (auto change = m_all.rbegin(); change != m_all.rend(); ++change) {
        if (before)
            before(change->at);
        exchange(*change, false);
        if (after)
            after(change->at);
        steps.next();
    }
}

} // namespace bulkEdit

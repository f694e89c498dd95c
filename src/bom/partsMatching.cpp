#include "bom/partsMatching.h"

#include "bom/partsTexts.h"
#include "data/kiv_mat_databaseStruct.h"
#include "util/foldedText.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

struct reasonRow
{
    const char *name;
    const char *text; // English source text, context "partsMatching"
    int confidence;
};

const std::array<reasonRow, 9> reasons{{
    {"decided", QT_TRANSLATE_NOOP("partsMatching", "decided before"), 100},
    {"ktm", QT_TRANSLATE_NOOP("partsMatching", "KTM"), 100},
    {"maker_number", QT_TRANSLATE_NOOP("partsMatching", "manufacturer and part number"), 100},
    {"number", QT_TRANSLATE_NOOP("partsMatching", "part number"), 95},
    {"number_packaging", QT_TRANSLATE_NOOP("partsMatching", "part number without packaging"), 85},
    {"supplier_number", QT_TRANSLATE_NOOP("partsMatching", "supplier's number"), 90},
    {"value", QT_TRANSLATE_NOOP("partsMatching", "value and case"), 75},
    {"words", QT_TRANSLATE_NOOP("partsMatching", "words"), 30},
    {"chosen", QT_TRANSLATE_NOOP("partsMatching", "chosen"), 100},
}};

QString folded(const QString &text) { return QString::fromStdString(text::folded(text)); }

// The letters of a firm's name, a line end and their initials.
QString foldedFirm(const QString &name)
{
    QString letters;
    QString initials;
    const QString plain = folded(name);
    for (int i = 0; i < plain.size(); ++i) {
        if (!plain[i].isLetterOrNumber())
            continue;
        letters += plain[i];
        if (i == 0 || !plain[i - 1].isLetterOrNumber())
            initials += plain[i];
    }
    return letters.isEmpty() ? QString() : letters + QLatin1Char('\n') + initials;
}

// "Texas Instruments", "TEXAS INSTR." and "TI" are one, "ST" and "STMicroelectronics", too.
bool isSameFirm(const QString &a, const QString &b)
{
    constexpr int telling = 2;
    const QString mine = a.section(QLatin1Char('\n'), 0, 0);
    const QString its = b.section(QLatin1Char('\n'), 0, 0);
    const int shorter = std::min(mine.size(), its.size());
    return shorter >= telling
           && (mine.left(shorter) == its.left(shorter) || mine == b.section(QLatin1Char('\n'), 1)
               || its == a.section(QLatin1Char('\n'), 1));
}

// The only kinds whose value tells what they are.
struct partKind
{
    const char *designator;
    quantity::unitKind unit;
    const char *words;    // one of them stands in a material of the kind
    const char *notWords; // none of these does
};

const std::array<partKind, 3> kinds{{
    {"R", quantity::ohm, "rezyst|opornik|resist|\\bres\\b|widerst",
     "termist|thermist|\\bntc\\b|\\bptc\\b|warys|varist|potencj|potentio|trimmer|drabink|network|"
     "array|ferry|ferrit|foto|photo|bezpiecz|fus"},
    {"C", quantity::farad, "kondens|capac|\\bcap\\b|mlcc",
     "array|network|filtr|filter|super|trimmer|zestaw|\\bkit\\b"},
    {"L", quantity::henry, "cewk|dlaw|induct|indukc|drossel|coil|choke|\\bind\\b",
     "ferry|ferrit|bead|common|transf|filtr|filter"},
}};

const partKind *kindOfUnit(quantity::unitKind unit)
{
    const auto *found = std::find_if(kinds.begin(), kinds.end(),
                                     [&](const partKind &kind) { return kind.unit == unit; });
    return found == kinds.end() ? nullptr : found;
}

QString valueKey(const quantity &value)
{
    // Numbers that are written differently are equal to six digits.
    return QString::number(int(value.unit)) + QLatin1Char(' ')
           + QString::number(value.value, 'e', 5);
}

QStringList piecesOf(const QString &text)
{
    static const QRegularExpression between(QStringLiteral("[\\s,;()\\[\\]]+|/(?!\\d+ ?W)"));
    static const QRegularExpression comma(QStringLiteral("(\\d),(\\d)"));
    static const QRegularExpression apart(
        QStringLiteral("(\\d) +(?=(?:%|[mk]?V|m?W)(?:$|[\\s,;/)]))"));
    return QString(text)
        .replace(comma, QStringLiteral("\\1.\\2"))
        .replace(apart, QStringLiteral("\\1"))
        .split(between, Qt::SkipEmptyParts);
}

QString dielectricIn(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("(?<![A-Za-z0-9])(X[5678][RST]|Y5V|Z5U|C0G|COG|NP0|NPO)(?![A-Za-z0-9])"),
        QRegularExpression::CaseInsensitiveOption);
    const QString found = form.match(text).captured(1).toUpper();
    return found == QLatin1String("COG") || found.startsWith(QLatin1String("NP"))
               ? QStringLiteral("C0G")
               : found;
}

QString caseOf(const partsLine &line)
{
    for (const QString &text : {line.package, line.value, line.description}) {
        const QString found = partsTexts::caseIn(text);
        if (!found.isEmpty())
            return found;
    }
    return {};
}

QString caseOf(const materialStruct &material)
{
    const QString own = partsTexts::caseIn(material.d_case);
    return own.isEmpty() && material.d_case.isEmpty() ? partsTexts::caseIn(material.d_description)
                                                      : own;
}

// All letters before the number of its designators.
QString designatorKind(const partsLine &line)
{
    QString kind;
    for (const QString &designator : line.designators) {
        const QString letters = partsTexts::designatorLetters(designator);
        if (!kind.isEmpty() && letters != kind)
            return {};
        kind = letters;
    }
    return kind;
}

QString nameOf(quantity::unitKind unit)
{
    switch (unit) {
    case quantity::percent:
        return QStringLiteral(" %");
    case quantity::volt:
        return QStringLiteral(" V");
    case quantity::watt:
        return QStringLiteral(" W");
    case quantity::ampere:
        return QStringLiteral(" A");
    default:
        return {};
    }
}

} // namespace

QString reasonText(matchReason reason)
{
    return QCoreApplication::translate("partsMatching", reasons[size_t(reason)].text);
}

QString reasonName(matchReason reason) { return QLatin1String(reasons[size_t(reason)].name); }

int confidenceOf(matchReason reason) { return reasons[size_t(reason)].confidence; }

std::optional<quantity> valueOf(const partsLine &line)
{
    const QString text = line.value.trimmed();
    static const QRegularExpression prefixed(QStringLiteral("^[pnuµmkKM]\\d"));
    auto value =
        quantity::parseStart(prefixed.match(text).hasMatch() ? QLatin1Char('0') + text : text);
    if (!value)
        return {};
    const QString kind = designatorKind(line);
    const auto *designated = std::find_if(kinds.begin(), kinds.end(), [&](const partKind &one) {
        return kind == QLatin1String(one.designator);
    });
    if (value->unit == quantity::none) {
        // "10" of a capacitor may be anything.
        if (designated == kinds.end() || (value->bare && designated->unit != quantity::ohm))
            return {};
        value->unit = designated->unit;
    }
    // A "10k" of a connector or of a potentiometer is no resistor.
    const partKind *ofUnit = kindOfUnit(value->unit);
    if (!ofUnit
        || (!kind.isEmpty() && (designated == kinds.end() || designated->unit != value->unit)))
        return {};
    value->bare = false;
    return value;
}

partsMatcher::partsMatcher(const std::vector<ktmIndex::entry> &materials)
    : m_all(materials)
{
    m_byKtm.reserve(int(m_all.size()));
    m_byNumber.reserve(int(m_all.size()));
    // Few firms make, and few values have, most of the materials.
    QHash<QString, QString> firms;
    QHash<QString, QString> values;
    const auto firmOf = [&firms](const QString &name) {
        const auto known = firms.constFind(name);
        return known != firms.constEnd() ? *known : *firms.insert(name, foldedFirm(name));
    };
    std::vector<QString> own; // numbers of one material
    for (int i = 0; i < int(m_all.size()); ++i) {
        const materialStruct &material = *m_all[size_t(i)].material;
        if (material.d_ktm.isEmpty() || m_byKtm.contains(material.d_ktm))
            continue;
        m_byKtm.insert(material.d_ktm, i);
        own.clear();
        const auto take = [&](numberIndex *index, const QString &text, const QString &firm) {
            const partsTexts::partNumber read(text);
            const QString &plain = read.folded();
            if ((firm.isEmpty() || read.digits() == 0) && !read.isLikely())
                return;
            if (firm.isEmpty() && std::find(own.begin(), own.end(), plain) != own.end())
                return;
            index->insert(plain, {i, firm});
            if (index != &m_byNumber)
                return;
            own.push_back(plain);
            if (const QString base = read.withoutPackaging(); base != plain)
                m_byBase.insert(base, {i, firm});
        };
        for (const auto &maker : material.manufacturers.items)
            take(&m_byNumber, maker->partNo, firmOf(maker->name));
        for (const QString &text : {material.d_name, material.d_value})
            take(&m_byNumber, text, {});
        for (const auto &supplier : material.suppliers.items)
            take(&m_bySupplier, supplier->partNo, firmOf(supplier->name));
        auto value = values.constFind(material.d_value);
        if (value == values.constEnd()) {
            const auto read = quantity::parseStart(material.d_value);
            value = values.insert(material.d_value,
                                  read && kindOfUnit(read->unit) ? valueKey(*read) : QString());
        }
        if (!value->isEmpty())
            m_byValue[*value].append(i);
    }
}

bool partsMatcher::isOfKind(int place, quantity::unitKind unit) const
{
    const ktmIndex::entry &entry = m_all[size_t(place)];
    const partKind *kind = kindOfUnit(unit);
    if (!kind)
        return false;
    const QString texts = folded(entry.group ? entry.group->name : QString()) + QLatin1Char('\n')
                          + folded(entry.material->d_name) + QLatin1Char('\n')
                          + folded(entry.material->d_description);
    static const std::array<std::pair<QRegularExpression, QRegularExpression>, 3> words = [] {
        std::array<std::pair<QRegularExpression, QRegularExpression>, 3> all;
        for (size_t i = 0; i < kinds.size(); ++i)
            all[i] = {QRegularExpression(QLatin1String(kinds[i].words)),
                      QRegularExpression(QLatin1String(kinds[i].notWords))};
        return all;
    }();
    const auto &[has, hasNot] = words[size_t(kind - kinds.data())];
    return has.match(texts).hasMatch() && !hasNot.match(texts).hasMatch();
}

partsMatcher::parameters partsMatcher::parametersIn(const QString &tolerance,
                                                    const QString &voltage, const QString &power,
                                                    const QString &current,
                                                    const QStringList &texts)
{
    parameters found;
    const auto take = [](std::optional<quantity> *to, const QString &text,
                         quantity::unitKind unit) {
        std::optional<quantity> value = quantity::parse(text.trimmed());
        if (value && value->unit == quantity::none) {
            value->unit = unit;
            // A workbook keeps 1 % as 0.01.
            constexpr double share = 0.3;
            if (unit == quantity::percent && value->value > 0 && value->value < share)
                value->value *= 100;
        }
        if (value && value->unit == unit)
            *to = value;
    };
    take(&found.tolerance, tolerance, quantity::percent);
    take(&found.voltage, voltage, quantity::volt);
    take(&found.power, power, quantity::watt);
    take(&found.current, current, quantity::ampere);
    for (const QString &text : QStringList{tolerance, voltage, power, current} + texts) {
        for (const QString &piece : piecesOf(text)) {
            const auto value = quantity::parse(piece);
            if (!value)
                continue;
            if (value->unit == quantity::percent && !found.tolerance)
                found.tolerance = value;
            else if (value->unit == quantity::volt && !found.voltage)
                found.voltage = value;
            else if (value->unit == quantity::watt && !found.power)
                found.power = value;
            else if (value->unit == quantity::ampere && !found.current)
                found.current = value;
        }
        if (found.dielectric.isEmpty())
            found.dielectric = dielectricIn(text);
    }
    return found;
}

QStringList partsMatcher::differences(const parameters &wanted, const parameters &has)
{
    QStringList all;
    const auto compare = [&](const char *what, const std::optional<quantity> &need,
                             const std::optional<quantity> &have, bool mayBeMore) {
        if (!need)
            return;
        constexpr double slack = 1e-6;
        const bool isMet =
            have
            && (mayBeMore ? have->value >= need->value * (1 - slack)
                          : std::abs(have->value) <= std::abs(need->value) * (1 + slack));
        if (!isMet)
            all.append(QCoreApplication::translate("partsMatching", "%1 %2, not %3")
                           .arg(QCoreApplication::translate("partsMatching", what),
                                have ? QString::number(have->value) + nameOf(have->unit)
                                     : QCoreApplication::translate("partsMatching", "unknown"),
                                QString::number(need->value) + nameOf(need->unit)));
    };
    compare(QT_TRANSLATE_NOOP("partsMatching", "tolerance"), wanted.tolerance, has.tolerance,
            false);
    compare(QT_TRANSLATE_NOOP("partsMatching", "voltage"), wanted.voltage, has.voltage, true);
    compare(QT_TRANSLATE_NOOP("partsMatching", "power"), wanted.power, has.power, true);
    compare(QT_TRANSLATE_NOOP("partsMatching", "current"), wanted.current, has.current, true);
    if (!wanted.dielectric.isEmpty() && wanted.dielectric != has.dielectric)
        all.append(QCoreApplication::translate("partsMatching", "dielectric %1, not %2")
                       .arg(has.dielectric.isEmpty()
                                ? QCoreApplication::translate("partsMatching", "unknown")
                                : has.dielectric,
                            wanted.dielectric));
    return all;
}

matchCandidate partsMatcher::candidate(int place, matchReason reason) const
{
    const materialStruct &material = *m_all[size_t(place)].material;
    return {material.d_ktm, material.d_name, reason, {}};
}

matchResult partsMatcher::one(int place, matchReason reason) const
{
    return {true, {candidate(place, reason)}};
}

// Where several materials have the number, its maker and then the case
// may tell which is meant.
matchResult partsMatcher::byNumbers(std::initializer_list<const numberIndex *> indexes,
                                    const QStringList &numbers, const partsLine &line,
                                    matchReason reason) const
{
    const QString firm =
        foldedFirm(reason == matchReason::bySupplierNumber ? line.supplier : line.manufacturer);
    for (const QString &text : numbers) {
        const partsTexts::partNumber wanted(text);
        const int digits = wanted.digits();
        if (digits == 0 && !wanted.isLikely())
            continue;
        const QString key = reason == matchReason::byNumberWithoutPackaging
                                ? wanted.withoutPackaging()
                                : wanted.folded();
        std::vector<number> found;
        for (const numberIndex *index : indexes)
            for (auto [at, end] = index->equal_range(key); at != end; ++at)
                found.push_back(*at);
        if (found.empty())
            continue;
        // In the order of the databases.
        std::stable_sort(found.begin(), found.end(),
                         [](const number &a, const number &b) { return a.material < b.material; });
        std::vector<int> all;
        std::vector<int> ofFirm;
        for (const number &at : found) {
            const auto add = [&](std::vector<int> &to) {
                if (std::find(to.begin(), to.end(), at.material) == to.end())
                    to.push_back(at.material);
            };
            add(all);
            if (!firm.isEmpty() && isSameFirm(at.firm, firm))
                add(ofFirm);
        }
        if (ofFirm.size() == 1)
            return one(ofFirm.front(),
                       reason == matchReason::byNumber ? matchReason::byMakerAndNumber : reason);
        // Several makers have the same few digits.
        constexpr int telling = 8;
        if (all.size() == 1 && (digits == 0 || digits >= telling))
            return one(all.front(), reason);
        const std::vector<int> &meant = ofFirm.empty() ? all : ofFirm;
        const QString wantedCase = caseOf(line);
        std::vector<int> ofCase;
        if (!wantedCase.isEmpty())
            std::copy_if(meant.begin(), meant.end(), std::back_inserter(ofCase), [&](int place) {
                return caseOf(*m_all[size_t(place)].material) == wantedCase;
            });
        if (ofCase.size() == 1 && meant.size() > 1)
            return one(ofCase.front(), reason);
        matchResult result;
        for (int place : meant)
            result.candidates.push_back(candidate(place, reason));
        return result;
    }
    return {};
}

matchResult partsMatcher::byValue(const partsLine &line) const
{
    const auto value = valueOf(line);
    const auto equal = value ? m_byValue.constFind(valueKey(*value)) : m_byValue.constEnd();
    if (equal == m_byValue.constEnd())
        return {};
    const QString wantedCase = caseOf(line);
    parameters wanted =
        parametersIn(line.tolerance, line.voltage, line.power, {}, {line.value, line.description});
    matchResult result;
    for (int place : *equal) {
        const materialStruct &material = *m_all[size_t(place)].material;
        const QString itsCase = caseOf(material);
        if (!wantedCase.isEmpty() && !itsCase.isEmpty() && itsCase != wantedCase)
            continue;
        if (!isOfKind(place, value->unit))
            continue;
        matchCandidate found = candidate(place, matchReason::byValue);
        found.differences = differences(
            wanted,
            parametersIn(material.d_tolerance, material.d_voltage, material.d_power,
                         material.d_current,
                         {material.d_value, material.d_otherParameters, material.d_description}));
        if (wantedCase.isEmpty() || itsCase.isEmpty())
            found.differences.append(
                QCoreApplication::translate("partsMatching", "the case is not compared"));
        result.candidates.push_back(std::move(found));
    }
    std::stable_sort(result.candidates.begin(), result.candidates.end(),
                     [](const matchCandidate &a, const matchCandidate &b) {
                         return a.differences.size() < b.differences.size();
                     });
    // A part number that is stated and that no material has is a wish that none meets.
    const bool isOpen =
        std::none_of(line.partNumbers.begin(), line.partNumbers.end(), [](const QString &text) {
            return (partsTexts::looksLikePartNumber(text) && !text.contains(QLatin1Char('_')))
                   || partsTexts::partNumber(text).digits() > 0;
        });
    const auto meeting =
        std::count_if(result.candidates.begin(), result.candidates.end(),
                      [](const matchCandidate &one) { return one.differences.isEmpty(); });
    if (isOpen && meeting == 1) {
        result.isMatched = true;
        result.candidates.resize(1);
    }
    return result;
}

matchResult partsMatcher::match(const partsLine &line, const matchDecisions &decisions) const
{
    if (line.isLeftOut)
        return {};
    const auto byKtm = [&](const QString &ktm) {
        return ktm.isEmpty() ? -1 : m_byKtm.value(ktm, -1);
    };
    const QString key = line.key();
    const int decided = key.isEmpty() ? -1 : byKtm(decisions.value(key));
    if (decided >= 0)
        return one(decided, matchReason::decided);
    const int own = byKtm(line.ktm.trimmed());
    if (own >= 0)
        return one(own, matchReason::byKtm);
    // Lists without a column for part numbers have them among the values.
    QStringList numbers = line.partNumbers;
    if (std::none_of(numbers.begin(), numbers.end(), partsTexts::looksLikePartNumber)
        && partsTexts::looksLikePartNumber(line.value))
        numbers.append(line.value);
    QStringList suppliers = line.supplierNumbers;
    if (suppliers.isEmpty())
        suppliers = line.partNumbers;
    const auto found = [](const matchResult &result) { return !result.candidates.empty(); };
    matchResult result = byNumbers({&m_byNumber}, numbers, line, matchReason::byNumber);
    if (!found(result))
        result = byNumbers({&m_byNumber, &m_byBase}, numbers, line,
                           matchReason::byNumberWithoutPackaging);
    if (!found(result))
        result = byNumbers({&m_bySupplier}, suppliers, line, matchReason::bySupplierNumber);
    if (!found(result))
        result = byValue(line);
    return result;
}

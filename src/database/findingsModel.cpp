#include "database/findingsModel.h"

#include "util/foldedText.h"
#include "util/text.h"

#include <algorithm>

namespace {

// More changed rows than these are not put in one by one.
constexpr size_t mostSingleRows = 20;

} // namespace

struct findingsModel::line
{
    finding of;
    int rank = 0;       // of its text in the sorted column
    std::string folded; // what words are searched in, once they were
};

findingsModel::findingsModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    m_collator.setNumericMode(true);
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

findingsModel::~findingsModel() = default;

// --- What is shown
// --------------------------------------------------------------------------------

QString findingsModel::textOf(const finding &of, int in)
{
    switch (in) {
    case kindColumn:
        return findingText::kind(of.kind);
    case ktmColumn:
        return of.ktm;
    case materialColumn:
        return of.name;
    case groupColumn:
        return of.groupName;
    case fieldColumn:
        return findingText::field(of);
    default:
        return findingText::reason(of);
    }
}

bool findingsModel::isShown(line &of) const
{
    if (m_kind && of.of.kind != *m_kind)
        return false;
    if (m_words.empty())
        return true;
    if (of.folded.empty())
        fold(of);
    return std::all_of(m_words.begin(), m_words.end(), [&of](const std::string &word) {
        return of.folded.find(word) != std::string::npos;
    });
}

// Most of their texts stand in many findings.
void findingsModel::fold(line &of) const
{
    for (int in = 0; in <= reasonColumn; ++in) {
        const QString cell = textOf(of.of, in);
        if (in == ktmColumn || in == materialColumn
            || (in == reasonColumn && !of.of.detail.isEmpty())) {
            text::appendFolded(cell, of.folded);
        } else {
            auto known = m_folded.find(cell);
            if (known == m_folded.end())
                known = m_folded.insert(cell, text::folded(cell));
            of.folded += *known;
        }
        of.folded += '\n';
    }
}

// Findings of equal texts stand as in the file.
bool findingsModel::isBefore(const line &a, const line &b) const
{
    int sign = 0;
    if (m_sortColumn == kindColumn)
        sign = int(a.of.kind) - int(b.of.kind);
    else if (m_sortColumn >= 0)
        sign = m_collator.compare(textOf(a.of, m_sortColumn), textOf(b.of, m_sortColumn));
    if (sign == 0)
        return a.of.place < b.of.place;
    return m_sortOrder == Qt::AscendingOrder ? sign < 0 : sign > 0;
}

// Comparing texts as people sort them is slow: each different one is ranked once.
void findingsModel::order()
{
    QHash<QString, int> ranks;
    if (m_sortColumn > kindColumn) {
        std::vector<std::pair<QCollatorSortKey, int *>> keys;
        for (const line *one : m_shown)
            ranks.insert(textOf(one->of, m_sortColumn), 0);
        keys.reserve(size_t(ranks.size()));
        for (auto rank = ranks.begin(); rank != ranks.end(); ++rank)
            keys.emplace_back(m_collator.sortKey(rank.key()), &rank.value());
        std::sort(keys.begin(), keys.end(),
                  [](const auto &a, const auto &b) { return a.first.compare(b.first) < 0; });
        for (size_t i = 0; i < keys.size(); ++i)
            *keys[i].second = i > 0 && keys[i].first.compare(keys[i - 1].first) == 0
                                  ? *keys[i - 1].second
                                  : int(i);
    }
    for (line *one : m_shown)
        one->rank = m_sortColumn > kindColumn    ? ranks.value(textOf(one->of, m_sortColumn))
                    : m_sortColumn == kindColumn ? int(one->of.kind)
                                                 : 0;
    std::stable_sort(m_shown.begin(), m_shown.end(), [this](const line *a, const line *b) {
        if (a->rank != b->rank)
            return (a->rank < b->rank) == (m_sortOrder == Qt::AscendingOrder);
        return a->of.place < b->of.place;
    });
}

void findingsModel::show()
{
    m_shown.clear();
    for (const auto &one : m_all)
        if (isShown(*one))
            m_shown.push_back(one.get());
    order();
}

void findingsModel::set(std::vector<finding> findings)
{
    beginResetModel();
    m_all.clear();
    m_counts.fill(0);
    m_all.reserve(findings.size());
    for (finding &one : findings) {
        count(one.kind, 1);
        m_all.push_back(std::make_unique<line>());
        m_all.back()->of = std::move(one);
    }
    show();
    endResetModel();
}

void findingsModel::filter(std::optional<findingKind> kind, const QString &words)
{
    std::vector<std::string> folded;
    for (const QString &word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        folded.push_back(text::folded(word));
    if (kind == m_kind && folded == m_words)
        return;
    beginResetModel();
    m_kind = kind;
    m_words = std::move(folded);
    show();
    endResetModel();
}

void findingsModel::sort(int by, Qt::SortOrder direction)
{
    if (by == m_sortColumn && direction == m_sortOrder)
        return;
    m_sortColumn = by;
    m_sortOrder = direction;
    beginResetModel();
    order();
    endResetModel();
}

// --- What was checked anew
// ------------------------------------------------------------------------

void findingsModel::takeLine(const line *gone)
{
    const auto at = std::find(m_shown.begin(), m_shown.end(), gone);
    if (at == m_shown.end())
        return;
    const int row = int(at - m_shown.begin());
    beginRemoveRows({}, row, row);
    m_shown.erase(at);
    endRemoveRows();
}

void findingsModel::putLine(line *added)
{
    if (!isShown(*added))
        return;
    const auto at =
        std::upper_bound(m_shown.begin(), m_shown.end(), added,
                         [this](const line *a, const line *b) { return isBefore(*a, *b); });
    const int row = int(at - m_shown.begin());
    beginInsertRows({}, row, row);
    m_shown.insert(at, added);
    endInsertRows();
}

void findingsModel::apply(databaseFindings::changes changes)
{
    QHash<const xmlData *, std::vector<line *>> before;
    for (const auto &one : m_all)
        if (changes.records.contains(one->of.record()))
            before[one->of.record()].push_back(one.get());
    std::vector<finding *> added;
    for (finding &found : changes.found) {
        auto &known = before[found.record()];
        const auto same = std::find_if(known.begin(), known.end(), [&found](const line *one) {
            return one->of.isSameFault(found);
        });
        if (same == known.end()) {
            added.push_back(&found);
            continue;
        }
        (*same)->of = std::move(found);
        (*same)->folded.clear();
        known.erase(same);
    }
    QSet<const line *> gone;
    for (const auto &known : qAsConst(before))
        for (const line *one : known)
            gone.insert(one);

    const bool anew = size_t(gone.size()) + added.size() > mostSingleRows;
    if (anew)
        beginResetModel();
    for (const line *one : qAsConst(gone)) {
        count(one->of.kind, -1);
        if (!anew)
            takeLine(one);
    }
    std::erase_if(m_all, [&gone](const auto &one) { return gone.contains(one.get()); });
    for (finding *one : added) {
        count(one->kind, 1);
        m_all.push_back(std::make_unique<line>());
        m_all.back()->of = std::move(*one);
        if (!anew)
            putLine(m_all.back().get());
    }
    if (anew) {
        show();
        endResetModel();
    } else if (!m_shown.empty()) {
        emit dataChanged(index(0, 0), index(rowCount() - 1, reasonColumn));
    }
}

// --- As a table
// -----------------------------------------------------------------------------------

const finding &findingsModel::at(int row) const { return m_shown[size_t(row)]->of; }

std::vector<const finding *> findingsModel::shown() const
{
    std::vector<const finding *> all;
    all.reserve(m_shown.size());
    for (const line *one : m_shown)
        all.push_back(&one->of);
    return all;
}

int findingsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int findingsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : reasonColumn + 1;
}

QVariant findingsModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    const QString shownText = textOf(at(index.row()), index.column());
    return role == Qt::ToolTipRole ? text::toolTip(shownText) : shownText.simplified();
}

QVariant findingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
               ? QVariant(findingText::captions().value(section))
               : QVariant();
}

#include "database/linkRows.h"

#include "database/datasheetCopies.h"
#include "util/labels.h"
#include "util/text.h"

#include <QFileInfo>

#include <algorithm>

using namespace linkExamination;

void linkRows::show(std::vector<materialLink> links)
{
    beginResetModel();
    m_links = std::move(links);
    m_copyPaths.clear();
    m_doubts.clear();
    endResetModel();
}

void linkRows::refresh()
{
    m_copyPaths.clear();
    m_doubts.clear();
    if (!m_links.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, allColumns - 1));
}

const result *linkRows::resultOf(int row) const
{
    const auto found = known.constFind(linkOf(row));
    return found == known.constEnd() ? nullptr : &*found;
}

QString linkRows::copyOf(int row) const
{
    auto found = m_copyPaths.constFind(linkOf(row));
    if (found == m_copyPaths.constEnd())
        found = m_copyPaths.insert(linkOf(row), datasheetCopies::of(linkOf(row), &copies));
    return *found;
}

bool linkRows::isDoubtful(int row) const
{
    auto found = m_doubts.constFind(linkOf(row));
    if (found == m_doubts.constEnd())
        found = m_doubts.insert(linkOf(row), linkExamination::isDoubtful(resultOf(row)->reply));
    return *found;
}

bool linkRows::isFinding(int row) const
{
    const result *of = resultOf(row);
    return (of && of->reply.state != linkState::answers) || notFetched.contains(linkOf(row));
}

bool linkRows::canBeMarked(int row) const
{
    const result *of = resultOf(row);
    return of && of->reply.state == linkState::moved;
}

bool linkRows::isMarked(int row) const
{
    return canBeMarked(row)
           && m_choices.value({m_links[size_t(row)].ktm, linkOf(row)}, !isDoubtful(row));
}

void linkRows::mark(const std::vector<int> &rows, bool on)
{
    for (int row : rows)
        if (canBeMarked(row))
            m_choices.insert({m_links[size_t(row)].ktm, linkOf(row)}, on);
    refresh();
}

std::vector<replacement> linkRows::marked() const
{
    std::vector<replacement> all;
    for (int row = 0; row < rowCount(); ++row)
        if (isMarked(row))
            all.push_back({m_links[size_t(row)].ktm, linkOf(row), resultOf(row)->reply.movedTo});
    return all;
}

int linkRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_links.size());
}

int linkRows::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : allColumns;
}

QString linkRows::textOf(int row, int column) const
{
    const materialLink &link = m_links[size_t(row)];
    const result *of = resultOf(row);
    switch (column) {
    case ktmColumn:
        return link.ktm;
    case nameColumn:
        return link.name;
    case linkColumn:
        return webLinks::withoutPassword(link.link);
    case stateColumn:
        if (!of)
            return tr("not examined yet");
        return of->reply.state == linkState::moved && isDoubtful(row)
                   ? caption(of->reply) + QLatin1String(", ") + tr("perhaps to something else")
                   : caption(of->reply);
    case dateColumn:
        return of ? of->date.toLocalTime().toString(QStringLiteral("dd.MM.yyyy hh:mm")) : QString();
    case addressColumn:
        return of ? of->reply.movedTo : QString();
    default:
        if (const auto failed = notFetched.constFind(link.link); failed != notFetched.constEnd())
            return caption(*failed);
        return QFileInfo(copyOf(row)).fileName();
    }
}

QVariant linkRows::data(const QModelIndex &index, int role) const
{
    const int row = index.row();
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row, index.column());
    case Qt::ToolTipRole:
        return text::toolTip(textOf(row, index.column()));
    case sortRole:
        if (const result *of = resultOf(row); index.column() == stateColumn)
            return of ? int(of->reply.state) : -1;
        else if (index.column() == dateColumn)
            return of ? of->date : QDateTime();
        return index.column() == linkColumn ? linkOf(row) : textOf(row, index.column());
    case Qt::CheckStateRole:
        if (index.column() == ktmColumn && canBeMarked(row))
            return isMarked(row) ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool linkRows::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !canBeMarked(index.row()))
        return false;
    mark({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

QVariant linkRows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString captions[] = {labels::ktm(),  labels::name(),    tr("Link"),      tr("State"),
                                tr("Examined"), tr("New address"), tr("Local copy")};
    return captions[section];
}

Qt::ItemFlags linkRows::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return index.column() == ktmColumn && canBeMarked(index.row()) ? usual | Qt::ItemIsUserCheckable
                                                                   : usual;
}

// --- Filter
// ---------------------------------------------------------------------------------------

linkFilter::linkFilter(linkRows *rows, QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_rows(rows)
{
    setSourceModel(rows);
    setSortRole(linkRows::sortRole);
    setSortCaseSensitivity(Qt::CaseInsensitive);
    // Rows that change while they are examined would run about under the user's eyes.
    setDynamicSortFilter(false);
}

void linkFilter::set(const QString &part, bool onlyFindings)
{
    m_part = part.trimmed();
    m_onlyFindings = onlyFindings;
    m_matching.clear();
    invalidateFilter();
}

void linkFilter::follow()
{
    m_matching.clear();
    if (m_onlyFindings)
        invalidateFilter();
}

bool linkFilter::filterAcceptsRow(int row, const QModelIndex &) const
{
    if (m_onlyFindings && !m_rows->isFinding(row))
        return false;
    if (m_part.isEmpty())
        return true;
    if (matches(row, {linkRows::ktmColumn, linkRows::nameColumn}))
        return true;
    auto found = m_matching.constFind(m_rows->linkOf(row));
    if (found == m_matching.constEnd())
        found = m_matching.insert(
            m_rows->linkOf(row),
            matches(row, {linkRows::linkColumn, linkRows::stateColumn, linkRows::addressColumn}));
    return *found;
}

bool linkFilter::matches(int row, std::initializer_list<int> columns) const
{
    return std::any_of(columns.begin(), columns.end(), [&](int column) {
        return m_rows->index(row, column).data().toString().contains(m_part, Qt::CaseInsensitive);
    });
}

#include "bom/stagedLinesModel.h"

#include "util/labels.h"
#include "util/text.h"

#include <QIcon>

using bomImport::stagedLine;
using bomImport::state;

namespace {

QIcon iconOf(state of)
{
    switch (of) {
    case state::matched:
        return QIcon(QStringLiteral(":/icons/icons/line_enough.png"));
    case state::ambiguous:
        return QIcon(QStringLiteral(":/icons/icons/line_short.png"));
    case state::unknown:
        return QIcon(QStringLiteral(":/icons/icons/line_unknown.png"));
    default:
        return QIcon(QStringLiteral(":/icons/icons/led_gray.png"));
    }
}

} // namespace

void stagedLinesModel::show(bomImport::staged lines)
{
    beginResetModel();
    m_lines = std::move(lines);
    endResetModel();
}

void stagedLinesModel::replace(int row, stagedLine line)
{
    m_lines.lines[size_t(row)] = std::move(line);
    emit dataChanged(index(row, 0), index(row, columns - 1));
}

int stagedLinesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.lines.size());
}

int stagedLinesModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(columns);
}

QString stagedLinesModel::text(const stagedLine &line, int column)
{
    const matchCandidate *match = line.match();
    switch (column) {
    case stateColumn:
        return line.stateOf() == state::ambiguous
                   ? tr("choose of %n", nullptr, int(line.candidates.size()))
                   : bomImport::stateText(line.stateOf());
    case designatorsColumn:
        return line.line.designators.join(QLatin1String(", "));
    case quantityColumn:
        return line.line.quantity;
    case partColumn:
        return line.line.name();
    case ktmColumn:
        return match ? match->ktm : QString();
    case nameColumn:
        return match ? match->name : QString();
    case reasonColumn:
        return match ? QStringLiteral("%1, %2 %")
                           .arg(reasonText(match->reason))
                           .arg(confidenceOf(match->reason))
                     : QString();
    default: {
        QStringList all = line.line.remarks;
        if (match)
            all += match->differences;
        return all.join(QLatin1String(", "));
    }
    }
}

QVariant stagedLinesModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const stagedLine &of = line(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(of, index.column());
    case Qt::ToolTipRole:
        return text::toolTip(text(of, index.column()));
    case Qt::DecorationRole:
        return index.column() == stateColumn ? QVariant(iconOf(of.stateOf())) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == quantityColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                                : QVariant();
    default:
        return {};
    }
}

QVariant stagedLinesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case stateColumn:
        return labels::status();
    case designatorsColumn:
        return labels::designator();
    case quantityColumn:
        return labels::quantity();
    case partColumn:
        return tr("Part in the file");
    case ktmColumn:
        return labels::ktm();
    case nameColumn:
        return tr("Material");
    case reasonColumn:
        return tr("Found by");
    default:
        return tr("Remarks");
    }
}

stagedLinesFilter::stagedLinesFilter(stagedLinesModel *lines)
    : QSortFilterProxyModel(lines)
    , m_lines(lines)
{
    setSourceModel(lines);
    setSortLocaleAware(true);
    // A line that was settled stays where it is until the filter changes.
    setDynamicSortFilter(false);
}

void stagedLinesFilter::setState(int state)
{
    m_state = state;
    invalidateFilter();
}

void stagedLinesFilter::setText(const QString &text)
{
    m_text = text.simplified();
    invalidateFilter();
}

bool stagedLinesFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    Q_UNUSED(parent)
    if (m_state >= 0 && int(m_lines->line(row).stateOf()) != m_state)
        return false;
    if (m_text.isEmpty())
        return true;
    for (int column = 0; column < stagedLinesModel::columns; ++column)
        if (m_lines->index(row, column).data().toString().contains(m_text, Qt::CaseInsensitive))
            return true;
    return false;
}

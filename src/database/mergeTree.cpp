#include "database/mergeTree.h"

#include "data/kiv_mat_databaseStruct.h"
#include "tree/myTreeView.h"
#include "util/foldedText.h"
#include "util/labels.h"
#include "util/text.h"
#include "util/visibleBlanks.h"

#include <QScopedValueRollback>

#include <algorithm>

using myItem::myItemStandard;

namespace {

// A field as the user reads it.
QString shownText(int place, const materialStruct &material)
{
    const comparedField &field = comparedFields()[size_t(place)];
    return labels::shownIn(field.name, field.text(material));
}

// In the first cell of a row: the number of its entry, or the place of its field.
constexpr int placeRole = Qt::UserRole + 2;

constexpr quint64 bit(int place) { return quint64(1) << place; }
// Of what is taken as a whole.
constexpr int wholePlace = 63;

bool isWhole(materialDifference::differenceKind kind)
{
    return kind == materialDifference::added || kind == materialDifference::groupCpv;
}

Qt::CheckState stateOf(quint64 marked, quint64 all)
{
    return marked == all ? Qt::Checked : marked == 0 ? Qt::Unchecked : Qt::PartiallyChecked;
}

myItem::row cellsOf(const QString &name, const QString &mine, const QString &other, int place)
{
    myItem::row row;
    for (const QString &text : {name, mine, other}) {
        auto *item = new myItemStandard(QString());
        item->setText(text);
        item->setToolTip(text::toolTip(text));
        item->setEditable(false);
        row.append(item);
    }
    row.first()->setData(place, placeRole);
    return row;
}

void tick(QStandardItem *item, quint64 marked, quint64 all)
{
    item->setCheckable(true);
    item->setCheckState(stateOf(marked, all));
}

// A difference is told by the type's weight, and by colour.
void emphasise(const myItem::row &row)
{
    static const QBrush colour(QColor(0xA0, 0x20, 0x20));
    QFont font;
    font.setBold(true);
    for (QStandardItem *item : row)
        item->setForeground(colour);
    myItem::setFont(row, font);
}

QString captionOf(int place)
{
    return place == groupPlace() ? labels::group() : comparedFields()[size_t(place)].caption();
}

} // namespace

mergeTree::mergeTree(myTreeView *view)
    : m_view(view)
    , m_model(static_cast<myModel *>(view->model()))
{
    m_model->setRecords(this);
    connect(m_model, &QStandardItemModel::itemChanged, this, &mergeTree::itemChanged);
    // What is made or put back later is hidden when it comes.
    connect(m_model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &parent, int first, int last) {
                for (int row = first; row <= last && !m_writing; ++row)
                    if (parent.isValid())
                        applyToChild(parent, row);
                    else
                        applyTo(row);
            });
}

const mergeTree::entry *mergeTree::entryOf(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    const QModelIndex row = index.parent().isValid() ? index.parent() : index;
    return &m_entries[size_t(row.siblingAtColumn(nameColumn).data(placeRole).toInt())];
}

void mergeTree::clear()
{
    const QScopedValueRollback writing(m_writing, true);
    m_model->removeRows(0, m_model->rowCount());
    m_entries.clear();
}

void mergeTree::show(const std::vector<materialDifference> &differences)
{
    QHash<const void *, entry> before;
    for (entry &of : m_entries)
        before.insert(recordOf(of), of);
    QSet<const void *> open;
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (const QModelIndex first = m_model->index(row, nameColumn); m_view->isExpanded(first))
            open.insert(recordOf(*entryOf(first)));
    const QModelIndex cursor = m_view->currentIndex();
    const void *current = cursor.isValid() ? recordOf(*entryOf(cursor)) : nullptr;
    const int currentPlace =
        cursor.parent().isValid() ? cursor.siblingAtColumn(nameColumn).data(placeRole).toInt() : -1;

    clear();
    QModelIndex next;
    for (const materialDifference &difference : differences) {
        if (difference.kind == materialDifference::absent)
            continue;
        entry of{difference.kind, difference.other, difference.otherGroup, {}};
        if (difference.kind == materialDifference::groupCpv) {
            of.mine.emplace_back(wholePlace, difference.myGroup->cpv);
        } else if (difference.kind != materialDifference::added) {
            for (int place : difference.fields) {
                of.mine.emplace_back(place, shownText(place, *difference.mine));
                of.differing |= bit(place);
            }
            of.mine.emplace_back(groupPlace(), difference.myGroup->name);
            if (difference.moved)
                of.differing |= bit(groupPlace());
        }
        if (isWhole(of.kind))
            of.differing = bit(wholePlace);
        const auto known = before.constFind(recordOf(of));
        if (known != before.constEnd() && known->kind == of.kind) {
            of.marked = (known->marked & of.differing) | (of.differing & ~known->differing);
            of.leftOut = known->leftOut;
        } else if (of.kind != materialDifference::repeated) {
            of.marked = of.differing;
        }
        m_entries.push_back(std::move(of));
    }
    {
        const QScopedValueRollback writing(m_writing, true);
        for (size_t i = 0; i < m_entries.size(); ++i)
            if (!m_entries[i].leftOut)
                m_model->appendRow(rowOf(m_entries[i], int(i)));
    }
    applyAll();
    for (int row = 0; row < m_model->rowCount(); ++row) {
        const QModelIndex first = m_model->index(row, nameColumn);
        const void *record = recordOf(*entryOf(first));
        if (open.contains(record))
            m_view->expand(first);
        if (!current || record != current)
            continue;
        next = first;
        for (int child = 0; currentPlace >= 0 && child < m_model->rowCount(first); ++child)
            if (const QModelIndex field = m_model->index(child, nameColumn, first);
                field.data(placeRole).toInt() == currentPlace)
                next = field;
        m_view->setCurrentIndex(next.siblingAtColumn(cursor.column()));
    }
}

// --- Rows
// -----------------------------------------------------------------------------------------

QString mergeTree::otherText(const entry &of, int place) const
{
    if (of.kind == materialDifference::groupCpv)
        return of.otherGroup->cpv;
    return place == groupPlace() ? of.otherGroup->name : shownText(place, *of.other);
}

// What is the same in both the other one tells.
QString mergeTree::mineText(const entry &of, int place) const
{
    for (const auto &[differing, text] : of.mine)
        if (differing == place)
            return text;
    return of.kind == materialDifference::added ? QString() : otherText(of, place);
}

// A material names the fields that differ.
myItem::row mergeTree::rowOf(const entry &of, int place) const
{
    if (of.kind == materialDifference::groupCpv) {
        const myItem::row row = cellsOf(labels::group() + QLatin1Char(' ') + of.otherGroup->name
                                            + QLatin1String(": ") + labels::cpv(),
                                        text::visibleBlanks(of.mine.front().second),
                                        text::visibleBlanks(of.otherGroup->cpv), place);
        emphasise(row);
        tick(row.first(), of.marked, of.differing);
        return row;
    }
    const bool isNew = of.kind == materialDifference::added;
    QStringList captions;
    for (int field = 0; field <= groupPlace() && !isNew; ++field)
        if (of.differing & bit(field))
            captions.append(captionOf(field));
    QString told = isNew ? of.other->d_ktm : captions.join(QLatin1String(", "));
    if (of.kind == materialDifference::repeated)
        told = tr("once more: %1").arg(told);
    const myItem::row row =
        cellsOf(of.other->d_name, isNew ? tr("new") : of.other->d_ktm, told, place);
    auto *first = static_cast<myItemStandard *>(row.first());
    first->childrenPending = true;
    tick(first, of.marked, of.differing);
    return row;
}

std::vector<myItem::row> mergeTree::childRows(myItemStandard *first)
{
    const entry &of = m_entries[size_t(first->data(placeRole).toInt())];
    std::vector<myItem::row> rows;
    for (int place = 0; place <= groupPlace(); ++place) {
        const QString mine = mineText(of, place);
        const QString other = otherText(of, place);
        const bool differs = of.differing & bit(place);
        rows.push_back(cellsOf(captionOf(place), differs ? text::visibleBlanks(mine) : mine,
                               differs ? text::visibleBlanks(other) : other, place));
        if (!differs)
            continue;
        emphasise(rows.back());
        tick(rows.back().first(), of.marked & bit(place), bit(place));
    }
    return rows;
}

void mergeTree::rowInserted(QStandardItem *, int, myItemStandard *first)
{
    m_entries[size_t(first->data(placeRole).toInt())].leftOut = false;
}

void mergeTree::rowTaken(QStandardItem *, int, myItemStandard *first)
{
    m_entries[size_t(first->data(placeRole).toInt())].leftOut = true;
}

// --- What is seen
// ---------------------------------------------------------------------------------

void mergeTree::fold(entry &of) const
{
    if (!of.rowTexts.empty())
        return;
    const auto add = [](std::string &to, const QString &text) {
        text::appendFolded(text, to);
        to += '\n';
    };
    add(of.text, of.otherGroup->name);
    if (of.other) {
        add(of.text, of.other->d_name);
        add(of.text, of.other->d_ktm);
    }
    for (int place = 0; place <= wholePlace; ++place) {
        if (!(of.differing & bit(place)))
            continue;
        std::string row;
        if (of.kind == materialDifference::added) {
            add(row, tr("new"));
            for (const comparedField &field : comparedFields())
                add(row, field.text(*of.other));
        } else {
            add(row, place == wholePlace ? labels::cpv() : captionOf(place));
            add(row, mineText(of, place));
            add(row, otherText(of, place));
        }
        of.rowTexts.emplace_back(bit(place), std::move(row));
    }
}

bool mergeTree::holdsAll(const std::string &text, const std::string &more) const
{
    return std::all_of(m_words.begin(), m_words.end(), [&](const std::string &word) {
        return text.find(word) != std::string::npos || more.find(word) != std::string::npos;
    });
}

void mergeTree::look(entry &of)
{
    of.shown = of.differing;
    if (m_words.empty())
        return;
    fold(of);
    for (const auto &[row, text] : of.rowTexts)
        if (!holdsAll(of.text, text))
            of.shown &= ~row;
}

void mergeTree::applyToChild(const QModelIndex &parent, int row)
{
    const QModelIndex first = m_model->index(row, nameColumn, parent);
    const entry &of = *entryOf(first);
    const int place = first.data(placeRole).toInt();
    bool isShown = of.shown & bit(place);
    if (of.kind == materialDifference::added) {
        isShown = m_equalShown || !first.siblingAtColumn(otherColumn).data().toString().isEmpty();
    } else if (!(of.differing & bit(place)) && m_equalShown) {
        std::string text;
        for (const int shown : {nameColumn, otherColumn}) {
            text::appendFolded(first.siblingAtColumn(shown).data().toString(), text);
            text += '\n';
        }
        isShown = of.shown == of.differing || holdsAll(of.text, text);
    }
    if (m_view->isRowHidden(row, parent) == isShown)
        m_view->setRowHidden(row, parent, !isShown);
}

void mergeTree::applyTo(int row)
{
    const QModelIndex first = m_model->index(row, nameColumn);
    entry &of = m_entries[size_t(first.data(placeRole).toInt())];
    look(of);
    if (m_view->isRowHidden(row, {}) == (of.shown != 0))
        m_view->setRowHidden(row, {}, of.shown == 0);
    if (const QStandardItem *item = m_model->item(row); item->hasChildren())
        for (int child = 0; child < item->rowCount(); ++child)
            applyToChild(first, child);
}

void mergeTree::applyAll()
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        applyTo(row);
    m_view->deselectHidden();
    emit changed();
}

void mergeTree::setFilter(const QString &text)
{
    std::vector<std::string> words;
    for (const QString &word : text.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts))
        words.push_back(text::folded(word));
    if (words == m_words)
        return;
    m_words = std::move(words);
    applyAll();
}

void mergeTree::setEqualShown(bool shown)
{
    m_equalShown = shown;
    applyAll();
}

// --- Ticks
// ----------------------------------------------------------------------------------------

void mergeTree::mark(entry &of, int row, quint64 marked)
{
    const QScopedValueRollback writing(m_writing, true);
    of.marked = marked;
    QStandardItem *first = m_model->item(row);
    first->setCheckState(stateOf(marked, of.differing));
    for (int child = 0; child < first->rowCount(); ++child)
        if (QStandardItem *field = first->child(child); field->isCheckable())
            field->setCheckState(marked & bit(field->data(placeRole).toInt()) ? Qt::Checked
                                                                              : Qt::Unchecked);
}

// By a click on a box.
void mergeTree::itemChanged(QStandardItem *item)
{
    if (m_writing || item->column() != nameColumn || !item->isCheckable())
        return;
    const QStandardItem *first = item->parent() ? item->parent() : item;
    entry &of = m_entries[size_t(first->data(placeRole).toInt())];
    const quint64 meant = item->parent() ? bit(item->data(placeRole).toInt()) : of.shown;
    const bool isOn = item->checkState() != Qt::Unchecked;
    mark(of, first->row(), isOn ? of.marked | meant : of.marked & ~meant);
    emit changed();
}

void mergeTree::markShown(bool marked)
{
    for (int row = 0; row < m_model->rowCount(); ++row) {
        entry &of = m_entries[size_t(m_model->item(row)->data(placeRole).toInt())];
        // Which one of a KTM's materials is meant only the user can tell.
        if (of.shown != 0 && !(marked && of.kind == materialDifference::repeated))
            mark(of, row, marked ? of.marked | of.shown : of.marked & ~of.shown);
    }
    emit changed();
}

void mergeTree::toggle(const QModelIndexList &cells)
{
    // By row: what of it is meant.
    std::vector<std::pair<int, quint64>> wanted;
    bool areAllMarked = true;
    for (const QModelIndex &cell : cells) {
        const QModelIndex row = cell.parent().isValid() ? cell.parent() : cell;
        const entry &of = *entryOf(cell);
        const quint64 meant =
            cell.parent().isValid()
                ? of.shown & bit(cell.siblingAtColumn(nameColumn).data(placeRole).toInt())
                : of.shown;
        if (meant == 0)
            continue;
        areAllMarked = areAllMarked && (of.marked & meant) == meant;
        wanted.emplace_back(row.row(), meant);
    }
    for (const auto &[row, meant] : wanted) {
        entry &of = m_entries[size_t(m_model->item(row)->data(placeRole).toInt())];
        mark(of, row, areAllMarked ? of.marked & ~meant : of.marked | meant);
    }
    emit changed();
}

QHash<const void *, quint64> mergeTree::marked(bool shownOnly) const
{
    QHash<const void *, quint64> result;
    for (const entry &of : m_entries) {
        const quint64 marked = shownOnly ? of.marked & of.shown : of.marked;
        if (marked != 0 && !of.leftOut)
            result.insert(recordOf(of), marked);
    }
    return result;
}

mergeTree::counts mergeTree::count() const
{
    counts result;
    for (const entry &of : m_entries) {
        if (of.leftOut)
            continue;
        ++result.all;
        result.shown += of.shown != 0;
        result.marked += of.marked != 0;
        result.markedHidden += (of.marked & ~of.shown) != 0;
    }
    return result;
}

QString mergeTree::describe(const QModelIndex &index) const
{
    const entry *of = entryOf(index);
    if (!of)
        return {};
    return of->kind == materialDifference::added
               ? tr("New in the other file")
               : tr("%n field(s) differ", nullptr, int(qPopulationCount(of->differing)));
}

#include "tree/myTreeView.h"

#include "tree/myHeaderView.h"
#include "tree/myModel.h"
#include "tree/myModelDelegate.h"
#include "tree/refusal.h"
#include "util/text.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>

#include <algorithm>
#include <set>

myTreeView::myTreeView(QWidget *parent)
    : QTreeView(parent)
{
    setHeader(new myHeaderView(this));
    // Without a section to sort by, nothing is sorted until the user clicks.
    setSortingEnabled(true);
    setTextElideMode(Qt::ElideRight);
    setAlternatingRowColors(true);
    setStyleSheet(QLatin1String("alternate-background-color: ") + QLatin1String("#FCF7D9"));
    setUniformRowHeights(true);
    setMouseTracking(true);
    setTabKeyNavigation(true);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectItems);
    setEditTriggers(usualTriggers);
    auto *delegate = new myModelDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &myModelDelegate::refused, this, &myTreeView::refused);
    connect(delegate, &myModelDelegate::fillWanted, this, &myTreeView::keyFill,
            Qt::QueuedConnection);
    connect(this, &QTreeView::collapsed, this, &myTreeView::deselectHidden);
    // Escape in an editor ends there and never comes here as a key.
    connect(delegate, &QAbstractItemDelegate::closeEditor, this,
            [this](QWidget *, QAbstractItemDelegate::EndEditHint hint) {
                if (hint == QAbstractItemDelegate::RevertModelCache)
                    escape();
            });
}

void myTreeView::setModel(QAbstractItemModel *newModel)
{
    clearHighlight();
    if (model())
        disconnect(model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, nullptr);
    QTreeView::setModel(newModel);
    if (newModel)
        // A row that leaves the model takes no mark along.
        connect(newModel, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex &parent, int first, int last) {
                    QModelIndex row = m_highlighted;
                    while (row.isValid() && row.parent() != parent)
                        row = row.parent();
                    if (row.isValid() && row.row() >= first && row.row() <= last)
                        clearHighlight();
                });
}

bool myTreeView::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    const bool began = QTreeView::edit(index, trigger, event);
    if (began)
        m_edited = index;
    return began;
}

bool myTreeView::finishEditing()
{
    // Dialogs, which are windows of their own, end by their own buttons.
    const QPointer<QWidget> editor = m_edited.isValid() ? indexWidget(m_edited) : nullptr;
    // Its page may be behind another one.
    if (!editor || state() != EditingState || editor->isHidden() || qobject_cast<QDialog *>(editor))
        return true;
    emit itemDelegate()->commitData(editor);
    if (!editor)
        return true;
    if (myModelDelegate::isRefused(editor)) {
        backToEditor(editor);
        return false;
    }
    emit itemDelegate()->closeEditor(editor);
    return true;
}

// The cell whose editor stays open is the current one again.
void myTreeView::backToEditor(QWidget *editor)
{
    if (m_edited.isValid() && currentIndex() != m_edited)
        selectionModel()->setCurrentIndex(m_edited, QItemSelectionModel::ClearAndSelect);
    showPage();
    editor->setFocus();
    refusal::tell(editor);
}

void myTreeView::showPage()
{
    for (QWidget *page = this; page; page = page->parentWidget())
        if (auto *stack = qobject_cast<QStackedWidget *>(page->parentWidget()))
            if (auto *tabs = qobject_cast<QTabWidget *>(stack->parentWidget()))
                tabs->setCurrentWidget(page);
}

void myTreeView::setEditingLocked(bool locked)
{
    setEditTriggers(locked ? EditTriggers(NoEditTriggers) : EditTriggers(usualTriggers));
}

void myTreeView::expandItem(QStandardItem *item)
{
    if (auto *own = qobject_cast<myModel *>(model()))
        own->fetch(item);
    for (int row = 0; row < item->rowCount(); ++row)
        if (QStandardItem *child = item->child(row); child && child->hasChildren())
            expandItem(child);
    expand(item->index());
}

void myTreeView::expandRows(const std::vector<QStandardItem *> &rows)
{
    // Else the rows below would be laid out anew for each of them.
    scheduleDelayedItemsLayout();
    for (const QStandardItem *row : rows)
        expand(row->index());
}

void myTreeView::collapseItem(QStandardItem *item) { collapse(item->index()); }

void myTreeView::goTo(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    // QAbstractItemView::setCurrentIndex() would ask the keyboard what to select.
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
    m_unmarked = false;
    moveHighlight();
}

bool myTreeView::isSeen(const QModelIndex &index) const
{
    if (isRowHidden(index.row(), index.parent()) || isColumnHidden(index.column()))
        return false;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        if (!isExpanded(above) || isRowHidden(above.row(), above.parent()))
            return false;
    return true;
}

QModelIndexList myTreeView::selectedCells() const
{
    const QModelIndexList selected =
        selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
    // Rows from the root down, then columns as they stand on the screen.
    const auto placeOf = [this](const QModelIndex &index) {
        std::vector<int> place{header()->visualIndex(index.column())};
        for (QModelIndex i = index; i.isValid(); i = i.parent())
            place.insert(place.begin(), i.row());
        return place;
    };
    std::vector<std::pair<std::vector<int>, QModelIndex>> placed;
    placed.reserve(size_t(selected.size()));
    for (const QModelIndex &cell : selected)
        if (isSeen(cell))
            placed.emplace_back(placeOf(cell), cell);
    std::sort(placed.begin(), placed.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    QModelIndexList cells;
    for (const auto &[place, cell] : placed)
        cells.append(cell);
    return cells;
}

QModelIndex myTreeView::markedCell() const
{
    const QModelIndex current = currentIndex();
    return m_highlighted.isValid() && isSeen(current) ? current : QModelIndex();
}

QModelIndexList myTreeView::markedCells() const
{
    QModelIndexList cells = selectedCells();
    if (cells.isEmpty() && markedCell().isValid())
        cells.append(markedCell());
    return cells;
}

std::vector<int> myTreeView::markedRows() const
{
    std::set<int> rows;
    for (const QModelIndex &cell : markedCells())
        if (!cell.parent().isValid())
            rows.insert(cell.row());
    return {rows.begin(), rows.end()};
}

void myTreeView::deselectHidden()
{
    if (!selectionModel())
        return;
    QItemSelection hidden;
    for (const QModelIndex &cell : selectionModel()->selectedIndexes())
        if (!isSeen(cell))
            hidden.select(cell, cell);
    if (!hidden.isEmpty())
        selectionModel()->select(hidden, QItemSelectionModel::Deselect);
    QModelIndex current = currentIndex();
    if (!current.isValid() || isColumnHidden(current.column()) || isSeen(current))
        return;
    while (current.isValid() && !isSeen(current))
        current = current.parent();
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

bool myTreeView::findNext(const QString &text)
{
    const auto *own = qobject_cast<const myModel *>(model());
    if (!own || text.isEmpty())
        return false;
    const int columns = own->columnCount();
    const int cells = own->rowCount() * columns;
    const QModelIndex current = currentIndex();
    const int start = current.isValid() ? current.row() * columns + current.column() : -1;
    for (int step = 1; step <= cells; ++step) {
        const int at = (start + step) % cells;
        const QModelIndex index = own->index(at / columns, at % columns);
        const myItem::myItemStandard *item = own->look(index);
        // A word is found as it is shown and as it is stored.
        const bool isWord = item && item->type() == myItem::comboBoxKind;
        if (!item || isColumnHidden(index.column())
            || (!myItem::displayText(*item).contains(text, Qt::CaseInsensitive)
                && !(isWord && item->text().contains(text, Qt::CaseInsensitive))))
            continue;
        goTo(index);
        setFocus();
        return true;
    }
    return false;
}

QModelIndex myTreeView::hitItem(const QMouseEvent *event) const
{
    const auto *own = qobject_cast<const myModel *>(model());
    const QModelIndex index = indexAt(event->pos());
    return own && index.isValid() ? index : QModelIndex();
}

void myTreeView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    m_unmarked = false;
    moveHighlight();
    emit markChanged();
}

// The row below takes the place of the current one that goes, not the row above.
void myTreeView::rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last)
{
    const QModelIndex current = currentIndex();
    if (current.isValid() && current.parent() == parent && current.row() >= first
        && current.row() <= last)
        for (int row = last + 1; row < model()->rowCount(parent); ++row)
            if (!isRowHidden(row, parent)) {
                selectionModel()->setCurrentIndex(current.sibling(row, current.column()),
                                                  QItemSelectionModel::NoUpdate);
                break;
            }
    QTreeView::rowsAboutToBeRemoved(parent, first, last);
}

// With Ctrl the cursor would go and leave behind what is selected.
QItemSelectionModel::SelectionFlags myTreeView::selectionCommand(const QModelIndex &index,
                                                                 const QEvent *event) const
{
    if (event && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<const QKeyEvent *>(event);
        if (key->modifiers() == Qt::ControlModifier && key->key() != Qt::Key_Space)
            return QItemSelectionModel::ClearAndSelect;
    }
    return QTreeView::selectionCommand(index, event);
}

void myTreeView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    emit markChanged();
}

// --- Tool tips
// ------------------------------------------------------------------------------------

QString myTreeView::toolTipOf(const QModelIndex &index) const
{
    const QString own = index.data(Qt::ToolTipRole).toString();
    const auto *model = qobject_cast<const myModel *>(this->model());
    const myItem::myItemStandard *item = model ? model->look(index) : nullptr;
    if (!item)
        return own;
    const QString whole = myItem::displayText(*item);
    const QRect place = visualRect(index);
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    const QFont font = item->data(Qt::FontRole).isValid() ? item->font() : this->font();
    int needed = QFontMetrics(font).horizontalAdvance(whole) + margin;
    if (!item->icon().isNull() || item->type() == myItem::comboBoxKind)
        needed += place.height() + margin;
    if ((needed <= place.width() && !whole.contains(QLatin1Char('\n'))) || own.contains(whole))
        return own;
    return own.isEmpty() ? whole : whole + QLatin1Char('\n') + own;
}

bool myTreeView::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto *help = static_cast<QHelpEvent *>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString told = index.isValid() ? toolTipOf(index) : QString();
    QToolTip::showText(help->globalPos(), told.isEmpty() ? told : text::toolTip(told), viewport(),
                       visualRect(index));
    return true;
}

// --- Dragging rows
// --------------------------------------------------------------------------------

void myTreeView::dragTo(const QPoint &position)
{
    const int last = model()->rowCount() - 1;
    const QModelIndex over = indexAt({0, position.y()});
    if (over.isValid()) {
        const QRect row = visualRect(over);
        m_dropBefore = over.row() + (position.y() > row.center().y() ? 1 : 0);
        scrollTo(over);
    } else {
        m_dropBefore = position.y() < 0 ? 0 : last + 1;
        // Rows beyond the edge come in one by one.
        const QModelIndex edge = indexAt({0, position.y() < 0 ? 0 : viewport()->height() - 1});
        if (edge.isValid())
            scrollTo(model()->index(qBound(0, edge.row() + (position.y() < 0 ? -1 : 1), last), 0));
    }
    viewport()->setCursor(Qt::ClosedHandCursor);
    viewport()->update();
}

void myTreeView::endDrag(bool dropped)
{
    const std::vector<int> rows = std::exchange(m_draggable, {});
    const int before = std::exchange(m_dropBefore, -1);
    if (before < 0)
        return;
    viewport()->unsetCursor();
    viewport()->update();
    if (dropped)
        emit rowsDragged(rows, before);
}

void myTreeView::paintEvent(QPaintEvent *event)
{
    QTreeView::paintEvent(event);
    if (m_dropBefore < 0)
        return;
    const int rows = model()->rowCount();
    const QRect row = visualRect(model()->index(qMin(m_dropBefore, rows - 1), 0));
    const int y = m_dropBefore < rows ? row.top() : row.bottom();
    constexpr int thickness = 3;
    QPainter painter(viewport());
    painter.setPen(QPen(palette().color(QPalette::Text), thickness));
    painter.drawLine(0, y, viewport()->width(), y);
}

// --- Mouse
// ----------------------------------------------------------------------------------------

void myTreeView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_draggable.empty() && (event->buttons() & Qt::LeftButton)
        && (m_dropBefore >= 0
            || (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance())) {
        dragTo(event->pos());
        return;
    }
    QTreeView::mouseMoveEvent(event);
    if (!m_unmarked)
        moveHighlight();
}

void myTreeView::mousePressEvent(QMouseEvent *event)
{
    const std::vector<int> selected = m_rowsDragged ? markedRows() : std::vector<int>();
    QTreeView::mousePressEvent(event);
    if (const QModelIndex index = hitItem(event); index.isValid()) {
        m_draggable.clear();
        if (m_rowsDragged && event->buttons() == Qt::LeftButton && !isEditingLocked()
            && event->modifiers() == Qt::NoModifier && header()->visualIndex(index.column()) == 0) {
            m_pressed = event->pos();
            m_draggable = std::binary_search(selected.begin(), selected.end(), index.row())
                              ? selected
                              : std::vector<int>{index.row()};
        }
        emit clicked(event->pos(), uint(event->buttons()), index);
        emit clicked(event->pos(), uint(event->buttons()));
    }
    m_unmarked = false;
    moveHighlight();
}

void myTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (const QModelIndex index = hitItem(event); index.isValid()) {
        emit doubleClicked(event->pos(), uint(event->buttons()), index);
        emit doubleClicked(event->pos(), uint(event->buttons()));
    }
    m_unmarked = false;
    moveHighlight();
}

void myTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
    // What is let go elsewhere stays.
    endDrag(viewport()->rect().contains(event->pos()));
    if (const QModelIndex index = hitItem(event); index.isValid()) {
        emit release(event->pos(), uint(event->buttons()), index);
        emit release(index);
    }
    moveHighlight();
}

void myTreeView::keyPressEvent(QKeyEvent *event)
{
    const bool editing = state() == EditingState;
    // The base would start an edit with it.
    if (event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace) {
        event->ignore();
        return;
    }
    QTreeView::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Escape:
        event->accept();
        endDrag(false);
        escape();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (editing && (event->modifiers() & Qt::ControlModifier)) {
            emit keyFill();
        } else if (editing) {
            // The delegate writes the value once the events before are done.
            QMetaObject::invokeMethod(this, &myTreeView::keyEnter, Qt::QueuedConnection);
        } else {
            if (!isEditingLocked())
                edit(currentIndex(), AllEditTriggers, event);
            emit keyEnter();
        }
        break;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        m_unmarked = false;
        moveHighlight();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->accept();
        m_unmarked = false;
        moveHighlight();
        emit keyUpDown();
        break;
    default:
        event->ignore();
    }
}

void myTreeView::escape()
{
    m_unmarked = true;
    clearHighlight();
    clearSelection();
    emit keyEscape();
    emit markChanged();
}

void myTreeView::moveHighlight()
{
    const QModelIndex current = currentIndex();
    const QModelIndex row = current.sibling(current.row(), 0);
    auto *own = qobject_cast<myModel *>(model());
    if (!own || m_highlighted == row)
        return;
    clearHighlight();
    if (!row.isValid())
        return;
    own->setHighlighted(row, true);
    m_highlighted = row;
    viewport()->update();
}

void myTreeView::clearHighlight()
{
    auto *own = qobject_cast<myModel *>(model());
    if (own && m_highlighted.isValid()) {
        own->setHighlighted(m_highlighted, false);
        viewport()->update();
    }
    m_highlighted = QPersistentModelIndex();
}

QModelIndex myTreeView::nextEditable(bool forward) const
{
    const auto *own = qobject_cast<const myModel *>(model());
    if (!own || !currentIndex().isValid())
        return {};
    const auto isEditable = [own](const QModelIndex &index) {
        const myItem::myItemStandard *item = own->look(index);
        return item && !item->readOnly && item->type() != myItem::standardKind;
    };
    const int step = forward ? 1 : -1;
    QModelIndex row = currentIndex();
    if (m_tabGoesDown) {
        do
            row = forward ? indexBelow(row) : indexAbove(row);
        while (row.isValid() && !isEditable(row.siblingAtColumn(currentIndex().column())));
        return row.isValid() ? row.siblingAtColumn(currentIndex().column()) : QModelIndex();
    }
    int visual = header()->visualIndex(row.column()) + step;
    while (row.isValid()) {
        for (; visual >= 0 && visual < header()->count(); visual += step) {
            const int column = header()->logicalIndex(visual);
            if (header()->isSectionHidden(column))
                continue;
            const QModelIndex index = row.sibling(row.row(), column);
            if (isEditable(index))
                return index;
        }
        row = forward ? indexBelow(row) : indexAbove(row);
        visual = forward ? 0 : header()->count() - 1;
    }
    return {};
}

// To the same column of the next row, where what was typed was taken and there is one in the same
// place of the tree.
void myTreeView::goDown()
{
    if (state() == EditingState)
        return;
    const QModelIndex current = currentIndex();
    QModelIndex below = m_tabGoesDown ? nextEditable(true) : indexBelow(current);
    if (below.isValid() && below.parent() == current.parent())
        goTo(below.siblingAtColumn(current.column()));
    else if (m_tabGoesDown)
        goTo(below);
}

void myTreeView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (editor && hint != QAbstractItemDelegate::RevertModelCache
        && myModelDelegate::isRefused(editor)) {
        // Not while the view is about to go elsewhere.
        QTimer::singleShot(0, editor, [this, editor] { backToEditor(editor); });
        return;
    }
    const QWidget *focused = window()->focusWidget();
    const bool wasOpen = state() == EditingState;
    const bool isMine = editor && focused && (editor == focused || editor->isAncestorOf(focused));
    QTreeView::closeEditor(editor, hint);
    if (isMine && state() != EditingState)
        setFocus();
    // By Return, and the value is taken.
    if (hint == QAbstractItemDelegate::SubmitModelCache && wasOpen)
        goDown();
}

QModelIndex myTreeView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveNext || action == MovePrevious)
        return nextEditable(action == MoveNext);
    return QTreeView::moveCursor(action, modifiers);
}

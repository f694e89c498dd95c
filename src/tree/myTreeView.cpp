#include "tree/myTreeView.h"

#include "tree/myHeaderView.h"
#include "tree/myModel.h"
#include "tree/myModelDelegate.h"

#include <QDialog>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>

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
    if (!editor || state() != EditingState || !editor->isVisible()
        || qobject_cast<QDialog *>(editor))
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
    editor->setFocus();
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

void myTreeView::collapseItem(QStandardItem *item) { collapse(item->index()); }

QModelIndexList myTreeView::selectedCells() const
{
    QModelIndexList cells =
        selectionModel() ? selectionModel()->selectedIndexes() : QModelIndexList();
    // Rows from the root down, then columns as they stand on the screen.
    const auto placeOf = [this](const QModelIndex &index) {
        std::vector<int> place{header()->visualIndex(index.column())};
        for (QModelIndex i = index; i.isValid(); i = i.parent())
            place.insert(place.begin(), i.row());
        return place;
    };
    std::vector<std::pair<std::vector<int>, QModelIndex>> placed;
    placed.reserve(size_t(cells.size()));
    for (const QModelIndex &cell : qAsConst(cells))
        placed.emplace_back(placeOf(cell), cell);
    std::sort(placed.begin(), placed.end(),
              [](const auto &a, const auto &b) { return a.first < b.first; });
    cells.clear();
    for (const auto &[place, cell] : placed)
        cells.append(cell);
    return cells;
}

std::vector<int> myTreeView::selectedRows() const
{
    std::set<int> rows;
    if (selectionModel())
        for (const QModelIndex &cell : selectionModel()->selectedIndexes())
            if (!cell.parent().isValid())
                rows.insert(cell.row());
    return {rows.begin(), rows.end()};
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
        const myItem::myItemStandard *item = own->cell(index);
        if (!item || isColumnHidden(index.column())
            || !myItem::displayText(*item).contains(text, Qt::CaseInsensitive))
            continue;
        setCurrentIndex(index);
        scrollTo(index);
        setFocus();
        moveHighlight();
        return true;
    }
    return false;
}

QModelIndex myTreeView::hitItem(const QMouseEvent *event) const
{
    const auto *own = qobject_cast<const myModel *>(model());
    const QModelIndex index = indexAt(event->pos());
    return own && index.isValid() && own->itemFromIndex(index) ? index : QModelIndex();
}

void myTreeView::mouseMoveEvent(QMouseEvent *event)
{
    QTreeView::mouseMoveEvent(event);
    moveHighlight();
}

void myTreeView::mousePressEvent(QMouseEvent *event)
{
    QTreeView::mousePressEvent(event);
    if (const QModelIndex index = hitItem(event); index.isValid()) {
        emit clicked(event->pos(), uint(event->buttons()), index);
        emit clicked(event->pos(), uint(event->buttons()));
    }
    moveHighlight();
}

void myTreeView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeView::mouseDoubleClickEvent(event);
    if (const QModelIndex index = hitItem(event); index.isValid()) {
        emit doubleClicked(event->pos(), uint(event->buttons()), index);
        emit doubleClicked(event->pos(), uint(event->buttons()));
    }
    moveHighlight();
}

void myTreeView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeView::mouseReleaseEvent(event);
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
        escape();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->accept();
        if (editing) {
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
        moveHighlight();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->accept();
        moveHighlight();
        emit keyUpDown();
        break;
    default:
        event->ignore();
    }
}

void myTreeView::escape()
{
    clearHighlight();
    clearSelection();
    emit keyEscape();
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
    myItem::setHighlighted(own->rowOf(row), true);
    m_highlighted = row;
    viewport()->update();
}

void myTreeView::clearHighlight()
{
    auto *own = qobject_cast<myModel *>(model());
    if (own && m_highlighted.isValid()) {
        myItem::setHighlighted(own->rowOf(m_highlighted), false);
        viewport()->update();
    }
    m_highlighted = QPersistentModelIndex();
}

QModelIndex myTreeView::nextEditable(bool forward) const
{
    const auto *own = qobject_cast<const myModel *>(model());
    if (!own || !currentIndex().isValid())
        return {};
    const int step = forward ? 1 : -1;
    QModelIndex row = currentIndex();
    int visual = header()->visualIndex(row.column()) + step;
    while (row.isValid()) {
        for (; visual >= 0 && visual < header()->count(); visual += step) {
            const int column = header()->logicalIndex(visual);
            if (header()->isSectionHidden(column))
                continue;
            const QModelIndex index = row.sibling(row.row(), column);
            const myItem::myItemStandard *item = own->cell(index);
            if (item && !item->readOnly && item->type() != myItem::standardKind)
                return index;
        }
        row = forward ? indexBelow(row) : indexAbove(row);
        visual = forward ? 0 : header()->count() - 1;
    }
    return {};
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
    const bool isMine = editor && focused && (editor == focused || editor->isAncestorOf(focused));
    QTreeView::closeEditor(editor, hint);
    if (isMine && state() != EditingState)
        setFocus();
}

QModelIndex myTreeView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action == MoveNext || action == MovePrevious)
        return nextEditable(action == MoveNext);
    return QTreeView::moveCursor(action, modifiers);
}

// What editing windows do with the cells and rows of their trees, and with keys.
#include "window/editWindow.h"

#include "commands/cellBlock.h"
#include "commands/cellClipboard.h"
#include "commands/editCommands.h"
#include "tree/myTreeView.h"
#include "util/prompts.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>

#include <algorithm>

namespace {

// The line that is typed into in a field of one line; null in any other widget.
QLineEdit *lineOf(QWidget *field)
{
    if (auto *line = qobject_cast<QLineEdit *>(field))
        return line;
    if (const auto *box = qobject_cast<QComboBox *>(field))
        return box->lineEdit();
    return qobject_cast<QAbstractSpinBox *>(field) ? field->findChild<QLineEdit *>() : nullptr;
}

} // namespace

using myItem::myItemStandard;

// --- Cells
// ----------------------------------------------------------------------------------------

myTreeView *editWindow::currentView() const
{
    for (myTreeView *view : m_views)
        if (view->hasFocus())
            return view;
    return m_views.front();
}

void editWindow::commandCopyCells(bool)
{
    tell(tr("%n cell(s) copied", nullptr, cellClipboard::copy(currentView())));
}

void editWindow::commandPasteCells(bool)
{
    if (refuseWhileLocked())
        return;
    const int changed = cellClipboard::paste(
        currentView(),
        [this](std::unique_ptr<command> change) { push(std::move(change), tr("Paste")); }, page());
    tell(tr("%n cell(s) pasted", nullptr, changed));
}

// --- Filling and moving
// ---------------------------------------------------------------------------

QList<myItemStandard *> editWindow::cellsLike(const myItemStandard *source,
                                              const QModelIndexList &cells) const
{
    QList<myItemStandard *> found;
    const auto *model = static_cast<const myModel *>(source->model());
    for (const QModelIndex &index : cells)
        if (myItemStandard *cell = model->cell(index))
            if (cell != source && cell->column() == source->column()
                && cell->type() == source->type() && !cell->readOnly)
                found.append(cell);
    return found;
}

void editWindow::commandFillDown(bool)
{
    if (refuseWhileLocked())
        return;
    const myTreeView *view = currentView();
    myModel *model = modelOf(view);
    const QModelIndexList cells = view->selectedCells();
    QList<myItemStandard *> filled;
    QHash<int, const myItemStandard *> sources;
    for (const QModelIndex &index : cells) {
        const myItemStandard *source = model->cell(index);
        if (!source || sources.contains(index.column()))
            continue;
        sources.insert(index.column(), source);
        filled += cellsLike(source, cells);
    }
    const auto value = [&sources](const myItemStandard &cell) {
        return cellBlock::like(*sources.value(cell.column()), cell);
    };
    for (const myItemStandard *cell : qAsConst(filled))
        if (const QString fault = value(*cell).fault; !fault.isEmpty()) {
            userPrompts().showError(fault.toHtmlEscaped());
            return;
        }
    push(cellBlock::set(
             model, filled, [&value](const myItemStandard &cell) { return value(cell).value; },
             page()),
         tr("Fill down"));
    if (filled.isEmpty())
        tell(tr("Select the cell to copy and those below it that are to be filled"));
}

void editWindow::moveRowsBefore(myTreeView *view, const std::vector<int> &rows, int before)
{
    if (refuseWhileLocked() || rows.empty())
        return;
    const bool together = rows.back() - rows.front() + 1 == int(rows.size());
    if (together && before >= rows.front() && before <= rows.back() + 1)
        return;
    const int column = qMax(0, view->currentIndex().column());
    const int to = before - int(std::lower_bound(rows.begin(), rows.end(), before) - rows.begin());
    std::vector<std::unique_ptr<command>> members;
    members.push_back(std::make_unique<placesOnly>(modelOf(view), rows));
    members.push_back(std::make_unique<moveRows>(modelOf(view), rows, before));
    pushMove(view, std::move(members), int(rows.size()));
    view->goTo(view->model()->index(to, column));
    view->selectionModel()->select(
        {view->model()->index(to, column), view->model()->index(to + int(rows.size()) - 1, column)},
        QItemSelectionModel::Select);
}

// It is the rows beside them that change places, so the marked ones stay selected, also when that
// is undone.
void editWindow::moveMarkedRows(myTreeView *view, bool up)
{
    const std::vector<int> rows = view->markedRows();
    if (refuseWhileLocked())
        return;
    if (rows.empty()) {
        tell(tr("No line is selected"));
        return;
    }
    myModel *model = modelOf(view);
    if (up ? rows.front() == 0 : rows.back() + 1 == model->rowCount())
        return;
    std::vector<std::unique_ptr<command>> members;
    {
        const changeBatch batch(model);
        members.push_back(std::make_unique<placesOnly>(model, rows));
        for (auto first = rows.begin(); first != rows.end();) {
            auto last = first;
            while (last + 1 != rows.end() && *(last + 1) == *last + 1)
                ++last;
            members.push_back(
                up ? std::make_unique<moveRows>(model, std::vector{*first - 1}, *last + 1)
                   : std::make_unique<moveRows>(model, std::vector{*last + 1}, *first));
            first = last + 1;
        }
    }
    pushMove(view, std::move(members), int(rows.size()));
    view->scrollTo(view->currentIndex());
}

void editWindow::pushMove(myTreeView *view, std::vector<std::unique_ptr<command>> moves, int rows)
{
    {
        // What is sorted by is shown no more.
        QHeaderView *header = view->header();
        const QSignalBlocker quiet(header);
        header->setSortIndicator(-1, Qt::AscendingOrder);
    }
    if (page())
        moves.push_back(std::make_unique<refreshHtml>(page()));
    push(std::make_unique<appendCommands>(std::move(moves), modelOf(view)),
         tr("%n line(s) moved", nullptr, rows));
}

// Texts; other values have no empty one.
void editWindow::clearCells(const myTreeView *view)
{
    if (refuseWhileLocked())
        return;
    QList<myItemStandard *> cells;
    for (const QModelIndex &index : view->selectedCells())
        if (myItemStandard *cell = modelOf(view)->cell(index))
            switch (cell->type()) {
            case myItem::labelKind:
            case myItem::lineEditKind:
            case myItem::passwordEditKind:
            case myItem::ipEditKind:
            case myItem::textEditKind:
            case myItem::pathEditKind:
                cells.append(cell);
                break;
            default:
                break;
            }
    push(cellBlock::clear(modelOf(view), cells, page()), tr("Clear"));
}

// --- Keys
// -----------------------------------------------------------------------------------------

// An action that deletes rows takes the key where there are rows to delete.
void editWindow::keyPressEvent(QKeyEvent *event)
{
    baseWindow::keyPressEvent(event);
    if (event->key() != Qt::Key_Delete || event->modifiers() != Qt::NoModifier)
        return;
    for (const myTreeView *view : m_views)
        if (view->hasFocus())
            deletePressed(view);
}

void editWindow::deletePressed(const myTreeView *view) { clearCells(view); }

// The field that is typed into is asked first whether a key is its own.
void editWindow::followFocus(QWidget *, QWidget *now)
{
    if (now && now != this && now->window() == this)
        now->installEventFilter(this);
}

// Whether a text field keeps a key that is a shortcut of the window, too. An editor in a tree keeps
// its keys always; other fields leave undo and redo to the window while they have nothing of their
// own to undo.
bool editWindow::isOwnKey(QWidget *field, const QKeyEvent *event) const
{
    // Its list is opened so.
    if (qobject_cast<const QComboBox *>(field) && event->modifiers() == Qt::AltModifier
        && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down))
        return true;
    const QLineEdit *line = lineOf(field);
    const auto *text = qobject_cast<const QTextEdit *>(field);
    if (!line && !text)
        return false;
    const bool inTree =
        std::any_of(m_views.begin(), m_views.end(),
                    [field](const myTreeView *view) { return view->isAncestorOf(field); });
    const QKeySequence pressed(event->key() | int(event->modifiers()));
    if (pressed == action("undo")->shortcut())
        return inTree || (line ? line->isUndoAvailable() : text->document()->isUndoAvailable());
    if (pressed == action("redo")->shortcut())
        return inTree || (line ? line->isRedoAvailable() : text->document()->isRedoAvailable());
    for (QKeySequence::StandardKey key :
         {QKeySequence::Copy, QKeySequence::Cut, QKeySequence::Paste, QKeySequence::SelectAll})
        if (event->matches(key))
            return true;
    // Not Ctrl+D, which some desktops have for it, too.
    return event->key() == Qt::Key_Delete;
}

bool editWindow::takesShortcut(const QKeyEvent *event) const
{
    const QKeySequence pressed(event->key() | int(event->modifiers()));
    const QList<QAction *> all = findChildren<QAction *>(QString(), Qt::FindDirectChildrenOnly);
    return std::any_of(all.begin(), all.end(), [&pressed](const QAction *each) {
        return each->isEnabled() && each->shortcutContext() == Qt::WindowShortcut
               && each->shortcut() == pressed;
    });
}

bool editWindow::eventFilter(QObject *watched, QEvent *event)
{
    auto *field = qobject_cast<QWidget *>(watched);
    if (!field || field != QApplication::focusWidget()
        || (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress))
        return baseWindow::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    const bool own = isOwnKey(field, key);
    // Not the key for it everywhere.
    const bool redoes =
        own && QKeySequence(key->key() | int(key->modifiers())) == action("redo")->shortcut();
    if (event->type() == QEvent::KeyPress) {
        if (!redoes)
            return baseWindow::eventFilter(watched, event);
        if (QLineEdit *line = lineOf(field))
            line->redo();
        else
            static_cast<QTextEdit *>(field)->redo();
        return true;
    }
    if (own) {
        event->accept();
        return true;
    }
    // Fields have keys of their own that few know, such as Ctrl+E for the end of the line.
    if (!own && takesShortcut(key)) {
        event->ignore();
        return true;
    }
    return baseWindow::eventFilter(watched, event);
}

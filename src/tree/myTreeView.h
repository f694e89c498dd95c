// The view of all editing trees: it marks the current row, tells of clicks and keys with the item
// they met, and is driven by the keyboard alone where the user likes.
#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

#include <vector>

class QStandardItem;
class myHeaderView;
class myModel;

class myTreeView : public QTreeView
{
    Q_OBJECT
public:
    explicit myTreeView(QWidget *parent = nullptr);

    using QTreeView::edit;
    void setModel(QAbstractItemModel *model) override;

    // Expands an item with everything below it; collapses one.
    void expandItem(QStandardItem *item);
    void collapseItem(QStandardItem *item);
    // Expands many items at once, not what is below them.
    void expandRows(const std::vector<QStandardItem *> &rows);

    // Takes what stands in an open editor, and closes it. False when the text was refused: the
    // editor stays open then, and says why.
    bool finishEditing();

    // Brings the page that the tree is on to the front of its tabs.
    void showPage();

    // While locked no editor opens.
    void setEditingLocked(bool locked);
    bool isEditingLocked() const { return editTriggers() == NoEditTriggers; }

    // Goes to a cell, which is the only one selected then, whatever keys are held meanwhile.
    void goTo(const QModelIndex &index);

    // The cells selected, in the order in which they are seen; what is not seen is not among them.
    QModelIndexList selectedCells() const;
    // The current cell while its row is marked, which it is not after Escape.
    QModelIndex markedCell() const;
    // What an action on rows acts on: the selected cells, else the marked one.
    QModelIndexList markedCells() const;
    // The top-level rows of these, from the top down.
    std::vector<int> markedRows() const;
    // Has nothing selected that is hidden or in a closed row; the current cell goes to the row that
    // was closed.
    void deselectHidden();

    // Tab goes down the column instead of along the row.
    void setTabGoesDown(bool down) { m_tabGoesDown = down; }

    // Rows can be dragged by their first cell; rowsDragged() says where to.
    void setRowsDragged(bool dragged) { m_rowsDragged = dragged; }

    // Goes to the next top-level cell, after the current one and around, whose shown text holds the
    // text in any case. False when there is none.
    bool findNext(const QString &text);

signals:
    void clicked(QPoint MousePos, uint b, QModelIndex i);
    void clicked(QPoint MousePos, uint b);
    void doubleClicked(QPoint MousePos, uint b, QModelIndex i);
    void doubleClicked(QPoint MousePos, uint b);
    void release(QPoint MousePos, uint b, QModelIndex i);
    void release(QModelIndex i);
    void keyUpDown();
    void keyEscape();
    // On Return or Enter. When it ends an edit, the value is in the cell by then.
    void keyEnter();
    // A typed text was refused; its editor stays open.
    void refused(const QString &fault);
    // On Return with Ctrl in an editor, before its value is taken.
    void keyFill();
    // Another cell is current, or others are selected or marked.
    void markChanged();
    // Top-level rows, from the top down, were dropped before another one.
    void rowsDragged(const std::vector<int> &rows, int before);

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    // A text that does not fit its cell is told whole, always as plain text.
    bool viewportEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    // Tab goes from one editable cell to the next.
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    // An editor whose text was refused stays open, with the keyboard, unless it is given up.
    // The keyboard stays in the tree, also when a question came up while the value was taken.
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    static constexpr EditTriggers usualTriggers = DoubleClicked | EditKeyPressed | AnyKeyPressed;

    // Marks the current row in place of the one before. Touches these two rows only.
    void moveHighlight();
    void clearHighlight();
    void backToEditor(QWidget *editor);
    void escape();
    QModelIndex hitItem(const QMouseEvent *event) const;
    QModelIndex nextEditable(bool forward) const;

    bool isSeen(const QModelIndex &index) const;
    QString toolTipOf(const QModelIndex &index) const;
    void goDown();
    void dragTo(const QPoint &position);
    void endDrag(bool dropped);

    QPersistentModelIndex m_highlighted;
    QPersistentModelIndex m_edited; // the cell that an editor was opened on last
    bool m_unmarked = false;        // since Escape, until the user goes on
    bool m_tabGoesDown = false;
    bool m_rowsDragged = false;
    QPoint m_pressed;
    std::vector<int> m_draggable; // the rows that the press was on
    int m_dropBefore = -1;        // while they are dragged
};

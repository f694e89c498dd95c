// The one delegate of all editing trees: it opens the editor of each kind of cell, takes its value
// to the model, and paints the cells.
#pragma once

#include <QStyledItemDelegate>

namespace myItem {
class myItemStandard;
struct reading;
} // namespace myItem
class myModel;

// Percentages of a cell's range at which the colour of its bar changes.
struct barThresholds
{
    int low = 25;
    int average = 50;
    int high = 75;
};

class myModelDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit myModelDelegate(QObject *parent = nullptr);

    void setThresholds(const barThresholds &thresholds) { m_thresholds = thresholds; }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

    // Whether the text of an open editor was refused: it stays there, marked, with a tool tip that
    // says why, until it is mended or given up.
    static bool isRefused(const QWidget *editor);

    // The colour of a coloured bar at that value of a range.
    QColor barColour(int value, int minimum, int maximum) const;

signals:
    // The text of an editor cannot be taken, for the reason given.
    void refused(const QString &fault);
    // On Return with Ctrl in an editor that lies over the window, not in the tree.
    void fillWanted();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enableByCommit(QWidget *editor, class QKeyEvent *event);
    QWidget *makeEditor(QWidget *parent, const myItem::myItemStandard &item) const;
    static myItem::reading readEditor(QWidget *editor, const myModel &model,
                                      const myItem::myItemStandard &item);
    void closeWith(class QDialog *dialog) const;
    QColor paintBackground(QPainter *painter, QStyleOptionViewItem *option,
                           const QModelIndex &index, const myItem::myItemStandard &item) const;
    void paintBar(QPainter *painter, const QStyleOptionViewItem &option,
                  const myItem::myItemStandard &item) const;

    int m_indentation;
    barThresholds m_thresholds;
    mutable const QWidget *m_committed = nullptr; // the editor whose value is being taken
};

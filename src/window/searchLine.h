// The search field on top of a window's tree: it asks for a search once typing rests, and the rows
// that do not match are hidden and no longer selected.
#pragma once

#include "data/searchQuery.h"

#include <QLineEdit>

class QModelIndex;
class QTimer;
class myTreeView;

class searchLine : public QLineEdit
{
    Q_OBJECT
public:
    // Fills the page that the view is a child of with itself and the view.
    explicit searchLine(myTreeView *view);

    // Takes the keyboard, ready to be typed over.
    void begin();
    // What was typed so far.
    searchQuery query();
    void setRowShown(const QModelIndex &first, bool shown);

signals:
    void wanted();

protected:
    // Escape empties the field; Down goes to the tree.
    void keyPressEvent(QKeyEvent *event) override;

private:
    myTreeView *m_view;
    QTimer *m_delay;
};

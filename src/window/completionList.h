// The list under a search field that shows how what is typed may go on. It takes no keys: they stay
// in the field, which moves in the list.
#pragma once

#include "data/searchCompletion.h"

#include <QTreeWidget>

class completionList : public QTreeWidget
{
    Q_OBJECT
public:
    explicit completionList(QWidget *field);

    // Shows the suggestions below (or, where there is no room, above) the field from its left
    // distance on, none of them chosen; hides when there are none.
    void offer(const std::vector<searchSuggestion> &suggestions, int left);

    // The number of the chosen one; -1 when none is.
    int chosen() const { return indexOfTopLevelItem(currentItem()); }
    // Goes so many rows down, or up and out of the list again.
    void move(int rows);

signals:
    void picked(int number);

private:
    void place(int left);

    QWidget *m_field;
};

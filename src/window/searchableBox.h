// A list to choose from by typing a part of an entry; the only one that holds it is meant.
#pragma once

#include <QComboBox>

class searchableBox : public QComboBox
{
public:
    explicit searchableBox(QWidget *parent);

    // Of the entries that hold what is typed.
    int matches() const;

protected:
    // Return that chooses is not yet the dialog's.
    void keyPressEvent(QKeyEvent *event) override;

private:
    // False when there is nothing to choose, or it stands there whole.
    bool chooseOnly();
};

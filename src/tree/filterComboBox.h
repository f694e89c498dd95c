// The editor of choices: a list that is open from the beginning and shows what fits the typed text.
#pragma once

#include "tree/myItem.h"

#include <QComboBox>

class QListWidget;
class QListWidgetItem;

class filterComboBox : public QComboBox
{
    Q_OBJECT
public:
    // Every text may be typed when canBeTyped, else only what is in the list is taken.
    filterComboBox(QWidget *parent, const myItem::comboEntries &entries, bool canBeTyped);

    // Shows an entry as the one that stands in the cell.
    void load(int index);

    // Whether anything was typed or chosen since.
    bool isTouched() const { return m_touched; }
    // The entry that is marked in the list; -1 when none is, so that the typed text counts.
    int chosen() const;
    QString typedText() const;

    void showPopup() override;
    void hidePopup() override;

signals:
    // An entry was clicked.
    void picked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void filter(const QString &text);
    void mark(QListWidgetItem *item);
    void place();

    const myItem::comboEntries m_entries;
    const bool m_canBeTyped;
    QListWidget *m_list;
    bool m_touched = false;
};

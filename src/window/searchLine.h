// The field in which materials are searched. It asks for a search once typing rests, says and marks
// what it cannot read, completes names of fields and values, and keeps searches under names. See
// docs/search.md.
#pragma once

#include "data/searchCompletion.h"

#include <QLineEdit>

#include <functional>

class QAbstractItemView;
class QLabel;
class QMenu;
class QModelIndex;
class QTimer;
class completionList;
class myTreeView;

class searchLine : public QLineEdit
{
    Q_OBJECT
public:
    // On top of a window's tree: fills the page that the view is a child of with itself and the
    // view. Down and Return go to the tree; rows that do not match are hidden there and no longer
    // selected.
    explicit searchLine(myTreeView *view);
    // Above a list of what was found, in which the arrow keys move while the field keeps the
    // keyboard.
    searchLine(QAbstractItemView *found, QWidget *parent);

    // Where the values come from; of one database, when there is one.
    using databaseFunction = std::function<const kiv_mat_databaseStruct *()>;
    void completeFrom(materialSearch &search, const databaseFunction &database = {});

    // Takes the keyboard, ready to be typed over.
    void begin();
    // What was typed so far.
    searchQuery query();
    void setRowShown(const QModelIndex &first, bool shown);

signals:
    void wanted();

protected:
    bool event(QEvent *event) override;
    // Escape closes the list of completions, else it empties the field.
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    // The list does not stay behind when its window moves.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    searchLine(QAbstractItemView *view, bool keepsKeyboard, QWidget *parent);

    void complete(bool asked);
    void take(int suggestion);
    bool moveInList(int key);
    void accept();

    void readFaults();
    void showFaults(bool alsoTyped);
    void markFaults(const std::vector<searchFault> &faults);

    void fillMenu();
    void openMenu();
    void searchFor(const QString &words);
    void keep();
    void changeKept();
    void noteLast();

    QAbstractItemView *m_view;
    bool m_keepsKeyboard;
    QTimer *m_delay;

    materialSearch *m_search = nullptr;
    databaseFunction m_database;
    completionList *m_list;
    searchCompletion m_completion;
    int m_caret = -1; // that the list is for

    std::vector<searchFault> m_faults;
    bool m_marked = false;
    bool m_composing = false; // a text of an input method stands in the field
    QTimer *m_faultDelay;
    QLabel *m_fault;

    QMenu *m_menu;
};

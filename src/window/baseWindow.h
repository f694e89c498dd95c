// The base of all windows: menus, tool bar and shortcuts from one table of actions, a status bar
// with progress and Cancel, and a place on the screen that is remembered.
#pragma once

#include <QAction>
#include <QMainWindow>

class workProgress;

// One action of a window, without its slot. The texts are source texts of the context "actions";
// null ones are left out.
struct actionRow
{
    const char *name;     // object name, by which it is found
    const char *menu;     // title of its menu
    const char *text;     // null: a separator of the menu
    const char *icon;     // a picture in ":/icons/icons/", without ".png"
    const char *shortcut; // "Ctrl+P"
    const char *toolTip;  // where it says more than the text
    bool onToolBar = false;
    bool checkable = false;
    const char *meaning = nullptr; // where a text is translated in more than one way
};

// A row of a window's table: the action and the slot that takes its state.
template <class Window>
struct windowAction
{
    actionRow row;
    void (Window::*slot)(bool);
};

class baseWindow : public QMainWindow
{
    Q_OBJECT
public:
    // name: object name, under which the window's place is remembered.
    explicit baseWindow(const QString &name, QWidget *parent = nullptr);

    // The action of that name; null when there is none.
    QAction *action(const char *name) const;

    // Enables an action, or disables it and has its tool tip say why.
    void setAvailable(const char *name, bool available, const QString &whyNot);

    // Where long work shows how far it is.
    workProgress &progress() { return *m_progress; }

protected:
    // Makes the actions of a table, in their menus in the table's order, and connects each to its
    // slot. Menus get mnemonics that do not collide.
    template <class Window, size_t Count>
    void addActions(const windowAction<Window> (&table)[Count])
    {
        for (const windowAction<Window> &entry : table)
            if (QAction *made = addAction(entry.row))
                connect(made, entry.row.checkable ? &QAction::toggled : &QAction::triggered, this,
                        [this, slot = entry.slot](bool on) {
                            if (beforeAction())
                                (static_cast<Window *>(this)->*slot)(on);
                        });
        giveMnemonics();
    }

    // Called before a menu opens and before the slot of any action, which false keeps from running.
    virtual bool beforeAction() { return true; }

    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QAction *addAction(const actionRow &row);
    QMenu *menuOf(const char *title);
    void giveMnemonics();
    void restorePlace();
    void savePlace() const;

    QToolBar *m_toolBar = nullptr;
    workProgress *m_progress;
    bool m_placed = false;
};

// Over the tree of an editing window: that its file changed under it, and what can be done.
#pragma once

#include <QToolBar>

class QLabel;
class QPushButton;

class changedBar : public QToolBar
{
    Q_OBJECT
public:
    explicit changedBar(QWidget *parent);

    // What may be done is seen in the buttons; nothing hides the bar.
    enum change
    {
        none,
        other, // compare, read again, or keep what is here
        gone   // keep what is here
    };
    void show(change what, const QString &note);

signals:
    void compare();
    void reload();
    void keepMine();
    void noted();

private:
    QAction *add(const QString &text, const char *name, void (changedBar::*pressed)());

    QLabel *m_text;
    QAction *m_compare;
    QAction *m_reload;
    QAction *m_keep;
    QAction *m_noted;
};

// A person at the program: keys go to whatever has the focus, clicks to what lies under them, menus
// are opened by their letters, boxes are answered by keys. Nothing of the program is called.
#pragma once

#include "window/dialogPrompts.h"

#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

class QTreeView;

// The program's real boxes and file dialogs; lines for the log and errors windows are noted.
class seenPrompts : public dialogPrompts
{
public:
    seenPrompts();
    ~seenPrompts() override;
    void log(const QString &html) override { logged += html; }
    void listError(const QString &html) override;
    void showErrors() override;

    QString logged;
    QString listed;
    bool showsErrors = false; // errors go to their window, too

private:
    prompts *m_before;
};

class hands
{
public:
    // Brings a window to the front, as the one that is worked in.
    explicit hands(QWidget &window);

    // Does the steps one after the other, each in whatever window is in front by then:
    //   F2  Ctrl+S  Return      a key
    //   'text'                  types it ('' types an apostrophe)
    //   lines@3,5  lines@@3,5   a click, a double click on a cell of the tree of that object name:
    //                           row, logical column; lines@1/3,5 is row 3 below row 1
    //   lines@?3,5              the same with the right button
    //   +lines@3,5              a click with Ctrl
    //   lines@^5                a click on the header of a column
    //   <a.pdf,b.pdf>lines@3,5  files dragged from another program over a cell, where what is told in the status bar is
    //                           noted as a box, and let go there
    //   #name                   chooses the action of that object name from its menu, or from the
    //                           context menu that is open
    //   #-name                  the same, where it may be disabled: what its tool tip says is noted
    //                           as a box that came up
    //   !name                   a click on the widget of that object name, or on the button or tab
    //                           of that text
    //   ~200                    waits so many milliseconds
    // Fails the test, telling the step, when one cannot be done or boxes are left at the end.
    void operator()(const QString &steps);

    // The titles and texts of the boxes that came up since this was last called, "title: text".
    QStringList boxes();
    // What stands in the status bar of the window.
    QString status() const;

private:
    void next();
    QString perform(const QString &step);
    QString choose(const QString &name, bool mayBeDisabled);
    QString clickCell(const QString &step);
    QString dropOn(QWidget *target, const QPoint &place, const QStringList &paths);
    void noteBox();

    QWidget &m_window;
    QStringList m_steps;
    QStringList m_boxes;
    QPointer<QWidget> m_lastBox; // the next one may lie at the same address
    QString m_fault;
    bool m_running = false;
    QPointer<QWidget> m_worked; // the window that was in front last
    QObject m_context;          // what is still to be done goes with it
    int m_looks = 0;            // for what a step names
    int m_waits = 0;            // since a window took keys last
    bool m_isOpening = false;   // keys of a menu are being pressed, the last one is not
};

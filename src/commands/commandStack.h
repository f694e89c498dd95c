// The undo history of one editing window.
#pragma once

#include "commands/command.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QAction;

class commandStack
{
public:
    // The window's two actions, which outlive the stack or are null; both are disabled at once and
    // then follow what can be undone and redone.
    commandStack(QAction *undoAction, QAction *redoAction);
    ~commandStack();
    commandStack(const commandStack &) = delete;
    commandStack &operator=(const commandStack &) = delete;

    // Takes a command that is already applied, and discards what could be redone. what names the
    // change to the user. A null command stands for one that could not be made: it takes its step
    // and does nothing. False when completed() has taken the command back: then there is no step.
    bool push(std::unique_ptr<command> applied, const QString &what = {});

    // Take back the last change, do the last one taken back again. Return its name; nothing happens
    // when there is none.
    QString undo();
    QString redo();

    // The cells in the tree in which the step is seen that was undone or done again last; none when
    // something else happened since.
    std::vector<QStandardItem *> places() const;

    // Discards everything; only what could be redone.
    void clear();
    void clearRedo();

    // Called with each command before it is taken; gives back the step that it becomes, or null
    // when it has undone it. A window adds to a change what belongs to it, and may ask the user.
    std::function<std::unique_ptr<command>(std::unique_ptr<command>)> completed;

    // Called after each push, undo, redo and clear.
    std::function<void()> changed;

    // What was done, as a number: equal numbers mean that the same steps are done. 0 when none is.
    quint64 state() const { return m_done.empty() ? 0 : m_done.back().number; }

    size_t undoCount() const { return m_done.size(); }
    size_t redoCount() const { return m_undone.size(); }

private:
    struct step
    {
        std::unique_ptr<command> change;
        QString what;
        quint64 number; // never given twice
    };

    void tell() const;
    const command *m_moved = nullptr;

    quint64 m_lastNumber = 0;
    std::vector<step> m_done;   // the last one is the most recent
    std::vector<step> m_undone; // the last one is the most recently undone
    // A window's actions may go before its stack.
    QPointer<QAction> m_undoAction;
    QPointer<QAction> m_redoAction;
};

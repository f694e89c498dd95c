#include "commands/commandStack.h"

#include <QAction>

namespace {

void enable(QAction *action, bool on)
{
    if (action)
        action->setEnabled(on);
}

// From the last one on: later commands may look at what earlier ones hold.
template <class Steps>
void discard(Steps &steps)
{
    while (!steps.empty())
        steps.pop_back();
}

} // namespace

commandStack::commandStack(QAction *undoAction, QAction *redoAction)
    : m_undoAction(undoAction)
    , m_redoAction(redoAction)
{
    enable(m_undoAction, false);
    enable(m_redoAction, false);
}

commandStack::~commandStack()
{
    discard(m_done);
    discard(m_undone);
}

bool commandStack::push(std::unique_ptr<command> applied, const QString &what)
{
    m_moved = nullptr;
    const bool wasMade = applied != nullptr;
    if (completed)
        applied = completed(std::move(applied));
    if (wasMade && !applied) {
        tell();
        return false;
    }
    m_done.push_back({std::move(applied), what, ++m_lastNumber});
    clearRedo();
    enable(m_redoAction, false);
    enable(m_undoAction, true);
    tell();
    return true;
}

QString commandStack::undo()
{
    QString what;
    if (!m_done.empty()) {
        step last = std::move(m_done.back());
        m_done.pop_back();
        if (last.change)
            last.change->undo();
        m_moved = last.change.get();
        what = last.what;
        m_undone.push_back(std::move(last));
        enable(m_redoAction, true);
    }
    if (m_done.empty())
        enable(m_undoAction, false);
    tell();
    return what;
}

QString commandStack::redo()
{
    QString what;
    if (!m_undone.empty()) {
        step last = std::move(m_undone.back());
        m_undone.pop_back();
        if (last.change)
            last.change->redo();
        m_moved = last.change.get();
        what = last.what;
        m_done.push_back(std::move(last));
        enable(m_undoAction, true);
    }
    if (m_undone.empty())
        enable(m_redoAction, false);
    tell();
    return what;
}

std::vector<QStandardItem *> commandStack::places() const
{
    std::vector<QStandardItem *> cells;
    if (m_moved)
        m_moved->places(cells);
    return cells;
}

void commandStack::clear()
{
    m_moved = nullptr;
    discard(m_done);
    discard(m_undone);
    enable(m_undoAction, false);
    enable(m_redoAction, false);
    tell();
}

void commandStack::tell() const
{
    if (changed)
        changed();
}

void commandStack::clearRedo()
{
    m_moved = nullptr;
    discard(m_undone);
}

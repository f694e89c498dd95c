// What is to be noted in another file once a database is saved, such as deliveries that went into
// its stock: a step of the window's history brings it, and takes it back.
#pragma once

#include "commands/command.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class notedOnSave
{
public:
    // False, with the reason, when it cannot be noted; it is tried again with the next saving.
    using note = std::function<bool(QString *fault)>;
    using handle = std::shared_ptr<const note>;

    void add(handle one) { m_notes.push_back(std::move(one)); }
    void remove(const handle &one) { std::erase(m_notes, one); }
    void clear()
    {
        m_notes.clear();
        m_overdue = false;
    }
    // Whether something could not be noted although the database is saved.
    bool areOverdue() const { return m_overdue; }
    bool settle(QString *fault)
    {
        while (!m_notes.empty() && (*m_notes.front())(fault))
            m_notes.erase(m_notes.begin());
        m_overdue = !m_notes.empty();
        return !m_overdue;
    }

private:
    std::vector<handle> m_notes;
    bool m_overdue = false;
};

// A step with what is to be noted of it.
class notedStep : public command
{
public:
    // change has been applied; notes outlives the step.
    notedStep(std::unique_ptr<command> change, notedOnSave *notes, notedOnSave::note note)
        : m_change(std::move(change))
        , m_notes(notes)
        , m_note(std::make_shared<const notedOnSave::note>(std::move(note)))
    {
        m_notes->add(m_note);
    }
    void undo() override
    {
        m_change->undo();
        m_notes->remove(m_note);
    }
    void redo() override
    {
        m_change->redo();
        m_notes->add(m_note);
    }
    void places(std::vector<QStandardItem *> &cells) const override { m_change->places(cells); }

private:
    std::unique_ptr<command> m_change;
    notedOnSave *m_notes;
    notedOnSave::handle m_note;
};

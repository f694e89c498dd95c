// The boards whose materials were taken out of a database's stock in its window: they are noted in
// the file of reservations when the database is saved.
#pragma once

#include "commands/command.h"
#include "data/kiv_mat_reservationsStruct.h"

#include <functional>
#include <memory>
#include <vector>

class configStruct;
class reservationsFile;

class builtBoards
{
public:
    using boards = std::vector<std::shared_ptr<const boardStruct>>;

    void add(const boards &built);
    void remove(const boards &built);
    // They were not built after all.
    void discard();
    // Whether some could not be noted although the database is saved.
    bool areOverdue() const { return m_overdue; }

    // Those that are not noted yet as a text, from which another run can take them up.
    QString text() const;
    // False when it holds none.
    bool takeUp(const QString &text);
    // Called with each change of them.
    std::function<void()> changed = [] {};

    // Notes them. False, with the reason in fault, when the file cannot be written; it is tried
    // again the next time.
    bool settle(reservationsFile &file, configStruct &config, QString *fault);

private:
    boards m_built; // and not noted yet
    bool m_overdue = false;
};

// A step that changes the stock, with the boards that were built.
class boardsBuilt : public command
{
public:
    // stock has been applied; log outlives the step.
    boardsBuilt(std::unique_ptr<command> stock, builtBoards *log, builtBoards::boards built);
    void undo() override;
    void redo() override;
    void places(std::vector<QStandardItem *> &cells) const override { m_stock->places(cells); }

private:
    std::unique_ptr<command> m_stock;
    builtBoards *m_log;
    builtBoards::boards m_boards;
};

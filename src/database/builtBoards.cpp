#include "database/builtBoards.h"

#include "data/reservationsFile.h"

#include <algorithm>

void builtBoards::add(const boards &built)
{
    m_built.insert(m_built.end(), built.begin(), built.end());
}

void builtBoards::remove(const boards &built)
{
    std::erase_if(m_built, [&built](const auto &board) {
        return std::find(built.begin(), built.end(), board) != built.end();
    });
}

bool builtBoards::settle(reservationsFile &file, configStruct &config, QString *fault)
{
    if (m_built.empty())
        return true;
    const bool written = file.change(
        [this](kiv_mat_reservationsStruct &reservations) {
            for (const auto &board : m_built)
                noteBuilt(&reservations, *board);
            return true;
        },
        config, fault);
    if (written)
        m_built.clear();
    return written;
}

boardsBuilt::boardsBuilt(std::unique_ptr<command> stock, builtBoards *log,
                         builtBoards::boards built)
    : m_stock(std::move(stock))
    , m_log(log)
    , m_boards(std::move(built))
{
    m_log->add(m_boards);
}

void boardsBuilt::undo()
{
    m_stock->undo();
    m_log->remove(m_boards);
}

void boardsBuilt::redo()
{
    m_stock->redo();
    m_log->add(m_boards);
}

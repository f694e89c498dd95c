#include "database/builtBoards.h"

#include "data/reservationsFile.h"

#include <algorithm>

namespace {

bool contains(const builtBoards::boards &list, const std::shared_ptr<const boardStruct> &board)
{
    return std::find(list.begin(), list.end(), board) != list.end();
}

} // namespace

void builtBoards::add(const boards &built)
{
    m_built.insert(m_built.end(), built.begin(), built.end());
}

void builtBoards::remove(const boards &built)
{
    m_built.erase(std::remove_if(m_built.begin(), m_built.end(),
                                 [&built](const auto &board) { return contains(built, board); }),
                  m_built.end());
}

void builtBoards::discard()
{
    m_built.clear();
    for (const noted &one : m_noted)
        m_built.push_back(one.board);
}

bool builtBoards::settle(reservationsFile &file, configStruct &config, QString *fault)
{
    const auto isNoted = [this](const auto &board) {
        return std::any_of(m_noted.begin(), m_noted.end(),
                           [&board](const noted &one) { return one.board == board; });
    };
    const bool isSettled =
        m_built.size() == m_noted.size() && std::all_of(m_built.begin(), m_built.end(), isNoted);
    if (isSettled)
        return true;
    std::vector<noted> added;
    const bool written = file.change(
        [&](kiv_mat_reservationsStruct &reservations) {
            for (const noted &one : m_noted)
                if (!contains(m_built, one.board))
                    forgetBuilt(&reservations, one.board->id, one.released);
            for (const auto &board : m_built)
                if (!isNoted(board))
                    added.push_back({board, noteBuilt(&reservations, *board)});
            return true;
        },
        config, fault);
    if (!written)
        return false;
    m_noted.erase(
        std::remove_if(m_noted.begin(), m_noted.end(),
                       [this](const noted &one) { return !contains(m_built, one.board); }),
        m_noted.end());
    std::move(added.begin(), added.end(), std::back_inserter(m_noted));
    return true;
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

#include "database/builtBoards.h"

#include "data/reservationsFile.h"

#include <algorithm>

void builtBoards::add(const boards &built)
{
    m_built.insert(m_built.end(), built.begin(), built.end());
    changed();
}

void builtBoards::remove(const boards &built)
{
    std::erase_if(m_built, [&built](const auto &board) {
        return std::find(built.begin(), built.end(), board) != built.end();
    });
    changed();
}

void builtBoards::discard()
{
    m_built.clear();
    m_overdue = false;
}

QString builtBoards::text() const
{
    kiv_mat_reservationsStruct all;
    for (const auto &board : m_built)
        all.built.append(board->copy());
    return QString::fromUtf8(contentOf(all));
}

bool builtBoards::takeUp(const QString &text)
{
    kiv_mat_reservationsStruct all;
    QXmlStreamReader reader(text);
    if (readToElement(&reader, all.kind().root))
        readChildren(&reader, all.tagHandlers(), all.kind().root);
    boards found;
    for (auto &board : all.built.items)
        found.push_back(std::move(board));
    add(found);
    return !found.empty();
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
    m_overdue = !written;
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

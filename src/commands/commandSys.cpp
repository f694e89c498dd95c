#include "commands/commandSys.h"

#include <QDir>
#include <QFile>
#include <QWidget>

namespace {

std::unique_ptr<pendingSysCommands> pending;

} // namespace

void cmdRemoveFile::execute()
{
    if (QFile::exists(m_path))
        QFile::remove(m_path);
}

void cmdRemoveFolder::execute()
{
    QDir folder(m_path);
    // An empty path would be the working folder.
    if (!m_path.isEmpty() && folder.exists())
        folder.removeRecursively();
}

void cmdRemoveWidget::execute() { delete m_widget; }

pendingSysCommands &pendingSysCommands::instance()
{
    if (!pending)
        pending = std::make_unique<pendingSysCommands>();
    return *pending;
}

void pendingSysCommands::append(std::unique_ptr<commandSys> action)
{
    m_actions.push_back(std::move(action));
}

void pendingSysCommands::executeAll()
{
    while (pending && !pending->m_actions.empty()) {
        const std::unique_ptr<commandSys> first = std::move(pending->m_actions.front());
        pending->m_actions.pop_front();
        first->execute();
    }
}

void pendingSysCommands::discardAll() { pending.reset(); }

void pendingSysCommands::destroy() { discardAll(); }

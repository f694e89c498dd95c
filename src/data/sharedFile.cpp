#include "data/sharedFile.h"

#include "data/programData.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

documentStruct &sharedFile::current()
{
    const fileState state = fileState::of(m_path);
    if (m_read && state == m_state)
        return *m_content;
    m_read = true;
    ++m_readings;
    m_state = state;
    m_fault.clear();
    m_content = m_make();
    if (!m_path.isEmpty() && QFileInfo::exists(m_path)
        && !readChecked(m_path, m_content.get(), &m_fault))
        m_content = m_make();
    m_content->filePath = m_path;
    return *m_content;
}

bool sharedFile::changeCurrent(const std::function<bool(documentStruct &)> &edit,
                               configStruct &config, QString *fault)
{
    // Two programs that change it at once would each lose what the other one wrote. In a folder
    // that cannot be written there is nothing to lose.
    QLockFile turn(m_path + QLatin1String(".busy"));
    constexpr int patienceMs = 3000;
    if (!turn.tryLock(patienceMs) && turn.error() == QLockFile::LockFailedError) {
        *fault = QCoreApplication::translate("data", "another program is writing it");
        return false;
    }
    m_read = false;
    current();
    if (!m_fault.isEmpty()) {
        *fault = m_fault;
        return false;
    }
    if (!edit(*m_content)) {
        m_read = false;
        return true;
    }
    const bool written = saveDocument(m_path, *m_content, config, {}, fault);
    m_read = false;
    current();
    return written;
}

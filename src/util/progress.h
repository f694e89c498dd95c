// How long operations report: done and total are in the same unit (bytes, pages, materials), a
// total of 0 where nobody knows it; the answer false cancels the operation.
#pragma once

#include <functional>

using progressFunction = std::function<bool(long long done, long long total)>;

// Counts the steps of a loop and reports every 64th of them, and the last.
class progressSteps
{
public:
    progressSteps(const progressFunction &progress, long long total)
        : m_progress(progress)
        , m_total(total)
    {
    }

    // One more step is done; false when the operation is to stop.
    bool next()
    {
        ++m_done;
        return !m_progress || (m_done % 64 != 0 && m_done != m_total)
               || m_progress(m_done, m_total);
    }

private:
    const progressFunction &m_progress;
    long long m_total;
    long long m_done = 0;
};

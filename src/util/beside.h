// Work that nobody can tell the progress of, or interrupt: it runs beside the event loop.
#pragma once

#include "util/progress.h"

#include <chrono>
#include <future>

// Does the work on a thread of its own and asks progress (with a total of 0) until it is done; what
// progress answers is the caller's to remember. Without progress the work is just done. The work
// touches nothing that events may touch.
template <class Work>
auto runBeside(const progressFunction &progress, Work work) -> decltype(work())
{
    if (!progress)
        return work();
    auto running = std::async(std::launch::async, std::move(work));
    constexpr std::chrono::milliseconds askEvery(20);
    while (running.wait_for(askEvery) != std::future_status::ready)
        progress(0, 0);
    return running.get();
}

// What ends the program from outside, told in its event loop: the system's signals to end. Each
// system has its own.
#pragma once

#include <functional>
#include <memory>

class endSignals
{
public:
    // Calls asked in the event loop, once for each signal, as long as this lives; one at a time.
    explicit endSignals(std::function<void()> asked);
    ~endSignals();
    endSignals(const endSignals &) = delete;
    endSignals &operator=(const endSignals &) = delete;

private:
    struct handlers;
    std::unique_ptr<handlers> m_handlers;
};

#pragma once
// Keeps the signals that end a program waiting while it lives: a file is written in milliseconds, and whoever ends the
// program in their middle would leave its scratch files behind.

#include <csignal>
#include <initializer_list>

namespace quor {

class SignalHold {
public:
    explicit SignalHold(std::initializer_list<int> signals = {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
    {
        sigemptyset(&m_held);
        for (const int signal : signals) {
            sigaddset(&m_held, signal);
        }
        pthread_sigmask(SIG_BLOCK, &m_held, &m_before);
    }
    SignalHold(const SignalHold&) = delete;
    SignalHold& operator=(const SignalHold&) = delete;
    ~SignalHold() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    const sigset_t& Held() const noexcept { return m_held; }

private:
    sigset_t m_held{};
    sigset_t m_before{};
};

} // namespace quor

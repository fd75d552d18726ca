#pragma once
// Keeps the signals that end a program waiting while it lives: a file is written in milliseconds, and whoever ends the
// program in their middle would leave its scratch files behind.

#include <csignal>

namespace quor {

class SignalHold {
public:
    SignalHold()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM}) {
            sigaddset(&held, signal);
        }
        pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    SignalHold(const SignalHold&) = delete;
    SignalHold& operator=(const SignalHold&) = delete;
    ~SignalHold() { pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

private:
    sigset_t m_before;
};

} // namespace quor

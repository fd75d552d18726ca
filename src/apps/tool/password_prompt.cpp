#include "apps/tool/password_prompt.h"

#include "apps/tool/signal_hold.h"
#include "base/failure.h"

#include <array>
#include <cerrno>
#include <iostream>
#include <optional>
#include <sys/poll.h>
#include <sys/signalfd.h>
#include <termios.h>
#include <unistd.h>

namespace quor {

namespace {

// Holds back what would end or stop the program; it comes at the end of this object's life.
class HeldSignals {
public:
    HeldSignals() : m_waiting(signalfd(-1, &m_hold.Held(), SFD_CLOEXEC)) {}
    HeldSignals(const HeldSignals&) = delete;
    HeldSignals& operator=(const HeldSignals&) = delete;
    ~HeldSignals() { close(m_waiting); }

    // A file that can be read when a signal waits; reading would take the signal away.
    int Waiting() const noexcept { return m_waiting; }

private:
    SignalHold m_hold{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
    int m_waiting;
};

// The terminal shows nothing of what is typed while it lives.
class NoEcho {
public:
    NoEcho()
    {
        bool isSet = tcgetattr(STDIN_FILENO, &m_before) == 0;
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        isSet = isSet && tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent) == 0;
        if (!isSet) {
            throw Failure(failures::invalidCall, "The terminal can't hide a password.");
        }
    }
    NoEcho(const NoEcho&) = delete;
    NoEcho& operator=(const NoEcho&) = delete;
    ~NoEcho() { tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before); }

private:
    termios m_before{};
};

[[noreturn]] void FailWithoutPassword()
{
    throw Failure(failures::invalidCall, "There is no password.");
}

// A line without its end, of a terminal that gives whole lines. Nothing if a signal came first.
std::optional<std::string> TypedLine(const HeldSignals& signals)
{
    std::array<pollfd, 2> sources{{{signals.Waiting(), POLLIN, 0}, {STDIN_FILENO, POLLIN, 0}}};
    while (poll(sources.data(), sources.size(), -1) < 0) {
        if (errno != EINTR) {
            FailWithoutPassword();
        }
    }
    if (sources[0].revents != 0) {
        return std::nullopt;
    }
    std::array<char, 4096> line; // a terminal gives no longer one
    const ssize_t length = read(STDIN_FILENO, line.data(), line.size());
    if (length <= 0) {
        FailWithoutPassword();
    }
    const std::string text(line.data(), static_cast<std::size_t>(length));
    return text.ends_with('\n') ? text.substr(0, text.size() - 1) : text;
}

// Asks again where the program was stopped and goes on.
std::string Ask(const char* question)
{
    std::optional<std::string> line;
    while (!line) {
        const HeldSignals signals;
        {
            const NoEcho noEcho;
            std::cerr << question << std::flush;
            line = TypedLine(signals);
        }
        std::cerr << std::endl;
    }
    return *line;
}

} // namespace

std::string AskNewPassword()
{
    std::string password;
    if (isatty(STDIN_FILENO) == 0) {
        if (!std::getline(std::cin, password)) {
            FailWithoutPassword();
        }
        return password;
    }
    password = Ask("Password: ");
    if (Ask("The same again: ") != password) {
        throw Failure(failures::invalidCall, "The two passwords differ.");
    }
    return password;
}

} // namespace quor

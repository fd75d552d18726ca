#include "apps/tool/password_prompt.h"

#include "base/failure.h"

#include <csignal>
#include <iostream>
#include <termios.h>
#include <unistd.h>

namespace quor {

namespace {

// The terminal shows nothing of what is typed while it lives. An interruption ends the line that is being read, so that
// the terminal shows again what is typed.
class NoEcho {
public:
    NoEcho()
    {
        m_isSet = tcgetattr(STDIN_FILENO, &m_before) == 0;
        termios silent = m_before;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        struct sigaction ending {};
        ending.sa_handler = [](int) {};
        sigaction(SIGINT, &ending, &m_interrupt);
        m_isSet = m_isSet && tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent) == 0;
        if (!m_isSet) {
            throw Failure(failures::invalidCall, "The terminal can't hide a password.");
        }
    }
    NoEcho(const NoEcho&) = delete;
    NoEcho& operator=(const NoEcho&) = delete;
    ~NoEcho()
    {
        tcsetattr(STDIN_FILENO, TCSAFLUSH, &m_before);
        sigaction(SIGINT, &m_interrupt, nullptr);
    }

private:
    termios m_before{};
    struct sigaction m_interrupt {};
    bool m_isSet;
};

std::string ReadLine()
{
    std::string line;
    if (!std::getline(std::cin, line)) {
        throw Failure(failures::invalidCall, "There is no password.");
    }
    return line;
}

std::string Ask(const char* question)
{
    std::cerr << question << std::flush;
    std::string line;
    {
        const NoEcho noEcho;
        line = ReadLine();
    }
    std::cerr << '\n';
    return line;
}

} // namespace

std::string AskNewPassword()
{
    if (isatty(STDIN_FILENO) == 0) {
        return ReadLine();
    }
    std::string password = Ask("Password: ");
    if (Ask("The same again: ") != password) {
        throw Failure(failures::invalidCall, "The two passwords differ.");
    }
    return password;
}

} // namespace quor

#include "apps/tool/password_prompt.h"
#include "base/failure.h"
#include "tests/test.h"

#include <csignal>
#include <pty.h>
#include <sys/poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

namespace {

// A process that asks at a terminal of its own. It ends with 0 for the password "secret", 1 for another, 2 for none.
struct Question {
    int terminal = -1;
    int far = -1; // the process's end
    pid_t child = -1;
    std::string seen;

    Question()
    {
        EXPECT_EQ(openpty(&terminal, &far, nullptr, nullptr, nullptr), 0);
        child = fork();
        if (child == 0) {
            const rlimit none{};
            setrlimit(RLIMIT_CORE, &none);
            setpgid(0, 0); // a group that has somebody to go on after a stop
            dup2(far, STDIN_FILENO);
            dup2(far, STDERR_FILENO);
            try {
                _exit(AskNewPassword() == "secret" ? 0 : 1);
            } catch (const Failure&) {
                _exit(2);
            }
        }
    }
    Question(const Question&) = delete;
    Question& operator=(const Question&) = delete;
    ~Question()
    {
        close(terminal);
        close(far);
    }

    // Reads what the terminal shows until it ends with these words.
    void WaitFor(const std::string& words)
    {
        pollfd source{terminal, POLLIN, 0};
        char letter = 0;
        while (!seen.ends_with(words) && poll(&source, 1, 10'000) == 1 && read(terminal, &letter, 1) == 1) {
            seen += letter;
        }
        if (!seen.ends_with(words)) {
            ADD_FAILURE() << seen;
            kill(child, SIGKILL); // so that nobody waits for its end
        }
    }

    void Type(const std::string& text) const { EXPECT_EQ(write(terminal, text.data(), text.size()), std::ssize(text)); }

    // How the process has ended, or stopped, at the signal if there is one; it leaves the terminal as it was.
    int End(int signal = 0) const
    {
        int status = 0;
        termios state{};
        kill(child, signal);
        EXPECT_EQ(waitpid(child, &status, WUNTRACED), child);
        EXPECT_EQ(tcgetattr(far, &state), 0);
        EXPECT_NE(state.c_lflag & ECHO, 0U);
        return status;
    }
};

TEST(TheQuestionForAPassword, TakesOneTypedTwiceAndShowsNothingOfItBeforeAndAfterAStop)
{
    for (const auto& [second, code] : {std::pair{"secret\n", 0}, {"Secret\n", 2}}) {
        Question question;
        question.WaitFor("Password: ");
        EXPECT_TRUE(WIFSTOPPED(question.End(SIGTSTP)));
        question.seen.clear();
        kill(question.child, SIGCONT);
        question.WaitFor("Password: ");
        question.Type("secret\n");
        question.WaitFor("again: ");
        question.Type(second);
        EXPECT_EQ(WEXITSTATUS(question.End()), code);
        question.WaitFor("again: \r\n");
        EXPECT_EQ(question.seen.find("ecret"), std::string::npos);
    }
}

TEST(TheQuestionForAPassword, EndsWithASignalAndLeavesTheTerminalAsItWas)
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGQUIT}) {
        Question question;
        question.WaitFor("Password: ");
        EXPECT_EQ(WTERMSIG(question.End(signal)), signal);
    }
}

} // namespace

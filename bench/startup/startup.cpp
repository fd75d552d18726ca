#include "bench/startup/startup.h"

#include "base/failure.h"

#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace quor::bench {

namespace {

constexpr int patience = 20'000; // milliseconds

using Clock = std::chrono::steady_clock;

// A new folder, gone with everything in it at the end.
class ScratchFolder {
public:
    ScratchFolder()
    {
        if (::mkdtemp(m_path.data()) == nullptr) {
            throw Failure(failures::pathFileAccess);
        }
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::string& Path() const { return m_path; }

private:
    std::string m_path = (std::filesystem::temp_directory_path() / "quor-bench-XXXXXX").string();
};

std::vector<std::string> Environment(const std::string& home)
{
    std::vector<std::string> environment = {
        "HOME=" + home,
        "XDG_CONFIG_HOME=" + home,
        "XDG_STATE_HOME=" + home,
        "XDG_RUNTIME_DIR=" + home,
        "QT_QPA_PLATFORM=offscreen",
        "LD_PRELOAD=" QUOR_FIRST_PAINT,
    };
    for (const char* name : {"PATH", "LANG"}) {
        if (const char* value = std::getenv(name)) {
            environment.push_back(std::string(name) + "=" + value);
        }
    }
    return environment;
}

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

// Starts the program in that folder with the writing end as its descriptor 3.
pid_t Spawn(const std::filesystem::path& program, const std::string& home, int writingEnd)
{
    std::vector<std::string> arguments = {program.string()};
    std::vector<std::string> environment = Environment(home);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, writingEnd, 3);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t process = 0;
    const int trouble = ::posix_spawn(&process, program.c_str(), &actions, nullptr, Pointers(arguments).data(),
                                      Pointers(environment).data());
    posix_spawn_file_actions_destroy(&actions);
    if (trouble != 0) {
        throw Failure(failures::fileNotFound, "Unable to start " + program.string());
    }
    return process;
}

} // namespace

double SecondsToPaint(const std::filesystem::path& program)
{
    const ScratchFolder home;
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) {
        throw Failure(failures::pathFileAccess);
    }
    const Clock::time_point start = Clock::now();
    const pid_t process = Spawn(program, home.Path(), ends[1]);
    ::close(ends[1]);
    std::int64_t painted = 0;
    pollfd ready{ends[0], POLLIN, 0};
    const bool told = ::poll(&ready, 1, patience) == 1 && ::read(ends[0], &painted, sizeof painted) == sizeof painted;
    ::close(ends[0]);
    ::kill(process, SIGKILL);
    ::waitpid(process, nullptr, 0);
    if (!told) {
        throw Failure(failures::internal, program.string() + " ended without a painted main window");
    }
    return std::chrono::duration<double>(Clock::time_point(Clock::duration(painted)) - start).count();
}

} // namespace quor::bench

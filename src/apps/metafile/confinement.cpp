#include "apps/metafile/confinement.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <unistd.h>

namespace quor {

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool limitsMemory = false; // the sanitizer takes terabytes of addresses
#else
constexpr bool limitsMemory = true;
#endif

void Limit(int resource, rlim_t most)
{
    const rlimit limit{most, most};
    setrlimit(static_cast<__rlimit_resource>(resource), &limit);
}

// What works on memory, time and open files; all else is told not to be permitted, so that a library that looks for
// another font or plugin does without.
constexpr const char* allowedCalls[] = {
    "read",         "write",       "close",          "fstat",           "lseek",        "mmap",
    "munmap",       "mremap",      "mprotect",       "madvise",         "brk",          "futex",
    "sched_yield",  "getrandom",   "gettid",         "getpid",          "rt_sigaction", "rt_sigprocmask",
    "rt_sigreturn", "sigaltstack", "clock_gettime",  "clock_nanosleep", "gettimeofday", "nanosleep",
    "exit",         "exit_group",  "restart_syscall"};

bool FilterCalls()
{
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)),
                                                                   &seccomp_release);
    if (filter == nullptr) {
        return false;
    }
    bool isMade = std::all_of(std::begin(allowedCalls), std::end(allowedCalls), [&](const char* call) {
        const int number = seccomp_syscall_resolve_name(call);
        return seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, number, 0) == 0;
    });
    // To end itself.
    const scmp_arg_cmp itself{0, SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()), 0};
    isMade = isMade && seccomp_rule_add_array(filter.get(), SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1, &itself) == 0;
    // For the threads that there are, too.
    return isMade && seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 && seccomp_load(filter.get()) == 0;
}

} // namespace

void ConfineThisProcess(std::chrono::milliseconds most)
{
    constexpr rlim_t mostMemory = 1'000'000'000;
    constexpr rlim_t mostSeconds = 4;
    constexpr std::int64_t second = 1'000;
    // Waiting takes none of the processor's time: so by the clock, too.
    const itimerval end{{0, 0}, {most.count() / second, most.count() % second * second}};
    setitimer(ITIMER_REAL, &end, nullptr);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    Limit(RLIMIT_CPU, mostSeconds);
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0); // no files; pipes are none
    std::signal(SIGXFSZ, SIG_IGN);
    if (limitsMemory) {
        Limit(RLIMIT_AS, mostMemory);
    }
}

bool ForbidAllButDrawing()
{
    constexpr unsigned firstOther = 3; // behind the standard ones
    close_range(firstOther, ~0U, 0);
    Limit(RLIMIT_NOFILE, 0); // holds where the kernel has no filters, too
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && FilterCalls();
}

} // namespace quor

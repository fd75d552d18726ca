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
constexpr int allowedCalls[] = {SCMP_SYS(read),
                                SCMP_SYS(write),
                                SCMP_SYS(close),
                                SCMP_SYS(fstat),
                                SCMP_SYS(lseek),
                                SCMP_SYS(mmap),
                                SCMP_SYS(munmap),
                                SCMP_SYS(mremap),
                                SCMP_SYS(mprotect),
                                SCMP_SYS(madvise),
                                SCMP_SYS(brk),
                                SCMP_SYS(futex),
                                SCMP_SYS(sched_yield),
                                SCMP_SYS(getrandom),
                                SCMP_SYS(gettid),
                                SCMP_SYS(getpid),
                                SCMP_SYS(rt_sigaction),
                                SCMP_SYS(rt_sigprocmask),
                                SCMP_SYS(rt_sigreturn),
                                SCMP_SYS(sigaltstack),
                                SCMP_SYS(clock_gettime),
                                SCMP_SYS(clock_nanosleep),
                                SCMP_SYS(gettimeofday),
                                SCMP_SYS(nanosleep),
                                SCMP_SYS(exit),
                                SCMP_SYS(exit_group),
                                SCMP_SYS(restart_syscall)};

bool FilterCalls()
{
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ERRNO(EPERM)),
                                                                   &seccomp_release);
    if (filter == nullptr) {
        return false;
    }
    bool isMade = std::all_of(std::begin(allowedCalls), std::end(allowedCalls),
                              [&](int call) { return seccomp_rule_add(filter.get(), SCMP_ACT_ALLOW, call, 0) == 0; });
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

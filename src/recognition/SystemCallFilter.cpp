#include "recognition/SystemCallFilter.h"

#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <initializer_list>
#include <memory>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>
#include <vector>

namespace orlen::SystemCallFilter {

namespace {

/// The socket to Orlen.
constexpr std::uint64_t kSocket = STDIN_FILENO;
constexpr std::uint64_t kThread = CLONE_THREAD | CLONE_VM | CLONE_SIGHAND | CLONE_FS | CLONE_FILES;

struct Limited {
    int call;
    std::vector<scmp_arg_cmp> conditions; ///< all of them
};

scmp_arg_cmp is(unsigned argument, std::uint64_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp has(unsigned argument, std::uint64_t bits)
{
    return {argument, SCMP_CMP_MASKED_EQ, bits, bits};
}

scmp_arg_cmp lacks(unsigned argument, std::uint64_t bits)
{
    return {argument, SCMP_CMP_MASKED_EQ, bits, 0};
}

constexpr int kAllowed[] = {
    // Open files.
    SCMP_SYS(read), SCMP_SYS(readv), SCMP_SYS(pread64), SCMP_SYS(write), SCMP_SYS(writev), SCMP_SYS(lseek),
    SCMP_SYS(_llseek), SCMP_SYS(fstat), SCMP_SYS(fstat64), SCMP_SYS(close), SCMP_SYS(dup), SCMP_SYS(poll),
    SCMP_SYS(ppoll), SCMP_SYS(fadvise64),
    // Memory.
    SCMP_SYS(brk), SCMP_SYS(munmap), SCMP_SYS(mremap), SCMP_SYS(madvise),
    // Threads.
    SCMP_SYS(futex), SCMP_SYS(set_robust_list), SCMP_SYS(rseq), SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity), SCMP_SYS(getcpu), SCMP_SYS(gettid), SCMP_SYS(getpid), SCMP_SYS(exit),
    SCMP_SYS(exit_group), SCMP_SYS(restart_syscall),
    // Signals to itself, time, limits.
    SCMP_SYS(rt_sigaction), SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(sigaltstack),
    SCMP_SYS(alarm), SCMP_SYS(setitimer), SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep), SCMP_SYS(nanosleep), SCMP_SYS(gettimeofday), SCMP_SYS(times),
    SCMP_SYS(getrusage), SCMP_SYS(getrlimit), SCMP_SYS(sysinfo), SCMP_SYS(uname), SCMP_SYS(getrandom),
    SCMP_SYS(getuid), SCMP_SYS(geteuid), SCMP_SYS(getgid), SCMP_SYS(getegid)};

std::vector<Limited> limitedCalls(bool mayOpen)
{
    std::vector<Limited> calls{
        {SCMP_SYS(recvmsg), {is(0, kSocket)}},
        {SCMP_SYS(sendto), {is(0, kSocket), is(4, 0)}}, // to nobody else
        {SCMP_SYS(shutdown), {is(0, kSocket)}},
        // No new code: decoders do not generate any (see ImageDecoder::prepare).
        {SCMP_SYS(mmap), {lacks(2, PROT_EXEC)}},
        {SCMP_SYS(mmap2), {lacks(2, PROT_EXEC)}},
        {SCMP_SYS(mprotect), {lacks(2, PROT_EXEC)}},
        {SCMP_SYS(clone), {has(0, kThread)}},
        // How the C library asks about a descriptor.
        {SCMP_SYS(newfstatat), {is(3, AT_EMPTY_PATH)}},
        {SCMP_SYS(tgkill), {is(0, static_cast<std::uint64_t>(::getpid()))}}, // abort()
        {SCMP_SYS(prlimit64), {is(0, 0), is(2, 0)}},                         // asks only
        {SCMP_SYS(sched_getattr), {is(0, 0)}},
        {SCMP_SYS(sched_setattr), {is(0, 0)}},
        {SCMP_SYS(prctl), {is(0, PR_SET_NAME)}},
        {SCMP_SYS(prctl), {is(0, PR_GET_DUMPABLE)}},
    };
    // Landlock says nothing of O_PATH.
    if (mayOpen)
        calls.push_back(
            {SCMP_SYS(openat), {lacks(2, O_WRONLY | O_RDWR | O_CREAT | O_TRUNC | O_DIRECTORY | O_PATH)}});
    for (const int command : {F_GETFD, F_SETFD, F_GETFL, F_DUPFD_CLOEXEC})
        calls.push_back({SCMP_SYS(fcntl), {is(1, static_cast<std::uint64_t>(command))}});
    return calls;
}

bool add(scmp_filter_ctx filter, const Limited& call)
{
    const auto count = static_cast<unsigned>(call.conditions.size());
    return ::seccomp_rule_add_array(filter, SCMP_ACT_ALLOW, call.call, count, call.conditions.data()) == 0;
}

bool addAll(scmp_filter_ctx filter, bool mayOpen)
{
    for (const int call : kAllowed) {
        if (!add(filter, {call, {}}))
            return false;
    }
    for (const Limited& call : limitedCalls(mayOpen)) {
        if (!add(filter, call))
            return false;
    }
    // Its arguments are behind a pointer, which no filter can follow; the C library then uses clone().
    return ::seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0) == 0;
}

struct Release {
    void operator()(void* filter) const { ::seccomp_release(filter); }
};

} // namespace

bool apply(bool mayOpen)
{
    const std::unique_ptr<void, Release> filter(::seccomp_init(SCMP_ACT_ERRNO(EPERM)));
    // A tree instead of a list, since a picture needs thousands of calls.
    constexpr std::uint32_t kTree = 2;
    return filter && ::seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS) == 0 &&
           ::seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1) == 0 &&
           ::seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_OPTIMIZE, kTree) == 0 &&
           addAll(filter.get(), mayOpen) && ::seccomp_load(filter.get()) == 0;
}

} // namespace orlen::SystemCallFilter

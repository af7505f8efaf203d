#include "platform/process/ProcessLimits.h"

#include <csignal>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace orlen::ProcessLimits {

namespace {

bool limit(__rlimit_resource resource, rlim_t most)
{
    const rlimit both{most, most};
    return ::setrlimit(resource, &both) == 0;
}

} // namespace

bool apply(const Limits& limits)
{
    // Libraries try to write where they need not: that must fail, not kill the process.
    (void)::signal(SIGXFSZ, SIG_IGN);
    return (limits.memory == 0 || limit(RLIMIT_AS, limits.memory)) &&
           limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorTime.count())) && limit(RLIMIT_CORE, 0) &&
           limit(RLIMIT_FSIZE, 0) && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

void hideMemory()
{
    (void)::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
}

void endWithOther(int socket)
{
    std::thread([socket] {
        pollfd end{socket, 0, 0}; // only reports that the other end was closed
        while ((end.revents & (POLLHUP | POLLERR | POLLNVAL)) == 0)
            (void)::poll(&end, 1, -1);
        ::_exit(0);
    }).detach();
}

void endAfter(std::chrono::seconds time)
{
    ::alarm(static_cast<unsigned>(time.count()));
}

} // namespace orlen::ProcessLimits

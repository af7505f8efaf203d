#include "platform/ProcessLimits.h"

#include <csignal>
#include <sys/prctl.h>
#include <sys/resource.h>
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
    // Libraries try to write where they can do without: that has to fail, not to end the process.
    (void)::signal(SIGXFSZ, SIG_IGN);
    return (limits.memory == 0 || limit(RLIMIT_AS, limits.memory)) &&
           limit(RLIMIT_CPU, static_cast<rlim_t>(limits.processorTime.count())) && limit(RLIMIT_CORE, 0) &&
           limit(RLIMIT_FSIZE, 0) && ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0;
}

void endAfter(std::chrono::seconds time)
{
    ::alarm(static_cast<unsigned>(time.count()));
}

} // namespace orlen::ProcessLimits

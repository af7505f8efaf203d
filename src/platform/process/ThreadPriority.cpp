#include "platform/process/ThreadPriority.h"

#include <sys/resource.h>

namespace orlen::ThreadPriority {

void giveWay()
{
    constexpr int kNiceness = 10;
    // On Linux 0 means the calling thread, not the process. A thread that is nicer already stays so.
    if (::getpriority(PRIO_PROCESS, 0) < kNiceness)
        (void)::setpriority(PRIO_PROCESS, 0, kNiceness);
}

} // namespace orlen::ThreadPriority

#include "platform/process/ChildEnd.h"

#include "platform/files/Retrying.h"

#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace orlen::ChildEnd {

UniqueFd descriptorOf(pid_t child)
{
    // Debian 12's header for the C library's own wrapper does not compile as C++.
    return UniqueFd(static_cast<int>(::syscall(SYS_pidfd_open, child, 0)));
}

std::optional<int> await(pid_t child)
{
    int status = 0;
    const pid_t ended = retried([&] { return ::waitpid(child, &status, 0); });
    return ended == child ? std::optional(status) : std::nullopt;
}

bool awaitAside(pid_t child)
{
    try {
        std::thread([child] { (void)await(child); }).detach();
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void awaitKilled(pid_t child)
{
    const UniqueFd end = descriptorOf(child);
    pollfd waiting{end.get(), POLLIN, 0};
    const bool hasEnded =
        end.isOpen() &&
        retried([&] { return ::poll(&waiting, 1, static_cast<int>(kKilledPatience.count())); }) > 0;
    if (hasEnded)
        (void)await(child);
    else
        awaitAside(child);
}

} // namespace orlen::ChildEnd

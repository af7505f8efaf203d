#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <cerrno>

namespace orlen {

/// Repeats a system call while signals interrupt it. The call returns -1 on failure.
template <typename Call>
[[nodiscard]] auto retried(Call&& call)
{
    auto answer = call();
    while (answer < 0 && errno == EINTR)
        answer = call();
    return answer;
}

/// The same for calls that return a descriptor.
template <typename Call>
[[nodiscard]] Result<UniqueFd> retriedFd(Call&& call)
{
    const int fd = retried(call);
    if (fd < 0)
        return Errno{errno};
    return UniqueFd(fd);
}

} // namespace orlen

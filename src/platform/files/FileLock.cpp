#include "platform/files/FileLock.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"

#include <fcntl.h>
#include <sys/file.h>

namespace orlen {

Result<FileLock> FileLock::take(const std::string& path)
{
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    constexpr int kFlags = O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC;
    constexpr mode_t kMode = 0600;
    auto opened = retriedFd([&] { return ::open(path.c_str(), kFlags, kMode); });
    if (!opened.ok())
        return Errno{opened.error()};
    if (retried([&] { return ::flock(opened.value().get(), LOCK_EX | LOCK_NB); }) != 0)
        return Errno{errno};
    return FileLock(std::move(opened).value());
}

} // namespace orlen

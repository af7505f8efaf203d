#include "platform/files/Volume.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/values/CheckedSum.h"

#include <sys/statvfs.h>

namespace orlen {

Result<VolumeSpace> volumeSpace(const std::string& path)
{
    if (const auto reachable = Reachability::check(path, Reachability::LastLink::followed); !reachable.ok())
        return Errno{reachable.error()};
    struct statvfs raw {};
    if (retried([&] { return ::statvfs(path.c_str(), &raw); }) != 0)
        return Errno{errno};
    // Some file systems report nonsense.
    return VolumeSpace{cappedBytes(raw.f_blocks, raw.f_frsize), cappedBytes(raw.f_bavail, raw.f_frsize)};
}

} // namespace orlen

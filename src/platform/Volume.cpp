#include "platform/Volume.h"

#include "platform/Retrying.h"

#include <limits>
#include <sys/statvfs.h>

namespace orlen {

namespace {

/// A file system that reports nonsense (some FUSE ones do) is cut to what 64 bits hold.
std::int64_t bytesOf(std::uint64_t blocks, std::uint64_t blockSize)
{
    std::int64_t bytes = 0;
    if (__builtin_mul_overflow(blocks, blockSize, &bytes))
        return std::numeric_limits<std::int64_t>::max();
    return bytes;
}

} // namespace

Result<VolumeSpace> volumeSpace(const std::string& path)
{
    struct statvfs raw {};
    if (retried([&] { return ::statvfs(path.c_str(), &raw); }) != 0)
        return Errno{errno};
    return VolumeSpace{bytesOf(raw.f_blocks, raw.f_frsize), bytesOf(raw.f_bavail, raw.f_frsize)};
}

} // namespace orlen

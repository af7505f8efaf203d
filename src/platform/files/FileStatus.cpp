#include "platform/files/FileStatus.h"

#include "platform/files/Reachability.h"
#include "platform/files/Retrying.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace orlen {

namespace {

// Cached attributes must do: no refresh from a server, no automount.
constexpr int kFlags = AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT;
/// The unit of the system's block counts, independent of the file system's own blocks.
constexpr std::uint64_t kBlockSize = 512;
constexpr unsigned kFields = STATX_BASIC_STATS | STATX_BTIME | STATX_MNT_ID;

TimePoint toTimePoint(const statx_timestamp& stamp)
{
    using namespace std::chrono;
    // Dates are capped to the years 1900 to 2191: further apart, their difference in nanoseconds would
    // overflow 64 bits.
    constexpr std::int64_t kEarliest = -2'200'000'000;
    constexpr std::int64_t kLatest = 7'000'000'000;
    const std::int64_t whole = std::clamp<std::int64_t>(stamp.tv_sec, kEarliest, kLatest);
    return TimePoint(duration_cast<TimePoint::duration>(seconds(whole) + nanoseconds(stamp.tv_nsec)));
}

FileType toType(unsigned mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileType::regular;
    case S_IFDIR:
        return FileType::folder;
    case S_IFLNK:
        return FileType::link;
    default:
        return FileType::other;
    }
}

Result<FileStatus> query(int folder, const char* name, int flags)
{
    struct statx raw {};
    if (retried([&] { return ::statx(folder, name, flags, kFields, &raw); }) != 0)
        return Errno{errno};
    FileStatus status;
    status.type = toType(raw.stx_mode);
    status.allocatedBytes = cappedBytes(raw.stx_blocks, kBlockSize);
    status.length = static_cast<std::int64_t>(raw.stx_size);
    status.identity = {makedev(raw.stx_dev_major, raw.stx_dev_minor), raw.stx_ino};
    status.mount = raw.stx_mnt_id;
    status.links = raw.stx_nlink;
    status.mode = raw.stx_mode & 07777U;
    status.owner = raw.stx_uid;
    status.modified = toTimePoint(raw.stx_mtime);
    status.accessed = toTimePoint(raw.stx_atime);
    status.changed = toTimePoint(raw.stx_ctime);
    if ((raw.stx_mask & STATX_BTIME) != 0)
        status.born = toTimePoint(raw.stx_btime);
    return status;
}

} // namespace

FileStamp FileStamp::of(const FileStatus& status)
{
    if (status.type == FileType::folder)
        return {status.type, status.identity, 0, {}, status.born};
    return {status.type, status.identity, status.length, status.changed, status.born};
}

Result<FileStatus> statusOf(const std::string& path)
{
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    return query(AT_FDCWD, path.c_str(), kFlags);
}

Result<FileStatus> statusAt(int folder, const char* name)
{
    return query(folder, name, kFlags);
}

Result<FileStatus> statusOfOpen(int fd)
{
    return query(fd, "", kFlags | AT_EMPTY_PATH);
}

bool exists(const std::string& path)
{
    return statusOf(path).ok();
}

bool isRealFolder(const std::string& path)
{
    const auto status = statusOf(path);
    return status.ok() && status.value().type == FileType::folder;
}

bool isDeletable(const std::string& path)
{
    const std::string parent(PathText::parent(path));
    const auto entry = statusOf(path);
    const auto folder = statusOf(parent.empty() ? "." : parent + "/.");
    if (!entry.ok() || !folder.ok() || entry.value().mount != folder.value().mount)
        return false;
    if (entry.value().identity == folder.value().identity)
        return false; // "/" is its own parent
    if (::faccessat(AT_FDCWD, parent.c_str(), W_OK | X_OK, AT_EACCESS) != 0)
        return false;
    const std::uint32_t user = ::geteuid();
    if ((folder.value().mode & S_ISVTX) != 0 && entry.value().owner != user && folder.value().owner != user)
        return false;
    return entry.value().type != FileType::folder || isWritable(path);
}

bool isWritable(const std::string& path)
{
    return Reachability::check(path, Reachability::LastLink::followed).ok() &&
           ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

} // namespace orlen

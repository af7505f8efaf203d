#pragma once

#include "platform/values/Result.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orlen {

enum class FileType { regular, folder, link, other };

/// Device and inode number: two names with the same identity are the same file.
struct FileIdentity {
    std::uint64_t device = 0;
    std::uint64_t number = 0;
    // clang-tidy 14 takes the comparison with 0 that this stands for to be one of pointers.
    friend auto operator<=>(const FileIdentity&,
                            const FileIdentity&) = default; // NOLINT(modernize-use-nullptr)
};

struct FileIdentityHash {
    [[nodiscard]] std::size_t operator()(const FileIdentity& id) const
    {
        return static_cast<std::size_t>((id.number ^ (id.device << 32U)) * 0x9E3779B97F4A7C15U);
    }
};

/// What identifies a file across restarts: inode numbers are reused once a file is gone, and device numbers
/// change at boot.
struct LastingIdentity {
    std::uint64_t number = 0;
    std::optional<TimePoint> born; ///< creation time, where the file system keeps it
    friend bool operator==(const LastingIdentity&, const LastingIdentity&) = default;
};

/// What the file system says about one name. A link is described itself, not its target.
struct FileStatus {
    FileType type = FileType::other;
    std::int64_t allocatedBytes = 0; ///< bytes occupied on disk, at most `kMostBytes`
    std::int64_t length = 0;         ///< bytes of content
    FileIdentity identity;
    std::uint64_t mount = 0; ///< id of the mount it was reached through, see MountTable
    std::uint32_t links = 1; ///< hard links to this file
    std::uint32_t mode = 0;  ///< permission bits
    std::uint32_t owner = 0; ///< user id
    TimePoint modified;
    TimePoint accessed;
    TimePoint changed;             ///< last change of content, name or permissions; programs cannot set it
    std::optional<TimePoint> born; ///< nothing where the file system does not record it

    [[nodiscard]] LastingIdentity lasting() const { return {identity.number, born}; }
};

/// What a name referred to at one moment, to tell later whether it still does: a folder by its identity,
/// anything else also by length and time of change.
struct FileStamp {
    FileType type = FileType::other;
    FileIdentity identity;
    std::int64_t length = 0; ///< bytes of content; 0 for a folder
    TimePoint changed;       ///< the epoch for a folder
    std::optional<TimePoint> born;

    [[nodiscard]] static FileStamp of(const FileStatus& status);
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Blocks on the disk; any thread. A link in the last component is not followed. Like every function of this
/// folder that takes a path: ETIMEDOUT if it lies on a mount that does not answer, see Reachability.
[[nodiscard]] Result<FileStatus> statusOf(const std::string& path);
/// The same for a name relative to an open folder.
[[nodiscard]] Result<FileStatus> statusAt(int folder, const char* name);
[[nodiscard]] Result<FileStatus> statusOfOpen(int fd);

/// Whether the name exists, even if it is a dangling link.
[[nodiscard]] bool exists(const std::string& path);
[[nodiscard]] bool isRealFolder(const std::string& path);

/// Whether the user may move this entry to another folder: the parent is writable and searchable; if the
/// parent is sticky, the user owns it or the entry; a folder is itself writable, since moving it rewrites its
/// ".."; and the entry is not a mount point. False if it is missing.
[[nodiscard]] bool isDeletable(const std::string& path);
/// Whether the user may write to the path; links are followed.
[[nodiscard]] bool isWritable(const std::string& path);

} // namespace orlen

#pragma once

#include "platform/values/Result.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orlen {

enum class FileType { regular, folder, link, other };

/// Device and file number: two names with the same identity are the same file.
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

/// What identifies a file on its disk for good: file numbers are given to new files once the old are gone,
/// and device numbers change with a restart.
struct LastingIdentity {
    std::uint64_t number = 0;
    std::optional<TimePoint> born; ///< when it was created, where the file system knows
    friend bool operator==(const LastingIdentity&, const LastingIdentity&) = default;
};

/// What the file system tells of one name; a link is described itself, never what it points to.
struct FileStatus {
    FileType type = FileType::other;
    std::int64_t allocatedBytes = 0; ///< bytes occupied on disk, at most `kMostBytes`
    std::int64_t length = 0;         ///< bytes of content
    FileIdentity identity;
    std::uint64_t mount = 0; ///< number of the mount it was reached through, see MountTable
    std::uint32_t links = 1; ///< names this file has
    std::uint32_t mode = 0;  ///< permission bits
    std::uint32_t owner = 0; ///< user number
    TimePoint modified;
    TimePoint accessed;
    TimePoint changed;             ///< last change of content, name or permissions; no program can set it
    std::optional<TimePoint> born; ///< nothing where the file system does not keep it

    [[nodiscard]] LastingIdentity lasting() const { return {identity.number, born}; }
};

/// What a name stood for at one moment, kept to tell later whether it still stands for the same: a folder by
/// its identity, anything else also by its length and its time of change.
struct FileStamp {
    FileType type = FileType::other;
    FileIdentity identity;
    std::int64_t length = 0; ///< bytes of content; 0 for a folder
    TimePoint changed;       ///< the epoch for a folder
    std::optional<TimePoint> born;

    [[nodiscard]] static FileStamp of(const FileStatus& status);
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Blocks on the disk; any thread. Links are not followed in the last component. ETIMEDOUT for a place on a
/// mount that does not answer, here and wherever this folder takes a path: see Reachability.
[[nodiscard]] Result<FileStatus> statusOf(const std::string& path);
/// The same for a name relative to an open folder.
[[nodiscard]] Result<FileStatus> statusAt(int folder, const char* name);
[[nodiscard]] Result<FileStatus> statusOfOpen(int fd);

/// Whether the name itself exists, whatever a link of that name points to.
[[nodiscard]] bool exists(const std::string& path);
[[nodiscard]] bool isRealFolder(const std::string& path);

/// Whether the user may move this entry to another folder: the parent is writable and searchable; in a sticky
/// parent the user owns the entry or the parent; a folder must itself be writable, since moving it rewrites
/// its ".."; the entry is no mount point. False for what is missing.
[[nodiscard]] bool isDeletable(const std::string& path);
/// Whether the user may write to what the path names (links are followed, as when writing).
[[nodiscard]] bool isWritable(const std::string& path);

} // namespace orlen

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What a mounted file system is to a clean-up.
enum class MountClass {
    local,     ///< a disk of this machine: ext4, btrfs, xfs and their like
    removable, ///< vfat, exfat, ntfs, fuseblk: measured when asked for, never walked
    foreign,   ///< network, FUSE or pseudo: never entered; a dead server blocks every call
};

struct Mount {
    std::uint64_t id = 0;         ///< as in FileStatus::mount
    std::string point;            ///< absolute path, octal escapes decoded
    std::string type;             ///< "ext4", "nfs4", "fuse.sshfs", …
    std::string source;           ///< device or server, escapes decoded
    bool keepsAccessTimes = true; ///< false on a mount with "noatime"
    MountClass kind = MountClass::local;

    friend bool operator==(const Mount&, const Mount&) = default;
};

/// The mounted file systems at one moment. Immutable after it was read; any thread.
class MountTable {
public:
    /// Reads the kernel's table ("/proc/self/mountinfo"); malformed lines are skipped. Empty when it cannot
    /// be read. Blocks only on that file.
    [[nodiscard]] static MountTable read(const std::string& file);

    /// In the kernel's order: of two mounts on one point the later hides the earlier.
    [[nodiscard]] const std::vector<Mount>& mounts() const { return m_mounts; }
    /// The mount with this number; null when unknown.
    [[nodiscard]] const Mount* byId(std::uint64_t id) const;
    /// The mount that holds a path by its text: the visible one with the longest point; null when there is
    /// none.
    [[nodiscard]] const Mount* holding(std::string_view path) const;
    /// The visible mounts strictly below a folder, by point.
    [[nodiscard]] std::vector<const Mount*> below(std::string_view folder) const;
    /// Whether two paths lie on the same file system: same type and source, so that the subvolumes of one
    /// btrfs count as one although their device numbers differ.
    [[nodiscard]] bool isSameFileSystem(std::string_view a, std::string_view b) const;

    [[nodiscard]] static MountClass classify(std::string_view type);
    /// Whether a call on a file system of this type may wait for a server or a program that is gone. True for
    /// what is not known: the disks of this machine and what the kernel itself makes up are.
    [[nodiscard]] static bool mayNotAnswer(std::string_view type);

private:
    std::vector<Mount> m_mounts;
    std::map<std::string, std::size_t, std::less<>> m_visible; ///< point to place in m_mounts
    std::map<std::uint64_t, std::size_t> m_byId;
};

} // namespace orlen

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// How a clean-up treats a mounted file system.
enum class MountClass {
    local,     ///< a disk of this machine: ext4, btrfs, xfs and so on
    removable, ///< vfat, exfat, ntfs, fuseblk: measured on request, never walked
    foreign,   ///< network, FUSE or pseudo: never entered, since a dead server blocks every call
};

struct Mount {
    std::uint64_t id = 0;         ///< as in FileStatus::mount
    std::string point;            ///< absolute path
    std::string type;             ///< "ext4", "nfs4", "fuse.sshfs", …
    std::string source;           ///< device or server
    bool keepsAccessTimes = true; ///< false on a mount with "noatime"
    MountClass kind = MountClass::local;

    friend bool operator==(const Mount&, const Mount&) = default;
};

/// The mounted file systems at one moment. Immutable; any thread.
class MountTable {
public:
    /// Reads a table in the form of "/proc/self/mountinfo"; malformed lines are skipped. Empty if it cannot
    /// be read.
    [[nodiscard]] static MountTable read(const std::string& file);

    /// In the kernel's order: a later mount hides an earlier one on the same point.
    [[nodiscard]] const std::vector<Mount>& mounts() const { return m_mounts; }
    /// The mount with this id; null if unknown.
    [[nodiscard]] const Mount* byId(std::uint64_t id) const;
    /// The visible mount a path lies on, judged by its text; null if there is none.
    [[nodiscard]] const Mount* holding(std::string_view path) const;
    /// The visible mounts strictly below a folder, sorted by point.
    [[nodiscard]] std::vector<const Mount*> below(std::string_view folder) const;
    /// Whether two paths lie on the same file system. Compares type and source, since the subvolumes of one
    /// btrfs have different device numbers.
    [[nodiscard]] bool isSameFileSystem(std::string_view a, std::string_view b) const;

    [[nodiscard]] static MountClass classify(std::string_view type);
    /// Whether a call on a file system of this type may wait for a server or program that is gone. True for
    /// unknown types; false for local disks and what the kernel itself provides.
    [[nodiscard]] static bool mayNotAnswer(std::string_view type);

private:
    std::vector<Mount> m_mounts;
    std::map<std::string, std::size_t, std::less<>> m_visible; ///< point to place in m_mounts
    std::map<std::uint64_t, std::size_t> m_byId;
};

} // namespace orlen

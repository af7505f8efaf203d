#include "platform/files/MountTable.h"

#include "platform/files/FileContent.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <optional>
#include <span>

namespace orlen {

namespace {

constexpr std::size_t kTableLimit = 16UL * 1024 * 1024;

// A trailing star stands for any further text.
constexpr std::string_view kLocalTypes[] = {"ext2", "ext3",     "ext4", "xfs",    "btrfs",   "zfs",
                                            "f2fs", "bcachefs", "jfs",  "nilfs2", "reiserfs"};
constexpr std::string_view kRemovableTypes[] = {"vfat", "exfat", "msdos", "ntfs*", "fuseblk", "hfs*", "udf"};
/// Foreign, but nobody else has to answer for them.
constexpr std::string_view kAnsweringTypes[] = {
    "binder",   "binfmt_misc", "bpf",    "cgroup*", "configfs",  "debugfs", "devpts",     "devtmpfs",
    "ecryptfs", "efivarfs",    "erofs",  "fusectl", "hugetlbfs", "iso9660", "mqueue",     "nsfs",
    "overlay",  "proc",        "pstore", "ramfs",   "rootfs",    "romfs",   "securityfs", "selinuxfs",
    "smackfs",  "squashfs",    "sysfs",  "tmpfs",   "tracefs",   "aufs"};

bool isAmong(std::string_view type, std::span<const std::string_view> forms)
{
    return std::any_of(forms.begin(), forms.end(), [&](std::string_view form) {
        if (!form.ends_with('*'))
            return type == form;
        return type.starts_with(form.substr(0, form.size() - 1));
    });
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

/// The kernel writes spaces, tabs, newlines and backslashes as a backslash and three octal digits.
std::string unescaped(std::string_view text)
{
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view digits = text.substr(at + 1, 3);
        const bool isEscape = text[at] == '\\' && digits.size() == 3 && digits[0] <= '3' &&
                              std::all_of(digits.begin(), digits.end(), isOctal);
        if (!isEscape) {
            plain.push_back(text[at]);
            continue;
        }
        plain.push_back(
            static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0')));
        at += digits.size();
    }
    return plain;
}

/// The pieces between the separators, empty ones included: a file system may have an empty source.
std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (std::size_t start = 0;;) {
        const std::size_t end = text.find(separator, start);
        parts.push_back(text.substr(start, end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

/// "36 35 98:0 /subtree /point rw,noatime master:1 - ext3 /dev/root rw": any number of fields before the
/// dash.
std::optional<Mount> parseLine(std::string_view line)
{
    constexpr std::size_t kFixedFields = 6;
    const auto fields = split(line, ' ');
    if (fields.size() < kFixedFields + 3)
        return std::nullopt;
    const auto dash = std::find(fields.begin() + kFixedFields, fields.end(), "-");
    if (fields.end() - dash < 3)
        return std::nullopt;

    Mount mount;
    const std::string_view number = fields[0];
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), mount.id);
    if (error != std::errc() || end != number.data() + number.size() || !fields[4].starts_with('/'))
        return std::nullopt;
    mount.subtree = unescaped(fields[3]);
    mount.point = unescaped(fields[4]);
    mount.type = unescaped(dash[1]);
    mount.source = unescaped(dash[2]);
    const auto options = split(fields[5], ',');
    mount.keepsAccessTimes = std::find(options.begin(), options.end(), "noatime") == options.end();
    mount.kind = MountTable::classify(mount.type);
    return mount;
}

} // namespace

MountTable MountTable::read(const std::string& file)
{
    // Relative to no folder: by path it would first be judged by the very table that is about to be read.
    const auto text = readHeadAt(AT_FDCWD, file.c_str(), kTableLimit);
    return text ? parse(*text) : MountTable();
}

MountTable MountTable::parse(std::string_view text)
{
    MountTable table;
    for (const std::string_view line : split(text, '\n')) {
        auto mount = parseLine(line);
        if (!mount)
            continue;
        const std::size_t place = table.m_mounts.size();
        table.m_visible[mount->point] = place;
        table.m_byId[mount->id] = place;
        table.m_mounts.push_back(std::move(*mount));
    }
    return table;
}

const Mount* MountTable::byId(std::uint64_t id) const
{
    const auto found = m_byId.find(id);
    return found == m_byId.end() ? nullptr : &m_mounts[found->second];
}

const Mount* MountTable::holding(std::string_view path) const
{
    while (!path.empty()) {
        if (const auto found = m_visible.find(path); found != m_visible.end())
            return &m_mounts[found->second];
        if (path == "/")
            break;
        path = PathText::parent(path);
    }
    return nullptr;
}

std::vector<const Mount*> MountTable::below(std::string_view folder) const
{
    std::vector<const Mount*> found;
    const std::string start = PathText::join(folder, "");
    for (auto it = m_visible.upper_bound(start); it != m_visible.end() && it->first.starts_with(start); ++it)
        found.push_back(&m_mounts[it->second]);
    return found;
}

bool MountTable::isSameFileSystem(std::string_view a, std::string_view b) const
{
    const Mount* first = holding(a);
    const Mount* second = holding(b);
    if (first == nullptr || second == nullptr)
        return false;
    if (first == second)
        return true;
    // The source of a pseudo file system is only a word: every tmpfs may be called "tmpfs".
    return first->kind != MountClass::foreign && first->type == second->type &&
           first->source == second->source;
}

MountClass MountTable::classify(std::string_view type)
{
    if (isAmong(type, kLocalTypes))
        return MountClass::local;
    return isAmong(type, kRemovableTypes) ? MountClass::removable : MountClass::foreign;
}

bool MountTable::mayNotAnswer(std::string_view type)
{
    // A program of this machine serves this one, and may hang like any other.
    if (type == "fuseblk")
        return true;
    return classify(type) == MountClass::foreign && !isAmong(type, kAnsweringTypes);
}

} // namespace orlen

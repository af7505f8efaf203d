#include "platform/files/MountTable.h"

#include "platform/text/PathText.h"

#include <libmount.h>

#include <algorithm>
#include <memory>
#include <span>
#include <utility>

namespace orlen {

namespace {

// A trailing star matches any suffix.
constexpr std::string_view kLocalTypes[] = {"ext2", "ext3",     "ext4", "xfs",    "btrfs",   "zfs",
                                            "f2fs", "bcachefs", "jfs",  "nilfs2", "reiserfs"};
constexpr std::string_view kRemovableTypes[] = {"vfat", "exfat", "msdos", "ntfs*", "fuseblk", "hfs*", "udf"};
/// Foreign, but no server or program is behind them.
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

struct TableDeleter {
    void operator()(libmnt_table* table) const { mnt_unref_table(table); }
};
struct IteratorDeleter {
    void operator()(libmnt_iter* iterator) const { mnt_free_iter(iterator); }
};

std::string textOrEmpty(const char* text)
{
    return text == nullptr ? std::string() : std::string(text);
}

Mount mountFrom(libmnt_fs* entry)
{
    Mount mount;
    mount.id = static_cast<std::uint64_t>(mnt_fs_get_id(entry));
    mount.point = textOrEmpty(mnt_fs_get_target(entry));
    mount.type = textOrEmpty(mnt_fs_get_fstype(entry));
    mount.source = textOrEmpty(mnt_fs_get_source(entry));
    const std::string options = textOrEmpty(mnt_fs_get_vfs_options(entry));
    mount.keepsAccessTimes = mnt_optstr_get_option(options.c_str(), "noatime", nullptr, nullptr) != 0;
    mount.kind = MountTable::classify(mount.type);
    return mount;
}

} // namespace

MountTable MountTable::read(const std::string& file)
{
    MountTable table;
    const std::unique_ptr<libmnt_table, TableDeleter> entries(mnt_new_table_from_file(file.c_str()));
    const std::unique_ptr<libmnt_iter, IteratorDeleter> place(mnt_new_iter(MNT_ITER_FORWARD));
    libmnt_fs* entry = nullptr;
    while (entries && place && mnt_table_next_fs(entries.get(), place.get(), &entry) == 0) {
        Mount mount = mountFrom(entry);
        if (!mount.point.starts_with('/'))
            continue;
        const std::size_t index = table.m_mounts.size();
        table.m_visible[mount.point] = index;
        table.m_byId[mount.id] = index;
        table.m_mounts.push_back(std::move(mount));
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
    // The source of a pseudo file system is just a word: every tmpfs may be called "tmpfs".
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
    // Served by a program on this machine, which may hang like any other.
    if (type == "fuseblk")
        return true;
    return classify(type) == MountClass::foreign && !isAmong(type, kAnsweringTypes);
}

} // namespace orlen

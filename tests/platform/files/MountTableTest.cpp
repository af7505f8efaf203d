#include "platform/files/MountTable.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

constexpr const char* kDesktop = "22 27 0:21 / /proc rw,relatime - proc proc rw\n"
                                 "27 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw,errors=remount-ro\n"
                                 "40 27 8:3 / /home rw,noatime,nodev shared:2 master:7 - btrfs /dev/sda3 rw\n"
                                 "41 40 8:3 /@vm /home/u/vm rw,nodiratime - btrfs /dev/sda3 rw\n"
                                 "42 40 0:55 / /home/u/my\\040nas\\134x rw - fuse.sshfs me@nas:/a\\040b rw\n"
                                 "43 40 0:56 / /home/u/stick rw - vfat /dev/sdb1 rw\n"
                                 "44 40 0:57 / /home/u/shelf rw -  - tmpfs  rw\n";

MountTable tableOf(const std::string& text)
{
    const TempHome home;
    return MountTable::read(home.file("mountinfo", text));
}

std::vector<std::string> pointsBelow(const MountTable& table, std::string_view folder)
{
    std::vector<std::string> points;
    for (const Mount* mount : table.below(folder))
        points.push_back(mount->point);
    return points;
}

TEST(MountTableTest, lineIsTakenApart)
{
    const MountTable table = tableOf(kDesktop);
    const Mount* nas = table.byId(42);
    ASSERT_NE(nas, nullptr);
    EXPECT_EQ(*nas, (Mount{42, "/home/u/my nas\\x", "fuse.sshfs", "me@nas:/a b", true, MountClass::foreign}));
    EXPECT_FALSE(table.byId(40)->keepsAccessTimes);
    EXPECT_TRUE(table.byId(41)->keepsAccessTimes) << "nodiratime leaves the access times of files";
    EXPECT_EQ(table.byId(99), nullptr);
}

TEST(MountTableTest, onlyWhatNobodyElseServesIsSureToAnswer)
{
    for (const char* type : {"nfs", "nfs4", "cifs", "smb3", "9p", "ceph", "afs", "fuse", "fuse.sshfs",
                             "fuseblk", "autofs", "virtiofs", "of tomorrow"})
        EXPECT_TRUE(MountTable::mayNotAnswer(type)) << type;
    for (const char* type : {"ext4", "btrfs", "zfs", "vfat", "ntfs3", "proc", "sysfs", "tmpfs", "devtmpfs",
                             "cgroup2", "overlay", "squashfs", "iso9660", "ecryptfs"})
        EXPECT_FALSE(MountTable::mayNotAnswer(type)) << type;
}

TEST(MountTableTest, malformedLinesAreSkipped)
{
    const MountTable table = tableOf("8 1 8:3 / /a rw - xfs /dev/a rw\n"
                                     "\n"
                                     "garbage\n"
                                     "7x 1 8:2 / /b rw - ext4 /dev/b rw\n"
                                     "7 1 8:2 / b rw - ext4 /dev/b rw\n"
                                     "7 1 8:2 / /b rw shared:1 ext4 /dev/b rw\n"
                                     "7 1 8:2 / /b rw -\n"
                                     "9 1 8:4 / /c rw - xfs /dev/c rw\n");
    EXPECT_THAT(pointsBelow(table, "/"), testing::ElementsAre("/a", "/c"));
}

TEST(MountTableTest, longestVisiblePointHoldsAPath)
{
    const MountTable table = tableOf(kDesktop);
    const struct {
        const char* path;
        std::uint64_t id;
    } cases[] = {{"/", 27},           {"/usr/bin", 27},     {"/home", 40},       {"/homes/x", 27},
                 {"/home/u/vm", 41},  {"/home/u/vm/a", 41}, {"/home/u/vmx", 40}, {"/home/u/stick/a/b", 43},
                 {"/procedures", 27}, {"/proc/1", 22}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        ASSERT_NE(table.holding(c.path), nullptr);
        EXPECT_EQ(table.holding(c.path)->id, c.id);
    }
    EXPECT_EQ(table.holding(""), nullptr);
    EXPECT_EQ(MountTable().holding("/a"), nullptr);
}

TEST(MountTableTest, laterMountHidesTheEarlierOnTheSamePoint)
{
    const MountTable table = tableOf("1 0 0:1 / /a rw - autofs auto rw\n2 1 0:2 / /a rw - nfs4 s:/x rw\n");
    EXPECT_EQ(table.holding("/a/b")->type, "nfs4");
    EXPECT_EQ(pointsBelow(table, "/"), std::vector<std::string>{"/a"});
    EXPECT_EQ(table.mounts().size(), 2U);
}

TEST(MountTableTest, onlyMountsStrictlyBelowAreListed)
{
    const MountTable table = tableOf(kDesktop);
    EXPECT_THAT(pointsBelow(table, "/home/u"),
                testing::ElementsAre("/home/u/my nas\\x", "/home/u/shelf", "/home/u/stick", "/home/u/vm"));
    EXPECT_THAT(pointsBelow(table, "/home/u/vm"), testing::IsEmpty());
    EXPECT_THAT(pointsBelow(table, "/ho"), testing::IsEmpty());
    EXPECT_EQ(pointsBelow(table, "/").size(), 6U) << "all but the root itself";
}

TEST(MountTableTest, subvolumesShareAFileSystemAndPseudoOnesDoNot)
{
    const MountTable table = tableOf(std::string(kDesktop) + "50 27 0:60 / /run rw - tmpfs tmpfs rw\n"
                                                             "51 27 0:61 / /tmp rw - tmpfs tmpfs rw\n");
    EXPECT_TRUE(table.isSameFileSystem("/home/u", "/home/u/vm/x"));
    EXPECT_FALSE(table.isSameFileSystem("/usr", "/home"));
    EXPECT_TRUE(table.isSameFileSystem("/run/a", "/run/b"));
    EXPECT_FALSE(table.isSameFileSystem("/run", "/tmp"));
    EXPECT_FALSE(MountTable().isSameFileSystem("/", "/")) << "nothing is known";
}

TEST(MountTableTest, typesAreClassified)
{
    for (const char* type : {"ext2", "ext4", "btrfs", "xfs", "zfs", "f2fs", "bcachefs", "reiserfs"})
        EXPECT_EQ(MountTable::classify(type), MountClass::local) << type;
    for (const char* type : {"vfat", "exfat", "ntfs", "ntfs3", "fuseblk", "hfsplus", "udf", "msdos"})
        EXPECT_EQ(MountTable::classify(type), MountClass::removable) << type;
    for (const char* type : {"nfs", "nfs4", "cifs", "smb3", "9p", "ceph", "fuse", "fuse.rclone", "fuseblk2",
                             "autofs", "overlay", "tmpfs", "squashfs", "ext5", "zfsx", "", "never-heard-of"})
        EXPECT_EQ(MountTable::classify(type), MountClass::foreign) << type;
}

TEST(MountTableTest, kernelsOwnTableIsRead)
{
    const MountTable table = MountTable::read("/proc/self/mountinfo");
    const Mount* root = table.holding("/");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->point, "/");
    const TempHome home;
    EXPECT_TRUE(MountTable::read(home.path("missing")).mounts().empty());
}

} // namespace
} // namespace orlen

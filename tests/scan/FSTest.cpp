#include "scan/FS.h"

#include "platform/desktop/RecentDocuments.h"
#include "platform/files/MountTable.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <chrono>
#include <unistd.h>

namespace orlen {
namespace {

using namespace std::chrono_literals;

TEST(FSTest, entryHasSizeDateAndNote)
{
    const TempHome home;
    const std::string path = home.fileOfSize("a", 4096);
    const TimePoint time = TimePoint(std::chrono::sys_days(std::chrono::year(2024) / 2 / 3)) + 4h;
    TempHome::setTimes(path, time, time);
    const FileEntry entry = FS::entry(path, {Message::verbatim("a note")});
    EXPECT_EQ(entry, (FileEntry{path,
                                4096,
                                time,
                                std::nullopt,
                                std::nullopt,
                                {Message::verbatim("a note")},
                                FileStamp::of(statusOf(path).value())}));
    EXPECT_EQ(FS::entry(home.path("missing"), {}).modified, std::nullopt);
    EXPECT_TRUE(FS::entry(path, {}).notes.empty());
}

TEST(FSTest, aFolderThatFreesNoticeablyLessThanItHoldsSaysSo)
{
    const TempHome home;
    for (const char* folder : {"most", "some"})
        home.fileOfSize(folder + std::string("/own"), 1'003'520);
    home.fileOfSize("most/linked", 98'304);
    home.fileOfSize("some/linked", 122'880);
    home.folder("project");
    for (const char* folder : {"most", "some"})
        ASSERT_EQ(::link(home.path(folder + std::string("/linked")).c_str(),
                         home.path(std::string("project/") + folder).c_str()),
                  0);
    const std::vector<std::string> paths{home.path("most"), home.path("some"), home.path("some/linked")};
    const std::vector<FileEntry> entries = FS::entries(paths, {Message::verbatim("a note")});
    EXPECT_EQ(entries[0].size, 1'003'520);
    EXPECT_EQ(noteOf(entries[0]).base(), "a note") << "a tenth less is not worth a word";
    EXPECT_EQ(entries[1].size, 1'003'520);
    EXPECT_EQ(noteOf(entries[1]).base(), "a note · Frees 1 MB: the rest is linked into projects");
    EXPECT_EQ(entries[2].size, 0);
    EXPECT_EQ(noteOf(entries[2]).base(), "a note · Frees nothing: the file has another name elsewhere");
}

TEST(FSTest, lastOpenedIsTheLaterOfAccessAndVisit)
{
    const TempHome home;
    const std::string path = home.file("a b");
    const TimePoint day = std::chrono::sys_days(std::chrono::year(2024) / 6 / 15);
    TempHome::setTimes(path, day, day - 240h);
    const auto visited = [&](const char* date) {
        return RecentDocuments::parse("<xbel><bookmark href=\"file://" + home.path("a%20b") +
                                      "\" visited=\"" + date + "\"/></xbel>");
    };
    const MountTable keeping;
    EXPECT_EQ(FS::lastOpened(path, RecentDocuments(), keeping), day);
    EXPECT_EQ(FS::lastOpened(path, visited("2024-06-10T00:00:00Z"), keeping), day);
    EXPECT_EQ(FS::lastOpened(path, visited("2024-06-20T00:00:00Z"), keeping), day + 120h);
    EXPECT_EQ(FS::lastOpened(home.path("missing"), RecentDocuments(), keeping), std::nullopt);

    const std::string number = std::to_string(statusOf(path).value().mount);
    const MountTable noatime =
        MountTable::read(home.file("mountinfo", number + " 0 0:1 / / rw,noatime - ext4 /dev/a rw\n"));
    EXPECT_EQ(FS::lastOpened(path, RecentDocuments(), noatime), day - 240h) << "the modification time";
    EXPECT_EQ(FS::lastOpened(path, visited("2024-06-10T00:00:00Z"), noatime), day - 120h) << "the visit";
}

} // namespace
} // namespace orlen

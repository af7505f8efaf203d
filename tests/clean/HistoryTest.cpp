#include "clean/History.h"

#include "clean/Cleaner.h"
#include "clean/Journal.h"
#include "clean/Persist.h"
#include "clean/Reserve.h"
#include "clean/Safety.h"
#include "clean/TrashProbe.h"
#include "platform/files/OwnFile.h"
#include "support/PrivateMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using testing::IsEmpty;

Cleaner::Cleaned cleaned(const std::vector<std::string>& paths)
{
    std::vector<FileEntry> entries;
    for (const std::string& path : paths)
        entries.push_back({path, 4096, {}, {}, {}, {}});
    return Cleaner::run(std::move(entries), "Test", [](int, int, const std::string&) {});
}

class HistoryTest : public testing::Test {
protected:
    TempHome home;
    std::vector<CleanRecord> history;
    std::string folder = home.path(".local/share/Orlen");
};

} // namespace

TEST_F(HistoryTest, nothingMovesThatCannotBeWrittenDown)
{
    const std::string path = home.file("a");
    (void)home.file(folder + "/journal"); // where a folder belongs
    const auto refused = cleaned({path});
    EXPECT_TRUE(refused.refusal.has_value());
    EXPECT_EQ(refused.record.failed, 1);
    EXPECT_TRUE(TempHome::exists(path));
    EXPECT_TRUE(History::add(history, refused.record).ok());
    EXPECT_THAT(history, IsEmpty());
}

TEST_F(HistoryTest, aRecordThatCouldNotBeSavedIsFoundAtTheNextStart)
{
    const auto done = cleaned({home.file("a"), home.file("b/c")});
    (void)home.folder(folder + "/history.json"); // no file can be put in its place
    EXPECT_FALSE(History::add(history, done.record).ok());
    EXPECT_TRUE(History::isUnfinished());
    std::filesystem::remove(folder + "/history.json");

    history = Persist::loadHistory().records;
    EXPECT_TRUE(History::recover(history));
    ASSERT_EQ(history.size(), 1U);
    EXPECT_EQ(history.front().items, done.record.items);
    EXPECT_EQ(history.front().id, done.record.id);
    EXPECT_FALSE(History::recover(history)) << "there is nothing left to do";
    EXPECT_EQ(Cleaner::restore(history.front()).restored, 2);
}

TEST_F(HistoryTest, whatLiesOnADiskThatIsNotThereIsFoundWhenItIsBack)
{
    PrivateMounts mounts;
    if (!mounts.obstacle().empty() || !mounts.bind(home.folder("behind"), home.folder("disk")))
        GTEST_SKIP() << "nothing can be mounted here";
    Safety::refresh();
    if (Safety::isProtected(home.path("disk/in/b")))
        GTEST_SKIP() << "the temporary folder's file system counts as foreign";
    const auto done = cleaned({home.file("a"), home.file("disk/in/b")}); // and then ends without a record
    ASSERT_EQ(done.record.items.size(), 2U);
    const std::string aside = home.path("behind-aside");
    ASSERT_EQ(std::rename(home.path("behind/in").c_str(), aside.c_str()), 0);
    ASSERT_EQ(std::rename(home.path("behind/.Trash-" + std::to_string(::geteuid())).c_str(),
                          (aside + "-trash").c_str()),
              0);
    EXPECT_TRUE(History::recover(history));
    EXPECT_EQ(history.front().items.size(), 1U);
    EXPECT_TRUE(History::isUnfinished());

    ASSERT_EQ(std::rename(aside.c_str(), home.path("behind/in").c_str()), 0);
    ASSERT_EQ(std::rename((aside + "-trash").c_str(),
                          home.path("behind/.Trash-" + std::to_string(::geteuid())).c_str()),
              0);
    EXPECT_TRUE(History::recover(history));
    EXPECT_EQ(history.size(), 1U);
    EXPECT_EQ(history.front().items, done.record.items);
    EXPECT_FALSE(History::isUnfinished());
}

TEST_F(HistoryTest, aCleanUpThatMovedNothingLeavesNothingBehind)
{
    EXPECT_TRUE(History::add(history, cleaned({home.path("gone"), home.path("Documents")}).record).ok());
    EXPECT_THAT(listNames(folder + "/journal"), IsEmpty());
}

TEST_F(HistoryTest, journalsGoWithTheLastItemThatIsPutBack)
{
    EXPECT_TRUE(History::add(history, cleaned({home.file("a"), home.file("b")}).record).ok());
    (void)home.file("b", "in the way");
    EXPECT_TRUE(History::update(history, Cleaner::restore(history.front()).record).ok());
    EXPECT_EQ(listNames(folder + "/journal").size(), 1U);
    std::filesystem::remove(home.path("b"));
    EXPECT_TRUE(History::update(history, Cleaner::restore(history.front()).record).ok());
    EXPECT_THAT(listNames(folder + "/journal"), IsEmpty());
}

TEST_F(HistoryTest, whatKilledWritingsLeftBehindIsRemoved)
{
    const std::string gone = ".new-4999999-3"; // beyond the largest number of a process
    const std::string alive = ".new-" + std::to_string(::getpid()) + "-3";
    for (const char* name : {"/history.json", "/journal/x.cleaning.json"})
        (void)home.file(folder + name + gone), (void)home.file(folder + name + alive);
    for (const char* name : {"/.new-4999999-3", "/a.new-4999999-", "/a.new-49 -3", "/a.new-4999999-3x"})
        (void)home.file(folder + name);
    History::recover(history);
    EXPECT_FALSE(TempHome::exists(folder + "/history.json" + gone));
    EXPECT_FALSE(TempHome::exists(folder + "/journal/x.cleaning.json" + gone));
    EXPECT_EQ(listNames(folder).size(), 6U);
}

TEST_F(HistoryTest, brokenJournalsAreNoObstacle)
{
    const std::string id = Uuid::random().text();
    struct Case {
        const char* name;
        std::string text;
    };
    const Case cases[] = {
        {"empty", ""},
        {"an array", "[]"},
        {"another clean-up's", Journal{Uuid::random(), {}, "x", {}}.text()},
        {"odd items", R"({"id":")" + id + R"(","started":"2025-03-01T09:30:00Z","title":"x","items":[1,{},)" +
                          R"({"path":"/a","size":-1,"device":0,"inode":1}]})"},
        {"nested", std::string(100'000, '[')},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        (void)home.file(folder + "/journal/" + id + ".cleaning.json", c.text);
        EXPECT_FALSE(History::recover(history));
        EXPECT_TRUE(cleaned({home.file("a")}).record.failed == 0);
        History::recover(history);
    }
    const Journal journal{Uuid::random(),
                          *timeFromIso("2025-03-01T09:30:00Z"),
                          "t",
                          {{"/a", 1, 2, {3, TimePoint(std::chrono::nanoseconds(4))}}, {"/b", 1, 2, {3, {}}}}};
    EXPECT_EQ(Journal::parse(journal.text()), journal);
}

TEST_F(HistoryTest, theReserveLetsACleanUpWorkOnAFullDisk)
{
    PrivateMounts mounts;
    if (!mounts.obstacle().empty() || !mounts.memory(8'000'000, home.path()))
        GTEST_SKIP() << "nothing can be mounted here";
    Safety::refresh();
    std::vector<std::string> paths;
    for (int item = 0; item < 12; ++item)
        paths.push_back(home.file("in-" + std::to_string(item) + "/item", std::string(5000, 'x')));
    const auto fill = [&] { EXPECT_EQ(OwnFile::fill(home.path("filler"), 80'000'000).error(), ENOSPC); };
    (void)home.folder(folder);

    fill();
    const auto refused = cleaned(paths);
    EXPECT_EQ(refused.refusal, FailureReason::full) << "without a reserve nothing can be written down";
    EXPECT_TRUE(TempHome::exists(paths.front()));

    std::filesystem::resize_file(home.path("filler"), 0);
    Reserve::refill();
    const std::int64_t whole = Reserve::size();
    ASSERT_GT(whole, 0);
    fill();
    const auto done = cleaned(paths);
    EXPECT_EQ(done.record.failed, 0);
    EXPECT_TRUE(History::add(history, done.record).ok());
    EXPECT_LT(Reserve::size(), whole);
    EXPECT_EQ(Persist::loadHistory().records.size(), 1U);
    fill();
    EXPECT_EQ(Cleaner::restore(history.front()).restored, 12);

    std::filesystem::remove(home.path("filler"));
    Reserve::refill();
    EXPECT_EQ(Reserve::size(), whole);
}

} // namespace orlen

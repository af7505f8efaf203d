#include "clean/Cleaner.h"

#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <tuple>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using testing::ElementsAre;
using testing::IsEmpty;

using Step = std::tuple<int, int, std::string>;

FileEntry entry(const std::string& path, std::int64_t size = 10)
{
    return {path, size, {}, {}, {}, {}};
}

class CleanerTest : public testing::Test {
protected:
    CleanRecord clean(std::vector<FileEntry> entries, std::stop_token stop = {})
    {
        steps.clear();
        return Cleaner::run(
            std::move(entries), "Test",
            [this](int index, int total, const std::string& name) { steps.emplace_back(index, total, name); },
            std::move(stop));
    }

    static std::vector<std::string> originals(const CleanRecord& record)
    {
        std::vector<std::string> paths;
        for (const TrashedItem& item : record.items)
            paths.push_back(item.original);
        return paths;
    }

    TempHome home;
    std::vector<Step> steps;
};

} // namespace

TEST_F(CleanerTest, dropsWhatIsNestedOrRepeatedAndReportsEachStep)
{
    (void)home.file("a/b");
    const CleanRecord record =
        clean({entry(home.path("a"), 7), entry(home.path("a/b")), entry(home.path("a"))});
    EXPECT_THAT(originals(record), ElementsAre(home.path("a")));
    EXPECT_EQ(record.failed, 0);
    EXPECT_EQ(record.freed(), 7);
    EXPECT_EQ(record.title, "Test");
    EXPECT_THAT(steps, ElementsAre(Step{0, 1, "a"}, Step{1, 1, ""}));
    EXPECT_TRUE(TempHome::exists(record.items.front().trashed));
}

TEST_F(CleanerTest, aChildBehindItsParentsSiblingGoesAlongAndCountsAsFailed)
{
    (void)home.file("a/b");
    (void)home.file("a b");
    const CleanRecord record =
        clean({entry(home.path("a/b")), entry(home.path("a b")), entry(home.path("a"))});
    EXPECT_THAT(originals(record), ElementsAre(home.path("a"), home.path("a b")));
    EXPECT_EQ(record.failed, 1);
    EXPECT_THAT(steps, ElementsAre(Step{0, 3, "a"}, Step{1, 3, "a b"}, Step{2, 3, "b"}, Step{3, 3, ""}));
}

TEST_F(CleanerTest, countsWhatItMayNotOrCannotMove)
{
    (void)home.file(".ssh/id");
    (void)home.file("Documents/letter");
    (void)home.file("\xFF name");
    (void)home.file("locked/file");
    TempHome::setMode(home.path("locked"), 0555);
    const CleanRecord record =
        clean({entry(home.path(".ssh/id")), entry(home.path("Documents")), entry(home.path("\xFF name")),
               entry(home.path("locked/file")), entry(home.path("gone")), entry(""), entry("/")});
    EXPECT_THAT(record.items, IsEmpty());
    EXPECT_EQ(record.failed, 7);
    for (const char* name : {".ssh/id", "Documents/letter", "\xFF name", "locked/file"})
        EXPECT_TRUE(TempHome::exists(home.path(name))) << name;
    EXPECT_EQ(clean({entry(home.path()), entry(home.path("locked/file"))}).failed, 1);
}

TEST_F(CleanerTest, movesNothingWithoutAUsableHome)
{
    const std::string path = home.file("a");
    const CleanRecord cleaned = clean({entry(path)});
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_EQ(Cleaner::restore(cleaned).restored, 0);
    (void)home.file("b");
    EXPECT_EQ(clean({entry(home.path("b"))}).failed, 1);
    EXPECT_TRUE(TempHome::exists(home.path("b")));
}

TEST_F(CleanerTest, aStopLetsTheItemInHandFinishAndCountsNothingElse)
{
    for (const char* name : {"a", "b", "c", "d"})
        (void)home.file(name);
    std::stop_source source;
    const CleanRecord record = Cleaner::run(
        {entry(home.path("a")), entry(home.path("b")), entry(home.path("c")), entry(home.path("d"))}, "Test",
        [&](int, int, const std::string& name) {
            if (name == "b")
                source.request_stop();
        },
        source.get_token());
    EXPECT_THAT(originals(record), ElementsAre(home.path("a"), home.path("b")));
    EXPECT_EQ(record.failed, 0);
    EXPECT_TRUE(TempHome::exists(home.path("c")) && TempHome::exists(home.path("d")));
}

TEST_F(CleanerTest, recordsWhenItFinishedAndAnIdentityOfItsOwn)
{
    const TimePoint before = std::chrono::system_clock::now();
    const CleanRecord first = clean({});
    EXPECT_GE(first.date, before);
    EXPECT_LE(first.date, std::chrono::system_clock::now());
    EXPECT_NE(first.id, clean({}).id);
    EXPECT_THAT(steps, ElementsAre(Step{0, 0, ""}));
}

TEST_F(CleanerTest, restoresEachItemOnce)
{
    (void)home.file("a", "first");
    (void)home.file("deep/folder/b", "second");
    const CleanRecord cleaned = clean({entry(home.path("a")), entry(home.path("deep"))});
    const auto back = Cleaner::restore(cleaned);
    EXPECT_EQ(back.restored, 2);
    EXPECT_EQ(back.failed, 0);
    EXPECT_TRUE(back.record.items[0].restored && back.record.items[1].restored);
    EXPECT_EQ(TempHome::content(home.path("deep/folder/b")), "second");
    const auto again = Cleaner::restore(back.record);
    EXPECT_EQ(again.restored + again.failed, 0);
    EXPECT_EQ(again.record, back.record);
}

TEST_F(CleanerTest, aRestoreThatFailsForSomeCanBeTriedAgain)
{
    (void)home.file("a", "old");
    (void)home.file("b");
    (void)home.file("c");
    CleanRecord cleaned = clean({entry(home.path("a")), entry(home.path("b")), entry(home.path("c"))});
    cleaned.items.push_back({home.path("d"), "", 1, false});
    (void)home.file("a", "new");                                 // taken
    ASSERT_EQ(std::remove(cleaned.items[1].trashed.c_str()), 0); // emptied by the user
    const auto back = Cleaner::restore(cleaned);
    EXPECT_EQ(back.restored, 1);
    EXPECT_EQ(back.failed, 3);
    EXPECT_EQ(TempHome::content(home.path("a")), "new");
    EXPECT_FALSE(back.record.items[0].restored);
    ASSERT_EQ(std::remove(home.path("a").c_str()), 0);
    EXPECT_EQ(Cleaner::restore(back.record).restored, 1);
    EXPECT_EQ(TempHome::content(home.path("a")), "old");
}

TEST_F(CleanerTest, aNameThatWasReusedAfterEmptyingIsNotRestored)
{
    CleanRecord cleaned = clean({entry(home.file("one/same"))});
    const TrashedItem& item = cleaned.items.front();
    ASSERT_EQ(std::remove(item.trashed.c_str()) + std::remove(infoFile(item.trashed).c_str()), 0);
    const CleanRecord later = clean({entry(home.file("two/same"))});
    ASSERT_EQ(later.items.front().trashed, item.trashed);
    EXPECT_EQ(Cleaner::restore(cleaned).failed, 1);
    EXPECT_FALSE(TempHome::exists(home.path("one/same")));

    // The same place again, long after: only the date tells the two apart.
    cleaned.items.front().original = home.path("two/same");
    cleaned.date -= std::chrono::hours(3);
    EXPECT_EQ(Cleaner::restore(cleaned).failed, 1);
    EXPECT_EQ(Cleaner::restore(later).restored, 1);
}

TEST_F(CleanerTest, noticesWhatBecameProtectedSinceTheClean)
{
    const CleanRecord cleaned = clean({entry(home.file("shared/a"))});
    (void)home.folder("shared/.stfolder"); // the folder is now mirrored to other devices
    EXPECT_EQ(Cleaner::restore(cleaned).failed, 1);
    (void)home.file("shared/b");
    EXPECT_EQ(clean({entry(home.path("shared/b"))}).failed, 1);
}

TEST_F(CleanerTest, anOverflowingSumStopsTheProgram)
{
    CleanRecord record;
    record.items = {{"a", "", INT64_MAX, false}, {"b", "", 0, true}};
    EXPECT_EQ(record.freed(), INT64_MAX);
    record.items[1].size = 1;
    EXPECT_DEATH((void)record.freed(), "64 bits");
}

} // namespace orlen

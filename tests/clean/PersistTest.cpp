#include "clean/Persist.h"

#include "platform/FileStatus.h"
#include "platform/Folder.h"
#include "platform/PathText.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PersistTest : public testing::Test {
protected:
    static CleanRecord record(const std::string& title)
    {
        CleanRecord record;
        record.id = Uuid::random();
        record.date = *timeFromIso("2025-03-01T09:30:00Z");
        record.title = title;
        record.items = {{"/home/b/a", "/t/a", 5, false}};
        return record;
    }

    TempHome home;
    std::string folder = home.path(".local/share/Orlen");
};

} // namespace

TEST_F(PersistTest, theFolderIsMadeForTheUserAloneEachTimeItIsAskedFor)
{
    EXPECT_EQ(Persist::dir(), folder);
    EXPECT_EQ(statusOf(folder).value().mode, 0700U);
    ASSERT_EQ(std::rename(folder.c_str(), home.path("aside").c_str()), 0);
    EXPECT_EQ(Persist::dir(), folder);
    EXPECT_TRUE(isRealFolder(folder));
}

TEST_F(PersistTest, theFolderFollowsTheDataFolder)
{
    TempHome::setVariable("XDG_DATA_HOME", home.path("my-data"));
    TempHome::reloadPlaces();
    (void)Persist::saveHistory({record("A")});
    EXPECT_TRUE(TempHome::exists(home.path("my-data/Orlen/history.json")));
}

TEST_F(PersistTest, listsComeBackInTheirOrderAndLeaveNothingBeside)
{
    const std::vector<CleanRecord> history{record("new"), record("old")};
    const std::vector<Snapshot> snapshots{{history[0].date, 1, 2, {{"apps", 1}}},
                                          {history[1].date, 3, 4, {}}};
    (void)Persist::saveHistory({});
    (void)Persist::saveHistory(history);
    Persist::saveSnapshots(snapshots);
    EXPECT_EQ(Persist::loadHistory(), history);
    EXPECT_EQ(Persist::loadSnapshots(), snapshots);
    auto names = listNames(folder);
    std::sort(names.begin(), names.end());
    EXPECT_THAT(names, ElementsAre("history.json", "scans.json"));
    EXPECT_EQ(TempHome::content(folder + "/history.json").find_first_of(" \n\t"), std::string::npos)
        << "compact";
}

TEST_F(PersistTest, aBadFileLoadsAsEmptyAndIsLeftAloneUntilTheNextSave)
{
    struct Case {
        const char* name;
        std::function<void(const std::string&)> prepare;
    };
    const Case cases[] = {
        {"missing", [](const std::string&) {}},
        {"empty", [&](const std::string& file) { (void)home.file(file, ""); }},
        {"malformed", [&](const std::string& file) { (void)home.file(file, "[{]"); }},
        {"not for reading", [&](const std::string& file) { TempHome::setMode(home.file(file, "[]"), 0); }},
        {"a link", [&](const std::string& file) { (void)home.link(file, home.file("elsewhere", "[]")); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string file = folder + "/history.json";
        c.prepare(file);
        const bool wasThere = TempHome::exists(file);
        EXPECT_THAT(Persist::loadHistory(), IsEmpty());
        EXPECT_EQ(TempHome::exists(file), wasThere);
        (void)Persist::saveHistory({record("A")});
        EXPECT_EQ(Persist::loadHistory().size(), 1U);
        ASSERT_EQ(std::remove(file.c_str()), 0);
    }
    EXPECT_EQ(TempHome::content(home.path("elsewhere")), "[]") << "a link's target is not written to";
}

TEST_F(PersistTest, aFailedSaveKeepsTheOldFile)
{
    (void)Persist::saveHistory({record("A")});
    TempHome::setMode(folder, 0500);
    (void)Persist::saveHistory({});
    EXPECT_EQ(Persist::loadHistory().size(), 1U);
    TempHome::setMode(folder, 0700);
    EXPECT_THAT(listNames(folder), ElementsAre("history.json"));
}

TEST_F(PersistTest, aFolderThatCannotBeMadeIsNoError)
{
    (void)home.file(".local/share", "in the way");
    (void)Persist::saveHistory({record("A")});
    EXPECT_THAT(Persist::loadHistory(), IsEmpty());
}

TEST_F(PersistTest, aNameThatIsNotTextDoesNotCostTheWholeHistory)
{
    CleanRecord odd = record("A");
    odd.items.front().trashed = "/t/\xFF";
    (void)Persist::saveHistory({odd, record("B")});
    const auto history = Persist::loadHistory();
    ASSERT_EQ(history.size(), 2U);
    EXPECT_EQ(history[0].items.front().trashed, "/t/\xEF\xBF\xBD");
}

} // namespace orlen

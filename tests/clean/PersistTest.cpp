#include "clean/Persist.h"

#include "clean/RecordJson.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/text/PathText.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <nlohmann/json.hpp>
#include <sys/resource.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

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

    static std::string historyText(const std::vector<CleanRecord>& records)
    {
        std::string text;
        for (const CleanRecord& record : records)
            text += (text.empty() ? "[" : ",") + RecordJson::encode(record).dump();
        return text + "]";
    }

    [[nodiscard]] std::vector<std::string> setAside() const
    {
        std::vector<std::string> names = listNames(folder);
        std::erase_if(names,
                      [](const std::string& name) { return !name.starts_with("history.unreadable-"); });
        return names;
    }

    TempHome home;
    std::string folder = home.path(".local/share/Orlen");
    std::string file = folder + "/history.json";
};

} // namespace

TEST_F(PersistTest, theFolderIsMadeForTheUserAloneWhenSomethingIsWritten)
{
    EXPECT_EQ(Persist::dir(), folder);
    EXPECT_THAT(Persist::loadHistory().records, IsEmpty());
    EXPECT_FALSE(TempHome::exists(home.path(".local"))) << "reading makes nothing";
    EXPECT_TRUE(Persist::saveHistory({}).ok());
    EXPECT_EQ(statusOf(folder).value().mode, 0700U);
    ASSERT_EQ(std::rename(folder.c_str(), home.path("aside").c_str()), 0);
    EXPECT_EQ(Persist::makeDir().value(), folder);
    EXPECT_TRUE(isRealFolder(folder));
}

TEST_F(PersistTest, nothingIsMadeInSomebodyElsesHome)
{
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_EQ(Persist::saveHistory({record("A")}).error(), EPERM);
    EXPECT_EQ(Persist::makeDir().error(), EPERM);
    EXPECT_THAT(listNames(home.path()), IsEmpty());
}

TEST_F(PersistTest, theFolderFollowsTheDataFolder)
{
    TempHome::setVariable("XDG_DATA_HOME", home.path("my-data"));
    TempHome::reloadPlaces();
    EXPECT_TRUE(Persist::saveHistory({record("A")}).ok());
    EXPECT_TRUE(TempHome::exists(home.path("my-data/Orlen/history.json")));
}

TEST_F(PersistTest, listsComeBackInTheirOrderAndLeaveNothingBeside)
{
    const std::vector<CleanRecord> history{record("new"), record("old")};
    const std::vector<Snapshot> snapshots{{history[0].date, 1, 2, {{"apps", 1}}},
                                          {history[1].date, 3, 4, {}}};
    EXPECT_TRUE(Persist::saveHistory({}).ok());
    EXPECT_TRUE(Persist::saveHistory(history).ok());
    EXPECT_TRUE(Persist::saveSnapshots(snapshots).ok());
    EXPECT_EQ(Persist::loadHistory().records, history);
    EXPECT_EQ(Persist::loadSnapshots().records, snapshots);
    auto names = listNames(folder);
    std::sort(names.begin(), names.end());
    EXPECT_THAT(names, ElementsAre("history.json", "scans.json"));
    EXPECT_EQ(TempHome::content(folder + "/history.json").find_first_of(" \n\t"), std::string::npos)
        << "compact";
}

TEST_F(PersistTest, whatCannotBeUnderstoodIsSetAsideBeforeItIsReplaced)
{
    const std::string good = historyText({record("A"), record("B")});
    const struct {
        const char* name;
        std::string content;
        std::size_t kept;
    } cases[] = {
        {"empty", "", 0},
        {"malformed", "[{]", 0},
        {"cut", good.substr(0, good.size() - 9), 1},
        {"too long to be a history", std::string(32'000'001, ' '), 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        (void)home.file(file, c.content);
        const auto loaded = Persist::loadHistory();
        EXPECT_EQ(loaded.problem, Persist::Problem::damaged);
        EXPECT_EQ(loaded.records.size(), c.kept);
        EXPECT_THAT(listNames(folder), ElementsAre("history.json")) << "reading changes nothing";
        EXPECT_TRUE(Persist::saveHistory({record("A")}).ok());
        EXPECT_EQ(Persist::loadHistory().problem, Persist::Problem::none);
        ASSERT_THAT(setAside(), SizeIs(1));
        EXPECT_EQ(TempHome::content(PathText::join(folder, setAside().front())), c.content);
        ASSERT_EQ(std::remove(PathText::join(folder, setAside().front()).c_str()), 0);
    }
}

TEST_F(PersistTest, theNewestThreeOfWhatWasSetAsideStay)
{
    for (const char* time : {"20240101T000000Z", "20240102T000000Z", "20240103T000000Z"})
        (void)home.file(folder + "/history.unreadable-" + time + ".json");
    (void)home.file(folder + "/history.unreadable-notes.json");
    (void)home.file(file, "?");
    EXPECT_TRUE(Persist::saveHistory({}).ok());
    const std::vector<std::string> names = setAside();
    ASSERT_THAT(names, SizeIs(4));
    EXPECT_THAT(names, testing::IsSupersetOf(
                           {"history.unreadable-20240103T000000Z.json", "history.unreadable-notes.json"}));
    EXPECT_THAT(names, Not(testing::Contains("history.unreadable-20240101T000000Z.json")));
}

TEST_F(PersistTest, whatCouldNotBeReadIsNotWrittenOver)
{
    EXPECT_TRUE(Persist::saveHistory({record("A"), record("B")}).ok());
    const std::string content = TempHome::content(file);
    TempHome::setMode(file, 0);
    const auto loaded = Persist::loadHistory();
    EXPECT_THAT(loaded.records, IsEmpty());
    EXPECT_EQ(loaded.problem, Persist::Problem::unreadable);
    EXPECT_EQ(loaded.error, EACCES);
    EXPECT_EQ(Persist::saveHistory({record("C")}).error(), EACCES);
    TempHome::setMode(file, 0600);
    EXPECT_EQ(Persist::saveHistory({record("C")}).error(), EACCES) << "it was not read meanwhile";
    EXPECT_EQ(TempHome::content(file), content);
    EXPECT_EQ(Persist::loadHistory().records.size(), 2U);
    EXPECT_TRUE(Persist::saveHistory({record("C")}).ok());
    EXPECT_THAT(listNames(folder), ElementsAre("history.json"));
}

TEST_F(PersistTest, whenDescriptorsRunOutNothingIsLost)
{
    EXPECT_TRUE(Persist::saveHistory({record("A")}).ok());
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
    rlimit none = before;
    none.rlim_cur = 0;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    const auto loaded = Persist::loadHistory();
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
    EXPECT_EQ(loaded.error, EMFILE);
    EXPECT_EQ(Persist::saveHistory({}).error(), EMFILE);
    EXPECT_EQ(Persist::loadHistory().records.size(), 1U);
}

TEST_F(PersistTest, aLinkStaysALink)
{
    const std::string target = home.file("synced/history.json", historyText({record("A")}));
    (void)home.folder(folder);
    (void)home.link(file, "../../../synced/history.json");
    EXPECT_EQ(Persist::loadHistory().records.size(), 1U);
    EXPECT_TRUE(Persist::saveHistory({record("A"), record("B")}).ok());
    EXPECT_EQ(statusOf(file).value().type, FileType::link);
    EXPECT_EQ(TempHome::content(target).substr(0, 7), "[{\"id\":");
    EXPECT_EQ(Persist::loadHistory().records.size(), 2U);

    ASSERT_EQ(std::remove(target.c_str()), 0);
    EXPECT_EQ(Persist::loadHistory().problem, Persist::Problem::none);
    EXPECT_TRUE(Persist::saveHistory({record("A")}).ok()) << "its folder is there";
    EXPECT_TRUE(TempHome::exists(target));
    ASSERT_EQ(std::rename(home.path("synced").c_str(), home.path("gone").c_str()), 0);
    EXPECT_EQ(Persist::loadHistory().problem, Persist::Problem::unreadable) << "a disk that is not there";
    EXPECT_FALSE(Persist::saveHistory({}).ok());
}

TEST_F(PersistTest, aFailedSaveKeepsTheOldFileAndTellsWhy)
{
    EXPECT_TRUE(Persist::saveHistory({record("A")}).ok());
    TempHome::setMode(folder, 0500);
    EXPECT_EQ(Persist::saveHistory({}).error(), EACCES);
    EXPECT_EQ(Persist::loadHistory().records.size(), 1U);
    TempHome::setMode(folder, 0700);
    EXPECT_THAT(listNames(folder), ElementsAre("history.json"));
    // A limit of the process stands in for a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    rlimit few = before;
    few.rlim_cur = 10;
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &few), 0);
    const auto full = Persist::saveHistory({record("A"), record("B")});
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(full.error(), EFBIG);
    EXPECT_EQ(Persist::loadHistory().records.size(), 1U);
}

TEST_F(PersistTest, aFolderThatCannotBeMadeIsTold)
{
    (void)home.file(".local/share", "in the way");
    EXPECT_FALSE(Persist::saveHistory({record("A")}).ok());
    EXPECT_THAT(Persist::loadHistory().records, IsEmpty());
    EXPECT_EQ(Persist::loadHistory().problem, Persist::Problem::none);
}

TEST_F(PersistTest, aNameThatIsNotTextDoesNotCostTheWholeHistory)
{
    CleanRecord odd = record("A");
    odd.items.front().trashed = "/t/\xFF";
    EXPECT_TRUE(Persist::saveHistory({odd, record("B")}).ok());
    const auto history = Persist::loadHistory().records;
    ASSERT_EQ(history.size(), 2U);
    EXPECT_EQ(history[0].items.front().trashed, "/t/\xEF\xBF\xBD");
}

} // namespace orlen

#include "app/AppModel.h"

#include "app/ScannedModel.h"
#include "app/Sizes.h"
#include "clean/Cleaner.h"
#include "clean/Persist.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

CleanPlan planOf(std::vector<std::string> paths)
{
    CleanPlan plan;
    plan.title = Message::verbatim("Some of it");
    PlanSection section{"caches", message("App caches"), "internaldrive.fill", {}};
    for (std::string& path : paths)
        section.entries.push_back({std::move(path), 4096});
    plan.sections.push_back(std::move(section));
    return plan;
}

std::vector<std::string> manyFiles(const TempHome& home, int count)
{
    std::vector<std::string> paths(static_cast<std::size_t>(count));
    std::generate(paths.begin(), paths.end(),
                  [&, i = 0]() mutable { return home.file(".cache/many/" + std::to_string(i++)); });
    return paths;
}

[[nodiscard]] bool cleaned(AppModel& model, const CleanPlan& plan)
{
    model.cleanUps()->confirm(plan);
    return waitUntil([&] { return model.cleanUps()->cleaning() && model.cleanUps()->cleaning()->finished; });
}

} // namespace

TEST(AppModelCleanupTest, movedEntriesLeaveTheResultsAndEnterTheHistory)
{
    const TempHome home;
    home.fileOfSize(".cache/chromium/pages", 400 * kKiB);
    home.fileOfSize(".xsession-errors", 64 * kKiB);
    AppModel model(kCommand);
    scan(model);
    ASSERT_THAT(model.results()->findings(), SizeIs(2));
    // The user has unticked the log.
    CleanPlan plan = model.results()->scanPlan();
    std::erase_if(plan.sections, [](const PlanSection& section) { return section.id == "logs"; });
    model.cleanUps()->confirm(plan);
    EXPECT_EQ(model.cleanUps()->cleaning()->total, 1);
    EXPECT_EQ(model.cleanUps()->cleaning()->planTitle.base(), "Smart Scan clean-up");
    ASSERT_TRUE(waitUntil([&] { return model.cleanUps()->cleaning()->finished; }));
    EXPECT_EQ(model.cleanUps()->cleaning()->moved, 1);
    EXPECT_EQ(model.cleanUps()->cleaning()->failed, 0);
    EXPECT_EQ(model.cleanUps()->cleaning()->freed, 400 * kKiB);
    EXPECT_FALSE(TempHome::exists(home.path(".cache/chromium")));
    ASSERT_THAT(model.results()->findings(), SizeIs(1));
    EXPECT_EQ(model.results()->findings().front().kind, FindingKind::logs);
    EXPECT_THAT(model.results()->selection(), ElementsAre(home.path(".xsession-errors")));
    EXPECT_EQ(Persist::loadHistory().records.front().id, model.cleanUps()->history().front().id);
    model.cleanUps()->dismissCleaning();
    EXPECT_FALSE(model.cleanUps()->cleaning().has_value());
}

TEST(AppModelCleanupTest, whatCannotMoveIsCountedAndStays)
{
    const TempHome home;
    const std::string good = home.file(".cache/good");
    AppModel model(kCommand);
    ASSERT_TRUE(cleaned(model, planOf({good, home.path("Documents"), home.path("gone")})));
    EXPECT_EQ(model.cleanUps()->cleaning()->moved, 1);
    EXPECT_EQ(model.cleanUps()->cleaning()->failed, 2);
    ASSERT_THAT(model.cleanUps()->history(), SizeIs(1));
    EXPECT_EQ(model.cleanUps()->history().front().failed, 2);
    EXPECT_EQ(model.cleanUps()->history().front().title, "Some of it");
}

TEST(AppModelCleanupTest, whatLiesInAMovedFolderLeavesTheResultsWithIt)
{
    const TempHome home;
    const std::string folder = home.folder("Downloads/old");
    const std::string film = home.fileOfSize("Downloads/old/film", 1200 * kKiB);
    const TimePoint longAgo = std::chrono::system_clock::now() - std::chrono::hours(24 * 90);
    TempHome::setTimes(folder, longAgo, longAgo);
    AppModel model(kCommand);
    model.results()->setLargeThresholdMB(1);
    scan(model);
    ASSERT_THAT(model.results()->findings(), SizeIs(2));
    model.results()->select(std::vector{folder});
    EXPECT_THAT(model.results()->selection(), ElementsAre(folder, film));
    const CleanPlan plan = model.results()->scanPlan();
    model.cleanUps()->confirm(plan);
    EXPECT_EQ(model.cleanUps()->cleaning()->total, 1) << "one item takes the other along";
    ASSERT_TRUE(waitUntil([&] { return model.cleanUps()->cleaning()->finished; }));
    EXPECT_THAT(model.results()->findings(), IsEmpty());
    EXPECT_THAT(model.results()->selection(), IsEmpty());
}

TEST(AppModelCleanupTest, whatAKilledCleanUpMovedIsKnownAtTheNextStart)
{
    const TempHome home;
    // As if the process had ended before it saved the record.
    const auto killed = Cleaner::run(planOf({home.file(".cache/a")}).sections.front().entries, "Killed",
                                     [](int, int, const std::string&) {});
    {
        const AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::reader});
        ASSERT_THAT(reader.cleanUps()->history(), SizeIs(1)) << "who only reads sees it too";
    }
    AppModel model(kCommand);
    ASSERT_THAT(model.cleanUps()->history(), SizeIs(1));
    EXPECT_EQ(model.cleanUps()->history().front().id, killed.record.id);
    EXPECT_EQ(model.cleanUps()->restore(model.cleanUps()->history().front()).outcome.restored, 1);
}

TEST(AppModelCleanupTest, aRecordThatCannotBeSavedIsTold)
{
    const TempHome home;
    AppModel model(kCommand);
    (void)home.folder(".local/share/Orlen/history.json"); // where a file belongs
    ASSERT_TRUE(cleaned(model, planOf({home.file(".cache/a"), home.path("gone")})));
    EXPECT_FALSE(model.cleanUps()->cleaning()->isRecorded);
    EXPECT_EQ(model.cleanUps()->cleaning()->failures,
              (std::vector<CleanFailure>{{home.path("gone"), FailureReason::missing}}));
    EXPECT_FALSE(model.cleanUps()->restore(model.cleanUps()->history().front()).isRecorded);
}

TEST(AppModelCleanupTest, aCleanUpThatMovedNothingLeavesNoRecord)
{
    const TempHome home;
    AppModel model(kCommand);
    std::optional<CleanRecord> reported;
    QObject::connect(model.cleanUps(), &CleanUps::cleaningFinished,
                     [&](const CleanRecord& record) { reported = record; });
    ASSERT_TRUE(cleaned(model, planOf({home.path("gone")})));
    EXPECT_EQ(model.cleanUps()->cleaning()->moved, 0);
    EXPECT_EQ(model.cleanUps()->cleaning()->failed, 1);
    EXPECT_THAT(model.cleanUps()->history(), IsEmpty());
    EXPECT_FALSE(TempHome::exists(Persist::dir() + "/history.json"));
    ASSERT_TRUE(reported.has_value());
    EXPECT_EQ(reported->failed, 1);
}

TEST(AppModelCleanupTest, aPlanOfNothingBeginsNothing)
{
    const TempHome home;
    AppModel model(kCommand);
    model.cleanUps()->confirm(planOf({}));
    EXPECT_FALSE(model.cleanUps()->cleaning().has_value());
}

TEST(AppModelCleanupTest, aCancelledCleanUpRecordsWhatItMoved)
{
    const TempHome home;
    const std::vector<std::string> paths = manyFiles(home, 2000);
    AppModel model(kCommand);
    const CleanPlan plan = planOf(paths);
    model.cleanUps()->confirm(plan);
    model.cleanUps()->cancelCleaning();
    ASSERT_TRUE(waitUntil([&] { return model.cleanUps()->cleaning()->finished; }));
    const auto left = std::count_if(paths.begin(), paths.end(), TempHome::exists);
    EXPECT_EQ(model.cleanUps()->cleaning()->moved + static_cast<int>(left), 2000);
    EXPECT_EQ(model.cleanUps()->cleaning()->failed, 0);
    EXPECT_GT(left, 0);
}

TEST(AppModelCleanupTest, aModelThatGoesDuringACleanUpRecordsIt)
{
    const TempHome home;
    const std::vector<std::string> paths = manyFiles(home, 500);
    {
        AppModel model(kCommand);
        const CleanPlan plan = planOf(paths);
        model.cleanUps()->confirm(plan);
        ASSERT_TRUE(waitUntil([&] { return !TempHome::exists(home.path(".cache/many/0")); }));
    }
    const auto left = std::count_if(paths.begin(), paths.end(), TempHome::exists);
    const std::vector<CleanRecord> history = Persist::loadHistory().records;
    ASSERT_THAT(history, SizeIs(1));
    EXPECT_EQ(history.front().items.size() + static_cast<std::size_t>(left), 500U);
}

TEST(AppModelCleanupTest, restoringTellsWhatCameBack)
{
    struct Case {
        const char* name;
        std::vector<std::string> files;
        std::vector<std::string> recreated; ///< taken places before the restore
        const char* message;
    };
    const Case cases[] = {
        {"all of one", {"a"}, {}, "Restored 1 item."},
        {"all of two", {"a", "b"}, {}, "Restored 2 items."},
        {"one of three is taken",
         {"a", "b", "c"},
         {"b"},
         "Restored 2; 1 couldn't be restored (already emptied from the Trash, or something exists at the "
         "original "
         "location)."},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        AppModel model(kCommand);
        std::vector<std::string> paths;
        for (const std::string& name : c.files)
            paths.push_back(home.file(".cache/" + name, "content of " + name));
        ASSERT_TRUE(cleaned(model, planOf(paths)));
        for (const std::string& name : c.recreated)
            home.file(".cache/" + name, "new");
        const CleanUps::Restoration first = model.cleanUps()->restore(model.cleanUps()->history().front());
        EXPECT_EQ(first.message.base(), c.message);
        EXPECT_EQ(first.outcome.failed, static_cast<int>(c.recreated.size()));
        EXPECT_EQ(TempHome::content(paths.front()), "content of a");
        EXPECT_EQ(Persist::loadHistory().records.front().items, first.outcome.record.items);
        EXPECT_EQ(model.cleanUps()->history().front(), first.outcome.record);
        // What is back is not put back again.
        EXPECT_EQ(model.cleanUps()->restore(model.cleanUps()->history().front()).outcome.restored, 0);
    }
}

TEST(AppModelCleanupTest, aForgottenRecordIsRestoredButNotRemembered)
{
    const TempHome home;
    AppModel model(kCommand);
    ASSERT_TRUE(cleaned(model, planOf({home.file(".cache/a")})));
    CleanRecord stranger = model.cleanUps()->history().front();
    stranger.id = Uuid::random();
    EXPECT_EQ(model.cleanUps()->restore(stranger).message.base(), "Restored 1 item.");
    ASSERT_THAT(model.cleanUps()->history(), SizeIs(1));
    EXPECT_FALSE(model.cleanUps()->history().front().items.front().restored);
}

TEST(AppModelCleanupTest, aRestoreInTheBackgroundTellsItsEndAndRefusesASecondOne)
{
    const TempHome home;
    AppModel model(kCommand);
    const std::vector<std::string> paths = manyFiles(home, 300);
    ASSERT_TRUE(cleaned(model, planOf(paths)));
    const CleanRecord record = model.cleanUps()->history().front();
    std::vector<std::string> messages;
    QObject::connect(model.cleanUps(), &CleanUps::restored, [&](const CleanUps::Restoration& restoration) {
        EXPECT_FALSE(model.cleanUps()->isRestoring(record.id));
        EXPECT_EQ(model.cleanUps()->history().front(), restoration.outcome.record);
        messages.push_back(restoration.message.base());
    });
    EXPECT_TRUE(model.cleanUps()->startRestore(record));
    EXPECT_TRUE(model.cleanUps()->isRestoring(record.id));
    EXPECT_FALSE(model.cleanUps()->startRestore(record));
    ASSERT_TRUE(waitUntil([&] { return !messages.empty(); }));
    EXPECT_THAT(messages, ElementsAre("Restored 300 items."));
    EXPECT_TRUE(std::all_of(paths.begin(), paths.end(), TempHome::exists));
    EXPECT_EQ(Persist::loadHistory().records.front().items, model.cleanUps()->history().front().items);
}

TEST(AppModelCleanupTest, whatIsPutBackIsListedAgainAsItWasAndMayMoveAgain)
{
    const TempHome home;
    home.fileOfSize(".cache/chromium/pages", 400 * kKiB);
    home.fileOfSize(".xsession-errors", 64 * kKiB);
    home.fileOfSize(".xsession-errors.old", 32 * kKiB);
    AppModel model(kCommand);
    scan(model);
    model.results()->deselect(std::vector{home.path(".xsession-errors.old")});
    const std::vector<Finding> before = model.results()->findings();
    const std::set<std::string> selection = model.results()->selection();
    for (int round = 0; round < 2; ++round) {
        SCOPED_TRACE(round);
        ASSERT_TRUE(cleaned(model, model.results()->scanPlan()));
        EXPECT_EQ(model.cleanUps()->cleaning()->moved, 2) << "what was put back is still what was shown";
        EXPECT_EQ(model.results()->findings().size(), 1U);
        ASSERT_TRUE(model.cleanUps()->startRestore(model.cleanUps()->history().front()));
        ASSERT_TRUE(waitUntil([&] { return model.results()->findings().size() == before.size(); }));
        EXPECT_EQ(model.results()->selection(), selection);
        for (std::size_t i = 0; i < before.size(); ++i) {
            EXPECT_EQ(model.results()->findings()[i].kind, before[i].kind);
            EXPECT_EQ(model.results()->findings()[i].items.size(), before[i].items.size());
            EXPECT_EQ(model.results()->findings()[i].totalSize(), before[i].totalSize());
        }
    }
}

TEST(AppModelCleanupTest, onlyTheItemsThatArePutBackAndUnchangedAreListedAgain)
{
    const TempHome home;
    home.fileOfSize(".xsession-errors", 64 * kKiB);
    home.fileOfSize(".xsession-errors.old", 32 * kKiB);
    home.fileOfSize(".cache/chromium/pages", 400 * kKiB);
    AppModel model(kCommand);
    scan(model);
    ASSERT_TRUE(cleaned(model, model.results()->scanPlan()));
    const CleanRecord record = model.cleanUps()->history().front();
    for (const TrashedItem& item : record.items) {
        if (item.original == home.path(".xsession-errors.old"))
            home.file(item.trashed, std::string(32 * kKiB, 'x')); // written to in the Trash
    }
    const std::set logs{home.path(".xsession-errors"), home.path(".xsession-errors.old")};
    ASSERT_TRUE(model.cleanUps()->startRestore(record, logs));
    ASSERT_TRUE(waitUntil([&] { return !model.results()->findings().empty(); }));
    ASSERT_THAT(model.results()->findings(), SizeIs(1));
    ASSERT_THAT(model.results()->findings().front().items, SizeIs(1));
    EXPECT_EQ(model.results()->findings().front().items.front().path, home.path(".xsession-errors"));
    EXPECT_FALSE(TempHome::exists(home.path(".cache/chromium")));
}

TEST(AppModelCleanupTest, aDuplicateIsListedAgainOnceTheCopyToBeKeptIsBack)
{
    const TempHome home;
    home.fileOfSize("Documents/report", 1200 * kKiB, 7);
    home.fileOfSize("Downloads/report", 1200 * kKiB, 7);
    AppModel model(kCommand);
    scan(model);
    ASSERT_THAT(model.results()->findings(), SizeIs(1));
    const std::vector<Finding> before = model.results()->findings();
    const std::string kept = before.front().items.front().kept->path;
    ASSERT_TRUE(cleaned(model, planOf({kept})));
    ASSERT_THAT(model.results()->findings(), IsEmpty());
    ASSERT_TRUE(model.cleanUps()->startRestore(model.cleanUps()->history().front()));
    ASSERT_TRUE(waitUntil([&] { return !model.results()->findings().empty(); }));
    model.results()->select(std::vector{before.front().items.front().path});
    ASSERT_TRUE(cleaned(model, model.results()->scanPlan()));
    EXPECT_EQ(model.cleanUps()->cleaning()->failed, 0);
}

TEST(AppModelCleanupTest, aWindowsTrashCardFollowsCleanUpsAndRestores)
{
    const TempHome home;
    home.fileOfSize(".cache/chromium/pages", 400 * kKiB);
    AppModel model({.startup = AppModel::Startup::full});
    scan(model);
    const auto trashed = [&] {
        const auto& findings = model.results()->findings();
        const auto trash = std::ranges::find(findings, FindingKind::trash, &Finding::kind);
        return trash == findings.end() ? 0 : trash->totalSize();
    };
    EXPECT_EQ(trashed(), 0);
    ASSERT_TRUE(cleaned(model, planOf({home.path(".cache/chromium")})));
    ASSERT_TRUE(waitUntil([&] { return trashed() >= 400 * kKiB; }));
    ASSERT_TRUE(model.cleanUps()->startRestore(model.cleanUps()->history().front()));
    ASSERT_TRUE(waitUntil([&] { return trashed() == 0; }));
}

TEST(AppModelCleanupTest, aStoppedRestoreRecordsWhatIsBack)
{
    const TempHome home;
    const std::vector<std::string> paths = manyFiles(home, 300);
    AppModel model(kCommand);
    ASSERT_TRUE(cleaned(model, planOf(paths)));
    const Uuid id = model.cleanUps()->history().front().id;
    QObject::connect(model.cleanUps(), &CleanUps::restoreProgressed, [&] {
        EXPECT_LE(model.cleanUps()->restoring(id)->done, 300);
        EXPECT_TRUE(model.cleanUps()->restoring(id)->isStopping);
    });
    ASSERT_TRUE(model.cleanUps()->startRestore(model.cleanUps()->history().front()));
    model.cleanUps()->cancelRestore(id);
    ASSERT_TRUE(waitUntil([&] { return !model.cleanUps()->isRestoring(id); }));
    const auto back = std::count_if(paths.begin(), paths.end(), TempHome::exists);
    EXPECT_LT(back, 300);
    const auto& items = model.cleanUps()->history().front().items;
    EXPECT_EQ(std::ranges::count(items, true, &TrashedItem::restored), back);
}

TEST(AppModelCleanupTest, aModelThatGoesDuringARestoreRecordsWhatIsBack)
{
    const TempHome home;
    const std::vector<std::string> paths = manyFiles(home, 500);
    {
        AppModel model(kCommand);
        ASSERT_TRUE(cleaned(model, planOf(paths)));
        EXPECT_TRUE(model.cleanUps()->startRestore(model.cleanUps()->history().front()));
        ASSERT_TRUE(waitUntil([&] { return TempHome::exists(home.path(".cache/many/0")); }));
    }
    const std::vector<CleanRecord> history = Persist::loadHistory().records;
    ASSERT_THAT(history, SizeIs(1));
    for (const TrashedItem& item : history.front().items)
        EXPECT_EQ(item.restored, TempHome::exists(item.original)) << item.original;
}

} // namespace orlen

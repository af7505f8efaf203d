#include "app/AppModel.h"

#include "app/ScannedModel.h"
#include "app/Sizes.h"
#include "clean/Persist.h"
#include "insight/AskContext.h"
#include "insight/Growth.h"
#include "scan/ScanEngine.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TimePoint now()
{
    return std::chrono::system_clock::now();
}

/// A home with something for several findings: two safe caches, a safe log, a review download, a full Trash.
struct UsedHome : TempHome {
    UsedHome()
    {
        fileOfSize(".cache/chromium/pages", 400 * kKiB);
        fileOfSize(".cache/mozilla/covers", 800 * kKiB);
        fileOfSize(".xsession-errors", 64 * kKiB);
        fileOfSize(".local/share/Trash/files/thrown", 3'000 * kKiB);
        const std::string old = fileOfSize("Downloads/paper.pdf", 300 * kKiB);
        setTimes(old, now() - 24h * 90, now() - 24h * 90);
    }
};

std::vector<FindingKind> kinds(const std::vector<Finding>& findings)
{
    std::vector<FindingKind> all;
    all.reserve(findings.size());
    for (const Finding& finding : findings)
        all.push_back(finding.kind);
    return all;
}

} // namespace

TEST(AppModelTest, startUpRecordsASnapshotWhenOneIsDue)
{
    struct Case {
        const char* name;
        std::optional<std::chrono::hours> age; ///< of the newest snapshot
        std::size_t expected;
    };
    constexpr Case cases[] = {
        {"none yet", std::nullopt, 1}, {"11 hours old", 11h, 1}, {"13 hours old", 13h, 2}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        if (c.age)
            (void)Persist::saveSnapshots({Snapshot{now() - *c.age, 1, 2, {}}});
        AppModel model({AppModel::Startup::full});
        ASSERT_TRUE(waitUntil([&] { return model.storage()->isBreakdownReady(); }));
        EXPECT_THAT(model.storage()->snapshots(), SizeIs(c.expected));
        EXPECT_THAT(Persist::loadSnapshots().records, SizeIs(c.expected));
        EXPECT_EQ(model.storage()->breakdown().cats.size(), 7U);
    }
}

TEST(AppModelTest, eachScanNotesHowBigFoldersAreUnlessAnotherProgramWrites)
{
    const TempHome home;
    home.fileOfSize("Videos/a", 12'000 * kKiB);
    AppModel model(kCommand);
    scan(model);
    home.fileOfSize("Videos/series/b", 20'000 * kKiB);
    AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::writer});
    ASSERT_FALSE(reader.isWriter());
    scan(reader);
    const auto growth = Growth::sinceLastScan(reader.askContext().folders);
    ASSERT_TRUE(growth);
    EXPECT_THAT(growth->folders, ElementsAre(Growth::Folder{home.path("Videos/series"), 0, 20'000 * kKiB}));
    EXPECT_THAT(Persist::loadFolderReadings().records, SizeIs(1)) << "a reader saves nothing";
    EXPECT_EQ(Persist::loadFolderReadings().records, model.storage()->folders().readings());
    scan(model);
    EXPECT_THAT(Persist::loadFolderReadings().records, SizeIs(2));
}

TEST(AppModelTest, aSnapshotIsStaleAfterTwelveHoursAndNotAtThem)
{
    const TimePoint moment = now();
    const std::vector<Snapshot> snapshots{{moment - 100h, 0, 0, {}}, {moment - 12h, 0, 0, {}}};
    EXPECT_FALSE(Storage::isStale(snapshots, moment));
    EXPECT_TRUE(Storage::isStale(snapshots, moment + 1s));
    EXPECT_TRUE(Storage::isStale({}, moment));
}

TEST(AppModelTest, aSnapshotReplacesOneOfThePastHour)
{
    const TempHome home;
    const TimePoint midnight = std::chrono::floor<std::chrono::days>(now());
    (void)Persist::saveSnapshots({{now() - 25h, 1, 2, {}}, {now() - 61min, 1, 2, {}}});
    AppModel model(kCommand);
    model.storage()->recordSnapshot();
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(3));
    model.storage()->recordSnapshot();
    if (std::chrono::floor<std::chrono::days>(now()) != midnight)
        GTEST_SKIP() << "midnight has just passed";
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(3));
    EXPECT_EQ(Persist::loadSnapshots().records.back().free, model.storage()->breakdown().free);
}

TEST(AppModelTest, aFileThatCannotBeUsedIsToldInOneSentence)
{
    const TempHome home;
    home.file(".local/share/Orlen/history.json", "[7]");
    TempHome::setMode(home.file(".local/share/Orlen/scans.json", "[]"), 0);
    const AppModel model(kCommand);
    ASSERT_THAT(model.notices(), SizeIs(2));
    EXPECT_THAT(model.notices()[0].base(), testing::HasSubstr("history.unreadable-"));
    EXPECT_THAT(model.notices()[1].base(), testing::HasSubstr("Permission denied"));
}

TEST(AppModelTest, theOldestOf401SnapshotsIsDropped)
{
    const TempHome home;
    std::vector<Snapshot> snapshots;
    snapshots.reserve(400);
    for (int i = 0; i < 400; ++i)
        snapshots.push_back({now() - 1h * (500 - i), i, 1000, {}});
    (void)Persist::saveSnapshots(snapshots);
    AppModel model(kCommand);
    model.storage()->recordSnapshot();
    const std::vector<Snapshot> saved = Persist::loadSnapshots().records;
    ASSERT_THAT(saved, SizeIs(400));
    EXPECT_EQ(saved.front().free, 1);
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(400));
}

TEST(AppModelTest, aScanSortsItsFindingsAndSelectsTheSafeEntries)
{
    const UsedHome home;
    AppModel model(kCommand);
    scan(model);
    ASSERT_EQ(model.results()->phase(), Phase::results);
    // Safe bytes first; then the Trash, which has none but more bytes than the download.
    EXPECT_THAT(
        kinds(model.results()->findings()),
        ElementsAre(FindingKind::caches, FindingKind::logs, FindingKind::trash, FindingKind::oldDownloads));
    EXPECT_THAT(model.results()->selection(),
                ElementsAre(home.path(".cache/chromium"), home.path(".cache/mozilla"),
                            home.path(".xsession-errors")));
    const std::int64_t safe = (400 + 800 + 64) * kKiB;
    EXPECT_EQ(model.results()->safeBytes(), safe);
    EXPECT_EQ(model.results()->totalFound(), safe + 300 * kKiB);
    EXPECT_EQ(model.results()->selectedSize(model.results()->findings().front()), (400 + 800) * kKiB);
    EXPECT_THAT(model.results()->photoFindings(), IsEmpty());
    EXPECT_TRUE(model.storage()->isBreakdownReady());
    EXPECT_TRUE(model.results()->lastScan().has_value());
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(1));
}

TEST(AppModelTest, aCancelledScanKeepsWhatWasThereBefore)
{
    const UsedHome home;
    AppModel model(kCommand);
    scan(model);
    const auto findings = model.results()->findings();
    const auto lastScan = model.results()->lastScan();
    model.results()->setSelection({findings.front().items.front().path});
    const auto selection = model.results()->selection();
    model.results()->startScan();
    model.results()->cancelScan();
    ASSERT_TRUE(waitUntil([&] { return model.results()->phase() != Phase::scanning; }));
    EXPECT_EQ(model.results()->phase(), Phase::idle);
    EXPECT_EQ(model.results()->findings(), findings);
    EXPECT_EQ(model.results()->selection(), selection);
    EXPECT_EQ(model.results()->lastScan(), lastScan);
    EXPECT_THAT(Persist::loadSnapshots().records, SizeIs(1));
}

TEST(AppModelTest, aSecondStartWhileScanningIsIgnored)
{
    const TempHome home;
    AppModel model(kCommand);
    int scansSeen = 0;
    QObject::connect(model.results(), &Results::scanProgressChanged, [&] { ++scansSeen; });
    model.results()->startScan();
    const ScanProgress* progress = &model.results()->scanProgress();
    model.results()->startScan();
    EXPECT_EQ(&model.results()->scanProgress(), progress);
    ASSERT_TRUE(waitUntil([&] { return model.results()->phase() == Phase::results; }));
    EXPECT_EQ(scansSeen, 1);
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(1));
    for (const ScanStep& step : model.results()->scanProgress().steps())
        EXPECT_EQ(step.state, StepState::done) << label(step.kind).base();
}

TEST(AppModelTest, theLargeFileThresholdIsInDecimalMegabytes)
{
    const TempHome home;
    home.fileOfSize("Videos/small.mkv", 1'998'848);
    home.fileOfSize("Videos/large.mkv", 2'002'944);
    AppModel model(kCommand);
    model.results()->setLargeThresholdMB(2);
    scan(model);
    ASSERT_THAT(kinds(model.results()->findings()), ElementsAre(FindingKind::largeFiles));
    ASSERT_THAT(model.results()->findings().front().items, SizeIs(1));
    EXPECT_EQ(model.results()->findings().front().items.front().path, home.path("Videos/large.mkv"));
    EXPECT_THAT(model.results()->selection(), IsEmpty());
}

TEST(AppModelTest, thePlanHoldsTheSelectedEntriesThatMayMove)
{
    const UsedHome home;
    AppModel model(kCommand);
    scan(model);
    model.results()->setSelection({});
    EXPECT_EQ(model.results()->scanPlan().title.base(), "Smart Scan clean-up");
    EXPECT_THAT(model.results()->scanPlan().sections, IsEmpty());

    // What lies in the Trash is never planned, nor is what is no entry.
    model.results()->setSelection({home.path(".local/share/Trash/files/thrown"),
                                   home.path("Downloads/paper.pdf"), home.path("Downloads"),
                                   home.path(".cache/chromium")});
    const CleanPlan plan = model.results()->scanPlan();
    ASSERT_THAT(plan.sections, SizeIs(2));
    EXPECT_EQ(plan.sections[0].id, "caches");
    EXPECT_THAT(plan.sections[0].entries, SizeIs(1));
    EXPECT_EQ(plan.sections[1].id, "oldDownloads");
}

TEST(AppModelTest, onlyTheFirstModelWrites)
{
    const TempHome home;
    const AppModel first(kCommand);
    AppModel second(kCommand);
    EXPECT_TRUE(first.isWriter());
    EXPECT_FALSE(second.isWriter());
    scan(second);
    EXPECT_EQ(second.results()->phase(), Phase::results);
    EXPECT_THAT(second.storage()->snapshots(), SizeIs(1));
    EXPECT_THAT(Persist::loadSnapshots().records, IsEmpty());
}

TEST(AppModelTest, aModelThatOnlyReadsLeavesTheLockToOthers)
{
    const TempHome home;
    const AppModel reader({AppModel::Startup::filesOnly, AppModel::Access::reader, {}});
    EXPECT_FALSE(reader.isWriter());
    EXPECT_FALSE(TempHome::exists(home.path(".local")));
    EXPECT_TRUE(AppModel(kCommand).isWriter());
}

TEST(AppModelTest, aDataFolderThatCannotBeMadeDoesNotStopAScan)
{
    const TempHome home;
    home.folder(".local/share");
    TempHome::setMode(home.path(".local/share"), 0500);
    AppModel model(kCommand);
    EXPECT_TRUE(model.isWriter());
    scan(model);
    EXPECT_EQ(model.results()->phase(), Phase::results);
    EXPECT_THAT(model.storage()->snapshots(), SizeIs(1));
}

TEST(AppModelTest, aModelMayGoWhileItScans)
{
    const UsedHome home;
    for (const auto startup : {AppModel::Startup::full, AppModel::Startup::filesOnly}) {
        {
            AppModel model({startup, AppModel::Access::writer, {}});
            model.results()->startScan();
        }
        QCoreApplication::processEvents();
        EXPECT_THAT(Persist::loadSnapshots().records, IsEmpty());
    }
}

} // namespace orlen
